// Scramble on its screen: from the title through the options and the chooser to a win and the
// table; Hint, and a wrong guess to its try-again box, another word and Give Up.

#include "games/study/scramble/scramble_screen.h"
#include "core/clock.h"
#include "game_open.h"
#include "look.h"

class ScrambleScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fromTheTitleToTheTable() {
        Road fx(1, {"ABC"});
        FixedClock clock(0.5);
        SetClock(&clock);
        const auto reset = qScopeGuard([] { SetClock(nullptr); });
        QVERIFY(ClickTitleButton("Scramble"));
        auto* options = Showing<GameOptions>();
        QVERIFY(options);
        QCOMPARE(options->Frame2->title(), "Scatter Letters?");
        QVERIFY(options->Option2->isChecked());
        QCOMPARE(options->SpeedBar->maximum(), 3);
        options->Option1->setChecked(true);  // scatter
        options->SpeedBar->setValue(2);
        QTest::mouseClick(options->Command1, Qt::LeftButton);
        Pump();
        WM_OPEN(game, fx,
                qobject_cast<Scramble*>(ContinueWithList(Showing<ChooseList>(), "Human Body (")));
        Pump();
        const SharedState& s = Shared();
        QVERIFY(game->round().scatter);
        const QString word = QString::fromStdString(s.TheWord);
        QString tiles;  // the word's letters, shuffled
        for (auto* l : game->letters())
            if (l->isVisible()) tiles += l->text();
        auto sorted = [](QString t) {
            std::sort(t.begin(), t.end());
            return t.toLower();
        };
        QCOMPARE(sorted(tiles), sorted(word));
        // At Normal the letters flicker once a second: one tile black beside the clock's "1".
        QCOMPARE(IntervalOf(game->frame(), "Timer3"), 1000);
        Pump(1000);
        QCOMPARE(Labels(game, "Label5 Label4"), "Time: | 1");
        WM_CHECK_LOOK("Scramble_flicker", game);
        Enter(game->guessBox(), word.toUpper());
        QVERIFY(fx.sound.played.contains("applause.wav") && s.Score > 0);
        WM_CHECK_WON(fx, "Scramble", "ABC " + QString::number(s.Score));
    }

    void wrongGuessAsksAgainAndHintCosts() {
        Road fx(2);
        fx.writeLines("thelists.new", {"Foxes", "fox", "a wild dog with a bushy tail"});
        WM_OPEN(
            game, fx,
            qobject_cast<Scramble*>(ContinueWithList(ChooserFor("Scramble", 1, true), "Foxes")));
        Pump();
        Button(game, "Command3")->click();
        QCOMPARE(LastBox(fx), "Hint | This word means \"a wild dog with a bushy tail\"");
        QCOMPARE(Shared().Score, -1000.0);
        Button(game, "Command1")->click();  // nothing typed: no guess
        QCOMPARE(fx.dialogs.shown.size(), std::size_t(1));
        fx.dialogs.answerYes(true).answerYes(false);
        const QString oops = "Oops! The scrambled word was \"fox\". Would you like to try again?";
        Enter(game->guessBox(), "dog");
        QCOMPARE(fx.sound.played.last(), "fall.wav");
        QCOMPARE(fx.dialogs.last(), oops);
        Pump();
        QCOMPARE(Showing<Scramble>(), game);  // yes: another word
        QCOMPARE(Shared().Score, 0.0);
        Button(game, "Command2")->click();  // Give Up
        QCOMPARE(fx.dialogs.last(), oops);
        QVERIFY(BackAtTitle() && fx.win.tables.isEmpty());
        QCOMPARE(
            Refused(fx, "Scramble", {{"abcdefghijklmnopqrstu", "too long a word"}}, 1,
                    "The words on this list are too long to use for this activity.", "Scramble"),
            "");
    }
};

QTEST_MAIN(ScrambleScreenTest)
#include "scramble_screen_test.moc"
