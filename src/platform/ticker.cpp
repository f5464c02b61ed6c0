#include "platform/ticker.h"

#include <algorithm>

namespace wm {

Ticker& Ticker::get() {
    static Ticker t;
    return t;
}

void Ticker::setManual(bool manual) {
    manual_ = manual;
}

void Ticker::advance(int ms) {
    const qint64 end = now_ + std::max(0, ms);
    for (;;) {
        GameTimer* next = nullptr;
        for (GameTimer* t : timers_)
            if (t->active_ && t->due_ <= end && (!next || t->due_ < next->due_)) next = t;
        if (!next) break;
        now_ = std::max(now_, next->due_);
        if (next->single_) {
            next->active_ = false;
        } else {
            next->due_ = now_ + effectiveInterval(next->interval_);
        }
        emit next->timeout();
    }
    now_ = end;
}

GameTimer::GameTimer(QObject* parent) : QObject(parent) {
    real_.setTimerType(Qt::PreciseTimer);
    connect(&real_, &QTimer::timeout, this, [this] {
        if (single_) active_ = false;
        emit timeout();
    });
    Ticker::get().timers_.push_back(this);
}

GameTimer::~GameTimer() {
    auto& v = Ticker::get().timers_;
    v.erase(std::remove(v.begin(), v.end(), this), v.end());
}

void GameTimer::start() {
    active_ = true;
    Ticker& t = Ticker::get();
    if (t.isManual()) {
        due_ = t.now() + (interval_ == 0 ? 0 : Ticker::effectiveInterval(interval_));
    } else {
        real_.setSingleShot(single_);
        real_.start(interval_ == 0 ? 0 : Ticker::effectiveInterval(interval_));
    }
}

void GameTimer::stop() {
    active_ = false;
    real_.stop();
}

}  // namespace wm
