// A parameter file looked at before it is loaded: a load ends the program where it cannot read.
#ifndef TALUX_TOOLS_TALUX_STOREDFILE_H
#define TALUX_TOOLS_TALUX_STOREDFILE_H

#include "tools/talux/Source.h"

namespace talux::tool {

struct StoredFile {
    std::string unreadable; // the reason; empty when all of it has been read
    int lines = 0;
    int settings = 0; // of those that a save writes there; none: there is nothing to load
    int expected = 0;
    int findings = 0;    // as `check` counts them, but for the lines that it does not show
    bool isTorn = false; // lines that no save writes, or the last setting of a save is missing

    bool isUsable() const { return unreadable.empty() && settings > 0; }
    bool isComplete() const { return settings == expected && findings == 0; }
};

StoredFile lookAt(const std::string& path, File file, const Context& context);

// The dated copies of a file with the moment in their names, "2024-03-05 14:22:33", the newest first.
struct DatedCopy {
    std::string path, when;
};
std::vector<DatedCopy> copiesOf(File file, const Context& context);

// The newest one up to a moment that is usable and not torn. One of an older version lacks new settings.
std::optional<std::string> newestWholeCopy(File file, const Context& context, const std::string& until = "9");

} // namespace talux::tool

#endif
