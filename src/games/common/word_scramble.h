// A word's letters in random order, as the games that scramble words draw them.
#pragma once

#include <string>
#include <string_view>

namespace wm {

class Rng;

// A letter already taken is marked with this; a word holding one never has it taken.
inline constexpr char kTakenMark = '*';
// A bound on the draws the design leaves open-ended: a working generator never reaches it; it
// keeps a broken or scripted one from hanging the game.
inline constexpr int kScrambleDrawsPerLetter = 200;

// Takes the letters in random order: k = Int(Rnd * length + 1), appended when not yet taken.
// A "*" in the word counts as taken already, so it is never drawn; rather than draw for ever,
// the draws stop once every other letter is taken and each "*" keeps its own place in the row
// (a word of "*" alone comes back as it is, with no draw). Past kScrambleDrawsPerLetter draws a
// letter, the letters still left follow in word order.
std::string ScrambleWord(std::string_view word, Rng& rng);

}  // namespace wm
