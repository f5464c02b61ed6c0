// Safe Cracker: the combination of each safe is a hidden word. The pupil types whole guesses of
// its length; the tumblers light green for a right letter in the right place, amber for a letter
// the word has elsewhere, grey for one it does not have. Six tries a safe, five safes a game.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::safe {

constexpr int kSafesPerGame = 5;
constexpr int kTries = 6;
constexpr int kMaxLetters = 12;

constexpr const char* kNoWord =
    "This list has no word that Safe Cracker can use (the words are empty or longer than 12 "
    "letters). Please choose another list.";

// What a tumbler (or a key of the keyboard) is known to be. The order is the order of
// knowledge: a key shows the best it has been.
enum class Mark { Unknown, Grey, Amber, Green };

// Letters and digits are guessed; blanks, hyphens and any other sign stand fixed in the row.
bool fixedChar(char c);
// What can be typed into a tumbler: a letter or a digit.
bool typable(char c);
// Something to guess, and no more than kMaxLetters characters.
bool playable(const std::string& word);
// A safe opened after `triesUsed` tries: (7 - tries used) x 50 + length x 10.
int safePoints(int triesUsed, int length);

// The tumblers of a whole guess (the word's length, fixed signs in place) against the word.
// Case does not matter, accents do. A letter the word has n times lights (green or amber) at
// most n times: the greens take their share first, then the ambers from the left.
// Fixed places, and places past a short guess, come back as Unknown.
std::vector<Mark> markGuess(const std::string& word, const std::string& guess);

// The next word: Int(Rnd x WordCount + 1), skipping words not playable and, while unplayed ones
// remain, words drawn already (by their text). Bounded: after a run of unlucky draws it walks
// on from the last draw. 0 when the list has no playable word.
int drawWord(const SharedState& s, Rng& rng, const std::vector<int>& drawn);

enum class Entry {
    Ignored,  // not taken: the safe is decided, the row is full, or no letter or digit
    Typed,
    Erased,
    Short,    // Enter with tumblers still empty
    Repeat,   // the same guess again: it costs no try
    Wrong,    // marked; tries remain
    Opened,   // all green: the safe's points are in the score
    Alarm,    // the sixth try was wrong
};

struct Row {
    std::string guess;  // the whole guess, fixed signs in place
    std::vector<Mark> marks;
};

class Game {
public:
    // A new game: reseed, score 0, the first safe. False: nothing to play.
    bool start(SharedState& s, Rng& rng);
    // The next safe of the game. False: the game is done, or nothing to play.
    bool nextSafe(SharedState& s, Rng& rng);

    Entry type(char c);
    Entry erase();
    Entry enter(SharedState& s);

    const std::string& word() const { return word_; }
    int safeNumber() const { return number_; }  // 1 to kSafesPerGame
    bool lastSafe() const { return number_ >= kSafesPerGame; }
    const std::vector<Row>& rows() const { return rows_; }
    int triesUsed() const { return int(rows_.size()); }
    int triesLeft() const { return kTries - triesUsed(); }
    bool decided() const { return decided_; }
    bool opened() const { return opened_; }
    int safesOpened() const { return safesOpened_; }
    int lastPoints() const { return lastPoints_; }
    // The row being typed: the word's length, fixed signs in place, ' ' where nothing is typed.
    std::string current() const;
    int typedCount() const { return int(typed_.size()); }
    int openCount() const { return open_; }
    // The best a letter (any case) is known to be on this safe.
    Mark keyMark(char c) const;
    // The words of the safes of this game, in order.
    const std::vector<std::string>& words() const { return words_; }

private:
    bool drawNext(SharedState& s, Rng& rng);

    std::string word_;
    std::string typed_;
    std::vector<Row> rows_;
    std::vector<int> drawn_;
    std::vector<std::string> words_;
    int open_ = 0;
    int number_ = 0;
    int safesOpened_ = 0;
    int lastPoints_ = 0;
    bool decided_ = true;
    bool opened_ = false;
};

// The safe left shut: "The alarm went off! The combination was {word}."
std::string alarmText(const std::string& word);
// No safe of five opened: the game is lost, with its words.
std::string lostText(const std::vector<std::string>& words);

}  // namespace wm::safe
