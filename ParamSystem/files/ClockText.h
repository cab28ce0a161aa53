// Date and time as text: "YYYY-MM-DD" and "hh:mm:ss". Parameters of these natures show the system clock,
// whatever the store holds.
#ifndef TALUX_FILES_CLOCKTEXT_H
#define TALUX_FILES_CLOCKTEXT_H

#include <ctime>

#include "ParamSystem/store/Values.h"

namespace talux {

constexpr bool showsClock(Nature nature) {
    return nature == Nature::date || nature == Nature::time;
}

// The half that `nature` names.
Value clockText(Nature nature, const std::tm& now);

} // namespace talux

#endif
