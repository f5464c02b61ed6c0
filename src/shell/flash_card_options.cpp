#include "shell/flash_card_options.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/quiz_options.h"
#include "shell/screens.h"

namespace wm {

FlashCardOptions::FlashCardOptions(QWidget* parent) : Backdrop("images/wm-back.jpg", parent) {
    setObjectName("FlashCardOptions");
    setWindowTitle("Flash Card Options");
    SharedState& s = Shared();
    s.ListChanged = kTrue;

    QVBoxLayout* layout = CentredPanel(this, PanelShape{}, "Flash Card Options");
    QWidget* panel = layout->parentWidget();

    auto* order = new QGroupBox("Card Order", panel);
    order->setFont(ScreenFont(13, true));
    auto* o = new QVBoxLayout(order);
    Option1 = new QRadioButton("Alphabetical", order);
    Option1->setObjectName("Option1");
    Option2 = new QRadioButton("Alphabetical, starting with the letter ...", order);
    Option2->setObjectName("Option2");
    Option3 = new QRadioButton("Random", order);
    Option3->setObjectName("Option3");
    Letter = new QLineEdit("A", order);
    Letter->setObjectName("Letter");
    Letter->setMaxLength(1);
    Letter->setFont(ScreenFont(16, true));
    Letter->setFixedWidth(Letter->fontMetrics().horizontalAdvance("WW") + 24);
    Letter->setAlignment(Qt::AlignCenter);
    Letter->hide();
    Letter->installEventFilter(this);
    auto* letterRow = new QHBoxLayout;
    letterRow->addWidget(Option2);
    letterRow->addWidget(Letter);
    letterRow->addStretch(1);
    o->addWidget(Option1);
    o->addLayout(letterRow);
    o->addWidget(Option3);
    Option1->setChecked(true);
    layout->addWidget(order);

    auto* sides = new QGroupBox("What's on the Cards?", panel);
    sides->setFont(ScreenFont(13, true));
    auto* sd = new QVBoxLayout(sides);
    Option4 = new QRadioButton("Show me the words and I'll guess the meanings", sides);
    Option4->setObjectName("Option4");
    Option6 = new QRadioButton("Show me the meaning and let me guess the word", sides);
    Option6->setObjectName("Option6");
    sd->addWidget(Option4);
    sd->addWidget(Option6);
    Option6->setChecked(true);
    layout->addWidget(sides);
    for (auto* r : {Option1, Option2, Option3, Option4, Option6}) r->setFont(ScreenFont(14));

    auto pickMode = [this](int mode) {
        mode_ = mode;
        Letter->setVisible(mode == 3);
        if (mode == 3) Letter->setFocus();
    };
    connect(Option1, &QRadioButton::clicked, this, [=] { pickMode(1); });
    connect(Option2, &QRadioButton::clicked, this, [=] { pickMode(3); });
    connect(Option3, &QRadioButton::clicked, this, [=] { pickMode(2); });
    // Deliberate: both sides set the flag to -1, and the card screen covers the word either way.
    for (auto* r : {Option4, Option6})
        connect(r, &QRadioButton::clicked, this, [] { Shared().ListChanged = kTrue; });
    layout->addStretch(1);

    NavigationRow nav = MakeNavigationRow(panel, "<Back", "Next>");
    Command1 = nav.onward;
    Command2 = nav.back;
    Command1->setDefault(true);
    layout->addLayout(nav.layout);
    connect(Command1, &QPushButton::clicked, this, &FlashCardOptions::continueOn);
    connect(Command2, &QPushButton::clicked, this, &FlashCardOptions::goBack);
    setFocusPolicy(Qt::StrongFocus);
}

bool FlashCardOptions::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Letter && event->type() == QEvent::KeyPress) {
        auto* k = static_cast<QKeyEvent*>(event);
        const QString t = k->text();
        const bool editing = k->key() == Qt::Key_Backspace || k->key() == Qt::Key_Delete ||
                             k->key() == Qt::Key_Left || k->key() == Qt::Key_Right ||
                             k->key() == Qt::Key_Tab || k->key() == Qt::Key_Escape ||
                             k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter;
        if (editing || t.isEmpty()) return false;
        const QChar c = t.at(0);
        if (!(c.isLetter() && c.unicode() < 128)) {
            dialogs().message("Letters only, please!", "Hey!");
            Letter->setText("A");
            return true;
        }
        Letter->setText(t.left(1));
        return true;
    }
    return Backdrop::eventFilter(watched, event);
}

void FlashCardOptions::continueOn() {
    SharedState& s = Shared();
    if (mode_ == 3 && Letter->text().trimmed().isEmpty()) {
        dialogs().message("You need to choose a starting letter!", "Hey!");
        return;
    }
    s.FlashCardMode = short(mode_);
    s.StartLetter = fromQ(Letter->text().left(1));
    OpenScreen("GameOptions", this);
}

void FlashCardOptions::goBack() {
    OpenScreen("Title", this);
}

void FlashCardOptions::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) {
        AskEndProgram();
        return;
    }
    Backdrop::keyPressEvent(e);
}

}  // namespace wm
