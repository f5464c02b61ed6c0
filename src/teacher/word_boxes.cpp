#include "teacher/word_boxes.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/list_file.h"
#include "core/shared_state.h"
#include "platform/text.h"
#include "shell/fl_form.h"
#include "shell/game_frame.h"
#include "shell/style.h"
#include "teacher/teacher_kit.h"

namespace wm {

WordBox::WordBox(Kind kind, QWidget* parent) : QDialog(parent), kind_(kind) {
    setObjectName(kind == Edit ? "EditWord" : "AddWord");
    QVBoxLayout* layout = DialogBody(this, kind == Edit ? "Edit Word" : "Add Word");
    SharedState& s = Shared();
    const bool wordsOnly = s.WordsOnly == kTrue;
    auto* form = new QFormLayout;
    form->setSpacing(10);
    word_ = new QLineEdit(this);
    word_->setObjectName(kind == Edit ? "TheWord" : "Text1");
    word_->setFont(ScreenFont(14));
    meaning_ = new QLineEdit(this);
    meaning_->setObjectName(kind == Edit ? "TheMeaning" : "Text2");
    meaning_->setFont(ScreenFont(14));
    auto* meaningLabel = NamedLabel("Label2", "Definition:", this, 13, true);
    form->addRow(NamedLabel("Label1", "Word:", this, 13, true), word_);
    form->addRow(meaningLabel, meaning_);
    layout->addLayout(form);
    if (kind == Edit) {
        word_->setText(toQ(s.TheWord));
        meaning_->setText(toQ(s.TheMeaning));
    }
    if (wordsOnly) {
        if (kind == Add) meaning_->setText(kWordsOnlyMarker);
        meaning_->hide();
        meaningLabel->hide();
    }
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command2", "Cancel", this);
    auto* palette = NamedButton("Command3", "Foreign Characters...", this);
    auto* ok = NamedButton("Command1", "OK", this, true);
    row->addWidget(cancel);
    row->addWidget(palette);
    row->addStretch();
    row->addWidget(ok);
    layout->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, &WordBox::confirm);
    connect(palette, &QPushButton::clicked, this, &WordBox::foreign);
    // Enter in the word moves on to the definition; Enter there is OK. With the definition
    // hidden (a words-only list) Enter in the word is OK.
    EnterMovesOn({word_, meaning_});
    word_->setFocus();
    WidenToScreen(this, 0.4);
}

void WordBox::confirm() {
    SharedState& s = Shared();
    if (kind_ == Add && (word_->text().isEmpty() || meaning_->text().isEmpty())) {
        Beep();
        return;
    }
    const std::optional<std::string> word = StorableText(word_->text(), word_);
    if (!word) return;
    const std::optional<std::string> meaning = StorableText(meaning_->text(), meaning_);
    if (!meaning) return;
    s.TheWord = *word;
    s.TheMeaning = *meaning;
    accept();
}

void WordBox::foreign() {
    Shared().CurrentGame = kind_ == Edit ? "editword" : "addword";
    FLForm palette(this);
    if (RunModal(palette) != QDialog::Accepted || Shared().ForeignChar.empty()) return;
    FLForm::InsertAt(palette.button() == 1 ? meaning_ : word_, toQ(Shared().ForeignChar));
}

}  // namespace wm
