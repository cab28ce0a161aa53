// Texts that the user names functions with.
#ifndef TALUX_PARAMETERS_USER_TEXTS_H
#define TALUX_PARAMETERS_USER_TEXTS_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kUserTextsRows[] = {
    text(9041, "UserText{1..16}", {.def = " "}, {{"Benutzertext {n}"}, {"User text {n}"}}),
};

} // namespace talux::parameters

#endif
