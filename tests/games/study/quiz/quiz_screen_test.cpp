// The quiz on its screens: the options screen and its Escape, a whole run of three questions
// with one wrong answer through the results box back to the title (Escape on the way does
// nothing), Restart in the middle of the
// feedback, sound gated by SoundOn, and the layout with long meanings at two screen sizes.
#include <QtTest>

#include "game_road.h"
#include "games/study/quiz/quiz_results.h"
#include "games/study/quiz/quiz_screen.h"
#include "shell/quiz_options.h"

using namespace wm;
using namespace wm::test;

namespace {

const std::vector<std::pair<std::string, std::string>> kPlanets = {
    {"Mercury", "the planet closest to the Sun"},
    {"Venus", "the hottest planet"},
    {"Earth", "the planet we live on"},
    {"Mars", "the red planet"},
    {"Jupiter", "the largest planet"},
    {"Saturn", "the planet with the brightest rings"},
};

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
    void optionsScreenAndItsEscape();
    void wholeQuizWithOneWrongAnswer();
    void restartDuringFeedbackAndSoundOff();
    void layoutFitsLongMeanings_data();
    void layoutFitsLongMeanings();
    void noScoresForStudyActivities();
};

void QuizScreenTest::optionsScreenAndItsEscape() {
    ShellFixture fx;
    int ended = 0;
    SetEndProgramHook([&] { ++ended; });
    Shared().CurrentGame = "Quiz";
    auto* options = qobject_cast<QuizOptions*>(OpenScreen("QuizOptions"));
    QVERIFY(options);
    QCOMPARE(options->QuestionLabel->text(), "10");
    QCOMPARE(options->WordQuiz->text(), "Quiz me on Words");
    QCOMPARE(options->DefinitionQuiz->text(), "Quiz me on Meanings");
    QCOMPARE(options->RandomQuiz->text(), "Quiz on both Words and Meanings");
    options->QuestionBar->setValue(7);
    QCOMPARE(options->QuestionLabel->text(), "7");

    // Escape: No stays, Yes ends the whole program.
    QTest::keyClick(options, Qt::Key_Escape);
    QCOMPARE(fx.dialogs.shown.back().text, "Do you want to quit?");
    QCOMPARE(ended, 0);
    QCOMPARE(Showing<QuizOptions>(), options);
    fx.dialogs.answerYes();
    QTest::keyClick(options, Qt::Key_Escape);
    QCOMPARE(ended, 1);

    options->RandomQuiz->setChecked(true);
    options->continueOn();
    QCOMPARE(Shared().QuizType, 3);
    QCOMPARE(Shared().QuizLength, 7);
    auto* game = Showing<GameOptions>();
    QVERIFY(game);
    QCOMPARE(game->SpeedBar->minimum(), 2);
    QCOMPARE(game->SpeedBar->maximum(), 8);
    game->goBack();  // the quiz's Back test names no game: to the title
    QVERIFY(Showing<Title>());
    SetEndProgramHook({});
}

void QuizScreenTest::wholeQuizWithOneWrongAnswer() {
    ShellFixture fx;
    WriteOneList(fx, "Planets", kPlanets);
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title);
    PictureButton* button = nullptr;
    for (auto* b : title->buttons())
        if (b->text() == "Quiz") button = b;
    QVERIFY(button && button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    auto* options = Showing<QuizOptions>();
    QVERIFY2(options, "the title's Quiz button leads to the quiz options");
    QVERIFY(fx.dialogs.shown.empty());  // no "not available yet"
    options->QuestionBar->setValue(3);
    Shot(options, "quiz-options");
    options->continueOn();
    auto* game = Showing<GameOptions>();
    QVERIFY(game);
    game->SpeedBar->setValue(4);
    game->SoundONOp->setChecked(true);
    game->continueOn();
    Pump();
    auto* quiz = qobject_cast<Quiz*>(ContinueWithList(Showing<ChooseList>(), "Planets ("));
    QVERIFY(quiz);
    Pump();

    auto* remaining = child(quiz, "RemainingLabel");
    QCOMPARE(child(quiz, "Direct")->text(), quiz::kWordDirections);
    QCOMPARE(child(quiz, "Questionlabel")->text(), QString::fromStdString(Shared().TheWord));
    QCOMPARE(remaining->text(), "2");
    for (int i = 0; i < 8; ++i) QCOMPARE(quiz->answers()[i]->isVisible(), i < 4);
    QCOMPARE(quiz->answerColour(0), 12582912);
    QVERIFY(quiz->findChild<QAction*>("RS"));
    QVERIFY(!quiz->findChild<QAction*>("HS")->isVisible());
    QVERIFY(!quiz->findChild<QAction*>("mnuHowTo")->isVisible());
    // Escape on the quiz itself does nothing: the run goes on, no box asks.
    const QPointer<Quiz> stays(quiz);
    QTest::keyClick(quiz, Qt::Key_Escape);
    Pump();
    QVERIFY(stays);
    QTest::keyClick(quiz->answers()[0], Qt::Key_Escape);
    Pump();
    QVERIFY(stays);
    QCOMPARE(Showing<Quiz>(), quiz);
    QVERIFY(fx.dialogs.shown.empty());
    QCOMPARE(remaining->text(), "2");

    // 1: right.
    const int right1 = quiz->run().CorrectChoice - 1;
    QCOMPARE(quiz->answers()[right1]->text(), QString::fromStdString(Shared().TheMeaning));
    QTest::mouseClick(quiz->answers()[right1], Qt::LeftButton);
    QCOMPARE(child(quiz, "Feedback")->text(), "Correct!");
    QVERIFY(child(quiz, "Happy")->isVisible() && child(quiz, "Happy2")->isVisible());
    QVERIFY(!child(quiz, "Sad")->isVisible());
    QCOMPARE(quiz->answerColour(right1), 255);
    QCOMPARE(child(quiz, "CorrectLabel")->text(), "1");
    QCOMPARE(fx.sound.played, QStringList{"dingling.wav"});
    Shot(quiz, "quiz-right");
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
    QCOMPARE(child(quiz, "Feedback")->text(), "Wrong");
    QVERIFY(child(quiz, "Sad")->isVisible() && child(quiz, "Sad2")->isVisible());
    QVERIFY(!child(quiz, "Happy")->isVisible());
    QCOMPARE(child(quiz, "WrongLabel")->text(), "1");
    QCOMPARE(fx.sound.played.last(), "gbell.wav");
    QCOMPARE(quiz->answerColour(right2), 255);
    Pump(310);
    QCOMPARE(quiz->answerColour(right2), 16711680);
    Pump(310);
    QCOMPARE(quiz->answerColour(right2), 255);
    Shot(quiz, "quiz-wrong");
    QTest::mouseClick(quiz->findChild<QPushButton*>("Label1"), Qt::LeftButton);
    Pump(620);
    QCOMPARE(quiz->answerColour(right2), 12582912);  // the flashing stopped

    // 3: right, then the results.
    QCOMPARE(remaining->text(), "0");
    QTest::mouseClick(quiz->answers()[quiz->run().CorrectChoice - 1], Qt::LeftButton);
    QStringList seen;
    bool percentHiddenFirst = false;
    SetModalHook([&](QDialog& d) {
        auto* r = qobject_cast<QuizResults*>(&d);
        QVERIFY(r);
        seen << r->Label1->text() << r->Label4->text();
        percentHiddenFirst = !r->Label3->isVisible() && r->stamp()->isPlaying();
        r->stamp()->advance(0.7);
        Shot(r, "quiz-results-stamp");
        r->stamp()->advance(5);
        Pump(100);
        seen << (r->Label3->isVisible() ? r->Label3->text() : QString());
        Shot(r, "quiz-results");
        r->OK->click();
    });
    QTest::mouseClick(quiz->findChild<QPushButton*>("Label1"), Qt::LeftButton);
    Pump();
    QCOMPARE(seen, (QStringList{"You got 2 out of 3 correct.",
                                "Looks like you could use a little more work.", "66%"}));
    QVERIFY(percentHiddenFirst);
    QVERIFY(Showing<Title>());
}

void QuizScreenTest::restartDuringFeedbackAndSoundOff() {
    ShellFixture fx;
    WriteOneList(fx, "Planets", kPlanets);
    Shared().QuizType = 2;
    Shared().QuizLength = 5;
    auto* quiz =
        qobject_cast<Quiz*>(ContinueWithList(ChooserFor("Quiz", 8, true, false), "Planets ("));
    QVERIFY(quiz == nullptr);  // six words cannot make eight choices
    QCOMPARE(fx.dialogs.shown.back().text, QString(kMsgE1));

    quiz = qobject_cast<Quiz*>(ContinueWithList(ChooserFor("Quiz", 6, true, false), "Planets ("));
    QVERIFY(quiz);
    Pump();
    QCOMPARE(child(quiz, "Direct")->text(), quiz::kMeaningDirections);
    QCOMPARE(child(quiz, "Questionlabel")->text(), QString::fromStdString(Shared().TheMeaning));
    // Exactly as many words as choices: all six planets on offer, once each.
    QSet<QString> offered;
    for (int i = 0; i < 6; ++i) offered << quiz->answers()[i]->text();
    QCOMPARE(offered.size(), 6);

    QTest::mouseClick(quiz->answers()[wrongChoice(quiz)], Qt::LeftButton);
    QVERIFY(fx.sound.played.isEmpty());  // sound off
    QVERIFY(TriggerMenu(quiz, "RS"));
    Pump(700);
    QCOMPARE(child(quiz, "WrongLabel")->text(), "0");
    QCOMPARE(child(quiz, "RemainingLabel")->text(), "4");
    QVERIFY(!child(quiz, "Feedback")->isVisible());
    for (int i = 0; i < 6; ++i) QCOMPARE(quiz->answerColour(i), 12582912);
    QVERIFY(TriggerMenu(quiz, "Return"));
    Pump();
    QVERIFY(Showing<Title>());
}

void QuizScreenTest::layoutFitsLongMeanings_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("choices");
    QTest::addColumn<int>("kind");
    for (QSize size : {QSize(1280, 800), QSize(1920, 1080)})
        for (int choices : {2, 8})
            for (int kind : {1, 2})
                QTest::addRow("%dx%d, %d choices, kind %d", size.width(), size.height(), choices,
                              kind)
                    << size << choices << kind;
}

void QuizScreenTest::layoutFitsLongMeanings() {
    QFETCH(QSize, screen);
    QFETCH(int, choices);
    QFETCH(int, kind);
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(screen);
    std::vector<std::pair<std::string, std::string>> pairs;
    for (int i = 1; i <= 8; ++i) {
        pairs.push_back({"photosynthesis" + std::to_string(i),
                         "the process by which green plants and some other organisms use "
                         "sunlight to make their own food from carbon dioxide and water, "
                         "giving off oxygen as they do it (number " +
                             std::to_string(i) + ")"});
    }
    WriteOneList(fx, "Long", pairs);
    Shared().QuizType = short(kind);
    Shared().QuizLength = 3;
    auto* quiz = qobject_cast<Quiz*>(ContinueWithList(ChooserFor("Quiz", choices, true), "Long ("));
    QVERIFY(quiz);
    Pump();
    QCOMPARE(quiz->size(), screen);
    QTest::mouseClick(quiz->answers()[wrongChoice(quiz)], Qt::LeftButton);
    Shot(quiz, QString("quiz-%1x%2-%3-kind%4")
                   .arg(screen.width())
                   .arg(screen.height())
                   .arg(choices)
                   .arg(kind));
    const QRect area = quiz->rect();
    auto fits = [&](QLabel* l) {
        const QRect g = l->geometry();
        QVERIFY2(area.contains(g), qPrintable(l->objectName() + " leaves the screen"));
        const int needed = l->heightForWidth(g.width());
        QVERIFY2(needed <= g.height(), qPrintable(QString("%1 needs %2 px, has %3")
                                                      .arg(l->objectName())
                                                      .arg(needed)
                                                      .arg(g.height())));
    };
    fits(child(quiz, "Questionlabel"));
    for (int i = 0; i < choices; ++i) fits(quiz->answers()[i]);
    // The cards stand apart, above the counters, and clear of the feedback.
    for (int i = 1; i < choices; ++i)
        QVERIFY(quiz->answers()[i]->geometry().top() > quiz->answers()[i - 1]->geometry().bottom());
    const QRect last = quiz->answers()[choices - 1]->geometry();
    QVERIFY(last.bottom() < child(quiz, "RemainingLabel")->geometry().top());
    QVERIFY(!last.intersects(child(quiz, "Feedback")->geometry()));
    QVERIFY(!last.intersects(quiz->findChild<QFrame*>("Frame2")->geometry()));
    auto* next = quiz->findChild<QPushButton*>("Label1");
    QVERIFY2(next->fontMetrics().horizontalAdvance(next->text()) + 52 <= next->width(),
             "the Next button's text is cut");
}

void QuizScreenTest::noScoresForStudyActivities() {
    ShellFixture fx;
    for (const char* game : {"Quiz", "Flash Cards"}) {
        Shared().CurrentGame = game;
        HighScoreForm form;
        QCOMPARE(form.tableText(), "No Scores Collected for this Activity");
    }
}

QTEST_MAIN(QuizScreenTest)
#include "quiz_screen_test.moc"
