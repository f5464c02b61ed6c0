// The stored sound default, and which games the title shows at what size. Both count from the
// next start.
#pragma once

#include <QDialog>

class QCheckBox;
class QListWidget;
class QPushButton;
class QSlider;
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

// Whether games may say words aloud, and how fast. Counts at once, and is kept in the
// settings file behind the lines of the sound default, password and paths.
class SpeechOptions : public QDialog {
    Q_OBJECT
public:
    explicit SpeechOptions(QWidget* parent = nullptr);
    QCheckBox* speechOn() const { return SpeechOn; }
    QSlider* rate() const { return RateSlider; }
    QPushButton* tryIt() const { return Command3; }
    void save();  // Command1

private:
    QCheckBox* SpeechOn;
    QSlider* RateSlider;
    QPushButton* Command3;  // Try It
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
