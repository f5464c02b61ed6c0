// The game display file wmgdisplay.dat: icon scale, grid and hidden games of the title.
#pragma once

#include <string>
#include <vector>

namespace wm {

inline constexpr const char* kDisplayFileName = "wmgdisplay.dat";

struct DisplaySettings {
    double scale = 1.0;
    int columns = 4;
    int rows = 3;
    double hspace = 1.01;
    double vspace = 1.01;
    std::vector<std::string> hidden;

    static DisplaySettings LargeIcons();
    static DisplaySettings MediumIcons();
    static DisplaySettings SmallIcons();
    bool isHidden(const std::string& game) const;
};

// A missing or malformed file reads as Large Icons with nothing hidden.
DisplaySettings ReadDisplaySettings(const std::string& path);
void WriteDisplaySettings(const std::string& path, const DisplaySettings& settings);

}  // namespace wm
