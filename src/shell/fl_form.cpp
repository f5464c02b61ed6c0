#include "shell/fl_form.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/text.h"
#include "shell/style.h"

namespace wm {

namespace {
constexpr int kCells = 90;
constexpr int kFirstCode = 191;
constexpr int kLastCode = 255;
constexpr int kColumns = 15;
const char* kCellStyle =
    "QLabel { background: white; border: 2px solid #c9d6e6; border-radius: 6px; }";
const char* kPickedStyle =
    "QLabel { background: #fff3b0; border: 3px solid #e0a800; border-radius: 6px; }";
}  // namespace

FLForm::FLForm(QWidget* parent) : QDialog(parent) {
    setObjectName("FLForm");
    setWindowTitle("Foreign Language Characters");
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    auto* frame = new QGroupBox("Foreign Language Characters", this);
    frame->setFont(ScreenFont(12, true));
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(4);
    const int cell = ScreenFont(14).pointSize() * 2;
    for (int i = 0; i < kCells; ++i) {
        auto* l = new QLabel(frame);
        l->setObjectName(QString("Label1_%1").arg(i));
        l->setFixedSize(cell, cell);
        l->setAlignment(Qt::AlignCenter);
        l->setFont(ScreenFont(14, true));
        l->setStyleSheet(kCellStyle);
        l->installEventFilter(this);
        if (i <= kLastCode - kFirstCode) l->setText(toQ(Chr(kFirstCode + i)));
        grid->addWidget(l, i / kColumns, i % kColumns);
        Label1.push_back(l);
    }
    layout->addWidget(frame);

    // The editors insert into the word or the definition; games have one target.
    const std::string g = LCase(Shared().CurrentGame);
    const bool editor = g == "create" || g == "addword" || g == "editword";
    auto* buttons = new QHBoxLayout;
    FLButton[0] = MakeButton(editor ? "Insert in Word" : "Insert", this, true);
    FLButton[1] = MakeButton("Insert in Definition", this, true);
    Command1 = MakeButton("Cancel", this);
    FLButton[0]->setObjectName("FLButton0");
    FLButton[1]->setObjectName("FLButton1");
    Command1->setObjectName("Command1");
    FLButton[1]->setVisible(editor && Shared().WordsOnly != kTrue);
    buttons->addWidget(FLButton[0]);
    buttons->addWidget(FLButton[1]);
    buttons->addStretch();
    buttons->addWidget(Command1);
    layout->addLayout(buttons);
    connect(FLButton[0], &QPushButton::clicked, this, [this] { insert(0); });
    connect(FLButton[1], &QPushButton::clicked, this, [this] { insert(1); });
    connect(Command1, &QPushButton::clicked, this, &QDialog::reject);
}

void FLForm::pickCell(int index) {
    if (index < 0 || index >= Label1.size()) return;
    if (picked_ >= 0) Label1[picked_]->setStyleSheet(kCellStyle);
    picked_ = index;
    Label1[index]->setStyleSheet(kPickedStyle);
}

void FLForm::insert(int button) {
    if (picked_ < 0) return;
    // An empty cell inserts nothing, but still closes the box.
    Shared().ForeignChar = fromQ(Label1[picked_]->text());
    button_ = button;
    accept();
}

bool FLForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const int i = Label1.indexOf(qobject_cast<QLabel*>(watched));
        if (i >= 0) pickCell(i);
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        const int i = Label1.indexOf(qobject_cast<QLabel*>(watched));
        if (i >= 0) {
            pickCell(i);
            insert(0);
        }
    }
    return QDialog::eventFilter(watched, event);
}

void FLForm::InsertAt(QLineEdit* box, const QString& character) {
    if (!box) return;
    const QString text = box->text();
    const int start = box->hasSelectedText() ? box->selectionStart() : box->cursorPosition();
    box->setText(text.left(start) + character + text.mid(start));
    box->setFocus();
    box->setCursorPosition(box->text().size());
}

}  // namespace wm
