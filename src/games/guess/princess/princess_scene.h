// Princess's picture: the castle over its moat on a stage of 1600 x 1000 units that covers the
// screen. The stepping stones, the planks, the drawbridge, the dragon on its tower and the
// princess are sprites of our own drawing, rendered once for the screen's size and then only
// moved; the letters on the stones and planks are drawn once each and kept.
#pragma once

#include <QPixmap>
#include <QRectF>
#include <QRegion>
#include <QSize>
#include <QString>
#include <QTransform>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

class QPainter;
class QSvgRenderer;

namespace wm::princess {

constexpr double kStageW = 1600, kStageH = 1000;

// Everything the picture shows at one moment, in stage units.
struct View {
    double time = 0;  // seconds, for the ripples, the bobbing and the dragon's breath
    std::string word;
    std::vector<char> stones;  // the letters on the stones, in the moat's order
    std::vector<int> target;   // the plank each stone rose to, -1 while in the water
    std::vector<double> rise;  // 0..1: how far each risen stone is on its way to its plank
    std::vector<bool> laid;    // per position of the word: a plank stands there
    bool reveal = false;       // the word lost: the missing planks show their letters
    int splashStone = -1;      // the stone that splashed last
    double splash = 1;         // 0..1 through its splash
    int marks = 0;             // the meter's marks lit
    QRectF meter;              // where the meter stands, beside its label
    double stir = 0;           // 0..1: the dragon stirring (1 at its start)
    double wake = 0;           // 0..1: the dragon waking up and breathing fire
    double bridge = 0;         // 0 up .. 1 all the way down
    double walk = 0;           // 0..1: the princess on her way into the castle
    double cheer = 0;          // 0..1: hearts and sparkles of the crossing
    QString points;            // "+90", floating up from the planks
    double pointsU = 1;        // 0..1 through its rise
};

class PrincessPicture {
public:
    PrincessPicture();
    ~PrincessPicture();
    // Renders the scene and the sprites for a screen of `size`.
    void resize(QSize size);
    const QTransform& toScreen() const { return toScreen_; }
    double scale() const { return scale_; }

    // Where stone `i` of `n` lies, and where plank `p` of a word of `n` characters stands.
    static QRectF stoneRect(int i, int n);
    static QRectF plankRect(int p, int n);
    // Where the meaning panel and the word count go, in stage units.
    static QRectF skyPanel();
    static QPointF readyPoint();

    void paintField(QPainter& p, const QRect& area) const;
    void paintActors(QPainter& p, const View& v) const;
    // The parts of the screen that change while `v` is animating.
    QRegion busyRegion(const View& v) const;

private:
    const QPixmap& sprite(const QString& id) const;
    const QPixmap& fireball() const;
    const QPixmap& tile(bool plank, char letter, bool lost, QSizeF size) const;
    void drawSprite(QPainter& p, const QString& id, const QPointF& anchor, double scale = 1,
                    double anchorY = 1) const;
    void paintBridge(QPainter& p, const View& v) const;
    void paintStones(QPainter& p, const View& v) const;
    void paintPlanks(QPainter& p, const View& v) const;
    void paintDragon(QPainter& p, const View& v) const;
    void paintMeter(QPainter& p, const View& v) const;
    void paintPrincess(QPainter& p, const View& v) const;
    void paintPoints(QPainter& p, const View& v) const;

    std::unique_ptr<QSvgRenderer> field_;
    std::unique_ptr<QSvgRenderer> sprites_;
    QSize size_;
    double scale_ = 1;
    QTransform toScreen_;
    QPixmap fieldPixmap_;
    mutable std::map<QString, QPixmap> cache_;
    using TileKey = std::tuple<bool, bool, int, int, int>;  // plank, lost, letter, size
    mutable std::map<TileKey, QPixmap> tiles_;
    mutable QPixmap fireball_;
    mutable QPixmap bridge_;
    mutable double bridgeAngle_ = -1;
};

}  // namespace wm::princess
