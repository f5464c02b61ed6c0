// Wheel of Money's rules: the wheel of twelve slots, ten spins, the mystery slots, the ten timed
// mini-games and the money. The phases are explicit state: what the one big button does next
// (`NextAction`), which frame shows, which timers run. Pure C++ over wm_core; the screen draws
// the state, runs the timers and animations, and calls these on clicks, keys and ticks.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace wheel {

inline constexpr int kSlots = 12;
inline constexpr int kSpins = 10;
inline constexpr int kTiles = 22;
inline constexpr int kChoices = 4;
inline constexpr int kMaxTileWord = 21;  // Too Many and Letter Change take words up to this
// Bounds on draws the design leaves open-ended; past them the mini-game says the list cannot
// be used for it and the spin ends as a time-out would.
inline constexpr int kMaxDraws = 1000;

struct Slot {
    const char* caption;
    int left, top;              // twips in the wheel's frame
    int next;                   // the slot the wheel steps to
    int markerLeft, markerTop;  // twips
};
extern const std::array<Slot, kSlots> kWheel;

enum class Action { EndGame = -2, ToWheel = -1, Type = 0, Choice = 2, Letters = 3 };
enum class Frame { None, Type, Choice, Letters };
enum class Kind {
    Scramble,
    TypeIt,
    SpellIt,
    Mystery,
    DefinitionMatch,
    TooMany,
    LetterChange,
    TrueFalse,
    BackWords,
    WordMatch,
    FillIn
};
Kind KindOf(int slot);

// What the screen plays after a mystery slot.
enum class Show { None, Intro, Thief, Fortune };

struct WheelState {
    // The flow.
    int SpinsLeft = kSpins;
    int WheelPos = 0;
    bool Spinning = false;
    int FlashCount = 0;
    Action NextAction = Action::ToWheel;
    bool wheelShown = false;
    bool directShown = false;
    bool commandShown = false;
    bool commandEnabled = false;
    Frame frame = Frame::None;
    bool timer4 = false;    // the mini-game's countdown runs
    bool flashRed = false;  // the stopped slot's colour while it flashes
    std::string HeadLabel;
    std::string Command1;  // the big button's caption
    std::string Label1;    // what the host says
    std::array<std::string, kSlots> captions{};

    // The mini-game in hand.
    Kind kind = Kind::Scramble;
    int SecondsLeft = 0;
    long long PrizeAmount = 0;
    int QuestionWord = 0;
    std::string word;      // the word of the question, as in the list
    std::string question;  // Label3, Label8 or Label12
    std::array<std::string, kChoices> choices{};
    std::array<bool, kChoices> choiceShown{};
    int RightChoice = 0;
    std::array<long long, 3> ExcludedChoices{};  // cleared and never filled: kept as designed
    int NextRule = 1;
    std::array<std::string, kTiles> tiles{};
    std::array<bool, kTiles> TileMarked{};
    int tileCount = 0;
    int SwapFirst = 0, SwapSecond = 0;
};

// The display strings.
std::string TotalText(double score);  // "Cash and Prize Total:  $" + number + ".00"
std::string SpinsText(int spins);     // "Spins Left: " + number
std::string PrizeText(long long prize);
std::string TimeText(int seconds);

// New game and Restart: reseed, frames hidden, 10 spins, wheel at 0, Score 0, the welcome, and
// the intro played with the button disabled until it ends. Timer4 is left as it is: a
// countdown of an earlier game runs on (kept as designed).
void SetupGame(SharedState& s, WheelState& w, Rng& rng);
// The intro or a mystery animation has ended: the button can be pressed.
void AnimationEnded(WheelState& w);

// A click on the big button. Returns what it did.
Action ClickCommand(WheelState& w);

// Timer1: the wheel moves one slot along the lap. True when the screen should beep.
void StepWheel(WheelState& w);
// Any key while spinning stops the wheel and starts the flash; false when not spinning.
bool StopWheel(WheelState& w);
// Timer2: one flash; true when the flashing is over and StartSlot must run.
bool Flash(WheelState& w);

struct SlotStart {
    Show show = Show::None;  // an animation to play (mystery slots)
    bool cheer = false;      // the Fortune's sound
    bool ooh = false;        // the Thief's sound
    std::string refusal;     // non-empty: the list cannot be used for this slot
};
// The stopped slot starts: a spin is spent, then the slot's mini-game or mystery.
SlotStart StartSlot(SharedState& s, WheelState& w, Rng& rng);

struct Verdict {
    bool right = false;
    bool decided = false;  // false: the click changed the board but decided nothing
    bool ooh = false;      // a wrong pair of letters was cleared
};
// Enter in the answer box.
Verdict CheckTyped(SharedState& s, WheelState& w, const std::string& typed);
// A click on choice i (0..3).
Verdict ClickChoice(SharedState& s, WheelState& w, int i);
// A click on tile i (0..21).
Verdict ClickTile(SharedState& s, WheelState& w, int i);
// Timer4: one second less; true when the time ran out (the verdict is written).
bool CountDown(WheelState& w);

// The misspellings of the show and the scramble of the Scramble slot.
std::string ScrambleSlotWord(const std::string& word, Rng& rng);
std::string FillInText(const std::string& word, int difficulty, Rng& rng);

// The end of the game, after the last spin's button.
enum class Ending { Practice, HandOff };
Ending EndGame(WheelState& w, const SharedState& s);

}  // namespace wheel
}  // namespace wm
