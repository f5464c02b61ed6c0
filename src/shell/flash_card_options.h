// Flash cards' own options, before the common options screen: the order of the cards and which
// side is shown. Escape here ends the whole program, after asking.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "shell/style.h"

namespace wm {

class FlashCardOptions : public Backdrop {
    Q_OBJECT
public:
    explicit FlashCardOptions(QWidget* parent = nullptr);
    QRadioButton* Option1;  // alphabetical
    QRadioButton* Option2;  // alphabetical from a letter
    QRadioButton* Option3;  // random
    QRadioButton* Option4;
    QRadioButton* Option6;
    QLineEdit* Letter;
    QPushButton* Command1;
    QPushButton* Command2;
    void continueOn();
    void goBack();

protected:
    void keyPressEvent(QKeyEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int mode_ = 1;
};

}  // namespace wm
