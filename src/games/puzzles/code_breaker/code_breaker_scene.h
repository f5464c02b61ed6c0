// Code Breaker's picture: the agent's desk at night, the coded words on paper tiles, the key
// strip of letters, and the moments of the game (a letter stamped in, a letter flying from the
// symbol that had it, a hint, a wrong full code, the code cracked, the time run out). Everything
// moves on the game clock; at rest nothing is painted again.
#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QRandomGenerator>
#include <QWidget>
#include <map>
#include <vector>

#include "games/puzzles/code_breaker/code_breaker_rules.h"

namespace wm {

class CodeScene : public QWidget {
    Q_OBJECT
public:
    enum class Mood { Plain, Good, Bad };
    static constexpr int kWaveMs = 45;  // between two tiles of the ending's wave

    CodeScene(const code_breaker::Game& game, QWidget* parent = nullptr);

    // The game's words laid out afresh, no moment running.
    void newCode();
    // Where the tiles, the line of messages and the key strip go, in this widget.
    void setAreas(const QRect& board, const QRect& band, const QRect& keys);
    // The panels behind the screen's labels, drawn as part of the picture.
    void setPanels(const std::vector<QRect>& panels);
    // The first word carries the clue: a highlighter stroke behind it.
    void markClue(bool on);

    // The letters or the selection changed: the board and the keys are painted again.
    void changed();
    void letterIn(int symbol);
    void letterMoved(int from, int to, char letter);
    void hinted(int symbol);
    void shake();
    void won();
    void lost();
    void banner(const QString& text, Mood mood = Mood::Plain);
    QString bannerText() const { return banner_; }

    const code_breaker::Layout& layout() const { return layout_; }
    QRect tileRect(int i) const;
    QRect keyRect(int k) const;  // 0..25, A..Z
    int tileAt(QPoint at) const;
    char keyAt(QPoint at) const;  // 0 when none
    bool busy() const;
    void step(qint64 now);

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    // Snow and sparks are scattered by the scene's own dice, so that a scene drawn from its start
    // looks the same each time.
    QRandomGenerator dice_{20261124u};
    struct Flight {
        QPointF from, to;
        char letter;
        qint64 start;
    };
    struct Spark {
        QPointF at, v;
        qint64 born;
        int life;
    };
    void layOutTiles();
    void renderSprites();
    void composeBack();
    QPixmap sprite(const char* id, QSize size);
    const QPixmap& glyph(char c, int ink, int px);
    void paintTile(QPainter& p, int i);
    void paintKeys(QPainter& p);
    void paintBanner(QPainter& p);
    void renderBanner();
    void burst(const QRect& r, int count);
    QRect boardBounds() const;
    void dirtyBoard();

    const code_breaker::Game& game_;
    QSvgRenderer back_;
    QSvgRenderer art_;
    QPixmap backRaw_, backPic_, bannerPic_;
    std::vector<QRect> panels_;
    QRect board_, band_, keys_, banRect_;
    code_breaker::Layout layout_;
    std::vector<QRect> rects_;
    std::map<QString, QPixmap> tilePics_;
    std::vector<QPixmap> pictures_;  // the accented letters' pictures
    std::map<int, QPixmap> glyphs_;  // letters drawn once, by ink, size and letter
    QPixmap key_, keyUsed_, sparkle_;
    std::vector<qint64> popAt_, hintAt_;
    std::vector<Flight> flights_;
    std::vector<Spark> sparks_;
    QString banner_;
    Mood mood_ = Mood::Plain;
    qint64 now_ = 0, bannerAt_ = -100000, shakeAt_ = -100000, endAt_ = -100000;
    bool won_ = false, lost_ = false, clue_ = false;
    int side_ = 0;
};

}  // namespace wm
