// Word Zap on its screen: the gallery drawn once, the word targets on their shelves, the panel
// with the definition, and the stars of a hit flying over it all with the ground saved under.
#pragma once

#include <QImage>
#include <QRect>
#include <QWidget>
#include <array>

#include "games/action/word_zap/word_zap_rules.h"
#include "platform/play_field.h"
#include "shell/game_frame.h"

namespace wm {

class Zap : public QWidget {
    Q_OBJECT
public:
    explicit Zap(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    PlayField* field() const { return field_; }
    zap::Gallery& gallery() { return gallery_; }
    QString defText() const { return defText_; }
    QString scoreText() const { return scoreText_; }
    QString timeText() const { return timeText_; }
    bool readyShown() const { return readyShown_; }
    QRect readyRect() const;
    QRect targetRect(int k) const;
    void SetupGame();
    void clickAt(const QPoint& logical);  // a click on the field
    void starTick();                      // StarTimer

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QImage backPicture() const;
    void drawTarget(int k);
    void drawPanel();
    void eraseStars();
    void drawStars();
    void startPlay();
    void dealRound();
    void timeTick();
    void endGame();
    void handOff();

    GameFrame frame_;
    PlayField* field_;
    zap::Gallery gallery_;
    std::array<QImage, 5> star_;
    std::array<FieldSprite, zap::kStars> starSprites_;
    std::array<QRect, zap::kTargets> drawn_;  // where each target was last drawn
    QString defText_, scoreText_, timeText_;
    bool readyShown_ = false;
    GameTimer& Timer2;
    GameTimer& TimeTimer;
    GameTimer& StarTimer;
};

}  // namespace wm
