// What most screen tests start with: the fixture, a seeded generator, the boxes of a won game
// answered, and short ways to read a label or find a button by its control name.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "game_road.h"
#include "game_start.h"  // LabelText

namespace wm::test {

// Seed 0 keeps the fixture's scripted generator.
struct Road : ShellFixture {
    SeededRng seeded;
    WinDriver win;
    explicit Road(std::uint64_t seed, QStringList initials = {})
        : seeded(seed), win(std::move(initials)) {
        if (seed) SetRng(&seeded);
        SetModalHook(std::ref(win));
    }
    ~Road() {
        for (QWidget* w : QApplication::topLevelWidgets()) w->close();
        SetModalHook({});
    }
};

// Shows the title and clicks the button of `game`, turning the pages as a pupil would.
inline bool ClickTitleButton(const QString& game) {
    auto* title = qobject_cast<Title*>(OpenScreen("Title", CurrentScreen()));
    for (int page = 0; title && page < 4; ++page, title->showMore())
        for (auto* b : title->buttons())
            if (b->isVisible() && b->text() == game) {
                QTest::mouseClick(b, Qt::LeftButton);
                Pump();
                return true;
            }
    return false;
}

inline QPushButton* Button(QWidget* w, const char* name) {
    return w ? w->findChild<QPushButton*>(name) : nullptr;
}

}  // namespace wm::test
