// Hang Glider's field: the sky over three ranges of scenery that scroll at their own pace, the
// word at the top with its next letter lit, the letter clouds, the glider, the warm air of a
// thermal, the points and the ends. It draws the game as the rules hold it, world units scaled
// to the widget, and repaints only what moved.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>
#include <map>
#include <vector>

#include "games/action/hang_glider/hang_glider_rules.h"
#include "platform/ticker.h"

namespace wm {

class GliderSky : public QWidget {
    Q_OBJECT
public:
    static constexpr int kPopMs = 900;

    GliderSky(const hang_glider::Game& game, QWidget* parent = nullptr);

    // A new game or word: what was flying is cleared.
    void reset();
    void setCall(const QString& text);
    QString call() const { return call_; }
    // A letter flown through: sparkles or a grey puff, and the points floating up.
    void touched(const hang_glider::Event& e, int points);
    // The game's end: fireworks for a win, dust where the glider lands for a loss.
    void finish(bool won);
    // One frame: marks what moved since the last one.
    void step();

    // Where a world rectangle is on the widget.
    QRectF toWidget(const QRectF& world) const;
    double scale() const { return scale_; }
    // How far the glider's nose is down, in degrees (up when negative).
    double pitch() const { return pitch_; }
    // Whether it shows a game's end (fireworks or dust) rather than a flight.
    bool showsEnd() const { return finishAt_ >= 0; }

protected:
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Effect {
        enum Kind { Sparkle, Puff, Dust, Firework } kind;
        double x, y;  // world
        qint64 at;
        QPixmap label;  // the points
        QColor colour;
        int life;  // ms
    };
    // One range of scenery, cut where it turns solid: the part above is blended over what is
    // behind, the part below is copied, and hides the farther ranges.
    struct Layer {
        QPixmap upper, lower;
        double factor;  // of the letters' pace
        int top;        // widget y of the upper part
        int solid;      // widget y of the lower part
        int width;      // of one tile
    };
    qint64 now() const;
    // Times are counted from the scene's making, so that it moves alike whenever it is made.
    const qint64 born_ = Ticker::get().now();
    void buildScene();
    const QPixmap& letterPicture(char letter);
    const QPixmap& wordPicture();
    QRectF tileRect(int i) const;
    bool nextLit() const;
    void paintLit(QPainter& p, qint64 t);
    QRectF gliderRect() const;
    QRectF letterRect(const hang_glider::Letter& l) const;
    QRectF effectRect(const Effect& e) const;
    QRectF puffRect(int i) const;
    QRectF wordRect() const;
    QRectF callRect() const;
    int bandTop() const;
    void paintLayer(QPainter& p, const Layer& layer, const QRect& clip, int limit) const;
    const QPixmap& gliderPicture(int tenths);
    void paintGlider(QPainter& p, qint64 t);
    void paintThermal(QPainter& p, qint64 t);
    void paintEffect(QPainter& p, const Effect& e, qint64 t);
    void paintTwinkle(QPainter& p, QPointF at) const;

    const hang_glider::Game& game_;
    double scale_ = 1;
    QPointF origin_;
    QPixmap sky_;
    std::vector<Layer> layers_;  // far to near
    QPixmap glider_;
    std::map<int, QPixmap> gliderTurns_;  // the glider at each tilt, tenths of degrees
    QPixmap cloud_;
    std::vector<QPixmap> puffs_;
    QPixmap twinkle_;
    std::map<unsigned char, QPixmap> letterCache_;
    QPixmap wordPicture_;
    QString wordPictureOf_;
    std::map<int, QRect> drawn_;  // what the last frame marked, by thing
    std::vector<Effect> effects_;
    QString call_;
    qint64 callAt_ = 0;
    QPixmap callPicture_;
    QString callPictureOf_;
    double pitch_ = 0;
    double lastY_ = -1;
    double lastScroll_ = -1;
    qint64 finishAt_ = -1;
    bool won_ = false;
    int fireworks_ = 0;
    QString wordState_;
    qint64 glowState_ = -1;
    qint64 lastFrame_ = 0;
};

}  // namespace wm
