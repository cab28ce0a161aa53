// The snapshot of all measured values that mw_req asks for.
#ifndef TALUX_TEXTS_SNAPSHOT_H
#define TALUX_TEXTS_SNAPSHOT_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSnapshot[] = {
    value("mw_U0p", {"Momentaufn. U0 primär", "Snapshot U0 primary"},
          {"Verlagerungsspannung primär, Momentaufnahme",
           "Neutral displacement voltage, primary, in the snapshot"},
          "kV"),
    value("mw_U{1..3}p", {"Momentaufn. U{n} primär", "Snapshot U{n} primary"},
          {"Leiter-Erde-Spannung L{n} primär, Momentaufnahme",
           "Phase-to-earth voltage L{n}, primary, in the snapshot"},
          "kV"),
    value("mw_U0s", {"Momentaufn. U0 sekundär", "Snapshot U0 secondary"},
          {"Verlagerungsspannung sekundär, Momentaufnahme",
           "Neutral displacement voltage, secondary, in the snapshot"},
          "V"),
    value("mw_U{1..3}s", {"Momentaufn. U{n} sekundär", "Snapshot U{n} secondary"},
          {"Leiter-Erde-Spannung L{n} sekundär, Momentaufnahme",
           "Phase-to-earth voltage L{n}, secondary, in the snapshot"},
          "V"),
    value("mw_I0p", {"Momentaufn. I0 primär", "Snapshot I0 primary"},
          {"Summenstrom primär, Momentaufnahme", "Residual current, primary, in the snapshot"}, "A"),
    value("mw_I{1..3}p", {"Momentaufn. I{n} primär", "Snapshot I{n} primary"},
          {"Leiterstrom L{n} primär, Momentaufnahme", "Current of phase L{n}, primary, in the snapshot"},
          "A"),
    value("mw_I0s", {"Momentaufn. I0 sekundär", "Snapshot I0 secondary"},
          {"Summenstrom sekundär, Momentaufnahme", "Residual current, secondary, in the snapshot"}, "A"),
    value("mw_I{1..3}s", {"Momentaufn. I{n} sekundär", "Snapshot I{n} secondary"},
          {"Leiterstrom L{n} sekundär, Momentaufnahme", "Current of phase L{n}, secondary, in the snapshot"},
          "A"),
    value("mw_phi_{U,I}{0..3}", {"Momentaufn. Winkel {n}{m}", "Snapshot angle {n}{m}"}, {}, "°"),
    value("mw_phi_UI{0..3}", {"Momentaufn. Winkel UI{n}", "Snapshot angle UI{n}"}, {}, "°"),
    value("mw_BE_AC_{1..2}", {"Momentaufn. BE{n} AC", "Snapshot BI{n} AC"},
          {"Wechselspannung am Binäreingang {n}, Momentaufnahme",
           "AC voltage at binary input {n} in the snapshot"},
          "V"),
    value("mw_BE_Av_{1..2}", {"Momentaufn. BE{n} Mittel", "Snapshot BI{n} average"},
          {"Mittelwert der Spannung am Binäreingang {n}, Momentaufnahme",
           "Average voltage at binary input {n} in the snapshot"},
          "V"),
    label("BA_RelayBack", {"Relaisrückmeldung", "Relay feedback"}),
    label("DisplayLevel", {"Anzeigeebene", "Display level"}),
};

} // namespace talux::texts

#endif
