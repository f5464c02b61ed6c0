#include "games/guess/common/word_guess.h"

#include "core/random_word.h"
#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::guess {

int missesAllowed(int difficulty) {
    if (difficulty <= 1) return 14;
    if (difficulty == 2) return 10;
    return 6;
}

void startRound(SharedState& s, GuessRound& round, Rng& rng) {
    round = GuessRound{};
    round.PickedIndex = PickRandomWord(s, rng);
    round.word = s.TheWord;
    // The stake of this round; nothing of an earlier round is carried.
    s.Score = static_cast<double>(Int(rng.Rnd() * 1000 + 1)) * s.Difficulty * Len(s.TheWord);
    for (char c : round.word) {
        Box b;
        if (c == ' ') b.visible = false;
        // Hyphens and apostrophes stand from the start; they are never guessed.
        if (c == '-' || c == '\'') b.letter = std::string(1, c);
        round.boxes.push_back(b);
    }
}

bool complete(const GuessRound& round) {
    for (const Box& b : round.boxes)
        if (b.visible && b.letter.empty()) return false;
    return true;
}

KeyResult pressKey(GuessRound& round, char key) {
    if (key == 0 || key == ' ' || key == '\'') return KeyResult::Ignored;
    const std::string k(1, key);
    if (InStr(UCase(round.UsedLetters), UCase(k)) > 0) return KeyResult::Repeat;
    round.UsedLetters += k + " ";
    bool hit = false;
    for (std::size_t i = 0; i < round.boxes.size(); ++i) {
        Box& b = round.boxes[i];
        // A box filled already is skipped: a hyphen shown from the start is no hit.
        if (!b.letter.empty()) continue;
        const std::string letter(1, round.word[i]);
        if (UCase(letter) == UCase(k)) {
            b.letter = letter;
            hit = true;
        }
    }
    if (!hit) return KeyResult::Miss;
    return complete(round) ? KeyResult::Won : KeyResult::Hit;
}

int addMiss(GuessRound& round, Rng& rng) {
    rng.Randomize();
    return ++round.Misses;
}

std::string hintText(const SharedState& s, const GuessRound& round) {
    std::string meaning;
    if (round.PickedIndex >= 0 && round.PickedIndex < static_cast<int>(s.Meanings.size()))
        meaning = s.Meanings[round.PickedIndex];
    return "Definition: \"" + meaning + "\"";
}

void payForHint(SharedState& s, Rng& rng) {
    // Deliberate: at 0 the draw is Int(Rnd * 0 + 1) = 1, so a second hint takes the score below 0.
    s.Score -= static_cast<double>(Int(rng.Rnd() * s.Score + 1));
}

SolveResult solve(const GuessRound& round, const std::optional<std::string>& answer) {
    if (!answer || answer->empty()) return SolveResult::Nothing;
    return Trim(LCase(*answer)) == Trim(LCase(round.word)) ? SolveResult::Won : SolveResult::Miss;
}

}  // namespace wm::guess
