// Settings that the device accepts but that are implausible; see PlausibilityRules.h. Needs no device.
#ifndef TALUX_TOOLS_TALUX_PLAUSIBILITY_H
#define TALUX_TOOLS_TALUX_PLAUSIBILITY_H

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tools/Json.h"
#include "tools/reference/PlausibilityRules.h"
#include "tools/talux/Source.h"

namespace talux::tool {

struct Implausible {
    const reference::PlausibilityRule* rule;
    Parameters parameters;
    std::string text; // "ETH0_GATEWAY 10.0.0.1, ETH0_IP ..: the gateway is outside its network"

    // Whether a line of a file is reported for it already.
    bool isOfOneLine() const;
    bool isFault() const { return rule->gravity == reference::Gravity::fault; }
    bool concerns(const std::function<bool(const Parameter&)>& isMeant) const;
};

// A set of values. What it does not hold breaks no rule.
using Values = std::function<std::optional<Value>(const Parameter&)>;

// Every rule that the values break. `before`: what they would replace; without it the rule on values of one
// device is left out.
std::vector<Implausible> findImplausible(const Values& values, const Values& before, const Context& context);

// The faults of a few values that are about to be written; what refuses or names their ranges says so.
std::vector<Implausible> findFaults(const std::map<const Parameter*, Value>& written, const Context& context);

// Of what is pending on a device, or of any other complete source.
std::vector<Implausible> findImplausible(const Source& source, const Context& context);

Json described(const Implausible& found);

} // namespace talux::tool

#endif
