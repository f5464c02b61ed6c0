// Printable worksheets from a vocabulary list: what each kind of sheet holds (the puzzle made
// by the house builders, the shuffles, the refusals), and the pages it is printed on as a list
// of boxes, lines and texts in points. Plain C++: the pages can be checked without printing;
// worksheet_paint draws them on a printer or a PDF.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace wm {

class Rng;

namespace sheets {

enum class Kind { WordSearch, Crossword, Scramble, Matching, FillIn, FlashCards };
inline constexpr int kKindCount = 6;
const char* kindName(Kind kind);  // "Word Search", "Crossword", ...

enum class Paper { A4, Letter };

struct Options {
    Kind kind = Kind::WordSearch;
    int size = 12;  // word search: the side of the grid and the number of words (5 to 20)
    bool diagonals = true;
    bool clueIsDefinition = false;  // word search: the definitions are the clues
    int words = 10;                 // crossword: the words wanted (2 to 20)
    bool answerKey = true;
    Paper paper = Paper::A4;
    std::string title;  // the list's name when empty
};

// Text is Windows-1252 bytes, as the list file holds it.
struct WordList {
    std::string name;
    std::vector<std::pair<std::string, std::string>> pairs;  // word, definition
    bool wordsOnly = false;
};

// One line of a sheet: a word with what the sheet shows for it.
struct Entry {
    std::string word;      // as in the list
    std::string clue;      // its definition; empty on a words-only list
    std::string shown;     // scramble: the letters scrambled; matching: the definition on this row
    std::string label;     // crossword: the clue's number; matching: the letter of its definition
    int direction = 0;     // puzzles: 1 across, 2 down, 3 diagonal down to the right
    int col = 0, row = 0;  // puzzles: the first cell, 0-based
    int length = 0;        // puzzles: cells the word takes
    int set = 0;           // matching, fill in the blank: the group it is printed in
};

struct SheetContent {
    Kind kind = Kind::WordSearch;
    std::string title;
    std::string refusal;  // why no sheet can be made; nothing else is set then
    std::string note;     // a remark for the teacher (fewer words placed than wanted)
    int cols = 0, rows = 0;
    std::vector<char> grid;    // puzzles: rows * cols letters, 0 for no cell
    std::vector<int> numbers;  // crossword: the number printed in a cell, 0 for none
    std::vector<Entry> entries;
    bool clueIsDefinition = false;
    bool diagonals = false;
    char at(int col, int row) const { return grid[static_cast<std::size_t>(row * cols + col)]; }
};

inline constexpr char kNoDefinitions[] =
    "The list you have selected contains words only, with no definitions, and cannot be used "
    "for this worksheet. Please choose another kind of worksheet or another list.";
inline constexpr char kNoDefinitionClues[] =
    "The list you have selected contains words only, with no definitions. Choose \"Clue is Word "
    "(Easy)\" to make a word search from it.";
inline constexpr char kNoWords[] = "The list you have selected has no words.";
// Matching and fill in the blank are printed in groups of this many, each with its own letters
// or word bank, so that a long list stays a fair exercise.
inline constexpr int kSetSize = 10;

// Draws the sheet's puzzle and shuffles. Words in the puzzles are taken in capitals with their
// spaces squeezed out: a printed grid shows no gap that would give a word away, and case does
// not keep two words from sharing a letter.
SheetContent makeContent(const WordList& list, const Options& options, Rng& rng);

// ---- Pages ----

struct Font {
    double size = 11;  // points
    bool bold = false;
    bool italic = false;
};

enum class Align { Left, Centre, Right };

struct Item {
    enum Type { Text, Box, Line, Ring, Ornament };
    Type type = Text;
    // Text, Box, Ornament: the rectangle. Line, Ring: from (x, y) to (x + w, y + h).
    double x = 0, y = 0, w = 0, h = 0;
    std::string text;  // Windows-1252
    Font font;
    Align align = Align::Left;
    unsigned colour = 0x000000;  // text or stroke
    unsigned fill = kNoFill;
    double pen = 0.75;   // stroke width
    double radius = 0;   // Box: the corners; Ring: half its thickness
    double stretch = 1;  // Text: drawn this many times as wide (the write-on lines)
    bool dashed = false;
    static constexpr unsigned kNoFill = 0xffffffffu;
};

struct Page {
    std::vector<Item> items;
    bool key = false;  // a page of the answer key
};

struct PageSize {
    double width, height;  // points
};
PageSize pageSize(Paper paper);

// Width of a text in points; the painter measures with the real font, tests may use roughWidth.
using Measure = std::function<double(const std::string& text, const Font& font)>;
double roughWidth(const std::string& text, const Font& font);

// Greedy word wrap; a word wider than the line is broken between letters.
std::vector<std::string> wrapText(const std::string& text, const Font& font, double width,
                                  const Measure& measure);

// The pages of the sheet, then those of its key when the options ask for one.
std::vector<Page> layOutPages(const SheetContent& content, const Options& options,
                              const Measure& measure);

}  // namespace sheets
}  // namespace wm
