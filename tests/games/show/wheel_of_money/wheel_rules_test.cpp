// Wheel of Money's rules over a scripted generator: the lap, the flash, the mystery slots and
// the money line, each mini-game's draw and verdict, the clock, the end of the spins.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "games/show/wheel_of_money/wheel_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::wheel;
using wm::test::PairsList;

namespace {

SharedState Animals(int difficulty = 2) {
    return PairsList({{"zebra", "a striped horse"},
                      {"otter", "a river swimmer"},
                      {"lion", "a big cat"},
                      {"frog", "it hops and croaks"},
                      {"owl", "a night bird"}},
                     difficulty);
}

// A started game, the wheel stopped on `slot`.
WheelState On(int slot, SharedState& s, ScriptedRng& setup) {
    WheelState w;
    SetupGame(s, w, setup);
    AnimationEnded(w);
    ClickCommand(w);
    w.WheelPos = slot;
    StopWheel(w);
    while (!Flash(w)) {
    }
    return w;
}

}  // namespace

TEST(Wheel, OneLapWalksTheOvalNotTheIndices) {
    WheelState w;
    std::vector<int> lap{w.WheelPos};
    for (int i = 0; i < kSlots; ++i) {
        StepWheel(w);
        lap.push_back(w.WheelPos);
    }
    EXPECT_EQ(lap, (std::vector<int>{0, 1, 3, 4, 2, 5, 11, 10, 9, 8, 7, 6, 0}));
    // Each slot's caption, label place and marker place, in twips.
    const std::tuple<std::string, int, int, int, int> ring[kSlots] = {
        {"Scramble!", 960, 1110, 3600, 1200},         {"Type-It!", 600, 1725, 3240, 1800},
        {"Spell-It!", 960, 3585, 3600, 3645},         {"?????", 120, 2400, 2760, 2460},
        {"Definition Match!", 600, 3000, 3240, 3060}, {"Too Many!", 3113, 4200, 4253, 3840},
        {"Letter Change!", 3113, 480, 4253, 960},     {"True or False?", 5280, 1095, 4920, 1155},
        {"Back-Words!", 5640, 1725, 5280, 1785},      {"?????", 6120, 2340, 5760, 2400},
        {"Word Match!", 5640, 2955, 5280, 3000},      {"Fill-In!", 5280, 3585, 4920, 3645}};
    for (int i = 0; i < kSlots; ++i) {
        const Slot& k = kWheel[i];
        EXPECT_EQ(std::tuple(std::string(k.caption), k.left, k.top, k.markerLeft, k.markerTop),
                  ring[i])
            << i;
    }
}

TEST(Wheel, ClockAndSpellItTexts) {
    EXPECT_EQ(TimeText(7), "Time: 7");
    SharedState s = Animals();
    ScriptedRng setup;
    WheelState w = On(2, s, setup);  // Spell-It!
    ScriptedRng rng(0.3);
    StartSlot(s, w, rng);
    EXPECT_EQ(w.Label1,
              "Choose the CORRECTLY SPELLED word that matches the definition shown before the "
              "time runs out! Good luck!");
}

TEST(Wheel, OnlyASpinningWheelStopsAndTwentyFlashesEndOnTheStartColour) {
    SharedState s = Animals();
    ScriptedRng rng;
    WheelState w;
    w.NextAction = Action::EndGame;  // left by the last game
    SetupGame(s, w, rng);
    EXPECT_FALSE(StopWheel(w));      // not spinning yet: a key does nothing
    EXPECT_FALSE(w.commandEnabled);  // the intro plays first
    AnimationEnded(w);
    EXPECT_EQ(ClickCommand(w), Action::ToWheel);
    EXPECT_TRUE(w.Spinning && w.wheelShown);
    EXPECT_EQ(w.captions[4], "Definition Match!");
    EXPECT_TRUE(StopWheel(w));
    EXPECT_FALSE(StopWheel(w));  // a key during the flash does not touch the wheel
    int flashes = 0;
    while (!Flash(w)) ++flashes;
    EXPECT_EQ(std::tuple(flashes + 1, w.flashRed), std::tuple(20, false));
}

TEST(Mystery, ThiefLeavesANegativeTotalAndFortuneBringsItBack) {
    SharedState s = Animals(3);
    ScriptedRng setup;
    WheelState w = On(3, s, setup);
    ScriptedRng rng;
    rng.pick(7, 10).pick(100, 500);  // the Thief, 100 x 3
    SlotStart st = StartSlot(s, w, rng);
    EXPECT_EQ(std::tuple(st.show, st.ooh, s.Score, TotalText(s.Score)),
              std::tuple(Show::Thief, true, -300, "Cash and Prize Total:  $-300.00"));
    EXPECT_EQ(w.Label1,
              "Oooooh! Tough Break! You hit the THIEF. He stole 300 dollars from your jackpot! "
              "Try to be more careful next time...");
    EXPECT_EQ(w.captions[9], "THIEF!");  // label 9, though slot 3 stopped: kept
    // The button waits for the animation's end.
    EXPECT_EQ(std::tuple(w.SpinsLeft, w.commandEnabled, w.NextAction, rng.randomizeCount),
              std::tuple(9, false, Action::ToWheel, 1));

    EXPECT_EQ(ClickCommand(w), Action::ToWheel);
    EXPECT_EQ(w.captions[9], "?????");
    w.WheelPos = 9;
    StopWheel(w);
    ScriptedRng luck;
    luck.pick(4, 10).pick(200, 500);
    st = StartSlot(s, w, luck);
    EXPECT_EQ(std::tuple(st.show, s.Score), std::tuple(Show::Fortune, 300));
    EXPECT_EQ(w.Label1, "Congratulations! You hit the FORTUNE. You have won $600.00!");
}

TEST(Mystery, TheLastSpinEndsTheGameWithTheShortThiefText) {
    SharedState s = Animals();
    ScriptedRng setup;
    WheelState w = On(9, s, setup);
    w.SpinsLeft = 1;
    ScriptedRng rng;
    rng.pick(5, 10).pick(50, 500);
    StartSlot(s, w, rng);
    EXPECT_EQ(std::tuple(w.SpinsLeft, w.NextAction, w.Command1),
              std::tuple(0, Action::EndGame, "Click here to continue..."));
    EXPECT_EQ(w.Label1,
              "Oooooh! Tough Break! You hit the THIEF. He stole $100.00 from your jackpot!");
    AnimationEnded(w);
    EXPECT_EQ(ClickCommand(w), Action::EndGame);
    EXPECT_EQ(w.HeadLabel, "Game Over");
    EXPECT_EQ(EndGame(w, s), Ending::Practice);  // below 1
    s.Score = 1;
    EXPECT_EQ(EndGame(w, s), Ending::HandOff);
}

TEST(MiniGames, TypeItDrawsPrizeThenWordAndJudgesWithoutTrimming) {
    SharedState s = Animals(10);
    ScriptedRng setup;
    WheelState w = On(1, s, setup);
    ScriptedRng rng;
    rng.pick(42, 500).pick(3, 5);
    StartSlot(s, w, rng);
    // 38 - 3 x 10 seconds.
    EXPECT_EQ(std::tuple(w.SecondsLeft, w.PrizeAmount, w.question),
              std::tuple(8, 420, "\"a big cat\""));
    EXPECT_EQ(w.Label1,
              "You will have 8 seconds to type out the word that matches the definition. Good "
              "luck!");
    EXPECT_EQ(w.Command1, "Click here when you are ready to play...");
    EXPECT_EQ(ClickCommand(w), Action::Type);
    EXPECT_TRUE(w.timer4);
    Verdict v = CheckTyped(s, w, "lion ");
    EXPECT_EQ(std::tuple(v.decided, v.right, s.Score), std::tuple(true, false, 0));
    EXPECT_EQ(w.Label1, "Ooooh! So sorry. The word you were looking for was \"lion\".");
    EXPECT_EQ(w.Command1, "Click here give the wheel another spin...");
}

TEST(MiniGames, BackWordsAndTheQuestionAsAsked) {
    SharedState s = Animals();
    ScriptedRng setup;
    WheelState w = On(8, s, setup);
    ScriptedRng rng(0.0);
    rng.pick(1, 500).pick(4, 5).pick(1, 4);
    StartSlot(s, w, rng);
    EXPECT_EQ(w.question, "Which of these is one of your vocabulry words spelled BACKWARDS?");
    EXPECT_EQ(std::tuple(w.choices[0], w.choices[1]), std::tuple("GORF", "AAAA"));
    EXPECT_EQ(w.ExcludedChoices, (std::array<long long, 3>{}));  // cleared, never filled
}

TEST(MiniGames, FillInShowsTheFirstLetterAndForcesABlankPastSeventyPercent) {
    ScriptedRng never(0.99);  // rolls of 100: no letter would go on its own
    EXPECT_EQ(FillInText("abcdefghij", 2, never), "abcdefg _ ij");
    ScriptedRng always(0.0);  // rolls of 1: every letter would go, but not far past 30 percent
    EXPECT_EQ(FillInText("abcdefghij", 9, always), "a _  _  _  _ fghij");
    // At the top level a roll of 100 is not above 100: even the first letter goes.
    ScriptedRng top(0.0);
    EXPECT_EQ(FillInText("abc", 10, top), " _  _  _ ");
    ScriptedRng two(0.99);
    EXPECT_EQ(FillInText("ab", 2, two), "a _ ");
}

TEST(MiniGames, TooManyHidesTheWordAmongCapitalsAndAnyRightRemovalWins) {
    SharedState s = PairsList({{"cat", "a pet"}, {"b", "x"}, {"c", "y"}, {"d", "z"}}, 2);
    ScriptedRng setup;
    WheelState w = On(5, s, setup);
    ScriptedRng rng;
    // Prize, word 1; E = Int(19 x Rnd + 1) = 1, raised to 3; the places 1, 4, 1 (again), 6 with
    // their letters A, T, X.
    rng.pick(1, 500).pick(1, 4).then(0.0);
    rng.pick(1, 6).pick(1, 26).pick(4, 6).pick(20, 26).pick(1, 6).pick(6, 6).pick(24, 26);
    StartSlot(s, w, rng);
    EXPECT_EQ(w.tileCount, 6);
    EXPECT_EQ((std::vector<std::string>(w.tiles.begin(), w.tiles.begin() + 6)),
              (std::vector<std::string>{"A", "C", "A", "T", "T", "X"}));
    EXPECT_EQ(w.question, "a pet");
    ClickCommand(w);
    // Removing the first A, the second T and the X leaves CAT: right, though not the extras.
    EXPECT_FALSE(ClickTile(s, w, 0).decided);
    EXPECT_FALSE(ClickTile(s, w, 4).decided);
    EXPECT_TRUE(ClickTile(s, w, 5).right);
}

TEST(MiniGames, WordsTooLongOrOfOneLetterEndTheSpinInsteadOfHanging) {
    SharedState s = PairsList({{"pneumonoultramicroscopics", "long"},
                               {"supercalifragilisticexpi", "long"},
                               {"antidisestablishmentarian", "long"},
                               {"floccinaucinihilipilifica", "long"}},
                              2);
    ScriptedRng setup;
    WheelState w = On(5, s, setup);
    SystemRng rng;
    SlotStart st = StartSlot(s, w, rng);
    EXPECT_FALSE(st.refusal.empty());
    SharedState edge = PairsList({{std::string(21, 'q'), "long"}}, 2);  // 21 letters still fit
    WheelState e = On(5, edge, setup);
    EXPECT_TRUE(StartSlot(edge, e, rng).refusal.empty());
    EXPECT_EQ(std::tuple(w.NextAction, w.SpinsLeft), std::tuple(Action::ToWheel, 9));

    SharedState same =
        PairsList({{"aaa", "x"}, {"bbb", "y"}, {"ccc", "z"}, {"Dd", "w"}, {"e", "v"}}, 2);
    WheelState v = On(6, same, setup);
    EXPECT_EQ(StartSlot(same, v, rng).refusal,
              "None of the words on this list can be used for Letter Change! This spin is over. "
              "Spin again for another game!");
    EXPECT_EQ(v.Command1, "Click here give the wheel another spin...");
}

TEST(Clock, TimeOutNamesTheWordOnlyForTheLetterGamesAndRestartLeavesItRunning) {
    SharedState s = Animals(10);
    ScriptedRng setup;
    WheelState w = On(5, s, setup);
    ScriptedRng rng(0.1);
    StartSlot(s, w, rng);
    ClickCommand(w);
    EXPECT_EQ(w.SecondsLeft, 3);
    EXPECT_FALSE(CountDown(w));
    EXPECT_FALSE(CountDown(w));
    // Restart in the middle: the countdown is not stopped.
    SetupGame(s, w, setup);
    EXPECT_TRUE(w.timer4);
    EXPECT_TRUE(CountDown(w));
    // Over the welcome; the frame is gone, so the word is not named.
    EXPECT_EQ(w.Label1, "Oops! Your time ran out! Try to be a little faster next time!");
    EXPECT_EQ(std::tuple(w.NextAction, w.SpinsLeft), std::tuple(Action::ToWheel, 10));
    // The intro still plays: the button shows but cannot be pressed until it ends.
    EXPECT_EQ(std::tuple(w.commandShown, w.commandEnabled), std::tuple(true, false));
    AnimationEnded(w);
    EXPECT_TRUE(w.commandEnabled);

    WheelState x = On(6, s, setup);
    ScriptedRng again(0.1);
    again.pick(1, 500).pick(2, 5).pick(2, 5).pick(4, 5);  // otter: the T and the E swap
    StartSlot(s, x, again);
    EXPECT_EQ(std::pair(x.SwapFirst, x.SwapSecond), std::pair(2, 4));
    ClickCommand(x);
    while (!CountDown(x)) {
    }
    EXPECT_EQ(x.Label1,
              "Oops! Your time ran out! Try to be a little faster next time! The word you were "
              "looking for was \"otter\".");
}

TEST(WheelChoice, TheRightChoiceWinsItsPrizeAndAWrongOneNamesIt) {
    auto board = [] {
        WheelState w;
        w.frame = Frame::Choice;
        w.choices = {"cat", "dog", "owl", "bat"};
        w.choiceShown = {true, true, true, true};
        w.RightChoice = 0;
        w.PrizeAmount = 300;
        w.SpinsLeft = 2;
        return w;
    };
    SharedState s;
    s.Score = 100;
    WheelState w = board();
    const Verdict won = ClickChoice(s, w, 0);  // the first choice counts as any other
    EXPECT_TRUE(won.right && won.decided);
    EXPECT_EQ(std::tuple(s.Score, w.Label1, w.commandShown),
              std::tuple(400, "Great job! $300.00 has been added to your winnings!", true));
    EXPECT_EQ(w.Command1, "Click here give the wheel another spin...");
    w = board();
    w.SpinsLeft = 0;
    const Verdict lost = ClickChoice(s, w, 2);
    EXPECT_TRUE(!lost.right && lost.decided);
    EXPECT_EQ(w.Label1, "Ooooh! So sorry. The correct choice was \"cat\".");
    EXPECT_EQ(std::tuple(w.commandShown, w.NextAction), std::tuple(true, Action::EndGame));
    EXPECT_FALSE(ClickChoice(s, w, 0).decided);  // once decided, the choices are done
}
