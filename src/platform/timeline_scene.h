// A MovieScene played from a keyframe timeline file (movies/<name>.timeline): sprites taken from
// SVG drawings by element id, or drawn by a named procedural helper, each moved by keyframes of
// position, scale, rotation, opacity and frame with easing. Format: assets/movies/README.
#pragma once

#include "platform/movie.h"

#include <QColor>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

class QSvgRenderer;

namespace wm {

// Where one sprite is at a moment.
struct SpriteState {
    double x = 0, y = 0;  // centre, in stage units
    double scale = 1;
    double rotation = 0;  // degrees clockwise
    double opacity = 1;
    int frame = 0;
    double phase = 0;  // free-running value for procedural helpers, interpolated like the others
};

// Procedural drawing a timeline can use as a sprite (sparkles, beams, particles): paints centred
// on the origin, `size` stage units across, in the sprite's colour, at the sprite's phase and
// the scene's time.
using TimelineHelper = std::function<void(QPainter& painter, double size, const QColor& colour,
                                          double phase, double time)>;
void RegisterTimelineHelper(const QString& name, TimelineHelper helper);

class TimelineScene : public MovieScene {
public:
    ~TimelineScene() override;
    // Reads a timeline; nullptr with "<file>:<line>: <message>" (or "cannot read <file>") in
    // `error`. SVG files are looked up beside the timeline.
    static std::unique_ptr<TimelineScene> load(const QString& file, QString* error);

    double duration() const override { return duration_; }
    QSize naturalSize() const override { return stage_; }
    void paint(QPainter& painter, const QRectF& rect, double t) override;

    bool loops() const { return loop_; }
    // The sprite's state at time `t`; a default state for an unknown sprite.
    SpriteState stateAt(const QString& sprite, double t) const;
    // "<sprite>: <svg>#<id>" for each sprite whose drawing or element id cannot be found: such
    // sprites draw nothing, which a shipped film should not rely on.
    QStringList missingDrawings();

private:
    enum class Ease { Linear, In, Out, InOut, Step };
    struct Point {
        double t;
        double value;
        Ease ease;  // how the value travels from the previous point to this one
    };
    enum Property { X, Y, Scale, Rotation, Opacity, Frame, Phase, PropertyCount };
    struct Sprite {
        QString name;
        QString svg;     // file name beside the timeline; empty for a helper
        QString id;      // element id, or the stem of frame ids ("<id>_<frame>")
        int frames = 0;  // 0: a single element `id`
        QString helper;
        bool cover = false;  // fills the whole picture, not just the stage (skies, backdrops)
        double size = 64;
        QColor colour = Qt::white;
        std::vector<Point> tracks[PropertyCount];
    };

    TimelineScene() = default;
    static double valueAt(const std::vector<Point>& track, double t, double fallback);
    QSvgRenderer* renderer(const QString& svg);

    QString folder_;
    double duration_ = 1;
    bool loop_ = false;
    QSize stage_{640, 480};
    std::optional<QColor> background_;
    std::vector<Sprite> sprites_;
    std::map<QString, std::unique_ptr<QSvgRenderer>> renderers_;
};

// The folder MakeScene looks in for "<name>.timeline" when no scene of that name is
// registered: the program folder's movies/ unless set (tests point it elsewhere).
QString TimelineFolder();
void SetTimelineFolder(const QString& folder);
// Makes MakeScene fall back to timeline files; RegisterBuiltInScenes calls it.
void UseTimelineFiles();

}  // namespace wm
