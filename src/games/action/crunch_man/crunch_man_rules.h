// Crunch Man: a chomping mouth steered over an open field eats the letters of a hidden word in
// spelling order; a wrong letter or a mine ends the round at once.
#pragma once

#include <array>
#include <string>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::crunch {

constexpr int kLabels = 36;
constexpr int kGrid = 101;  // cell tables run 0..100 each way
constexpr int kMines = 14;
constexpr int kMaxWordDraws = 1000;

// Sizes the round works with: the field and the pictures, all in pixels.
struct Field {
    int width = 1280;
    int height = 800;
    int line1 = 67;  // Y of the upper border
    int playerW = 46, playerH = 44;
    int mineW = 47, mineH = 47;
    int labelW = 23, labelH = 36;
    int line2() const { return height - line1 + 5; }
};

struct Letter {
    char text = ' ';
    int left = 0, top = 0;
    bool visible = false;
    bool red = false;
};

// Headings: 1 up, 2 right, 3 down, 4 left.
struct Round {
    Field field;
    double x = 0;
    int y = 0;
    int step = 4;
    int heading = 2, wanted = 2;
    int frame = 1;
    int next = 1;
    int length = 0;
    int columns = 1, rows = 1, cellW = 1, cellH = 1;
    std::array<std::array<bool, kGrid>, kGrid> letterCell{};
    std::array<std::array<bool, kGrid>, kGrid> mineCell{};
    int mineCount = 0;
    std::array<int, kMines + 1> mineX{}, mineY{};
    bool firstTick = true;
    std::array<Letter, kLabels> labels{};
    std::string spelled;  // Label3
};

struct SetupResult {
    bool ready = true;
    std::string message;  // the refusal when the list cannot be used
};

// The grid and the start of a round on `field`, with nothing placed yet.
void layGrid(Round& r, const Field& field, int difficulty);
// Puts label k with `c` (a blank is placed invisible) or the next mine in a cell.
void placeLetter(Round& r, int k, char c, int column, int row);
void placeMine(Round& r, int column, int row);
// The round setup, from the word choice to the mines.
SetupResult setupRound(SharedState& s, Round& r, const Field& field, Rng& rng);
// The word choice alone: a word under 20 characters, upper-cased. Returns the list index, or 0
// when the draws ran out.
int chooseWord(SharedState& s, Rng& rng);

enum class Event { None, Ate, Won, WrongLetter, Mine };

struct TickResult {
    bool restoreOld = false;  // put the saved ground back at the old place first
    int oldX = 0, oldY = 0;
    int newX = 0, newY = 0;
    int sprite = 0;       // picture holder 0..12
    bool chomp = false;   // the every-sixth-tick bleep
    int mineSprite = -1;  // holder 15..18 to draw at every mine, -1 for none
    Event event = Event::None;
    int label = -1;                   // the label eaten or wrongly touched
    int labelLeft = 0, labelTop = 0;  // where that label stood
    int mine = 0;                     // the mine run onto, 1-based
    bool wipeUnder = false;           // the saved ground must be wiped black: the letter was eaten
    int points = 0;
};

// One game tick. `s` receives the score.
TickResult tick(Round& r, SharedState& s, Rng& rng);
// Holder of the mouth for heading and frame (frame 1 is closed in every heading).
int spriteFor(int heading, int frame);
int mineSpriteFor(int frame);
int stepFor(int difficulty);

// The shrinking, spinning mouth of both deaths (Image1).
struct Dying {
    int left = 0, top = 0, width = 46, height = 44;
    int frame = 1;    // explosion frame (mine) or spin frame (letter)
    int spin = 1;     // the mine death's own spin counter
    int target = -1;  // the blinking label, or the mine
};
// Letter death tick: the label blinks, the mouth spins and shrinks. True when it is over.
bool letterDeathTick(Dying& d, Round& r, int& picture);
// Mine death tick: explosion frame 1..8 at the mine (`explosion` 1..7 pictures, 8 black, 0
// none), then the spin and shrink. True when it is over.
bool mineDeathTick(Dying& d, int& explosion, int& picture);

std::string lostText(const std::string& word);
std::string scoreCaption(double score);

}  // namespace wm::crunch
