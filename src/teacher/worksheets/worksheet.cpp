#include "teacher/worksheets/worksheet.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/cross_layout.h"
#include "games/common/word_scramble.h"
#include "games/puzzles/word_search/word_search_rules.h"

namespace wm::sheets {

namespace {

// The word as a puzzle holds it: capitals, no spaces.
std::string puzzleForm(const std::string& word) {
    std::string out;
    for (char c : UCase(word)) {
        if (c != ' ') out += c;
    }
    return out;
}

constexpr int kCrosswordTries = 4;

bool needsDefinitions(const Options& o) {
    return o.kind != Kind::Scramble && o.kind != Kind::WordSearch;
}

int draw(Rng& rng, int n) {
    return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n);
}

// A shuffle of 0..n-1 that moves something whenever it can, tried a few times.
std::vector<int> shuffled(int n, Rng& rng) {
    std::vector<int> order(static_cast<std::size_t>(n));
    for (int tries = 0; tries < 6; ++tries) {
        for (int i = 0; i < n; ++i) order[i] = i;
        for (int i = n; i > 1; --i) std::swap(order[i - 1], order[draw(rng, i) - 1]);
        if (n < 2 || !std::is_sorted(order.begin(), order.end())) break;
    }
    return order;
}

// Groups as even as possible, none above kSetSize: 31 words make 8, 8, 8 and 7.
std::vector<int> setSizes(int n) {
    const int sets = (n + kSetSize - 1) / kSetSize;
    std::vector<int> sizes;
    for (int s = 0; s < sets; ++s) sizes.push_back(n / sets + (s < n % sets ? 1 : 0));
    return sizes;
}

Entry plainEntry(const WordList& list, int i) {
    Entry e;
    e.word = list.pairs[i].first;
    if (!list.wordsOnly) e.clue = list.pairs[i].second;
    return e;
}

void wordSearch(SheetContent& c, const WordList& list, const Options& o, int n, Rng& rng) {
    // The builder reads its words from a shared block of its own.
    SharedState state;
    for (int i = 0; i < n; ++i) state.Words[i + 1] = puzzleForm(list.pairs[i].first);
    state.WordCount = static_cast<short>(n);
    const int size = std::clamp(o.size, 5, 20);
    state.PuzzleWordCount = static_cast<short>(std::min(size, n));
    word_search::WordSearchState ws;
    ws.GridSize = size;
    ws.NoDiagonals = !o.diagonals;
    const word_search::BuildResult built = word_search::generatePuzzle(state, ws, rng);
    if (!built.ok) {
        c.refusal = built.message;
        return;
    }
    c.cols = c.rows = ws.GridSize;
    c.grid.resize(static_cast<std::size_t>(c.cols * c.rows));
    for (int y = 0; y < c.rows; ++y)
        for (int x = 0; x < c.cols; ++x) c.grid[y * c.cols + x] = ws.LetterGrid[x + 1][y + 1];
    for (std::size_t k = 0; k < ws.PickedWords.size(); ++k) {
        const int index = ws.PickedWords[k] - 1;
        Entry e = plainEntry(list, index);
        e.direction = ws.hidden[k].direction;
        e.col = ws.hidden[k].x - 1;
        e.row = ws.hidden[k].y - 1;
        e.length = Len(state.Words[index + 1]);
        c.entries.push_back(e);
    }
}

void crossword(SheetContent& c, const WordList& list, const Options& o, int n, Rng& rng) {
    std::vector<std::string> words(static_cast<std::size_t>(n + 1));
    for (int i = 0; i < n; ++i) words[i + 1] = puzzleForm(list.pairs[i].first);
    const int wanted = std::min(std::clamp(o.words, 2, 20), n);
    // A first word that lands in the first column can be crossed by nothing, and the layout
    // then settles for fewer words: a few fresh layouts are drawn and the fullest kept.
    cross::LayoutResult laid;
    for (int tries = 0; n >= 2 && tries < kCrosswordTries && laid.target < wanted; ++tries) {
        cross::LayoutResult next = cross::layOut(words, n, wanted, cross::kCrosswordParams, rng);
        if (next.ok && next.target > laid.target) laid = std::move(next);
    }
    // One word alone is no crossword.
    if (!laid.ok || laid.target < 2) {
        c.refusal = cross::kFailedMessage;
        return;
    }
    if (laid.target < wanted)
        c.note = "Only " + std::to_string(laid.target) + " of the " + std::to_string(wanted) +
                 " words asked for fit in this crossword.";
    int left = cross::kTableCols, top = cross::kTableRows, right = 0, bottom = 0;
    for (int x = 0; x < cross::kTableCols; ++x) {
        for (int y = 0; y < cross::kTableRows; ++y) {
            if (!laid.board.at(x, y)) continue;
            left = std::min(left, x), right = std::max(right, x);
            top = std::min(top, y), bottom = std::max(bottom, y);
        }
    }
    c.cols = right - left + 1;
    c.rows = bottom - top + 1;
    c.grid.assign(static_cast<std::size_t>(c.cols * c.rows), 0);
    c.numbers.assign(c.grid.size(), 0);
    for (int y = 0; y < c.rows; ++y)
        for (int x = 0; x < c.cols; ++x) c.grid[y * c.cols + x] = laid.board.at(x + left, y + top);

    // Numbers in reading order, one a starting cell, shared by a word across and one down.
    std::vector<cross::PlacedWord> placed = laid.order;
    std::sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) {
        return a.row != b.row ? a.row < b.row : a.col < b.col;
    });
    int next = 0;
    for (const cross::PlacedWord& p : placed) {
        int& number = c.numbers[(p.row - top) * c.cols + (p.col - left)];
        if (!number) number = ++next;
        Entry e = plainEntry(list, p.index - 1);
        e.direction = p.direction;
        e.col = p.col - left;
        e.row = p.row - top;
        e.length = Len(words[p.index]);
        e.label = std::to_string(number);
        c.entries.push_back(e);
    }
    std::stable_sort(c.entries.begin(), c.entries.end(),
                     [](const Entry& a, const Entry& b) { return a.direction < b.direction; });
}

void scramble(SheetContent& c, const WordList& list, int n, Rng& rng) {
    for (int i = 0; i < n; ++i) {
        Entry e = plainEntry(list, i);
        const std::string letters = puzzleForm(e.word);
        // A scramble that gives the word back is drawn again, when the letters allow another.
        const bool allSame =
            std::all_of(letters.begin(), letters.end(), [&](char l) { return l == letters[0]; });
        for (int tries = 0; tries < 8; ++tries) {
            e.shown = ScrambleWord(letters, rng);
            if (allSame || e.shown != letters) break;
        }
        c.entries.push_back(e);
    }
}

void matching(SheetContent& c, const WordList& list, int n, Rng& rng, bool fillIn) {
    int first = 0, set = 0;
    for (int size : setSizes(n)) {
        const std::vector<int> order = shuffled(size, rng);
        for (int r = 0; r < size; ++r) {
            if (fillIn) {
                // The definitions in shuffled order; the bank lists the set's words.
                Entry e = plainEntry(list, first + order[r]);
                e.set = set;
                c.entries.push_back(e);
                continue;
            }
            // Row r shows word r and, beside it, definition order[r]; the letter of word r's
            // own definition is that of the row its definition landed on.
            Entry e = plainEntry(list, first + r);
            e.shown = list.pairs[first + order[r]].second;
            const int landed =
                static_cast<int>(std::find(order.begin(), order.end(), r) - order.begin());
            e.label = std::string(1, static_cast<char>('A' + landed));
            e.set = set;
            c.entries.push_back(e);
        }
        first += size;
        ++set;
    }
}

}  // namespace

const char* kindName(Kind kind) {
    switch (kind) {
        case Kind::WordSearch:
            return "Word Search";
        case Kind::Crossword:
            return "Crossword";
        case Kind::Scramble:
            return "Scramble";
        case Kind::Matching:
            return "Matching";
        case Kind::FillIn:
            return "Fill in the Blank";
        case Kind::FlashCards:
            return "Flash Cards";
    }
    return "";
}

SheetContent makeContent(const WordList& list, const Options& o, Rng& rng) {
    SheetContent c;
    c.kind = o.kind;
    c.title = Trim(o.title).empty() ? list.name : o.title;
    c.clueIsDefinition = o.clueIsDefinition;
    c.diagonals = o.diagonals;
    const int n = std::min<int>(static_cast<int>(list.pairs.size()), kMaxWords);
    if (n == 0) {
        c.refusal = kNoWords;
    } else if (list.wordsOnly && needsDefinitions(o)) {
        c.refusal = kNoDefinitions;
    } else if (list.wordsOnly && o.kind == Kind::WordSearch && o.clueIsDefinition) {
        c.refusal = kNoDefinitionClues;
    }
    if (!c.refusal.empty()) return c;
    switch (o.kind) {
        case Kind::WordSearch:
            wordSearch(c, list, o, n, rng);
            break;
        case Kind::Crossword:
            crossword(c, list, o, n, rng);
            break;
        case Kind::Scramble:
            scramble(c, list, n, rng);
            break;
        case Kind::Matching:
            matching(c, list, n, rng, false);
            break;
        case Kind::FillIn:
            matching(c, list, n, rng, true);
            break;
        case Kind::FlashCards:
            for (int i = 0; i < n; ++i) c.entries.push_back(plainEntry(list, i));
            break;
    }
    return c;
}

}  // namespace wm::sheets
