// Crossword on its screen: the road to a win and the table; the road to a negative score through
// Give Answer, with the key guard on its button.

#include "games/puzzles/crossword/crossword_screen.h"
#include "core/strings.h"
#include "cross_road.h"
#include "look.h"
#include "platform/text.h"
#include "screen_kit.h"

namespace {

const Pairs kSpace{{"planet", "A world that circles a star"},
                   {"earth", "The planet we live on"},
                   {"moon", "It circles the earth"},
                   {"comet", "An icy body with a bright tail"},
                   {"orbit", "The path around a planet or star"},
                   {"star", "A ball of burning gas"},
                   {"meteor", "A shooting star"},
                   {"rocket", "It carries people into space"}};

CrosswordForm* OpenCrossword(ShellFixture& fx, bool soundOn) {
    return ThroughOptions<CrosswordForm>(fx, "Crossword", kSpace, 10, soundOn, 100);
}

}  // namespace

class CrosswordScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadToAWinAndTheTable() {
        Road fx(11, {"ASS"});
        fx.dialogs.answerYes(false);  // no more tries
        auto* game = OpenCrossword(fx, true);
        QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
        SharedState& s = Shared();
        // Ten words wanted from a list of eight: Difficulty itself comes down to eight.
        QCOMPARE(int(s.Difficulty), 8);
        QCOMPARE(fx.music.opened, appFile("sounds/entertainer.mid"));
        QCOMPARE(fx.music.plays, 1);
        QCOMPARE(game->windowTitle() + " | " + LabelText(game, "ClueLabel"),
                 "Crossword | Click a word in the puzzle to see the clue.");
        // Just left of the grid is no cell.
        QCOMPARE(game->board()->cellAt(game->board()->cellRect(0).topLeft() + QPoint(-2, 2)), -1);

        const auto words = PlacedWords(game->state().board);
        QCOMPARE(int(words.size()), int(s.PuzzleWordCount));
        auto* command1 = game->findChild<QPushButton*>("Command1");
        auto* help = game->findChild<QLabel*>("Label3");  // the help beside Give Answer
        auto* panel = game->findChild<QGroupBox*>("Frame2");
        QVERIFY(help && panel && !command1->isVisible() && !help->isVisible());
        QCOMPARE(panel->title(), "Clue:");
        for (std::size_t n = 0; n < words.size(); ++n) {
            const auto& w = words[n];
            QVERIFY(SelectWord(game, w, game->board()->cellRect(w.cell)));
            QCOMPARE(LabelText(game, "ClueLabel"), toQ(s.Meanings[w.index]));
            QVERIFY(command1->isVisible() && help->isVisible());
            const QString word = toQ(s.Words[w.index]);
            if (n == 0) {
                // A wrong last letter unpinks the word; Backspace lets it be corrected.
                QTest::keyClicks(game, word.left(word.size() - 1) + "#");
                QCOMPARE(s.PuzzleWordCount, short(words.size()));
                QTest::keyClick(game, Qt::Key_Backspace);
                QTest::keyClicks(game, word.right(1));
            } else {
                QTest::keyClicks(game, word);
            }
            if (n + 1 < words.size()) {
                QCOMPARE(int(s.PuzzleWordCount), int(words.size() - n - 1));
                QVERIFY(!command1->isVisible());
                Pump(16 * 12);  // the flash runs out and leaves the word green
                QVERIFY(!Runs(game->frame(), "FlashTimer"));
                // A word corrected after a wrong try was unpinked, so the flash passes it by and
                // it stays white, its letters written: kept as designed.
                QCOMPARE(game->state().board.colour[w.cell],
                         n == 0 ? cross::TileColour::White : cross::TileColour::Green);
                QCOMPARE(game->state().board.caption[w.cell], UCase(s.Words[w.index])[0]);
                // A green word on the board, the clue column and its hint under it.
                if (n == 1) WM_CHECK_LOOK("Crossword_play", game);
            }
        }
        // The last word ends the game at once: the table, then the question, then the title.
        QCOMPARE(fx.sound.played.count("dkbell.wav"), int(words.size()));
        QVERIFY(fx.sound.played.contains("cheer.wav"));
        QCOMPARE(fx.win.tables.size(), 1);
        QVERIFY(fx.win.tables[0].contains("WIN"));
        const QString score = QString::number(qint64(s.Score));
        QVERIFY(s.Score >= 251.0 * 2 * 4);
        WM_VERIFY(WonBox(fx, score));
        QVERIFY(Showing<Title>());
        QCOMPARE(fx.music.closes, 1);
    }

    void giveAnswerEverywhereLosesWithoutASound() {
        Road fx(5);
        auto* game = OpenCrossword(fx, false);
        QVERIFY(game);
        QVERIFY(fx.music.opened.isEmpty());  // no music with the sound off
        // The palette's key is the game's own name: the scores stay in its table.
        QVERIFY(TriggerMenu(game, "FLang"));
        QCOMPARE(Shared().CurrentGame, std::string("Crossword"));
        // Restart shows the wait panel; the layout follows on Timer2.
        auto* wait = game->findChild<QWidget*>("Frame1");
        QVERIFY(TriggerMenu(game, "RS"));
        QVERIFY(wait->isVisible() && Runs(game->frame(), "Timer2"));
        WM_CHECK_LOOK("Crossword_wait", game);  // the wait panel over the sheet
        Pump();
        QVERIFY(!wait->isVisible());
        auto* command1 = game->findChild<QPushButton*>("Command1");
        const auto words = PlacedWords(game->state().board);
        for (const auto& w : words) {
            QVERIFY(SelectWord(game, w, game->board()->cellRect(w.cell)));
            if (&w == &words.front()) {
                // A key typed onto the button never gives the answer; a mouse-down clears the
                // guard.
                QTest::keyClick(command1, Qt::Key_Space);
                command1->click();
                QCOMPARE(int(Shared().PuzzleWordCount), int(words.size()));
            }
            const double before = Shared().Score;
            QTest::mouseClick(command1, Qt::LeftButton);
            if (!Showing<CrosswordForm>()) break;
            // 501 to 1000 a word, whatever the help text says.
            QVERIFY(before - Shared().Score >= 501 && before - Shared().Score <= 1000);
            QCOMPARE(LabelText(game, "Label2"), QString("Score: %1").arg(qint64(Shared().Score)));
            QCOMPARE(game->state().board.caption[w.cell], UCase(Shared().Words[w.index])[0]);
        }
        QVERIFY(Shared().Score < 0);
        WM_VERIFY(Box(fx, "Oops! You had a negative score! Maybe you will do better next time...",
                      "You lose!"));
        QVERIFY(fx.sound.played.isEmpty());  // gbell and ooh are gated by SoundOn
        QVERIFY(Showing<Title>());
    }
};

QTEST_MAIN(CrosswordScreenTest)
#include "crossword_screen_test.moc"
