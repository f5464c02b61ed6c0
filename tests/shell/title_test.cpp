// The title and the score screens as a pupil meets them: first start, the list file and the sound
// line, pages and hidden games, failures named, the splash and its film on the test clock, rank
// lines, initials typed with "-", and the high-score browser.
#include <QLabel>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

#include "core/display_file.h"
#include "core/game_names.h"
#include "look.h"
#include "platform/text.h"
#include "shell/about_form.h"
#include "shell/black_back.h"
#include "shell/enter_initials_form.h"
#include "shell/fl_form.h"
#include "shell/high_score_form.h"
#include "shell/lang_choose.h"
#include "shell/title.h"
#include "shell_fixture.h"

using namespace wm;
using namespace wm::test;

namespace {

Title* OpenTitle(QWidget* from = nullptr) {
    return qobject_cast<Title*>(OpenScreen("Title", from));
}

class FlashScene : public MovieScene {
public:
    double duration() const override { return 0.1; }
    void paint(QPainter& p, const QRectF& r, double) override { p.fillRect(r, Qt::red); }
};

}  // namespace

class TitleTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { ShellFixture registersTheScenesAndStopsTheClock; }

    void firstStartRenamesAndMakesFiles() {
        ShellFixture fx;
        Title* title = OpenTitle();
        QVERIFY(title && title->startedOk());
        QVERIFY(fx.exists("wmdata.dat") && !fx.exists("wmdata.new") && fx.exists("folders.dat"));
        QVERIFY(fx.exists("thelists.dat") && !fx.exists("thelists.new"));
        for (auto name : kGameNames) {
            const QLatin1String game(name.data(), int(name.size()));
            QCOMPARE(fx.read(QString("scores/%1.dat").arg(game)).size(), 510);
        }
        QCOMPARE(
            std::tuple(Shared().VisibleGameCount, Shared().SoundDefault, fx.dialogs.shown.size()),
            std::tuple(42, kTrue, size_t(0)));
        Pump();  // the sound waits for a short timer, on the test clock
        QCOMPARE(fx.sound.played, QStringList{"ufofly.wav"});

        // A list file that has gone missing is named.
        QFile::remove(fx.path("thelists.dat"));
        Title* again = OpenTitle(title);
        QVERIFY(again && again->startedOk() && again->noListsLabel()->isVisible());
        QVERIFY(fx.dialogs.last().contains(fx.path("thelists.dat")));
    }

    void listsAndSoundLineAtStart() {
        // No lists: an empty first line or the store's own "No Lists". Only "Sound On" is on.
        const QStringList animals{"Animals", "cat", "a pet"};
        const std::tuple<QStringList, QString, bool> rows[] = {
            {animals, "Sound On", false},
            {QStringList{""} + animals, "Sound On", true},
            {{"No Lists"}, "Sound On", true},
            {animals, "Sound Off", false},
            {animals, "sound on", false}};
        for (const auto& [lists, sound, noLists] : rows) {
            ShellFixture fx;
            fx.writeLines("thelists.new", lists);
            fx.writeLines("wmdata.new", {"r0", "r1", sound, "mapleton", "listpath", "folder"});
            Title* title = OpenTitle();
            QVERIFY(title && title->startedOk());
            const bool on = sound == "Sound On";
            // The buttons stay.
            QCOMPARE(
                std::tuple(title->noListsLabel()->isVisible(), title->noListsLabel()->text(),
                           title->buttons().first()->isVisible(), fx.dialogs.texts().join('|'),
                           Shared().SoundDefault),
                std::tuple(noLists, "No Lists Available!", true,
                           noLists ? "There are no vocabulary lists available to play with!" : "",
                           on ? kTrue : kFalse));
            Pump(50);
            QCOMPARE(fx.sound.played, on ? QStringList{"ufofly.wav"} : QStringList{});
        }
    }

    void hiddenGamesAndPagesAtTheEdge() {
        ShellFixture fx;
        DisplaySettings d = DisplaySettings::MediumIcons();
        d.hidden = {"Quiz", "Froggy"};
        WriteDisplaySettings(fx.path("wmgdisplay.dat").toStdString(), d);
        Title* title = OpenTitle();
        QVERIFY(title);
        QCOMPARE(
            std::tuple(Shared().VisibleGameCount, toQ(Shared().VisibleGames[2]), title->pageSize()),
            std::tuple(40, "Word Zap", 15));
        QVERIFY(!fx.exists("scores/Quiz.dat") && !fx.exists("scores/Froggy.dat") &&
                fx.exists("scores/Pachinko.dat"));
        for (auto* b : title->buttons()) QVERIFY(b->text() != "Quiz" && b->text() != "Froggy");
        // Twelve a page: More shows exactly while games remain past the page. None shown: no error.
        // Games shown, pages, and buttons on the last page.
        const std::tuple<int, int, int> rows[] = {
            {12, 1, 12}, {13, 2, 1}, {24, 2, 12}, {1, 1, 1}, {0, 1, 0}};
        for (const auto& [shown, pages, onLastPage] : rows) {
            ShellFixture fx;
            DisplaySettings d = DisplaySettings::LargeIcons();
            d.hidden.assign(kGameNames.begin() + shown, kGameNames.end());
            WriteDisplaySettings(fx.path("wmgdisplay.dat").toStdString(), d);
            Title* title = OpenTitle();
            QVERIFY(title && title->startedOk());
            QCOMPARE(Shared().VisibleGameCount, shown);
            int seen = 1;
            for (; title->moreButton()->isVisible() && seen <= pages; ++seen)
                QTest::mouseClick(title->moreButton(), Qt::LeftButton);
            int visible = 0;
            for (auto* b : title->buttons()) visible += b->isVisible() ? 1 : 0;
            QCOMPARE(std::tuple(seen, visible, title->backButton()->isVisible()),
                     std::tuple(pages, onLastPage, pages > 1));
        }
    }

    void missingSettingsIsAClearFailure() {
        ShellFixture fx(false);
        auto title = std::make_unique<Title>();
        QVERIFY(!title->startedOk() && fx.dialogs.shown.size() == 1);
        const QString text = fx.dialogs.last();
        QVERIFY2(text.contains("wmdata.dat") && text.contains(fx.dir.path()), qPrintable(text));
        // A settings file too short to read is named as well.
        fx.writeLines("wmdata.dat", {"a", "b"});
        QVERIFY(!std::make_unique<Title>()->startedOk() &&
                fx.dialogs.last().contains("wmdata.dat"));
    }

    void splashSkipsToTitleAndPicksRouteByGame() {
        ShellFixture fx;
        auto* splash = OpenScreen("BlackBack");
        QVERIFY(splash);
        Pump(50);
        QCOMPARE(fx.sound.played.value(0), "tolvane.wav");
        static_cast<BlackBack*>(splash)->movie()->advance(2.5);
        Pump(60);
        QTest::keyClick(splash, Qt::Key_Space);
        Pump();
        QVERIFY(Showing<Title>() != nullptr && fx.sound.stops >= 1);
        // Picks route by game.
        Title* title = OpenTitle();
        // Flying Cow's button goes on to its options.
        title->findChild<QAbstractButton*>("ButtonImage0")->click();
        QCOMPARE(CurrentScreen()->objectName(), "GameOptions");
        // The quiz and the flash cards have options of their own first.
        OpenTitle(CurrentScreen())->pick(1);
        QVERIFY(fx.dialogs.shown.empty() && CurrentScreen()->objectName() == "QuizOptions");
        QCOMPARE(TitleRoute("Flash Cards"), "FlashCardOptions");
    }

    void screensAndBoxesLookAsKept() {
        ShellFixture fx;
        WM_CHECK_LOOK("Shell_Title", OpenTitle());
        Shared().CurrentGame = "Word Search";  // its options frame shows, relabelled
        for (const char* name : {"GameOptions", "QuizOptions", "FlashCardOptions", "ChooseList"}) {
            QWidget* screen = OpenScreen(name, CurrentScreen());
            Pump();
            WM_CHECK_LOOK(QString("Shell_") + name, screen);
        }
        Shared().CurrentGame = "Flying Cow";
        AboutForm about;
        HighScoreForm scores;
        EnterInitialsForm initials;
        LangChoose sides("S");
        FLForm palette;
        for (QDialog* box : std::initializer_list<QDialog*>{&about, &scores, &initials, &sides,
                                                           &palette}) {
            box->show();
            WM_CHECK_LOOK("Shell_" + box->objectName(), box);
        }
        QCOMPARE(sides.choice(), "E");  // OK at once plays the English words
    }

    void highScoresBrowseTheShownGames() {
        ShellFixture fx;
        Title* title = OpenTitle();
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
            // The last game's 50 ranks alone.
            QVERIFY(form->tableText().contains("#50") && form->tableText().count('\n') == 49);
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

    void rankLinesTablesOfGamesWithoutAndInitials() {
        // Initials start at column 13 and the score at column 27, whatever the rank's width.
        const std::tuple<int, QString, QString, QString> rows[] = {
            {1, "ABC", "12345", "#1          ABC           12345"},
            {50, "Z", "7", "#50         Z             7"},
            {9, "   ", " ", "#9          ---           -------"},
            {10, " AB", "  0   ", "#10         AB            0"}};
        for (const auto& [rank, initials, score, line] : rows)
            QCOMPARE(HighScoreForm::RankLine(rank, initials, score), line);

        QString fresh;
        for (int r = 1; r <= 50; ++r)
            fresh += (r > 1 ? "\n" : "") + HighScoreForm::RankLine(r, "---", "0");
        const QString none = "No Scores Collected for this Activity";
        const std::pair<QString, QString> tables[] = {
            {"Quiz", none}, {"Flash Cards", none}, {"Froggy", fresh}};
        for (const auto& [game, table] : tables) {
            ShellFixture fx;
            OpenTitle();
            Shared().CurrentGame = game.toStdString();
            HighScoreForm form;
            bool headed = false;
            for (auto* l : form.findChildren<QLabel*>())
                headed |= l->text() == "High Scores for " + game;
            QCOMPARE(std::tuple(form.objectName(), form.tableText(), headed),
                     std::tuple("HighScoreForm", table, true));
        }
        // Initials skip the dashes.
        const std::pair<QStringList, QString> initials[] = {{{"A", "-", "C"}, "AC"},
                                                            {{"-", "-", "-"}, ""},
                                                            {{"J", "O", "E"}, "JOE"},
                                                            {{"-", "Q", "-"}, "Q"}};
        for (const auto& [typed, kept] : initials) {
            ShellFixture fx;
            Shared().PlacedRank = 3;
            Shared().Score = 1200;
            Shared().LastInitials = "XYZ";
            EnterInitialsForm form;
            for (int i = 0; i < 3; ++i) form.letters()[i]->setText(typed[i]);
            form.confirm();
            QCOMPARE(QString::fromStdString(Shared().LastInitials), kept);
        }
    }

    // The opening film's player: one pass and loops on the test clock, stop, continuations.
    void filmRunsOnTheTestClockAndStops() {
        // The continuation runs when exactly the film's length has gone.
        RegisterScene(QStringLiteral("flash"), [] { return std::make_unique<FlashScene>(); });
        Movie movie;
        QVERIFY(movie.load(QStringLiteral("flash")));
        QSignalSpy finished(&movie, &Movie::finished);
        bool done = false;
        movie.play(false, [&] { done = true; });
        Ticker::get().advance(50);
        QCOMPARE(movie.position(), 0.05);
        Ticker::get().advance(49);
        QVERIFY(!done && movie.isPlaying());
        Ticker::get().advance(1);
        QVERIFY(done);
        Ticker::get().advance(1000);
        QVERIFY(finished.count() == 1 && qFuzzyCompare(movie.position(), 0.1));

        // Jumping by hand and then letting the clock run mix: 30 ms by hand, 70 by the clock.
        done = false;
        movie.play(false, [&] { done = true; });
        movie.advance(0.03);
        Ticker::get().advance(69);
        QVERIFY(!done);
        Ticker::get().advance(1);
        QVERIFY(done);

        // A loop never ends by itself, and wraps inside its length. Stop ends it once, where it
        // stood, with its continuation.
        int loops = 0;
        movie.play(true, [&] { ++loops; });
        Ticker::get().advance(1234);
        QVERIFY(movie.isPlaying() && loops == 0);
        const double at = movie.position();
        QVERIFY(at > 0 && at < 0.1);
        movie.stop();
        movie.stop();
        QCOMPARE(std::tuple(movie.isPlaying(), loops, finished.count(), movie.position()),
                 std::tuple(false, 1, 3, at));

        // With nothing loaded a waiting screen still goes on, on the next tick of the clock.
        Movie empty;
        QVERIFY(!empty.load(QStringLiteral("missing")));
        bool emptyDone = false;
        empty.play(true, [&] { emptyDone = true; });
        Ticker::get().advance(0);
        QVERIFY(emptyDone && !empty.isPlaying());

        // The continuation may delete the player.
        auto* doomed = new Movie;
        QVERIFY(doomed->load(QStringLiteral("wmsplash")));
        bool deleted = false;
        doomed->play(false, [&] {
            delete doomed;
            deleted = true;
        });
        doomed->advance(100);
        QVERIFY(deleted);
    }
};

QTEST_MAIN(TitleTest)
#include "title_test.moc"
