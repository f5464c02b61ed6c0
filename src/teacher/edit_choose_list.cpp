#include "teacher/edit_choose_list.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/list_file.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/style.h"
#include "teacher/teacher_kit.h"

namespace wm {

EditChooseList::EditChooseList(QWidget* parent) : QDialog(parent) {
    setObjectName("EditChooseList");
    QVBoxLayout* layout = DialogBody(this, "View / Edit Vocabulary List");
    layout->addWidget(NamedLabel("Label1", "Choose the list you want to view or edit:", this));
    TheLists = NamedList("TheLists", this);
    TheLists->setSortingEnabled(true);
    layout->addWidget(TheLists, 1);
    auto* row = new QHBoxLayout;
    auto* back = NamedButton("Command2", "Cancel", this);
    Command1 = NamedButton("Command1", "Edit List", this, true);
    Command1->setEnabled(false);
    row->addWidget(back);
    row->addStretch();
    row->addWidget(Command1);
    layout->addLayout(row);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command1, &QPushButton::clicked, this, &EditChooseList::choose);
    connect(TheLists, &QListWidget::itemSelectionChanged, this,
            [this] { Command1->setEnabled(!TheLists->selectedItems().isEmpty()); });
    connect(TheLists, &QListWidget::itemDoubleClicked, this, &EditChooseList::choose);
    std::vector<std::string> names;
    Guarded([&] { names = ListNames(ListPath()); });
    if (!names.empty() && names.front() == kNoLists) names.erase(names.begin());
    for (const auto& n : names) TheLists->addItem(toQ(PlainName(n)));
    SizeToScreen(this, 0.4, 0.7);
}

void EditChooseList::choose() {
    QListWidgetItem* item = TheLists->currentItem();
    if (!item || !item->isSelected()) {
        Beep();
        dialogs().message("You need to choose a list!");
        return;
    }
    Shared().CurrentListName = fromQ(item->text());
    accept();
}

}  // namespace wm
