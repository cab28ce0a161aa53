// Free texts of the user.
#ifndef TALUX_TEXTS_USERTEXTS_H
#define TALUX_TEXTS_USERTEXTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kUserTexts[] = {
    value("UserText{1..16}", {"Benutzertext {n}", "User text {n}"},
          {"Frei wählbarer Text {n} für Meldungen", "Free text {n} for messages"}),
};

} // namespace talux::texts

#endif
