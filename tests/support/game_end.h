// What the action games' screen tests share beyond the road kit: a game reached from the title's
// button on a list of its own, the box that ends a game read back with its title, a won game
// taken to the table, a refusal at a restart, and the plates of a screen checked for room.
#pragma once

#include <QFontMetrics>

#include "road_kit.h"

namespace wm::test {

// Writes `pairs` as the only list and clicks the title's button of `game`, then passes the
// options at `level` and the chooser in whichever order the game asks for them (a slider
// clamped to a short list stays clamped). The game's screen, or null when something else shows.
template <class Game>
Game* FromTitle(ShellFixture& fx, const QString& game, const Pairs& pairs, int level,
                bool wordsOnly = false) {
    WriteOneList(fx, "Test Words", pairs, wordsOnly);
    if (!ClickTitleButton(game)) return nullptr;
    for (int step = 0; step < 2; ++step) {
        if (auto* options = Showing<GameOptions>()) {
            options->SpeedBar->setValue(level);
            options->Command1->click();
        } else if (auto* chooser = Showing<ChooseList>()) {
            if (SelectList(chooser, "Test Words (") < 0) return nullptr;
            chooser->findChild<QPushButton*>("Command1")->click();
        }
        Pump();
    }
    return Showing<Game>();
}

// The word and the meaning on play now, as the screens show them.
inline QString Word() {
    return QString::fromLatin1(Shared().TheWord.c_str());
}
inline QString Meaning() {
    return QString::fromLatin1(Shared().TheMeaning.c_str());
}

// The texts of the labels named (blank-separated) joined with " | ": a screen's plates at one
// moment in one comparison.
inline QString Labels(QWidget* w, const QString& names) {
    QStringList texts;
    for (const QString& name : names.split(' ')) texts << LabelText(w, qPrintable(name));
    return texts.join(" | ");
}

// A key held down for `ms` on the test clock, then let go.
inline void HoldKey(QWidget* w, int key, int ms) {
    SendKey(w, key);
    Pump(ms);
    SendKey(w, key, QEvent::KeyRelease);
}

// The last box shown as "title | text".
inline QString LastBox(const ShellFixture& fx) {
    return fx.dialogs.shown.empty()
               ? QString("<no box>")
               : fx.dialogs.shown.back().title + " | " + fx.dialogs.shown.back().text;
}

// The game's menu restart on the shared list as the test left it: the box that refused it (as
// LastBox), once the title is back.
inline QString RestartRefusal(const ShellFixture& fx, QWidget* game) {
    if (!TriggerMenu(game, "RS")) return "<no restart in the menu>";
    Pump();
    return Showing<Title>() ? LastBox(fx) : QString("<not back on the title>");
}

// The pictures, sounds and tunes the game's card declares that the build did not make.
inline QString MissingAssets(const ShellFixture& fx, const char* game) {
    QStringList missing;
    for (const std::string& a : FindCard(game)->assets)
        if (!fx.exists(QString::fromStdString(a))) missing << QString::fromStdString(a);
    return missing.join(", ");
}

// A won game's ending: the last box offers another go for the score of `row` ("initials score")
// and was answered No, the row tops the game's table, and the title is back.
inline QString WonFault(const ShellFixture& fx, const char* game, const QString& row) {
    const QString box = "Great job! | You got a high score of " + row.section(' ', 1) +
                        "! Would you like to try again?";
    if (LastBox(fx) != box)
        return "the last box was \"" + LastBox(fx) + "\", not \"" + box +
               "\"; all: " + fx.dialogs.texts().join(" / ");
    if (TableRow(fx, game) != row) return "the table's top row is " + TableRow(fx, game);
    Pump();
    return Showing<Title>() ? QString() : QString("not back on the title");
}

// Every visible label of `screen` named in `names` (all of them when none are named) lies
// inside the screen and clear of the others, its text whole in its box.
inline QString PlatesFault(QWidget* screen, const QStringList& names = {}) {
    QList<QLabel*> placed;
    for (QLabel* l : screen->findChildren<QLabel*>()) {
        if (!l->isVisible() || (!names.isEmpty() && !names.contains(l->objectName()))) continue;
        const QRect box = l->contentsRect();
        const int flags = int(l->alignment()) | (l->wordWrap() ? int(Qt::TextWordWrap) : 0);
        const QRect need = QFontMetrics(l->font()).boundingRect(box, flags, l->text());
        if (need.width() > box.width() || need.height() > box.height())
            return l->objectName() + "'s text does not fit";
        if (!screen->rect().contains(l->geometry())) return l->objectName() + " is off the screen";
        for (const QLabel* other : placed)
            if (other->geometry().intersects(l->geometry()))
                return l->objectName() + " lies over " + other->objectName();
        placed << l;
    }
    return {};
}

}  // namespace wm::test

#define WM_CHECK_FAULT(call)                            \
    do {                                                \
        const QString fault_ = (call);                  \
        QVERIFY2(fault_.isEmpty(), qPrintable(fault_)); \
    } while (0)
#define WM_CHECK_WON(fx, game, row) WM_CHECK_FAULT(wm::test::WonFault(fx, game, row))
#define WM_CHECK_PLATES(...) WM_CHECK_FAULT(wm::test::PlatesFault(__VA_ARGS__))
