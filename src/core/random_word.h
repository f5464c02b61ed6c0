// The random word every game draws: reseed, then k = Int(Rnd * WordCount + 1).
#pragma once

namespace wm {

struct SharedState;
class Rng;

// Sets TheWord and TheMeaning from entry k and returns k (0 when the list is empty). A count
// past the 1000 entries a list can load draws among those 1000.
int PickRandomWord(SharedState& state, Rng& rng);

}  // namespace wm
