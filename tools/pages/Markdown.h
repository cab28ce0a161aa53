// How the Markdown pages name things and link to each other.
#ifndef TALUX_PAGES_MARKDOWN_H
#define TALUX_PAGES_MARKDOWN_H

#include <string>
#include <string_view>

#include "tools/Strings.h"
#include "tools/pages/Facts.h"

namespace talux::pages {

inline constexpr std::string_view kGenerated =
    "<!-- Made by scripts/dictionary.sh from the rows of the parameters; change those. -->\n";

// A text with the special characters of Markdown escaped.
std::string escaped(std::string_view text);

// Adds a line to the cell of a table.
void addLine(std::string& cell, std::string_view line);

std::string fileOf(const stParamFamily& family);

// [`Uearth`](earth-fault-detection.md#Uearth)
std::string linkTo(const Parameter& parameter);
std::string linkTo(std::string_view name);

// "1 = none · 2 = odd · 3 = even"; runs of numbered texts and of the same text are merged.
std::string listOf(const std::vector<reference::Choice>& choices);

} // namespace talux::pages

#endif
