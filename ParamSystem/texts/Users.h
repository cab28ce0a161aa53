// User management, PINs, encryption.
#ifndef TALUX_TEXTS_USERS_H
#define TALUX_TEXTS_USERS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kUsers[] = {
    value("panel_users_active", {"Benutzer am Gerät", "Panel users"},
          {"Benutzerverwaltung an der Gerätefront einschalten",
           "Switch user management at the front panel on"}),
};

} // namespace talux::texts

#endif
