// The stored sound default, and which games the title shows at what size. Both count from the
// next start.
#pragma once

#include <QDialog>

class QListWidget;
class QRadioButton;

namespace wm {

class SoundOptions : public QDialog {
    Q_OBJECT
public:
    explicit SoundOptions(QWidget* parent = nullptr);
    QRadioButton* on() const { return SoundOn; }
    QRadioButton* off() const { return SoundOff; }
    void save();  // Command1

private:
    QRadioButton* SoundOn;
    QRadioButton* SoundOff;
};

class EnableDisable : public QDialog {
    Q_OBJECT
public:
    explicit EnableDisable(QWidget* parent = nullptr);
    QListWidget* games() const { return List1; }
    QRadioButton* option(int i) const { return Option1[i]; }
    void apply();  // Command1

private:
    QListWidget* List1;
    QRadioButton* Option1[3];
};

}  // namespace wm
