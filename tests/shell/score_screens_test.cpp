// The texts of the score screens and the title's start as a pupil sees them: rank lines,
// the tables of the games that keep none, initials typed with "-", and the title's own checks
// of the list file and the sound setting.
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include "core/display_file.h"
#include "core/game_names.h"
#include "core/line_file.h"
#include "shell/enter_initials_form.h"
#include "shell/high_score_form.h"
#include "shell/title.h"
#include "shell_fixture.h"

using namespace wm;
using namespace wm::test;

class ScoreScreensTest : public QObject {
    Q_OBJECT
private slots:
    void rankLineText_data();
    void rankLineText();
    void gamesWithoutScoresSayso_data();
    void gamesWithoutScoresSayso();
    void initialsSkipTheDashes_data();
    void initialsSkipTheDashes();
    void titleStart_data();
    void titleStart();
    void titlePagesAtTheEdge_data();
    void titlePagesAtTheEdge();
};

void ScoreScreensTest::rankLineText_data() {
    QTest::addColumn<int>("rank");
    QTest::addColumn<QString>("initials");
    QTest::addColumn<QString>("score");
    QTest::addColumn<QString>("line");
    // Initials start at column 13 and the score at column 27, whatever the rank's width.
    QTest::newRow("first") << 1 << "ABC"
                           << "12345"
                           << "#1          ABC           12345";
    QTest::newRow("two digits") << 50 << "Z"
                                << "7"
                                << "#50         Z             7";
    QTest::newRow("blanks") << 9 << "   "
                            << " "
                            << "#9          ---           -------";
    QTest::newRow("trimmed") << 10 << " AB"
                             << "  0   "
                             << "#10         AB            0";
}

void ScoreScreensTest::rankLineText() {
    QFETCH(int, rank);
    QFETCH(QString, initials);
    QFETCH(QString, score);
    QFETCH(QString, line);
    QCOMPARE(HighScoreForm::RankLine(rank, initials, score), line);
}

void ScoreScreensTest::gamesWithoutScoresSayso_data() {
    QTest::addColumn<QString>("game");
    QTest::addColumn<QString>("table");
    const QString none = "No Scores Collected for this Activity";
    QTest::newRow("quiz") << "Quiz" << none;
    QTest::newRow("flash cards") << "Flash Cards" << none;
    QString fresh;
    for (int r = 1; r <= 50; ++r)
        fresh += (r > 1 ? "\n" : "") + HighScoreForm::RankLine(r, "---", "0");
    QTest::newRow("a game with a fresh table") << "Froggy" << fresh;
}

void ScoreScreensTest::gamesWithoutScoresSayso() {
    QFETCH(QString, game);
    QFETCH(QString, table);
    ShellFixture fx;
    OpenScreen("Title");
    Shared().CurrentGame = game.toStdString();
    HighScoreForm form;
    QCOMPARE(form.tableText(), table);
    bool headed = false;
    for (auto* l : form.findChildren<QLabel*>()) headed |= l->text() == "High Scores for " + game;
    QVERIFY(headed);
}

void ScoreScreensTest::initialsSkipTheDashes_data() {
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("middle") << QStringList{"A", "-", "C"} << "AC";
    QTest::newRow("all dashes") << QStringList{"-", "-", "-"} << "";
    QTest::newRow("none") << QStringList{"J", "O", "E"} << "JOE";
    QTest::newRow("first and last") << QStringList{"-", "Q", "-"} << "Q";
}

void ScoreScreensTest::initialsSkipTheDashes() {
    QFETCH(QStringList, typed);
    QFETCH(QString, kept);
    ShellFixture fx;
    Shared().PlacedRank = 3;
    Shared().Score = 1200;
    Shared().LastInitials = "XYZ";
    EnterInitialsForm form;
    for (int i = 0; i < 3; ++i) form.letters()[i]->setText(typed[i]);
    form.confirm();
    QCOMPARE(QString::fromStdString(Shared().LastInitials), kept);
}

void ScoreScreensTest::titleStart_data() {
    QTest::addColumn<QStringList>("lists");
    QTest::addColumn<QString>("soundLine");
    QTest::addColumn<bool>("noLists");
    QTest::addColumn<QStringList>("sounds");
    const QStringList animals{"Animals", "cat", "a pet"};
    QTest::newRow("lists and sound") << animals << "Sound On" << false << QStringList{"ufofly.wav"};
    QTest::newRow("empty first line") << QStringList{"", "Animals", "cat", "a pet"} << "Sound On"
                                      << true << QStringList{"ufofly.wav"};
    QTest::newRow("sound off") << animals << "Sound Off" << false << QStringList{};
    QTest::newRow("sound on in lower case") << animals << "sound on" << false << QStringList{};
}

void ScoreScreensTest::titleStart() {
    QFETCH(QStringList, lists);
    QFETCH(QString, soundLine);
    QFETCH(bool, noLists);
    QFETCH(QStringList, sounds);
    ShellFixture fx;
    fx.writeLines("thelists.new", lists);
    fx.writeLines("wmdata.new", {"r0", "r1", soundLine, "mapleton", "listpath", "folderpath"});
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title && title->startedOk());
    QCOMPARE(title->noListsLabel()->isVisible(), noLists);
    QCOMPARE(fx.dialogs.texts(),
             noLists ? QStringList{"There are no vocabulary lists available to play with!"}
                     : QStringList{});
    QCOMPARE(Shared().SoundDefault, soundLine == "Sound On" ? kTrue : kFalse);
    Pump(50);
    QCOMPARE(fx.sound.played, sounds);
}

void ScoreScreensTest::titlePagesAtTheEdge_data() {
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("onLastPage");
    // Twelve a page: More shows exactly while games remain past the page.
    QTest::newRow("one page full") << 12 << 1 << 12;
    QTest::newRow("one over") << 13 << 2 << 1;
    QTest::newRow("two pages full") << 24 << 2 << 12;
    QTest::newRow("one game") << 1 << 1 << 1;
}

void ScoreScreensTest::titlePagesAtTheEdge() {
    QFETCH(int, shown);
    QFETCH(int, pages);
    QFETCH(int, onLastPage);
    ShellFixture fx;
    DisplaySettings d = DisplaySettings::LargeIcons();
    d.hidden.assign(kGameNames.begin() + shown, kGameNames.end());
    WriteDisplaySettings(fx.path("wmgdisplay.dat").toStdString(), d);
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title && title->startedOk());
    QCOMPARE(Shared().VisibleGameCount, shown);
    int seen = 1;
    while (title->moreButton()->isVisible() && seen <= pages) {
        QTest::mouseClick(title->moreButton(), Qt::LeftButton);
        ++seen;
    }
    QCOMPARE(seen, pages);
    int visible = 0;
    for (auto* b : title->buttons()) visible += b->isVisible() ? 1 : 0;
    QCOMPARE(visible, onLastPage);
    QCOMPARE(title->backButton()->isVisible(), pages > 1);
}

QTEST_MAIN(ScoreScreensTest)
#include "score_screens_test.moc"
