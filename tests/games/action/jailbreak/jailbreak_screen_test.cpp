// Jailbreak on its screen: from the title through the chooser and the options to a won game and
// the table, a lost game and its try again, what a click, a hint and a wrong word do, the
// refusal of a list without enough different words, and pictures at two screen sizes.
#include <QtTest>

#include "core/score_table.h"
#include "game_road.h"
#include "games/action/jailbreak/jailbreak_screen.h"
#include "platform/text.h"

using namespace wm;
using namespace wm::test;
namespace jb = wm::jailbreak;

namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

const Pairs kEight = {{"apple", "a red or green fruit"}, {"river", "water that flows to the sea"},
                      {"cloud", "it floats in the sky"},  {"tiger", "a big striped cat"},
                      {"piano", "keys that sing"},        {"owl", "a bird that hoots at night"},
                      {"bridge", "it crosses water"},     {"candle", "a light made of wax"}};

// From the title's button: the chooser comes first, then the options with `level`.
JailBreakForm* OpenJail(ShellFixture& fx, const Pairs& list, int level) {
    WriteOneList(fx, "Jail Words", list);
    auto* title = qobject_cast<Title*>(OpenScreen("Title", CurrentScreen()));
    Pump();
    QAbstractButton* button = nullptr;
    for (int page = 0; page < 4 && !button; ++page) {
        for (auto* b : title->buttons())
            if (b->isVisible() && b->text() == "Jailbreak") button = b;
        if (!button) title->showMore();
    }
    if (!button) return nullptr;
    QTest::mouseClick(button, Qt::LeftButton);
    Pump();
    auto* chooser = Showing<ChooseList>();
    if (!chooser || SelectList(chooser, "Jail Words (") < 0) return nullptr;
    chooser->continueOn();
    Pump();
    auto* options = Showing<GameOptions>();
    if (!options) return nullptr;
    // The slider is clamped to the list: never more locks than words.
    if (options->SpeedBar->maximum() != std::min<int>(6, int(list.size()))) return nullptr;
    options->SpeedBar->setValue(level);
    options->continueOn();
    Pump();
    return Showing<JailBreakForm>();
}

void Type(JailBreakForm* game, const QString& word) {
    QTest::keyClicks(game->typingBox(), word);
    QTest::keyClick(game->typingBox(), Qt::Key_Return);
}

QString Text(QWidget* game, const char* name) {
    return game->findChild<QLabel*>(name)->text();
}

}  // namespace

class JailbreakScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadFromTitleThroughThreeCellsToTheTable();
    void theGuardCatchesYouAndYouTryAgain();
    void locksHintsAndTheAlarm();
    void anEscapeWithNoPointsLeftIsNoHighScore();
    void tooFewDifferentWordsIsRefused();
    void pictures_data();
    void pictures();
};

void JailbreakScreenTest::roadFromTitleThroughThreeCellsToTheTable() {
    ShellFixture fx;
    for (int k = 1; k <= 6; ++k) fx.rng.pick(k, 8);
    auto* game = OpenJail(fx, kEight, 2);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    const SharedState& s = Shared();
    QCOMPARE(game->objectName(), "JailBreakForm");
    QCOMPARE(s.Difficulty, 2);
    QCOMPARE(game->jail().locks.size(), std::size_t(2));
    QCOMPARE(fx.music.plays, 1);
    QCOMPARE(game->scene()->banner(), "Cell 1 of 3");
    // Nothing counts before the pause is over.
    Type(game, "apple");
    game->findChild<QPushButton*>("Command1")->click();
    QCOMPARE(s.Score, 0.0);
    QCOMPARE(Text(game, "Label3"), "Stuck? Hint shows the first letter (-10).");
    Pump(1960);
    QCOMPARE(game->phase(), JailBreakForm::Phase::Ready);
    Pump(40);
    QCOMPARE(game->phase(), JailBreakForm::Phase::Playing);
    QCOMPARE(game->scene()->banner(), "");
    QCOMPARE(game->typingBox()->text(), "apple");  // kept for when the pause is over
    game->typingBox()->setText(QString(70, 'a'));
    QCOMPARE(game->typingBox()->text().size(), 60);
    game->typingBox()->clear();
    Pump(1500 * 3);
    QCOMPARE(game->jail().guardSteps, 3);
    QCOMPARE(Text(game, "GuardLabel"), "Guard: 37 steps away");

    Type(game, "zebra");  // -20, two steps on
    QCOMPARE(s.Score, -20.0);
    QCOMPARE(game->jail().guardSteps, 5);
    QCOMPARE(fx.sound.played.last(), "alarm.wav");
    QVERIFY(game->scene()->alarmOn());
    QCOMPARE(game->typingBox()->text(), "");
    Type(game, "APPLE");  // 5 letters x 20
    QCOMPARE(s.Score, 80.0);
    QCOMPARE(fx.sound.played.last(), "unlock.wav");
    QCOMPARE(Text(game, "ScoreLabel"), "Score: 80");
    QVERIFY(game->scene()->springing(0));
    QCOMPARE(Text(game, "Label2"), "water that flows to the sea");
    game->findChild<QPushButton*>("Command1")->click();
    QCOMPARE(s.Score, 70.0);
    QCOMPARE(Text(game, "Label3"), "It begins with \"R\"");
    Type(game, "river");  // 100, then the guard's 35 steps to go x 10
    QCOMPARE(s.Score, 70.0 + 100 + 350);
    QCOMPARE(game->scene()->banner(), "Escaped!");
    QCOMPARE(game->phase(), JailBreakForm::Phase::Opening);
    QCOMPARE(Text(game, "Label1"), "All the locks are open!");
    Pump(1500);  // the guard stands still while you escape
    QCOMPARE(game->jail().guardSteps, 5);
    QVERIFY(game->scene()->escaping());
    QCOMPARE(fx.sound.played.count("jaildoor.wav"), 1);
    Pump(2200);
    QCOMPARE(game->jail().cell, 2);
    QCOMPARE(game->jail().guardSteps, 0);
    QCOMPARE(Text(game, "CellLabel"), "Cell 2 of 3");

    WinDriver driver({"JBK"});
    SetModalHook(std::ref(driver));
    Pump(2000);
    QCOMPARE(game->phase(), JailBreakForm::Phase::Playing);
    Type(game, "tiger");
    Type(game, "cloud");  // 100 + 100 + 40 x 10
    Pump(3700);
    QCOMPARE(game->jail().cell, 3);
    Pump(2000);
    Type(game, "piano");
    Type(game, "owl");  // 100 + 60 + 400
    const double total = 520 + 600 + 560;
    QCOMPARE(s.Score, total);
    Pump(4000);
    QCOMPARE(driver.tables.size(), 1);
    QCOMPARE(fx.sound.played.count("cheer.wav"), 1);
    QCOMPARE(fx.dialogs.last(), "You got a high score of 1680! Would you like to try again?");
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    Pump();
    QVERIFY(Showing<Title>());
    const ScoreTable table = ReadScoreTable(fx.path("scores/Jailbreak.dat").toStdString());
    QCOMPARE(QString::fromStdString(table.initials(1)), "JBK");
    QCOMPARE(table.score(1), total);
}

void JailbreakScreenTest::theGuardCatchesYouAndYouTryAgain() {
    ShellFixture fx;
    for (int k : {8, 7, 6}) fx.rng.pick(k, 8);
    auto* game = OpenJail(fx, kEight, 3);
    QVERIFY(game);
    Pump(2000);
    Type(game, "bridge");
    Pump(1500 * 39);
    QCOMPARE(game->jail().guardSteps, 39);
    QCOMPARE(Text(game, "GuardLabel"), "Guard: 1 step away");
    QCOMPARE(fx.sound.played.count("footstep.wav"), 39);
    Type(game, "bridges");  // the alarm brings him to the door
    QCOMPARE(game->phase(), JailBreakForm::Phase::Caught);
    QCOMPARE(Text(game, "GuardLabel"), "Guard: at the door!");
    QCOMPARE(fx.sound.played.last(), "whistle.wav");
    QCOMPARE(game->scene()->banner(), "Caught!");
    Type(game, "candle");  // too late
    QVERIFY(!game->jail().locks[0].open);
    fx.dialogs.answerYes(true);
    Pump(1600);
    QCOMPARE(fx.dialogs.shown.back().title, "Caught!");
    QCOMPARE(fx.dialogs.last(),
             "The guard caught you! The locks still shut were \"candle\", \"owl\". Would you like "
             "to try again?");
    // Try again: a new game from the first cell, score and guard back at the start.
    QCOMPARE(Showing<JailBreakForm>(), game);
    QCOMPARE(game->jail().cell, 1);
    QCOMPARE(Shared().Score, 0.0);
    QCOMPARE(game->scene()->guardShown(), 0.0);
    QCOMPARE(game->phase(), JailBreakForm::Phase::Ready);
    Pump(2000 + 1500 * 40 + 1600);  // caught again, and this time No
    QVERIFY(fx.dialogs.last().startsWith("The guard caught you!"));
    Pump();
    QVERIFY(Showing<Title>());
    QCOMPARE(ReadScoreTable(fx.path("scores/Jailbreak.dat").toStdString()).score(1), 0.0);
}

void JailbreakScreenTest::locksHintsAndTheAlarm() {
    ShellFixture fx;
    const std::string longMeaning =
        "a very long definition that goes on and on about a great many things, far more than any "
        "luggage tag on a padlock could ever hold in letters large enough to read";
    Pairs list = kEight;
    list[2].second = longMeaning;
    list[3] = {"caf\xE9", "a small restaurant"};
    for (int k : {1, 2, 3, 4}) fx.rng.pick(k, 8);
    auto* game = OpenJail(fx, list, 4);
    QVERIFY(game);
    Pump(2000);
    JailScene* scene = game->scene();
    QCOMPARE(Text(game, "Label1"), "Lock 1 of 4 says:");
    // A click on the third tag shows its definition whole below, though the tag holds less.
    QTest::mouseClick(scene, Qt::LeftButton, {}, scene->tagRect(2).center().toPoint());
    QCOMPARE(game->jail().selected, 2);
    QCOMPARE(Text(game, "Label1"), "Lock 3 of 4 says:");
    QCOMPARE(Text(game, "Label2"), toQ(longMeaning));
    QCOMPARE(Shared().TheWord, "cloud");
    Pump(40);
    QVERIFY(scene->tagText(2).endsWith(QChar(0x2026)));
    QCOMPARE(scene->tagText(1), "water that flows to the sea");
    QVERIFY(game->typingBox()->hasFocus());
    auto* hintButton = game->findChild<QPushButton*>("Command1");
    hintButton->click();
    hintButton->click();  // a second look is free
    QCOMPARE(Shared().Score, -10.0);
    QCOMPARE(fx.sound.played.count("ding.wav"), 1);
    QCOMPARE(Text(game, "Label3"), "It begins with \"C\"");
    // Accents count, case does not; the palette types into the box.
    Type(game, "Cloud");
    QCOMPARE(Shared().Score, 90.0);
    QCOMPARE(game->jail().selected, 0);  // on to the first lock still shut
    SetModalHook([](QDialog& d) {
        if (auto* fl = qobject_cast<FLForm*>(&d)) {
            fl->pickCell(0xC9 - 191);  // the capital: case does not matter
            fl->insert(0);
        } else {
            d.reject();
        }
    });
    QTest::keyClicks(game->typingBox(), "caf");
    QVERIFY(TriggerMenu(game, "FLang"));
    QCOMPARE(game->findChild<QAction*>("FLang")->text(), "Foreign Language Characters");
    QCOMPARE(game->typingBox()->text(), "caf\u00C9");
    QTest::keyClick(game->typingBox(), Qt::Key_Return);
    QCOMPARE(Shared().Score, 90.0 + 80);

    // With the sound off a mistake is silent, but still costs.
    Shared().SoundOn = kFalse;
    const auto sounds = fx.sound.played.size();
    Type(game, "rive");
    QCOMPARE(Shared().Score, 150.0);
    QCOMPARE(game->jail().guardSteps, 2);
    QCOMPARE(fx.sound.played.size(), sounds);
    // Escape leaves at once.
    QTest::keyClick(game->typingBox(), Qt::Key_Escape);
    Pump();
    QVERIFY(Showing<Title>());
}

void JailbreakScreenTest::anEscapeWithNoPointsLeftIsNoHighScore() {
    ShellFixture fx;
    auto* game = OpenJail(fx, {{"owl", "a bird that hoots at night"}}, 1);
    QVERIFY(game);
    QCOMPARE(Shared().Difficulty, 1);  // one word: one lock
    QString bannerAtTheBox;
    fx.dialogs.otherwiseYes = [&](const QString&) {
        bannerAtTheBox = game->scene()->banner();
        return false;
    };
    for (int cell = 1; cell <= 3; ++cell) {
        Pump(2000);
        for (int i = 0; i < 17; ++i) Type(game, "hoot");  // -340, and 34 steps
        Type(game, "Owl");                                // 60, then 6 steps to go x 10
        QCOMPARE(Shared().Score, -220.0 * cell);
        Pump(700 + 3000);
    }
    QCOMPARE(bannerAtTheBox, "You broke out!");
    QCOMPARE(fx.dialogs.shown.back().title, "Escaped!");
    QCOMPARE(fx.dialogs.last(),
             "You escaped from all three cells, but your score is -660, so it cannot go on the "
             "high score table. Would you like to try again?");
    Pump();
    QVERIFY(Showing<Title>());
    QCOMPARE(ReadScoreTable(fx.path("scores/Jailbreak.dat").toStdString()).score(1), 0.0);
}

void JailbreakScreenTest::tooFewDifferentWordsIsRefused() {
    ShellFixture fx;
    auto* game = OpenJail(fx, {{"cat", "a pet that purrs"}, {"Cat", "a pet"}, {"CAT", "meows"}}, 2);
    Pump();
    QVERIFY(!game || !Showing<JailBreakForm>());
    QCOMPARE(fx.dialogs.last(), jb::kTooFewWords);
    QCOMPARE(fx.dialogs.shown.back().title, "Jailbreak");
    QVERIFY(Showing<Title>());
}

void JailbreakScreenTest::pictures_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("level");
    QTest::newRow("1280x800") << QSize(1280, 800) << 6;
    QTest::newRow("1920x1080") << QSize(1920, 1080) << 5;
}

// Long words and long definitions at both sizes: the tags stay on the door, the panels under
// the stage, and nothing runs off the screen.
void JailbreakScreenTest::pictures() {
    QFETCH(QSize, size);
    QFETCH(int, level);
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(size);
    const Pairs list = {{"photosynthesis", "how green plants make food from sunlight, water and air"},
                        {"constellation", "a group of stars that makes a picture in the sky"},
                        {"precipitation", "rain, snow, sleet or hail falling from the clouds"},
                        {"archaeologist", "a scientist who digs up things from long ago"},
                        {"thermometers", "tools that measure how hot or cold it is"},
                        {"hibernation", "a long winter sleep of some animals"}};
    for (int k = 1; k <= 6; ++k) fx.rng.pick(k, 6);
    auto* game = OpenJail(fx, list, level);
    QVERIFY(game);
    QCOMPARE(game->size(), size);
    Pump(2000 + 1500 * 12);
    Type(game, "photosynthesis");
    Type(game, "wrong");
    Pump(200);
    JailScene* scene = game->scene();
    const QRect sceneRect = scene->geometry();
    for (int i = 0; i < level; ++i) {
        QVERIFY(scene->rect().contains(scene->tagRect(i).toRect()));
        for (int j = i + 1; j < level; ++j)
            QVERIFY(!scene->tagRect(i).intersects(scene->tagRect(j)));
    }
    QRect chips;
    for (const char* name : {"CellLabel", "ScoreLabel", "GuardLabel"}) {
        const QRect r = game->findChild<QLabel*>(name)->geometry();
        QVERIFY(game->rect().contains(r));
        QVERIFY(r.bottom() < sceneRect.top() + 4);
        QVERIFY2(!chips.intersects(r), name);
        chips |= r;
    }
    for (QWidget* w : {static_cast<QWidget*>(game->typingBox()),
                       static_cast<QWidget*>(game->findChild<QPushButton*>("Command1"))}) {
        const QRect r(w->mapTo(game, QPoint(0, 0)), w->size());
        QVERIFY(game->rect().contains(r));
        QVERIFY(r.top() > sceneRect.bottom() - 4);
    }
    Shot(game, QString("jailbreak-%1x%2").arg(size.width()).arg(size.height()));
    Pump(600);
    Type(game, "constellation");
    Pump(300);
    Shot(game, QString("jailbreak-open-%1").arg(size.width()));
    SetModalHook([](QDialog& d) { d.reject(); });
    TriggerMenu(game, "Return");
    Pump();
}

QTEST_MAIN(JailbreakScreenTest)
#include "jailbreak_screen_test.moc"
