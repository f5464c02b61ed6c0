#include "core/random_word.h"

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm {

int PickRandomWord(SharedState& state, Rng& rng) {
    rng.Randomize();
    if (state.WordCount <= 0) return 0;
    int k = static_cast<int>(Int(rng.Rnd() * state.WordCount + 1));
    if (k < 1) k = 1;
    if (k >= static_cast<int>(state.Words.size())) k = static_cast<int>(state.Words.size()) - 1;
    state.TheWord = state.Words[k];
    state.TheMeaning = state.Meanings[k];
    return k;
}

}  // namespace wm
