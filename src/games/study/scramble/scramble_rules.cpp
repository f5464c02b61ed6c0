#include "games/study/scramble/scramble_rules.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "core/random_word.h"
#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/word_scramble.h"

namespace wm::scramble {

LetterSize letterSize(int length) {
    if (length <= 10) return {36, 825, 705, 200};
    return {20, 500, 400, 100};
}

bool invertGameOption(SharedState& state) {
    state.GameOptionOn = ~state.GameOptionOn;  // Not: -1 <-> 0
    return state.GameOptionOn != kFalse;
}

RowLayout layOutLetters(int length, const ScreenGeometry& screen, bool scatter, Rng& rng) {
    RowLayout layout;
    layout.size = letterSize(length);
    const LetterSize& s = layout.size;
    if (length <= 0) return layout;

    const int rowWidth = length * s.width + (length - 1) * s.gap;
    const int firstLeft = static_cast<int>(Int((screen.width - rowWidth) / 2.0));
    const int plainTop = static_cast<int>(Int((0.75 * screen.height - s.height) / 2));
    auto rollTop = [&] {
        return static_cast<int>(Int(rng.Rnd() * (screen.label3Top - 2 * s.height) + 1)) + s.height;
    };

    layout.boxes.resize(length);
    for (int i = 0; i < length; ++i) {
        LetterBox& box = layout.boxes[i];
        box.left = firstLeft + i * (s.width + s.gap);
        if (!scatter) {
            box.top = plainTop;
            continue;
        }
        box.top = rollTop();
        if (i == 0) continue;
        const int previousTop = layout.boxes[i - 1].top;
        // On a screen too short for any roll to clear the letter before, the last roll stands.
        for (int rolls = 1; std::abs(box.top - previousTop) < s.height && rolls < kMaxTopRolls;
             ++rolls) {
            box.top = rollTop();
        }
    }
    return layout;
}

bool playable(std::string_view word) {
    return Len(word) <= kMaxLetters && word.find(kTakenMark) == std::string_view::npos;
}

NewGame newGame(SharedState& state, ScrambleState& round, const ScreenGeometry& screen, Rng& rng) {
    state.Score = 0;
    state.ElapsedSeconds = 0;
    const bool scatter = round.scatter;
    round = ScrambleState{};
    round.scatter = scatter;

    NewGame result;
    // The chooser never hands over an empty list; should one arrive, leave rather than play
    // whatever word the last game left behind.
    if (PickRandomWord(state, rng) == 0) {
        result.message = kTooLongMessage;
        return result;
    }
    // Words holding "*" are passed over like the long ones, by the same bounded redraw; the
    // message names what was wrong with the last word drawn.
    while (!playable(state.TheWord)) {
        PickRandomWord(state, rng);
        ++round.attempts;
        if (round.attempts > state.WordCount * 2) {
            result.message = Len(state.TheWord) > kMaxLetters ? kTooLongMessage : kStarMessage;
            return result;
        }
    }

    round.scrambled = ScrambleWord(state.TheWord, rng);
    const int length = Len(round.scrambled);
    round.layout = layOutLetters(length, screen, round.scatter, rng);
    round.black.assign(length, false);
    result.ready = true;
    result.startFlicker = state.Difficulty > 1;
    return result;
}

void countSecond(SharedState& state) {
    if (state.ElapsedSeconds < std::numeric_limits<short>::max()) ++state.ElapsedSeconds;
}

FlickerStep flicker(ScrambleState& round, int difficulty, Rng& rng) {
    FlickerStep step;
    const int length = Len(round.scrambled);
    if (length == 0) return step;
    round.black.resize(length, false);

    // Only the letter blacked out last turns yellow again. At Difficulty 3 the first of the
    // pair stays dark, so the word darkens tick by tick: deliberately, as the hardest level.
    if (round.lastBlack >= 0 && round.lastBlack < length) {
        step.yellow = round.lastBlack;
        round.black[round.lastBlack] = false;
    }
    auto blackOne = [&] {
        const int k = std::clamp(static_cast<int>(Int(rng.Rnd() * length + 1)) - 1, 0, length - 1);
        round.black[k] = true;
        round.lastBlack = k;
        return k;
    };
    step.black1 = blackOne();
    if (difficulty == 3) step.black2 = blackOne();
    return step;
}

GuessResult judgeGuess(std::string_view guess, std::string_view word) {
    if (guess.empty()) return GuessResult::NotAGuess;
    return LCase(guess) == LCase(word) ? GuessResult::Right : GuessResult::Wrong;
}

double rightAnswerScore(int length, bool scatter, int difficulty, double timeOfDay, Rng& rng) {
    double score = Int(rng.Rnd() * 500 + 100) * static_cast<double>(length);
    if (scatter) score = score * Int(rng.Rnd() * 10 + 10) / 10;
    if (difficulty == 2) score = score * 1.5;
    if (difficulty == 3) score = score * 1.7;
    // The time of day, not the time played: a deduction of under 10 points, meant so.
    score = score - 10 * timeOfDay;
    if (score < 0) score = Int(rng.Rnd() * 1000 + 500);
    return score;
}

GuessResult submitGuess(SharedState& state, const ScrambleState& round, std::string_view guess,
                        double timeOfDay, Rng& rng) {
    GuessResult result = judgeGuess(guess, state.TheWord);
    if (result == GuessResult::Right) {
        state.Score =
            rightAnswerScore(Len(state.TheWord), round.scatter, state.Difficulty, timeOfDay, rng);
    }
    return result;
}

std::string giveUpText(std::string_view word) {
    return "Oops! The scrambled word was \"" + std::string(word) +
           "\". Would you like to try again?";
}

std::string hintText(std::string_view meaning) {
    return "This word means \"" + std::string(meaning) + "\"";
}

std::string takeHint(SharedState& state) {
    // A right answer sets Score anew, so in the end a hint costs nothing; kept as designed.
    state.Score -= 1000;
    return hintText(state.TheMeaning);
}

}  // namespace wm::scramble
