// Code Breaker on its screen: from the title through a cracked code (mouse, keys, the key strip,
// the palette, a moved letter, a hint, a wrong full code) to the table; the clock run out to the
// loss box; a full code that fits both screens; a list that cannot be coded refused.
#include "games/puzzles/code_breaker/code_breaker_screen.h"
#include "game_end.h"
#include "look.h"
#include "screen_kit.h"

using namespace wm::code_breaker;

namespace {
const Pairs kSpies{
    {"caf\xE9", "a small place to eat"}, {"spy", "a secret agent"}, {"code", "secret writing"}};

const Pairs kLong{
    {"photographer", "one who takes pictures"}, {"thunderstorm", "rain with lightning"},
    {"marshmallows", "soft sweets"}, {"kaleidoscope", "a tube of bright turning patterns"},
    {"encyclopedia", "a book of facts"}};

// The first tile of a symbol.
int TileOf(const Game& g, int symbol) {
    for (int i = 0; i < int(g.tiles().size()); ++i)
        if (g.tiles()[i].symbol == symbol) return i;
    return -1;
}

void ClickTile(CodeBreaker* game, int tile) {
    QTest::mouseClick(game, Qt::LeftButton, {}, game->scene()->tileRect(tile).center());
}

// Chooses the first tile of `symbol` and types `letter` on it.
void Put(CodeBreaker* game, int symbol, char letter) {
    ClickTile(game, TileOf(game->game(), symbol));
    QTest::keyClick(game, Qt::Key(Qt::Key_A + letter - 'A'));
}

// What the pupil is told and hears last: "banner / sound".
QString Said(CodeBreaker* game, const ShellFixture& fx) {
    return game->scene()->bannerText() + " / " + fx.sound.played.value(fx.sound.played.size() - 1);
}
}  // namespace

class CodeBreakerScreenTest : public QObject {
    Q_OBJECT
private slots:
    void crackTheCodeToTheTable() {
        Road fx(0, {"SPY"});
        WriteOneList(fx, "Spies", kSpies);
        SetModalHook(PaletteThen(0xE9, fx.win));
        fx.dialogs.answerYes(false);
        QPointer<CodeBreaker> game =
            qobject_cast<CodeBreaker*>(PlayFromTitle("Code Breaker", "Spies", 10));
        QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
        Pump();
        const Game& g = game->game();
        SharedState& s = Shared();
        QCOMPARE(game->scene()->bannerText() + " | " + game->levelLabel()->text() + " | " +
                     LabelText(game, "Label3"),
                 "Get ready! | Level 10 | Time: 4:30");
        QCOMPARE(game->clue()->text(),
                 QString::fromLatin1(("Clue for the first word: " + s.TheMeaning).c_str()));
        QVERIFY(!game->hintButton()->isEnabled() && !game->clearButton()->isEnabled());

        // The clock starts after the pause and runs a second at a time.
        Pump(1480);
        QCOMPARE(g.phase(), Phase::Playing);
        QVERIFY(game->hintButton()->isEnabled() && game->clearButton()->isEnabled());
        QCOMPARE(game->helpLabel()->text(),
                 QString("Click a code letter, then type the letter it stands for."));
        Pump(1000);
        QCOMPARE(game->clockLabel()->text(), QString("Time: 4:29"));

        // A click chooses a tile; a letter typed fills its symbol; the same letter typed on another
        // symbol moves there.
        // The choice shows at once: the picture is asked to repaint.
        QVERIFY(PaintsDuring(game->scene(), [&] {
            ClickTile(game, TileOf(g, 1));
            QApplication::processEvents();
        }));
        QCOMPARE(g.selectedSymbol(), 1);
        QCOMPARE(fx.sound.played.last(), QString("cb-select.wav"));
        QTest::keyClick(game, Qt::Key_Q);
        QCOMPARE(g.symbols()[1].guess, 'Q');
        QCOMPARE(fx.sound.played.last(), QString("cb-type.wav"));
        ClickTile(game, TileOf(g, 2));
        QTest::mouseClick(game, Qt::LeftButton, {}, game->scene()->keyRect('Q' - 'A').center());
        QCOMPARE(g.holder('Q'), 2);
        QCOMPARE(g.symbols()[1].guess, char(0));
        QCOMPARE(fx.sound.played.last(), QString("cb-move.wav"));
        // The letter flies across, the board repainted frame by frame; the frames stop after it.
        QVERIFY(Runs(game->frame(), "Timer2"));
        Pump(100);
        const QRegion flown = RepaintsDuring(game->scene(), [] { Pump(100); }).region;
        QVERIFY(flown.intersects(game->scene()->tileRect(TileOf(g, 2))));
        Pump(400);
        // The clue over the code, the letter in place, the help under it.
        WM_CHECK_LOOK("Code_Breaker_play", game);
        QVERIFY(!Runs(game->frame(), "Timer2"));
        // The arrow keys move the choice; Backspace, Delete, Space and "Clear" take a letter away.
        const int at = g.selected();
        QTest::keyClick(game, Qt::Key_Left);
        QCOMPARE(g.selected(), at - 1);
        QTest::keyClick(game, Qt::Key_Right);
        QCOMPARE(g.selected(), at);
        QTest::keyClick(game, Qt::Key_Down);
        QVERIFY(g.selected() != at);
        for (int key : {int(Qt::Key_Backspace), int(Qt::Key_Delete), int(Qt::Key_Space), 0}) {
            Put(game, 2, 'Q');
            ClickTile(game, TileOf(g, 2));
            if (key)
                QTest::keyClick(game, Qt::Key(key));
            else
                game->clearButton()->click();
            QCOMPARE(g.holder('Q'), -1);
        }

        // The palette types the accented letter; its key is the game's name, so the scores stay
        // put.
        int eAcute = 0;
        while (g.symbols()[eAcute].plain != '\xC9') ++eAcute;
        ClickTile(game, TileOf(g, eAcute));
        QVERIFY(TriggerMenu(game, "FLang"));
        QCOMPARE(g.symbols()[eAcute].guess, '\xC9');
        QCOMPARE(s.CurrentGame, std::string("Code Breaker"));

        // A hint: a symbol shows its letter for 30 seconds of the clock.
        game->hintButton()->click();
        QCOMPARE(game->clockLabel()->text(), QString("Time: 3:59"));
        QCOMPARE(Said(game, fx), "Hint: 30 seconds off the clock / cb-hint.wav");
        QVERIFY(!game->helpLabel()->isVisible());
        int given = -1;
        for (int i = 0; i < int(g.symbols().size()); ++i)
            if (g.symbols()[i].hinted) given = i;
        QVERIFY(given >= 0);
        // What a hint gave stays: its symbol takes no other letter, its letter goes nowhere else.
        Put(game, given, 'Q');
        QCOMPARE(Said(game, fx), "That letter came from a hint. / cb-wrong.wav");
        const char letter = g.symbols()[given].plain;
        Put(game, given == 0 ? 1 : 0, letter);
        QCOMPARE(game->scene()->bannerText(),
                 QString("%1 came from a hint: it stays where it is.").arg(QChar(letter)));
        QCOMPARE(g.holder(letter), given);
        Pump(1600);
        QCOMPARE(game->scene()->bannerText(), QString());
        QVERIFY(game->helpLabel()->isVisible());

        // Every symbol filled, one of them wrongly: not cracked yet.
        int last = 0;
        while (g.symbols()[last].right()) ++last;
        for (int i = last + 1; i < int(g.symbols().size()); ++i) {
            const Symbol& sym = g.symbols()[i];
            if (sym.right()) continue;
            Put(game, i, sym.plain);
            QCOMPARE(g.symbols()[i].guess, sym.plain);
        }
        Put(game, last, g.holder('Z') < 0 && g.symbols()[last].plain != 'Z' ? 'Z' : 'X');
        QCOMPARE(Said(game, fx), "Not quite! Some letters are wrong. / cb-wrong.wav");
        QCOMPARE(g.phase(), Phase::Playing);

        // The right letter cracks the code: the points, then the table.
        QTest::keyClick(game, Qt::Key(Qt::Key_A + g.symbols()[last].plain - 'A'));
        const int points = g.secondsLeft() * 10 + 10 * 11;  // café, spy, code
        QCOMPARE(Said(game, fx), QString("Code cracked! %1 points / cb-win.wav").arg(points));
        QVERIFY(!game->hintButton()->isEnabled());
        Pump(1000);
        QVERIFY(fx.win.tables.isEmpty());
        Pump(1700);
        QCOMPARE(TableRow(fx, "Code Breaker"), QString("SPY %1").arg(points));
        WM_VERIFY(WonBox(fx, points));
        QVERIFY(BackAtTitle());
    }

    void theClockRunsOut() {
        ShellFixture fx;
        WriteOneList(fx, "Codes", {{"owl", ""}, {"bat", ""}}, true);
        fx.dialogs.answerYes(false);
        QPointer<CodeBreaker> game = qobject_cast<CodeBreaker*>(
            ContinueWithList(ChooserFor("Code Breaker", 50, false), "Codes"));
        QVERIFY(game);
        QVERIFY(!game->clue()->isVisible());  // no meaning on a words-only list
        Pump(1500);
        QCOMPARE(game->clockLabel()->text(), QString("Time: 0:30"));
        QCOMPARE(IntervalOf(game->frame(), "Timer1"), 1000);  // a second a tick
        QVERIFY(!game->hintButton()->isEnabled());  // 30 seconds leave no room for a hint
        Pump(19000);
        QCOMPARE(game->clockLabel()->text(), QString("Time: 0:11"));
        QVERIFY(!fx.sound.played.contains("cb-tick.wav"));
        QVERIFY(!game->clockLabel()->styleSheet().contains("#ff6b5e"));
        Pump(1000);  // the last ten seconds tick, in red
        QVERIFY(game->clockLabel()->styleSheet().contains("#ff6b5e"));
        Pump(9000);
        QCOMPARE(fx.sound.played.count("cb-tick.wav"), 10);
        Pump(1000);
        QCOMPARE(game->clockLabel()->text(), QString("Time: 0:00"));
        QCOMPARE(Said(game, fx), "Time's up! / cb-lose.wav");
        QVERIFY(!game->hintButton()->isEnabled() && !game->clearButton()->isEnabled());
        QTest::keyClick(game, Qt::Key_O);  // nothing more is typed
        QCOMPARE(game->game().holder('O'), -1);
        Pump(1200);
        QVERIFY(fx.dialogs.shown.empty() || !fx.dialogs.last().startsWith("Time's up!"));
        Pump(1500);
        const auto& box = fx.dialogs.shown.back();
        QCOMPARE(box.title, QString("Time's up!"));
        QVERIFY(
            box.text == "Time's up! The code was \"owl\", \"bat\". Would you like to try again?" ||
            box.text == "Time's up! The code was \"bat\", \"owl\". Would you like to try again?");
        QVERIFY(BackAtTitle());
    }

    void aFullCodeFitsAndUnusableListsAreRefused() {
        ShellFixture fx;
        WriteOneList(fx, "Long", kLong);
        QPointer<CodeBreaker> game =
            qobject_cast<CodeBreaker*>(PlayFromTitle("Code Breaker", "Long", 10));
        QVERIFY(game);
        QCOMPARE(game->game().letters(), 60);
        // Every tile and key takes a child's click at the smallest screen, and none overlap.
        CodeScene* sc = game->scene();
        QVERIFY(sc->keyRect(0).width() >= 40 && sc->keyRect(0).height() >= 40);
        for (int i = 0; i < int(game->game().tiles().size()); ++i) {
            QVERIFY(sc->tileRect(i).width() >= 40);
            for (int j = 0; j < i; ++j) QVERIFY(!sc->tileRect(i).intersects(sc->tileRect(j)));
        }
        game->frame().quit();
        Pump();
        WM_VERIFY(Refused(
            fx, "Code Breaker", {{"- -", "only dashes"}, {"42", "a number"}}, 3,
            "The words on this vocabulary list cannot be written in code: a word needs at least "
            "one "
            "letter and no more than 60 characters. Please choose another list or another game."));
    }
};

QTEST_MAIN(CodeBreakerScreenTest)
#include "code_breaker_screen_test.moc"
