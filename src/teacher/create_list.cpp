#include "teacher/create_list.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/list_file.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/style.h"
#include "teacher/list_rules.h"
#include "teacher/teacher_kit.h"

namespace wm {

CreateList::CreateList(QWidget* parent) : QDialog(parent) {
    setObjectName("CreateList");
    QVBoxLayout* layout = DialogBody(this, "Create New Vocabulary List");
    layout->addWidget(NamedLabel("Label1", "Type in the name of your new list:", this, 13, true));
    NewName = new QLineEdit(this);
    NewName->setObjectName("NewName");
    NewName->setFont(ScreenFont(14));
    layout->addWidget(NewName);
    Check1 = new QCheckBox("Check here to make a words-only list (no definitions)", this);
    Check1->setObjectName("Check1");
    Check1->setFont(ScreenFont(12));
    Check2 = new QCheckBox("Check here to make a foreign language list", this);
    Check2->setObjectName("Check2");
    Check2->setFont(ScreenFont(12));
    layout->addWidget(Check1);
    layout->addWidget(Check2);
    Combo1 = new QComboBox(this);
    Combo1->setObjectName("Combo1");
    Combo1->setFont(ScreenFont(12));
    Combo1->addItem("Choose a Supported Language...");
    codes_ = ReadLanguageCodes(AppFilePath(kLanguageFileName));
    for (const auto& c : codes_) Combo1->addItem(toQ(c.first));
    Combo1->hide();
    layout->addWidget(Combo1);
    layout->addStretch();
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command1", "Cancel", this);
    auto* ok = NamedButton("Command2", "OK", this, true);
    ok->setDefault(true);
    row->addWidget(cancel);
    row->addStretch();
    row->addWidget(ok);
    layout->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, &CreateList::confirm);
    connect(Check1, &QCheckBox::toggled, this, &CreateList::wordsOnlyToggled);
    connect(Check2, &QCheckBox::toggled, this, &CreateList::foreignToggled);
    WidenToScreen(this, 0.4);
}

void CreateList::wordsOnlyToggled(bool on) {
    if (!on) return;
    if (!dialogs().yesNo(
            "Warning: If you create a words-only list with no definitions, this will greatly "
            "limit gameplay choices. While some games will still be playable, games which require "
            "a definition will not be. Are you sure you want to do this?")) {
        QSignalBlocker block(Check1);
        Check1->setChecked(false);
        return;
    }
    QSignalBlocker block(Check2);
    Check2->setChecked(false);
    Combo1->hide();
}

void CreateList::foreignToggled(bool on) {
    if (on) {
        QSignalBlocker block(Check1);
        Check1->setChecked(false);
    }
    Combo1->setVisible(on);
}

void CreateList::confirm() {
    if (Check2->isChecked() && Combo1->currentIndex() <= 0) {
        dialogs().message(
            "Please choose a supported language for your vocabulary list from the drop-down "
            "selection box...");
        return;
    }
    if (Trim(fromQ(NewName->text())).empty()) {
        dialogs().message("Type a name for your list before you continue...");
        return;
    }
    const std::optional<std::string> storable = StorableText(NewName->text(), NewName);
    if (!storable) return;
    const std::string typed = *storable;
    bool taken = false;
    if (!Guarded([&] { taken = NameExists(ListPath(), typed); })) return;
    if (taken) {
        dialogs().message(kNameTaken);
        return;
    }
    SharedState& s = Shared();
    s.WordsOnly = Check1->isChecked() ? kTrue : kFalse;
    s.ListLanguage.clear();
    if (Check2->isChecked()) {
        s.ListLanguage = codes_[Combo1->currentIndex() - 1].code;
        dialogs().message(
            "Tip: When creating your Foreign Language list, the \"word\" should be the English "
            "word and the \"definition\" should be the foreign language translation.");
    }
    // Kept as typed: a leading "[" or "^" is only refused by a rename.
    s.NewListName = typed;
    accept();
}

}  // namespace wm
