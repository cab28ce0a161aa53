// Series of parameters that differ in a number of their name only, as one row of a page.
#ifndef TALUX_PAGES_SERIES_H
#define TALUX_PAGES_SERIES_H

#include <string>
#include <vector>

#include "tools/pages/Facts.h"

namespace talux::pages {

// A row of a page: one parameter, or the members of a series in menu order.
struct Entry {
    struct Run { // of digits in a text
        std::size_t at, size;
    };

    std::vector<Parameter> members;
    std::string name;         // "Uearth", "U{1..3}_prim", "vBE[1..96]"
    Run number{};             // that counts in the name of the first member
    std::string numbers = {}; // "1..3" or "1,2,3,0"; empty for a single parameter

    const Parameter& first() const { return members.front(); }
    bool isSeries() const { return members.size() > 1; }

    // A text of the first member with all numbers of the series in the place of its own.
    std::string withNumbers(const std::string& text) const;
};

std::vector<Entry> entriesOf(const std::vector<Parameter>& section);

} // namespace talux::pages

#endif
