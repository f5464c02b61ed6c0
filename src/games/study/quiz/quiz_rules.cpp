#include "games/study/quiz/quiz_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::quiz {

int quizType(const SharedState& s) {
    return s.QuizType == 2 || s.QuizType == 3 ? s.QuizType : 1;
}

int quizLength(const SharedState& s) {
    return s.QuizLength >= 1 ? s.QuizLength : 10;
}

int chooseKind(const SharedState& s, Rng& rng) {
    switch (quizType(s)) {
        case 2:
            return 2;
        case 3:
            return int(Int(rng.Rnd() * 2 + 1));
        default:
            return 1;
    }
}

const char* directions(int kind) {
    return kind == 2 ? kMeaningDirections : kWordDirections;
}

int answerPointSize(int kind) {
    return kind == 2 ? 18 : 12;
}

void startRun(QuizRun& run, SharedState& s, Rng& rng) {
    run = QuizRun{};
    run.AskedWords.assign(std::size_t(std::max<int>(s.WordCount, 0)) + 1, false);
    run.QuestionsLeft = short(quizLength(s) - 1);
    run.QuestionKind = chooseKind(s, rng);
    makeQuestion(run, s, rng);
}

namespace {

// Int(Rnd x n + 1), drawn again while `taken` says so; after kDrawTries the first free number
// in order, and 0 when every number is taken.
int drawFree(Rng& rng, int n, const std::vector<bool>& taken, bool mustBeFree) {
    int k = int(Int(rng.Rnd() * n + 1));
    for (int tries = 0; mustBeFree && taken[std::size_t(k)]; ++tries) {
        if (tries >= kDrawTries) {
            for (k = 1; k <= n && taken[std::size_t(k)]; ++k) {
            }
            return k <= n ? k : 0;
        }
        k = int(Int(rng.Rnd() * n + 1));
    }
    return k;
}

}  // namespace

void makeQuestion(QuizRun& run, SharedState& s, Rng& rng) {
    const int n = std::max<int>(s.WordCount, 1);
    if (run.AskedWords.size() < std::size_t(n) + 1) run.AskedWords.resize(std::size_t(n) + 1);
    rng.Randomize();
    // More questions than words: repeats are allowed from the very first question.
    const bool noRepeats = quizLength(s) <= s.WordCount;
    int k = drawFree(rng, n, run.AskedWords, noRepeats);
    if (k == 0) k = 1;
    s.TheWord = s.Words[std::size_t(k)];
    s.TheMeaning = s.Meanings[std::size_t(k)];
    run.asked = k;
    run.AskedWords[std::size_t(k)] = true;
    std::vector<bool> local(run.AskedWords.size(), false);
    local[std::size_t(k)] = true;

    run.choiceCount = std::clamp(s.Difficulty, 1, kMaxChoices);
    run.CorrectChoice = short(Int(rng.Rnd() * run.choiceCount + 1));
    // The right choice draws and marks a number too, so a list of exactly Difficulty words has
    // none left for the last wrong choice. Then the number the right choice took is given back:
    // its text is the question's own, so the pupil still sees Difficulty different answers.
    int rightTook = 0;
    for (int c = 1; c <= run.choiceCount; ++c) {
        int m = drawFree(rng, n, local, true);
        if (m == 0 && rightTook != 0) {
            m = rightTook;
            rightTook = 0;
        }
        if (m != 0) local[std::size_t(m)] = true;
        if (c == run.CorrectChoice) rightTook = m;
        std::string& text = run.choices[std::size_t(c - 1)];
        if (c == run.CorrectChoice) {
            text = run.QuestionKind == 1 ? s.TheMeaning : s.TheWord;
        } else if (m == 0) {
            // Fewer words than choices (the chooser lets no such list through): a blank choice.
            text.clear();
        } else {
            text = run.QuestionKind == 1 ? s.Meanings[std::size_t(m)] : s.Words[std::size_t(m)];
        }
    }
    for (int c = run.choiceCount; c < kMaxChoices; ++c) run.choices[std::size_t(c)].clear();
}

std::string questionText(const QuizRun& run, const SharedState& s) {
    return run.QuestionKind == 1 ? s.TheWord : s.TheMeaning;
}

bool answer(QuizRun& run, int picked) {
    run.PickedChoice = short(picked);
    if (picked == run.CorrectChoice) {
        ++run.QuizRight;
        return true;
    }
    ++run.QuizWrong;
    return false;
}

bool next(QuizRun& run, SharedState& s, Rng& rng) {
    --run.QuestionsLeft;
    if (run.QuestionsLeft < 0) return false;
    run.QuestionKind = chooseKind(s, rng);
    makeQuestion(run, s, rng);
    return true;
}

std::string verdictLine(int percent) {
    if (percent >= 100) return "Perfect Score!!!";
    if (percent >= 71) return "Good job!";
    if (percent >= 41) return "Looks like you could use a little more work.";
    return "Oops! Keep studying!!";
}

Verdict verdict(int right, int wrong) {
    Verdict v;
    v.total = right + wrong;
    v.percent = v.total > 0 ? int(Int(double(right) / v.total * 100)) : 0;
    v.outOf =
        "You got " + std::to_string(right) + " out of " + std::to_string(v.total) + " correct.";
    v.percentText = std::to_string(v.percent) + "%";
    v.line = verdictLine(v.percent);
    return v;
}

}  // namespace wm::quiz
