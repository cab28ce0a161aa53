// Earth-fault and short-circuit detection: thresholds and methods. Currents are primary (A), angles in
// degrees, times in seconds where nothing else is said.
#ifndef TALUX_PARAMETERS_EARTH_FAULT_H
#define TALUX_PARAMETERS_EARTH_FAULT_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

constexpr Row duration(int id, const char* name, double def, Place of, const Words& words,
                       Where where = Where::current()) {
    return decimal(id, name, {.def = def, .min = 0, .max = 86400, .unit = "s", .of = of}, words, where);
}

// What several rows say alike.
inline constexpr Words kSignalDuration{
    {"Meldedauer {n}", "Meldedauer nach einem Richtungsentscheid von {n}"},
    {"{n} signal duration", "Time for which a direction decision of {n} is signalled"}};
inline constexpr Words kLEDDuration{
    {"LED-Dauer {n}", "Anzeigedauer der LED nach einem Richtungsentscheid von {n}"},
    {"{n} LED duration", "Time for which an LED shows the direction decision of {n}"}};
inline constexpr Words kLCDLogbook{
    {"LCD-Logbuch {n}", "Meldungen von {n} im Logbuch der Anzeige zeigen"},
    {"{n} LCD logbook", "Show the signals of {n} in the logbook of the display"}};
inline constexpr Words kLogCycles{
    {"{n}: Zyklen loggen", "Schalter: auch die einzelnen Zyklen von {n} in das Logbuch schreiben"},
    {"{n}: log cycles", "Switch: also write the single cycles of {n} to the logbook"}};
inline constexpr Words kLogInterval{
    {"Logbuchabstand {n}", "Kleinster Abstand zweier Logbucheinträge von {n}"},
    {"{n} log interval", "Shortest time between two logbook entries of {n}"}};
inline constexpr Words kLimitAngle{{"Grenzwinkel {n}", "Winkelgrenze für einen Richtungsentscheid von {n}"},
                                   {"{n} limit angle", "Limit angle for a direction decision of {n}"}};
inline constexpr Words kCycles{{"Zyklen {n}", "Zahl der Zyklen, ab der {n} entscheidet"},
                               {"{n} cycles", "Number of cycles for a decision of {n}"}};
inline constexpr Words kSignalDelay{
    {"Verzögerung {n}", "Zeit, die der Richtungsentscheid von {n} anstehen muss, bevor gemeldet wird"},
    {"{n} delay", "Time for which the direction decision of {n} must persist before it is signalled"}};
inline constexpr Words kAdmittanceIMin{
    {"Admittanz I min {n}", "Primärer Mindest-Summenstrom {n} der Admittanz"},
    {"Admittance I min {n}", "Primary minimum residual current {n} of the admittance"}};
inline constexpr Words kMinimumAngle{
    {"Mindestwinkel {n}", "Kleinster Winkel w für einen Richtungsentscheid von {n}"},
    {"{n} minimum angle", "Smallest angle w for a direction decision of {n}"}};
inline constexpr Words kCosSinPhiAngle{{"Winkel {n} CosSin(phi)", "Grenzwinkel {n} der Richtungsbestimmung"},
                                       {"CosSin(phi) angle {n}", "Limit angle {n} for the direction"}};
inline constexpr Words kSignalDelayOfEarthFault{
    {"Verzögerung {n}", "Zeit, die das Ergebnis von {n} anstehen muss, bevor gemeldet wird"},
    {"{n} delay", "Time for which the result of {n} must persist before it is signalled"}};
inline constexpr Words kHoldTime{{"Haltezeit {n}", "Haltezeit der Meldung von {n}"},
                                 {"{n} hold time", "Time for which the signal of {n} is held"}};
inline constexpr Words kLEDHoldTime{{"LED-Haltezeit {n}", "Haltezeit der LED für die Meldung von {n}"},
                                    {"{n} LED hold time", "Time for which an LED holds the signal of {n}"}};
inline constexpr Words kSCClassActive{
    {"KS-Klasse {n} aktiv", "Klasse {n} der Kurzschlussanzeige (Leiterströme) verwenden"},
    {"SC class {n} active", "Use class {n} of the short-circuit indication (phase currents)"}};
inline constexpr Words kShortCircuitIMin{
    {"Kurzschluss I min {n}", "Primärer Leiterstrom, ab dem die Kurzschlussklasse {n} anspricht"},
    {"Short circuit I min {n}", "Primary phase current above which short-circuit class {n} picks up"}};
inline constexpr Words kShortCircuitTMin{
    {"Kurzschluss T min {n}", "Zeit, die der Überstrom der Kurzschlussklasse {n} anstehen muss"},
    {"Short circuit T min {n}", "Time for which the overcurrent of short-circuit class {n} must persist"}};

inline constexpr Row kEarthFaultRows[] = {
    // general thresholds in percent
    decimal(2146, "U123ok", {.def = 80, .min = 1, .max = 90, .unit = "%", .of = {kUearth, kThreshold}},
            {{"Schwelle gesunder Leiter", "Leiter-Erde-Spannung, über der ein Leiter als gesund gilt"},
             {"Healthy phase threshold", "Phase-to-earth voltage above which a phase counts as healthy"}}),
    decimal(
        2147, "U123erd", {.def = 20, .min = 1, .max = 90, .unit = "%", .of = {kUearth, kThreshold}},
        {{"Schwelle Fehlerleiter", "Leiter-Erde-Spannung, unter der ein Leiter als erdschlussbehaftet gilt"},
         {"Faulty phase threshold", "Phase-to-earth voltage below which a phase counts as the faulty one"}}),
    decimal(2148, "Uearth", {.def = 30, .min = 1, .max = 90, .unit = "%", .of = {kUearth, kThreshold}},
            {{"Schwelle Erdschluss U0", "Verlagerungsspannung, ab der ein Erdschluss gemeldet wird"},
             {"Earth-fault threshold U0",
              "Neutral displacement voltage above which an earth fault is signalled"}}),
    duration(2149, "Uearth_SigDel", 1, {kUearth, kDelay},
             {{"Verzögerung >Uerd", "Zeit, die die Verlagerungsspannung anstehen muss, bevor gemeldet wird"},
              {">Uearth delay",
               "Time for which the neutral displacement voltage must persist before it is signalled"}}),
    duration(2150, "Uearth_SigDur", 0, {kUearth, kDuration},
             {{"Meldedauer >Uerd", "Meldedauer nach einem Erdschluss"},
              {">Uearth signal duration", "Time for which an earth fault is signalled"}}),
    duration(2151, "Uearth_SigDur_LED", 0, {kUearth, kDuration},
             {{"LED-Dauer >Uerd", "Anzeigedauer der LED nach einem Erdschluss"},
              {">Uearth LED duration", "Time for which an LED shows the earth fault"}}),
    choice(10118, "prio_list_{1..10}", {.like = kPriorityFunction, .min = 1, .of = {kPriorities, kSetting}},
           {{"Prioritätsliste Platz {n}", "Verfahren auf Platz {n} der Prioritätenliste"},
            {"Priority list place {n}", "Detection method in place {n} of the priority list"}}),

    // transient
    flag(8074, "qu2_active", {.def = kOn, .of = {kQu2, kEnable}},
         {{"Wischer qu2 aktiv", "Richtungsbestimmung aus dem Umladevorgang bei Erdschlusseintritt"},
          {"Transient qu2 active", "Direction from the charging transient at the start of the earth fault"}}),
    decimal(
        2152, "qu2_Ice", {.def = 5, .unit = "A", .of = {kQu2, kThreshold}},
        {{"Mindeststrom qu2", "Primärer kapazitiver Erdschlussstrom, ab dem der Wischer ausgewertet wird"},
         {"qu2 minimum current",
          "Primary capacitive earth-fault current above which the transient is evaluated"}}),
    decimal(2153, "qu2_rot_grad_min", {.def = 50, .of = {kQu2, kThreshold}},
            {{"Mindestdrehung qu2", "Kleinste Drehung (rot_grad), die das Wischerverfahren auswertet"},
             {"qu2 minimum rotation", "Smallest rotation (rot_grad) that the transient method evaluates"}}),
    decimal(2154, "U_Hz_proz", {.def = 30, .unit = "%", .of = {kQu2, kThreshold}},
            {{"Wischer Schwelle U_Hz", "Spannungsschwelle U_Hz des Wischerverfahrens"},
             {"Transient U_Hz threshold", "Voltage threshold U_Hz of the transient method"}}),
    decimal(2155, "preBuff_Umin", {.def = 0.2, .of = {kQu2, kThreshold}},
            {{"Vorgeschichte U min", "Mindestspannung in der Vorgeschichte des Wischers"},
             {"Pre-fault U min", "Minimum voltage in the pre-fault buffer of the transient"}}),
    decimal(2156, "preBuff_dUo", {.def = 0.2, .of = {kQu2, kThreshold}},
            {{"Vorgeschichte dU0", "Änderung der Verlagerungsspannung in der Vorgeschichte des Wischers"},
             {"Pre-fault dU0",
              "Change of the neutral displacement voltage in the pre-fault buffer of the transient"}}),
    flag(8075, "qu2_DE_active", {.def = kOn, .of = {kQu2, kEnable}},
         {{"Dauererdschluss aktiv", "Dauererdschluss mit dem Wischerverfahren melden (qu2_CE)"},
          {"Sustained fault active", "Signal a sustained earth fault with the transient method (qu2_CE)"}}),
    decimal(2157, "DE_t", {.def = 1, .unit = "s", .of = {kQu2, kDelay}},
            {{"Zeit Dauererdschluss", "Zeit, nach der ein anstehender Erdschluss als Dauererdschluss gilt"},
             {"Sustained fault time", "Time after which a persisting earth fault counts as sustained"}}),
    duration(2158, "qu2_SigDur", 0, {kQu2, kDuration}, kSignalDuration("qu2")),
    duration(2159, "qu2_SigDur_LED", 0, {kQu2, kDuration}, kLEDDuration("qu2")),
    flag(8076, "qu2_MsgResetEf", {.of = {kQu2, kSetting}},
         {{"Meldung qu2 rücksetzen", "Wischermeldung mit dem Erdschluss zurücksetzen"},
          {"qu2 signal reset", "Reset the transient's signal with the earth fault"}}),
    choice(10128, "qu_signalling", {.choices = 3, .min = 2, .def = 2, .of = {kQu2, kSetting}},
           {{"Art der Wischermeldung", "Art, in der ein Wischer gemeldet wird, Zahl 2 oder 3"},
            {"Transient signalling", "Way in which a transient is signalled, number 2 or 3"}}),
    flag(8077, "LCD_log_active_qu2", {.of = {kQu2, kLog}}, kLCDLogbook("qu2")),

    // qui
    flag(8078, "qui_active", {.def = kOn, .of = {kQui, kEnable}},
         {{"qui aktiv", "Richtungsbestimmung bei intermittierenden und wiederzündenden Erdschlüssen"},
          {"qui active", "Direction for intermittent and restriking earth faults"}}),
    decimal(2160, "qui_dUo", {.def = 15, .unit = "%", .of = {kQui, kThreshold}},
            {{"Schwelle dU0 qui",
              "Änderung der Verlagerungsspannung, bezogen auf Unenn, die eine Zündung anzeigt"},
             {"qui dU0 threshold",
              "Change of the neutral displacement voltage, relative to Unom, that marks an ignition"}}),
    decimal(
        2161, "qui_Ice", {.def = 5, .unit = "A", .of = {kQui, kThreshold}},
        {{"Mindeststrom qui", "Primärer kapazitiver Erdschlussstrom, ab dem eine Zündung ausgewertet wird"},
         {"qui minimum current",
          "Primary capacitive earth-fault current above which an ignition is evaluated"}}),
    number(6974, "qui_T_super", {.def = 400, .unit = "ms", .of = {kQui, kSetting}},
           {{"Beobachtungszeit qui", "Zeit, über die Zündungen beobachtet werden"},
            {"qui supervision time", "Time for which ignitions are supervised"}}),
    number(6975, "qui_n", {.def = 2, .of = {kQui, kSetting}},
           {{"Anzahl Zündungen qui", "Zahl der Zündungen, ab der gemeldet wird"},
            {"qui number of ignitions", "Number of ignitions needed for a signal"}}),
    duration(2162, "qui_SigDur", 0, {kQui, kDuration}, kSignalDuration("qui")),
    duration(2163, "qui_SigDur_LED", 0, {kQui, kDuration}, kLEDDuration("qui")),
    flag(8079, "LCD_log_active_qui", {.of = {kQui, kLog}}, kLCDLogbook("qui")),
    flag(8080, "qui_log_cycle", {.of = {kQui, kLog}}, kLogCycles("qui")),
    decimal(2164, "qui_dT_log", {.def = 60, .unit = "s", .of = {kQui, kLog}}, kLogInterval("qui")),

    // fifth harmonic
    flag(8081, "harm1_active", {.of = {kHarm1, kEnable}},
         {{"H250 aktiv", "Richtungsbestimmung aus der 250-Hz-Oberschwingung (harm1, ov5)"},
          {"H250 active", "Direction from the 250 Hz harmonic (harm1, ov5)"}}),
    decimal(2165, "harm1_Umin", {.def = 0.5, .unit = "%", .of = {kHarm1, kThreshold}},
            {{"Mindestspannung H250", "250-Hz-Anteil der Verlagerungsspannung, ab dem ausgewertet wird"},
             {"H250 minimum voltage",
              "250 Hz component of the neutral displacement voltage above which it is evaluated"}}),
    decimal(2166, "harm1_Ice", {.def = 1, .unit = "A", .of = {kHarm1, kThreshold}},
            {{"Mindeststrom H250", "Primärer 250-Hz-Anteil des Summenstroms, ab dem ausgewertet wird"},
             {"H250 minimum current",
              "Primary 250 Hz component of the residual current above which it is evaluated"}}),
    decimal(2167, "harm1_angle", {.def = 5, .unit = "°", .of = {kHarm1, kSetting}}, kLimitAngle("H250")),
    number(6976, "harm1_cycle", {.def = 5, .of = {kHarm1, kSetting}}, kCycles("H250")),
    duration(2168, "harm1_SigDel", 0, {kHarm1, kDelay}, kSignalDelay("H250")),
    duration(2169, "harm1_SigDur", 0, {kHarm1, kDuration}, kSignalDuration("H250")),
    duration(2170, "harm1_SigDur_LED", 0, {kHarm1, kDuration}, kLEDDuration("H250")),
    flag(8082, "LCD_log_active_ov5", {.of = {kHarm1, kLog}}, kLCDLogbook("H250")),
    flag(8083, "harm1_log_cycle", {.of = {kHarm1, kLog}}, kLogCycles("H250")),
    decimal(2171, "harm1_dT_log", {.unit = "s", .of = {kHarm1, kLog}}, kLogInterval("H250")),

    // harmonic of a settable frequency
    flag(8084, "harm2_active", {.of = {kHarm2, kEnable}},
         {{"H fx1 aktiv", "Richtungsbestimmung aus einer Oberschwingung einstellbarer Frequenz (harm2, ovx)"},
          {"H fx1 active", "Direction from a harmonic of settable frequency (harm2, ovx)"}}),
    decimal(2172, "harm2_f", {.def = 217, .unit = "Hz", .of = {kHarm2, kSetting}},
            {{"Frequenz fx1", "Frequenz der ausgewerteten Oberschwingung, etwa die einer Rundsteuerung"},
             {"fx1 frequency", "Frequency of the evaluated harmonic, such as that of a ripple control"}}),
    decimal(2173, "harm2_Umin", {.def = 0.5, .unit = "%", .of = {kHarm2, kThreshold}},
            {{"Mindestspannung H fx1", "fx1-Anteil der Verlagerungsspannung, ab dem ausgewertet wird"},
             {"H fx1 minimum voltage",
              "fx1 component of the neutral displacement voltage above which it is evaluated"}}),
    decimal(2174, "harm2_Ice", {.def = 3, .unit = "A", .of = {kHarm2, kThreshold}},
            {{"Mindeststrom H fx1", "Primärer fx1-Anteil des Summenstroms, ab dem ausgewertet wird"},
             {"H fx1 minimum current",
              "Primary fx1 component of the residual current above which it is evaluated"}}),
    decimal(2175, "harm2_angle", {.def = 5, .unit = "°", .of = {kHarm2, kSetting}}, kLimitAngle("H fx1")),
    number(6977, "harm2_cycle", {.def = 5, .of = {kHarm2, kSetting}}, kCycles("H fx1")),
    duration(2176, "harm2_SigDel", 0, {kHarm2, kDelay}, kSignalDelay("H fx1")),
    duration(2177, "harm2_SigDur", 5, {kHarm2, kDuration}, kSignalDuration("H fx1")),
    duration(2178, "harm2_SigDur_LED", 0, {kHarm2, kDuration}, kLEDDuration("H fx1")),
    flag(8085, "LCD_log_active_ovx", {.of = {kHarm2, kLog}}, kLCDLogbook("H fx1")),
    flag(8086, "harm2_log_cycle", {.of = {kHarm2, kLog}}, kLogCycles("H fx1")),
    decimal(2179, "harm2_dT_log", {.unit = "s", .of = {kHarm2, kLog}}, kLogInterval("H fx1")),

    // admittance
    flag(8087, "adm_active", {.of = {kAdm, kEnable}},
         {{"Admittanz aktiv", "Richtungsbestimmung aus der Nulladmittanz im Frequenzband fx2"},
          {"Admittance active", "Direction from the zero-sequence admittance in the frequency band fx2"}}),
    decimal(2180, "adm_I_min_1", {.def = 1, .unit = "A", .of = {kAdm, kThreshold}}, kAdmittanceIMin("1")),
    decimal(2181, "adm_I_min_2", {.def = 3, .unit = "A", .of = {kAdm, kThreshold}}, kAdmittanceIMin("2")),
    decimal(2182, "adm_Z_f_max", {.def = 2000, .unit = "Ω", .of = {kAdm, kThreshold}},
            {{"Admittanz Zf max", "Größte Fehlerimpedanz, die das Verfahren noch bewertet"},
             {"Admittance Zf max", "Largest fault impedance that the method still evaluates"}}),
    decimal(2183, "adm_fu", {.def = 25, .unit = "Hz", .of = {kAdm, kSetting}},
            {{"Untere Frequenz fx2", "Untere Grenze des ausgewerteten Frequenzbandes"},
             {"fx2 lower frequency", "Lower limit of the evaluated frequency band"}}),
    decimal(2184, "adm_fo", {.def = 75, .unit = "Hz", .of = {kAdm, kSetting}},
            {{"Obere Frequenz fx2", "Obere Grenze des ausgewerteten Frequenzbandes"},
             {"fx2 upper frequency", "Upper limit of the evaluated frequency band"}}),
    decimal(2185, "adm_Phi_FW_min", {.def = -255, .unit = "°", .of = {kAdm, kSetting}},
            {{"Adm-Winkel vorwärts min", "Winkel, mit dem der Vorwärtsbereich der Admittanz beginnt"},
             {"Adm angle forward min", "Angle at which the forward range of the admittance starts"}}),
    decimal(2186, "adm_Phi_FW_max", {.def = 80, .unit = "°", .of = {kAdm, kSetting}},
            {{"Adm-Winkel vorwärts max", "Winkel, mit dem der Vorwärtsbereich der Admittanz endet"},
             {"Adm angle forward max", "Angle at which the forward range of the admittance ends"}}),
    decimal(2187, "adm_Phi_BW_min", {.def = 85, .unit = "°", .of = {kAdm, kSetting}},
            {{"Adm-Winkel rückwärts min", "Winkel, mit dem der Rückwärtsbereich der Admittanz beginnt"},
             {"Adm angle backward min", "Angle at which the backward range of the admittance starts"}}),
    decimal(2188, "adm_Phi_BW_max", {.def = 95, .unit = "°", .of = {kAdm, kSetting}},
            {{"Adm-Winkel rückwärts max", "Winkel, mit dem der Rückwärtsbereich der Admittanz endet"},
             {"Adm angle backward max", "Angle at which the backward range of the admittance ends"}}),
    decimal(2189, "adm_T_win", {.def = 0.12, .unit = "s", .of = {kAdm, kSetting}},
            {{"Zeitfenster Admittanz", "Länge des Fensters, über das die Admittanz gebildet wird"},
             {"Admittance time window", "Length of the window over which the admittance is formed"}}),
    decimal(2190, "adm_U_min", {.def = 1, .unit = "%", .of = {kAdm, kThreshold}},
            {{"Admittanz U min", "Verlagerungsspannung im Frequenzband, ab der ausgewertet wird"},
             {"Admittance U min",
              "Neutral displacement voltage in the frequency band above which it is evaluated"}}),
    flag(8088, "adm_Uo_enabled", {.of = {kAdm, kEnable}},
         {{"U0-Freigabe Admittanz", "Admittanz nur mit Freigabe durch die Verlagerungsspannung auswerten"},
          {"Admittance U0 enable",
           "Evaluate the admittance only when the neutral displacement voltage enables it"}}),
    decimal(2191, "adm_dPhi_Yo", {.def = -200, .unit = "°", .of = {kAdm, kSetting}},
            {{"Admittanz dPhi Y0", "Winkelwert dPhi der Nulladmittanz Y0"},
             {"Admittance dPhi Y0", "Angle value dPhi of the zero-sequence admittance Y0"}}),
    number(6978, "adm_N_cycles", {.def = 3, .of = {kAdm, kSetting}},
           {{"Zyklen Admittanz", "Zahl der Zyklen, ab der die Admittanz entscheidet"},
            {"Admittance cycles", "Number of cycles for a decision of the admittance"}}),
    decimal(
        2192, "adm_T_delay", {.unit = "s", .of = {kAdm, kDelay}},
        {{"Verzögerung Admittanz",
          "Zeit, die der Richtungsentscheid der Admittanz anstehen muss, bevor gemeldet wird"},
         {"Admittance delay",
          "Time for which the direction decision of the admittance must persist before it is signalled"}}),
    decimal(2193, "adm_T_hold", {.unit = "s", .of = {kAdm, kDuration}},
            {{"Haltezeit Admittanz", "Haltezeit der Meldung der Admittanz"},
             {"Admittance hold time", "Time for which the signal of the admittance is held"}}),
    decimal(2194, "adm_T_hold_LED", {.unit = "s", .of = {kAdm, kDuration}},
            {{"LED-Haltezeit Admittanz", "Haltezeit der LED für die Meldung der Admittanz"},
             {"Admittance LED hold time", "Time for which an LED holds the signal of the admittance"}}),
    flag(8089, "adm_log_active", {.of = {kAdm, kLog}},
         {{"Logbuch Admittanz", "Richtungsentscheide der Admittanz in das Logbuch schreiben"},
          {"Admittance logbook", "Write the direction decisions of the admittance to the logbook"}}),
    flag(8090, "adm_log_cycle", {.of = {kAdm, kLog}},
         {{"Admittanz: Zyklen loggen",
           "Schalter: auch die einzelnen Zyklen der Admittanz in das Logbuch schreiben"},
          {"Admittance: log cycles",
           "Switch: also write the single cycles of the admittance to the logbook"}}),
    decimal(2195, "adm_log_dT", {.unit = "s", .of = {kAdm, kLog}},
            {{"Logbuchabstand Admittanz", "Kleinster Abstand zweier Logbucheinträge der Admittanz"},
             {"Admittance log interval", "Shortest time between two logbook entries of the admittance"}}),
    flag(8091, "LCD_log_active_adm", {.of = {kAdm, kLog}},
         {{"LCD-Logbuch Admittanz", "Meldungen der Admittanz im Logbuch der Anzeige zeigen"},
          {"Admittance LCD logbook", "Show the signals of the admittance in the logbook of the display"}}),

    // cos(phi)
    flag(8092, "cos_active", {.of = {kCos, kEnable}},
         {{"Cos(phi) aktiv", "Richtungsbestimmung aus dem Wirkanteil des Summenstroms im gelöschten Netz"},
          {"Cos(phi) active",
           "Direction from the active part of the residual current in a resonant-earthed system"}}),
    decimal(
        2196, "cos_Iw_min", {.def = 1, .unit = "A", .of = {kCos, kThreshold}},
        {{"Mindestwirkstrom Cos", "Primärer Wirkanteil des Summenstroms, ab dem Cos(phi) ausgewertet wird"},
         {"Cos(phi) minimum Iw",
          "Primary active part of the residual current above which Cos(phi) is evaluated"}}),
    decimal(2197, "cos_w_min", {.def = 2, .unit = "°", .of = {kCos, kThreshold}}, kMinimumAngle("Cos(phi)")),
    number(6979, "cos_cycle", {.def = 5, .of = {kCos, kSetting}}, kCycles("Cos(phi)")),
    flag(8093, "cos_store_active", {.of = {kCos, kSetting}},
         {{"Cos(phi) speichern", "Richtungsentscheid von Cos(phi) festhalten"},
          {"Cos(phi) store", "Keep the direction decision of Cos(phi)"}}),
    duration(2198, "cos_SigDel", 0, {kCos, kDelay}, kSignalDelay("Cos(phi)")),
    duration(2199, "cos_SigDur", 0, {kCos, kDuration}, kSignalDuration("Cos(phi)")),
    duration(2200, "cos_SigDur_LED", 0, {kCos, kDuration}, kLEDDuration("Cos(phi)")),
    flag(8094, "LCD_log_active_cos", {.of = {kCos, kLog}}, kLCDLogbook("Cos(phi)")),
    flag(8095, "cos_log_cycle", {.of = {kCos, kLog}}, kLogCycles("Cos(phi)")),
    decimal(2201, "cos_dT_log", {.unit = "s", .of = {kCos, kLog}}, kLogInterval("Cos(phi)")),

    // sin(phi)
    flag(8096, "sin_active", {.of = {kSin, kEnable}},
         {{"Sin(phi) aktiv",
           "Richtungsbestimmung aus dem Blindanteil des Summenstroms bei isoliertem Sternpunkt"},
          {"Sin(phi) active",
           "Direction from the reactive part of the residual current with isolated neutral"}}),
    decimal(
        2202, "sin_I_min", {.def = 5, .unit = "A", .of = {kSin, kThreshold}},
        {{"Mindeststrom Sin(phi)", "Primärer Blindanteil des Summenstroms, ab dem Sin(phi) ausgewertet wird"},
         {"Sin(phi) minimum current",
          "Primary reactive part of the residual current above which Sin(phi) is evaluated"}}),
    decimal(2203, "sin_w_min", {.def = 5, .unit = "°", .of = {kSin, kThreshold}}, kMinimumAngle("Sin(phi)")),
    number(6980, "sin_cycle", {.def = 5, .of = {kSin, kSetting}}, kCycles("Sin(phi)")),
    duration(2204, "sin_SigDel", 0, {kSin, kDelay}, kSignalDelay("Sin(phi)")),
    duration(2205, "sin_SigDur", 0, {kSin, kDuration}, kSignalDuration("Sin(phi)")),
    duration(2206, "sin_SigDur_LED", 0, {kSin, kDuration}, kLEDDuration("Sin(phi)")),
    flag(8097, "LCD_log_active_sin", {.of = {kSin, kLog}}, kLCDLogbook("Sin(phi)")),
    flag(8098, "sin_log_cycle", {.of = {kSin, kLog}}, kLogCycles("Sin(phi)")),
    decimal(2207, "sin_dT_log", {.unit = "s", .of = {kSin, kLog}}, kLogInterval("Sin(phi)")),

    // cos(phi) and sin(phi)
    flag(8099, "cos_sin_active", {.of = {kCosSin, kEnable}},
         {{"CosSin(phi) aktiv", "Richtungsbestimmung aus dem Summenstrom mit einstellbaren Grenzwinkeln"},
          {"CosSin(phi) active", "Direction from the residual current with settable limit angles"}}),
    decimal(2208, "CosSin_I_min", {.def = 2, .unit = "A", .of = {kCosSin, kThreshold}},
            {{"Mindeststrom CosSin", "Primärer Summenstrom, ab dem CosSin(phi) ausgewertet wird"},
             {"CosSin minimum current", "Primary residual current above which CosSin(phi) is evaluated"}}),
    decimal(2209, "CosSin_angle1", {.def = 1, .unit = "°", .of = {kCosSin, kSetting}}, kCosSinPhiAngle("1")),
    decimal(2210, "CosSin_angle2", {.def = -91, .unit = "°", .of = {kCosSin, kSetting}},
            kCosSinPhiAngle("2")),
    number(6981, "cos_sin_cycle", {.def = 3, .of = {kCosSin, kSetting}}, kCycles("CosSin(phi)")),
    duration(2211, "cos_sin_SigDel", 0, {kCosSin, kDelay}, kSignalDelay("CosSin")),
    duration(2212, "cos_sin_SigDur", 0, {kCosSin, kDuration}, kSignalDuration("CosSin")),
    duration(2213, "cos_sin_SigDur_LED", 0, {kCosSin, kDuration}, kLEDDuration("CosSin")),
    flag(8100, "LCD_log_active_sincos", {.of = {kCosSin, kLog}}, kLCDLogbook("CosSin")),
    flag(8101, "cos_sin_log_cycle", {.of = {kCosSin, kLog}}, kLogCycles("CosSin")),
    decimal(2214, "cos_sin_dT_log", {.def = 300, .unit = "s", .of = {kCosSin, kLog}}, kLogInterval("CosSin")),

    // 50 Hz pulses
    flag(8102, "p50_active", {.of = {kP50, kEnable}},
         {{"Pulsortung 50 Hz aktiv", "Ortung durch Strompulse mit 50 Hz"},
          {"50 Hz pulse active", "Locating by current pulses at 50 Hz"}}),
    flag(
        8103, "p50_Uen_active", {.of = {kP50, kEnable}},
        {{"U0-Freigabe Pulsortung", "Pulse nur mit Freigabe durch die Verlagerungsspannung auswerten"},
         {"50 Hz pulse U0 enable", "Evaluate pulses only when the neutral displacement voltage enables it"}}),
    decimal(2215, "p50_dIe", {.def = 1, .unit = "A", .of = {kP50, kThreshold}},
            {{"Pulshöhe 50 Hz", "Primäre Änderung des Summenstroms, die als Puls zählt"},
             {"50 Hz pulse height", "Primary change of the residual current that counts as a pulse"}}),
    decimal(2216, "p50_T_on", {.def = 1, .unit = "s", .of = {kP50, kSetting}},
            {{"Pulsdauer", "Dauer eines Pulses bei 50 Hz"}, {"Pulse duration", "Length of a 50 Hz pulse"}}),
    decimal(2217, "p50_T_off", {.def = 1.5, .unit = "s", .of = {kP50, kSetting}},
            {{"Pulspause", "Dauer der Pause zwischen zwei Pulsen"},
             {"Pulse pause", "Duration of the pause between two pulses"}}),
    number(6982, "p50_P_min", {.def = 3, .of = {kP50, kSetting}},
           {{"Pulse mindestens", "Zahl der Pulse, die mindestens erkannt sein muss"},
            {"Minimum pulses", "Minimum number of pulses that must be detected"}}),
    number(6983, "p50_P_sum", {.def = 5, .of = {kP50, kSetting}},
           {{"Pulse insgesamt", "Zahl der Pulse, unter denen die Mindestzahl erreicht sein muss"},
            {"Pulses in total", "Number of pulses among which the minimum must be reached"}}),
    duration(2218, "p50_SigDur", 0, {kP50, kDuration}, kSignalDuration("p50")),
    flag(8104, "LCD_log_active_puls50", {.of = {kP50, kLog}}, kLCDLogbook("p50")),
    flag(8105, "p50_log_cycle", {.of = {kP50, kLog}}, kLogCycles("p50")),
    decimal(2219, "p50_dT_log", {.unit = "s", .of = {kP50, kLog}}, kLogInterval("p50")),

    // high-power pulses
    flag(8106, "pHPCI_active", {.of = {kHpci, kEnable}},
         {{"Pulsortung HPCI aktiv", "Ortung durch eingespeiste Strompulse hoher Leistung"},
          {"HPCI pulse active", "Locating by injected current pulses of high power"}}),
    decimal(2220, "pHPCI_Q_pulse",
            {.def = 35, .min = 17.5, .max = 70, .unit = "kvar", .of = {kHpci, kSetting}},
            {{"Pulsleistung HPCI", "Blindleistung eines Pulses der Stromeinspeisung"},
             {"HPCI pulse power", "Reactive power of one pulse of the current injection"}}),
    decimal(2221, "pHPCI_I_min", {.def = 1, .unit = "A", .of = {kHpci, kThreshold}},
            {{"Mindeststrom HPCI", "Primärer Summenstrom, ab dem ein Puls ausgewertet wird"},
             {"HPCI minimum current", "Primary residual current above which a pulse is evaluated"}}),
    choice(10129, "pHPCI_pattern", {.choices = 6, .min = 0, .def = 5, .of = {kHpci, kSetting}},
           {{"Pulsmuster HPCI", "Muster, in dem die Pulse folgen, Zahl 0 bis 6"},
            {"HPCI pulse pattern", "Pattern in which the pulses follow, number 0 to 6"}}),
    number(6984, "pHPCI_N_cycles", {.def = 3, .of = {kHpci, kSetting}},
           {{"Anzahl Zyklen HPCI", "Zahl der Zyklen zu je 200 ms"},
            {"HPCI cycles", "Number of cycles of 200 ms each"}}),
    decimal(2222, "pHPCI_Z_f_max", {.def = 2000, .unit = "Ω", .of = {kHpci, kThreshold}},
            {{"Fehlerimpedanz HPCI", "Größte Fehlerimpedanz, bei der Pulse noch bewertet werden"},
             {"HPCI fault impedance", "Largest fault impedance at which pulses are still evaluated"}}),
    decimal(2223, "pHPCI_U_min", {.def = 1, .unit = "%", .of = {kHpci, kThreshold}},
            {{"Mindestspannung HPCI", "Verlagerungsspannung, ab der Pulse ausgewertet werden"},
             {"HPCI minimum voltage", "Neutral displacement voltage above which pulses are evaluated"}}),
    decimal(2224, "pHPCI_dPhi", {.def = 5, .unit = "°", .of = {kHpci, kSetting}},
            {{"Winkel dPhi HPCI", "Winkelwert dPhi der Pulse"},
             {"HPCI angle dPhi", "Angle value dPhi of the pulses"}}),
    decimal(2225, "pHPCI_Yo_quot_abs", {.def = 0.99, .min = 0.9, .max = 0.999, .of = {kHpci, kSetting}},
            {{"HPCI Y0-Quot. Betrag", "Grenze für den Betrag des Quotienten der Nulladmittanzen"},
             {"HPCI Y0 quotient magn.",
              "Limit of the magnitude of the quotient of the zero-sequence admittances"}}),
    decimal(
        2226, "pHPCI_Yo_quot_phi", {.def = 1, .unit = "°", .of = {kHpci, kSetting}},
        {{"HPCI Y0-Quot. Winkel", "Grenze für den Winkel des Quotienten der Nulladmittanzen"},
         {"HPCI Y0 quotient angle", "Limit of the angle of the quotient of the zero-sequence admittances"}}),
    decimal(2227, "pHPCI_T_delay", {.unit = "s", .of = {kHpci, kDelay}}, kSignalDelayOfEarthFault("HPCI")),
    decimal(2228, "pHPCI_T_hold", {.unit = "s", .of = {kHpci, kDuration}}, kHoldTime("HPCI")),
    decimal(2229, "pHPCI_T_hold_LED", {.unit = "s", .of = {kHpci, kDuration}}, kLEDHoldTime("HPCI")),
    flag(8107, "LCD_log_active_HPCI", {.of = {kHpci, kLog}}, kLCDLogbook("HPCI")),

    // short circuit
    flag(8108, "sc_active", {.of = {kShortCircuit, kEnable}},
         {{"Kurzschluss aktiv", "Ungerichtete Kurzschlussanzeige einschalten"},
          {"Short circuit active", "Switch on the undirected short-circuit indication"}}),
    flag(8109, "sc_class_1_active", {.def = kOn, .of = {kShortCircuit, kEnable}}, kSCClassActive("1")),
    decimal(2230, "sc_I_min_1", {.def = 500, .unit = "A", .of = {kShortCircuit, kThreshold}},
            kShortCircuitIMin("1")),
    decimal(2231, "sc_T_min_1", {.def = 0.5, .unit = "s", .of = {kShortCircuit, kDelay}},
            kShortCircuitTMin("1")),
    flag(8110, "sc_class_2_active", {.def = kOn, .of = {kShortCircuit, kEnable}}, kSCClassActive("2")),
    decimal(2232, "sc_I_min_2", {.def = 700, .unit = "A", .of = {kShortCircuit, kThreshold}},
            kShortCircuitIMin("2")),
    decimal(2233, "sc_T_min_2", {.def = 0.1, .unit = "s", .of = {kShortCircuit, kDelay}},
            kShortCircuitTMin("2")),
    flag(8111, "sc_class_E_active", {.of = {kShortCircuit, kEnable}},
         {{"KS-Klasse E aktiv", "Klasse E der Kurzschlussanzeige (Erdstrom) verwenden"},
          {"SC class E active", "Use class E of the short-circuit indication (earth current)"}}),
    decimal(2234, "sc_I_min_E", {.def = 100, .unit = "A", .of = {kShortCircuit, kThreshold}},
            {{"Kurzschluss I min E", "Primärer Erdstrom, ab dem die Kurzschlussklasse E anspricht"},
             {"Short circuit I min E", "Primary earth current above which short-circuit class E picks up"}}),
    decimal(2235, "sc_T_min_E", {.def = 0.1, .unit = "s", .of = {kShortCircuit, kDelay}},
            kShortCircuitTMin("E")),
    duration(2236, "sc_SigDur", 10, {kShortCircuit, kDuration},
             {{"Meldedauer Kurzschluss", "Meldedauer nach einem Kurzschluss"},
              {"SC signal duration", "Time for which a short circuit is signalled"}}),
    duration(2237, "sc_SigDur_LED", 0, {kShortCircuit, kDuration},
             {{"LED-Dauer Kurzschluss", "Anzeigedauer der LED nach einem Kurzschluss"},
              {"SC LED duration", "Time for which an LED shows the short circuit"}}),
    flag(8112, "sc_dir_active", {.of = {kShortCircuit, kEnable}},
         {{"KS-Richtung aktiv", "Gerichtete Kurzschlussanzeige einschalten"},
          {"SC direction active", "Switch on the directional short-circuit indication"}}),
    decimal(2238, "sc_Phi_max_fwd", {.def = 80, .unit = "°", .of = {kShortCircuit, kSetting}},
            {{"KS-Winkel vorwärts max", "Obere Winkelgrenze für einen Kurzschluss vorwärts"},
             {"SC angle forward max", "Upper angle limit of a forward short circuit"}}),
    decimal(2239, "sc_Phi_min_fwd", {.def = -35, .unit = "°", .of = {kShortCircuit, kSetting}},
            {{"KS-Winkel vorwärts min", "Untere Winkelgrenze für einen Kurzschluss vorwärts"},
             {"SC angle forward min", "Lower angle limit of a forward short circuit"}}),
    decimal(2240, "sc_Phi_max_bwd", {.def = -100, .unit = "°", .of = {kShortCircuit, kSetting}},
            {{"KS-Winkel rückwärts max", "Obere Winkelgrenze für einen Kurzschluss rückwärts"},
             {"SC angle backward max", "Upper angle limit of a backward short circuit"}}),
    decimal(2241, "sc_Phi_min_bwd", {.def = -215, .unit = "°", .of = {kShortCircuit, kSetting}},
            {{"KS-Winkel rückwärts min", "Untere Winkelgrenze für einen Kurzschluss rückwärts"},
             {"SC angle backward min", "Lower angle limit of a backward short circuit"}}),
    flag(8113, "sc_sig_fwd_U_zero", {.of = {kShortCircuit, kSetting}},
         {{"KS vorwärts ohne U", "Kurzschluss vorwärts melden, wenn die Spannung fehlt"},
          {"SC forward, no voltage", "Signal a forward short circuit if the voltage is missing"}}),

    // frequency deviation
    flag(8114, "freq_active", {.of = {kFreq, kEnable}},
         {{"Frequenz df aktiv", "Abweichung der Netzfrequenz überwachen"},
          {"df frequency active", "Supervise the deviation of the system frequency"}}),
    decimal(2242, "freq_f_grid", {.def = 50, .min = 16.7, .max = 65, .unit = "Hz", .of = {kFreq, kSetting}},
            {{"Bezugsfrequenz df", "Netzfrequenz, von der aus die Abweichung zählt"},
             {"df reference frequency", "System frequency from which the deviation counts"}}),
    decimal(2243, "freq_df_min", {.def = 0.1, .unit = "Hz", .of = {kFreq, kThreshold}},
            {{"Abweichung -df", "Abweichung nach unten, ab der gemeldet wird"},
             {"-df deviation", "Downward deviation above which it is signalled"}}),
    decimal(2244, "freq_df_max", {.def = 0.1, .unit = "Hz", .of = {kFreq, kThreshold}},
            {{"Abweichung +df", "Abweichung nach oben, ab der gemeldet wird"},
             {"+df deviation", "Upward deviation above which it is signalled"}}),
    number(6985, "freq_N_cycle", {.def = 3, .of = {kFreq, kSetting}},
           {{"Zyklen df", "Zahl der Zyklen, ab der die Frequenz als abweichend gilt"},
            {"df cycles", "Number of cycles after which the frequency counts as deviating"}}),
    decimal(2245, "freq_T_delay", {.def = 3, .unit = "s", .of = {kFreq, kDelay}},
            kSignalDelayOfEarthFault("df")),
    decimal(2246, "freq_T_hold", {.def = 15, .unit = "s", .of = {kFreq, kDuration}}, kHoldTime("df")),
    decimal(2247, "freq_T_hold_LED", {.unit = "s", .of = {kFreq, kDuration}}, kLEDHoldTime("df")),
    flag(8115, "freq_log_entry", {.of = {kFreq, kLog}},
         {{"Logbuch df", "Frequenzabweichungen in das Logbuch schreiben"},
          {"df logbook", "Write frequency deviations to the logbook"}}),
};

inline constexpr Note kEarthFaultNotes[] = {
    unknown("prio_list_{1..10}",
            "Ob Platz 1 oder Platz 10 den Vorrang hat, ist nicht dokumentiert; vor dem Einstellen am Gerät "
            "klären. Ein Verfahren auf zwei Plätzen wird nicht abgelehnt.",
            "Whether place 1 or place 10 takes precedence is not documented; find out on the device before "
            "setting. A method in two places is not refused."),
    warning("prio_list_{1..10} BAassign{3,4}",
            "Ab Werk ist die Prioritätenliste leer (AUS auf allen Plätzen). Die Relais 3 und 4 folgen ihr "
            "(26, 27 = Prio_Uerd ->v, ->r) und melden deshalb nichts.",
            "The factory priority list is empty (AUS in all places). Relays 3 and 4 follow it (26, 27 = "
            "Prio_Uearth ->f, ->b), so they signal nothing."),
    unknown("qu_signalling",
            "2 oder 3 (1 wird abgelehnt), wird an die Erdschlusserfassung weitergegeben; die Bedeutung der "
            "Zahlen ist nicht dokumentiert.",
            "2 or 3 (1 is refused), passed on to the earth-fault detection; the meaning of the numbers is "
            "not documented."),
    unknown("pHPCI_pattern",
            "0 bis 6, wird an die Pulsortung weitergegeben; welches Muster welche Zahl hat, ist nicht "
            "dokumentiert. Muss zur Stromeinspeisung passen.",
            "0 to 6, passed on to the pulse locating; which pattern has which number is not documented. Must "
            "match the current injection."),
    unknown("U123ok U123erd Uearth U_Hz_proz harm1_Umin harm2_Umin adm_U_min pHPCI_U_min",
            "Worauf sich die Prozente beziehen (Außenleiter- oder Leiter-Erde-Spannung, Nennwert oder "
            "Messbereich), ist nicht dokumentiert; der Unterschied kann den Faktor 1,73 ausmachen. Vor dem "
            "Einstellen durch Prüfung mit Sekundärwerten klären.",
            "What the percentages refer to (phase-to-phase or phase-to-earth voltage, nominal value or "
            "measuring range) is not documented; the difference can be a factor of 1.73. Determine it by "
            "secondary injection before setting."),
    unknown("qu2_Ice qui_Ice",
            "Ob der Strom des ganzen Netzes oder der des Abgangs gemeint ist, ist nicht dokumentiert.",
            "Whether the current of the whole system or that of the feeder is meant is not documented."),
    unknown("qu2_active qui_active",
            "Was qu2 und qui bezeichnen, ist aus dem Fach erschlossen, nicht dokumentiert.",
            "What qu2 and qui denote is inferred from the trade, not documented."),
    unknown("qui_T_super qui_n", "Die Bedeutung ist aus dem Namen gelesen.",
            "The meaning is read from the name."),
    unknown("harm1_cycle harm2_cycle cos_cycle sin_cycle cos_sin_cycle adm_N_cycles freq_N_cycle",
            "Die Länge eines Zyklus ist nicht dokumentiert (bei HPCI 200 ms). Sie bestimmt die Ansprechzeit; "
            "durch Einspeisen messen.",
            "The length of a cycle is not documented (200 ms with HPCI). It determines the operating time; "
            "measure it by injection."),
    unknown("qui_dUo",
            "Bezug ist Unenn; ob das U12 oder die Leiter-Erde-Spannung ist, ist nicht dokumentiert (Faktor "
            "1,73).",
            "The reference is Unom; whether that is U12 or the phase-to-earth voltage is not documented "
            "(factor 1.73)."),
    unknown("preBuff_Umin preBuff_dUo qu2_rot_grad_min",
            "Einheit nicht dokumentiert. Den Werkswert nicht ohne Anlass ändern.",
            "The unit is not documented. Do not change the factory value without good reason."),
    unknown("U_Hz_proz", "Welche Spannung gemeint ist, ist nicht dokumentiert.",
            "Which voltage is meant is not documented."),
    unknown("qu2_MsgResetEf", "Ob mit dem Beginn oder dem Ende des Erdschlusses, ist nicht dokumentiert.",
            "Whether at the start or at the end of the earth fault is not documented."),
    unknown("adm_Uo_enabled p50_Uen_active", "Welche Schwelle freigibt, ist nicht dokumentiert.",
            "Which threshold enables is not documented."),
    unknown("harm1_angle harm2_angle cos_w_min sin_w_min",
            "Von welcher Achse aus der Winkel zählt, ist nicht dokumentiert.",
            "The axis from which the angle is measured is not documented."),
    unknown("cos_store_active", "Bis wann der Entscheid gehalten wird, ist nicht dokumentiert.",
            "How long the decision is held is not documented."),
    unknown("pHPCI_dPhi pHPCI_Yo_quot_abs pHPCI_Yo_quot_phi",
            "Wie der Wert in die Entscheidung eingeht, ist nicht dokumentiert; die Einheit ° ist angenommen. "
            "Den Werkswert nicht ohne Anlass ändern.",
            "How the value enters the decision is not documented; the unit ° is assumed. Do not change the "
            "factory value without good reason."),
    unknown(
        "{Uearth,qu2,qui,harm1,harm2,cos,sin,cos_sin}_SigDur "
        "{Uearth,qu2,qui,harm1,harm2,cos,sin,cos_sin}_SigDur_LED p50_SigDur sc_SigDur sc_SigDur_LED "
        "{adm,pHPCI,freq}_T_hold {adm,pHPCI,freq}_T_hold_LED",
        "Was 0 bedeutet (keine Meldung, solange die Ursache ansteht oder dauernd), ist nicht dokumentiert.",
        "What 0 means (no signal, as long as the cause persists, or permanently) is not documented."),
    unknown("adm_I_min_{1..2}", "Wofür welcher der beiden Werte gilt, ist nicht dokumentiert.",
            "Which of the two values applies to what is not documented."),
    unknown("adm_Phi_FW_min adm_Phi_FW_max adm_Phi_BW_min adm_Phi_BW_max",
            "Ein Bereich reicht von min bis max; Winkel jenseits von ±180° sind erlaubt (-255° = 105°). Ab "
            "Werk ist rückwärts 85° bis 95° und vorwärts alles von 105° über 0° bis 80°. Zählrichtung nicht "
            "dokumentiert.",
            "A range extends from min to max; angles beyond ±180° are allowed (-255° = 105°). The factory "
            "setting is backward from 85° to 95° and forward from 105° through 0° to 80°. The sign "
            "convention is not documented."),
    unknown("sc_Phi_max_fwd sc_Phi_min_fwd sc_Phi_max_bwd sc_Phi_min_bwd",
            "Ein Bereich reicht von min bis max; Winkel jenseits von ±180° sind erlaubt (-215° = 145°). "
            "Zählrichtung und Bezug sind nicht dokumentiert.",
            "A range extends from min to max; angles beyond ±180° are allowed (-215° = 145°). The sign "
            "convention and the reference are not documented."),
    unknown("CosSin_angle{1..2}",
            "Welcher Bereich vorwärts ist und wie der Winkel zählt, ist nicht dokumentiert.",
            "Which range is forward, and in which direction the angle counts, is not documented."),
    unknown("adm_dPhi_Yo",
            "Was der Wert begrenzt, ist nicht dokumentiert; die Einheit ° ist angenommen. Den Werkswert "
            "nicht ohne Anlass ändern.",
            "What the value limits is not documented; the unit ° is assumed. Do not change the factory value "
            "without good reason."),
    advice("adm_fu adm_fo", "Dass die untere Grenze unter der oberen liegt, wird nicht geprüft.",
           "Nothing checks that the lower limit is below the upper limit."),
    warning("p50_T_on p50_T_off p50_P_min p50_P_sum", "Muss zur Taktung im Umspannwerk passen.",
            "Must match the pulsing in the substation."),
    advice("p50_P_min p50_P_sum", "Dass P_min höchstens P_sum ist, wird nicht geprüft.",
           "Nothing checks that P_min is at most P_sum."),
    warning("pHPCI_Q_pulse", "Muss zur Stromeinspeisung passen.", "Must match the current injection."),
    unknown("{qui,harm1,harm2,cos,sin,cos_sin,p50}_dT_log adm_log_dT",
            "Was 0 bedeutet, ist nicht dokumentiert.", "What 0 means is not documented."),
    advice("freq_df_min freq_df_max", "Ab Werk sind beide Werte positiv, also Beträge.",
           "Both factory values are positive, so they are magnitudes."),
};

} // namespace talux::parameters

#endif
