// The catalogue's cards checked against the chooser and options tables.
#include "shell/catalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <stdexcept>
#include <string>

#include "core/game_names.h"

namespace wm {
namespace {

// Throws on an unknown name, so a failed lookup fails the test instead of crashing it.
const GameCard& Get(std::string_view name) {
    const GameCard* card = FindCard(name);
    if (card == nullptr) throw std::runtime_error("no card for " + std::string(name));
    return *card;
}

TEST(Catalogue, FortyTwoCardsInCatalogueOrder) {
    const auto& cards = Catalogue();
    ASSERT_EQ(cards.size(), static_cast<std::size_t>(kGameCount));
    for (int i = 0; i < kGameCount; ++i) {
        SCOPED_TRACE(kGameNames[i]);
        EXPECT_EQ(cards[i].index, i + 1);
        EXPECT_EQ(cards[i].name, kGameNames[i]);
        EXPECT_EQ(cards[i].button, "buttons/" + std::string(kGameNames[i]) + ".jpg");
    }
}

TEST(Catalogue, FindCardIgnoresCaseOnly) {
    EXPECT_EQ(FindCard("Tic-Tac-Toe"), &Catalogue()[35]);
    EXPECT_EQ(Get("hangman").name, "HangMan");
    EXPECT_EQ(Get("BOMB SQUAD 2").name, "Bomb Squad 2");
    EXPECT_EQ(Get("bomb squad").name, "Bomb Squad");  // not its longer twin
    EXPECT_EQ(Get("breakthru").index, 7);
    EXPECT_EQ(FindCard(""), nullptr);
    EXPECT_EQ(FindCard("Hang Man"), nullptr);
    EXPECT_EQ(FindCard("Quiz "), nullptr);
    EXPECT_EQ(FindCard("vocabulary quiz"), nullptr);  // the options screen's dead Back test
    EXPECT_EQ(FindCard("Title"), nullptr);            // the high-score screen's pseudo game
}

TEST(Catalogue, FirstScreenAndClampingFollowTheListFirstGames) {
    const std::set<std::string> listFirst = {"Blind Tiles", "Crossword", "Word Maze", "Jailbreak",
                                             "BreakThru"};
    for (const GameCard& card : Catalogue()) {
        SCOPED_TRACE(card.name);
        const bool first = listFirst.count(card.name) > 0;
        EXPECT_EQ(card.options.clamped, first);
        if (first) {
            EXPECT_EQ(card.firstScreen, "ChooseList");
            EXPECT_EQ(card.eligibility.opens, "GameOptions");
        } else if (card.name == "Quiz") {
            EXPECT_EQ(card.firstScreen, "QuizOptions");
        } else if (card.name == "Flash Cards") {
            EXPECT_EQ(card.firstScreen, "FlashCardOptions");
        } else {
            EXPECT_EQ(card.firstScreen, "GameOptions");
            EXPECT_NE(card.eligibility.opens, "GameOptions");
        }
    }
}

// Every row of the chooser table is checked as data in eligibility_rows_test.cpp.

TEST(Catalogue, OptionsRowsMatchTheOptionsTable) {
    struct Row {
        const char* name;
        int min, max, start;
        OptionFrame frame;
    };
    const Row rows[] = {
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
        // Three wires at the start: a six-word list can always deal them.
        {"Bomb Squad", 2, 10, 2, OptionFrame::Hidden},
        {"Bomb Squad 2", 2, 10, 2, OptionFrame::Hidden},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const OptionsRow& o = Get(r.name).options;
        EXPECT_TRUE(o.hasDifficulty);
        EXPECT_EQ(o.min, r.min);
        EXPECT_EQ(o.max, r.max);
        EXPECT_EQ(o.start, r.start);
        EXPECT_EQ(o.frame, r.frame);
    }

    std::set<std::string> noDifficulty;
    for (const GameCard& card : Catalogue()) {
        SCOPED_TRACE(card.name);
        const OptionsRow& o = card.options;
        if (!o.hasDifficulty) noDifficulty.insert(card.name);
        EXPECT_LE(o.min, o.start);
        EXPECT_LE(o.start, o.max);
        // Only two games relabel the frame or the easy end of the slider.
        if (card.name != "Word Search" && card.name != "Scramble") {
            EXPECT_EQ(o.frameCaption, "Show Word Meaning?");
            EXPECT_EQ(o.option1, "Don't Show");
            EXPECT_EQ(o.option2, "Show");
        }
        if (card.name != "Scramble") {
            EXPECT_EQ(o.easyLabel, "Easy");
        }
    }
    EXPECT_EQ(noDifficulty,
              (std::set<std::string>{"Pachinko", "Speed Type", "Flash Cards", "Safe Cracker",
                                     "Tower Assault", "Spell Crush"}));
    EXPECT_EQ(Get("Safe Cracker").options.frame, OptionFrame::Shown);
}

TEST(Catalogue, WordSearchAndScrambleRelabelTheirOptions) {
    const OptionsRow& search = Get("Word Search").options;
    EXPECT_EQ(search.min, 5);
    EXPECT_EQ(search.max, 20);
    EXPECT_EQ(search.start, 12);
    EXPECT_EQ(search.frame, OptionFrame::Shown);
    EXPECT_EQ(search.frameCaption, "How do you want the clue?");
    EXPECT_EQ(search.option1, "Clue is Word (Easy)");
    EXPECT_EQ(search.option2, "Clue is Definition");
    EXPECT_EQ(search.easyLabel, "Easy");

    const OptionsRow& scramble = Get("Scramble").options;
    EXPECT_EQ(scramble.min, 1);
    EXPECT_EQ(scramble.max, 3);
    EXPECT_EQ(scramble.start, 1);
    EXPECT_EQ(scramble.frameCaption, "Scatter Letters?");
    EXPECT_EQ(scramble.option1, "Scatter (Harder)");
    EXPECT_EQ(scramble.option2, "Don't Scatter (Easier)");
    EXPECT_EQ(scramble.easyLabel, "Normal");
}

TEST(Catalogue, HowToTextsBeginAsGivenAndStayReadable) {
    const std::map<std::string, std::string> begins = {
        {"Pachinko", "Answer questions to earn up to five disks"},
        {"Froggy", "Use the arrow keys on your keyboard to safely guide froggy"},
        {"Slingshot", "Use the mouse to click on the slingshot"},
        {"Hang Glider", "Use the up and down arrow keys"},
        {"Bomb Squad 2", "You are part of a special unit"},
        {"Bomb Squad", "You are part of a special unit"},
        {"Tic-Tac-Toe", "Play a game of Tic-Tac-Toe against the computer."},
        {"Short Circuit", "Connect the light bulb to the battery"},
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
        {"Spell Crush", "You will see four words."},
        {"Letter Toss", "You will see 2 to 4 definitions"},
        {"Bridge Out", "The bridge is out!"},
        {"Wheel of Money", "Welcome to the Wheel of Money game show!"},
        {"Bug Spray", "A twist on the classic HANGMAN game."},
    };
    ASSERT_EQ(begins.size(), static_cast<std::size_t>(kGameCount));
    std::set<std::string> seen;
    for (const GameCard& card : Catalogue()) {
        SCOPED_TRACE(card.name);
        const std::string& text = card.howTo;
        ASSERT_TRUE(begins.count(card.name));
        EXPECT_EQ(text.rfind(begins.at(card.name), 0), 0u);
        EXPECT_GE(text.size(), 140u);
        EXPECT_LE(text.size(), 600u);
        EXPECT_TRUE(seen.insert(text).second) << "shares its text with another game";
        EXPECT_EQ(text.find("  "), std::string::npos);
        EXPECT_NE(text.back(), ' ');
        for (char c : text) {
            EXPECT_TRUE(c >= 0x20 && c < 0x7f) << "not plain ASCII: " << int(c);
        }
    }
}

TEST(Catalogue, GivenHowToTextsAreWordForWord) {
    // Typos included: these are the games' own texts.
    EXPECT_EQ(Get("Short Circuit").howTo,
              "Connect the light bulb to the battery by completing the circuit. Click on the "
              "letters to spell out your vocabulry word to wire them together. If you wired them "
              "correctly, the bulb will light!");
    EXPECT_EQ(Get("Bomb Squad").howTo,
              "You are part of a special unit that has been called in to diffuse a bomb! Use the "
              "mouse to cut the wires that connect the words and definitions that DON'T MATCH. Cut "
              "them all before the timer runs out to diffuse the bomb...");
    EXPECT_EQ(Get("Bomb Squad 2").howTo,
              "You are part of a special unit that has been called in to diffuse a bomb! Use the "
              "mouse to wire the words to their matching definitions. Click on a word to connect a "
              "wire, then click on the matching definition to secure the wire. Connect all the "
              "wires before the timer runs out to diffuse the bomb...");
    EXPECT_EQ(Get("Spell Crush").howTo,
              "You will see four words. ONE of the words is spelled wrong. Use your mouse to "
              "click on the misspelled word and the safe will drop to crush it.");
    EXPECT_EQ(Get("Wheel of Money").howTo,
              "Welcome to the Wheel of Money game show! Compete for fabulous prizes and loads of "
              "money in the game show that tests your vocabulary knowledge!");
    EXPECT_EQ(Get("Tic-Tac-Toe").howTo,
              "Play a game of Tic-Tac-Toe against the computer. To choose a square, pick the "
              "definition that matches the word in the square that you want. Get three in a row "
              "in any direction to win!");
    EXPECT_EQ(Get("Pachinko").howTo,
              "Answer questions to earn up to five disks, then drop the disks into the top of the "
              "pachinko game board and watch them zig-zag to the bottom to see how many points "
              "you can win!");
}

}  // namespace
}  // namespace wm
