// Toad Race: type the word over the pond to hop your toad from pad to pad; the first toad home
// across twelve pads wins.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "games/action/toad_race/toad_race_pond.h"
#include "games/action/toad_race/toad_race_rules.h"
#include "shell/game_frame.h"

namespace wm {

class ToadRace : public QWidget {
    Q_OBJECT
public:
    static constexpr int kReadyMs = 1400;   // "Ready..." before the toads may go
    static constexpr int kGoShownMs = 900;  // "Go!" stays this long
    static constexpr int kCheerMs = 1900;   // the winner's moment before the end boxes

    explicit ToadRace(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const toad_race::Race& race() const { return race_; }
    Pond* pond() const { return pond_; }
    QLineEdit* typingBox() const { return Text1; }
    void SetupGame();
    // One frame of the race (Timer1): the computer toads' clocks and the pond's animation.
    // The benchmark calls it directly.
    void raceTick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void go();
    void enterWord();
    void showWord();
    void showProgress();
    void markWrong(bool wrong);
    void homeRun();
    void afterHome();

    GameFrame frame_;
    Pond* pond_;
    QLabel* Label1;  // the word on the sign
    QLabel* Label2;  // its meaning
    QLabel* Label3;  // what to do
    QLabel* LevelLabel;
    QLabel* PadsLabel;
    QLineEdit* Text1;  // the typing box
    GameTimer& Timer1;
    GameTimer& Timer2;
    GameTimer& Timer3;
    toad_race::Race race_;
    qint64 lastTick_ = 0;
    qint64 goAt_ = -1;
    int endStage_ = 0;  // 0 racing, 1 the last hop in the air, 2 the winner's moment
};

}  // namespace wm
