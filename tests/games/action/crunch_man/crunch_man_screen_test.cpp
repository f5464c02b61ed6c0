// Crunch Man on its screen: from the title through a scripted field to a win and the table,
// to a wrong letter and to a mine, the sounds gated by SoundOn, and the long-word refusal.
#include "games/action/crunch_man/crunch_man_screen.h"
#include "act_kit.h"

namespace {

// C, A and T in row 4 at columns 12, 14 and 16 (the mouth starts in column 10 of row 5), the
// two mines of difficulty 2 at the bottom left.
void ScriptField(ScriptedRng& rng) {
    rng.pick(1, 1);
    for (int column : {12, 14, 16}) rng.then((column + 0.5) / 20).then(4.5 / 11);
    for (int column : {0, 1}) rng.then((column + 0.5) / 20).then(9.5 / 11);
    rng.setFallback(0.5);
}

CrunchManGame* Start(ShellFixture& fx, bool soundOn = true) {
    ScriptField(fx.rng);
    auto* game = OpenGame<CrunchManGame>(fx, "Crunch Man", {{"cat", "a small furry pet"}}, 2, false,
                                         soundOn);
    Pump(20);  // the instructions come once the screen has painted
    return game;
}

int CentreColumn(CrunchManGame* g) {
    const auto& r = g->round();
    return int((r.x + 23) / r.cellW);
}

// Ticks until `done` holds, at most `limit` ticks.
template <class F>
bool TickUntil(F done, int limit = 200) {
    for (int n = 0; n < limit; ++n) {
        if (done()) return true;
        Pump(50);
    }
    return done();
}

}  // namespace

class CrunchManScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadToAWinAndTheTable();
    void wrongLetterBlinksThenAsks();
    void mineExplodesThenAsksWithoutSoundThenLongWords();
};

void CrunchManScreenTest::roadToAWinAndTheTable() {
    Road fx(0, {"CMN"});
    auto* game = Start(fx);
    QVERIFY(game);
    QCOMPARE(game->windowTitle(), "Crunch Man!");
    QVERIFY(fx.dialogs.saw(
        "OK. Look at the definition at the top of the screen. Using the arrow keys on the "
        "keyboard, you will try to eat the letters in order so they spell out the word that best "
        "matches that definition. Press the ENTER key when you are ready to begin!"));
    QCOMPARE(game->definition(), "Definition: a small furry pet");

    QVERIFY(TickUntil([&] { return CentreColumn(game) == 12; }));
    SendKey(game, Qt::Key_Up);
    QVERIFY(TickUntil([&] { return game->spelled() == "C"; }));
    QCOMPARE(game->scoreCaption(), "Score: 202");  // (Int(0.5 x 200) + 1) x 2 mines
    // The eaten letter is gone from the field itself.
    const QRect under(12 * 64 + 20, 67 + 4 * 60 + 12, 23, 36);
    SendKey(game, Qt::Key_Right);
    Pump(50 * 8);
    const QImage& surface = game->field()->surface();
    int yellow = 0;
    for (int y = under.top(); y <= under.bottom(); ++y)
        for (int x = under.left(); x <= under.right(); ++x)
            if (surface.pixel(x, y) == qRgb(255, 255, 0)) ++yellow;
    QCOMPARE(yellow, 0);
    QVERIFY(fx.sound.played.contains("bleep2.wav"));

    QVERIFY(TickUntil([&] { return Showing<Title>() != nullptr; }));
    QVERIFY(fx.sound.played.contains("dingling.wav") && fx.sound.played.contains("winner2.wav"));
    QCOMPARE(LastBox(fx), "Great job! | You chomped a score of 606! Would you like to try again?");
    QCOMPARE(TableRow(fx, "Crunch Man"), "CMN 606");
}

void CrunchManScreenTest::wrongLetterBlinksThenAsks() {
    ShellFixture fx;
    auto* game = Start(fx);
    QVERIFY(game && TickUntil([&] { return CentreColumn(game) == 14; }));
    SendKey(game, Qt::Key_Up);
    QVERIFY(TickUntil([&] { return game->dying(); }));
    QVERIFY(fx.sound.played.contains("bonk.wav") && game->round().labels[1].red);
    const int round = game->frame().round();
    fx.dialogs.answerYes();
    Pump(100 * 12);
    QVERIFY(!game->dying());
    QVERIFY(fx.dialogs.saw(
        "Oops! You lost this game! The word you were looking for was \"CAT\". Would you like to "
        "give it another try?"));
    QCOMPARE(game->frame().round(), round + 1);  // Yes: a new round
    QCOMPARE(ReadScoreTable(fx.path("scores/Crunch Man.dat").toStdString()).score(1), 0.0);
}

void CrunchManScreenTest::mineExplodesThenAsksWithoutSoundThenLongWords() {
    ShellFixture fx;
    auto* game = Start(fx, false);
    QVERIFY(game);
    SendKey(game, Qt::Key_Left);
    QVERIFY(TickUntil([&] { return CentreColumn(game) == 1; }));
    SendKey(game, Qt::Key_Down);
    QVERIFY(TickUntil([&] { return game->dying(); }));
    Pump(50 * 20);
    QVERIFY(!game->dying() && fx.dialogs.last().startsWith("Oops! You lost this game!"));
    // The title has its own sound; the game's are all gated.
    for (const char* effect : {"bleep2.wav", "2.wav", "dingling.wav", "bonk.wav"})
        QVERIFY2(!fx.sound.played.contains(effect), effect);
    QVERIFY(BackAtTitle());  // No: back to the title
    WM_VERIFY(Refused(fx, "Crunch Man",
                      {{"supercalifragilistic", "too long"}, {"antidisestablishment", "x"}}, 3,
                      "The words on this list are too long to play this game! Choose another "
                      "list or another game."));
}

QTEST_MAIN(CrunchManScreenTest)
#include "crunch_man_screen_test.moc"
