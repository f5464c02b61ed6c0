// The palette of accented characters (codes 191 to 255) for typing foreign words.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVector>

class QLineEdit;

namespace wm {

class FLForm : public QDialog {
    Q_OBJECT
public:
    explicit FLForm(QWidget* parent = nullptr);
    QVector<QLabel*> cells() const { return Label1; }
    void pickCell(int index);
    int picked() const { return picked_; }
    // FLButton 0 or 1: nothing without a picked cell; else ForeignChar is set and the box closes.
    void insert(int button);
    int button() const { return button_; }  // the FLButton that closed the box, or -1

    // Puts `character` at the caret of a text box: before the selection start, keeping the rest,
    // then the caret goes to the end of the text.
    static void InsertAt(QLineEdit* box, const QString& character);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QVector<QLabel*> Label1;  // 0..89
    QPushButton* FLButton[2];
    QPushButton* Command1;
    int picked_ = -1;
    int button_ = -1;
};

}  // namespace wm
