// What the list of the interface says when a row changes.
#include "tools/interface/Listing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace talux::interface;

namespace {

// The lines about a change of the listing.
template <class Change>
std::vector<std::string> after(Change change) {
    Listing changed = listing();
    change(changed);
    return changes(listing(), changed);
}

ListingRow& find(Listing& listing, std::string_view name) {
    return *std::find_if(listing.begin(), listing.end(),
                         [&](const ListingRow& row) { return row[kName] == name; });
}

std::vector<std::string> afterCell(std::string_view name, Column column, const std::string& cell) {
    return after([&](Listing& listing) { find(listing, name)[column] = cell; });
}

} // namespace

TEST(Interface, IsReadBackAsItWasWritten) {
    EXPECT_EQ(parse(print(listing())), listing());
    EXPECT_THAT(after([](Listing&) {}), testing::IsEmpty());
}

TEST(Interface, SaysRowByRowWhatAChangeMeans) {
    using testing::ElementsAre;
    using testing::StartsWith;
    const ListingRow flag{"9999", "my_flag", "bool", "parameter.ini", "rw", "1", "", "", "", "0"};
    EXPECT_THAT(after([&](Listing& all) { all.insert(all.begin() + 90, flag); }),
                ElementsAre("my_flag (9999) is new: bool, parameter.ini, default 0"));
    EXPECT_THAT(after([](Listing& all) { all.erase(all.begin() + 90); }),
                ElementsAre(testing::HasSubstr(" is gone: ")));
    EXPECT_THAT(afterCell("cycle_cnt_low", kName, "cycles"),
                ElementsAre(StartsWith("cycle_cnt_low (7000): name cycle_cnt_low -> cycles: scripts and")));
    EXPECT_THAT(
        afterCell("MessRecord01.Cnt", kKind, "float"),
        ElementsAre("MessRecord01.Cnt (30000): kind long -> float: programs read and write other bytes"));
    EXPECT_THAT(afterCell("Uearth", kMax, ""),
                ElementsAre(StartsWith("Uearth (2148): maximum 90 -> none: wider")));
    EXPECT_THAT(afterCell("Uearth", kMin, "0.5"),
                ElementsAre(StartsWith("Uearth (2148): minimum 1 -> 0.5: wider")));
    EXPECT_THAT(afterCell("Uearth", kMin, "2"),
                ElementsAre(StartsWith("Uearth (2148): minimum 1 -> 2: narrower")));
    EXPECT_THAT(afterCell("Uearth", kAccess, "r"), ElementsAre(testing::EndsWith("writes are refused now")));
}
