#include "games/action/letter_drop/letter_drop_rules.h"

#include "core/strings.h"

namespace wm::letter_drop {

namespace {
// Blanks, apostrophes and hyphens stand on their tiles from the start and are never dropped.
bool dropped(char c) {
    return c != ' ' && c != '\'' && c != '-';
}
bool hasLetterToDrop(const std::string& word) {
    for (char c : word)
        if (dropped(c)) return true;
    return false;
}
}  // namespace

Setup Game::setup(SharedState& s, Rng& rng) {
    rng.Randomize();
    word_.clear();
    len_ = 0;
    table_.fill(0);
    shows_.fill(false);
    lettersLeft_ = 0;
    falling_ = 0;
    misses_ = 0;
    hint_ = -1;
    s.Score = 0;
    s.GameSpeed = static_cast<short>(s.Difficulty);
    toTop();
    // At most twice WordCount draws: a list of long words must not hang the game. A word of
    // blanks and hyphens only would be a won game with nothing to play: another is drawn.
    bool found = false, letterless = false;
    for (int tries = 0; tries < 2 * s.WordCount && !found; ++tries) {
        const int k = int(Int(rng.Rnd() * s.WordCount + 1));
        if (Len(s.Words[k]) > kTiles) continue;
        if (!hasLetterToDrop(s.Words[k])) {
            letterless = true;
            continue;
        }
        s.TheWord = s.Words[k];
        s.TheMeaning = s.Meanings[k];
        found = true;
    }
    if (!found) return letterless ? Setup::NoLetters : Setup::TooLong;
    s.TheWord = UCase(s.TheWord);
    word_ = s.TheWord;
    len_ = Len(word_);
    lettersLeft_ = len_;
    for (int i = 0; i < len_; ++i) {
        const char c = word_[i];
        table_[i] = c;
        if (!dropped(c)) {
            table_[i] = 0;
            shows_[i] = c != ' ';  // apostrophes and hyphens stand on their tiles from the start
            --lettersLeft_;
        }
    }
    nextLetter(rng);
    return Setup::Ready;
}

int Game::tileLeft(int i) const {
    return (kFieldW - len_ * kTilePitch) / 2 + i * kTilePitch + (kTilePitch - kTileW) / 2;
}

int Game::tileUnder(int x) const {
    const int mid = x + kTileW / 2;
    for (int i = 0; i < len_; ++i) {
        if (!tileVisible(i)) continue;
        if (mid >= tileLeft(i) && mid <= tileLeft(i) + kTileW) return i;
    }
    return -1;
}

void Game::toTop() {
    x_ = kFieldW / 2;
    y_ = kTopY;
}

void Game::nextLetter(Rng& rng) {
    int k = 0;
    // Terminates while a letter is left; bounded all the same.
    for (int tries = 0; tries < 10000; ++tries) {
        k = int(Int(rng.Rnd() * len_ + 1));
        if (table_[k - 1] != 0) break;
    }
    if (table_[k - 1] == 0) {
        for (k = 1; k <= len_ && table_[k - 1] == 0; ++k) {
        }
    }
    falling_ = table_[k - 1];
    if (misses_ > kHintAfter) {
        hint_ = -1;
        for (int i = 0; i < len_; ++i) {
            if (word_[i] == falling_ && !shows_[i]) {
                hint_ = i;
                break;
            }
        }
    }
}

Landing Game::tick(SharedState& s, const Keys& keys, Rng& rng) {
    if (lettersLeft_ <= 0) return Landing::None;
    const int speed = s.GameSpeed;
    const int step = int(Int(speed / 2.0)) + 70;
    y_ += speed;
    if (keys.right) {
        x_ += step;
        if (x_ > kFieldW - kTileW) x_ -= step;
    }
    if (keys.left) {
        x_ -= step;
        if (x_ < 0) x_ += step;
    }
    if (keys.down) y_ += 2 * speed;
    if (y_ <= kTileTop - 2 * speed - 400) return Landing::None;

    landedX_ = x_;
    landedY_ = y_;
    const int t = tileUnder(x_);
    if (t >= 0 && word_[t] == falling_ && !shows_[t]) {
        hint_ = -1;
        misses_ = 0;
        shows_[t] = true;
        table_[t] = 0;
        toTop();
        s.Score += s.GameSpeed * 5;
        --lettersLeft_;
        if (lettersLeft_ < 5) s.GameSpeed = static_cast<short>(s.GameSpeed + 15);
        if (lettersLeft_ <= 0) return Landing::Won;
        nextLetter(rng);
        return Landing::Right;
    }
    ++misses_;
    s.Score -= 50;  // may go below zero during play
    toTop();
    nextLetter(rng);  // the missed letter stays in the table and comes back later
    return Landing::Wrong;
}

void Star::tick(Rng& rng) {
    if (!flying_) {
        if (Int(rng.Rnd() * 500 + 1) >= 10) return;
        const bool fromLeft = Int(rng.Rnd() * 2 + 1) == 1;
        const int y = int(Int(rng.Rnd() * (kTileTop / 2)));
        dx_ = fromLeft ? 240 : -240;
        dy_ = 60;
        trail_[0] = {fromLeft ? 0 : kFieldW, y};
        points_ = 1;
        flying_ = true;
        return;
    }
    for (int i = kTrail - 1; i > 0; --i) trail_[i] = trail_[i - 1];
    trail_[0] = {trail_[0].first + dx_, trail_[0].second + dy_};
    if (points_ < kTrail) ++points_;
    const auto [x, y] = trail_[0];
    if (x > kFieldW * 11 / 10 || x < 0 || y >= kTileTop) flying_ = false;
}

}  // namespace wm::letter_drop
