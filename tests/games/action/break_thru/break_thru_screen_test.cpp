// BreakThru on its screen: from the title through the chooser and the options, the paddle
// steered with the keys, bricks broken in order and out of it, two words to the table; a game
// lost at 1920x1080 with every ball missed, a try again, and a list whose words are too long.
#include "games/action/break_thru/break_thru_screen.h"
#include "act_kit.h"

using namespace wm::break_thru;

class BreakThruScreenTest : public QObject {
    Q_OBJECT
private slots:
    void twoWordsWonWithTheKeys();
    void outOfBallsLoses();
};

namespace {

// The ball sent flat into the first whole brick showing `letter`, one frame; which it was.
int Hit(BreakThruForm* game, char letter, bool decoy = false) {
    const auto& bs = game->game().bricks();
    for (int i = 0; i < int(bs.size()); ++i) {
        if (bs[i].broken || bs[i].letter != letter || bs[i].decoy != decoy) continue;
        game->rules().place(500, {bs[i].x() - kBallR - 2, bs[i].y() + 26, game->game().speed(), 0});
        Pump(16);
        return i;
    }
    return -1;
}

void Serve(BreakThruForm* game) {
    SendKey(game, Qt::Key_Space);
    SendKey(game, Qt::Key_Space, QEvent::KeyRelease);
    Pump(16);
}

}  // namespace

void BreakThruScreenTest::twoWordsWonWithTheKeys() {
    Road fx(0, {"BRK"});
    // The list comes first; the slider, clamped to its two words, asks for both.
    auto* game = FromTitle<BreakThruForm>(
        fx, "BreakThru", {{"ox", "a strong farm animal"}, {"hen", "a bird that lays eggs"}}, 9);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    QCOMPARE(game->field()->call() + " " + game->field()->hint() + " " +
                 Labels(game, "BallsLabel Label1"),
             "Get ready! Word 1 of 2 Balls: 3 | " + Meaning());
    QVERIFY(game->findChild<QLabel*>("Label1")->isVisible() &&
            fx.music.opened.endsWith("sounds/breakthru.mid"));
    Pump(BreakThruForm::kReadyMs);
    QCOMPARE(game->field()->hint(), "Press Space to serve!");
    // Up held for twenty frames: the paddle and the ball on it rise 13 units a frame.
    HoldKey(game, Qt::Key_Up, 16 * 20);
    QCOMPARE(game->game().paddleY(), 550.0 - 20 * 13);
    Serve(game);
    QCOMPARE(game->field()->hint(), "");
    // A ball coming back low: Down held brings the paddle under it, and it goes back out.
    game->rules().place(game->game().paddleY(), {500, 560, -8, 0});
    HoldKey(game, Qt::Key_Down, 16 * 20);
    for (int t = 0; t < 40 && game->game().ball().vx < 0; ++t) Pump(16);
    QVERIFY(game->game().ball().vx > 0);

    int score = 0;
    for (int w = 1; w <= 2; ++w) {
        const std::string word = Shared().TheWord;
        QCOMPARE(LabelText(game, "WordLabel"), QString("Word %1 of 2").arg(w));
        if (w == 1) {
            // A decoy glows and stays, nothing to lose yet; its clonk only with sound on.
            const int d = Hit(game, game->game().bricks().back().letter, true);
            QVERIFY(game->game().bricks()[d].flash > 0);
            Shared().SoundOn = kFalse;
            Hit(game, game->game().bricks()[d].letter, true);
            QCOMPARE(fx.sound.played.count("breakthruwrong.wav"), 1);
            Shared().SoundOn = kTrue;
        }
        for (char c : word) {
            QVERIFY(Hit(game, char(toupper(c))) >= 0);
            score += 10 * w;
            QCOMPARE(LabelText(game, "ScoreLabel"), QString("Score: %1").arg(score));
        }
        if (w == 1) {
            QCOMPARE(game->field()->call(), "Well done!");
            Pump(BreakThruForm::kWordMs);
            QCOMPARE(game->field()->hint(), "Word 2 of 2");
            Pump(BreakThruForm::kReadyMs);
            Serve(game);
        }
    }
    QCOMPARE(game->field()->call(), "You broke through!");
    for (const char* effect : {"breakthruready.wav", "breakthruserve.wav", "breakthrupaddle.wav",
                               "breakthrubreak.wav", "breakthruword.wav", "breakthruwin.wav"})
        QVERIFY2(fx.sound.played.contains(effect), effect);
    Pump(BreakThruForm::kEndMs);
    WM_CHECK_WON(fx, "BreakThru", QString("BRK %1").arg(score));
}

void BreakThruScreenTest::outOfBallsLoses() {
    Road fx(0);
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    auto* game =
        OpenGame<BreakThruForm>(fx, "BreakThru", {{"ox", ""}, {"ox", ""}}, 2, false, true, true);
    QVERIFY(game);
    Pump(BreakThruForm::kReadyMs + 100);
    // A words-only list has no clue; the plates stand inside the screen.
    QVERIFY(!game->findChild<QLabel*>("Label1")->isVisible());
    WM_CHECK_PLATES(game);
    const char* calls[] = {"Missed!", "Last ball!", "Out of balls!"};
    for (int b = 3; b >= 1; --b) {
        QCOMPARE(LabelText(game, "BallsLabel"), QString("Balls: %1").arg(b));
        Serve(game);
        game->rules().place(game->game().paddleY(), {90, 240, -8, -3});  // off the fence
        Pump(16 * 15);
        QCOMPARE(game->field()->call(), calls[3 - b]);
    }
    for (const char* effect : {"breakthruwall.wav", "breakthrumiss.wav", "breakthrulose.wav"})
        QVERIFY2(fx.sound.played.contains(effect), effect);
    bool behind = false;  // the court plays on behind the box
    WatchBehindTheBox(fx, game, behind);
    Pump(BreakThruForm::kEndMs);
    QCOMPARE(LastBox(fx),
             "Try Again? | Out of balls! The word was ox. Would you like to try again?");
    QVERIFY(behind);
    // Try again: a fresh game with three balls.
    QCOMPARE(game->field()->call() + " " + LabelText(game, "BallsLabel"), "Get ready! Balls: 3");
    // Words too long for the top row: said clearly, then back to the title.
    Shared().Words = {"", "seventeen-letters", "abcdefghijklmnopq"};
    QCOMPARE(RestartRefusal(fx, game),
             "BreakThru | "
             "This list has no words that fit BreakThru: a word may have at most 16 letters. "
             "Please choose another list.");
}

QTEST_MAIN(BreakThruScreenTest)
#include "break_thru_screen_test.moc"
