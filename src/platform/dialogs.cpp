#include "platform/dialogs.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "platform/screen_metrics.h"

namespace wm {

namespace {

const QString kDefaultTitle = QStringLiteral("Wordmere");

QString titleOr(const QString& title) {
    return title.isEmpty() ? kDefaultTitle : title;
}

// The pupils are children on a full-screen program: boxes get a plain, larger font.
void styleBox(QWidget* box) {
    QFont font = box->font();
    font.setFamilies(
        {QStringLiteral("DejaVu Sans"), QStringLiteral("Arial"), QStringLiteral("Sans Serif")});
    font.setPointSize(ScreenMetrics::scaledPoint(13));
    box->setFont(font);
}

// Our own message box: QMessageBox caps its width and clips a long line set in a large font.
// The text wraps at a width that suits its length, and the buttons match the program's look.
int boxRun(const QString& title, const QString& text, bool question) {
    QDialog box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setWindowTitle(titleOr(title));
    box.setModal(true);
    styleBox(&box);
    box.setStyleSheet(QStringLiteral(
        "QDialog#MessageBox { background: #fbfcff; border: 3px solid #5d9de8; }"
        "QLabel#BoxTitle { color: #1f3f6a; font-weight: bold; }"
        "QLabel#BoxText { color: #1d2a3a; }"
        "QPushButton { color: white; border: none; border-radius: 12px; padding: 8px 30px;"
        "  font-weight: bold; background: #3d7fd6; min-width: 5em; }"
        "QPushButton:default { background: #2f9a3f; }"
        "QPushButton:hover { background: #5d9de8; }"));
    const QFontMetrics metrics(box.font());
    const int avg = metrics.averageCharWidth();
    const int natural = metrics.horizontalAdvance(text) + avg;
    const int width = std::clamp(natural, avg * 24, avg * 46);

    auto* layout = new QVBoxLayout(&box);
    layout->setContentsMargins(28, 22, 28, 20);
    layout->setSpacing(16);
    if (!title.isEmpty()) {
        auto* heading = new QLabel(title, &box);
        heading->setObjectName(QStringLiteral("BoxTitle"));
        layout->addWidget(heading);
    }
    auto* label = new QLabel(text, &box);
    label->setObjectName(QStringLiteral("BoxText"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setFixedWidth(width);
    layout->addWidget(label);
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* yes = new QPushButton(question ? QStringLiteral("Yes") : QStringLiteral("OK"), &box);
    yes->setDefault(true);
    yes->setAutoDefault(true);
    QObject::connect(yes, &QPushButton::clicked, &box, &QDialog::accept);
    row->addWidget(yes);
    if (question) {
        auto* no = new QPushButton(QStringLiteral("No"), &box);
        no->setAutoDefault(false);
        QObject::connect(no, &QPushButton::clicked, &box, &QDialog::reject);
        row->addWidget(no);
    }
    row->addStretch();
    layout->addLayout(row);
    box.adjustSize();
    if (QWidget* parent = box.parentWidget()) {
        const QRect frame = parent->window()->geometry();
        box.move(frame.center() - QPoint(box.width() / 2, box.height() / 2));
    }
    yes->setFocus();
    return box.exec();
}

}  // namespace

void QtDialogs::message(const QString& text, const QString& title) {
    boxRun(title, text, false);
}

bool QtDialogs::yesNo(const QString& text, const QString& title) {
    // Escape closes the box as No.
    return boxRun(title, text, true) == QDialog::Accepted;
}

std::optional<QString> QtDialogs::input(const QString& prompt, const QString& title,
                                        const QString& initial) {
    QInputDialog box(QApplication::activeWindow());
    box.setWindowTitle(titleOr(title));
    box.setLabelText(prompt);
    box.setInputMode(QInputDialog::TextInput);
    box.setTextEchoMode(QLineEdit::Normal);
    box.setTextValue(initial);
    styleBox(&box);
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return box.textValue();
}

QString QtDialogs::openFile(const QString& title, const QString& filter, const QString& folder) {
    QFileDialog box(QApplication::activeWindow(), titleOr(title), folder, filter);
    box.setFileMode(QFileDialog::ExistingFile);
    box.setAcceptMode(QFileDialog::AcceptOpen);
    styleBox(&box);
    if (box.exec() != QDialog::Accepted) return {};
    const QStringList chosen = box.selectedFiles();
    return chosen.isEmpty() ? QString() : chosen.first();
}

void ScriptedDialogs::record(const QString& kind, const QString& text, const QString& title) {
    shown.push_back({kind, text, title});
    if (whileOpen) whileOpen(shown.back());
}

void ScriptedDialogs::message(const QString& text, const QString& title) {
    record(QStringLiteral("message"), text, title);
}

bool ScriptedDialogs::yesNo(const QString& text, const QString& title) {
    record(QStringLiteral("yesNo"), text, title);
    if (yesNoAnswers.empty()) return otherwiseYes ? otherwiseYes(text) : false;
    const bool answer = yesNoAnswers.front();
    yesNoAnswers.pop_front();
    return answer;
}

std::optional<QString> ScriptedDialogs::input(const QString& prompt, const QString& title,
                                              const QString& initial) {
    record(QStringLiteral("input"), prompt, title);
    if (inputAnswers.empty()) return std::nullopt;
    const bool cancelled = !inputAnswers.front().has_value();
    QString text = cancelled ? QString() : *inputAnswers.front();
    inputAnswers.pop_front();
    if (cancelled) return std::nullopt;
    return text;
}

QString ScriptedDialogs::openFile(const QString& title, const QString& filter,
                                  const QString& folder) {
    record(QStringLiteral("openFile"), title, title);
    if (fileAnswers.empty()) return {};
    QString answer = std::move(fileAnswers.front());
    fileAnswers.pop_front();
    return answer;
}

QStringList ScriptedDialogs::texts() const {
    QStringList all;
    for (const Shown& s : shown) all << s.text;
    return all;
}

QString ScriptedDialogs::last() const {
    return shown.empty() ? QString() : shown.back().text;
}

bool ScriptedDialogs::saw(const QString& text) const {
    for (const Shown& s : shown) {
        if (s.text == text) return true;
    }
    return false;
}

}  // namespace wm
