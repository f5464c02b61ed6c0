// One data card per game: what the title, the chooser and the options screen need to know.
// Pure data, no Qt, so the rows can be checked without a display.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QWidget;

namespace wm {

// What the chooser does when the loaded list has words only.
enum class WordsOnlyRule {
    Allowed,         // plays as it is
    Refuse,          // shows `wordsOnlyText`; the game does not open
    RefuseIfOption,  // refuses only while GameOptionOn is true; else plays
    Warn,            // shows `wordsOnlyText`, then plays
    WarnIfOption,    // warns only while GameOptionOn is true
};

enum class CountRule {
    None,
    Below,            // refused when WordCount < minWords
    BelowDifficulty,  // refused when WordCount < Difficulty
};

struct EligibilityRow {
    WordsOnlyRule wordsOnly = WordsOnlyRule::Allowed;
    std::string wordsOnlyText;  // the refusal or warning
    bool keepOption = false;    // a shown warning leaves GameOptionOn as it was
    CountRule count = CountRule::None;
    int minWords = 0;
    std::string countText;  // the refusal, with the number filled in
    std::string opens;      // the screen the chooser opens
};

enum class OptionFrame { Hidden, Shown, ShownUnlessWordsOnly };

struct OptionsRow {
    bool hasDifficulty = true;
    int min = 1, max = 10, start = 5;
    bool clamped = false;  // list-first games: start and maximum fall to WordCount
    OptionFrame frame = OptionFrame::Hidden;
    std::string frameCaption = "Show Word Meaning?";
    std::string option1 = "Don't Show";
    std::string option2 = "Show";
    std::string easyLabel = "Easy";
};

struct GameCard {
    int index = 0;            // 1..42, catalogue order
    std::string name;         // exactly as in GameNames
    std::string button;       // "buttons/{name}.jpg"
    std::string firstScreen;  // "GameOptions", "QuizOptions", "FlashCardOptions" or "ChooseList"
    EligibilityRow eligibility;
    OptionsRow options;
    std::string howTo;   // the full how-to-play text
    std::string screen;  // the game's own screen ("Scramble", "CrosswordForm"...)

    // Attached by the game's registration when its screen is built: how to make the screen and
    // every asset it loads (paths in the application folder). Empty while it is not built.
    std::function<QWidget*()> make;
    std::vector<std::string> assets;
    bool built() const { return static_cast<bool>(make); }
};

// The 42 cards in catalogue order.
const std::vector<GameCard>& Catalogue();
// By name, compared without regard to case; nullptr when unknown.
const GameCard* FindCard(std::string_view name);
// Whether the title, its score browser and the teacher's show/hide list offer a game. Every
// card is offered unless OfferOnlyBuiltGames(true), which the program sets, so that a game with
// no screen in this build has no button that leads nowhere; its shown or hidden state in the
// display file is kept for the build that has it.
bool IsOffered(std::string_view name);
void OfferOnlyBuiltGames(bool only);
// Gives the card of `name` its screen and assets; false when no card has that name.
bool AttachGame(std::string_view name, std::function<QWidget*()> make,
                std::vector<std::string> assets);

// The chooser's messages.
extern const char* const kMsgM1;
extern const char* const kMsgM2;
extern const char* const kMsgW1;
extern const char* const kMsgW2;
extern const char* const kMsgE1;
extern const char* const kMsgE2;
std::string MsgN(int k);

}  // namespace wm
