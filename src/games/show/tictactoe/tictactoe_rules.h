// Tic-Tac-Toe's rules: the computer's choice of square and its aim, the question of a square,
// the board's verdict and the score. Pure C++; rows and columns are 1..3 as on the board.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace tictactoe {

enum Owner { Empty = 0, Player = 1, Computer = 2 };

struct Square {
    int row = 0;  // 0: no square found
    int col = 0;
    bool operator==(const Square&) const = default;
};

struct Board {
    std::array<std::array<int, 3>, 3> owner{};  // BoardOwner
    int at(int row, int col) const { return owner[row - 1][col - 1]; }
    void set(int row, int col, int who) { owner[row - 1][col - 1] = who; }
    bool taken(int row, int col) const { return at(row, col) != Empty; }
    bool full() const;
};

// The eight lines in the order they are walked: rows, columns, main diagonal, other diagonal.
const std::array<std::array<Square, 3>, 8>& lines();

// A line with more than `threshold` marks of `side` and none of the other side gives its last
// square not held by `side`.
Square findLine(const Board& b, int side, int threshold);
// Two player marks and no computer mark: the square that blocks.
Square findBlock(const Board& b);
// A free square drawn row then column until free.
Square randomFree(const Board& b, Rng& rng);
// The computer's choice: centre, win, block, build, random (random only at level 1).
Square computerChoice(const Board& b, int difficulty, Rng& rng);
// Whether the computer's try lands: it misses when Int(Rnd * Difficulty + 1) is 1.
bool computerHits(int difficulty, Rng& rng);

bool playerMovesFirst(int difficulty);
// Seconds of a question's clock; 0: no clock.
int questionSeconds(int difficulty);

struct Question {
    int word = 0;              // 1-based entry asked
    int right = 0;             // 0-based option holding the word
    std::vector<int> options;  // entry shown on each Option1, Difficulty of them
};
Question askQuestion(SharedState& state, int difficulty, Rng& rng);

struct Verdict {
    int winner = Empty;
    bool tie = false;
    Square from, to;  // the winning line's end squares
};
Verdict checkBoard(const Board& b);

double winScore(double score, int difficulty, Rng& rng);

std::string missText(const std::string& word);
std::string questionText(const std::string& meaning);

inline constexpr char kClickSquare[] = "Click on the square you want to play...";
inline constexpr char kComputerTries[] = "The computer tries for a square and...";
inline constexpr char kComputerMisses[] = "...computer misses the square...";
inline constexpr char kComputerWins[] = "...computer wins the square!";
inline constexpr char kYouWin[] = "You win the game!";
inline constexpr char kComputerWinsGame[] = "Computer wins the game!";
inline constexpr char kTie[] =
    "It's a tie game! Good job, but it looks like the computer is a tough player for you! Would "
    "you like to give it another try?";
inline constexpr char kLost[] =
    "Oops! The computer beat you that time! Would you like to give it another try?";

}  // namespace tictactoe
}  // namespace wm
