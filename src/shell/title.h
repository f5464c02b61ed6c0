// The title screen: the game buttons in pages, the toolbar, and the start-up of the data.
#pragma once

#include <QLabel>
#include <QStringList>
#include <QToolBar>
#include <QVector>

#include "core/display_file.h"
#include "platform/ticker.h"
#include "shell/style.h"

namespace wm {

class Title : public Backdrop {
    Q_OBJECT
public:
    explicit Title(QWidget* parent = nullptr);

    bool startedOk() const { return ok_; }
    int firstIndex() const { return first_; }
    int pageSize() const { return display_.columns * display_.rows; }
    QVector<PictureButton*> buttons() const { return ButtonImage; }
    PictureButton* moreButton() const { return MoreButton; }
    PictureButton* backButton() const { return BackButton; }
    QToolBar* toolbar() const { return Toolbar1; }
    QLabel* noListsLabel() const { return noLists_; }
    void showMore();
    void showBack();
    // A click on the button at `slot` of the page.
    void pick(int slot);

protected:
    void resizeEvent(QResizeEvent*) override;
    void closeEvent(QCloseEvent*) override;

private:
    GameTimer soundTimer_;
    bool startUp();
    void GetData();
    void layoutGrid();
    void showPage();
    void openHighScores();
    void openAbout();
    void openHelp();

    QVector<PictureButton*> ButtonImage;  // 0..49
    PictureButton* MoreButton;
    PictureButton* BackButton;
    QToolBar* Toolbar1;
    QLabel* noLists_;
    QStringList HoldList;
    DisplaySettings display_;
    int first_ = 1;
    bool ok_ = false;
    bool leavingForGame_ = false;
};

// The screen a pick on the title leads to, by lower-cased game name.
QString TitleRoute(const QString& game);

}  // namespace wm
