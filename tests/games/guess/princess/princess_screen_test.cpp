// Princess on its screen, on the test clock: the road from the title through two words to the
// table and back, clicking and typing; the dragon woken by the eighth splash with the word
// shown and a new game; the clue, silence and a list it cannot play.
#include "games/guess/princess/princess_screen.h"
#include "game_open.h"
#include "look.h"

namespace {
// Clicks the first stone still in the water that carries `letter`, where the pupil sees it.
void Click(frmPrincess* game, char letter) {
    for (int i = 0; i < game->game().stones(); ++i)
        if (game->game().risenTo(i) < 0 && game->game().stoneLetter(i) == letter) {
            QTest::mouseClick(game, Qt::LeftButton, {}, game->stoneRect(i).center());
            return;
        }
    QFAIL("no such stone");
}
void Ready(frmPrincess* game, int ms) {
    Pump(ms);
    QCOMPARE(game->phase(), frmPrincess::Phase::Play);
}
QString Hud(QWidget* game) {
    return Labels(game, "WordLabel ScoreLabel MeterLabel");
}
}  // namespace

class PrincessScreenTest : public QObject {
    Q_OBJECT
private slots:
    void twoWordsFromTheTitleToTheTable() {
        Road fx(0);
        fx.rng.pick(1, 3);
        const Pairs castle{
            {"owl", "it hoots"}, {"moat", "water round a castle"}, {"king", "he wears a crown"}};
        WM_OPEN(game, fx, PlayOn<frmPrincess>(fx, "Princess", castle, 2));
        QVERIFY(fx.music.opened.endsWith("sounds/princess.mid"));
        QCOMPARE(LabelText(game, "ReadyLabel"), "Get ready!");
        Click(game, 'w');  // the stones wait for the pause
        QCOMPARE(game->game().splashes(), 0);
        Ready(game, 1650);
        QCOMPARE(Hud(game), "Word 1 of 2 | Score: 0 | Splashes: 0 of 8");
        QCOMPARE(LabelText(game, "MeaningLabel"), "Meaning: it hoots");  // the option is on
        WM_CHECK_LOOK("Princess_play", game);  // the bridge up, the stones in the moat

        // A wrong stone splashes and stirs the dragon; right ones rise in the word's order.
        Click(game, 'w');
        QCOMPARE(fx.sound.played.last(), "pr-splash.wav");
        QCOMPARE(Hud(game), "Word 1 of 2 | Score: 0 | Splashes: 1 of 8");
        Pump();
        QVERIFY(game->view().stir > 0.9);
        Click(game, 'o');
        QCOMPARE(fx.sound.played.last(), "pr-step.wav");
        QTest::mouseClick(game, Qt::LeftButton, {}, QPoint(5, 780));  // beside the stones: nothing
        QCOMPARE(game->game().splashes(), 1);
        Click(game, 'w');
        Pump(200);
        WM_CHECK_LOOK("Princess_splash", game);  // the splash still rings, two stones rise
        Click(game, 'l');
        QCOMPARE(fx.sound.played.last(), "pr-bridge.wav");
        QCOMPARE(game->phase(), frmPrincess::Phase::Spelled);
        QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 30");  // a splash: no bonus
        // The bridge comes down half way once the last plank is laid.
        Pump(450);
        QCOMPARE(game->view().bridge, 0.0);
        QCOMPARE(game->view().points, "+30");  // floating up over the moat
        QVERIFY(PaintsDuring(game, [] { Pump(1300); }) > 0);
        QCOMPARE(game->view().bridge, 0.5);
        // Each of the three stones is up on its plank.
        QCOMPARE(std::count(game->view().rise.begin(), game->view().rise.end(), 1.0), 3);
        fx.rng.pick(2, 3);
        Pump(100);
        QCOMPARE(LabelText(game, "ReadyLabel"), "Word 2 of 2");
        QVERIFY(game->findChild<QLabel*>("ReadyLabel")->isVisible());
        QCOMPARE(game->view().pointsU, 1.0);  // the first word's points have floated away
        QTest::keyClicks(game, "m");
        QCOMPARE(game->game().nextPosition(), 0);
        Ready(game, 1000);

        // Typed letters pick stones too, any case; a clean word earns the bonus.
        QTest::keyClicks(game, "MOAT");
        QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 120");  // + 4 x 10 + 50
        QCOMPARE(game->phase(), frmPrincess::Phase::Spelled);
        fx.dialogs.answerYes(false);
        Pump(1820);
        QCOMPARE(fx.sound.played.last(), "pr-win.wav");
        QCOMPARE(game->phase(), frmPrincess::Phase::Crossing);
        Pump(3900);
        QVERIFY(fx.win.congratulations.isEmpty());  // she is still on her way in
        Pump(200);
        WM_CHECK_WON(fx, "Princess", "ZZZ 120");
    }

    void theEighthSplashWakesTheDragon() {
        ShellFixture fx;
        WM_OPEN(game, fx,
                OpenGame<frmPrincess>(fx, "Princess", {{"owl", "it hoots at night"}}, 15, true));
        game->resize(1920, 1080);
        Ready(game, 1650);
        QCOMPARE(LabelText(game, "MeaningLabel"), "Meaning: it hoots at night");
        Click(game, 'o');
        for (int i = 0; i < 7; ++i) Click(game, 'l');
        QCOMPARE(Hud(game), "Word 1 of 15 | Score: 0 | Splashes: 7 of 8");
        QCOMPARE(game->phase(), frmPrincess::Phase::Play);
        fx.dialogs.answerYes(true);
        Click(game, 'l');
        QCOMPARE(fx.sound.played.last(), "pr-roar.wav");
        QCOMPARE(game->phase(), frmPrincess::Phase::Woken);
        Pump();
        QVERIFY(game->view().reveal);
        Click(game, 'w');
        QCOMPARE(game->game().nextPosition(), 1);
        Pump(2900);
        QVERIFY(fx.dialogs.shown.empty() && game->view().wake > 0.9);  // the dragon nearly up
        Pump(100);
        WM_VERIFY(Box(fx, "The dragon woke up! The word was owl. Would you like to try again?",
                      "Try Again?"));
        // Yes: a new game from nothing.
        QCOMPARE(game->phase(), frmPrincess::Phase::Arrive);
        QCOMPARE(Hud(game), "Word 1 of 15 | Score: 0 | Splashes: 0 of 8");
        QCOMPARE(game->view().bridge, 0.0);
        QTest::keyClick(game, Qt::Key_Escape);
        QVERIFY(BackAtTitle());
    }

    void clueSilenceAndAListItCannotPlay() {
        // The option, the sound, a words-only list; the meaning shown, and once the dragon wakes
        // (then a list's meaning is shown).
        const std::tuple<bool, bool, bool, const char*, const char*> rows[] = {
            {true, false, true, "Click the stones in the right order to spell the word!",
             "Click the stones in the right order to spell the word!"},
            {false, false, false, "Click the stones in the right order to spell the word!",
             "Meaning: a strong animal"}};
        for (auto [option, sound, wordsOnly, meaning, woken] : rows) {
            ShellFixture fx;
            WM_OPEN(game, fx,
                    OpenGame<frmPrincess>(fx, "Princess", {{"ox", "a strong animal"}}, 5, option,
                                          sound, wordsOnly));
            Ready(game, 1650);
            QCOMPARE(LabelText(game, "MeaningLabel"), meaning);
            Click(game, 'x');
            QCOMPARE(game->game().splashes(), 1);
            for (int i = 0; i < 7; ++i) Click(game, 'x');  // no splash nor roar is heard
            QCOMPARE(game->phase(), frmPrincess::Phase::Woken);
            QCOMPARE(LabelText(game, "MeaningLabel"), woken);
            QVERIFY(fx.sound.played.isEmpty());
        }
        ShellFixture fx;
        const QString none =
            "This list has no word that Princess can use (the words are empty "
            "or too long). Please choose another list.";
        // A list that has lost its words by the second word is refused there.
        // A meaning too long for any size is shown in the smallest type.
        WM_OPEN(game, fx,
                OpenGame<frmPrincess>(fx, "Princess", {{"ox", std::string(900, 'o')}}, 2, true));
        Ready(game, 1650);
        const QLabel* meaning = game->findChild<QLabel*>("MeaningLabel");
        QVERIFY(meaning && meaning->font() == ScreenFont(7, true));
        QTest::keyClicks(game, "ox");
        Shared().WordCount = 0;
        Pump(1820);
        WM_VERIFY(Box(fx, none, "Princess"));
        WM_VERIFY(Refused(fx, "Princess",
                          {{std::string(25, 'a'), "far too long"}, {"- -", "nothing to spell"}}, 4,
                          none));
    }
};

QTEST_MAIN(PrincessScreenTest)
#include "princess_screen_test.moc"
