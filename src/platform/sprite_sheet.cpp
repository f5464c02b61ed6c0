#include "platform/sprite_sheet.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <cmath>

namespace wm {

namespace {

constexpr int kMaxFrames = 1000;  // a bound on a malformed sheet, far above any real one

// Splits "ball_12" into "ball" and 12; false for ids that are not frames.
bool splitFrameId(const QString& id, QString& name, int& index) {
    static const QRegularExpression pattern(QStringLiteral("^(.+)_(\\d{1,4})$"));
    const QRegularExpressionMatch m = pattern.match(id);
    if (!m.hasMatch()) return false;
    name = m.captured(1);
    index = m.captured(2).toInt();
    return true;
}

}  // namespace

SpriteSheet SpriteSheet::fromGrid(const QString& path, const QString& name, QSize frameSize,
                                  int count) {
    SpriteSheet sheet;
    QImageReader reader(path);
    const QImage picture = reader.read();
    if (picture.isNull()) {
        sheet.error_ =
            QStringLiteral("Cannot read the picture %1 (%2).").arg(path, reader.errorString());
        return sheet;
    }
    if (frameSize.isEmpty() || frameSize.width() > picture.width() ||
        frameSize.height() > picture.height()) {
        sheet.error_ = QStringLiteral("The picture %1 is smaller than one frame.").arg(path);
        return sheet;
    }
    const QImage source = picture.convertToFormat(QImage::Format_ARGB32);
    const int columns = source.width() / frameSize.width();
    const int rows = source.height() / frameSize.height();
    int total = std::min(columns * rows, kMaxFrames);
    if (count >= 0) total = std::min(total, count);
    std::vector<QImage> frames;
    for (int i = 0; i < total; ++i) {
        const QPoint at((i % columns) * frameSize.width(), (i / columns) * frameSize.height());
        frames.push_back(source.copy(QRect(at, frameSize)));
    }
    if (!frames.empty()) sheet.frames_.insert(name, std::move(frames));
    return sheet;
}

SpriteSheet SpriteSheet::fromSvg(const QString& path, double scale, const QStringList& names) {
    SpriteSheet sheet;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        sheet.error_ = QStringLiteral("Cannot open the drawing %1.").arg(path);
        return sheet;
    }
    const QByteArray text = file.readAll();
    QSvgRenderer renderer(text);
    if (!renderer.isValid()) {
        sheet.error_ = QStringLiteral("The drawing %1 cannot be read.").arg(path);
        return sheet;
    }
    // The renderer cannot list its ids, so they are read from the file itself.
    QMap<QString, int> found;  // name -> highest frame number seen
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        QString name;
        int index = 0;
        if (!splitFrameId(xml.attributes().value(QLatin1String("id")).toString(), name, index)) {
            continue;
        }
        if (!names.isEmpty() && !names.contains(name)) continue;
        found[name] = std::max(found.value(name, -1), index);
    }
    for (auto it = found.cbegin(); it != found.cend(); ++it) {
        std::vector<QImage> frames;
        for (int i = 0; i <= std::min(it.value(), kMaxFrames - 1); ++i) {
            const QString id = QStringLiteral("%1_%2").arg(it.key()).arg(i);
            if (!renderer.elementExists(id)) break;  // numbers run without gaps
            const QRectF box =
                renderer.transformForElement(id).mapRect(renderer.boundsOnElement(id));
            const QSize size(std::max(1, int(std::ceil(box.width() * scale))),
                             std::max(1, int(std::ceil(box.height() * scale))));
            QImage image(size, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            renderer.render(&painter, id, QRectF(QPointF(0, 0), QSizeF(size)));
            painter.end();
            frames.push_back(image.convertToFormat(QImage::Format_ARGB32));
        }
        if (!frames.empty()) sheet.frames_.insert(it.key(), std::move(frames));
    }
    if (sheet.frames_.isEmpty()) {
        sheet.error_ = QStringLiteral("The drawing %1 has no frames named like name_0.").arg(path);
    }
    return sheet;
}

int SpriteSheet::frameCount(const QString& name) const {
    const auto it = frames_.constFind(name);
    return it == frames_.cend() ? 0 : int(it->size());
}

QImage SpriteSheet::frame(const QString& name, int index) const {
    const auto it = frames_.constFind(name);
    if (it == frames_.cend() || index < 0 || index >= int(it->size())) return {};
    return (*it)[size_t(index)];
}

QImage SpriteSheet::frame(const QString& id) const {
    QString name;
    int index = 0;
    return splitFrameId(id, name, index) ? frame(name, index) : QImage();
}

}  // namespace wm
