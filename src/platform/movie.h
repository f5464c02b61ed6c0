// The animation player. Scenes are our own, drawn with QPainter, found by name in a registry
// (the name a screen asks for, such as "wmsplash"). Its time is the Ticker's, so a test moving the
// manual clock moves every playing film too.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>

#include "platform/ticker.h"

namespace wm {

class MovieScene {
public:
    virtual ~MovieScene() = default;
    virtual double duration() const = 0;  // seconds of one pass
    // Paints the scene at time `t` seconds into `rect`.
    virtual void paint(QPainter& painter, const QRectF& rect, double t) = 0;
    virtual QSize naturalSize() const { return {640, 480}; }
};

using SceneFactory = std::function<std::unique_ptr<MovieScene>()>;
void RegisterScene(const QString& name, SceneFactory factory);
std::unique_ptr<MovieScene> MakeScene(const QString& name);  // nullptr when unknown
// Asked by MakeScene, with the bare lower-case name, when no scene of that name is registered.
using SceneFinder = std::function<std::unique_ptr<MovieScene>(const QString& name)>;
void SetSceneFinder(SceneFinder finder);
// Makes the timeline files of movies/ playable by name. Called once at start: a static library
// drops unreferenced static initialisers, so registration is explicit. Safe to call again.
void RegisterBuiltInScenes();

class Movie : public QWidget {
    Q_OBJECT
public:
    explicit Movie(QWidget* parent = nullptr);
    ~Movie() override;

    // Loads a scene by name ("wmsplash" or "wmsplash.swf"); false when there is none. A pass in
    // progress ends without its continuation.
    bool load(const QString& name);
    // Plays once (or in a loop); `onFinished` runs when a single pass ends or stop() is called.
    void play(bool loop = false, std::function<void()> onFinished = {});
    void stop();
    bool isPlaying() const;
    double position() const;  // seconds into the pass
    // Jumps the clock, for tests and for stepping without waiting.
    void advance(double seconds);

signals:
    void finished();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void tick();
    void scheduleTick();  // the next frame, or the end of the pass if that comes first
    // Ends the pass: the signal, then the continuation. False when that closed this widget.
    bool endPass();
    std::unique_ptr<MovieScene> scene_;
    GameTimer timer_;
    qint64 startMs_ = 0;  // Ticker time at which `offset_` was the position
    double offset_ = 0;
    bool playing_ = false;
    bool loop_ = false;
    std::function<void()> onFinished_;
};

}  // namespace wm
