// Letter Drop's rules over a scripted generator: the word choice and its tiles, the landing test
// at the tile edges, the keys, the speed rule, the hint, and the shooting star.
#include <gtest/gtest.h>

#include "act_rules_kit.h"
#include "games/action/letter_drop/letter_drop_rules.h"

using namespace wm;
using namespace wm::letter_drop;
using wm::test::ListOf;
using Begun = test::Begun<Game>;

namespace {
// Drops the falling letter from just above the landing line with its left edge at `x`.
Landing DropAt(Game& g, SharedState& s, int x, Rng& rng) {
    g.place(x, kTileTop - 2 * s.GameSpeed - 400 - s.GameSpeed + 1);
    return g.tick(s, {}, rng);
}

// The tile that should take the falling letter next.
int Target(const Game& g) {
    for (int i = 0; i < int(g.word().size()); ++i)
        if (g.word()[i] == g.falling() && !g.tileShows(i)) return i;
    return -1;
}
}  // namespace

TEST(LetterDropRules, WordChoiceUpperCasesAndSetsTheTiles) {
    // A long word is passed over.
    auto [s, rng, g] = Begun(ListOf({"abcdefghijklmnop", "rock'n roll"}, 90),
                             ScriptedRng(0.5).pick(1, 2).pick(2, 2).pick(1, 11));
    EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, s.GameSpeed, s.Score, rng.randomizeCount),
              std::tuple("ROCK'N ROLL", "meaning of rock'n roll", 90, 0.0, 1));
    // The apostrophe and the blank are not dropped: the apostrophe stands on its tile, the
    // blank hides its tile.
    EXPECT_EQ(std::tuple(g.lettersLeft(), g.tileShows(4), g.tileVisible(6), g.falling()),
              std::tuple(9, true, false, 'R'));
    EXPECT_EQ(std::tuple(g.tileVisible(10), g.tileVisible(11)), std::tuple(true, false));
}

TEST(LetterDropRules, FourteenLettersFillEveryTileAndFifteenAreRefused) {
    auto [s, rng, g] = Begun(ListOf({"ABCDEFGHIJKLMN"}, 90), 0.1);
    for (int i = 0; i < kTiles; ++i) EXPECT_TRUE(g.tileVisible(i)) << i;
    EXPECT_EQ(g.tileLeft(0), kFieldW - g.tileLeft(kTiles - 1) - kTileW) << "a centred row";

    SharedState longOnly = ListOf({"ABCDEFGHIJKLMNO", "PQRSTUVWXYZABCDE", "LONGLONGLONGLONG"}, 90);
    ScriptedRng r2(0.3);
    EXPECT_EQ(g.setup(longOnly, r2), Setup::TooLong);
    EXPECT_EQ(r2.draws, 6);  // twice WordCount draws, then the list is given up
}

TEST(LetterDropRules, AWordWithNothingToDropIsPassedOverForAnother) {
    // Hyphens, apostrophes and blanks stand on their tiles: such a word is no game.
    auto [s, rng, g] = Begun(ListOf({"- -", "a-b"}, 90), ScriptedRng(0.2).pick(1, 2).pick(2, 2));
    EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, g.lettersLeft(), g.tileShows(1)),
              std::tuple("A-B", "meaning of a-b", 2, true));
    EXPECT_NE(g.falling(), 0);

    // None to drop on the whole list: said so after twice WordCount draws.
    SharedState none = ListOf({"- -", "' -", " "}, 90);
    ScriptedRng r2(0.5);
    EXPECT_EQ(g.setup(none, r2), Setup::NoLetters);
    EXPECT_EQ(r2.draws, 6);
    EXPECT_EQ(g.tick(none, {}, r2), Landing::None);  // nothing falls, nothing is won

    // Long words and letterless ones: the letterless are what the pupil could have had.
    SharedState mixed = ListOf({"ABCDEFGHIJKLMNOP", "--"}, 90);
    auto r3 = ScriptedRng(0.0).pick(1, 2).pick(2, 2).pick(1, 2).pick(1, 2);
    EXPECT_EQ(g.setup(mixed, r3), Setup::NoLetters);
}

TEST(LetterDropRules, LandingTestAtTheTileEdges) {
    // The letter's middle this far from the target tile's left edge lands on it, or not.
    const std::pair<int, bool> edges[] = {
        {0, true}, {-1, false}, {kTileW, true}, {kTileW + 1, false}, {kTileW / 2, true}};
    for (auto [offset, right] : edges) {
        // The Q falls first.
        auto [s, rng, g] = Begun(ListOf({"QZ"}, 90), 0.0);
        ASSERT_EQ(g.falling(), 'Q');
        const int x = g.tileLeft(0) + offset - kTileW / 2;
        const Landing l = DropAt(g, s, x, rng);
        EXPECT_EQ(l, right ? Landing::Right : Landing::Wrong) << offset;
        // Back to the top either way.
        EXPECT_EQ(std::tuple(g.tileShows(0), g.x(), g.y()), std::tuple(right, kFieldW / 2, kTopY))
            << offset;
    }
}

TEST(LetterDropRules, ALetterOnAFilledTileOrTheWrongOneIsAMiss) {
    auto [s, rng, g] = Begun(ListOf({"AA"}, 90), 0.0);
    ASSERT_EQ(DropAt(g, s, g.tileLeft(0), rng), Landing::Right);
    EXPECT_EQ(s.Score, 90 * 5);
    // The second A on the tile that already shows its letter.
    EXPECT_EQ(DropAt(g, s, g.tileLeft(0), rng), Landing::Wrong);
    EXPECT_EQ(std::tuple(s.Score, g.lettersLeft(), g.falling()), std::tuple(90.0 * 5 - 50, 1, 'A'))
        << "the missed letter comes back";
    EXPECT_EQ(DropAt(g, s, g.tileLeft(1), rng), Landing::Won);
}

TEST(LetterDropRules, KeysMoveByTheStepAndStopAtTheEdges) {
    auto [s, rng, g] = Begun(ListOf({"AB"}, 90), 0.0);
    const int step = 90 / 2 + 70;
    g.place(1000, kTopY);
    g.tick(s, {false, true, false}, rng);
    EXPECT_EQ(std::tuple(g.x(), g.y()), std::tuple(1000 + step, kTopY + 90));
    g.tick(s, {false, false, true}, rng);
    EXPECT_EQ(g.y(), kTopY + 90 + 3 * 90);  // the fall and twice more with Down held
    g.place(step - 1, kTopY);
    g.tick(s, {true, false, false}, rng);
    EXPECT_EQ(g.x(), step - 1);  // would pass 0: undone
    g.place(step, kTopY);
    g.tick(s, {true, false, false}, rng);
    EXPECT_EQ(g.x(), 0);
    g.place(kFieldW - kTileW - step + 1, kTopY);
    g.tick(s, {false, true, false}, rng);
    EXPECT_EQ(g.x(), kFieldW - kTileW - step + 1);
    Game::downReleased(s);
    EXPECT_EQ(s.Score, 1);
}

TEST(LetterDropRules, SpeedRisesOnEveryRightLandingOnceFewerThanFiveAreLeft) {
    auto [s, rng, g] = Begun(ListOf({"ABCDEFG"}, 60), 0.0);
    std::vector<int> speeds;
    double score = 0;
    while (g.lettersLeft() > 0) {
        const int speed = s.GameSpeed;
        DropAt(g, s, g.tileLeft(Target(g)), rng);
        score += speed * 5;
        EXPECT_EQ(s.Score, score);
        speeds.push_back(s.GameSpeed);
    }
    EXPECT_EQ(speeds, (std::vector<int>{60, 60, 75, 90, 105, 120, 135}));
}

TEST(LetterDropRules, FourMissesTurnTheHintOnAndOneRightLandingTurnsItOff) {
    auto [s, rng, g] = Begun(ListOf({"ABA"}, 90), 0.0);
    ASSERT_EQ(g.falling(), 'A');
    const int away = g.tileLeft(1);  // the B's tile
    for (int miss = 1; miss <= 4; ++miss) {
        EXPECT_EQ(g.hintTile(), -1) << miss;
        DropAt(g, s, away, rng);
    }
    EXPECT_EQ(std::tuple(s.Score, g.misses(), g.hintTile()), std::tuple(-200.0, 4, 0))
        << "below zero during play";
    DropAt(g, s, g.tileLeft(0), rng);
    EXPECT_EQ(std::tuple(g.hintTile(), g.misses()), std::tuple(-1, 0));
}

TEST(LetterDropRules, TheStarStartsOneTimeInFiftyAndLeavesPastTheRightEdge) {
    Star star;
    auto rng = ScriptedRng().then(10.0 / 500);  // Int(Rnd x 500 + 1) = 11: no star
    star.tick(rng);
    EXPECT_FALSE(star.flying());
    rng.then(8.5 / 500).pick(1, 2).then(0.9);  // 9: a star from the left, low in the sky
    int ticks = 0;
    for (star.tick(rng); star.flying() && ticks < 1000; ++ticks) star.tick(rng);
    EXPECT_FALSE(star.flying());
    EXPECT_GT(ticks, 10);
    EXPECT_GT(star.trail()[0].first, kFieldW * 11 / 10);
    EXPECT_LT(star.trail()[0].second, kTileTop);
}
