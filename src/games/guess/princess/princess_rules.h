// Princess: the letters of each word lie shuffled on stepping stones in the moat; the pupil
// picks them in the order that spells the word. A right stone rises into a plank, a wrong one
// splashes and stirs the dragon. Each word spelled lowers the drawbridge a notch; as many words
// as the level bring it all the way down. Eight splashes in a game wake the dragon.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::princess {

constexpr int kSleepMarks = 8;  // the dragon's sleep meter, for the whole game
constexpr int kMaxStones = 24;  // two rows of twelve; a longer word is not played

constexpr const char* kNoWord =
    "This list has no word that Princess can use (the words are empty or too long). Please "
    "choose another list.";

// Blanks, hyphens and apostrophes stand on the planks from the start; every other character
// lies on a stone.
bool onStone(char c);
// A word the game can play: at least one stone, and no more than the moat holds.
bool playable(const std::string& word);
// Length x 10, and 50 more for a word spelled without a splash.
int wordPoints(int length, bool clean);

// The next word: Int(Rnd x WordCount + 1) among the loaded words, skipping the ones not
// playable and, while unplayed ones remain, the ones drawn already. Bounded: after a run of
// unlucky draws it walks on from the last draw. 0 when the list has no playable word.
int drawWord(const SharedState& s, Rng& rng, const std::vector<int>& drawn);

// The word's stones in the order they lie in the moat: each entry the position in the word of
// the letter it carries. Shuffled from the back, j = Int(Rnd x (i + 1)); a shuffle that still
// reads as the word is shuffled again (a few times at most, then turned by one stone).
std::vector<int> layStones(const std::string& word, Rng& rng);

enum class Pick {
    Ignored,  // not a stone in play, a stone already risen, or not in play
    Right,    // the stone rose into the next plank
    Wrong,    // a splash: the dragon stirs
    Spelled,  // the last plank laid: the word's points are in the score
    Crossed,  // the last word spelled: the bridge is down, the game is won
    Woke,     // the meter full: the dragon woke, the game is lost
};

class Game {
public:
    // A new game: reseed, score 0, the meter empty, the level fixed, the first word. False:
    // nothing to play.
    bool start(SharedState& s, Rng& rng);
    // The next word of the game (after a spelled one). False: nothing to play.
    bool nextWord(SharedState& s, Rng& rng);
    // The stone `i` (in the moat's order) clicked.
    Pick pick(SharedState& s, int i);
    // The first stone still in the water that carries `key` (any case, accents exact); -1 when
    // none. The right one is preferred, so a typed letter picks as a click would.
    int stoneFor(char key) const;

    const std::string& word() const { return word_; }
    int wordNumber() const { return number_; }  // 1 to words()
    int words() const { return level_; }        // words to spell: as many as the level
    int level() const { return level_; }
    int stones() const { return static_cast<int>(stones_.size()); }
    // The letter stone `i` carries, as the word writes it.
    char stoneLetter(int i) const { return word_[stones_[i]]; }
    // Where stone `i` rose to (a position in the word), -1 while it lies in the water.
    int risenTo(int i) const { return risen_[i]; }
    // Position `p` of the word stands on the bridge: a plank laid, or a blank shown from the start.
    bool laid(int p) const { return laid_[p]; }
    int nextPosition() const { return next_; }
    int splashes() const { return splashes_; }          // in the whole game
    int wordSplashes() const { return wordSplashes_; }  // in this word
    int lowered() const { return lowered_; }            // notches the bridge has come down
    int lastPoints() const { return lastPoints_; }
    bool over() const { return over_; }

private:
    bool drawNext(SharedState& s, Rng& rng);
    void skipShown();

    std::string word_;
    std::vector<int> stones_;
    std::vector<int> risen_;
    std::vector<bool> laid_;
    std::vector<int> drawn_;
    int next_ = 0;
    int number_ = 0;
    int level_ = 1;
    int splashes_ = 0;
    int wordSplashes_ = 0;
    int lowered_ = 0;
    int lastPoints_ = 0;
    bool over_ = true;
};

// "The dragon woke up! The word was {word}."
std::string lostText(const std::string& word);

}  // namespace wm::princess
