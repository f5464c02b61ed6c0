#include "games/action/jailbreak/jailbreak_scene.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRadialGradient>
#include <QSvgRenderer>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"

namespace wm {

namespace jb = jailbreak;

namespace {
const QRectF kDoor(226, 130, 570, 510);
const QRectF kAlarm(846, 34, 80, 80);
const QRectF kCell(190, 80, 650, 640);
constexpr double kLockW = 88, kLockH = 74, kShackleW = 68, kShackleH = 58;
constexpr double kTagW = 180, kTagH = 124;
constexpr double kGuardW = 220, kGuardH = 320;
constexpr double kKidW = 160, kKidH = 240;
constexpr int kSpringMs = 700;
constexpr int kAlarmMs = 1600;
constexpr int kPopMs = 1200;
constexpr int kSwingMs = 700;
constexpr int kRunFromMs = 450;
constexpr int kRunMs = 2200;
constexpr int kEscapeMs = 2900;

QFont TagFont(double px, bool bold) {
    QFont f("DejaVu Sans");
    f.setBold(bold);
    f.setPixelSize(std::max(1, int(px)));
    return f;
}

bool Fits(const QFont& f, const QString& text, const QSizeF& area, bool wrap) {
    const QFontMetricsF fm(f);
    const QRectF r = fm.boundingRect(QRectF(0, 0, area.width(), 1e6),
                                     (wrap ? Qt::TextWordWrap : 0) | Qt::AlignHCenter, text);
    return r.width() <= area.width() + 0.5 && r.height() <= area.height() + 0.5;
}

// The largest type from `maxPx` down to `minPx` that shows the text whole; at the smallest,
// the text is cut after its last whole word that fits, with an ellipsis.
QString FitText(const QString& text, const QSizeF& area, double maxPx, double minPx, bool bold,
                bool wrap, QFont& font) {
    for (double px = maxPx; px >= minPx; px -= 1) {
        font = TagFont(px, bold);
        if (Fits(font, text, area, wrap)) return text;
    }
    font = TagFont(minPx, bold);
    QStringList words = text.split(' ', Qt::SkipEmptyParts);
    while (words.size() > 1) {
        words.removeLast();
        const QString cut = words.join(' ') + QChar(0x2026);
        if (Fits(font, cut, area, wrap)) return cut;
    }
    return QFontMetricsF(font).elidedText(text, Qt::ElideRight, area.width());
}
}  // namespace

JailScene::JailScene(QWidget* parent)
    : QWidget(parent),
      sceneSvg_(std::make_unique<QSvgRenderer>(findAsset("images/jail-scene.svg"))),
      spriteSvg_(std::make_unique<QSvgRenderer>(findAsset("images/jail-sprites.svg"))) {
    setObjectName("JailScene");
    setFocusPolicy(Qt::NoFocus);
}

JailScene::~JailScene() = default;

QPointF JailScene::guardFeet(double steps) {
    return QPointF(1520 - steps * 16, 718);
}

QPointF JailScene::lockCentre(int lock, int locks) {
    // One row for up to three locks; otherwise the top row takes the odd one.
    const int top = locks <= 3 ? locks : (locks + 1) / 2;
    const bool upper = lock < top;
    const int inRow = upper ? top : locks - top;
    const int col = upper ? lock : lock - top;
    const double y = locks <= 3 ? 250 : (upper ? 160 : 412);
    const double x = kDoor.left() + 4 + (col + 0.5) * (kDoor.width() - 8) / inRow;
    return QPointF(x, y);
}

void JailScene::resetCell() {
    guardShown_ = 0;
    walked_ = 0;
    caught_ = false;
    alarmMs_ = 0;
    escapeMs_ = -1;
    springMs_.assign(jail_ ? jail_->locks.size() : 0, -1);
    pops_.clear();
    tags_.clear();
    tagKeys_.clear();
    tagTexts_.clear();
    update();
}

void JailScene::locksChanged() {
    if (jail_ && springMs_.size() != jail_->locks.size()) springMs_.resize(jail_->locks.size(), -1);
    update();
}

void JailScene::springLock(int lock) {
    if (lock < 0) return;
    if (lock >= int(springMs_.size())) springMs_.resize(lock + 1, -1);
    springMs_[lock] = 0;
    update();
}

void JailScene::flashAlarm() {
    alarmMs_ = kAlarmMs;
    dirtyStage(kAlarm.adjusted(-200, -60, 200, 200));
}

void JailScene::startEscape() {
    escapeMs_ = 0;
    update();
}

bool JailScene::escapeDone() const {
    return escapeMs_ >= kEscapeMs;
}

void JailScene::setCaught(bool caught) {
    caught_ = caught;
    dirtyStage(guardStageRect(guardShown_));
}

void JailScene::setBanner(const QString& big, const QString& small) {
    banner_ = big;
    bannerSmall_ = small;
    update();
}

void JailScene::popPoints(QPointF stageAt, const QString& text, bool good) {
    pops_.push_back({stageAt, text, good, 0});
    dirtyStage(QRectF(stageAt.x() - 120, stageAt.y() - 100, 240, 140));
}

bool JailScene::springing(int lock) const {
    return lock >= 0 && lock < int(springMs_.size()) && springMs_[lock] >= 0 &&
           springMs_[lock] < kSpringMs;
}

int JailScene::guardFrame() const {
    const int target = jail_ ? jail_->guardSteps : 0;
    if (caught_ && guardShown_ >= target - 1e-6) return 4;
    if (guardShown_ < target - 1e-6) return int(walked_ * 2) % 4;
    return -1;
}

void JailScene::advance(int ms) {
    clockMs_ += ms;
    const int target = jail_ ? jail_->guardSteps : 0;
    const int frameBefore = guardFrame();
    if (guardShown_ < target) {
        // A steady stroll, one step in the time he takes one; hurried on after an alarm.
        const double gap = target - guardShown_;
        double perMs = 1.0 / jb::kStepMs;
        if (gap > 1.01) perMs = std::max(perMs, gap * 3.0 / 1000);
        if (caught_) perMs = std::max(perMs, 30.0 / 1000);  // he rushes to the door
        const double step = std::min(gap, perMs * ms);
        dirtyStage(guardStageRect(guardShown_));
        guardShown_ += step;
        walked_ += std::min(step, 0.003 * ms);  // the legs never blur
        dirtyStage(guardStageRect(guardShown_));
    } else if (guardShown_ > target) {
        guardShown_ = target;
        update();
    }
    if (guardFrame() != frameBefore) dirtyStage(guardStageRect(guardShown_));
    if (alarmMs_ > 0) {
        alarmMs_ = std::max(0, alarmMs_ - ms);
        dirtyStage(kAlarm.adjusted(-200, -60, 200, 200));
    }
    for (std::size_t i = 0; i < springMs_.size(); ++i) {
        if (springMs_[i] < 0 || springMs_[i] >= kSpringMs) continue;
        springMs_[i] = std::min(kSpringMs, springMs_[i] + ms);
        const QPointF c = lockCentre(int(i), int(springMs_.size()));
        dirtyStage(QRectF(c.x() - 110, c.y() - 110, 220, 350));
    }
    if (escapeMs_ >= 0 && escapeMs_ < kEscapeMs) {
        // The door while it swings, then only the prisoner running.
        if (escapeMs_ <= kSwingMs) dirtyStage(kCell);
        dirtyStage(prisonerStageRect());
        escapeMs_ = std::min(kEscapeMs, escapeMs_ + ms);
        dirtyStage(prisonerStageRect());
    }
    for (Pop& pop : pops_) {
        pop.ageMs += ms;
        dirtyStage(QRectF(pop.at.x() - 120, pop.at.y() - 110, 240, 150));
    }
    pops_.erase(std::remove_if(pops_.begin(), pops_.end(),
                               [](const Pop& pop) { return pop.ageMs >= kPopMs; }),
                pops_.end());
}

QRectF JailScene::toWidget(const QRectF& stage) const {
    return QRectF(stage_.left() + stage.left() * k_, stage_.top() + stage.top() * k_,
                  stage.width() * k_, stage.height() * k_);
}

void JailScene::dirtyStage(const QRectF& stage) {
    update(toWidget(stage).toAlignedRect().adjusted(-2, -2, 2, 2));
}

QRectF JailScene::guardStageRect(double steps) const {
    const QPointF feet = guardFeet(steps);
    return QRectF(feet.x() - kGuardW / 2, feet.y() - kGuardH, kGuardW, kGuardH);
}

QRectF JailScene::lockRect(int lock) const {
    if (!jail_ || lock < 0 || lock >= int(jail_->locks.size())) return {};
    const QPointF c = lockCentre(lock, int(jail_->locks.size()));
    return toWidget(QRectF(c.x() - kLockW / 2, c.y() - 40, kLockW, kLockH + 40));
}

QRectF JailScene::tagRect(int lock) const {
    if (!jail_ || lock < 0 || lock >= int(jail_->locks.size())) return {};
    const QPointF c = lockCentre(lock, int(jail_->locks.size()));
    return toWidget(QRectF(c.x() - kTagW / 2, c.y() + 86, kTagW, kTagH));
}

int JailScene::lockAt(QPoint p) const {
    if (!jail_ || escaping()) return -1;
    for (int i = 0; i < int(jail_->locks.size()); ++i)
        if (lockRect(i).united(tagRect(i)).contains(p)) return i;
    return -1;
}

QString JailScene::tagText(int lock) const {
    return tagTexts_.value(lock);
}

void JailScene::resizeEvent(QResizeEvent*) {
    stage_ = scene::fitStage(QRectF(rect()), QSizeF(kStageW, kStageH));
    k_ = stage_.width() / kStageW;
    back_ = QPixmap(stage_.size().toSize());
    back_.fill(QColor(40, 44, 60));
    if (sceneSvg_->isValid()) {
        QPainter p(&back_);
        p.setRenderHint(QPainter::Antialiasing);
        sceneSvg_->render(&p, QRectF(QPointF(0, 0), stage_.size()));
    }
    sprites_.clear();
    tags_.clear();
    tagKeys_.clear();
}

QPixmap JailScene::sprite(const QString& id, double scale) {
    const QString key = id + "@" + QString::number(scale);
    auto it = sprites_.find(key);
    if (it != sprites_.end()) return it.value();
    QPixmap pm;
    if (spriteSvg_->isValid() && spriteSvg_->elementExists(id)) {
        const QRectF b = spriteSvg_->boundsOnElement(id);
        const QSize size(std::max(1, int(std::ceil(b.width() * k_ * scale))),
                         std::max(1, int(std::ceil(b.height() * k_ * scale))));
        pm = QPixmap(size);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        spriteSvg_->render(&p, id, QRectF(QPointF(0, 0), QSizeF(size)));
    }
    sprites_.insert(key, pm);
    return pm;
}

QPixmap JailScene::tagPicture(int lock) {
    const jb::Lock& l = jail_->locks[lock];
    const bool selected = !l.open && jail_->selected == lock;
    const QString text = toQ(l.open ? l.word : l.meaning);
    const QString key = QString("%1|%2|%3").arg(l.open).arg(selected).arg(text);
    if (tagKeys_.value(lock) == key && tags_.contains(lock)) return tags_.value(lock);
    const QSize size(int(std::ceil(kTagW * k_)), int(std::ceil(kTagH * k_)));
    QPixmap pm(size);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const QString id = l.open ? "tag_open" : (selected ? "tag_selected" : "tag");
    p.drawPixmap(0, 0, sprite(id));
    const QRectF area(12 * k_, 30 * k_, (kTagW - 24) * k_, (kTagH - 38) * k_);
    QFont font;
    const double minPx = std::max(9.0, 11 * k_);
    QString shown;
    if (l.open) {
        shown = FitText(text, area.size(), std::max(minPx, 34 * k_), minPx, true, false, font);
        p.setPen(QColor(30, 110, 30));
    } else {
        shown = FitText(text, area.size(), std::max(minPx, 22 * k_), minPx, false, true, font);
        p.setPen(QColor(50, 36, 20));
    }
    p.setFont(font);
    p.drawText(area, Qt::AlignCenter | (l.open ? 0 : Qt::TextWordWrap), shown);
    p.end();
    tags_.insert(lock, pm);
    tagKeys_.insert(lock, key);
    tagTexts_.insert(lock, shown);
    return pm;
}

void JailScene::paintLock(QPainter& p, int lock) {
    const int n = int(jail_->locks.size());
    const QPointF c = lockCentre(lock, n);
    const jb::Lock& l = jail_->locks[lock];
    const int t = lock < int(springMs_.size()) ? springMs_[lock] : -1;
    const double u = !l.open ? 0.0 : (t < 0 ? 1.0 : double(t) / kSpringMs);
    // The string, then the tag, then the padlock on the bars.
    const QRectF tag = toWidget(QRectF(c.x() - kTagW / 2, c.y() + 86, kTagW, kTagH));
    const double sway = l.open && u < 1 ? std::sin(u * 18) * (1 - u) * 6 : 0.0;
    p.setPen(QPen(QColor(120, 90, 50), std::max(1.5, 4 * k_), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(toWidget(QRectF(c.x(), c.y() + 64, 0, 0)).topLeft(),
               QPointF(tag.center().x() + sway * k_, tag.top() + 18 * k_));
    p.save();
    p.translate(tag.center().x(), tag.top());
    p.rotate(sway);
    p.drawPixmap(QPointF(-tag.width() / 2, 0), tagPicture(lock));
    p.restore();
    if (jail_->selected == lock && !l.open) {
        // A soft pulse round the lock that the panel is showing.
        const double pulse = 0.5 + 0.5 * std::sin(clockMs_ / 220.0);
        p.setPen(QPen(scene::withAlpha(QColor(255, 200, 40), 0.5 + 0.4 * pulse), 4 * k_));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(toWidget(QRectF(c.x() - 56, c.y() - 52, 112, 136)), 14 * k_, 14 * k_);
    }
    // Shackle: up out of the body, then swung open on its left leg.
    const double lift = 26 * scene::easeOut(std::min(1.0, u / 0.35));
    const double swing = -40 * scene::smooth((u - 0.3) / 0.5);
    const QRectF sh = toWidget(QRectF(c.x() - kShackleW / 2, c.y() - 40 - lift, kShackleW, kShackleH));
    p.save();
    p.translate(sh.left() + 15 * k_, sh.bottom());
    p.rotate(swing);
    p.drawPixmap(QPointF(-15 * k_, -sh.height()), sprite("lock_shackle"));
    p.restore();
    const double bounce = l.open && u < 1 ? 1 + 0.12 * std::sin(u * M_PI) : 1.0;
    const QRectF body = toWidget(QRectF(c.x() - kLockW / 2, c.y(), kLockW, kLockH));
    p.save();
    p.translate(body.center());
    p.scale(bounce, bounce);
    p.rotate(l.open ? 8 * scene::smooth(u) : 0);
    p.drawPixmap(QPointF(-body.width() / 2, -body.height() / 2), sprite("lock_body"));
    p.restore();
    if (l.open && u < 1) {
        for (int s = 0; s < 6; ++s) {
            const double ang = s * M_PI / 3 + u * 2;
            const double r = (30 + 70 * u) * k_;
            scene::paintSparkle(p, body.center() + QPointF(std::cos(ang) * r, std::sin(ang) * r),
                                14 * k_ * (1 - u * 0.6), ang, 1 - u);
        }
    }
}

void JailScene::paintDoor(QPainter& p) {
    const double swing = escapeMs_ < 0 ? 0.0 : scene::smooth(double(escapeMs_) / kSwingMs);
    const QRectF door = toWidget(kDoor);
    p.save();
    p.translate(door.left(), door.top());
    // Swinging towards us on its hinges: narrower, and a little taller at the free edge.
    p.scale(1 - 0.82 * swing, 1);
    p.drawPixmap(QPointF(0, 0), sprite("door"));
    p.restore();
    if (!jail_ || swing >= 1) return;
    p.save();
    p.setOpacity(1 - swing);
    for (int i = 0; i < int(jail_->locks.size()); ++i) {
        // Only the locks the repaint reaches.
        const QPointF c = lockCentre(i, int(jail_->locks.size()));
        if (dirty_.intersects(toWidget(QRectF(c.x() - 110, c.y() - 110, 220, 350)).toAlignedRect()))
            paintLock(p, i);
    }
    p.restore();
}

QRectF JailScene::prisonerStageRect() const {
    // In the cell, behind the bars, until the door is open; then out and away to the daylight.
    QPointF feet(470, 636);
    double scale = 1.0;
    if (escapeMs_ >= kRunFromMs) {
        const double u = std::min(1.0, double(escapeMs_ - kRunFromMs) / kRunMs);
        if (u < 0.3) {
            const double v = scene::smooth(u / 0.3);
            feet = QPointF(scene::lerp(470, 330, v), scene::lerp(636, 730, v));
            scale = scene::lerp(1.0, 1.2, v);
        } else {
            const double v = (u - 0.3) / 0.7;
            feet = QPointF(scene::lerp(330, 90, v), scene::lerp(730, 640, v));
            scale = scene::lerp(1.2, 0.55, v);
        }
    }
    return QRectF(feet.x() - kKidW * scale / 2, feet.y() - kKidH * scale, kKidW * scale,
                  kKidH * scale);
}

void JailScene::paintPrisoner(QPainter& p) {
    const QRectF r = toWidget(prisonerStageRect());
    QString id = "prisoner_idle";
    double alpha = 1;
    if (escapeMs_ >= kRunFromMs) {
        const double u = std::min(1.0, double(escapeMs_ - kRunFromMs) / kRunMs);
        id = u >= 1 ? "prisoner_cheer" : QString("prisoner_%1").arg((escapeMs_ / 90) % 4);
        alpha = u > 0.85 ? std::max(0.0, 1 - (u - 0.85) / 0.15) : 1.0;
    } else if (escapeMs_ >= 0) {
        id = "prisoner_cheer";
    }
    if (alpha <= 0) return;
    p.save();
    p.setOpacity(alpha);
    p.drawPixmap(r, sprite(id), QRectF(QPointF(0, 0), sprite(id).size()));
    p.restore();
}

void JailScene::paintGuard(QPainter& p) {
    const int f = guardFrame();
    const QString id = f == 4 ? "guard_catch" : (f < 0 ? "guard_stand" : QString("guard_%1").arg(f));
    const QRectF r = toWidget(guardStageRect(guardShown_));
    // His shadow on the flagstones.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 70));
    p.drawEllipse(QRectF(r.left() + r.width() * 0.18, r.bottom() - 10 * k_, r.width() * 0.64,
                         18 * k_));
    p.drawPixmap(r.topLeft(), sprite(id));
}

void JailScene::paintAlarm(QPainter& p) {
    const bool on = alarmMs_ > 0 && (alarmMs_ / 200) % 2 == 1;
    const QRectF r = toWidget(kAlarm);
    if (on) {
        QRadialGradient g(r.center(), 240 * k_);
        g.setColorAt(0, QColor(255, 60, 40, 150));
        g.setColorAt(1, QColor(255, 60, 40, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawEllipse(r.center(), 240 * k_, 240 * k_);
    }
    p.drawPixmap(r.topLeft(), sprite(on ? "alarm_on" : "alarm_off"));
}

void JailScene::paintPops(QPainter& p) {
    for (const Pop& pop : pops_) {
        const double u = double(pop.ageMs) / kPopMs;
        const QPointF at = toWidget(QRectF(pop.at.x(), pop.at.y() - 70 * scene::easeOut(u), 0, 0))
                               .topLeft();
        QFont f = TagFont(std::max(12.0, 44 * k_), true);
        p.setFont(f);
        const QRectF box(at.x() - 120 * k_, at.y() - 30 * k_, 240 * k_, 60 * k_);
        p.setOpacity(1 - scene::easeIn(u));
        p.setPen(QColor(20, 20, 30));
        p.drawText(box.translated(2 * k_, 2 * k_), Qt::AlignCenter, pop.text);
        p.setPen(pop.good ? QColor(120, 255, 110) : QColor(255, 80, 70));
        p.drawText(box, Qt::AlignCenter, pop.text);
        p.setOpacity(1);
    }
}

void JailScene::paintBanner(QPainter& p) {
    if (banner_.isEmpty()) return;
    const QRectF plate = toWidget(QRectF(900, 140, 540, bannerSmall_.isEmpty() ? 100 : 150));
    p.setPen(QPen(QColor(255, 210, 60), 4 * k_));
    p.setBrush(QColor(20, 24, 40, 215));
    p.drawRoundedRect(plate, 22 * k_, 22 * k_);
    QFont big = TagFont(std::max(14.0, 52 * k_), true);
    QRectF top = plate.adjusted(10 * k_, 8 * k_, -10 * k_, 0);
    top.setHeight(86 * k_);
    QFont fitted;
    const QString bigText = FitText(banner_, top.size(), std::max(14.0, 52 * k_), 12, true, false,
                                    fitted);
    p.setFont(fitted);
    p.setPen(QColor(255, 220, 80));
    p.drawText(top, Qt::AlignCenter, bigText);
    if (!bannerSmall_.isEmpty()) {
        const QRectF below(plate.left() + 14 * k_, top.bottom(), plate.width() - 28 * k_,
                           plate.bottom() - top.bottom() - 8 * k_);
        const QString smallText =
            FitText(bannerSmall_, below.size(), std::max(11.0, 28 * k_), 9, true, false, fitted);
        p.setFont(fitted);
        p.setPen(Qt::white);
        p.drawText(below, Qt::AlignCenter, smallText);
    }
}

void JailScene::paintEvent(QPaintEvent* e) {
    dirty_ = e->region();
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawPixmap(stage_.topLeft(), back_);
    p.setClipRect(stage_);
    const bool kidInFront = escapeMs_ >= kRunFromMs;
    const bool kidDirty = dirty_.intersects(toWidget(prisonerStageRect()).toAlignedRect());
    if (!kidInFront && kidDirty) paintPrisoner(p);
    if (dirty_.intersects(toWidget(kCell).toAlignedRect())) paintDoor(p);
    p.setRenderHint(QPainter::Antialiasing);
    if (kidInFront && kidDirty) paintPrisoner(p);
    if (dirty_.intersects(toWidget(guardStageRect(guardShown_)).toAlignedRect().adjusted(0, 0, 0, 20)))
        paintGuard(p);
    paintAlarm(p);
    paintPops(p);
    paintBanner(p);
}

void JailScene::mousePressEvent(QMouseEvent* e) {
    const int lock = lockAt(e->pos());
    if (lock >= 0) emit lockClicked(lock);
    QWidget::mousePressEvent(e);
}

}  // namespace wm
