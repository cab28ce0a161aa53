// A family of the menus.
#ifndef TALUX_PARAMETERS_FAMILY_H
#define TALUX_PARAMETERS_FAMILY_H

#include <span>

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Switches and numbers of a security family take user level 3 and go into the security file.
// Each setting of a method family belongs to a detection method.
enum FamilyKind { kPlainFamily, kSecurityFamily, kMethodFamily };

struct Family {
    const char* de;
    const char* en;
    std::span<const Row> rows;
    std::span<const Note> notes{};
    FamilyKind kind = kPlainFamily;
};

} // namespace talux::parameters

#endif
