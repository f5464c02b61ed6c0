// Bomb Squad 2 on its screen: wiring every word to the table; a wrong definition and the clock
// each to its own loser's box, the labels standing through the blast; the beeps turning high
// under ten seconds; Restart's box.

#include "games/show/bomb_squad2/bomb_squad2_screen.h"
#include "game_open.h"
#include "look.h"
#include "platform/movie.h"

namespace {
const Pairs kWeather{{"breeze", "a gentle wind"},
                     {"drizzle", "very light rain"},
                     {"hail", "balls of ice falling from clouds"},
                     {"fog", "a cloud at ground level"},
                     {"sleet", "rain and snow together"},
                     {"gust", "a sudden strong wind"},
                     {"thunder", "the sound after lightning"},
                     {"frost", "ice crystals on cold ground"}};

void clickOn(BombSquad2* game, QLabel* label) {
    QTest::mouseClick(game, Qt::LeftButton, {}, label->geometry().center());
}
int defOf(const BombSquad2* game, int word) {
    const auto& owners = game->board().defOwner;
    return int(std::find(owners.begin(), owners.end(), word) - owners.begin());
}
}  // namespace

class BombSquad2ScreenTest : public QObject {
    Q_OBJECT
private slots:
    void wireEveryWordToTheTable() {
        Road fx(0, {"JOY"});
        Shared().Score = 5000;
        WM_OPEN(game, fx, StartFromTitle<BombSquad2>(fx, "Bomb Squad 2", kWeather, 3, 400));
        const int n = int(game->board().words.size());
        QCOMPARE(n, 4);
        QCOMPARE(game->timeLabel()->text(), "40");
        // The definitions stand shuffled: each one's text is the meaning of its owner's word.
        for (int j = 0; j < n; ++j)
            QCOMPARE(game->defLabels()[j]->text().toStdString(),
                     Shared().Meanings[game->board().words[game->board().defOwner[j]]]);
        clickOn(game, game->defLabels()[0]);
        QVERIFY(!game->exploding());  // nothing carried: nothing happens

        fx.dialogs.answerYes(false);
        for (int i = 0; i < n; ++i) {
            clickOn(game, game->wordLabels()[i]);
            QVERIFY(game->board().carrying);
            if (i == 1) {  // the first wire runs to its definition, the second to the pointer
                QTest::mouseMove(game, game->rect().center() + QPoint(0, 150));
                WM_CHECK_LOOK("Bomb_Squad_2_wired", game);
            }
            clickOn(game, game->defLabels()[defOf(game, i)]);
            if (i == 0) {
                // Wired once, the word cannot be picked up again.
                clickOn(game, game->wordLabels()[0]);
                QVERIFY(!game->board().carrying);
            }
        }
        QCOMPARE(fx.sound.played.count("dkbell.wav"), n);
        QCOMPARE(fx.sound.played.count("snip.wav"), n);
        // The score starts from 0 at each deal: (500 + 40 + a roll of 1..3) times 3.
        QVERIFY(Shared().Score >= 541 * 3 && Shared().Score <= 543 * 3);
        QCOMPARE(fx.win.tables.size(), 1);
        QVERIFY(BackAtTitle());
    }

    void wrongDefinitionAndTimeOut() {
        ShellFixture fx;
        WM_OPEN(game, fx, StartFromTitle<BombSquad2>(fx, "Bomb Squad 2", kWeather, 10, 400));
        QCOMPARE(game->timeLabel()->text(), "15");
        Pump(5000);
        QCOMPARE(fx.sound.played.count("spacebeep.wav"), 5);  // 14 .. 10 left
        Pump(1000);
        QCOMPARE(fx.sound.played.count("highbeep.wav"), 1);  // 9 left
        clickOn(game, game->wordLabels()[0]);
        QTest::mouseClick(game, Qt::LeftButton, {}, game->rect().center());
        QVERIFY(game->board().carrying);  // a press off the labels changes nothing
        fx.dialogs.answerYes(true);
        clickOn(game, game->defLabels()[(defOf(game, 0) + 1) % 8]);
        QVERIFY(game->exploding() && game->bombMovie()->isVisible());
        QVERIFY(!game->timeLabel()->isVisible());
        Pump(2000);
        QCOMPARE(
            fx.dialogs.last(),
            "You connected the wrong wire and set the bomb off! You lose. Would you like to give "
            "it another try?");
        QVERIFY(!game->exploding());
        // Restart asks first, then deals again with a full clock.
        Pump(3000);
        QCOMPARE(game->timeLabel()->text(), "12");
        QVERIFY(TriggerMenu(game, "RS"));
        QCOMPARE(fx.dialogs.last(), "Click OK to reset the game");
        QCOMPARE(game->timeLabel()->text(), "15");
        fx.dialogs.answerYes(false);
        Pump(15000);
        Pump(2000);
        QCOMPARE(fx.dialogs.last(),
                 "You did not get the bomb diffused in time! You lose. Would you like to give it "
                 "another try?");
        QVERIFY(BackAtTitle());
    }
};

QTEST_MAIN(BombSquad2ScreenTest)
#include "bomb_squad2_screen_test.moc"
