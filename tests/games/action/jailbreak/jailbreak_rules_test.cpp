// Jailbreak's rules over a scripted generator: the draw of a cell's locks, the points of a lock,
// a cell and a mistake, the guard's walk, hints and the texts of a lost game.
#include <gtest/gtest.h>

#include "core/strings.h"
#include "games/action/jailbreak/jailbreak_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::jailbreak;
using wm::test::PairsList;

namespace {

const std::vector<std::pair<std::string, std::string>> kEight = {
    {"apple", "a red fruit"},          {"river", "water that flows"},
    {"cloud", "it floats in the sky"}, {"tiger", "a striped cat"},
    {"piano", "keys that sing"},       {"owl", "it hoots"},
    {"bridge", "it crosses water"},    {"candle", "a light of wax"}};

std::vector<int> Entries(const Jail& j) {
    std::vector<int> e;
    for (const Lock& l : j.locks) e.push_back(l.entry);
    return e;
}

}  // namespace

TEST(JailbreakDraw, LocksComeInDrawOrderAndTheGameStartsClean) {
    SharedState s = PairsList(kEight, 3);
    s.Score = 555;
    auto rng = ScriptedRng().pick(5, 8).pick(2, 8).pick(7, 8);
    Jail j;  // what the last game left
    j.guardSteps = 12;
    j.cell = 3;
    j.used = {"PIANO"};
    ASSERT_TRUE(newGame(s, j, rng));
    EXPECT_EQ(
        std::tuple(Entries(j), j.locks[1].meaning, rng.randomizeCount, rng.draws, s.Score,
                   s.TheWord, j.cell, j.guardSteps, j.selected),
        std::tuple(std::vector<int>{5, 2, 7}, "water that flows", 1, 3, 0.0, "piano", 1, 0, 0));
}

TEST(JailbreakDraw, NoWordTwiceInACellNorInAGameWhileTheListHasEnough) {
    SharedState s = PairsList(kEight, 3);
    s.Words[3] = "APPLE";  // the same word as entry 1 to a pupil who types it
    auto rng = ScriptedRng().pick(1, 8).pick(3, 8).pick(1, 8).pick(4, 8).pick(4, 8).pick(2, 8);
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    EXPECT_EQ(std::tuple(Entries(j), rng.draws), std::tuple(std::vector<int>{1, 4, 2}, 6));
    // Cell 2 may not use apple, tiger or river again: five new words are left, enough for three.
    rng.pick(3, 8).pick(4, 8).pick(2, 8).pick(5, 8).pick(6, 8).pick(7, 8);
    j.guardSteps = 30;
    j.selected = 2;
    ASSERT_TRUE(nextCell(s, j, rng));
    EXPECT_EQ(std::tuple(j.selected, j.cell, j.guardSteps, Entries(j), rng.draws),
              std::tuple(0, 2, 0, std::vector<int>{5, 6, 7}, 12));
}

TEST(JailbreakDraw, AShortListRepeatsAcrossCellsButNeverInsideOne) {
    SharedState s = PairsList({{"cat", "purrs"}, {"dog", "barks"}, {"hen", "lays eggs"}}, 3);
    auto rng = ScriptedRng().pick(1, 3).pick(2, 3).pick(3, 3);
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    rng.pick(2, 3).pick(2, 3).pick(1, 3).pick(3, 3);
    ASSERT_TRUE(nextCell(s, j, rng));
    EXPECT_EQ(Entries(j), (std::vector<int>{2, 1, 3}));

    // Just enough new words for the next cell: they are the ones drawn.
    SharedState four =
        PairsList({{"cat", "purrs"}, {"dog", "barks"}, {"hen", "lays eggs"}, {"owl", "hoots"}}, 2);
    rng.pick(1, 4).pick(2, 4);
    ASSERT_TRUE(newGame(four, j, rng));
    rng.pick(1, 4).pick(3, 4).pick(2, 4).pick(4, 4);
    ASSERT_TRUE(nextCell(four, j, rng));
    EXPECT_EQ(Entries(j), (std::vector<int>{3, 4}));
}

TEST(JailbreakDraw, ACountPastTheLoadedEntriesDrawsAmongThoseLoaded) {
    SharedState s = PairsList(kEight, 1);
    s.WordCount = 1001;  // what a list over the limit leaves
    auto rng = ScriptedRng().then(0.999);
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    EXPECT_EQ(Entries(j), (std::vector<int>{8}));
}

TEST(JailbreakDraw, TheDrawIsBoundedAndWalksOnThroughTheList) {
    SharedState s =
        PairsList({{"cat", "purrs"}, {"", "no word"}, {"dog", ""}, {"hen", "lays eggs"}}, 2);
    ScriptedRng rng(0.0);  // always entry 1
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    // Entries without a word or a definition never tag a lock.
    EXPECT_EQ(std::tuple(Entries(j), rng.draws), std::tuple(std::vector<int>{1, 4}, 1 + 200));
}

TEST(JailbreakDraw, TooFewDifferentWordsIsSaidNotPlayed) {
    SharedState s =
        PairsList({{"cat", "purrs"}, {"Cat", "a pet"}, {" CAT ", "meows"}, {"dog", ""}}, 2);
    ScriptedRng rng;
    Jail j;
    EXPECT_FALSE(newGame(s, j, rng));
    EXPECT_EQ(std::tuple(j.locks.size(), rng.draws), std::tuple(0u, 0));
    s.Difficulty = 1;
    EXPECT_TRUE(newGame(s, j, rng));
}

TEST(JailbreakDraw, TheLevelIsTheNumberOfLocks) {
    for (auto [level, locks] : {std::pair{0, 1}, {1, 1}, {2, 2}, {4, 4}, {6, 6}, {7, 6}})
        EXPECT_EQ(locksFor(level), locks) << level;
}

TEST(JailbreakPlay, TypedWordsOpenLocksAndMistakesCost) {
    SharedState s = PairsList({{"caf\xE9", "a small restaurant"},
                               {"bridge", "it crosses water"},
                               {"ice cream", "a cold treat"}},
                              3);
    auto rng = ScriptedRng().pick(1, 3).pick(2, 3).pick(3, 3);
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    j.guardSteps = 10;
    struct Row {
        std::string typed;
        Result result;
        int lock, score, steps;
    };
    const std::vector<Row> rows = {
        {"cafe", Result::Wrong, -1, -20, 12},      // accents count
        {"   ", Result::Ignored, -1, -20, 12},     // nothing typed
        {"CAF\xC9", Result::Opened, 0, 60, 12},    // case does not: 4 letters x 20
        {"caf\xE9", Result::Wrong, -1, 40, 14},    // that lock is open already
        {" Bridge ", Result::Opened, 1, 160, 14},  // 6 x 20
        {"ice cream", Result::CellCleared, 2, 160 + 180 + 260, 14},  // 9 x 20, then 26 x 10
        {"bridge", Result::Ignored, -1, 600, 14},                    // the cell is cleared
    };
    for (const Row& r : rows) {
        const Typed t = typeWord(s, j, r.typed);
        EXPECT_EQ(std::tuple(t.result, t.lock, s.Score, j.guardSteps),
                  std::tuple(r.result, r.lock, double(r.score), r.steps))
            << r.typed;
    }
    EXPECT_EQ(std::tuple(cellCleared(j), j.selected), std::tuple(true, -1));
}

TEST(JailbreakPlay, OpeningTheSelectedLockMovesTheSelectionOn) {
    SharedState s = PairsList(kEight, 3);
    auto rng = ScriptedRng().pick(1, 8).pick(2, 8).pick(3, 8);
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    select(j, 2);
    // Typing another lock's word, or picking one open or out of range, keeps the selection.
    typeWord(s, j, "river");
    for (int open_or_out : {1, 3, -1}) select(j, open_or_out);
    EXPECT_EQ(j.selected, 2);
    select(j, 0);
    EXPECT_EQ(j.selected, 0);
    select(j, 2);
    s.TheWord.clear();
    EXPECT_EQ(typeWord(s, j, "cloud").result, Result::Opened);
    EXPECT_EQ(std::tuple(j.selected, s.TheWord, s.TheMeaning),
              std::tuple(0, "apple", "a red fruit"));
}

TEST(JailbreakPlay, TheGuardCatchesYouAtTheDoor) {
    SharedState s = PairsList(kEight, 2);
    auto rng = ScriptedRng().pick(1, 8).pick(2, 8);
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    for (int i = 1; i < 40; ++i) ASSERT_FALSE(guardStep(j)) << i;
    EXPECT_EQ(stepsToGo(j), 1);
    EXPECT_TRUE(guardStep(j) && caught(j));
    EXPECT_FALSE(guardStep(j));  // he stays at the door
    EXPECT_EQ(std::tuple(j.guardSteps, typeWord(s, j, "apple").result),
              std::tuple(40, Result::Ignored));

    // A mistake one step short of the door: two steps on, caught, and never past the door.
    ASSERT_TRUE(nextCell(s, j, rng));
    j.guardSteps = 39;
    const Typed t = typeWord(s, j, "zebra");
    EXPECT_EQ(std::tuple(t.result, t.points, j.guardSteps, stepsToGo(j)),
              std::tuple(Result::Caught, -20, 40, 0));
    j.guardSteps = 37;
    j.locks[0].open = false;
    EXPECT_EQ(typeWord(s, j, "zebra").result, Result::Wrong);
}

TEST(JailbreakPlay, AClearedCellStopsTheGuard) {
    SharedState s = PairsList(kEight, 1);
    auto rng = ScriptedRng().pick(6, 8);
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    j.guardSteps = 39;
    const Typed t = typeWord(s, j, "OWL");
    EXPECT_EQ(std::tuple(t.result, t.points, t.cellBonus), std::tuple(Result::CellCleared, 60, 10));
    EXPECT_FALSE(guardStep(j));
    EXPECT_EQ(j.guardSteps, 39);
}

TEST(JailbreakPlay, HintsShowTheFirstLetterAndTheFirstLookCosts) {
    SharedState s = PairsList({{"apple", "a red fruit"}, {"\xE9t\xE9", "summer, in French"}}, 2);
    auto rng = ScriptedRng().pick(1, 2).pick(2, 2);
    Jail j;
    ASSERT_TRUE(newGame(s, j, rng));
    // A second look is free; no hint past the locks or for an open one.
    std::vector<std::pair<std::optional<std::string>, double>> looks;
    for (int lock : {0, 0, 1, 2, -1}) looks.emplace_back(hint(s, j, lock), s.Score);
    typeWord(s, j, "apple");
    looks.emplace_back(hint(s, j, 0), s.Score);
    const std::optional<std::string> none;
    EXPECT_EQ(looks,
              (std::vector<std::pair<std::optional<std::string>, double>>{
                  {"A", -10}, {"A", -10}, {"\xC9", -20}, {none, -20}, {none, -20}, {none, 80}}));
    EXPECT_EQ(hintText("A"), "It begins with \"A\"");
}

TEST(JailbreakPlay, TheLostTextNamesTheShutLocks) {
    Jail j;
    j.locks = {{1, "apple", "", false, false},
               {2, "river", "", true, false},
               {3, "owl", "", false, false}};
    EXPECT_EQ(caughtText(j),
              "The guard caught you! The locks still shut were \"apple\", \"owl\". Would you like "
              "to try again?");
    j.locks[0].open = true;
    EXPECT_EQ(caughtText(j),
              "The guard caught you! The lock still shut was \"owl\". Would you like to try "
              "again?");
}
