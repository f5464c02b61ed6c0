#include "core/random_word.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm {

int PickRandomWord(SharedState& state, Rng& rng) {
    rng.Randomize();
    if (state.WordCount <= 0) return 0;
    // After the over-limit message WordCount stays at 1001 while entry 1001 is empty: draw from
    // the entries that were loaded, so no game is handed an empty word. Up to the limit the
    // draw is the plain Int(Rnd x WordCount + 1).
    const int loaded = std::min<int>(state.WordCount, kMaxWords);
    int k = static_cast<int>(Int(rng.Rnd() * loaded + 1));
    k = std::clamp(k, 1, static_cast<int>(state.Words.size()) - 1);
    state.TheWord = state.Words[k];
    state.TheMeaning = state.Meanings[k];
    return k;
}

}  // namespace wm
