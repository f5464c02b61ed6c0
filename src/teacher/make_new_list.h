// Typing the words of a new list, one pair at a time, then saving it to the end of the file.
#pragma once

#include <vector>

#include "shell/style.h"
#include "teacher/list_rules.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QToolBar;

namespace wm {

class MakeNewList : public Backdrop {
    Q_OBJECT
public:
    explicit MakeNewList(QWidget* parent = nullptr);
    QLineEdit* word() const { return TheWord; }
    QLineEdit* meaning() const { return TheMeaning; }
    QListWidget* words() const { return WordList1; }
    QString caption() const;
    QString totalText() const;
    QString numberText() const;
    const std::vector<WordPair>& pairs() const { return pairs_; }

    void addWord();  // the toolbar key
    void wordEntered();
    void meaningEntered();
    void deleteWord();
    void editWord();
    void renameList();
    void saveAndQuit();
    void quitScreen();
    void foreign();

private:
    bool tryAdd();  // the duplicate tests, then the pair goes on the list
    void addPending();
    void refreshLabels();
    void save();

    QToolBar* Toolbar1;
    QLabel* nameLabel_;
    QLineEdit* TheWord;
    QLineEdit* TheMeaning;
    QLabel* meaningLabel_;
    QListWidget* WordList1;
    QLabel* TotalWordsLabel;
    QLabel* WordLabel;
    std::vector<WordPair> pairs_;
    std::string name_;
    bool FileEmpty = false;
    bool wordsOnly_ = false;
};

}  // namespace wm
