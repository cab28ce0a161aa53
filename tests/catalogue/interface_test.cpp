// What the list of the interface reports when a row changes.
#include "tools/interface/Listing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace talux::interface;

namespace {

using Lines = std::vector<std::string>;

// The lines about a change of the listing.
template <class Change>
Lines after(Change change) {
    Listing changed = listing();
    change(changed);
    return changes(listing(), changed);
}

ListingRow& find(Listing& listing, std::string_view name) {
    return *std::find_if(listing.begin(), listing.end(),
                         [&](const ListingRow& row) { return row[kName] == name; });
}

} // namespace

TEST(Interface, IsReadBackAsItWasWritten) {
    EXPECT_EQ(parse(print(listing())), listing());
    EXPECT_EQ(after([](Listing&) {}), Lines());
}

TEST(Interface, SaysRowByRowWhatAChangeMeans) {
    const ListingRow flag{"9999", "flag_of_this_test", "bool", "parameter.ini", "rw", "1", "", "", "", "0"};
    EXPECT_EQ(after([&](Listing& all) { all.insert(all.begin() + 90, flag); }),
              Lines{"flag_of_this_test (9999) is new: bool, parameter.ini, default 0"});
    EXPECT_EQ(after([](Listing& all) { std::erase(all, ListingRow(find(all, "Uearth"))); }),
              Lines{"Uearth (2148) is gone: programs, scripts and files that use it find nothing"});
    const struct {
        const char* parameter;
        Column column;
        const char *cell, *line;
    } cells[] = {
        {"cycle_cnt_low", kName, "cycles",
         "cycle_cnt_low (7000): name cycle_cnt_low -> cycles: "
         "scripts and lines of parameter files with the old one find nothing"},
        {"MessRecord01.Cnt", kKind, "float",
         "MessRecord01.Cnt (30000): kind long -> float: programs read and write other bytes"},
        {"Uearth", kMax, "", "Uearth (2148): maximum 90 -> none: wider, what is stored stays valid"},
        {"Uearth", kMin, "0.5", "Uearth (2148): minimum 1 -> 0.5: wider, what is stored stays valid"},
        {"Uearth", kMin, "2",
         "Uearth (2148): minimum 1 -> 2: narrower, files and scripts may hold values that are refused now"},
        {"Uearth", kAccess, "r", "Uearth (2148): access rw -> r: writes are refused now"},
    };
    for (const auto& change : cells)
        EXPECT_EQ(after([&](Listing& all) { find(all, change.parameter)[change.column] = change.cell; }),
                  Lines{change.line});
}
