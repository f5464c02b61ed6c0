// Flying Cow: guess the word letter by letter while a saucer beams the cow up, one rung for each
// wrong letter. A right letter that fills two or more blanks lets the cow drop back a rung.
// Five words make a game; the cow beamed up into the saucer ends it.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::cow {

constexpr int kWordsPerGame = 5;
constexpr int kMaxLetters = 54;  // three rows of boxes; a longer word is not played

constexpr const char* kNoWord =
    "This list has no word that Flying Cow can use (the words are empty or too long). Please "
    "choose another list.";

// Wrong letters the cow can take at a level; one more and it is in the saucer.
int missesAllowed(int level);
// A word's points: (length x 10 + rungs to spare x 5) x level, halved after the hint.
int wordPoints(int length, int spare, int level, bool hinted);
// Blanks, hyphens and apostrophes show from the start; every other character is guessed.
bool guessed(char c);
// A word the game can play: something to guess, and not too long for the boxes.
bool playable(const std::string& word);

// The next word: Int(Rnd x WordCount + 1) among the loaded words, skipping the ones not
// playable and, while unplayed ones remain, the ones drawn already. Bounded: after a run of
// unlucky draws it walks on from the last draw. 0 when the list has no playable word.
int drawWord(const SharedState& s, Rng& rng, const std::vector<int>& drawn);

enum class Key {
    Ignored,  // not a guess: a blank, a hyphen, a key that is no letter, or not in play
    Repeat,   // tried before, either case: no penalty
    Hit,      // filled one blank
    Drop,     // filled two or more blanks: the cow comes down a rung (if it is up)
    Miss,     // the cow goes up a rung
    Solved,   // the last blank filled: the word's points are in the score
    Lost,     // the cow is in the saucer: the game is over
};

class Game {
public:
    // A new game: reseed, score 0, the level fixed, the first word. False: nothing to play.
    bool start(SharedState& s, Rng& rng);
    // The next word of the game (after a solved one). False: nothing to play.
    bool nextWord(SharedState& s, Rng& rng);
    // One character typed or picked on the palette (a Windows-1252 byte).
    Key press(SharedState& s, char key);
    // The meaning, once a word, for half the word's points. False when not offered.
    bool takeHint(const SharedState& s);
    bool hintOffered(const SharedState& s) const;

    const std::string& word() const { return word_; }
    int wordIndex() const { return index_; }  // into Words
    int wordNumber() const { return number_; }  // 1 to kWordsPerGame
    bool lastWord() const { return number_ >= kWordsPerGame; }
    bool shown(int i) const { return shown_[i]; }
    int level() const { return level_; }
    int allowed() const { return missesAllowed(level_); }
    int rung() const { return rung_; }
    int spare() const { return allowed() - rung_; }
    int misses() const { return misses_; }
    bool hinted() const { return hinted_; }
    bool over() const { return over_; }
    int lastPoints() const { return lastPoints_; }
    // Each letter tried, lower case, in the order tried.
    const std::string& tried() const { return tried_; }
    // 1 when `letter` (any case) was tried and is in the word, -1 tried and not, 0 untried.
    int triedState(char letter) const;

private:
    bool drawNext(SharedState& s, Rng& rng);

    std::string word_;
    std::vector<bool> shown_;
    std::vector<int> drawn_;
    std::string tried_;
    int index_ = 0;
    int number_ = 0;
    int level_ = 1;
    int rung_ = 0;
    int misses_ = 0;
    int lastPoints_ = 0;
    bool hinted_ = false;
    bool over_ = true;
};

// "The cow was beamed up! The word was {word}."
std::string lostText(const std::string& word);

}  // namespace wm::cow
