// The editors' rules on plain lines: duplicate checks, renames, and the shapes of the saves.
#include <gtest/gtest.h>

#include "teacher/list_rules.h"

using namespace wm;

using Lines = std::vector<std::string>;

TEST(PairCheck, WordThenDefinitionCaseBlindAndSkippingTheEditedLine) {
    const std::vector<WordPair> pairs = {{"cat", "a pet"}, {"dog", "a loyal pet"}};
    const PairCheck d = CheckPair(pairs, "owl", "A LOYAL PET", false);
    EXPECT_EQ(std::tuple(CheckPair(pairs, "CAT", "new", false).clash, d.clash),
              std::tuple(Clash::Word, Clash::Definition));
    EXPECT_NE(d.message.find("the definition for \"dog\"."), std::string::npos);
    // Words-only lists share the marker as every definition; editing a line is measured against
    // the others only.
    EXPECT_EQ(std::tuple(CheckPair({{"cat", "-----"}}, "owl", "-----", true).clash,
                         CheckPair(pairs, "Cat", "a pet", false, 0).clash,
                         CheckPair(pairs, "dog", "a pet", false, 0).clash),
              std::tuple(Clash::None, Clash::None, Clash::Word));
}

TEST(Rename, RefusalsInOrder) {
    auto taken = [](const std::string& n) { return n == "Animals"; };
    for (const char* same : {"  ", " Fruit "})
        EXPECT_EQ(RenameRefusal("Fruit", same, taken), "You did not change the list name.");
    for (const std::string first : {"^", "["})
        EXPECT_EQ(
            RenameRefusal("Fruit", first + "x", taken),
            "You cannot use this character " + first + " as the first character in a list name.");
    EXPECT_EQ(RenameRefusal("Fruit", "Animals", taken),
              "The list name you typed already exists. This list was not renamed.");
    EXPECT_EQ(RenameRefusal("Fruit", "a^b", taken), "");
}

TEST(NewListSave, FirstListHasNoSeparatorAndHeadIsCleaned) {
    const std::vector<WordPair> pairs = {{"cat", "a pet"}};
    for (const Lines& empty : {Lines{"No Lists"}, Lines{""}})
        EXPECT_EQ(SaveNewList(empty, NewListRecord("Pets", pairs, true)),
                  (Lines{"Pets", "cat", "a pet"}));
    // A file left beginning with a separator by a delete heals here.
    EXPECT_EQ(SaveNewList({"<New List>", "A", "x", "y"}, NewListRecord("Pets", pairs, false)),
              (Lines{"A", "x", "y", "<New List>", "Pets", "cat", "a pet"}));
}

TEST(EditedListSave, MovesToTheEndAndKeepsTheGivenOrder) {
    const Lines data = {"Pets", "dog", "d", "cat", "c", "<New List>", "Birds", "owl", "o"};
    std::vector<WordPair> pairs = {{"dog", "d"}, {"Cat", "c"}, {"ant", "a"}};
    SortLikeListBox(pairs);
    EXPECT_EQ(std::tuple(pairs[0].first, pairs[1].first), std::tuple("ant", "Cat"));
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
    EXPECT_EQ(std::tuple(stored, colours.size(), ReadRecord(data, "Odd", nullptr).size(),
                         ReadRecord(data, "Last", nullptr).size(),
                         ReadRecord(data, "Nothing", nullptr).size()),
              std::tuple("[S]Colours", 1u, 1u, 0u, 0u));
    std::string untouched = "kept";  // a name not found leaves the stored name alone
    EXPECT_TRUE(ReadRecord(data, "Nothing", &untouched).empty() && untouched == "kept");
    EXPECT_EQ(std::tuple(RecordLines(data, "Odd"), RecordLines(data, "Last"),
                         RecordLines(data, "Nothing")),
              std::tuple(Lines{"a", "b", "c"}, Lines{"x"}, Lines{}));
}
