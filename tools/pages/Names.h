// Names that stand for several in the data of the pages: patterns of series, ranges of numbers.
#ifndef TALUX_PAGES_NAMES_H
#define TALUX_PAGES_NAMES_H

#include <string>
#include <string_view>
#include <vector>

#include "tools/generator/TextPattern.h"

namespace talux::pages {

using generator::namesOf;

// Every number of "5..7 16".
std::vector<int> numbersOf(std::string_view ranges);

// Ascending numbers the short way: "5..7, 16".
std::string asRanges(std::vector<int> numbers);

} // namespace talux::pages

#endif
