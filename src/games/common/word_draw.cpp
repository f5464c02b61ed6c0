#include "games/common/word_draw.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm {

namespace {
constexpr int kUnluckyDraws = 200;  // random draws before the draw walks on from the last one
}

int DrawFreshWord(const SharedState& s, Rng& rng, const std::vector<int>& drawn, int most,
                  const std::function<bool(const std::string&)>& playable) {
    const int loaded =
        std::min({static_cast<int>(s.WordCount), most, static_cast<int>(s.Words.size()) - 1});
    // A word drawn already, by its text: the same word twice in a list is still a repeat.
    auto fresh = [&](int k) {
        const std::string w = UCase(s.Words[k]);
        return std::none_of(drawn.begin(), drawn.end(), [&](int d) {
            return static_cast<std::size_t>(d) < s.Words.size() && UCase(s.Words[d]) == w;
        });
    };
    bool anyPlayable = false, anyFresh = false;
    for (int k = 1; k <= loaded; ++k) {
        if (!playable(s.Words[k])) continue;
        anyPlayable = true;
        if (fresh(k)) anyFresh = true;
    }
    if (!anyPlayable) return 0;
    // Once every word has been played, repeats are the only way on.
    auto fits = [&](int k) { return playable(s.Words[k]) && (!anyFresh || fresh(k)); };
    int k;
    int tries = 0;
    do {
        k = std::clamp(static_cast<int>(Int(rng.Rnd() * loaded + 1)), 1, loaded);
        if (fits(k)) return k;
    } while (++tries < kUnluckyDraws);
    // Some entry fits (a playable one, a fresh one if any is left), so the walk on from the
    // last draw ends within one round of the list.
    for (int j = k % loaded + 1;; j = j % loaded + 1) {
        if (fits(j)) return j;
    }
}

}  // namespace wm
