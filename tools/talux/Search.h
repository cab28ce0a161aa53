// Finding parameters: by words of their texts, by properties.
#ifndef TALUX_TOOLS_TALUX_SEARCH_H
#define TALUX_TOOLS_TALUX_SEARCH_H

#include <string>
#include <vector>

#include "tools/talux/Source.h"

namespace talux::tool {

// The parameters whose name, titles or descriptions in either language hold every word.
std::vector<const Parameter*> search(const std::vector<std::string>& words);

bool holdsWords(const Parameter& parameter, const std::vector<std::string>& words);

// Which parameters a command is about.
struct Filter {
    std::vector<std::string> names; // parts of names or patterns; any of them
    std::vector<std::string> words; // of the texts; all of them
    std::string family;             // part of its name
    std::string file;               // part of its name
    int level = 0;                  // rights that a write takes; 0 any

    // Adds --family, --file, --level and --search to a command.
    void addTo(Subcommand& command);
    bool accepts(const Parameter& parameter) const;
};

} // namespace talux::tool

#endif
