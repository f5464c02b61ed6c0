#include <gtest/gtest.h>

#include "core/line_file.h"
#include "core/list_file.h"
#include "core/shared_state.h"
#include "temp_folder.h"

using namespace wm;
using wm::test::TempFolder;

namespace {

using Lines = std::vector<std::string>;

struct ListFileTest : ::testing::Test {
    TempFolder dir;
    std::string path = dir.file("thelists.dat");
    SharedState state;

    void load(const std::string& name, const std::vector<ForeignList>& foreign = {},
              LoadHooks hooks = {}) {
        state.CurrentListName = name;
        LoadList(path, state, foreign, hooks);
    }
};

const Lines kTwoLists = {"Animals",
                         "cat",
                         "a pet that purrs",
                         "dog",
                         "a pet that barks",
                         "<New List>",
                         "[S]Colours",
                         "red",
                         "rojo",
                         "green",
                         "verde"};

}  // namespace

TEST_F(ListFileTest, NamesAndExistence) {
    dir.writeLines("thelists.dat", kTwoLists);
    EXPECT_EQ(ListNames(path), (Lines{"Animals", "[S]Colours"}));
    EXPECT_TRUE(NameExists(path, "  ANIMALS "));
    EXPECT_TRUE(NameExists(path, "colours"));
    EXPECT_FALSE(NameExists(path, "cat"));
    // "[S]a" is a plain name of four characters after a separator...
    dir.writeLines("thelists.dat", {"X", "w", "d", "<New List>", "[S]a", "w", "d", "<New List>",
                                    "[S]ab", "w", "d"});
    EXPECT_TRUE(NameExists(path, "[S]a"));
    EXPECT_FALSE(NameExists(path, "a"));
    EXPECT_TRUE(NameExists(path, "ab"));  // five characters: the language mark comes off
    // ...but the first line is stripped without the length test.
    dir.writeLines("thelists.dat", {"[S]a", "w", "d"});
    EXPECT_TRUE(NameExists(path, "a"));
    dir.writeLines("thelists.dat", {});
    EXPECT_FALSE(NameExists(path, ""));  // an empty file holds no name, not even a blank one
    EXPECT_EQ(PlainName("[S]a"), "[S]a");
    EXPECT_EQ(PlainName("[S]ab"), "ab");
}

TEST_F(ListFileTest, LoadsARecordUpToTheSeparator) {
    dir.writeLines("thelists.dat", kTwoLists);
    load("Animals");
    EXPECT_EQ(state.WordCount, 2);
    EXPECT_EQ(state.Words[2], "dog");
    EXPECT_EQ(state.Meanings[1], "a pet that purrs");
    EXPECT_EQ(state.WordsOnly, kFalse);
    dir.writeLines("thelists.dat", {"  Animals  ", "cat", "a pet"});  // spaces round the name
    load("Animals");
    EXPECT_EQ(state.WordCount, 1);
}

TEST_F(ListFileTest, LastRecordWithoutSeparatorLoadsAllPairs) {
    dir.writeLines("thelists.dat", kTwoLists);
    load("Colours", {{"S", "Colours"}}, {[](const std::string&) { return std::string("E"); }, {}});
    EXPECT_EQ(state.WordCount, 2);
    EXPECT_EQ(state.Words[1], "red");
    EXPECT_EQ(state.ListLanguage, "E");
    // Played from the English side: the meanings are the Spanish ones.
    EXPECT_EQ(state.WordsLanguage, "");
    EXPECT_EQ(state.MeaningsLanguage, "S");
    // A plain list after it is English on both sides, though ListLanguage stays as it was.
    load("Animals", {{"S", "Colours"}});
    EXPECT_EQ(state.ListLanguage, "E");
    EXPECT_EQ(state.WordsLanguage + state.MeaningsLanguage, "");
}

TEST_F(ListFileTest, ForeignListPlayedTheOtherWaySwapsColumns) {
    dir.writeLines("thelists.dat", kTwoLists);
    std::string askedFor;
    load("Colours", {{"S", "Colours"}},
         {[&](const std::string& code) {
              askedFor = code;
              return code;
          },
          {}});
    EXPECT_EQ(askedFor, "S");
    EXPECT_EQ(state.Words[1], "rojo");
    EXPECT_EQ(state.Meanings[2], "green");
    EXPECT_EQ(state.WordsLanguage, "S");
    EXPECT_EQ(state.MeaningsLanguage, "");
}

TEST_F(ListFileTest, WordsOnlyIsDecidedByTheFirstDefinition) {
    dir.writeLines("thelists.dat", {"Spelling", "necessary", "-----", "rhythm", "-----"});
    load("Spelling");
    EXPECT_EQ(state.WordsOnly, kTrue);
    EXPECT_EQ(state.WordCount, 2);
}

TEST_F(ListFileTest, BlankPairsAreOverwrittenByTheNext) {
    dir.writeLines("thelists.dat",
                   {"L", "a", "alpha", "b", "  ", "c", "gamma", "<New List>", "M", "x", "y"});
    load("L");
    EXPECT_EQ(state.WordCount, 2);
    EXPECT_EQ(state.Words[2], "c");
    EXPECT_EQ(state.Meanings[2], "gamma");
}

TEST_F(ListFileTest, ScanDoesNotStepByRecords) {
    // A word equal to a later list's name, earlier in the file, makes that list load from
    // the wrong place. Kept on purpose.
    dir.writeLines("thelists.dat", {"First", "Planets", "a word that is also a name", "sun",
                                    "a star", "<New List>", "Planets", "mars", "red planet"});
    load("Planets");
    // The pairs are read one line out of step, until a separator lands on a definition.
    EXPECT_EQ(state.Words[1], "a word that is also a name");
    EXPECT_EQ(state.Meanings[1], "sun");
    EXPECT_EQ(state.Meanings[2], "<New List>");
    EXPECT_EQ(state.WordCount, 2);
}

TEST_F(ListFileTest, OverTheLimitStopsAt1001AndSaysSo) {
    Lines lines = {"Big"};
    for (int i = 1; i <= 1005; ++i) {
        lines.push_back("w" + std::to_string(i));
        lines.push_back("d" + std::to_string(i));
    }
    dir.writeLines("thelists.dat", lines);
    std::string said;
    load("Big", {}, {{}, [&](const std::string& m) { said = m; }});
    EXPECT_EQ(said,
              "There are over 1000 words on this list. The current size limit per list is 1000. "
              "Only the first 1000 will be used.");
    EXPECT_EQ(state.WordCount, 1001);
    EXPECT_EQ(state.Words[1000], "w1000");
    // Entry 1001 is there to read, and empty.
    ASSERT_GE(state.Words.size(), 1002u);
    ASSERT_GE(state.Meanings.size(), 1002u);
    EXPECT_EQ(state.Words[1001], "");
}

TEST_F(ListFileTest, OddLineCountAndMissingNamesAreSafe) {
    dir.writeLines("thelists.dat", {"L", "a", "alpha", "b"});
    load("L");
    EXPECT_EQ(state.WordCount, 1);
    load("Nowhere");
    EXPECT_EQ(state.WordCount, 0);
    dir.write("thelists.dat", "");
    load("L");
    EXPECT_EQ(state.WordCount, 0);
    EXPECT_TRUE(ListNames(path).empty());
    // The separator straight after a blank pair, or straight after the name at the end of the
    // file, would count one pair too few: the count stops at zero.
    dir.writeLines("thelists.dat", {"L", "<New List>", "", "M", "m", "mm"});
    load("L");
    EXPECT_EQ(state.WordCount, 0);
    dir.write("thelists.dat", std::string("L\r\n<New List>", 14));
    load("L");
    EXPECT_EQ(state.WordCount, 0);
}

TEST(ListFileEdits, DeletingTheFirstListLeavesASeparatorOnTop) {
    Lines lines = kTwoLists;
    ASSERT_TRUE(DeleteListLines(lines, "Animals"));
    EXPECT_EQ(lines, (Lines{"<New List>", "[S]Colours", "red", "rojo", "green", "verde"}));
    // The editors' save heals it.
    CleanHead(lines, true);
    EXPECT_EQ(lines.front(), "[S]Colours");
}

TEST(ListFileEdits, DeletingALaterListTakesItsSeparator) {
    Lines lines = kTwoLists;
    ASSERT_TRUE(DeleteListLines(lines, "Colours"));
    EXPECT_EQ(lines, (Lines{"Animals", "cat", "a pet that purrs", "dog", "a pet that barks"}));
}

TEST(ListFileEdits, DeletingTheOnlyListLeavesNoLists) {
    Lines lines = {"Animals", "cat", "a pet"};
    ASSERT_TRUE(DeleteListLines(lines, "Animals"));
    EXPECT_EQ(lines, (Lines{"No Lists"}));
    EXPECT_TRUE(IsEmptyStore(lines));
    Lines none = kTwoLists;
    EXPECT_FALSE(DeleteListLines(none, "Missing"));
    EXPECT_EQ(none, kTwoLists);
    RemoveRecordAt(none, none.size());  // a place past the last line removes nothing
    EXPECT_EQ(none, kTwoLists);
}

TEST(ListFileEdits, CleanHeadDropsBlanksSeparatorsAndNoLists) {
    Lines lines = {"", "<New List>", "", "No Lists", "", "<New List>", "A"};
    CleanHead(lines, false);
    EXPECT_EQ(lines.front(), "No Lists");
    CleanHead(lines, true);
    EXPECT_EQ(lines, (Lines{"A"}));
}

TEST_F(ListFileTest, AppendRecordWritesSeparatorNameAndLines) {
    dir.writeLines("thelists.dat", {"A", "w", "d"});
    AppendRecord(path, "B", {"x", "y"});
    EXPECT_EQ(dir.read("thelists.dat"), "A\r\nw\r\nd\r\n<New List>\r\nB\r\nx\r\ny\r\n");
    // On an empty store, "No Lists" becomes the first list's name: kept as designed.
    dir.writeLines("thelists.dat", {"No Lists"});
    AppendRecord(path, "B", {"x", "y"});
    EXPECT_EQ(ListNames(path), (Lines{"No Lists", "B"}));
}
