// The thirty misspelling rules one by one (words of one, two and many letters), the order in
// which the show tries them, and Spell Crush's own table.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "games/common/misspell.h"

using namespace wm;

namespace {

struct RuleCase {
    int rule;
    const char* word;
    const char* show;   // with the show's table
    const char* crush;  // with Spell Crush's, when it differs (nullptr: the same)
};

const RuleCase kRules[] = {
    {1, "fifty", "phifty", nullptr},
    {1, "Fun", "Fun", nullptr},  // case-sensitive: capitals are passed over
    {2, "phone", "fone", nullptr},
    {3, "backpack", "bakpack", nullptr},
    {4, "backpack", "bacpack", "backpack"},
    {4, "picnic", "picnic", "picnick"},
    {4, "c", "c", "ck"},
    {5, "kick", "cick", nullptr},
    {6, "cake", "cak", nullptr},
    {6, "me", "me", nullptr},  // too short
    {7, "moon", "muon", nullptr},
    {8, "piece", "peice", nullptr},
    {9, "their", "thier", nullptr},
    {10, "balloon", "baloon", nullptr},
    {10, "ball", "ba", nullptr},  // the pair at the end goes altogether
    {10, "abc", "abc", nullptr},
    {11, "rain", "rian", nullptr},
    {12, "giant", "gaint", nullptr},
    {13, "house", "huose", nullptr},
    {14, "duo", "dou", nullptr},
    {15, "lion", "loin", nullptr},
    {16, "happy", "happie", nullptr},
    {16, "rhythm", "rhithm", nullptr},
    {17, "bread", "breed", nullptr},
    {18, "cause", "couse", nullptr},
    {19, "round", "raund", nullptr},
    {20, "tree", "trea", nullptr},
    {21, "ant", "annt", nullptr},
    {22, "sun", "ssun", nullptr},
    {23, "lake", "llake", nullptr},
    {24, "nation", "nashon", nullptr},
    {24, "tion", "tion", nullptr},  // four letters: too short
    {25, "motion", "moshen", nullptr},
    {25, "ation", "ashen", nullptr},  // five letters: long enough
    {26, "boxes", "boxs", nullptr},
    {26, "es", "es", nullptr},
    {27, "cats", "cates", nullptr},
    {27, "is", "is", nullptr},
    {28, "occur", "ockur", nullptr},
    {29, "cat", "kat", nullptr},
    {31, "cat", "cat", nullptr},  // no such rule
};

}  // namespace

TEST(MisspellRules, EachRuleChangesTheFirstMatchOnly) {
    for (const RuleCase& c : kRules) {
        ScriptedRng rng;
        EXPECT_EQ(ApplyMisspellRule(c.rule, c.word, MisspellTable::Show, rng), c.show)
            << "rule " << c.rule << " on " << c.word;
        EXPECT_EQ(ApplyMisspellRule(c.rule, c.word, MisspellTable::SpellCrush, rng),
                  c.crush ? c.crush : c.show)
            << "Spell Crush rule " << c.rule << " on " << c.word;
        EXPECT_EQ(rng.draws, 0) << "only rule 30 draws";
    }
}

TEST(MisspellRules, RuleThirtyDoublesALetterButNeverTheLast) {
    ScriptedRng rng;
    rng.pick(1, 3).pick(4, 4).then(0.999);
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
    ScriptedRng rng;
    rng.pick(2, 4);
    int next = 1;
    EXPECT_EQ(MisspellWord("HOUSE", next, rng), "HOOUSE");
    EXPECT_EQ(next, 1);
    int fromEnd = 30;
    ScriptedRng none;
    EXPECT_EQ(MisspellWord("", fromEnd, none), "");
    EXPECT_EQ(fromEnd, 1);
    int last = 30;  // the last rule is still in the table
    ScriptedRng doubled;
    doubled.pick(1, 6);
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
