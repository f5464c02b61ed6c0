#include "games/study/scramble/scramble_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/rng.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::scramble;

namespace {

// 1280 x 960 pixels at 15 twips a pixel; "Your Guess:" two thirds of the way down.
const ScreenGeometry kScreen{19200, 14400, 9000};

// The value that makes a scattered top come out as `top` for the given letter height.
double topRoll(int top, int height, int label3Top) {
    return (top - height - 1 + 0.5) / (label3Top - 2 * height);
}

}  // namespace

TEST(Layout, TheScatterOptionFlipsEachRoundBitByBit) {
    // The option is turned over with a bitwise not, as it always was: -1 and 0 swap, and a 1 left
    // by an old options file becomes -2, which still counts as on.
    SharedState s;
    const int steps[][3] = {{0, -1, true}, {-1, 0, false}, {1, -2, true}, {-2, 1, true}};
    for (auto [before, after, on] : steps) {
        s.GameOptionOn = before;
        EXPECT_EQ(invertGameOption(s), bool(on)) << before;
        EXPECT_EQ(s.GameOptionOn, after) << before;
    }
}

TEST(Layout, RowIsCentredAndLevelWithoutScatter) {
    auto size = [](int length) {
        LetterSize s = letterSize(length);
        return std::vector<int>{s.font, s.height, s.width, s.gap};
    };
    EXPECT_EQ(size(10), (std::vector<int>{36, 825, 705, 200}));
    EXPECT_EQ(size(11), (std::vector<int>{20, 500, 400, 100}));

    ScriptedRng rng;
    RowLayout row = layOutLetters(4, kScreen, false, rng);
    ASSERT_EQ(row.boxes.size(), 4u);
    // 4 x 705 + 3 x 200 = 3420 wide.
    EXPECT_EQ(row.boxes[0].left, (19200 - 3420) / 2);
    EXPECT_EQ(row.boxes[3].left + 705, 19200 - (19200 - 3420) / 2);
    for (const LetterBox& b : row.boxes) EXPECT_EQ(b.top, 4987);  // (10800 - 825) / 2
    EXPECT_EQ(rng.draws, 0);

    RowLayout twenty = layOutLetters(20, kScreen, false, rng);
    EXPECT_EQ(twenty.boxes[0].left, (19200 - (20 * 400 + 19 * 100)) / 2);
    EXPECT_EQ(twenty.boxes[19].left - twenty.boxes[18].left, 500);
}

TEST(Layout, ScatterRerollsOnlyWithinOneHeight) {
    const int h = 825, floor = kScreen.label3Top;
    ScriptedRng rng;
    rng.then(0.0)                       // first letter: 826, never rolled again
        .then(topRoll(1650, h, floor))  // 824 away: rolled again
        .then(topRoll(1651, h, floor))  // one height away exactly: stands
        .then(topRoll(floor - h, h, floor));
    RowLayout row = layOutLetters(3, kScreen, true, rng);
    EXPECT_EQ(std::tuple(row.boxes[0].top, row.boxes[1].top, row.boxes[2].top, rng.draws),
              std::tuple(826, 1651, floor - h, 4));
    EXPECT_EQ(row.boxes[1].left - row.boxes[0].left, 905);  // lefts do not scatter
    ScriptedRng stuck(0.0);  // never clear of the letter before: the hundredth roll stands
    layOutLetters(2, kScreen, true, stuck);
    EXPECT_EQ(stuck.draws, 1 + 100);
}

TEST(NewGame, RoundDrawsInDesignedOrder) {
    SharedState s = test::ListOf({"cat", "horse", "dog"}, 2);
    s.Score = 999;
    s.ElapsedSeconds = 42;
    ScrambleState round;
    round.scatter = true;
    round.lastBlack = 3;
    ScriptedRng rng;
    // The word "horse", scrambled "ehsor".
    rng.pick(2, 3).pick(5, 5).pick(1, 5).pick(4, 5).pick(2, 5).pick(3, 5);
    rng.then(0.0).then(0.5).then(0.0).then(0.5).then(0.0);  // tops, none rolled again

    NewGame game = newGame(s, round, kScreen, rng);
    ASSERT_TRUE(game.ready && game.startFlicker);
    EXPECT_EQ(s.Score + s.ElapsedSeconds + round.lastBlack, -1);  // zeroed, and no letter dark
    EXPECT_EQ(s.TheWord + " " + round.scrambled, "horse ehsor");
    EXPECT_EQ(round.black, std::vector<bool>(5, false));
    ASSERT_EQ(round.layout.boxes.size(), 5u);
    EXPECT_EQ(round.layout.boxes[1].top - round.layout.boxes[0].top, 3675);
    EXPECT_EQ(std::tuple(rng.randomizeCount, rng.draws), std::tuple(1, 11));

    s.Difficulty = 1;
    EXPECT_FALSE(newGame(s, round, kScreen, rng).startFlicker);
}

TEST(NewGame, OnlyLongWordsEndOnTheMessage) {
    SharedState s = test::ListOf({std::string(25, 'a'), std::string(30, 'b')});
    ScrambleState round;
    ScriptedRng rng(0.7);
    NewGame game = newGame(s, round, kScreen, rng);
    EXPECT_FALSE(game.ready);
    EXPECT_EQ(game.message, "The words on this list are too long to use for this activity.");
    // First pick, then past WordCount x 2 = 4 attempts.
    EXPECT_EQ(std::tuple(round.attempts, rng.draws), std::tuple(5, 6));
    EXPECT_TRUE(round.scrambled.empty());
}

TEST(NewGame, WordsWithAStarArePickedAgainOrEndOnTheirMessage) {
    // The words; the picks, 1-based (a first pick and at most WordCount x 2 more); whether a word
    // is played; the word played, or the message.
    using Case = std::tuple<std::vector<std::string>, std::vector<int>, bool, std::string>;
    const std::string tooLong(21, 'x');
    const std::string star =
        "The words on this list contain \"*\" and cannot be used for this activity.";
    const std::string tooLongText = "The words on this list are too long to use for this activity.";
    const Case cases[] = {
        {{"a*b", "cat"}, {1, 2}, true, "cat"},
        {{"*", "dog"}, {1, 1, 2}, true, "dog"},
        {{"a*b", "*"}, {1, 2, 1, 2, 1, 2}, false, star},
        // The message names what is wrong with the last word drawn.
        {{"a*b", tooLong}, {1, 1, 1, 1, 1, 2}, false, tooLongText},
        {{tooLong, "a*b"}, {1, 1, 1, 1, 1, 2}, false, star},
        {{std::string(20, 'y'), tooLong}, {2, 1}, true, std::string(20, 'y')},  // 20 still fits
        {{std::string(19, 'y') + "*", "a*b"}, {2, 2, 2, 2, 2, 1}, false, star},
    };
    for (const auto& [words, picks, ready, word] : cases) {
        SharedState s = test::ListOf(words);
        ScrambleState round;
        ScriptedRng rng;
        for (int k : picks) rng.pick(k, static_cast<int>(words.size()));
        rng.setFallback(0.0);
        NewGame game = newGame(s, round, kScreen, rng);
        // Nothing is scrambled for a refused list, and no star for a played one.
        EXPECT_EQ(std::tuple(game.ready, ready ? s.TheWord : game.message, round.scrambled.empty()),
                  std::tuple(ready, word, !ready))
            << words[0];
        EXPECT_EQ(round.scrambled.find('*'), std::string::npos);
    }
}

TEST(Flicker, OnlyTheLetterBlackedLastComesBack) {
    ScrambleState round;
    round.scrambled = "abcde";
    ScriptedRng rng;
    rng.pick(2, 5).pick(4, 5);
    FlickerStep first = flicker(round, 2, rng);
    EXPECT_EQ(std::tuple(first.yellow, first.black1, first.black2), std::tuple(-1, 1, -1));
    FlickerStep second = flicker(round, 2, rng);
    EXPECT_EQ(std::tuple(second.yellow, second.black1), std::tuple(1, 3));
    EXPECT_EQ(round.black, (std::vector<bool>{false, false, false, true, false}));

    // At Difficulty 3 only the second of the pair comes back: the word darkens tick by tick.
    ScrambleState hard;
    hard.scrambled = "abcde";
    rng.pick(1, 5).pick(2, 5).pick(3, 5).pick(4, 5);
    FlickerStep pair = flicker(hard, 3, rng);
    EXPECT_EQ(std::tuple(pair.black1, pair.black2), std::tuple(0, 1));
    FlickerStep next = flicker(hard, 3, rng);
    EXPECT_EQ(std::tuple(next.yellow, next.yellow2), std::tuple(1, -1));
    EXPECT_EQ(hard.black, (std::vector<bool>{true, false, true, true, false}));
    // A letter drawn again while dark stays dark; the one drawn last comes back next tick.
    rng.pick(5, 5).pick(1, 5);
    FlickerStep third = flicker(hard, 3, rng);
    EXPECT_EQ(third.yellow, 3);
    EXPECT_EQ(hard.black, (std::vector<bool>{true, false, true, false, true}));
    // The letter drawn last comes back even when an earlier tick had blacked it too.
    rng.pick(2, 5).pick(2, 5);
    EXPECT_EQ(flicker(hard, 3, rng).yellow, 0);
    EXPECT_EQ(hard.black, (std::vector<bool>{false, true, true, false, true}));
    EXPECT_EQ(std::count(hard.black.begin(), hard.black.end(), true), 3);

    ScrambleState blank;
    EXPECT_EQ(flicker(blank, 3, rng).black1, -1);
    round.lastBlack = 5;  // left by a longer word: nothing to bring back
    EXPECT_EQ(flicker(round, 2, rng).yellow, -1);
    ScriptedRng top(1.0);  // a generator at its very top still blacks a letter of the word
    EXPECT_EQ(flicker(round, 2, top).black1, 4);
}

TEST(Score, FactorsAtEachDifficulty) {
    // Scatter, difficulty, score: a base of Int(0.5 x 500 + 100) = 350 a letter, 5 letters; scatter
    // Int(0.55 x 10 + 10) = 15.
    const std::tuple<bool, int, double> cases[] = {
        {false, 1, 1750}, {false, 2, 2625},  {false, 3, 2975},
        {true, 1, 2625},  {true, 2, 3937.5}, {true, 3, 4462.5},
    };
    for (auto [scatter, difficulty, expected] : cases) {
        ScriptedRng rng;
        rng.then(0.5).then(0.55);
        double score = rightAnswerScore(5, scatter, difficulty, 0.25, rng);
        EXPECT_DOUBLE_EQ(score, expected - 2.5) << scatter << " " << difficulty;
        EXPECT_EQ(rng.draws, scatter ? 2 : 1);
    }

    ScriptedRng top(0.999999);
    EXPECT_DOUBLE_EQ(rightAnswerScore(1, true, 1, 0.0, top), 599 * 19 / 10.0);
    // Only a score below nothing is drawn afresh, Int(Rnd x 1000 + 500); nothing itself stands.
    ScriptedRng none(0.9995);
    EXPECT_DOUBLE_EQ(rightAnswerScore(0, false, 1, 0.0, none), 0);
    EXPECT_DOUBLE_EQ(rightAnswerScore(0, false, 1, 0.5, none), 1499);
}

TEST(Guess, ComparedLowerCasedAndEmptyIsNoGuess) {
    EXPECT_EQ(judgeGuess("", "cat"), GuessResult::NotAGuess);
    EXPECT_EQ(judgeGuess("CaT", "cAt"), GuessResult::Right);
    EXPECT_EQ(judgeGuess("\xC9t\xC9", "\xE9t\xE9"), GuessResult::Right);  // Windows-1252 É é
    EXPECT_EQ(judgeGuess(" cat", "cat"), GuessResult::Wrong);
    EXPECT_EQ(judgeGuess("a*b", "a*b"), GuessResult::Right);
}

TEST(Guess, HintCostsNothingOnceRight) {
    SharedState s = test::ListOf({"Cat"}, 1);
    s.TheWord = "Cat";
    s.TheMeaning = "-----";  // a words-only list
    ScrambleState round;
    EXPECT_EQ(takeHint(s), "This word means \"-----\"");
    EXPECT_EQ(s.Score, -1000);

    ScriptedRng rng;
    rng.then(0.0);
    EXPECT_EQ(submitGuess(s, round, "dog", 0.5, rng), GuessResult::Wrong);
    EXPECT_EQ(rng.draws, 0);
    EXPECT_EQ(submitGuess(s, round, "cat", 0.5, rng), GuessResult::Right);
    EXPECT_DOUBLE_EQ(s.Score, 300 - 5);

    EXPECT_EQ(giveUpText("Cat"),
              "Oops! The scrambled word was \"Cat\". Would you like to try again?");
}
