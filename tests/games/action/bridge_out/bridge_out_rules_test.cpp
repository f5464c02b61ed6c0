// Bridge Out's rules: the truck's pace and the road, the gaps and the river's planks in their
// draw order, planks dropped right, wrong and beside the bridge, the bonus for the road to
// spare, the truck stopped at the gap, eight words won and three trucks lost.
#include <gtest/gtest.h>

#include "act_rules_kit.h"
#include "core/strings.h"
#include "games/action/bridge_out/bridge_out_rules.h"

using namespace wm;
using namespace wm::bridge_out;
using wm::test::ListOf;
using Begun = test::Begun<Game>;

namespace {

// The first plank afloat that carries `letter`; 0 when none does.
int PlankOf(const Game& g, const std::string& letter) {
    for (const Plank& p : g.river())
        if (p.letter == letter) return p.id;
    return 0;
}

// Fills every gap of the word with its own letter, as a pupil who knows it would.
void Build(Game& g) {
    for (int i = 0; i < int(g.word().size()); ++i) {
        if (!g.isGap(i)) continue;
        const std::string letter = UCase(g.word().substr(i, 1));
        const int id = PlankOf(g, letter);
        ASSERT_NE(id, 0) << "no " << letter << " afloat for " << g.word();
        ASSERT_TRUE(g.take(id));
        ASSERT_EQ(g.place(id, i, 500), Drop::Right);
    }
}

}  // namespace

TEST(BridgeOutNumbers, PaceRoadGapsAndLetters) {
    for (auto [level, speed] : {std::pair{2, 3.0}, {3, 3.5}, {6, 5.0}, {10, 7.0}})
        EXPECT_DOUBLE_EQ(truckSpeed(level), speed) << level;
    for (auto [gaps, road] : {std::pair{1, 44.0}, {2, 58.0}, {7, 128.0}})
        EXPECT_DOUBLE_EQ(roadLength(gaps), road) << gaps;
    for (auto [letters, gaps] : {std::pair{0, 1}, {1, 1}, {3, 1}, {4, 2}, {5, 2}, {14, 7}})
        EXPECT_EQ(gapCount(letters), gaps) << letters;
    const std::pair<const char*, bool> fits[] = {
        {"a", true}, {"ice cream", true}, {"abcdefghijklmnop", true}, {"abcdefghijklmnopq", false},
        {"", false}, {"- -", false}};
    for (auto [word, fit] : fits) EXPECT_EQ(fitsBridge(word), fit) << word;
}

TEST(BridgeOutStart, ReseedsDrawsTheWordItsGapsThenFillsTheRiver) {
    // frog; gaps: the third of f,r,o,g (o), then the first of f,r,g (f); the first plank:
    // share 0.9 would be a decoy, but no missing letter is afloat yet: of F,O,F,O the second.
    auto [s, rng, g] = Begun(ListOf({"cat", "frog", "owl"}, 6),
                             ScriptedRng(0.9).pick(2, 3).pick(3, 4).pick(1, 3).then(0.9).then(0.3));
    EXPECT_EQ(std::tuple(rng.randomizeCount, rng.pending(), s.TheWord, s.TheMeaning),
              std::tuple(1, 0u, "frog", "meaning of frog"));
    for (int i = -1; i <= 4; ++i) EXPECT_EQ(g.isGap(i), i == 0 || i == 2) << i;
    EXPECT_EQ(std::tuple(g.gapsLeft(), g.road(), g.phase()), std::tuple(2, 58.0, Phase::Ready));
    // Nine planks over 9.6 s, lanes taking turns; the others decoys: 0.9 of 26 is X.
    ASSERT_EQ(g.river().size(), 9u);
    EXPECT_EQ(rng.draws, 3 + 9 * 2);
    const Plank &first = g.river()[0], &second = g.river()[1];
    EXPECT_EQ(std::tuple(first.letter, first.lane, second.letter, second.lane),
              std::tuple("O", 0, "X", 1));
    EXPECT_DOUBLE_EQ(first.x, -30 + 9.6 * 70);
    EXPECT_DOUBLE_EQ(second.x, -30 + 8.4 * 90);
}

TEST(BridgeOutRiver, RightLettersAtMostTwiceAfloatAndDecoysNoGapWants) {
    SharedState s = ListOf({"zb"}, 2);  // one gap: z or b
    // Gap "z"; first plank Z (forced); then a share under a half each time: a second Z, then
    // no third: a decoy from 0.0, A. Later decoys from Z, which the gap wants: round to A.
    ScriptedRng rng(0.99);
    rng.pick(1, 1).pick(1, 2).then(0.9).then(0.0).then(0.1).then(0.0).then(0.1).then(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    ASSERT_GE(g.river().size(), 3u);
    for (auto [i, letter] : {std::pair{0, "Z"}, {1, "Z"}, {2, "A"}, {3, "A"}})
        EXPECT_EQ(g.river()[i].letter, letter) << i;
    // Planks leave the river downstream once wholly past its end: the first lane-0 plank is
    // at 642 after the prefill, gone once 1030 is passed (388 more at 70 a second).
    const int first = g.river()[0].id;
    g.advance(s, 5540, rng);
    EXPECT_NE(g.plank(first), nullptr);
    g.advance(s, 20, rng);
    EXPECT_EQ(g.plank(first), nullptr);
    // A held plank floats no further and does not leave.
    const int held = g.river().back().id;
    const double x = g.plank(held)->x;
    ASSERT_TRUE(g.take(held));
    g.advance(s, 3000, rng);
    ASSERT_NE(g.plank(held), nullptr);
    EXPECT_DOUBLE_EQ(g.plank(held)->x, x);
}

TEST(BridgeOutDrops, WrongSplashesBackMissedIsFreeRightLocksAndTheRoadToSpareIsTheBonus) {
    // frog with gaps o and f; F and O afloat first, then decoys.
    auto [s, rng, g] =
        Begun(ListOf({"frog", "owl"}, 6),
              ScriptedRng(0.9).pick(1, 2).pick(3, 4).pick(1, 3).then(0).then(0).then(0).then(0.99));
    const int f = PlankOf(g, "F"), o = PlankOf(g, "O"), x = PlankOf(g, "X");
    ASSERT_TRUE(f && o && x && g.take(o));  // in the pupil's hand while the truck comes
    // A wrong plank: -5 x level, and back into the river where it was let go, held to it.
    ASSERT_TRUE(g.take(x));
    EXPECT_EQ(g.place(x, 0, 2000), Drop::Wrong);
    EXPECT_EQ(std::tuple(g.score(), g.plank(x)->x, g.plank(x)->held),
              std::tuple(-30, 1000.0, false));
    // The right letter beside the bridge, on a whole plank, or on the wrong gap: no points.
    EXPECT_EQ(g.place(f, -1, -200), Drop::Missed);
    EXPECT_DOUBLE_EQ(g.plank(f)->x, -30);
    EXPECT_EQ(g.place(f, 1, 300), Drop::Missed);
    EXPECT_EQ(g.place(f, 2, 300), Drop::Wrong);
    EXPECT_EQ(g.score(), -60);
    // Right, while the truck still waits: +10 x level, the plank gone from the river.
    EXPECT_EQ(g.place(f, 0, 300), Drop::Right);
    EXPECT_EQ(std::tuple(g.score(), g.place(f, 0, 300)), std::tuple(0, Drop::Ignored));
    // The truck goes after two seconds, at 5 m/s on level 6.
    EXPECT_TRUE(g.advance(s, 1999, rng) == std::vector<Event>{Event::Spawned});
    auto ev = g.advance(s, 1, rng);
    EXPECT_TRUE(std::find(ev.begin(), ev.end(), Event::Go) != ev.end());
    g.advance(s, 5300, rng);
    EXPECT_DOUBLE_EQ(g.truck(), 26.5);
    // The bridge whole: +60, and (58 - 26.5 metres, whole) x level = 31 x 6 = 186.
    EXPECT_EQ(g.place(o, 2, 0), Drop::Right);
    EXPECT_EQ(std::tuple(g.lastBonus(), g.score(), g.phase()),
              std::tuple(186, 60 + 186, Phase::Crossing));
    // The truck rolls across: nothing can be dragged, then the next word.
    const int any = g.river().front().id;
    EXPECT_FALSE(g.take(any));
    EXPECT_EQ(g.place(any, 0, 0), Drop::Ignored);
    g.advance(s, 2599, rng);
    EXPECT_EQ(g.phase(), Phase::Crossing);
    ev = g.advance(s, 1, rng);
    EXPECT_EQ(std::tuple(ev.back(), g.word(), g.truck(), g.road()),
              std::tuple(Event::NextWord, "owl", 0.0, 44.0));
}

TEST(BridgeOutEndings, ATruckStoppedAtTheGapThreeTimesIsTheLoss) {
    auto [s, rng, g] = Begun(ListOf({"cat", "dog", "owl"}, 10), 0.5);
    std::vector<std::string> words;
    for (int truck = 1; truck <= 3; ++truck) {
        words.push_back(g.word());
        g.advance(s, 2000, rng);
        // 44 metres at 7 m/s: at the edge after 6286 ms, not a millisecond sooner.
        g.advance(s, 6285, rng);
        EXPECT_EQ(g.phase(), Phase::Driving);
        EXPECT_EQ(g.advance(s, 1, rng), std::vector<Event>{Event::Stopped});
        EXPECT_EQ(std::tuple(g.truck(), g.trucksLeft(), g.canDrag()),
                  std::tuple(44.0, 3 - truck, false));
        g.advance(s, 3199, rng);
        EXPECT_EQ(g.phase(), Phase::Stopped);
        const auto ev = g.advance(s, 1, rng);
        EXPECT_EQ(ev.back(), truck < 3 ? Event::NextWord : Event::Lost);
    }
    EXPECT_TRUE(g.over());
    EXPECT_EQ(g.missed(), words);
    EXPECT_TRUE(g.advance(s, 10000, rng).empty());
    EXPECT_EQ(lostText({"cat", "dog", "cat"}),
              "Honk! All three trucks had to stop at the broken bridge. The words were \"cat\" "
              "and \"dog\". Would you like to try again?");
    EXPECT_EQ(lostText({"owl", "owl", "owl"}),
              "Honk! All three trucks had to stop at the broken bridge. The word was \"owl\". "
              "Would you like to try again?");
    EXPECT_EQ(noPointsText(-20),
              "All eight trucks got across, but your score is -20, so it cannot go on the high "
              "score table. Would you like to try again?");
}

TEST(BridgeOutEndings, EightBridgesWinWithoutRepeatsWhileTheListLasts) {
    auto [s, rng, g] = Begun(
        ListOf({"cat", "dog", "owl", "abcdefghijklmnopq", "- -", "bee", "ant", "elk", "yak"}, 2),
        0.5);
    std::vector<std::string> played;
    for (int word = 1; word <= 8; ++word) {
        played.push_back(g.word());
        Build(g);
        const auto ev = g.advance(s, 2600, rng);
        EXPECT_EQ(ev.back(), word < 8 ? Event::NextWord : Event::Won);
    }
    EXPECT_EQ(g.phase(), Phase::Won);
    EXPECT_TRUE(g.advance(s, 5000, rng).empty());  // the game is over
    // Seven fit words: all of them before the first comes back, and never the one just played.
    std::vector<std::string> first7(played.begin(), played.begin() + 7);
    std::sort(first7.begin(), first7.end());
    EXPECT_EQ(first7, (std::vector<std::string>{"ant", "bee", "cat", "dog", "elk", "owl", "yak"}));
    EXPECT_NE(played[7], played[6]);
    // Each word: one gap at +20, and the whole 44 metres to spare at level 2.
    EXPECT_EQ(g.score(), 8 * (20 + 44 * 2));
    // Draws stuck on the middle word: the walk after them goes round the end to the first.
    SharedState three = ListOf({"cat", "dog", "owl"}, 2);
    ASSERT_TRUE(g.start(three, rng));
    std::string order = g.word();
    for (int word = 2; word <= 3; ++word) {
        Build(g);
        g.advance(three, 2600, rng);
        order += " " + g.word();
    }
    EXPECT_EQ(order, "dog owl cat");
}

TEST(BridgeOutStart, LevelHeldToTheSliderListsThatCannotBeUsedRefused) {
    ScriptedRng rng(0.5);
    for (auto [given, held] : {std::pair{0, 2}, {2, 2}, {10, 10}, {11, 10}}) {
        SharedState s = ListOf({"cat"}, given);
        Game g;
        EXPECT_TRUE(g.start(s, rng) && g.level() == held) << given;
    }
    // One word only: it comes again, word after word.
    SharedState one = ListOf({"owl"}, 2);
    Game g;
    ASSERT_TRUE(g.start(one, rng));
    Build(g);
    g.advance(one, 2599, rng);
    rng.then(0.0).then(0.9);  // the word's own draw, then its gap's: on the "l"
    g.advance(one, 1, rng);
    EXPECT_EQ(g.word(), "owl");
    EXPECT_TRUE(g.isGap(2) && !g.isGap(0));
    // Nothing fits the bridge, or nothing at all: refused, and the draws bounded.
    SharedState none = ListOf({"abcdefghijklmnopqrstu", "- -", "123"}, 2);
    EXPECT_FALSE(Game().start(none, rng));
    SharedState empty = ListOf({}, 2);
    EXPECT_FALSE(Game().start(empty, rng));
    // Blanks, hyphens and apostrophes stay planks: the gaps fall on letters only.
    SharedState marks = ListOf({"a-b c'd"}, 2);
    auto last = ScriptedRng().pick(1, 1).pick(4, 4).pick(3, 3);
    ASSERT_TRUE(g.start(marks, last));
    for (int i = 0; i < 7; ++i) EXPECT_EQ(g.isGap(i), i == 4 || i == 6) << i;
}
