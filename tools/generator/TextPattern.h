// Expands the patterns of names and texts, see parameters/Row.h.
#ifndef TALUX_GENERATOR_TEXTPATTERN_H
#define TALUX_GENERATOR_TEXTPATTERN_H

#include <string>
#include <string_view>
#include <vector>

namespace talux::generator {

// Thrown where a row breaks a rule.
struct BrokenRule {
    std::string text;
};

// One member of a series: its name and what its texts show as {n} and {m}.
struct SeriesMember {
    std::string name, n, m;
};

// The names that a pattern with up to two lists in braces stands for.
std::vector<SeriesMember> membersOf(std::string_view pattern);

// Every name that the patterns, separated by blanks, stand for: "cos_SigDel U{1..3}_prim".
std::vector<std::string> namesOf(std::string_view patterns);

// The texts of a list separated by "|"; {n} and {m} are not replaced.
std::vector<std::string> textsOf(std::string_view list);

// A text with {n} and {m} replaced by what the member shows.
std::string filledIn(std::string_view text, const SeriesMember& member);

} // namespace talux::generator

#endif
