// Letter Toss on its screen: from the title through tosses flicked with the mouse to the time-up
// and the table; a miss on the floor, a flick too weak to throw, a silent game with no points and
// a try again, the last ball in the air when the clock runs out; a list it cannot use.
#include "look.h"

#include "act_kit.h"
#include "games/action/letter_toss/letter_toss_screen.h"

namespace {

const Pairs kFour = {{"apple", "a red or green fruit"},
                     {"river", "water that flows to the sea"}, {"cloud", "it floats in the sky"},
                     {"tiger", "a big striped cat"}};

void Mouse(TossScene* scene, QEvent::Type type, QPointF stage) {
    const QPointF at = scene->toWidget(stage);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent e(type, at, scene->mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(scene, &e);
}

// Picks the ball up at the front and drags it by (dx, dy) stage units in `ms`, then lets go; the
// last move comes half way, so the flick ends where the button is let go.
void Flick(LetterTossGame* game, double dx, double dy, int ms = 100) {
    TossScene* scene = game->scene();
    const QPointF from = scene->ballShown();
    Mouse(scene, QEvent::MouseButtonPress, from);
    Pump(ms);
    Mouse(scene, QEvent::MouseMove, from + QPointF(dx, dy) / 2);
    Mouse(scene, QEvent::MouseButtonRelease, from + QPointF(dx, dy));
}

}  // namespace

class LetterTossScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadFromTitleThroughSixtySecondsToTheTable();
    void missesNoPointsTryAgainTheLastBallInTheAirAndTooFewDefinitions();
};

void LetterTossScreenTest::roadFromTitleThroughSixtySecondsToTheTable() {
    Road fx(0, {"LTS"});
    LetterTossGame* game = nullptr;
    bool fanTurning = false;  // behind the end boxes
    WatchBehindTheWin(fx, game, fanTurning, "Anim");
    game = FromTitle<LetterTossGame>(fx, "Letter Toss", kFour, 3);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    // The generator's middle value: cloud, its basket the middle one of three, no draught.
    QCOMPARE(game->room().baskets.size(), std::size_t(3));
    QCOMPARE(game->scene()->signText(1), "it floats in the sky");
    QCOMPARE(Labels(game, "Label2 WordLabel"), "Toss this word: | cloud");
    QCOMPARE(game->scene()->banner(), "Get ready...");
    Flick(game, 0, -150);  // the ball cannot be picked up yet
    QVERIFY(!game->room().ball.flying);
    Pump(2000);
    QCOMPARE(LabelText(game, "TimeLabel"), "Time left: 60");

    Flick(game, 0, -150);  // straight up the middle, 1500 a second: a clean swish
    QVERIFY(game->room().ball.flying);
    QCOMPARE(fx.sound.played.last(), "toss-throw.wav");
    Pump(1200);
    WM_CHECK_LOOK("Letter_Toss_swish", game);
    QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 150");
    QCOMPARE(fx.sound.played.last(), "toss-swish.wav");
    QCOMPARE(LabelText(game, "TimeLabel"), "Time left: 59");
    Pump(800);
    QCOMPARE(game->phase(), LetterTossGame::Phase::Aiming);
    QCOMPARE(LabelText(game, "WordLabel"), "tiger");  // new baskets with it
    QCOMPARE(game->scene()->signText(1), "a big striped cat");

    game->letGo({800, 850}, {-1109, -1011});  // into the left basket: the wrong one
    Pump(1600);
    QCOMPARE(Shared().Score, 100.0);
    QVERIFY(fx.sound.played.contains("toss-wrong.wav"));
    QCOMPARE(game->phase(), LetterTossGame::Phase::Landed);  // its own basket lit a while
    Pump(1200);
    QCOMPARE(game->phase(), LetterTossGame::Phase::Aiming);

    Pump(54100);
    QCOMPARE(LabelText(game, "TimeLabel"), "Time left: 1");
    QCOMPARE(fx.sound.played.last(), "toss-tick.wav");
    Pump(1000);
    QCOMPARE(game->scene()->banner(), "Time's up!");
    QCOMPARE(fx.sound.played.last(), "toss-end.wav");
    WM_CHECK_LOOK("Letter_Toss_time_up", game);
    Flick(game, 0, -150);
    QVERIFY(!game->room().ball.flying);
    Pump(1800);
    QVERIFY(fanTurning);
    WM_CHECK_WON(fx, "Letter Toss", "LTS 100");
}

void LetterTossScreenTest::missesNoPointsTryAgainTheLastBallInTheAirAndTooFewDefinitions() {
    Road fx(0);
    Pairs list = kFour;
    list[2] = {"photosynthesis",
               "how green plants make their own food from sunlight, water and the air around "
               "them, in the green parts of their leaves"};
    auto* game = OpenGame<LetterTossGame>(fx, "Letter Toss", list, 2, false, false);
    QVERIFY(game);
    Pump(2000);
    Flick(game, 0, -150);  // between the two baskets
    Pump(500);
    WM_CHECK_LOOK("Letter_Toss_flight", game);
    Pump(1000);
    QCOMPARE(game->phase(), LetterTossGame::Phase::Landed);
    QCOMPARE(Shared().Score, 0.0);
    fx.rng.pick(1, 9);  // the next toss's draught
    Pump(600);
    QCOMPARE(game->room().draught, -4);
    QCOMPARE(LabelText(game, "WordLabel"), "photosynthesis");  // the same word, tossed again
    Flick(game, 0, -20, 100);  // too gentle to be a toss: back in the hand
    QVERIFY(!game->room().ball.flying);
    QCOMPARE(game->phase(), LetterTossGame::Phase::Aiming);
    QVERIFY(fx.sound.played.filter("toss-").isEmpty());  // the sound is off

    fx.dialogs.answerYes(true);
    Pump(58000 + 1800);
    QCOMPARE(LastBox(fx),
             "Time's up! | Time's up! Your score is 0, so it cannot go on the high "
             "score table. Would you like to try again?");
    QCOMPARE(LabelText(game, "TimeLabel"), "Time left: 60");  // a new game
    Pump(2000 + 59000);
    game->letGo({800, 850}, {823, -1500});  // at the right basket, half a second to go
    Pump(500);
    QCOMPARE(game->phase(), LetterTossGame::Phase::Flying);
    Pump(600);
    QCOMPARE(Shared().Score, 150.0);
    QCOMPARE(game->scene()->banner(), "Time's up!");
    Pump(1800);
    WM_CHECK_WON(fx, "Letter Toss", "ZZZ 150");
    // Two definitions differing in case and blanks are one: too few for three baskets.
    WM_VERIFY(Refused(fx, "Letter Toss", {{"cat", "a pet"}, {"kitten", "A pet "}, {"dog", "barks"}},
                      3,
                      "There are not enough different words and definitions in this vocabulary "
                      "list for this many baskets! Please choose another list or go back and "
                      "lower the difficulty level.",
                      "Letter Toss"));
}

QTEST_MAIN(LetterTossScreenTest)
#include "letter_toss_screen_test.moc"
