// Freeze-It: a word stands as blocks of ice that thaw one at a time, in random order, to show
// their letters. The pupil freezes the thaw and types the word: the fewer letters showing, the
// more it is worth. Ten words make a game.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::freeze_it {

constexpr int kWordsPerGame = 10;
constexpr int kWrongCost = 25;

constexpr const char* kNoWords =
    "The words on this vocabulary list have no letters to hide in the ice. Please choose another "
    "list or another game.";

// The thaw's pace: one block every 1800 - 300 x level ms.
int thawInterval(int level);
// What a right answer earns with `hidden` blocks still frozen.
int pointsFor(int hidden, int level);
// True when the character stands thawed from the start (blanks, hyphens, apostrophes).
bool showsFromStart(char c);
// The answer against the word: case does not matter, accents do, blanks around it do not.
bool sameWord(const std::string& answer, const std::string& word);

enum class Phase {
    Thawing,  // blocks thaw one by one
    Frozen,   // the thaw stands still while the answer is typed
    Right,    // answered: the points are in
    Melted,   // every block thawed without a right answer: the word is shown
};

enum class Answer { Empty, Right, Wrong };

struct Block {
    char letter = 0;
    bool shown = false;
};

class Game {
public:
    // A new game: reseed, score 0, no word used yet, then the first word. False when the list
    // has no word with a letter to hide.
    bool start(SharedState& s, Rng& rng);
    // The next word, drawn without repeats while the list has unused words.
    bool nextWord(SharedState& s, Rng& rng);
    // One block thaws: the Int(Rnd x hidden + 1)-th still-hidden block. Its index, or -1 when
    // the word is not thawing. The last one leaves the word melted.
    int thaw(Rng& rng);
    // Space: the thaw stands still. False when there is nothing to freeze.
    bool freeze();
    // The answer box put away without an answer: the thaw goes on.
    void unfreeze();
    // Enter in the answer box. Right: the points; wrong: the cost (never below 0), and the
    // thaw goes on.
    Answer check(SharedState& s, const std::string& answer);

    Phase phase() const { return phase_; }
    const std::vector<Block>& blocks() const { return blocks_; }
    const std::string& word() const { return word_; }
    int hidden() const;
    int wordNumber() const { return wordNumber_; }
    bool lastWord() const { return wordNumber_ >= kWordsPerGame; }
    int lastPoints() const { return lastPoints_; }
    // The words of this game that were not answered right, in the order they came.
    const std::vector<std::string>& missed() const { return missed_; }

private:
    bool usable(const SharedState& s, int k) const;
    int drawWord(const SharedState& s, Rng& rng);

    std::vector<bool> used_;
    std::vector<Block> blocks_;
    std::vector<std::string> missed_;
    std::string word_;
    Phase phase_ = Phase::Melted;
    int wordNumber_ = 0;
    int lastPoints_ = 0;
    int last_ = 0;  // the word drawn last, not drawn again at once when the list starts over
};

}  // namespace wm::freeze_it
