// Word Search: a grid of letters hiding words from the list; the pupil marks each word's letters
// in order, one word at a time, named by the word itself or by its definition.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "games/puzzles/word_search/word_search_board.h"
#include "games/puzzles/word_search/word_search_rules.h"
#include "platform/movie.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

class WordSearchForm : public Backdrop {
    Q_OBJECT
public:
    explicit WordSearchForm(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const word_search::WordSearchState& puzzle() const { return ws_; }
    WordSearchBoard* board() const { return LetterBox; }
    void NewGame();
    void clear();  // ClearButton
    void hint();   // HintButton

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void layoutBoard();
    void afterTry(word_search::TryResult result);
    void showWord();
    void showScore();
    void setTimer1(bool on);
    void setPlaying(bool on);  // the cells, the panel and the shapes shown or hidden
    void flash();
    void endGame();
    void fireworks(int left);
    void finish();

    WordSearchBoard* LetterBox;
    Panel* Frame1;
    QLabel* Directlabel;
    QLabel* Label1;
    QLabel* CardLabel;
    QScrollBar* ShowScroll;
    QLabel* WLLabel;
    QLabel* ScoreLabel;
    QLabel* TimeLabel;
    QLabel* OopsLabel;
    QPushButton* ClearButton;
    QPushButton* HintButton;
    Movie* MovieBackBox;
    Movie* FWMovie;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& FlashTimer;
    word_search::WordSearchState ws_;
};

}  // namespace wm
