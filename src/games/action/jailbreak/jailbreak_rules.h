// Jailbreak: the cell door is held by padlocks, each tagged with a definition. Typing a lock's
// word springs it open; a wrong word sets off the alarm and hurries the guard, who walks the
// corridor towards the door a step at a time. Three cells make a game.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::jailbreak {

constexpr int kCorridorSteps = 40;  // from the far end of the corridor to the cell door
constexpr int kStepMs = 1500;       // the guard's pace
constexpr int kAlarmSteps = 2;      // a wrong word hurries the guard on
constexpr int kWrongCost = 20;
constexpr int kHintCost = 10;
constexpr int kLetterPoints = 20;  // an opened lock: its word's length x 20
constexpr int kStepPoints = 10;    // a cleared cell: the guard's steps still to go x 10
constexpr int kCells = 3;
constexpr int kMinLocks = 1;  // a list of one word clamps the level to 1
constexpr int kMaxLocks = 6;
constexpr int kDrawTries = 200;  // random draws for one lock before walking on through the list

constexpr const char* kTooFewWords =
    "There are not enough different words with definitions in this vocabulary list for this "
    "many locks! Please choose another list or go back and lower the difficulty level.";

struct Lock {
    int entry = 0;  // 1-based index into Words and Meanings
    std::string word;
    std::string meaning;
    bool open = false;
    bool hinted = false;
};

struct Jail {
    std::vector<Lock> locks;
    int cell = 0;        // 1..kCells once a game is under way
    int guardSteps = 0;  // steps walked; at kCorridorSteps the guard stands at the door
    int selected = 0;    // the lock whose definition the panel shows, -1 for none
    std::vector<std::string> used;  // the words of this game so far, upper-cased
};

int locksFor(int difficulty);
int stepsToGo(const Jail& j);
bool cellCleared(const Jail& j);
bool caught(const Jail& j);
int shutLocks(const Jail& j);

// A new game: the generator reseeded, the score back to 0, the first cell drawn. False when
// the list has too few different words for the locks (the game cannot be played).
bool newGame(SharedState& s, Jail& j, Rng& rng);
// The next cell: the guard back at the far end, the locks drawn afresh (no word twice in a
// cell, none of the game's earlier words while the list has enough). False as above.
bool nextCell(SharedState& s, Jail& j, Rng& rng);

enum class Result { Ignored, Opened, CellCleared, Wrong, Caught };
struct Typed {
    Result result = Result::Ignored;
    int lock = -1;       // the lock opened
    int points = 0;      // the lock's points, or minus the alarm's cost
    int cellBonus = 0;   // steps to go x 10 when the cell was cleared
};
// A word typed and Enter: case is ignored, accents count, blanks round it do not.
Typed typeWord(SharedState& s, Jail& j, const std::string& typed);

// One step of the guard; true when that step brought him to the door.
bool guardStep(Jail& j);

// The first letter of a shut lock's word; the first hint on a lock costs points, a second look
// is free. Nothing for an open lock or no lock.
std::optional<std::string> hint(SharedState& s, Jail& j, int lock);

// The selection moves to `lock` when it is a shut lock; a click on an open lock or beside the
// locks leaves it where it was.
void select(Jail& j, int lock);

std::string caughtText(const Jail& j);
std::string hintText(const std::string& letter);

}  // namespace wm::jailbreak
