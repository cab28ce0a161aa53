#include "tools/talux/Command.h"

#include <algorithm>
#include <cstdio>
#include <new>

#include "tools/talux/Text.h"

namespace talux::tool {

void report(const CouldNot& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "talux: %s\n", printable(error.what()).c_str());
}

Status forEachFile(const std::vector<std::string>& paths,
                   const std::function<Status(const std::string&)>& look) {
    Status status = kNothing;
    for (const std::string& path : paths) {
        try {
            status = std::max(status, look(path));
        } catch (const CouldNot& error) {
            report(error);
            status = kCouldNot;
        } catch (const std::bad_alloc&) {
            report(CouldNot(path + ": takes too much memory"));
            status = kCouldNot;
        }
    }
    return status;
}

} // namespace talux::tool
