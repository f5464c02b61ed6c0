// Every game's row of the chooser's eligibility table, as data: the words-only rule and its
// message, whether a warning keeps the option, the count rule with its minimum and message, and
// the screen that opens.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "shell/catalogue.h"

namespace wm {
namespace {

using W = WordsOnlyRule;
using C = CountRule;

const std::string kM1 =
    "The list you have selected contains words only, with no definitions, and cannot be used "
    "for this game. Please choose another game or another list.";
const std::string kM2 =
    "The list you have selected contains words only, with no definitions, and cannot be played "
    "with this game. Please choose another game or another list.";
const std::string kW1 =
    "The list you have selected contains words only, with no definitions. The word meaning "
    "will not be displayed during the game.";
const std::string kW2 =
    "The list you have selected contains words only, with no definitions. The <hint> button "
    "will not be available during the game.";
const std::string kE1 =
    "There are not enough words in this vocabulary list to play this game! Please choose "
    "another list or another game.";
const std::string kE2 =
    "There are not enough words in this vocabulary list to play this game at the level you have "
    "chosen! Please choose another list or go back and lower the difficulty level.";
const std::string kCannon =
    "The list you have selected contains words only, with no definitions. During the game, the "
    "word meaning will not be displayed (making this game a bit harder than it would be "
    "otherwise...)";
const std::string kFlash =
    "The list you have selected contains words only, with no definitions, and cannot be used "
    "for flash cards. Please choose another game or another list.";
const std::string kQuiz =
    "The list you have selected contains words only, with no definitions, and cannot be used "
    "for a quiz. Please choose another game or another list.";
const std::string kSearch =
    "The list you have selected contains words only, with no definitions. The word clue will "
    "be the word and not the definition...";

std::string N(int k) {
    return "You need a list with at least " + std::to_string(k) +
           " words to play this game. Please choose another game or another list.";
}

struct Row {
    const char* game;
    W wordsOnly;
    std::string wordsOnlyText;  // empty where the list plays as it is
    bool keep;
    C count;
    int minimum;
    std::string countText;
    const char* opens;
};

const Row kRows[] = {
    {"Pachinko", W::Refuse, kM1, false, C::Below, 5, N(5), "Plachinko"},
    {"Froggy", W::Refuse, kM1, false, C::Below, 4, N(4), "FroggyForm"},
    {"Slingshot", W::Refuse, kM1, false, C::Below, 4, N(4), "SlingShot"},
    {"Hang Glider", W::Allowed, "", false, C::None, 0, "", "HangGlider"},
    {"Bomb Squad 2", W::Refuse, kM1, false, C::Below, 6, N(6), "BombSquad2"},
    {"Bomb Squad", W::Refuse, kM1, false, C::Below, 6, N(6), "BombSquad"},
    {"Tic-Tac-Toe", W::Refuse, kM1, false, C::Below, 6, N(6), "TicTacToe"},
    {"Short Circuit", W::WarnIfOption, kW1, false, C::None, 0, "", "ShortCircuit"},
    {"Flying Cow", W::Allowed, "", false, C::None, 0, "", "CowForm"},
    {"Mini Golf", W::Refuse, kM1, false, C::Below, 5, N(5), "MiniGolf"},
    {"Princess", W::WarnIfOption, kW1, false, C::None, 0, "", "frmPrincess"},
    {"Toad Race", W::Allowed, "", false, C::None, 0, "", "ToadRace"},
    {"Blind Tiles", W::Allowed, "", false, C::None, 0, "", "GameOptions"},
    {"Crossword", W::Refuse, kM1, false, C::None, 0, "", "GameOptions"},
    {"Code Breaker", W::Allowed, "", false, C::None, 0, "", "CodeBreaker"},
    {"Speed Type", W::Allowed, "", false, C::None, 0, "", "SpeedType"},
    {"Slot Machine", W::Refuse, kM1, false, C::None, 0, "", "SlotMachine"},
    {"Freeze-It", W::Allowed, "", false, C::None, 0, "", "FreezeIt"},
    {"Jailbreak", W::Refuse, kM1, false, C::None, 0, "", "GameOptions"},
    {"Cannon Shot", W::Warn, kCannon, false, C::None, 0, "", "CannonShotForm"},
    {"Word Maze", W::Allowed, "", false, C::None, 0, "", "GameOptions"},
    {"BreakThru", W::Allowed, "", false, C::None, 0, "", "GameOptions"},
    {"Asteroid Zap", W::WarnIfOption, kW1, false, C::None, 0, "", "AsteroidBlast"},
    {"Flash Cards", W::Refuse, kFlash, false, C::None, 0, "", "FlashCardForm"},
    {"Quiz", W::Refuse, kQuiz, false, C::BelowDifficulty, 0, kE1, "Quiz"},
    {"Safe Cracker", W::WarnIfOption, kW1, false, C::None, 0, "", "SafeCracker"},
    {"Word Search", W::WarnIfOption, kSearch, false, C::None, 0, "", "WordSearchForm"},
    {"HangMan", W::Warn, kW2, true, C::None, 0, "", "HangMan"},
    {"Scramble", W::Warn, kW2, true, C::None, 0, "", "Scramble"},
    {"Concentration", W::Refuse, kM1, false, C::BelowDifficulty, 0, kE2, "Concentration"},
    {"Word Zap", W::RefuseIfOption, kM1, false, C::BelowDifficulty, 0, kE2, "Zap"},
    {"Letter Drop", W::WarnIfOption, kW1, false, C::None, 0, "", "LetterFall"},
    {"Tower Assault", W::Refuse, kM2, false, C::Below, 5, kE1, "TowerGame"},
    {"Spiderwebs", W::Refuse, kM2, false, C::BelowDifficulty, 0, kE1, "SpiderGame"},
    {"Word Bricks", W::Allowed, "", false, C::BelowDifficulty, 0, kE1, "WordBricks"},
    {"Basketball", W::Refuse, kM2, false, C::Below, 10, kE1, "BasketBallForm"},
    {"Crunch Man", W::Allowed, "", false, C::None, 0, "", "CrunchManGame"},
    {"Spell Crush", W::Allowed, "", false, C::Below, 4, kE1, "SpellCrushGame"},
    {"Letter Toss", W::Refuse, kM2, false, C::BelowDifficulty, 0, kE1, "LetterTossGame"},
    {"Bridge Out", W::Allowed, "", false, C::None, 0, "", "BridgeOutGame"},
    {"Wheel of Money", W::Refuse, kM2, false, C::Below, 4, kE1, "GameShowForm"},
    {"Bug Spray", W::Allowed, "", false, C::None, 0, "", "BugSprayForm"},
};

TEST(EligibilityRows, EveryGameHasItsRow) {
    std::set<std::string> seen;
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.game);
        const GameCard* card = FindCard(row.game);
        ASSERT_NE(card, nullptr);
        seen.insert(card->name);
        const EligibilityRow& e = card->eligibility;
        EXPECT_EQ(e.wordsOnly, row.wordsOnly);
        if (row.wordsOnly != W::Allowed) {
            EXPECT_EQ(e.wordsOnlyText, row.wordsOnlyText);
        }
        if (row.wordsOnly == W::Warn || row.wordsOnly == W::WarnIfOption) {
            EXPECT_EQ(e.keepOption, row.keep);
        }
        EXPECT_EQ(e.count, row.count);
        if (row.count == C::Below) {
            EXPECT_EQ(e.minWords, row.minimum);
        }
        if (row.count != C::None) {
            EXPECT_EQ(e.countText, row.countText);
        }
        EXPECT_EQ(e.opens, row.opens);
    }
    EXPECT_EQ(seen.size(), 42u);
    EXPECT_EQ(Catalogue().size(), 42u);
}

}  // namespace
}  // namespace wm
