// Tower Assault's rules: the knight's steps and reach, the guards' throws in their draw order,
// right scrolls caught, dropped and thrown again, and the ladder's ten rungs. (The shields are
// lost on the screen's road.)
#include <gtest/gtest.h>

#include "act_rules_kit.h"
#include "games/action/tower_assault/tower_assault_rules.h"
#include "tower_steer.h"

using namespace wm;
using namespace wm::tower;
using wm::test::ListOf;
using wm::test::TowerSteer;
using Begun = test::Begun<Game>;

namespace {

bool Has(const std::vector<Event>& ev, Event e) {
    return std::find(ev.begin(), ev.end(), e) != ev.end();
}

// Ticks until `want` happens: the ticks it took, or -1.
int Until(Game& g, SharedState& s, Rng& rng, Event want, int dir = 0, int limit = 3000) {
    for (int t = 1; t <= limit; ++t)
        if (Has(g.tick(s, rng, dir), want)) return t;
    return -1;
}

// Plays as a pupil until a scroll is caught: the right one, or a decoy on purpose.
std::vector<Event> CatchOne(Game& g, SharedState& s, Rng& rng, bool right) {
    for (int t = 0; t < 5000; ++t) {
        auto ev = g.tick(s, rng, TowerSteer(g, right));
        if (Has(ev, Event::Caught) || Has(ev, Event::Wrong)) return ev;
    }
    return {};
}

const std::vector<std::string> kTwelve = {"cat", "dog", "owl", "bee", "ant",  "elk",
                                          "yak", "emu", "fox", "hen", "newt", "ram"};

}  // namespace

TEST(TowerStart, DrawsADefinedWordAndRefusesListsItCannotPlay) {
    SharedState s = ListOf({"cat", "dog", "owl", "bee", "ant"});
    s.Meanings[1] = " ";  // cat has no definition: never the word to catch, still a decoy
    auto rng = ScriptedRng().pick(1, 5).pick(2, 5);
    Game g;
    ASSERT_EQ(g.start(s, rng), Start::Ok);
    EXPECT_EQ(std::tuple(rng.randomizeCount, s.TheWord, s.TheMeaning),
              std::tuple(1, "dog", "meaning of dog"));

    SharedState bare = ListOf({"cat", "dog"}, 1, true);
    EXPECT_EQ(Game().start(bare, rng), Start::NoDefinitions);
    SharedState same = ListOf({"cat", "CAT", " "});
    EXPECT_EQ(Game().start(same, rng), Start::TooFewWords);
    for (auto [r, ms] : {std::pair{0, 1500}, {1, 1450}, {9, 1050}}) EXPECT_EQ(dropInterval(r), ms);
    for (auto [g, x] : {std::pair{1, 100.0}, {4, 700.0}}) EXPECT_EQ(guardX(g), x);  // four windows
    EXPECT_EQ(lostText("dog"),
              "The guards drove you back! The word was \"dog\". Would you like to try again?");
}

TEST(TowerKnight, StepsHeldToTheWallAndReachesNinetyEitherSide) {
    // Ten steps right leave him 90 from guard 3's scroll: caught; eleven: it falls past.
    for (auto [steps, caught] : {std::pair{10, true}, {11, false}}) {
        // cat; guard 3 throws the right word
        auto [s, rng, g] =
            Begun(ListOf({"cat", "dog"}), ScriptedRng().pick(1, 2).pick(3, 5).then(0));
        for (int t = 0; t < steps; ++t) g.tick(s, rng, +1);
        EXPECT_EQ(g.knightX(), 500 + 9 * steps);
        // Two seconds of reading before the first throw, and 0.4 s more.
        EXPECT_EQ(Until(g, s, rng, Event::Go), 125 - steps);
        EXPECT_EQ(Until(g, s, rng, Event::Thrown), 25);
        // From 120 to the hands at 800 at 2.5 a tick: 272 ticks; to the ground at 1000: 352.
        EXPECT_EQ(Until(g, s, rng, caught ? Event::Caught : Event::RightLanded, 0, 400),
                  caught ? 272 : 352)
            << steps;
    }
}

TEST(TowerThrows, GuardShareAndDecoyInTheirOrder) {
    SharedState s = ListOf({"cat", "dog", "owl", "bee", "ant"});
    auto rng = ScriptedRng().pick(2, 5);             // dog
    rng.pick(3, 5).then(0.9).pick(2, 5).pick(1, 5);  // guard 3, a decoy: not dog, so cat
    rng.pick(3, 5).then(0.34);                       // guard 3 again: 4 throws; the right word
    rng.pick(5, 5).then(0.1).pick(1, 5).pick(3, 5);  // dog afloat: a decoy, not cat again: owl
    rng.pick(2, 5).then(0.9).pick(4, 5);             // bee
    rng.pick(3, 5).then(0.1).pick(5, 5);             // dog still afloat: ant
    rng.pick(4, 5).then(0.9);  // dog landed; after three decoys in a row, the right word at once
    Game g;
    ASSERT_EQ(g.start(s, rng), Start::Ok);
    for (int t = 0; t < 60; ++t) g.tick(s, rng, -1);  // out of every scroll's way
    EXPECT_EQ(g.knightX(), 60);
    std::vector<std::tuple<std::string, int, int>> thrown;  // word, guard, the scroll's number
    std::vector<Event> landed;
    for (int t = 0; t < 1500 && thrown.size() < 6; ++t) {
        const auto ev = g.tick(s, rng, 0);
        if (Has(ev, Event::Thrown))
            thrown.emplace_back(g.scrolls().back().word, g.scrolls().back().guard,
                                g.scrolls().back().id);
        if (Has(ev, Event::Landed) || Has(ev, Event::RightLanded))
            landed.push_back(Has(ev, Event::Landed) ? Event::Landed : Event::RightLanded);
    }
    EXPECT_EQ(rng.pending(), 0u);
    const decltype(thrown) want = {{"cat", 3, 1}, {"dog", 4, 2}, {"owl", 5, 3},
                                   {"bee", 2, 4}, {"ant", 3, 5}, {"dog", 4, 6}};
    EXPECT_EQ(thrown, want);
    EXPECT_EQ(landed, (std::vector<Event>{Event::Landed, Event::RightLanded}));
}

TEST(TowerThrows, UnluckyDecoyDrawsWalkOnToAWordNotInTheAir) {
    // Every draw the second entry: dog, the word to catch.
    auto [s, rng, g] = Begun(ListOf({"cat", "dog", "owl"}), 1.5 / 3);
    for (int t = 0; t < 60; ++t) g.tick(s, rng, +1);  // out of the way of guards 3 and 4
    EXPECT_EQ(g.knightX(), 940);
    std::vector<std::string> thrown;
    for (int t = 0; t < 1000 && thrown.size() < 4; ++t)
        if (Has(g.tick(s, rng, 0), Event::Thrown)) thrown.push_back(g.scrolls().back().word);
    // Past dog, the next word not in the air; with every word in the air, the next other one.
    EXPECT_EQ(thrown, (std::vector<std::string>{"owl", "cat", "dog", "owl"}));
    EXPECT_EQ(rng.draws, 1 + 4 * 2 + 3 * 200);  // each decoy after 200 unlucky draws
}

TEST(TowerEndings, TenRungsClimbWithoutRepeatedWordsAndFasterScrolls) {
    auto [s, rng, g] = Begun(ListOf(kTwelve), 0.5);
    std::vector<std::string> words;
    double score = 0;
    for (int rung = 1; rung <= 10; ++rung) {
        words.push_back(g.word());
        // The first scroll of each definition falls at 2.5 + 0.35 a rung built.
        Until(g, s, rng, Event::Thrown);
        const double y = g.scrolls().back().y;
        g.tick(s, rng, 0);
        EXPECT_DOUBLE_EQ(g.scrolls().front().y, y + 2.5 + 0.35 * (rung - 1)) << rung;
        const auto ev = CatchOne(g, s, rng, true);
        ASSERT_TRUE(Has(ev, Event::Caught)) << rung;
        score += 50 * rung;
        EXPECT_EQ(std::tuple(g.score(), g.lastPoints()), std::tuple(score, 50 * rung));
        EXPECT_TRUE(g.scrolls().empty());
        if (rung == 10) break;
        EXPECT_EQ(g.phase(), Phase::Built);
        EXPECT_EQ(Until(g, s, rng, Event::NextWord), 94);
    }
    EXPECT_EQ(std::tuple(g.phase(), g.score()), std::tuple(Phase::Won, 2750));
    std::sort(words.begin(), words.end());
    EXPECT_EQ(std::unique(words.begin(), words.end()), words.end());
    EXPECT_TRUE(g.tick(s, rng, 1).empty());
}
