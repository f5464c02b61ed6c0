// Jailbreak's stage: the cell with its barred door, the padlocks and their tags, the guard
// walking the corridor, the alarm light and the escape. Drawn from the game's SVG pictures on a
// fixed 1600 x 800 stage fitted into the widget; only what moves is repainted.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QPointF>
#include <QRegion>
#include <QRectF>
#include <QWidget>
#include <memory>
#include <vector>

#include "games/action/jailbreak/jailbreak_rules.h"

class QSvgRenderer;

namespace wm {

class JailScene : public QWidget {
    Q_OBJECT
public:
    static constexpr double kStageW = 1600, kStageH = 800;

    explicit JailScene(QWidget* parent = nullptr);
    ~JailScene() override;

    void setJail(const jailbreak::Jail* jail) { jail_ = jail; }
    // A new cell: the guard at the far end, the door shut, the prisoner inside.
    void resetCell();
    void springLock(int lock);
    void flashAlarm();
    void startEscape();
    void setCaught(bool caught);
    void setBanner(const QString& big, const QString& small = {});
    // A number that rises and fades from a stage point.
    void popPoints(QPointF stageAt, const QString& text, bool good);
    // Moves every animation on by `ms` and repaints what moved.
    void advance(int ms);
    void locksChanged();

    double guardShown() const { return guardShown_; }
    int guardFrame() const;  // -1 standing, 0..3 walking, 4 the catch
    bool alarmOn() const { return alarmMs_ > 0; }
    bool escaping() const { return escapeMs_ >= 0; }
    bool escapeDone() const;
    bool springing(int lock) const;
    QString banner() const { return banner_; }
    // Where a lock and its tag are, in widget pixels.
    QRectF lockRect(int lock) const;
    QRectF tagRect(int lock) const;
    int lockAt(QPoint p) const;
    QRectF toWidget(const QRectF& stage) const;
    // The tag's text as it is drawn (shrunk or shortened to fit).
    QString tagText(int lock) const;

    static QPointF guardFeet(double steps);
    static QPointF lockCentre(int lock, int locks);

signals:
    void lockClicked(int lock);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;

private:
    struct Pop {
        QPointF at;
        QString text;
        bool good = true;
        int ageMs = 0;
    };
    QPixmap sprite(const QString& id, double scale = 1.0);
    QPixmap tagPicture(int lock);
    void paintLock(QPainter& p, int lock);
    void paintGuard(QPainter& p);
    void paintPrisoner(QPainter& p);
    void paintDoor(QPainter& p);
    void paintAlarm(QPainter& p);
    void paintBanner(QPainter& p);
    void paintPops(QPainter& p);
    QRectF guardStageRect(double steps) const;
    QRectF prisonerStageRect() const;
    void dirtyStage(const QRectF& stage);

    const jailbreak::Jail* jail_ = nullptr;
    std::unique_ptr<QSvgRenderer> sceneSvg_;
    std::unique_ptr<QSvgRenderer> spriteSvg_;
    QRegion dirty_;  // what the paint in hand must cover
    QRectF stage_;  // the stage in widget pixels
    double k_ = 1;  // widget pixels per stage unit
    QPixmap back_;
    QHash<QString, QPixmap> sprites_;
    QHash<int, QPixmap> tags_;
    QHash<int, QString> tagKeys_;
    QHash<int, QString> tagTexts_;

    double guardShown_ = 0;
    double walked_ = 0;  // distance walked, for the walk cycle
    bool caught_ = false;
    int alarmMs_ = 0;
    std::vector<int> springMs_;  // per lock: time since it sprang, -1 shut
    int escapeMs_ = -1;
    QString banner_, bannerSmall_;
    std::vector<Pop> pops_;
    int clockMs_ = 0;
};

}  // namespace wm
