#include "teacher/editor_toolbar.h"

#include <QAction>
#include <QIcon>
#include <QToolBar>

#include "shell/style.h"

namespace wm {

namespace {
QString iconFor(const QString& caption) {
    if (caption == "Add Word") return "add";
    if (caption == "Delete Word") return "delete";
    if (caption == "Edit Word") return "edit";
    if (caption == "Rename List") return "rename";
    if (caption == "Save and Quit") return "save";
    if (caption == "Quit") return "quit";
    if (caption == "Foreign") return "foreign";
    return "info";
}
}  // namespace

QToolBar* MakeEditorToolbar(QWidget* screen, bool withCaptions, const std::vector<ToolKey>& keys) {
    auto* bar = new QToolBar(screen);
    bar->setObjectName("Toolbar1");
    bar->setToolButtonStyle(withCaptions ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    bar->setFont(ScreenFont(11, true));
    const int side = ScreenFont(14).pointSize() * 2;
    bar->setIconSize(QSize(side, side));
    for (const auto& [caption, action] : keys) {
        QIcon icon(LoadPicture(QString("images/tb-%1.png").arg(iconFor(caption))));
        QAction* a = bar->addAction(icon, caption);
        a->setObjectName(QString(caption).remove(' '));
        if (caption == "Foreign") a->setToolTip("Insert Foreign Language Characters");
        QObject::connect(a, &QAction::triggered, screen, action);
    }
    return bar;
}

}  // namespace wm
