#include "games/guess/bugspray/bugspray_screen.h"

#include <QTimer>
#include <memory>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace {
GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.foreignKey = "bugspray";
    return menu;
}
bool soundOn() {
    return Shared().SoundOn == kTrue;
}
}  // namespace

BugSprayForm::BugSprayForm(QWidget* parent)
    : GuessScreen("images/hangback.svg", menuNames(), parent) {
    setWindowTitle("Bug Spray!");
    // No background music in this game.
    frame_.setMusic(MusicKind::None);
    MovieBoxBack = new Movie(this);
    MovieBoxBack->setObjectName("MovieBoxBack");
    MovieBox = new Movie(this);
    MovieBox->setObjectName("MovieBox");
    MovieBoxFront = new Movie(this);
    MovieBoxFront->setObjectName("MovieBoxFront");
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

bool BugSprayForm::keysHeld() const {
    return MovieBox->isPlaying() || MovieBoxFront->isPlaying();
}

void BugSprayForm::roundStarted() {
    MovieBoxFront->load({});
    MovieBoxBack->load("bugback");
    MovieBoxBack->play(true);
    MovieBox->load("bugintro");
    MovieBox->play();
    sound().effect("bugintro.wav");
}

void BugSprayForm::playHit() {
    if (soundOn()) sound().effect(toQ(bugspray::goodSound(TheRng())));
}

void BugSprayForm::playMiss(int misses) {
    const auto step = bugspray::wrongGuessStep(Shared().Difficulty, misses);
    if (step.groups.empty()) return;
    if (soundOn()) sound().effect(toQ(bugspray::badSound(misses, step.lost, TheRng())));
    playGroups(step.groups, step.lost);
}

// The clips of a group start together; the next group waits for all of them.
void BugSprayForm::playGroups(std::vector<bugspray::Clip> groups, bool lost) {
    if (groups.empty()) return;
    const bugspray::Clip clip = groups.front();
    groups.erase(groups.begin());
    std::function<void()> then;
    if (!groups.empty()) {
        then = [this, groups, lost] { playGroups(groups, lost); };
    } else if (lost) {
        then = [this] {
            frame_.askTryAgain(toQ(bugspray::lostText(Shared().TheWord)), "Try Again?");
        };
    }
    auto pending = std::make_shared<int>(clip.bug.empty() ? 1 : 2);
    auto oneEnded = frame_.later([pending, then] {
        if (--*pending == 0 && then) then();
    });
    MovieBoxFront->load(toQ(clip.spray));
    if (!clip.bug.empty()) MovieBox->load(toQ(clip.bug));
    MovieBoxFront->play(false, oneEnded);
    if (!clip.bug.empty()) MovieBox->play(false, oneEnded);
}

void BugSprayForm::playWin() {
    MovieBox->load("bugwin");
    MovieBox->play(false, frame_.later([this] { frame_.wonGame(); }));
    sound().effect("bugbye.wav");
}

QRect BugSprayForm::pictureRect() const {
    const int w = width(), h = height();
    const int pw = w * 8 / 10;
    const int ph = std::min(pw / 2, h * 52 / 100);
    return QRect(w / 10, h / 5, pw, ph);
}

void BugSprayForm::placePictures() {
    const QRect r = pictureRect();
    for (Movie* m : {MovieBoxBack, MovieBox, MovieBoxFront}) m->setGeometry(r);
    MovieBox->raise();
    MovieBoxFront->raise();
}

WM_REGISTER_GAME("Bug Spray", BugSprayForm, "images/bugspray.svg", "images/hangback.svg",
                 "sounds/bugbad1.wav", "sounds/bugbye.wav", "sounds/bugdead.wav",
                 "sounds/bugintro.wav", "sounds/buggood1.wav", "sounds/buggood2.wav",
                 "sounds/buggood3.wav", "sounds/buggood4.wav", "sounds/bugbad2.wav",
                 "sounds/bugbad3.wav", "sounds/bugbad4.wav");

}  // namespace wm
