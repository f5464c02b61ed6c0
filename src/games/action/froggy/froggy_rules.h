// Froggy: one vocabulary question; the frog hops across two roads and a river of logs to the
// slot of the word that matches the definition.
#pragma once

#include <array>
#include <string>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::froggy {

constexpr int kRows = 14;
constexpr int kColumns = 20;
constexpr int kMaxSlotDraws = 1000;

enum Dir { Up = 0, Down = 1, Left = 2, Right = 3 };

struct Level {
    std::array<bool, 7> active{};  // cars 1..6, the same in both directions
    int carStep = 1;
    int logInterval = 40;
    int logWidth = 0;  // pixels
};
Level levelFor(int difficulty, int width, int column);

struct Board {
    int width = 1280, height = 800;
    int rowH = 57, colW = 64;
    int carH = 57, carW = 114;
    Level level;
    int frogRow = 1, frogCol = 10, frogX = 0, frogY = 0;
    Dir facing = Up;
    std::array<int, 7> rightX{}, leftX{}, logX{};                   // 1..6
    std::array<std::array<bool, kRows + 1>, kColumns + 1> stone{};  // [column][row]
    int correctSlot = 1;
    std::array<std::string, 5> slotWords;  // 1..4
    int bonus = 10000;
    bool keyLock = false;

    int Y(int row) const { return height - row * rowH; }
    int X(int column) const { return (column - 1) * colW; }
};

// The row and move of log i (1..6), and the road of car i.
int logRow(int i);
int logMove(int i);
int rightCarRow(int i);
int leftCarRow(int i);
bool isRiver(int row);

struct SetupResult {
    bool ready = true;
    std::string message;
};
SetupResult setup(SharedState& s, Board& b, int width, int height, Rng& rng);
void lay(Board& b, int width, int height, int difficulty);  // geometry, level, stones, start

enum class Outcome { None, Squashed, Drowned, Won, WrongWord };

// CarTimer: every active car moves; a car over the frog squashes it.
Outcome carTick(Board& b);
// LogTimer: every log moves; the frog in the river rides its log or drowns. `rode` tells the
// screen to redraw the frog.
Outcome logTick(Board& b, bool& rode);
// Timer1: the bonus runs down, never under 1.
void bonusTick(Board& b);

enum class Key { Up, Down, Left, Right, Other };
enum class Hop { Locked, NotArrow, Blocked, Moved };
struct HopResult {
    Hop hop = Hop::Locked;
    Outcome outcome = Outcome::None;
};
HopResult keyDown(Board& b, Key key);
inline void keyUp(Board& b) {
    b.keyLock = false;
}

// The score of a win, set rather than added.
double winScore(const Board& b, int difficulty, Rng& rng);

std::string question(const std::string& meaning);
std::string wrongWordText(const std::string& word);

}  // namespace wm::froggy
