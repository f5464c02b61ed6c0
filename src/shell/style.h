// The program's look: fonts, colours and the pieces every screen is built from.
#pragma once

#include <QAbstractButton>
#include <QFont>
#include <QPixmap>
#include <QWidget>

class QLabel;
class QPushButton;
class QGroupBox;
class QLayout;
class QVBoxLayout;

namespace wm {

// Application-wide palette and style sheet.
void ApplyAppStyle();

// A font sized for the screen: `points` as designed for a 1024 x 768 display.
QFont ScreenFont(int points, bool bold = false);
QPixmap LoadPicture(const QString& relative);  // empty when missing
// The picture scaled to `height` with rounded corners, for a game button shown off the title.
QPixmap RoundedPicture(const QPixmap& picture, int height);

// A screen that paints a picture from the application folder over its whole area.
class Backdrop : public QWidget {
public:
    explicit Backdrop(const QString& picture, QWidget* parent = nullptr);
    void setPicture(const QString& picture);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QPixmap picture_;
};

// A white rounded card on a backdrop, holding a screen's controls.
class Panel : public QWidget {
public:
    explicit Panel(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;
};

// A picture that acts as a button: it lifts and glows under the mouse.
class PictureButton : public QAbstractButton {
public:
    explicit PictureButton(QWidget* parent = nullptr);
    void setPicture(const QPixmap& picture) {
        picture_ = picture;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;

private:
    QPixmap picture_;
    bool hover_ = false;
};

// Big rounded action buttons: "primary" ones are green, others blue.
QPushButton* MakeButton(const QString& text, QWidget* parent, bool primary = false);
// The row at the foot of a screen: a back button on the left, the green way on at the right.
// The buttons are named Command2 and Command1, as the screens' designs name them.
struct NavigationRow {
    QLayout* layout;
    QPushButton* back;
    QPushButton* onward;
};
NavigationRow MakeNavigationRow(QWidget* parent, const QString& backText,
                                const QString& onwardText);
// A heading label in the program's title colour.
QLabel* MakeHeading(const QString& text, QWidget* parent, int points = 22);

// How a screen's card sits on its backdrop: stretch shares beside it and across it, then above
// and below together against `height`; its inner margins and the spacing of its controls.
struct PanelShape {
    int side = 1;
    int width = 3;
    int height = 3;
    int marginX = 36;
    int marginY = 26;
    int spacing = 16;
};
// Lays a Panel in the middle of `screen`, with `top` (a toolbar) above it when given, and
// returns the panel's layout, already holding a centred heading when `heading` is not empty.
// The panel is the layout's parentWidget().
QVBoxLayout* CentredPanel(QWidget* screen, const PanelShape& shape, const QString& heading = {},
                          QWidget* top = nullptr);

}  // namespace wm
