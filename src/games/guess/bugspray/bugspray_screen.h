// Bug Spray: the letter-guessing game where each wrong guess brings a spray can nearer a bug.
#pragma once

#include "games/guess/bugspray/bugspray_rules.h"
#include "games/guess/common/guess_screen.h"
#include "platform/movie.h"

namespace wm {

class BugSprayForm : public GuessScreen {
    Q_OBJECT
public:
    explicit BugSprayForm(QWidget* parent = nullptr);
    Movie* sprayPlayer() const { return MovieBoxFront; }
    Movie* bugPlayer() const { return MovieBox; }

protected:
    bool keysHeld() const override;
    void roundStarted() override;
    void playMiss(int misses) override;
    void playHit() override;
    void playWin() override;
    QRect pictureRect() const override;
    void placePictures() override;

private:
    void playGroups(std::vector<bugspray::Clip> groups, bool lost);

    Movie* MovieBoxBack;
    Movie* MovieBox;
    Movie* MovieBoxFront;
};

}  // namespace wm
