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

const Lines kTwoLists = Lines({"Animals", "cat", "a pet that purrs", "dog", "a pet that barks",
                               "<New List>", "[S]Colours", "red", "rojo", "green", "verde"});

}  // namespace

TEST_F(ListFileTest, NamesExistenceAndRecordsLoaded) {
    dir.writeLines("thelists.dat", kTwoLists);
    EXPECT_EQ(ListNames(path), (Lines{"Animals", "[S]Colours"}));
    EXPECT_EQ(std::tuple(NameExists(path, "  ANIMALS "), NameExists(path, "colours"),
                         NameExists(path, "cat")),
              std::tuple(true, true, false));
    // "[S]a" is a plain name of four characters after a separator...
    dir.writeLines("thelists.dat", {"X", "w", "d", "<New List>", "[S]a", "w", "d", "<New List>",
                                    "[S]ab", "w", "d"});
    // "[S]ab" has five characters: the language mark comes off.
    EXPECT_EQ(std::tuple(NameExists(path, "[S]a"), NameExists(path, "a"), NameExists(path, "ab")),
              std::tuple(true, false, true));
    // ...but the first line is stripped without the length test.
    dir.writeLines("thelists.dat", {"[S]a", "w", "d"});
    EXPECT_TRUE(NameExists(path, "a"));
    dir.writeLines("thelists.dat", {});
    EXPECT_FALSE(NameExists(path, ""));  // an empty file holds no name, not even a blank one
    EXPECT_EQ(std::tuple(PlainName("[S]a"), PlainName("[S]ab")), std::tuple("[S]a", "ab"));
    // A record loads up to the separator, or the end.
    dir.writeLines("thelists.dat", kTwoLists);
    load("Animals");
    EXPECT_EQ(std::tuple(state.WordCount, state.Words[2], state.Meanings[1], state.WordsOnly),
              std::tuple(2, "dog", "a pet that purrs", kFalse));
    dir.writeLines("thelists.dat", {"  Animals  ", "cat", "a pet"});  // spaces round the name
    load("Animals");
    EXPECT_EQ(state.WordCount, 1);
    // The last record, without a separator, loads all its pairs.
    dir.writeLines("thelists.dat", kTwoLists);
    load("Colours", {{"S", "Colours"}}, {[](const std::string&) { return std::string("E"); }, {}});
    // Played from the English side: the meanings are the Spanish ones.
    EXPECT_EQ(std::tuple(state.WordCount, state.Words[1], state.ListLanguage, state.WordsLanguage,
                         state.MeaningsLanguage),
              std::tuple(2, "red", "E", "", "S"));
    // A plain list after it is English on both sides, though ListLanguage stays as it was.
    load("Animals", {{"S", "Colours"}});
    EXPECT_EQ(std::tuple(state.ListLanguage, state.WordsLanguage + state.MeaningsLanguage),
              std::tuple("E", ""));
}

TEST_F(ListFileTest, ForeignSwapsWordsOnlyAndTheScan) {
    dir.writeLines("thelists.dat", kTwoLists);
    std::string askedFor;
    load("Colours", {{"S", "Colours"}},
         {[&](const std::string& code) {
              askedFor = code;
              return code;
          },
          {}});
    EXPECT_EQ(std::tuple(askedFor, state.Words[1], state.Meanings[2], state.WordsLanguage,
                         state.MeaningsLanguage),
              std::tuple("S", "rojo", "green", "S", ""));
    dir.writeLines("thelists.dat", {"Spelling", "necessary", "-----", "rhythm", "-----"});
    load("Spelling");
    EXPECT_EQ(std::tuple(state.WordsOnly, state.WordCount), std::tuple(kTrue, 2));
    // A blank pair is overwritten by the next.
    dir.writeLines("thelists.dat",
                   {"L", "a", "alpha", "b", "  ", "c", "gamma", "<New List>", "M", "x", "y"});
    load("L");
    EXPECT_EQ(std::tuple(state.WordCount, state.Words[2], state.Meanings[2]),
              std::tuple(2, "c", "gamma"));
    // A word equal to a later list's name, earlier in the file, makes that list load from
    // the wrong place. Kept on purpose.
    dir.writeLines("thelists.dat", {"First", "Planets", "a word that is also a name", "sun",
                                    "a star", "<New List>", "Planets", "mars", "red planet"});
    load("Planets");
    // The pairs are read one line out of step, until a separator lands on a definition.
    EXPECT_EQ(std::tuple(state.Words[1], state.Meanings[1], state.Meanings[2], state.WordCount),
              std::tuple("a word that is also a name", "sun", "<New List>", 2));
}

TEST_F(ListFileTest, OverTheLimitAndOddFilesAreSafe) {
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
    EXPECT_EQ(std::tuple(state.WordCount, state.Words[1000]), std::tuple(1001, "w1000"));
    // Entry 1001 is there to read, and empty.
    ASSERT_GE(state.Words.size(), 1002u);
    EXPECT_EQ(state.Words[1001], "");
    // The file, the list loaded and its count. The separator straight after a blank pair, or
    // straight after the name at the end of the file, would count one pair too few: the count
    // stops at zero.
    const std::tuple<std::string, const char*, int> cases[] = {
        {"L\r\na\r\nalpha\r\nb\r\n", "L", 1},
        {"L\r\na\r\nalpha\r\nb\r\n", "Nowhere", 0},
        {"L\r\n<New List>\r\n\r\nM\r\nm\r\nmm\r\n", "L", 0},
        {std::string("L\r\n<New List>", 14), "L", 0},
        {"", "L", 0}};
    for (const auto& [bytes, name, count] : cases) {
        dir.write("thelists.dat", bytes);
        load(name);
        EXPECT_EQ(state.WordCount, count) << bytes << name;
    }
    EXPECT_TRUE(ListNames(path).empty());
}

TEST(ListFileEdits, DeletingTakesASeparatorAndCleanHeadHeals) {
    Lines lines = kTwoLists;
    ASSERT_TRUE(DeleteListLines(lines, "Animals"));
    EXPECT_EQ(lines, (Lines{"<New List>", "[S]Colours", "red", "rojo", "green", "verde"}));
    // The editors' save heals it.
    CleanHead(lines, true);
    EXPECT_EQ(lines.front(), "[S]Colours");
    lines = kTwoLists;
    ASSERT_TRUE(DeleteListLines(lines, "Colours"));
    EXPECT_EQ(lines, (Lines{"Animals", "cat", "a pet that purrs", "dog", "a pet that barks"}));
    lines = {"Animals", "cat", "a pet"};
    ASSERT_TRUE(DeleteListLines(lines, "Animals"));
    EXPECT_TRUE(lines == Lines{"No Lists"} && IsEmptyStore(lines));
    Lines none = kTwoLists;
    EXPECT_FALSE(DeleteListLines(none, "Missing"));
    RemoveRecordAt(none, none.size());  // a place past the last line removes nothing
    EXPECT_EQ(none, kTwoLists);
    // CleanHead drops blanks, separators and "No Lists".
    lines = {"", "<New List>", "", "No Lists", "", "<New List>", "A"};
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
