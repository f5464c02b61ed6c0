// Safe Cracker's picture: the vault room, and the safe standing in it. The safe is drawn in its
// own units (1200 x 800) and scaled into the rectangle the screen gives it; its door carries six
// rows of tumblers, the dial and the handle. The room and the safe's parts are rendered once for
// a size; a frame only places them and paints the tumblers.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QPolygonF>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <QString>
#include <QTransform>
#include <memory>
#include <vector>

class QPainter;
class QSvgRenderer;

namespace wm::safe {

constexpr double kArtW = 1200, kArtH = 800;

// What one tumbler shows.
struct Tumbler {
    QString letter;   // "" when empty
    int mark = 0;     // -1 a fixed sign (no tumbler), 0 not lit, 1 grey, 2 amber, 3 green
    double flip = 1;  // 0..1: a row being lit turns its tumblers one by one
};

// Everything the safe shows at one moment.
struct SafeView {
    int columns = 0;
    std::vector<std::vector<Tumbler>> rows;  // kTries rows of `columns` tumblers
    int activeRow = -1;                      // the row being typed
    double shake = 0;                        // art units, sideways, of the active row
    double dial = 0;                         // degrees
    double handle = 0;                       // degrees
    double door = 0;                         // 0 shut .. 1 wide open
    double alarm = 0;                        // 0..1: the red of the alarm
    double time = 0;                         // seconds, for the glints
    QString reveal;                          // the combination, shown across a shut safe
    QString points;                          // "+290", rising out of the open safe
    double pointsRise = 0, pointsAlpha = 0;
};

class SafePicture {
public:
    SafePicture();
    ~SafePicture();
    // The room for a screen of `screen`, the safe fitted into `safeArea`.
    void resize(QSize screen, const QRect& safeArea);
    QRect safeRect() const { return safeRect_; }
    // Where the alarm lamp hangs, on the wall above the safe.
    QRect beaconRect() const { return beaconRect_; }
    void placeBeacon(QPoint centre) { beaconRect_.moveCenter(centre); }
    // All a frame may paint: the safe, its door swung out by `door`, and the lamp.
    QRegion frameRegion(double door) const;
    void paintRoom(QPainter& p, const QRect& area) const;
    void paintSafe(QPainter& p, const SafeView& v) const;
    void paintBeacon(QPainter& p, double glow) const;
    // A tumbler's rectangle on the screen.
    QRectF cellRect(int row, int col, int columns) const;

private:
    QPixmap part(const QString& id) const;
    QPoint placed(const QString& id) const;
    QPolygonF swung(double door) const;
    void paintDoor(QPainter& p, const SafeView& v, bool panel = true) const;
    void paintTumbler(QPainter& p, const QRectF& r, const Tumbler& t, bool active) const;
    void drawTumbler(QPainter& p, const QRectF& r, const Tumbler& t, bool active) const;
    QPointF toScreen(QPointF art) const { return art_.map(art); }

    std::unique_ptr<QSvgRenderer> room_;
    std::unique_ptr<QSvgRenderer> parts_;
    QSize size_;
    QRect safeArea_, safeRect_, beaconRect_;
    QTransform art_;  // safe units to screen pixels
    double scale_ = 1;
    QPixmap roomPixmap_;
    mutable std::vector<std::pair<QString, QPixmap>> cache_;
    mutable QPixmap doorLayer_;  // the door with its rows, for the swing
    mutable QPixmap shutBack_;   // the room, the body and the shut door's panel, as one
    mutable QHash<QString, QPixmap> tumblers_;  // tumblers at rest, by letter, colour and size
    mutable QPixmap pointsPixmap_;
    mutable QString pointsText_;
};

}  // namespace wm::safe
