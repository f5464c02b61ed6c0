#include "teacher/build_list_form.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/list_file.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/style.h"
#include "teacher/merge_form.h"
#include "teacher/teacher_kit.h"

namespace wm {

BuildListForm::BuildListForm(QWidget* parent) : QDialog(parent) {
    setObjectName("BuildListForm");
    QVBoxLayout* layout =
        DialogBody(this, "Create List from Existing Lists: " + toQ(Shared().NewListName));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->addWidget(NamedLabel("Label1", "Lists:", this, 13, true), 0, 0);
    wordsLabel_ = NamedLabel("Label2", "Words (0):", this, 13, true);
    grid->addWidget(wordsLabel_, 0, 1);
    Label4 = NamedLabel("Label4", "New Word List:", this, 13, true);
    grid->addWidget(Label4, 0, 2);
    TheLists = NamedList("TheLists", this);
    List2 = NamedList("List2", this);
    List2->setSelectionMode(QAbstractItemView::MultiSelection);
    List2->addItem("<<Choose a List");
    List3 = NamedList("List3", this);
    List3->setStyleSheet("color: #c62828;");
    grid->addWidget(TheLists, 1, 0);
    grid->addWidget(List2, 1, 1);
    grid->addWidget(List3, 1, 2);
    auto* add = NamedButton("Command3", "Add to List >>>", this);
    auto* remove = NamedButton("Command4", "Delete Word", this);
    grid->addWidget(add, 2, 1);
    grid->addWidget(remove, 2, 2);
    layout->addLayout(grid, 1);
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command1", "Cancel", this);
    auto* saveButton = NamedButton("Command2", "Save", this, true);
    row->addWidget(cancel);
    row->addStretch();
    row->addWidget(saveButton);
    layout->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(saveButton, &QPushButton::clicked, this, &BuildListForm::save);
    connect(add, &QPushButton::clicked, this, &BuildListForm::addPicked);
    connect(remove, &QPushButton::clicked, this, &BuildListForm::deletePicked);
    connect(TheLists, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { chooseList(TheLists->row(item)); });
    std::vector<std::string> names;
    Guarded([&] { names = ListNames(ListPath()); });
    for (const auto& n : names) {
        if (n != kNoLists) TheLists->addItem(toQ(n));
    }
    SizeToScreen(this, 0.7, 0.75);
    for (int c = 0; c < 3; ++c) grid->setColumnStretch(c, 1);
}

QString BuildListForm::wordsCaption() const {
    return wordsLabel_->text();
}
QString BuildListForm::newListCaption() const {
    return Label4->text();
}

void BuildListForm::chooseList(int row) {
    if (row < 0 || row >= TheLists->count()) return;
    TheLists->setCurrentRow(row);
    SharedState& s = Shared();
    const std::string stored = fromQ(TheLists->item(row)->text());
    if (HasPrefix(stored) && !dialogs().yesNo(kForeignMergeWarning)) return;
    // The stored name as it stands is the search key, so a foreign list loads as written.
    s.CurrentListName = stored;
    LoadHooks hooks;
    hooks.message = [](const std::string& m) { dialogs().message(toQ(m)); };
    if (!Guarded([&] { LoadList(ListPath(), s, {}, hooks); })) return;
    List2->clear();
    const int n = std::min<int>(s.WordCount, kMaxWords);
    for (int i = 1; i <= n; ++i) List2->addItem(toQ(s.Words[i]));
    wordsLabel_->setText(QString("Words (%1):").arg(n));
}

void BuildListForm::addPicked() {
    const SharedState& s = Shared();
    QList<int> rows;
    for (int i = 0; i < List2->count(); ++i) {
        if (List2->item(i)->isSelected()) rows << i;
    }
    if (rows.isEmpty() || List2->item(0)->text() == "<<Choose a List") {
        dialogs().message("You need to highlight some words in the middle column first!");
        return;
    }
    bool told = false;
    for (int r : rows) {
        const QString word = List2->item(r)->text();
        bool already = false;
        for (int j = 0; j < List3->count(); ++j) {
            if (List3->item(j)->text().compare(word, Qt::CaseInsensitive) == 0) already = true;
        }
        if (already) {
            if (!told) {
                dialogs().message(
                    "One or more of the words you are trying to add to this new list has already "
                    "been added. They will not be added again.");
                told = true;
            }
            continue;
        }
        List3->addItem(word);
        HoldLIst.push_back(s.Words[r + 1]);
        HoldLIst.push_back(s.Meanings[r + 1]);
    }
    Label4->setText(QString("New Word List (%1):").arg(List3->count()));
    List2->clearSelection();
}

void BuildListForm::deletePicked() {
    QListWidgetItem* item = List3->currentItem();
    if (!item || !item->isSelected()) {
        dialogs().message(
            "Choose a word you would like to delete from the new list before clicking this "
            "button.");
        return;
    }
    const int row = List3->row(item);
    delete List3->takeItem(row);
    HoldLIst.erase(HoldLIst.begin() + 2 * row, HoldLIst.begin() + 2 * row + 2);
    Label4->setText(QString("New Word List (%1):").arg(List3->count()));
}

void BuildListForm::save() {
    if (!dialogs().yesNo("Are you sure you would like to create this new vocabulary list?")) return;
    std::vector<std::string> lines;
    for (const auto& l : HoldLIst) {
        if (!l.empty()) lines.push_back(l);
    }
    if (Guarded([&] { AppendRecord(ListPath(), Shared().NewListName, lines); })) accept();
}

}  // namespace wm
