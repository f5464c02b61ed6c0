// Removes a list from the list file and from every category, after an in-screen question.
#pragma once

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

namespace wm {

class DeleteList : public QDialog {
    Q_OBJECT
public:
    explicit DeleteList(QWidget* parent = nullptr);
    QListWidget* lists() const { return TheLists; }
    void deleteClicked();   // Command1
    void answer(bool yes);  // the Yes and No buttons of the question
    bool asking() const;

private:
    void fillNames();

    QListWidget* TheLists;
    QPushButton* Command1;
    QPushButton* Command2;
    QLabel* Sure;
    QPushButton* Yes;
    QPushButton* No;
    std::string pending_;  // the name asked about
};

}  // namespace wm
