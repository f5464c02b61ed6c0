#include "games/show/concentration/concentration_rules.h"

#include <gtest/gtest.h>

#include "core/rng.h"
#include "list_of.h"

using namespace wm;
using namespace wm::concentration;

namespace {
// Cards laid out as given: {entry, meaning}.
Game table(int level, std::vector<std::pair<int, bool>> layout) {
    Game g;
    g.level = level;
    for (auto [entry, meaning] : layout) g.cards.push_back({entry, meaning});
    return g;
}
}  // namespace

TEST(ConcentrationDeal, DrawsThenShufflesInAFixedOrder) {
    SharedState s = listOf({"apple", "brick", "cloud", "drum", "eagle"});
    s.Meanings[4] = "  MEANING of brick ";  // the same definition as brick's
    ScriptedRng rng;
    // Brick; brick again: draw another; drum, whose definition is brick's: draw another; past the
    // end of the list: eagle, the last word.
    rng.pick(2, 5).pick(2, 5).pick(4, 5).then(1.0);
    // [w2 m2 w5 m5]: 4 swaps with 1, 3 with itself, 2 with 1.
    rng.pick(1, 4).pick(3, 3).pick(1, 2);
    const Game g = deal(s, 2, rng);
    ASSERT_TRUE(g.ready());
    EXPECT_EQ(rng.draws, 7);
    const std::vector<std::pair<int, bool>> want{{2, true}, {5, true}, {5, false}, {2, false}};
    ASSERT_EQ(g.cards.size(), want.size());
    for (std::size_t i = 0; i < want.size(); ++i) {
        const Card& c = g.cards[i];  // face down, not found
        EXPECT_EQ(std::tuple(c.entry, c.meaning, c.up || c.matched),
                  std::tuple(want[i].first, want[i].second, false))
            << i;
    }
    EXPECT_EQ(std::tuple(g.level, g.score, g.seconds), std::tuple(2, 0.0, 0));
}

TEST(ConcentrationDeal, AmbiguousAndShortListsEndInsteadOfSpinning) {
    // The same word twice (with another meaning), a blank definition: neither makes a second
    // pair.
    SharedState s = listOf({"apple", "APPLE ", "cloud"});
    s.Meanings[2] = "a computer maker";
    s.Meanings[3] = "  ";
    ScriptedRng rng;
    rng.pick(1, 3).pick(2, 3).pick(3, 3);
    const Game g = deal(s, 2, rng);
    EXPECT_FALSE(g.ready());
    EXPECT_EQ(rng.draws, 20000);  // the draws stop at the bound
    ScriptedRng none;
    EXPECT_FALSE(deal(listOf({"apple"}), 2, none).ready());
    EXPECT_EQ(none.draws, 0);  // too short a list: not a single draw
    // A count past the end of the list's store draws up to its last place.
    SharedState full;
    const int last = int(full.Words.size()) - 1;
    full.Words[last] = "zebra";
    full.Meanings[last] = "a striped horse";
    full.WordCount = 32767;
    ScriptedRng top(1.0);
    const Game z = deal(full, 1, top);
    ASSERT_TRUE(z.ready());
    EXPECT_EQ(z.cards[0].entry, last);
}

TEST(ConcentrationPlay, ScoresMissesAndTheThirdClick) {
    Game g = table(3, {{1, false}, {1, true}, {2, false}, {2, true}, {3, false}, {3, true}});
    using Step = std::tuple<int, Flip, double, std::vector<int>>;  // card, flip, score, turned down
    const Step steps[] = {
        {0, Flip::First, 0, {}},          {0, Flip::Nothing, 0, {}},  // already up
        {2, Flip::Miss, 0, {}},                                       // -30, but never below zero
        {4, Flip::First, 0, {0, 2}},  // the third click turns the wrong pair at once
        {5, Flip::Match, 300, {}},    // +100 x 3
        {5, Flip::Nothing, 300, {}},  // found already
        {0, Flip::First, 300, {}},        {3, Flip::Miss, 270, {}},  // -10 x 3
        {-1, Flip::Nothing, 270, {0, 3}},  // a click on the table turns them too
        {3, Flip::First, 270, {}},        {0, Flip::Miss, 240, {}},
        {0, Flip::First, 240, {3, 0}},  // a click on one of the pair: back down, then up again
        {1, Flip::Match, 540, {}},
    };
    for (const auto& [card, flip, score, turnedDown] : steps) {
        const ClickResult r = click(g, card);
        EXPECT_EQ(std::tuple(r.flip, g.score, r.turnedDown), std::tuple(flip, score, turnedDown))
            << card << " at " << score;
    }
    EXPECT_EQ(g.pairsFound, 2);
    EXPECT_TRUE(g.cards[0].matched && g.cards[1].matched && g.cards[4].up);
    EXPECT_FALSE(g.cards[2].up || g.cards[3].up);

    // The last pair after 100 seconds: +300 and a bonus of (300 - 100) x 3.
    for (int i = 0; i < 100; ++i) tick(g);
    EXPECT_EQ(clockText(g.seconds), "1:40");
    EXPECT_EQ(click(g, 2).flip, Flip::First);
    EXPECT_EQ(click(g, 3).flip, Flip::Won);
    EXPECT_EQ(std::tuple(g.score, g.won()), std::tuple(540 + 300 + 600, true));
    tick(g);
    EXPECT_EQ(g.seconds, 100) << "the clock stops at the last pair";
    EXPECT_EQ(click(g, 0).flip, Flip::Nothing);
}

TEST(ConcentrationPlay, TurnBackAndBonusBoundaries) {
    Game g = table(2, {{1, false}, {2, true}, {1, true}, {2, false}});
    g.score = 15;
    click(g, 0);
    EXPECT_EQ(click(g, 1).flip, Flip::Miss);
    EXPECT_EQ(g.score, 0) << "15 - 20 stops at zero";
    EXPECT_EQ(turnBack(g), (std::vector<int>{0, 1}));
    EXPECT_TRUE(turnBack(g).empty()) << "the 1.2 s after a third click";
    EXPECT_FALSE(g.cards[0].up || g.cards[1].up);
    EXPECT_EQ(kTurnBackMs, 1200);

    // One pair is a whole game too; an empty table is never a win.
    Game one = table(1, {{1, false}, {1, true}});
    click(one, 0);
    EXPECT_EQ(click(one, 1).flip, Flip::Won);
    EXPECT_FALSE(Game{}.won());

    EXPECT_EQ(std::tuple(matchPoints(7), missPoints(7), finishBonus(299, 4), finishBonus(300, 4)),
              std::tuple(700, 70, 4, 0));
    EXPECT_EQ(std::tuple(finishBonus(1000, 4), finishBonus(0, 10), clockText(0), clockText(59)),
              std::tuple(0, 3000, "0:00", "0:59"));
    EXPECT_EQ(clockText(600), "10:00");
}

TEST(ConcentrationTable, GridFitsTheCardsToTheScreen) {
    // Cards, the room's width and height, the columns and rows.
    const std::tuple<int, double, double, int, int> table[] = {
        {4, 1240, 560, 2, 2},    {6, 1240, 560, 3, 2},
        {12, 1240, 560, 4, 3},   {16, 1240, 560, 4, 4},
        {16, 1860, 800, 6, 3},   {20, 1240, 560, 5, 4},
        {20, 560, 1240, 3, 7},   {1, 100, 100, 1, 1},
        {2, 300, 200, 1, 2},        // a tie: the fewer columns
        {2, 3 + 1.5e-9, 2, 1, 2}};  // as good as a tie
    for (auto [cards, w, h, columns, rows] : table) {
        const Grid gr = grid(cards, w, h);
        EXPECT_EQ(std::tuple(gr.columns, gr.rows), std::tuple(columns, rows))
            << cards << " in " << w << "x" << h;
    }
}
