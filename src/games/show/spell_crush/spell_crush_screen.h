// Spell Crush: four words, one misspelled; a click swings the safe over a word and drops it.
#pragma once

#include <QLabel>
#include <QSvgRenderer>
#include <array>

#include "games/show/spell_crush/spell_crush_rules.h"
#include "shell/game_frame.h"

namespace wm {

class Movie;

class SpellCrushGame : public QWidget {
    Q_OBJECT
public:
    explicit SpellCrushGame(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const spellcrush::SpellCrushState& game() const { return game_; }
    QLabel* word(int i) const { return WordLabel[i]; }
    QLabel* points() const { return PLabel; }
    // A click on a word, as the mouse gives it; ignored while the safe is on its way.
    void clickWord(int index);
    bool busy() const { return stage_ != Stage::Waiting; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Stage { Waiting, Moving, Falling, Crushing, Rising };
    void NewGame();
    void showDeal();
    void layOut();
    void moveSafe();     // Timer2
    void dropSafe();     // Timer3
    void crushWord();    // Timer4
    void risePoints();   // Timer5
    void countSecond();  // Timer1
    void endGame();
    double twip() const;  // pixels per design twip
    int safeLeftFor(int index) const;

    GameFrame frame_;
    spellcrush::SpellCrushState game_;
    std::array<QLabel*, spellcrush::kWords> WordLabel{};
    QLabel* Label1;
    QLabel* Label2;
    QLabel* Label3;
    QLabel* PLabel;
    Movie* Safe;
    QSvgRenderer safePicture_;
    QSvgRenderer robot_;
    GameTimer* Timer1;
    GameTimer* Timer2;
    GameTimer* Timer3;
    GameTimer* Timer4;
    GameTimer* Timer5;
    Stage stage_ = Stage::Waiting;
    double safeX_ = 0;  // twips: the left of the safe's rope frame
    int beamY_ = 0;     // pixels: the crane's beam, under the heading
    double dropY_ = 0;  // pixels: the top of the falling safe
    double dropSpeed_ = 0;
    int crushStep_ = 0;
    double risen_ = 0;  // twips the points label has risen
    int robotPose_ = 0;
    bool lastRight_ = false;
};

void RegisterSpellCrushScenes();

}  // namespace wm
