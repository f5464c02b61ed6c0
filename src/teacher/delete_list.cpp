#include "teacher/delete_list.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/category_file.h"
#include "core/list_file.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/style.h"
#include "teacher/teacher_kit.h"

namespace wm {

DeleteList::DeleteList(QWidget* parent) : QDialog(parent) {
    setObjectName("DeleteList");
    QVBoxLayout* layout = DialogBody(this, "Delete Vocabulary List");
    layout->addWidget(NamedLabel("Label1", "To Delete A List:", this, 14, true));
    layout->addWidget(NamedLabel(
        "Label2", "Choose the List Name in the Box Below and Click the \"Delete\" Button.", this));
    TheLists = NamedList("TheLists", this);
    TheLists->setSortingEnabled(true);
    layout->addWidget(TheLists, 1);
    Sure = NamedLabel("Sure", "Are you sure you want to permenantly delete this list?", this, 14,
                      true);
    Sure->setStyleSheet("color: #b00020;");
    Sure->setAlignment(Qt::AlignCenter);
    layout->addWidget(Sure);
    auto* row = new QHBoxLayout;
    Command2 = NamedButton("Command2", "Finished", this);
    Command1 = NamedButton("Command1", "Delete", this, true);
    No = NamedButton("No", "No", this);
    Yes = NamedButton("Yes", "Yes", this, true);
    // Enter asks to delete; it never answers the question itself, which stays a click.
    Command1->setDefault(true);
    row->addWidget(Command2);
    row->addWidget(No);
    row->addStretch();
    row->addWidget(Yes);
    row->addWidget(Command1);
    layout->addLayout(row);
    Sure->hide();
    Yes->hide();
    No->hide();
    connect(Command2, &QPushButton::clicked, this, &QDialog::accept);
    connect(Command1, &QPushButton::clicked, this, &DeleteList::deleteClicked);
    connect(Yes, &QPushButton::clicked, this, [this] { answer(true); });
    connect(No, &QPushButton::clicked, this, [this] { answer(false); });
    fillNames();
    SizeToScreen(this, 0.4, 0.7);
}

void DeleteList::fillNames() {
    TheLists->clear();
    std::vector<std::string> names;
    Guarded([&] { names = ListNames(ListPath()); });
    for (const auto& n : names) {
        if (n != kNoLists) TheLists->addItem(toQ(PlainName(n)));
    }
}

bool DeleteList::asking() const {
    return !Sure->isHidden();
}

void DeleteList::deleteClicked() {
    QListWidgetItem* item = TheLists->currentItem();
    if (!item || !item->isSelected()) {
        Beep();
        dialogs().message("You need to choose a list!");
        return;
    }
    pending_ = fromQ(item->text());
    Command1->hide();
    Command2->hide();
    Sure->show();
    Yes->show();
    No->show();
}

void DeleteList::answer(bool yes) {
    Sure->hide();
    Yes->hide();
    No->hide();
    Command1->show();
    Command2->show();
    if (!yes || pending_.empty()) return;
    const std::string name = pending_;
    pending_.clear();
    const bool ok = Guarded([&] {
        // The categories first; a locked category file keeps the name.
        RemoveListFromCategories(FolderPath(), name);
        std::vector<std::string> lines = ReadAllLines(ListPath());
        if (DeleteListLines(lines, name)) WriteAllLines(ListPath(), lines);
    });
    fillNames();
    if (ok) dialogs().message("The list was successfully deleted.");
}

}  // namespace wm
