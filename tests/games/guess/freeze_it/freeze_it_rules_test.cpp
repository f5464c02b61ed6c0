// Freeze-It's rules over a scripted generator: the pace and the points, the word draw without
// repeats, the thaw's draw over the hidden blocks, freezing and answering, the endings.
#include <gtest/gtest.h>

#include <set>

#include "core/rng.h"
#include "games/guess/freeze_it/freeze_it_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::freeze_it;
using wm::test::ListOf;

namespace {

std::string shown(const Game& g) {
    std::string out;
    for (const Block& b : g.blocks()) out += b.shown ? b.letter : '.';
    return out;
}

}  // namespace

TEST(FreezeIt, PaceAndPointsByLevel) {
    const int interval[] = {1500, 1200, 900, 600, 300};
    for (int level = 1; level <= 5; ++level) EXPECT_EQ(thawInterval(level), interval[level - 1]);
    for (auto [hidden, level, points] :
         {std::array{6, 3, 370}, {0, 1, 10}, {1, 1, 30}, {4, 5, 410}, {14, 2, 570}})
        EXPECT_EQ(pointsFor(hidden, level), points) << hidden;
}

TEST(FreezeIt, StartReseedsDrawsAndShowsBlanksHyphensApostrophes) {
    SharedState s = ListOf({"cat", "ice-cream man's", "ox"}, 3);
    s.Score = 99;
    ScriptedRng rng;
    rng.pick(2, 3);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(rng.randomizeCount, s.Score, s.TheWord, s.TheMeaning),
              std::tuple(1, 0.0, "ice-cream man's", "meaning of ice-cream man's"));
    EXPECT_EQ(std::tuple(shown(g), g.hidden(), g.wordNumber(), g.phase()),
              std::tuple("...-..... ...'.", 12, 1, Phase::Thawing));
    // A word past the meanings held has none: blank, nothing read past the list. Its blocks
    // are its own, none left from the word before.
    s.Meanings.resize(3);
    rng.pick(3, 3);
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, shown(g)), std::tuple("ox", "", ".."));
}

TEST(FreezeIt, ThawTakesTheDrawnHiddenBlockUntilTheWordMelts) {
    SharedState s = ListOf({"a-bcd"}, 3);
    ScriptedRng rng;
    rng.pick(1, 1);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    // Int(Rnd x hidden + 1) over the blocks still hidden, counted left to right.
    rng.pick(2, 4).pick(3, 3).pick(1, 2);
    EXPECT_EQ(g.thaw(rng), 2);
    EXPECT_EQ(shown(g), ".-b..");
    EXPECT_EQ(g.thaw(rng), 4);
    EXPECT_EQ(g.thaw(rng), 0);
    EXPECT_EQ(std::tuple(shown(g), g.phase(), g.missed().size()),
              std::tuple("a-b.d", Phase::Thawing, 0u));
    rng.pick(1, 1);
    EXPECT_EQ(g.thaw(rng), 3);
    EXPECT_EQ(std::tuple(g.phase(), g.missed(), s.Score),
              std::tuple(Phase::Melted, std::vector<std::string>{"a-bcd"}, 0.0));
    EXPECT_EQ(g.thaw(rng), -1);
    EXPECT_FALSE(g.freeze());
    // A new game forgets the words the last one lost.
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_TRUE(g.missed().empty());
}

TEST(FreezeIt, FreezeStopsTheThawAndAnswersAreChecked) {
    SharedState s = ListOf({"caf\xE9"}, 3);
    ScriptedRng rng;
    rng.pick(1, 1).pick(1, 4);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    g.thaw(rng);
    ASSERT_TRUE(g.freeze());
    EXPECT_FALSE(g.freeze());
    EXPECT_EQ(g.thaw(rng), -1);  // the thaw stands still
    EXPECT_EQ(std::tuple(g.check(s, "   "), g.phase()), std::tuple(Answer::Empty, Phase::Frozen));
    // Accents count; a wrong answer costs 25 and the thaw goes on.
    s.Score = 100;
    EXPECT_EQ(g.check(s, "cafe"), Answer::Wrong);
    EXPECT_EQ(std::tuple(s.Score, g.phase()), std::tuple(75.0, Phase::Thawing));
    EXPECT_EQ(g.check(s, "caf\xE9"), Answer::Empty);  // not frozen: no answer taken
    // The score does not go below nothing.
    s.Score = 10;
    g.freeze();
    EXPECT_EQ(g.check(s, "cafes"), Answer::Wrong);
    EXPECT_EQ(s.Score, 0);
    g.freeze();
    g.unfreeze();
    EXPECT_EQ(g.phase(), Phase::Thawing);
    g.freeze();
    // Case does not matter, nor blanks around the answer: 3 hidden x 20 x level 3 + 10.
    s.Score = 5;
    EXPECT_EQ(g.check(s, " CAF\xC9 "), Answer::Right);
    EXPECT_EQ(std::tuple(g.lastPoints(), s.Score, shown(g), g.phase(), g.missed().size()),
              std::tuple(190, 195.0, "caf\xE9", Phase::Right, 0u));
    EXPECT_EQ(g.check(s, "caf\xE9"), Answer::Empty);
}

TEST(FreezeIt, TenWordsWithoutRepeatsWhileTheListLasts) {
    std::vector<std::string> words;
    for (int i = 0; i < 12; ++i) words.push_back(std::string(1, char('a' + i)) + "x");
    SharedState s = ListOf(words, 3);
    ScriptedRng rng(0.0);  // every draw says word 1: used words are drawn again, then passed
    rng.pick(5, 12).pick(5, 12).pick(7, 12);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(s.TheWord, "ex");
    ASSERT_TRUE(g.nextWord(s, rng));
    EXPECT_EQ(s.TheWord, "gx");  // word 5 again is drawn afresh
    std::set<std::string> seen{"ex", "gx"};
    while (!g.lastWord()) {
        ASSERT_TRUE(g.nextWord(s, rng));
        seen.insert(s.TheWord);
    }
    EXPECT_EQ(g.wordNumber(), kWordsPerGame);
    EXPECT_EQ(seen.size(), 10u);
    EXPECT_EQ(rng.randomizeCount, 1);
    // Three scripted draws, word 1 at once, then fifty tries at a used word before the next
    // free one is taken: the draw is bounded.
    EXPECT_EQ(rng.draws, 3 + 1 + 7 * 50);
}

TEST(FreezeIt, ShortListStartsOverButNotWithTheWordJustPlayed) {
    // The words; the fallback draw (0.0 word 1, 0.99 the last); the order played; the draws made
    // before the fallback, of the list's words.
    using Row = std::tuple<std::vector<std::string>, double, const char*, std::vector<int>>;
    const Row rows[] = {
        {{"owl", "- -", "bat"}, 0.0, "owl bat owl bat owl", {}},  // a word without letters never
        {{"owl", "bat"}, 0.99, "bat owl bat owl bat", {}},        // just played, whichever it was
        {{"  owl "}, 0.5, "owl owl owl owl owl", {}},             // one word, again and again
        {{"owl", "- -"}, 0.5, "owl owl owl owl owl", {}},         // the only word with letters
        // The fourth draw says the word just played: the next free one comes instead.
        {{"owl", "bat", "cat"}, 0.0, "owl bat cat owl bat", {1, 2, 3, 3}},
        // Draws stuck on a used word: the walk takes the next free one along, not one further.
        {{"ant", "bee", "cat", "dog"}, 0.0, "ant bee cat dog ant", {}},
    };
    for (const auto& [words, first, want, picks] : rows) {
        SharedState s = ListOf(words, 3);
        ScriptedRng rng(first);
        for (int k : picks) rng.pick(k, int(words.size()));
        Game g;
        ASSERT_TRUE(g.start(s, rng));
        std::string order = g.word();
        for (int i = 0; i < 4; ++i) {
            ASSERT_TRUE(g.nextWord(s, rng));
            order += " " + g.word();
        }
        EXPECT_EQ(order, want) << words.size();
    }
}

TEST(FreezeIt, ListWithoutLettersCannotBePlayed) {
    for (auto words : {std::vector<std::string>{"- -", "'", " "}, std::vector<std::string>{}}) {
        SharedState s = ListOf(words, 3);
        ScriptedRng rng(0.3);
        Game g;
        EXPECT_FALSE(g.start(s, rng));
        EXPECT_LT(rng.draws, 200);  // the draw gives up: it never hangs
    }
}
