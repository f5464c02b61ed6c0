// Code Breaker's rules over a scripted generator: the clock and the points, the draw of the words
// (different, bounded, within the screen's room), the key that never leaves a letter as itself,
// the accented letters' pictures, letters that move, hints, the endings and the layout.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/puzzles/code_breaker/code_breaker_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::code_breaker;

namespace {

SharedState listOf(const std::vector<std::string>& words, int level = 10) {
    return test::ListOf(words, level);
}

std::string guesses(const Game& g) {
    std::string out;
    for (const Symbol& s : g.symbols()) out += s.guess ? s.guess : '.';
    return out;
}

}  // namespace

TEST(CodeBreaker, ClockPointsAndTexts) {
    const int seconds[][2] = {{1, 324}, {10, 270}, {50, 30}, {0, 324}, {51, 30}};
    for (auto [level, s] : seconds) EXPECT_EQ(secondsFor(level), s) << level;
    EXPECT_EQ(std::tuple(pointsFor(250, 10, 4), pointsFor(0, 50, 5), fold('\xE9')),
              std::tuple(2540, 50, '\xC9'));
    EXPECT_EQ(clockText(65) + clockText(600) + clockText(-3), "1:0510:000:00");
    EXPECT_EQ(timeUpText({"cat", "ice cream"}),
              "Time's up! The code was \"cat\", \"ice cream\". Would you like to try again?");
}

TEST(CodeBreaker, DifferentWordsDrawnWithinTheRoom) {
    const std::string tooLong(61, 'x');
    SharedState s = listOf({"cat", "Cat ", "- -", "dog", tooLong, " owl"});
    s.Score = 40;
    ScriptedRng rng(0.0);
    // cat; Cat is the same word; dog; "- -" has no letter; 61 characters are too many; owl.
    rng.pick(1, 6).pick(2, 6).pick(4, 6).pick(3, 6).pick(5, 6).pick(6, 6);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(g.words(), (std::vector<std::string>{"cat", "dog", "owl"}));
    // Nothing fit was left for a fourth word: no draw for it; then the 26 draws of the key.
    EXPECT_EQ(
        std::tuple(rng.randomizeCount, s.Score, s.TheWord, s.TheMeaning, rng.draws, g.letters()),
        std::tuple(1, 0, "cat", "meaning of cat", 6 + 26, 9));
    // Another game on the same board takes its clue from its own first word.
    SharedState two = listOf({"ant", "bee"});
    auto again = ScriptedRng(0.0).pick(2, 2);
    two.Meanings.resize(2);  // bee's meaning missing from the list: no clue rather than a crash
    ASSERT_TRUE(g.start(two, again));
    EXPECT_EQ(std::pair(two.TheWord, two.TheMeaning), std::pair(std::string("bee"), std::string()));

    // 25 + 25 letters leave room for 10 more, not 25: the draw gives up on a word after 50 tries.
    SharedState big = listOf({std::string(25, 'a'), std::string(25, 'b'), std::string(25, 'c'),
                              std::string(10, 'd'), std::string(11, 'e')});
    ScriptedRng zero(0.0);
    ASSERT_TRUE(g.start(big, zero));
    ASSERT_EQ(g.words().size(), 3u);
    EXPECT_EQ(std::tuple(g.words()[2], zero.draws),
              std::tuple(std::string(10, 'd'), 1 + 50 + 50 + 26));

    // Only the first entry fits: the walk after the last draw comes round to it.
    SharedState first = listOf({"owl", "- -", "42"});
    ScriptedRng late(0.9);
    ASSERT_TRUE(g.start(first, late));
    EXPECT_EQ(g.words(), (std::vector<std::string>{"owl"}));

    SharedState many = listOf({"a", "b", "c", "d", "e", "f", "g"});
    ASSERT_TRUE(g.start(many, zero));
    EXPECT_EQ(g.words().size(), 5u);  // five at most
    for (auto none : {listOf({"- -", "42", tooLong}), listOf({})}) {
        ScriptedRng r(0.4);
        EXPECT_FALSE(g.start(none, r));
        EXPECT_LT(r.draws, 60);
    }
}

TEST(CodeBreaker, KeyNeverLeavesALetterAsItself) {
    SharedState s = listOf({"z"});
    ScriptedRng first(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, first));
    EXPECT_EQ(g.key(), "BADCFEHGJILKNMPORQTSVUXWZY");
    // Each letter takes the next; Y takes A, and Z, left alone with itself, swaps with C.
    auto chain = ScriptedRng().pick(1, 1).pick(1, 25);
    for (int i = 1; i <= 23; ++i) chain.pick(2, 26 - i);
    chain.pick(1, 2).pick(3, 25);
    ASSERT_TRUE(g.start(s, chain));
    EXPECT_EQ(std::tuple(g.key(), chain.pending()), std::tuple("BCZEFGHIJKLMNOPQRSTUVWXYAD", 0u));
}

TEST(CodeBreaker, AccentedLettersArePicturesOfTheirOwn) {
    SharedState s = listOf({"\xE9t\xE8\xC9"});
    auto rng = ScriptedRng(0.0).pick(1, 1);
    for (int i = 0; i < 26; ++i) rng.then(0.0);
    rng.pick(3, 16).pick(3, 15);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    ASSERT_EQ(g.symbols().size(), 3u);  // É, T, È: é and É are one symbol
    EXPECT_EQ(std::tuple(g.symbols()[0].plain, g.symbols()[0].picture, g.symbols()[1].code,
                         g.symbols()[2].picture),
              std::tuple('\xC9', 2, 'S', 3));
    // Sixteen pictures: a word that needs a seventeenth waits for one that needs none.
    const std::string sixteen = "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF";
    SharedState list = listOf({sixteen, "\xF2x", "\xE9x", sixteen + "\xF1"});
    auto r = ScriptedRng(0.0).pick(1, 4).pick(2, 4).pick(4, 4).pick(3, 4);
    ASSERT_TRUE(g.start(list, r));
    EXPECT_EQ(g.words(), (std::vector<std::string>{sixteen, "\xE9x"}));
}

TEST(CodeBreaker, LettersMoveAndTheCodeIsCracked) {
    SharedState s = listOf({"bead"}, 10);
    ScriptedRng rng(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::pair(g.selected(), g.movedFrom()), std::pair(0, -1));
    EXPECT_EQ(g.type('b'), Typed::Ignored);  // the clock has not started
    g.begin();
    // Symbols B, E, A, D. A letter typed moves on to the next tile without one.
    EXPECT_EQ(g.type('x'), Typed::Placed);
    EXPECT_EQ(g.selected(), 1);
    EXPECT_EQ(g.type('X'), Typed::Moved);  // X leaves B for E
    EXPECT_EQ(std::tuple(g.movedFrom(), guesses(g), g.holder('x'), g.selected()),
              std::tuple(0, ".X..", 1, 2));
    EXPECT_EQ(g.type('1'), Typed::Ignored);
    EXPECT_TRUE(g.select(0));
    EXPECT_EQ(g.type('b'), Typed::Placed);
    EXPECT_TRUE(g.select(0));
    EXPECT_EQ(g.type('B'), Typed::Same);
    EXPECT_TRUE(g.clear());
    EXPECT_FALSE(g.clear());
    EXPECT_EQ(g.type('b'), Typed::Placed);
    EXPECT_TRUE(g.select(2));
    EXPECT_EQ(g.type('a'), Typed::Placed);
    EXPECT_EQ(g.selected(), 3);
    for (int i = 0; i < 20; ++i) g.tick();
    EXPECT_EQ(g.type('d'), Typed::Filled);  // every symbol has a letter; X is wrong
    EXPECT_EQ(std::tuple(g.selected(), g.phase()), std::tuple(3, Phase::Playing));
    EXPECT_TRUE(g.select(1));
    EXPECT_EQ(g.type('e'), Typed::Won);
    EXPECT_EQ(std::tuple(g.phase(), g.points()), std::tuple(Phase::Won, 250 * 10 + 10 * 4));
    EXPECT_EQ(g.type('q'), Typed::Ignored);
    EXPECT_FALSE(g.select(0));
    // Try again: the same board waits for its clock again.
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(g.phase(), Phase::Ready);
}

TEST(CodeBreaker, HintsCostThirtySecondsAndStay) {
    SharedState s = listOf({"toe", "ox"}, 49);  // 36 seconds
    auto rng = ScriptedRng(0.0).pick(1, 2).pick(2, 2);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_FALSE(g.canHint());
    EXPECT_EQ(g.hint(rng), -1);
    g.begin();
    // T O E X: the pupil gives E to T and T to O; a hint shows T and takes it off O.
    EXPECT_EQ(g.type('e'), Typed::Placed);
    EXPECT_EQ(g.type('t'), Typed::Placed);
    rng.pick(1, 4);
    EXPECT_EQ(g.hint(rng), 0);
    // E went with T's wrong letter.
    EXPECT_EQ(std::tuple(g.movedFrom(), guesses(g), g.secondsLeft(), g.canHint()),
              std::tuple(1, "T...", 6, false));
    EXPECT_TRUE(g.select(0));
    EXPECT_EQ(g.type('o'), Typed::Locked);
    EXPECT_FALSE(g.clear());
    EXPECT_TRUE(g.select(1));
    EXPECT_EQ(g.type('t'), Typed::Taken);
    EXPECT_EQ(guesses(g), "T...");
    // 31 seconds leave room for a hint, 30 do not.
    SharedState t = listOf({"toe"}, 49);
    ScriptedRng r(0.0);
    ASSERT_TRUE(g.start(t, r));
    g.begin();
    for (int i = 0; i < 5; ++i) g.tick();
    EXPECT_TRUE(g.canHint());
    g.tick();
    EXPECT_FALSE(g.canHint());
    // A hint that shows the last symbol cracks the code.
    ASSERT_TRUE(g.start(t, r));
    g.begin();
    g.type('t');
    g.type('o');
    EXPECT_EQ(g.hint(r), 2);
    EXPECT_EQ(std::tuple(g.phase(), g.points()), std::tuple(Phase::Won, 6 * 49 + 30));
}

TEST(CodeBreaker, TheClockRunsOut) {
    SharedState s = listOf({"owl"}, 50);
    ScriptedRng rng(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_FALSE(g.tick());  // not yet started
    EXPECT_EQ(g.secondsLeft(), 30);
    g.begin();
    for (int i = 0; i < 29; ++i) ASSERT_FALSE(g.tick());
    EXPECT_EQ(g.phase(), Phase::Playing);
    EXPECT_TRUE(g.tick());
    EXPECT_EQ(std::tuple(g.phase(), g.secondsLeft()), std::tuple(Phase::Lost, 0));
    EXPECT_FALSE(g.tick());
    EXPECT_EQ(g.type('o'), Typed::Ignored);
}

TEST(CodeBreaker, WordsFlowAlongLinesAndKeysMoveBetweenThem) {
    auto at = [](const Layout& l, int i) {
        return std::pair(l.places[i].line, l.places[i].column);
    };
    const Layout a = layOut({"ab", "cde", "fg"}, 6);
    EXPECT_EQ(at(a, 2), std::make_pair(0, 3));  // 2 + 1 + 3 fills the line exactly
    EXPECT_EQ(std::tuple(at(a, 5), a.lines, a.columns), std::tuple(std::make_pair(1, 0), 2, 6));
    const Layout b = layOut({"ab", "cdef"}, 6);
    EXPECT_EQ(at(b, 2), std::make_pair(1, 0));
    const Layout c = layOut({"abcdefghij"}, 4);  // a long word goes on over the next lines
    EXPECT_EQ(std::tuple(at(c, 4), at(c, 9), c.lines, layOut({}, 5).lines),
              std::tuple(std::make_pair(1, 0), std::make_pair(2, 1), 3, 0));
    EXPECT_EQ(layOut({"ab"}, 0).columns, 1);  // no room at all: still a column
    EXPECT_EQ(bestColumns({"ab", "ab", "ab", "ab", "ab"}, 1400, 100, 1.6), 14);
    EXPECT_EQ(bestColumns({"abcdef", "abcdef"}, 100, 1400, 1.6), 6);

    SharedState s = listOf({"a-bc", "def", "ghijk"});
    auto rng = ScriptedRng(0.0).pick(1, 3).pick(2, 3).pick(3, 3);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    const Layout l = layOut(g.words(), 8);  // a-bc def / ghijk
    // The tile chosen after a move that was made (-1 when it was not).
    auto after = [&](bool moved) { return moved ? g.selected() : -1; };
    EXPECT_TRUE(g.select(6));                // f
    EXPECT_FALSE(g.select(1));               // the hyphen is not a code letter
    EXPECT_EQ(after(g.stepLine(1, l)), 11);  // k, the nearest below
    EXPECT_FALSE(g.stepLine(1, l));
    EXPECT_EQ(after(g.stepLine(-1, l)), 3);  // c and d are as near: the left one
    EXPECT_TRUE(g.select(7));
    EXPECT_EQ(after(g.stepLine(-1, l)), 0);  // g straight up onto a
    EXPECT_TRUE(g.select(0));
    EXPECT_EQ(after(g.step(1)), 2);  // over the hyphen and the gap
    EXPECT_TRUE(g.select(0));
    EXPECT_EQ(g.selectedSymbol(), 0);  // a, the first letter given a symbol
    EXPECT_EQ(after(g.step(-1)), 11);  // round the end
    EXPECT_FALSE(g.step(0));
    // A code of one letter: a step comes round to the same tile.
    SharedState one = listOf({"a"});
    ASSERT_TRUE(g.start(one, rng));
    EXPECT_TRUE(g.step(1));
    EXPECT_EQ(g.selected(), 0);
    // A letter typed on the last tile moves on round to the first.
    SharedState bead = listOf({"bead"}, 10);
    ASSERT_TRUE(g.start(bead, rng));
    g.begin();
    EXPECT_TRUE(g.select(3));
    EXPECT_EQ(g.type('q'), Typed::Placed);
    EXPECT_EQ(g.selected(), 0);
}
