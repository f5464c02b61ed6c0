// The rules of the letter-guessing games and of timed typing, over a scripted generator.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "games/guess/bugspray/bugspray_rules.h"
#include "games/guess/common/word_guess.h"
#include "games/guess/hangman/hangman_rules.h"
#include "games/guess/speedtype/speedtype_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::guess;
using wm::test::ListOf;

namespace {

GuessRound started(const std::string& word) {
    SharedState s = ListOf({word}, 2);
    ScriptedRng rng;
    GuessRound r;
    startRound(s, r, rng);
    return r;
}

std::string shown(const GuessRound& r) {
    std::string out;
    for (const Box& b : r.boxes) out += !b.visible ? "_" : b.letter.empty() ? "." : b.letter;
    return out;
}

}  // namespace

TEST(WordGuess, RoundPicksWordAndStakesLengthTimesDifficulty) {
    SharedState s = ListOf({"cat", "giraffe", "ox"}, 3);
    ScriptedRng rng;
    rng.pick(3, 3).pick(7, 1000);  // the last word may be drawn; then the stake's draw
    GuessRound r;
    startRound(s, r, rng);
    EXPECT_EQ(std::tuple(rng.randomizeCount, s.TheWord, s.Score), std::tuple(1, "ox", 7.0 * 3 * 2));
    // Nothing of the round before is carried.
    r.UsedLetters = "X ";
    r.Misses = 4;
    rng.pick(2, 3).pick(1, 1000);
    startRound(s, r, rng);
    EXPECT_EQ(std::tuple(r.PickedIndex, r.Misses, r.UsedLetters, shown(r), s.Score),
              std::tuple(2, 0, "", ".......", 1.0 * 3 * 7));
}

TEST(WordGuess, KeysOnBlanksHyphensRepeatsAndAccents) {
    GuessRound r = started("ice-cream man's");
    EXPECT_EQ(shown(r), "...-....._...'.");
    // A hyphen stands from the start: pressing it is a miss; blank and apostrophe are no guess.
    EXPECT_EQ(pressKey(r, '-'), KeyResult::Miss);
    for (char c : {' ', '\'', '\0'}) EXPECT_EQ(pressKey(r, c), KeyResult::Ignored) << int(c);
    EXPECT_EQ(pressKey(r, '7'), KeyResult::Miss);  // a digit is a guess like a letter
    EXPECT_EQ(pressKey(r, 'I'), KeyResult::Hit);
    EXPECT_EQ(pressKey(r, 'i'), KeyResult::Repeat);  // either case: no penalty
    EXPECT_EQ(pressKey(r, '-'), KeyResult::Repeat);
    EXPECT_EQ(r.UsedLetters, "- 7 I ");  // as typed
    for (char c : std::string("cermna")) EXPECT_EQ(pressKey(r, c), KeyResult::Hit) << c;
    EXPECT_EQ(pressKey(r, 'S'), KeyResult::Won);  // complete without its blank
    EXPECT_EQ(shown(r), "ice-cream_man's");       // the boxes keep the word's case

    // Windows-1252: 0xE9 is e acute, 0xC9 its capital.
    GuessRound cafe = started("Caf\xE9");
    std::vector<KeyResult> results;
    for (char c : std::string("e\311\351c"))  // e, É, é (0xC9, 0xE9 in octal), c
        results.push_back(pressKey(cafe, c));
    EXPECT_EQ(results,
              (std::vector{KeyResult::Miss, KeyResult::Hit, KeyResult::Repeat, KeyResult::Hit}));
    EXPECT_EQ(std::tuple(cafe.boxes[3].letter, shown(cafe)),
              std::tuple(std::string("\xE9"), std::string("C..\xE9")));
    // The first box counts like the others: the word is complete only when it is filled.
    GuessRound ox = started("ox");
    EXPECT_EQ(pressKey(ox, 'x'), KeyResult::Hit);
    EXPECT_EQ(pressKey(ox, 'o'), KeyResult::Won);
}

TEST(WordGuess, HintCostsARandomPartAndCanGoBelowZero) {
    SharedState s = ListOf({"owl"}, 2);
    EXPECT_EQ(hintText(s, started("owl")), "Definition: \"meaning of owl\"");
    GuessRound lost;
    lost.PickedIndex = 2;  // just past the meanings: no meaning rather than a fault
    EXPECT_EQ(hintText(s, lost), "Definition: \"\"");
    lost.PickedIndex = 0;  // the lowest index is read like any other
    s.Meanings[0] = "the first slot";
    EXPECT_EQ(hintText(s, lost), "Definition: \"the first slot\"");
    // Int(Rnd x Score + 1) off the score; at 0 the draw is 1.
    for (auto [score, rnd, after] :
         {std::array{100.0, 0.999, 0.0}, {0, 0.5, -1}, {10, 0, 9}, {10, 0.55, 4}}) {
        ScriptedRng rng;
        rng.then(rnd);
        s.Score = score;
        payForHint(s, rng);
        EXPECT_DOUBLE_EQ(s.Score, after) << score << " " << rnd;
    }
}

TEST(WordGuess, SolveIgnoresCaseAndOuterBlanksButNotInnerOnes) {
    GuessRound r;
    r.word = "Ice Cream";
    using Case = std::pair<std::optional<std::string>, SolveResult>;
    for (const auto& [answer, want] : {Case{std::nullopt, SolveResult::Nothing},
                                       {"", SolveResult::Nothing},
                                       {"  ice cream ", SolveResult::Won},
                                       {"ICE CREAM", SolveResult::Won},
                                       {"icecream", SolveResult::Miss},
                                       {"ice  cream", SolveResult::Miss}})
        EXPECT_EQ(solve(r, answer), want) << answer.value_or("<cancel>");
}

TEST(WordGuess, MissesAllowedAndEveryMissReseeds) {
    EXPECT_EQ(std::tuple(missesAllowed(1), missesAllowed(2), missesAllowed(3)),
              std::tuple(14, 10, 6));
    GuessRound r;
    ScriptedRng rng;
    EXPECT_EQ(addMiss(r, rng), 1);
    EXPECT_EQ(addMiss(r, rng), 2);
    EXPECT_EQ(rng.randomizeCount, 2);
}

namespace {
std::string joined(const std::vector<std::string>& v) {
    std::string out;
    for (auto& x : v) out += (out.empty() ? "" : ",") + x;
    return out;
}
std::string joined(const bugspray::Step& step) {
    std::string out;
    for (auto& g : step.groups)
        out += (out.empty() ? "" : ",") + g.spray + (g.bug.empty() ? "" : "+" + g.bug);
    return out;
}
}  // namespace

TEST(HangmanSteps, ClipsByDifficultyAndTheLastStep) {
    using Case = std::tuple<int, int, const char*, bool>;  // level, misses, the clips, lost
    for (const auto& [level, misses, clips, lost] : std::vector<Case>{
             {1, 13, "hang13", false},
             {1, 14, "hang14,hangend", true},
             {2, 2, "hang3,hang4,hang5", false},
             {2, 10, "hang14,hangend", true},
             {3, 5, "hang11,hang12,hang13", false},
             {3, 6, "hang14,hangend", true},  // the sixth miss ends the hardest level
             {3, 7, "", false},               // no step past the end
             {2, 0, "", false},
         }) {
        auto step = hangman::wrongGuessStep(level, misses);
        EXPECT_EQ(std::tuple(joined(step.clips), step.lost), std::tuple(clips, lost))
            << level << "/" << misses;
    }
    // Every level ends on the last gallows picture and uses each of the fourteen once.
    for (int d = 1; d <= 3; ++d) {
        std::string all;
        for (int m = 1; m <= missesAllowed(d); ++m)
            all += (all.empty() ? "" : ",") + joined(hangman::wrongGuessStep(d, m).clips);
        std::string want;
        for (int i = 1; i <= 14; ++i) want += "hang" + std::to_string(i) + ",";
        EXPECT_EQ(all, want + "hangend") << d;
    }
    EXPECT_EQ(hangman::lostText("owl"),
              "Oops! Your guy was hanged! The word you were looking for was \"owl\". Would you "
              "like to give it another try?");
}

TEST(BugSpraySteps, GroupsByDifficultyWithTheReusedBugClips) {
    // Each miss's groups, "|" between misses; the bug clips 4, 5, 6 and 9 come again at level 1
    // on purpose.
    const char* designed[] = {
        "spray1+bug1|spray2+bug2|spray3+bug3|spray4+bug4|spray5+bug5|spray6+bug6|spray7+bug7|"
        "spray8+bug8|spray9+bug9|spray10+bug4|spray11+bug5|spray12+bug6|spray13+bug9|"
        "spray14+bug14",
        "spray1+bug1,spray2|spray3+bug2,spray4,spray5|spray6+bug3|spray7+bug4|spray8+bug5|"
        "spray9+bug6|spray10+bug7|spray11+bug8|spray12+bug9,spray13|spray14+bug14",
        "spray1+bug1,spray2+bug2|spray3+bug3,spray4,spray5|spray6+bug4|"
        "spray7+bug5,spray8+bug6,spray9,spray10+bug7|spray11+bug8,spray12+bug9,spray13|"
        "spray14+bug14"};
    for (int d = 1; d <= 3; ++d) {
        std::string all;
        for (int m = 1; m <= missesAllowed(d); ++m) {
            const auto step = bugspray::wrongGuessStep(d, m);
            all += (m > 1 ? "|" : "") + joined(step);
            EXPECT_EQ(step.lost, m == missesAllowed(d)) << d << "/" << m;
        }
        EXPECT_EQ(all, designed[d - 1]) << d;
        EXPECT_EQ(joined(bugspray::wrongGuessStep(d, missesAllowed(d) + 1)), "") << d;
        EXPECT_EQ(joined(bugspray::wrongGuessStep(d, 0)), "") << d;
    }
}

TEST(BugSpraySteps, Sounds) {
    ScriptedRng rng;
    EXPECT_EQ(bugspray::badSound(1, false, rng), "bugbad1.wav");
    EXPECT_EQ(rng.draws, 0);
    rng.then(0.0).then(0.999);
    EXPECT_EQ(bugspray::badSound(2, false, rng), "bugbad2.wav");
    EXPECT_EQ(bugspray::badSound(5, false, rng), "bugbad4.wav");
    EXPECT_EQ(bugspray::badSound(6, true, rng), "bugdead.wav");
    rng.then(0.0).then(0.999);
    EXPECT_EQ(bugspray::goodSound(rng), "buggood1.wav");
    EXPECT_EQ(bugspray::goodSound(rng), "buggood4.wav");
    EXPECT_EQ(bugspray::lostText("ant"),
              "Oops! Your bug was sprayed! The word you were looking for was \"ant\". Would you "
              "like to give it another try?");
}

using namespace wm::speedtype;

TEST(SpeedType, ReadySetGoThenStop) {
    SharedState s = ListOf({"a rather long word indeed"}, 2);
    ScriptedRng rng;
    SpeedRound r;
    newWord(s, r, rng);
    EXPECT_EQ(r.call, "Ready...");
    EXPECT_EQ(pressKey(r, s.TheWord, KeyKind::Char, 'a'), Key::Ignored);
    EXPECT_EQ(tick(r, 0.25), Tick::Set);
    EXPECT_EQ(r.call, "Set...");
    EXPECT_EQ(tick(r, 0.5), Tick::Go);
    EXPECT_EQ(std::tuple(r.call, r.WaitingForGo, r.StartTime),
              std::tuple("Type this word:", false, 0.5));
    EXPECT_EQ(tick(r, 0.75), Tick::Stop);
}

TEST(SpeedType, TypingBackspaceAndEnter) {
    SpeedRound r;
    r.WaitingForGo = false;
    const std::string word = "Ice cream";
    EXPECT_EQ(pressKey(r, word, KeyKind::Backspace), Key::Typed);  // nothing to take off
    for (char c : std::string("ice creaX")) pressKey(r, word, KeyKind::Char, c);
    EXPECT_EQ(r.Typed, "ICE CREAX");
    pressKey(r, word, KeyKind::Backspace);
    EXPECT_EQ(pressKey(r, word, KeyKind::Enter), Key::Wrong);
    pressKey(r, word, KeyKind::Char, 'm');
    EXPECT_EQ(pressKey(r, word, KeyKind::Enter), Key::Right);
    // One character too many is still allowed; the second ends the round, wrong.
    r.WordWasRight = true;
    EXPECT_EQ(pressKey(r, word, KeyKind::Char, 'x'), Key::Typed);
    EXPECT_EQ(pressKey(r, word, KeyKind::Char, 'y'), Key::Wrong);
    EXPECT_FALSE(r.WordWasRight);
}

TEST(SpeedType, FiguresAndTheTimePerLetterAreCutFromTheirTexts) {
    using Case = std::tuple<double, const char*, const char*, const char*>;  // T, m:s.decimals
    for (const auto& [t, m, sec, sd] : std::vector<Case>{
             {0, "00", "00", ""},  // T = 0: nothing from the third character on
             {0.578125, "00", "00", "578"},
             {1.15625, "00", "1", "562"},  // kept: the first decimal is skipped
             {10, "00", "10", ""},
             {12.34567, "00", "12", "345"},
             {59.5, "00", "59", "5"},
             {60.25, "01", "00", "25"},  // a minute or more: minutes, and the decimals in place
             {75.5, "01", "15", "5"},
             {75.123456, "01", "15", "123"},
         }) {
        auto f = figures(t);
        EXPECT_EQ(f.minutes + ":" + f.seconds + "." + f.decimals,
                  std::string(m) + ":" + sec + "." + sd)
            << t;
    }
    SpeedRound r;
    r.StartTime = r.EndTime = 0.5;
    EXPECT_EQ(timePerLetter(elapsed(r), "cat"), "0");  // same clock second: a score of 0
    // Two seconds of a 100000-a-day clock over four letters: 0.5787037...
    EXPECT_EQ(timePerLetter(2.0 / 86400 * 100000, "fish"), "0.5787");
    EXPECT_EQ(std::tuple(timePerLetter(25.0, "ab"), timePerLetter(123.4567, "a")),
              std::tuple("12.5", "123.45"));
    EXPECT_EQ(wonText("0.5787"),
              "Congratulations! Your time was 0.5787 seconds per letter! Would you like to try "
              "again?");
    EXPECT_EQ(lostText("cat"),
              "Oops! The correct word was cat. Would you like to give it another try?");
}
