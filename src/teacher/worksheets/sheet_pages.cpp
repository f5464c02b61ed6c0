// The pages of a worksheet: a header with the ornament, the title and the pupil's name line,
// then the kind's blocks flowing down the page (in columns where they are short), onto more
// pages as needed, and the answer key from a page of its own.
#include <algorithm>
#include <cmath>

#include "core/strings.h"
#include "teacher/worksheets/page_flow.h"

namespace wm::sheets {

namespace {

std::string lower(const std::string& s) {
    return LCase(s);
}

// "(5)", or "(4, 5)" for a word of two parts.
std::string lengthHint(const std::string& word) {
    std::string out;
    int run = 0;
    for (char c : word + " ") {
        if (c != ' ') {
            ++run;
        } else if (run) {
            out += (out.empty() ? "" : ", ") + std::to_string(run);
            run = 0;
        }
    }
    return "(" + out + ")";
}

std::string spaced(const std::string& letters) {
    std::string out;
    for (char c : letters) {
        if (!out.empty()) out += ' ';
        out += c;
    }
    return out;
}

const char* directionName(int d) {
    return d == 1 ? "across" : d == 2 ? "down" : "diagonal";
}

// A heading over the blocks after it, kept with the first of them.
void heading(Flow& f, const std::string& s, double keep) {
    const double top = f.take(lineHeight(kHeading) + 4, keep);
    f.text(f.colLeft(), top, f.colWidth(), s, kHeading, kAccent);
}

// Numbered lines of the key, two to a row.
void answers(Flow& f, const std::vector<std::string>& lines, int columns = 2) {
    f.skip(8);
    f.columns(columns);
    for (const std::string& s : lines) {
        const std::vector<std::string> wrapped = f.wrap(s, kClue, f.colWidth() - 14);
        const double top = f.take(wrapped.size() * lineHeight(kClue) + 4);
        for (std::size_t i = 0; i < wrapped.size(); ++i)
            f.text(f.colLeft() + (i ? 14 : 0), top + i * lineHeight(kClue), f.colWidth(),
                   wrapped[i], kClue);
    }
}

// Short words in as many columns as the longest allows.
void wordColumns(Flow& f, std::vector<std::string> words, double x, double w, double top) {
    std::sort(words.begin(), words.end(),
              [](const std::string& a, const std::string& b) { return lower(a) < lower(b); });
    double widest = 0;
    for (const auto& s : words) widest = std::max(widest, f.m(s, kWord));
    const int per = std::clamp(static_cast<int>(w / (widest + 16)), 1, 4);
    const double colW = w / per;
    for (std::size_t i = 0; i < words.size(); ++i) {
        f.text(x + (i % per) * colW, top + (i / per) * lineHeight(kWord) * 1.2, colW - 6,
               f.fitText(words[i], kWord, colW - 6), kWord);
    }
}
double wordColumnsHeight(Flow& f, const std::vector<std::string>& words, double w) {
    double widest = 0;
    for (const auto& s : words) widest = std::max(widest, f.m(s, kWord));
    const int per = std::clamp(static_cast<int>(w / (widest + 16)), 1, 4);
    return std::ceil(words.size() / static_cast<double>(per)) * lineHeight(kWord) * 1.2;
}

// A numbered line of text, with a line to write on before the text, after it, or none.
enum class Blank { None, Before, After };
struct ClueShape {
    double textX, textW;
    std::vector<std::string> lines;
    double height;
};
ClueShape clueShape(const Flow& f, const std::string& s, Blank blank) {
    constexpr double kBlank = 118, kIndent = 24;
    ClueShape c;
    c.textX = kIndent + (blank == Blank::Before ? kBlank + 10 : 0);
    c.textW = f.width - c.textX - (blank == Blank::After ? kBlank + 10 : 0);
    c.lines = f.wrap(s, kClue, c.textW);
    const double least = blank == Blank::None ? 1 : 1.4;
    c.height = std::max<double>(c.lines.size(), least) * lineHeight(kClue) +
               (blank == Blank::None ? 5 : 9);
    return c;
}
void clueLine(Flow& f, const std::string& number, const std::string& s, Blank blank) {
    constexpr double kBlank = 118, kIndent = 24;
    const ClueShape c = clueShape(f, s, blank);
    const double lh = lineHeight(kClue);
    const double top = f.take(c.height);
    f.text(f.left, top, kIndent, number, {11, true});
    for (std::size_t i = 0; i < c.lines.size(); ++i)
        f.text(f.left + c.textX, top + i * lh, c.textW, c.lines[i], kClue);
    if (blank == Blank::None) return;
    const double lineY = top + (blank == Blank::Before ? 1 : c.lines.size()) * lh - 1.5;
    f.line(f.left + (blank == Blank::Before ? kIndent : f.width - kBlank), lineY, kBlank, 0, kInk,
           0.8);
}

// The side of a grid's cell: as large as suits the page, smaller so that `below` still fits
// under the grid on this page, never so small that a letter would print under 14 points.
double cellSide(const Flow& f, int cols, int rows, double largest, double below) {
    const double room = (f.bottom() - f.y() - 20 - below) / rows;
    const double side = std::min({largest, (f.width - 12) / cols, f.pageHeight() * 0.5 / rows});
    return std::max(std::min(side, room), std::min(side, kGridLetter / 0.6));
}

// ---- Word search ----

void searchGrid(Flow& f, const SheetContent& c, bool key, double below) {
    const double cell = cellSide(f, c.cols, c.rows, 28, below);
    const double side = cell * c.cols;
    const double x0 = f.left + (f.width - side) / 2;
    const double y0 = f.take(side + 16) + 4;
    Item frame = shape(Item::Box, x0 - 5, y0 - 5, side + 10, side + 10);
    frame.colour = kAccent;
    frame.pen = 1.6;
    frame.radius = 6;
    f.add(frame);
    for (int i = 1; i < c.cols; ++i) {
        f.line(x0 + i * cell, y0 - 5, 0, side + 10, kFaint, 0.4);
        f.line(x0 - 5, y0 + i * cell, side + 10, 0, kFaint, 0.4);
    }
    std::vector<bool> inWord(c.grid.size(), false);
    if (key) {
        for (const Entry& e : c.entries) {
            const int dx = e.direction == 2 ? 0 : 1, dy = e.direction == 1 ? 0 : 1;
            for (int k = 0; k < e.length; ++k)
                inWord[(e.row + k * dy) * c.cols + e.col + k * dx] = true;
            Item ring = shape(Item::Ring, x0 + (e.col + 0.5) * cell, y0 + (e.row + 0.5) * cell,
                              (e.length - 1) * dx * cell, (e.length - 1) * dy * cell);
            ring.radius = cell * 0.4;
            ring.colour = kRing;
            ring.pen = 1.3;
            f.add(ring);
        }
    }
    const Font letter{std::max(kGridLetter, std::min(17.0, cell * 0.6)), key};
    for (int y = 0; y < c.rows; ++y) {
        for (int x = 0; x < c.cols; ++x) {
            const char l = c.at(x, y);
            if (!l) continue;
            f.text(x0 + x * cell, y0 + y * cell, cell, std::string(1, l), letter,
                   key && !inWord[y * c.cols + x] ? kDim : kInk, Align::Centre, cell);
        }
    }
}

void wordSearchPages(Flow& f, const SheetContent& c, const Options& o) {
    const std::string runs = c.diagonals ? "across, down or diagonally." : "across or down.";
    f.section(false, c.clueIsDefinition
                         ? "Read each clue and write the word it describes on the line. Then find "
                           "the word in the puzzle and draw a ring around it. Words run " +
                               runs
                         : "Find each word from the list in the puzzle and draw a ring around "
                           "it. Words run " +
                               runs);
    std::vector<std::string> words;
    for (const Entry& e : c.entries) words.push_back(e.word);
    double below = lineHeight(kHeading) + 4;
    if (c.clueIsDefinition) {
        for (const Entry& e : c.entries) below += clueShape(f, e.clue, Blank::After).height;
    } else {
        below += wordColumnsHeight(f, words, f.width);
    }
    searchGrid(f, c, false, below);
    if (c.clueIsDefinition) {
        heading(f, "Clues", 30);
        for (std::size_t i = 0; i < c.entries.size(); ++i)
            clueLine(f, std::to_string(i + 1) + ".", c.entries[i].clue, Blank::After);
    } else {
        const double h = wordColumnsHeight(f, words, f.width);
        heading(f, "Find these words", h);
        wordColumns(f, words, f.left, f.width, f.take(h));
    }
    if (!o.answerKey) return;
    f.section(true, {});
    searchGrid(f, c, true, 0);
    // Numbered as the clues are, or in the order of the pupil's list of words.
    std::vector<std::pair<std::string, std::string>> lines;
    for (std::size_t i = 0; i < c.entries.size(); ++i) {
        const Entry& e = c.entries[i];
        lines.emplace_back(c.clueIsDefinition ? std::string() : lower(e.word),
                           (c.clueIsDefinition ? std::to_string(i + 1) + ". " : "") + e.word +
                               ": row " + std::to_string(e.row + 1) + ", column " +
                               std::to_string(e.col + 1) + ", " + directionName(e.direction));
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string> text;
    for (auto& l : lines) text.push_back(std::move(l.second));
    answers(f, text);
}

// ---- Crossword ----

void crossGrid(Flow& f, const SheetContent& c, bool key, double below) {
    const double cell = cellSide(f, c.cols, c.rows, 30, below);
    const double x0 = f.left + (f.width - cell * c.cols) / 2;
    const double y0 = f.take(cell * c.rows + 16) + 4;
    const Font letter{std::max(kGridLetter, cell * 0.6), true};
    for (int y = 0; y < c.rows; ++y) {
        for (int x = 0; x < c.cols; ++x) {
            if (!c.at(x, y)) continue;
            Item box = shape(Item::Box, x0 + x * cell, y0 + y * cell, cell, cell);
            box.pen = 0.9;
            box.fill = 0xffffff;
            f.add(box);
            if (const int n = c.numbers[y * c.cols + x])
                f.text(box.x + 1.5, box.y + 0.5, cell, std::to_string(n), kNumber, kInk,
                       Align::Left, 8);
            if (key)
                f.text(box.x, box.y + cell * 0.06, cell, std::string(1, c.at(x, y)), letter, kInk,
                       Align::Centre, cell);
        }
    }
}

void crosswordPages(Flow& f, const SheetContent& c, const Options& o) {
    f.section(false,
              "Read each clue and write the answer in the puzzle, one letter in each box. The "
              "numbers in brackets tell you how many letters the answer has.");
    double below = 2 * (lineHeight(kHeading) + 4);
    for (const Entry& e : c.entries)
        below += clueShape(f, e.clue + " " + lengthHint(e.word), Blank::None).height;
    crossGrid(f, c, false, below);
    for (int d : {1, 2}) {
        bool first = true;
        for (const Entry& e : c.entries) {
            if (e.direction != d) continue;
            if (first && d == 2) f.skip(8);
            if (first) heading(f, d == 1 ? "Across" : "Down", 30);
            first = false;
            clueLine(f, e.label + ".", e.clue + " " + lengthHint(e.word), Blank::None);
        }
    }
    if (!o.answerKey) return;
    f.section(true, {});
    crossGrid(f, c, true, 0);
    std::vector<std::string> lines;
    for (const Entry& e : c.entries)
        lines.push_back(e.label + (e.direction == 1 ? " Across: " : " Down: ") + e.word);
    answers(f, lines);
}

// ---- Scramble, matching, fill in the blank ----

void scramblePages(Flow& f, const SheetContent& c, const Options& o) {
    const bool clues = !c.entries.empty() && !c.entries.front().clue.empty();
    f.section(false, std::string("Unscramble the letters to spell a word from the list, and "
                                 "write the word on the line.") +
                         (clues ? " The meaning under the letters will help you." : ""));
    const double indent = 26, lh = lineHeight(kClue);
    for (std::size_t i = 0; i < c.entries.size(); ++i) {
        const Entry& e = c.entries[i];
        const std::string letters = spaced(e.shown);
        const Font big = f.fitted(letters, kScrambled, f.width * 0.55, 11);
        const std::vector<std::string> clue =
            clues ? f.wrap(e.clue, kDirections, f.width - indent) : std::vector<std::string>{};
        const double top = f.take(26 + clue.size() * lh + 10);
        f.text(f.left, top + 3, indent, std::to_string(i + 1) + ".", kWord);
        f.text(f.left + indent, top, f.width * 0.55, letters, big, kAccent);
        const double lineX = f.left + indent + std::max(f.m(letters, big) + 24, f.width * 0.45);
        f.line(lineX, top + 20, f.left + f.width - lineX, 0, kInk, 0.8);
        for (std::size_t k = 0; k < clue.size(); ++k)
            f.text(f.left + indent, top + 26 + k * lh, f.width - indent, clue[k], kDirections,
                   kSoft);
    }
    if (!o.answerKey) return;
    f.section(true, {});
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < c.entries.size(); ++i)
        lines.push_back(std::to_string(i + 1) + ". " + c.entries[i].shown + ": " +
                        c.entries[i].word);
    answers(f, lines);
}

bool manySets(const SheetContent& c) {
    return !c.entries.empty() && c.entries.back().set > 0;
}

// The room a set wants kept with its heading: the whole set, when it fits on one page.
double keepSet(const Flow& f, const SheetContent& c, const std::vector<double>& heights,
               std::size_t first) {
    double h = 0;
    for (std::size_t i = first; i < c.entries.size() && c.entries[i].set == c.entries[first].set;
         ++i)
        h += heights[i];
    return h < (f.bottom() - kTop) * 0.7 ? h : heights[first];
}

void matchingPages(Flow& f, const SheetContent& c, const Options& o) {
    f.section(false, "Write the letter of the matching definition on the line beside each word.");
    const double leftW = f.width * 0.38, rightX = f.left + leftW + 16;
    const double rightW = f.left + f.width - rightX, lh = lineHeight(kClue);
    std::vector<double> heights;
    for (std::size_t i = 0; i < c.entries.size(); ++i) {
        const std::size_t words =
            f.wrap(std::to_string(i + 1) + ". " + c.entries[i].word, kWord, leftW - 36).size();
        const std::size_t defs = f.wrap(c.entries[i].shown, kClue, rightW - 22).size();
        heights.push_back(std::max(words * lineHeight(kWord), defs * lh) + 10);
    }
    for (std::size_t i = 0; i < c.entries.size(); ++i) {
        const Entry& e = c.entries[i];
        const std::vector<std::string> word =
            f.wrap(std::to_string(i + 1) + ". " + e.word, kWord, leftW - 36);
        const std::vector<std::string> def = f.wrap(e.shown, kClue, rightW - 22);
        const double h = heights[i];
        if (i == 0 || c.entries[i - 1].set != e.set) {
            f.skip(i ? 8 : 0);
            if (manySets(c))
                heading(f, "Set " + std::to_string(e.set + 1), keepSet(f, c, heights, i));
        }
        const double top = f.take(h);
        f.line(f.left, top + lineHeight(kWord) - 2, 28, 0, kInk, 0.8);
        for (std::size_t k = 0; k < word.size(); ++k)
            f.text(f.left + 36, top + k * lineHeight(kWord), leftW - 36, word[k], kWord);
        const int row =
            static_cast<int>(i) -
            static_cast<int>(std::find_if(c.entries.begin(), c.entries.end(),
                                          [&](const Entry& x) { return x.set == e.set; }) -
                             c.entries.begin());
        f.text(rightX, top, 22, std::string(1, static_cast<char>('A' + row)) + ".", kWord, kAccent);
        for (std::size_t k = 0; k < def.size(); ++k)
            f.text(rightX + 22, top + 1 + k * lh, rightW - 22, def[k], kClue);
    }
    if (!o.answerKey) return;
    f.section(true, {});
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < c.entries.size(); ++i)
        lines.push_back(std::to_string(i + 1) + ". " + c.entries[i].word + ": " +
                        c.entries[i].label);
    answers(f, lines);
}

void fillInPages(Flow& f, const SheetContent& c, const Options& o) {
    f.section(false,
              "Choose the word from the word bank that matches each definition, and write it on "
              "the line. Use each word once.");
    std::vector<double> heights;
    for (const Entry& x : c.entries) heights.push_back(clueShape(f, x.clue, Blank::Before).height);
    for (std::size_t i = 0; i < c.entries.size(); ++i) {
        const Entry& e = c.entries[i];
        if (i == 0 || c.entries[i - 1].set != e.set) {
            std::vector<std::string> bank;
            for (const Entry& x : c.entries)
                if (x.set == e.set) bank.push_back(x.word);
            const double inner = f.width - 24;
            const double h = wordColumnsHeight(f, bank, inner) + lineHeight(kHeading) + 20;
            f.skip(i ? 10 : 0);
            const double top = f.take(h + 10, keepSet(f, c, heights, i));
            Item box = shape(Item::Box, f.left, top, f.width, h);
            box.colour = kAccent;
            box.fill = 0xf1f5fb;
            box.radius = 8;
            f.add(box);
            f.text(f.left + 12, top + 6, inner,
                   manySets(c) ? "Word Bank " + std::to_string(e.set + 1) : "Word Bank", kHeading,
                   kAccent);
            wordColumns(f, bank, f.left + 12, inner, top + 8 + lineHeight(kHeading));
        }
        clueLine(f, std::to_string(i + 1) + ".", e.clue, Blank::Before);
    }
    if (!o.answerKey) return;
    f.section(true, {});
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < c.entries.size(); ++i)
        lines.push_back(std::to_string(i + 1) + ". " + c.entries[i].word);
    answers(f, lines);
}

// ---- Flash cards ----

// Text centred in a card, as large as it fits between `size` and `smallest`.
void cardText(Flow& f, const std::string& s, double x, double y, double w, double h, Font font,
              double smallest) {
    std::vector<std::string> lines;
    for (;; font.size -= 1) {
        lines = wrapText(s, font, w, f.m);
        if (font.size <= smallest || lines.size() * lineHeight(font) <= h) break;
    }
    const std::size_t fit =
        std::max<std::size_t>(1, static_cast<std::size_t>(h / lineHeight(font)));
    if (lines.size() > fit) {
        lines.resize(fit);
        lines.back() = f.fitText(lines.back() + " ...", font, w);
    }
    const double top = y + (h - lines.size() * lineHeight(font)) / 2;
    for (std::size_t i = 0; i < lines.size(); ++i)
        f.text(x, top + i * lineHeight(font), w, lines[i], font, kInk, Align::Centre);
}

void flashCardPages(Flow& f, const SheetContent& c, const Options& o) {
    constexpr int kCols = 2, kRows = 4, kPerSheet = kCols * kRows;
    const int n = static_cast<int>(c.entries.size());
    const int sheets = (n + kPerSheet - 1) / kPerSheet;
    for (int s = 0; s < sheets; ++s) {
        for (bool back : {false, true}) {
            f.continued("Flash Cards: " + std::string(back ? "backs" : "fronts") + ", sheet " +
                        std::to_string(s + 1) + " of " + std::to_string(sheets));
            const double top = f.take(0), cardW = f.width / kCols;
            const double cardH = (f.bottom() - 6 - top) / kRows;
            // Dashed cut lines round and between the cards.
            for (int i = 0; i <= kCols; ++i)
                f.line(f.left + i * cardW, top, 0, cardH * kRows, kDim, 0.6, true);
            for (int i = 0; i <= kRows; ++i)
                f.line(f.left, top + i * cardH, f.width, 0, kDim, 0.6, true);
            for (int k = 0; k < kPerSheet && s * kPerSheet + k < n; ++k) {
                const Entry& e = c.entries[s * kPerSheet + k];
                // A back stands behind its front once the sheet is turned over its long edge:
                // the columns swap, the rows stay.
                const int col = back ? kCols - 1 - k % kCols : k % kCols;
                const double x = f.left + col * cardW, y = top + (k / kCols) * cardH;
                f.text(x + 8, y + 6, 40, std::to_string(s * kPerSheet + k + 1), {8}, kDim);
                if (back)
                    cardText(f, e.clue, x + 16, y + 18, cardW - 32, cardH - 36, {13}, 9);
                else
                    cardText(f, e.word, x + 14, y + 18, cardW - 28, cardH - 36, {24, true}, 12);
            }
        }
    }
    if (!o.answerKey) return;
    f.section(true, {});
    std::vector<std::string> lines;
    for (int i = 0; i < n; ++i)
        lines.push_back(std::to_string(i + 1) + ". " + c.entries[i].word + ": " +
                        c.entries[i].clue);
    answers(f, lines, 1);
}

}  // namespace

std::vector<Page> layOutPages(const SheetContent& content, const Options& options,
                              const Measure& measure) {
    if (!content.refusal.empty()) return {};
    Flow f(content, options, measure);
    switch (content.kind) {
        case Kind::WordSearch:
            wordSearchPages(f, content, options);
            break;
        case Kind::Crossword:
            crosswordPages(f, content, options);
            break;
        case Kind::Scramble:
            scramblePages(f, content, options);
            break;
        case Kind::Matching:
            matchingPages(f, content, options);
            break;
        case Kind::FillIn:
            fillInPages(f, content, options);
            break;
        case Kind::FlashCards:
            flashCardPages(f, content, options);
            break;
    }
    return f.finish();
}

}  // namespace wm::sheets
