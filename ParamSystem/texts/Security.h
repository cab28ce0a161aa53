// User management, PINs, encryption.
#ifndef TALUX_TEXTS_SECURITY_H
#define TALUX_TEXTS_SECURITY_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSecurity[] = {
    value("panel_users_active", {"Benutzer am Gerät", "Panel users"},
          {"Benutzerverwaltung an der Gerätefront einschalten",
           "Switch user management at the front panel on"}),
};

} // namespace talux::texts

#endif
