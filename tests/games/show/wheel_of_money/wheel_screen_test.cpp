// The show on its screen: a whole game of ten spins through all ten mini-games to the table, and
// the game that ends in the red.
#include <QLineEdit>

#include "core/strings.h"
#include "game_open.h"
#include "games/show/wheel_of_money/wheel_screen.h"
#include "look.h"
#include "platform/movie.h"

namespace {

// Waits out the animation on the test clock until the big button can be pressed.
void UntilButton(GameShowForm* game) {
    for (int i = 0; i < 400 && !(game->state().commandShown && game->state().commandEnabled); ++i)
        Pump(50);
}

// Spins and stops the wheel on `slot`; the slot starts after the flash.
void SpinTo(GameShowForm* game, int slot) {
    UntilButton(game);
    game->clickCommand();
    QVERIFY(game->state().Spinning);
    for (int i = 0; i < 200 && game->state().WheelPos != slot; ++i) Pump(16);
    QTest::keyClick(game, Qt::Key_S);
    QVERIFY(!game->state().Spinning);
    Pump(1100);  // twenty flashes
}

// Plays the mini-game in hand and answers it right.
void AnswerRight(GameShowForm* game) {
    const wheel::WheelState& w = game->state();
    game->clickCommand();  // "Click here when you are ready to play..."
    switch (w.frame) {
        case wheel::Frame::Type:
            game->answerBox()->setText(QString::fromStdString(w.word));
            QTest::keyClick(game->answerBox(), Qt::Key_Return);
            break;
        case wheel::Frame::Choice:
            game->clickChoice(w.RightChoice);
            break;
        case wheel::Frame::Letters:
            QCOMPARE(game->tile(0)->y(), game->tile(1)->y());          // the tiles stand in one row
            QVERIFY(game->tile(0)->styleSheet().contains("#c00000"));  // dark red until marked
            if (w.kind == wheel::Kind::LetterChange) {
                game->clickTile(w.SwapFirst - 1);
                game->clickTile(w.SwapSecond - 1);
            } else {
                // Keep the leftmost tiles that spell the word; remove the rest.
                const std::string word = UCase(w.word);
                std::size_t next = 0;
                std::vector<int> extras;
                for (int i = 0; i < w.tileCount; ++i) {
                    if (next < word.size() && w.tiles[i] == std::string(1, word[next]))
                        ++next;
                    else
                        extras.push_back(i);
                }
                for (int i : extras) game->clickTile(i);
            }
            break;
        case wheel::Frame::None:
            QFAIL("no frame opened");
    }
}

}  // namespace

class WheelScreenTest : public QObject {
    Q_OBJECT
private slots:
    void tenSpinsThroughEveryMiniGameToTheTable() {
        Road fx(11, {"TV!"});  // the letter games need draws that differ
        WM_OPEN(game, fx,
                qobject_cast<GameShowForm*>(PlayFromTitle("Wheel of Money", "Human Body (", 4)));
        Pump(1500);
        // The intro plays first: coins tumbling behind the title.
        QVERIFY(game->movieScreen()->isVisible() && !game->command()->isEnabled());
        WM_CHECK_LOOK("Wheel_of_Money_intro", game);
        UntilButton(game);
        QVERIFY(!game->movieScreen()->isVisible());
        QCOMPARE(game->command()->text(), "Click here to go to the wheel...");
        QVERIFY(game->state().Label1.rfind("Welcome to Wheel of Money", 0) == 0);

        const int stops[] = {0, 1, 2, 4, 5, 6, 7, 8, 10, 11};
        double total = 0;
        for (int i = 0; i < 10; ++i) {
            SpinTo(game, stops[i]);
            QCOMPARE(game->state().SpinsLeft, 9 - i);
            QCOMPARE(game->command()->text(), "Click here when you are ready to play...");
            AnswerRight(game);
            total += double(game->state().PrizeAmount);
            QVERIFY2(game->state().Label1.rfind("Great job! $", 0) == 0,
                     game->state().Label1.c_str());
            QCOMPARE(Shared().Score, total);
        }
        QCOMPARE(game->command()->text(), "Click here to continue...");
        for (const char* s : {"beep.wav", "cheer.wav"}) QVERIFY2(fx.sound.played.contains(s), s);

        fx.dialogs.answerYes(false);
        const qsizetype heard = fx.sound.played.size();
        game->clickCommand();
        QCOMPARE(fx.sound.played.mid(heard), QStringList{"cheer.wav"});  // the table's cheer
        QCOMPARE(fx.dialogs.last(), "You won a cash and prize total of $" + QString::number(total) +
                                        "! Would you like to try again?");
        QVERIFY(BackAtTitle());
        QCOMPARE(TableRow(fx, "Wheel of Money"), "TV! " + QString::number(total));
    }

    void aGameInTheRedEndsWithAdvice() {
        ShellFixture fx;
        WM_OPEN(game, fx,
                qobject_cast<GameShowForm*>(
                    ContinueWithList(ChooserFor("Wheel of Money", 2, true), "Human Body (")));
        Pump();
        fx.rng.setFallback(0.1);
        for (int i = 0; i < 10; ++i) {
            SpinTo(game, 1);
            game->clickCommand();
            // Too slow every time: the countdown runs out.
            Pump(40000);
            QVERIFY(game->state().Label1.rfind("Oops! Your time ran out!", 0) == 0);
        }
        UntilButton(game);
        game->clickCommand();
        QCOMPARE(
            fx.dialogs.last(),
            "Hmmm... maybe a bit more practice is needed before you're ready for this game. Go "
            "and learn your vocab words, then come back and try again later...");
        QVERIFY(Showing<Title>() != nullptr);
    }
};

QTEST_MAIN(WheelScreenTest)
#include "wheel_screen_test.moc"
