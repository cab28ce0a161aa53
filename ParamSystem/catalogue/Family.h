// A family of the menus.
#ifndef TALUX_CATALOGUE_FAMILY_H
#define TALUX_CATALOGUE_FAMILY_H

#include <span>

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

// Switches and numbers of a security family take user level 3 and go into the security file.
enum FamilyKind { kPlainFamily, kSecurityFamily };

struct Family {
    const char* name;
    std::span<const ParameterRow> rows;
    FamilyKind kind = kPlainFamily;
};

} // namespace talux::catalogue

#endif
