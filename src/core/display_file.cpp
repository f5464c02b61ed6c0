#include "core/display_file.h"

#include <algorithm>
#include <cmath>

#include "core/line_file.h"
#include "core/strings.h"

namespace wm {

DisplaySettings DisplaySettings::LargeIcons() {
    return {1.0, 4, 3, 1.01, 1.01, {}};
}
DisplaySettings DisplaySettings::MediumIcons() {
    return {0.75, 5, 3, 1.01, 1.01, {}};
}
DisplaySettings DisplaySettings::SmallIcons() {
    return {0.5, 6, 5, 1.1, 1.2, {}};
}

bool DisplaySettings::isHidden(const std::string& game) const {
    return std::find(hidden.begin(), hidden.end(), game) != hidden.end();
}

DisplaySettings ReadDisplaySettings(const std::string& path) {
    DisplaySettings s = DisplaySettings::LargeIcons();
    std::vector<std::string> lines;
    try {
        lines = ReadLines(path);
    } catch (const FileError&) {
        return s;  // missing or unreadable: the large icons
    }
    if (lines.size() >= 6) {
        double scale = Val(lines[1]);
        double columns = Val(lines[2]);
        double rows = Val(lines[3]);
        double h = Val(lines[4]);
        double v = Val(lines[5]);
        // Nonsense numbers would lay out an unusable grid: keep the preset then. The counts are
        // checked as read, before they become whole numbers, so a huge one cannot overflow.
        if (scale > 0.05 && scale <= 4 && columns >= 1 && columns < 21 && rows >= 1 && rows < 21 &&
            h >= 1 && h <= 4 && v >= 1 && v <= 4) {
            s.scale = scale;
            s.columns = static_cast<int>(columns);
            s.rows = static_cast<int>(rows);
            s.hspace = h;
            s.vspace = v;
        }
    }
    // Hidden names stand behind the second "*****" line.
    int stars = 0;
    for (const auto& l : lines) {
        if (stars >= 2) {
            if (!Trim(l).empty()) s.hidden.push_back(l);
        } else if (l == "*****") {
            ++stars;
        }
    }
    return s;
}

void WriteDisplaySettings(const std::string& path, const DisplaySettings& s) {
    std::vector<std::string> lines = {"*****",         NumText(s.scale),  NumText(s.columns),
                                      NumText(s.rows), NumText(s.hspace), NumText(s.vspace),
                                      "*****"};
    lines.insert(lines.end(), s.hidden.begin(), s.hidden.end());
    WriteLinesAtomic(path, lines);
}

}  // namespace wm
