// Letter Drop on its screen: from the title, letters steered with held keys onto their tiles, a
// wrong landing that crumbles, the win to the table; lists of long words and of words with
// nothing to drop refused; the close box that ends the program.
#include "games/action/letter_drop/letter_drop_screen.h"
#include "act_kit.h"
#include "look.h"

using namespace wm::letter_drop;

class LetterDropScreenTest : public QObject {
    Q_OBJECT
private slots:
    void steerEveryLetterHomeToTheTable();
    void longWordsAndNothingToDropAreRefused();
    void closingTheScreenEndsTheProgram();
};

namespace {
int Target(const Game& g) {
    for (int i = 0; i < int(g.word().size()); ++i)
        if (g.word()[i] == g.falling() && !g.tileShows(i)) return i;
    return -1;
}

// Holds Left or Right until the letter is over `tile`, then Down until it lands (the falling
// point goes back to the top).
void Steer(QPointer<LetterFall> game, int tile) {
    for (int t = 0; t < 400 && game; ++t) {
        const Game& g = game->game();
        const int mid = g.x() + kTileW / 2, want = g.tileLeft(tile) + kTileW / 2;
        const int key = mid < want - 100 ? Qt::Key_Right : mid > want + 100 ? Qt::Key_Left : 0;
        QTest::keyRelease(game, Qt::Key_Left);
        QTest::keyRelease(game, Qt::Key_Right);
        QTest::keyPress(game, key ? Qt::Key(key) : Qt::Key_Down);
        const int y = g.y();
        Pump(50);
        if (!game || game->game().y() < y) break;
    }
    if (!game) return;
    QTest::keyRelease(game, Qt::Key_Left);
    QTest::keyRelease(game, Qt::Key_Right);
    QTest::keyRelease(game, Qt::Key_Down);
}
}  // namespace

void LetterDropScreenTest::steerEveryLetterHomeToTheTable() {
    Road fx(0, {"OWL"});
    fx.rng.setFallback(0.0);  // the owl; its letters fall first to last; no shooting star
    auto* game = FromTitle<LetterFall>(
        fx, "Letter Drop", {{"owl", "a bird that hunts at night"}, {"bat", "it flies at night"}},
        90);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    QCOMPARE(fx.dialogs.last(), "Click <OK> when you are ready to begin");
    QCOMPARE(game->definition()->text() + " | " + game->scoreLabel()->text(),
             "Definition:  a bird that hunts at night | Score: 0");
    QCOMPARE(game->game().word(), std::string("OWL"));
    for (int i = 0; i < kTiles; ++i) QCOMPARE(game->tile(i)->isVisible(), i < 3);
    QCOMPARE(game->tile(0)->text(), QString());
    WM_CHECK_LOOK("Letter_Drop_ready", game);  // the night sky, the three tiles, the O on top

    // A wrong landing: straight down onto the W's tile with the O falling.
    Steer(game, 1);
    QCOMPARE(fx.sound.played.count("crumble.wav"), 1);
    QCOMPARE(game->scoreLabel()->text(), "Score: -50");
    QVERIFY(game->dissolving());
    const int y = game->game().y();
    Pump(50);
    QCOMPARE(game->game().y(), y);  // the fall waits for the dissolve
    Pump(200);
    QVERIFY(!game->dissolving());
    // Three more misses turn the hint on: the O's tile blinks, tick by tick.
    for (int miss = 2; miss <= 4; ++miss) {
        QCOMPARE(game->tile(0)->property("back").toString(), QString("#c0c0ff"));
        Steer(game, 1);
        Pump(300);
    }
    QCOMPARE(game->game().hintTile(), 0);
    QStringList colours;
    for (int t = 0; t < 4; ++t) {
        Pump(50);
        colours << game->tile(0)->property("back").toString();
    }
    colours.removeDuplicates();
    QCOMPARE(colours.size(), 2);
    QVERIFY(colours.contains("#ff8080"));
    QCOMPARE(game->tile(1)->property("back").toString(), QString("#c0c0ff"));

    QPointer<LetterFall> alive(game);
    for (int n = 0; n < 10 && alive && game->game().lettersLeft() > 0; ++n)
        Steer(alive, Target(game->game()));
    QCOMPARE(fx.sound.played.count("zap.wav"), 2);  // not for the last letter
    QCOMPARE(fx.sound.played.count("crumble.wav"), 4);
    QCOMPARE(fx.win.tables.size(), 1);
    // 90 x 5, then 105 x 5 and 120 x 5 as the speed climbs at once for a short word, less four
    // misses, plus a point for each release of Down while the letters fall.
    const double score = Shared().Score;
    QVERIFY2(score >= 1375 && score <= 1381, qPrintable(QString::number(score)));
    QVERIFY(!alive);
    WM_CHECK_WON(fx, "Letter Drop", QString("OWL %1").arg(score));
}

void LetterDropScreenTest::longWordsAndNothingToDropAreRefused() {
    ShellFixture fx;
    WM_VERIFY(Refused(fx, "Letter Drop",
                      {{"antidisestablishment", "long"}, {"supercalifragilistic", "x"}}, 90,
                      "The words on this vocabulary list are too long for this game. Please "
                      "choose another list or another game.",
                      "Letter Drop!"));
    // Marks and blanks only: nothing to drop, and one box that says so.
    fx.dialogs.shown.clear();
    OpenGame<QWidget>(fx, "Letter Drop", {{"- -", "only dashes"}, {"'-'", "marks"}}, 90, true);
    Pump();
    QCOMPARE(fx.dialogs.texts(),
             QStringList{"The words on this vocabulary list are either too long for this game or "
                         "have no letters to drop. Please choose another list or another game."});
    QCOMPARE(fx.dialogs.shown.back().title, "Letter Drop!");
    QVERIFY(BackAtTitle());
}

void LetterDropScreenTest::closingTheScreenEndsTheProgram() {
    ShellFixture fx;
    int ended = 0;
    SetEndProgramHook([&] { ++ended; });
    auto* game = qobject_cast<LetterFall*>(
        ContinueWithList(ChooserFor("Letter Drop", 90, false), "Human Body ("));
    QVERIFY(game);
    // The close box ends the whole program: kept as the game has always done.
    game->close();
    QCOMPARE(ended, 1);
    SetEndProgramHook({});
}

QTEST_MAIN(LetterDropScreenTest)
#include "letter_drop_screen_test.moc"
