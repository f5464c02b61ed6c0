#include "teacher/worksheets/worksheet_paint.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgRenderer>
#include <cmath>

#include "platform/services.h"
#include "platform/text.h"

namespace wm::sheets {

namespace {

constexpr char kOrnament[] = "images/worksheet-ornament.svg";
constexpr int kMeasureSize = 1000;  // pixels: widths are measured large, then scaled down

QFont face(const Font& f) {
    QFont font("DejaVu Sans");
    font.setBold(f.bold);
    font.setItalic(f.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    // No ligatures: the text read out of the PDF (copied, searched, read aloud) is the list's.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

QColor colour(unsigned rgb) {
    return QColor::fromRgb(rgb);
}

Qt::Alignment alignment(Align a) {
    const Qt::Alignment h = a == Align::Centre  ? Qt::AlignHCenter
                            : a == Align::Right ? Qt::AlignRight
                                                : Qt::AlignLeft;
    return h | Qt::AlignVCenter;
}

void paintItem(QPainter& p, const Item& it, double scale, QSvgRenderer& ornament) {
    QPen pen(colour(it.colour), it.pen);
    if (it.dashed) pen.setDashPattern({5, 4});
    pen.setCapStyle(Qt::FlatCap);
    switch (it.type) {
        case Item::Text: {
            // The painter counts in points; a font's size is taken in device pixels first.
            QFont font = face(it.font);
            font.setPointSizeF(it.font.size / scale);
            p.setFont(font);
            p.setPen(colour(it.colour));
            p.save();
            p.translate(it.x, it.y);
            p.scale(it.stretch, 1);
            p.drawText(QRectF(0, 0, it.w / it.stretch, it.h),
                       alignment(it.align) | Qt::TextDontClip, toQ(it.text));
            p.restore();
            break;
        }
        case Item::Box:
            p.setPen(pen);
            p.setBrush(it.fill == Item::kNoFill ? QBrush(Qt::NoBrush) : QBrush(colour(it.fill)));
            if (it.radius > 0)
                p.drawRoundedRect(QRectF(it.x, it.y, it.w, it.h), it.radius, it.radius);
            else
                p.drawRect(QRectF(it.x, it.y, it.w, it.h));
            break;
        case Item::Line:
            p.setPen(pen);
            p.drawLine(QLineF(it.x, it.y, it.x + it.w, it.y + it.h));
            break;
        case Item::Ring: {
            // A loop round a word: a rounded bar from its first letter to its last.
            const double length = std::hypot(it.w, it.h);
            p.save();
            p.translate(it.x, it.y);
            p.rotate(std::atan2(it.h, it.w) * 180 / M_PI);
            p.setPen(pen);
            p.setBrush(Qt::NoBrush);
            const double r = it.radius;
            p.drawRoundedRect(QRectF(-r, -r, length + 2 * r, 2 * r), r, r);
            p.restore();
            break;
        }
        case Item::Ornament:
            if (ornament.isValid()) ornament.render(&p, QRectF(it.x, it.y, it.w, it.h));
            break;
    }
}

}  // namespace

double printWidth(const std::string& text, const Font& f) {
    static QHash<int, QFontMetricsF*> metrics;
    const int key = (f.bold ? 1 : 0) | (f.italic ? 2 : 0);
    QFontMetricsF*& m = metrics[key];
    if (!m) {
        QFont font = face(f);
        font.setPixelSize(kMeasureSize);
        m = new QFontMetricsF(font);
    }
    return m->horizontalAdvance(toQ(text)) * f.size / kMeasureSize;
}

QPageSize qtPageSize(Paper paper) {
    return QPageSize(paper == Paper::Letter ? QPageSize::Letter : QPageSize::A4);
}

void paintPages(const std::vector<Page>& pages, QPagedPaintDevice& device) {
    QPainter p(&device);
    p.setRenderHint(QPainter::Antialiasing);
    const double scale = device.logicalDpiX() / 72.0;
    p.scale(scale, scale);
    QSvgRenderer ornament(findAsset(kOrnament));
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) device.newPage();
        for (const Item& it : pages[i].items) paintItem(p, it, scale, ornament);
    }
}

QString writePdf(const std::vector<Page>& pages, Paper paper, const QString& title,
                 const QString& path) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        {
            QPdfWriter writer(&file);
            writer.setPageSize(qtPageSize(paper));
            writer.setPageMargins(QMarginsF(0, 0, 0, 0));
            writer.setTitle(title);
            writer.setCreator("Wordmere");
            paintPages(pages, writer);
        }
        if (file.commit()) return {};
    }
    return "The file " + path + " could not be written. Choose another folder or name.";
}

}  // namespace wm::sheets
