// Crunch Man's rules on a text board: the grid, the mouth's steps and borders, eating in
// spelling order with the kept quirks (repeated letters, blanks, no score without mines), the
// mines, the two deaths and the word choice.
#include <gtest/gtest.h>

#include "games/action/crunch_man/crunch_man_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::crunch;

namespace {

// A field written as rows of cells from the top row: '.' empty, '*' a mine, a letter a label.
// Labels are numbered in reading order; the mouth stands centred in cell (col, row).
Round Board(const std::vector<std::string>& rows, int col, int row, int difficulty = 3) {
    Round r;
    layGrid(r, Field{}, difficulty);
    int k = 0;
    for (int y = 0; y < int(rows.size()); ++y) {
        for (int x = 0; x < int(rows[y].size()); ++x) {
            const char c = rows[y][x];
            if (c == '*')
                placeMine(r, x, y);
            else if (c != '.')
                placeLetter(r, k++, c, x, y);
        }
    }
    r.x = col * r.cellW + (r.cellW - r.field.playerW) / 2;
    r.y = r.field.line1 + row * r.cellH + (r.cellH - r.field.playerH) / 2;
    return r;
}

SharedState State(const std::string& word, int difficulty = 3) {
    SharedState s;
    s.TheWord = word;
    s.Difficulty = difficulty;
    return s;
}

// Ticks until something happens, at most `limit` ticks; returns the tick that did it.
int RunUntilEvent(Round& r, SharedState& s, Rng& rng, TickResult& last, int limit = 400) {
    for (int n = 1; n <= limit; ++n) {
        last = tick(r, s, rng);
        if (last.event != Event::None && last.event != Event::Ate) return n;
    }
    return -1;
}

}  // namespace

TEST(CrunchManGrid, CellsAndStartFollowTheScreen) {
    Round r;
    layGrid(r, Field{}, 1);
    EXPECT_EQ(std::tuple(r.columns, r.rows, r.cellW, r.cellH, r.x, r.y, r.heading, r.wanted),
              std::tuple(20, 11, 64, 60, 617, 378, 2, 2));
}

TEST(CrunchManGrid, StepByDifficulty) {
    const std::pair<int, int> table[] = {{1, 4}, {4, 4}, {5, 8}, {8, 8}, {9, 12}, {14, 12}};
    for (auto [difficulty, step] : table) EXPECT_EQ(stepFor(difficulty), step) << difficulty;
}

TEST(CrunchManTick, MouthAndMinesAnimateInStep) {
    Round r = Board({"*"}, 10, 5);
    SharedState s = State("A");
    ScriptedRng rng;
    const int right[] = {0, 1, 2, 3, 2, 1, 0};
    const int mines[] = {15, 16, 17, 18, 17, 16, 15};
    for (int n = 0; n < 7; ++n) {
        // The first tick has nothing to restore.
        const TickResult t = tick(r, s, rng);
        EXPECT_EQ(std::tuple(t.sprite, t.mineSprite, t.chomp, t.restoreOld),
                  std::tuple(right[n], mines[n], n == 5, n > 0))
            << n;
    }
    const std::pair<int, int> firstOpen[] = {{1, 7}, {2, 1}, {3, 10}, {4, 4}};
    for (auto [heading, holder] : firstOpen) EXPECT_EQ(spriteFor(heading, 2), holder);
    EXPECT_EQ(spriteFor(4, 4), 6);
    Round none = Board({"."}, 10, 5);
    EXPECT_EQ(tick(none, s, rng).mineSprite, -1);
}

TEST(CrunchManTick, TurnsAtOnceAndPressesAgainstBorders) {
    Round r = Board({}, 10, 5);
    SharedState s = State("A");
    ScriptedRng rng;
    r.wanted = 4;  // reversing is allowed, with no grid alignment
    TickResult t = tick(r, s, rng);
    EXPECT_EQ(t.newX, t.oldX - 4);
    // Left to 0, right to the width less the mouth, up to Line1 + 10, down to Line2 - 44 - 5.
    const int borders[][2] = {{4, 0}, {2, 1280 - 46}, {1, 67 + 10}, {3, 800 - 67 + 5 - 44 - 5}};
    for (auto [heading, border] : borders) {
        r.wanted = heading;
        for (int n = 0; n < 400; ++n) t = tick(r, s, rng);
        EXPECT_EQ(heading % 2 == 0 ? t.newX : t.newY, border) << heading;
        EXPECT_EQ(t.event, Event::None);
    }
}

TEST(CrunchManEating, SpellingOrderOnTheBoard) {
    // The mouth starts in column 10 of the middle row and runs right along it. The blank of
    // NO GO is never eaten; on BOKO the K is touched while the second O is due.
    const std::tuple<std::string, std::string, Event, const char*> cases[] = {
        {"CAT", "CAT", Event::Won, "CAT"},          {"CAT", "ACT", Event::WrongLetter, ""},
        {"NO GO", "NOGO", Event::Won, "NO GO"},     {"BOOK", "BOOK", Event::Won, "BOOK"},
        {"BOOK", "BOKO", Event::WrongLetter, "BO"}, {"TOOT", "TOTO", Event::WrongLetter, "TO"},
        {"CAT", "C*AT", Event::Mine, "C"}};
    for (const auto& [word, row, end, spelled] : cases) {
        const std::string blanks(5, '.');
        Round r = Board({blanks, blanks, blanks, blanks, blanks, "..........." + row, "*"}, 10, 5);
        r.length = int(word.size());
        SharedState s = State(word);
        ScriptedRng rng(0.5);
        TickResult t;
        RunUntilEvent(r, s, rng, t);
        EXPECT_EQ(std::tuple(t.event, r.spelled, t.mine),
                  std::tuple(end, spelled, end == Event::Mine))
            << word << " on " << row;
        EXPECT_TRUE(end != Event::WrongLetter || r.labels[t.label].red) << word;
    }
}

TEST(CrunchManEating, OnlyTheCentreCountsAndScoresByMines) {
    Round r = Board({".", ".", ".", ".", ".", "...........A", "*", "*"}, 10, 5);
    r.length = 1;
    SharedState s = State("A", 7);
    r.x = 617;  // the start of a round
    ScriptedRng rng(0.5);
    TickResult t;
    // The centre starts at x 640 and reaches column 11 (x 704) on the sixteenth step of 4,
    // although the mouth's right side overlaps the cell long before.
    EXPECT_EQ(RunUntilEvent(r, s, rng, t), 16);
    EXPECT_EQ(
        std::tuple(t.event, t.wipeUnder, t.points, s.Score, r.labels[0].visible, r.labels[0].left),
        std::tuple(Event::Won, true, (350 + 1) * 2, 702.0, false, 0));
}

TEST(CrunchManEating, NoMinesMeansEveryLetterIsWorthNothing) {
    Round r = Board({".", ".", ".", ".", ".", "...........AB"}, 10, 5, 1);
    r.length = 2;
    SharedState s = State("AB", 1);
    ScriptedRng rng(0.99);
    TickResult t;
    RunUntilEvent(r, s, rng, t);
    // The draw is made all the same.
    EXPECT_EQ(std::tuple(t.event, s.Score, rng.draws), std::tuple(Event::Won, 0.0, 2));
}

TEST(CrunchManSetup, PlacesLettersOffTheMiddleRowAndMinesOffLetters) {
    SharedState s;
    s.Words = {"", std::string(25, 'x'), "an ox"};
    s.Meanings = {"", "long"};  // none for "an ox": no meaning, no fault
    s.WordCount = 3;            // one more than the list holds: that draw is made again
    s.Difficulty = 2;
    // Past the list, the long word, then "an ox".
    auto rng = ScriptedRng().pick(3, 3).pick(1, 3).pick(2, 3);
    rng.then(0.0).then(5.5 / 11);        // A in the middle row: drawn again
    rng.then(0.0).then(0.0);             // A at (0, 0)
    rng.then(0.0).then(0.0);             // N on A's cell: drawn again
    rng.then(1.0 / 20).then(0.0);        // N at (1, 0)
    rng.then(2.0 / 20).then(0.0);        // O at (2, 0)
    rng.then(3.0 / 20).then(1.0 / 11);   // X at (3, 1)
    rng.then(2.0 / 20).then(0.0);        // a mine on O: drawn again
    rng.then(4.0 / 20).then(2.0 / 11);   // mine 1 at (4, 2)
    rng.then(5.0 / 20).then(10.0 / 11);  // mine 2 at (5, 10)
    Round r;
    ASSERT_TRUE(setupRound(s, r, Field{}, rng).ready);
    EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, r.mineCount, rng.pending()),
              std::tuple("AN OX", "", 2, 0u));
    // The blank keeps N's cell with an invisible label.
    EXPECT_EQ(std::tuple(r.labels[2].visible, r.labels[2].left, r.labels[1].left, r.labels[4].top),
              std::tuple(false, 64 + (64 - 23) / 2, 64 + (64 - 23) / 2, 67 + (60 - 36) / 2 + 60));
    EXPECT_EQ(std::tuple(r.mineX[2], r.mineY[2], r.mineCell[4][2]),
              std::tuple(5 * 64 + (64 - 47) / 2, 67 + (60 - 47) / 2 + 600, true));

    // Difficulty 1 draws no mines at all.
    s.Difficulty = 1;
    rng.pick(2, 3);
    for (double x : {0.0, 0.05, 0.1, 0.15}) rng.then(x).then(0.0);
    ASSERT_TRUE(setupRound(s, r, Field{}, rng).ready);
    EXPECT_EQ(std::tuple(r.mineCount, rng.pending()), std::tuple(0, 0u));
}

TEST(CrunchManSetup, OnlyLongWordsAreRefusedAfterBoundedDraws) {
    SharedState s = test::PairsList({{std::string(20, 'a'), ""}, {std::string(31, 'b'), ""}});
    ScriptedRng rng(0.7);
    Round r;
    EXPECT_EQ(setupRound(s, r, Field{}, rng).message,
              "The words on this list are too long to play this game! Choose another list or "
              "another game.");
    EXPECT_EQ(rng.draws, kMaxWordDraws);
}

TEST(CrunchManDeath, TheLabelBlinksOrTheMineExplodesThenTheMouthSpinsAway) {
    Round r;
    r.labels[3].visible = false;
    Dying letter{100, 100, 46, 44, 1, 1, 3}, mine{100, 100, 46, 44, 1, 1, 1};
    int picture = 0, explosion = 0, ticks = 0;
    std::vector<int> pictures, explosions;
    for (bool over = false; !over && ticks < 50; ++ticks) {
        over = letterDeathTick(letter, r, picture);
        pictures.push_back(picture);
        EXPECT_TRUE(over || r.labels[3].visible == (ticks % 2 == 0)) << "the wrong letter blinks";
    }
    // 46 shrinks by 4 a tick until under 5, spinning clockwise through 2, 11, 5, 8.
    EXPECT_EQ(
        std::tuple(ticks, std::vector<int>(pictures.begin(), pictures.begin() + 5), letter.left),
        std::tuple(11, std::vector<int>{2, 11, 5, 8, 2}, 122));
    for (ticks = 0; ticks < 50 && !mineDeathTick(mine, explosion, picture); ++ticks)
        explosions.push_back(explosion);
    // Seven flashes and the black frame, the last with the first of 11 spins.
    EXPECT_EQ(ticks + 1, 18);
    EXPECT_EQ(std::vector<int>(explosions.begin(), explosions.begin() + 9),
              (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 8}));
}

TEST(CrunchManTexts, LostAndScore) {
    EXPECT_EQ(lostText("CAT"),
              "Oops! You lost this game! The word you were looking for was \"CAT\". Would you like "
              "to give it another try?");
    EXPECT_EQ(scoreCaption(702), "Score: 702");
}
