// Scramble's rules: the word of a round, its scrambled row and layout, the flicker, the guess and
// the score. Pure C++ over wm_core; the screen owns the widgets, timers, sounds and dialogs and
// acts on what these functions report. Random draws happen in the designed order, so a scripted
// Rng reproduces a round exactly.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace scramble {

// One LetterLabel per letter, 0..19; longer words are picked again.
inline constexpr int kMaxLetters = 20;

inline constexpr char kTooLongMessage[] =
    "The words on this list are too long to use for this activity.";
// A "*" could not be told from a letter already taken, so such a word cannot be scrambled.
inline constexpr char kStarMessage[] =
    "The words on this list contain \"*\" and cannot be used for this activity.";

// A bound on a draw the design leaves open-ended: a working generator never reaches it; it
// keeps a broken or scripted one (or an impossible screen) from hanging the game.
inline constexpr int kMaxTopRolls = 100;

// Letter size and spacing by word length, in twips (font in points).
struct LetterSize {
    int font = 0;
    int height = 0;
    int width = 0;
    int gap = 0;
};
LetterSize letterSize(int length);

// What the layout needs to know of the screen, in twips.
struct ScreenGeometry {
    int width = 0;
    int height = 0;
    int label3Top = 0;  // the top of "Your Guess:", the floor of the scattered letters
};

struct LetterBox {
    int left = 0;
    int top = 0;
};

struct RowLayout {
    LetterSize size;
    std::vector<LetterBox> boxes;  // boxes[i] is LetterLabel(i)
};

// The screen-level variables of one round.
struct ScrambleState {
    bool scatter = false;  // GameOptionOn after the inversion at load
    int attempts = 0;      // extra picks made because the word was too long
    std::string scrambled;
    RowLayout layout;
    std::vector<bool> black;  // letters blacked out by the flicker, by LetterLabel index
    int lastBlack = -1;       // the letter blacked out last, -1 none
};

// The options screen asks "Scatter?" the other way round, so the game inverts GameOptionOn as it
// loads (the shared flag keeps the inverted value). Returns whether letters scatter.
bool invertGameOption(SharedState& state);

// The row centred across the screen. Without scatter every top is (0.75 x screen height -
// height) / 2; with scatter each top is rolled, and rolled again (at most kMaxTopRolls times,
// then the last roll stands) while within one height of the letter before.
RowLayout layOutLetters(int length, const ScreenGeometry& screen, bool scatter, Rng& rng);

struct NewGame {
    bool ready = false;         // false: show `message` and leave for the title
    bool startFlicker = false;  // Timer3, at Difficulty above 1
    std::string message;
};

// Whether a word can be played: at most kMaxLetters letters and no "*".
bool playable(std::string_view word);

// Starts a round: Score and ElapsedSeconds to 0, the random word (picked again while it is not
// playable, at most WordCount x 2 times, then a message naming why), the scrambled row and its
// layout. Keeps `round.scatter`.
NewGame newGame(SharedState& state, ScrambleState& round, const ScreenGeometry& screen, Rng& rng);

// Timer1: one more second on the clock (held at the top of its 16-bit range).
void countSecond(SharedState& state);

// Timer3's step: which letters turn yellow again and which turn black (-1 for none).
// Only the letter blacked out last comes back; at Difficulty 3 two are blacked a tick, so the
// word darkens as the seconds pass. Deliberate: it is what makes the hardest level hard.
struct FlickerStep {
    int yellow = -1;
    int yellow2 = -1;  // always -1: one letter comes back a tick, at every level
    int black1 = -1;
    int black2 = -1;  // Difficulty 3 only
};
FlickerStep flicker(ScrambleState& round, int difficulty, Rng& rng);

enum class GuessResult { NotAGuess, Right, Wrong };

// Lower-cased comparison; an empty guess is not a guess.
GuessResult judgeGuess(std::string_view guess, std::string_view word);

// The score of a right answer; `timeOfDay` is a fraction of a day (Clock::Now()).
double rightAnswerScore(int length, bool scatter, int difficulty, double timeOfDay, Rng& rng);

// Submit: judges the guess against TheWord and, when right, sets Score. The screen stops its
// timers first and, on NotAGuess, restarts Timer1.
GuessResult submitGuess(SharedState& state, const ScrambleState& round, std::string_view guess,
                        double timeOfDay, Rng& rng);

std::string giveUpText(std::string_view word);
std::string hintText(std::string_view meaning);

// Hint: 1000 off Score, and the text to show.
std::string takeHint(SharedState& state);

}  // namespace scramble
}  // namespace wm
