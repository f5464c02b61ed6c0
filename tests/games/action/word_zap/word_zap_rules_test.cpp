// Word Zap's rules: the deal, hits and misses with their points, the stars' arcs and the end
// they bring, and the clock.
#include <gtest/gtest.h>

#include "games/action/word_zap/word_zap_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::zap;

namespace {
SharedState List(int words) {
    std::vector<std::string> list;
    for (int i = 1; i <= words; ++i) list.push_back("word" + std::to_string(i));
    return test::ListOf(list);
}
}  // namespace

TEST(WordZapDeal, UnusedWordsIntoUnusedSlots) {
    SharedState s = List(5);
    auto rng = ScriptedRng().pick(3, 5).pick(8, 8);   // word 3 in slot 8
    rng.pick(3, 5).pick(1, 5).pick(8, 8).pick(2, 8);  // word 3 again, word 1; slot 8 again, slot 2
    Gallery g;
    ASSERT_TRUE(deal(s, g, 2, rng).ready);
    int shown = 0;
    for (const Target& t : g.targets) shown += t.visible;
    EXPECT_EQ(
        std::tuple(g.count, g.targets[7].word, g.targets[1].word, shown, definitionText(s, g)),
        std::tuple(2, "word3", "word1", 2, "meaning of word3"));

    ScriptedRng one(0.4);
    g.definition = 2;  // a fresh deal asks for its first word's definition again
    ASSERT_TRUE(deal(s, g, 1, one).ready);
    shown = 0;
    for (const Target& t : g.targets) shown += t.visible;
    EXPECT_EQ(std::tuple(g.definition, shown), std::tuple(1, 1)) << "level 1 deals one target";

    SharedState few = List(2);
    ScriptedRng loop(0.1);
    const DealResult refused = deal(few, g, 3, loop);
    EXPECT_FALSE(refused.ready);
    EXPECT_EQ(refused.message,
              "This list does not have enough different words for this level! Choose another "
              "list or a lower level.");
}

TEST(WordZapClicks, PointsForHitsMissesAndSlowHands) {
    SharedState s = List(5);
    auto rng = ScriptedRng().pick(1, 5).pick(1, 8).pick(2, 5).pick(2, 8).pick(3, 5).pick(3, 8);
    Gallery g;
    ASSERT_TRUE(deal(s, g, 3, rng).ready);
    rng.setFallback(0.5);
    g.reaction = 120;
    EXPECT_EQ(clickTarget(s, g, 1, 3, 0, 0, rng), Click::Wrong);
    EXPECT_EQ(std::tuple(g.targets[1].black, g.score), std::tuple(true, -500.0));
    EXPECT_EQ(clickTarget(s, g, 0, 3, 50, 60, rng), Click::Hit);
    // The next definition clears the black.
    EXPECT_EQ(std::tuple(g.score, g.targets[1].black, g.reaction, definitionText(s, g)),
              std::tuple(-500 + 1000 - 120 + 300.0, false, 0, "meaning of word2"));
    EXPECT_EQ(clickTarget(s, g, 0, 3, 0, 0, rng), Click::Ignored) << "a target shot is gone";
    g.reaction = 1500;  // a slow hit costs
    EXPECT_EQ(clickTarget(s, g, 1, 3, 0, 0, rng), Click::Hit);
    EXPECT_DOUBLE_EQ(g.score, 680 - 200);
    clickBehind(g);
    EXPECT_DOUBLE_EQ(g.score, 380);
    EXPECT_EQ(clickTarget(s, g, 2, 3, 0, 0, rng), Click::Dealt);
}

TEST(WordZapStars, BurstArcAndAge) {
    Gallery g;
    auto rng = ScriptedRng().then(0.0).then(0.999);  // first star: dy 6, dx -10
    rng.then(0.95);                                  // second: dy Int(0.95 x 10 + 1) + 5 = 15
    rng.setFallback(0.5);                            // the rest: dy 11, dx -1
    burst(g, 100, 200, rng);
    EXPECT_EQ(std::tuple(g.group, g.stars[0].dy, g.stars[0].dx, g.stars[1].dy, g.stars[1].dx,
                         g.stars[2].dy, g.stars[10].alive),
              std::tuple(2, 6, -10, 15, -1, 11, false));
    EXPECT_FALSE(starTick(g));
    // Each tick the climb slows: the stars arc and fall.
    EXPECT_EQ(std::tuple(g.stars[0].x, g.stars[0].y, g.stars[0].dy), std::tuple(90, 194, 5));
    for (int n = 0; n < 199; ++n) starTick(g);
    EXPECT_TRUE(g.stars[0].alive);
    starTick(g);
    EXPECT_FALSE(g.stars[0].alive) << "past 200 ticks";
    g.group = 16;
    burst(g, 0, 0, rng);
    EXPECT_EQ(std::tuple(g.group, g.stars[159].alive), std::tuple(1, true));
}

TEST(WordZapClock, TimeRunsOutAndTheStarsBringTheEnd) {
    Gallery g;
    int ends = 0;
    for (int n = 0; n < 70; ++n) ends += timeTick(g);
    EXPECT_EQ(std::tuple(ends, g.timeLeft, g.ending), std::tuple(1, 0, true));
    ScriptedRng rng(0.5);
    burst(g, 10, 10, rng);
    int ticks = 0;
    while (!starTick(g) && ticks < 300) ++ticks;
    EXPECT_EQ(ticks, 50) << "the end comes when the last bursts are over 50 ticks old";
    Gallery empty;
    empty.ending = true;
    EXPECT_TRUE(starTick(empty)) << "with no star to wait for, the end comes at once";
}

TEST(WordZapTexts, Captions) {
    EXPECT_EQ(std::tuple(scoreCaption(2300), timeCaption(7)),
              std::tuple("Score: 2300", "Time:  7"));
    EXPECT_EQ(badScoreText(-600),
              "Oops! You scored -600! Try to be more careful what you shoot next time! Would you "
              "like to try again?");
}
