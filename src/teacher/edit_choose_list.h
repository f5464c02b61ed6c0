// Picks the list to view or edit.
#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;

namespace wm {

class EditChooseList : public QDialog {
    Q_OBJECT
public:
    explicit EditChooseList(QWidget* parent = nullptr);
    QListWidget* lists() const { return TheLists; }
    void choose();  // Command1

private:
    QListWidget* TheLists;
    QPushButton* Command1;
};

}  // namespace wm
