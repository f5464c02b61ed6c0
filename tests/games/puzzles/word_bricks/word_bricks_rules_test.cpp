#include "games/puzzles/word_bricks/word_bricks_rules.h"

#include <gtest/gtest.h>

#include "core/rng.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::word_bricks;
using wm::test::ListOf;

namespace {
using Texts = std::vector<std::string>;

// A game of the given words, their bricks on the ground in the order given.
Game table(int level, const Texts& words, const Texts& bricks) {
    Game g;
    g.level = level;
    for (const auto& w : words) g.lines.push_back({0, w, "", {}, false});
    for (const auto& b : bricks) g.bricks.push_back({b, -1});
    return g;
}

Texts onLine(const Game& g, int line) {
    Texts t;
    for (int b : g.lines[line].bricks) t.push_back(g.bricks[b].text);
    return t;
}
}  // namespace

TEST(WordBricksSplit, CutsIntoTwosAndThrees) {
    // The word, the size of each cut drawn, the bricks.
    const std::tuple<std::string, std::vector<int>, Texts> cases[] = {
        {"cat", {}, {"cat"}},
        {"moon", {}, {"mo", "on"}},  // never a three and a lonely one
        {"apple", {3}, {"app", "le"}},
        {"apple", {2}, {"ap", "ple"}},
        {"elephants", {2, 3}, {"el", "eph", "an", "ts"}},
        {"ice cream", {3, 3}, {"ice", " cr", "eam"}},
    };
    for (const auto& [word, sizes, bricks] : cases) {
        ScriptedRng rng;
        for (int size : sizes) rng.pick(size - 1, 2);
        EXPECT_EQ(split(word, rng), bricks) << word;
        EXPECT_EQ(rng.draws, int(sizes.size())) << word;
    }
}

TEST(WordBricksDeal, WordsThenCutsThenTheHeap) {
    SharedState s = ListOf({"tiger", "hippopotamuses", "  ", "zebra", "crocodilesaurus", "ox"});
    s.Meanings[4] = "  ";  // zebra has no meaning: its length stands in
    ScriptedRng rng;
    // tiger, one of 15 letters (too long), tiger again, a blank, zebra; tiger cut "tig" "er",
    // zebra "ze" "bra"; the heap [tig er ze bra]: 4 swaps with 1, 3 with itself, 2 with 1.
    rng.pick(1, 6).pick(5, 6).pick(1, 6).pick(3, 6).pick(4, 6).pick(2, 2).pick(1, 2);
    rng.pick(1, 4).pick(3, 3).pick(1, 2);
    const Game g = deal(s, 2, rng);
    EXPECT_EQ(std::pair(rng.draws, g.level), std::pair(10, 2));
    ASSERT_EQ(g.lines.size(), 2u);
    EXPECT_EQ(std::tuple(g.lines[0].clue, g.lines[1].word, g.lines[1].clue),
              std::tuple("meaning of tiger", "zebra", "5 letters"));
    Texts heap;
    for (const Brick& b : g.bricks) heap.push_back(b.line == -1 ? b.text : "not on the ground");
    EXPECT_EQ(heap, (Texts{"er", "bra", "ze", "tig"}));

    // A 14-letter word is the longest a line takes.
    auto one = ScriptedRng().pick(2, 6);
    EXPECT_EQ(deal(s, 1, one).lines.at(0).word, "hippopotamuses");

    const SharedState bare = ListOf({"a", "bee"}, 1, true);
    EXPECT_EQ(std::tuple(clue(bare, 1), clue(bare, 2)), std::tuple("1 letter", "3 letters"));
}

TEST(WordBricksDeal, UnusableListsEndInsteadOfSpinning) {
    ScriptedRng rng(0.0);  // always the first entry
    EXPECT_FALSE(deal(ListOf({"ant", "bee"}), 2, rng).ready());
    EXPECT_EQ(rng.draws, kMaxDraws);
    // Every entry tried and too few of them usable: no need to wait for the bound.
    auto all = ScriptedRng().pick(1, 3).pick(2, 3).pick(3, 3);
    EXPECT_FALSE(deal(ListOf({"ant", "extraordinarily", "bee"}), 3, all).ready());
    EXPECT_EQ(all.draws, 3);
    EXPECT_FALSE(deal(ListOf({}), 2, all).ready());
    EXPECT_FALSE(deal(SharedState{}, 2, all).ready());  // nothing loaded at all
}

// The screen's road covers a refused brick, a wrong line shaken off and the last word's bonus;
// here what it does not reach.
TEST(WordBricksPlay, LinesFillCheckAndLock) {
    Game g = table(2, {"Tiger", "ox"}, {"ger", "TI", "o", "x", "ti"});
    EXPECT_EQ(drop(g, 0, 1).what, Drop::Refused);  // three letters, room for two
    EXPECT_EQ(drop(g, 2, 1).what, Drop::Placed);
    EXPECT_EQ(drop(g, 2, -1).what, Drop::Moved);  // back to the ground
    EXPECT_TRUE(g.lines[1].bricks.empty());
    // Another word's brick spells it too, in any case.
    EXPECT_EQ(drop(g, 0, 0).what, Drop::Placed);
    EXPECT_EQ(drop(g, 1, 0, 0).what, Drop::Built);
    EXPECT_EQ(std::tuple(g.score, onLine(g, 0)), std::tuple(50, (Texts{"TI", "ger"})));
    // A built line keeps its bricks and takes no more.
    EXPECT_EQ(drop(g, 1, -1).what, Drop::Refused);
    EXPECT_EQ(drop(g, 4, 0).what, Drop::Refused);
    // A line past the last is the heap.
    EXPECT_EQ(drop(g, 3, 7).what, Drop::Moved);
    EXPECT_EQ(g.bricks[3].line, -1);
    // A full wrong line: every brick off, ten points gone.
    drop(g, 3, 1);
    const DropResult wrong = drop(g, 2, 1);
    EXPECT_EQ(std::tuple(wrong.what, wrong.shaken, g.score, g.bricks[3].line),
              std::tuple(Drop::Shaken, std::vector<int>{3, 2}, 40, -1));
    g.seconds = 32767;
    tick(g);  // the clock's count stops at the largest the table holds
    EXPECT_EQ(g.seconds, 32767);
    g.seconds = 70;
    tick(g);  // a second a tick while the wall goes up
    drop(g, 2, 1);
    EXPECT_EQ(drop(g, 3, 1).what, Drop::Won);
    EXPECT_EQ(g.score, 40 + 20 + (80 - 71) * 2);
    tick(g);
    EXPECT_EQ(g.seconds, 71);  // the clock stops
    EXPECT_EQ(drop(g, 4, -1).what, Drop::Refused);
}

TEST(WordBricksPlay, BricksMoveAlongTheirLineAndTheBonusAndClock) {
    Game g = table(1, {"abcdefgh"}, {"ab", "cd", "ef", "gh"});
    for (int b : {0, 1, 2}) drop(g, b, 0);
    EXPECT_EQ(drop(g, 0, 0, 2).what, Drop::Placed);  // in front of "ef"
    EXPECT_EQ(onLine(g, 0), (Texts{"cd", "ab", "ef"}));
    drop(g, 0, 0, 0);
    EXPECT_EQ(drop(g, 3, 0, 9).what, Drop::Won);  // past the end: at the end
    // The bonus: max(0, 40 x level - seconds) x 2
    EXPECT_EQ(std::tuple(finishBonus(0, 10), finishBonus(79, 2), finishBonus(81, 2), clockText(69)),
              std::tuple(800, 2, 0, "1:09"));
    EXPECT_EQ(std::tuple(clockText(600), clockText(0)), std::tuple("10:00", "0:00"));
}
