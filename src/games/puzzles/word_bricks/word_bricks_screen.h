// Word Bricks: the words of the level lie broken into bricks on the building site's ground.
// Drag each brick onto the girder of its word; a full girder that spells its word lights up.
#pragma once

#include <QLabel>
#include <vector>

#include "games/puzzles/word_bricks/word_bricks_rules.h"
#include "games/puzzles/word_bricks/word_bricks_scene.h"
#include "shell/game_frame.h"

namespace wm {

class WordBricks : public QWidget {
    Q_OBJECT
public:
    explicit WordBricks(QWidget* parent = nullptr);

    // How long the bricks take to tip out before play, a brick to slide into place, a wrong
    // girder to shake, and the finished site to show before the end.
    static constexpr int kTipMs = 1500;
    static constexpr int kSlideMs = 140;
    static constexpr int kShakeMs = 450;
    static constexpr int kEndMs = 1600;

    GameFrame& frame() { return frame_; }
    const word_bricks::Game& game() const { return game_; }
    bool playing() const { return playing_; }
    // Where things are on the screen now.
    QRectF brickRect(int i) const;
    QRect lineRect(int line) const;  // the girder's letter cells
    QRect signRect(int line) const;
    const word_bricks::ClueText& clueText(int line) const { return clues_[line]; }
    bool animating() const;

    QLabel* ScoreLabel;
    QLabel* WordsLabel;
    QLabel* ClockLabel;
    QLabel* Caption;  // "Here come the bricks!", "Well built!"

    void SetupGame();
    // The pointer's road: pressed, moved, released (what the mouse events call).
    void press(QPointF at);
    void moveTo(QPointF at);
    void release(QPointF at);
    // Paints the whole site as it stands now (the benchmark's frame).
    void paintSite(QPainter& p, const QRegion& region);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    struct Slide {
        QPointF from;
        qint64 start = -1;  // -1: at rest
        int delay = 0;      // shakes (or waits to fall) this long first
        int ms = 0;
        bool shake = false;
    };
    void layOut();
    void renderBackdrop();
    void beginPlay();
    void showStatus();
    void animate();
    void slide(int brick, QPointF from, int delay, int ms, bool shake = false);
    void settle(const word_bricks::DropResult& r, int line);
    void raise(int brick);
    QPointF restingAt(int brick) const;  // where its place is, without the animation
    QPointF homeOf(int brick) const;
    void setHome(int brick, QPointF topLeft);
    QSizeF brickSize(int brick) const;
    int lineAt(QPointF centre) const;
    QRectF groundRect() const;

    GameFrame frame_;
    GameTimer& Timer1;  // the clock, once a second
    GameTimer& Timer2;  // animation frames
    GameTimer& Timer3;  // the bricks have landed: play
    GameTimer& Timer4;  // the finished site shows, then the end
    word_bricks::Game game_;
    word_bricks::SiteArt art_;
    std::vector<word_bricks::ClueText> clues_;
    std::vector<QPointF> home_;   // where each brick lies on the ground, as shares of it
    std::vector<Slide> slides_;
    std::vector<int> order_;      // painting order, the top brick last
    std::vector<qint64> builtAt_; // when each girder lit up (-1: not yet)
    std::vector<QRectF> shownAt_; // where each moving brick was painted last
    // The site, the signs with their clues and the girders: all that stands still.
    QPixmap backdrop_;
    bool backdropStale_ = true;
    bool playing_ = false;
    int dragged_ = -1;
    QPointF grab_;      // the pointer's offset from the dragged brick's corner
    QPointF dragAt_;    // the dragged brick's corner
    double brickH_ = 44, cell_ = 31, rowH_ = 56, stripX_ = 0, linesTop_ = 0;
};

}  // namespace wm
