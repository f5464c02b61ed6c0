#include "teacher/make_new_list.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/list_file.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/fl_form.h"
#include "shell/game_frame.h"
#include "shell/screens.h"
#include "teacher/editor_toolbar.h"
#include "teacher/teacher_kit.h"

namespace wm {

namespace {
const char* kBlankList =
    "Unable to save a blank word list. Please add one or more words to continue...)";
}

MakeNewList::MakeNewList(QWidget* parent) : Backdrop("images/wm-back.jpg", parent) {
    SharedState& s = Shared();
    s.CurrentListName = s.NewListName;
    name_ = s.NewListName;
    wordsOnly_ = s.WordsOnly == kTrue;
    setWindowTitle(toQ(name_));
    Guarded([&] { FileEmpty = IsEmptyStore(ReadAllLines(ListPath())); });

    Toolbar1 = MakeEditorToolbar(this, true,
                                 {{"Add Word", [this] { addWord(); }},
                                  {"Delete Word", [this] { deleteWord(); }},
                                  {"Edit Word", [this] { editWord(); }},
                                  {"Rename List", [this] { renameList(); }},
                                  {"Save and Quit", [this] { saveAndQuit(); }},
                                  {"Quit", [this] { quitScreen(); }},
                                  {"Foreign", [this] { foreign(); }}});
    QVBoxLayout* layout = CentrePanel(this, 7, Toolbar1);

    nameLabel_ = MakeHeading(toQ(name_), this, 24);
    nameLabel_->setObjectName("ListName");
    nameLabel_->setAlignment(Qt::AlignCenter);
    layout->addWidget(nameLabel_);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(28);
    auto* left = new QVBoxLayout;
    left->setSpacing(8);
    WordLabel = NamedLabel("WordLabel", {}, this, 14, true);
    WordLabel->setStyleSheet("color: #2f6fc4;");
    left->addWidget(WordLabel);
    left->addWidget(NamedLabel("Label1", "Word:", this, 13, true));
    TheWord = new QLineEdit(this);
    TheWord->setObjectName("TheWord");
    TheWord->setFont(ScreenFont(15));
    left->addWidget(TheWord);
    meaningLabel_ = NamedLabel("Label2", "Definition:", this, 13, true);
    left->addWidget(meaningLabel_);
    TheMeaning = new QLineEdit(this);
    TheMeaning->setObjectName("TheMeaning");
    TheMeaning->setFont(ScreenFont(15));
    left->addWidget(TheMeaning);
    left->addWidget(NamedLabel(
        "Hint", "Press Enter after the definition to put the word on the list.", this, 11));
    left->addStretch();
    auto* right = new QVBoxLayout;
    TotalWordsLabel = NamedLabel("TotalWordsLabel", {}, this, 13, true);
    right->addWidget(TotalWordsLabel);
    WordList1 = NamedList("WordList1", this);
    right->addWidget(WordList1, 1);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    layout->addLayout(columns, 1);

    if (wordsOnly_) {
        // A words-only list carries the marker as every definition.
        TheMeaning->setText(kWordsOnlyMarker);
        TheMeaning->hide();
        meaningLabel_->hide();
    }
    connect(TheWord, &QLineEdit::returnPressed, this, &MakeNewList::wordEntered);
    connect(TheMeaning, &QLineEdit::returnPressed, this, &MakeNewList::meaningEntered);
    connect(WordList1, &QListWidget::itemDoubleClicked, this, &MakeNewList::editWord);
    refreshLabels();
    // The screen takes the focus as it is shown; it passes it on to the word, so the teacher
    // can type (and press Enter) at once.
    setFocusProxy(TheWord);
    TheWord->setFocus();
}

QString MakeNewList::caption() const {
    return nameLabel_->text();
}
QString MakeNewList::totalText() const {
    return TotalWordsLabel->text();
}
QString MakeNewList::numberText() const {
    return WordLabel->text();
}

void MakeNewList::refreshLabels() {
    const int n = static_cast<int>(pairs_.size());
    TotalWordsLabel->setText(QString("Total words in this list: %1").arg(n));
    WordLabel->setText(QString("Word Number: %1").arg(n + 1));
}

bool MakeNewList::tryAdd() {
    const std::optional<std::string> word = StorableText(TheWord->text(), TheWord);
    if (!word) return false;
    const std::optional<std::string> meaning = StorableText(TheMeaning->text(), TheMeaning);
    if (!meaning) return false;
    const std::string& w = *word;
    const std::string& m = *meaning;
    const PairCheck check = CheckPair(pairs_, w, m, wordsOnly_);
    if (check.clash != Clash::None) {
        dialogs().message(toQ(check.message));
        QLineEdit* box = check.clash == Clash::Word ? TheWord : TheMeaning;
        box->setFocus();
        box->selectAll();
        return false;
    }
    pairs_.emplace_back(w, m);
    WordList1->addItem(toQ(w));
    TheWord->clear();
    TheMeaning->setText(wordsOnly_ ? kWordsOnlyMarker : "");
    refreshLabels();
    TheWord->setFocus();
    return true;
}

void MakeNewList::wordEntered() {
    if (TheWord->text().isEmpty()) {
        dialogs().message("You need to type a word!");
        TheWord->setFocus();
        return;
    }
    if (TheMeaning->text().isEmpty()) {
        TheMeaning->setFocus();
        return;
    }
    tryAdd();
}

void MakeNewList::meaningEntered() {
    if (TheWord->text().isEmpty()) {
        dialogs().message("You need to type a word!");
        TheWord->setFocus();
        return;
    }
    if (TheMeaning->text().isEmpty()) {
        dialogs().message("You need to type a definition!");
        return;
    }
    tryAdd();
}

void MakeNewList::addWord() {
    if (TheWord->text().isEmpty() || TheMeaning->text().isEmpty()) {
        // "title type" is how this message has always read.
        dialogs().message(
            "To add a word, you must title type a word and definition in the spaces below.",
            "Hey!");
        return;
    }
    tryAdd();
}

void MakeNewList::addPending() {
    if (!TheWord->text().isEmpty() && !TheMeaning->text().isEmpty()) tryAdd();
}

void MakeNewList::deleteWord() {
    const int row = WordList1->currentRow();
    if (row < 0 || !WordList1->currentItem()->isSelected()) {
        dialogs().message("You must title choose a word to delete from the list below.");
        return;
    }
    if (!dialogs().yesNo("Are you sure you want to delete the word " + toQ(pairs_[row].first),
                         "Confirm Delete"))
        return;
    pairs_.erase(pairs_.begin() + row);
    delete WordList1->takeItem(row);
    refreshLabels();
}

void MakeNewList::editWord() {
    const int row = WordList1->currentRow();
    if (row < 0 || !WordList1->currentItem()->isSelected()) {
        dialogs().message("You need to choose a word to edit from the list below.");
        return;
    }
    TheWord->setText(toQ(pairs_[row].first));
    TheMeaning->setText(toQ(pairs_[row].second));
    pairs_.erase(pairs_.begin() + row);
    delete WordList1->takeItem(row);
    refreshLabels();
    // The screen takes the focus as it is shown; it passes it on to the word, so the teacher
    // can type (and press Enter) at once.
    setFocusProxy(TheWord);
    TheWord->setFocus();
}

void MakeNewList::renameList() {
    std::optional<QString> typed = dialogs().input("What would you like to name this list?",
                                                   "Change Vocabulary List Name", toQ(name_));
    if (!typed) return;
    const std::optional<std::string> storable = StorableText(*typed);
    if (!storable) return;
    std::string refusal;
    if (!Guarded([&] {
            refusal = RenameRefusal(name_, *storable,
                                    [](const std::string& n) { return NameExists(ListPath(), n); });
        }))
        return;
    if (!refusal.empty()) {
        dialogs().message(toQ(refusal));
        return;
    }
    name_ = Trim(*storable);
    Shared().CurrentListName = name_;
    nameLabel_->setText(toQ(name_));
    setWindowTitle(toQ(name_));
    dialogs().message("List name changed successfully.");
}

void MakeNewList::save() {
    const std::string code = Shared().ListLanguage;
    const std::string stored = code.empty() ? name_ : "[" + code + "]" + name_;
    const bool ok = Guarded([&] {
        WriteAllLines(ListPath(), SaveNewList(ReadAllLines(ListPath()),
                                              NewListRecord(stored, pairs_, FileEmpty)));
    });
    if (ok) OpenScreen("Manager", this);
}

void MakeNewList::saveAndQuit() {
    addPending();
    if (pairs_.empty()) {
        dialogs().message(kBlankList);
        return;
    }
    if (dialogs().yesNo("Are you sure you want to save this list?", "Confirm Save")) save();
}

void MakeNewList::quitScreen() {
    addPending();
    Beep();
    if (!dialogs().yesNo("Save this list before leaving?", "Save?")) {
        OpenScreen("Manager", this);
        return;
    }
    if (pairs_.empty()) {
        dialogs().message(kBlankList);
        return;
    }
    save();
}

void MakeNewList::foreign() {
    Shared().CurrentGame = "create";
    FLForm palette(this);
    if (RunModal(palette) != QDialog::Accepted || Shared().ForeignChar.empty()) return;
    FLForm::InsertAt(palette.button() == 1 ? TheMeaning : TheWord, toQ(Shared().ForeignChar));
}

}  // namespace wm
