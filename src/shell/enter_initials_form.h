// Congratulations and three bobbing letter boxes for the pupil's initials.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QVector>
#include "platform/ticker.h"

namespace wm {

class EnterInitialsForm : public QDialog {
    Q_OBJECT
public:
    explicit EnterInitialsForm(QWidget* parent = nullptr);
    QVector<QLineEdit*> letters() const { return ScoreLetter; }
    QString message() const { return Label1->text(); }
    // OK: the letters other than "-" become LastInitials.
    void confirm();

    static QString Congratulations(int rank, const QString& score);

protected:
    void resizeEvent(QResizeEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void bob();
    QLabel* Label1;
    QWidget* stage_;
    QVector<QLineEdit*> ScoreLetter;
    QVector<int> offsets_;  // twips from home, within 200
    GameTimer Timer1;
};

}  // namespace wm
