// Spiderwebs' rules: the crawl's pace and a freed fly's points, the refusals, the draws of a
// round in their order, a wrong fly eaten and the spider hurrying, the spider at its fly, and
// ten definitions to the end.
#include <gtest/gtest.h>

#include <set>

#include "act_rules_kit.h"
#include "core/strings.h"
#include "games/action/spiderwebs/spiderwebs_rules.h"

using namespace wm;
using namespace wm::spiderwebs;
using wm::test::ListOf;
using Begun = test::Begun<Game>;

namespace {

// Runs the game on in frames of `step` ms until `ms` have passed; the events, in order.
std::vector<Event> Advance(Game& g, SharedState& s, Rng& rng, int ms, int step = 16) {
    std::vector<Event> all;
    for (int t = 0; t < ms; t += step) {
        auto e = g.advance(s, std::min(step, ms - t), rng);
        all.insert(all.end(), e.begin(), e.end());
    }
    return all;
}

}  // namespace

TEST(SpiderwebsNumbers, CrawlAndPoints) {
    for (auto [round, ms] : {std::pair{1, 12000}, {2, 11500}, {5, 10000}, {10, 7500}})
        EXPECT_EQ(crawlMs(round), ms) << round;
    for (auto [left, points] :
         {std::pair{12000, 240}, {9999, 198}, {6667, 132}, {100, 2}, {99, 0}, {0, 0}})
        EXPECT_EQ(freedPoints(left), points) << left;
}

TEST(SpiderwebsStart, RefusesListsTheWebCannotUse) {
    ScriptedRng rng;
    Game g;
    SharedState bare = ListOf({"cat", "dog", "owl"}, 3, true);
    EXPECT_EQ(g.start(bare, rng), Start::NoDefinitions);
    // "Cat" and "cat" are one word; the blank entry is none.
    SharedState few = ListOf({"cat", "Cat", "dog", "", "owl"}, 4);
    EXPECT_EQ(g.start(few, rng), Start::TooFewWords);
    EXPECT_EQ(g.differentWords(), 3);
    few.Difficulty = 3;
    EXPECT_EQ(g.start(few, rng), Start::Ok);
    EXPECT_EQ(noDefinitionsText(),
              "Spiderwebs shows a definition for every fly, and the words on this list have none. "
              "Please choose another list.");
    // The level is held to the slider's 3..12 flies.
    SharedState many = ListOf({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m"});
    for (auto [asked, flies] : {std::pair{1, 3}, {3, 3}, {12, 12}, {13, 12}}) {
        many.Difficulty = asked;
        ASSERT_EQ(g.start(many, rng), Start::Ok);
        EXPECT_EQ(int(g.flies().size()), flies) << asked;
    }
}

TEST(SpiderwebsStart, ReseedsThenDrawsTheWordItsSlotAndTheDecoys) {
    SharedState s = ListOf({"ant", "bee", "cat", "dog", "Bee", "elk"}, 4);
    s.Meanings[3] = "";  // "cat" has no meaning: never the definition's word
    auto rng = ScriptedRng()
                   .pick(3, 6)
                   .pick(2, 6)   // the word: "cat" has no meaning, "bee" has
                   .pick(3, 4)   // its fly hangs in the third slot
                   .pick(5, 6)   // slot 1: "Bee" is in the web already
                   .pick(6, 6)   // slot 1: "elk"
                   .pick(2, 6)   // slot 2: "bee" again
                   .pick(1, 6)   // slot 2: "ant"
                   .pick(3, 6);  // slot 4: "cat" may be a decoy
    Game g;
    ASSERT_EQ(g.start(s, rng), Start::Ok);
    EXPECT_EQ(std::tuple(rng.randomizeCount, rng.pending(), s.TheWord, s.TheMeaning),
              std::tuple(1, 0u, "bee", "meaning of bee"));
    std::vector<std::string> words;
    for (const Fly& f : g.flies()) words.push_back(f.word);
    EXPECT_EQ(words, (std::vector<std::string>{"elk", "ant", "bee", "cat"}));
    EXPECT_EQ(std::tuple(g.answer(), g.round(), g.phase()), std::tuple(2, 1, Phase::Ready));

    // A draw that never finds a free word walks on to the next one not in the web.
    SharedState same = ListOf({"ant", "bee", "cat"}, 3);
    ScriptedRng stuck(0.0);  // every draw is entry 1
    ASSERT_EQ(g.start(same, stuck), Start::Ok);
    EXPECT_EQ(std::tuple(g.flies()[0].word, g.flies()[1].word, g.flies()[2].word),
              std::tuple("ant", "bee", "cat"));
}

TEST(SpiderwebsPlay, WrongFlyHurriesTheSpiderThenTheRightOneIsFreed) {
    // "ant" in slot 1; "bee", "cat"
    auto [s, rng, g] = Begun(ListOf({"ant", "bee", "cat", "dog"}, 3),
                             ScriptedRng().pick(1, 4).pick(1, 3).pick(2, 4).pick(3, 4));
    // The spider waits at the hub for a second and a half.
    EXPECT_TRUE(Advance(g, s, rng, 1499, 1499).empty());
    EXPECT_EQ(Advance(g, s, rng, 1, 1), std::vector<Event>{Event::Go});
    Advance(g, s, rng, 2000, 20);
    EXPECT_DOUBLE_EQ(g.progress(), 2000.0 / 12000);
    EXPECT_EQ(g.msLeft(), 10000);
    EXPECT_EQ(g.click(1), Click::Wrong);
    EXPECT_EQ(g.click(1), Click::Ignored);  // eaten already
    for (int bad : {-1, 3, 100000}) EXPECT_EQ(g.click(bad), Click::Ignored);
    EXPECT_EQ(g.msLeft(), 6667);  // half as fast again
    Advance(g, s, rng, 100, 100);
    EXPECT_EQ(g.click(2), Click::Wrong);
    EXPECT_EQ(g.msLeft(), 4925);  // 100 ms half as fast again, then twice as fast
    EXPECT_EQ(g.click(0), Click::Right);
    EXPECT_EQ(std::tuple(g.lastPoints(), g.score(), g.freed()), std::tuple(98, -50 + 98, 1));
    EXPECT_EQ(g.click(0), Click::Ignored);
    // The fly buzzes away, then the next definition: the spider's pace back to its own.
    rng.pick(2, 4).pick(1, 3).pick(1, 4).pick(3, 4);
    EXPECT_TRUE(Advance(g, s, rng, 1799, 1799).empty());
    EXPECT_EQ(Advance(g, s, rng, 1, 1), std::vector<Event>{Event::NextRound});
    EXPECT_EQ(std::tuple(g.round(), g.lastPoints(), s.TheWord, g.flies()[1].eaten),
              std::tuple(2, 0, "bee", false));
    // A click before the spider sets off gets the whole crawl: 11.5 s.
    EXPECT_EQ(g.click(0), Click::Right);
    EXPECT_EQ(g.lastPoints(), 230);
}

TEST(SpiderwebsPlay, OnlyAScoreAboveNothingGoesOnTheTable) {
    // "ant" in slot 1
    auto [s, rng, g] = Begun(ListOf({"ant", "bee", "cat", "dog"}, 3),
                             ScriptedRng().pick(1, 4).pick(1, 3).pick(2, 4).pick(3, 4));
    EXPECT_FALSE(g.onTheTable());
    Advance(g, s, rng, 1500, 100);
    EXPECT_EQ(g.click(1), Click::Wrong);
    EXPECT_FALSE(g.onTheTable());
    // At half as fast again, 6.7 s leave 1.3 s: 13 tenths, 26 points, one above nothing.
    Advance(g, s, rng, 6700, 100);
    EXPECT_EQ(g.msLeft(), 1300);
    EXPECT_EQ(g.click(0), Click::Right);
    EXPECT_EQ(std::tuple(g.score(), g.onTheTable()), std::tuple(1, true));
}

TEST(SpiderwebsPlay, TheSpiderAtItsFlyThenTenDefinitionsEndTheGame) {
    SharedState s = ListOf({"a1", "b2", "c3", "d4", "e5", "f6", "g7", "h8", "i9", "j10", "k11"}, 3);
    SystemRng rng;
    rng.seed(7);
    Game g;
    ASSERT_EQ(g.start(s, rng), Start::Ok);
    std::set<std::string> defined;
    for (int round = 1; round <= kRounds; ++round) {
        ASSERT_EQ(g.round(), round);
        defined.insert(s.TheWord);
        Advance(g, s, rng, kReadyMs, kReadyMs);
        // The crawl of this round, less one ms: still crawling.
        EXPECT_TRUE(Advance(g, s, rng, crawlMs(round) - 1, crawlMs(round) - 1).empty()) << round;
        EXPECT_EQ(g.msLeft(), 1);
        EXPECT_EQ(Advance(g, s, rng, 1, 1), std::vector<Event>{Event::Caught});
        EXPECT_EQ(g.click(g.answer()), Click::Ignored);
        EXPECT_TRUE(Advance(g, s, rng, kCaughtMs - 1, kCaughtMs - 1).empty());
        EXPECT_EQ(Advance(g, s, rng, 1, 1),
                  std::vector<Event>{round < kRounds ? Event::NextRound : Event::Over});
    }
    EXPECT_EQ(defined.size(), 10u);  // no definition twice while the list has more
    EXPECT_TRUE(g.advance(s, 5000, rng).empty());
}
