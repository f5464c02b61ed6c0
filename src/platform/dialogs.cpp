#include "platform/dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontMetrics>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

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

// QMessageBox wraps its text at a narrow width of its own; with a large font that makes a
// tall thin box. Let the text run to about forty characters a line.
void widenText(QMessageBox& box, const QString& text) {
    const QFontMetrics metrics(box.font());
    int longest = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        longest = std::max(longest, metrics.horizontalAdvance(line));
    }
    const int width = std::clamp(longest + metrics.averageCharWidth(),
                                 metrics.averageCharWidth() * 12, metrics.averageCharWidth() * 40);
    if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        label->setMinimumWidth(width);
    }
}

}  // namespace

void QtDialogs::message(const QString& text, const QString& title) {
    QMessageBox box(QMessageBox::Information, titleOr(title), text, QMessageBox::Ok,
                    QApplication::activeWindow());
    styleBox(&box);
    widenText(box, text);
    box.exec();
}

bool QtDialogs::yesNo(const QString& text, const QString& title) {
    QMessageBox box(QMessageBox::Question, titleOr(title), text, QMessageBox::Yes | QMessageBox::No,
                    QApplication::activeWindow());
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    styleBox(&box);
    widenText(box, text);
    return box.exec() == QMessageBox::Yes;
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

void ScriptedDialogs::message(const QString& text, const QString& title) {
    shown.push_back({QStringLiteral("message"), text, title});
}

bool ScriptedDialogs::yesNo(const QString& text, const QString& title) {
    shown.push_back({QStringLiteral("yesNo"), text, title});
    if (yesNoAnswers.empty()) return false;
    const bool answer = yesNoAnswers.front();
    yesNoAnswers.pop_front();
    return answer;
}

std::optional<QString> ScriptedDialogs::input(const QString& prompt, const QString& title,
                                              const QString& initial) {
    shown.push_back({QStringLiteral("input"), prompt, title});
    if (inputAnswers.empty()) return std::nullopt;
    const bool cancelled = !inputAnswers.front().has_value();
    QString text = cancelled ? QString() : *inputAnswers.front();
    inputAnswers.pop_front();
    if (cancelled) return std::nullopt;
    return text;
}

QString ScriptedDialogs::openFile(const QString& title, const QString& filter,
                                  const QString& folder) {
    shown.push_back({QStringLiteral("openFile"), title, title});
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
