#include "games/action/bridge_out/bridge_out_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::bridge_out {

double truckSpeed(int level) {
    return 2 + level / 2.0;
}

double roadLength(int gaps) {
    return 30 + 14 * gaps;
}

double laneSpeed(int lane) {
    return lane == 0 ? 70 : 90;
}

int gapCount(int letters) {
    return std::max(1, letters / 2);
}

bool fitsBridge(const std::string& word) {
    return !word.empty() && Len(word) <= kMaxPlanks &&
           std::any_of(word.begin(), word.end(), IsLetter);
}

bool Game::start(SharedState& s, Rng& rng) {
    *this = Game{};
    // A level outside the slider would make the truck crawl or fly: held to the slider.
    level_ = std::clamp(s.Difficulty, kMinLevel, kMaxLevel);
    rng.Randomize();
    // A list over the limit keeps WordCount at 1001: the draw is among the entries loaded.
    const int loaded = std::min({int(s.WordCount), kMaxWords, int(s.Words.size()) - 1});
    if (loaded <= 0) return false;
    used_.assign(loaded + 1, false);
    if (!drawWord(s, rng)) return false;
    setUpWord(rng);
    return true;
}

bool Game::drawWord(SharedState& s, Rng& rng) {
    const int n = static_cast<int>(used_.size()) - 1;
    auto fresh = [&](int k) { return !used_[k] && fitsBridge(s.Words[k]); };
    auto anyFree = [&] {
        for (int k = 1; k <= n; ++k)
            if (fresh(k)) return true;
        return false;
    };
    // Every fit word has had its turn: repeats from here, but not the word just played.
    if (!anyFree()) {
        std::fill(used_.begin(), used_.end(), false);
        if (entry_ > 0) used_[entry_] = true;
        if (!anyFree()) used_[entry_] = false;
        if (!anyFree()) return false;
    }
    auto draw = [&] { return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n); };
    int k = draw();
    for (int tries = 1; !fresh(k) && tries < kWordDraws; ++tries) k = draw();
    // Bounded: after that many unfit draws, the next free entry after the last draw.
    for (int step = 1; !fresh(k) && step < n; ++step) k = k % n + 1;
    used_[k] = true;
    entry_ = k;
    word_ = s.Words[k];
    s.TheWord = word_;
    s.TheMeaning = s.Meanings.size() > size_t(k) ? s.Meanings[k] : std::string();
    return true;
}

void Game::setUpWord(Rng& rng) {
    std::vector<int> letters;
    for (int i = 0; i < Len(word_); ++i)
        if (IsLetter(word_[i])) letters.push_back(i);
    open_.assign(word_.size(), false);
    gaps_ = gapCount(int(letters.size()));
    // Each gap one draw among the letters still whole, counted from the left.
    for (int g = 0; g < gaps_ && !letters.empty(); ++g) {
        const int n = int(letters.size());
        const int j = std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n);
        open_[letters[j - 1]] = true;
        letters.erase(letters.begin() + (j - 1));
    }
    road_ = roadLength(gaps_);
    truck_ = 0;
    phase_ = Phase::Ready;
    phaseMs_ = 0;
    lastBonus_ = 0;
    river_.clear();
    spawn(rng);
    spawnMs_ = 0;
    flow(kPrefillMs, rng, nullptr);
}

int Game::gapsLeft() const {
    return int(std::count(open_.begin(), open_.end(), true));
}

const Plank* Game::plank(int id) const {
    for (const Plank& p : river_)
        if (p.id == id) return &p;
    return nullptr;
}

std::vector<std::string> Game::missingLetters() const {
    std::vector<std::string> missing;
    for (int i = 0; i < int(open_.size()); ++i)
        if (open_[i]) missing.push_back(UCase(word_.substr(i, 1)));
    return missing;
}

void Game::spawn(Rng& rng) {
    const double share = rng.Rnd();
    const double pick = rng.Rnd();
    const std::vector<std::string> missing = missingLetters();
    // Each missing letter may float twice at once; what is afloat already counts.
    std::vector<std::string> needed = missing;
    needed.insert(needed.end(), missing.begin(), missing.end());
    bool rightAfloat = false;
    for (const Plank& p : river_) {
        auto it = std::find(needed.begin(), needed.end(), p.letter);
        if (it != needed.end()) {
            needed.erase(it);
            rightAfloat = true;
        }
    }
    Plank p;
    if (!needed.empty() && (share < kRightShare || !rightAfloat)) {
        const int n = int(needed.size());
        p.letter = needed[std::clamp(static_cast<int>(Int(pick * n)), 0, n - 1)];
    } else {
        // A decoy: a capital that no gap wants, the next one along when the draw does.
        const int c = std::clamp(static_cast<int>(Int(pick * 26)), 0, 25);
        for (int i = 0; i < 26 && p.letter.empty(); ++i) {
            const std::string d = Chr('A' + (c + i) % 26);
            if (std::find(missing.begin(), missing.end(), d) == missing.end()) p.letter = d;
        }
    }
    p.id = nextId_++;
    p.lane = spawned_++ % 2;
    p.x = -kPlankLength / 2;
    river_.push_back(p);
}

void Game::flow(int ms, Rng& rng, std::vector<Event>* events) {
    while (ms > 0) {
        const int step = std::min(ms, kSpawnMs - spawnMs_);
        for (Plank& p : river_)
            if (!p.held) p.x += laneSpeed(p.lane) * step / 1000.0;
        std::erase_if(river_, [](const Plank& p) {
            return !p.held && p.x - kPlankLength / 2 > kRiverLength;
        });
        spawnMs_ += step;
        ms -= step;
        if (spawnMs_ >= kSpawnMs) {
            spawnMs_ = 0;
            spawn(rng);
            if (events) events->push_back(Event::Spawned);
        }
    }
}

std::vector<Event> Game::advance(SharedState& s, int ms, Rng& rng) {
    std::vector<Event> events;
    if (over() || ms <= 0) return events;
    flow(ms, rng, &events);
    switch (phase_) {
        case Phase::Ready:
            phaseMs_ += ms;
            if (phaseMs_ >= kReadyMs) {
                phase_ = Phase::Driving;
                events.push_back(Event::Go);
            }
            break;
        case Phase::Driving:
            truck_ += truckSpeed(level_) * ms / 1000.0;
            if (truck_ >= road_) {
                truck_ = road_;
                phase_ = Phase::Stopped;
                phaseMs_ = 0;
                trucks_ -= 1;
                missed_.push_back(word_);
                for (Plank& p : river_) p.held = false;
                events.push_back(Event::Stopped);
            }
            break;
        case Phase::Crossing:
        case Phase::Stopped:
            phaseMs_ += ms;
            if (phaseMs_ >= (phase_ == Phase::Crossing ? kCrossMs : kStopMs))
                nextWordOrEnd(s, rng, events);
            break;
        case Phase::Won:
        case Phase::Lost:
            break;
    }
    return events;
}

void Game::nextWordOrEnd(SharedState& s, Rng& rng, std::vector<Event>& events) {
    if (crossed_ >= kWordsToWin) {
        phase_ = Phase::Won;
        events.push_back(Event::Won);
    } else if (trucks_ <= 0) {
        phase_ = Phase::Lost;
        events.push_back(Event::Lost);
    } else {
        drawWord(s, rng);
        setUpWord(rng);
        events.push_back(Event::NextWord);
    }
}

bool Game::take(int plankId) {
    if (!canDrag()) return false;
    for (Plank& p : river_) {
        if (p.id == plankId) {
            p.held = true;
            return true;
        }
    }
    return false;
}

Drop Game::place(int plankId, int gap, double riverX) {
    if (!canDrag()) return Drop::Ignored;
    auto it =
        std::find_if(river_.begin(), river_.end(), [&](const Plank& p) { return p.id == plankId; });
    if (it == river_.end()) return Drop::Ignored;
    auto backInTheRiver = [&] {
        it->held = false;
        it->x = std::clamp(riverX, -kPlankLength / 2, kRiverLength);
    };
    if (!isGap(gap)) {
        backInTheRiver();
        return Drop::Missed;
    }
    if (UCase(word_.substr(gap, 1)) != it->letter) {
        score_ -= 5 * level_;
        backInTheRiver();
        return Drop::Wrong;
    }
    open_[gap] = false;
    river_.erase(it);
    score_ += 10 * level_;
    if (gapsLeft() == 0) {
        // The road to spare, in whole metres, is the bonus.
        lastBonus_ = static_cast<int>(Int(road_ - truck_)) * level_;
        score_ += lastBonus_;
        crossed_ += 1;
        phase_ = Phase::Crossing;
        phaseMs_ = 0;
        for (Plank& p : river_) p.held = false;
    }
    return Drop::Right;
}

std::string lostText(const std::vector<std::string>& words) {
    std::vector<std::string> shown;
    for (const auto& w : words)
        if (std::find(shown.begin(), shown.end(), w) == shown.end()) shown.push_back(w);
    std::string list;
    for (size_t i = 0; i < shown.size(); ++i) {
        if (i > 0) list += i + 1 == shown.size() ? " and " : ", ";
        list += "\"" + shown[i] + "\"";
    }
    return "Honk! All three trucks had to stop at the broken bridge. " +
           std::string(shown.size() == 1 ? "The word was " : "The words were ") + list +
           ". Would you like to try again?";
}

std::string noPointsText(double score) {
    return "All eight trucks got across, but your score is " + NumText(score) +
           ", so it cannot go on the high score table. Would you like to try again?";
}

}  // namespace wm::bridge_out
