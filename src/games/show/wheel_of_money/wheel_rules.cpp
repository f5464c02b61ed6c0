#include "games/show/wheel_of_money/wheel_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/misspell.h"
#include "games/common/word_scramble.h"

namespace wm::wheel {

const std::array<Slot, kSlots> kWheel = {{
    {"Scramble!", 960, 1110, 1, 3600, 1200},
    {"Type-It!", 600, 1725, 3, 3240, 1800},
    {"Spell-It!", 960, 3585, 5, 3600, 3645},
    {"?????", 120, 2400, 4, 2760, 2460},
    {"Definition Match!", 600, 3000, 2, 3240, 3060},
    {"Too Many!", 3113, 4200, 11, 4253, 3840},
    {"Letter Change!", 3113, 480, 0, 4253, 960},
    {"True or False?", 5280, 1095, 6, 4920, 1155},
    {"Back-Words!", 5640, 1725, 7, 5280, 1785},
    {"?????", 6120, 2340, 8, 5760, 2400},
    {"Word Match!", 5640, 2955, 9, 5280, 3000},
    {"Fill-In!", 5280, 3585, 10, 4920, 3645},
}};

namespace {

const char* const kWelcome =
    "Welcome to Wheel of Money, the game show where you can test your vocabulary skills for "
    "valuable cash and prizes! You will spin the wheel to see what type of game you get to play. "
    "Each game is worth a prize or money. Good luck!";
const char* const kSpinAgain = "Click here give the wheel another spin...";
const char* const kContinue = "Click here to continue...";
const char* const kReady = "Click here when you are ready to play...";

std::string Quoted(const std::string& s) {
    return "\"" + s + "\"";
}

std::string Whole(double x) {
    return NumText(static_cast<double>(Int(x)));
}

// A draw Int(Rnd * n + 1) of a word number, of the words the list really holds: a list cut at
// the limit keeps WordCount one past its last word.
int DrawWord(const SharedState& s, Rng& rng) {
    const int count = std::clamp<int>(s.WordCount, 1, kMaxWords);
    int k = static_cast<int>(Int(rng.Rnd() * s.WordCount + 1));
    for (int i = 0; (k < 1 || k > count) && i < kMaxDraws; ++i)
        k = static_cast<int>(Int(rng.Rnd() * s.WordCount + 1));
    return std::clamp(k, 1, count);
}

const std::string& WordAt(const SharedState& s, int k) {
    static const std::string none;
    return k >= 0 && k < int(s.Words.size()) ? s.Words[k] : none;
}
const std::string& MeaningAt(const SharedState& s, int k) {
    static const std::string none;
    return k >= 0 && k < int(s.Meanings.size()) ? s.Meanings[k] : none;
}

long long DrawMoney(const SharedState& s, Rng& rng) {
    return Int(rng.Rnd() * 500 + 1) * s.Difficulty;
}

std::string Directions(Kind kind, int n) {
    const std::string sec = std::to_string(n);
    switch (kind) {
        case Kind::Scramble:
            return "You will have " + sec +
                   " seconds to unscramble the vocabulary word! When you know the word, type it "
                   "and press ENTER. Good luck!";
        case Kind::TypeIt:
            return "You will have " + sec +
                   " seconds to type out the word that matches the definition. Good luck!";
        case Kind::SpellIt:
            return "Choose the CORRECTLY SPELLED word that matches the definition shown before the "
                   "time runs out! Good luck!";
        case Kind::DefinitionMatch:
            return "You will have " + sec +
                   " seconds to choose the definition that matches the word shown. When you know "
                   "the answer, click on it. Good luck!";
        case Kind::TooMany:
            return "You will have " + sec +
                   " seconds to remove the extra letters from the word shown. To remove a letter, "
                   "click on it. When you are done, all that should be left should be the word "
                   "that matches the definition shown. Good luck!";
        case Kind::LetterChange:
            return "Two of the letters in the word you will see have switched places. You will "
                   "have " +
                   sec +
                   " seconds to find the two letters that are out of place and click on them. "
                   "Good luck!";
        case Kind::TrueFalse:
            return "You will have " + sec +
                   " seconds to read the statement and decide whether it is TRUE or FALSE. When "
                   "you know the answer, click on it. Good luck!";
        case Kind::BackWords:
            return "You will have " + sec +
                   " seconds to read the choices and decide which of them is one of your "
                   "vocabulary words written BACKWARDS. When you know the answer, click on it. "
                   "Good luck!";
        case Kind::WordMatch:
            return "You will have " + sec +
                   " seconds to choose the word that matches the definition shown. When you know "
                   "the answer, click on it. Good luck!";
        case Kind::FillIn:
            return "You will see one of your vocabulary words with some letters missing. You will "
                   "have " +
                   sec +
                   " seconds to type out the whole word the way it should be spelled. Good luck!";
        case Kind::Mystery:
            return {};
    }
    return {};
}

bool Typing(Kind k) {
    return k == Kind::Scramble || k == Kind::TypeIt || k == Kind::FillIn;
}

// Shows the button; whether it can be pressed is left as it is, so that a countdown left over
// from before a Restart never frees it while the intro still plays.
void FinishQuestion(WheelState& w) {
    w.Command1 = kSpinAgain;
    w.NextAction = Action::ToWheel;
    if (w.SpinsLeft == 0) {
        w.NextAction = Action::EndGame;
        w.Command1 = kContinue;
    }
    w.commandShown = true;
}

Verdict Win(SharedState& s, WheelState& w) {
    w.timer4 = false;
    s.Score += static_cast<double>(w.PrizeAmount);
    w.Label1 =
        "Great job! $" + std::to_string(w.PrizeAmount) + ".00 has been added to your winnings!";
    w.frame = Frame::None;
    FinishQuestion(w);
    return {true, true, false};
}

// The slot cannot be played with this list: the spin is spent, nothing is won.
SlotStart NoWordFits(WheelState& w) {
    w.frame = Frame::None;
    w.timer4 = false;
    w.Label1 = "None of the words on this list can be used for " + w.HeadLabel;
    // No spin is left to offer after the last one.
    w.Label1 += w.SpinsLeft > 0 ? " This spin is over. Spin again for another game!"
                                : " That was your last spin.";
    FinishQuestion(w);
    w.directShown = true;
    SlotStart out;
    out.refusal = w.Label1;
    return out;
}

void ClearTiles(WheelState& w) {
    w.tiles.fill("");
    w.TileMarked.fill(false);
}

// Letter Change swaps two letters that differ (case aside): a word needs two such letters.
bool TwoDifferentLetters(const std::string& word) {
    const std::string upper = UCase(word);
    return upper.find_first_not_of(upper.empty() ? ' ' : upper[0]) != std::string::npos;
}

// Too Many and Letter Change take a word of at most 21 letters, Letter Change one with two
// different letters; 0 when the list has none.
int DrawTileWord(const SharedState& s, WheelState& w, Rng& rng) {
    const auto fits = [&](const std::string& word) {
        return Len(word) <= kMaxTileWord &&
               (w.kind != Kind::LetterChange || TwoDifferentLetters(word));
    };
    for (int i = 0; i < kMaxDraws; ++i) {
        if (fits(WordAt(s, w.QuestionWord))) return w.QuestionWord;
        w.QuestionWord = DrawWord(s, rng);
    }
    return 0;
}

}  // namespace

Kind KindOf(int slot) {
    static const Kind kinds[kSlots] = {Kind::Scramble,     Kind::TypeIt,          Kind::SpellIt,
                                       Kind::Mystery,      Kind::DefinitionMatch, Kind::TooMany,
                                       Kind::LetterChange, Kind::TrueFalse,       Kind::BackWords,
                                       Kind::Mystery,      Kind::WordMatch,       Kind::FillIn};
    return kinds[std::clamp(slot, 0, kSlots - 1)];
}

std::string TotalText(double score) {
    return "Cash and Prize Total:  $" + Whole(score) + ".00";
}
std::string SpinsText(int spins) {
    return "Spins Left: " + std::to_string(spins);
}
std::string PrizeText(long long prize) {
    return "Prize: $" + std::to_string(prize) + ".00";
}
std::string TimeText(int seconds) {
    return "Time: " + std::to_string(seconds);
}

void SetupGame(SharedState& s, WheelState& w, Rng& rng) {
    rng.Randomize();
    w.frame = Frame::None;
    w.wheelShown = false;
    w.SpinsLeft = kSpins;
    w.Spinning = false;
    w.WheelPos = 0;
    // A Restart during the flash must not leave the first plate red or its marker lit.
    w.FlashCount = 0;
    w.flashRed = false;
    s.Score = 0;
    w.Command1 = "Click here to go to the wheel...";
    w.HeadLabel = "Wheel of Money!";
    w.Label1 = kWelcome;
    w.commandShown = true;
    w.directShown = true;
    for (int i = 0; i < kSlots; ++i) w.captions[i] = kWheel[i].caption;
    // The intro plays first; the button waits for its end.
    w.NextAction = Action::ToWheel;
    w.commandEnabled = false;
}

void AnimationEnded(WheelState& w) {
    w.commandEnabled = true;
}

Action ClickCommand(WheelState& w) {
    w.commandShown = false;
    const Action a = w.NextAction;
    switch (a) {
        case Action::ToWheel:
            w.directShown = false;
            w.captions[3] = kWheel[3].caption;
            w.captions[9] = kWheel[9].caption;
            w.wheelShown = true;
            w.HeadLabel = "Wheel of Money!";
            w.Spinning = true;
            break;
        case Action::EndGame:
            w.directShown = false;
            w.HeadLabel = "Game Over";
            break;
        case Action::Type:
            w.frame = Frame::Type;
            w.timer4 = true;
            break;
        case Action::Choice:
            w.frame = Frame::Choice;
            w.timer4 = true;
            break;
        case Action::Letters:
            w.frame = Frame::Letters;
            w.timer4 = true;
            break;
    }
    return a;
}

void StepWheel(WheelState& w) {
    w.WheelPos = kWheel[std::clamp(w.WheelPos, 0, kSlots - 1)].next;
}

bool StopWheel(WheelState& w) {
    if (!w.Spinning) return false;
    w.Spinning = false;
    w.FlashCount = 1;
    w.flashRed = false;
    return true;
}

bool Flash(WheelState& w) {
    w.flashRed = !w.flashRed;
    return ++w.FlashCount > 20;
}

std::string ScrambleSlotWord(const std::string& word, Rng& rng) {
    return ScrambleWord(word, rng);
}

std::string FillInText(const std::string& word, int difficulty, Rng& rng) {
    rng.Randomize();
    const int L = Len(word);
    std::string out;
    int blanks = 0;
    for (int p = 1; p <= L; ++p) {
        long long r = Int(rng.Rnd() * 100 + 1);
        if (blanks > 0.3 * L) r = 100;
        if (p > 0.7 * L && blanks == 0) r = 1;
        if (p == 1) r = 100;
        if (r > difficulty * 10) {
            out += word[p - 1];
        } else {
            ++blanks;
            out += " _ ";
        }
    }
    return out;
}

SlotStart StartSlot(SharedState& s, WheelState& w, Rng& rng) {
    const int slot = std::clamp(w.WheelPos, 0, kSlots - 1);
    w.HeadLabel = w.captions[slot];
    w.wheelShown = false;
    w.SpinsLeft -= 1;
    rng.Randomize();
    w.kind = KindOf(slot);

    SlotStart out;
    if (w.kind == Kind::Mystery) {
        const bool fortune = Int(rng.Rnd() * 10 + 1) < 5;
        // Always label 9, whichever mystery slot stopped: kept, and unseen with the wheel hidden.
        w.captions[9] = fortune ? "FORTUNE!" : "THIEF!";
        w.Command1 = kSpinAgain;
        const long long amount = DrawMoney(s, rng);
        const std::string a = std::to_string(amount);
        if (fortune) {
            w.Label1 = "Congratulations! You hit the FORTUNE. You have won $" + a + ".00!";
            s.Score += static_cast<double>(amount);
        } else {
            w.Label1 = "Oooooh! Tough Break! You hit the THIEF. He stole " + a +
                       " dollars from your jackpot! Try to be more careful next time...";
            s.Score -= static_cast<double>(amount);  // it may go below 0
        }
        w.NextAction = Action::ToWheel;
        if (w.SpinsLeft == 0) {
            w.NextAction = Action::EndGame;
            w.Command1 = kContinue;
            if (!fortune)
                w.Label1 = "Oooooh! Tough Break! You hit the THIEF. He stole $" + a +
                           ".00 from your jackpot!";
        }
        out.show = fortune ? Show::Fortune : Show::Thief;
        out.cheer = fortune;
        out.ooh = !fortune;
        w.commandShown = true;
        w.commandEnabled = false;  // until the animation is over
        w.directShown = true;
        return out;
    }

    // The common start of the ten mini-games.
    w.Command1 = kReady;
    w.SecondsLeft = (Typing(w.kind) ? 38 : 33) - 3 * s.Difficulty;
    w.Label1 = Directions(w.kind, w.SecondsLeft);
    w.PrizeAmount = DrawMoney(s, rng);
    w.QuestionWord = DrawWord(s, rng);
    w.commandShown = true;
    w.commandEnabled = true;
    w.directShown = true;
    w.choices.fill("");
    w.choiceShown.fill(false);
    w.question.clear();

    switch (w.kind) {
        case Kind::Scramble:
        case Kind::TypeIt:
        case Kind::FillIn: {
            w.word = WordAt(s, w.QuestionWord);
            if (w.kind == Kind::Scramble) {
                s.TheWord = w.word;
                w.question = ScrambleSlotWord(w.word, rng);
            } else if (w.kind == Kind::TypeIt) {
                w.question = Quoted(MeaningAt(s, w.QuestionWord));
            } else {
                w.question = FillInText(w.word, s.Difficulty, rng);
            }
            w.NextAction = Action::Type;
            break;
        }
        case Kind::SpellIt:
        case Kind::DefinitionMatch:
        case Kind::WordMatch:
        case Kind::BackWords:
        case Kind::TrueFalse: {
            w.word = WordAt(s, w.QuestionWord);
            w.RightChoice = static_cast<int>(Int(rng.Rnd() * 4 + 1)) - 1;
            w.ExcludedChoices.fill(0);
            w.choiceShown.fill(true);
            w.NextAction = Action::Choice;
            const std::string meaning = MeaningAt(s, w.QuestionWord);
            auto otherThan = [&](int avoid) {
                int k = DrawWord(s, rng);
                for (int i = 0; k == avoid && i < kMaxDraws; ++i) k = DrawWord(s, rng);
                return k;
            };
            if (w.kind == Kind::DefinitionMatch || w.kind == Kind::WordMatch) {
                const bool defs = w.kind == Kind::DefinitionMatch;
                w.question = Quoted(defs ? w.word : meaning);
                for (int i = 0; i < kChoices; ++i) {
                    const int k = i == w.RightChoice ? w.QuestionWord : otherThan(w.QuestionWord);
                    w.choices[i] = defs ? MeaningAt(s, k) : WordAt(s, k);
                }
            } else if (w.kind == Kind::SpellIt) {
                w.question = Quoted(meaning);
                w.NextRule = 1;
                for (int i = 0; i < kChoices; ++i) {
                    if (i == w.RightChoice) {
                        w.choices[i] = w.word;
                    } else {
                        s.TheWord = w.word;
                        s.TheWord = MisspellWord(s.TheWord, w.NextRule, rng);
                        w.choices[i] = s.TheWord;
                    }
                }
            } else if (w.kind == Kind::BackWords) {
                // "vocabulry": the question as the show has always asked it.
                w.question = "Which of these is one of your vocabulry words spelled BACKWARDS?";
                for (int i = 0; i < kChoices; ++i) {
                    if (i == w.RightChoice) {
                        w.choices[i] = UCase(std::string(w.word.rbegin(), w.word.rend()));
                    } else {
                        std::string junk;
                        for (int c = 0; c < Len(w.word); ++c)
                            junk += Chr(static_cast<int>(Int(rng.Rnd() * 26 + 65)));
                        w.choices[i] = junk;
                    }
                }
            } else {
                rng.Randomize();
                const long long r = Int(rng.Rnd() * 100 + 1);
                std::string shown = meaning;
                if (r < 50) {
                    w.RightChoice = 1;
                } else {
                    w.RightChoice = 2;
                    // Drawn again only while it equals the roll, not the word itself: a FALSE
                    // statement can carry the word's own meaning. Kept as designed.
                    int k = DrawWord(s, rng);
                    for (int i = 0; k == r && i < kMaxDraws; ++i) k = DrawWord(s, rng);
                    shown = MeaningAt(s, k);
                }
                w.question =
                    "True or False: The word " + Quoted(w.word) + " means " + Quoted(shown) + ".";
                w.choiceShown = {false, true, true, false};
                w.choices = {"", "TRUE", "FALSE", ""};
            }
            break;
        }
        case Kind::TooMany:
        case Kind::LetterChange: {
            if (DrawTileWord(s, w, rng) == 0) return NoWordFits(w);
            w.word = WordAt(s, w.QuestionWord);
            const int L = Len(w.word);
            ClearTiles(w);
            if (w.kind == Kind::TooMany) {
                long long E = Int((22 - L) * rng.Rnd() + 1);
                if (E > L) E = L;
                if (L < 18 && E < 3) E = 3;
                const int n = L + static_cast<int>(E);
                for (int e = 0; e < E; ++e) {
                    int p = static_cast<int>(Int(n * rng.Rnd() + 1));
                    for (int i = 0; (p < 1 || p > n || w.TileMarked[p - 1]) && i < kMaxDraws; ++i)
                        p = static_cast<int>(Int(n * rng.Rnd() + 1));
                    if (p < 1 || p > n || w.TileMarked[p - 1]) {
                        p = 1;  // a stuck generator: the first free place
                        while (w.TileMarked[p - 1]) ++p;
                    }
                    w.tiles[p - 1] = Chr(static_cast<int>(Int(rng.Rnd() * 26 + 65)));
                    w.TileMarked[p - 1] = true;
                }
                const std::string upper = UCase(w.word);
                int next = 0;
                for (int p = 0; p < n; ++p)
                    if (!w.TileMarked[p]) w.tiles[p] = std::string(1, upper[next++]);
                w.tileCount = n;
            } else {
                auto draw = [&] { return static_cast<int>(Int(rng.Rnd() * L + 1)); };
                int a = draw(), b = draw();
                int i = 0;
                for (; i < kMaxDraws && UCase(Mid(w.word, a, 1)) == UCase(Mid(w.word, b, 1)); ++i) {
                    a = draw();
                    b = draw();
                }
                if (UCase(Mid(w.word, a, 1)) == UCase(Mid(w.word, b, 1))) {
                    // A stuck generator: the first letter and the first that differs from it.
                    a = 1;
                    b = 2;
                    while (b < L && UCase(Mid(w.word, a, 1)) == UCase(Mid(w.word, b, 1))) ++b;
                }
                w.SwapFirst = a;
                w.SwapSecond = b;
                for (int p = 1; p <= L; ++p) {
                    const int from = p == a ? b : p == b ? a : p;
                    w.tiles[p - 1] = Mid(w.word, from, 1);
                }
                w.tileCount = L;
            }
            w.question = MeaningAt(s, w.QuestionWord);
            w.TileMarked.fill(false);
            w.NextAction = Action::Letters;
            break;
        }
        case Kind::Mystery:
            break;
    }
    return out;
}

Verdict CheckTyped(SharedState& s, WheelState& w, const std::string& typed) {
    if (w.frame != Frame::Type) return {};
    if (LCase(typed) == LCase(w.word)) return Win(s, w);
    w.timer4 = false;
    w.Label1 = "Ooooh! So sorry. The word you were looking for was " + Quoted(w.word) + ".";
    w.frame = Frame::None;
    FinishQuestion(w);
    return {false, true, false};
}

Verdict ClickChoice(SharedState& s, WheelState& w, int i) {
    if (w.frame != Frame::Choice || i < 0 || i >= kChoices || !w.choiceShown[i]) return {};
    if (i == w.RightChoice) return Win(s, w);
    w.timer4 = false;
    w.Label1 = "Ooooh! So sorry. The correct choice was " + Quoted(w.choices[w.RightChoice]) + ".";
    w.frame = Frame::None;
    FinishQuestion(w);
    return {false, true, false};
}

Verdict ClickTile(SharedState& s, WheelState& w, int i) {
    if (w.frame != Frame::Letters || i < 0 || i >= w.tileCount) return {};
    w.TileMarked[i] = !w.TileMarked[i];
    if (w.kind == Kind::TooMany) {
        std::string left;
        for (int p = 0; p < w.tileCount; ++p)
            if (!w.TileMarked[p]) left += w.tiles[p];
        if (UCase(left) == UCase(w.word)) return Win(s, w);
        return {};
    }
    if (w.TileMarked[w.SwapFirst - 1] && w.TileMarked[w.SwapSecond - 1]) return Win(s, w);
    const auto marked = std::count(w.TileMarked.begin(), w.TileMarked.end(), true);
    if (marked > 1) {
        w.TileMarked.fill(false);
        return {false, false, true};
    }
    return {};
}

bool CountDown(WheelState& w) {
    w.SecondsLeft -= 1;
    if (w.SecondsLeft > 0) return false;
    w.timer4 = false;
    w.Label1 = "Oops! Your time ran out! Try to be a little faster next time!";
    if (w.frame == Frame::Letters)
        w.Label1 += " The word you were looking for was " + Quoted(w.word) + ".";
    w.frame = Frame::None;
    FinishQuestion(w);
    return true;
}

Ending EndGame(WheelState& w, const SharedState& s) {
    (void)w;
    return s.Score < 1 ? Ending::Practice : Ending::HandOff;
}

}  // namespace wm::wheel
