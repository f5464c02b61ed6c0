// The thirty misspelling rules one by one (words of one, two and many letters), the order in
// which the show tries them, and Spell Crush's own table.
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "core/rng.h"
#include "games/common/misspell.h"

using namespace wm;

namespace {

// "rule word show": the word as the rule leaves it, with the show's table and Spell Crush's alike.
// Kept quirks among them: rule 1 is case-sensitive, so capitals are passed over; "me" is too short
// for rule 6; rule 10 drops a pair at the end altogether; "tion" is too short for rule 24 and
// "ation" long enough for rule 25; there is no rule 31.
const std::vector<const char*> kRules = {
    "1 fifty phifty", "1 Fun Fun",        "2 phone fone",      "3 backpack bakpack",
    "5 kick cick",    "6 cake cak",       "6 me me",           "7 moon muon",
    "8 piece peice",  "9 their thier",    "10 balloon baloon", "10 ball ba",
    "10 abc abc",     "11 rain rian",     "12 giant gaint",    "13 house huose",
    "14 duo dou",     "15 lion loin",     "16 happy happie",   "16 rhythm rhithm",
    "17 bread breed", "18 cause couse",   "19 round raund",    "20 tree trea",
    "21 ant annt",    "22 sun ssun",      "23 lake llake",     "24 nation nashon",
    "24 tion tion",   "25 motion moshen", "25 ation ashen",    "26 boxes boxs",
    "26 es es",       "27 cats cates",    "27 is is",          "28 occur ockur",
    "29 cat kat",     "31 cat cat"};
// Rule 4 is where the tables differ: "rule word show crush".
const std::vector<const char*> kCrushRules = {"4 backpack bacpack backpack",
                                              "4 picnic picnic picnick", "4 c c ck"};

}  // namespace

TEST(MisspellRules, EachRuleChangesTheFirstMatchOnly) {
    for (const auto& table : {kRules, kCrushRules})
        for (const char* row : table) {
            std::istringstream in(row);
            int rule = 0;
            std::string word, show, crush;
            in >> rule >> word >> show >> crush;
            ScriptedRng rng;
            EXPECT_EQ(ApplyMisspellRule(rule, word, MisspellTable::Show, rng), show) << row;
            EXPECT_EQ(ApplyMisspellRule(rule, word, MisspellTable::SpellCrush, rng),
                      crush.empty() ? show : crush)
                << "Spell Crush: " << row;
            EXPECT_EQ(rng.draws, 0) << "only rule 30 draws";
        }
}

TEST(MisspellRules, RuleThirtyDoublesALetterButNeverTheLast) {
    auto rng = ScriptedRng().pick(1, 3).pick(4, 4).then(0.999);
    EXPECT_EQ(ApplyMisspellRule(30, "frog", MisspellTable::Show, rng), "ffrog");
    // p = Int(Rnd * (5 - 1) + 1) reaches 4 at most: the last letter is never doubled.
    EXPECT_EQ(ApplyMisspellRule(30, "frogs", MisspellTable::Show, rng), "froggs");
    EXPECT_EQ(ApplyMisspellRule(30, "frogs", MisspellTable::Show, rng), "froggs");
    ScriptedRng one(0.7);
    EXPECT_EQ(ApplyMisspellRule(30, "a", MisspellTable::Show, one), "aa");
    EXPECT_EQ(ApplyMisspellRule(30, "", MisspellTable::Show, one), "");
}

TEST(MisspellWord, EachCallStartsPastTheLastRuleUsed) {
    // Spell-It fills three wrong labels from one word, each on a later rule.
    ScriptedRng rng(0.0);
    int next = 1;
    EXPECT_EQ(MisspellWord("feather", next, rng), "pheather");
    EXPECT_EQ(next, 2);
    EXPECT_EQ(MisspellWord("feather", next, rng), "feether");  // rule 17, "ea"
    EXPECT_EQ(next, 18);
    EXPECT_EQ(MisspellWord("feather", next, rng), "ffeather");  // nothing else: rule 30
    EXPECT_EQ(next, 1);                                         // back to the first
    EXPECT_EQ(MisspellWord("cake", next, rng), "cace");         // rule 5 comes before rule 6
    EXPECT_EQ(next, 6);
    EXPECT_EQ(MisspellWord("cake", next, rng), "cak");
    EXPECT_EQ(next, 7);
}

TEST(MisspellWord, CapitalsFallThroughToTheDoubledLetter) {
    auto rng = ScriptedRng().pick(2, 4);
    int next = 1;
    EXPECT_EQ(MisspellWord("HOUSE", next, rng), "HOOUSE");
    EXPECT_EQ(next, 1);
    int fromEnd = 30;
    ScriptedRng none;
    EXPECT_EQ(MisspellWord("", fromEnd, none), "");
    EXPECT_EQ(fromEnd, 1);
    int last = 30;  // the last rule is still in the table
    auto doubled = ScriptedRng().pick(1, 6);
    EXPECT_EQ(MisspellWord("feather", last, doubled), "ffeather");
    EXPECT_EQ(last, 1);
    // A rule number out of the table starts again from the first rule.
    for (int out : {0, 31}) {
        int next = out;
        EXPECT_EQ(MisspellWord("feather", next, none), "pheather") << out;
        EXPECT_EQ(next, 2);
    }
}

TEST(SpellCrushMisspell, AlwaysFromTheFirstRuleAndDoublesWhenNoneApplies) {
    ScriptedRng rng;
    EXPECT_EQ(SpellCrushMisspell("fifty", rng), "phifty");
    EXPECT_EQ(SpellCrushMisspell("fifty", rng), "phifty");  // no memory between calls
    EXPECT_EQ(SpellCrushMisspell("magic", rng), "magick");  // its own rule 4
    EXPECT_EQ(SpellCrushMisspell("backpack", rng), "bakpack");
    EXPECT_EQ(rng.draws, 0);
    rng.pick(3, 3);
    EXPECT_EQ(SpellCrushMisspell("GRAB", rng), "GRAAB");
    EXPECT_EQ(rng.draws, 1);
    // One letter: no rule of the table touches "b", so it is doubled.
    ScriptedRng any(0.5);
    EXPECT_EQ(SpellCrushMisspell("b", any), "bb");
    // Two letters: "ck" of rule 3 wins over everything after it.
    EXPECT_EQ(SpellCrushMisspell("ck", any), "k");
}
