// The options screen between the title (or the chooser) and the game: how to play,
// difficulty, the game's Yes/No option and sound.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include "shell/style.h"

namespace wm {

struct GameCard;

class GameOptions : public Backdrop {
    Q_OBJECT
public:
    explicit GameOptions(QWidget* parent = nullptr);
    QSlider* SpeedBar;
    QGroupBox* Frame1;
    QGroupBox* Frame2;
    QGroupBox* Frame3;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QRadioButton* SoundONOp;
    QRadioButton* SoundOFFOp;
    QLabel* Label7;
    QPushButton* Command1;
    QPushButton* Command2;
    void continueOn();
    void goBack();

protected:
    void keyPressEvent(QKeyEvent*) override;

private:
    void leaveFor(const QString& screen);
    bool listFirst() const;  // the game picks its list before its options
    const GameCard* card_ = nullptr;
};

// The how-to text's font size: 18 below 225 characters, 14 below 350, else 12.
int HowToPointSize(int length);

}  // namespace wm
