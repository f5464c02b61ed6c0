// Word Maze on its screen: the road from the title to a win and the table, mistakes and their
// costs, undo back to the start, a restart in the middle, a lost game, the refusal, and pictures
// of the smallest and largest mazes.
#include <QtTest>

#include "core/score_table.h"
#include "core/strings.h"
#include "game_road.h"
#include "games/puzzles/word_maze/word_maze_screen.h"
#include "platform/text.h"

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

QString Label(QWidget* game, const char* name) {
    return game->findChild<QLabel*>(name)->text();
}

}  // namespace

class WordMazeScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadFromTitleToTheTable();
    void mistakesAndTheirCost();
    void undoBackToTheStart();
    void restartInTheMiddle();
    void negativeScoreLoses();
    void unbuildableMazeIsRefused();
    void pictures_data();
    void pictures();
};

void WordMazeScreenTest::roadFromTitleToTheTable() {
    ShellFixture fx;
    SeededRng rng(4);
    SetRng(&rng);
    OpenScreen("Title");
    Pump();
    auto* game = OpenMaze(fx, kAnimals, 3);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    const SharedState& s = Shared();
    QCOMPARE(s.Difficulty, 3);
    QCOMPARE(fx.sound.played.count("dkbell.wav"), 1);
    QCOMPARE(fx.sound.played.last(), "dkbell.wav");
    QCOMPARE(Label(game, "Label2"), "The word you are trying to spell is:");
    QCOMPARE(Label(game, "Label3"), "Words Left :3");
    QCOMPARE(Label(game, "Label1"), toQ(s.TheMeaning));
    QCOMPARE(game->maze().colour[0], wmz::CellColour::Pink);
    QCOMPARE(game->maze().colour[game->maze().EndCell], wmz::CellColour::Green);
    QVERIFY(!game->findChild<QPushButton*>("Command1")->isEnabled());

    const QList<int> path = WalkCells(game->maze());
    QVERIFY(path.size() >= 9);
    WinDriver driver({"MAZ"});
    SetModalHook(std::ref(driver));
    for (int i = 0; i + 1 < path.size(); ++i) {
        ClickCell(game, path[i]);
        QVERIFY(!game->maze().visible[path[i]]);
    }
    QCOMPARE(Label(game, "Label3"), "Words Left :1");
    QCOMPARE(fx.sound.played.count("dkbell.wav"), 3);  // the start and two words begun
    QVERIFY(fx.sound.played.count("boing.wav") >= 4);
    Pump(2000);
    QCOMPARE(Label(game, "Label4"), "Time: 2");
    ClickCell(game, path.last());
    QCOMPARE(fx.sound.played.last(), "cheer.wav");
    QCOMPARE(driver.tables.size(), 1);
    QVERIFY(fx.dialogs.last().startsWith("You got a high score of "));
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    Pump();
    QVERIFY(Showing<Title>());
    const ScoreTable table = ReadScoreTable(fx.path("scores/Word Maze.dat").toStdString());
    QCOMPARE(QString::fromStdString(table.initials(1)), "MAZ");
    QVERIFY(s.Score > 0 && s.Score == double(Int(s.Score)));
    QCOMPARE(table.score(1), s.Score);
    QCOMPARE(fx.music.plays, 0);  // no background music in this game
    SetRng(nullptr);
}

void WordMazeScreenTest::mistakesAndTheirCost() {
    ShellFixture fx;
    SeededRng rng(8);
    SetRng(&rng);
    OpenScreen("Title");
    auto* game = OpenMaze(fx, kAnimals, 4);
    QVERIFY(game);
    const auto& m = game->maze();
    // A white stone: a reminder, never a cost.
    int white = -1;
    for (int c = 1; c < int(m.caption.size()); ++c)
        if (c != m.EndCell && m.colour[c] == wmz::CellColour::White) white = c;
    QVERIFY(white > 0);
    ClickCell(game, white);
    QCOMPARE(fx.dialogs.last(), wmz::kFollowPathMessage);
    QCOMPARE(Shared().Score, 0.0);

    // The end stone with the wrong letter costs points; the penalty flashes for a second.
    auto* label6 = game->findChild<QLabel*>("Label6");
    ClickCell(game, m.EndCell);
    QVERIFY(Shared().Score < 0 && Shared().Score >= -1000);
    QCOMPARE(label6->text(), QString("-%1 Points...").arg(-Shared().Score));
    QVERIFY(label6->isVisible());
    QVERIFY(qAbs(label6->geometry().center().x() - game->width() / 2) <= 1);
    QCOMPARE(fx.sound.played.last(), "bonk.wav");
    QCOMPARE(m.WordNo, 1);
    Pump(900);
    QVERIFY(label6->isVisible());
    Pump(200);
    QVERIFY(!label6->isVisible());

    // With the sound off the same mistake is silent.
    Shared().SoundOn = kFalse;
    const int sounds = int(fx.sound.played.size());
    ClickCell(game, m.EndCell);
    QCOMPARE(int(fx.sound.played.size()), sounds);
    SetRng(nullptr);
}

void WordMazeScreenTest::undoBackToTheStart() {
    ShellFixture fx;
    SeededRng rng(12);
    SetRng(&rng);
    OpenScreen("Title");
    auto* game = OpenMaze(fx, kAnimals, 2, false);
    QVERIFY(game);
    const auto& m = game->maze();
    const SharedState& s = Shared();
    const std::string first = s.TheWord;
    QCOMPARE(Label(game, "Label1"), toQ(first));  // word clue
    const QList<int> path = WalkCells(m);
    for (int i = 0; i < 4; ++i) ClickCell(game, path[i]);  // the first word and one letter more
    QVERIFY(s.TheWord != first);
    QCOMPARE(Label(game, "Label5"), toQ(s.TheWord.substr(0, 1)));  // as the list spells it
    auto* undo = game->findChild<QPushButton*>("Command1");
    QVERIFY(undo->isEnabled());
    undo->click();  // the letter goes; the new word stays asked for
    QVERIFY(s.TheWord != first);
    QCOMPARE(Label(game, "Label5"), "");
    QVERIFY(m.visible[path[3]]);
    undo->click();  // back on the last letter of the word before, and its clue
    QCOMPARE(s.TheWord, first);
    QCOMPARE(Label(game, "Label1"), toQ(first));
    QCOMPARE(Label(game, "Label5"), toQ(first.substr(0, 2)));
    // The stone given back is on offer again, beside the one taken before it.
    QVERIFY(m.visible[path[2]] && !m.visible[path[1]]);
    QCOMPARE(m.colour[path[2]], wmz::CellColour::Pink);
    for (int i = 0; i < 2; ++i) undo->click();
    QVERIFY(!undo->isEnabled());
    for (int c = 0; c < int(m.caption.size()); ++c) QVERIFY(m.visible[c]);
    QCOMPARE(m.colour[0], wmz::CellColour::Pink);
    QCOMPARE(m.colour[m.EndCell], wmz::CellColour::Green);
    QCOMPARE(Label(game, "Label5"), "");
    QCOMPARE(s.Score, 0.0);  // undo is free
    SetRng(nullptr);
}

void WordMazeScreenTest::restartInTheMiddle() {
    ShellFixture fx;
    SeededRng rng(15);
    SetRng(&rng);
    OpenScreen("Title");
    Shared().Score = 777;  // carried in and kept
    auto* game = OpenMaze(fx, kAnimals, 3);
    QVERIFY(game);
    const QList<int> path = WalkCells(game->maze());
    ClickCell(game, path[0]);
    ClickCell(game, path[1]);
    Pump(3000);
    QCOMPARE(Label(game, "Label4"), "Time: 3");
    QVERIFY(TriggerMenu(game, "RS"));
    Pump();
    QCOMPARE(Showing<WordMazeForm>(), game);
    QCOMPARE(Label(game, "Label4"), "Time: 0");
    QCOMPARE(game->maze().Seconds, 0);
    QCOMPARE(Shared().Score, 777.0);
    QCOMPARE(game->maze().WordNo, 1);
    QVERIFY(!game->findChild<QPushButton*>("Command1")->isEnabled());
    for (bool v : game->maze().visible) QVERIFY(v);
    QVERIFY(TriggerMenu(game, "Return"));
    Pump();
    QVERIFY(Showing<Title>());
    SetRng(nullptr);
}

void WordMazeScreenTest::negativeScoreLoses() {
    ShellFixture fx;
    SeededRng rng(6);
    SetRng(&rng);
    OpenScreen("Title");
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
    QVERIFY(!fx.exists("scores/Word Maze.dat") ||
            ReadScoreTable(fx.path("scores/Word Maze.dat").toStdString()).score(1) == 0);
    SetRng(nullptr);
}

void WordMazeScreenTest::unbuildableMazeIsRefused() {
    ShellFixture fx;
    SeededRng rng(1);
    SetRng(&rng);
    OpenScreen("Title");
    // The first word walks only right and down: 24 + 14 steps at most.
    const std::string longWord(45, 'q');
    auto* game = OpenMaze(fx, {{longWord, "too long"}, {longWord + "s", "longer"}}, 2);
    Pump();
    (void)game;
    QVERIFY(fx.dialogs.saw(wmz::kUnableMessage));
    QVERIFY(Showing<Title>());
    SetRng(nullptr);
}

void WordMazeScreenTest::pictures_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("difficulty");
    for (QSize size : {QSize(1280, 800), QSize(1920, 1080)})
        for (int d : {2, 15})
            QTest::newRow(
                qPrintable(QString("%1x%2 d%3").arg(size.width()).arg(size.height()).arg(d)))
                << size << d;
}

void WordMazeScreenTest::pictures() {
    QFETCH(QSize, screen);
    QFETCH(int, difficulty);
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(screen);
    SeededRng rng(2);
    SetRng(&rng);
    OpenScreen("Title");
    Pairs list = kAnimals;
    for (const char* w : {"giraffe", "elephant", "kangaroo", "hedgehog", "squirrel", "dolphin",
                          "penguin", "octopus", "tortoise", "flamingo", "hamster", "rabbit"})
        list.push_back(
            {w, std::string("the ") + w + ", an animal you may know from a picture book"});
    auto* game = OpenMaze(fx, list, difficulty);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    QCOMPARE(game->maze().MazeWordCount, difficulty);
    const QRect board = game->board()->geometry();
    QVERIFY(game->rect().contains(board));
    QVERIFY(board.top() > game->findChild<QLabel*>("Label1")->parentWidget()->geometry().bottom());
    QVERIFY(board.bottom() < game->findChild<QPushButton*>("Command1")->y());
    const QList<int> path = WalkCells(game->maze());
    for (int i = 0; i < std::min<int>(5, path.size() - 1); ++i) ClickCell(game, path[i]);
    Shot(game,
         QString("word-maze-%1x%2-d%3").arg(screen.width()).arg(screen.height()).arg(difficulty));
    SetRng(nullptr);
}

QTEST_MAIN(WordMazeScreenTest)
#include "word_maze_screen_test.moc"
