// The game clock: every game timer and every Movie runs on it, so tests can move time by hand.
#pragma once

#include <QObject>
#include <QtGlobal>

class QTimer;

namespace wm {

class GameTimer;

// The one clock behind every game timer and every Movie. In normal running it follows real time;
// tests switch it to manual, and then time moves only by advance().
class Ticker {
public:
    static Ticker& get();
    void setManual(bool manual);  // tests: true before any screen is made
    bool isManual() const;
    // Manual mode: moves the clock on by `ms`, firing every due GameTimer in due-time order (a
    // timer due several times fires several times), and moving every playing Movie on.
    void advance(int ms);
    qint64 now() const;  // milliseconds on this clock
    // The pace rule: intervals under 16 ms run at 16 ms (one frame at 60 Hz); longer ones as given.
    // Zero stays zero, "as soon as possible": the next advance() (even of 0 ms), or in real time
    // the next pass of the event loop. A repeating zero timer fires once an advance().
    static int effectiveInterval(int ms);

    static constexpr int kFrameMs = 16;

private:
    friend class GameTimer;
    Ticker();
    struct Impl;
    Impl* d;
};

// A named interval timer of a game screen (the design's Timer1, Timer2...), on the Ticker.
// Same shape as QTimer, so game code reads like the design.
class GameTimer : public QObject {
    Q_OBJECT
public:
    explicit GameTimer(QObject* parent = nullptr);
    ~GameTimer() override;
    void setInterval(int ms);  // as designed; runs at Ticker::effectiveInterval(ms)
    int interval() const;
    void setSingleShot(bool single);
    bool isSingleShot() const;
    void start();
    void start(int ms);
    void stop();
    bool isActive() const;
    // Starts with exactly `ms`, outside the pace rule: for the kit's own clocks (movie frames
    // that must land on the end of a pass), never for a game's designed timers.
    void startExact(int ms);

signals:
    void timeout();

private:
    friend class Ticker;
    void arm();
    void fire();  // the Ticker's manual clock calls this when the timer is due
    void onRealTimeout();
    int interval_ = 0;
    int runInterval_ = 0;  // what the timer actually runs at
    bool exact_ = false;
    bool single_ = false;
    bool active_ = false;
    bool parked_ = false;  // a zero-interval timer waiting for the next advance()
    qint64 due_ = 0;
    quint64 order_ = 0;  // ties at one due time fire in the order the timers were started
    QTimer* real_ = nullptr;
};

}  // namespace wm
