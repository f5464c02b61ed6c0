// HangMan: guess the word letter by letter before the gallows picture is complete.
#pragma once

#include "games/guess/common/guess_screen.h"
#include "platform/movie.h"

namespace wm {

class HangMan : public GuessScreen {
    Q_OBJECT
public:
    explicit HangMan(QWidget* parent = nullptr);
    Movie* movie() const { return MovieBoxFront; }
    bool waiting() const { return Label3->isVisible(); }

protected:
    bool keysHeld() const override;
    void roundStarted() override;
    void playMiss(int misses) override;
    void playWin() override;
    QRect pictureRect() const override;
    void placePictures() override;

private:
    void playClips(std::vector<std::string> clips, bool lost);

    QLabel* Label3;  // "Please Wait..."
    Movie* MovieBoxFront;
    GameTimer& Timer1;
};

}  // namespace wm
