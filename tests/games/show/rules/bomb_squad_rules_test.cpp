#include "games/show/bomb_squad/bomb_squad_rules.h"
#include "games/show/bomb_squad2/bomb_squad2_rules.h"

#include <gtest/gtest.h>

#include "core/rng.h"
#include "list_of.h"

using namespace wm;

TEST(BombSquadDeal, CertainBadWireAndCoins) {
    SharedState s = sixWords();
    s.Meanings[1] = std::string(51, 'm');  // over 50 letters: the small font
    s.Meanings[5] = std::string(50, 'm');
    ScriptedRng rng;
    // Wire 2 is bad for certain. Wire 1: apple, the coin says good. Wire 2: brick, good by the
    // coin but bad for certain; its definition: brick, apple used; cloud. Wire 3: drum, bad:
    // eagle's meaning.
    rng.pick(2, 3).pick(1, 6).pick(2, 2).pick(2, 6).pick(2, 2).pick(2, 6).pick(1, 6).pick(3, 6);
    rng.pick(4, 6).pick(1, 2).pick(4, 6).pick(5, 6);
    auto d = bombsquad::deal(s, 2, rng);
    ASSERT_TRUE(d.ready);
    EXPECT_EQ(d.secondsLeft, 30);
    ASSERT_EQ(d.wires.size(), 3u);
    EXPECT_EQ(std::tuple(d.wires[0].word, d.wires[0].bad, d.wires[0].definition, d.wires[1].bad),
              std::tuple(1, false, 1, true));
    EXPECT_EQ(std::tuple(d.wires[1].definition, d.wires[2].word, d.wires[2].definition),
              std::tuple(3, 4, 5));
    EXPECT_EQ(std::tuple(d.wires[0].smallFont, d.wires[2].smallFont), std::tuple(true, false));
}

TEST(BombSquadDeal, LevelsAndTheUnboundedDeal) {
    // Wires and seconds of each level, held to 1..10: the first bomb's, then the second's.
    const int table[][5] = {{0, 2, 30, 2, 30}, {1, 2, 30, 2, 30}, {2, 3, 30, 3, 40},
                            {3, 4, 25, 4, 40}, {4, 5, 25, 5, 45}, {5, 6, 20, 6, 40},
                            {6, 7, 20, 7, 40}, {7, 8, 20, 8, 35}, {8, 8, 15, 8, 25},
                            {9, 8, 10, 8, 20}, {10, 8, 8, 8, 15}, {11, 8, 8, 8, 15}};
    for (auto [lv, w1, s1, w2, s2] : table) {
        const auto one = bombsquad::level(lv), two = bombsquad2::level(lv);
        EXPECT_EQ(std::tuple(one.wires, one.seconds, two.wires, two.seconds),
                  std::tuple(w1, s1, w2, s2))
            << lv;
    }
    // Eight wires from six words cannot be dealt: the deal ends instead of spinning for ever,
    // the second bomb's with two definitions left without a wire.
    SharedState s = sixWords();
    SystemRng rng;
    EXPECT_FALSE(bombsquad::deal(s, 8, rng).ready);
    const bombsquad2::Board b = bombsquad2::deal(s, 8, rng);
    EXPECT_FALSE(b.ready);
    EXPECT_EQ(std::count(b.defOwner.begin(), b.defOwner.end(), -1), 2);
    // A generator stuck on a place taken gives up after its bounded draws.
    ScriptedRng stuck(0.0);
    stuck.pick(1, 6).pick(1, 2).pick(2, 6);
    EXPECT_FALSE(bombsquad2::deal(s, 1, stuck).ready);
    EXPECT_EQ(stuck.draws, 3 + 20000);
}

TEST(BombSquadCut, SnipDefuseExplode) {
    bombsquad::Deal d;
    d.wires = {{1, 2, true}, {3, 3, false}, {4, 5, true}};
    EXPECT_EQ(bombsquad::cut(d, -1), bombsquad::CutResult::Nothing);
    EXPECT_EQ(bombsquad::cut(d, 0), bombsquad::CutResult::Snipped);
    EXPECT_EQ(bombsquad::cut(d, 0), bombsquad::CutResult::Nothing) << "already cut";
    // The last bad wire wins at once, with the good wire still standing.
    EXPECT_EQ(bombsquad::cut(d, 2), bombsquad::CutResult::Defused);
    d.wires[0].cut = d.wires[2].cut = false;
    EXPECT_EQ(bombsquad::cut(d, 1), bombsquad::CutResult::Exploded);
}

TEST(BombSquadClock, RunsOutAndPicksTheLoserText) {
    bombsquad::Deal d;
    d.secondsLeft = 2;
    EXPECT_FALSE(bombsquad::tick(d));
    EXPECT_STREQ(bombsquad::lostText(d.secondsLeft),
                 "You cut the wrong wire and set the bomb off! You lose. Would you like to give "
                 "it another try?");
    EXPECT_TRUE(bombsquad::tick(d));
    EXPECT_STREQ(bombsquad::lostText(d.secondsLeft),
                 "You did not get the bomb diffused in time! You lose. Would you like to give it "
                 "another try?");
    ScriptedRng rng;
    rng.pick(3, 4);
    EXPECT_EQ(bombsquad::winScore(100, 17, 4, rng), 100 + (500 + 17 + 3) * 4);
    bombsquad2::Board board;
    board.secondsLeft = 2;
    EXPECT_FALSE(bombsquad2::tick(board));  // one second left: not yet
    EXPECT_TRUE(bombsquad2::tick(board));
    EXPECT_STREQ(bombsquad2::tickSound(10), "spacebeep.wav");
    EXPECT_STREQ(bombsquad2::tickSound(9), "highbeep.wav");
    EXPECT_STREQ(bombsquad2::lostText(3),
                 "You connected the wrong wire and set the bomb off! You lose. Would you like to "
                 "give it another try?");
}

TEST(BombSquad2, ShuffledDefinitionsAndCarriedWires) {
    SharedState s = sixWords();
    ScriptedRng rng;
    // Eagle's meaning on DefLabel 2; brick, slot 2 taken, slot 0; frost on slot 1.
    rng.pick(5, 6).pick(3, 3).pick(5, 6).pick(2, 6).pick(3, 3).pick(1, 3);
    rng.pick(6, 6).pick(1, 3).pick(2, 3);
    auto b = bombsquad2::deal(s, 2, rng);
    ASSERT_TRUE(b.ready);
    EXPECT_EQ(b.words, (std::vector<int>{5, 2, 6}));
    EXPECT_EQ(b.defOwner, (std::vector<int>{1, 2, 0}));

    using bombsquad2::DefClick;
    EXPECT_EQ(bombsquad2::clickDefinition(b, 0), DefClick::Nothing) << "no wire carried";
    EXPECT_EQ(bombsquad2::clickWord(b, 1), bombsquad2::WordClick::PickedUp);
    EXPECT_EQ(bombsquad2::clickWord(b, 1), bombsquad2::WordClick::PickedUp) << "dropped, anew";
    EXPECT_EQ(bombsquad2::clickDefinition(b, 0), DefClick::Connected);
    EXPECT_EQ(std::pair(b.carrying, b.carried), std::pair(false, -1));
    EXPECT_EQ(bombsquad2::clickWord(b, 0), bombsquad2::WordClick::PickedUp);
    EXPECT_EQ(bombsquad2::clickWord(b, 1), bombsquad2::WordClick::Dropped) << "wired already";
    EXPECT_FALSE(b.carrying);
    bombsquad2::clickWord(b, 0);
    EXPECT_EQ(bombsquad2::clickDefinition(b, 2), DefClick::Connected);
    bombsquad2::clickWord(b, 2);
    auto wrong = b;
    EXPECT_EQ(bombsquad2::clickDefinition(wrong, 0), DefClick::Exploded);
    EXPECT_EQ(bombsquad2::clickDefinition(b, 1), DefClick::Defused);
}
