// Slot Machine's picture: the arcade at night, the machine with its marquee of bulbs, the three
// reels rolling behind their glass, the lever, the coin tray, and the moments of the game (a pull,
// a reel settling, a right word glowing, coins flying to the purse, the jackpot's lights). It moves
// on the game clock; at rest nothing is painted again.
#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QRandomGenerator>
#include <QWidget>
#include <map>
#include <vector>

#include "games/show/slot_machine/slot_machine_rules.h"

namespace wm {

class SlotScene : public QWidget {
    Q_OBJECT
public:
    enum class Mood { Plain, Good, Bad };

    SlotScene(const slot_machine::Game& game, QWidget* parent = nullptr);

    // The machine laid out in the space below `top` (the menu).
    void layOut(int top);
    QRect reelRect(int i) const { return reels_[i]; }
    QRect stopRect(int i) const { return stops_[i]; }
    QRect leverRect() const { return lever_; }
    QRect definitionRect() const { return definition_; }
    QRect promptRect() const { return prompt_; }
    QRect purseRect() const { return purse_; }
    QRect countRect() const { return count_; }

    // A new definition's strips: the word pictures are made afresh.
    void newStrips();
    void pulled();
    void stopped(int reel, bool right);
    void paid(int reel, int coins);
    void jackpot();
    void banner(const QString& text, Mood mood = Mood::Plain);
    QString bannerText() const { return banner_; }

    bool busy() const;
    void step(qint64 now);
    // Everything, as one frame of the benchmark paints it.
    void paintAll(QPainter& p);

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    // Snow and sparks are scattered by the scene's own dice, so that a scene drawn from its start
    // looks the same each time.
    QRandomGenerator dice_{20261124u};
    struct Coin {
        QPointF from, to;
        qint64 start;
        int ms;
        double arc;
    };
    void composeBack();
    QPixmap sprite(const char* id, QSize size);
    const QPixmap& wordPicture(int entry);
    void paintReel(QPainter& p, int i);
    void paintLever(QPainter& p);
    void paintBulbs(QPainter& p);
    void paintCoins(QPainter& p);
    void paintBanner(QPainter& p);
    QRect coinRect(const Coin& c, qint64 at) const;
    QRegion dirty() const;

    const slot_machine::Game& game_;
    QSvgRenderer back_;
    QSvgRenderer art_;
    QPixmap backRaw_, backPic_, reelFace_, reelGlass_, coin_, lamp_, lampLit_;
    std::map<int, QPixmap> words_;
    QRect cabinet_, marquee_, window_, reels_[slot_machine::kReels], stops_[slot_machine::kReels];
    QRect lever_, definition_, prompt_, purse_, count_, tray_;
    std::vector<QPointF> bulbs_;
    std::vector<Coin> coins_;
    qint64 now_ = 0, pullAt_ = -100000, jackpotAt_ = -100000,
           bannerAt_ = -100000;
    qint64 stopAt_[slot_machine::kReels] = {-100000, -100000, -100000};
    bool right_[slot_machine::kReels] = {};
    QString banner_;
    Mood mood_ = Mood::Plain;
    int top_ = 0;
};

}  // namespace wm
