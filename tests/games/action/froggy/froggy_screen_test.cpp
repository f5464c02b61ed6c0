// Froggy on its screen: from the title across the lanes to the right slot and the table, a
// car, a stone, a held key and the wrong slot.
#include "games/action/froggy/froggy_screen.h"
#include "act_kit.h"
#include "look.h"

namespace {

const Pairs kPets = {
    {"cat", "a small furry pet"}, {"dog", "barks"}, {"fish", "swims"}, {"bird", "sings"}};

FroggyForm* Start(ShellFixture& fx, int difficulty, bool soundOn = true) {
    // "cat" in slot 2 (columns 6 to 10); then dog, fish, bird in order.
    fx.rng.pick(1, 4).pick(2, 4).pick(2, 4).pick(3, 4).pick(4, 4);
    fx.rng.setFallback(0.5);
    auto* game = OpenGame<FroggyForm>(fx, "Froggy", kPets, difficulty, false, soundOn);
    Pump(0);
    return game;
}

void Hop(QWidget* w, int key) {
    SendKey(w, key);
    SendKey(w, key, QEvent::KeyRelease);
}

// No cars, and the river's logs wide enough to stand on anywhere.
void ClearTheWay(FroggyForm* game) {
    auto& b = game->board();
    b.level.active = {};
    b.level.logWidth = 2000;
    for (int i = 1; i <= 6; ++i) b.logX[i] = -300;
}

}  // namespace

class FroggyScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadToTheRightSlotAndTheTable();
    void heldKeyHopsOnceAndStonesCrumble();
    void carEndsTheGame();
    void wrongSlotEndsTheGame();
};

void FroggyScreenTest::roadToTheRightSlotAndTheTable() {
    Road fx(0, {"FRG"});
    auto* game = Start(fx, 3);
    QVERIFY(game);
    QCOMPARE(game->windowTitle(), "Froggy!");
    QCOMPARE(game->board().slotWords[2], std::string("cat"));
    Pump(16 * 40);
    ClearTheWay(game);
    Pump(50 * 100);  // 100 ticks of the bonus
    for (int n = 0; n < 12; ++n) {
        Hop(game, Qt::Key_Up);
        Pump(16);
        if (Showing<Title>()) break;
    }
    QVERIFY(fx.sound.played.contains("bleep.wav"));
    QCOMPARE(fx.sound.modes[fx.sound.played.indexOf("bleep.wav")], SoundMode::NoInterrupt);
    QCOMPARE(fx.win.tables.size(), 1);
    // The bonus after some 5.8 s of 50 ms ticks, times 10, plus the level x 1000 and one draw:
    // (10000 - 116) x 10 + 3000 + Int(0.5 x 3 + 1) x 10.
    WM_CHECK_WON(fx, "Froggy", "FRG 101860");
}

void FroggyScreenTest::heldKeyHopsOnceAndStonesCrumble() {
    ShellFixture fx;
    auto* game = Start(fx, 4);
    QVERIFY(game);
    WM_CHECK_LOOK("Froggy_start", game);  // the logs and cars where the clock left them, the slots
    ClearTheWay(game);
    SendKey(game, Qt::Key_Up);
    for (int n = 0; n < 5; ++n) {  // the keyboard repeats while the key is held
        SendKey(game, Qt::Key_Up, QEvent::KeyRelease, true);
        SendKey(game, Qt::Key_Up, QEvent::KeyPress, true);
    }
    QCOMPARE(game->board().frogRow, 2);
    SendKey(game, Qt::Key_Up, QEvent::KeyRelease);
    for (int n = 0; n < 9; ++n) Hop(game, Qt::Key_Left);
    for (int n = 0; n < 3; ++n) Hop(game, Qt::Key_Up);  // a stone in column 1 of row 5
    QCOMPARE(game->board().frogRow, 4);
    QCOMPARE(fx.sound.played.last(), "crumble.wav");
    Hop(game, Qt::Key_A);  // the design's own spelling, kept
    QCOMPARE(LastBox(fx), "Froggy! | Use the arrow keys to contol your frog...");
}

void FroggyScreenTest::carEndsTheGame() {
    ShellFixture fx;
    auto* game = Start(fx, 1, false);
    QVERIFY(game);
    Hop(game, Qt::Key_Up);
    Hop(game, Qt::Key_Up);  // row 3: right car 1 comes along from the left
    fx.dialogs.answerYes();
    const int round = game->frame().round();
    for (int n = 0; n < 2000 && game->frame().round() == round; ++n) Pump(16);
    QVERIFY(fx.dialogs.saw("Oops! Froggy met a car tire! Would you like to try again?"));
    QCOMPARE(game->frame().round(), round + 1);
    QVERIFY(!fx.sound.played.contains("squish.wav"));
    QCOMPARE(game->board().frogRow, 1);
}

void FroggyScreenTest::wrongSlotEndsTheGame() {
    ShellFixture fx;
    auto* game = Start(fx, 2);
    QVERIFY(game);
    ClearTheWay(game);
    for (int n = 0; n < 9; ++n) Hop(game, Qt::Key_Left);
    for (int n = 0; n < 12 && Showing<FroggyForm>(); ++n) Hop(game, Qt::Key_Up);
    QVERIFY(fx.dialogs.saw(
        "Oops! Wrong word! The correct word was \"cat\" Would you like to try again?"));
    QCOMPARE(fx.sound.played.last(), "gbell.wav");
    QVERIFY(BackAtTitle());
}

QTEST_MAIN(FroggyScreenTest)
#include "froggy_screen_test.moc"
