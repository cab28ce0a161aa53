// The snapshot of all measured values that mw_req asks for.
#ifndef TALUX_TEXTS_SNAPSHOT_H
#define TALUX_TEXTS_SNAPSHOT_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSnapshot[] = {
    value("mw_U0p", {"Abbild U0 prim.", "Snapshot U0 prim."},
          {"Verlagerungsspannung primär im Augenblick der Anforderung",
           "Residual voltage, primary, at the moment of the request"},
          "kV"),
    value("mw_U{1..3}p", {"Abbild U{n} prim.", "Snapshot U{n} prim."},
          {"Leiter-Erde-Spannung L{n} primär im Augenblick der Anforderung",
           "Voltage of phase L{n} to earth, primary, at the moment of the request"},
          "kV"),
    value("mw_U0s", {"Abbild U0 sek.", "Snapshot U0 sec."},
          {"Verlagerungsspannung sekundär im Augenblick der Anforderung",
           "Residual voltage, secondary, at the moment of the request"},
          "V"),
    value("mw_U{1..3}s", {"Abbild U{n} sek.", "Snapshot U{n} sec."},
          {"Leiter-Erde-Spannung L{n} sekundär im Augenblick der Anforderung",
           "Voltage of phase L{n} to earth, secondary, at the moment of the request"},
          "V"),
    value("mw_I0p", {"Abbild I0 prim.", "Snapshot I0 prim."},
          {"Summenstrom primär im Augenblick der Anforderung",
           "Residual current, primary, at the moment of the request"},
          "A"),
    value("mw_I{1..3}p", {"Abbild I{n} prim.", "Snapshot I{n} prim."},
          {"Leiterstrom L{n} primär im Augenblick der Anforderung",
           "Current of phase L{n}, primary, at the moment of the request"},
          "A"),
    value("mw_I0s", {"Abbild I0 sek.", "Snapshot I0 sec."},
          {"Summenstrom sekundär im Augenblick der Anforderung",
           "Residual current, secondary, at the moment of the request"},
          "A"),
    value("mw_I{1..3}s", {"Abbild I{n} sek.", "Snapshot I{n} sec."},
          {"Leiterstrom L{n} sekundär im Augenblick der Anforderung",
           "Current of phase L{n}, secondary, at the moment of the request"},
          "A"),
    value("mw_phi_{U,I}{0..3}", {"Abbild Winkel {n}{m}", "Snapshot angle {n}{m}"},
          {"Winkel des Zeigers {n}{m} im Augenblick der Anforderung",
           "Angle of the phasor {n}{m} at the moment of the request"},
          "°"),
    value("mw_phi_UI{0..3}", {"Abbild Winkel UI{n}", "Snapshot angle UI{n}"},
          {"Winkel zwischen U{n} und I{n} im Augenblick der Anforderung",
           "Angle between U{n} and I{n} at the moment of the request"},
          "°"),
    value("mw_BE_AC_{1..2}", {"Abbild BE{n} AC", "Snapshot BI{n} AC"},
          {"Wechselspannung am Binäreingang {n} im Augenblick der Anforderung",
           "AC voltage at binary input {n} at the moment of the request"},
          "V"),
    value("mw_BE_Av_{1..2}", {"Abbild BE{n} Mittel", "Snapshot BI{n} average"},
          {"Mittelwert der Spannung am Binäreingang {n} im Augenblick der Anforderung",
           "Average voltage at binary input {n} at the moment of the request"},
          "V"),

    label("BA_RelayBack", {"Relaisrückmeldung", "Relay feedback"}),
    label("DisplayLevel", {"Anzeigeebene", "Display level"}),
};

} // namespace talux::texts

#endif
