#include "teacher/merge_form.h"

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
#include "teacher/list_rules.h"
#include "teacher/teacher_kit.h"

namespace wm {

const char* const kForeignMergeWarning =
    "If you merge words from a foreign language list, the new resulting word list will not be "
    "seen by the program as a foreign language list (It will be treated like a normal list.) Do "
    "you wish to continue?";

QString MergeLine(const std::string& storedName, std::size_t lineCount) {
    return toQ(storedName) + QString(" (%1 words)").arg(lineCount / 2.0);
}

std::string MergeLineName(const QString& line) {
    const int cut = line.lastIndexOf('(');
    return RTrim(fromQ(cut < 0 ? line : line.left(cut)));
}

std::vector<std::string> MergedRecord(const std::vector<std::string>& data,
                                      const std::vector<std::string>& storedNames) {
    std::vector<std::string> out;
    for (const auto& name : storedNames) {
        for (auto& l : RecordLines(data, name)) {
            if (!Trim(l).empty()) out.push_back(l);
        }
    }
    return out;
}

MergeForm::MergeForm(QWidget* parent) : QDialog(parent) {
    setObjectName("MergeForm");
    QVBoxLayout* layout = DialogBody(this, "Merge Word Lists");
    Label1 = NamedLabel("Label1", "Select two or more lists to merge.", this, 13, true);
    layout->addWidget(Label1);
    TheLists = NamedList("TheLists", this);
    TheLists->setSelectionMode(QAbstractItemView::MultiSelection);
    layout->addWidget(TheLists, 1);
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command2", "Cancel", this);
    auto* ok = NamedButton("Command1", "OK", this, true);
    row->addWidget(cancel);
    row->addStretch();
    row->addWidget(ok);
    layout->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, &MergeForm::confirm);
    connect(TheLists, &QListWidget::itemSelectionChanged, this, [this] {
        QStringList names;
        for (int i = 0; i < TheLists->count(); ++i) {
            if (TheLists->item(i)->isSelected())
                names << toQ(MergeLineName(TheLists->item(i)->text()));
        }
        Label1->setText(names.isEmpty() ? "Select two or more lists to merge."
                                        : "Merge lists: " + names.join(", "));
    });
    std::vector<std::string> names;
    Guarded([&] {
        data_ = ReadAllLines(ListPath());
        names = ListNames(ListPath());
    });
    for (const auto& name : names) {
        if (name == kNoLists) continue;
        TheLists->addItem(MergeLine(name, RecordLines(data_, name).size()));
    }
    SizeToScreen(this, 0.4, 0.7);
}

QString MergeForm::label() const {
    return Label1->text();
}

void MergeForm::confirm() {
    std::vector<std::string> picked;
    for (int i = 0; i < TheLists->count(); ++i) {
        if (TheLists->item(i)->isSelected())
            picked.push_back(MergeLineName(TheLists->item(i)->text()));
    }
    if (picked.size() < 2) {
        dialogs().message("You must select two or more lists to merge.");
        return;
    }
    for (const auto& p : picked) {
        if (HasPrefix(p)) {
            if (!dialogs().yesNo(kForeignMergeWarning)) return;
            break;
        }
    }
    std::optional<QString> typed = dialogs().input("Enter a name for the new list:");
    if (!typed || typed->isEmpty()) return;
    const std::optional<std::string> storable = StorableText(*typed);
    if (!storable) return;
    const std::string name = *storable;
    bool taken = false;
    if (!Guarded([&] { taken = NameExists(ListPath(), name); })) return;
    if (taken) {
        dialogs().message(kNameTaken);
        return;
    }
    // No duplicate test and no length limit here: the loader cuts at 1000.
    const bool ok = Guarded(
        [&] { AppendRecord(ListPath(), name, MergedRecord(ReadAllLines(ListPath()), picked)); });
    if (!ok) return;
    dialogs().message("The selected lists have been merged into the new list \"" + *typed +
                      "\". The original lists are also still intact.");
    accept();
}

}  // namespace wm
