// The misspelling rules of the game show and of Spell Crush: thirty numbered rules, each
// changing at most one place of a word, the first match from the left, case-sensitive.
#pragma once

#include <string>
#include <string_view>

namespace wm {

class Rng;

inline constexpr int kMisspellRules = 30;

// Which table is in use: the show's, or Spell Crush's, whose rule 4 turns a final "c" into
// "ck" instead of "ck" into "c".
enum class MisspellTable { Show, SpellCrush };

// Applies one rule to `word`; the word comes back unchanged when the rule does not match.
// Only rule 30 draws: p = Int(Rnd * (length - 1) + 1), and the letter at p is doubled.
std::string ApplyMisspellRule(int rule, std::string_view word, MisspellTable table, Rng& rng);

// The show's MisspellWord: tries the rules from `nextRule` up to 30; the first that changes the
// word ends the search and `nextRule` moves past it (back to 1 after rule 30). Rule 30 always
// changes a word that has a letter, so a misspelling always comes. An empty word comes back
// empty, with `nextRule` back at 1.
std::string MisspellWord(std::string_view word, int& nextRule, Rng& rng);

// Spell Crush's misspelling: rules 1 to 29 from the first every time, with no memory; when none
// changed the word, a letter is doubled as by rule 30.
std::string SpellCrushMisspell(std::string_view word, Rng& rng);

}  // namespace wm
