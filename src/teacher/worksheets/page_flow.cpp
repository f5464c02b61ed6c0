#include "teacher/worksheets/page_flow.h"

#include <algorithm>
#include <cmath>

namespace wm::sheets {

Item shape(Item::Type type, double x, double y, double w, double h) {
    Item it;
    it.type = type;
    it.x = x, it.y = y, it.w = w, it.h = h;
    return it;
}

double lineHeight(const Font& f) {
    return std::ceil(f.size * 1.3);
}

Flow::Flow(const SheetContent& c, const Options& o, const Measure& m)
    : m(m), c_(c), size_(pageSize(o.paper)) {
    left = kSide;
    width = size_.width - 2 * kSide;
    bottom_ = size_.height - kBottom;
}

void Flow::section(bool key, const std::string& directions) {
    pages_.push_back({{}, key});
    key_ = key;
    add(shape(Item::Ornament, left, kTop, 44, 44));
    Font title = fitted(c_.title, kTitle, width - 56, 14);
    text(left + 56, kTop + 2, width - 56, fitText(c_.title, title, width - 56), title, kAccent);
    text(left + 56, kTop + 31, width - 56, kind(), kSubtitle, kSoft);
    line(left, kTop + 54, width, 0, kAccent, 1.2);
    y_ = kTop + 64;
    if (!key) nameLine();
    if (!directions.empty()) {
        for (const std::string& l : wrapText(directions, kDirections, width, m)) {
            text(left, y_, width, l, kDirections, kSoft);
            y_ += lineHeight(kDirections);
        }
    }
    y_ += 10;
    columns(1);
}

void Flow::continued(const std::string& right) {
    pages_.push_back({{}, key_});
    text(left, kTop, width * 0.6, fitText(c_.title, {10, true}, width * 0.6), {10, true}, kSoft);
    text(left, kTop, width, right.empty() ? kind() : right, {10}, kSoft, Align::Right);
    line(left, kTop + 17, width, 0, kFaint, 0.8);
    y_ = colTop_ = kTop + 28;
    col_ = 0;
}

double Flow::take(double h, double keep) {
    if (y_ + h + keep > bottom_ && y_ > colTop_ + 0.5) {
        if (col_ + 1 < cols_) {
            ++col_;
            y_ = colTop_;
        } else {
            continued();
        }
    }
    const double top = y_;
    y_ += h;
    return top;
}

Font Flow::fitted(const std::string& s, Font f, double w, double smallest) const {
    while (f.size > smallest && m(s, f) > w) f.size -= 1;
    return f;
}

std::string Flow::fitText(const std::string& s, const Font& f, double w) const {
    if (m(s, f) <= w) return s;
    std::string cut = s;
    while (!cut.empty() && m(cut + "...", f) > w) cut.pop_back();
    return cut + "...";
}

std::vector<std::string> Flow::wrap(const std::string& s, const Font& f, double w) const {
    std::vector<std::string> lines = wrapText(s, f, w, m);
    if (lines.size() > kMaxClueLines) {
        lines.resize(kMaxClueLines);
        lines.back() = fitText(lines.back() + " ...", f, w);
    }
    return lines;
}

std::vector<Page> Flow::finish() {
    const int n = static_cast<int>(pages_.size());
    for (int i = 0; i < n; ++i) {
        Item t{Item::Text,
               left,
               size_.height - kBottom + 16,
               width,
               lineHeight(kFooter),
               "Page " + std::to_string(i + 1) + " of " + std::to_string(n),
               kFooter,
               Align::Centre,
               kSoft};
        pages_[i].items.push_back(t);
    }
    return std::move(pages_);
}

void Flow::nameLine() {
    const std::string blank = "______";
    const double nameW = m("Name: ", kNameLine), dateW = m("Date: ", kNameLine);
    const double blankW = std::max(1.0, m(blank, kNameLine));
    const double dateX = left + width * 0.66;
    text(left, y_, nameW, "Name: ", kNameLine);
    Item a{Item::Text, left + nameW, y_, dateX - 18 - left - nameW, lineHeight(kNameLine),
           blank,      kNameLine};
    a.stretch = a.w / blankW;
    add(a);
    text(dateX, y_, dateW, "Date: ", kNameLine);
    Item b = a;
    b.x = dateX + dateW;
    b.w = left + width - b.x;
    b.stretch = b.w / blankW;
    add(b);
    y_ += 30;
}

PageSize pageSize(Paper paper) {
    return paper == Paper::Letter ? PageSize{612, 792} : PageSize{595.276, 841.89};
}

double roughWidth(const std::string& text, const Font& font) {
    return static_cast<double>(text.size()) * font.size * (font.bold ? 0.62 : 0.56);
}

std::vector<std::string> wrapText(const std::string& text, const Font& font, double width,
                                  const Measure& measure) {
    std::vector<std::string> lines;
    std::string line;
    auto push = [&](std::string word) {
        const std::string joined = line.empty() ? word : line + " " + word;
        if (measure(joined, font) <= width) {
            line = joined;
            return;
        }
        if (!line.empty()) lines.push_back(line);
        // A word wider than the line is cut between letters.
        while (word.size() > 1 && measure(word, font) > width) {
            std::size_t k = 1;
            while (k < word.size() && measure(word.substr(0, k + 1), font) <= width) ++k;
            lines.push_back(word.substr(0, k));
            word.erase(0, k);
        }
        line = word;
    };
    std::string word;
    for (char ch : text) {
        if (ch == ' ') {
            if (!word.empty()) push(word);
            word.clear();
        } else {
            word += ch;
        }
    }
    if (!word.empty()) push(word);
    if (!line.empty() || lines.empty()) lines.push_back(line);
    return lines;
}

}  // namespace wm::sheets
