// Pieces the teacher's screens share: the calm page they sit on, file paths, and the guard that
// turns a file failure into a message naming the file.
#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <optional>
#include <string>

class QBoxLayout;
class QDialog;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace wm {

class Backdrop;

std::string ListPath();    // the list file, wherever it is linked
std::string FolderPath();  // the category file
std::string AppFilePath(const char* name);

// Runs `work`; a file that cannot be read or written is named in a message instead of ending the
// program. False when it failed.
bool Guarded(const std::function<void()>& work);
void Beep();

// Typed text as the files store it. Text with characters the files cannot hold is refused
// where it is typed: the teacher is told which characters, and `box` (when given) is chosen
// again for the correction. Nothing comes back then.
std::optional<std::string> StorableText(const QString& typed, QLineEdit* box = nullptr);
// The same for a password: the message does not repeat what was typed.
std::optional<std::string> StorablePassword(const QString& typed, QLineEdit* box);

// Enter in each box but the last moves on to the next shown box; in the last one, or when the
// boxes after it are hidden, it reaches the box's default button.
void EnterMovesOn(const QList<QLineEdit*>& boxes);

// A white panel in the middle of a screen, `share` tenths of its width, under an optional
// toolbar; returns the panel's layout.
QVBoxLayout* CentrePanel(Backdrop* screen, int share = 6, QWidget* top = nullptr);
// A small dialog styled like the screens: margins, a heading and a body layout.
QVBoxLayout* DialogBody(QDialog* dialog, const QString& heading);
// Sizes a box to a share of the display, so lists have room at every screen size.
void SizeToScreen(QDialog* dialog, double width, double height);
// A short box: a share of the display wide, as tall as its contents.
void WidenToScreen(QDialog* dialog, double width);
// In a dialog the primary button is the default one: Enter in any field presses it, never
// Cancel (the first button of a box is Cancel, and Qt would make that the default otherwise).
QPushButton* NamedButton(const QString& name, const QString& text, QWidget* parent,
                         bool primary = false);
QLabel* NamedLabel(const QString& name, const QString& text, QWidget* parent, int points = 13,
                   bool bold = false);
QListWidget* NamedList(const QString& name, QWidget* parent);

// The title's entry: the gate, then the manager in place of the title.
void RegisterTeacherScreens();

}  // namespace wm
