#include "games/common/word_scramble.h"

#include "core/rng.h"
#include "core/strings.h"

namespace wm {

std::string ScrambleWord(std::string_view word, Rng& rng) {
    const int length = Len(word);
    std::string letters(word);
    int toTake = 0;
    for (char c : letters) {
        if (c != kTakenMark) ++toTake;
    }

    std::string taken;
    const long long maxDraws = static_cast<long long>(kScrambleDrawsPerLetter) * length;
    for (long long draws = 0; Len(taken) < toTake && draws < maxDraws; ++draws) {
        int k = static_cast<int>(Int(rng.Rnd() * length + 1));
        if (k < 1 || k > length) continue;  // a generator outside [0, 1)
        char& letter = letters[k - 1];
        if (letter != kTakenMark) {
            taken += letter;
            letter = kTakenMark;
        }
    }
    // Only a generator stuck on taken places gets here: the letters left follow in word order.
    for (char letter : letters) {
        if (letter != kTakenMark) taken += letter;
    }

    // Each "*" of the word stands where it stood; the taken letters fill the other places.
    std::string row;
    row.reserve(word.size());
    std::size_t next = 0;
    for (char c : word) row += (c == kTakenMark) ? kTakenMark : taken[next++];
    return row;
}

}  // namespace wm
