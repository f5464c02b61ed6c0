#include "games/action/basketball/basketball_rules.h"

#include "core/strings.h"

namespace wm::basketball {

bool Game::setup(SharedState& s, Rng& rng) {
    s.Score = 0;
    shot_ = 1;
    onShow_.clear();
    revealed_.clear();
    revealedCount_ = 0;
    return chooseWord(s, rng);
}

int Game::drawShortWord(const SharedState& s, Rng& rng) const {
    // Bounded, so a list of long words ends with a message instead of a hang.
    for (int tries = 0; tries < 1000; ++tries) {
        const int k = int(Int(rng.Rnd() * s.WordCount + 1));
        if (Len(s.Words[k]) <= kMaxLen) return k;
    }
    return 0;
}

bool Game::chooseWord(SharedState& s, Rng& rng) {
    rng.Randomize();
    const int k = drawShortWord(s, rng);
    if (k == 0) return false;
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];
    wordsShown_ = 0;
    return true;
}

void Game::showNextWord(const SharedState& s, Rng& rng) {
    rng.Randomize();
    const int k = drawShortWord(s, rng);
    onShow_ = k ? s.Words[k] : s.TheWord;
    // About one word in four is the right one.
    if (Int(rng.Rnd() * 4 + 1) == 3) onShow_ = s.TheWord;
    ++wordsShown_;
    revealedCount_ = 0;
    revealed_.assign(onShow_.size(), false);
}

std::string Game::revealTick(Rng& rng, bool& done) {
    const int len = Len(onShow_);
    std::string caption(onShow_.size(), ' ');
    for (int i = 0; i < len; ++i)
        caption[i] = revealed_[i] ? onShow_[i] : Chr(int(Int(rng.Rnd() * 26)) + 65)[0];
    done = revealedCount_ >= len;
    if (done) return caption;
    if (Int(rng.Rnd() * 2 + 1) == 2) {
        int p = 0;
        for (int tries = 0; tries < 10000; ++tries) {
            p = int(Int(rng.Rnd() * len + 1));
            if (!revealed_[p - 1]) break;
        }
        for (int i = 0; revealed_[p - 1] && i < len; ++i) p = i + 1;  // bounded draws ran out
        revealed_[p - 1] = true;
        ++revealedCount_;
    }
    return caption;
}

Shot Game::shoot(SharedState& s, const std::string& caption, Rng& rng) {
    Shot out;
    out.good = caption == s.TheWord;
    out.animation = int(Int(rng.Rnd() * 4 + 1));
    if (!out.good) return out;
    // The sooner the right word is taken, the more it is worth, by chance.
    if (wordsShown_ <= 1)
        out.points = Int(rng.Rnd() * 100 * 10) * s.Difficulty;
    else if (wordsShown_ == 2)
        out.points = Int(rng.Rnd() * 50 * 10) * s.Difficulty;
    else
        out.points = Len(s.TheWord) * s.Difficulty;
    s.Score += out.points;
    return out;
}

}  // namespace wm::basketball
