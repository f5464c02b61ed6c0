#include "platform/movie.h"

#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>

namespace wm {

namespace {

std::map<QString, SceneFactory>& registry() {
    static std::map<QString, SceneFactory> scenes;
    return scenes;
}

// Screens ask for the design's file names: "wmsplash.swf", "\movies\WMSPLASH.SWF".
QString sceneKey(const QString& name) {
    QString key = name.trimmed();
    key.replace(QLatin1Char('\\'), QLatin1Char('/'));
    key = key.mid(key.lastIndexOf(QLatin1Char('/')) + 1).toLower();
    if (key.endsWith(QLatin1String(".swf"))) key.chop(4);
    return key;
}

SceneFinder& finder() {
    static SceneFinder find;
    return find;
}

constexpr int kFrameMs = 33;  // about 30 frames a second

}  // namespace

void SetSceneFinder(SceneFinder find) {
    finder() = std::move(find);
}

void RegisterScene(const QString& name, SceneFactory factory) {
    // Built-ins first, so that a scene registered by the caller replaces them and not the reverse.
    RegisterBuiltInScenes();
    registry()[sceneKey(name)] = std::move(factory);
}

std::unique_ptr<MovieScene> MakeScene(const QString& name) {
    RegisterBuiltInScenes();
    const QString key = sceneKey(name);
    const auto it = registry().find(key);
    if (it == registry().end() || !it->second)
        return finder() && !key.isEmpty() ? finder()(key) : nullptr;
    return it->second();
}

Movie::Movie(QWidget* parent) : QWidget(parent) {
    timer_.setSingleShot(true);
    connect(&timer_, &GameTimer::timeout, this, &Movie::tick);
}

Movie::~Movie() = default;

bool Movie::load(const QString& name) {
    // A new film ends the old one without its continuation: the screen moved on.
    timer_.stop();
    playing_ = false;
    onFinished_ = {};
    offset_ = 0;
    scene_ = MakeScene(name);
    update();
    return scene_ != nullptr;
}

void Movie::play(bool loop, std::function<void()> onFinished) {
    loop_ = loop;
    onFinished_ = std::move(onFinished);
    offset_ = 0;
    playing_ = true;
    startMs_ = Ticker::get().now();
    scheduleTick();
    update();
    // Nothing loaded: the pass ends on the first tick, so a screen waiting for it goes on.
}

void Movie::stop() {
    if (!playing_) return;
    offset_ = position();
    if (endPass()) update();
}

bool Movie::endPass() {
    playing_ = false;
    timer_.stop();
    auto done = std::move(onFinished_);
    onFinished_ = {};
    QPointer<Movie> self(this);
    emit finished();
    // The continuation may close the screen that owns this widget.
    if (done) done();
    return !self.isNull();
}

bool Movie::isPlaying() const {
    return playing_;
}

double Movie::position() const {
    if (!playing_) return offset_;
    return offset_ + double(Ticker::get().now() - startMs_) / 1000.0;
}

void Movie::advance(double seconds) {
    if (playing_) {
        offset_ += seconds;
        tick();
    } else {
        const double length = scene_ ? scene_->duration() : 0.0;
        offset_ = std::clamp(offset_ + seconds, 0.0, length);
        update();
    }
}

void Movie::tick() {
    if (!playing_) return;
    const double length = scene_ ? scene_->duration() : 0.0;
    const double now = position();
    if (now >= length - 1e-9) {  // the exact last frame counts as the end
        if (loop_ && length > 0) {
            offset_ = std::fmod(now, length);
            startMs_ = Ticker::get().now();
        } else {
            offset_ = length;  // rest on the last frame
            if (!endPass()) return;
            update();
            return;
        }
    }
    scheduleTick();
    update();
}

void Movie::scheduleTick() {
    const double length = scene_ ? scene_->duration() : 0.0;
    const double left = std::max(0.0, length - position());
    // Exact, not paced: the last frame lands on the end of the pass, so a continuation waiting
    // for a film of d seconds runs after exactly d seconds of the clock.
    timer_.startExact(int(std::min<double>(kFrameMs, std::ceil(left * 1000.0 - 1e-6))));
}

void Movie::paintEvent(QPaintEvent*) {
    if (!scene_) return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                           QPainter::TextAntialiasing);
    const double t = std::clamp(position(), 0.0, scene_->duration());
    scene_->paint(painter, QRectF(rect()), t);
}

}  // namespace wm
