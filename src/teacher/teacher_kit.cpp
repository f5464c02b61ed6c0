#include "teacher/teacher_kit.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
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
