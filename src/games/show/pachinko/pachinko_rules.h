// Pachinko's rules: the five questions that earn disks, the slot values, the pin board and a
// falling disk's physics tick by tick. Pure C++ in the board's pixels; the screen scales once.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace pachinko {

inline constexpr int kBoardWidth = 600;
inline constexpr int kBoardHeight = 620;
inline constexpr int kSlotCount = 10;
inline constexpr int kSlotWidth = kBoardWidth / kSlotCount;
inline constexpr int kPinRadius = 5;  // also the top falling speed
inline constexpr int kPinsInRow = 10;
inline constexpr int kDiskSize = kBoardWidth / (kPinsInRow + 2) - 2 * kPinRadius;
inline constexpr int kMaxDisks = 5;
inline constexpr int kSlotHeight = 70;  // the slots at the foot of the board
// Bound on a fall: a disk still among the pins after this many ticks drops straight through,
// so no layout or generator can keep it bouncing for ever.
inline constexpr int kMaxFallTicks = 1000;

struct Pin {
    int x = 0;  // centre, board pixels
    int y = 0;
    int row = 0;
    bool first = false;  // first pin of its row
    bool last = false;   // last pin of its row
};
// The pins row by row, every other row shifted by half a gap; the board's top left is (0, 0).
const std::vector<Pin>& pins();

// --- Questions ---
struct Question {
    bool askMeaning = true;        // coin 1: the word is shown, the meanings are the answers
    int word = 0;                  // 1-based entry
    int right = 0;                 // 0-based AnswerLabel
    std::array<int, 5> answers{};  // entry shown on each AnswerLabel
};
// `used` is UsedWords (1-based, resized as needed).
Question nextQuestion(SharedState& state, std::vector<bool>& used, Rng& rng);

inline constexpr char kWelcome[] =
    "Welcome to PACHINKO! Before we begin, you will have the opportunity to win up to 5 disks "
    "that you can drop into the Pachinko board. For each question you answer correctly, you will "
    "earn a disk. When you are ready to begin, click OK...";
inline constexpr char kAskMeaning[] =
    "Directions:  Click the meaning that BEST matches the word shown below.";
inline constexpr char kAskWord[] =
    "Directions:  Click the word that BEST matches the meaning shown below.";
inline constexpr char kNoDisks[] =
    "Oops! You haven't earned any disks to drop into the Pachinko board! Would you like to give "
    "it another try?";
inline constexpr char kSetValues[] =
    "First, let's see what point values you can win. Click OK to set the point values at the "
    "bottom of the board...";
inline constexpr char kLockHint[] = "Press the spacebar to lock the score values...";
inline constexpr char kReady[] =
    "Great! You're ready to play with the disks you earned! Now pick up a disk on the left, drag "
    "it and drop it over the top edge of the board to play...";
std::string tryingText(int question);
std::string earnedText(int disks);
std::string scoredText(int value);
// The score line of the board: the zeros until the first disk lands, then the plain number.
inline constexpr char kScoreStart[] = "Score: 00000000";
std::string scoreLine(double score);

// --- Slot values ---
std::array<int, kSlotCount> scrambleValues(Rng& rng);

// --- A falling disk ---
struct Disk {
    int x = 0;  // top left, board pixels
    int y = 0;
    int dx = 0;  // FallDX
    int dy = 1;  // FallDY
    int ticks = 0;
    bool touched = false;  // TouchedPin of the present tick
};

// Whether a disk released at (x, y) lies in the drop zone over the top edge, between the walls.
bool inDropZone(int x, int y);
Disk dropDisk(int x, int dx = 0);

// One tick of the fall. Returns true when the disk has reached the slots.
bool step(Disk& d, Rng& rng);
// The slot (0-based) whose span holds the disk's centre.
int slotOf(const Disk& d);

}  // namespace pachinko
}  // namespace wm
