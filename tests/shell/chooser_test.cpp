// The chooser's box and its hand-over: the order of the lines, foreign lists played either way,
// and the boundaries of the eligibility table as a pupil meets them.
#include <QLabel>
#include <QtTest>

#include "core/line_file.h"
#include "shell/choose_list.h"
#include "shell/lang_choose.h"
#include "game_road.h"

using namespace wm;
using namespace wm::test;

namespace {

// Opens the chooser for `game` over the factory lists plus `extra` lines.
ChooseList* OpenChooser(ShellFixture& fx, const std::string& game,
                        const std::vector<std::string>& extra) {
    OpenScreen("Title");
    if (!extra.empty()) AppendLinesAtomic(fx.path("thelists.dat").toStdString(), extra);
    Shared().CurrentGame = game;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    Pump();
    return chooser;
}

bool Select(ChooseList* chooser, const QString& startsWith) {
    for (int i = 0; i < chooser->lists()->count(); ++i) {
        if (chooser->lists()->item(i)->text().startsWith(startsWith)) {
            chooser->lists()->setCurrentRow(i);
            return true;
        }
    }
    return false;
}

// A list of n words named `name`, as lines to append.
std::vector<std::string> ListOf(const std::string& name, int n) {
    std::vector<std::string> lines = {"<New List>", name};
    for (int i = 1; i <= n; ++i) {
        lines.push_back("word" + std::to_string(i));
        lines.push_back("meaning " + std::to_string(i));
    }
    return lines;
}

}  // namespace

class ChooserTest : public QObject {
    Q_OBJECT
private slots:
    void foreignListPlayedThroughTheChooser_data();
    void foreignListPlayedThroughTheChooser();
    void countBoundaries_data();
    void countBoundaries();
    void warnIfOptionWithTheOptionOffSaysNothing();
    void lastChoiceMatchingNothingSelectsNothing();
    void languageNotInTheFileOffersPlainSides();
};

void ChooserTest::foreignListPlayedThroughTheChooser_data() {
    QTest::addColumn<bool>("secondOption");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("word1");
    QTest::addColumn<QString>("meaning1");
    QTest::addColumn<bool>("wordsOnly");
    // "[F]Odd" has the marker on its word lines: after a swap it stands on the meaning side.
    QTest::newRow("english side") << false << "E"
                                  << "dog"
                                  << "perro" << false;
    QTest::newRow("foreign side") << true << "S"
                                  << "perro"
                                  << "dog" << false;
    QTest::newRow("marker on the word line, kept") << false << "E"
                                                   << "-----"
                                                   << "chat" << false;
    QTest::newRow("marker on the word line, swapped") << true << "F"
                                                      << "chat"
                                                      << "-----" << true;
}

void ChooserTest::foreignListPlayedThroughTheChooser() {
    QFETCH(bool, secondOption);
    QFETCH(QString, language);
    QFETCH(QString, word1);
    QFETCH(QString, meaning1);
    QFETCH(bool, wordsOnly);
    ShellFixture fx;
    const bool odd = word1 == "-----" || meaning1 == "-----";
    ChooseList* chooser =
        OpenChooser(fx, "Hang Glider", {"<New List>", "[F]Odd", "-----", "chat", "-----", "chien"});
    QVERIFY(chooser);
    QString asked;
    SetModalHook([&](QDialog& d) {
        auto* box = dynamic_cast<LangChoose*>(&d);
        QVERIFY(box);
        asked = box->Option1->text() + " | " + box->Option2->text();
        (secondOption ? box->Option2 : box->Option1)->setChecked(true);
    });
    // The box shows the plain name; the code goes to the foreign table.
    QVERIFY(Select(chooser, odd ? "Odd (2 words)" : "Spanish Animals ("));
    chooser->continueOn();
    QCOMPARE(asked, odd ? QString("French - English words, French meanings | French - French "
                                  "words, English meanings")
                        : QString("Spanish - English words, Spanish meanings | Spanish - Spanish "
                                  "words, English meanings"));
    const SharedState& s = Shared();
    QCOMPARE(QString::fromStdString(s.CurrentListName), odd ? "Odd" : "Spanish Animals");
    QCOMPARE(QString::fromStdString(s.ListLanguage), language);
    QCOMPARE(QString::fromLatin1(s.Words[1].c_str()), word1);
    QCOMPARE(QString::fromLatin1(s.Meanings[1].c_str()), meaning1);
    QCOMPARE(s.WordsOnly == kTrue, wordsOnly);
}

void ChooserTest::countBoundaries_data() {
    QTest::addColumn<QString>("game");
    QTest::addColumn<int>("words");
    QTest::addColumn<int>("difficulty");
    QTest::addColumn<bool>("refused");
    // One row each side of every kind of count rule: a fixed minimum, and the difficulty.
    struct Row {
        const char* game;
        int minimum;  // 0: the difficulty is the minimum
    };
    const Row rows[] = {{"Pachinko", 5}, {"Basketball", 10}, {"Quiz", 0}, {"Concentration", 0}};
    for (const Row& r : rows) {
        const int n = r.minimum ? r.minimum : 7;
        const QByteArray name(r.game);
        QTest::newRow(name + " exactly") << QString(r.game) << n << 7 << false;
        QTest::newRow(name + " one short") << QString(r.game) << n - 1 << 7 << true;
    }
}

void ChooserTest::countBoundaries() {
    QFETCH(QString, game);
    QFETCH(int, words);
    QFETCH(int, difficulty);
    QFETCH(bool, refused);
    ShellFixture fx;
    ChooseList* chooser = OpenChooser(fx, game.toStdString(), ListOf("Sized", words));
    QVERIFY(chooser);
    Shared().Difficulty = difficulty;
    QVERIFY(Select(chooser, "Sized ("));
    chooser->continueOn();
    QCOMPARE(Shared().WordCount, words);
    const QString first = fx.dialogs.shown.empty() ? QString() : fx.dialogs.shown.front().text;
    const bool countRefusal = first.startsWith("You need a list with at least") ||
                              first.startsWith("There are not enough words");
    QCOMPARE(countRefusal, refused);
    if (!refused && first.isEmpty()) QVERIFY(CurrentScreen() != chooser);
}

void ChooserTest::warnIfOptionWithTheOptionOffSaysNothing() {
    // Words-only lists warn these games only while the option is on; off, they open quietly.
    ShellFixture fx;
    ChooseList* chooser = OpenChooser(fx, "Hang Glider", {});
    QVERIFY(chooser);
    for (const char* game : {"Short Circuit", "Princess", "Asteroid Zap", "Safe Cracker",
                             "Word Search", "Letter Drop"}) {
        Shared().CurrentGame = game;
        chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
        Pump();
        QVERIFY(chooser->lists()->isVisible());
        fx.dialogs.shown.clear();
        Shared().GameOptionOn = kFalse;
        QVERIFY(Select(chooser, "Tricky Spelling Words ("));
        chooser->continueOn();
        QVERIFY2(Shared().WordsOnly == kTrue, game);
        for (const auto& shown : fx.dialogs.shown)
            QVERIFY2(!shown.text.startsWith("The list you have selected"), game);
        QCOMPARE(Shared().GameOptionOn, kFalse);
    }
}

void ChooserTest::lastChoiceMatchingNothingSelectsNothing() {
    ShellFixture fx;
    Shared().LastListChoice = "A list deleted since";
    ChooseList* chooser = OpenChooser(fx, "Hang Glider", {});
    QVERIFY(chooser);
    QVERIFY(chooser->lists()->count() > 0);
    QCOMPARE(chooser->lists()->currentRow(), -1);
    const QString caption = chooser->findChild<QLabel*>("Caption")->text();
    QVERIFY2(caption.startsWith("Choose a list: ") && caption.endsWith(" word lists."),
             qPrintable(caption));
    QVERIFY(!chooser->findChild<QPushButton*>("Command1")->isEnabled());
    chooser->continueOn();
    QCOMPARE(fx.dialogs.texts(), QStringList{"You need to choose a list!"});
    QCOMPARE(CurrentScreen(), chooser);
}

void ChooserTest::languageNotInTheFileOffersPlainSides() {
    ShellFixture fx;
    LangChoose box("X");
    QCOMPARE(box.Option1->text(), "English words, foreign meanings");
    QCOMPARE(box.Option2->text(), "Foreign words, English meanings");
    QCOMPARE(box.findChild<QLabel*>("Label1")->text(), "How do you want to play this word list?");
}

QTEST_MAIN(ChooserTest)
#include "chooser_test.moc"
