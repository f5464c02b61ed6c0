#include "games/guess/hangman/hangman_screen.h"

#include <QTimer>

#include "core/shared_state.h"
#include "games/guess/hangman/hangman_rules.h"
#include "platform/screen_metrics.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace {
GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.foreignKey = "hangman";
    return menu;
}
}  // namespace

HangMan::HangMan(QWidget* parent)
    : GuessScreen("images/hangback.svg", menuNames(), parent),
      Timer1(frame_.timer(
          "Timer1", 1,
          [this] {
              frame_.startMusic();
              Label3->hide();
          },
          true)) {
    setWindowTitle("Hangman!");
    frame_.setMusic(MusicKind::Shared, "hangman.mid");

    MovieBoxFront = new Movie(this);
    MovieBoxFront->setObjectName("MovieBoxFront");
    MovieBoxFront->hide();

    Label3 = new QLabel("Please Wait...", this);
    Label3->setObjectName("Label3");
    Label3->setFont(ScreenFont(28, true));
    Label3->setStyleSheet(
        "color: white; background: rgba(20, 50, 90, 220); border-radius: 18px;"
        " padding: 14px 40px;");
    Label3->setAlignment(Qt::AlignCenter);

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

bool HangMan::keysHeld() const {
    return Label3->isVisible() || MovieBoxFront->isPlaying();
}

void HangMan::roundStarted() {
    MovieBoxFront->hide();
    MovieBoxFront->load({});
    Label3->show();
    Label3->raise();
    Timer1.start();
}

void HangMan::playMiss(int misses) {
    MovieBoxFront->show();
    const auto step = hangman::wrongGuessStep(Shared().Difficulty, misses);
    playClips(step.clips, step.lost);
}

// Each clip waits for the one before; the last of a step stays on the screen, and the round
// is lost only once the end clip has played.
void HangMan::playClips(std::vector<std::string> clips, bool lost) {
    if (clips.empty()) return;
    const QString first = toQ(clips.front());
    clips.erase(clips.begin());
    std::function<void()> next;
    if (!clips.empty()) {
        next = frame_.later([this, clips, lost] { playClips(clips, lost); });
    } else if (lost) {
        next = frame_.later(
            [this] { frame_.askTryAgain(toQ(hangman::lostText(Shared().TheWord)), "Try Again?"); });
    }
    MovieBoxFront->load(first);
    MovieBoxFront->play(false, next);
}

void HangMan::playWin() {
    MovieBoxFront->show();
    MovieBoxFront->load("hangwin");
    MovieBoxFront->play(false, frame_.later([this] { frame_.wonGame(); }));
}

QRect HangMan::pictureRect() const {
    const int menuH = frame_.menuHeight();
    const int innerW = width(), innerH = height() - menuH;
    const int w = innerW / 2, h = int(w * 0.8);
    // Kept to the screen on wide, short displays: the word still needs its row below.
    const int maxH = int(innerH * 0.62);
    const int hh = std::min(h, maxH), ww = std::min(w, int(hh / 0.8));
    return QRect((innerW - ww) / 2, menuH + int(innerH * 0.15) - (h - hh) / 4, ww, hh);
}

void HangMan::placePictures() {
    MovieBoxFront->setGeometry(pictureRect());
    Label3->adjustSize();
    Label3->move((width() - Label3->width()) / 2, (height() - Label3->height()) / 2);
    Label3->raise();
}

WM_REGISTER_GAME("HangMan", HangMan, "images/hangman.svg", "images/hangback.svg",
                 "sounds/hangman.mid");

}  // namespace wm
