// The snapshot of all measures that mw_req asks for, relay feedback and display level.
#ifndef TALUX_PARAMETERS_SNAPSHOT_H
#define TALUX_PARAMETERS_SNAPSHOT_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kSnapshotAngle{{"Momentaufn. Winkel {n}{m}"}, {"Snapshot angle {n}{m}"}};
inline constexpr Words kSnapshotBIAC{
    {"Momentaufn. BE{n} AC", "Wechselspannung am Binäreingang {n}, Momentaufnahme"},
    {"Snapshot BI{n} AC", "AC voltage at binary input {n} in the snapshot"}};
inline constexpr Words kSnapshotBIAverage{
    {"Momentaufn. BE{n} Mittel", "Mittelwert der Spannung am Binäreingang {n}, Momentaufnahme"},
    {"Snapshot BI{n} average", "Average voltage at binary input {n} in the snapshot"}};

inline constexpr Row kSnapshotRows[] = {
    measured(2280, "mw_U0p", kPrimaryVoltage, "kV",
             {{"Momentaufn. U0 primär", "Verlagerungsspannung primär, Momentaufnahme"},
              {"Snapshot U0 primary", "Neutral displacement voltage, primary, in the snapshot"}}),
    measured(2281, "mw_U{1..3}p", kPrimaryVoltage, "kV",
             {{"Momentaufn. U{n} primär", "Leiter-Erde-Spannung L{n} primär, Momentaufnahme"},
              {"Snapshot U{n} primary", "Phase-to-earth voltage L{n}, primary, in the snapshot"}}),
    measured(2284, "mw_U0s", kSecondaryVoltage, "V",
             {{"Momentaufn. U0 sekundär", "Verlagerungsspannung sekundär, Momentaufnahme"},
              {"Snapshot U0 secondary", "Neutral displacement voltage, secondary, in the snapshot"}}),
    measured(2285, "mw_U{1..3}s", kSecondaryVoltage, "V",
             {{"Momentaufn. U{n} sekundär", "Leiter-Erde-Spannung L{n} sekundär, Momentaufnahme"},
              {"Snapshot U{n} secondary", "Phase-to-earth voltage L{n}, secondary, in the snapshot"}}),
    measured(2288, "mw_I0p", kPrimaryCurrent, "A",
             {{"Momentaufn. I0 primär", "Summenstrom primär, Momentaufnahme"},
              {"Snapshot I0 primary", "Residual current, primary, in the snapshot"}}),
    measured(2289, "mw_I{1..3}p", kPrimaryCurrent, "A",
             {{"Momentaufn. I{n} primär", "Leiterstrom L{n} primär, Momentaufnahme"},
              {"Snapshot I{n} primary", "Current of phase L{n}, primary, in the snapshot"}}),
    measured(2292, "mw_I0s", kSecondaryCurrent, "A",
             {{"Momentaufn. I0 sekundär", "Summenstrom sekundär, Momentaufnahme"},
              {"Snapshot I0 secondary", "Residual current, secondary, in the snapshot"}}),
    measured(2293, "mw_I{1..3}s", kSecondaryCurrent, "A",
             {{"Momentaufn. I{n} sekundär", "Leiterstrom L{n} sekundär, Momentaufnahme"},
              {"Snapshot I{n} secondary", "Current of phase L{n}, secondary, in the snapshot"}}),
    measured(2296, "mw_phi_U{0..3}", kAngle, "°", kSnapshotAngle("U")),
    measured(2300, "mw_phi_I{0..3}", kAngle, "°", kSnapshotAngle("I")),
    measured(2304, "mw_phi_UI{0..3}", kAngle, "°", {{"Momentaufn. Winkel UI{n}"}, {"Snapshot angle UI{n}"}}),
    measured(2308, "mw_BE_AC_1", kInputVoltage, "V", kSnapshotBIAC("1")),
    measured(2309, "mw_BE_Av_1", kInputVoltage, "V", kSnapshotBIAverage("1")),
    measured(2310, "mw_BE_AC_2", kInputVoltage, "V", kSnapshotBIAC("2")),
    measured(2311, "mw_BE_Av_2", kInputVoltage, "V", kSnapshotBIAverage("2")),
    number(7268, "BA_RelayBack", {.is = kRuntime}, {{"Relaisrückmeldung"}, {"Relay feedback"}}),
    shortNumber(7006, "DisplayLevel", {.is = kRuntime}, {{"Anzeigeebene"}, {"Display level"}}),
};

} // namespace talux::parameters

#endif
