// The editors' rules on plain lines: duplicate checks, renames, and the shapes of the saves.
#include <gtest/gtest.h>

#include "teacher/list_rules.h"

using namespace wm;

namespace {
using Lines = std::vector<std::string>;
}

TEST(PairCheck, WordThenDefinitionCaseBlindAndSkippingTheEditedLine) {
    const std::vector<WordPair> pairs = {{"cat", "a pet"}, {"dog", "a loyal pet"}};
    EXPECT_EQ(CheckPair(pairs, "CAT", "new", false).clash, Clash::Word);
    const PairCheck d = CheckPair(pairs, "owl", "A LOYAL PET", false);
    EXPECT_EQ(d.clash, Clash::Definition);
    EXPECT_NE(d.message.find("the definition for \"dog\"."), std::string::npos);
    // Words-only lists share the marker as every definition.
    EXPECT_EQ(CheckPair({{"cat", "-----"}}, "owl", "-----", true).clash, Clash::None);
    // Editing a line is measured against the others only.
    EXPECT_EQ(CheckPair(pairs, "Cat", "a pet", false, 0).clash, Clash::None);
    EXPECT_EQ(CheckPair(pairs, "dog", "a pet", false, 0).clash, Clash::Word);
}

TEST(Rename, RefusalsInOrder) {
    auto taken = [](const std::string& n) { return n == "Animals"; };
    EXPECT_EQ(RenameRefusal("Fruit", "  ", taken), "You did not change the list name.");
    EXPECT_EQ(RenameRefusal("Fruit", " Fruit ", taken), "You did not change the list name.");
    EXPECT_EQ(RenameRefusal("Fruit", "^x", taken),
              "You cannot use this character ^ as the first character in a list name.");
    EXPECT_EQ(RenameRefusal("Fruit", "[x", taken),
              "You cannot use this character [ as the first character in a list name.");
    EXPECT_EQ(RenameRefusal("Fruit", "Animals", taken),
              "The list name you typed already exists. This list was not renamed.");
    EXPECT_EQ(RenameRefusal("Fruit", "a^b", taken), "");
}

TEST(NewListSave, FirstListHasNoSeparatorAndHeadIsCleaned) {
    const std::vector<WordPair> pairs = {{"cat", "a pet"}};
    EXPECT_EQ(SaveNewList({"No Lists"}, NewListRecord("Pets", pairs, true)),
              (Lines{"Pets", "cat", "a pet"}));
    EXPECT_EQ(SaveNewList({""}, NewListRecord("Pets", pairs, true)),
              (Lines{"Pets", "cat", "a pet"}));
    // A file left beginning with a separator by a delete heals here.
    EXPECT_EQ(SaveNewList({"<New List>", "A", "x", "y"}, NewListRecord("Pets", pairs, false)),
              (Lines{"A", "x", "y", "<New List>", "Pets", "cat", "a pet"}));
}

TEST(EditedListSave, MovesToTheEndAndKeepsTheGivenOrder) {
    const Lines data = {"Pets", "dog", "d", "cat", "c", "<New List>", "Birds", "owl", "o"};
    std::vector<WordPair> pairs = {{"dog", "d"}, {"Cat", "c"}, {"ant", "a"}};
    SortLikeListBox(pairs);
    EXPECT_EQ(pairs.front().first, "ant");
    EXPECT_EQ(pairs[1].first, "Cat");
    // Words the same but for capitals keep the order they were added in.
    std::vector<WordPair> twins = {{"cat", "1"}, {"Cat", "2"}, {"CAT", "3"}, {"ant", "a"}};
    SortLikeListBox(twins);
    EXPECT_EQ(twins[1].second + twins[2].second + twins[3].second, "123");
    EXPECT_EQ(
        SaveEditedList(data, "Pets", "Pets", pairs),
        (Lines{"Birds", "owl", "o", "<New List>", "Pets", "ant", "a", "Cat", "c", "dog", "d"}));
    // The last list: its separator goes with it and comes back at the end.
    EXPECT_EQ(SaveEditedList(data, "Birds", "[S]Aves", {}),
              (Lines{"Pets", "dog", "d", "cat", "c", "<New List>", "[S]Aves"}));
}

TEST(ReadRecord, FindsByPlainNameAndDropsACutPair) {
    const Lines data = {"[S]Colours", "red", "rojo",       "<New List>", "Odd", "a",
                        "b",          "c",   "<New List>", "Last",       "x"};
    std::string stored;
    auto colours = ReadRecord(data, "Colours", &stored);
    EXPECT_EQ(stored, "[S]Colours");
    ASSERT_EQ(colours.size(), 1u);
    EXPECT_EQ(ReadRecord(data, "Odd", nullptr).size(), 1u);
    EXPECT_TRUE(ReadRecord(data, "Last", nullptr).empty());
    EXPECT_TRUE(ReadRecord(data, "Nothing", nullptr).empty());
    EXPECT_EQ(RecordLines(data, "Odd"), (Lines{"a", "b", "c"}));
    EXPECT_EQ(RecordLines(data, "Last"), (Lines{"x"}));
    EXPECT_TRUE(RecordLines(data, "Nothing").empty());
}
