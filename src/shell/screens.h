// The navigator: screens are made by name when shown and closed when left, one at a time.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

namespace wm {

using ScreenFactory = std::function<QWidget*()>;

void RegisterScreen(const QString& name, ScreenFactory factory);
bool HasScreen(const QString& name);
// Makes the named screen, shows it filling the screen, and closes `from`. nullptr when there
// is no such screen (nothing is closed then).
QWidget* OpenScreen(const QString& name, QWidget* from = nullptr);
// Shows a screen filling the display.
void PresentScreen(QWidget* screen);
// Ends the whole program, not only the screen: the event loop stops and every screen goes with
// it. Tests watch it through the hook instead of having it.
void EndProgram();
void SetEndProgramHook(std::function<void()> hook);
// The screen shown last, for tests.
QWidget* CurrentScreen();
// Registers Title, BlackBack, ChooseList, GameOptions and the other shell screens, and the
// opening film the splash plays.
void RegisterShellScreens();
// The opening film, "wmsplash".
void RegisterSplashScene();

}  // namespace wm
