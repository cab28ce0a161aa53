#include <cstdlib>
#include <limits>
#include <map>

#include "tools/interface/Listing.h"

namespace talux::interface {
namespace {

using Index = std::map<std::string, const ListingRow*, std::less<>>;

// What stays when a name changes.
std::string slotOf(const ListingRow& row) {
    return row[kId] + row[kKind] + row[kPlace];
}

Index bySlot(const Listing& listing) {
    Index index;
    for (const ListingRow& row : listing)
        index.emplace(slotOf(row), &row);
    return index;
}

Index byName(const Listing& listing) {
    Index index;
    for (const ListingRow& row : listing)
        index.emplace(row[kName], &row);
    return index;
}

std::string headOf(const ListingRow& row) {
    return row[kName] + " (" + row[kId] + ")";
}

std::string describe(const ListingRow& row) {
    std::string text = row[kKind];
    if (!row[kPlace].empty()) text += ", " + row[kPlace];
    if (!row[kMin].empty() || !row[kMax].empty()) text += ", range " + row[kMin] + " to " + row[kMax];
    if (!row[kDefault].empty()) text += ", default " + row[kDefault];
    return text;
}

double limit(const ListingRow& row, Column column) {
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    if (row[column].empty()) return column == kMin ? -kInfinite : kInfinite;
    return std::strtod(row[column].c_str(), nullptr);
}

std::string meaningOf(Column column, const ListingRow& before, const ListingRow& after) {
    if (column == kAccess) return after[kAccess] == "r" ? "writes are refused now" : "can be written now";
    if (column != kMin && column != kMax) return std::string(kColumnTexts[column].meaning);
    const bool wider = (limit(after, column) > limit(before, column)) == (column == kMax);
    return wider ? "wider, what is stored stays valid"
                 : "narrower, files and scripts may hold values that are refused now";
}

void addChanges(std::vector<std::string>& lines, const ListingRow& before, const ListingRow& after) {
    for (std::size_t k = 0; k < kColumns; ++k) {
        const auto column = static_cast<Column>(k);
        if (before[k] == after[k]) continue;
        const auto shown = [](const std::string& cell) { return cell.empty() ? "none" : cell; };
        lines.push_back(headOf(before) + ": " + std::string(kColumnTexts[k].head) + " " + shown(before[k]) +
                        " -> " + shown(after[k]) + ": " + meaningOf(column, before, after));
    }
}

} // namespace

std::vector<std::string> changes(const Listing& before, const Listing& after) {
    const Index oldNames = byName(before), newNames = byName(after);
    const Index oldSlots = bySlot(before), newSlots = bySlot(after);
    std::vector<std::string> lines;
    for (const ListingRow& row : before) {
        const auto same = newNames.find(row[kName]);
        const auto heir = newSlots.find(slotOf(row));
        if (same != newNames.end())
            addChanges(lines, row, *same->second);
        else if (heir != newSlots.end())
            addChanges(lines, row, *heir->second);
        else
            lines.push_back(headOf(row) + " is gone: programs, scripts and files that use it find nothing");
    }
    for (const ListingRow& row : after)
        if (!oldNames.contains(row[kName]) && !oldSlots.contains(slotOf(row)))
            lines.push_back(headOf(row) + " is new: " + describe(row));
    return lines;
}

} // namespace talux::interface
