// Animation frames of a sprite, cut from one picture: a grid of equal cells in a PNG, or the
// elements of an SVG drawing whose ids are name_0, name_1...
#pragma once

#include <QImage>
#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <vector>

namespace wm {

class SpriteSheet {
public:
    // Cells of `frameSize`, left to right then top to bottom, become name_0, name_1...; at most
    // `count` of them when count >= 0.
    static SpriteSheet fromGrid(const QString& path, const QString& name, QSize frameSize,
                                int count = -1);
    // Every element whose id is some name followed by _N (or only those of `names`), drawn at
    // `scale` times the drawing's own size. Frame numbers run from 0 without gaps.
    static SpriteSheet fromSvg(const QString& path, double scale = 1.0,
                               const QStringList& names = {});

    bool isEmpty() const { return frames_.isEmpty(); }
    QStringList names() const { return frames_.keys(); }
    int frameCount(const QString& name) const;
    QImage frame(const QString& name, int index) const;  // a null image when there is none
    QImage frame(const QString& id) const;               // by full id: "ball_3"
    // Why the sheet is empty, naming the file; empty when it loaded.
    QString error() const { return error_; }

private:
    QMap<QString, std::vector<QImage>> frames_;
    QString error_;
};

}  // namespace wm
