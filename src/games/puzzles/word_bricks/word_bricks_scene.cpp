#include "games/puzzles/word_bricks/word_bricks_scene.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "platform/services.h"

namespace wm::word_bricks {

ClueText fitClue(const QString& text, const QSizeF& box, int largest, int smallest) {
    ClueText t;
    t.font = QFont("DejaVu Sans");
    t.font.setBold(true);
    smallest = std::max(1, smallest);
    const QRect room(0, 0, int(box.width()), 100000);
    for (int px = std::max(largest, smallest); px >= smallest; --px) {
        t.font.setPixelSize(px);
        const QFontMetricsF m(t.font);
        const QRectF need = m.boundingRect(room, Qt::TextWordWrap, text);
        if (need.width() <= box.width() + 0.5 && need.height() <= box.height() + 0.5) {
            // The lines as the wrap makes them, so the painter draws exactly what was measured.
            QStringList words = text.split(' ', Qt::SkipEmptyParts);
            QString line;
            for (const QString& w : words) {
                const QString longer = line.isEmpty() ? w : line + ' ' + w;
                if (!line.isEmpty() && m.horizontalAdvance(longer) > box.width()) {
                    t.lines << line;
                    line = w;
                } else {
                    line = longer;
                }
            }
            if (!line.isEmpty()) t.lines << line;
            return t;
        }
    }
    // Still too long at the smallest size: as many lines as there is room for, the last cut.
    t.whole = false;
    const QFontMetricsF m(t.font);
    const int room2 = std::max(1, int(box.height() / m.lineSpacing()));
    QString rest = text.simplified();
    for (int i = 0; i < room2 && !rest.isEmpty(); ++i) {
        int fit = int(rest.size());
        while (fit > 1 && m.horizontalAdvance(rest.left(fit)) > box.width()) {
            const int blank = rest.lastIndexOf(' ', fit - 1);
            fit = blank > 0 ? blank : fit - 1;
        }
        if (i == room2 - 1 && fit < rest.size()) {
            t.lines << m.elidedText(rest + QChar(0x2026), Qt::ElideRight, box.width());
            break;
        }
        t.lines << rest.left(fit).trimmed();
        rest = rest.mid(fit).trimmed();
    }
    return t;
}

SiteArt::SiteArt()
    : siteSvg_(findAsset("images/bricks-site.svg")),
      girderSvg_(findAsset("images/bricks-girder.svg")),
      signSvg_(findAsset("images/bricks-sign.svg")),
      brickSvg_(findAsset("images/bricks-brick.svg")),
      litSvg_(findAsset("images/bricks-lit.svg")) {}

void SiteArt::resize(const QSize& screen) {
    if (screen == site_.size() || screen.isEmpty()) return;
    site_ = QPixmap(screen);
    QPainter p(&site_);
    if (siteSvg_.isValid()) {
        siteSvg_.render(&p, QRectF(QPointF(0, 0), screen));
    } else {
        QLinearGradient sky(0, 0, 0, screen.height());
        sky.setColorAt(0, QColor(120, 190, 240));
        sky.setColorAt(0.7, QColor(210, 235, 250));
        sky.setColorAt(0.71, QColor(196, 160, 100));
        sky.setColorAt(1, QColor(150, 110, 60));
        p.fillRect(site_.rect(), sky);
    }
}

const QPixmap& SiteArt::cached(QSvgRenderer& svg, std::map<std::pair<int, int>, QPixmap>& cache,
                               const QSize& size, const QColor& stand) {
    const std::pair<int, int> key{size.width(), size.height()};
    auto it = cache.find(key);
    if (it != cache.end()) return it->second;
    // Sizes change only with the screen; a few dozen at most.
    if (cache.size() > 64) cache.clear();
    QPixmap pm(size.expandedTo(QSize(1, 1)));
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r(QPointF(0, 0), pm.size());
    if (svg.isValid()) {
        svg.render(&p, r);
    } else {
        p.setPen(QPen(stand.darker(160), 2));
        p.setBrush(stand);
        p.drawRoundedRect(r.adjusted(1, 1, -1, -1), 4, 4);
    }
    return cache.emplace(key, pm).first->second;
}

const QPixmap& SiteArt::girder(const QSize& size) {
    return cached(girderSvg_, girders_, size, QColor(70, 110, 160));
}

const QPixmap& SiteArt::sign(const QSize& size) {
    return cached(signSvg_, signs_, size, QColor(240, 220, 170));
}

void SiteArt::paintBrick(QPainter& p, const QRectF& r, const QString& letters, Look look) {
    const QSize size = r.size().toSize().expandedTo(QSize(1, 1));
    const QString key = QString("%1|%2x%3|%4")
                            .arg(letters)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(int(look));
    auto it = sprites_.find(key);
    if (it == sprites_.end()) {
        if (sprites_.size() > 400) sprites_.clear();
        QPixmap pm(size);
        pm.fill(Qt::transparent);
        QPainter q(&pm);
        q.setRenderHint(QPainter::Antialiasing);
        q.drawPixmap(0, 0, look == Look::Built ? cached(litSvg_, lit_, size, QColor(250, 200, 60))
                                               : cached(brickSvg_, bricks_, size, QColor(190, 70, 50)));
        paintLetters(q, QRectF(QPointF(0, 0), size), letters, look);
        it = sprites_.emplace(key, pm).first;
    }
    p.drawPixmap(r.topLeft(), it->second);
}

void SiteArt::paintLetters(QPainter& p, const QRectF& r, const QString& letters, Look look) {
    if (letters.isEmpty()) return;
    QFont f("DejaVu Sans");
    f.setBold(true);
    const double cell = r.width() / letters.size();
    f.setPixelSize(std::max(6, int(std::min(r.height() * 0.58, cell * 0.95))));
    p.setFont(f);
    const QColor ink = look == Look::Built ? QColor(110, 52, 0) : QColor(255, 248, 230);
    const QColor edge = look == Look::Built ? QColor(255, 245, 200) : QColor(80, 20, 10);
    for (int i = 0; i < letters.size(); ++i) {
        const QRectF c(r.left() + i * cell, r.top(), cell, r.height() * 0.96);
        // A blank between two words is a dot, so the pupil sees that it is there.
        const QString ch = letters[i] == ' ' ? QString(QChar(0x00B7)) : QString(letters[i]);
        p.setPen(edge);
        p.drawText(c.translated(1.5, 1.5), Qt::AlignCenter, ch);
        p.setPen(ink);
        p.drawText(c, Qt::AlignCenter, ch);
    }
}

}  // namespace wm::word_bricks
