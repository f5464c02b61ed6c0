// The 42 games in catalogue order; the name is the button key and the score file's name.
#pragma once

#include <array>
#include <string_view>

namespace wm {

inline constexpr int kGameCount = 42;
inline constexpr std::array<std::string_view, kGameCount> kGameNames = {
    "Flying Cow",    "Quiz",         "Word Zap",     "Scramble",      "Wheel of Money",
    "Concentration", "BreakThru",    "Letter Drop",  "Tower Assault", "Flash Cards",
    "Crossword",     "Blind Tiles",  "Basketball",   "Speed Type",    "Bug Spray",
    "Freeze-It",     "Jailbreak",    "Cannon Shot",  "Word Search",   "Word Maze",
    "Asteroid Zap",  "Code Breaker", "Slot Machine", "Bridge Out",    "Crunch Man",
    "Letter Toss",   "Spell Crush",  "Spiderwebs",   "Safe Cracker",  "Word Bricks",
    "Toad Race",     "Princess",     "Mini Golf",    "HangMan",       "Short Circuit",
    "Tic-Tac-Toe",   "Bomb Squad",   "Bomb Squad 2", "Hang Glider",   "Slingshot",
    "Froggy",        "Pachinko"};

}  // namespace wm
