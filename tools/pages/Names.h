// Names that stand for several in the data of the pages: patterns of series, ranges of numbers.
#ifndef TALUX_PAGES_NAMES_H
#define TALUX_PAGES_NAMES_H

#include <string>
#include <string_view>
#include <vector>

#include "tools/generator/TextPattern.h"

namespace talux::pages {

std::vector<std::string_view> words(std::string_view text);

// Every name that the patterns, divided by blanks, stand for: "cos_SigDel U{1..3}_prim".
std::vector<std::string> namesOf(std::string_view patterns);

// Every number of "5..7 16".
std::vector<int> numbersOf(std::string_view ranges);

// Ascending numbers the short way: "5..7, 16".
std::string asRanges(std::vector<int> numbers);

} // namespace talux::pages

#endif
