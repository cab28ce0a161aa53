// Measured values: voltages, currents, powers, angles, harmonics and the statistics maxima.
#ifndef TALUX_PARAMETERS_MEASUREMENTS_H
#define TALUX_PARAMETERS_MEASUREMENTS_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kU0{{"U0 bei {n}", "Anteil der Verlagerungsspannung bei {n}, primär"},
                           {"U0 at {n}", "Component of the neutral displacement voltage at {n}, primary"}};
inline constexpr Words kI0{{"I0 bei {n}", "Anteil des Summenstroms bei {n}, primär"},
                           {"I0 at {n}", "Component of the residual current at {n}, primary"}};
inline constexpr Words kAdmittanceY0{
    {"Admittanz Y0 bei {n}", "Betrag der Nulladmittanz Y0 bei {n}, primär"},
    {"Admittance Y0 at {n}", "Magnitude of the zero-sequence admittance Y0 at {n}, primary"}};
inline constexpr Words kAngleY0{{"Winkel Y0 bei {n}", "Winkel der Nulladmittanz Y0 bei {n}"},
                                {"Angle Y0 at {n}", "Angle of the zero-sequence admittance Y0 at {n}"}};
inline constexpr Words kMaximumI0Class{
    {"Maximum I0 Klasse c{n}", "Größter Summenstrom der Statistikklasse c{n}, primär"},
    {"Maximum I0 class c{n}", "Largest residual current of statistics class c{n}, primary"}};
inline constexpr Words kMaximumIClass{
    {"Maximum I{m} Klasse c{n}", "Größter Leiterstrom I{m} der Statistikklasse c{n}, primär"},
    {"Maximum I{m} class c{n}", "Largest phase current I{m} of statistics class c{n}, primary"}};

inline constexpr Row kMeasurementsRows[] = {
    measured(2000, "U{1..3}_prim", kPrimaryVoltage, "kV",
             {{"Spannung L{n}-E primär", "Leiter-Erde-Spannung U{n}, primär"},
              {"Voltage L{n}-E primary", "Voltage U{n}_primary"}}),
    measured(2003, "U0_prim", kPrimaryVoltage, "kV",
             {{"Spannung U0 primär", "Verlagerungsspannung U0, primär"},
              {"Voltage U0 primary", "Neutral displacement voltage U0, primary"}}),
    measured(2004, "I{1..3}_prim", kPrimaryCurrent, "A",
             {{"Strom I{n} primär", "Leiterstrom I{n}, primär"},
              {"Current I{n} primary", "Phase current I{n}, primary"}}),
    measured(2007, "I0_prim", kPrimaryCurrent, "A",
             {{"Strom I0 primär", "Summenstrom der drei Leiter, primär"},
              {"Current I0 primary", "Residual current of the three phases, primary"}}),
    measured(2008, "phiUI{1..3}", kAngle, "°",
             {{"Winkel U{n}-I{n}", "Phasenwinkel zwischen Spannung U{n} und Strom I{n}"},
              {"Angle U{n}-I{n}", "Phase angle between voltage U{n} and current I{n}"}}),
    measured(2011, "phiUI0", kAngle, "°",
             {{"Winkel U0-I0", "Phasenwinkel zwischen Verlagerungsspannung und Summenstrom"},
              {"Angle U0-I0", "Phase angle between neutral displacement voltage and residual current"}}),
    measured(2012, "U{1..3}", kSecondaryVoltage, "V",
             {{"Spannung L{n}-E sekundär", "Leiter-Erde-Spannung U{n} am Messeingang"},
              {"Voltage L{n}-E secondary", "Phase-to-earth voltage U{n} at the measuring input"}}),
    measured(2015, "U0", kSecondaryVoltage, "V",
             {{"Spannung U0 sekundär", "Verlagerungsspannung am Messeingang"},
              {"Voltage U0 secondary", "Neutral displacement voltage at the measuring input"}}),
    measured(2016, "I{1..3}", kSecondaryCurrent, "A",
             {{"Strom I{n} sekundär", "Leiterstrom I{n} am Messeingang"},
              {"Current I{n} secondary", "Phase current I{n} at the measuring input"}}),
    measured(2019, "I0", kSecondaryCurrent, "A",
             {{"Strom I0 sekundär", "Summenstrom am Messeingang"},
              {"Current I0 secondary", "Residual current at the measuring input"}}),
    measured(2020, "S{1..3}_prim", kPower, "kVA",
             {{"Scheinleistung S{n}", "Scheinleistung in Leiter L{n}, primär"},
              {"Apparent power S{n}", "Apparent power in phase L{n}, primary"}}),
    measured(2023, "S0_prim", kPower, "kVA",
             {{"Scheinleistung S0", "Scheinleistung des Nullsystems, primär"},
              {"Apparent power S0", "Zero-sequence apparent power, primary"}}),
    measured(2024, "P{1..3}_prim", kPower, "kW",
             {{"Wirkleistung P{n}", "Wirkleistung in Leiter L{n}, primär"},
              {"Active power P{n}", "Active power in phase L{n}, primary"}}),
    measured(2027, "P0_prim", kPower, "kW",
             {{"Wirkleistung P0", "Wirkleistung des Nullsystems, primär"},
              {"Active power P0", "Zero-sequence active power, primary"}}),
    measured(2028, "Q{1..3}_prim", kPower, "kvar",
             {{"Blindleistung Q{n}", "Blindleistung in Leiter L{n}, primär"},
              {"Reactive power Q{n}", "Reactive power in phase L{n}, primary"}}),
    measured(2031, "Q0_prim", kPower, "kvar",
             {{"Blindleistung Q0", "Blindleistung des Nullsystems, primär"},
              {"Reactive power Q0", "Zero-sequence reactive power, primary"}}),
    measured(2032, "U{12,23,31}_prim", kPrimaryVoltage, "kV",
             {{"Spannung U{n} primär", "Außenleiterspannung U{n}, primär"},
              {"Voltage U{n} primary", "Phase-to-phase voltage U{n}, primary"}}),
    measured(2035, "U{12,23,31}_sec", kSecondaryVoltage, "V",
             {{"Spannung U{n} sekundär", "Außenleiterspannung U{n}, sekundär"},
              {"Voltage U{n} secondary", "Phase-to-phase voltage U{n}, secondary"}}),
    measured(2038, "S_prim", kPower, "kVA",
             {{"Scheinleistung gesamt", "Scheinleistung der drei Leiter, primär"},
              {"Apparent power total", "Apparent power of the three phases, primary"}}),
    measured(2039, "P_prim", kPower, "kW",
             {{"Wirkleistung gesamt", "Wirkleistung der drei Leiter, primär"},
              {"Active power total", "Active power of the three phases, primary"}}),
    measured(2040, "Q_prim", kPower, "kvar",
             {{"Blindleistung gesamt", "Blindleistung der drei Leiter, primär"},
              {"Reactive power total", "Reactive power of the three phases, primary"}}),
    measured(2041, "COSPHI", kPowerFactor, "",
             {{"Leistungsfaktor", "Leistungsfaktor cos(phi) der drei Leiter"},
              {"Power factor", "Power factor cos(phi) of the three phases"}}),
    measured(2042, "I0earth_prim", kPrimaryCurrent, "A",
             {{"Erdschlussstrom", "Summenstrom im Erdschluss, primär"},
              {"Earth-fault current", "Residual current in an earth fault, primary"}}),
    measured(2043, "I{1..3}sc_prim", kFaultCurrent, "A",
             {{"Kurzschlussstrom I{n}", "Strom in Leiter L{n} im Kurzschluss, primär"},
              {"Short-circuit current I{n}", "Current in phase L{n} in a short circuit, primary"}}),
    measured(2046, "IEsc_prim", kFaultCurrent, "A",
             {{"Kurzschlussstrom IE", "Erdstrom im Kurzschluss, primär"},
              {"Short-circuit current IE", "Earth current in a short circuit, primary"}}),
    measured(2047, "U0_250_abs", kHarmonic, "kV", kU0("250 Hz")),
    measured(2048, "I0_250_abs", kHarmonic, "A", kI0("250 Hz")),
    measured(2049, "Y0_250_abs", kHarmonic, "", kAdmittanceY0("250 Hz")),
    measured(2050, "Y0_250_phi", kAngle, "°", kAngleY0("250 Hz")),
    measured(2051, "U0_f1_abs", kHarmonic, "kV", kU0("fx1")),
    measured(2052, "I0_f1_abs", kHarmonic, "A", kI0("fx1")),
    measured(2053, "Y0_f1_abs", kHarmonic, "", kAdmittanceY0("fx1")),
    measured(2054, "Y0_f1_phi", kAngle, "°", kAngleY0("fx1")),
    measured(2055, "U0_f2_abs", kHarmonic, "kV", kU0("fx2-")),
    measured(2056, "I0_f2_abs", kHarmonic, "A", kI0("fx2-")),
    measured(2057, "Y0_f2_abs", kHarmonic, "", kAdmittanceY0("fx2-")),
    measured(2058, "Y0_f2_phi", kAngle, "°", kAngleY0("fx2-")),
    measured(2059, "U0_f3_abs", kHarmonic, "kV", kU0("fx2+")),
    measured(2060, "I0_f3_abs", kHarmonic, "A", kI0("fx2+")),
    measured(2061, "Y0_f3_abs", kHarmonic, "", kAdmittanceY0("fx2+")),
    measured(2062, "Y0_f3_phi", kAngle, "°", kAngleY0("fx2+")),
    measured(2063, "f_grid", kFrequency, "Hz",
             {{"Netzfrequenz", "Gemessene Frequenz der Netzspannung"},
              {"System frequency", "Measured frequency of the system voltage"}}),
    measured(2064, "U_BE{1,2}_ac", kInputVoltage, "V",
             {{"Spannung BE{n} AC", "Wechselspannung an Binäreingang {n}"},
              {"Voltage BI{n} AC", "AC voltage at binary input {n}"}}),
    measured(2066, "U_BE{1,2}_dc", kInputVoltage, "V",
             {{"Spannung BE{n} DC", "Gleichspannung an Binäreingang {n}"},
              {"Voltage BI{n} DC", "DC voltage at binary input {n}"}}),
    measured(2068, "I0_max_stat", kPrimaryCurrent, "A",
             {{"Maximum I0", "Größter Summenstrom der Statistik, primär"},
              {"Maximum I0", "Largest residual current of the statistics, primary"}}),
    measured(2069, "I{1..3}_max_stat", kPrimaryCurrent, "A",
             {{"Maximum I{n}", "Größter Leiterstrom I{n} der Statistik, primär"},
              {"Maximum I{n}", "Largest phase current I{n} of the statistics, primary"}}),
    measured(2072, "I0_max_stat_c0", kPrimaryCurrent, "A", kMaximumI0Class("0")),
    measured(2073, "I{1..3}_max_stat_c0", kPrimaryCurrent, "A", kMaximumIClass("0")),
    measured(2076, "I0_max_stat_c1", kPrimaryCurrent, "A", kMaximumI0Class("1")),
    measured(2077, "I{1..3}_max_stat_c1", kPrimaryCurrent, "A", kMaximumIClass("1")),
    measured(2080, "I0_max_stat_c2", kPrimaryCurrent, "A", kMaximumI0Class("2")),
    measured(2081, "I{1..3}_max_stat_c2", kPrimaryCurrent, "A", kMaximumIClass("2")),
    measured(2084, "I0_max_stat_c3", kPrimaryCurrent, "A", kMaximumI0Class("3")),
    measured(2085, "I{1..3}_max_stat_c3", kPrimaryCurrent, "A", kMaximumIClass("3")),
    measured(2088, "I0_max_stat_c4", kPrimaryCurrent, "A", kMaximumI0Class("4")),
    measured(2089, "I{1..3}_max_stat_c4", kPrimaryCurrent, "A", kMaximumIClass("4")),
};

inline constexpr Note kMeasurementsNotes[] = {
    warning("U0_prim U0",
            "Ob der Wert die Verlagerungsspannung (ein Drittel der Summe der Leiter-Erde-Spannungen) oder "
            "die Summe ist, ist nicht dokumentiert; der Werkswert von knu0 spricht für das Drittel. Durch "
            "Einspeisen prüfen (Faktor 3).",
            "Whether the value is the neutral displacement voltage (a third of the sum of the phase-to-earth "
            "voltages) or the sum is not documented; the factory value of knu0 suggests the third. Check by "
            "injection (factor 3)."),
    unknown("I0_prim I0",
            "Summenstrom. Ob der Wert 3I0 oder ein Drittel davon ist, ist nicht dokumentiert; der Name "
            "3Io_calc spricht für 3I0. Durch Einspeisen eines Leiters prüfen (Faktor 3).",
            "Residual current. Whether the value is 3I0 or a third of it is not documented; the name "
            "3Io_calc suggests 3I0. Check by injecting current in one phase (factor 3)."),
    unknown(
        "phiUI{0..3} Y0_{250,f1,f2,f3}_phi mw_phi_{U,I}{0..3} mw_phi_UI{0..3}",
        "Zählrichtung und Bezug des Winkels sind nicht dokumentiert. An einer bekannten Lastrichtung prüfen.",
        "The sign convention and the reference of the angle are not documented. Check against a load of "
        "known direction."),
    unknown("U0_{250,f1,f2,f3}_abs I0_{250,f1,f2,f3}_abs", "Die Einheit (kV, A) ist angenommen.",
            "The unit (kV, A) is assumed."),
    unknown("Y0_{250,f1,f2,f3}_abs",
            "Einheit nicht dokumentiert; auch nicht, ob mit 3I0 oder I0 gebildet (Faktor 3).",
            "The unit is not documented, nor whether 3I0 or I0 is used (factor 3)."),
    unknown("{U0,I0,Y0}_{f2,f3}_abs Y0_{f2,f3}_phi",
            "Dass f2 für fx2- und f3 für fx2+ steht, ist aus der Reihenfolge geschlossen.",
            "That f2 stands for fx2- and f3 for fx2+ is inferred from the order."),
    advice("U{1,2,3,12,23,31}_prim U0_prim calib_U12_mess", "In kV; die Nennspannung U12 steht in V.",
           "In kV; the nominal voltage U12 is in V."),
};

} // namespace talux::parameters

#endif
