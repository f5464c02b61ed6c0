// Word Search on its screen: the road from the title to a win and the table, a restart in the
// middle, the two clue modes, the refusal, a lost game, the menu idle after "try again", drags,
// and pictures of the smallest and largest puzzles.
#include <QtTest>

#include "core/score_table.h"
#include "core/strings.h"
#include "game_road.h"
#include "games/puzzles/word_search/word_search_screen.h"
#include "platform/text.h"
#include "platform/timeline_scene.h"

using namespace wm;
using namespace wm::test;
namespace ws = wm::word_search;

namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

const Pairs kAnimals = {{"cat", "a pet that purrs"},    {"dog", "a pet that barks"},
                        {"owl", "a bird of the night"}, {"hen", "a bird that lays eggs"},
                        {"ant", "a small insect"},      {"bee", "an insect that makes honey"},
                        {"pig", "a farm animal"},       {"fox", "a wild dog"}};

// The cells that spell `word` where the builder hid it: across, down or down-right.
QList<int> FindWord(const ws::WordSearchState& p, const std::string& word) {
    const int g = p.GridSize, n = int(word.size());
    const int steps[3][2] = {{1, 0}, {0, 1}, {1, 1}};
    for (int y = 1; y <= g; ++y)
        for (int x = 1; x <= g; ++x)
            for (auto [dx, dy] : steps) {
                QList<int> cells;
                for (int k = 0; k < n; ++k) {
                    const int cx = x + k * dx, cy = y + k * dy;
                    if (cx > g || cy > g || p.LetterGrid[cx][cy] != word[k]) break;
                    cells << (cy - 1) * ws::kLayoutWidth + (cx - 1);
                }
                if (cells.size() == n) return cells;
            }
    return {};
}

void ClickCell(WordSearchForm* game, int cell) {
    QTest::mouseClick(game->board(), Qt::LeftButton, {}, game->board()->cellRect(cell).center());
}

// Marks the word asked for now; false when it cannot be found on the grid.
bool FindAskedWord(WordSearchForm* game) {
    auto* clear = game->findChild<QPushButton*>("ClearButton");
    if (clear->isEnabled()) clear->click();
    const QList<int> cells = FindWord(game->puzzle(), Shared().TheWord);
    if (cells.isEmpty()) return false;
    for (int c : cells) ClickCell(game, c);
    return true;
}

// Moves the clock until the flash, the win animation and the fireworks are over.
void PumpThroughEnd(WordSearchForm* game, ScriptedDialogs& dialogs, int limitMs = 60000) {
    QPointer<WordSearchForm> g(game);
    const size_t before = dialogs.shown.size();
    for (int t = 0; t < limitMs && g && dialogs.shown.size() == before; t += 100) Pump(100);
}

WordSearchForm* OpenGame(ShellFixture& fx, const Pairs& list, int difficulty, bool definition) {
    WriteOneList(fx, "Animals", list);
    OpenScreen("Title");
    Pump();
    auto* chooser = ChooserFor("Word Search", difficulty, definition);
    ContinueWithList(chooser, "Animals (");
    auto* game = Showing<WordSearchForm>();
    if (game) Pump();
    return game;
}

QString Label(QWidget* game, const char* name) {
    return game->findChild<QLabel*>(name)->text();
}

}  // namespace

class WordSearchScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadFromTitleToTheTable();
    void restartInTheMiddleKeepsTheScore();
    void clueModesAndHint();
    void lastWordGivesNoPointsAndLosingAsksAgain();
    void menuIdleAfterTryAgain();
    void dragMarksAlongARow();
    void unusableListIsRefused();
    void pictures_data();
    void pictures();
};

void WordSearchScreenTest::roadFromTitleToTheTable() {
    ShellFixture fx;
    SetTimelineFolder(QString(WM_ASSET_DIR) + "/movies");  // the films as the program has them
    SeededRng rng(7);
    SetRng(&rng);
    WriteOneList(fx, "Animals", kAnimals);
    auto* game = qobject_cast<WordSearchForm*>(PlayFromTitle("Word Search", "Animals (", 5));
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    const SharedState& s = Shared();
    QCOMPARE(game->puzzle().GridSize, 5);
    QCOMPARE(s.PuzzleWordCount, 5);
    QVERIFY(Label(game, "Directlabel").contains(" or across.When you find the word"));
    QCOMPARE(Label(game, "WLLabel"), "Words Left: 5");
    QCOMPARE(fx.music.plays, 1);  // music.mid under BGM
    QVERIFY(fx.music.opened.endsWith("sounds/music.mid"));

    WinDriver driver({"WSR"});
    SetModalHook(std::ref(driver));
    for (int word = 0; word < 5; ++word) {
        QVERIFY2(FindAskedWord(game), s.TheWord.c_str());
        if (word < 4) {
            QCOMPARE(Label(game, "WLLabel"), QString("Words Left: %1").arg(4 - word));
            Pump(700);  // the flash is over; the found word stays light blue
        }
    }
    QCOMPARE(Label(game, "WLLabel"), "Words Left: 1");  // the last word leaves the labels be
    Pump(600);  // the flash ends, the puzzle goes and the win animation plays
    QVERIFY(!game->board()->isVisible());
    QVERIFY(!game->findChild<QWidget*>("Frame1")->isVisible());
    auto* win = game->findChild<Movie*>("MovieBackBox");
    QVERIFY(win->isPlaying());
    QCOMPARE(win->width(), int(game->width() * 0.6));
    Pump(2500);
    Shot(game, "word-search-win");
    QVERIFY(fx.sound.played.count("2.wav") == 0);  // fireworks only once it is over
    Pump(1500);
    Shot(game, "word-search-fireworks");
    QVERIFY(fx.sound.played.count("2.wav") >= 1);
    PumpThroughEnd(game, fx.dialogs);
    const int fireworks = int(fx.sound.played.count("2.wav"));
    QVERIFY(fireworks >= 4 && fireworks <= 8);
    QCOMPARE(fx.music.closes >= 1, true);
    QCOMPARE(driver.tables.size(), 1);
    QVERIFY(fx.dialogs.last().startsWith("You got a high score of "));
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    Pump();
    QVERIFY(Showing<Title>());
    const ScoreTable table = ReadScoreTable(fx.path("scores/Word Search.dat").toStdString());
    QCOMPARE(QString::fromStdString(table.initials(1)), "WSR");
    QCOMPARE(table.score(1), s.Score);
    SetTimelineFolder({});
    SetRng(nullptr);
}

void WordSearchScreenTest::restartInTheMiddleKeepsTheScore() {
    ShellFixture fx;
    SeededRng rng(11);
    SetRng(&rng);
    Shared().Score = 1234;  // carried in from whatever ran before
    auto* game = OpenGame(fx, kAnimals, 6, false);
    QVERIFY(game);
    const auto cells = FindWord(game->puzzle(), Shared().TheWord);
    QVERIFY(!cells.isEmpty());
    ClickCell(game, cells[0]);
    QCOMPARE(game->puzzle().colour[cells[0]], ws::CellColour::Pink);
    QVERIFY(game->findChild<QPushButton*>("ClearButton")->isEnabled());
    Pump(3000);
    QVERIFY(Label(game, "TimeLabel").endsWith(" 3"));

    QVERIFY(TriggerMenu(game, "RS"));
    Pump();
    QCOMPARE(Showing<WordSearchForm>(), game);
    QCOMPARE(Shared().Score, 1234.0);
    QCOMPARE(game->puzzle().Seconds, 0);
    Pump(1000);
    QCOMPARE(game->puzzle().Seconds, 1);  // Timer1 runs on through the restart
    QVERIFY(!game->findChild<QPushButton*>("ClearButton")->isEnabled());
    for (int c = 0; c < ws::kCells; ++c) QCOMPARE(game->puzzle().colour[c], ws::CellColour::White);
    QCOMPARE(Label(game, "WLLabel"), "Words Left: 6");
    // Found words and a restart mid-flash: the new round starts clean.
    QVERIFY(FindAskedWord(game));
    Pump(100);
    QVERIFY(TriggerMenu(game, "RS"));
    Pump(1000);
    QVERIFY(!game->puzzle().flashing);
    QCOMPARE(game->puzzle().WordsLeft, 6);
    SetRng(nullptr);
}

void WordSearchScreenTest::clueModesAndHint() {
    ShellFixture fx;
    SeededRng rng(3);
    SetRng(&rng);
    auto* game = OpenGame(fx, kAnimals, 12, true);
    QVERIFY(game);
    const SharedState& s = Shared();
    QVERIFY(Label(game, "Directlabel")
                .startsWith("Directions: Look in the puzzle for the word matching the meaning "
                            "shown below. Words can be hidden down, across, or diagnally.When"));
    QCOMPARE(Label(game, "CardLabel"), QString::fromStdString(s.TheMeaning));
    auto* hint = game->findChild<QPushButton*>("HintButton");
    QVERIFY(hint->isVisible());
    const QString before = Label(game, "ScoreLabel");
    hint->click();
    QCOMPARE(fx.dialogs.shown.back().title, "You are looking for:");
    QCOMPARE(fx.dialogs.last(), QString::fromStdString(s.TheWord));
    QCOMPARE(s.Score, -5000.0);
    QCOMPARE(Label(game, "ScoreLabel"), before);  // not refreshed until a word is found

    // The scroll bar steps through the words left and clears the marking.
    auto* scroll = game->findChild<QScrollBar*>("ShowScroll");
    QCOMPARE(scroll->maximum(), 8);
    const auto first = FindWord(game->puzzle(), s.TheWord);
    ClickCell(game, first[0]);
    scroll->setValue(3);
    QCOMPARE(s.WordIndex, 3);
    QCOMPARE(Label(game, "CardLabel"), toQ(game->puzzle().AnswerList[2]));
    QCOMPARE(game->puzzle().colour[first[0]], ws::CellColour::White);
    SetRng(nullptr);

    // Word clue: the word itself, no hint.
    ShellFixture fx2;
    SeededRng rng2(3);
    SetRng(&rng2);
    auto* easy = OpenGame(fx2, kAnimals, 5, false);
    QVERIFY(easy);
    QCOMPARE(Label(easy, "CardLabel"), toQ(easy->puzzle().WordList[0]));
    QVERIFY(!easy->findChild<QPushButton*>("HintButton")->isVisible());
    QVERIFY(Label(easy, "Directlabel").contains("for the word shown below."));
    SetRng(nullptr);
}

void WordSearchScreenTest::lastWordGivesNoPointsAndLosingAsksAgain() {
    ShellFixture fx;
    SeededRng rng(5);
    SetRng(&rng);
    fx.sound.played.clear();
    Shared().Score = -900000;  // carried in: no finish can lift it above 0
    auto* game = OpenGame(fx, {{"cat", "a pet"}, {"dog", "a pet too"}}, 5, false);
    QVERIFY(game);
    Shared().SoundOn = kFalse;
    fx.sound.played.clear();
    QPointer<WordSearchForm> alive(game);
    QVERIFY(FindAskedWord(game));
    const double afterFirst = Shared().Score;
    QVERIFY(afterFirst > -900000);
    QCOMPARE(Label(game, "ScoreLabel"), "Score: " + toQ(NumText(afterFirst)));
    Pump(700);
    QVERIFY(FindAskedWord(game));
    QCOMPARE(Shared().Score, afterFirst);  // the last word gives nothing
    PumpThroughEnd(game, fx.dialogs);
    QVERIFY(!fx.sound.played.contains("2.wav"));  // silent fireworks with the sound off
    QVERIFY(fx.dialogs.texts().first().startsWith("Oops! Unfortunately, you got a score of -"));
    QVERIFY(
        fx.dialogs.texts().first().endsWith(" on that game! You may want to practice a bit..."));
    QCOMPARE(fx.dialogs.shown.back().text, "Would you like to try again?");
    QCOMPARE(fx.dialogs.shown.back().title, "Another try?");
    Pump();
    QVERIFY(Showing<Title>());
    SetRng(nullptr);
}

void WordSearchScreenTest::menuIdleAfterTryAgain() {
    ShellFixture fx;
    SeededRng rng(9);
    SetRng(&rng);
    auto* game = OpenGame(fx, {{"cat", "a pet"}}, 5, false);
    QVERIFY(game);
    SetModalHook(WinDriver{});
    fx.dialogs.answerYes();  // try again
    QVERIFY(FindAskedWord(game));
    PumpThroughEnd(game, fx.dialogs);
    Pump();
    QCOMPARE(Showing<WordSearchForm>(), game);
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    // The new round runs without Timer1: no time counted, Restart, High Scores and Quit idle.
    Pump(3000);
    QCOMPARE(game->puzzle().Seconds, 0);
    for (const char* name : {"RS", "HS", "Return"}) {
        QVERIFY(TriggerMenu(game, name));
        Pump();
        QCOMPARE(Showing<WordSearchForm>(), game);
    }
    QVERIFY(game->findChild<QAction*>("mnuHowTo")->isEnabled());
    QTest::keyClick(game, Qt::Key_Escape);  // Escape acts as Quit: idle too
    Pump();
    QCOMPARE(Showing<WordSearchForm>(), game);
    // The end of that game leaves as usual.
    fx.dialogs.answerYes(false);
    QVERIFY(FindAskedWord(game));
    PumpThroughEnd(game, fx.dialogs);
    Pump();
    QVERIFY(Showing<Title>());
    SetRng(nullptr);
}

void WordSearchScreenTest::dragMarksAlongARow() {
    ShellFixture fx;
    // One word of four letters at difficulty 5: across only; its cells found on the grid.
    SeededRng rng(21);
    SetRng(&rng);
    auto* game = OpenGame(fx, {{"frog", "it hops"}}, 5, false);
    QVERIFY(game);
    const auto cells = FindWord(game->puzzle(), "FROG");
    QCOMPARE(cells.size(), 4);
    WordSearchBoard* board = game->board();
    const QRect first = board->cellRect(cells[0]);
    const bool across = cells[1] - cells[0] == 1;
    QTest::mousePress(board, Qt::LeftButton, {}, first.center());
    const int w = first.width(), h = first.height();
    for (int k = 1; k < 4; ++k) {
        // A step is taken only once the pointer is 0.99 of a cell past the cell tried last,
        // as the drag rule is written: the left edge of the cell after the next one.
        const QPoint inside = first.topLeft() + (across ? QPoint(k * w + w / 2, h / 2)
                                                        : QPoint(w / 2, k * h + h / 2));
        QMouseEvent early(QEvent::MouseMove, inside, board->mapToGlobal(inside), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(board, &early);
        QCOMPARE(game->puzzle().NextLetter, k + 1);
        const QPoint at =
            first.topLeft() + (across ? QPoint((k + 1) * w, h / 2) : QPoint(w / 2, (k + 1) * h));
        QMouseEvent move(QEvent::MouseMove, at, board->mapToGlobal(at), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(board, &move);
    }
    QVERIFY2(game->puzzle().flashing, across ? "across" : "down");
    QTest::mouseRelease(board, Qt::LeftButton, {}, board->cellRect(cells[3]).center());
    for (int c : cells) QCOMPARE(game->puzzle().colour[c], ws::CellColour::Pink);
    SetRng(nullptr);
}

void WordSearchScreenTest::unusableListIsRefused() {
    ShellFixture fx;
    SeededRng rng(1);
    SetRng(&rng);
    // Words of 21 letters fit no grid of the board.
    const Pairs longWords = {{"abcdefghijklmnopqrstu", "long"},
                             {"bcdefghijklmnopqrstuv", "longer"}};
    auto* game = OpenGame(fx, longWords, 19, false);
    Pump();
    QVERIFY(!game || Showing<Title>());
    QCOMPARE(fx.dialogs.shown.back().title, "Error!");
    QCOMPARE(fx.dialogs.last(), "Unable to create this puzzle. Try using less words.");
    QVERIFY(Showing<Title>());
    SetRng(nullptr);
}

void WordSearchScreenTest::pictures_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("difficulty");
    for (QSize size : {QSize(1280, 800), QSize(1920, 1080)})
        for (int d : {5, 20})
            QTest::newRow(
                qPrintable(QString("%1x%2 d%3").arg(size.width()).arg(size.height()).arg(d)))
                << size << d;
}

void WordSearchScreenTest::pictures() {
    QFETCH(QSize, screen);
    QFETCH(int, difficulty);
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(screen);
    SeededRng rng(2);
    SetRng(&rng);
    // The smallest puzzle takes words that fit it; the largest longer words and definitions.
    Pairs list = kAnimals;
    if (difficulty > 5)
        for (const char* w : {"giraffe", "elephant", "kangaroo", "hedgehog", "squirrel", "dolphin",
                              "penguin", "octopus", "tortoise", "flamingo", "hamster", "rabbit"})
            list.push_back(
                {w, std::string("the ") + w + ", an animal you may know from a picture book"});
    auto* game = OpenGame(fx, list, difficulty, difficulty == 20);
    QVERIFY(game);
    QCOMPARE(game->size(), screen);
    QCOMPARE(game->puzzle().GridSize, difficulty);
    WordSearchBoard* board = game->board();
    // The grid, its frame and the panel all sit on the screen, clear of the menu and each other.
    const QRect grid = board->geometry();
    const QRect panel = game->findChild<QWidget*>("Frame1")->geometry();
    QVERIFY(grid.top() > game->frame().menuHeight());
    QVERIFY(grid.right() < panel.left());
    QVERIFY(game->rect().contains(grid) && game->rect().contains(panel));
    QVERIFY(game->findChild<QLabel*>("OopsLabel")->geometry().bottom() < screen.height());
    QVERIFY(board->cellSize() >= 28);  // letters large enough to read across a classroom
    const auto cells = FindWord(game->puzzle(), Shared().TheWord);
    ClickCell(game, cells[0]);
    Shot(game,
         QString("word-search-%1x%2-d%3").arg(screen.width()).arg(screen.height()).arg(difficulty));
    SetRng(nullptr);
}

QTEST_MAIN(WordSearchScreenTest)
#include "word_search_screen_test.moc"
