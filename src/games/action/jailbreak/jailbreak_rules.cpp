#include "games/action/jailbreak/jailbreak_rules.h"

#include <algorithm>
#include <set>

#include "core/strings.h"

namespace wm::jailbreak {

namespace {

// Words are told apart as the pupil types them: without regard to case, blanks round them cut.
std::string key(const std::string& word) {
    return UCase(Trim(word));
}

int loaded(const SharedState& s) {
    const int size = static_cast<int>(std::min(s.Words.size(), s.Meanings.size()));
    return std::max(0, std::min({static_cast<int>(s.WordCount), kMaxWords, size - 1}));
}

// An entry can tag a lock when it has a word and a definition to show.
bool usable(const SharedState& s, int k) {
    return !Trim(s.Words[k]).empty() && !Trim(s.Meanings[k]).empty();
}

void selectFirstShut(Jail& j) {
    const auto shut =
        std::find_if(j.locks.begin(), j.locks.end(), [](const Lock& l) { return !l.open; });
    j.selected = shut == j.locks.end() ? -1 : static_cast<int>(shut - j.locks.begin());
}

void showSelected(SharedState& s, const Jail& j) {
    if (j.selected < 0) return;
    s.TheWord = j.locks[j.selected].word;
    s.TheMeaning = j.locks[j.selected].meaning;
}

}  // namespace

int locksFor(int difficulty) {
    return std::clamp(difficulty, kMinLocks, kMaxLocks);
}

int stepsToGo(const Jail& j) {
    return std::max(0, kCorridorSteps - j.guardSteps);
}

int shutLocks(const Jail& j) {
    return static_cast<int>(
        std::count_if(j.locks.begin(), j.locks.end(), [](const Lock& l) { return !l.open; }));
}

bool cellCleared(const Jail& j) {
    return !j.locks.empty() && shutLocks(j) == 0;
}

bool caught(const Jail& j) {
    return j.guardSteps >= kCorridorSteps;
}

bool newGame(SharedState& s, Jail& j, Rng& rng) {
    rng.Randomize();
    s.Score = 0;
    j = Jail{};
    return nextCell(s, j, rng);
}

bool nextCell(SharedState& s, Jail& j, Rng& rng) {
    const int count = loaded(s);
    const int n = locksFor(s.Difficulty);
    std::set<std::string> distinct, fresh;
    for (int k = 1; k <= count; ++k) {
        if (!usable(s, k)) continue;
        distinct.insert(key(s.Words[k]));
        if (std::find(j.used.begin(), j.used.end(), key(s.Words[k])) == j.used.end())
            fresh.insert(key(s.Words[k]));
    }
    j.locks.clear();
    if (static_cast<int>(distinct.size()) < n) return false;
    // No word of this game comes back while the list still has enough new ones for a cell.
    const bool noRepeats = static_cast<int>(fresh.size()) >= n;
    auto fits = [&](int k) {
        if (!usable(s, k)) return false;
        const std::string w = key(s.Words[k]);
        for (const Lock& l : j.locks)
            if (key(l.word) == w) return false;
        return !noRepeats || std::find(j.used.begin(), j.used.end(), w) == j.used.end();
    };
    for (int i = 0; i < n; ++i) {
        int k = 0;
        for (int tries = 0; tries < kDrawTries; ++tries) {
            k = static_cast<int>(Int(rng.Rnd() * count + 1));
            if (fits(k)) break;
        }
        // The draw is bounded: after that many misses, walk on from the last draw. The counts
        // above make sure a fitting entry is there.
        for (int m = 0; m < count && !fits(k); ++m) k = k % count + 1;
        Lock lock;
        lock.entry = k;
        lock.word = s.Words[k];
        lock.meaning = s.Meanings[k];
        j.locks.push_back(lock);
    }
    for (const Lock& l : j.locks) j.used.push_back(key(l.word));
    j.cell += 1;
    j.guardSteps = 0;
    selectFirstShut(j);
    showSelected(s, j);
    return true;
}

Typed typeWord(SharedState& s, Jail& j, const std::string& typed) {
    Typed t;
    const std::string w = key(typed);
    if (w.empty() || j.locks.empty() || cellCleared(j) || caught(j)) return t;
    for (int i = 0; i < static_cast<int>(j.locks.size()); ++i) {
        Lock& l = j.locks[i];
        if (l.open || key(l.word) != w) continue;
        l.open = true;
        t.lock = i;
        t.points = Len(l.word) * kLetterPoints;
        s.Score += t.points;
        if (cellCleared(j)) {
            t.cellBonus = stepsToGo(j) * kStepPoints;
            s.Score += t.cellBonus;
            t.result = Result::CellCleared;
            selectFirstShut(j);  // none: the panel says so
            return t;
        }
        if (j.selected == i) {
            selectFirstShut(j);
            showSelected(s, j);
        }
        t.result = Result::Opened;
        return t;
    }
    s.Score -= kWrongCost;
    t.points = -kWrongCost;
    j.guardSteps = std::min(kCorridorSteps, j.guardSteps + kAlarmSteps);
    t.result = caught(j) ? Result::Caught : Result::Wrong;
    return t;
}

bool guardStep(Jail& j) {
    if (caught(j) || cellCleared(j)) return false;
    j.guardSteps += 1;
    return caught(j);
}

std::optional<std::string> hint(SharedState& s, Jail& j, int lock) {
    if (lock < 0 || lock >= static_cast<int>(j.locks.size())) return std::nullopt;
    Lock& l = j.locks.at(lock);
    if (l.open) return std::nullopt;
    if (!l.hinted) {
        l.hinted = true;
        s.Score -= kHintCost;
    }
    return UCase(Left(Trim(l.word), 1));
}

void select(Jail& j, int lock) {
    if (lock >= 0 && lock < static_cast<int>(j.locks.size()) && !j.locks[lock].open)
        j.selected = lock;
}

std::string caughtText(const Jail& j) {
    std::string words;
    for (const Lock& l : j.locks) {
        if (l.open) continue;
        if (!words.empty()) words += ", ";
        words += "\"" + l.word + "\"";
    }
    const bool one = shutLocks(j) == 1;
    return std::string("The guard caught you! ") +
           (one ? "The lock still shut was " : "The locks still shut were ") + words +
           ". Would you like to try again?";
}

std::string hintText(const std::string& letter) {
    return "It begins with \"" + letter + "\"";
}

}  // namespace wm::jailbreak
