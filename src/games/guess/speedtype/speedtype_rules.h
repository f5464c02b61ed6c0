// Timed typing of one word: the Ready/Set/Type calls, the keys, the clock and the time per
// letter that is the score (smaller is better).
#pragma once

#include <string>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::speedtype {

struct SpeedRound {
    std::string call;  // Label1
    std::string Typed;
    bool WaitingForGo = true;
    double StartTime = 0;  // times of day, as fractions of a day
    double EndTime = 0;
    bool WordWasRight = false;
};

// A new word: any word of the list, however long.
void newWord(SharedState& s, SpeedRound& round, Rng& rng);

enum class Tick { Stop, Set, Go };
// One tick of the calls; Go starts the clock at `now`.
Tick tick(SpeedRound& round, double now);

enum class Key { Ignored, Typed, Right, Wrong };
enum class KeyKind { Char, Backspace, Enter };
Key pressKey(SpeedRound& round, const std::string& word, KeyKind kind, char c = 0);

// T: the elapsed time in the clock's own unit, 100000 a day (the clock has whole seconds).
double elapsed(const SpeedRound& round);

struct Figures {
    std::string minutes = "00", seconds = "00", decimals = "000";
};
// The figures cut from the text form of T.
Figures figures(double t);

// The time per letter, its text cut to six characters: the score.
std::string timePerLetter(double t, const std::string& word);

std::string wonText(const std::string& time);
std::string lostText(const std::string& word);

}  // namespace wm::speedtype
