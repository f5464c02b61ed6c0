// Basketball's rules: the pace, the word draws, the letters revealed one by one, the points by
// how many words were shown, and the ten shots.
#include <gtest/gtest.h>

#include "act_rules_kit.h"
#include "games/action/basketball/basketball_rules.h"

using namespace wm;
using namespace wm::basketball;
using Begun = test::Begun<Game>;

namespace {
SharedState List(int difficulty) {
    SharedState s;
    s.Words = {"", "dribble", std::string(31, 'x'), "hoop", "court"};
    s.Meanings = {"", "bounce the ball", "too long", "the ring", "where you play"};
    s.WordCount = 4;
    s.Difficulty = difficulty;
    return s;
}
}  // namespace

TEST(BasketballRules, PaceFollowsTheLevel) {
    EXPECT_EQ(std::tuple(WordPace(10), WordPace(2)), std::tuple(500, 1300));
}

TEST(BasketballRules, WordsOfThirtyOneCharactersAreNeverDrawn) {
    SharedState s = List(5);
    s.Score = 50;
    auto rng = ScriptedRng().pick(2, 4).pick(2, 4).pick(3, 4);
    Game g;
    ASSERT_TRUE(g.setup(s, rng));
    EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, s.Score, g.shotsLeft()),
              std::tuple("hoop", "the ring", 0, 10));
    s.Words[2] = std::string(30, 'y');  // 30 is still short enough
    rng.pick(2, 4);
    ASSERT_TRUE(g.chooseWord(s, rng));
    EXPECT_EQ(s.TheWord, std::string(30, 'y'));

    SharedState longOnly = List(5);
    for (int k = 1; k <= 4; ++k) longOnly.Words[k] = std::string(40, 'z');
    ScriptedRng r2(0.3);
    EXPECT_FALSE(g.setup(longOnly, r2));  // bounded: no hang
}

TEST(BasketballRules, AboutOneWordInFourIsTheRightOne) {
    // The word: dribble.
    auto [s, rng, g] = Begun(List(5), ScriptedRng().pick(1, 4));
    rng.pick(3, 4).pick(2, 4);  // hoop, and the draw of four that is not 3
    g.showNextWord(s, rng);
    EXPECT_EQ(g.onShow(), "hoop");
    rng.pick(4, 4).pick(3, 4);  // court, overruled by the 3
    g.showNextWord(s, rng);
    EXPECT_EQ(std::tuple(g.onShow(), g.wordsShown(), g.revealed()), std::tuple("dribble", 2, 0));
}

TEST(BasketballRules, LettersRevealOneByOneOverRandomCapitals) {
    auto [s, rng, g] = Begun(List(5), ScriptedRng().pick(3, 4));
    rng.pick(3, 4).pick(1, 4);
    g.showNextWord(s, rng);
    ASSERT_EQ(g.onShow(), "hoop");
    bool done = true;
    // Four random capitals (A, B, C, Z); then a 1 of two: nothing revealed.
    rng.then(0.01).then(1.5 / 26).then(2.5 / 26).then(25.5 / 26).pick(1, 2);
    EXPECT_EQ(g.revealTick(rng, done), "ABCZ");
    EXPECT_FALSE(done);
    EXPECT_EQ(g.revealed(), 0);
    // A 2 of two reveals position 2 ("o").
    rng.then(0).then(0).then(0).then(0).pick(2, 2).pick(2, 4);
    EXPECT_EQ(g.revealTick(rng, done), "AAAA");
    EXPECT_EQ(g.revealed(), 1);
    rng.then(0).then(0).then(0).pick(2, 2).pick(2, 4).pick(4,
                                                           4);  // a revealed place is drawn again
    EXPECT_EQ(g.revealTick(rng, done), "AoAA");
    EXPECT_EQ(g.revealed(), 2);
    ScriptedRng rest(0.99);  // always reveal, at the last hidden place
    std::string caption;
    int ticks = 0;
    for (; ticks < 10 && !done; ++ticks) caption = g.revealTick(rest, done);
    EXPECT_EQ(ticks, 3) << "two more letters, then done as soon as all four show";
    EXPECT_EQ(caption, "hoop");
    // A place already shown is drawn again 10000 times at most, then the first hidden one is
    // taken: two such ticks with their coins, and three capitals for the hidden places.
    EXPECT_EQ(rest.draws, 2 * (1 + 10000) + 3);
}

TEST(BasketballRules, PointsDependOnHowManyWordsWereShown) {
    // Level 3: the first word Int(Rnd x 1000) x 3, the second Int(Rnd x 500) x 3, then
    // Len x 3 ("hoop").
    const std::tuple<int, double, long long> rows[] = {
        {1, 0.5, 1500}, {1, 0.9999, 2997}, {2, 0.5, 750}, {3, 0.5, 12}, {6, 0.9, 12}};
    for (auto [shown, rnd, points] : rows) {
        auto [s, rng, g] = Begun(List(3), ScriptedRng().pick(3, 4));
        for (int i = 0; i < shown; ++i) {
            rng.pick(1, 4).pick(3, 4);
            g.showNextWord(s, rng);
        }
        rng.pick(4, 4).then(rnd);  // the animation, then the points
        const Shot shot = g.shoot(s, "hoop", rng);
        EXPECT_EQ(std::tuple(shot.good, shot.animation, shot.points, s.Score),
                  std::tuple(true, 4, points, double(points)))
            << shown;
    }
}

TEST(BasketballRules, AHalfShownCaptionOrAnotherWordIsAMiss) {
    auto [s, rng, g] = Begun(List(3), ScriptedRng().pick(3, 4));
    for (const char* caption : {"hQoP", "HOOP", "court", "Drag ball over net to begin...", ""}) {
        rng.pick(2, 4);
        const Shot shot = g.shoot(s, caption, rng);
        EXPECT_FALSE(shot.good) << caption;
        EXPECT_EQ(std::tuple(shot.animation, s.Score), std::tuple(2, 0));
    }
}

TEST(BasketballRules, TenShotsThenTheEnd) {
    auto [s, rng, g] = Begun(List(3), 0.6);
    for (int shot = 1; shot <= 10; ++shot) {
        EXPECT_EQ(g.nextShot(), shot == 10);
        EXPECT_EQ(g.shotsLeft(), 10 - shot);
    }
}
