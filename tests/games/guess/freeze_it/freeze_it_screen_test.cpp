// Freeze-It on its screen: from the title through ten words (a wrong answer, the palette, a
// melted word, right answers) to the table; a game without points that ends without the table;
// a list without letters refused.
#include "games/guess/freeze_it/freeze_it_screen.h"
#include "game_open.h"
#include "look.h"
#include "platform/speech.h"

using namespace wm::freeze_it;

namespace {
const Pairs kWinter{
    {"snow", "white flakes that fall in winter"},     {"frost", "thin ice on a cold morning"},
    {"igloo", "a house made of snow blocks"},         {"sled", "you ride it down a snowy hill"},
    {"mitten", "a warm glove without fingers"},       {"scarf", "you wrap it round your neck"},
    {"penguin", "a bird that swims but never flies"}, {"icicle", "ice hanging from a roof"},
    {"blizzard", "a storm of wind and snow"},         {"cocoa", "a hot chocolate drink"}};

// Moves the clock until the ice thaws (the pause before a word is over).
bool UntilThawing(QPointer<FreezeIt> game) {
    for (int i = 0; i < 100 && game; ++i) {
        if (Runs(game->frame(), "Timer1")) return true;
        Pump(50);
    }
    return false;
}

void TypeAnswer(FreezeIt* game, const QString& text) {
    game->answerBox()->setText(text);
    QTest::keyClick(game->answerBox(), Qt::Key_Return);
}
}  // namespace

class FreezeItScreenTest : public QObject {
    Q_OBJECT
private slots:
    void tenWordsToTheTable() {
        RecordingSpeech voice;  // outlives the screen
        Road fx(0, {"ICE"});
        services().speech = &voice;
        SetModalHook(PaletteThen(0xE9, fx.win));
        fx.dialogs.answerYes(false);
        WM_OPEN(game, fx, QPointer(PlayOn<FreezeIt>(fx, "Freeze-It", kWinter, 3)));
        QCOMPARE(game->focusPolicy(), Qt::StrongFocus);  // the keys go to the game
        Pump();
        SharedState& s = Shared();
        const std::string first = s.TheWord;
        const int n = int(first.size());
        QCOMPARE(game->scene()->bannerText(), QString("Get ready!"));
        QCOMPARE(LabelText(game, "Label1"), QString::fromStdString("Meaning: " + s.TheMeaning));

        // Nothing thaws in the pause; then a block every 1800 - 300 x 3 = 900 ms.
        QVERIFY(UntilThawing(game));
        QCOMPARE(game->hintLabel()->text(), QString("Press SPACE to freeze the ice!"));
        QCOMPARE(game->findChild<QLabel*>("Label4"), game->hintLabel());
        Pump(880);
        QCOMPARE(game->game().hidden(), n);
        Pump(40);
        QCOMPARE(game->game().hidden(), n - 1);
        QCOMPARE(fx.sound.played.count("freeze-drip.wav"), 1);

        // Space freezes; Escape in the box puts it away and the thaw goes on.
        QTest::keyClick(game, Qt::Key_Space);
        QCOMPARE(game->hintLabel()->text(), QString("Type the word and press ENTER"));
        QCOMPARE(fx.sound.played.last(), QString("freeze-crack.wav"));
        QVERIFY(game->scene()->isFrozen());
        Pump(2000);
        QCOMPARE(game->game().hidden(), n - 1);
        QTest::keyClicks(game->answerBox(), "ab");           // put away unchecked: gone next time
        QTest::keyClick(game->answerBox(), Qt::Key_Escape);  // closes the box, not the game
        QVERIFY(!game->answerBox()->isVisible() && !game->scene()->isFrozen());
        QCOMPARE(CurrentScreen(), game.data());

        // A letter typed straight away freezes the ice and starts the answer; a wrong one costs
        // nothing at 0 and the thaw goes on.
        QTest::keyClick(game, Qt::Key_Q);
        QCOMPARE(game->answerBox()->text(), QString("q"));
        QTest::keyClick(game->answerBox(), Qt::Key_Return);
        QCOMPARE(game->scoreLabel()->text(), QString("Score: 0"));
        QCOMPARE(game->scene()->bannerText(), QString("Not quite! -25"));
        QCOMPARE(fx.sound.played.last(), QString("freeze-wrong.wav"));
        Pump(900);
        QCOMPARE(game->game().hidden(), n - 2);
        WM_CHECK_LOOK("Freeze-It_play", game);  // two letters out of the ice, the miss told
        QCOMPARE(IntervalOf(game->frame(), "Timer4"), 1300);  // then the banner goes
        QVERIFY(TriggerMenu(game, "mnuSayIt"));               // the clue may be heard, not the word

        // The palette freezes the thawing ice first, then puts its letter into the answer box.
        QVERIFY(TriggerMenu(game, "FLang") && game->scene()->isFrozen());
        game->answerBox()->setText("cafX");
        game->answerBox()->setSelection(3, 1);
        QVERIFY(TriggerMenu(game, "FLang"));
        QCOMPARE(game->answerBox()->text(), QString::fromLatin1("caf\xE9"));
        TypeAnswer(game, QString::fromStdString(first).toUpper());
        const int firstPoints = (n - 2) * 20 * 3 + 10;
        QCOMPARE(game->scene()->bannerText(), QString("Right! +%1").arg(firstPoints));
        QCOMPARE(game->scoreLabel()->text(), QString("Score: %1").arg(firstPoints));
        QCOMPARE(fx.sound.played.last(), QString("freeze-right.wav"));
        QVERIFY(TriggerMenu(game, "mnuSayIt"));  // answered, the word itself may be heard
        QVERIFY(TriggerMenu(game, "FLang") && game->answerBox()->text().isEmpty());  // no box
        QCOMPARE(voice.said.value(0).text + " | " + voice.said.value(1).text,
                 QString::fromStdString(s.TheMeaning + " | " + first));

        // The second word melts away: no points, and the word is shown.
        QVERIFY(UntilThawing(game));
        QCOMPARE(LabelText(game, "Label2"), "Word 2 of 10");
        const QString second = QString::fromStdString(s.TheWord);
        Pump(900 * int(second.size()));
        QCOMPARE(game->scene()->bannerText(), "The word was: " + second);
        QCOMPARE(fx.sound.played.last(), QString("freeze-melt.wav"));
        QCOMPARE(s.Score, double(firstPoints));

        // The other eight at once, each frozen before a block has thawed.
        QStringList words{QString::fromStdString(first), second};
        for (int w = 3; w <= 10; ++w) {
            QVERIFY(UntilThawing(game));
            words << QString::fromStdString(s.TheWord);
            QTest::keyClick(game, Qt::Key_Space);
            TypeAnswer(game, words.last());
        }
        words.removeDuplicates();
        QCOMPARE(words.size(), 10);
        double expected = firstPoints;
        for (int w = 2; w < 10; ++w) expected += words[w].size() * 60 + 10;
        QCOMPARE(s.Score, expected);
        Pump(1950);
        QCOMPARE(game->scene()->bannerText(), QString("You did it! %1 points").arg(expected));
        QCOMPARE(fx.sound.played.last(), QString("freeze-win.wav"));
        QVERIFY(fx.win.tables.isEmpty());
        Pump(2400);
        WM_CHECK_WON(fx, "freeze it", QString("ICE %1").arg(expected));
    }

    void noPointsNoTableAndAListWithNoLettersRefused() {
        RecordingSpeech voice;
        Road fx(0);
        services().speech = &voice;
        fx.dialogs.answerYes(false);
        const Pairs words{{"ice", "cold"}, {"hail", "icy rain"}, {"sleet", "wet snow"}};
        WM_OPEN(game, fx,
                QPointer(OpenGame<FreezeIt>(fx, "Freeze-It", words, 5, false, true, true)));
        QVERIFY(UntilThawing(game));
        QVERIFY(!game->clue()->isVisible());  // no meaning on a words-only list
        QVERIFY(TriggerMenu(game, "mnuSayIt") && voice.said.isEmpty());  // nor heard
        const int hidden = game->game().hidden();  // level 5 thaws a block every 300 ms
        Pump(300);
        QCOMPARE(game->game().hidden(), hidden - 1);
        QTest::keyClick(game, Qt::Key_Space);
        TypeAnswer(game, "snow");
        // The word melts before the miss's banner is due to go; the melt's banner stays.
        Pump(1400);
        QVERIFY(game->scene()->bannerText().startsWith("The word was: "));
        // Every word melts at 1800 - 300 x 5 = 300 ms a block.
        QStringList seen, banners;
        for (int i = 0; i < 800 && game && !fx.dialogs.last().startsWith("The ice"); ++i) {
            banners << game->scene()->bannerText();
            if (banners.last().startsWith("The word was: ")) seen << banners.last().mid(14);
            Pump(100);
        }
        seen.removeDuplicates();
        QCOMPARE(seen.size(), 3);
        WM_VERIFY(Box(fx,
                      "The ice kept its secrets this time! The words were: " + seen.join(", ") +
                          ". Would you like to try again?",
                      "Try Again?"));
        QVERIFY(fx.win.congratulations.isEmpty());
        QVERIFY(banners.contains("Brrr! The ice won this time."));
        QCOMPARE(fx.sound.played.last(), QString("freeze-lose.wav"));
        QVERIFY(BackAtTitle());
        WM_VERIFY(Refused(fx, "Freeze-It", {{"- -", "only dashes"}, {"'", "only a mark"}}, 3,
                          "The words on this vocabulary list have no letters to hide in the ice. "
                          "Please choose another list or another game.",
                          "Freeze-It!"));
    }
};

QTEST_MAIN(FreezeItScreenTest)
#include "freeze_it_screen_test.moc"
