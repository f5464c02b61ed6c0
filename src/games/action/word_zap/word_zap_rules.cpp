#include "games/action/word_zap/word_zap_rules.h"

#include <algorithm>

#include "core/strings.h"

namespace wm::zap {

DealResult deal(const SharedState& s, Gallery& g, int difficulty, Rng& rng) {
    rng.Randomize();
    for (Target& t : g.targets) t = Target{};
    g.wordOf = {};
    g.slotOf = {};
    // There are eight slots, so no more than eight words a round.
    g.count = std::clamp(difficulty, 1, kTargets);
    int draws = 0;
    for (int i = 1; i <= g.count; ++i) {
        // Unused words and slots are drawn for; the draws are bounded so that a list with fewer
        // words than the level cannot keep the deal going for ever.
        int k = 0;
        for (;;) {
            if (++draws > kMaxDraws)
                return {false,
                        "This list does not have enough different words for this level! Choose "
                        "another list or a lower level."};
            k = int(Int(rng.Rnd() * s.WordCount + 1));
            if (k < 1 || k >= int(s.Words.size())) continue;
            if (std::find(g.wordOf.begin() + 1, g.wordOf.begin() + i, k) != g.wordOf.begin() + i)
                continue;
            break;
        }
        int slot = 0;
        do {
            slot = int(Int(rng.Rnd() * kTargets + 1));
        } while (std::find(g.slotOf.begin() + 1, g.slotOf.begin() + i, slot) !=
                 g.slotOf.begin() + i);
        g.wordOf[i] = k;
        g.slotOf[i] = slot;
        g.targets[slot - 1].word = s.Words[k];
        g.targets[slot - 1].visible = !s.Words[k].empty();
    }
    g.definition = 1;
    g.reaction = 0;
    return {};
}

std::string definitionText(const SharedState& s, const Gallery& g) {
    const int k = g.wordOf[std::clamp(g.definition, 1, kTargets)];
    return k > 0 && k < int(s.Meanings.size()) ? s.Meanings[k] : std::string();
}

void burst(Gallery& g, int cx, int cy, Rng& rng) {
    for (int n = 0; n < 10; ++n) {
        Star& star = g.stars[(g.group - 1) * 10 + n];
        star.x = cx;
        star.y = cy;
        star.dy = int(Int(rng.Rnd() * 10 + 1)) + 5;
        star.dx = 10 - int(Int(rng.Rnd() * 20 + 1));
        star.age = 0;
        star.alive = true;
    }
    g.group = g.group % kGroups + 1;
}

Click clickTarget(const SharedState& s, Gallery& g, int k, int difficulty, int cx, int cy,
                  Rng& rng) {
    if (k < 0 || k >= kTargets || !g.targets[k].visible) return Click::Ignored;
    if (k != g.slotOf[g.definition] - 1) {
        g.targets[k].black = true;
        g.score -= 500;
        return Click::Wrong;
    }
    g.targets[k].visible = false;
    burst(g, cx, cy, rng);
    // A slow answer can cost more than it earns: after 1000 ticks the hit lowers the score.
    g.score += 1000 - g.reaction + difficulty * 100;
    ++g.definition;
    if (g.definition > g.count) return Click::Dealt;
    for (Target& t : g.targets) t.black = false;
    g.reaction = 0;
    return Click::Hit;
}

void clickBehind(Gallery& g) {
    g.score -= 100;
}

bool starTick(Gallery& g) {
    bool end = false, anyAlive = false;
    for (Star& star : g.stars) {
        if (!star.alive) continue;
        star.x += star.dx;
        star.y -= star.dy;
        star.dy -= 1;
        if (++star.age > 200) star.alive = false;
        if (g.ending && star.age > 50) end = true;
        anyAlive = anyAlive || star.alive;
    }
    g.stripFrame = g.stripFrame % 5 + 1;
    // With no star left to wait for, the end would never come: it comes at once.
    return end || (g.ending && !anyAlive);
}

bool timeTick(Gallery& g) {
    if (g.timeLeft <= 0) return false;
    --g.timeLeft;
    if (g.timeLeft > 0) return false;
    g.ending = true;
    return true;
}

std::string scoreCaption(double score) {
    return "Score: " + NumText(score);
}
std::string timeCaption(int seconds) {
    return "Time:  " + std::to_string(seconds);
}
std::string badScoreText(double score) {
    return "Oops! You scored " + NumText(score) +
           "! Try to be more careful what you shoot next time! Would you like to try again?";
}

}  // namespace wm::zap
