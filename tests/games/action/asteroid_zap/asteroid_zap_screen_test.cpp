// Asteroid Zap on its screen: shooting the filler away to a win and the table, a wrong letter
// and a destroyed ship waiting for a key, the ship under the arrow keys, and long words.
#include <algorithm>

#include "act_kit.h"
#include "look.h"
#include "games/action/asteroid_zap/asteroid_zap_screen.h"

namespace {

// "cat" with its filler, all Zs, as far right as they go: CA, seventeen Zs, T.
AsteroidBlast* Start(ShellFixture& fx, bool optionOn = true) {
    fx.rng.setFallback(0.999);
    auto* game =
        OpenGame<AsteroidBlast>(fx, "Asteroid Zap", {{"cat", "a small furry pet"}}, 1, optionOn);
    Pump(0);
    return game;
}

// Puts the ship under column k and fires; returns once the rock there is hit. The screen may
// close behind the shot that wins, so it is watched through a guarded pointer.
bool ShootColumn(AsteroidBlast* game, int k) {
    const QPointer<AsteroidBlast> alive(game);
    const auto flying = [](const asteroid::Shot& s) { return s.flying; };
    for (int n = 0; n < 100; ++n) {
        if (!alive) return true;  // the last rock won the game, and the screen has gone
        auto& r = game->round();
        if (!r.rocks[k].shown || r.over) return true;
        // Aims and fires again whenever nothing is on its way.
        if (!r.fireWanted && std::none_of(r.shots.begin(), r.shots.end(), flying)) {
            r.shipX = r.g.boxLeft(k) + r.g.boxWidth() / 2 - r.g.shipW / 2;
            SendKey(game, Qt::Key_Space);
        }
        Pump(20);
    }
    return false;
}

}  // namespace

class AsteroidZapScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadToAWinAndTheTable();
    void wrongLetterWaitsForAKey();
    void shipDestroyedAndArrowKeysThenLongWords();
};

void AsteroidZapScreenTest::roadToAWinAndTheTable() {
    Road fx(0, {"AST"});
    auto* game = Start(fx);
    QVERIFY(game);
    QCOMPARE(game->windowTitle(), "Asteroid Blast!");
    QCOMPARE(game->defText(), "a small furry pet");
    QCOMPARE(game->round().rocks[19].letter, 'T');
    WM_CHECK_LOOK("Asteroid_Zap_play", game);
    QVERIFY(ShootColumn(game, 18));
    QVERIFY(fx.sound.played.contains("shot1.wav") && fx.sound.played.contains("boom1.wav"));
    for (int k = 2; k < 18 && Showing<AsteroidBlast>(); ++k) QVERIFY(ShootColumn(game, k));
    QCOMPARE(fx.win.tables.size(), 1);
    // 3 letters x 500 x level 1, less the twips the wall sank, one a tick.
    const double score = Shared().Score;
    QVERIFY2(score > 500 && score < 1500, qPrintable(QString::number(score)));
    WM_CHECK_WON(fx, "Asteroid Zap", QString("AST %1").arg(score));
}

void AsteroidZapScreenTest::wrongLetterWaitsForAKey() {
    ShellFixture fx;
    auto* game = Start(fx, false);
    QVERIFY(game);
    QCOMPARE(game->defText(), "");
    QVERIFY(ShootColumn(game, 1));  // the A of CAT
    Pump(20);
    QCOMPARE(game->defText(), "You shot the wrong letter! The word was:");
    QVERIFY(game->waitingForKey());
    Pump(100 * 12);
    const int round = game->frame().round();
    fx.dialogs.answerYes();
    SendKey(game, Qt::Key_X);
    QVERIFY(fx.dialogs.saw("Would you like to try again?"));
    QCOMPARE(game->frame().round(), round + 1);
    QVERIFY(!game->waitingForKey());
}

void AsteroidZapScreenTest::shipDestroyedAndArrowKeysThenLongWords() {
    ShellFixture fx;
    auto* game = Start(fx);
    QVERIFY(game);
    const int x = game->round().shipX;
    HoldKey(game, Qt::Key_Left, 16 * 4);
    QCOMPARE(game->round().shipX, x - 4 * 50);
    Pump(16 * 4);
    QCOMPARE(game->round().shipX, x - 4 * 50);
    HoldKey(game, Qt::Key_Right, 16 * 2);
    QCOMPARE(game->round().shipX, x - 2 * 50);
    for (auto& rock : game->round().rocks)
        rock.bottom = game->round().g.shipTop() - game->round().g.shipH - 2;
    Pump(20 * 5);
    QCOMPARE(game->defText(), "Your ship was destroyed! The word was:");
    QVERIFY(game->waitingForKey());
    Pump(300);
    WM_CHECK_LOOK("Asteroid_Zap_destroyed", game);  // the word laid out, the blasts over it
    SendKey(game, Qt::Key_Space);
    QVERIFY(fx.dialogs.saw("Would you like to try again?") && BackAtTitle());
    fx.rng.setFallback(0.1);  // always the first, of 15 letters
    OpenGame<QWidget>(fx, "Asteroid Zap", {{"extraordinarily", "very"}, {"encyclopaedias", "x"}}, 2,
                      true);
    Pump(200);
    QCOMPARE(LastBox(fx),
             "Oops! | The words on this list are too long to play this game! Choose "
             "another list or another game.");
    QVERIFY(BackAtTitle());
}

QTEST_MAIN(AsteroidZapScreenTest)
#include "asteroid_zap_screen_test.moc"
