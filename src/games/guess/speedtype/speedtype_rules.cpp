#include "games/guess/speedtype/speedtype_rules.h"

#include <algorithm>

#include "core/random_word.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::speedtype {

void newWord(SharedState& s, SpeedRound& round, Rng& rng) {
    round = SpeedRound{};
    round.call = "Ready...";
    PickRandomWord(s, rng);
}

Tick tick(SpeedRound& round, double now) {
    if (!round.WaitingForGo) return Tick::Stop;
    if (LCase(round.call) == "ready...") {
        round.call = "Set...";
        return Tick::Set;
    }
    if (LCase(round.call) == "set...") {
        // "Type!!!" is overwritten in the same tick: the call that stays is the prompt.
        round.call = "Type!!!";
        round.WaitingForGo = false;
        round.call = "Type this word:";
        round.StartTime = now;
        return Tick::Go;
    }
    return Tick::Stop;
}

Key pressKey(SpeedRound& round, const std::string& word, KeyKind kind, char c) {
    if (round.WaitingForGo) return Key::Ignored;
    switch (kind) {
        case KeyKind::Backspace:
            if (!round.Typed.empty()) round.Typed.pop_back();
            return Key::Typed;
        case KeyKind::Enter:
            if (round.Typed == UCase(word)) return Key::Right;
            round.WordWasRight = false;
            return Key::Wrong;
        case KeyKind::Char:
            round.Typed += UCase(std::string(1, c));
            // Deliberate: one character too many is still allowed; Enter then finds it wrong.
            if (Len(round.Typed) > Len(word) + 1) {
                round.WordWasRight = false;
                return Key::Wrong;
            }
            return Key::Typed;
    }
    return Key::Ignored;
}

double elapsed(const SpeedRound& round) {
    return (round.EndTime - round.StartTime) * 100000;
}

Figures figures(double t) {
    Figures f;
    const std::string text = NumText(t);
    // Kept as designed: from 1 on, the decimals start one place late.
    if (t < 1) {
        f.decimals = Mid(text, 3, 3);
    } else if (t < 10) {
        f.decimals = Mid(text, 4, 3);
        f.seconds = Left(text, 1);
    } else if (t < 60) {
        f.decimals = Mid(text, 4, 3);
        f.seconds = Left(text, 2);
    } else {
        // Not reached by a child's typing, but a minute or more still reads sensibly.
        const long long whole = Int(t);
        f.minutes = std::to_string(std::min<long long>(whole / 60, 99));
        f.seconds = std::to_string(whole % 60);
        if (f.seconds.size() < 2) f.seconds = "0" + f.seconds;
        if (f.minutes.size() < 2) f.minutes = "0" + f.minutes;
        const int dot = InStr(text, ".");
        f.decimals = dot ? Mid(text, dot + 1, 3) : "000";
    }
    return f;
}

std::string timePerLetter(double t, const std::string& word) {
    const int n = std::max(1, Len(word));
    return Left(NumText(t / n), 6);
}

std::string wonText(const std::string& time) {
    return "Congratulations! Your time was " + time +
           " seconds per letter! Would you like to try again?";
}

std::string lostText(const std::string& word) {
    return "Oops! The correct word was " + word + ". Would you like to give it another try?";
}

}  // namespace wm::speedtype
