// The list chooser: categories, lists with their word counts, the load, and whether the game in
// hand can be played with the list.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStringList>
#include "platform/ticker.h"

#include "core/list_file.h"
#include "shell/style.h"

namespace wm {

struct GameCard;

// One filling of the box: the labelled lines, the foreign lists and the caption.
struct ListSummary {
    QStringList lines;
    std::vector<ForeignList> foreign;
    double total = 0;
    QString caption() const;
};
// Counts the lists of the file's lines; `folderList` empty with `all` true takes every list.
ListSummary SummariseLists(const std::vector<std::string>& lines, bool all,
                           const std::vector<std::string>& folderList);

class ChooseList : public Backdrop {
    Q_OBJECT
public:
    explicit ChooseList(QWidget* parent = nullptr);
    QComboBox* categories() const { return Combo1; }
    QListWidget* lists() const { return TheLists; }
    QString caption() const { return captionLabel_->text(); }
    void goBack();
    void continueOn();  // Continue>>

protected:
    void keyPressEvent(QKeyEvent*) override;

private:
    void opening();
    void fillLists();
    bool applyEligibility(const GameCard& card);

    QComboBox* Combo1;
    QListWidget* TheLists;
    QPushButton* Command1;
    QPushButton* Command2;
    QLabel* Label1;
    QLabel* Label3;
    QLabel* captionLabel_;
    GameTimer Timer1;
    std::vector<ForeignList> foreign_;
    bool filling_ = false;
};

}  // namespace wm
