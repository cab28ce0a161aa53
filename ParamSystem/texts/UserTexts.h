// Free texts of the user.
#ifndef TALUX_TEXTS_USERTEXTS_H
#define TALUX_TEXTS_USERTEXTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kUserTexts[] = {
    value("UserText{1..16}", {"Benutzertext {n}", "User text {n}"},
          {"Frei wählbarer Text {n}, der Meldungen und Aufzeichnungen beigefügt wird",
           "Free text {n} that is added to signals and records"}),
};

} // namespace talux::texts

#endif
