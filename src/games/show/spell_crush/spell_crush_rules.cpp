#include "games/show/spell_crush/spell_crush_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/misspell.h"

namespace wm::spellcrush {

void newGame(SharedState& state, SpellCrushState& game, Rng& rng) {
    game.SecondsLeft = kGameSeconds;
    state.Score = 0;
    deal(state, game, rng);
}

void deal(const SharedState& state, SpellCrushState& game, Rng& rng) {
    rng.Randomize();
    // A list cut at the limit keeps WordCount one past its last word: draw only real words.
    const int count = std::clamp<int>(state.WordCount, 1, kMaxWords);
    game.WrongWordPos = static_cast<int>(Int(rng.Rnd() * kWords + 1));
    auto dealtBefore = [&](int i, int n) {
        for (int j = 1; j < i; ++j)
            if (game.DealWords[j] == n) return true;
        return false;
    };
    auto unusable = [&](int i, int n) { return n < 1 || n > count || dealtBefore(i, n); };
    for (int i = 1; i <= kWords; ++i) {
        int n = static_cast<int>(Int(rng.Rnd() * state.WordCount + 1));
        for (int redraw = 0; unusable(i, n) && redraw < kMaxRedraws; ++redraw)
            n = static_cast<int>(Int(rng.Rnd() * state.WordCount + 1));
        if (unusable(i, n)) {
            // Only a list of fewer than four words, or a stuck generator, gets here.
            n = 1;
            while (n < count && dealtBefore(i, n)) ++n;
        }
        game.DealWords[i] = n;
        const std::string word = n < int(state.Words.size()) ? state.Words[n] : std::string();
        game.shown[i - 1] = i == game.WrongWordPos ? SpellCrushMisspell(word, rng) : word;
    }
    game.DealTime = game.SecondsLeft;
    game.ClickedWord = -1;
}

Verdict judge(SharedState& state, SpellCrushState& game, int index) {
    game.ClickedWord = index;
    Verdict v;
    v.right = index + 1 == game.WrongWordPos;
    if (!v.right) return v;
    // The crushed word is the one on the label, misspelling and all.
    const int used = std::max(1, game.DealTime - game.SecondsLeft);
    v.points = Int(static_cast<double>(Len(game.shown[index])) * 500 / used);
    state.Score += static_cast<double>(v.points);
    return v;
}

bool countSecond(SpellCrushState& game) {
    if (game.SecondsLeft > 0) --game.SecondsLeft;
    return game.SecondsLeft <= 0;
}

}  // namespace wm::spellcrush
