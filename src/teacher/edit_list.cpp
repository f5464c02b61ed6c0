#include "teacher/edit_list.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/list_file.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/game_frame.h"
#include "shell/screens.h"
#include "teacher/editor_toolbar.h"
#include "teacher/teacher_kit.h"
#include "teacher/word_boxes.h"

namespace wm {

EditList::EditList(QWidget* parent) : Backdrop("images/wm-back.jpg", parent) {
    SharedState& s = Shared();
    Guarded(
        [&] { pairs_ = ReadRecord(ReadAllLines(ListPath()), s.CurrentListName, &storedName_); });
    caption_ = storedName_;
    s.WordCount = static_cast<int>(pairs_.size());
    wordsOnly_ = !pairs_.empty() && pairs_.front().second == kWordsOnlyMarker;
    s.WordsOnly = wordsOnly_ ? kTrue : kFalse;
    SortLikeListBox(pairs_);
    setWindowTitle(toQ(caption_));

    Toolbar1 = MakeEditorToolbar(this, true,
                                 {{"Add Word", [this] { addWord(); }},
                                  {"Delete Word", [this] { deleteWord(); }},
                                  {"Edit Word", [this] { editWord(); }},
                                  {"Rename List", [this] { renameList(); }},
                                  {"Save and Quit", [this] { saveAndQuit(); }},
                                  {"Quit", [this] { quitScreen(); }}});
    QVBoxLayout* layout = CentrePanel(this, 7, Toolbar1);
    nameLabel_ = MakeHeading(toQ(caption_), this, 24);
    nameLabel_->setObjectName("ListName");
    nameLabel_->setAlignment(Qt::AlignCenter);
    layout->addWidget(nameLabel_);
    TotalLabel = NamedLabel("TotalLabel", {}, this, 13, true);
    layout->addWidget(TotalLabel);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(24);
    WordList = NamedList("WordList", this);
    columns->addWidget(WordList, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(NamedLabel("Label1", "Definition:", this, 13, true));
    DefLabel = NamedLabel("DefLabel", {}, this, 16);
    DefLabel->setStyleSheet(
        "background: #f3f7fc; border: 1px solid #c9d6e8; border-radius: 10px; padding: 14px;");
    DefLabel->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    DefLabel->setCursor(Qt::PointingHandCursor);
    DefLabel->setToolTip("Click to edit this word");
    DefLabel->installEventFilter(this);
    right->addWidget(DefLabel, 1);
    columns->addLayout(right, 1);
    layout->addLayout(columns, 1);
    if (wordsOnly_) DefLabel->hide();
    connect(WordList, &QListWidget::currentRowChanged, this, [this](int row) {
        DefLabel->setText(row >= 0 && row < static_cast<int>(pairs_.size())
                              ? toQ(pairs_[row].second)
                              : QString());
    });
    connect(WordList, &QListWidget::itemDoubleClicked, this, &EditList::editWord);
    fill(0);
}

QString EditList::caption() const {
    return nameLabel_->text();
}
QString EditList::definition() const {
    return DefLabel->text();
}
QString EditList::totalText() const {
    return TotalLabel->text();
}

void EditList::select(int row) {
    WordList->setCurrentRow(row);
}

int EditList::chosen() const {
    QListWidgetItem* item = WordList->currentItem();
    return item && item->isSelected() ? WordList->currentRow() : -1;
}

void EditList::fill(int selectRow) {
    WordList->clear();
    for (const auto& p : pairs_) WordList->addItem(toQ(p.first));
    refreshTotal();
    if (!pairs_.empty()) WordList->setCurrentRow(std::clamp(selectRow, 0, int(pairs_.size()) - 1));
}

void EditList::refreshTotal() {
    Shared().WordCount = static_cast<int>(pairs_.size());
    TotalLabel->setText(QString("Total Words In This List: %1").arg(pairs_.size()));
}

void EditList::addWord() {
    WordBox box(WordBox::Add, this);
    if (RunModal(box) != QDialog::Accepted) return;
    const SharedState& s = Shared();
    const PairCheck check = CheckPair(pairs_, s.TheWord, s.TheMeaning, wordsOnly_);
    if (check.clash != Clash::None) {
        dialogs().message(toQ(check.message));
        return;
    }
    pairs_.emplace_back(s.TheWord, s.TheMeaning);
    const WordPair added = pairs_.back();
    SortLikeListBox(pairs_);
    fill(static_cast<int>(std::find(pairs_.begin(), pairs_.end(), added) - pairs_.begin()));
}

void EditList::deleteWord() {
    const int row = chosen();
    if (row < 0) {
        dialogs().message("You must title choose a word to delete from the list below.");
        return;
    }
    if (!dialogs().yesNo("Are you sure you want to delete the word " + toQ(pairs_[row].first),
                         "Confirm Delete"))
        return;
    pairs_.erase(pairs_.begin() + row);
    // The next line takes the selection, or the first when the last one went.
    fill(row < static_cast<int>(pairs_.size()) ? row : 0);
}

void EditList::editWord() {
    const int row = chosen();
    if (row < 0) {
        dialogs().message("You need to choose a word to edit from the list below.");
        return;
    }
    SharedState& s = Shared();
    s.TheWord = pairs_[row].first;
    s.TheMeaning = pairs_[row].second;
    WordBox box(WordBox::Edit, this);
    if (RunModal(box) != QDialog::Accepted) return;
    const PairCheck check = CheckPair(pairs_, s.TheWord, s.TheMeaning, wordsOnly_, row);
    if (check.clash != Clash::None) {
        // Nothing is reverted: the line stays chosen for the teacher to correct.
        dialogs().message(toQ(check.message));
        return;
    }
    pairs_[row] = {s.TheWord, s.TheMeaning};
    const WordPair edited = pairs_[row];
    SortLikeListBox(pairs_);
    fill(static_cast<int>(std::find(pairs_.begin(), pairs_.end(), edited) - pairs_.begin()));
}

void EditList::renameList() {
    const std::string plain = PlainName(caption_);
    std::optional<QString> typed = dialogs().input("What would you like to name this list?",
                                                   "Change Vocabulary List Name", toQ(plain));
    if (!typed) return;
    const std::optional<std::string> storable = StorableText(*typed);
    if (!storable) return;
    std::string refusal;
    if (!Guarded([&] {
            refusal = RenameRefusal(plain, *storable,
                                    [](const std::string& n) { return NameExists(ListPath(), n); });
        }))
        return;
    if (!refusal.empty()) {
        dialogs().message(toQ(refusal));
        return;
    }
    // A foreign list keeps its language; the new name is only written by the save.
    const std::string prefix =
        caption_.size() > 4 && HasPrefix(caption_) ? caption_.substr(0, 3) : "";
    caption_ = prefix + Trim(*storable);
    nameLabel_->setText(toQ(caption_));
    setWindowTitle(toQ(caption_));
    dialogs().message("List name changed successfully.");
}

void EditList::saveAndQuit() {
    // No blank-list test here, unlike a new list: a list emptied and saved keeps its name line.
    if (!dialogs().yesNo("Save changes to list?", "Save and quit?")) return;
    const bool ok = Guarded([&] {
        WriteAllLines(ListPath(),
                      SaveEditedList(ReadAllLines(ListPath()), storedName_, caption_, pairs_));
    });
    if (ok) OpenScreen("Manager", this);
}

void EditList::quitScreen() {
    if (dialogs().yesNo("Quit without saving changes?", "Quit?")) OpenScreen("Manager", this);
}

bool EditList::eventFilter(QObject* watched, QEvent* event) {
    if (watched == DefLabel && event->type() == QEvent::MouseButtonRelease) editWord();
    return Backdrop::eventFilter(watched, event);
}

}  // namespace wm
