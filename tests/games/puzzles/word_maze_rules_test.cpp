#include "games/puzzles/word_maze/word_maze_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/rng.h"
#include "core/shared_state.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::word_maze;

namespace {

SharedState listOf(const std::vector<std::string>& words, int difficulty, bool definitions) {
    SharedState s = test::ListOf(words, difficulty);
    s.GameOptionOn = definitions ? kTrue : kFalse;
    return s;
}

std::string board(const WordMazeState& m) {
    std::string s;
    for (int i = 0; i < static_cast<int>(m.caption.size()); ++i) {
        if (i > 0 && i % m.MazeWidth == 0) s += '/';
        s += m.caption[i];
    }
    return s;
}

std::string pinks(const WordMazeState& m) {
    std::string s;
    for (int i = 0; i < static_cast<int>(m.colour.size()); ++i)
        if (m.colour[i] == CellColour::Pink) s += std::to_string(i) + " ";
    return s;
}

// "cat" then "dog": C A O G on row 1, . T D . on row 2, the end on the G (cell 3).
WordMazeState catDog(SharedState& state, ScriptedRng& rng) {
    rng.pick(1, 2);                 // word 1
    rng.pick(3, 8).pick(1, 2);      // A: odd draw, then right
    rng.pick(5, 8).pick(2, 2);      // T: odd draw, then down
    rng.pick(1, 2).pick(2, 2);      // word 1 is taken: word 2
    rng.pick(2, 8).pick(3, 8);      // D: even redrawn, right
    rng.pick(1, 8);                 // O: up
    rng.pick(7, 8).pick(3, 8);      // G: left is taken, then right
    rng.pick(24, 26).pick(26, 26);  // free cells (1, 2) and (4, 2): X and Z
    WordMazeState m;
    const RoundStart started = startRound(state, m, rng);
    EXPECT_TRUE(started.ok && started.playBell);  // a maze made rings the bell
    return m;
}

}  // namespace

TEST(WordMazeBuild, WalkSpellsTheWordsAndTheBoardFitsIt) {
    SharedState state = listOf({"cat", "dog"}, 2, true);
    state.Score = 50;  // carried in
    ScriptedRng rng;
    WordMazeState m = catDog(state, rng);
    EXPECT_EQ(rng.pending(), 0u);
    EXPECT_EQ(std::tuple(board(m), m.MazeWidth, m.MazeHeight, m.EndCell),
              std::tuple("CAOG/XTDZ", 4, 2, 3));
    EXPECT_EQ(std::tuple(m.colour[3], pinks(m), state.TheWord, m.label1),
              std::tuple(CellColour::Green, "0 ", "cat", "meaning of cat"));
    EXPECT_EQ(std::tuple(m.label3, state.Score, m.undoEnabled),
              std::tuple("Words Left :2", 50, false));
}

TEST(WordMazeBuild, ImpossibleWalkEndsWithTheMessage) {
    // The first word walks only right and down: 24 + 14 steps at most.
    SharedState state = listOf({std::string(40, 'a')}, 1, false);
    SystemRng rng;
    WordMazeState m;
    const RoundStart r = startRound(state, m, rng);
    EXPECT_FALSE(r.ok || r.playBell);
    EXPECT_EQ(r.message,
              "The program was unable to make this word maze with the options and word list that "
              "you chose. Please try again with different options or a different word list.");
    EXPECT_EQ(m.builds, 1001);

    // More words wanted than the list holds ends too; so does a generator stuck on a word taken.
    SharedState few = listOf({"ab"}, 3, false);
    EXPECT_FALSE(startRound(few, m, rng).ok);
    SharedState two = listOf({"ab", "cd"}, 2, false);
    ScriptedRng stuck(0.0);
    m.MazeWordCount = 2;
    EXPECT_FALSE(buildMaze(two, m, stuck));
    EXPECT_EQ(stuck.draws, 3 + 10000);

    // 39 letters fit exactly when every step is right until column 25, then down.
    SharedState exact = listOf({std::string(39, 'b')}, 1, false);
    auto walk = ScriptedRng().pick(1, 1);  // direction 3 (odd), then the override 1: right
    for (int i = 0; i < 24; ++i) walk.then(0.25).then(0.25);
    for (int i = 0; i < 14; ++i) walk.then(0.25).then(0.75);  // right refused at 25: down
    m.MazeWordCount = 1;
    ASSERT_TRUE(buildMaze(exact, m, walk));
    EXPECT_EQ(std::tuple(m.EndCol, m.EndRow, m.MazeWidth, m.MazeHeight),
              std::tuple(25, 15, 25, 15));
    // The next maze starts again from one cell: "ab" walked right is two cells wide, one high.
    SharedState ab = listOf({"ab"}, 1, false);
    auto once = ScriptedRng().pick(1, 1).then(0.25).then(0.25);
    ASSERT_TRUE(buildMaze(ab, m, once));
    EXPECT_EQ(std::tuple(m.MazeWidth, m.MazeHeight), std::tuple(2, 1));
}

TEST(WordMazePlay, RetraceUndoAndFinish) {
    SharedState state = listOf({"cat", "dog"}, 2, false);
    ScriptedRng rng;
    WordMazeState m = catDog(state, rng);
    EXPECT_EQ(m.label1, "cat");  // word clue

    Click c = clickCell(state, m, 1, rng);  // white: a reminder, no cost
    EXPECT_EQ(c.result, ClickResult::OffPath);
    EXPECT_EQ(c.message,
              "You must follow the path of words to the end. The highlighted letters mark the "
              "paths you can choose.");
    EXPECT_EQ(state.Score, 0);
    for (int off : {-1, 8}) EXPECT_EQ(clickCell(state, m, off, rng).result, ClickResult::Ignored);

    EXPECT_EQ(clickCell(state, m, 0, rng).result, ClickResult::Moved);
    // Label5: the word as the list holds it.
    EXPECT_EQ(std::tuple(pinks(m), m.visible[0], m.label5), std::tuple("1 4 ", false, "c"));

    rng.pick(321, 1000);
    c = clickCell(state, m, 4, rng);  // pink, but "X" is not "A"
    EXPECT_EQ(std::tuple(c.result, state.Score, c.label6, m.LetterNo),
              std::tuple(ClickResult::Wrong, -321, "-321 Points...", 2));

    EXPECT_EQ(clickCell(state, m, 1, rng).result, ClickResult::Moved);
    // The taken cell 0 turns pink too but stays hidden.
    EXPECT_EQ(std::tuple(pinks(m), m.visible[0]), std::tuple("0 2 5 ", false));
    EXPECT_EQ(clickCell(state, m, 5, rng).result, ClickResult::NextWord);
    EXPECT_EQ(std::tuple(state.TheWord, m.label3, m.label5),
              std::tuple("dog", "Words Left :1", ""));

    // Undo after a new word's start returns to the last letter of the word before.
    undoMove(state, m);
    EXPECT_EQ(std::tuple(state.TheWord, m.label1, m.label5), std::tuple("cat", "cat", "ca"));
    // Pink around cell 1, taken cells included (still hidden).
    EXPECT_EQ(std::tuple(m.visible[5], pinks(m)), std::tuple(true, "0 2 5 "));
    EXPECT_EQ(clickCell(state, m, 5, rng).result, ClickResult::NextWord);

    // The end cell with the right letter before its time.
    m.caption[3] = "D";
    c = clickCell(state, m, 3, rng);
    EXPECT_EQ(c.result, ClickResult::NotReady);
    EXPECT_EQ(c.message,
              "You must follow the path of words to the end. You're not ready to get there yet...");
    m.caption[3] = "G";

    EXPECT_EQ(clickCell(state, m, 6, rng).result, ClickResult::Moved);
    EXPECT_EQ(clickCell(state, m, 2, rng).result, ClickResult::Moved);
    EXPECT_EQ(clickCell(state, m, 3, rng).result, ClickResult::MazeDone);
    EXPECT_EQ(clickCell(state, m, 7, rng).result, ClickResult::Ignored);

    // Undo all the way to the start.
    while (m.undoEnabled) undoMove(state, m);
    EXPECT_EQ(std::tuple(pinks(m), m.WordNo, m.LetterNo, m.label5), std::tuple("0 ", 1, 1, ""));
    for (bool v : m.visible) EXPECT_TRUE(v);
    undoMove(state, m);  // nothing left to undo
    EXPECT_EQ(m.WordNo, 1);
}

TEST(WordMazePlay, FinalScoreBySpeedAndClueMode) {
    // Seconds, definitions or words as clues, the score before and after, won. Difficulty 2 and a
    // roll of 100: 200 points before the speed factor.
    const std::tuple<int, bool, double, double, bool> cases[] = {
        {5, true, 0, 500, true},       // p = 2: x 2.5
        {6, true, 0, 360, true},       // p = 3: x 1.8
        {14, true, 0, 260, true},      // p = 7: x 1.3
        {20, true, 0, 200, true},      // p = 10: as it is
        {39, true, 0, 200, true},      // p = 19
        {40, true, 0, 140, true},      // p = 20: x 0.7
        {5, false, 0, 250, true},      // a word clue halves it
        {5, true, -300, -250, false},  // a negative total loses
        {5, true, 0.3, 500, true},     // made whole: Int(500.75)
    };
    for (const auto& [seconds, definitions, before, after, won] : cases) {
        SCOPED_TRACE(seconds);
        SharedState state = listOf({"ab", "cd"}, 2, definitions);
        state.Score = before;
        WordMazeState m;
        m.Seconds = seconds;
        auto rng = ScriptedRng().pick(100, 5000);
        EXPECT_EQ(finishMaze(state, m, rng), won);
        EXPECT_DOUBLE_EQ(state.Score, after);
    }
}
