#include "games/puzzles/code_breaker/code_breaker_rules.h"

#include <algorithm>
#include <cstdlib>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::code_breaker {

namespace {
// Draws that hit a used or unfit word try again this many times; then the next fit word after
// the last draw is taken, so a draw always ends.
constexpr int kDrawTries = 50;
constexpr int kMostColumns = 26;  // two words of twelve letters on a line

int Draw(Rng& rng, int n) {
    return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n);
}

bool accented(char c) {
    const char f = fold(c);
    return IsLetter(c) && !(f >= 'A' && f <= 'Z');
}

// The accented letters of `word` not yet in `known`, added to it.
void addAccents(const std::string& word, std::string& known) {
    for (char c : word)
        if (accented(c) && known.find(fold(c)) == std::string::npos) known += fold(c);
}
}  // namespace

int secondsFor(int level) {
    return 330 - 6 * std::clamp(level, kMinLevel, kMaxLevel);
}

int pointsFor(int secondsLeft, int level, int letters) {
    return secondsLeft * level + 10 * letters;
}

char fold(char c) {
    return UCase(std::string(1, c))[0];
}

std::string timeUpText(const std::vector<std::string>& words) {
    std::string list;
    for (const std::string& w : words) {
        if (!list.empty()) list += ", ";
        list += "\"" + w + "\"";
    }
    return "Time's up! The code was " + list + ". Would you like to try again?";
}

std::string clockText(int seconds) {
    seconds = std::max(0, seconds);
    const int s = seconds % 60;
    return std::to_string(seconds / 60) + (s < 10 ? ":0" : ":") + std::to_string(s);
}

Layout layOut(const std::vector<std::string>& words, int columns) {
    Layout out;
    columns = std::max(1, columns);
    int line = 0, col = 0;
    for (const std::string& w : words) {
        const int n = Len(w);
        if (col > 0) {
            if (col + 1 + n <= columns) {
                ++col;  // the gap between two words
            } else {
                ++line;
                col = 0;
            }
        }
        for (int i = 0; i < n; ++i) {
            if (col == columns) {
                ++line;
                col = 0;
            }
            out.places.push_back({line, col});
            out.columns = std::max(out.columns, ++col);
        }
    }
    out.lines = out.places.empty() ? 0 : line + 1;
    return out;
}

int bestColumns(const std::vector<std::string>& words, double width, double height, double tall) {
    // A word is broken over two lines only when it is longer than the longest line.
    int longest = 4;
    for (const std::string& w : words) longest = std::max(longest, Len(w));
    int best = kMostColumns;
    double bestSide = -1;
    for (int c = std::min(longest, kMostColumns); c <= kMostColumns; ++c) {
        const Layout l = layOut(words, c);
        if (l.lines == 0) continue;
        const double side = std::min(width / l.columns, height / (l.lines * tall));
        if (side > bestSide + 0.01) {
            bestSide = side;
            best = c;
        }
    }
    return best;
}

bool Game::usable(const SharedState& s, int k, int tiles, int accents) const {
    if (k < 1 || k >= int(s.Words.size())) return false;
    const std::string w = Trim(s.Words[k]);
    if (w.empty() || Len(w) > kMaxTiles - tiles) return false;
    if (std::none_of(w.begin(), w.end(), IsLetter)) return false;
    // Different words: the same word twice (in any case) is one word.
    for (const std::string& t : words_)
        if (UCase(t) == UCase(w)) return false;
    std::string known;
    for (const std::string& t : words_) addAccents(t, known);
    const int before = int(known.size());
    addAccents(w, known);
    return int(known.size()) - before <= kAccentPictures - accents;
}

int Game::drawWord(const SharedState& s, Rng& rng, int tiles, int accents) {
    const int loaded = std::min<int>({s.WordCount, kMaxWords, int(s.Words.size()) - 1});
    auto fit = [&](int k) { return usable(s, k, tiles, accents); };
    int left = 0;
    for (int k = 1; k <= loaded; ++k) left += fit(k) ? 1 : 0;
    if (left == 0) return 0;
    int k = Draw(rng, loaded);
    for (int t = 1; t < kDrawTries && !fit(k); ++t) k = Draw(rng, loaded);
    if (fit(k)) return k;
    for (int step = 1; step <= loaded; ++step) {
        const int j = (k - 1 + step) % loaded + 1;
        if (fit(j)) return j;
    }
    return 0;
}

void Game::drawKey(Rng& rng) {
    // Each plain letter A..Z in turn takes one of the code letters still free, never itself.
    // Only Z can find itself the one letter left: it then swaps with a letter drawn before it.
    key_.assign(26, 0);
    std::string free = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (int i = 0; i < 26; ++i) {
        std::string pick;
        for (char c : free)
            if (c != 'A' + i) pick += c;
        if (pick.empty()) {
            const int j = Draw(rng, 25) - 1;
            key_[i] = key_[j];
            key_[j] = char('A' + i);
            break;
        }
        const char c = pick[Draw(rng, int(pick.size())) - 1];
        key_[i] = c;
        free.erase(free.find(c), 1);
    }
}

int Game::symbolOf(char plain) {
    for (int i = 0; i < int(symbols_.size()); ++i)
        if (symbols_[i].plain == plain) return i;
    Symbol sym;
    sym.plain = plain;
    symbols_.push_back(sym);
    return int(symbols_.size()) - 1;
}

bool Game::start(SharedState& s, Rng& rng) {
    rng.Randomize();
    s.Score = 0;
    words_.clear();
    taken_.clear();
    tiles_.clear();
    symbols_.clear();
    key_.clear();
    phase_ = Phase::Ready;
    selected_ = movedFrom_ = -1;
    points_ = 0;
    level_ = std::clamp(s.Difficulty, kMinLevel, kMaxLevel);
    // The words first, then the key, then the accented letters' pictures.
    int tiles = 0;
    std::string accents;
    while (int(words_.size()) < kWordsInCode) {
        const int k = drawWord(s, rng, tiles, int(accents.size()));
        if (k == 0) break;
        taken_.push_back(k);
        words_.push_back(Trim(s.Words[k]));
        tiles += Len(words_.back());
        addAccents(words_.back(), accents);
    }
    if (words_.empty()) return false;
    // The first word's meaning is the clue.
    s.TheWord = s.Words[taken_[0]];
    s.TheMeaning = taken_[0] < int(s.Meanings.size()) ? s.Meanings[taken_[0]] : std::string();
    for (int w = 0; w < int(words_.size()); ++w)
        for (char c : words_[w]) tiles_.push_back({c, IsLetter(c) ? symbolOf(fold(c)) : -1, w});
    drawKey(rng);
    std::vector<int> pictures;
    for (int p = 0; p < kAccentPictures; ++p) pictures.push_back(p);
    for (Symbol& sym : symbols_) {
        if (sym.plain >= 'A' && sym.plain <= 'Z') {
            sym.code = key_[sym.plain - 'A'];
        } else {
            const int j = Draw(rng, int(pictures.size())) - 1;
            sym.picture = pictures[j];
            pictures.erase(pictures.begin() + j);
        }
    }
    secondsLeft_ = secondsFor(level_);
    step(1);
    return true;
}

void Game::begin() {
    if (phase_ == Phase::Ready && !symbols_.empty()) phase_ = Phase::Playing;
}

bool Game::tick() {
    if (phase_ != Phase::Playing) return false;
    if (--secondsLeft_ > 0) return false;
    secondsLeft_ = 0;
    phase_ = Phase::Lost;
    return true;
}

bool Game::select(int tile) {
    if (phase_ == Phase::Won || phase_ == Phase::Lost) return false;
    if (tile < 0 || tile >= int(tiles_.size()) || tiles_[tile].symbol < 0) return false;
    selected_ = tile;
    return true;
}

bool Game::step(int by) {
    const int n = int(tiles_.size());
    if (n == 0 || by == 0) return false;
    int i = selected_ < 0 ? (by > 0 ? -1 : 0) : selected_;
    for (int k = 0; k < n; ++k) {
        i = ((i + (by > 0 ? 1 : -1)) % n + n) % n;
        if (tiles_[i].symbol >= 0) return select(i);
    }
    return false;
}

bool Game::stepLine(int by, const Layout& layout) {
    if (selected_ < 0 || by == 0 || layout.places.size() != tiles_.size()) return false;
    const Place from = layout.places[selected_];
    for (int line = from.line + by; line >= 0 && line < layout.lines; line += by) {
        int best = -1;
        for (int i = 0; i < int(tiles_.size()); ++i) {
            if (layout.places[i].line != line || tiles_[i].symbol < 0) continue;
            if (best < 0 || std::abs(layout.places[i].column - from.column) <
                                std::abs(layout.places[best].column - from.column))
                best = i;
        }
        if (best >= 0) return select(best);
    }
    return false;
}

int Game::selectedSymbol() const {
    return selected_ < 0 ? -1 : tiles_[selected_].symbol;
}

int Game::holder(char letter) const {
    const char l = fold(letter);
    for (int i = 0; i < int(symbols_.size()); ++i)
        if (symbols_[i].guess == l) return i;
    return -1;
}

int Game::letters() const {
    return int(std::count_if(tiles_.begin(), tiles_.end(),
                             [](const Tile& t) { return t.symbol >= 0; }));
}

void Game::placed() {
    if (std::all_of(symbols_.begin(), symbols_.end(), [](const Symbol& s) { return s.right(); })) {
        phase_ = Phase::Won;
        points_ = pointsFor(secondsLeft_, level_, letters());
    }
}

void Game::advance() {
    // On to the next tile whose symbol has no letter yet.
    const int n = int(tiles_.size());
    for (int k = 1; k <= n; ++k) {
        const int i = (selected_ + k) % n;
        if (tiles_[i].symbol >= 0 && symbols_[tiles_[i].symbol].guess == 0) {
            selected_ = i;
            return;
        }
    }
}

Typed Game::type(char letter) {
    movedFrom_ = -1;
    if (phase_ != Phase::Playing || selected_ < 0 || !IsLetter(letter)) return Typed::Ignored;
    const char l = fold(letter);
    Symbol& sym = symbols_[tiles_[selected_].symbol];
    if (sym.hinted) return Typed::Locked;
    if (sym.guess == l) return Typed::Same;
    const int h = holder(l);
    if (h >= 0 && symbols_[h].hinted) return Typed::Taken;
    // One letter stands for one symbol: given here, it leaves the symbol that had it.
    if (h >= 0) symbols_[h].guess = 0;
    movedFrom_ = h;
    sym.guess = l;
    placed();
    if (phase_ == Phase::Won) return Typed::Won;
    if (std::all_of(symbols_.begin(), symbols_.end(), [](const Symbol& s) { return s.guess; }))
        return Typed::Filled;
    advance();
    return h >= 0 ? Typed::Moved : Typed::Placed;
}

bool Game::clear() {
    if (phase_ != Phase::Playing || selected_ < 0) return false;
    Symbol& sym = symbols_[tiles_[selected_].symbol];
    if (sym.hinted || sym.guess == 0) return false;
    sym.guess = 0;
    return true;
}

bool Game::canHint() const {
    return phase_ == Phase::Playing && secondsLeft_ > kHintCost &&
           std::any_of(symbols_.begin(), symbols_.end(), [](const Symbol& s) { return !s.right(); });
}

int Game::hint(Rng& rng) {
    movedFrom_ = -1;
    if (!canHint()) return -1;
    std::vector<int> open;
    for (int i = 0; i < int(symbols_.size()); ++i)
        if (!symbols_[i].right()) open.push_back(i);
    const int j = open[Draw(rng, int(open.size())) - 1];
    Symbol& sym = symbols_[j];
    const int h = holder(sym.plain);
    if (h >= 0) symbols_[h].guess = 0;
    movedFrom_ = h;
    sym.guess = sym.plain;
    sym.hinted = true;
    secondsLeft_ -= kHintCost;
    placed();
    return j;
}

}  // namespace wm::code_breaker
