// Toad Race's rules: the computer toads' pace and jitter, the draws in their order, words
// without repeats (and with them once the list runs out), typing, the race to twelve pads,
// and the score.
#include <gtest/gtest.h>

#include "act_rules_kit.h"
#include "games/action/toad_race/toad_race_rules.h"

using namespace wm;
using namespace wm::toad_race;
using wm::test::ListOf;

// A race past "Go!" (unless told to wait), its first word and waits drawn from `rng`.
using Begun = test::Begun<Race>;

TEST(ToadRacePace, HopEvery8000Less650ALevelWithAFifthOfJitter) {
    const std::tuple<int, double, int, int> table[] = {
        {1, 0.5, 7350, 7350},  {1, 0.0, 7350, 5880},  {1, 0.999999, 7350, 8819},
        {4, 0.0, 5400, 4320},  {4, 0.25, 5400, 4860}, {4, 0.75, 5400, 5940},
        {10, 0.0, 1500, 1200}, {10, 0.5, 1500, 1500}, {10, 0.999999, 1500, 1799}};
    for (auto [level, r, interval, wait] : table)
        EXPECT_EQ(std::pair(hopInterval(level), hopWait(level, r)), std::pair(interval, wait))
            << level << " " << r;
}

TEST(ToadRaceStart, ReseedsDrawsTheWordThenEachToadsFirstWait) {
    auto [s, rng, r] = Begun(ListOf({"cat", "dog", "owl", "bee"}, 4),
                             ScriptedRng().pick(3, 4).then(0.0).then(0.5).then(0.75), false);
    EXPECT_EQ(std::tuple(rng.randomizeCount, rng.pending(), s.TheWord, s.TheMeaning),
              std::tuple(1, 0u, "owl", "meaning of owl"));
    EXPECT_EQ(std::tuple(r.nextHop(1), r.nextHop(2), r.nextHop(3)), std::tuple(4320, 5400, 5940));
    // Nothing moves and nothing is typed before "Go!".
    EXPECT_TRUE(r.phase() == Phase::Ready && r.advance(10000, rng).empty());
    EXPECT_EQ(r.submit(s, "owl", rng), Typed::Ignored);
    EXPECT_EQ(r.pad(0), 0);
}

TEST(ToadRaceStart, LevelHeldToTheSliderAndEmptyListsRefused) {
    ScriptedRng rng(0.5);
    for (auto [given, held] : {std::pair{0, 1}, {1, 1}, {10, 10}, {15, 10}}) {
        SharedState s = ListOf({"cat"}, given);
        Race r;
        EXPECT_TRUE(r.start(s, rng) && r.level() == held) << given;
    }
    SharedState none = ListOf({}, 5);
    const int before = rng.draws;
    EXPECT_FALSE(Race().start(none, rng));
    EXPECT_EQ(rng.draws, before);  // nothing drawn from an empty list
}

TEST(ToadRaceWords, NoRepeatsUntilTheListRunsOut) {
    auto [s, rng, r] = Begun(ListOf({"cat", "dog", "owl", "bee"}, 5), ScriptedRng(0.5).pick(1, 4));
    ASSERT_EQ(s.TheWord, "cat");
    // A used word is drawn again until a free one comes.
    rng.pick(1, 4).pick(3, 4);
    EXPECT_EQ(r.submit(s, "cat", rng), Typed::Hop);
    EXPECT_EQ(std::tuple(s.TheWord, rng.pending()), std::tuple("owl", 0u));
    // Always a used word: after a hundred draws, the next free entry after the last draw.
    rng.setFallback(0.0);
    const int before = rng.draws;
    EXPECT_EQ(r.submit(s, "OWL", rng), Typed::Hop);
    EXPECT_EQ(std::tuple(s.TheWord, rng.draws - before), std::tuple("dog", kWordDraws));
    rng.setFallback(0.9);
    EXPECT_EQ(r.submit(s, "dog", rng), Typed::Hop);
    EXPECT_EQ(s.TheWord, "bee");
    // All four played: repeats now, but never the word just played; then the other three
    // each once before any comes again.
    std::vector<std::string> next;
    for (int i = 0; i < 4; ++i) {
        ASSERT_EQ(r.submit(s, s.TheWord, rng), Typed::Hop);
        next.push_back(s.TheWord);
    }
    EXPECT_EQ(std::tuple(next, r.pad(0)),
              std::tuple(std::vector<std::string>{"cat", "dog", "owl", "bee"}, 7));
}

TEST(ToadRaceWords, TwoWordsTakeTurns) {
    auto [s, rng, r] = Begun(ListOf({"cat", "dog"}, 5),
                             ScriptedRng(0.5).pick(1, 2).then(0.5).then(0.5).then(0.5).pick(2, 2));
    EXPECT_EQ(r.submit(s, "cat", rng), Typed::Hop);
    EXPECT_EQ(s.TheWord, "dog");
    // Both played: the word just played is drawn, and drawn again until the other comes.
    rng.pick(2, 2).pick(2, 2).pick(1, 2);
    EXPECT_EQ(r.submit(s, "dog", rng), Typed::Hop);
    EXPECT_EQ(std::tuple(s.TheWord, rng.pending()), std::tuple("cat", 0u));
}

TEST(ToadRaceTyping, CaseIgnoredAccentsCountBlanksAroundDoNotMatter) {
    const std::pair<const char*, Typed> table[] = {
        {"caf\xE9", Typed::Hop}, {"CAF\xC9", Typed::Hop},   {"  Caf\xE9 ", Typed::Hop},
        {"cafe", Typed::Wrong},  {"caf", Typed::Wrong},     {"caf\xE9s", Typed::Wrong},
        {"", Typed::Wrong},      {"c af\xE9", Typed::Wrong}};
    for (auto [typed, result] : table) {
        auto [s, rng, r] = Begun(ListOf({"caf\xE9", "th\xE9"}, 5), ScriptedRng(0.5).pick(1, 2));
        EXPECT_EQ(r.submit(s, typed, rng), result) << typed;
        // A wrong word: the toad sits and the word stands.
        const bool hop = result == Typed::Hop;
        EXPECT_EQ(std::tuple(r.pad(0), s.TheWord, r.lettersRight()),
                  std::tuple(hop ? 1 : 0, hop ? "th\xE9" : "caf\xE9", hop ? 4 : 0))
            << typed;
    }
}

TEST(ToadRaceClock, ComputerToadsHopOnTheirOwnClocksInOrder) {
    // Every 5400 ms, 4320..6480 with jitter: the word; waits 5400, 4320, 5400.
    auto [s, rng, r] =
        Begun(ListOf({"cat"}, 4), ScriptedRng().then(0.1).then(0.5).then(0).then(0.5));
    EXPECT_TRUE(r.advance(4319, rng).empty());
    rng.then(1.0 / 6);  // toad 2's next wait: 4680
    auto hops = r.advance(1, rng);
    ASSERT_EQ(hops.size(), 1u);
    EXPECT_EQ(std::tuple(hops[0].toad, hops[0].pad, hops[0].at, r.nextHop(2)),
              std::tuple(2, 1, 4320, 9000));
    // Toads 1 and 3 fall due together at 5400: the lower toad first, each drawing its next wait.
    rng.then(0.0).then(0.999999);
    hops = r.advance(1080, rng);
    ASSERT_EQ(hops.size(), 2u);
    EXPECT_EQ(std::tuple(hops[0].toad, hops[1].toad, r.nextHop(1), r.nextHop(3)),
              std::tuple(1, 3, 9720, 11879));
    // A long step: every hop due in it, in the order they fell due.
    rng.setFallback(0.5);
    hops = r.advance(5400, rng);  // to 10800: toad 2 at 9000, toad 1 at 9720
    ASSERT_EQ(hops.size(), 2u);
    EXPECT_EQ(std::tuple(hops[0].toad, hops[1].toad, r.pad(1), r.pad(2), r.pad(3), r.clock()),
              std::tuple(2, 1, 2, 2, 1, 10800));
}

TEST(ToadRaceEnd, AComputerToadHomeFirstLoses) {
    // Toad 2 leaves first and keeps ahead.
    auto [s, rng, r] =
        Begun(ListOf({"cat", "dog"}, 10), ScriptedRng(0.5).pick(1, 2).then(0.5).then(0).then(0.5));
    EXPECT_EQ(r.submit(s, "cat", rng), Typed::Hop);
    // Toad 2 hops at 1200, then every 1500: its twelfth hop is at 1200 + 11 x 1500 = 17700.
    EXPECT_FALSE(r.advance(17699, rng).empty());
    EXPECT_EQ(std::tuple(r.pad(2), r.phase()), std::tuple(11, Phase::Racing));
    const auto hops = r.advance(1, rng);
    ASSERT_EQ(hops.size(), 1u);
    EXPECT_EQ(std::tuple(hops[0].pad, r.phase(), r.winner(), r.over()),
              std::tuple(12, Phase::Lost, 2, true));
    // Nothing moves after the end, and typing does nothing.
    EXPECT_TRUE(r.advance(100000, rng).empty());
    EXPECT_EQ(r.submit(s, s.TheWord, rng), Typed::Ignored);
    EXPECT_EQ(std::tuple(r.pad(1), r.pad(0)), std::tuple(11, 1));
    const char* names[] = {"You", "Goldie", "Puddles", "Ruby"};
    for (int t = 0; t < kToads; ++t) EXPECT_STREQ(toadName(t), names[t]);
    EXPECT_EQ(lostText(toadName(r.winner()), s.TheWord),
              "Beaten by a nose! Puddles got home first. Your word was \"dog\". Would you like "
              "to try again?");
}

TEST(ToadRaceEnd, ThePupilHomeFirstWinsAndScores) {
    // (pads the best computer toad is behind x 100 + letters typed right x 5) x level
    // The word; Goldie's first wait 4840, then all every 6050 ms.
    auto [s, rng, r] = Begun(ListOf({"frog", "pond", "lily", "reed", "newt", "swan", "duck", "moss",
                                     "fish", "bank", "mud", "rain"},
                                    3),
                             ScriptedRng(0.5).then(0.5).then(0.0));
    r.advance(23000, rng);
    EXPECT_EQ(std::tuple(r.pad(1), r.pad(2), r.pad(3), r.bestComputerPad()),
              std::tuple(4, 3, 3, 4));
    r.submit(s, "not it", rng);
    int letters = 0;
    for (int i = 1; i <= kPads; ++i) {
        letters += static_cast<int>(s.TheWord.size());
        const Typed t = r.submit(s, s.TheWord, rng);
        ASSERT_EQ(t, i < kPads ? Typed::Hop : Typed::Home) << i;
    }
    EXPECT_EQ(std::tuple(letters, r.lettersRight(), r.phase(), r.winner(), r.score()),
              std::tuple(47, 47, Phase::Won, 0, (8 * 100 + 47 * 5) * 3));
    EXPECT_TRUE(r.advance(100000, rng).empty());
    EXPECT_EQ(r.bestComputerPad(), 4);
}
