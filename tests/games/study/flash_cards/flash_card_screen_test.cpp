// Flash cards on their screen: the road from the title into the cards with the cover's three
// states, the speaker and the end of the list; the alphabetical order, the scroll bar, the cover's
// look halfway up, the missing letter and the sound gated by SoundOn.

#include "games/study/flash_cards/flash_card_form.h"
#include "platform/speech.h"
#include "shell/flash_card_options.h"

#include "game_open.h"
#include "look.h"

namespace {

const Pairs kAnimals{{"eel", "a long slippery fish"},
                     {"Cat", "a pet that purrs"},
                     {"ant", "a tiny insect"},
                     {"dog", "a pet that barks"},
                     {"bee", "it buzzes and makes honey"}};

FlashCardForm* OpenCards(ShellFixture& fx, int mode, const char* letter = "A", bool sound = true) {
    Shared().FlashCardMode = short(mode);
    Shared().StartLetter = letter;
    Shared().ListChanged = kTrue;
    auto* cards = OpenGame<FlashCardForm>(fx, "Flash Cards", kAnimals, 0, true, sound);
    Pump();
    return cards;
}

}  // namespace

class FlashCardScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fromTheTitleByLetterToTheEnd() {
        RecordingSpeech voice;  // outlives the screens the fixture closes
        ShellFixture fx;
        services().speech = &voice;
        WriteOneList(fx, "Animals", kAnimals);
        QVERIFY(ClickTitleButton("Flash Cards"));
        auto* o = Showing<FlashCardOptions>();
        QVERIFY(o);
        QTest::mouseClick(o->Option2, Qt::LeftButton);
        o->Letter->setText("c");
        o->continueOn();
        auto* game = Showing<GameOptions>();
        game->SoundONOp->setChecked(true);
        game->continueOn();
        Pump();
        WM_OPEN(cards, fx,
                qobject_cast<FlashCardForm*>(ContinueWithList(Showing<ChooseList>(), "Animals (")));
        Pump();

        QCOMPARE(cards->total_->text(), "Total cards available in this set: 5");
        QCOMPARE(Labels(cards, "TheWord TheDefinition Label1"),
                 "Cat | a pet that purrs | Card number 3 out of 5");
        QCOMPARE(cards->Gimme->text(), "Show the Word");
        QCOMPARE(cards->coverState(), FlashCardForm::Cover::Covering);
        QCOMPARE(fx.sound.played.count("pageturn.wav"), 1);
        QVERIFY(!cards->findChild<QAction*>("RS")->isVisible());  // Quit only

        cards->Gimme->click();
        QCOMPARE(cards->coverState(), FlashCardForm::Cover::Opening);
        QCOMPARE(fx.sound.played.last(), "zap.wav");
        cards->MovieBox->advance(5);
        Pump(60);
        QCOMPARE(cards->coverState(), FlashCardForm::Cover::Gone);
        cards->Gimme->click();  // nothing more to open
        auto* speaker = cards->findChild<QToolButton*>("SayButton");
        QVERIFY(speaker && speaker->cursor().shape() == Qt::PointingHandCursor);
        WM_CHECK_LOOK("Flash_Cards_speaker", speaker);  // a white loudspeaker and its waves
        speaker->click();
        QCOMPARE(voice.said.value(0).text, "Cat");
        QCOMPARE(fx.sound.played.count("zap.wav"), 1);

        // By two: "eel" is the fifth card, and the next step runs past the list.
        QTest::mouseClick(cards->Label2, Qt::LeftButton);
        QCOMPARE(cards->TheWord->text(), "eel");
        QCOMPARE(cards->focusWidget(), cards->Gimme);  // Enter opens the new card
        QCOMPARE(cards->coverState(), FlashCardForm::Cover::Covering);
        QVERIFY(cards->Frame1->isHidden() && !cards->Frame2->isHidden());
        cards->previousCard();
        QCOMPARE(cards->TheWord->text(), "dog");
        cards->nextCard();
        cards->nextCard();
        QCOMPARE(cards->TheWord->text(), "");
        cards->Gimme->click();  // the cover opened and run to its end
        QCOMPARE(cards->findChild<Movie*>("MovieBox"), cards->MovieBox);  // found by its name
        cards->MovieBox->advance(5);
        Pump(60);
        QCOMPARE(cards->TheWord->text(), "That's the end of the list!");
        QCOMPARE(cards->TheDefinition->text(), "That's the end of the list!");
    }

    void alphabeticalWithButtonsAndScrollBar() {
        {
            ShellFixture fx;
            WM_OPEN(cards, fx, OpenCards(fx, 1, "A", false));
            QTest::mouseClick(cards->Label2, Qt::LeftButton);
            QCOMPARE(cards->TheWord->text(), "bee");
            cards->CardScroll->setValue(4);
            QCOMPARE(cards->Label1->text(), "Card number 4 out of 5");
            QTest::mouseClick(cards->backlabel, Qt::LeftButton);
            QCOMPARE(cards->TheWord->text(), "Cat");
            cards->Gimme->click();  // the cover just lifting, its twinkles bright
            cards->MovieBox->advance(0.08);
            WM_CHECK_LOOK("Flash_Cards_lifting", cards->MovieBox);
            cards->MovieBox->advance(0.32);  // halfway through the lift, both arrows showing
            WM_CHECK_LOOK("Flash_Cards_opening", cards);
            WM_CHECK_LOOK("Flash_Cards_cover", cards->MovieBox);  // its twinkles large
            QVERIFY(!fx.sound.played.contains("pageturn.wav"));   // sound off
        }
        // A letter no word starts with: told so, and the cards run one by one from the start.
        ShellFixture fx2;
        WM_OPEN(cards, fx2, OpenCards(fx2, 3, "z"));
        QCOMPARE(fx2.dialogs.shown.back().text,
                 "No words in this list start with z! Starting at beginning of list instead...");
        cards->nextCard();
        QCOMPARE(cards->TheWord->text(), "bee");
    }
};

QTEST_MAIN(FlashCardScreenTest)
#include "flash_card_screen_test.moc"
