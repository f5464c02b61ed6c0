// The valley of Bridge Out, drawn at the screen's own resolution: the scenery once into a
// cached picture, then what moves (the river's planks, the truck, the plank in the pupil's
// hand, splashes and sparkles) a region at a time. The scene reads the game's state and turns
// the pointer's press, drag and release into the plank taken and the gap it was let go over.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QRect>
#include <QWidget>
#include <functional>
#include <vector>

#include "games/action/bridge_out/bridge_out_rules.h"
#include "platform/ticker.h"

namespace wm {

class BridgeScene : public QWidget {
    Q_OBJECT
public:
    static constexpr int kSplashMs = 700;   // rings where a wrong plank fell back
    static constexpr int kSparkleMs = 800;  // a plank locking in
    static constexpr int kCallMs = 1600;    // a call ("Go!") stays this long unless held

    explicit BridgeScene(QWidget* parent = nullptr);

    void setGame(const bridge_out::Game* game) { game_ = game; }
    // The pupil took a plank (its id); true when the game let it go into the hand.
    std::function<bool(int)> onTake;
    // The plank let go over gap `gap` (-1: none), at `riverX` along the river.
    std::function<void(int id, int gap, double riverX)> onDrop;

    // A new word: the truck back at the start, the bridge rebuilt, nothing in the hand.
    void newWord();
    void splash(double riverX, int lane);
    void locked(int gap);
    // The bridge is whole: the truck rolls across and away.
    void crossing();
    // The truck stopped at the gap: it shakes, honks, and the missing letters show in red.
    void stopped();
    // A big call over the valley; `holdMs` 0 keeps it up until the next one.
    void setCall(const QString& text, int holdMs = kCallMs);
    QString call() const { return call_; }
    // The end: the trucks that made it across cheer (won) or the valley falls quiet (lost).
    void cheer(bool won);
    // One frame: moves the animations on and repaints what changed.
    void step();

    int heldPlank() const { return held_; }
    // Where things are, in this widget's coordinates (tests and the pointer use them).
    QRectF gapRect(int i) const;
    QRectF plankRect(const bridge_out::Plank& p) const;
    QRectF truckRect() const;
    QRect clueRect() const;
    int gapAt(QPointF at) const;
    double riverXAt(double px) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    struct Effect {
        QPointF at;
        qint64 t0;
        bool sparkle;
    };

    qint64 now() const;
    // Times are counted from the scene's making, so that it moves alike whenever it is made.
    const qint64 born_ = Ticker::get().now();
    void buildScene();
    void buildDeck();
    double deckTop() const;
    double deckHeight() const;
    double plankWidth() const;
    double wordLeft() const;
    double laneY(int lane) const;
    QSizeF riverPlankSize(int lane) const;
    QRect riverBand() const;
    QRect callRect() const;
    const QPixmap& letterPlank(const QString& letter, int lane);
    // A board of the bridge with its letter; `missing`: a gap's letter shown in red.
    const QPixmap& deckPlank(const QString& letter, bool missing);
    void paintBridge(QPainter& p);
    void paintTruck(QPainter& p, qint64 t);
    void paintCall(QPainter& p);

    const bridge_out::Game* game_ = nullptr;
    QPixmap scene_;
    QPixmap truck_[2];
    QPixmap deck_, board_[2], hole_;
    QHash<QString, QPixmap> letters_, deckLetters_;
    std::vector<Effect> effects_;
    QString call_;
    qint64 callAt_ = 0;
    int callHold_ = 0;
    qint64 stopAt_ = -1;
    qint64 crossAt_ = -1;
    qint64 wordAt_ = 0;
    int cheer_ = 0;  // 1 won, -1 lost
    qint64 cheerAt_ = 0;
    int held_ = 0;
    QPointF holdAt_;
    QPointF grip_;  // where on the plank it was taken
    QRect truckDrawn_, heldDrawn_, bridgeDrawn_, effectsDrawn_, callDrawn_;
};

}  // namespace wm
