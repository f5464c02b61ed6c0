// What every game screen shares: the five-entry menu, Escape, How To Play, the high scores,
// leaving for the title, and the hand-off of a won game to the high-score table.
#pragma once

#include <QDialog>
#include <QMenuBar>
#include <QString>
#include <functional>

namespace wm {

// Runs a modal box and returns its result. Tests install a hook that drives the box instead
// of a nested event loop.
int RunModal(QDialog& dialog);
void SetModalHook(std::function<void(QDialog&)> hook);

struct GameMenuNames {
    QString restart = "RS";
    QString foreign = "FLang";  // empty: the game has no such entry
    QString scores = "HS";
    QString howTo = "mnuHowTo";
    QString quit = "Return";
    QString foreignText = "Foreign Language Characters";
    // The game's key for the palette; CurrentGame takes it when it differs from the name other
    // than by case, and keeps it afterwards (the score file follows CurrentGame).
    QString foreignKey;
};

// The menu bar of a game screen. `restart` starts a new game by the same routine as on load;
// `foreign` receives a character picked on the palette; without it the entry is left out.
QMenuBar* MakeGameMenu(QWidget* game, const GameMenuNames& names, std::function<void()> restart,
                       std::function<void(const QString&)> foreign = {});

void ShowHowToPlay();
// The table of the game in hand, without leaving the game.
void ShowHighScores(QWidget* parent);
// Background music closed, the title shown, the game screen closed.
void QuitToTitle(QWidget* game);

enum class AfterWin { NewGame, Title };

// The end of a won game: the rank search, initials, the table written with its displacement,
// the table shown, and the try-again question (with the offer to raise the level after a
// high score). With `smallestFirst` the table ranks small scores first.
// Does not leave by itself: on Title the caller calls QuitToTitle.
AfterWin HighScoreHandoff(QWidget* game, bool smallestFirst = false);
// Steps up to the table only: returns the rank placed, 0 when none.
int PlaceHighScore(QWidget* game, const std::string& scoreText, bool smallestFirst);
// The filter of rude initials.
std::string FilterInitials(const std::string& typed);

}  // namespace wm
