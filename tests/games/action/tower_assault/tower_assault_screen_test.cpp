// Tower Assault on its screen: from the title, the knight steered with held arrow keys under
// ten right scrolls, the ladder and the score to the table; three wrong scrolls caught at
// 1920x1080, the box naming the word, a try again; a list with one word only refused.
#include "games/action/tower_assault/tower_assault_screen.h"
#include "act_kit.h"
#include "look.h"
#include "tower_steer.h"

class TowerScreenTest : public QObject {
    Q_OBJECT
private slots:
    void tenRungsFromTheTitleToTheTable();
    void threeWrongScrollsDriveTheKnightBack();
};

namespace {

// Holds Left or Right as a pupil would, a frame at a time, until `done` says so.
template <class Done>
bool Drive(TowerGame* game, bool catchRight, Done done, int frames = 4000) {
    int held = 0;
    for (int i = 0; i < frames && !done(); ++i) {
        const int dir = TowerSteer(game->game(), catchRight);
        Hold(game, held, dir < 0 ? Qt::Key_Left : dir > 0 ? Qt::Key_Right : 0);
        Pump(16);
    }
    Hold(game, held, 0);
    return done();
}

const Pairs kCastleWords = {
    {"moat", "the water around a castle"}, {"tower", "a tall narrow building"},
    {"knight", "a soldier on horseback"}, {"shield", "it keeps the arrows off"},
    {"drawbridge", "a bridge that lifts up"},
    {"catapult",
     "a great wooden machine that flings heavy stones, burning straw or even "
     "old cows over the walls of a castle from very far away"}};

}  // namespace

void TowerScreenTest::tenRungsFromTheTitleToTheTable() {
    Road fx(0, {"ANN"});
    auto* game = FromTitle<TowerGame>(fx, "Tower Assault", kCastleWords, 1);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump(16);
    QCOMPARE(game->scene()->call(), "Get ready...");
    WM_CHECK_LOOK("Tower_Assault_ready", game);  // the call in gold, the plates on their boards
    QVERIFY(fx.music.opened.endsWith("sounds/towerassault.mid"));
    Pump(2000);
    WM_VERIFY(Called(fx, game->scene()->call(), "Go!", "towergo.wav"));

    for (int rung = 1; rung <= 10; ++rung) {
        QVERIFY(Drive(game, true, [&] { return game->game().rungs() == rung; }));
        QCOMPARE(Labels(game, "Label1 RungsLabel"),
                 Meaning() + QString(" | Ladder: %1 of 10").arg(rung));
        QCOMPARE(game->scene()->call(),
                 rung < 10 ? QString("Rung %1 of 10!").arg(rung) : QString("The castle is yours!"));
        if (rung < 10) Pump(1600);  // the next definition, its font fitted to the banner
        WM_CHECK_PLATES(game);
    }
    QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 2750");
    for (const char* sound : {"towerthrow.wav", "towerrung.wav", "towerwin.wav"})
        QVERIFY(fx.sound.played.contains(sound));
    Pump(TowerGame::kEndMs - 100);
    QVERIFY(fx.dialogs.shown.empty());
    Pump(100);
    WM_CHECK_WON(fx, "Tower Assault", "ANN 2750");
}

void TowerScreenTest::threeWrongScrollsDriveTheKnightBack() {
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    auto* game = OpenGame<TowerGame>(fx, "Tower Assault", kCastleWords, 1);
    QVERIFY(game);
    // Between two guards, out of every scroll's way: the right one falls to the ground and is
    // thrown again later.
    HoldKey(game, Qt::Key_Left, 29 * 16);
    // As he walks he is painted again where he now stands, not only where he stood.
    const Repaints walk = RepaintsDuring(game->scene(), [&] { HoldKey(game, Qt::Key_Left, 16); });
    QVERIFY(walk.region.contains(game->scene()->knightRect().toAlignedRect()));
    for (int i = 0; i < 2000 && !game->scene()->call().startsWith("Missed"); ++i) Pump(16);
    WM_VERIFY(Called(fx, game->scene()->call(), "Missed! It will come again.", "towerthud.wav"));
    for (int shield = 2; shield >= 0; --shield) {
        QVERIFY(Drive(game, false, [&] { return game->game().shields() == shield; }));
        QCOMPARE(Labels(game, "ShieldsLabel ScoreLabel"),
                 QString("Shields: %1 | Score: %2").arg(shield).arg(-25 * (3 - shield)));
        WM_CHECK_PLATES(game);
        const QString caught = QString::fromLatin1(game->game().last().word.c_str());
        QVERIFY(caught != Word());
        if (shield > 0) QCOMPARE(game->scene()->call(), QString("Not \"%1\"!").arg(caught));
    }
    QVERIFY(fx.sound.played.contains("towerclang.wav"));
    WM_VERIFY(Called(fx, game->scene()->call(), "The guards drove you back!", "towerlose.wav"));
    const QString word = Word();
    bool behind = false;  // the scene plays on behind the box
    WatchBehindTheBox(fx, game, behind);
    Pump(TowerGame::kEndMs);
    QCOMPARE(LastBox(fx), "Tower Assault | The guards drove you back! The word was \"" + word +
                              "\". Would you like to try again?");
    QVERIFY(behind);
    // Try again: a fresh game.
    QCOMPARE(Labels(game, "ShieldsLabel ScoreLabel"), "Shields: 3 | Score: 0");
    // A list of one word twice: nothing to throw as decoys, said clearly, back to the title.
    Shared().Words = {"", "moat", "MOAT"};
    Shared().Meanings = {"", "water", "water"};
    Shared().WordCount = 2;
    QCOMPARE(RestartRefusal(fx, game),
             "Tower Assault | "
             "The guards need at least two different words to throw. Please choose another list.");
}

QTEST_MAIN(TowerScreenTest)
#include "tower_assault_screen_test.moc"
