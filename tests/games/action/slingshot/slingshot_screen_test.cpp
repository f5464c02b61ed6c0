// Slingshot on its screen: from the title through "Ready...", the band pulled and let go, a
// wrong target and the right ones, ten definitions won to the table; a game of misses at
// 1920x1080, the answer flashing after three stones, the words shown in the loss box, a try
// again.
#include "look.h"

#include <cmath>

#include "act_kit.h"
#include "games/action/slingshot/slingshot_screen.h"

using namespace wm::slingshot;

class SlingShotScreenTest : public QObject {
    Q_OBJECT
private slots:
    void aGameWonFromTheTitleToTheTable();
    void aGameOfMissesShowsTheWordsAndTriesAgain();
};

namespace {

// Presses on the pouch, drags it to `pouch` (field units) and lets go.
void pull(SlingShot* game, Point pouch) {
    SlingField* f = game->field();
    QTest::mousePress(f, Qt::LeftButton, {}, f->toWidget(pouchRest()).toPoint());
    QTest::mouseRelease(f, Qt::LeftButton, {}, f->toWidget(pouch).toPoint());
}

// The pull that sends a full-strength stone to where target `slot` will be when it gets there.
Point aimAt(const Game& g, int slot) {
    const Point rest = pouchRest();
    Point p = g.target(slot);
    for (int i = 0; i < 3; ++i) {
        const long long ahead = std::llround(std::hypot(p.x - rest.x, p.y - rest.y) / 22) * kTickMs;
        p = targetAt(slot, g.level(), g.clock() + ahead, g.sinceDeal() + ahead);
    }
    const double len = std::hypot(p.x - rest.x, p.y - rest.y);
    return {rest.x - (p.x - rest.x) / len * 200, rest.y - (p.y - rest.y) / len * 200};
}

// Sideways along the rest line: the stone drops into the grass.
const Point kIntoTheGrass{pouchRest().x + 120, pouchRest().y};

}  // namespace

void SlingShotScreenTest::aGameWonFromTheTitleToTheTable() {
    Road fx(0, {"SLG"});
    const Pairs fair{{"photosynthesis",
                      "how green plants use sunlight, water and air to make the "
                      "food they need to grow, giving off oxygen as they do it"},
                     {"caf\xE9", "a small restaurant"}, {"apple", "a fruit"},
                     {"balloon", "it floats"}, {"candy", "a sweet"}, {"drum", "you beat it"},
                     {"fiddle", "a violin"}, {"kite", "it flies"}, {"lemon", "sour"},
                     {"mango", "a tropical fruit"}};
    auto* game = FromTitle<SlingShot>(fx, "Slingshot", fair, 1);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump(0);
    const Game& g = game->game();
    WM_VERIFY(Called(fx, game->field()->call(), "Ready...", "slingready.wav"));
    QCOMPARE(Labels(game, "Label1 RoundLabel ScoreLabel StonesLabel"),
             Meaning() + " | Definition 1 of 10 | Score: 0 | 3 stones left");
    // No stone before the game is ready.
    pull(game, aimAt(g, g.rightSlot()));
    QCOMPARE(g.phase(), Phase::Aiming);
    Pump(SlingShot::kReadyMs);
    QCOMPARE(game->field()->call(), "");
    WM_CHECK_LOOK("Slingshot_play", game);

    // A wrong target wobbles and costs 50; its thunk only with sound on.
    Shared().SoundOn = kFalse;
    const int wrong = (g.rightSlot() + 1) % kTargets;
    QVERIFY(!game->field()->wobbling(wrong));  // still till it is hit
    pull(game, aimAt(g, wrong));
    QCOMPARE(g.phase(), Phase::Flying);
    Pump(400);
    QCOMPARE(g.lastHit(), wrong);
    QVERIFY(game->field()->wobbling(wrong));
    QVERIFY(!fx.sound.played.contains("slingwrong.wav") &&
            !fx.sound.played.contains("slingtwang.wav"));
    Shared().SoundOn = kTrue;
    QCOMPARE(Labels(game, "ScoreLabel StonesLabel"), "Score: -50 | 2 stones left");

    for (int d = 1; d <= kDefinitions; ++d) {
        QCOMPARE(LabelText(game, "RoundLabel"), QString("Definition %1 of 10").arg(d));
        const int right = g.rightSlot();
        pull(game, aimAt(g, right));
        QVERIFY(fx.sound.played.contains("slingtwang.wav"));
        Pump(400);
        QCOMPARE(g.phase(), Phase::Solved);
        QVERIFY(game->field()->spinning(right));
        QCOMPARE(LabelText(game, "ScoreLabel"), QString("Score: %1").arg(100 * d - 50));
        if (d < kDefinitions) Pump(SlingShot::kSolvedMs);
    }
    QVERIFY(fx.sound.played.contains("slinghit.wav"));
    // The winning moment, then the table.
    Pump(SlingShot::kSolvedMs);
    QCOMPARE(game->field()->call(), "Well shot!");
    QVERIFY(g.gone(g.rightSlot()));  // the last right target stays knocked off
    QVERIFY(fx.sound.played.contains("slingwin.wav") && fx.dialogs.shown.empty());
    Pump(SlingShot::kEndMs);
    WM_CHECK_WON(fx, "Slingshot", "SLG 950");
}

void SlingShotScreenTest::aGameOfMissesShowsTheWordsAndTriesAgain() {
    Road fx(0);
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    fx.rng.setFallback(0.0);
    const Pairs five{{"ant", "a small insect"}, {"bee", "it buzzes"}, {"cat", "it purrs"},
                     {"dog", "it barks"}, {"eel", "a fish"}};
    auto* game = OpenGame<SlingShot>(fx, "Slingshot", five, 9);
    QVERIFY(game);
    const Game& g = game->game();
    Pump(SlingShot::kReadyMs);
    QCOMPARE(LabelText(game, "LevelLabel"), "Level 9");
    QStringList words;
    for (int d = 1; d <= kDefinitions; ++d) {
        words << Word();
        for (int stone = 3; stone >= 1; --stone) {
            QCOMPARE(g.stonesLeft(), stone);
            pull(game, kIntoTheGrass);
            Pump(1200);
            QCOMPARE(g.lastHit(), -1);
        }
        QCOMPARE(LabelText(game, "StonesLabel"), "0 stones left");
        if (d == 1) {
            // Out of stones: the right target lights up, and no stone is left to throw.
            QVERIFY(game->field()->flashing(g.rightSlot()));
            QVERIFY(fx.sound.played.contains("slingreveal.wav") &&
                    fx.sound.played.contains("slingmiss.wav"));
            pull(game, aimAt(g, g.rightSlot()));
            QCOMPARE(g.phase(), Phase::Revealed);
            WM_CHECK_LOOK("Slingshot_reveal", game);
        }
        Pump(SlingField::kFlashMs);
    }
    WM_VERIFY(Called(fx, game->field()->call(), "Out of luck!", "slinglose.wav"));
    fx.dialogs.answerYes(true);
    Pump(SlingShot::kEndMs);
    QCOMPARE(LastBox(fx), "Slingshot | No points this time! The words to practise: " +
                              words.join(", ") + ". Would you like to try again?");
    QCOMPARE(fx.win.congratulations.size(), 0);
    // Try again: a fresh game.
    QCOMPARE(game->field()->call(), "Ready...");
    QCOMPARE(Labels(game, "RoundLabel ScoreLabel"), "Definition 1 of 10 | Score: 0");
}

QTEST_MAIN(SlingShotScreenTest)
#include "slingshot_screen_test.moc"
