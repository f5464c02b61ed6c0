#include "games/puzzles/word_search/word_search_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/rng.h"
#include "core/shared_state.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::word_search;

namespace {

std::string row(const WordSearchState& ws, int y) {
    std::string s;
    for (int x = 1; x <= ws.GridSize; ++x) s += ws.LetterGrid[x][y];
    return s;
}

// A hand-made round: the words across on rows 1, 2..., the rest of the 5 by 5 grid "x".
WordSearchState handMade(SharedState& state, const std::vector<std::string>& words) {
    WordSearchState ws;
    ws.GridSize = 5;
    for (int y = 1; y <= 5; ++y)
        for (int x = 1; x <= 5; ++x) ws.LetterGrid[x][y] = 'X';
    for (std::size_t i = 0; i < words.size(); ++i) {
        for (std::size_t k = 0; k < words[i].size(); ++k) ws.LetterGrid[k + 1][i + 1] = words[i][k];
        ws.WordList.push_back(words[i]);
        ws.AnswerList.push_back("meaning of " + words[i]);
    }
    ws.clueIsDefinition = true;
    ws.WordsLeft = static_cast<int>(words.size());
    state.PuzzleWordCount = static_cast<short>(words.size());
    state.WordIndex = 1;
    showWord(state, ws);
    return ws;
}

}  // namespace

TEST(WordSearchBuild, PlacesEachWordThenFillsInCapitals) {
    SharedState state = test::ListOf({"cat"}, 5);
    state.Score = 1234;  // carried in: a round never zeroes it
    // Word 1, across, row 3, start column 2; then the fill: every free cell "A".
    auto rng = ScriptedRng(0.0).pick(1, 1).pick(1, 2).pick(3, 5).pick(2, 2);
    WordSearchState ws;
    ASSERT_TRUE(startRound(state, ws, rng).ok);
    EXPECT_EQ(std::tuple(row(ws, 3), row(ws, 1), ws.GridSize, ws.NoDiagonals),
              std::tuple("ACATA", "AAAAA", 5, true));
    EXPECT_EQ(std::tuple(state.Score, state.PuzzleWordCount, state.TheWord),
              std::tuple(1234, 1, "CAT"));
    EXPECT_EQ(ws.cardText, "cat");         // word clue
    EXPECT_EQ(rng.randomizeCount, 2 + 5);  // the attempt, the word, each row of the fill
    EXPECT_EQ(std::tuple(caption(ws, 2 * 20 + 1), caption(ws, 399)), std::tuple("C", ""));
    // Down: column 4, from row 2.
    auto down = ScriptedRng(0.0).pick(1, 1).pick(2, 2).pick(4, 5).pick(2, 2);
    ASSERT_TRUE(startRound(state, ws, down).ok);
    std::string column;
    for (int y = 1; y <= 5; ++y) column += ws.LetterGrid[4][y];
    EXPECT_EQ(column, "ACATA");
}

TEST(WordSearchBuild, WordNeedsAGridOneLongerThanItselfAndTheGridGrowsByTwo) {
    const char* unable = "Unable to create this puzzle. Try using less words.";
    const char* tooLong =
        "Unable to create this puzzle: some words on this list are too long for it. Please try "
        "another word list.";
    // Difficulty, the word's length, made, the grid's last size, the message. Four letters fit
    // a grid of 5 only at start 1; five, as long as the grid, grow it by 2 at once; 19 grows to
    // 21, past the board; 20 is retried at 20 until the bound.
    const std::tuple<int, int, bool, int, const char*> cases[] = {
        {5, 4, true, 5, ""},         {5, 5, true, 7, ""},          {6, 6, true, 8, ""},
        {19, 19, false, 21, unable}, {20, 20, false, 20, tooLong}, {18, 20, false, 20, tooLong}};
    for (const auto& [difficulty, length, ok, size, message] : cases) {
        SCOPED_TRACE(length);
        SharedState state = test::ListOf({std::string(length, 'q')}, difficulty);
        SystemRng rng;
        WordSearchState ws;
        const BuildResult r = startRound(state, ws, rng);
        EXPECT_EQ(std::tuple(r.ok, ws.GridSize, r.message), std::tuple(ok, size, message));
        EXPECT_TRUE(r.ok || r.title == "Error!") << r.title;
        // The bound on a list that can never be laid out.
        EXPECT_TRUE(message != tooLong || ws.attempts == 60) << ws.attempts;
    }
    // Each of the 60 attempts tries all three directions before it gives the word up: the word,
    // then each direction, a generator stuck at 0 redrawing a taken one 250 times before it
    // walks on (no start fits, so none is drawn): 1 + 1 + 250 + 250 draws.
    SharedState twenty = test::ListOf({std::string(20, 'q')}, 20);
    ScriptedRng counted(0.0);
    WordSearchState stuck;
    EXPECT_FALSE(startRound(twenty, stuck, counted).ok);
    EXPECT_EQ(counted.draws, 60 * 502);

    // A word one shorter than the grid never reaches the last column or row.
    SharedState state = test::ListOf({"abcd"}, 5);
    // Across, row 2; the start can only be 1.
    auto rng = ScriptedRng(0.0).pick(1, 1).pick(1, 2).pick(2, 5);
    WordSearchState ws;
    ASSERT_TRUE(startRound(state, ws, rng).ok);
    EXPECT_EQ(row(ws, 2), "ABCDA");
}

TEST(WordSearchMarking, NeighbourTestsKeepTheirQuirks) {
    // A cell, the cell marked before it, and whether they are neighbours.
    const std::tuple<int, int, bool> cases[] = {
        {18, 19, true},  {0, 1, true},   {19, 20, false},  // left onto 19 is refused
        {38, 39, false}, {40, 41, true}, {20, 19, true},   // row end to next row start
        {1, 21, true},   {41, 21, true}, {0, 21, true},   {2, 21, true},
        {42, 21, true},  {40, 21, true}, {5, 1, false},   {21, 21, false},
    };
    for (auto [c, p, ok] : cases) EXPECT_EQ(isNeighbour(c, p), ok) << c << " after " << p;
}

TEST(WordSearchMarking, LettersInOrderToAFoundWordAndItsScore) {
    SharedState state = test::ListOf({}, 5);
    state.Score = 100;
    WordSearchState ws = handMade(state, {"CAT", "DOG"});
    ws.Seconds = 7;
    auto rng = ScriptedRng().pick(4, 30);

    EXPECT_EQ(mouseDown(state, ws, 1, rng), TryResult::EndDrag);  // "A" is not the first letter
    EXPECT_FALSE(ws.Dragging);
    EXPECT_EQ(tryCell(state, ws, 0, rng), TryResult::Accepted);
    EXPECT_EQ(tryCell(state, ws, 2, rng), TryResult::Refused);   // wrong letter: nothing changes
    EXPECT_EQ(tryCell(state, ws, 25, rng), TryResult::Refused);  // an "X"
    EXPECT_EQ(std::tuple(ws.NextLetter, ws.clearEnabled, ws.colour[0]),
              std::tuple(2, true, CellColour::Pink));

    EXPECT_EQ(tryCell(state, ws, 1, rng), TryResult::Accepted);
    EXPECT_EQ(tryCell(state, ws, 2, rng), TryResult::Found);
    // (4 x 2 words x 3 letters - 7 seconds) x 10
    EXPECT_EQ(state.Score, 100 + (4 * 2 * 3 - 7) * 10);
    EXPECT_EQ(std::tuple(ws.WordList, state.TheWord, ws.cardText, ws.flashing, ws.clearEnabled),
              std::tuple(std::vector<std::string>{"DOG"}, "DOG", "meaning of DOG", true, false));

    // Cells marked during the flash turn blue with the rest.
    EXPECT_EQ(tryCell(state, ws, 20, rng), TryResult::Accepted);
    for (int t = 1; t <= 10; ++t) EXPECT_FALSE(flashTick(ws));
    EXPECT_EQ(ws.colour[0], CellColour::Pink);  // ten swaps: back where it began
    EXPECT_FALSE(flashTick(ws) || ws.flashing);
    for (int cell : {0, 1, 2, 20}) EXPECT_EQ(ws.colour[cell], CellColour::Blue);
    EXPECT_EQ(ws.colour[3], CellColour::White);

    // The last word gives no points; the game ends when its flash does.
    EXPECT_EQ(tryCell(state, ws, 21, rng), TryResult::Accepted);
    EXPECT_EQ(tryCell(state, ws, 22, rng), TryResult::LastFound);
    EXPECT_EQ(std::tuple(state.Score, ws.PuzzleDone), std::tuple(100 + (4 * 2 * 3 - 7) * 10, true));
    for (int t = 1; t <= 10; ++t) EXPECT_FALSE(flashTick(ws));
    EXPECT_TRUE(flashTick(ws));
}

TEST(WordSearchMarking, ADragTakesTheCellsTheMouseMovesWellInto) {
    // Cells 30 by 20; the mouse is placed from the pressed cell's corner.
    SharedState state = test::ListOf({}, 5);
    WordSearchState ws = handMade(state, {"CAT", "DOG"});
    ScriptedRng rng;
    EXPECT_EQ(mouseMove(state, ws, 90, 10, 30, 20, rng), TryResult::Refused);  // no drag
    ws.LetterGrid[2][2] = 'A';  // C, A down the diagonal
    mouseDown(state, ws, 0, rng);
    EXPECT_EQ(mouseMove(state, ws, 45, 30, 30, 20, rng), TryResult::Accepted);
    EXPECT_EQ(ws.LastCell, 21);
    // On the last row a drag goes no lower, but still across.
    ws.LetterGrid[1][20] = 'C';
    ws.LetterGrid[2][20] = 'A';
    clearMarking(ws);
    mouseDown(state, ws, 380, rng);
    EXPECT_EQ(mouseMove(state, ws, 10, 45, 30, 20, rng), TryResult::Refused);
    EXPECT_EQ(mouseMove(state, ws, 75, 10, 30, 20, rng), TryResult::Accepted);
    // Across from DOG's D.
    ws = handMade(state, {"CAT", "DOG"});
    scrollTo(state, ws, 2);
    mouseDown(state, ws, 20, rng);
    const std::pair<double, TryResult> moves[] = {{45, TryResult::Refused},
                                                  {75, TryResult::Accepted},
                                                  {81, TryResult::Refused},
                                                  {95, TryResult::Found}};
    for (auto [x, result] : moves) EXPECT_EQ(mouseMove(state, ws, x, 10, 30, 20, rng), result) << x;
}

TEST(WordSearchMarking, ClearScrollHintAndTheLastLine) {
    SharedState state = test::ListOf({}, 5);
    WordSearchState ws = handMade(state, {"CAT", "DOG", "A"});
    ScriptedRng rng(0.0);
    tryCell(state, ws, 0, rng);
    clearMarking(ws);
    EXPECT_EQ(std::tuple(ws.colour[0], ws.NextLetter, ws.Started),
              std::tuple(CellColour::White, 1, false));

    scrollTo(state, ws, 3);
    EXPECT_EQ(state.TheWord, "A");
    // A one-letter word is found by its first cell; the last line gone, WordIndex steps back.
    EXPECT_EQ(tryCell(state, ws, 40, rng), TryResult::Found);
    EXPECT_EQ(std::tuple(state.WordIndex, state.TheWord, state.Score),
              std::tuple(2, "DOG", (1 * 3 * 1 - 0) * 10));

    // While the flash runs, scrolling changes only WordIndex.
    scrollTo(state, ws, 1);
    EXPECT_EQ(std::tuple(state.WordIndex, state.TheWord), std::tuple(1, "DOG"));
}

TEST(WordSearchTexts, DirectionsHintAndLoss) {
    EXPECT_EQ(directionsText(false, true),
              "Directions: Look in the puzzle for the word shown below. Words can be hidden "
              "down or across.When you find the word, highlight it by clicking on each letter "
              "starting with the first.");
    EXPECT_EQ(directionsText(true, false),
              "Directions: Look in the puzzle for the word matching the meaning shown below. "
              "Words can be hidden down, across, or diagnally.When you find the word, highlight "
              "it by clicking on each letter starting with the first.");
    SharedState state;
    state.TheWord = "CAT";
    EXPECT_EQ(takeHint(state), "CAT");
    EXPECT_EQ(state.Score, -5000);
    EXPECT_EQ(loseText(-4880),
              "Oops! Unfortunately, you got a score of -4880 on that game! You may want to "
              "practice a bit...");
    auto rng = ScriptedRng().pick(1, 5).pick(5, 5);
    EXPECT_EQ(fireworkCount(rng), 4);
    EXPECT_EQ(fireworkCount(rng), 8);
}
