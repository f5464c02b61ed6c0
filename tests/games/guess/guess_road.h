// Helpers for the letter-guessing screens: the letter boxes read back, a clip played to its end
// on demand.
#pragma once

#include "platform/movie.h"
#include "game_open.h"

namespace wm::test {

// The first `letters` boxes as the pupil sees them: "_" hidden, "." empty, else the letter.
inline QString BoxesText(const QVector<QLabel*>& boxes, std::size_t letters) {
    QString out;
    for (std::size_t i = 0; i < letters; ++i)
        out += !boxes[i]->isVisible() ? "_" : boxes[i]->text().isEmpty() ? "." : boxes[i]->text();
    return out;
}

// Plays every clip of the named players to its end, chained clips included.
inline int FinishClips(QWidget* screen, QStringList players = {"MovieBoxFront", "MovieBox"}) {
    // The end of a clip may close the screen (No to "try again").
    QPointer<QWidget> game(screen);
    int ended = 0;
    for (int guard = 0; guard < 100; ++guard) {
        bool any = false;
        for (const QString& name : players) {
            QPointer<Movie> m = game ? game->findChild<Movie*>(name) : nullptr;
            if (m && m->isPlaying()) {
                m->advance(60);
                ++ended;
                any = true;
                Pump();
            }
            if (!game) return ended;
        }
        if (!any) break;
    }
    return ended;
}

}  // namespace wm::test
