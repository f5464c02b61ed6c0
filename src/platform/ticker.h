// Stand-in for the kit's clock while it is written; replaced at merge.
#pragma once

#include <QObject>
#include <QTimer>

namespace wm {

class Ticker {
public:
    static Ticker& get();
    void setManual(bool manual);
    bool isManual() const { return manual_; }
    void advance(int ms);
    qint64 now() const { return now_; }
    static int effectiveInterval(int ms) { return ms < 16 ? 16 : ms; }

private:
    friend class GameTimer;
    bool manual_ = false;
    qint64 now_ = 0;
    std::vector<class GameTimer*> timers_;
};

class GameTimer : public QObject {
    Q_OBJECT
public:
    explicit GameTimer(QObject* parent = nullptr);
    ~GameTimer() override;
    void setInterval(int ms) { interval_ = ms; }
    int interval() const { return interval_; }
    void setSingleShot(bool single) { single_ = single; }
    bool isSingleShot() const { return single_; }
    void start();
    void start(int ms) {
        setInterval(ms);
        start();
    }
    void stop();
    bool isActive() const { return active_; }
signals:
    void timeout();

private:
    friend class Ticker;
    QTimer real_;
    int interval_ = 0;
    bool single_ = false;
    bool active_ = false;
    qint64 due_ = 0;
};

}  // namespace wm
