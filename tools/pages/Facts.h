// What every page says about a parameter besides its texts.
#ifndef TALUX_PAGES_FACTS_H
#define TALUX_PAGES_FACTS_H

#include <string>
#include <vector>

#include "ParamSystem/parameters/Methods.h"
#include "tools/reference/Lookup.h"
#include "tools/reference/Ranges.h"

namespace talux::pages {

using parameters::kMethods, parameters::Method;
using reference::asRanges, reference::familyName, reference::namesOf, reference::noteAt, reference::numbersOf,
    reference::Parameter, reference::Parameters, reference::settingsOf;

inline int firstId(const Parameter& parameter) {
    return parameter.row().id;
}
inline int lastId(const Parameter& parameter) {
    return parameter.row().id + parameter.elements() - 1;
}

inline bool isCommand(const Parameter& parameter) {
    return parameter.type().code == kTypeCommand;
}
// Whether a write is accepted and has no effect.
inline bool ignoresWrites(const Parameter& parameter) {
    return !parameter.facts().isReadOnly &&
           (isCommand(parameter) || parameter.type().nature == Nature::record);
}
inline bool isChoice(const Parameter& parameter) {
    return parameter.type().kind == Kind::Enum;
}

bool hasLimits(const Parameter& parameter);

// Choices count from 1; whether one below is refused depends on the row.
inline bool refusesBelowOne(const Parameter& parameter) {
    return parameter.hasMinimum() && parameter.row().val_min >= 1;
}

// The detection method to which a setting belongs, or null.
const Method* methodOf(const Parameter& parameter);

// What is wrong in the data of the pages: names and choices that do not exist, members without a text.
std::vector<std::string> faults();

} // namespace talux::pages

#endif
