// Freeze-It's picture: the winter lake, the word's ice blocks with their thaw, and the moments
// of the game (the freeze, a right and a wrong answer, a melted word, the end of a game).
// Everything moves on the game clock; only what changed is repainted.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QSvgRenderer>
#include <QRandomGenerator>
#include <QWidget>
#include <map>
#include <vector>

#include "games/guess/freeze_it/freeze_it_rules.h"

namespace wm {

class FreezeScene : public QWidget {
    Q_OBJECT
public:
    enum class Mood { Plain, Good, Bad, Cold };

    explicit FreezeScene(QWidget* parent = nullptr);

    // A new word stands: every block frozen solid, no moment running.
    void newWord(const std::vector<freeze_it::Block>& blocks);
    void thawed(int block);
    void frozen(bool on);
    bool isFrozen() const { return frozen_; }
    void right();
    void wrong();
    void melted();
    void gameWon();
    void gameLost();
    // A short line in a frosted band over the blocks; empty hides it.
    void banner(const QString& text, Mood mood = Mood::Plain);
    QString bannerText() const { return banner_; }

    // Where the blocks stand, in this widget: the band the screen keeps free for them.
    void setBlockArea(const QRect& area);
    // The frosted panels behind the screen's labels, drawn as part of the picture.
    void setPanels(const std::vector<QRect>& panels);
    QRect blockRect(int i) const;
    int blockCount() const { return int(blocks_.size()); }
    // One frame of the moving things (the clock's time in ms).
    void step(qint64 now);

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    // Snow and sparks are scattered by the scene's own dice, so that a scene drawn from its start
    // looks the same each time.
    QRandomGenerator dice_{20261124u};
    struct Bit {  // a shard, a sparkle or a drop
        double x, y, vx, vy, spin, angle;
        qint64 born;
        int life;
        int kind;  // 0 shard, 1 sparkle, 2 drop
        QRect last;
    };
    struct Flake {
        double x, y, speed, drift;
        int size;
        QRect last;
    };
    void layout();
    void renderSprites();
    QPixmap sprite(const char* id, QSize size);
    void paintBlock(QPainter& p, int i, qint64 now);
    void paintLetterBlock(QPainter& p, const QRect& r, char letter, int ink, double strength) const;
    void composeBack();
    void paintBanner(QPainter& p) const;
    QRect blocksBounds() const;
    QRect bannerRect() const;
    void burst(int kind, int count, qint64 now);
    void dirty(const QRect& r);
    void dirtyBlocks();
    void renderBanner();

    QSvgRenderer back_;
    QSvgRenderer art_;
    QPixmap backRaw_;  // the scene alone
    QPixmap backPic_;  // with the panels
    std::vector<QRect> panels_;
    std::map<int, QPixmap> settled_;  // blocks at rest, by ink and letter
    QPixmap bannerPic_;
    std::vector<QPixmap> shardTurns_;
    QPixmap ice_, glass_, frost_, puddle_, drop_, shard_, sparkle_, flake_;
    std::vector<freeze_it::Block> blocks_;
    std::vector<qint64> thawAt_;
    std::vector<QRect> rects_;
    std::vector<Bit> bits_;
    std::vector<Flake> flakes_;
    QRect area_;
    QString banner_;
    Mood mood_ = Mood::Plain;
    qint64 bannerAt_ = -100000;
    qint64 freezeAt_ = -100000;
    qint64 rightAt_ = -100000;
    qint64 wrongAt_ = -100000;
    qint64 endAt_ = -100000;
    qint64 now_ = 0;
    bool frozen_ = false;
    bool right_ = false;
    bool melted_ = false;
    int side_ = 0;  // a block's width
    QRect banRect_;
};

}  // namespace wm
