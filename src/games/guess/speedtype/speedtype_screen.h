// Speed Type: Ready... Set... Type!!! then the word is typed against the clock.
#pragma once

#include <QLabel>
#include <QString>

#include "games/guess/speedtype/speedtype_rules.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

class SpeedType : public Backdrop {
    Q_OBJECT
public:
    explicit SpeedType(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const speedtype::SpeedRound& round() const { return round_; }
    void NewWord();
    // A key as typed, or a character from the palette: the same routine.
    void typeKey(speedtype::KeyKind kind, const QString& text = {});

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void tick();
    void finish();
    void result();
    void showLights(bool go);

    QLabel* Label1;  // the call
    QLabel* Label2;  // the word
    QLabel* Label3;  // what has been typed
    QWidget* Frame1;
    QLabel* MLabel;
    QLabel* SLabel;
    QLabel* SDLabel;
    QLabel* SL1;
    QLabel* SL2;
    GameFrame frame_;
    GameTimer& Timer1;
    speedtype::SpeedRound round_;
    QString timeText_;  // the score as the end box shows it
};

}  // namespace wm
