// Asteroid Zap's rules: the row of word and filler, the subsequence rule of a hit, the shots,
// the sinking wall, the ship's travel and the score.
#include <gtest/gtest.h>

#include "games/action/asteroid_zap/asteroid_zap_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::asteroid;

namespace {

// A round whose wall reads `row` (20 characters) over the word `word`.
Round Wall(const std::string& word, const std::string& row) {
    Round r;
    ScriptedRng rng(0.0);
    setup(r, Geometry{}, word, rng);
    for (int i = 0; i < kLetters; ++i) r.rocks[i].letter = row[i];
    return r;
}

// Shoots the letters at `columns` one after another, letting each explosion run out.
std::string Shoot(Round& r, const std::vector<int>& columns) {
    ScriptedRng rng(0.5);
    std::string results;
    for (int k : columns) {
        results += hitLetter(r, k, rng) ? 'y' : 'n';
        if (r.wrongShot) break;
    }
    return results;
}

}  // namespace

TEST(AsteroidRow, FillerKeepsTheWordInOrder) {
    ScriptedRng rng;
    // "CAT": Q after nothing, then Z after the first two characters...
    rng.pick(17, 26).then(0.0);      // Q at the front: QCAT
    rng.pick(26, 26).then(2.5 / 4);  // Z after QC: QCZAT
    rng.setFallback(0.999);          // then Zs as far right as they go
    const std::string row = buildRow("  cat ", rng);
    // A filler goes after at most all but one character: the last letter stays last.
    EXPECT_EQ(std::tuple(row.substr(0, 5), row.back(), row.size()), std::tuple("QCZAZ", 'T', 20u));
    ScriptedRng one(0.0);
    EXPECT_EQ(buildRow("abcdefghijklmnopqrs", one), "AABCDEFGHIJKLMNOPQRS")
        << "19 letters: one filler";
    ScriptedRng blank(0.999);
    EXPECT_EQ(buildRow("ice age", blank).substr(0, 7), "ICE AGZ") << "the blank is a letter box";
}

TEST(AsteroidRow, WordsOf15OrMoreAreNeverChosen) {
    SharedState s =
        test::PairsList({{std::string(15, 'a'), ""}, {std::string(14, 'b'), "fourteen"}});
    auto rng = ScriptedRng().pick(1, 2).pick(1, 2).pick(2, 2);
    EXPECT_EQ(chooseWord(s, rng), 2);
    EXPECT_EQ(s.TheMeaning, "fourteen");
    s.WordCount = 1;
    ScriptedRng only(0.2);
    EXPECT_EQ(chooseWord(s, only), 0);
    EXPECT_EQ(only.draws, kMaxWordDraws);
    s.Words[1] = "cat";  // the first entry can be drawn
    EXPECT_EQ(chooseWord(s, only), 1);
}

TEST(AsteroidHits, OnlyTheSubsequenceRuleDecides) {
    // Filler away one by one until only the word stands; a doubled letter may go once when
    // another copy can take its place.
    const std::tuple<const char*, const char*, std::vector<int>, std::string, bool> cases[] = {
        {"CAT", "QCZATXXXXXXXXXXXXXXX", {0, 2}, "yy", false},
        {"CAT",
         "QCATXXXXXXXXXXXXXXXX",
         {0, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19},
         std::string(17, 'y'),
         true},
        {"CAT", "CATXXXXXXXXXXXXXXXXX", {1}, "n", false},
        {"BOOK", "BOOOKXXXXXXXXXXXXXXX", {1}, "y", false},
        {"BOOK", "BOOOKXXXXXXXXXXXXXXX", {1, 2}, "yn", false},
        {"ICE AGE", "ICE AGEXXXXXXXXXXXXX", {3}, "n", false}};
    for (const auto& [word, row, shots, results, allCleared] : cases) {
        Round r = Wall(word, row);
        EXPECT_EQ(std::tuple(Shoot(r, shots), r.allCleared), std::tuple(results, allCleared))
            << word << " " << row;
        if (results.back() == 'n') {
            EXPECT_TRUE(r.wrongShot);
            ScriptedRng rng(0.5);
            EXPECT_EQ(tick(r, 1, rng).ending, Ending::WrongLetter) << "the next tick ends it";
            EXPECT_EQ(int(r.blasts.size()), kLetters) << "every letter still alive blows up";
            for (const Blast& b : r.blasts) EXPECT_TRUE(b.frame >= 13 && b.frame <= 18);
            // Scattered up to 1000 either way about the ship's centre: at the middle draw, on it.
            const std::pair centre(r.shipX + r.g.shipW / 2, r.g.shipTop() + r.g.shipH / 2);
            EXPECT_EQ(std::pair(r.blasts[0].x, r.blasts[0].y), centre);
        }
    }
}

TEST(AsteroidShots, ColumnsFlightAndTheThreeShotLimit) {
    const Geometry g;
    std::vector<int> columns;
    for (int x : {0, g.boxLeft(1) - 1, g.boxLeft(1), g.boxLeft(19) - 1, g.boxLeft(19),
                  g.boxLeft(19) + 1, g.width})
        columns.push_back(columnAt(g, x));
    EXPECT_EQ(columns, (std::vector<int>{0, 0, 1, 18, 19, 19, 19}));

    Round r = Wall("CAT", "QCATXXXXXXXXXXXXXXXX");
    ScriptedRng rng(0.5);
    int fired = 0;
    for (int n = 0; n < 4; ++n) {
        r.fireWanted = true;
        fired += tick(r, 1, rng).shotFired;
    }
    EXPECT_EQ(std::tuple(fired, r.fireWanted), std::tuple(3, true)) << "the fourth waits";
    const int column = columnAt(g, r.shipX + g.shipW / 2);
    // Shots climb 10 pixels a tick from the ship's top to the letter's bottom.
    TickEvents e;
    int ticks = 0;
    for (; e.hit < 0 && ticks < 200; ++ticks) e = tick(r, 1, rng);
    EXPECT_EQ(std::tuple(e.hit, e.booms.size()), std::tuple(column, 1u));
    EXPECT_GT(ticks, 20);
}

TEST(AsteroidShots, AShotIntoAnExplodingLetterIsAbsorbedAndRestartsTheBlast) {
    const Geometry g;
    Round r = Wall("CAT", "QCATXXXXXXXXXXXXXXXX");
    ScriptedRng rng(0.5);
    const int column = columnAt(g, r.shipX + g.shipW / 2);
    // Two shots, six ticks apart: the second arrives while the first's blast runs.
    for (int n = 0; n < 7; ++n) {
        r.fireWanted = n == 0 || n == 6;
        tick(r, 1, rng);
    }
    std::vector<int> frames;
    for (int n = 0; n < 200 && frames.size() < 2; ++n)
        if (tick(r, 1, rng).hit >= 0) frames.push_back(r.rocks[column].frame);
    EXPECT_EQ(frames, (std::vector<int>{13, 13})) << "the blast starts again";
    EXPECT_FALSE(r.wrongShot);
    // The blast runs its eight frames, then the letter is gone for good: shots pass.
    for (int n = 0; n < 8; ++n) tick(r, 1, rng);
    EXPECT_FALSE(r.rocks[column].alive);
    r.fireWanted = true;
    int later = 0;
    for (int n = 0; n < 200; ++n) later += tick(r, 1, rng).hit >= 0;
    EXPECT_EQ(later, 0);
}

TEST(AsteroidShots, AMissIsFreeAgainOnlyPastTwentyPixelsAboveTheTop) {
    Round r = Wall("CAT", "QCATXXXXXXXXXXXXXXXX");
    r.g.height = 768 * kTwips;  // the ship's top at 640 pixels: a shot is at -20 on a tick
    for (Rock& rock : r.rocks) rock.alive = false;
    ScriptedRng rng(0.5);
    int fourth = 0;
    for (int t = 1; t <= 100 && !fourth; ++t) {
        r.fireWanted = true;
        if (tick(r, 1, rng).shotFired && t > 3) fourth = t;
    }
    EXPECT_EQ(fourth, 68) << "the first shot is at -20 on tick 66 and gone on tick 67";
}

TEST(AsteroidWall, SinksByDifficultyUntilTheShip) {
    Round r = Wall("CAT", "QCATXXXXXXXXXXXXXXXX");
    ScriptedRng rng(0.5);
    const int start = r.rocks[0].bottom;
    tick(r, 7, rng);
    EXPECT_EQ(r.rocks[0].bottom, start + 7);
    const int limit = r.g.shipTop() - r.g.shipH;
    r.rocks[5].bottom = limit - 8;
    EXPECT_EQ(tick(r, 7, rng).ending, Ending::None);
    EXPECT_EQ(tick(r, 7, rng).ending, Ending::ShipDestroyed);
    EXPECT_TRUE(r.over && !r.blasts.empty());
}

TEST(AsteroidShip, StaysUnderTheRow) {
    Round r = Wall("CAT", "QCATXXXXXXXXXXXXXXXX");
    r.leftHeld = true;
    for (int n = 0; n < 1000; ++n) moveShip(r);
    EXPECT_EQ(r.shipX, 0);
    r.leftHeld = false;
    r.rightHeld = true;
    moveShip(r);
    EXPECT_EQ(r.shipX, 50);
    for (int n = 0; n < 1000; ++n) moveShip(r);
    EXPECT_EQ(r.shipX, r.g.boxLeft(19) + r.g.boxWidth() - r.g.shipW);
}

TEST(AsteroidScore, WordLengthLevelOptionAndHowFarTheWallSank) {
    Round r = Wall("CAT", "QCATXXXXXXXXXXXXXXXX");
    EXPECT_DOUBLE_EQ(winScore(r, 3, true), 4500);
    EXPECT_DOUBLE_EQ(winScore(r, 3, false), 45000);
    for (Rock& rock : r.rocks) rock.bottom += 600;
    EXPECT_DOUBLE_EQ(winScore(r, 3, true), 3900);
    EXPECT_EQ(wonText(3900),
              "Great job! You have cleared the path to safety! Your score this round is 3900!");
}
