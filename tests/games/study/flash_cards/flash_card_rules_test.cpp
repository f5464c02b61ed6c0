// Flash cards' orders over a scripted generator: alphabetical with its buttons and scroll bar,
// from a letter with its step by two and its end past the list, the letter not found (and the
// second-entry quirk), twin words, and random cards.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "games/study/flash_cards/flash_card_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::flash;

namespace {

SharedState List(const std::vector<std::pair<std::string, std::string>>& rows, int mode,
                 std::string letter = "A") {
    SharedState s = test::PairsList(rows);
    s.FlashCardMode = short(mode);
    s.StartLetter = letter;
    s.ListChanged = -1;
    return s;
}

const std::vector<std::pair<std::string, std::string>> kAnimals = {
    {"eel", "slippery"}, {"Cat", "purrs"}, {"ant", "tiny"}, {"dog", "barks"}, {"bee", "buzzes"}};

}  // namespace

TEST(FlashCardRules, AlphabeticalWalkWithButtonsAndScrollBar) {
    SharedState s = List(kAnimals, 1);
    ScriptedRng rng;
    Deck deck;
    EXPECT_EQ(setup(deck, s), "");
    EXPECT_EQ(deck.Alphabetize, (std::vector<std::string>{"ant", "bee", "Cat", "dog", "eel"}));
    EXPECT_EQ(totalText(s), "Total cards available in this set: 5");
    const char* expected[] = {"ant", "bee", "Cat", "dog", "eel"};
    for (int i = 1; i <= 5; ++i) {
        nextCard(deck, s, rng);
        const CardView& v = deck.view;
        EXPECT_EQ(std::tuple(s.WordIndex, s.TheWord, v.previousShown, v.nextShown, v.position),
                  std::tuple(i, expected[i - 1], i > 1, i < 5,
                             "Card number " + std::to_string(i) + " out of 5"));
    }
    EXPECT_EQ(s.TheMeaning, "slippery");
    for (int i = 4; i >= 1; --i) {
        previousCard(deck, s);
        EXPECT_EQ(std::tuple(s.TheWord, deck.view.previousShown, deck.view.nextShown),
                  std::tuple(expected[i - 1], i > 1, true));
    }
    scrollTo(deck, s, 3);
    EXPECT_EQ(std::tuple(s.TheWord, deck.view.previousShown), std::tuple("Cat", true));
    scrollTo(deck, s, 1);
    EXPECT_EQ(std::tuple(s.TheWord, deck.view.previousShown), std::tuple("ant", false));
    EXPECT_EQ(rng.draws, 0);
}

TEST(FlashCardRules, FromALetterStepsByTwoAndRunsPastTheEnd) {
    // The letter, the words of the first cards ("" past the end).
    const std::pair<const char*, std::vector<std::string>> rows[] = {
        {"a", {"ant", "Cat", "eel"}},
        {"c", {"Cat", "eel"}},
        {"D", {"dog", ""}},  // the last letter but one: the step passes WordCount
        {"e", {"eel"}},
    };
    for (const auto& [letter, shown] : rows) {
        SCOPED_TRACE(letter);
        SharedState s = List(kAnimals, 3, letter);
        ScriptedRng rng;
        Deck deck;
        EXPECT_EQ(setup(deck, s), "");
        for (const std::string& word : shown) {
            nextCard(deck, s, rng);
            EXPECT_EQ(s.TheWord, word);
        }
        EXPECT_FALSE(deck.view.nextShown);
        if (shown.back().empty())  // past the end both faces read the end text
            EXPECT_EQ(reveal(s).word + "|" + reveal(s).meaning,
                      "That's the end of the list!|That's the end of the list!");
    }
}

TEST(FlashCardRules, LetterNotFoundStartsAtTheBeginning) {
    for (const char* letter : {"z", "B"}) {
        // "B" matches the second sorted entry: kept, it is reported as not found.
        SCOPED_TRACE(letter);
        SharedState s = List(kAnimals, 3, letter);
        Deck deck;
        EXPECT_EQ(setup(deck, s), std::string("No words in this list start with ") + letter +
                                      "! Starting at beginning of list instead...");
        EXPECT_EQ(std::tuple(deck.mode, s.FlashCardMode, s.WordIndex), std::tuple(1, 1, 0));
        ScriptedRng rng;
        nextCard(deck, s, rng);
        nextCard(deck, s, rng);
        EXPECT_EQ(s.TheWord, "bee");  // one step at a time now
    }
}

TEST(FlashCardRules, TwinWordsShowTheFirstRowsMeaning) {
    SharedState s = List({{"bat", "flies at night"}, {"ace", "a card"}, {"Bat", "hits balls"}}, 1);
    ScriptedRng rng;
    Deck deck;
    setup(deck, s);
    // Twins keep their order.
    EXPECT_EQ(deck.Alphabetize, (std::vector<std::string>{"ace", "bat", "Bat"}));
    nextCard(deck, s, rng);
    nextCard(deck, s, rng);
    EXPECT_EQ(s.TheMeaning, "flies at night");
    nextCard(deck, s, rng);
    EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning), std::tuple("bat", "flies at night"));
}

TEST(FlashCardRules, RandomCardsRepeatAndNeverShowPrevious) {
    SharedState s = List(kAnimals, 2);
    ScriptedRng rng;
    rng.pick(4, 5).pick(4, 5).pick(2, 5).pick(5, 5);
    Deck deck;
    setup(deck, s);
    const std::pair<const char*, const char*> rows[] = {
        {"dog", "barks"}, {"dog", "barks"}, {"Cat", "purrs"}, {"bee", "buzzes"}};
    for (const auto& [w, m] : rows) {
        nextCard(deck, s, rng);
        // The list's own row, not the sorted entry.
        EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, deck.view.previousShown,
                             deck.view.position.empty()),
                  std::tuple(w, m, false, true));
    }
    // The last row drawn hides Next for good.
    EXPECT_FALSE(deck.view.nextShown);
    EXPECT_EQ(rng.randomizeCount, 4);
    // An empty list has no card to draw.
    SharedState none = List({}, 2);
    setup(deck, none);
    nextCard(deck, none, rng);
    EXPECT_EQ(reveal(none).word, "That's the end of the list!");
}

TEST(FlashCardRules, TheWordSideIsAlwaysCoveredFromTheOptions) {
    SharedState s = List(kAnimals, 1);
    for (auto [changed, covers] : {std::pair{-1, true}, {0, true}, {1, false}}) {  // 1: never set
        s.ListChanged = changed;
        EXPECT_EQ(coversWord(s), covers) << changed;
    }
    for (auto [mode, used] : {std::pair{0, 1}, {1, 1}, {2, 2}, {3, 3}, {4, 1}, {-2, 1}}) {
        s.FlashCardMode = mode;
        EXPECT_EQ(cardMode(s), used) << mode;
    }
}
