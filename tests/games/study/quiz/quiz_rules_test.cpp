// The quiz's draws over a scripted generator: no repeats while the list allows, repeats from the
// first question when it does not, the choices, a list of exactly as many words as choices,
// random kinds, the run's length, and the verdict lines at their boundaries.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/rng.h"
#include "games/study/quiz/quiz_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::quiz;

namespace {

// Words w1, w2... meaning m1, m2...
SharedState List(int words, int difficulty, int length, int type = 1) {
    std::vector<std::pair<std::string, std::string>> rows;
    for (int i = 1; i <= words; ++i)
        rows.push_back({"w" + std::to_string(i), "m" + std::to_string(i)});
    SharedState s = test::PairsList(rows, difficulty);
    s.QuizLength = short(length);
    s.QuizType = short(type);
    return s;
}

}  // namespace

TEST(QuizRules, ChoicesFollowTheDrawAndSkipTakenRows) {
    SharedState s = List(5, 3, 5);
    ScriptedRng rng(0.5);
    // The question row 2, the right answer choice 2; choice 1: row 2 is the question's, row 4;
    // choice 2 (the right one) takes row 1; choice 3: row 5.
    rng.pick(2, 5).pick(2, 3).pick(2, 5).pick(4, 5).pick(4, 5).pick(1, 5).pick(1, 5).pick(5, 5);
    QuizRun run;
    startRun(run, s, rng);
    EXPECT_EQ(rng.pending(), 0u);
    EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, run.CorrectChoice, run.choiceCount),
              std::tuple("w2", "m2", 2, 3));
    EXPECT_EQ(std::tuple(run.choices[0], run.choices[1], run.choices[2]),
              std::tuple("m4", "m2", "m5"));
    EXPECT_TRUE(run.choices[3].empty());
    EXPECT_EQ(std::tuple(questionText(run, s), run.QuestionsLeft), std::tuple("w2", 4));
    EXPECT_GE(rng.randomizeCount, 1);  // reseeded for each question
}

TEST(QuizRules, RepeatsComeFromTheFirstQuestionWhenTheListIsShort) {
    // Five questions on five words: the second question draws row 2 again and is refused it.
    SharedState s = List(5, 2, 5);
    ScriptedRng rng(0.5);
    rng.pick(2, 5).pick(1, 2).pick(1, 5).pick(3, 5);
    QuizRun run;
    startRun(run, s, rng);
    rng.pick(2, 5).pick(4, 5);
    ASSERT_TRUE(next(run, s, rng));
    EXPECT_EQ(run.asked, 4);
    // Every word asked already (a run the options never make): the first word, not a blank.
    run.AskedWords.assign(6, true);
    makeQuestion(run, s, rng);
    EXPECT_EQ(run.asked, 1);

    // Six questions on the same five words: row 2 may come straight back.
    s = List(5, 2, 6);
    rng = ScriptedRng(0.5);
    rng.pick(2, 5).pick(1, 2).pick(1, 5).pick(3, 5);
    startRun(run, s, rng);
    rng.pick(2, 5);
    ASSERT_TRUE(next(run, s, rng));
    EXPECT_EQ(run.asked, 2);
}

TEST(QuizRules, ExactlyAsManyWordsAsChoicesStillOffersThemAll) {
    // A generator stuck on one value would loop for ever on an unbounded draw.
    for (int words : {2, 3, 8}) {
        SCOPED_TRACE(words);
        SharedState s = List(words, words, 3);
        for (double stuck : {0.0, 0.5, 0.999}) {
            ScriptedRng rng(stuck);
            QuizRun run;
            startRun(run, s, rng);
            std::set<std::string> offered(run.choices.begin(), run.choices.begin() + words);
            EXPECT_EQ(int(offered.size()), words) << "stuck at " << stuck;
            EXPECT_EQ(run.choices[std::size_t(run.CorrectChoice - 1)], s.TheMeaning);
            EXPECT_LT(rng.draws, 4 * kDrawTries * (words + 1));
        }
    }
    // Fewer words than choices (never let through by the chooser): blanks, no hang, and no text
    // left from the question before.
    SharedState s = List(4, 4, 3);
    ScriptedRng rng(0.3);
    QuizRun run;
    startRun(run, s, rng);
    s.WordCount = 2;
    const int before = rng.draws;
    ASSERT_TRUE(next(run, s, rng));
    EXPECT_EQ(rng.draws - before, 2 + 4 * 401);  // each stuck draw gives up after 400 more
    EXPECT_EQ(std::count(run.choices.begin(), run.choices.begin() + 4, std::string()), 2);
}

TEST(QuizRules, KindsByQuizType) {
    ScriptedRng rng(0.5);
    SharedState s = List(3, 2, 3, 1);
    EXPECT_EQ(chooseKind(s, rng), 1);
    s.QuizType = 2;
    EXPECT_EQ(chooseKind(s, rng), 2);
    EXPECT_EQ(rng.draws, 0);  // fixed kinds draw nothing
    QuizRun run;
    startRun(run, s, rng);
    EXPECT_EQ(run.QuestionKind, 2);  // a meanings quiz asks a meaning from its first question
    s.QuizType = 3;
    rng.then(0.2).then(0.7).then(0.49).then(0.5);
    for (int kind : {1, 2, 1, 2}) EXPECT_EQ(chooseKind(s, rng), kind);
    // Reached without the options screen: words, ten questions.
    s.QuizType = 0;
    s.QuizLength = 0;
    EXPECT_EQ(std::tuple(quizType(s), quizLength(s)), std::tuple(1, 10));
    s.QuizType = 4;
    s.QuizLength = 1;  // the shortest quiz the options allow
    EXPECT_EQ(std::tuple(quizType(s), quizLength(s)), std::tuple(1, 1));
    // The directions: a word to choose for kind 2, a meaning for the others.
    EXPECT_STREQ(directions(2),
                 "Directions:  Click the word that BEST matches the meaning shown below.");
    for (int kind : {1, 3})
        EXPECT_STREQ(directions(kind),
                     "Directions:  Click the meaning that BEST matches the word shown below.");
}

TEST(QuizRules, AnswersCountAndChoicesPastTheLevelStayEmpty) {
    SharedState s = List(8, 5, 3);
    ScriptedRng rng(0.3);
    QuizRun run;
    startRun(run, s, rng);
    const int right = run.CorrectChoice;
    EXPECT_FALSE(answer(run, right == 1 ? 2 : 1));
    EXPECT_TRUE(answer(run, right));
    EXPECT_EQ(run.PickedChoice, right);
    EXPECT_EQ(std::pair(int(run.QuizRight), int(run.QuizWrong)), std::pair(1, 1));
    // Fewer choices on the next question: the ones past them are emptied.
    s.Difficulty = 1;
    ASSERT_TRUE(next(run, s, rng));
    EXPECT_EQ(std::count(run.choices.begin(), run.choices.end(), std::string()), 7);
    // Answers to a meaning are set larger than answers to a word.
    EXPECT_EQ(std::tuple(answerPointSize(1), answerPointSize(2), answerPointSize(3)),
              std::tuple(12, 18, 12));
}

TEST(QuizRules, VerdictLinesAtTheirBoundaries) {
    const std::tuple<int, int, int, const char*> rows[] = {
        {0, 3, 0, "Oops! Keep studying!!"},
        {40, 60, 40, "Oops! Keep studying!!"},
        {41, 59, 41, "Looks like you could use a little more work."},
        {70, 30, 70, "Looks like you could use a little more work."},
        {71, 29, 71, "Good job!"},
        {99, 1, 99, "Good job!"},
        {3, 0, 100, "Perfect Score!!!"},
        {2, 1, 66, "Looks like you could use a little more work."},  // 66.67 is cut, not rounded
    };
    for (auto [right, wrong, percent, line] : rows) {
        const Verdict v = verdict(right, wrong);
        EXPECT_EQ(std::tuple(v.percent, v.line, v.percentText),
                  std::tuple(percent, line, std::to_string(percent) + "%"))
            << right << "/" << wrong;
    }
    EXPECT_EQ(verdict(2, 1).outOf, "You got 2 out of 3 correct.");
    EXPECT_EQ(verdict(0, 0).percent, 0);  // no questions answered
    EXPECT_EQ(verdict(1, 0).percent, 100);
}
