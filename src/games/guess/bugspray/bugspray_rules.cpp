#include "games/guess/bugspray/bugspray_rules.h"

#include "core/rng.h"
#include "core/strings.h"
#include "games/guess/common/word_guess.h"

namespace wm::bugspray {

namespace {
// {spray, bug}; bug 0 means no bug clip in the group.
using Group = std::pair<int, int>;
using Table = std::vector<std::vector<Group>>;

// Deliberate: the easiest level shows the bug clips 4, 5, 6 and 9 a second time near the end.
const Table kLevel1 = {{{1, 1}}, {{2, 2}}, {{3, 3}},  {{4, 4}},  {{5, 5}},  {{6, 6}},  {{7, 7}},
                       {{8, 8}}, {{9, 9}}, {{10, 4}}, {{11, 5}}, {{12, 6}}, {{13, 9}}, {{14, 14}}};
const Table kLevel2 = {
    {{1, 1}, {2, 0}}, {{3, 2}, {4, 0}, {5, 0}}, {{6, 3}},  {{7, 4}}, {{8, 5}}, {{9, 6}}, {{10, 7}},
    {{11, 8}},        {{12, 9}, {13, 0}},       {{14, 14}}};
const Table kLevel3 = {{{1, 1}, {2, 2}},
                       {{3, 3}, {4, 0}, {5, 0}},
                       {{6, 4}},
                       {{7, 5}, {8, 6}, {9, 0}, {10, 7}},
                       {{11, 8}, {12, 9}, {13, 0}},
                       {{14, 14}}};
}  // namespace

Step wrongGuessStep(int difficulty, int misses) {
    Step step;
    const int allowed = guess::missesAllowed(difficulty);
    if (misses < 1 || misses > allowed) return step;
    const Table& table = allowed == 14 ? kLevel1 : allowed == 10 ? kLevel2 : kLevel3;
    for (auto [spray, bug] : table[misses - 1])
        step.groups.push_back(
            {"spray" + std::to_string(spray), bug ? "bug" + std::to_string(bug) : std::string()});
    step.lost = misses == allowed;
    return step;
}

std::string badSound(int misses, bool lost, Rng& rng) {
    if (lost) return "bugdead.wav";
    if (misses <= 1) return "bugbad1.wav";
    return "bugbad" + std::to_string(Int(rng.Rnd() * 3 + 1) + 1) + ".wav";
}

std::string goodSound(Rng& rng) {
    return "buggood" + std::to_string(Int(rng.Rnd() * 4 + 1)) + ".wav";
}

std::string lostText(const std::string& word) {
    return "Oops! Your bug was sprayed! The word you were looking for was \"" + word +
           "\". Would you like to give it another try?";
}

}  // namespace wm::bugspray
