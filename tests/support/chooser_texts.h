// The chooser's messages as a pupil reads them: a words-only list refused or warned about, and a
// list too short for the game.
#pragma once

#include <string>

namespace wm::test {

// Words only: refused.
inline constexpr const char* kM1 =
    "The list you have selected contains words only, with no definitions, and cannot be used "
    "for this game. Please choose another game or another list.";
// Words only: refused, in the later games' words.
inline constexpr const char* kM2 =
    "The list you have selected contains words only, with no definitions, and cannot be played "
    "with this game. Please choose another game or another list.";
// Words only: played without the meaning.
inline constexpr const char* kW1 =
    "The list you have selected contains words only, with no definitions. The word meaning "
    "will not be displayed during the game.";
// Words only: played without the hint button.
inline constexpr const char* kW2 =
    "The list you have selected contains words only, with no definitions. The <hint> button "
    "will not be available during the game.";
// Too few words for the game.
inline constexpr const char* kE1 =
    "There are not enough words in this vocabulary list to play this game! Please choose "
    "another list or another game.";
// Too few words for the level chosen.
inline constexpr const char* kE2 =
    "There are not enough words in this vocabulary list to play this game at the level you have "
    "chosen! Please choose another list or go back and lower the difficulty level.";
// Words only: Cannon Shot plays on, harder.
inline constexpr const char* kCannon =
    "The list you have selected contains words only, with no definitions. During the game, the "
    "word meaning will not be displayed (making this game a bit harder than it would be "
    "otherwise...)";
// Words only: no flash cards.
inline constexpr const char* kFlash =
    "The list you have selected contains words only, with no definitions, and cannot be used "
    "for flash cards. Please choose another game or another list.";
// Words only: no quiz.
inline constexpr const char* kQuiz =
    "The list you have selected contains words only, with no definitions, and cannot be used "
    "for a quiz. Please choose another game or another list.";
// Words only: Word Search gives the word as the clue.
inline constexpr const char* kSearch =
    "The list you have selected contains words only, with no definitions. The word clue will "
    "be the word and not the definition...";

// Too few words for a game with a fixed minimum.
inline std::string N(int k) {
    return "You need a list with at least " + std::to_string(k) +
           " words to play this game. Please choose another game or another list.";
}

}  // namespace wm::test
