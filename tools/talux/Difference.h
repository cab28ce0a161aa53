// In what two sources differ.
#ifndef TALUX_TOOLS_TALUX_DIFFERENCE_H
#define TALUX_TOOLS_TALUX_DIFFERENCE_H

#include "tools/talux/Source.h"

namespace talux::tool {

struct Difference {
    const Parameter* parameter;
    std::optional<Value> from, to;
};

inline bool isDifferent(const Parameter& /*parameter*/, const std::optional<Value>& from,
                        const std::optional<Value>& to) {
    return !sameValue(from, to);
}

// The settings for which differs(parameter, from, to) is true.
template <class Differs = decltype(&isDifferent)>
std::vector<Difference> differences(const Source& a, const Source& b, Differs differs = isDifferent) {
    std::vector<Difference> found;
    for (const Parameter& parameter : settings()) {
        const auto from = a.value(parameter), to = b.value(parameter);
        if (differs(parameter, from, to)) found.push_back({&parameter, from, to});
    }
    return found;
}

} // namespace talux::tool

#endif
