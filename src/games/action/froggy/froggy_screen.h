// Froggy on its screen: the lanes drawn once, cars and logs moved by block copies with the
// ground saved under each, the frog drawn through its mask.
#pragma once

#include <QImage>
#include <QWidget>
#include <array>

#include "games/action/froggy/froggy_rules.h"
#include "platform/play_field.h"
#include "shell/game_frame.h"

namespace wm {

class FroggyForm : public QWidget {
    Q_OBJECT
public:
    explicit FroggyForm(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    PlayField* field() const { return field_; }
    const froggy::Board& board() const { return board_; }
    froggy::Board& board() { return board_; }
    void SetupGame();
    void carTick();  // CarTimer
    void logTick();  // LogTimer

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void loadPictures();
    QImage backPicture() const;
    void drawCars();
    void drawLogs();
    void eraseLogs();
    void drawFrog();
    void rings(const QColor& colour, int step);
    void squashed();
    void drowned();
    void won();
    void wrongWord();

    GameFrame frame_;
    PlayField* field_;
    froggy::Board board_;
    QImage carLeft_, carRight_, log_, stone_;
    std::array<QImage, 4> frog_;
    std::array<FieldSprite, 7> rightCars_, leftCars_, logs_;
    FieldSprite frogSprite_;
    GameTimer& CarTimer;
    GameTimer& LogTimer;
    GameTimer& Timer1;
};

}  // namespace wm
