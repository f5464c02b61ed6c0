// Hang Glider's rules: the numbers of the design, the word draw, the letters coming in (the
// next one or a decoy, in their draw order), the glider's sink, steering, thermals and drops,
// and the two ends.
#include <gtest/gtest.h>

#include "act_rules_kit.h"
#include "games/action/hang_glider/hang_glider_rules.h"

using namespace wm;
using namespace wm::hang_glider;
using wm::test::ListOf;
using Begun = test::Begun<Game>;

namespace {

std::vector<Event> Fly(Game& g, Rng& rng, int ticks, int steer = 0) {
    std::vector<Event> all;
    for (int t = 0; t < ticks; ++t)
        for (const Event& e : g.tick({steer}, rng)) all.push_back(e);
    return all;
}

std::string Kinds(const std::vector<Event>& ev) {
    std::string k;
    for (const Event& e : ev) k += "RWSNL"[e.kind];
    return k;
}

}  // namespace

TEST(HangGliderNumbers, SpeedAndLetters) {
    EXPECT_DOUBLE_EQ(letterSpeed(1), 2.35);
    EXPECT_DOUBLE_EQ(letterSpeed(10), 5.5);
}

TEST(HangGliderStart, DrawsFreshWordsThatFitAndStandsTheMarks) {
    // 21 letters are too long for the plate, a word of marks has nothing to fly through.
    auto [s, rng, g] = Begun(ListOf({"abcdefghijklmnopqrstu", "- -", "'twas", "ox"}, 0),
                             ScriptedRng().pick(1, 4).pick(2, 4).pick(3, 4), false);
    // The apostrophe stands from the start.
    EXPECT_EQ(std::tuple(rng.randomizeCount, s.TheWord, s.TheMeaning, g.done(), g.level()),
              std::tuple(1, "'twas", "meaning of 'twas", 1, 1));
    // No repeat while a fresh word fits.
    rng.pick(3, 4).pick(4, 4);
    ASSERT_TRUE(g.nextWord(s, rng));
    EXPECT_EQ(s.TheWord, "ox");

    s = ListOf({"abcdefghijklmnopqrst"}, 11);
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(g.level(), 10);
    s = ListOf({"abcdefghijklmnopqrstu", "- -"}, 4);
    EXPECT_FALSE(g.start(s, rng));
}

TEST(HangGliderLetters, NextOrDecoyInDrawOrderEveryFewAndSpaced) {
    auto [s, rng, g] = Begun(ListOf({"cab"}, 4), ScriptedRng(0.5).pick(1, 1), false);
    Fly(g, rng, 50);  // nothing comes while the pupil gets ready, and nothing sinks
    EXPECT_EQ(std::tuple(g.letters().size(), g.y()), std::tuple(0u, 330.0));
    g.go();
    // Three decoys (any capital but C), then C whatever the draw says; heights from 250 to 700.
    rng.pick(2, 3).pick(1, 25).then(0.0);
    rng.pick(3, 3).pick(25, 25).then(0.5);
    rng.pick(2, 3).pick(3, 25).then(0.0);
    rng.pick(2, 3).then(0.999);
    rng.pick(1, 3).then(0.0);
    Fly(g, rng, 1);
    ASSERT_EQ(g.letters().size(), 1u);
    EXPECT_EQ(std::tuple(g.letters()[0].x, g.letters()[0].y), std::tuple(1660.0, 250.0));
    // 230 units apart at 3.4 a tick: the next one 67 ticks later.
    Fly(g, rng, 66);
    EXPECT_EQ(g.letters().size(), 1u);
    Fly(g, rng, 1 + 67 * 3 + 2);
    std::string seen;
    for (const Letter& l : g.letters()) seen += l.letter;
    EXPECT_EQ(std::tuple(seen, g.letters()[1].y), std::tuple(std::string("AZDCC"), 475.0));
    EXPECT_NEAR(g.letters()[1].x - g.letters()[0].x, 67 * 3.4, 1e-9);
}

TEST(HangGliderFlight, SinksSteersClimbsNoHigherThanTheAirAllows) {
    auto [s, rng, g] = Begun(ListOf({"ox"}, 4), 0.5);
    Fly(g, rng, 100);
    EXPECT_NEAR(g.y(), 360, 1e-9);  // 0.3 a tick
    EXPECT_NEAR(g.ceiling(), 260, 1e-9);
    Fly(g, rng, 10, +1);
    EXPECT_NEAR(g.y(), 408, 1e-9);  // Down: 4.5 more
    Fly(g, rng, 10, -1);
    EXPECT_NEAR(g.y(), 366, 1e-9);
    // Up held: no higher than the sinking ceiling.
    Fly(g, rng, 60, -1);
    EXPECT_NEAR(g.y(), 230 + 180 * 0.3, 1e-9);
    EXPECT_DOUBLE_EQ(g.y(), g.ceiling());
}

TEST(HangGliderFlight, RightLetterScoresAndLiftsWrongOneCostsAndDrops) {
    // Accents count, case does not.
    auto [s, rng, g] = Begun(ListOf({"\xE9t\xE9"}, 10), 0.5);
    Fly(g, rng, 100);  // ceiling 260
    // A wrong letter at nothing costs nothing; the glider and its ceiling drop 70.
    g.placeGlider(500);
    g.addLetter('E', kGliderX, 500);
    const auto ev = Fly(g, rng, 1);
    ASSERT_EQ(Kinds(ev), "W");
    EXPECT_NEAR(g.y(), 570.3, 1e-9);
    EXPECT_NEAR(g.ceiling(), 330.3, 1e-9);

    g.addLetter('\xC9', kGliderX + 61, 627);  // in reach after the tick: 55.5 across, 56.4 down
    ASSERT_EQ(Kinds(Fly(g, rng, 1)), "R");
    // 150 up, no higher than the top.
    EXPECT_EQ(std::tuple(g.score(), g.done(), g.ceiling(), g.lifting()),
              std::tuple(100, 1, 230.0, true));
    Fly(g, rng, 30);
    EXPECT_NEAR(g.y(), 570.6 + 30 * (0.3 - 5), 1e-9);
    EXPECT_FALSE(g.lifting());
    g.addLetter('A', kGliderX, g.y());
    ASSERT_EQ(Kinds(Fly(g, rng, 1)), "W");
    EXPECT_EQ(g.score(), 50);
    // Just out of reach on either axis.
    g.placeGlider(400);
    g.addLetter('T', kGliderX + 62 + 5.5, 400);
    g.addLetter('T', kGliderX, 400 + 59);
    g.addLetter('T', kGliderX, 400 - 59);
    EXPECT_EQ(Kinds(Fly(g, rng, 1)), "");
}

TEST(HangGliderLetters, MarksInsideStandAndLettersLeaveAtTheEdge) {
    auto [s, rng, g] = Begun(ListOf({"o'k"}, 10), 0.5);
    g.addLetter('O', kGliderX, g.y());
    g.addLetter('Q', -74.5, 600);  // 5.5 a tick: at -80 it is still there
    g.addLetter('Z', -75, 600);    // at -80.5 it is gone
    ASSERT_EQ(Kinds(Fly(g, rng, 1)), "R");
    std::string left;
    for (const Letter& l : g.letters()) left += l.letter;
    EXPECT_EQ(std::tuple(g.done(), left), std::tuple(2, std::string("QM")));  // and a decoy for O
}

TEST(HangGliderEnds, FiveWordsWin) {
    auto [s, rng, g] = Begun(ListOf({"a", "b", "c", "d", "e", "f"}, 2), 0.5);
    for (int w = 1; w <= 5; ++w) {
        const char next = char(toupper(s.TheWord[0]));
        g.addLetter(next, kGliderX, g.y());
        const auto ev = Fly(g, rng, 1);
        EXPECT_EQ(Kinds(ev), w < 5 ? "RS" : "RSN");
        EXPECT_EQ(g.score(), 20 * w);
        EXPECT_NE(g.letters().at(0).letter, next) << "each word counts its decoys afresh";
        if (w == 5) break;
        EXPECT_EQ(g.phase(), Phase::Spelled);
        ASSERT_TRUE(g.nextWord(s, rng));
        EXPECT_TRUE(g.letters().empty() && !g.lifting());  // the last word's thermal is spent
        g.go();
    }
    EXPECT_EQ(g.phase(), Phase::Won);
    EXPECT_FALSE(g.nextWord(s, rng));
}

TEST(HangGliderEnds, TouchingTheGroundLoses) {
    auto [s, rng, g] = Begun(ListOf({"ox"}, 3), 0.5);
    g.placeGlider(820 - 30 - 0.31);
    EXPECT_EQ(Kinds(Fly(g, rng, 1)), "");
    ASSERT_EQ(Kinds(Fly(g, rng, 1)), "L");
    EXPECT_DOUBLE_EQ(g.y(), 790);
    // The world stands still once landed.
    const double scroll = g.scroll();
    EXPECT_TRUE(Fly(g, rng, 20, -1).empty());
    g.go();  // no flying on from the field
    EXPECT_EQ(std::tuple(g.scroll(), g.phase()), std::tuple(scroll, Phase::Lost));
    EXPECT_EQ(lostText("ox"), "You landed too early! The word was ox.");

    // A wrong letter's drop can land it at once.
    ASSERT_TRUE(g.start(s, rng));
    g.go();
    g.placeGlider(730);
    g.addLetter('Z', kGliderX, 730);
    EXPECT_EQ(Kinds(Fly(g, rng, 1)), "WL");
}
