// Settings that the device accepts but that are implausible; see PlausibilityRules.h. Needs no device.
#ifndef TALUX_TOOLS_TALUX_PLAUSIBILITY_H
#define TALUX_TOOLS_TALUX_PLAUSIBILITY_H

#include "tools/reference/PlausibilityRules.h"
#include "tools/talux/Show.h"

namespace talux::tool {

struct Implausible {
    const reference::PlausibilityRule* rule;
    Parameters parameters;
    std::string text; // "ETH0_GATEWAY 10.0.0.1, ETH0_IP ..: the gateway is outside its network"

    // Whether a line of a file is reported for it already.
    bool isOfOneLine() const;
    bool isFault() const { return rule->gravity == reference::Gravity::fault; }
    std::string painted() const { return isFault() ? Paint::bad(text) : text; }
};

// A set of values. What it does not hold breaks no rule.
using Values = std::function<std::optional<Value>(const Parameter&)>;

// Every rule that the values break. `before`: what they would replace; without it the rule on values of one
// device is left out.
std::vector<Implausible> findImplausible(const Values& values, const Values& before, const Context& context);

// What some values break that are written over others, as far as they have a part in it.
using Written = std::map<const Parameter*, Value>;
std::vector<Implausible> findImplausible(const Written& written, const Values& others, const Values& before,
                                         const Context& context);

// The faults of a few values that are about to be written; what refuses or names their ranges says so.
std::vector<Implausible> findFaults(const Written& written, const Context& context);

Json described(const Implausible& found);

} // namespace talux::tool

#endif
