#include "platform/timeline_scene.h"

#include "platform/scene_kit.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QRadialGradient>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QtDebug>

#include <algorithm>
#include <cmath>

namespace wm {

namespace {

void paintBurst(QPainter& p, double size, const QColor& colour, double phase, double) {
    const double u = std::clamp(phase, 0.0, 1.0);
    if (u <= 0 || u >= 1) return;
    const double reach = size / 2 * scene::easeOut(u);
    const double droop = size * 0.18 * u * u;
    const double fade = 1 - scene::smooth((u - 0.45) / 0.55);
    p.setPen(Qt::NoPen);
    // A flash at the centre as it goes off.
    if (u < 0.25) {
        QRadialGradient flash(QPointF(0, 0), size * 0.25);
        flash.setColorAt(0, QColor(255, 255, 240, int(220 * (1 - u / 0.25))));
        flash.setColorAt(1, QColor(255, 255, 240, 0));
        p.setBrush(flash);
        p.drawEllipse(QPointF(0, 0), size * 0.25, size * 0.25);
    }
    constexpr int kSparks = 28;
    for (int ring = 0; ring < 2; ++ring) {
        for (int i = 0; i < kSparks; ++i) {
            // Fixed, slightly uneven angles and speeds so the burst looks natural yet the same
            // every time.
            const double wobble = std::sin(i * 12.9898 + ring * 78.233) * 0.5;
            const double angle = (i + wobble * 0.4) * 2 * M_PI / kSparks + ring * 0.11;
            const double speed = ring == 0 ? 1.0 + 0.08 * wobble : 0.62 + 0.06 * wobble;
            const QPointF at(std::cos(angle) * reach * speed,
                             std::sin(angle) * reach * speed + droop);
            const QPointF back = at * (1 - 0.3 * (1 - 0.5 * u));
            QColor c = ring == 0 ? colour : colour.lighter(140);
            c.setAlphaF(float(fade * 0.55));
            p.setPen(QPen(c, size * 0.012, Qt::SolidLine, Qt::RoundCap));
            p.drawLine(back, at);
            p.setPen(Qt::NoPen);
            c.setAlphaF(float(fade));
            p.setBrush(c);
            p.drawEllipse(at, size * 0.012, size * 0.012);
        }
    }
}

std::map<QString, TimelineHelper>& helpers() {
    static std::map<QString, TimelineHelper> all = {
        // A four-pointed twinkle.
        {QStringLiteral("sparkle"),
         [](QPainter& p, double size, const QColor&, double, double) {
             scene::paintSparkle(p, QPointF(0, 0), size / 2, 0, 1.0);
         }},
        // A soft cone of light pointing down, as from a lamp or a flying saucer.
        {QStringLiteral("beam"),
         [](QPainter& p, double size, const QColor&, double, double time) {
             QLinearGradient g(0, -size / 2, 0, size / 2);
             g.setColorAt(0, QColor(255, 250, 200, 200));
             g.setColorAt(1, QColor(255, 240, 160, 30));
             QPainterPath cone;
             cone.moveTo(-size * 0.08, -size / 2);
             cone.lineTo(size * 0.08, -size / 2);
             cone.lineTo(size * 0.3, size / 2);
             cone.lineTo(-size * 0.3, size / 2);
             cone.closeSubpath();
             p.setPen(Qt::NoPen);
             p.setOpacity(p.opacity() * (0.85 + 0.15 * std::sin(time * 40)));
             p.fillPath(cone, g);
         }},
        // A firework bursting: sparks fly out, droop and fade as the phase goes from 0 to 1.
        {QStringLiteral("burst"), paintBurst},
    };
    return all;
}

QString& timelineFolder() {
    static QString folder;
    return folder;
}

}  // namespace

void RegisterTimelineHelper(const QString& name, TimelineHelper helper) {
    helpers()[name] = std::move(helper);
}

QString TimelineFolder() {
    if (!timelineFolder().isEmpty()) return timelineFolder();
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("movies"));
}

void SetTimelineFolder(const QString& folder) {
    timelineFolder() = folder;
}

void UseTimelineFiles() {
    SetSceneFinder([](const QString& name) -> std::unique_ptr<MovieScene> {
        const QString file = QDir(TimelineFolder()).filePath(name + QStringLiteral(".timeline"));
        if (!QFileInfo::exists(file)) return nullptr;
        QString error;
        auto scene = TimelineScene::load(file, &error);
        // A broken film shows nothing, as a missing one does; the message helps whoever made it.
        if (!scene) qWarning("%s", qPrintable(error));
        return scene;
    });
}

TimelineScene::~TimelineScene() = default;

std::unique_ptr<TimelineScene> TimelineScene::load(const QString& file, QString* error) {
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly)) {
        if (error) *error = QStringLiteral("cannot read %1: %2").arg(file, in.errorString());
        return nullptr;
    }
    std::unique_ptr<TimelineScene> scene(new TimelineScene);
    scene->folder_ = QFileInfo(file).absolutePath();
    const QStringList lines = QString::fromUtf8(in.readAll()).split(QLatin1Char('\n'));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    static const QRegularExpression sizeText(QStringLiteral("^(\\d+)x(\\d+)$"));
    bool headed = false;
    for (int i = 0; i < lines.size(); ++i) {
        QString line = lines[i];
        // '#' starts a comment at a line's start or after a blank; "#ff8800" colours stay.
        for (int k = line.indexOf(QLatin1Char('#')); k >= 0;
             k = line.indexOf(QLatin1Char('#'), k + 1)) {
            if (k == 0 || line[k - 1].isSpace()) {
                line.truncate(k);
                break;
            }
        }
        const QStringList words = line.trimmed().split(blanks, Qt::SkipEmptyParts);
        if (words.isEmpty()) continue;
        auto fail = [&](const QString& message) {
            if (error) *error = QStringLiteral("%1:%2: %3").arg(file).arg(i + 1).arg(message);
            return nullptr;
        };
        std::map<QString, QString> keys;
        QStringList bare;
        for (int w = 1; w < words.size(); ++w) {
            const int eq = words[w].indexOf(QLatin1Char('='));
            if (eq > 0) {
                keys[words[w].left(eq)] = words[w].mid(eq + 1);
            } else {
                bare.push_back(words[w]);
            }
        }
        QString bad;
        auto number = [&](const QString& key, double fallback, double lo, double hi) {
            const auto it = keys.find(key);
            if (it == keys.end()) return fallback;
            bool ok = false;
            const double v = it->second.toDouble(&ok);
            if (!ok || v < lo || v > hi) {
                if (bad.isEmpty())
                    bad = QStringLiteral("%1=%2 is not a number from %3 to %4")
                              .arg(key, it->second)
                              .arg(lo)
                              .arg(hi);
                return fallback;
            }
            return v;
        };
        auto onlyKeys = [&](std::initializer_list<const char*> allowed) {
            for (const auto& [key, value] : keys) {
                if (std::none_of(allowed.begin(), allowed.end(),
                                 [&](const char* a) { return key == QLatin1String(a); }))
                    return QStringLiteral("%1 has no key \"%2\"").arg(words[0], key);
            }
            return QString();
        };
        const QString& word = words[0];
        if (word == QLatin1String("timeline")) {
            if (const QString e = onlyKeys({"duration", "loop", "size", "background"});
                !e.isEmpty())
                return fail(e);
            scene->duration_ = number(QStringLiteral("duration"), 0, 0.05, 600);
            if (!keys.count(QStringLiteral("duration"))) return fail(QStringLiteral("no duration"));
            scene->loop_ = keys[QStringLiteral("loop")] == QLatin1String("yes");
            if (keys.count(QStringLiteral("size"))) {
                const auto m = sizeText.match(keys[QStringLiteral("size")]);
                if (!m.hasMatch() || m.captured(1).toInt() < 1 || m.captured(2).toInt() < 1)
                    return fail(QStringLiteral("size is <width>x<height>"));
                scene->stage_ = QSize(m.captured(1).toInt(), m.captured(2).toInt());
            }
            if (keys.count(QStringLiteral("background"))) {
                const QColor c = QColor::fromString(keys[QStringLiteral("background")]);
                if (!c.isValid())
                    return fail(QStringLiteral("background is a colour like #102040"));
                scene->background_ = c;
            }
            headed = true;
        } else if (!headed) {
            return fail(QStringLiteral("a timeline starts with \"timeline duration=<seconds>\""));
        } else if (word == QLatin1String("sprite")) {
            if (bare.size() != 1) return fail(QStringLiteral("write \"sprite <name> ...\""));
            if (const QString e =
                    onlyKeys({"svg", "id", "frames", "helper", "size", "colour", "cover"});
                !e.isEmpty())
                return fail(e);
            Sprite s;
            s.name = bare[0];
            s.svg = keys[QStringLiteral("svg")];
            s.id = keys.count(QStringLiteral("id")) ? keys[QStringLiteral("id")] : s.name;
            s.frames = static_cast<int>(number(QStringLiteral("frames"), 0, 0, 1000));
            s.helper = keys[QStringLiteral("helper")];
            s.size = number(QStringLiteral("size"), 64, 1, 100000);
            s.cover = keys[QStringLiteral("cover")] == QLatin1String("yes");
            if (keys.count(QStringLiteral("colour"))) {
                s.colour = QColor::fromString(keys[QStringLiteral("colour")]);
                if (!s.colour.isValid()) return fail(QStringLiteral("colour is like #ff8800"));
            }
            if (s.svg.isEmpty() == s.helper.isEmpty())
                return fail(QStringLiteral("a sprite has either svg=<file> or helper=<name>"));
            if (!s.helper.isEmpty() && !helpers().count(s.helper))
                return fail(QStringLiteral("no helper \"%1\"").arg(s.helper));
            if (s.svg.contains(QLatin1String("..")) || QDir::isAbsolutePath(s.svg))
                return fail(QStringLiteral("svg= names a file beside the timeline"));
            for (const Sprite& other : scene->sprites_)
                if (other.name == s.name)
                    return fail(QStringLiteral("two sprites called %1").arg(s.name));
            scene->sprites_.push_back(s);
        } else if (word == QLatin1String("key")) {
            if (bare.size() != 1)
                return fail(QStringLiteral("write \"key <sprite> t=<seconds> ...\""));
            auto sprite = std::find_if(scene->sprites_.begin(), scene->sprites_.end(),
                                       [&](const Sprite& s) { return s.name == bare[0]; });
            if (sprite == scene->sprites_.end())
                return fail(QStringLiteral("no sprite called %1 above this line").arg(bare[0]));
            if (const QString e =
                    onlyKeys({"t", "x", "y", "scale", "rot", "opacity", "frame", "phase", "ease"});
                !e.isEmpty())
                return fail(e);
            if (!keys.count(QStringLiteral("t"))) return fail(QStringLiteral("a key needs t="));
            const double t = number(QStringLiteral("t"), 0, 0, scene->duration_);
            Ease ease = Ease::Linear;
            static const std::map<QString, Ease> kEases = {{"linear", Ease::Linear},
                                                           {"in", Ease::In},
                                                           {"out", Ease::Out},
                                                           {"inout", Ease::InOut},
                                                           {"step", Ease::Step}};
            if (keys.count(QStringLiteral("ease"))) {
                const auto e = kEases.find(keys[QStringLiteral("ease")]);
                if (e == kEases.end())
                    return fail(QStringLiteral("ease is linear, in, out, inout or step"));
                ease = e->second;
            }
            static const char* kNames[PropertyCount] = {"x",       "y",     "scale", "rot",
                                                        "opacity", "frame", "phase"};
            for (int p = 0; p < PropertyCount; ++p) {
                if (!keys.count(QLatin1String(kNames[p]))) continue;
                const double v = number(QLatin1String(kNames[p]), 0, -100000, 100000);
                std::vector<Point>& track = sprite->tracks[p];
                if (!track.empty() && track.back().t > t)
                    return fail(QStringLiteral("keys of %1 go back in time").arg(sprite->name));
                // Frames switch at their keys rather than sliding through the ones between.
                track.push_back({t, v, p == Frame ? Ease::Step : ease});
            }
            if (!bad.isEmpty()) return fail(bad);
        } else {
            return fail(QStringLiteral("unknown statement \"%1\"").arg(word));
        }
        if (!bad.isEmpty()) return fail(bad);
    }
    if (!headed) {
        if (error)
            *error = QStringLiteral("%1:1: a timeline starts with \"timeline duration=<seconds>\"")
                         .arg(file);
        return nullptr;
    }
    return scene;
}

double TimelineScene::valueAt(const std::vector<Point>& track, double t, double fallback) {
    if (track.empty()) return fallback;
    if (t <= track.front().t) return track.front().value;
    for (size_t i = 1; i < track.size(); ++i) {
        const Point& a = track[i - 1];
        const Point& b = track[i];
        if (t >= b.t) continue;
        const double u = (t - a.t) / (b.t - a.t);
        switch (b.ease) {
            case Ease::Step:
                return a.value;
            case Ease::In:
                return scene::lerp(a.value, b.value, scene::easeIn(u));
            case Ease::Out:
                return scene::lerp(a.value, b.value, scene::easeOut(u));
            case Ease::InOut:
                return scene::lerp(a.value, b.value, scene::easeInOut(u));
            case Ease::Linear:
                return scene::lerp(a.value, b.value, u);
        }
    }
    return track.back().value;
}

SpriteState TimelineScene::stateAt(const QString& name, double t) const {
    SpriteState s;
    for (const Sprite& sprite : sprites_) {
        if (sprite.name != name) continue;
        s.x = valueAt(sprite.tracks[X], t, 0);
        s.y = valueAt(sprite.tracks[Y], t, 0);
        s.scale = valueAt(sprite.tracks[Scale], t, 1);
        s.rotation = valueAt(sprite.tracks[Rotation], t, 0);
        s.opacity = std::clamp(valueAt(sprite.tracks[Opacity], t, 1), 0.0, 1.0);
        s.frame = static_cast<int>(std::floor(valueAt(sprite.tracks[Frame], t, 0)));
        s.phase = valueAt(sprite.tracks[Phase], t, 0);
    }
    return s;
}

QStringList TimelineScene::missingDrawings() {
    QStringList out;
    for (const Sprite& sprite : sprites_) {
        if (sprite.svg.isEmpty()) continue;
        QSvgRenderer* svg = renderer(sprite.svg);
        for (int f = 0; f < std::max(1, sprite.frames); ++f) {
            const QString id =
                sprite.frames > 0 ? QStringLiteral("%1_%2").arg(sprite.id).arg(f) : sprite.id;
            if (!svg || !svg->elementExists(id))
                out.push_back(QStringLiteral("%1: %2#%3").arg(sprite.name, sprite.svg, id));
        }
    }
    return out;
}

QSvgRenderer* TimelineScene::renderer(const QString& svg) {
    auto& slot = renderers_[svg];
    if (!slot) {
        slot = std::make_unique<QSvgRenderer>(QDir(folder_).filePath(svg));
        if (!slot->isValid()) qWarning("cannot draw %s", qPrintable(QDir(folder_).filePath(svg)));
    }
    return slot->isValid() ? slot.get() : nullptr;
}

void TimelineScene::paint(QPainter& painter, const QRectF& rect, double t) {
    if (background_) painter.fillRect(rect, *background_);
    const QRectF stage = scene::fitStage(rect, QSizeF(stage_));
    const double zoom = stage.width() / stage_.width();
    const QTransform outer = painter.transform();
    painter.save();
    painter.setClipRect(stage);
    painter.translate(stage.topLeft());
    painter.scale(zoom, zoom);
    for (const Sprite& sprite : sprites_) {
        const SpriteState s = stateAt(sprite.name, t);
        if (s.opacity <= 0 || s.scale == 0) continue;
        if (sprite.cover) {
            // Scaled to cover the whole picture, cropped rather than letterboxed.
            QSvgRenderer* svg = renderer(sprite.svg);
            if (!svg || !svg->elementExists(sprite.id)) continue;
            const QRectF box = svg->boundsOnElement(sprite.id);
            if (box.isEmpty()) continue;
            const double k = std::max(rect.width() / box.width(), rect.height() / box.height());
            const QSizeF size = box.size() * k;
            painter.save();
            painter.setTransform(outer);
            painter.setClipRect(rect);
            painter.setOpacity(painter.opacity() * s.opacity);
            svg->render(&painter, sprite.id,
                        QRectF(rect.center() - QPointF(size.width() / 2, size.height() / 2), size));
            painter.restore();
            continue;
        }
        painter.save();
        painter.translate(s.x, s.y);
        painter.rotate(s.rotation);
        painter.scale(s.scale, s.scale);
        painter.setOpacity(painter.opacity() * s.opacity);
        if (!sprite.helper.isEmpty()) {
            helpers()[sprite.helper](painter, sprite.size, sprite.colour, s.phase, t);
        } else if (QSvgRenderer* svg = renderer(sprite.svg)) {
            const QString id = sprite.frames > 0 ? QStringLiteral("%1_%2").arg(sprite.id).arg(
                                                       std::clamp(s.frame, 0, sprite.frames - 1))
                                                 : sprite.id;
            // An id the drawing lacks draws nothing rather than the whole drawing.
            if (svg->elementExists(id)) {
                const QRectF box = svg->boundsOnElement(id);
                svg->render(&painter, id,
                            QRectF(-box.width() / 2, -box.height() / 2, box.width(), box.height()));
            }
        }
        painter.restore();
    }
    painter.restore();
}

}  // namespace wm
