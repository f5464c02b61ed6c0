#include "teacher/worksheets/print_worksheets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "core/category_file.h"
#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/choose_list.h"
#include "shell/game_frame.h"
#include "shell/style.h"
#include "teacher/teacher_kit.h"
#include "teacher/worksheets/worksheet_paint.h"

namespace wm {

namespace {

constexpr char kBoxTitle[] = "Print Worksheets";
constexpr char kAllLists[] = "ALL LISTS";

// Letter paper where the locale's country uses it, A4 everywhere else.
sheets::Paper localPaper() {
    switch (QLocale::system().territory()) {
        case QLocale::UnitedStates:
        case QLocale::Canada:
        case QLocale::Mexico:
        case QLocale::Philippines:
        case QLocale::Chile:
        case QLocale::Colombia:
            return sheets::Paper::Letter;
        default:
            return sheets::Paper::A4;
    }
}

QLabel* caption(const QString& text, QWidget* parent) {
    auto* l = new QLabel(text, parent);
    l->setFont(ScreenFont(12, true));
    return l;
}

}  // namespace

PrintWorksheets::PrintWorksheets(QWidget* parent) : QDialog(parent) {
    setObjectName("PrintWorksheets");
    QVBoxLayout* layout = DialogBody(this, kBoxTitle);
    auto* body = new QHBoxLayout;
    body->setSpacing(24);
    layout->addLayout(body, 1);

    auto* side = new QVBoxLayout;
    side->setSpacing(8);
    body->addLayout(side, 2);
    auto* catRow = new QHBoxLayout;
    catRow->addWidget(caption("Category:", this));
    Combo1 = new QComboBox(this);
    Combo1->setObjectName("Combo1");
    Combo1->setFont(ScreenFont(12));
    Combo1->addItem(kAllLists);
    catRow->addWidget(Combo1, 1);
    side->addLayout(catRow);
    TheLists = NamedList("TheLists", this);
    TheLists->setFont(ScreenFont(12));
    side->addWidget(TheLists, 1);

    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    kind_ = new QComboBox(this);
    kind_->setObjectName("Kind");
    for (int k = 0; k < sheets::kKindCount; ++k)
        kind_->addItem(sheets::kindName(static_cast<sheets::Kind>(k)));
    form->addRow(caption("Worksheet:", this), kind_);

    // Word search: the game's size and clue choices, and the diagonals; crossword: its words.
    size_ = new QSpinBox(this);
    size_->setObjectName("PuzzleSize");
    size_->setRange(5, 20);
    size_->setValue(12);
    size_->setSuffix(" letters wide");
    form->addRow(caption("Size:", this), size_);
    diagonals_ = new QCheckBox("Words run diagonally too", this);
    diagonals_->setObjectName("Diagonals");
    diagonals_->setChecked(true);
    form->addRow({}, diagonals_);
    Option1 = new QRadioButton("Clue is Word (Easy)", this);
    Option1->setObjectName("Option1");
    Option2 = new QRadioButton("Clue is Definition", this);
    Option2->setObjectName("Option2");
    Option1->setChecked(true);
    form->addRow({}, Option1);
    form->addRow({}, Option2);
    words_ = new QSpinBox(this);
    words_->setObjectName("CrosswordWords");
    words_->setRange(2, 20);
    words_->setValue(10);
    form->addRow(caption("Words:", this), words_);
    form_ = form;

    title_ = new QLineEdit(this);
    title_->setObjectName("SheetTitle");
    form->addRow(caption("Title:", this), title_);
    paper_ = new QComboBox(this);
    paper_->setObjectName("Paper");
    paper_->addItems({"A4", "US Letter"});
    paper_->setCurrentIndex(localPaper() == sheets::Paper::Letter ? 1 : 0);
    form->addRow(caption("Paper:", this), paper_);
    key_ = new QCheckBox("Print the answer key", this);
    key_->setObjectName("AnswerKey");
    key_->setChecked(true);
    form->addRow({}, key_);
    for (QWidget* w : {static_cast<QWidget*>(kind_), static_cast<QWidget*>(size_),
                       static_cast<QWidget*>(diagonals_), static_cast<QWidget*>(Option1),
                       static_cast<QWidget*>(Option2), static_cast<QWidget*>(words_),
                       static_cast<QWidget*>(title_), static_cast<QWidget*>(paper_),
                       static_cast<QWidget*>(key_)})
        w->setFont(ScreenFont(12));
    side->addLayout(form);
    auto* again = NamedButton("NewPuzzle", "New Puzzle", this);
    side->addWidget(again);

    auto* right = new QVBoxLayout;
    body->addLayout(right, 3);
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setFullPage(true);
    preview_ = new QPrintPreviewWidget(printer_.get(), this);
    preview_->setObjectName("Preview");
    preview_->setMinimumSize(360, 420);
    right->addWidget(preview_, 1);
    hint_ = NamedLabel("Hint", "", this, 11);
    hint_->setWordWrap(true);
    right->addWidget(hint_);
    status_ = NamedLabel("Status", "", this, 12, true);
    status_->setWordWrap(true);
    right->addWidget(status_);

    auto* row = new QHBoxLayout;
    auto* close = NamedButton("Command1", "Close", this);
    auto* save = NamedButton("SavePdf", "Save as PDF...", this);
    auto* print = NamedButton("PrintButton", "Print...", this, true);
    row->addWidget(close);
    row->addStretch();
    row->addWidget(save);
    row->addWidget(print);
    layout->addLayout(row);

    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(save, &QPushButton::clicked, this, &PrintWorksheets::savePdf);
    connect(print, &QPushButton::clicked, this, &PrintWorksheets::print);
    connect(again, &QPushButton::clicked, this, &PrintWorksheets::newPuzzle);
    connect(preview_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* printer) { sheets::paintPages(pages_, *printer); });
    connect(Combo1, &QComboBox::currentIndexChanged, this, &PrintWorksheets::fillLists);
    connect(TheLists, &QListWidget::currentRowChanged, this, &PrintWorksheets::chooseList);
    connect(kind_, &QComboBox::currentIndexChanged, this, [this] {
        showOptions();
        remake();
    });
    for (QSpinBox* box : {size_, words_})
        connect(box, &QSpinBox::valueChanged, this, &PrintWorksheets::remake);
    for (QAbstractButton* b :
         {static_cast<QAbstractButton*>(diagonals_), static_cast<QAbstractButton*>(Option2)})
        connect(b, &QAbstractButton::toggled, this, &PrintWorksheets::remake);
    connect(title_, &QLineEdit::textEdited, this, [this] {
        titleTyped_ = true;
        relayOut();
    });
    connect(paper_, &QComboBox::currentIndexChanged, this, &PrintWorksheets::relayOut);
    connect(key_, &QCheckBox::toggled, this, &PrintWorksheets::relayOut);

    Guarded([&] {
        for (const auto& c : CategoryNames(ReadCategoryLines(FolderPath())))
            Combo1->addItem(toQ(c));
    });
    building_ = false;
    showOptions();
    fillLists();
    SizeToScreen(this, 0.8, 0.88);
}

// The lists of the chosen category, labelled and ordered as the chooser shows them.
void PrintWorksheets::fillLists() {
    const bool all = Combo1->currentIndex() <= 0;
    std::vector<std::string> folderList, lines;
    if (!Guarded([&] {
            if (!all)
                folderList =
                    CollectLists(ReadCategoryLines(FolderPath()), fromQ(Combo1->currentText()));
            lines = ReadAllLines(ListPath());
        }))
        return;
    ListSummary summary = SummariseLists(lines, all, folderList);
    foreign_ = summary.foreign;
    std::stable_sort(
        summary.lines.begin(), summary.lines.end(),
        [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    TheLists->clear();
    TheLists->addItems(summary.lines);
    if (TheLists->count() > 0)
        TheLists->setCurrentRow(0);
    else
        chooseList();
}

// Loads the picked list as the games load it; a foreign list keeps its stored direction.
void PrintWorksheets::chooseList() {
    list_ = {};
    if (QListWidgetItem* item = TheLists->currentItem()) {
        const std::string line = fromQ(item->text());
        const int paren = InStrRev(line, "(");
        SharedState state;
        state.CurrentListName = paren > 2 ? Left(line, paren - 2) : line;
        // A list that cannot be read leaves no words, never the sheet of the list before.
        if (!Guarded([&] { LoadList(ListPath(), state, foreign_); })) state.WordCount = 0;
        list_.name = state.CurrentListName;
        list_.wordsOnly = state.WordsOnly != kFalse;
        for (int i = 1; i <= std::min<int>(state.WordCount, kMaxWords); ++i)
            list_.pairs.emplace_back(state.Words[i], state.Meanings[i]);
        if (!titleTyped_) title_->setText(toQ(list_.name));
    }
    remake();
}

void PrintWorksheets::showOptions() {
    const auto k = static_cast<sheets::Kind>(kind_->currentIndex());
    for (QWidget* w : {static_cast<QWidget*>(size_), static_cast<QWidget*>(diagonals_),
                       static_cast<QWidget*>(Option1), static_cast<QWidget*>(Option2)})
        form_->setRowVisible(w, k == sheets::Kind::WordSearch);
    form_->setRowVisible(words_, k == sheets::Kind::Crossword);
    hint_->setText(k == sheets::Kind::FlashCards
                       ? "Print the cards on both sides of the paper, turning over on the long "
                         "edge, so that each meaning is on the back of its word."
                       : "");
    hint_->setVisible(!hint_->text().isEmpty());
}

sheets::Options PrintWorksheets::options() const {
    sheets::Options o;
    o.kind = static_cast<sheets::Kind>(kind_->currentIndex());
    o.size = size_->value();
    o.diagonals = diagonals_->isChecked();
    o.clueIsDefinition = Option2->isChecked();
    o.words = words_->value();
    o.answerKey = key_->isChecked();
    o.paper = paper_->currentIndex() == 1 ? sheets::Paper::Letter : sheets::Paper::A4;
    o.title = fromQ(title_->text());
    return o;
}

void PrintWorksheets::newPuzzle() {
    remake();
}

void PrintWorksheets::remake() {
    if (building_) return;
    content_ = sheets::makeContent(list_, options(), TheRng());
    relayOut();
}

void PrintWorksheets::relayOut() {
    if (building_) return;
    const sheets::Options o = options();
    content_.title = Trim(o.title).empty() ? list_.name : o.title;
    pages_ = sheets::layOutPages(content_, o, sheets::printWidth);
    printer_->setPageSize(sheets::qtPageSize(o.paper));
    const auto keys =
        std::count_if(pages_.begin(), pages_.end(), [](const auto& p) { return p.key; });
    QString text;
    if (!TheLists->currentItem()) {
        text = "Choose a list.";
    } else if (!content_.refusal.empty()) {
        text = toQ(content_.refusal);
    } else {
        const auto pupil = static_cast<int>(pages_.size() - keys);
        text = QString(pupil == 1 ? "%1 page for the pupil" : "%1 pages for the pupil").arg(pupil);
        if (keys) text += QString(", %1 of answers").arg(keys);
        text += ".";
        if (!content_.note.empty()) text += " " + toQ(content_.note);
    }
    status_->setText(text);
    status_->setStyleSheet(content_.refusal.empty() ? "color: #1f3f6a;" : "color: #b03a2e;");
    preview_->updatePreview();
}

QString PrintWorksheets::status() const {
    return status_->text();
}

bool PrintWorksheets::refused() {
    if (!TheLists->currentItem()) {
        dialogs().message("You need to choose a list!", kBoxTitle);
        return true;
    }
    if (content_.refusal.empty()) return false;
    dialogs().message(toQ(content_.refusal), kBoxTitle);
    return true;
}

void PrintWorksheets::savePdf() {
    if (refused()) return;
    QFileDialog box(this, "Save as PDF", {}, "PDF files (*.pdf)");
    box.setObjectName("SaveAs");
    box.setAcceptMode(QFileDialog::AcceptSave);
    box.setDefaultSuffix("pdf");
    box.selectFile(title_->text().trimmed() + " - " + kind_->currentText() + ".pdf");
    if (RunModal(box) != QDialog::Accepted || box.selectedFiles().isEmpty()) return;
    const QString path = box.selectedFiles().constFirst();
    const QString error = sheets::writePdf(pages_, options().paper, toQ(content_.title), path);
    if (!error.isEmpty()) {
        dialogs().message(error, kBoxTitle);
        return;
    }
    status_->setText("Saved in " + path + ".");
}

void PrintWorksheets::print() {
    if (refused()) return;
    QPrintDialog box(printer_.get(), this);
    box.setObjectName("PrintDialog");
    if (RunModal(box) != QDialog::Accepted) return;
    printer_->setFullPage(true);
    sheets::paintPages(pages_, *printer_);
}

}  // namespace wm
