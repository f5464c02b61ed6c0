// "Say It" in each game that offers it: what a pupil may hear as the game opens, and nothing
// that gives a hidden word away. Flash cards' speaker says the side that is showing.
#include <QToolButton>
#include <QtTest>

#include "game_road.h"
#include "platform/speech.h"

using namespace wm;
using namespace wm::test;

class SayItTest : public QObject {
    Q_OBJECT
private slots:
    void whatEachGameLetsYouHear_data();
    void whatEachGameLetsYouHear();
    void flashCardSpeakerSaysTheSideShowing();
};

void SayItTest::whatEachGameLetsYouHear_data() {
    QTest::addColumn<QString>("game");
    QTest::addColumn<int>("difficulty");
    QTest::addColumn<QString>("heard");  // "" : greyed, nothing said
    const QString word = "giraffe", meaning = "a tall animal";
    // Building the word from its letters is the exercise, or the word is on the screen.
    QTest::newRow("Scramble") << "Scramble" << 1 << word;
    QTest::newRow("Letter Drop") << "Letter Drop" << 90 << word;
    QTest::newRow("Toad Race") << "Toad Race" << 5 << word;
    // Finding the word is the game; Freeze-It's meaning is its clue on the screen.
    QTest::newRow("HangMan") << "HangMan" << 1 << "";
    QTest::newRow("Bug Spray") << "Bug Spray" << 1 << "";
    QTest::newRow("Flying Cow") << "Flying Cow" << 4 << "";
    QTest::newRow("Freeze-It") << "Freeze-It" << 3 << meaning;
    // Speed Type shows its word only after "Set...".
    QTest::newRow("Speed Type") << "Speed Type" << 1 << "";
}

void SayItTest::whatEachGameLetsYouHear() {
    QFETCH(QString, game);
    QFETCH(int, difficulty);
    QFETCH(QString, heard);
    RecordingSpeech voice;  // outlives the screens the fixture closes
    ShellFixture fx;
    services().speech = &voice;
    WriteOneList(fx, "Zoo", {{"giraffe", "a tall animal"}});
    QWidget* screen = ContinueWithList(ChooserFor(game, difficulty, true), "Zoo");
    QVERIFY(screen);
    Pump();
    auto* entry = screen->findChild<QAction*>("mnuSayIt");
    QVERIFY(entry);
    QCOMPARE(entry->text(), "Say It");
    if (auto* frame = screen->findChild<GameFrame*>()) frame->refreshSayIt();
    QCOMPARE(entry->isEnabled(), !heard.isEmpty());
    if (heard.isEmpty()) QVERIFY(!entry->toolTip().isEmpty());
    Shot(screen, "say-it-" + game);
    entry->trigger();
    QCOMPARE(voice.said.size(), heard.isEmpty() ? 0 : 1);
    if (!heard.isEmpty()) QCOMPARE(voice.said[0].text, heard);
}

void SayItTest::flashCardSpeakerSaysTheSideShowing() {
    RecordingSpeech voice;  // outlives the screens the fixture closes
    ShellFixture fx;
    services().speech = &voice;
    WriteOneList(fx, "Zoo", {{"giraffe", "a tall animal"}});
    Shared().FlashCardMode = 1;
    Shared().ListChanged = kTrue;
    QWidget* cards = ContinueWithList(ChooserFor("Flash Cards", 0, true), "Zoo");
    QVERIFY(cards);
    Pump();
    auto* speaker = cards->findChild<QToolButton*>("SayButton");
    QVERIFY(speaker && speaker->isEnabled());
    speaker->click();
    Shot(cards, "flash-speaker-meaning");
    cards->findChild<QPushButton*>("Gimme")->click();
    Pump(60);
    Shot(cards, "flash-speaker-word");
    speaker->click();
    QCOMPARE(voice.said.size(), 2);
    QCOMPARE(voice.said[0].text, "a tall animal");
    QCOMPARE(voice.said[1].text, "giraffe");
    // No voice: the speaker is greyed with the reason.
    voice.setStatus(SpeechStatus::NoEngine);
    QVERIFY(!speaker->isEnabled());
    QVERIFY(speaker->toolTip().startsWith("No speech engine"));
}

QTEST_MAIN(SayItTest)
#include "say_it_test.moc"
