// A game's table of 50 ranks. Opened from the title it browses the shown games.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVector>

namespace wm {

class HighScoreForm : public QDialog {
    Q_OBJECT
public:
    explicit HighScoreForm(QWidget* parent = nullptr);
    QString game() const { return game_; }
    QString tableText() const;  // the ranks as shown, one line each
    void nextGame();
    void previousGame();

    // One line of the table: "#" + rank to column 13, initials to column 27, then the score.
    static QString RankLine(int rank, const QString& initials, const QString& score);

protected:
    void closeEvent(QCloseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void showGame(const QString& game);
    QLabel* heading_;
    QWidget* left_;   // ranks 1 to 25
    QWidget* right_;  // ranks 26 to 50
    QVector<QLabel*> rankLabels_;
    QStringList lines_;     // the table as shown, as plain text
    QPushButton* Command1;  // OK
    QPushButton* Command2;  // Next Game>
    QPushButton* Command3;  // <Previous Game
    QString game_;
    bool closing_ = false;
};

}  // namespace wm
