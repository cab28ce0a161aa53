// Finding parameters: by words of their texts, by properties.
#ifndef TALUX_TOOLS_TALUX_SEARCH_H
#define TALUX_TOOLS_TALUX_SEARCH_H

#include "tools/talux/Source.h"

namespace talux::tool {

// The parameters whose name, titles or descriptions in either language hold every word: at the beginning of
// one of theirs, a long one also at the end, as German compounds have it.
Parameters search(const std::vector<std::string>& words);

// The file whose name begins with this; none for an empty name. Throws CouldNot when there is no such file.
File fileCalled(const std::string& name, const Context& context);

// Which parameters a command is about.
struct Filter {
    std::vector<std::string> names; // parts of names or patterns; any of them
    std::vector<std::string> words; // of the texts; all of them
    std::string family;             // part of its name
    std::string method;             // part of its name
    std::string file;               // part of its name
    int level = 0;                  // rights that a write takes; 0 any
    bool individual = false;        // only what belongs to the single device
    bool noLimits = false;          // only settings whose numbers are not limited

    void addTo(Command& command);
    // Throws CouldNot for a name, family, file or method that there is not.
    Parameters chosen(const Context& context) const;
    bool isEmpty() const { // chooses everything
        return names.empty() && words.empty() && family.empty() && method.empty() && file.empty() &&
               level == 0 && !individual && !noLimits;
    }
};

} // namespace talux::tool

#endif
