// The word draw of the games that play each list word once while they can.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

// The next word: Int(Rnd x n + 1) over the list's first n entries (at most `most`), taking a word
// that `playable` accepts and whose text, in any case, has not been drawn yet; once every playable
// word has come, repeats are the only way on. After 200 unlucky draws it walks on from the last
// draw to the next entry that fits, so it always ends. 0 when no word on the list can be played.
int DrawFreshWord(const SharedState& s, Rng& rng, const std::vector<int>& drawn, int most,
                  const std::function<bool(const std::string&)>& playable);

}  // namespace wm
