// Flash cards: one side of the card is covered; the pupil thinks, uncovers it, and goes on.
// No score is kept.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include "games/study/flash_cards/flash_card_rules.h"
#include "platform/movie.h"
#include "shell/game_frame.h"

class QSvgRenderer;

namespace wm {

class FlashCardForm : public QWidget {
    Q_OBJECT
public:
    explicit FlashCardForm(QWidget* parent = nullptr);

    enum class Cover { Covering, Opening, Gone };
    Cover coverState() const;
    GameFrame& frame() { return frame_; }
    const flash::Deck& deck() const { return deck_; }

    QLabel* TheWord;
    QLabel* TheDefinition;
    Movie* MovieBox;
    QPushButton* Gimme;
    QFrame* Frame1;
    QPushButton* Label2;
    QFrame* Frame2;
    QPushButton* backlabel;
    QScrollBar* CardScroll;
    QLabel* Label1;
    QLabel* total_;
    QToolButton* SayButton;  // the speaker: says the side that is showing

    // The side that is showing: the meaning while the word is covered, then the word the
    // cover opened on.
    Spoken showingSide() const;

    void nextCard();
    void previousCard();
    void gimme();

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void setup();
    void showCard();  // the picked card's texts, the position line, a fresh cover
    void showView();
    void fitFaces();
    void placeSpeaker();
    void scrolled(int value);

    GameFrame frame_;
    GameTimer& Timer1;
    flash::Deck deck_;
    bool transparent_ = false;  // the cover's window mode: opening once set
    bool following_ = false;    // the scroll bar is being moved by the program
    QSvgRenderer* back_;
    QSvgRenderer* card_;
};

}  // namespace wm
