// The quiz's rules: a run of questions over the loaded list, the draw of each question and its
// choices, the answer, and the verdict at the end. Pure C++ over wm_core; draws happen in the
// designed order so a scripted Rng reproduces a run exactly.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace quiz {

inline constexpr int kMaxChoices = 8;
// Bound on the retries of one draw. A working generator never needs it; a scripted or broken
// one must not hang the question.
inline constexpr int kDrawTries = 400;

inline constexpr char kWordDirections[] =
    "Directions:  Click the meaning that BEST matches the word shown below.";
inline constexpr char kMeaningDirections[] =
    "Directions:  Click the word that BEST matches the meaning shown below.";

// One run: the screen-level state plus the activity's own counters.
struct QuizRun {
    std::vector<bool> AskedWords;  // 1-based, one flag per list entry
    int QuestionKind = 1;          // 1: word shown, meanings offered; 2: the other way round
    short QuestionsLeft = 0;
    short CorrectChoice = 0;  // 1-based
    short PickedChoice = 0;
    short QuizRight = 0;
    short QuizWrong = 0;
    int choiceCount = 0;  // how many choices this question offers (Difficulty)
    std::array<std::string, kMaxChoices> choices;
    int asked = 0;  // the list row of the question
};

// QuizType and QuizLength as the options screen leaves them; a road that skipped it gets the
// options' starting values.
int quizType(const SharedState& s);
int quizLength(const SharedState& s);

// Start of a run (also Restart): counters zeroed, no word asked yet, the first question made.
void startRun(QuizRun& run, SharedState& s, Rng& rng);
// The kind of the next question: fixed by the quiz type, or drawn for each question.
int chooseKind(const SharedState& s, Rng& rng);
const char* directions(int kind);
// Answer labels use a smaller font for meanings.
int answerPointSize(int kind);
// Draws the question's word and its choices; TheWord and TheMeaning take the question's row.
void makeQuestion(QuizRun& run, SharedState& s, Rng& rng);
// The text the question label shows.
std::string questionText(const QuizRun& run, const SharedState& s);

// A click on choice `picked` (1-based). True when it was right; the counters follow.
bool answer(QuizRun& run, int picked);

// Next after feedback: false when the run is over and the results come.
bool next(QuizRun& run, SharedState& s, Rng& rng);

struct Verdict {
    int total = 0;
    int percent = 0;
    std::string outOf;  // "You got {right} out of {total} correct."
    std::string percentText;
    std::string line;  // one of the four verdict lines
};
Verdict verdict(int right, int wrong);
std::string verdictLine(int percent);

}  // namespace quiz
}  // namespace wm
