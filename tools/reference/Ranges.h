// Numbers that are written as ranges: "5..7 16".
#ifndef TALUX_TOOLS_REFERENCE_RANGES_H
#define TALUX_TOOLS_REFERENCE_RANGES_H

#include <string>
#include <string_view>
#include <vector>

namespace talux::reference {

// Every number of "5..7 16".
std::vector<int> numbersOf(std::string_view ranges);

// The short way, in ascending order: "5..7, 16".
std::string asRanges(std::vector<int> numbers);

} // namespace talux::reference

#endif
