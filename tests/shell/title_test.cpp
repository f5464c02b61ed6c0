// The title screen: first start, pages, hidden games, the empty store and failures.
#include <QtTest>

#include "core/display_file.h"
#include "core/game_names.h"
#include "core/line_file.h"
#include "platform/movie.h"
#include "shell/about_form.h"
#include "shell/black_back.h"
#include "shell/high_score_form.h"
#include "shell/title.h"
#include "shell_fixture.h"

using namespace wm;
using namespace wm::test;

class TitleTest : public QObject {
    Q_OBJECT
private slots:
    void firstStartRenamesAndMakesFiles();
    void hiddenGamesAreNotShownAndGetNoScoreFile();
    void emptyStoreSaysNoLists();
    void missingSettingsIsAClearFailure();
    void splashSkipsToTitle();
    void pickRoutesByGame();
    void highScoresBrowseTheShownGames();
};

void TitleTest::firstStartRenamesAndMakesFiles() {
    ShellFixture fx;
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title && title->startedOk());
    QVERIFY(fx.exists("wmdata.dat") && !fx.exists("wmdata.new"));
    QVERIFY(fx.exists("thelists.dat") && !fx.exists("thelists.new"));
    QVERIFY(fx.exists("folders.dat"));
    for (auto name : kGameNames) {
        const QString file =
            "scores/" + QString::fromLatin1(name.data(), int(name.size())) + ".dat";
        QVERIFY2(fx.exists(file), qPrintable(file));
        QCOMPARE(fx.read(file).size(), 510);
    }
    QCOMPARE(Shared().VisibleGameCount, 42);
    QCOMPARE(Shared().SoundDefault, kTrue);
    QVERIFY(fx.dialogs.shown.empty());
    Pump();  // the sound waits for a short timer, on the test clock
    QCOMPARE(fx.sound.played, QStringList{"ufofly.wav"});
}

void TitleTest::hiddenGamesAreNotShownAndGetNoScoreFile() {
    ShellFixture fx;
    DisplaySettings d = DisplaySettings::MediumIcons();
    d.hidden = {"Quiz", "Froggy"};
    WriteDisplaySettings(fx.path("wmgdisplay.dat").toStdString(), d);
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title);
    QCOMPARE(Shared().VisibleGameCount, 40);
    QCOMPARE(QString::fromStdString(Shared().VisibleGames[2]), "Word Zap");
    QVERIFY(!fx.exists("scores/Quiz.dat"));
    QVERIFY(!fx.exists("scores/Froggy.dat"));
    QVERIFY(fx.exists("scores/Pachinko.dat"));
    QCOMPARE(title->pageSize(), 15);
    for (auto* b : title->buttons()) QVERIFY(b->text() != "Quiz" && b->text() != "Froggy");

    // Every game hidden: no buttons, no error.
    d.hidden.assign(kGameNames.begin(), kGameNames.end());
    WriteDisplaySettings(fx.path("wmgdisplay.dat").toStdString(), d);
    auto* empty = qobject_cast<Title*>(OpenScreen("Title", title));
    QVERIFY(empty && empty->startedOk());
    for (auto* b : empty->buttons()) QVERIFY(!b->isVisible());
    QVERIFY(!empty->moreButton()->isVisible());
}

void TitleTest::emptyStoreSaysNoLists() {
    ShellFixture fx;
    fx.writeLines("thelists.new", {"No Lists"});
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title && title->startedOk());
    QCOMPARE(fx.dialogs.texts(),
             QStringList{"There are no vocabulary lists available to play with!"});
    QVERIFY(title->noListsLabel()->isVisible());
    QCOMPARE(title->noListsLabel()->text(), "No Lists Available!");
    // The buttons stay.
    QVERIFY(title->buttons().first()->isVisible());

    // A list file that has gone missing is named.
    QFile::remove(fx.path("thelists.dat"));
    fx.dialogs.shown.clear();
    auto* again = qobject_cast<Title*>(OpenScreen("Title", title));
    QVERIFY(again && again->startedOk());
    QVERIFY(fx.dialogs.last().contains(fx.path("thelists.dat")));
    QVERIFY(again->noListsLabel()->isVisible());
}

void TitleTest::missingSettingsIsAClearFailure() {
    ShellFixture fx(false);
    auto* title = new Title;
    QVERIFY(!title->startedOk());
    QCOMPARE(fx.dialogs.shown.size(), size_t(1));
    const QString text = fx.dialogs.last();
    QVERIFY2(text.contains("wmdata.dat") && text.contains(fx.dir.path()), qPrintable(text));
    delete title;

    // A settings file too short to read is named as well.
    fx.writeLines("wmdata.dat", {"a", "b"});
    auto* shortOne = new Title;
    QVERIFY(!shortOne->startedOk());
    QVERIFY(fx.dialogs.last().contains("wmdata.dat"));
    delete shortOne;
}

void TitleTest::splashSkipsToTitle() {
    ShellFixture fx;
    auto* splash = OpenScreen("BlackBack");
    QVERIFY(splash);
    Pump(50);
    QCOMPARE(fx.sound.played.value(0), "tolvane.wav");
    static_cast<BlackBack*>(splash)->movie()->advance(2.5);
    Pump(60);
    QTest::keyClick(splash, Qt::Key_Space);
    Pump();
    QVERIFY(Showing<Title>() != nullptr);
    QVERIFY(fx.sound.stops >= 1);
}

void TitleTest::pickRoutesByGame() {
    ShellFixture fx;
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    title->pick(0);  // Flying Cow goes on to its options
    QVERIFY(CurrentScreen() != title);
    QCOMPARE(CurrentScreen()->objectName(), "GameOptions");
    // The quiz has options of its own first.
    title = qobject_cast<Title*>(OpenScreen("Title", CurrentScreen()));
    title->pick(1);
    QVERIFY(fx.dialogs.shown.empty());
    QCOMPARE(CurrentScreen()->objectName(), "QuizOptions");
}

void TitleTest::highScoresBrowseTheShownGames() {
    ShellFixture fx;
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title);
    QStringList seen;
    SetModalHook([&](QDialog& d) {
        auto* form = qobject_cast<HighScoreForm*>(&d);
        QVERIFY(form);
        seen << form->game();
        form->previousGame();  // clamped at the first
        seen << form->game();
        form->nextGame();
        form->nextGame();
        seen << form->game();
        for (int i = 0; i < 60; ++i) form->nextGame();  // clamped at the last
        seen << form->game();
        QVERIFY(form->tableText().contains("#50"));
        // The close box is refused; OK closes.
        form->close();
        QVERIFY(form->isVisible());
        form->findChild<QPushButton*>("Command1")->click();
        QVERIFY(!form->isVisible());
    });
    for (QAction* a : title->toolbar()->actions())
        if (a->text() == "High Scores") a->trigger();
    QCOMPARE(seen, (QStringList{"Flying Cow", "Flying Cow", "Word Zap", "Pachinko"}));
    QCOMPARE(QString::fromStdString(Shared().CurrentGame), "Title");
}

QTEST_MAIN(TitleTest)
#include "title_test.moc"
