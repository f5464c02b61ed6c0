// Flash cards' rules: the sorted deck, the three orders, next, previous, the scroll bar, and
// which card a position shows. Pure C++ over wm_core; the screen shows what these report.
#pragma once

#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace flash {

inline constexpr char kEndText[] = "That's the end of the list!";
inline constexpr char kShowWord[] = "Show the Word";
inline constexpr char kShowMeaning[] = "Show the Meaning";

// What the card screen shows apart from the two texts.
struct CardView {
    bool nextShown = true;       // Frame1, "Next Card"
    bool previousShown = false;  // Frame2, "Previous Card"
    std::string position;        // "Card number {i} out of {n}"; empty: unchanged
};

struct Deck {
    int mode = 1;  // FlashCardMode: 1 alphabetical, 2 random, 3 from a letter
    std::vector<std::string> Alphabetize;  // every word, sorted without regard to case (0-based)
    CardView view;
};

// The order as the options screen left it; a road that skipped it plays alphabetically.
int cardMode(const SharedState& s);
// The side flag: the word is covered unless the flag is 1. The options always set -1.
bool coversWord(const SharedState& s);

// Setup: sorts the words, sets WordIndex to 0 and, in mode 3, finds the starting letter.
// Returns the message to show when no word starts with it (the deck then plays mode 1).
std::string setup(Deck& deck, SharedState& s);
std::string totalText(const SharedState& s);

// The buttons; each leaves TheWord and TheMeaning at the card to show.
void nextCard(Deck& deck, SharedState& s, Rng& rng);
void previousCard(Deck& deck, SharedState& s);
void scrollTo(Deck& deck, SharedState& s, int value);
// Picks the card at WordIndex into TheWord and TheMeaning.
void pickCard(Deck& deck, SharedState& s);

// The two label texts when the pupil asks for the hidden side: the end text past the list.
struct Faces {
    std::string word;
    std::string meaning;
};
Faces reveal(const SharedState& s);

}  // namespace flash
}  // namespace wm
