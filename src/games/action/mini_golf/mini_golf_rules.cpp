#include "games/action/mini_golf/mini_golf_rules.h"

#include <algorithm>
#include <cmath>

#include "core/strings.h"

namespace wm::mini_golf {

namespace {
std::array<bool, kBlocks + 1> Blocks(std::initializer_list<int> on) {
    std::array<bool, kBlocks + 1> b{};
    for (int i : on) b[i] = true;
    return b;
}
}  // namespace

Level LevelFor(int d) {
    switch (d) {
        case 1:
            return {2, Blocks({}), 400};
        case 2:
        case 3:
            return {3, Blocks({}), 400};
        case 4:
            return {3, Blocks({1, 2, 4, 5}), 300};
        case 5:
            return {3, Blocks({1, 2, 3, 4, 5}), 300};
        case 6:
            return {4, Blocks({1, 2, 3, 4, 5}), 200};
        case 7:
            return {4, Blocks({1, 2, 3, 4, 5, 11, 12}), 200};
        case 8:
            return {5, Blocks({1, 2, 3, 4, 5, 11, 12}), 100};
        case 9:
            return {5, Blocks({1, 2, 3, 4, 5, 6, 7, 8, 11, 12}), 100};
        default:
            if (d < 1) return LevelFor(1);
            return {5, Blocks({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}), 100};
    }
}

void Course::setup(SharedState& s, Rng& rng) {
    moving_ = false;
    holeX_.fill(0), holeY_.fill(0), blockX_.fill(0), blockY_.fill(0);
    box_.left = kFieldW / 10;
    box_.right = kFieldW * 9 / 10;
    box_.top = int(1.1 * kDefHeight) + kDefTop;
    box_.bottom = kFieldH * 9 / 10;
    B_ = int(std::lround(0.025 * kFieldW));
    s.Score = 0;
    seconds_ = kSeconds;
    level_ = LevelFor(s.Difficulty);
    nextWord(s, rng);
    layOutHoles();
    layOutBlocks(rng);
}

void Course::nextWord(SharedState& s, Rng& rng) {
    rng.Randomize();
    const int k = int(Int(rng.Rnd() * s.WordCount + 1));
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];
    right_ = int(Int(rng.Rnd() * level_.holes + 1));
    for (auto& c : caption_) c.clear();
    caption_[right_] = s.TheWord;
    for (int h = 1; h <= level_.holes; ++h) {
        if (h == right_) continue;
        // Drawn again while it repeats a word on the course; a list of few distinct words must
        // not hang the game, so the draws are bounded.
        std::string w;
        for (int tries = 0; tries < 1000; ++tries) {
            w = s.Words[Int(rng.Rnd() * s.WordCount + 1)];
            bool taken = false;
            for (int j = 1; j <= level_.holes; ++j) taken = taken || caption_[j] == w;
            if (!taken) break;
        }
        caption_[h] = w;
    }
    strokes_ = 0;
    waiting_ = false;
    moving_ = false;
    vx_ = vy_ = 0;
    ballHome();
}

void Course::ballHome() {
    bx_ = kFieldW / 2.0;
    by_ = 0.8 * kFieldH;
}

void Course::layOutHoles() {
    const int D = box_.width(), Hh = box_.height(), R = level_.R;
    for (int h : {1, 2, 3}) holeY_[h] = box_.top + Hh / 10;
    for (int h : {4, 5}) holeY_[h] = box_.top + Hh / 5;
    holeX_[1] = box_.left + D / 10;
    holeX_[2] = box_.right - D / 10 - R;
    holeX_[3] = (kFieldW - R) / 2;
    holeX_[4] = (holeX_[1] + R + holeX_[3]) / 2;
    holeX_[5] = (holeX_[3] + R + holeX_[2]) / 2;
}

void Course::layOutBlocks(Rng& rng) {
    pattern_ = int(Int(rng.Rnd() * 3 + 1));
    const int B = B_, R = level_.R;
    const int Ym = box_.top + box_.height() / 2;
    const int mid = kFieldW / 2;
    auto set = [&](int i, int x, int y) { blockX_[i] = x, blockY_[i] = y; };
    if (pattern_ == 1) {
        for (int i : {1, 2, 3}) set(i, holeX_[i], Ym);
        set(4, holeX_[1], Ym + 2 * B);
        set(5, holeX_[2], Ym + 2 * B);
        for (int i : {6, 7, 8}) set(i, holeX_[i - 5], holeY_[i - 5] + 2 * R + B);
        for (int i : {9, 10}) set(i, holeX_[i - 5], holeY_[i - 5] + 2 * R + B);
        set(11, blockX_[3] - 2 * B, Ym);
        set(12, blockX_[3] + 2 * B, Ym);
        return;
    }
    const int gap = pattern_ == 2 ? 2 * B : 4 * B;
    const int low = pattern_ == 2 ? Ym : Ym + 5 * B;  // the third pattern has a second row
    set(1, mid - gap, Ym);
    set(2, mid, Ym);
    set(3, mid + gap, Ym);
    set(4, mid - 2 * gap, low);
    set(5, mid + 2 * gap, low);
    set(11, mid - 3 * gap, Ym);
    set(12, mid + 3 * gap, Ym);
    for (int i = 6; i <= 10; ++i) set(i, holeX_[i - 5] + R + 2 * B, holeY_[i - 5] + B);
}

bool Course::canSwing(int x, int y) const {
    if (moving_ || waiting_) return false;
    const double r = kBallSize / 2.0;
    return x >= bx_ - r - kGrab && x <= bx_ + r + kGrab && y >= by_ - r - kGrab &&
           y <= by_ + r + kGrab;
}

void Course::swing(int x, int y) {
    // The ball flies away from the pull; a long pull is clamped.
    vx_ = std::clamp((bx_ - x) / 5.0, double(-kMaxSpeed), double(kMaxSpeed));
    vy_ = std::clamp((by_ - y) / 5.0, double(-kMaxSpeed), double(kMaxSpeed));
    moving_ = true;
    ++strokes_;
}

Step Course::tick(SharedState& s, Rng& rng) {
    Step out;
    if (!moving_) return out;
    vx_ -= vx_ * kFriction;
    vy_ -= vy_ * kFriction;
    if (std::abs(vx_) < 1) vx_ = 0;
    if (std::abs(vy_) < 1) vy_ = 0;
    if (vx_ == 0 && vy_ == 0) {
        moving_ = false;
        out.stopped = true;
        return out;
    }
    const double r = kBallSize / 2.0;
    double nx = bx_ + vx_, ny = by_ + vy_;
    if (ny - r < box_.top || ny + r > box_.bottom) {
        vy_ = -vy_;
        ny = ny - r < box_.top ? box_.top + r : box_.bottom - r;
        out.wall = true;
    }
    if (nx - r < box_.left || nx + r > box_.right) {
        vx_ = -vx_;
        nx = nx - r < box_.left ? box_.left + r : box_.right - r;
        out.wall = true;
    }
    for (int i = 1; i <= kBlocks; ++i) {
        if (!level_.blocks[i]) continue;
        const int cx = blockX_[i], cy = blockY_[i];
        if (std::abs(nx - cx) >= B_ || std::abs(ny - cy) >= B_) continue;
        const bool outX = std::abs(bx_ - cx) >= B_, outY = std::abs(by_ - cy) >= B_;
        if (outX || !outY) {
            vx_ = -vx_;
            nx = bx_ < cx ? cx - B_ : cx + B_;
        }
        if (outY) {
            vy_ = -vy_;
            ny = by_ < cy ? cy - B_ : cy + B_;
        }
        out.block = true;
    }
    bx_ = nx;
    by_ = ny;
    // Only a slow ball drops: a fast one flies over the hole.
    if (std::abs(vx_) < level_.R && std::abs(vy_) < level_.R) {
        for (int h = 1; h <= level_.holes; ++h) {
            if (std::abs(bx_ - holeX_[h]) >= level_.R || std::abs(by_ - holeY_[h]) >= level_.R)
                continue;
            out.hole = h;
            out.right = caption_[h] == s.TheWord;
            moving_ = false;
            vx_ = vy_ = 0;
            if (out.right) {
                const int base = strokes_ == 1   ? 500
                                 : strokes_ == 2 ? 200
                                 : strokes_ == 3 ? 100
                                                 : 50;
                s.Score += base * s.Difficulty + Int(rng.Rnd() * s.Difficulty + 1) * 100;
            } else {
                s.Score -= 1000;
                waiting_ = true;
            }
            break;
        }
    }
    return out;
}

}  // namespace wm::mini_golf
