#include "teacher/categories.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "core/category_file.h"
#include "core/line_file.h"
#include "core/list_file.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/style.h"
#include "teacher/teacher_kit.h"

namespace wm {

Categories::Categories(QWidget* parent) : QDialog(parent) {
    setObjectName("Categories");
    QVBoxLayout* layout = DialogBody(this, "List Categories");
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    left->addWidget(NamedLabel("Label2", "Categories", this, 13, true));
    Label3 = NamedLabel("Label3", "Word Lists (None Selected)", this, 13, true);
    right->addWidget(Label3);
    List1 = NamedList("List1", this);
    List2 = NamedList("List2", this);
    left->addWidget(List1, 1);
    right->addWidget(List2, 1);
    auto* add = NamedButton("Command2", "Add New Category", this);
    auto* remove = NamedButton("Command3", "Delete Category", this);
    left->addWidget(
        NamedLabel("Hint1", "Choose a category to see the lists filed under it.", this, 11));
    right->addWidget(
        NamedLabel("Hint", "Tick the lists that belong to the chosen category.", this, 11));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(24);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    layout->addLayout(columns, 1);
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command4", "Cancel", this);
    auto* saveButton = NamedButton("Command1", "Save", this, true);
    row->addWidget(cancel);
    row->addSpacing(24);
    row->addWidget(add);
    row->addWidget(remove);
    row->addStretch();
    row->addWidget(saveButton);
    layout->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &Categories::reject);
    connect(saveButton, &QPushButton::clicked, this, &Categories::save);
    connect(add, &QPushButton::clicked, this, &Categories::addCategory);
    connect(remove, &QPushButton::clicked, this, &Categories::deleteCategory);
    connect(List1, &QListWidget::currentRowChanged, this, &Categories::pickCategory);
    connect(List2, &QListWidget::itemChanged, this, &Categories::boxChanged);

    std::vector<std::string> names;
    if (const std::string refusal = CategoryEditRefusal(FolderPath()); !refusal.empty()) {
        // Categories that were not read are never written over.
        dialogs().message(toQ(refusal), "Categories");
        return;
    }
    locked_ = Guarded([&] {
        for (const auto& l : ReadCategoryLines(FolderPath())) {
            const std::string t = Trim(l);
            if (!t.empty()) HoldLIst.push_back(t);
        }
        names = ListNames(ListPath());
        LockCategories(FolderPath());
    });
    Refreshing = true;
    for (const auto& n : names) {
        if (n == kNoLists) continue;
        auto* item = new QListWidgetItem(toQ(PlainName(n)), List2);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    Refreshing = false;
    fillCategories();
    SizeToScreen(this, 0.55, 0.7);
}

Categories::~Categories() {
    // However the box goes, the lock does not outlive it.
    if (locked_) Guarded([] { UnlockCategories(FolderPath()); });
}

void Categories::reject() {
    if (locked_) {
        Guarded([] { UnlockCategories(FolderPath()); });
        locked_ = false;
    }
    QDialog::reject();
}

QString Categories::countText() const {
    return Label3->text();
}

std::string Categories::picked() const {
    QListWidgetItem* item = List1->currentItem();
    return item && item->isSelected() ? fromQ(item->text()) : std::string();
}

void Categories::fillCategories() {
    QSignalBlocker block(List1);
    List1->clear();
    for (const auto& c : CategoryNames(HoldLIst)) List1->addItem(toQ(c));
}

void Categories::clearBoxes() {
    Refreshing = true;
    for (int i = 0; i < List2->count(); ++i) List2->item(i)->setCheckState(Qt::Unchecked);
    Refreshing = false;
    Label3->setText("Word Lists (None Selected)");
}

void Categories::showCount() {
    int n = 0;
    for (int i = 0; i < List2->count(); ++i) n += List2->item(i)->checkState() == Qt::Checked;
    Label3->setText(n ? QString("Word Lists (%1 Selected)").arg(n) : "Word Lists (None Selected)");
}

void Categories::pickCategory(int row) {
    if (row < 0) return;
    List1->setCurrentRow(row);
    const std::string cat = "^" + fromQ(List1->item(row)->text());
    std::vector<std::string> under;
    auto it = std::find(HoldLIst.begin(), HoldLIst.end(), cat);
    if (it != HoldLIst.end()) {
        for (++it; it != HoldLIst.end() && (*it)[0] != '^'; ++it) under.push_back(*it);
    }
    Refreshing = true;
    for (int i = 0; i < List2->count(); ++i) {
        const bool on =
            std::find(under.begin(), under.end(), fromQ(List2->item(i)->text())) != under.end();
        List2->item(i)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    Refreshing = false;
    showCount();
}

void Categories::setTicked(const QString& list, bool on) {
    for (int i = 0; i < List2->count(); ++i) {
        if (List2->item(i)->text() == list)
            List2->item(i)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
}

void Categories::boxChanged(QListWidgetItem* item) {
    if (Refreshing) return;
    const std::string cat = picked();
    if (cat.empty()) {
        dialogs().message("You must first highlight a category to add these lists to.");
        Refreshing = true;
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        Refreshing = false;
        return;
    }
    const std::string name = fromQ(item->text());
    auto head = std::find(HoldLIst.begin(), HoldLIst.end(), "^" + cat);
    if (head == HoldLIst.end()) return;
    auto end =
        std::find_if(head + 1, HoldLIst.end(), [](const std::string& l) { return l[0] == '^'; });
    if (item->checkState() == Qt::Checked) {
        HoldLIst.insert(head + 1, name);
    } else {
        auto at = std::find(head + 1, end, name);
        if (at != end) HoldLIst.erase(at);
    }
    showCount();
}

void Categories::addCategory() {
    std::optional<QString> typed = dialogs().input("Type the name for your new category:");
    if (!typed || typed->trimmed().isEmpty()) return;
    const std::optional<std::string> storable = StorableText(*typed);
    if (!storable) return;
    HoldLIst.push_back("^" + *storable);
    fillCategories();
    {
        QSignalBlocker block(List1);
        List1->setCurrentRow(List1->count() - 1);
    }
    clearBoxes();
    dialogs().message(
        "Your new category has been created. To add lists to this category, mark their "
        "checkboxes in the list on the right.");
}

void Categories::deleteCategory() {
    const std::string cat = picked();
    if (cat.empty()) {
        dialogs().message("You must first highlight a category from the list to delete.");
        return;
    }
    if (!dialogs().yesNo("Are you sure you want to delete the category " + toQ(cat).toUpper() +
                         "?"))
        return;
    auto head = std::find(HoldLIst.begin(), HoldLIst.end(), "^" + cat);
    if (head != HoldLIst.end()) {
        auto end = std::find_if(head + 1, HoldLIst.end(),
                                [](const std::string& l) { return l[0] == '^'; });
        HoldLIst.erase(head, end);
    }
    fillCategories();
    clearBoxes();
}

void Categories::save() {
    // Categories that could not be read are not saved over the file.
    if (!locked_) return;
    if (!dialogs().yesNo("Are you ready to save your changes and close this screen?")) return;
    if (!Guarded([&] { SaveAndUnlockCategories(FolderPath(), HoldLIst); })) return;
    locked_ = false;
    accept();
}

}  // namespace wm
