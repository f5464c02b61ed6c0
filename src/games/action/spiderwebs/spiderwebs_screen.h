// Spiderwebs: a definition at the top, flies caught in a web below, each with a word. Click the
// fly whose word matches before the crawling spider reaches it; ten definitions make a game.
#pragma once

#include <QLabel>
#include <QWidget>

#include "games/action/spiderwebs/spiderwebs_rules.h"
#include "games/action/spiderwebs/spiderwebs_scene.h"
#include "shell/game_frame.h"

namespace wm {

class SpiderGame : public QWidget {
    Q_OBJECT
public:
    static constexpr int kEndMs = 2400;  // the last moment before the end boxes

    explicit SpiderGame(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const spiderwebs::Game& game() const { return game_; }
    WebScene* scene() const { return scene_; }
    void SetupGame();
    // One frame (Timer1): the spider's crawl, the pauses between definitions and the scene's
    // animation. The benchmark calls it directly.
    void tick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void picked(int fly);
    void showRound();
    void showHud();
    void endOfGame();

    GameFrame frame_;
    WebScene* scene_;
    QLabel* Label1;  // the definition
    QLabel* ScoreLabel;
    QLabel* TimeLabel;
    QLabel* RoundLabel;
    QLabel* FliesLabel;
    GameTimer& Timer1;
    GameTimer& Timer2;
    spiderwebs::Game game_;
    qint64 lastTick_ = 0;
};

}  // namespace wm
