// Word Zap's rules: the deal, hits and misses with their points, the stars' arcs and the end
// they bring, and the clock.
#include <gtest/gtest.h>

#include "games/action/word_zap/word_zap_rules.h"

using namespace wm;
using namespace wm::zap;

namespace {
SharedState List(int words) {
    SharedState s;
    s.Words = {""};
    s.Meanings = {""};
    for (int i = 1; i <= words; ++i) {
        s.Words.push_back("word" + std::to_string(i));
        s.Meanings.push_back("meaning " + std::to_string(i));
    }
    s.WordCount = static_cast<short>(words);
    return s;
}
}  // namespace

TEST(WordZapDeal, UnusedWordsIntoUnusedSlots) {
    SharedState s = List(5);
    ScriptedRng rng;
    rng.pick(3, 5).pick(8, 8);                        // word 3 in slot 8
    rng.pick(3, 5).pick(1, 5).pick(8, 8).pick(2, 8);  // word 3 again, word 1; slot 8 again, slot 2
    Gallery g;
    ASSERT_TRUE(deal(s, g, 2, rng).ready);
    EXPECT_EQ(g.count, 2);
    EXPECT_EQ(g.targets[7].word, "word3");
    EXPECT_EQ(g.targets[1].word, "word1");
    int shown = 0;
    for (const Target& t : g.targets) shown += t.visible;
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(definitionText(s, g), "meaning 3");

    ScriptedRng one(0.4);
    g.definition = 2;  // a fresh deal asks for its first word's definition again
    ASSERT_TRUE(deal(s, g, 1, one).ready);
    EXPECT_EQ(g.definition, 1);
    shown = 0;
    for (const Target& t : g.targets) shown += t.visible;
    EXPECT_EQ(shown, 1) << "level 1 deals one target";

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
    ScriptedRng rng;
    rng.pick(1, 5).pick(1, 8).pick(2, 5).pick(2, 8).pick(3, 5).pick(3, 8);
    Gallery g;
    ASSERT_TRUE(deal(s, g, 3, rng).ready);
    rng.setFallback(0.5);
    g.reaction = 120;
    EXPECT_EQ(clickTarget(s, g, 1, 3, 0, 0, rng), Click::Wrong);
    EXPECT_TRUE(g.targets[1].black);
    EXPECT_DOUBLE_EQ(g.score, -500);
    EXPECT_EQ(clickTarget(s, g, 0, 3, 50, 60, rng), Click::Hit);
    EXPECT_DOUBLE_EQ(g.score, -500 + 1000 - 120 + 300);
    EXPECT_FALSE(g.targets[1].black) << "the next definition clears the black";
    EXPECT_EQ(g.reaction, 0);
    EXPECT_EQ(definitionText(s, g), "meaning 2");
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
    ScriptedRng rng;
    rng.then(0.0).then(0.999);  // first star: dy 6, dx -10
    rng.then(0.95);             // second: dy Int(0.95 x 10 + 1) + 5 = 15
    rng.setFallback(0.5);       // the rest: dy 11, dx -1
    burst(g, 100, 200, rng);
    EXPECT_EQ(g.group, 2);
    EXPECT_EQ(g.stars[0].dy, 6);
    EXPECT_EQ(g.stars[0].dx, -10);
    EXPECT_EQ(g.stars[1].dy, 15);
    EXPECT_EQ(g.stars[1].dx, -1);
    EXPECT_EQ(g.stars[2].dy, 11);
    EXPECT_FALSE(g.stars[10].alive);
    EXPECT_FALSE(starTick(g));
    EXPECT_EQ(g.stars[0].x, 90);
    EXPECT_EQ(g.stars[0].y, 194);
    EXPECT_EQ(g.stars[0].dy, 5) << "each tick the climb slows: the stars arc and fall";
    for (int n = 0; n < 199; ++n) starTick(g);
    EXPECT_TRUE(g.stars[0].alive);
    starTick(g);
    EXPECT_FALSE(g.stars[0].alive) << "past 200 ticks";
    g.group = 16;
    burst(g, 0, 0, rng);
    EXPECT_EQ(g.group, 1);
    EXPECT_TRUE(g.stars[159].alive);
}

TEST(WordZapClock, TimeRunsOutAndTheStarsBringTheEnd) {
    Gallery g;
    int ends = 0;
    for (int n = 0; n < 70; ++n) ends += timeTick(g);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(g.timeLeft, 0);
    EXPECT_TRUE(g.ending);
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
    EXPECT_EQ(scoreCaption(2300), "Score: 2300");
    EXPECT_EQ(timeCaption(7), "Time:  7");
    EXPECT_EQ(badScoreText(-600),
              "Oops! You scored -600! Try to be more careful what you shoot next time! Would you "
              "like to try again?");
}
