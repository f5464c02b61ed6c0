#include "shell/style.h"

#include <QApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/screen_metrics.h"
#include "platform/services.h"

namespace wm {

void ApplyAppStyle() {
    QFont base("DejaVu Sans");
    base.setPointSize(ScreenMetrics::scaledPoint(11));
    QApplication::setFont(base);
    // Check marks sized with the text, so they stay easy to hit on a large screen.
    const int mark = ScreenMetrics::scaledPoint(11) * 3 / 2;
    qApp->setStyleSheet(QString("QRadioButton::indicator, QCheckBox::indicator { width: %1px; "
                                "height: %1px; }\n")
                            .arg(mark) +
                        R"(
        QGroupBox { font-weight: bold; color: #234; border: 2px solid #9bb7d4;
                    border-radius: 10px; margin-top: 1.1em; padding: 0.6em; background: #f6f9ff; }
        QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 6px; }
        QListWidget { border: 2px solid #9bb7d4; border-radius: 8px; background: white;
                      selection-background-color: #3d7fd6; selection-color: white; }
        QListWidget::item { padding: 4px 8px; }
        QComboBox { border: 2px solid #9bb7d4; border-radius: 8px; padding: 4px 10px;
                    background: white; }
        QLineEdit { border: 2px solid #9bb7d4; border-radius: 8px; padding: 4px 8px;
                    background: white; }
        QMenuBar { background: #26466d; color: white; }
        QMenuBar::item { padding: 6px 14px; background: transparent; }
        QMenuBar::item:selected { background: #3d7fd6; }
        QMenuBar::item:disabled { color: #8196b3; }
        QMenu { background: white; border: 1px solid #9bb7d4; }
        QMenu::item { padding: 6px 24px; }
        QMenu::item:selected { background: #3d7fd6; color: white; }
        QToolBar { background: rgba(20, 40, 70, 200); border: none; spacing: 6px; padding: 4px; }
        QToolButton { color: white; padding: 6px 12px; border-radius: 6px; }
        QToolButton:hover { background: rgba(255, 255, 255, 60); }
        QToolButton:disabled { color: rgba(255, 255, 255, 110); }
        QSlider::groove:horizontal { height: 10px; border-radius: 5px; background: #cfdcec; }
        QSlider::handle:horizontal { width: 26px; margin: -9px 0; border-radius: 13px;
                                     background: #3d7fd6; border: 2px solid white; }
        QSlider::sub-page:horizontal { border-radius: 5px; background: #7fb2ee; }
    )");
}

QFont ScreenFont(int points, bool bold) {
    QFont f("DejaVu Sans");
    f.setPointSize(ScreenMetrics::scaledPoint(points));
    f.setBold(bold);
    return f;
}

QPixmap LoadPicture(const QString& relative) {
    const QString path = findAsset(relative);
    if (path.isEmpty()) return {};
    // Screens come and go with every game; their pictures are decoded once and kept.
    if (QPixmapCache::cacheLimit() < 64 * 1024) QPixmapCache::setCacheLimit(64 * 1024);
    const QFileInfo file(path);
    const QString key = file.canonicalFilePath() + QLatin1Char('@') +
                        QString::number(file.lastModified().toMSecsSinceEpoch());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(path);
        if (!picture.isNull()) QPixmapCache::insert(key, picture);
    }
    return picture;
}

QPixmap RoundedPicture(const QPixmap& picture, int height) {
    if (picture.isNull()) return {};
    const QPixmap scaled = picture.scaledToHeight(height, Qt::SmoothTransformation);
    QPixmap out(scaled.size());
    out.fill(Qt::transparent);
    QPainter p(&out);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath clip;
    // The button art has rounded panels inset a little from the picture's edge.
    const qreal inset = scaled.height() * 0.025;
    clip.addRoundedRect(QRectF(out.rect()).adjusted(inset, inset, -inset, -inset),
                        scaled.height() * 0.08, scaled.height() * 0.08);
    p.setClipPath(clip);
    p.drawPixmap(0, 0, scaled);
    return out;
}

Backdrop::Backdrop(const QString& picture, QWidget* parent) : QWidget(parent) {
    setPicture(picture);
}

void Backdrop::setPicture(const QString& picture) {
    picture_ = LoadPicture(picture);
    update();
}

void Backdrop::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (picture_.isNull()) {
        QLinearGradient g(0, 0, 0, height());
        g.setColorAt(0, QColor(0x2b, 0x5d, 0x9c));
        g.setColorAt(1, QColor(0x9f, 0xd0, 0xf0));
        p.fillRect(rect(), g);
        return;
    }
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawPixmap(rect(), picture_);
}

Panel::Panel(QWidget* parent) : QWidget(parent) {}

void Panel::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    QRectF r = QRectF(rect()).adjusted(6, 6, -6, -6);
    QPainterPath shadow;
    shadow.addRoundedRect(r.translated(0, 5), 22, 22);
    p.fillPath(shadow, QColor(0, 0, 0, 50));
    QPainterPath card;
    card.addRoundedRect(r, 22, 22);
    p.fillPath(card, QColor(255, 255, 255, 238));
    p.setPen(QPen(QColor(0x9b, 0xb7, 0xd4), 2));
    p.drawPath(card);
}

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const qreal lift = hover_ ? 0 : 3;
    QRectF r = QRectF(rect()).adjusted(4, 4 + lift, -4, -6 + lift);
    QPainterPath shadow;
    shadow.addRoundedRect(r.translated(0, hover_ ? 7 : 4), 14, 14);
    p.fillPath(shadow, QColor(0, 0, 0, hover_ ? 90 : 60));
    QPainterPath clip;
    clip.addRoundedRect(r, 14, 14);
    p.save();
    p.setClipPath(clip);
    if (picture_.isNull()) {
        p.fillRect(r, QColor(0x3d, 0x7f, 0xd6));
        p.setPen(Qt::white);
        p.setFont(ScreenFont(12, true));
        p.drawText(r, Qt::AlignCenter | Qt::TextWordWrap, text());
    } else {
        p.drawPixmap(r.toRect(), picture_);
    }
    if (isDown()) p.fillRect(r, QColor(0, 0, 0, 40));
    p.restore();
    if (hover_) {
        p.setPen(QPen(QColor(255, 230, 90), 4));
        p.drawPath(clip);
    }
}

void PictureButton::enterEvent(QEnterEvent*) {
    hover_ = true;
    update();
}

void PictureButton::leaveEvent(QEvent*) {
    hover_ = false;
    update();
}

QPushButton* MakeButton(const QString& text, QWidget* parent, bool primary) {
    auto* b = new QPushButton(text, parent);
    b->setFont(ScreenFont(13, true));
    b->setCursor(Qt::PointingHandCursor);
    b->setMinimumHeight(ScreenMetrics::scaledPoint(13) * 3);
    const char* top = primary ? "#5cc46a" : "#5d9de8";
    const char* bottom = primary ? "#2f9a3f" : "#2f6fc4";
    b->setStyleSheet(QString(R"(
        QPushButton { color: white; border: none; border-radius: 14px; padding: 6px 26px;
                      background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:1 %2); }
        QPushButton:hover { background: qlineargradient(x1:0, y1:0, x2:0, y2:1,
                            stop:0 %1, stop:1 %1); }
        QPushButton:pressed { background: %2; }
        QPushButton:disabled { background: #b8c2cc; color: #eef2f6; }
    )")
                         .arg(top, bottom));
    return b;
}

NavigationRow MakeNavigationRow(QWidget* parent, const QString& backText,
                                const QString& onwardText) {
    auto* row = new QHBoxLayout;
    QPushButton* back = MakeButton(backText, parent);
    back->setObjectName("Command2");
    QPushButton* onward = MakeButton(onwardText, parent, true);
    onward->setObjectName("Command1");
    row->addWidget(back);
    row->addStretch();
    row->addWidget(onward);
    return {row, back, onward};
}

QLabel* MakeHeading(const QString& text, QWidget* parent, int points) {
    auto* l = new QLabel(text, parent);
    l->setFont(ScreenFont(points, true));
    l->setStyleSheet("color: #1f3f6a;");
    l->setWordWrap(true);
    return l;
}

QVBoxLayout* CentredPanel(QWidget* screen, const PanelShape& shape, const QString& heading,
                          QWidget* top) {
    auto* outer = new QVBoxLayout(screen);
    outer->setContentsMargins(0, 0, 0, 0);
    if (top) outer->addWidget(top);
    auto* panel = new Panel(screen);
    auto* row = new QHBoxLayout;
    row->addStretch(shape.side);
    row->addWidget(panel, shape.width);
    row->addStretch(shape.side);
    outer->addStretch(1);
    outer->addLayout(row, shape.height);
    outer->addStretch(1);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(shape.marginX, shape.marginY, shape.marginX, shape.marginY);
    layout->setSpacing(shape.spacing);
    if (!heading.isEmpty()) {
        auto* title = MakeHeading(heading, panel, 26);
        title->setAlignment(Qt::AlignCenter);
        layout->addWidget(title);
    }
    return layout;
}

}  // namespace wm
