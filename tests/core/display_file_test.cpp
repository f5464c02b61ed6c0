#include <gtest/gtest.h>

#include "core/display_file.h"
#include "core/language_codes.h"
#include "core/strings.h"
#include "temp_folder.h"

using namespace wm;
using wm::test::TempFolder;

TEST(DisplayFile, HiddenGamesRoundTripAndBadFilesReadAsLargeIcons) {
    TempFolder dir;
    DisplaySettings s = DisplaySettings::MediumIcons();
    s.hidden = {"Quiz", "Bomb Squad 2"};
    WriteDisplaySettings(dir.file("wmgdisplay.dat"), s);
    EXPECT_EQ(dir.read("wmgdisplay.dat"),
              "*****\r\n0.75\r\n5\r\n3\r\n1.01\r\n1.01\r\n*****\r\nQuiz\r\nBomb Squad 2\r\n");
    auto back = ReadDisplaySettings(dir.file("wmgdisplay.dat"));
    EXPECT_EQ(std::tuple(back.scale, back.hidden, back.isHidden("Quiz"), back.isHidden("quiz")),
              std::tuple(0.75, s.hidden, true, false));
    // Missing or malformed, the file reads as Large Icons.
    EXPECT_EQ(ReadDisplaySettings(dir.file("none.dat")).columns, 4);
    dir.writeLines("bad.dat", {"*****", "zero", "-3", "0", "x", "y", "*****", "Froggy"});
    auto bad = ReadDisplaySettings(dir.file("bad.dat"));
    EXPECT_EQ(std::tuple(bad.columns, bad.scale, bad.hidden),
              std::tuple(4, 1.0, std::vector<std::string>{"Froggy"}));
    dir.write("garbage.dat", std::string("\x01\xff\x00\x7f", 4));
    EXPECT_EQ(ReadDisplaySettings(dir.file("garbage.dat")).rows, 3);
}

// Scale and spacing are kept only inside their bounds; one number out keeps the whole preset.
TEST(DisplayFile, ScaleAndSpacingBounds) {
    // Scale, horizontal and vertical spacing, and whether they are taken.
    const std::tuple<std::string, std::string, std::string, bool> cases[] = {
        {"4", "4", "4", true},         {"0.06", "1", "1", true},      {"4.01", "1.1", "1.1", false},
        {"0.05", "1.1", "1.1", false}, {"0.5", "0.99", "1.1", false}, {"0.5", "1.1", "4.01", false},
        {"0.5", "4.01", "1.1", false}, {"0.5", "1.1", "0.99", false}};
    TempFolder dir;
    for (const auto& [scale, h, v, taken] : cases) {
        dir.writeLines("d.dat", {"*****", scale, "6", "5", h, v, "*****"});
        const DisplaySettings s = ReadDisplaySettings(dir.file("d.dat"));
        EXPECT_EQ(std::tuple(s.columns, s.hspace), std::tuple(taken ? 6 : 4, taken ? Val(h) : 1.01))
            << scale << " " << h << " " << v;
    }
}

TEST(LanguageCodes, ThreeLinesALanguageAndAnUnfinishedOneDropped) {
    TempFolder dir;
    dir.writeLines("flcodelist.dat", {"S", "Spanish one", "Spanish two", "F", "French one",
                                      "French two", "G", "German one"});
    auto codes = ReadLanguageCodes(dir.file("flcodelist.dat"));
    ASSERT_EQ(codes.size(), 2u);
    EXPECT_EQ(std::tuple(codes[1].code, codes[1].first, codes[1].second),
              std::tuple("F", "French one", "French two"));
    EXPECT_EQ(std::tuple(FindLanguage(codes, "S"), FindLanguage(codes, "G")),
              std::tuple(&codes[0], nullptr));
    EXPECT_TRUE(ReadLanguageCodes(dir.file("none.dat")).empty());
    // At most a hundred languages are read.
    std::vector<std::string> many;
    for (int i = 0; i < 101; ++i) many.insert(many.end(), {"L" + std::to_string(i), "one", "two"});
    dir.writeLines("flcodelist.dat", many);
    codes = ReadLanguageCodes(dir.file("flcodelist.dat"));
    ASSERT_EQ(codes.size(), 100u);
    EXPECT_EQ(codes.back().code, "L99");
}
