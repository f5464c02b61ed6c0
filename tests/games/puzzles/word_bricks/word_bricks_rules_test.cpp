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
    struct Case {
        std::string word;
        std::vector<int> sizes;  // each drawn cut
        Texts bricks;
    } cases[] = {
        {"", {}, {}},
        {"a", {}, {"a"}},
        {"cat", {}, {"cat"}},
        {"moon", {}, {"mo", "on"}},  // never a three and a lonely one
        {"apple", {3}, {"app", "le"}},
        {"apple", {2}, {"ap", "ple"}},
        {"elephants", {2, 3}, {"el", "eph", "an", "ts"}},
        {"ice cream", {3, 3}, {"ice", " cr", "eam"}},
    };
    for (const Case& c : cases) {
        ScriptedRng rng;
        for (int size : c.sizes) rng.pick(size - 1, 2);
        EXPECT_EQ(split(c.word, rng), c.bricks) << c.word;
        EXPECT_EQ(rng.draws, int(c.sizes.size())) << c.word;
    }
}

TEST(WordBricksDeal, WordsThenCutsThenTheHeap) {
    SharedState s = ListOf({"tiger", "hippopotamuses", "  ", "zebra", "crocodilesaurus", "ox"});
    s.Meanings[4] = "  ";  // zebra has no meaning: its length stands in
    ScriptedRng rng;
    rng.pick(1, 6);                  // tiger
    rng.pick(5, 6);                  // 15 letters: too long for a line
    rng.pick(1, 6);                  // tiger again
    rng.pick(3, 6);                  // blank
    rng.pick(4, 6);                  // zebra
    rng.pick(2, 2);                  // tiger: "tig" "er"
    rng.pick(1, 2);                  // zebra: "ze" "bra"
    rng.pick(1, 4).pick(3, 3).pick(1, 2);  // the heap
    const Game g = deal(s, 2, rng);
    ASSERT_TRUE(g.ready());
    EXPECT_EQ(rng.draws, 10);
    ASSERT_EQ(g.lines.size(), 2u);
    EXPECT_EQ(g.lines[0].entry, 1);
    EXPECT_EQ(g.lines[0].clue, "meaning of tiger");
    EXPECT_EQ(g.lines[1].word, "zebra");
    EXPECT_EQ(g.lines[1].clue, "5 letters");
    // [tig er ze bra]: 4 swaps with 1, 3 with itself, 2 with 1.
    Texts heap;
    for (const Brick& b : g.bricks) {
        heap.push_back(b.text);
        EXPECT_EQ(b.line, -1);
    }
    EXPECT_EQ(heap, (Texts{"er", "bra", "ze", "tig"}));
    EXPECT_EQ(g.score, 0);
    EXPECT_FALSE(g.won());

    // A 14-letter word is the longest a line takes.
    ScriptedRng one;
    one.pick(2, 6);
    EXPECT_EQ(deal(s, 1, one).lines.at(0).word, "hippopotamuses");

    const SharedState bare = ListOf({"a", "bee"}, 1, true);
    EXPECT_EQ(clue(bare, 1), "1 letter");
    EXPECT_EQ(clue(bare, 2), "3 letters");
}

TEST(WordBricksDeal, UnusableListsEndInsteadOfSpinning) {
    ScriptedRng rng;
    rng.setFallback(0.0);  // always the first entry
    EXPECT_FALSE(deal(ListOf({"ant", "bee"}), 2, rng).ready());
    EXPECT_EQ(rng.draws, kMaxDraws);
    EXPECT_EQ(kMaxDraws, 20000);
    // Every entry tried and too few of them usable: no need to wait for the bound.
    ScriptedRng all;
    all.pick(1, 3).pick(2, 3).pick(3, 3);
    EXPECT_FALSE(deal(ListOf({"ant", "extraordinarily", "bee"}), 3, all).ready());
    EXPECT_EQ(all.draws, 3);
    EXPECT_FALSE(deal(ListOf({}), 2, all).ready());
}

TEST(WordBricksPlay, LinesFillCheckAndLock) {
    Game g = table(2, {"Tiger", "ox"}, {"ger", "TI", "o", "x", "ti"});
    EXPECT_EQ(drop(g, 0, 0).what, Drop::Placed);  // "ger"
    // Room for two more letters only.
    EXPECT_EQ(drop(g, 0, 1).what, Drop::Refused);
    EXPECT_EQ(g.bricks[0].line, 0);
    EXPECT_EQ(drop(g, 2, 0, 0).what, Drop::Placed);
    EXPECT_EQ(onLine(g, 0), (Texts{"o", "ger"}));
    EXPECT_EQ(filled(g, 0), 4);
    // One more letter fills it wrongly: everything is shaken off and ten points go, below zero.
    const DropResult wrong = drop(g, 3, 0);
    EXPECT_EQ(wrong.what, Drop::Shaken);
    EXPECT_EQ(wrong.shaken, (std::vector<int>{2, 0, 3}));
    EXPECT_EQ(g.score, -10);
    EXPECT_TRUE(g.lines[0].bricks.empty());
    for (const Brick& b : g.bricks) EXPECT_EQ(b.line, -1);

    // Another word's brick spells it too, in any case.
    g.seconds = 70;
    EXPECT_EQ(drop(g, 0, 0).what, Drop::Placed);
    EXPECT_EQ(drop(g, 1, 0, 0).what, Drop::Built);
    EXPECT_EQ(g.score, -10 + 50);
    EXPECT_TRUE(g.lines[0].built);
    // A built line keeps its bricks and takes no more.
    EXPECT_EQ(drop(g, 1, -1).what, Drop::Refused);
    EXPECT_EQ(drop(g, 4, 0).what, Drop::Refused);

    // On a line and back to the ground; moved along its line.
    EXPECT_EQ(drop(g, 2, 1).what, Drop::Placed);
    EXPECT_EQ(drop(g, 2, -1).what, Drop::Moved);
    EXPECT_TRUE(g.lines[1].bricks.empty());
    EXPECT_EQ(drop(g, 3, 1).what, Drop::Placed);
    tick(g);
    EXPECT_EQ(g.seconds, 71);
    // The last word: 20 points and (40 x 2 - 71) x 2.
    EXPECT_EQ(drop(g, 2, 1, 0).what, Drop::Won);
    EXPECT_EQ(g.score, -10 + 50 + 20 + 18);
    tick(g);
    EXPECT_EQ(g.seconds, 71);
    EXPECT_EQ(drop(g, 4, -1).what, Drop::Refused);
}

TEST(WordBricksPlay, BricksMoveAlongTheirLine) {
    Game g = table(1, {"abcdefg"}, {"ab", "cd", "efg"});
    drop(g, 2, 0);
    drop(g, 0, 0);
    EXPECT_EQ(onLine(g, 0), (Texts{"efg", "ab"}));
    EXPECT_EQ(drop(g, 0, 0, 0).what, Drop::Placed);  // from the end to the front
    EXPECT_EQ(drop(g, 0, 0, 2).what, Drop::Placed);  // and back behind "efg"
    EXPECT_EQ(onLine(g, 0), (Texts{"efg", "ab"}));
    EXPECT_EQ(drop(g, 0, 0, 0).what, Drop::Placed);
    EXPECT_EQ(drop(g, 1, 0, 1).what, Drop::Won);
}

TEST(WordBricksScore, FormulasAndClock) {
    EXPECT_EQ(builtPoints("ice cream"), 90);
    EXPECT_EQ(shakePoints(), 10);
    struct {
        int seconds, level;
        double bonus;
    } bonuses[] = {{0, 2, 160}, {79, 2, 2}, {80, 2, 0}, {500, 2, 0}, {100, 10, 600}};
    for (auto b : bonuses) EXPECT_EQ(finishBonus(b.seconds, b.level), b.bonus) << b.seconds;
    EXPECT_EQ(clockText(0), "0:00");
    EXPECT_EQ(clockText(69), "1:09");
    EXPECT_EQ(clockText(600), "10:00");
}
