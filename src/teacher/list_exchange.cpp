#include "teacher/list_exchange.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSaveFile>
#include <QTableWidget>
#include <QVBoxLayout>

#include "core/language_codes.h"
#include "core/list_file.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/game_frame.h"
#include "shell/style.h"
#include "teacher/list_rules.h"
#include "teacher/teacher_kit.h"

namespace wm {

namespace {
constexpr int kPreviewRows = 10;
const char* kFilter = "Vocabulary files (*.csv *.tsv *.txt *.kvtml *.xml);;All files (*)";
}  // namespace

ImportPreview::ImportPreview(const ImportedList& list, const QString& fileName, QWidget* parent)
    : QDialog(parent), list_(list), fileName_(QFileInfo(fileName).fileName()) {
    setObjectName("ImportPreview");
    QVBoxLayout* layout = DialogBody(this, "Import List");
    summary_ = NamedLabel("Summary", "", this, 13, true);
    layout->addWidget(summary_);
    if (!list.headingRows.isEmpty()) {
        const int lines = list.headingRows.size();
        heading_ = new QCheckBox(lines == 1 ? QString("First line is a heading")
                                            : QString("First %1 lines are headings").arg(lines),
                                 this);
        heading_->setObjectName("Heading");
        heading_->setFont(ScreenFont(12));
        heading_->setChecked(list.headingSkipped);
        layout->addWidget(heading_);
        connect(heading_, &QCheckBox::toggled, this, &ImportPreview::fill);
    }
    table_ = new QTableWidget(this);
    table_->setObjectName("Preview");
    table_->setFont(ScreenFont(12));
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table_->verticalHeader()->hide();
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    layout->addWidget(table_, 1);
    more_ = NamedLabel("More", "", this, 11);
    layout->addWidget(more_);
    layout->addWidget(NamedLabel("Label1", "Type in the name of your new list:", this, 13, true));
    name_ = new QLineEdit(this);
    name_->setObjectName("NewName");
    name_->setFont(ScreenFont(14));
    name_->setText(list.suggestedName.isEmpty() ? QFileInfo(fileName).completeBaseName()
                                                : list.suggestedName);
    layout->addWidget(name_);
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command1", "Cancel", this);
    auto* ok = NamedButton("Command2", "Import", this, true);
    ok->setDefault(true);
    row->addWidget(cancel);
    row->addStretch();
    row->addWidget(ok);
    layout->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, &ImportPreview::confirm);
    fill();
    SizeToScreen(this, 0.5, 0.75);
}

QList<TextPair> ImportPreview::words() const {
    return heading_ ? list_.choose(heading_->isChecked()) : list_.pairs;
}

// The count, the first rows and the column titles, as the heading box stands.
void ImportPreview::fill() {
    const QList<TextPair> pairs = words();
    summary_->setText(QString("%1 words found in %2 (%3).")
                          .arg(pairs.size())
                          .arg(fileName_, list_.format));
    ImportedList shown;
    shown.pairs = pairs;
    const bool wordsOnly = shown.noDefinitions();
    table_->clear();
    table_->setColumnCount(wordsOnly ? 1 : 2);
    table_->setRowCount(std::min<int>(kPreviewRows, pairs.size()));
    // Skipped headings name the columns, as they did in the file.
    const bool named = heading_ && heading_->isChecked() &&
                       !list_.headingRows.last().second.isEmpty();
    table_->setHorizontalHeaderLabels(
        named ? QStringList{list_.headingRows.last().first, list_.headingRows.last().second}
              : QStringList{"Word", "Definition"});
    for (int r = 0; r < table_->rowCount(); ++r) {
        table_->setItem(r, 0, new QTableWidgetItem(pairs[r].first));
        if (!wordsOnly) table_->setItem(r, 1, new QTableWidgetItem(pairs[r].second));
    }
    more_->setText(QString("...and %1 more.").arg(pairs.size() - kPreviewRows));
    more_->setVisible(pairs.size() > kPreviewRows);
}

QString ImportPreview::summary() const {
    return summary_->text();
}

void ImportPreview::confirm() {
    const QString problem = CheckImport(words(), fileName_);
    if (!problem.isEmpty()) {
        dialogs().message(problem, "Import List");
        return;
    }
    const QString typed = name_->text();
    if (typed.trimmed().isEmpty()) {
        dialogs().message("Type a name for your list before you continue...");
        return;
    }
    const std::string name = fromQ(typed);
    if (toQ(name) != typed) {
        dialogs().message(
            "The list name has characters this program cannot store. Please "
            "choose another name.");
        return;
    }
    bool taken = false;
    if (!Guarded([&] { taken = NameExists(ListPath(), name); })) return;
    if (taken) {
        dialogs().message(kNameTaken);
        return;
    }
    accept();
}

void ImportList(QWidget* parent) {
    const QString path = dialogs().openFile("Import List", kFilter);
    if (path.isEmpty()) return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        dialogs().message("The file " + path + " could not be opened.", "Import List");
        return;
    }
    const QString fileName = QFileInfo(path).fileName();
    const ImportedList list = ParseVocabularyFile(file.readAll(), fileName);
    if (!list.error.isEmpty()) {
        dialogs().message(list.error, "Import List");
        return;
    }
    const bool wordsOnly = list.noDefinitions();
    if (wordsOnly && !dialogs().yesNo("The file " + fileName +
                                          " has words but no definitions. Import it as a "
                                          "words-only list? Games that need definitions will "
                                          "not be able to use it.",
                                      "Import List"))
        return;
    ImportPreview preview(list, path, parent);
    if (RunModal(preview) != QDialog::Accepted) return;
    ImportedList chosen;
    chosen.pairs = preview.words();
    std::vector<WordPair> pairs;
    for (const auto& [w, d] : chosen.pairs) {
        pairs.emplace_back(fromQ(w),
                           chosen.noDefinitions() ? std::string(kWordsOnlyMarker) : fromQ(d));
    }
    const std::string name = fromQ(preview.name()->text());
    const bool ok = Guarded([&] {
        std::vector<std::string> data = ReadAllLines(ListPath());
        const bool empty = IsEmptyStore(data);
        WriteAllLines(ListPath(), SaveNewList(std::move(data), NewListRecord(name, pairs, empty)));
    });
    if (ok) {
        dialogs().message(QString("The list \"%1\" has been imported with %2 words.")
                              .arg(toQ(name))
                              .arg(pairs.size()),
                          "Import List");
    }
}

ExportForm::ExportForm(QWidget* parent) : QDialog(parent) {
    setObjectName("ExportForm");
    QVBoxLayout* layout = DialogBody(this, "Export List");
    layout->addWidget(NamedLabel("Label1", "Choose the list to export:", this, 13, true));
    lists_ = NamedList("TheLists", this);
    lists_->setSortingEnabled(true);
    std::vector<std::string> names;
    Guarded([&] { names = ListNames(ListPath()); });
    for (const auto& n : names) {
        if (n != kNoLists && n != kSeparator) lists_->addItem(toQ(PlainName(n)));
    }
    layout->addWidget(lists_, 1);
    auto* kinds = new QHBoxLayout;
    csv_ = new QRadioButton("CSV (spreadsheets and flash-card sites)", this);
    csv_->setObjectName("Csv");
    kvtml_ = new QRadioButton("KVTML (vocabulary trainers)", this);
    kvtml_->setObjectName("Kvtml");
    csv_->setChecked(true);
    for (QRadioButton* b : {csv_, kvtml_}) {
        b->setFont(ScreenFont(12));
        kinds->addWidget(b);
    }
    layout->addLayout(kinds);
    auto* where = new QHBoxLayout;
    target_ = new QLineEdit(this);
    target_->setObjectName("Target");
    target_->setFont(ScreenFont(12));
    target_->setPlaceholderText("Where to save the file");
    auto* browse = NamedButton("Browse", "Browse...", this);
    where->addWidget(target_, 1);
    where->addWidget(browse);
    layout->addLayout(where);
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command1", "Cancel", this);
    auto* ok = NamedButton("Command2", "Export", this, true);
    row->addWidget(cancel);
    row->addStretch();
    row->addWidget(ok);
    layout->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, &ExportForm::confirm);
    connect(browse, &QPushButton::clicked, this, &ExportForm::browse);
    SizeToScreen(this, 0.45, 0.7);
}

void ExportForm::browse() {
    const bool kvtml = kvtml_->isChecked();
    QString start = target_->text();
    if (start.isEmpty() && lists_->currentItem())
        start = lists_->currentItem()->text() + (kvtml ? ".kvtml" : ".csv");
    QFileDialog box(this, "Export List", {}, kvtml ? "KVTML files (*.kvtml)" : "CSV files (*.csv)");
    box.setObjectName("SaveAs");
    box.setAcceptMode(QFileDialog::AcceptSave);
    box.selectFile(start);
    if (RunModal(box) == QDialog::Accepted && !box.selectedFiles().isEmpty())
        target_->setText(box.selectedFiles().constFirst());
}

void ExportForm::confirm() {
    QListWidgetItem* item = lists_->currentItem();
    if (!item || !item->isSelected()) {
        dialogs().message("You need to choose a list!");
        return;
    }
    if (target_->text().trimmed().isEmpty()) {
        dialogs().message("Choose where to save the file first.", "Export List");
        return;
    }
    std::vector<WordPair> pairs;
    std::string stored;
    if (!Guarded(
            [&] { pairs = ReadRecord(ReadAllLines(ListPath()), fromQ(item->text()), &stored); }))
        return;
    const bool wordsOnly = !pairs.empty() && pairs.front().second == kWordsOnlyMarker;
    QList<TextPair> out;
    for (const auto& [w, d] : pairs) out.append({toQ(w), toQ(d)});
    // A foreign list names its language, as the language file calls it.
    QString language;
    if (HasPrefix(stored) && stored.size() > 4) {
        const auto codes = ReadLanguageCodes(AppFilePath(kLanguageFileName));
        if (const LanguageCode* code = FindLanguage(codes, stored.substr(1, 1)))
            language = LanguageName(toQ(code->first));
    }
    const QByteArray bytes = kvtml_->isChecked() ? ExportKvtml(item->text(), out, wordsOnly, language)
                                                 : ExportCsv(out, wordsOnly);
    QSaveFile file(target_->text().trimmed());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        dialogs().message("The file " + target_->text() + " could not be written.", "Export List");
        return;
    }
    dialogs().message(QString("The list \"%1\" has been exported.").arg(item->text()),
                      "Export List");
    accept();
}

void ExportList(QWidget* parent) {
    ExportForm form(parent);
    RunModal(form);
}

}  // namespace wm
