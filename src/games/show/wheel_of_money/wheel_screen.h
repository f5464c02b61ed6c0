// Wheel of Money: the game show. The wheel, the host's panel with the one big button, the three
// mini-game frames and the animations, all drawn from the rules' state.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSvgRenderer>
#include <array>

#include "games/show/wheel_of_money/wheel_rules.h"
#include "shell/game_frame.h"

namespace wm {

class Movie;

// The oval marquee the slots stand on: bulbs chase round its rim while the wheel runs.
class WheelBoard : public QWidget {
public:
    explicit WheelBoard(QWidget* parent);
    double phase = 0;  // the chase of the bulbs
    bool running = false;

protected:
    void paintEvent(QPaintEvent*) override;
};

// The host's panel: the presenter beside what he says.
class HostPanel : public QWidget {
public:
    explicit HostPanel(QWidget* parent);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QSvgRenderer host_;
};

class GameShowForm : public QWidget {
    Q_OBJECT
public:
    explicit GameShowForm(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const wheel::WheelState& state() const { return w_; }
    QPushButton* command() const { return Command1; }
    QLineEdit* answerBox() const { return Text1; }
    Movie* movieScreen() const { return MovieScreen; }
    QLabel* choice(int i) const { return Label9[i]; }
    QLabel* tile(int i) const { return LLabel[i]; }
    void clickCommand();
    void clickChoice(int i);
    void clickTile(int i);

protected:
    void keyPressEvent(QKeyEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetupGame();
    void showState();
    void layOut();
    void stepWheel();
    void flash();
    void startSlot();
    void countDown();
    void endGame();
    void playShow(const QString& name);
    void afterVerdict(const wheel::Verdict& v);
    QLabel* makeLabel(QWidget* parent, const QString& name, int points, bool bold = true);

    GameFrame frame_;
    wheel::WheelState w_;
    QSvgRenderer back_;
    QPixmap backCache_;
    QLabel* HeadLabel;
    QLabel* SpinsLabel;
    QLabel* PrizeLabel;
    HostPanel* DirectFrame;
    QLabel* Label1;
    QPushButton* Command1;
    WheelBoard* WheelFrame;
    std::array<QLabel*, wheel::kSlots> WheelLabel{};
    std::array<QLabel*, wheel::kSlots> Shape1{};
    QLabel* Label2;
    Movie* MovieScreen;
    QWidget* TypeFrame;
    QLabel* Label3;
    QLineEdit* Text1;
    QLabel* Label4;
    QLabel* Label5;
    QWidget* MultFrame;
    QLabel* Label8;
    std::array<QLabel*, wheel::kChoices> Label9{};
    QLabel* Label7;
    QLabel* Label6;
    QWidget* ClickFrame;
    QLabel* Label12;
    std::array<QLabel*, wheel::kTiles> LLabel{};
    QLabel* Label11;
    QLabel* Label10;
    GameTimer* Timer1;
    GameTimer* Timer2;
    GameTimer* Timer4;
};

void RegisterWheelScenes();

}  // namespace wm
