// Voltage and current inputs: assignment, transformer ratios, corrections, calibration. Channel 0 is the
// residual one.
#ifndef TALUX_PARAMETERS_ANALOG_INPUTS_H
#define TALUX_PARAMETERS_ANALOG_INPUTS_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kUAssignment{{"Zuordnung U{n}", "Kanalzuordnung von U{n}, Zahl 1 bis 5"},
                                    {"U{n} assignment", "Channel assignment of U{n}, number 1 to 5"}};
inline constexpr Words kVTRatioU{
    {"Wandlerübersetzung U{n}", "Übersetzung des Spannungswandlers in Leiter L{n}, primär zu sekundär"},
    {"VT ratio U{n}", "Ratio of the voltage transformer in phase L{n}, primary to secondary"}};
inline constexpr Words kUSecondaryReference{
    {"Sekundärbezug U{n}", "Sekundäre Bezugsspannung des Eingangs für Leiter L{n}"},
    {"U{n} secondary reference", "Secondary reference voltage of the input for phase L{n}"}};
inline constexpr Words kUInputFactor{{"Eingangsfaktor U{n}", "Faktor des Spannungseingangs für Leiter L{n}"},
                                     {"U{n} input factor", "Factor of the voltage input for phase L{n}"}};
inline constexpr Words kUAngleCorrection{
    {"Winkelkorrektur U{n}", "Korrektur des Fehlwinkels des Spannungswandlers in Leiter L{n}"},
    {"U{n} angle correction", "Corrects the phase displacement of the VT in phase L{n}"}};
inline constexpr Words kUPolarity{
    {"Polarität U{n}",
     "+ wie angeschlossen; - kehrt U{n} um, etwa bei vertauschten Anschlüssen des Spannungswandlers", "+|-"},
    {"U{n} polarity", "+ as connected; - reverses U{n}, for instance if the terminals of the VT are swapped",
     "+|-"}};
inline constexpr Words kIAssignment{{"Zuordnung I{n}", "Kanalzuordnung von I{n}, Zahl 0 bis 5"},
                                    {"I{n} assignment", "Channel assignment of I{n}, number 0 to 5"}};
inline constexpr Words kCTRatioI{
    {"Wandlerübersetzung I{n}", "Übersetzung des Stromwandlers in Leiter L{n}, primär zu sekundär"},
    {"CT ratio I{n}", "Ratio of the current transformer in phase L{n}, primary to secondary"}};
inline constexpr Words kISecondaryReference{
    {"Sekundärbezug I{n}", "Sekundärer Bezugsstrom des Eingangs für Leiter L{n}"},
    {"I{n} secondary reference", "Secondary reference current of the input for phase L{n}"}};
inline constexpr Words kIInputFactor{{"Eingangsfaktor I{n}", "Faktor des Stromeingangs für Leiter L{n}"},
                                     {"I{n} input factor", "Factor of the current input for phase L{n}"}};
inline constexpr Words kIAngleCorrection{
    {"Winkelkorrektur I{n}", "Korrektur des Fehlwinkels des Stromwandlers in Leiter L{n}"},
    {"I{n} angle correction", "Corrects the phase displacement of the CT in phase L{n}"}};
inline constexpr Words kIPolarity{
    {"Polarität I{n}",
     "+ wie angeschlossen; - kehrt I{n} um, etwa bei vertauschten Anschlüssen des Stromwandlers", "+|-"},
    {"I{n} polarity", "+ as connected; - reverses I{n}, for instance if the terminals of the CT are swapped",
     "+|-"}};

inline constexpr Row kAnalogInputsRows[] = {
    choice(10043, "frequency", {.choices = 2, .min = 1},
           {{"Nennfrequenz", "Nennfrequenz des Netzes, Zahl 1 oder 2"},
            {"Nominal frequency", "Nominal frequency of the system, number 1 or 2"}}),
    flag(8066, "freq_U0_active", {},
         {{"Frequenz aus U0", "Verlagerungsspannung zur Frequenzmessung heranziehen"},
          {"Frequency from U0", "Use the neutral displacement voltage for the frequency measurement"}}),
    flag(8067, "freq_U{1..3}_active", {.def = kOn},
         {{"Frequenz aus U{n}", "Leiter-Erde-Spannung L{n} zur Frequenzmessung heranziehen"},
          {"Frequency from U{n}", "Use the phase-to-earth voltage L{n} for the frequency measurement"}}),
    number(6972, "f50_sync", {},
           {{"Frequenznachführung", "Nachführung der Messung auf die Netzfrequenz"},
            {"Frequency tracking", "Tracking of the system frequency by the measurement"}}),
    decimal(2092, "U12", {.def = 20000, .min = 10, .max = 900000, .unit = "V"},
            {{"Nennspannung U12", "Nennspannung des Netzes zwischen den Außenleitern, primär"},
             {"U12 nominal voltage", "Nominal phase-to-phase voltage of the system, primary"}}),
    choice(10044, "Uassign1", {.choices = 5, .min = 1, .def = 3}, kUAssignment("1")),
    decimal(2093, "knu1", {.def = 200, .min = 0.1, .max = 90000}, kVTRatioU("1")),
    decimal(2094, "U1_sek_ref", {.def = 100, .unit = "V"}, kUSecondaryReference("1")),
    decimal(2095, "knuV1", {.def = 201, .min = 0.001, .max = 90000, .is = kIndividual}, kUInputFactor("1")),
    decimal(2096, "phi_corr_U1", {.def = 0, .min = -7, .max = 7, .step = 0.1, .unit = "°", .is = kIndividual},
            kUAngleCorrection("1")),
    choice(10045, "Upol1", {.names = "Plus|Minus", .min = 1}, kUPolarity("1")),
    choice(10046, "Uassign2", {.choices = 5, .min = 1, .def = 4}, kUAssignment("2")),
    decimal(2097, "knu2", {.def = 200, .min = 0.1, .max = 90000}, kVTRatioU("2")),
    decimal(2098, "U2_sek_ref", {.def = 100, .unit = "V"}, kUSecondaryReference("2")),
    decimal(2099, "knuV2", {.def = 201, .min = 0.001, .max = 90000, .is = kIndividual}, kUInputFactor("2")),
    decimal(2100, "phi_corr_U2", {.def = 0, .min = -7, .max = 7, .step = 0.1, .unit = "°", .is = kIndividual},
            kUAngleCorrection("2")),
    choice(10047, "Upol2", {.names = "Plus|Minus", .min = 1}, kUPolarity("2")),
    choice(10048, "Uassign3", {.choices = 5, .min = 1, .def = 5}, kUAssignment("3")),
    decimal(2101, "knu3", {.def = 200, .min = 0.1, .max = 90000}, kVTRatioU("3")),
    decimal(2102, "U3_sek_ref", {.def = 100, .unit = "V"}, kUSecondaryReference("3")),
    decimal(2103, "knuV3", {.def = 201, .min = 0.001, .max = 90000, .is = kIndividual}, kUInputFactor("3")),
    decimal(2104, "phi_corr_U3", {.def = 0, .min = -7, .max = 7, .step = 0.1, .unit = "°", .is = kIndividual},
            kUAngleCorrection("3")),
    choice(10049, "Upol3", {.names = "Plus|Minus", .min = 1}, kUPolarity("3")),
    choice(10050, "Uassign0", {.choices = 5, .min = 1, .def = 2}, kUAssignment("0")),
    decimal(
        2105, "knu0", {.def = 115, .min = 0.1, .max = 90000},
        {{"Wandlerübersetzung U0",
          "Übersetzung für die Verlagerungsspannung, etwa der offenen Dreieckswicklung, primär zu sekundär"},
         {"VT ratio U0", "Ratio for the neutral displacement voltage, for instance of the open-delta "
                         "winding, primary to secondary"}}),
    decimal(2106, "U0_sek_ref", {.def = 100, .unit = "V"},
            {{"Sekundärbezug U0", "Sekundäre Bezugsspannung des Eingangs für die Verlagerungsspannung"},
             {"U0 secondary reference",
              "Secondary reference voltage of the input for the neutral displacement voltage"}}),
    decimal(2107, "knuV0", {.def = 201, .min = 0.001, .max = 90000, .is = kIndividual},
            {{"Eingangsfaktor U0", "Faktor des Eingangs für die Verlagerungsspannung"},
             {"U0 input factor", "Factor of the input for the neutral displacement voltage"}}),
    decimal(2108, "phi_corr_U0", {.def = 0, .min = -7, .max = 7, .step = 0.1, .unit = "°", .is = kIndividual},
            {{"Winkelkorrektur U0",
              "Korrektur des Fehlwinkels des Spannungswandlers für die Verlagerungsspannung"},
             {"U0 angle correction",
              "Corrects the phase displacement of the VT for the neutral displacement voltage"}}),
    choice(10051, "Upol0", {.names = "Plus|Minus", .min = 1}, kUPolarity("0")),
    flag(8070, "Uen_calc", {},
         {{"U0 berechnen", "Verlagerungsspannung aus den drei Leiter-Erde-Spannungen berechnen statt messen"},
          {"Calculate U0", "Calculate the neutral displacement voltage from the three phase-to-earth "
                           "voltages instead of measuring it"}}),

    decimal(2109, "calib_U12_mess", {.def = 20, .min = 0.05, .max = 120, .step = 0.05, .unit = "kV"},
            {{"Abgleich U12 gemessen", "Beim Abgleich gemessene Außenleiterspannung U12"},
             {"U12 calibration measured", "Phase-to-phase voltage U12 measured during the calibration"}}),
    flag(8071, "calib_start", {.is = kRuntime}, {{"Abgleich gestartet"}, {"Calibration started"}}),
    command(19006, "StartCalibration", {},
            {{"Abgleich starten", "Abgleich der Spannungseingänge beginnen", "Bitte warten..."},
             {"Start calibration", "Begin to calibrate the voltage inputs", "Please wait..."}}),
    number(6973, "calib_confirm", {.is = kRuntime}, {{"Abgleich bestätigt"}, {"Calibration confirmed"}}),
    decimal(2110, "calib_U12_soll", {.def = 100, .min = 60, .max = 140, .unit = "%"},
            {{"Abgleich U12 Sollwert", "Spannung, die beim Abgleich anliegen soll"},
             {"U12 calibration setpoint", "Voltage that should be applied for the calibration"}}),
    decimal(2111, "calib_U12_min", {.def = 10, .min = 3, .max = 95, .unit = "%"},
            {{"Abgleich U12 Minimum", "Kleinste Spannung für einen Abgleich"},
             {"U12 calibration minimum", "Smallest voltage for a calibration"}}),
    decimal(2112, "calib_U12_max", {.def = 150, .min = 100, .max = 300, .unit = "%"},
            {{"Abgleich U12 Maximum", "Größte Spannung für einen Abgleich"},
             {"U12 calibration maximum", "Largest voltage for a calibration"}}),
    decimal(2113, "calib_U{1..3}e_new", {.min = 10, .max = 120.8, .is = kRuntime | kIndividual},
            {{"Neuer Abgleichwert U{n}e"}, {"U{n}e new calibration"}}),

    decimal(
        2116, "U_sec_valid", {.def = 1, .min = 0.1, .max = 10, .unit = "V"},
        {{"Sekundärspannung gültig", "Spannung am Messeingang, ab der die Messung gilt"},
         {"Secondary voltage valid", "Voltage at the measuring input above which the measurement is valid"}}),
    choice(10052, "Iassign1", {.choices = 5, .min = 0, .def = 3}, kIAssignment("1")),
    decimal(2117, "kni1", {.like = kCtRatio, .def = 100, .min = 0.1, .max = 90000}, kCTRatioI("1")),
    decimal(2118, "I1_sek_ref", {.def = 1, .unit = "A"}, kISecondaryReference("1")),
    decimal(2119, "kniV1", {.def = 0.7722, .min = 0.001, .max = 90000, .is = kIndividual},
            kIInputFactor("1")),
    decimal(2120, "phi_corr_I1", {.def = 0, .min = -7, .max = 7, .step = 0.1, .unit = "°", .is = kIndividual},
            kIAngleCorrection("1")),
    choice(10053, "Ipol1", {.names = "Plus|Minus", .min = 1}, kIPolarity("1")),
    choice(10054, "Iassign2", {.choices = 5, .min = 0, .def = 4}, kIAssignment("2")),
    decimal(2121, "kni2", {.like = kCtRatio, .def = 100, .min = 0.1, .max = 90000}, kCTRatioI("2")),
    decimal(2122, "I2_sek_ref", {.def = 1, .unit = "A"}, kISecondaryReference("2")),
    decimal(2123, "kniV2", {.def = 0.7722, .min = 0.001, .max = 90000, .is = kIndividual},
            kIInputFactor("2")),
    decimal(2124, "phi_corr_I2", {.def = 0, .min = -7, .max = 7, .step = 0.1, .unit = "°", .is = kIndividual},
            kIAngleCorrection("2")),
    choice(10055, "Ipol2", {.names = "Plus|Minus", .min = 1}, kIPolarity("2")),
    choice(10056, "Iassign3", {.choices = 5, .min = 0, .def = 5}, kIAssignment("3")),
    decimal(2125, "kni3", {.like = kCtRatio, .def = 100, .min = 0.1, .max = 90000}, kCTRatioI("3")),
    decimal(2126, "I3_sek_ref", {.def = 1, .unit = "A"}, kISecondaryReference("3")),
    decimal(2127, "kniV3", {.def = 0.7722, .min = 0.001, .max = 90000, .is = kIndividual},
            kIInputFactor("3")),
    decimal(2128, "phi_corr_I3", {.def = 0, .min = -7, .max = 7, .step = 0.1, .unit = "°", .is = kIndividual},
            kIAngleCorrection("3")),
    choice(10057, "Ipol3", {.names = "Plus|Minus", .min = 1}, kIPolarity("3")),
    choice(10058, "Iassign0", {.choices = 5, .min = 0, .def = 2}, kIAssignment("0")),
    decimal(2129, "kni0", {.like = kCtRatio, .def = 100, .min = 0.1, .max = 90000},
            {{"Wandlerübersetzung I0",
              "Übersetzung des Wandlers für den Summenstrom, etwa eines Kabelumbauwandlers"},
             {"CT ratio I0",
              "Ratio of the transformer for the residual current, for instance a core-balance CT"}}),
    decimal(
        2130, "I0_sek_ref", {.def = 1, .unit = "A"},
        {{"Sekundärbezug I0", "Sekundärer Bezugsstrom des Eingangs für den Summenstrom"},
         {"I0 secondary reference", "Secondary reference current of the input for the residual current"}}),
    decimal(2131, "kniV0", {.def = 0.7722, .min = 0.001, .max = 90000, .is = kIndividual},
            {{"Eingangsfaktor I0", "Faktor des Eingangs für den Summenstrom"},
             {"I0 input factor", "Factor of the input for the residual current"}}),
    decimal(2132, "phi_corr_I0", {.def = 0, .min = -7, .max = 7, .step = 0.1, .unit = "°", .is = kIndividual},
            {{"Winkelkorrektur I0", "Korrektur des Fehlwinkels des Stromwandlers für den Summenstrom"},
             {"I0 angle correction", "Corrects the phase displacement of the CT for the residual current"}}),
    choice(10059, "Ipol0", {.names = "Plus|Minus", .min = 1}, kIPolarity("0")),
    flag(8072, "3Io_calc", {},
         {{"3I0 berechnen", "Summenstrom aus den drei Leiterströmen berechnen statt messen"},
          {"Calculate 3I0",
           "Calculate the residual current from the three phase currents instead of measuring it"}}),
    decimal(
        2133, "I_sec_valid", {.def = 0.001, .min = 0.001, .max = 0.01, .unit = "A"},
        {{"Sekundärstrom gültig", "Strom am Messeingang, ab dem die Messung gilt"},
         {"Secondary current valid", "Current at the measuring input above which the measurement is valid"}}),
};

inline constexpr Note kAnalogInputsNotes[] = {
    unknown("frequency",
            "1 oder 2 wird an die Messung weitergegeben; welche Zahl für welche Nennfrequenz steht, ist "
            "nicht dokumentiert. Die Frequenzüberwachung hat mit freq_f_grid einen eigenen Bezugswert.",
            "1 or 2 is passed on to the measurement; which number stands for which nominal frequency is not "
            "documented. The frequency supervision has its own reference, freq_f_grid."),
    unknown("Uassign{1,2,3,0} Iassign{1,2,3,0}",
            "Die Zahl wird an die Messung weitergegeben. Ob sie den Eingang der Größe oder die Größe am "
            "Eingang nennt, ist nicht dokumentiert.",
            "The number is passed on to the measurement. Whether it names the input of the quantity or the "
            "quantity at the input is not documented."),
    unknown("f50_sync", "Zahl, wird an die Messung weitergegeben; ihre Bedeutung ist nicht dokumentiert.",
            "Number, passed on to the measurement; its meaning is not documented."),
    unknown(
        "U12",
        "Ob und welche Prozentwerte (etwa Uearth) sich auf diese Spannung beziehen, ist nicht dokumentiert.",
        "Whether any percentages (such as Uearth), and which, refer to this voltage is not documented."),
    advice("knu0",
           "Der Werkswert passt zu 20 kV / √3 auf 100 V, also zu einer offenen Dreieckswicklung, die bei "
           "sattem Erdschluss 100 V liefert. Für andere Wandler neu berechnen.",
           "The factory value fits 20 kV / √3 to 100 V, an open-delta winding that delivers 100 V in a solid "
           "earth fault. Recalculate it for other transformers."),
    unknown("Uen_calc 3Io_calc",
            "Welche Übersetzung und welche Polarität dann für Kanal 0 gelten, ist nicht dokumentiert.",
            "Which ratio and polarity then apply to channel 0 is not documented."),
    warning("knuV{1,2,3,0} kniV{1,2,3,0} BE_knuV_{1..2}",
            "Ob der Faktor für jedes Gerät einzeln abgeglichen ist, ist nicht dokumentiert; nicht ungeprüft "
            "von einem anderen Gerät übernehmen.",
            "Whether the factor is calibrated for the individual device is not documented; do not copy it "
            "from another device unchecked."),
    warning(
        "phi_corr_{U,I}{0..3}",
        "Das Vorzeichen ist nicht dokumentiert; ein falsches verdoppelt den Fehler. Durch Einspeisen prüfen.",
        "The sign is not documented; a wrong sign doubles the error. Check by injection."),
    unknown("U_sec_valid I_sec_valid",
            "Die Einheit ist angenommen; was unter dieser Schwelle nicht mehr gilt, ist nicht dokumentiert.",
            "The unit is assumed; what is no longer valid below this threshold is not documented."),
    unknown("calib_U12_soll calib_U12_min calib_U12_max",
            "Worauf sich die Prozente beziehen, ist nicht dokumentiert.",
            "What the percentages refer to is not documented."),
    unknown("calib_U{1..3}e_new", "Einheit nicht dokumentiert.", "The unit is not documented."),
};

} // namespace talux::parameters

#endif
