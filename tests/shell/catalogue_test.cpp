// The catalogue's cards checked against the chooser and options tables, as data: order and
// lookup, first screens, every options row with its captions, the how-to texts, and every game's
// row of the chooser's eligibility table (the words-only rule and its message, whether a warning
// keeps the option, the count rule with its minimum and message, and the screen that opens).
#include "shell/catalogue.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>

#include "../support/chooser_texts.h"
#include "core/game_names.h"

namespace wm {
namespace {

using namespace wm::test;

// Throws on an unknown name, so a failed lookup fails the test instead of crashing it.
const GameCard& Get(std::string_view name) {
    const GameCard* card = FindCard(name);
    if (card == nullptr) throw std::runtime_error("no card for " + std::string(name));
    return *card;
}

TEST(Catalogue, FortyTwoCardsInOrderFoundIgnoringCaseOnly) {
    const auto& cards = Catalogue();
    ASSERT_EQ(cards.size(), static_cast<std::size_t>(kGameCount));
    for (int i = 0; i < kGameCount; ++i) {
        SCOPED_TRACE(kGameNames[i]);
        EXPECT_EQ(cards[i].index, i + 1);
        EXPECT_EQ(cards[i].name, kGameNames[i]);
        EXPECT_EQ(cards[i].button, "buttons/" + std::string(kGameNames[i]) + ".jpg");
    }
    // FindCard ignores case only.
    EXPECT_EQ(FindCard("Tic-Tac-Toe"), &Catalogue()[35]);
    EXPECT_EQ(Get("hangman").name, "HangMan");
    EXPECT_EQ(Get("BOMB SQUAD 2").name, "Bomb Squad 2");
    EXPECT_EQ(Get("bomb squad").name, "Bomb Squad");  // not its longer twin
    EXPECT_EQ(Get("breakthru").index, 7);
    // Nor the options screen's dead Back test, nor the high-score screen's pseudo game.
    for (const char* name : {"", "Hang Man", "Quiz ", "vocabulary quiz", "Title"})
        EXPECT_EQ(FindCard(name), nullptr) << name;
}

TEST(Catalogue, FirstScreensClampingAndOptionsRows) {
    const std::set<std::string> listFirst = {"Blind Tiles", "Crossword", "Word Maze", "Jailbreak",
                                             "BreakThru"};
    for (const GameCard& card : Catalogue()) {
        SCOPED_TRACE(card.name);
        const bool first = listFirst.count(card.name) > 0;
        EXPECT_EQ(card.options.clamped, first);
        EXPECT_EQ(card.eligibility.opens == "GameOptions", first);
        EXPECT_EQ(card.firstScreen, first                        ? "ChooseList"
                                    : card.name == "Quiz"        ? "QuizOptions"
                                    : card.name == "Flash Cards" ? "FlashCardOptions"
                                                                 : "GameOptions");
    }
    // The game, the slider's least, most and start, and the frame.
    const std::tuple<const char*, int, int, int, OptionFrame> rows[] = {
        {"Froggy", 1, 9, 5, OptionFrame::Hidden},
        {"Tic-Tac-Toe", 2, 6, 4, OptionFrame::Hidden},
        {"Short Circuit", 2, 10, 5, OptionFrame::Shown},
        {"Code Breaker", 1, 50, 10, OptionFrame::Hidden},
        {"Crossword", 2, 20, 10, OptionFrame::Hidden},
        {"Blind Tiles", 3, 7, 5, OptionFrame::Hidden},
        {"Jailbreak", 2, 6, 4, OptionFrame::Hidden},
        {"Word Maze", 2, 15, 8, OptionFrame::ShownUnlessWordsOnly},
        {"Asteroid Zap", 1, 15, 3, OptionFrame::Shown},
        {"Letter Drop", 30, 240, 90, OptionFrame::Shown},
        {"Letter Toss", 2, 4, 4, OptionFrame::Hidden},
        {"Princess", 1, 15, 5, OptionFrame::Shown},
        {"HangMan", 1, 3, 2, OptionFrame::Hidden},
        {"Crunch Man", 2, 14, 7, OptionFrame::Hidden},
        {"Wheel of Money", 2, 10, 6, OptionFrame::Hidden},
        {"Word Search", 5, 20, 12, OptionFrame::Shown},
        {"Scramble", 1, 3, 1, OptionFrame::Shown},
        // Three wires at the start: a six-word list can always deal them.
        {"Bomb Squad", 2, 10, 2, OptionFrame::Hidden},
        {"Bomb Squad 2", 2, 10, 2, OptionFrame::Hidden},
    };
    for (const auto& [name, min, max, start, frame] : rows) {
        const OptionsRow& o = Get(name).options;
        EXPECT_EQ(std::tuple(o.hasDifficulty, o.min, o.max, o.start, o.frame),
                  std::tuple(true, min, max, start, frame))
            << name;
    }

    // Only two games relabel the frame or the easy end of the slider.
    const std::map<std::string, std::array<std::string, 4>> relabelled = {
        {"Word Search",
         {"How do you want the clue?", "Clue is Word (Easy)", "Clue is Definition", "Easy"}},
        {"Scramble", {"Scatter Letters?", "Scatter (Harder)", "Don't Scatter (Easier)", "Normal"}}};
    std::set<std::string> noDifficulty;
    for (const GameCard& card : Catalogue()) {
        SCOPED_TRACE(card.name);
        const OptionsRow& o = card.options;
        if (!o.hasDifficulty) noDifficulty.insert(card.name);
        EXPECT_TRUE(o.min <= o.start && o.start <= o.max);
        const auto labels =
            relabelled.count(card.name)
                ? relabelled.at(card.name)
                : std::array<std::string, 4>{"Show Word Meaning?", "Don't Show", "Show", "Easy"};
        EXPECT_EQ((std::array<std::string, 4>{o.frameCaption, o.option1, o.option2, o.easyLabel}),
                  labels);
    }
    EXPECT_EQ(noDifficulty,
              (std::set<std::string>{"Pachinko", "Speed Type", "Flash Cards", "Safe Cracker",
                                     "Tower Assault", "Spell Crush"}));
    EXPECT_EQ(Get("Safe Cracker").options.frame, OptionFrame::Shown);
}

TEST(Catalogue, HowToTextsBeginAsGivenAndStayReadable) {
    // Some are given whole, typos included: these are the games' own texts.
    const std::set<std::string> whole = {"Short Circuit", "Bomb Squad",     "Bomb Squad 2",
                                         "Spell Crush",   "Wheel of Money", "Tic-Tac-Toe",
                                         "Pachinko"};
    const std::map<std::string, std::string> begins = {
        {"Pachinko",
         "Answer questions to earn up to five disks, then drop the disks into the top of the "
         "pachinko game board and watch them zig-zag to the bottom to see how many points "
         "you can win!"},
        {"Froggy", "Use the arrow keys on your keyboard to safely guide froggy"},
        {"Slingshot", "Use the mouse to click on the slingshot"},
        {"Hang Glider", "Use the up and down arrow keys"},
        {"Bomb Squad 2",
         "You are part of a special unit that has been called in to diffuse a bomb! Use the "
         "mouse to wire the words to their matching definitions. Click on a word to connect a "
         "wire, then click on the matching definition to secure the wire. Connect all the "
         "wires before the timer runs out to diffuse the bomb..."},
        {"Bomb Squad",
         "You are part of a special unit that has been called in to diffuse a bomb! Use the "
         "mouse to cut the wires that connect the words and definitions that DON'T MATCH. Cut "
         "them all before the timer runs out to diffuse the bomb..."},
        {"Tic-Tac-Toe",
         "Play a game of Tic-Tac-Toe against the computer. To choose a square, pick the "
         "definition that matches the word in the square that you want. Get three in a row "
         "in any direction to win!"},
        {"Short Circuit",
         "Connect the light bulb to the battery by completing the circuit. Click on the "
         "letters to spell out your vocabulry word to wire them together. If you wired them "
         "correctly, the bulb will light!"},
        {"Flying Cow", "A twist on the classic HANGMAN game."},
        {"Mini Golf", "Use the mouse to hit the ball"},
        {"Princess", "Help the princess cross the drawbridge"},
        {"Toad Race", "It's a race!"},
        {"Crossword", "When you click on a box in the puzzle"},
        {"Blind Tiles", "Blind Tiles is similar to building a crossword puzzle."},
        {"Code Breaker", "You will be given one of your vocabulary words"},
        {"Speed Type", "The rules for Speed Type are simple:"},
        {"Slot Machine", "A definition will appear at the bottom of the screen."},
        {"Freeze-It", "The word will be revealed to you one letter at a time."},
        {"Jailbreak", "Break out of jail"},
        {"Cannon Shot", "You will be given control of a cannon"},
        {"BreakThru", "On the right side of the screen will be a wall"},
        {"Word Maze", "Try to make your way from the beginning of the maze"},
        {"Asteroid Zap", "Your ship has flown into an asteroid field!"},
        {"Flash Cards", "Flash cards are a great way to learn"},
        {"Quiz", "You will see a question at the top of the screen"},
        {"Safe Cracker", "Try to crack the safe!"},
        {"Word Search", "Use the mouse to highlight the words"},
        {"HangMan", "Try to guess the vocabulary word!"},
        {"Scramble", "A scrambled vocabulary word will appear"},
        {"Concentration", "The classic card game of concentration!"},
        {"Word Zap", "It's a vocabulary shooting gallery!"},
        {"Letter Drop", "Using the left and right arrow keys on the keyboard"},
        {"Tower Assault", "Using only the right and left arrow keys"},
        {"Spiderwebs", "A definition will appear at the top of the screen."},
        {"Word Bricks", "Pick up the pieces of broken words"},
        {"Basketball", "Use the mouse to pick up the ball"},
        {"Crunch Man", "You will see a definition at the top of the screen."},
        {"Spell Crush",
         "You will see four words. ONE of the words is spelled wrong. Use your mouse to "
         "click on the misspelled word and the safe will drop to crush it."},
        {"Letter Toss", "You will see 2 to 4 definitions"},
        {"Bridge Out", "The bridge is out!"},
        {"Wheel of Money",
         "Welcome to the Wheel of Money game show! Compete for fabulous prizes and loads of "
         "money in the game show that tests your vocabulary knowledge!"},
        {"Bug Spray", "A twist on the classic HANGMAN game."},
    };
    ASSERT_EQ(begins.size(), static_cast<std::size_t>(kGameCount));
    std::set<std::string> seen;
    for (const GameCard& card : Catalogue()) {
        SCOPED_TRACE(card.name);
        const std::string& text = card.howTo;
        ASSERT_TRUE(begins.count(card.name));
        EXPECT_EQ(text.rfind(begins.at(card.name), 0), 0u);
        if (whole.count(card.name)) EXPECT_EQ(text, begins.at(card.name));
        EXPECT_TRUE(text.size() >= 140u && text.size() <= 600u) << text.size();
        EXPECT_TRUE(seen.insert(text).second) << "shares its text with another game";
        EXPECT_TRUE(text.find("  ") == std::string::npos && text.back() != ' ');
        for (char c : text) EXPECT_TRUE(c >= 0x20 && c < 0x7f) << "not plain ASCII: " << int(c);
    }
}

using W = WordsOnlyRule;
using C = CountRule;

// The game; the words-only rule, its message ("" where the list plays as it is) and whether a
// warning keeps the option; the count rule, its minimum and message; the screen that opens.
const std::tuple<const char*, W, std::string, bool, C, int, std::string, const char*> kRows[] = {
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
    for (const auto& [game, wordsOnly, wordsOnlyText, keep, count, minimum, countText, opens] :
         kRows) {
        SCOPED_TRACE(game);
        const EligibilityRow& e = Get(game).eligibility;
        seen.insert(Get(game).name);
        EXPECT_EQ(std::tuple(e.wordsOnly, e.count, e.opens), std::tuple(wordsOnly, count, opens));
        if (wordsOnly != W::Allowed) EXPECT_EQ(e.wordsOnlyText, wordsOnlyText);
        if (wordsOnly == W::Warn || wordsOnly == W::WarnIfOption) EXPECT_EQ(e.keepOption, keep);
        if (count == C::Below) EXPECT_EQ(e.minWords, minimum);
        if (count != C::None) EXPECT_EQ(e.countText, countText);
    }
    EXPECT_EQ(std::tuple(seen.size(), Catalogue().size()), std::tuple(42u, 42u));
}

}  // namespace
}  // namespace wm
