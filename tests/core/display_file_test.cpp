#include <gtest/gtest.h>

#include "core/display_file.h"
#include "core/language_codes.h"
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

TEST(LanguageCodes, ThreeLinesALanguageAndAnUnfinishedOneDropped) {
    TempFolder dir;
    dir.writeLines("flcodelist.dat", {"S", "Spanish one", "Spanish two", "F", "French one",
                                      "French two", "G", "German one"});
    auto codes = ReadLanguageCodes(dir.file("flcodelist.dat"));
    ASSERT_EQ(codes.size(), 2u);
    EXPECT_EQ(codes[1].code, "F");
    EXPECT_EQ(codes[1].second, "French two");
    ASSERT_NE(FindLanguage(codes, "S"), nullptr);
    EXPECT_EQ(FindLanguage(codes, "G"), nullptr);
    EXPECT_TRUE(ReadLanguageCodes(dir.file("none.dat")).empty());
}
