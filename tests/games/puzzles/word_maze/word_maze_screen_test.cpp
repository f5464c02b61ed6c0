// Word Maze on its screen: the road to a win and the table, mistakes and their costs, undo back
// to the start and a restart, a lost game, the refusal.
#include <QtTest>

#include "core/score_table.h"
#include "core/strings.h"
#include "games/puzzles/word_maze/word_maze_screen.h"
#include "platform/text.h"
#include "road_kit.h"

using namespace wm;
using namespace wm::test;
namespace wmz = wm::word_maze;

namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

// First letters c d o h b; last letters t g l n e: the end stone never holds the first letter.
const Pairs kAnimals = {{"cat", "a pet that purrs"},
                        {"dog", "a pet that barks"},
                        {"owl", "a bird of the night"},
                        {"hen", "a bird that lays eggs"},
                        {"bee", "an insect that makes honey"}};

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
    void roadFromTitleToTheTable();
    void mistakesAndTheirCost();
    void undoBackToTheStartAndRestart();
    void negativeScoreLoses();
    void unbuildableMazeIsRefused();
};

void WordMazeScreenTest::roadFromTitleToTheTable() {
    Road fx(4, {"MAZ"});
    auto* game = OpenMaze(fx, kAnimals, 3);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    const SharedState& s = Shared();
    QCOMPARE(fx.sound.played, QStringList{"dkbell.wav"});
    QCOMPARE(LabelText(game, "Label2"), "The word you are trying to spell is:");
    QCOMPARE(LabelText(game, "Label3"), "Words Left :3");
    QCOMPARE(LabelText(game, "Label1"), toQ(s.TheMeaning));
    QVERIFY(!Button(game, "Command1")->isEnabled());
    const QList<int> path = WalkCells(game->maze());
    QVERIFY(path.size() >= 9);
    for (int i = 0; i + 1 < path.size(); ++i) ClickCell(game, path[i]);
    QCOMPARE(LabelText(game, "Label3"), "Words Left :1");
    QCOMPARE(fx.sound.played.count("dkbell.wav"), 3);  // the start and two words begun
    QCOMPARE(fx.sound.played.count("boing.wav"), path.size() - 1 - 2);
    Pump(2000);
    QCOMPARE(LabelText(game, "Label4"), "Time: 2");
    ClickCell(game, path.last());
    QCOMPARE(fx.sound.played.last(), "cheer.wav");
    QCOMPARE(fx.win.tables.size(), 1);
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    Pump();
    QVERIFY(Showing<Title>());
    const ScoreTable table = ReadScoreTable(fx.path("scores/Word Maze.dat").toStdString());
    QCOMPARE(QString::fromStdString(table.initials(1)), "MAZ");
    QVERIFY(s.Score > 0 && s.Score == double(Int(s.Score)));
    QCOMPARE(table.score(1), s.Score);
    QCOMPARE(fx.music.plays, 0);  // no background music in this game
}

void WordMazeScreenTest::mistakesAndTheirCost() {
    Road fx(8);
    auto* game = OpenMaze(fx, kAnimals, 4);
    QVERIFY(game);
    const auto& m = game->maze();
    int white = -1;  // a white stone: a reminder, never a cost
    for (int c = 1; c < int(m.caption.size()); ++c)
        if (c != m.EndCell && m.colour[c] == wmz::CellColour::White) white = c;
    QVERIFY(white > 0);
    ClickCell(game, white);
    QCOMPARE(fx.dialogs.last(),
             "You must follow the path of words to the end. The highlighted letters mark the "
             "paths you can choose.");
    QCOMPARE(Shared().Score, 0.0);

    // The end stone with the wrong letter costs points; the penalty shows for a second.
    auto* label6 = game->findChild<QLabel*>("Label6");
    ClickCell(game, m.EndCell);
    QVERIFY(Shared().Score < 0 && Shared().Score >= -1000);
    QCOMPARE(label6->text(), QString("-%1 Points...").arg(-Shared().Score));
    QVERIFY(label6->isVisible());
    QCOMPARE(fx.sound.played.last(), "bonk.wav");
    Pump(900);
    QVERIFY(label6->isVisible());
    Pump(200);
    QVERIFY(!label6->isVisible());

    Shared().SoundOn = kFalse;  // the same mistake, silent
    const int sounds = int(fx.sound.played.size());
    ClickCell(game, m.EndCell);
    QCOMPARE(int(fx.sound.played.size()), sounds);
}

void WordMazeScreenTest::undoBackToTheStartAndRestart() {
    Road fx(12);
    Shared().Score = 777;  // carried in and kept
    auto* game = OpenMaze(fx, kAnimals, 2, false);
    QVERIFY(game);
    const auto& m = game->maze();
    const SharedState& s = Shared();
    const std::string first = s.TheWord;
    QCOMPARE(LabelText(game, "Label1"), toQ(first));  // word clue
    const QList<int> path = WalkCells(m);
    for (int i = 0; i < 4; ++i) ClickCell(game, path[i]);  // the first word and one letter more
    QCOMPARE(LabelText(game, "Label5"), toQ(s.TheWord.substr(0, 1)));
    auto* undo = Button(game, "Command1");
    undo->click();  // the letter goes; the new word stays asked for
    QVERIFY(s.TheWord != first);
    QCOMPARE(LabelText(game, "Label5"), "");
    undo->click();  // back on the last letter of the word before, and its clue
    QCOMPARE(s.TheWord, first);
    QCOMPARE(LabelText(game, "Label5"), toQ(first.substr(0, 2)));
    QVERIFY(m.visible[path[2]] && !m.visible[path[1]]);
    for (int i = 0; i < 2; ++i) undo->click();
    QVERIFY(!undo->isEnabled());
    for (bool v : m.visible) QVERIFY(v);
    QCOMPARE(s.Score, 777.0);  // undo is free

    ClickCell(game, path[0]);
    Pump(3000);
    QCOMPARE(LabelText(game, "Label4"), "Time: 3");
    QVERIFY(TriggerMenu(game, "RS"));
    Pump();
    QCOMPARE(LabelText(game, "Label4"), "Time: 0");
    QCOMPARE(s.Score, 777.0);
    QVERIFY(!undo->isEnabled());
    for (bool v : game->maze().visible) QVERIFY(v);
}

void WordMazeScreenTest::negativeScoreLoses() {
    Road fx(6);
    Shared().Score = -1e9;
    auto* game = OpenMaze(fx, kAnimals, 2);
    QVERIFY(game);
    for (int c : WalkCells(game->maze())) ClickCell(game, c);
    QCOMPARE(fx.sound.played.last(), "ooh.wav");
    QCOMPARE(fx.dialogs.shown.back().title, "You lose!");
    QCOMPARE(fx.dialogs.last(),
             "Oops! You had a negative score! Maybe you will do better next time...");
    Pump();
    QVERIFY(Showing<Title>());
    QVERIFY(fx.win.tables.isEmpty());
}

void WordMazeScreenTest::unbuildableMazeIsRefused() {
    Road fx(1);
    // The first word walks only right and down: 24 + 14 steps at most.
    const std::string longWord(45, 'q');
    OpenMaze(fx, {{longWord, "too long"}, {longWord + "s", "longer"}}, 2);
    Pump();
    QVERIFY(fx.dialogs.saw(
        "The program was unable to make this word maze with the options and word list that you "
        "chose. Please try again with different options or a different word list."));
    QVERIFY(Showing<Title>());
}

QTEST_MAIN(WordMazeScreenTest)
#include "word_maze_screen_test.moc"
