// User management, PINs and the encryption of the connections.
#ifndef TALUX_PARAMETERS_SECURITY_H
#define TALUX_PARAMETERS_SECURITY_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kSecurityRows[] = {
    flag(8172, "panel_users_active", {.is = kSecurity},
         {{"Benutzer am Gerät", "Bedienung am Gerät nur nach Anmeldung mit PIN"},
          {"Panel users", "Operation at the front panel only after login with a PIN"}}),
    flag(8173, "tcp_users_active", {.is = kSecurity},
         {{"Benutzer über Netzwerk", "Zugriff über das Netzwerk nur nach Anmeldung"},
          {"Network users", "Access via the network only after login"}}),
    flag(8174, "ro_pin_active", {.is = kSecurity},
         {{"Benutzer-PIN aktiv", "PIN für die Ebene Benutzer verlangen, die nur lesen darf"},
          {"User PIN active", "Require a PIN at user level, which may only read"}}),
    command(19016, "RO_Pin_change", {.userlevel = 3, .is = kSecret},
            {{"Benutzer-PIN ändern", "Neue PIN für die Ebene Benutzer festlegen"},
             {"Change user PIN", "Set a new PIN for the user level"}}),
    command(19017, "RO_Pin_enter", {.is = kUnwritable | kSecret},
            {{"Benutzer-PIN eingeben", "Als Benutzer anmelden"}, {"Enter user PIN", "Log in as user"}}),
    flag(8175, "rw_pin_active", {.is = kSecurity},
         {{"Bediener-PIN aktiv", "PIN für die Ebene Bediener verlangen, die Einstellungen ändern darf"},
          {"Operator PIN active", "Require a PIN at operator level, which may change settings"}}),
    command(19018, "RW_Pin_change", {.userlevel = 3, .is = kSecret},
            {{"Bediener-PIN ändern", "Neue PIN für die Ebene Bediener festlegen"},
             {"Change operator PIN", "Set a new PIN for the operator level"}}),
    command(
        19019, "RW_Pin_enter", {.is = kUnwritable | kSecret},
        {{"Bediener-PIN eingeben", "Als Bediener anmelden"}, {"Enter operator PIN", "Log in as operator"}}),
    flag(8176, "sec_mode", {.def = kOn, .is = kUnwritable | kSecurity},
         {{"Verschlüsselung", "Verbindungen des TCP-Interpreters und der Oberfläche verschlüsseln"},
          {"Encryption", "Encrypt the connections of the TCP interpreter and of the GUI"}}),
    text(9057, "pub_key", {.init = "0", .is = kUnwritable | kRuntime},
         {{"Öffentlicher Schlüssel"}, {"Public key"}}),
    text(9058, "pub_inf", {.init = "0", .is = kUnwritable | kRuntime},
         {{"Schlüsselinformation", "Angaben zum öffentlichen Schlüssel"},
          {"Key information", "Details of the public key"}}),
    text(9059, "eph_key", {.init = "0", .is = kUnwritable | kRuntime | kSecret},
         {{"Ephemerer Schlüssel", "Öffentlicher Teil des kurzlebigen Schlüssels"},
          {"Ephemeral key", "Public part of the short-lived key"}}),
    text(9060, "date_info", {.init = "0", .is = kUnwritable | kRuntime},
         {{"Datumsangabe"}, {"Date information"}}),
    flag(8177, "gui_enabled", {.init = "0", .is = kUnwritable | kRuntime},
         {{"Oberfläche freigegeben"}, {"GUI enabled"}}),
    flag(8178, "key_enabled", {.init = "0", .is = kUnwritable | kRuntime},
         {{"Schlüssel freigegeben"}, {"Key enabled"}}),
    command(19020, "Logout", {},
            {{"Abmelden", "Anmeldung als Benutzer oder Bediener beenden"},
             {"Log out", "End the login as user or operator"}}),
};

inline constexpr Note kSecurityNotes[] = {
    warning("sec_mode", "Nicht schreibbar. Laden der Sicherheitsdatei setzt 1, auch wenn die Datei fehlt.",
            "Cannot be written. Loading the security file sets 1, even if the file is missing."),
};

} // namespace talux::parameters

#endif
