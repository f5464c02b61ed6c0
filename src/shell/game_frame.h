// What every game screen shares, as one component the screen owns: the five-entry menu,
// Escape, the leave guard, the game's named timers that stop as one, the round counter that
// drops continuations of an earlier round, background music, and the hand-off of a won game
// to the high-score table with the game's own end texts.
#pragma once

#include <QDialog>
#include <QLocale>
#include <QMenuBar>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <map>
#include <set>

#include "platform/ticker.h"

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

// The texts and rules of the end of a won game. "{score}" stands for the score as text.
struct EndTexts {
    QString placed = "You got a high score of {score}! Would you like to try again?";
    QString notPlaced = "Congratulations! You scored {score}! Would you like to try again?";
    QString title = "Great job!";
    QString raise = "Would you like to raise the difficulty level a bit?";
    bool raiseWhenPlaced = true;
    bool raiseWhenNotPlaced = false;
    bool smallestFirst = false;  // the table ranks small scores first (times)
    bool wholeScore = true;      // Score := Int(Score) before the table is searched
};

// Which column of the list a spoken text comes from, for its language.
enum class ListSide { Word, Meaning };

// What "Say It" says at this moment. An empty text says nothing, and `why` tells the pupil
// when there will be something to hear.
struct Spoken {
    Spoken() = default;
    Spoken(QString said, ListSide from = ListSide::Word, QString reason = {})
        : text(std::move(said)), side(from), why(std::move(reason)) {}
    QString text;
    ListSide side = ListSide::Word;
    QString why;
};

// The language a column of the loaded list is said in.
QLocale SpeechLocale(ListSide side);
// Why nothing in that column's language can be said now: the teacher's setting, no engine, no
// voice. "" when it can.
QString SpeechBlocked(ListSide side);
// Says the text in its column's language at the teacher's rate; false when nothing was said.
bool SayAloud(const Spoken& spoken);
// What may be heard where finding the word is the game: TheWord once the game shows it,
// TheMeaning once the game shows that (a hint), and nothing before.
Spoken SecretWord(bool wordShown, bool meaningShown);
// What may be heard where the word stands on the screen, or where building it from its given
// letters is the exercise: TheWord.
Spoken ShownWord();

// Where music comes from: none, the shared BGM alias (BgmOpen), or a flag of the game's own.
enum class MusicKind { None, Shared, Own };

void ShowHowToPlay();
// The table of the game in hand, without leaving the game.
void ShowHighScores(QWidget* parent);

// Steps up to the table only: the rank search, initials, the table written with its
// displacement and shown. Returns the rank placed, 0 when none.
int PlaceHighScore(QWidget* game, const std::string& scoreText, bool smallestFirst);
// The filter of rude initials.
std::string FilterInitials(const std::string& typed);

class GameFrame : public QObject {
    Q_OBJECT
public:
    enum class Entry { Restart, SayIt, Foreign, Scores, HowTo, Quit };

    // Builds the menu on `screen` and watches it for Escape and resizes. `newGame` is the
    // game's routine that starts a game, used by Restart and by "try again".
    GameFrame(QWidget* screen, GameMenuNames names, std::function<void()> newGame);
    ~GameFrame() override;

    QWidget* screen() const { return screen_; }
    QMenuBar* menuBar() const { return menu_; }
    QAction* entry(Entry which) const;
    int menuHeight() const;
    // The screen's area below the menu, where the game plays.
    QRect playArea() const;
    // Readies the screen to show a full-screen play under the menu: black behind it, and the
    // keys kept by the screen rather than by the play widget.
    void hostPlay(QWidget* play);

    // Adds the palette entry; a picked character goes to `insert`.
    void setForeign(std::function<void(const QString&)> insert);
    // Adds "Say It" (for the games where hearing the word helps); `what` tells what may be
    // heard at this moment. The entry is greyed, with a tooltip saying why, while there is
    // nothing to say or no voice to say it.
    void setSayIt(std::function<Spoken()> what);
    // Brings the entry's state up to date; the game calls it when what may be heard changes.
    void refreshSayIt();
    // Says what may be heard now; false when nothing was said.
    bool sayIt();
    // Escape acts as Quit unless the game reads it itself.
    void setEscapeQuits(bool on) { escapeQuits_ = on; }

    // A named interval timer (the design's Timer1...). Every timer of the frame stops at once
    // with stopTimers(), at Restart, and when the screen is left.
    GameTimer& timer(const QString& name, int intervalMs, std::function<void()> tick,
                     bool singleShot = false);
    GameTimer* findTimer(const QString& name) const;
    void stopTimers();
    // A timer that Restart leaves running (a countdown that runs on unseen, where the game is
    // designed so); Quit and the end of a game still stop it.
    void keepOnRestart(const QString& name) { keptOnRestart_.insert(name); }
    // A timer that runs on behind the end boxes (a flash, a winning line, sparks the pupil
    // should still see while a box asks to try again). The next game and Quit stop it.
    void runOnThroughEnd(const QString& name) { runOnAtEnd_.insert(name); }

    // The round in hand. newGame() starts the next one; a continuation made by later() in an
    // earlier round is dropped, so a Restart never receives the last round's animation end.
    int round() const { return round_; }
    void newGame();
    std::function<void()> later(std::function<void()> then);
    // A one-shot named timer for the pauses between a game's moments (the wait before the next
    // word, the moment a won code is admired). pauseThen() runs `then` once `ms` have passed,
    // unless a newer pause replaces it first; a new round drops it.
    GameTimer& pauseTimer(const QString& name, int intervalMs);
    void pauseThen(int ms, std::function<void()> then);

    void setMusic(MusicKind kind, QString tune = {});
    void startMusic();
    void stopMusic();
    bool musicOpen() const;

    // The leave guard: the first call stops the timers and the music, shows the title and
    // closes the screen; later calls do nothing.
    void quit();
    bool leaving() const { return leaving_; }
    // A clear message, then back to the title (the list cannot be used for this game).
    void refuse(const QString& text, const QString& title = {});
    // "Would you like to try again?" boxes: Yes starts a new game, No leaves. Returns the answer.
    bool askTryAgain(const QString& text, const QString& title = {});
    // The end of a won game: the table, the end question, and a new game or the title.
    void wonGame(const EndTexts& texts = {});
    // The score as the end texts show it.
    std::function<QString(double)> scoreText;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The end of a game: every timer stops but those named to run on behind the end boxes.
    void stopTimersForEnd();
    void addEntry(Entry which, const QString& text, const QString& name,
                  std::function<void()> action);

    QPointer<QWidget> screen_;
    GameMenuNames names_;
    std::function<void()> newGame_;
    QMenuBar* menu_ = nullptr;
    std::map<Entry, QAction*> entries_;
    std::map<QString, GameTimer*> timers_;
    std::set<QString> keptOnRestart_;
    std::set<QString> runOnAtEnd_;
    int round_ = 0;
    bool leaving_ = false;
    bool escapeQuits_ = true;
    MusicKind musicKind_ = MusicKind::None;
    QString tune_;
    bool ownMusicOpen_ = false;  // the game's own MusicOpen flag
    std::function<Spoken()> sayWhat_;
    GameTimer* pause_ = nullptr;
    std::function<void()> paused_;  // what the pause runs when it is over
};

}  // namespace wm
