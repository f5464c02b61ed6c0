// Spiderwebs: flies hang in a web, each with a word; a definition stands at the top and a spider
// crawls from the hub towards the fly with the matching word. Clicking that fly before the
// spider gets there frees it; a wrong fly is eaten and the spider hurries. Ten definitions.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::spiderwebs {

constexpr int kMinLevel = 3, kMaxLevel = 12;  // the flies in the web
constexpr int kRounds = 10;                   // definitions in a game
constexpr int kWrongCost = 25;                // a wrong fly eaten
constexpr int kDecoyDraws = 200;              // unlucky decoy draws before the draw walks on

// The moments between the spider's crawls.
constexpr int kReadyMs = 1500;   // the definition read, the spider still at the hub
constexpr int kFreedMs = 1800;   // the freed fly buzzes away
constexpr int kCaughtMs = 3200;  // the spider at its fly, the word shown

// How long the spider takes from the hub to its fly in round `round` (1-based): 12 s in the
// first, half a second less each round after (7.5 s in the tenth).
int crawlMs(int round);
// A freed fly's points: the time left in tenths of a second, times two.
int freedPoints(int msLeft);

enum class Start { Ok, NoDefinitions, TooFewWords };
enum class Phase { Ready, Crawling, Freed, Caught, Over };
enum class Event { Go, Caught, NextRound, Over };
enum class Click { Ignored, Right, Wrong };

struct Fly {
    std::string word;
    bool eaten = false;
};

// One game of ten definitions. The draws come in a fixed order, so a scripted generator pins
// them: start() reseeds; each round draws the definition's word (a fresh one with a meaning),
// then the slot of its fly (Int(Rnd x flies + 1)), then one decoy after the other for the
// other slots, left to right, redrawing a word whose text is in the web already.
class Game {
public:
    // A new game at the level in `s.Difficulty` (held to 3..12), its first round ready.
    Start start(SharedState& s, Rng& rng);
    // Moves the game on by `ms`: the wait before the crawl, the crawl, the moments after.
    // What happened, in order.
    std::vector<Event> advance(SharedState& s, int ms, Rng& rng);
    // The pupil clicked fly `fly` (its slot). Right frees it and scores; wrong eats it, costs
    // 25 and hurries the spider. Eaten flies, and clicks between crawls, are ignored.
    Click click(int fly);

    Phase phase() const { return phase_; }
    int level() const { return level_; }
    int round() const { return round_; }
    int answer() const { return answer_; }  // the slot of the matching fly
    const std::vector<Fly>& flies() const { return flies_; }
    double score() const { return score_; }
    // Only a score above nothing goes on the table.
    bool onTheTable() const { return score_ > 0; }
    int freed() const { return freed_; }
    int lastPoints() const { return lastPoints_; }
    // How far the spider is on its thread, 0 at the hub to 1 at the fly.
    double progress() const;
    // The time the spider still needs at its present pace, ms.
    int msLeft() const;
    // The spider's pace: 1, and half as much again for each wrong fly this round.
    double hurry() const { return 1 + 0.5 * wrongs_; }
    // How many different words the list holds (case ignored), for the refusal.
    int differentWords() const { return different_; }

private:
    void setUpRound(SharedState& s, Rng& rng);
    std::string drawDecoy(const SharedState& s, Rng& rng) const;
    bool inWeb(const std::string& word) const;

    Phase phase_ = Phase::Ready;
    int level_ = kMinLevel;
    int round_ = 0;
    int answer_ = 0;
    std::vector<Fly> flies_;
    double score_ = 0;
    int freed_ = 0;
    int lastPoints_ = 0;
    int wrongs_ = 0;
    double crawled_ = 0;  // ms of the round's crawl done, at the first pace
    int phaseMs_ = 0;
    int loaded_ = 0;
    int different_ = 0;
    std::vector<int> drawn_;  // entries drawn as definitions this game
};

// The refusals: the list has no definitions; the web needs more different words than it has.
std::string noDefinitionsText();
std::string tooFewWordsText(int level, int different);
// Ten definitions played, but nothing for the table.
std::string noPointsText(double score);

}  // namespace wm::spiderwebs
