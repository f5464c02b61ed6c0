#include <gtest/gtest.h>

#include "core/display_file.h"
#include "core/language_codes.h"
#include "core/strings.h"
#include "temp_folder.h"

using namespace wm;
using wm::test::TempFolder;

TEST(DisplayFile, HiddenGamesRoundTripByExactName) {
    TempFolder dir;
    DisplaySettings s = DisplaySettings::MediumIcons();
    s.hidden = {"Quiz", "Bomb Squad 2"};
    WriteDisplaySettings(dir.file("wmgdisplay.dat"), s);
    EXPECT_EQ(dir.read("wmgdisplay.dat"),
              "*****\r\n0.75\r\n5\r\n3\r\n1.01\r\n1.01\r\n*****\r\nQuiz\r\nBomb Squad 2\r\n");
    auto back = ReadDisplaySettings(dir.file("wmgdisplay.dat"));
    EXPECT_EQ(back.scale, 0.75);
    EXPECT_EQ(back.hidden, s.hidden);
    EXPECT_TRUE(back.isHidden("Quiz"));
    EXPECT_FALSE(back.isHidden("quiz"));
}

TEST(DisplayFile, MissingOrMalformedReadsAsLargeIcons) {
    TempFolder dir;
    auto missing = ReadDisplaySettings(dir.file("none.dat"));
    EXPECT_EQ(missing.columns, 4);
    dir.writeLines("bad.dat", {"*****", "zero", "-3", "0", "x", "y", "*****", "Froggy"});
    auto bad = ReadDisplaySettings(dir.file("bad.dat"));
    EXPECT_EQ(bad.columns, 4);
    EXPECT_EQ(bad.scale, 1.0);
    EXPECT_EQ(bad.hidden, std::vector<std::string>{"Froggy"});
    dir.write("garbage.dat", std::string("\x01\xff\x00\x7f", 4));
    EXPECT_EQ(ReadDisplaySettings(dir.file("garbage.dat")).rows, 3);
}

// Scale and spacing are kept only inside their bounds; one number out keeps the whole preset.
TEST(DisplayFile, ScaleAndSpacingBounds) {
    struct Case {
        const char *scale, *h, *v;
        bool taken;
    };
    const Case cases[] = {{"4", "4", "4", true},      {"0.06", "1", "1", true},
                          {"4.01", "1.1", "1.1", false}, {"0.05", "1.1", "1.1", false},
                          {"0.5", "0.99", "1.1", false}, {"0.5", "1.1", "4.01", false},
                          {"0.5", "4.01", "1.1", false}, {"0.5", "1.1", "0.99", false}};
    TempFolder dir;
    for (const Case& c : cases) {
        dir.writeLines("d.dat", {"*****", c.scale, "6", "5", c.h, c.v, "*****"});
        const DisplaySettings s = ReadDisplaySettings(dir.file("d.dat"));
        EXPECT_EQ(s.columns, c.taken ? 6 : 4) << c.scale << " " << c.h << " " << c.v;
        EXPECT_EQ(s.hspace, c.taken ? Val(c.h) : 1.01) << c.scale << " " << c.h << " " << c.v;
    }
}

TEST(LanguageCodes, ThreeLinesALanguageAndAnUnfinishedOneDropped) {
    TempFolder dir;
    dir.writeLines("flcodelist.dat", {"S", "Spanish one", "Spanish two", "F", "French one",
                                      "French two", "G", "German one"});
    auto codes = ReadLanguageCodes(dir.file("flcodelist.dat"));
    ASSERT_EQ(codes.size(), 2u);
    EXPECT_EQ(codes[1].code, "F");
    EXPECT_EQ(codes[1].first, "French one");
    EXPECT_EQ(codes[1].second, "French two");
    ASSERT_NE(FindLanguage(codes, "S"), nullptr);
    EXPECT_EQ(FindLanguage(codes, "G"), nullptr);
    EXPECT_TRUE(ReadLanguageCodes(dir.file("none.dat")).empty());
    // At most a hundred languages are read.
    std::vector<std::string> many;
    for (int i = 0; i < 101; ++i) many.insert(many.end(), {"L" + std::to_string(i), "one", "two"});
    dir.writeLines("flcodelist.dat", many);
    codes = ReadLanguageCodes(dir.file("flcodelist.dat"));
    ASSERT_EQ(codes.size(), 100u);
    EXPECT_EQ(codes.back().code, "L99");
}
