// The quiz on its screen: a whole run of three questions with one wrong answer through the
// results box back to the title (Escape on the way does nothing); questions on meanings, Restart
// in the middle of the feedback and from the results box, sound gated by SoundOn.

#include "games/study/quiz/quiz_screen.h"
#include "games/study/quiz/quiz_results.h"
#include "shell/quiz_options.h"

#include "game_open.h"
#include "look.h"

namespace {

const Pairs kPlanets{
    {"Mercury", "the planet closest to the Sun"},
    {"Venus", "the hottest planet"},
    {"Earth", "the planet we live on"},
    // Too long for its card at the designed size: smaller letters.
    {"Mars",
     "the red planet, a cold desert world about half as wide as the Earth, with rusty dust, thin"
     " air, ice at its poles, two small moons, the tallest volcano known, a canyon that would "
     "stretch across a whole continent, and robots driving slowly over its rocks and sands for "
     "years to study them and to look for signs of water, long ago or now"},
    {"Jupiter", "the largest planet"},
    {"Saturn", "the planet with the brightest rings"}};

int wrongChoice(const Quiz* q) {
    return q->run().CorrectChoice == 1 ? 1 : 0;  // index of a card that is not the answer
}

QLabel* child(QWidget* w, const char* name) {
    return w->findChild<QLabel*>(name);
}

}  // namespace

class QuizScreenTest : public QObject {
    Q_OBJECT
private slots:
    void wholeQuizWithOneWrongAnswer() {
        ShellFixture fx;
        WriteOneList(fx, "Planets", kPlanets);
        QVERIFY(ClickTitleButton("Quiz"));
        auto* options = Showing<QuizOptions>();
        QVERIFY(options);
        options->QuestionBar->setValue(3);
        options->continueOn();
        auto* game = Showing<GameOptions>();
        QVERIFY(game);
        game->SpeedBar->setValue(4);
        game->SoundONOp->setChecked(true);
        game->continueOn();
        Pump();
        WM_OPEN(quiz, fx,
                qobject_cast<Quiz*>(ContinueWithList(Showing<ChooseList>(), "Planets (")));
        Pump();

        auto* remaining = child(quiz, "RemainingLabel");
        QCOMPARE(child(quiz, "Direct")->text(),
                 "Directions:  Click the meaning that BEST matches the word shown below.");
        QCOMPARE(Labels(quiz, "Questionlabel RemainingLabel"), Word() + " | 2");
        for (int i = 0; i < 8; ++i) QCOMPARE(quiz->answers()[i]->isVisible(), i < 4);
        QCOMPARE(quiz->answerColour(0), 12582912);
        QVERIFY(!quiz->findChild<QAction*>("HS")->isVisible());
        // Escape on the quiz itself does nothing: the run goes on, no box asks.
        QTest::keyClick(quiz->answers()[0], Qt::Key_Escape);
        Pump();
        QCOMPARE(Showing<Quiz>(), quiz);
        QVERIFY(fx.dialogs.shown.empty());

        // 1: right.
        const int right1 = quiz->run().CorrectChoice - 1;
        QCOMPARE(quiz->answers()[right1]->text(), QString::fromStdString(Shared().TheMeaning));
        QTest::mouseClick(quiz->answers()[right1], Qt::LeftButton);
        QCOMPARE(Labels(quiz, "Feedback CorrectLabel"), "Correct! | 1");
        QVERIFY(child(quiz, "Happy")->isVisible() && !child(quiz, "Sad")->isVisible());
        QCOMPARE(quiz->answerColour(right1), 255);
        QCOMPARE(fx.sound.played, QStringList{"dingling.wav"});
        // A second click while the feedback shows counts for nothing.
        QTest::mouseClick(quiz->answers()[wrongChoice(quiz)], Qt::LeftButton);
        QCOMPARE(child(quiz, "WrongLabel")->text(), "0");
        QTest::mouseClick(quiz->findChild<QPushButton*>("Label1"), Qt::LeftButton);
        QCOMPARE(remaining->text(), "1");
        QVERIFY(!quiz->findChild<QFrame*>("Frame2")->isVisible());
        QCOMPARE(quiz->answerColour(right1), 12582912);

        // 2: wrong, and the right card flashes red and blue on the timer.
        const int right2 = quiz->run().CorrectChoice - 1;
        QTest::mouseClick(quiz->answers()[wrongChoice(quiz)], Qt::LeftButton);
        QCOMPARE(Labels(quiz, "Feedback WrongLabel"), "Wrong | 1");
        QVERIFY(child(quiz, "Sad")->isVisible() && !child(quiz, "Happy")->isVisible());
        QCOMPARE(fx.sound.played.last(), "gbell.wav");
        QCOMPARE(quiz->answerColour(right2), 255);
        WM_CHECK_LOOK("Quiz_wrong", quiz);
        Pump(310);
        QCOMPARE(quiz->answerColour(right2), 16711680);
        Pump(310);
        QCOMPARE(quiz->answerColour(right2), 255);
        QTest::mouseClick(quiz->findChild<QPushButton*>("Label1"), Qt::LeftButton);
        Pump(620);
        QCOMPARE(quiz->answerColour(right2), 12582912);  // the flashing stopped

        // 3: right, then the results.
        QCOMPARE(remaining->text(), "0");
        QTest::mouseClick(quiz->answers()[quiz->run().CorrectChoice - 1], Qt::LeftButton);
        QStringList seen;
        bool modalPercentHiddenFirst = false, watchOver = false;
        SetModalHook([&](QDialog& d) {
            auto* r = qobject_cast<QuizResults*>(&d);
            QVERIFY(r);
            seen << r->windowTitle() << r->Label1->text() << r->Label4->text();
            modalPercentHiddenFirst =
                r->isModal() && !r->Label3->isVisible() && r->stamp()->isPlaying();
            r->stamp()->advance(0.7);
            WM_CHECK_LOOK("Quiz_stamp", r);                // down on the paper, its stars flying
            WM_CHECK_LOOK("Quiz_stamp_down", r->stamp());  // and close up: where it stands
            r->stamp()->advance(0.3);
            WM_CHECK_LOOK("Quiz_stamp_lifting", r->stamp());  // just rising, the stars fading
            r->stamp()->advance(5);
            Pump(100);
            WM_CHECK_LOOK("Quiz_percent", r);  // the percent in large red letters
            seen << (r->Label3->isVisible() ? r->Label3->text() : QString());
            r->Label3->hide();  // the box stopped watching the stamp: nothing shows it again
            Pump(100);
            watchOver = r->Label3->isHidden();
            r->OK->click();
        });
        QTest::mouseClick(quiz->findChild<QPushButton*>("Label1"), Qt::LeftButton);
        Pump();
        QCOMPARE(seen, (QStringList{"Quiz Results", "You got 2 out of 3 correct.",
                                    "Looks like you could use a little more work.", "66%"}));
        QVERIFY(modalPercentHiddenFirst && watchOver && Showing<Title>());
    }

    void restartDuringFeedbackAndSoundOff() {
        ShellFixture fx;
        Shared().QuizType = 2;
        Shared().QuizLength = 5;
        WM_OPEN(quiz, fx, OpenGame<Quiz>(fx, "Quiz", kPlanets, 6, true, false));
        Pump();
        QCOMPARE(child(quiz, "Direct")->text(),
                 "Directions:  Click the word that BEST matches the meaning shown below.");
        QCOMPARE(child(quiz, "Questionlabel")->text(), QString::fromStdString(Shared().TheMeaning));
        QTest::mouseClick(quiz->answers()[wrongChoice(quiz)], Qt::LeftButton);
        QVERIFY(fx.sound.played.isEmpty());  // sound off
        QVERIFY(TriggerMenu(quiz, "RS"));
        Pump(700);
        QCOMPARE(Labels(quiz, "WrongLabel RemainingLabel"), "0 | 4");
        QCOMPARE(quiz->answerColour(quiz->run().CorrectChoice - 1), 12582912);  // no flashing
        QVERIFY(!child(quiz, "Feedback")->isVisible());
        // Restart from the results box: a new run with its question, not the title.
        SetModalHook([&](QDialog& d) {
            QVERIFY(TriggerMenu(quiz, "RS"));
            qobject_cast<QuizResults*>(&d)->OK->click();
        });
        for (int q = 0; q < 5; ++q) {
            QTest::mouseClick(quiz->answers()[0], Qt::LeftButton);
            QTest::mouseClick(quiz->findChild<QPushButton*>("Label1"), Qt::LeftButton);
        }
        QVERIFY(Showing<Quiz>() == quiz && child(quiz, "Questionlabel")->isVisible());
        QVERIFY(TriggerMenu(quiz, "Return") && BackAtTitle());
    }
};

QTEST_MAIN(QuizScreenTest)
#include "quiz_screen_test.moc"
