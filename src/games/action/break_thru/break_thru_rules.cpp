#include "games/action/break_thru/break_thru_rules.h"

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/word_draw.h"

namespace wm::break_thru {

namespace {
constexpr double kPi = 3.14159265358979323846;
constexpr double kSubStep = 4;  // the ball moves at most this far between collision tests
// The wall's rows stand in the middle of the court.
constexpr double kWallTop =
    kCourtTop + (kCourtBottom - kCourtTop - (kRows - 1) * kRowStep - kBrickH) / 2;

double rad(double degrees) {
    return degrees * kPi / 180;
}

int letters(const std::string& w) {
    return int(std::count_if(w.begin(), w.end(), isBrick));
}

bool fits(const std::string& w) {
    return Len(w) <= kMaxLength && letters(w) > 0;
}
}  // namespace

double Brick::y() const {
    return kWallTop + row * kRowStep;
}

double ballSpeed(int word) {
    return kBallSpeed * std::pow(kSpeedUp, std::max(0, word - 1));
}

bool isBrick(char c) {
    const auto b = static_cast<unsigned char>(c);
    if (b >= '0' && b <= '9') return true;
    // Letters of any language the code page holds: those with two cases, and the accented
    // letters without a capital of their own.
    const std::string one{c};
    if (UCase(one) != LCase(one)) return true;
    return b >= 0xC0 && b != 0xD7 && b != 0xF7;
}

std::string lostText(const std::string& word) {
    return "Out of balls! The word was " + word + ".";
}

bool Game::start(SharedState& s, Rng& rng) {
    *this = Game{};
    level_ = std::clamp<int>(s.Difficulty, kMinLevel, kMaxLevel);
    rng.Randomize();
    return nextWord(s, rng);
}

bool Game::drawWord(SharedState& s, Rng& rng) {
    const int k = DrawFreshWord(s, rng, drawn_, kMaxWords, fits);
    if (k <= 0) return false;
    drawn_.push_back(k);
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];
    word_ = s.TheWord;
    return true;
}

bool Game::nextWord(SharedState& s, Rng& rng) {
    if (words_ >= level_ || !drawWord(s, rng)) return false;
    ++words_;
    done_.assign(word_.size(), false);
    for (std::size_t i = 0; i < word_.size(); ++i) done_[i] = !isBrick(word_[i]);
    findNext(0);
    buildWall(rng);
    restOnPaddle();
    phase_ = Phase::Ready;
    return true;
}

void Game::buildWall(Rng& rng) {
    std::vector<Brick> set;
    std::string inWord;
    for (char c : word_) {
        if (!isBrick(c)) continue;
        Brick b;
        b.letter = UCase(std::string{c})[0];
        set.push_back(b);
        inWord += b.letter;
    }
    // Twice as many decoys, capitals the word does not have.
    std::string pool;
    for (char c = 'A'; c <= 'Z'; ++c)
        if (inWord.find(c) == std::string::npos) pool += c;
    if (pool.empty()) pool = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const int n = int(inWord.size());
    for (int d = 0; d < 2 * n; ++d) {
        Brick b;
        b.decoy = true;
        const int at = std::clamp(int(Int(rng.Rnd() * pool.size() + 1)), 1, int(pool.size()));
        b.letter = pool[at - 1];
        set.push_back(b);
    }
    // Each brick takes a free slot at random; slots count down each column from the back wall.
    cols_ = std::max(1, (3 * n + kRows - 1) / kRows);
    std::vector<int> free(cols_ * kRows);
    for (int i = 0; i < int(free.size()); ++i) free[i] = i;
    for (Brick& b : set) {
        const int k = std::clamp(int(Int(rng.Rnd() * free.size() + 1)), 1, int(free.size()));
        b.col = free[k - 1] / kRows;
        b.row = free[k - 1] % kRows;
        free.erase(free.begin() + (k - 1));
    }
    bricks_ = std::move(set);
}

bool Game::findNext(int from) {
    const auto it = std::find(done_.begin() + from, done_.end(), false);
    next_ = it == done_.end() ? -1 : int(it - done_.begin());
    return it != done_.end();
}

void Game::restOnPaddle() {
    ball_ = Ball{kPaddleX + kPaddleW + kBallR, paddle_, 0, 0};
}

void Game::go() {
    if (phase_ == Phase::Ready) phase_ = Phase::Serve;
}

void Game::place(double paddleY, const Ball& ball) {
    paddle_ = paddleY;
    ball_ = ball;
}

void Game::serve() {
    // Away from the nearer side, so the first bounce is not at once off the fence.
    const double a = paddle_ < (kCourtTop + kCourtBottom) / 2 ? kServeAngle : -kServeAngle;
    ball_.vx = speed() * std::cos(rad(a));
    ball_.vy = speed() * std::sin(rad(a));
    phase_ = Phase::Play;
}

std::vector<Event> Game::tick(const Input& in) {
    std::vector<Event> ev;
    for (Brick& b : bricks_)
        if (b.flash > 0) --b.flash;
    if (phase_ != Phase::Serve && phase_ != Phase::Play) return ev;

    const double half = kPaddleLen / 2;
    paddle_ = std::clamp(paddle_ + in.move * kPaddleStep, kCourtTop + half, kCourtBottom - half);
    if (phase_ == Phase::Serve) {
        ball_.y = paddle_;
        if (in.serve) {
            serve();
            ev.push_back({Event::Served, -1, ball_.x, ball_.y});
        }
        return ev;
    }
    const int steps = std::max(1, int(std::ceil(speed() / kSubStep)));
    for (int k = 0; k < steps && phase_ == Phase::Play; ++k)
        move(ball_.vx / steps, ball_.vy / steps, ev);
    return ev;
}

void Game::move(double dx, double dy, std::vector<Event>& ev) {
    Ball& b = ball_;
    b.x += dx;
    b.y += dy;
    // The fences along the top and bottom, and the back wall behind the bricks.
    if (b.y - kBallR < kCourtTop && b.vy < 0) {
        b.y = kCourtTop + kBallR;
        b.vy = -b.vy;
        ev.push_back({Event::Wall, -1, b.x, kCourtTop});
    } else if (b.y + kBallR > kCourtBottom && b.vy > 0) {
        b.y = kCourtBottom - kBallR;
        b.vy = -b.vy;
        ev.push_back({Event::Wall, -1, b.x, kCourtBottom});
    }
    if (b.x + kBallR > kBackWall && b.vx > 0) {
        b.x = kBackWall - kBallR;
        b.vx = -b.vx;
        ev.push_back({Event::Wall, -1, kBackWall, b.y});
    }

    // The paddle: the further from its middle the ball meets it, the steeper it goes back.
    const double face = kPaddleX + kPaddleW;
    if (b.vx < 0 && b.x - kBallR <= face && b.x >= kPaddleX &&
        std::fabs(b.y - paddle_) <= kPaddleLen / 2 + kBallR) {
        const double u = std::clamp((b.y - paddle_) / (kPaddleLen / 2 + kBallR), -1.0, 1.0);
        const double a = rad(u * kMaxBounce);
        b.x = face + kBallR;
        b.vx = speed() * std::cos(a);
        b.vy = speed() * std::sin(a);
        ev.push_back({Event::Paddle, -1, face, b.y});
        return;
    }
    if (b.x + kBallR < 0) {
        // Past the paddle and off the court.
        ev.push_back({Event::Missed, -1, 0, b.y});
        --balls_;
        if (balls_ <= 0) {
            phase_ = Phase::Lost;
            ev.push_back({Event::Lost});
            return;
        }
        restOnPaddle();
        phase_ = Phase::Serve;
        return;
    }

    // A brick: the ball turns back along the side it came in by, the shallower overlap.
    for (int i = 0; i < int(bricks_.size()); ++i) {
        const Brick& br = bricks_[i];
        if (br.broken) continue;
        const double nx = std::clamp(b.x, br.x(), br.x() + kBrickW);
        const double ny = std::clamp(b.y, br.y(), br.y() + kBrickH);
        if (std::hypot(b.x - nx, b.y - ny) > kBallR) continue;
        const double overX = b.vx > 0 ? b.x + kBallR - br.x() : br.x() + kBrickW - (b.x - kBallR);
        const double overY = b.vy > 0 ? b.y + kBallR - br.y() : br.y() + kBrickH - (b.y - kBallR);
        if (overX < overY) {
            b.vx = -b.vx;
            b.x += b.vx > 0 ? overX : -overX;
        } else {
            b.vy = -b.vy;
            b.y += b.vy > 0 ? overY : -overY;
        }
        hit(i, ev);
        return;
    }
}

void Game::hit(int i, std::vector<Event>& ev) {
    Brick& br = bricks_[i];
    const bool right = next_ >= 0 && UCase(std::string{word_[next_]})[0] == br.letter;
    if (!right) {
        // A brick still glowing from the last hit costs nothing more; points never go below
        // nothing.
        const int before = score_;
        if (br.flash == 0) score_ = std::max(0, score_ - 5);
        br.flash = kFlashTicks;
        ev.push_back({Event::Wrong, i, ball_.x, ball_.y, score_ - before});
        return;
    }
    br.broken = true;
    score_ += 10 * words_;
    done_[next_] = true;
    ev.push_back({Event::Broke, i, br.x() + kBrickW / 2, br.y() + kBrickH / 2, 10 * words_});
    if (findNext(next_ + 1)) return;
    phase_ = words_ >= level_ ? Phase::Won : Phase::Spelled;
    ev.push_back({Event::Spelled});
    if (phase_ == Phase::Won) ev.push_back({Event::Won});
}

}  // namespace wm::break_thru
