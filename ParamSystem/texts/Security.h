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
          {"PIN für die Stufe Benutzer verlangen, die nur lesen darf",
           "Require a PIN at user level, which may only read"}),
    command("RO_Pin_change", {"Benutzer-PIN ändern", "Change user PIN"},
            {"Neue PIN für die Stufe Benutzer festlegen", "Set a new PIN for the user level"}),
    command("RO_Pin_enter", {"Benutzer-PIN eingeben", "Enter user PIN"},
            {"Als Benutzer anmelden", "Log in as user"}),
    value("rw_pin_active", {"Bediener-PIN aktiv", "Operator PIN active"},
          {"PIN für die Stufe Bediener verlangen, die Einstellungen ändern darf",
           "Require a PIN at operator level, which may change settings"}),
    command("RW_Pin_change", {"Bediener-PIN ändern", "Change operator PIN"},
            {"Neue PIN für die Stufe Bediener festlegen", "Set a new PIN for the operator level"}),
    command("RW_Pin_enter", {"Bediener-PIN eingeben", "Enter operator PIN"},
            {"Als Bediener anmelden", "Log in as operator"}),
    value("sec_mode", {"Verschlüsselung", "Encryption"},
          {"Verbindungen des TCP-Interpreters und der Oberfläche verschlüsseln",
           "Encrypt the connections of the TCP interpreter and of the GUI"}),
    value("pub_key", {"Öffentlicher Schlüssel", "Public key"},
          {"Öffentlicher Schlüssel des Geräts für verschlüsselte Verbindungen",
           "The device's public key for encrypted connections"}),
    value("pub_inf", {"Schlüsselinformation", "Key information"},
          {"Angaben zum öffentlichen Schlüssel", "Details of the public key"}),
    value("eph_key", {"Sitzungsschlüssel", "Ephemeral key"},
          {"Öffentlicher Teil des Schlüssels der laufenden Sitzung",
           "Public part of the key of the current session"}),
    value("date_info", {"Schlüsseldatum", "Key date"},
          {"Tag, an dem der Schlüssel erzeugt wurde", "Day on which the key was generated"}),
    value("gui_enabled", {"Oberfläche freigegeben", "GUI enabled"},
          {"Die Bedienoberfläche am PC darf sich verbinden", "The user interface on a PC may connect"}),
    value("key_enabled", {"Schlüssel freigegeben", "Key enabled"},
          {"Der Schlüssel des Geräts ist vorhanden und gültig", "The device's key is present and valid"}),
    command("Logout", {"Abmelden", "Log out"},
            {"Anmeldung als Benutzer oder Bediener beenden", "End the login as user or operator"}),
};

} // namespace talux::texts

#endif
