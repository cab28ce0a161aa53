// What the device's other programs rely on, as a table of texts: the parameters in table order and the
// members of the records.
#ifndef TALUX_INTERFACE_LISTING_H
#define TALUX_INTERFACE_LISTING_H

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace talux::interface {

enum Column {
    kId,
    kName,
    kKind,
    kPlace,
    kAccess,
    kLevel,
    kMin,
    kMax,
    kStep,
    kDefault,
    kInitial,
    kLength,
    kTemplate,
    kFormat,
    kChoiceNames,
    kColumns
};

// What a cell of each column is, and what its change means to others.
struct ColumnText {
    std::string_view head, meaning;
};
inline constexpr ColumnText kColumnTexts[kColumns] = {
    {"id", "programs that have the old one compiled in use another value"},
    {"name", "scripts and lines of parameter files with the old one find nothing"},
    {"kind", "programs read and write other bytes"},
    {"place", "what devices have in the old place is not read any more"},
    {"access", ""},
    {"level", "rights level of a write"},
    {"minimum", ""},
    {"maximum", ""},
    {"step", "of the display's editor"},
    {"default", "for devices without files and after a reset; the others keep what they have"},
    {"initial", "for programs that start with it"},
    {"length", "longest text"},
    {"template", "the display offers other choices"},
    {"format", "of the display"},
    {"choices", "C++ programs with the old names do not compile"},
};

using ListingRow = std::array<std::string, kColumns>;
using Listing = std::vector<ListingRow>;

// Of the compiled-in dictionary.
Listing listing();

// As a file, tab-separated, and back. Numbers have no needless digits, texts are in quotes, what does not
// apply is empty. An indexed parameter has one row. Lines with "#" are summaries.
std::string print(const Listing& listing);
Listing parse(std::string_view file);

// One line for every row that differs: added, removed or changed.
std::vector<std::string> changes(const Listing& before, const Listing& after);

} // namespace talux::interface

#endif
