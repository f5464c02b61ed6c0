// The crossword and blind tiles from a new round to the end of the game.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/puzzles/blind_tiles/blind_tiles_rules.h"
#include "games/puzzles/crossword/crossword_rules.h"
#include "word_lists.h"

using namespace wm;

namespace {

// "CAT" down in column 5 (rows 9..11), "HAT" across row 10 from column 4.
ScriptedRng catHatLayout() {
    auto rng = ScriptedRng().pick(1, 2).pick(5, 10).pick(2, 2).pick(1, 2);
    return rng;
}
constexpr int kCatCell = 8 * 25 + 4;  // C at (5, 9)
constexpr int kHatCell = 9 * 25 + 3;  // H at (4, 10)

void typeWord(SharedState& s, crossword::CrosswordState& cw, const std::string& w, Rng& rng,
              crossword::Outcome* last = nullptr) {
    crossword::Outcome o = crossword::Outcome::None;
    for (char c : w) o = crossword::pressKey(s, cw, c, rng);
    if (last) *last = o;
}

}  // namespace

TEST(CrosswordRules, RoundClampsDifficultyForGoodAndKeepsTheFirstScore) {
    SharedState s =
        test::ListOf({"apple", "pear", "plum", "peach", "grape", "lemon", "lime", "melon"}, 10);
    s.Score = 777;
    SystemRng rng;
    crossword::CrosswordState cw;
    ASSERT_TRUE(crossword::newRound(s, cw, true, rng).ok);
    // Difficulty lowered, and it stays lowered; the first round runs on the score it finds.
    EXPECT_EQ(std::tuple(s.Difficulty, s.Score, cw.scoreText, cw.clue),
              std::tuple(8, 777, "Score: 0000", "Click a word in the puzzle to see the clue."));
    EXPECT_TRUE(s.PuzzleWordCount >= 2 && s.PuzzleWordCount <= 8);

    cw.MusicOpen = true;  // the tune playing goes on playing into the next round; the rest is new
    cw.KeyOnButton = true;
    ASSERT_TRUE(crossword::newRound(s, cw, false, rng).ok);
    EXPECT_EQ(std::pair(cw.MusicOpen, cw.KeyOnButton), std::pair(true, false));
    EXPECT_EQ(std::tuple(s.Score, cw.scoreText, s.Difficulty), std::tuple(0, "Score: 0", 8));
}

TEST(CrosswordRules, RoadToAWin) {
    SharedState s = test::ListOf({"cat", "hat"}, 2);
    ScriptedRng rng = catHatLayout();
    crossword::CrosswordState cw;
    ASSERT_TRUE(crossword::newRound(s, cw, false, rng).ok);
    EXPECT_EQ(s.PuzzleWordCount, 2);
    crossword::clickCell(s, cw, kHatCell);
    EXPECT_EQ(cw.clue, "meaning of hat");
    rng.pick(100, 1000);
    crossword::Outcome o;
    typeWord(s, cw, "HAT", rng, &o);
    EXPECT_EQ(std::tuple(o, s.Score, cw.scoreText, s.PuzzleWordCount),
              std::tuple(crossword::Outcome::Solved, (100 + 250) * 3, "Score: 1050", 1));

    crossword::clickCell(s, cw, kCatCell);
    EXPECT_EQ(cw.clue, "meaning of cat");
    rng.pick(1000, 1000);
    typeWord(s, cw, "cat", rng, &o);
    EXPECT_EQ(o, crossword::Outcome::GameEnds);  // at once, while the flash runs
    EXPECT_EQ(std::tuple(cw.board.flashing, cw.GameWon, s.Score),
              std::tuple(true, true, 1050 + 1250 * 3));
    EXPECT_TRUE(cross::endGame(s, cw.GameWon));
}

TEST(CrosswordRules, GiveAnswerCostsAndIsGuardedAgainstKeys) {
    SharedState s = test::ListOf({"cat", "hat"}, 2);
    ScriptedRng rng = catHatLayout();
    crossword::CrosswordState cw;
    ASSERT_TRUE(crossword::newRound(s, cw, false, rng).ok);

    EXPECT_EQ(crossword::giveAnswer(s, cw, rng), crossword::Outcome::None);  // nothing selected
    s.Meanings.resize(2);  // hat's meaning missing from the list: no clue rather than a crash
    crossword::clickCell(s, cw, kHatCell);
    EXPECT_EQ(cw.clue, "");
    crossword::buttonKeyDown(cw);  // a space typed onto the focused button
    EXPECT_EQ(crossword::giveAnswer(s, cw, rng), crossword::Outcome::None);
    EXPECT_EQ(s.PuzzleWordCount, 2);
    crossword::buttonMouseDown(cw);
    rng.pick(1, 500);
    EXPECT_EQ(crossword::giveAnswer(s, cw, rng), crossword::Outcome::Solved);
    EXPECT_EQ(s.Score, -501);

    crossword::clickCell(s, cw, kCatCell);
    rng.pick(500, 500);
    EXPECT_EQ(crossword::giveAnswer(s, cw, rng), crossword::Outcome::GameEnds);
    EXPECT_EQ(std::tuple(s.Score, cw.GameWon), std::tuple(-1501, true));
    EXPECT_FALSE(cross::endGame(s, cw.GameWon));  // a negative score loses
}

TEST(BlindTilesRules, RoadToAWinWithTheSameWordTwice) {
    SharedState s = test::ListOf({"cat", "cat", "tact"}, 3);
    s.Score = 50;  // the last game's
    SystemRng rng;
    blind_tiles::BlindTilesState bt;
    ASSERT_TRUE(blind_tiles::newRound(s, bt, rng).ok);
    EXPECT_EQ(bt.scoreText, "Score: 0");
    ASSERT_EQ(std::tuple(s.PuzzleWordCount, bt.entries.size(), bt.PlaceWord.size()),
              std::tuple(3, 3u, 4u));
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(bt.entries[i - 1], s.Words[bt.PlaceWord[i]]);
    EXPECT_EQ(blind_tiles::giveAnswer(s, bt), blind_tiles::Outcome::None);  // nothing selected

    // Tact's answer is given first, a thousand off; then each cat is typed. A place is chosen by
    // clicking its first tile (twice when the crossing word comes first).
    int solved = 0;
    for (int pass = 0; pass < 2; ++pass) {
        for (int cell = 0; cell < 15 * 14; ++cell) {
            for (int dir : {cross::kAcross, cross::kDown}) {
                const int index = bt.board.layout.wordAt(cell % 15 + 1, cell / 15 + 1, dir);
                if (index == 0 || (index == 3) != (pass == 0)) continue;
                for (int k = 0; k < 2 && (bt.board.SelWord != index || !bt.board.selected()); ++k)
                    blind_tiles::clickCell(bt, cell);
                if (bt.board.SelWord != index || !bt.board.selected()) continue;  // solved already
                blind_tiles::Outcome o = blind_tiles::Outcome::None;
                if (pass == 0) o = blind_tiles::giveAnswer(s, bt);
                if (pass == 1)
                    for (char c : s.Words[index]) o = blind_tiles::pressKey(s, bt, c);
                EXPECT_NE(o, blind_tiles::Outcome::Typed);
                ++solved;
                // Only the last word ends the game, and its flash stops at once.
                EXPECT_EQ(o == blind_tiles::Outcome::GameEnds, solved == 3);
                EXPECT_EQ(bt.board.flashing, solved == 2);
                for (int t = 0; t < 11; ++t) cross::flashTick(bt.board);
            }
        }
    }
    // Solving one "cat" marks both entries.
    for (std::size_t i = 0; i < bt.entries.size(); ++i) EXPECT_TRUE(bt.entrySolved[i]);
    EXPECT_EQ(std::tuple(solved, bt.GameWon, s.Score, bt.scoreText),
              std::tuple(3, true, 100 * (3 + 3) - 1000, "Score: -400"));
}

TEST(BlindTilesRules, FewerWordsThanWantedAndSevenListedAtMost) {
    // Four wanted of three: after a hundred failed tries the puzzle may settle for three. Eight
    // placed: the panel lists the first seven. (A layout that failed shows nothing here.)
    const std::vector<std::string> nine = {"tea", "eat", "ate", "tee", "tat",
                                           "eta", "sat", "set", "tes"};
    for (const auto& [words, level] :
         {std::pair{std::vector<std::string>{"cat", "cat", "tact"}, 4}, std::pair{nine, 8}}) {
        SharedState s = test::ListOf(words, level);
        SystemRng rng;
        blind_tiles::BlindTilesState bt;
        if (!blind_tiles::newRound(s, bt, rng).ok) continue;
        EXPECT_EQ(bt.PlaceWord.size(), s.PuzzleWordCount + 1u);
        EXPECT_EQ(bt.entries.size(), std::min<std::size_t>(7, s.PuzzleWordCount));
    }
}

TEST(BlindTilesRules, ListThatCannotCrossGivesTheCrosswordsMessage) {
    SharedState s = test::ListOf({"abc", "def", "ghi"}, 3);
    SystemRng rng;
    blind_tiles::BlindTilesState bt;
    const blind_tiles::RoundResult r = blind_tiles::newRound(s, bt, rng);
    EXPECT_EQ(std::tuple(r.ok, r.message, bt.Restarts),
              std::tuple(false, "Crossword creation failed. Please try another word list.", 101));
}
