#include "teacher/teacher_kit.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/line_file.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/style.h"

namespace wm {

std::string ListPath() {
    return Shared().ListFilePath;
}

std::string FolderPath() {
    return Shared().FolderFilePath;
}

std::string AppFilePath(const char* name) {
    return JoinPath(Shared().AppPath, name);
}

bool Guarded(const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const FileError& e) {
        dialogs().message("The file " + toQ(e.path()) +
                              " could not be read or written. Check that it is there and not "
                              "read-only, then try again.",
                          "File Error");
    } catch (const std::exception& e) {
        dialogs().message(QString::fromLocal8Bit(e.what()), "Error");
    }
    return false;
}

void Beep() {
    QApplication::beep();
}

namespace {

const char* kCannotStore =
    "has characters this program cannot store (it keeps Western European letters only)";

std::optional<std::string> Refused(const QString& message, QLineEdit* box) {
    dialogs().message(message);
    if (box) {
        box->setFocus();
        box->selectAll();
    }
    return std::nullopt;
}

// Enter in a box moves the focus on to the next box shown, instead of reaching the dialog.
class EnterMover : public QObject {
public:
    EnterMover(QLineEdit* from, QList<QLineEdit*> after) : QObject(from), after_(after) {}
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
        for (QLineEdit* next : after_) {
            if (next->isHidden()) continue;
            next->setFocus(Qt::TabFocusReason);
            next->selectAll();
            return true;
        }
        return false;
    }

private:
    QList<QLineEdit*> after_;
};

}  // namespace

std::optional<std::string> StorableText(const QString& typed, QLineEdit* box) {
    const QString outside = OutsideCodePage(typed);
    if (outside.isEmpty()) return fromQ(typed);
    QStringList shown;
    for (qsizetype i = 0; i < outside.size(); ++i) {
        const qsizetype len = outside[i].isHighSurrogate() ? 2 : 1;
        QString one = outside.mid(i, len);
        // An accent on its own is shown on a dotted circle, so it can be seen.
        if (one[0].category() == QChar::Mark_NonSpacing) one.prepend(QChar(0x25CC));
        shown << one;
        i += len - 1;
    }
    return Refused(QString("The text \"%1\" %2: %3. Please type it without them.")
                       .arg(typed, kCannotStore, shown.join(' ')),
                   box);
}

std::optional<std::string> StorablePassword(const QString& typed, QLineEdit* box) {
    if (FitsCodePage(typed)) return fromQ(typed);
    return Refused(
        QString("The new password %1. Please choose a password without them.").arg(kCannotStore),
        box);
}

void EnterMovesOn(const QList<QLineEdit*>& boxes) {
    for (qsizetype i = 0; i + 1 < boxes.size(); ++i)
        boxes[i]->installEventFilter(new EnterMover(boxes[i], boxes.mid(i + 1)));
}

QVBoxLayout* CentrePanel(Backdrop* screen, int share, QWidget* top) {
    return CentredPanel(
        screen, {.side = 10 - share, .width = share * 2, .height = 14, .spacing = 12}, {}, top);
}

QVBoxLayout* DialogBody(QDialog* dialog, const QString& heading) {
    dialog->setModal(true);
    dialog->setWindowTitle(heading);
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSpacing(12);
    auto* title = MakeHeading(heading, dialog, 20);
    title->setObjectName("Heading");
    layout->addWidget(title);
    return layout;
}

void SizeToScreen(QDialog* dialog, double width, double height) {
    const QSize screen = ScreenMetrics::screenSize();
    dialog->resize(int(screen.width() * width), int(screen.height() * height));
}

void WidenToScreen(QDialog* dialog, double width) {
    const QSize screen = ScreenMetrics::screenSize();
    const QSize hint = dialog->sizeHint();
    dialog->resize(std::max(hint.width(), int(screen.width() * width)), hint.height());
}

QPushButton* NamedButton(const QString& name, const QString& text, QWidget* parent, bool primary) {
    QPushButton* b = MakeButton(text, parent, primary);
    b->setObjectName(name);
    if (primary && qobject_cast<QDialog*>(parent)) b->setDefault(true);
    return b;
}

QLabel* NamedLabel(const QString& name, const QString& text, QWidget* parent, int points,
                   bool bold) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    l->setFont(ScreenFont(points, bold));
    l->setWordWrap(true);
    return l;
}

QListWidget* NamedList(const QString& name, QWidget* parent) {
    auto* l = new QListWidget(parent);
    l->setObjectName(name);
    l->setFont(ScreenFont(13));
    return l;
}

}  // namespace wm
