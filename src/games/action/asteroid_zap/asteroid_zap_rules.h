// Asteroid Zap: a wall of twenty lettered asteroids sinks towards the ship; the player shoots
// away the filler so that what is left spells the word.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::asteroid {

constexpr int kLetters = 20;
constexpr int kShots = 3;
constexpr int kMaxWordDraws = 1000;
constexpr int kTwips = 15;  // twips per pixel

// Rocks and the ship in twips; shots fly in pixels, as they are drawn.
struct Geometry {
    int width = 1280 * kTwips, height = 800 * kTwips;
    int rock = 60 * kTwips;  // the asteroid picture, square
    int shipW = 80 * kTwips, shipH = 64 * kTwips;
    int boxWidth() const { return (width - 200) / 20; }
    int boxLeft(int i) const { return width / 2 - 10 * boxWidth() + i * boxWidth(); }
    int rowTop() const { return int(0.3 * height); }
    int shipTop() const { return height - 2 * shipH; }
};

struct Rock {
    char letter = ' ';
    int left = 0, bottom = 0;  // twips
    bool alive = true, shown = true, exploding = false;
    int frame = 13;
};

struct Shot {
    bool flying = false;
    int x = 0, y = 0;  // pixels
    int column = 0;
    int toggle = 0;
};

// An explosion around the ship at the end of a lost round.
struct Blast {
    int x = 0, y = 0;  // twips, centre
    int frame = 13;
};

enum class Ending { None, Won, WrongLetter, ShipDestroyed };

struct Round {
    Geometry g;
    std::string word;  // upper-cased and trimmed
    std::array<Rock, kLetters> rocks{};
    std::array<Shot, kShots> shots{};
    std::vector<Blast> blasts;
    int shipX = 0;  // twips, the ship's left
    int rockPicture = 4;
    int ticks = 0;
    bool fireWanted = false, leftHeld = false, rightHeld = false;
    bool over = false, allCleared = false, wrongShot = false;
    int boomVoice = 0;
    Ending ending = Ending::None;
};

// Draws a word under 15 characters; 0 when the draws ran out.
int chooseWord(SharedState& s, Rng& rng);
std::string buildRow(const std::string& word, Rng& rng);
// The setup with a word already chosen.
void setup(Round& r, const Geometry& g, const std::string& theWord, Rng& rng);

struct TickEvents {
    bool shotFired = false;
    std::vector<int> booms;  // booms to play, by player 0..1
    int hit = -1;            // the column hit this tick
    Ending ending = Ending::None;
};
// MainTimer.
TickEvents tick(Round& r, int difficulty, Rng& rng);
// Timer2: the ship moves while an arrow is held.
void moveShip(Round& r);
// Timer3: the end explosions go round; true when a boom should be restarted.
void blastTick(Round& r, Rng& rng);
// The subsequence rule of a hit on column k: the label goes, then what remains must still
// hold the word in order. Returns false for a wrong letter.
bool hitLetter(Round& r, int k, Rng& rng);
// The column a shot at pixel x aims at.
int columnAt(const Geometry& g, int xTwips);
double winScore(const Round& r, int difficulty, bool definitionShown);

std::string wonText(double score);
inline const char* kWrongLetter = "You shot the wrong letter! The word was:";
inline const char* kDestroyed = "Your ship was destroyed! The word was:";
inline const char* kTooLong =
    "The words on this list are too long to play this game! Choose another list or another "
    "game.";

}  // namespace wm::asteroid
