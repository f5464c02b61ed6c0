#include "platform/ticker.h"

#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <vector>

namespace wm {

struct Ticker::Impl {
    bool manual = false;
    qint64 manualNow = 0;
    qint64 realBase = 0;  // the clock's value when real time last took over
    QElapsedTimer real;
    std::vector<GameTimer*> timers;  // every live timer, active or not
    quint64 nextOrder = 0;
    int advancing = 0;  // depth of advance() calls in progress
};

Ticker::Ticker() : d(new Impl) {
    d->real.start();
}

Ticker& Ticker::get() {
    static Ticker ticker;
    return ticker;
}

bool Ticker::isManual() const {
    return d->manual;
}

qint64 Ticker::now() const {
    return d->manual ? d->manualNow : d->realBase + d->real.elapsed();
}

int Ticker::effectiveInterval(int ms) {
    // Zero stays "as soon as possible"; anything faster than a frame runs at a frame.
    if (ms <= 0) return 0;
    return std::max(ms, kFrameMs);
}

void Ticker::setManual(bool manual) {
    if (manual == d->manual) return;
    // The clock never runs backwards across the switch.
    const qint64 t = now();
    d->manual = manual;
    if (manual) {
        d->manualNow = t;
    } else {
        d->realBase = t;
        d->real.restart();
    }
    // Running timers carry on under the new clock, counting afresh from now.
    const std::vector<GameTimer*> timers = d->timers;
    for (GameTimer* timer : timers) {
        if (timer->active_) timer->arm();
    }
}

void Ticker::advance(int ms) {
    if (!d->manual) return;
    const qint64 target = d->manualNow + std::max(ms, 0);
    ++d->advancing;
    if (d->advancing == 1) {
        for (GameTimer* timer : d->timers) timer->parked_ = false;
    }
    for (;;) {
        // Rescanned after every firing: a timeout may start, stop or delete any timer.
        GameTimer* next = nullptr;
        for (GameTimer* timer : d->timers) {
            if (!timer->active_ || timer->parked_ || timer->due_ > target) continue;
            if (!next || timer->due_ < next->due_ ||
                (timer->due_ == next->due_ && timer->order_ < next->order_)) {
                next = timer;
            }
        }
        if (!next) break;
        d->manualNow = std::max(d->manualNow, next->due_);
        next->fire();
    }
    d->manualNow = std::max(d->manualNow, target);
    --d->advancing;
}

GameTimer::GameTimer(QObject* parent) : QObject(parent) {
    Ticker::get().d->timers.push_back(this);
}

GameTimer::~GameTimer() {
    auto& timers = Ticker::get().d->timers;
    timers.erase(std::remove(timers.begin(), timers.end(), this), timers.end());
}

void GameTimer::setInterval(int ms) {
    interval_ = ms;
    exact_ = false;
    if (active_) arm();  // as QTimer: a running timer restarts with the new interval
}

int GameTimer::interval() const {
    return interval_;
}

void GameTimer::setSingleShot(bool single) {
    single_ = single;
    if (real_) real_->setSingleShot(single);
}

bool GameTimer::isSingleShot() const {
    return single_;
}

void GameTimer::start() {
    active_ = true;
    order_ = Ticker::get().d->nextOrder++;
    arm();
}

void GameTimer::start(int ms) {
    interval_ = ms;
    exact_ = false;
    start();
}

void GameTimer::startExact(int ms) {
    interval_ = std::max(ms, 0);
    exact_ = true;
    start();
}

void GameTimer::stop() {
    active_ = false;
    parked_ = false;
    if (real_) real_->stop();
}

bool GameTimer::isActive() const {
    return active_;
}

void GameTimer::arm() {
    Ticker::Impl& t = *Ticker::get().d;
    runInterval_ = exact_ ? interval_ : Ticker::effectiveInterval(interval_);
    if (t.manual) {
        if (real_) real_->stop();
        due_ = t.manualNow + runInterval_;
        // A zero timer set going inside advance() waits for the next one, so a timeout that
        // restarts it cannot spin the clock for ever.
        parked_ = runInterval_ == 0 && t.advancing > 0;
        return;
    }
    if (!real_) {
        real_ = new QTimer(this);
        real_->setTimerType(Qt::PreciseTimer);
        connect(real_, &QTimer::timeout, this, &GameTimer::onRealTimeout);
    }
    real_->setSingleShot(single_);
    real_->start(runInterval_);
}

void GameTimer::fire() {
    // Everything about this timer is settled before the signal: the handler may delete it.
    if (single_) {
        active_ = false;
    } else if (runInterval_ == 0) {
        due_ = Ticker::get().d->manualNow;
        parked_ = true;
    } else {
        due_ += runInterval_;
    }
    emit timeout();
}

void GameTimer::onRealTimeout() {
    if (Ticker::get().isManual()) return;  // a stale real tick after the switch
    if (single_) active_ = false;
    emit timeout();
}

}  // namespace wm
