// Texts that the user names functions with.
#ifndef TALUX_CATALOGUE_USER_TEXTS_H
#define TALUX_CATALOGUE_USER_TEXTS_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kUserTexts[] = {
    numbered(1, 16, text(9041, "UserText", kNoLength, " ")),
};

} // namespace talux::catalogue

#endif
