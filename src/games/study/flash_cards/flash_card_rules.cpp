#include "games/study/flash_cards/flash_card_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::flash {

int cardMode(const SharedState& s) {
    return s.FlashCardMode == 2 || s.FlashCardMode == 3 ? s.FlashCardMode : 1;
}

bool coversWord(const SharedState& s) {
    return s.ListChanged != 1;
}

std::string totalText(const SharedState& s) {
    return "Total cards available in this set: " + std::to_string(s.WordCount);
}

std::string setup(Deck& deck, SharedState& s) {
    deck = Deck{};
    deck.mode = cardMode(s);
    for (int i = 1; i <= s.WordCount; ++i) deck.Alphabetize.push_back(s.Words[std::size_t(i)]);
    std::stable_sort(
        deck.Alphabetize.begin(), deck.Alphabetize.end(),
        [](const std::string& a, const std::string& b) { return UCase(a) < UCase(b); });
    s.WordIndex = 0;
    if (deck.mode != 3) return {};
    const std::string letter = UCase(s.StartLetter.substr(0, 1));
    for (std::size_t i = 0; i < deck.Alphabetize.size(); ++i) {
        if (!letter.empty() && UCase(deck.Alphabetize[i].substr(0, 1)) == letter) {
            s.WordIndex = short(int(i) - 1);
            break;
        }
    }
    // Deliberate: "not found" is read from WordIndex still being 0, so a list whose first match
    // is its second entry is also told that no word starts with the letter, and starts over.
    if (s.WordIndex == 0) {
        deck.mode = 1;
        s.FlashCardMode = 1;
        return "No words in this list start with " + s.StartLetter +
               "! Starting at beginning of list instead...";
    }
    return {};
}

void pickCard(Deck& deck, SharedState& s) {
    if (deck.mode == 2) {
        const int k = s.WordIndex;
        const bool inList = k >= 1 && k <= s.WordCount;
        s.TheWord = inList ? s.Words[std::size_t(k)] : std::string();
        s.TheMeaning = inList ? s.Meanings[std::size_t(k)] : std::string();
        return;
    }
    // The sorted entry names the card; its row is the first with that word, so twin words
    // show the first row's meaning. Past the end the entry is empty and finds no row.
    const int entry = s.WordIndex - 1;
    const std::string word = entry >= 0 && entry < int(deck.Alphabetize.size())
                                 ? UCase(deck.Alphabetize[std::size_t(entry)])
                                 : std::string();
    s.TheWord.clear();
    s.TheMeaning.clear();
    for (int i = 1; i <= s.WordCount; ++i) {
        if (!word.empty() && UCase(s.Words[std::size_t(i)]) == word) {
            s.TheWord = s.Words[std::size_t(i)];
            s.TheMeaning = s.Meanings[std::size_t(i)];
            break;
        }
    }
    deck.view.position =
        "Card number " + std::to_string(s.WordIndex) + " out of " + std::to_string(s.WordCount);
}

void nextCard(Deck& deck, SharedState& s, Rng& rng) {
    if (deck.mode == 2) {
        // Random: cards may repeat, and the previous button plays no part.
        rng.Randomize();
        s.WordIndex = short(Int(rng.Rnd() * s.WordCount + 1));
    } else {
        ++s.WordIndex;
        if (s.WordIndex > 1) deck.view.previousShown = true;
    }
    // Deliberate: the lettered order steps by two cards, so every other card is skipped.
    if (deck.mode == 3) ++s.WordIndex;
    if (s.WordIndex >= s.WordCount) deck.view.nextShown = false;
    pickCard(deck, s);
}

void previousCard(Deck& deck, SharedState& s) {
    --s.WordIndex;
    deck.view.previousShown = s.WordIndex > 1;
    deck.view.nextShown = true;
    pickCard(deck, s);
}

void scrollTo(Deck& deck, SharedState& s, int value) {
    s.WordIndex = short(value);
    deck.view.previousShown = s.WordIndex > 1;
    deck.view.nextShown = s.WordIndex < s.WordCount;
    pickCard(deck, s);
}

Faces reveal(const SharedState& s) {
    if (s.TheWord.empty()) return {kEndText, kEndText};
    return {s.TheWord, s.TheMeaning};
}

}  // namespace wm::flash
