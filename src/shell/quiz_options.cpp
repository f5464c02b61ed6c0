#include "shell/quiz_options.h"

#include <QApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "shell/screens.h"

namespace wm {

void AskEndProgram() {
    if (!dialogs().yesNo("Do you want to quit?")) return;
    EndProgram();
}

QuizOptions::QuizOptions(QWidget* parent) : Backdrop("images/wm-back.jpg", parent) {
    setObjectName("QuizOptions");
    setWindowTitle("Quiz Options");
    QVBoxLayout* layout = CentredPanel(this, PanelShape{}, "Quiz Options");
    QWidget* panel = layout->parentWidget();

    auto* kinds = new QGroupBox("What do you want to be quizzed on?", panel);
    kinds->setFont(ScreenFont(13, true));
    auto* k = new QVBoxLayout(kinds);
    WordQuiz = new QRadioButton("Quiz me on Words", kinds);
    WordQuiz->setObjectName("WordQuiz");
    DefinitionQuiz = new QRadioButton("Quiz me on Meanings", kinds);
    DefinitionQuiz->setObjectName("DefinitionQuiz");
    RandomQuiz = new QRadioButton("Quiz on both Words and Meanings", kinds);
    RandomQuiz->setObjectName("RandomQuiz");
    for (auto* r : {WordQuiz, DefinitionQuiz, RandomQuiz}) {
        r->setFont(ScreenFont(14));
        k->addWidget(r);
    }
    WordQuiz->setChecked(true);
    layout->addWidget(kinds);

    auto* count = new QGroupBox("How many questions?", panel);
    count->setFont(ScreenFont(13, true));
    auto* c = new QHBoxLayout(count);
    QuestionBar = new QSlider(Qt::Horizontal, count);
    QuestionBar->setObjectName("QuestionBar");
    QuestionBar->setRange(1, 50);
    QuestionBar->setValue(10);
    QuestionBar->setPageStep(5);
    QuestionLabel = new QLabel("10", count);
    QuestionLabel->setObjectName("QuestionLabel");
    QuestionLabel->setFont(ScreenFont(22, true));
    QuestionLabel->setStyleSheet("color: #2f6fc4;");
    QuestionLabel->setMinimumWidth(QuestionLabel->fontMetrics().horizontalAdvance("000") + 8);
    QuestionLabel->setAlignment(Qt::AlignCenter);
    connect(QuestionBar, &QSlider::valueChanged, QuestionLabel, qOverload<int>(&QLabel::setNum));
    c->addWidget(QuestionBar, 1);
    c->addWidget(QuestionLabel);
    layout->addWidget(count);
    layout->addStretch(1);

    NavigationRow nav = MakeNavigationRow(panel, "<Back", "Next>");
    Command1 = nav.onward;
    Command2 = nav.back;
    Command1->setDefault(true);
    layout->addLayout(nav.layout);
    connect(Command1, &QPushButton::clicked, this, &QuizOptions::continueOn);
    connect(Command2, &QPushButton::clicked, this, &QuizOptions::goBack);
    setFocusPolicy(Qt::StrongFocus);
}

void QuizOptions::continueOn() {
    SharedState& s = Shared();
    s.QuizType = short(WordQuiz->isChecked() ? 1 : DefinitionQuiz->isChecked() ? 2 : 3);
    s.QuizLength = short(QuestionBar->value());
    OpenScreen("GameOptions", this);
}

void QuizOptions::goBack() {
    OpenScreen("Title", this);
}

void QuizOptions::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) {
        AskEndProgram();
        return;
    }
    Backdrop::keyPressEvent(e);
}

}  // namespace wm
