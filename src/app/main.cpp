// Wordmere: the splash, then the title; everything else is reached from there.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QTimer>

#include <cstdio>

#include "core/app_folders.h"
#include "core/line_file.h"
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
#include "platform/timeline_scene.h"
#include "shell/catalogue.h"
#include "shell/screens.h"
#include "shell/style.h"
#include "shell/title.h"
#include "teacher/teacher_kit.h"

namespace {

// --screenshot: the title straight away, without the splash, saved as a picture once laid out;
// then the program ends. Boxes are not shown but printed, so nothing waits for a click: a
// packaging check or a screenshot for the software centre runs without anybody at the screen.
int saveTitleShot(const QString& file, wm::ScriptedDialogs& boxes) {
    auto* title = qobject_cast<wm::Title*>(wm::OpenScreen("Title"));
    QTimer::singleShot(300, qApp, [&, title] {
        const bool drawn =
            title && title->startedOk() && boxes.texts().isEmpty() && title->grab().save(file);
        QApplication::exit(drawn ? 0 : 1);
    });
    const int rc = QApplication::exec();
    for (const QString& text : boxes.texts()) std::fprintf(stderr, "%s\n", qPrintable(text));
    if (rc != 0)
        std::fprintf(stderr, "wordmere: no picture of the title in %s\n", qPrintable(file));
    return rc;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName("Wordmere");
    QCoreApplication::setApplicationVersion("1.01");
    QCommandLineParser options;
    options.setApplicationDescription(
        "Vocabulary games for the classroom. Installed, the lists, settings and scores are kept "
        "in /var/lib/wordmere, or in the folder named by WORDMERE_DATA.");
    options.addHelpOption();
    options.addVersionOption();
    const QCommandLineOption shot("screenshot", "Save a picture of the title to <file> and end.",
                                  "file");
    options.addOption(shot);
    {
        // Read before any window is opened, so --help and --version answer on a machine
        // without a display too (a technician's remote shell).
        QCoreApplication console(argc, argv);
        options.process(console);
    }

    QApplication app(argc, argv);
    // The desktop entry's name, so the window is matched with its entry and icon.
    QGuiApplication::setDesktopFileName("org.wordmere.wordmere");

    // Every file is found through these folders, never in the current folder.
    const wm::AppFolders folders = wm::ChooseAppFolders(
        QDir(QCoreApplication::applicationDirPath()).absolutePath().toStdString(),
        qEnvironmentVariable(wm::kDataFolderVariable).toStdString());
    wm::Shared().AppPath = folders.data;
    wm::Shared().AssetPath = folders.assets;
    const QString assets = QString::fromStdString(folders.assets);

    wm::QtDialogs shownBoxes;
    wm::ScriptedDialogs printedBoxes;
    wm::Dialogs& dialogs = options.isSet(shot) ? static_cast<wm::Dialogs&>(printedBoxes)
                                               : static_cast<wm::Dialogs&>(shownBoxes);
    wm::QtSound sound(assets + "/sounds");
    wm::FluidMusic music;
    // The speech engine starts only when a game first offers "Say It", never here.
#ifdef WM_HAVE_SPEECH
    wm::QtSpeech speech;
#else
    wm::RecordingSpeech speech;
    speech.answer = wm::SpeechStatus::NoEngine;
#endif
    wm::services() = {&dialogs, &sound, &music, &speech};
    try {
        wm::SeedDataFolder(folders);
    } catch (const wm::FileError& e) {
        std::fprintf(stderr, "wordmere: %s\n", e.what());
        if (!options.isSet(shot))
            dialogs.message(QString::fromLocal8Bit(e.what()), "Wordmere cannot start");
        return 1;
    }

    QApplication::setWindowIcon(QIcon(wm::findAsset("images/wordmere.svg")));
    wm::SetTimelineFolder(assets + "/movies");
    wm::ApplyAppStyle();
    wm::RegisterBuiltInScenes();
    wm::RegisterShellScreens();
    wm::RegisterTeacherScreens();
    wm::OfferOnlyBuiltGames(true);
    int rc = 0;
    if (options.isSet(shot)) {
        rc = saveTitleShot(options.value(shot), printedBoxes);
    } else {
        wm::OpenScreen("BlackBack");
        rc = app.exec();
    }
    music.close();
    return rc;
}
