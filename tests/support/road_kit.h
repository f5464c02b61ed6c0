// What most screen tests start with: the fixture, a seeded generator, the boxes of a won game
// answered, and short ways to read a label or find a button by its control name.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "game_road.h"

namespace wm::test {

struct Road : ShellFixture {
    SeededRng seeded;
    WinDriver win;
    explicit Road(std::uint64_t seed, QStringList initials = {})
        : seeded(seed), win(std::move(initials)) {
        SetRng(&seeded);
        SetModalHook(std::ref(win));
    }
    ~Road() {
        for (QWidget* w : QApplication::topLevelWidgets()) w->close();
        SetModalHook({});
    }
};

inline QString LabelText(QWidget* w, const char* name) {
    auto* l = w ? w->findChild<QLabel*>(name) : nullptr;
    return l ? l->text() : QString("<no %1>").arg(name);
}

inline QPushButton* Button(QWidget* w, const char* name) {
    return w ? w->findChild<QPushButton*>(name) : nullptr;
}

}  // namespace wm::test
