// The two small boxes of the list editor: change one pair, or add a new one.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

namespace wm {

// EditWord: OK stores both boxes into the shared TheWord and TheMeaning.
// AddWord: OK with a box empty beeps and stays.
class WordBox : public QDialog {
    Q_OBJECT
public:
    enum Kind { Edit, Add };
    WordBox(Kind kind, QWidget* parent = nullptr);
    QLineEdit* word() const { return word_; }
    QLineEdit* meaning() const { return meaning_; }
    void confirm();
    void foreign();  // Command3: the palette for either box

private:
    Kind kind_;
    QLineEdit* word_;
    QLineEdit* meaning_;
};

}  // namespace wm
