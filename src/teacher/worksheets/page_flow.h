// The page flow of a worksheet: the house's margins, colours and faces, the header with the
// ornament, the title and the pupil's name line, blocks taken down the page (in columns where
// they are short) and onto more pages, and the page numbers.
#pragma once

#include <string>
#include <vector>

#include "teacher/worksheets/worksheet.h"

namespace wm::sheets {

inline constexpr double kSide =
    42;  // left and right margins: 15 mm, inside any school printer's reach
inline constexpr double kTop = 40;
inline constexpr double kBottom = 48;  // room for the page number
inline constexpr unsigned kInk = 0x1a1a1a;
inline constexpr unsigned kAccent = 0x1d4f91;
inline constexpr unsigned kSoft = 0x56657a;
inline constexpr unsigned kFaint = 0xb8c4d6;
inline constexpr unsigned kRing = 0xd0443e;
inline constexpr unsigned kDim = 0x9aa5b1;

inline constexpr Font kTitle{22, true};
inline constexpr Font kSubtitle{12, true};
inline constexpr Font kNameLine{12};
inline constexpr Font kDirections{11, false, true};
inline constexpr Font kHeading{13, true};
inline constexpr Font kWord{12, true};
inline constexpr Font kClue{11};
inline constexpr Font kNumber{6.5};
inline constexpr Font kFooter{9};
inline constexpr Font kScrambled{16, true};
inline constexpr double kGridLetter = 14;  // grid letters never print smaller than this
inline constexpr int kMaxClueLines =
    12;  // a runaway definition is cut rather than run off the page

Item shape(Item::Type type, double x, double y, double w, double h);
double lineHeight(const Font& f);

class Flow {
public:
    Flow(const SheetContent& c, const Options& o, const Measure& m);

    const Measure& m;
    double left, width;

    Page& page() { return pages_.back(); }
    double pageHeight() const { return size_.height; }
    double bottom() const { return bottom_; }
    double y() const { return y_; }

    // A new page with the full header: the pupil's pages have the name line and directions.
    void section(bool key, const std::string& directions);

    // A page with a slim header, for the pages a section runs on to.
    void continued(const std::string& right = {});

    // From here on blocks fill `n` columns, the first down to the foot, then the next.
    void columns(int n) {
        cols_ = n;
        col_ = 0;
        colTop_ = y_;
    }
    double colLeft() const { return left + col_ * (colWidth() + gap()); }
    double colWidth() const { return (width - (cols_ - 1) * gap()) / cols_; }
    static double gap() { return 18; }

    // Room for a block `h` high (and `keep` more that must stand with it); returns its top.
    double take(double h, double keep = 0);
    void skip(double h) { y_ += h; }

    void add(Item item) { page().items.push_back(std::move(item)); }
    void text(double x, double y, double w, const std::string& s, const Font& f,
              unsigned colour = kInk, Align align = Align::Left, double h = 0) {
        Item t{Item::Text, x, y, w, h > 0 ? h : lineHeight(f), s, f, align, colour};
        add(t);
    }
    void line(double x, double y, double w, double h, unsigned colour, double pen,
              bool dashed = false) {
        Item l = shape(Item::Line, x, y, w, h);
        l.colour = colour;
        l.pen = pen;
        l.dashed = dashed;
        add(l);
    }

    // The largest size from `f` down to `smallest` at which the text fits the width.
    Font fitted(const std::string& s, Font f, double w, double smallest) const;
    std::string fitText(const std::string& s, const Font& f, double w) const;
    std::vector<std::string> wrap(const std::string& s, const Font& f, double w) const;

    // Numbers each page "Page n of N".
    std::vector<Page> finish();

private:
    std::string kind() const {
        return std::string(kindName(c_.kind)) + (key_ ? ": Answer Key" : "");
    }

    // "Name: ______  Date: ______", the blanks drawn wide enough to write on.
    void nameLine();

    const SheetContent& c_;
    PageSize size_;
    std::vector<Page> pages_;
    double y_ = 0, bottom_ = 0, colTop_ = 0;
    int cols_ = 1, col_ = 0;
    bool key_ = false;
};

}  // namespace wm::sheets
