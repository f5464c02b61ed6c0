// The teacher's hub: three tabbed frames of commands, a toolbar and Quit.
#pragma once

#include <QStringList>
#include <functional>

#include "shell/style.h"

class QGridLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QToolBar;

namespace wm {

class Manager : public Backdrop {
    Q_OBJECT
public:
    explicit Manager(QWidget* parent = nullptr);
    // Presses the command with this caption, on whichever frame it stands.
    bool command(const QString& caption);
    void showFrame(int index);
    int frame() const;
    QStringList captions(int frame) const;

    void createList();
    void deleteList();
    void editList();
    void mergeLists();
    void buildList();
    void categories();
    void printWorksheets();
    void changePassword();
    void soundOptions();
    void speechOptions();
    void showHideGames();
    void clearHighScores();
    void backupLists();
    void restoreLists();
    void linkListFile();
    void quit();

private:
    QPushButton* addCommand(int frame, const QString& caption, const QString& note,
                            std::function<void()> action);

    QToolBar* Toolbar1;
    QStackedWidget* frames_;
    QWidget* Frames[3];  // ListManFrame, ListOptionsFrame, ProgOptionsFrame
    QGridLayout* grids_[3];
    QPushButton* TLabel[3];
    QPushButton* QuitButton;
};

}  // namespace wm
