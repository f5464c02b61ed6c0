// Wordmere: the splash, then the title; everything else is reached from there.
#include <QApplication>
#include <QDir>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/movie.h"
#include "platform/music.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/speech.h"
#ifdef WM_HAVE_SPEECH
#include "platform/qt_speech.h"
#endif
#include "shell/catalogue.h"
#include "shell/screens.h"
#include "shell/style.h"
#include "teacher/teacher_kit.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Wordmere");
    QApplication::setApplicationVersion("1.01");

    // Every file is found beside the program, never in the current folder.
    wm::Shared().AppPath =
        QDir(QCoreApplication::applicationDirPath()).absolutePath().toStdString();

    wm::QtDialogs dialogs;
    wm::QtSound sound(QCoreApplication::applicationDirPath() + "/sounds");
    wm::FluidMusic music;
    // The speech engine starts only when a game first offers "Say It", never here.
#ifdef WM_HAVE_SPEECH
    wm::QtSpeech speech;
#else
    wm::RecordingSpeech speech;
    speech.answer = wm::SpeechStatus::NoEngine;
#endif
    wm::services() = {&dialogs, &sound, &music, &speech};

    wm::ApplyAppStyle();
    wm::RegisterBuiltInScenes();
    wm::RegisterShellScreens();
    wm::RegisterTeacherScreens();
    wm::OfferOnlyBuiltGames(true);
    wm::OpenScreen("BlackBack");
    const int rc = app.exec();
    music.close();
    return rc;
}
