// Word Maze on its screen: the road to a win and the table; a mistake, its cost and its penalty
// line, and a lost game.

#include "games/puzzles/word_maze/word_maze_screen.h"
#include "core/strings.h"
#include "look.h"
#include "platform/text.h"
#include "screen_kit.h"

namespace wmz = wm::word_maze;

namespace {

// First letters c d o h b; last letters t g l n e: the end stone never holds the first letter.
const Pairs kAnimals{
    {"cat", "a pet that purrs"}, {"dog", "a pet that barks"}, {"owl", "a bird of the night"},
    {"hen", "a bird that lays eggs"}, {"bee", "an insect that makes honey"}};

// The cells of the walk, rebuilt from the letters the builder left on the board.
QList<int> WalkCells(const wmz::WordMazeState& m) {
    std::string letters;
    for (int n = 1; n <= m.MazeWordCount; ++n) letters += UCase(Shared().Words[m.MazeWords[n]]);
    QList<int> path;
    std::function<bool(int, int, int)> walk = [&](int col, int row, int k) {
        if (col < 1 || row < 1 || col > m.MazeWidth || row > m.MazeHeight) return false;
        const int cell = (row - 1) * m.MazeWidth + (col - 1);
        if (m.MazeLetters[col][row] != letters[k] || path.contains(cell)) return false;
        path << cell;
        if (k + 1 == int(letters.size())) return true;
        if (walk(col, row - 1, k + 1) || walk(col + 1, row, k + 1) || walk(col, row + 1, k + 1) ||
            walk(col - 1, row, k + 1))
            return true;
        path.removeLast();
        return false;
    };
    walk(1, 1, 0);
    return path;
}

void ClickCell(WordMazeForm* game, int cell) {
    QTest::mouseClick(game->board(), Qt::LeftButton, {}, game->board()->cellRect(cell).center());
}

// From the title: the chooser first, then the options with `difficulty`, then the maze.
WordMazeForm* OpenMaze(ShellFixture& fx, const Pairs& list, int difficulty,
                       bool definition = true) {
    WriteOneList(fx, "Animals", list);
    OpenScreen("Title");
    auto* chooser = ChooserFor("Word Maze", difficulty, definition);
    if (!chooser || SelectList(chooser, "Animals (") < 0) return nullptr;
    chooser->continueOn();
    Pump();
    if (auto* options = Showing<GameOptions>()) {
        options->SpeedBar->setValue(difficulty);
        (definition ? options->Option2 : options->Option1)->setChecked(true);
        options->continueOn();
        Pump();
    }
    auto* game = Showing<WordMazeForm>();
    if (game) Pump();
    return game;
}

}  // namespace

class WordMazeScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadFromTitleToTheTable() {
        Road fx(4, {"MAZ"});
        auto* game = OpenMaze(fx, kAnimals, 3);
        QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
        const SharedState& s = Shared();
        QCOMPARE(fx.sound.played, QStringList{"dkbell.wav"});
        QCOMPARE(game->windowTitle(), "Word Maze");
        QCOMPARE(LabelText(game, "Label2"), "The word you are trying to spell is:");
        QCOMPARE(LabelText(game, "Label3"), "Words Left :3");
        QCOMPARE(LabelText(game, "Label1"), toQ(s.TheMeaning));
        QVERIFY(!Button(game, "Command1")->isEnabled());
        const QList<int> path = WalkCells(game->maze());
        QVERIFY(path.size() >= 9);
        WM_CHECK_LOOK("Word_Maze_play", game);  // the stones laid out, a flag on the end one
        for (int i = 0; i + 1 < path.size(); ++i) ClickCell(game, path[i]);
        QCOMPARE(LabelText(game, "Label3"), "Words Left :1");
        QCOMPARE(fx.sound.played.count("dkbell.wav"), 3);  // the start and two words begun
        QCOMPARE(fx.sound.played.count("boing.wav"), path.size() - 1 - 2);
        Pump(2000);
        QCOMPARE(LabelText(game, "Label4"), "Time: 2");
        ClickCell(game, path.last());
        QCOMPARE(fx.sound.played.last(), "cheer.wav");
        QVERIFY(s.Score > 0 && s.Score == double(Int(s.Score)));
        WM_VERIFY(WonBox(fx, s.Score));
        QCOMPARE(TableRow(fx, "Word Maze"), "MAZ " + QString::number(s.Score));
        QVERIFY(BackAtTitle());
        QCOMPARE(fx.music.plays, 0);  // no background music in this game
    }

    void mistakeThenANegativeScoreLoses() {
        Road fx(6);
        Shared().Score = -1e9;
        auto* game = OpenMaze(fx, kAnimals, 2);
        QVERIFY(game);
        // The end stone with the wrong letter costs points; the penalty shows for a second.
        auto* label6 = game->findChild<QLabel*>("Label6");
        ClickCell(game, game->maze().EndCell);
        const double cost = -1e9 - Shared().Score;
        QVERIFY(cost >= 1 && cost <= 1000);
        QCOMPARE(label6->text(), QString("-%1 Points...").arg(cost));
        QCOMPARE(fx.sound.played.last(), "bonk.wav");
        // It flashes red and gold, an eighth of a second each.
        QVERIFY(label6->styleSheet().contains("#e01030"));
        Pump(130);
        QVERIFY(label6->styleSheet().contains("#b00020"));
        Pump(125);
        QVERIFY(label6->styleSheet().contains("#e01030"));
        Pump(645);
        QVERIFY(label6->isVisible());
        Pump(200);
        QVERIFY(!label6->isVisible());
        for (int c : WalkCells(game->maze())) ClickCell(game, c);
        QCOMPARE(fx.sound.played.last(), "ooh.wav");
        WM_VERIFY(Box(fx, "Oops! You had a negative score! Maybe you will do better next time...",
                      "You lose!"));
        QVERIFY(BackAtTitle());
        QVERIFY(fx.win.tables.isEmpty());
    }
};

QTEST_MAIN(WordMazeScreenTest)
#include "word_maze_screen_test.moc"
