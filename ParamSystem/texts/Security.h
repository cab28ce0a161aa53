// User management, PINs, encryption.
#ifndef TALUX_TEXTS_SECURITY_H
#define TALUX_TEXTS_SECURITY_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSecurity[] = {
    value("panel_users_active", {"Benutzer am Gerät", "Panel users"},
          {"Bedienung am Gerät nur nach Anmeldung mit PIN",
           "Operation at the front panel only after login with a PIN"}),
    value("tcp_users_active", {"Benutzer über Netzwerk", "Network users"},
          {"Zugriff über das Netzwerk nur nach Anmeldung", "Access via the network only after login"}),
    value("ro_pin_active", {"Benutzer-PIN aktiv", "User PIN active"},
          {"PIN für die Ebene Benutzer verlangen, die nur lesen darf",
           "Require a PIN at user level, which may only read"}),
    command("RO_Pin_change", {"Benutzer-PIN ändern", "Change user PIN"},
            {"Neue PIN für die Ebene Benutzer festlegen", "Set a new PIN for the user level"}),
    command("RO_Pin_enter", {"Benutzer-PIN eingeben", "Enter user PIN"},
            {"Als Benutzer anmelden", "Log in as user"}),
    value("rw_pin_active", {"Bediener-PIN aktiv", "Operator PIN active"},
          {"PIN für die Ebene Bediener verlangen, die Einstellungen ändern darf",
           "Require a PIN at operator level, which may change settings"}),
    command("RW_Pin_change", {"Bediener-PIN ändern", "Change operator PIN"},
            {"Neue PIN für die Ebene Bediener festlegen", "Set a new PIN for the operator level"}),
    command("RW_Pin_enter", {"Bediener-PIN eingeben", "Enter operator PIN"},
            {"Als Bediener anmelden", "Log in as operator"}),
    value("sec_mode", {"Verschlüsselung", "Encryption"},
          {"Verbindungen des TCP-Interpreters und der Oberfläche verschlüsseln",
           "Encrypt the connections of the TCP interpreter and of the GUI"}),
    label("pub_key", {"Öffentlicher Schlüssel", "Public key"}),
    value("pub_inf", {"Schlüsselinformation", "Key information"},
          {"Angaben zum öffentlichen Schlüssel", "Details of the public key"}),
    value("eph_key", {"Ephemerer Schlüssel", "Ephemeral key"},
          {"Öffentlicher Teil des kurzlebigen Schlüssels", "Public part of the short-lived key"}),
    label("date_info", {"Datumsangabe", "Date information"}),
    label("gui_enabled", {"Oberfläche freigegeben", "GUI enabled"}),
    label("key_enabled", {"Schlüssel freigegeben", "Key enabled"}),
    command("Logout", {"Abmelden", "Log out"},
            {"Anmeldung als Benutzer oder Bediener beenden", "End the login as user or operator"}),
};

} // namespace talux::texts

#endif
