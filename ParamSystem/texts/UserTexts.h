// Free texts of the user.
#ifndef TALUX_TEXTS_USERTEXTS_H
#define TALUX_TEXTS_USERTEXTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kUserTexts[] = {
    label("UserText{1..16}", {"Benutzertext {n}", "User text {n}"}),
};

} // namespace talux::texts

#endif
