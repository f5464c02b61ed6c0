// Asteroid Zap on its screen: the sinking wall of lettered rocks, the ship and its shots, all
// moved by block copies with the ground saved under each.
#pragma once

#include <QImage>
#include <QWidget>
#include <array>
#include <vector>

#include "games/action/asteroid_zap/asteroid_zap_rules.h"
#include "platform/key_state.h"
#include "platform/play_field.h"
#include "shell/game_frame.h"

namespace wm {

class AsteroidBlast : public QWidget {
    Q_OBJECT
public:
    explicit AsteroidBlast(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    PlayField* field() const { return field_; }
    asteroid::Round& round() { return round_; }
    QString defText() const { return defText_; }         // DefLabel, empty when hidden
    bool waitingForKey() const { return label1Shown_; }  // Label1
    void SetupGame();
    void mainTick();  // MainTimer

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void loadPictures();
    QImage backPicture() const;
    void drawRocks();
    void drawShip();
    void showDef(const QString& text);
    void endRound();
    void blastTick();
    void won();
    QPoint rockAt(int i) const;

    GameFrame frame_;
    PlayField* field_;
    KeyState keys_;
    asteroid::Round round_;
    QImage back_;
    std::array<QImage, 4> rock_;
    std::array<QImage, 8> blast_;
    std::array<QImage, 2> shot_;
    QImage ship_;
    std::array<FieldSprite, asteroid::kLetters> rockSprites_;
    std::array<FieldSprite, asteroid::kShots> shotSprites_;
    std::vector<FieldSprite> blastSprites_;
    FieldSprite shipSprite_;
    QString defText_;
    bool label1Shown_ = false;
    GameTimer& MainTimer;
    GameTimer& Timer2;
    GameTimer& Timer3;
    GameTimer& Timer1;
};

}  // namespace wm
