// A list held in memory while the teacher changes it; a save moves it, sorted, to the end of
// the file.
#pragma once

#include <vector>

#include "shell/style.h"
#include "teacher/list_rules.h"

class QLabel;
class QListWidget;
class QToolBar;

namespace wm {

class EditList : public Backdrop {
    Q_OBJECT
public:
    explicit EditList(QWidget* parent = nullptr);
    QListWidget* words() const { return WordList; }
    QString caption() const;
    QString definition() const;
    QString totalText() const;
    const std::vector<WordPair>& pairs() const { return pairs_; }
    void select(int row);

    void addWord();
    void deleteWord();
    void editWord();
    void renameList();
    void saveAndQuit();
    void quitScreen();

private:
protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill(int selectRow);
    void refreshTotal();
    int chosen() const;

    QToolBar* Toolbar1;
    QLabel* nameLabel_;
    QListWidget* WordList;
    QLabel* DefLabel;
    QLabel* TotalLabel;
    std::vector<WordPair> pairs_;  // WordList and DefList, kept in the list box's order
    std::string storedName_;       // the name line as found in the file
    std::string caption_;          // the name line as it will be written
    bool wordsOnly_ = false;
};

}  // namespace wm
