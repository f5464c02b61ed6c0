// Makes a new list from words picked one by one out of existing lists.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QLabel;
class QListWidget;

namespace wm {

class BuildListForm : public QDialog {
    Q_OBJECT
public:
    explicit BuildListForm(QWidget* parent = nullptr);
    QListWidget* lists() const { return TheLists; }
    QListWidget* words() const { return List2; }
    QListWidget* picked() const { return List3; }
    QString wordsCaption() const;
    QString newListCaption() const;
    void chooseList(int row);  // a click on TheLists
    void addPicked();          // Command3
    void deletePicked();       // Command4
    void save();               // Command2

private:
    QListWidget* TheLists;
    QListWidget* List2;
    QListWidget* List3;
    QLabel* wordsLabel_;
    QLabel* Label4;
    std::vector<std::string> HoldLIst;  // word and definition of each line of List3
};

}  // namespace wm
