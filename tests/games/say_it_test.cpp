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
    void whatEachGameLetsYouHear();
};

void SayItTest::whatEachGameLetsYouHear() {
    // Building the word from its letters is the exercise, or the word is on the screen; where
    // finding it is the game, nothing (Freeze-It's clue is the meaning; Speed Type's word shows
    // after "Set...").
    // "" heard: greyed, nothing said.
    const std::tuple<const char*, int, QString> cases[] = {
        {"Scramble", 1, "giraffe"},  {"Letter Drop", 90, "giraffe"},
        {"Toad Race", 5, "giraffe"}, {"HangMan", 1, ""},
        {"Flying Cow", 4, ""},       {"Freeze-It", 3, "a tall animal"},
        {"Speed Type", 1, ""}};
    for (const auto& [game, difficulty, heard] : cases) {
        RecordingSpeech voice;  // outlives the screens the fixture closes
        ShellFixture fx;
        services().speech = &voice;
        WriteOneList(fx, "Zoo", {{"giraffe", "a tall animal"}});
        QWidget* screen = ContinueWithList(ChooserFor(game, difficulty, true), "Zoo");
        Pump();
        auto* entry = screen ? screen->findChild<QAction*>("mnuSayIt") : nullptr;
        QVERIFY2(entry && entry->text() == "Say It", game);
        entry->trigger();
        QCOMPARE(voice.said.value(0).text, heard);
        QCOMPARE(entry->isEnabled(), !heard.isEmpty());
    }
    // Flash cards' speaker: the meaning while the word is covered, then the word.
    RecordingSpeech voice;
    ShellFixture fx;
    services().speech = &voice;
    WriteOneList(fx, "Zoo", {{"giraffe", "a tall animal"}});
    Shared().FlashCardMode = 1;
    Shared().ListChanged = kTrue;
    QWidget* cards = ContinueWithList(ChooserFor("Flash Cards", 0, true), "Zoo");
    QVERIFY(cards);
    Pump();
    auto* speaker = cards->findChild<QToolButton*>("SayButton");
    speaker->click();
    cards->findChild<QPushButton*>("Gimme")->click();
    Pump(60);
    speaker->click();
    QCOMPARE(voice.said.size(), 2);
    QCOMPARE(voice.said[0].text + " / " + voice.said[1].text, "a tall animal / giraffe");
    voice.setStatus(SpeechStatus::NoEngine);
    QVERIFY(!speaker->isEnabled() && speaker->toolTip().startsWith("No speech engine"));
}

QTEST_MAIN(SayItTest)
#include "say_it_test.moc"
