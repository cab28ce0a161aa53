// The detection methods: what belongs to each besides the settings, whose rows name it.
#ifndef TALUX_PARAMETERS_METHODS_H
#define TALUX_PARAMETERS_METHODS_H

#include <string_view>

#include "ParamSystem/parameters/Traits.h"

namespace talux::parameters {

// Names are parameters or patterns of series, divided by blanks. Numbers are choices, single or "28..31",
// divided by blanks; they are ordered by their texts, which name the method.
struct Method {
    MethodId id;
    std::string_view de, en;
    std::string_view measured =
        {}; // what shows the quantities that it evaluates, and its states and counters
    std::string_view functions = {};  // choices of BAassign.. and LEDassign.. (template BA_FUNCTION)
    std::string_view priorities = {}; // choices of prio_list_.. (template PRIORITY)
    std::string_view deRemark = {}, enRemark = {};
    std::string_view deEarthing = {}, enEarthing = {}; // neutral earthing that the method suits
};

inline constexpr Method kMethods[] = {
    {.id = kUearth,
     .de = "Erdschluss aus der Spannung",
     .en = "Earth fault from the voltage",
     .measured = "U0_prim U{1..3}_prim I0earth_prim y_EarthFaultState",
     .functions = "5..7 16..23",
     .deRemark = "Ohne Schalter, ohne Richtung. 16 >Uerd meldet sofort, 17 >Uerd_verz nach Uearth_SigDel; "
                 "5..7 der gesunde, 18..20 der fehlerhafte Leiter, 21..23 dieser verzögert.",
     .enRemark = "Has no switch and no direction. 16 >Uearth signals at once, 17 >Uearth_delay after "
                 "Uearth_SigDel; 5..7 the healthy phase, 18..20 the faulty phase, 21..23 the latter delayed.",
     .deEarthing = "jede nicht starre; ohne Richtung",
     .enEarthing = "every non-solid earthing; no direction"},
    {.id = kPriorities,
     .de = "Richtung aus allen Verfahren",
     .en = "Direction from all methods",
     .functions = "24..27",
     .deRemark = "24 und 25 (Sum) fassen die Richtungsmeldungen zusammen, 26 und 27 (Prio) folgen der "
                 "Prioritätenliste. Ab Werk ist sie leer (AUS auf allen Plätzen); die Relais 3 und 4 folgen "
                 "ihr und melden deshalb nichts.",
     .enRemark =
         "24 and 25 (Sum) combine the direction signals, 26 and 27 (Prio) follow the priority list. The "
         "factory list is empty (AUS in all places); relays 3 and 4 follow it, so they signal nothing."},
    {.id = kQu2,
     .de = "Wischer (qu2)",
     .en = "Transient (qu2)",
     .measured = "EvCnt_qu2 EvCnt_qu2_c{0..4}",
     .functions = "28..31",
     .priorities = "2 3",
     .deRemark = "30, 31 und Priorität 3 (CE) gelten dem Dauererdschluss (qu2_DE_active, DE_t).",
     .enRemark = "30, 31 and priority 3 (CE) are those of the sustained earth fault (qu2_DE_active, DE_t).",
     .deEarthing = "isoliert, gelöscht",
     .enEarthing = "isolated, resonant-earthed"},
    {.id = kQui,
     .de = "Intermittierend und wiederzündend (qui)",
     .en = "Intermittent and restriking (qui)",
     .functions = "32 33",
     .priorities = "4",
     .deEarthing = "gelöscht, isoliert; wiederzündende Fehler, oft in Kabeln",
     .enEarthing = "resonant-earthed, isolated; restriking faults, often in cables"},
    {.id = kHarm1,
     .de = "Oberschwingung 250 Hz (H250)",
     .en = "Harmonic 250 Hz (H250)",
     .measured = "U0_250_abs I0_250_abs Y0_250_abs Y0_250_phi",
     .functions = "40 41",
     .priorities = "5",
     .deEarthing = "gelöscht",
     .enEarthing = "resonant-earthed"},
    {.id = kHarm2,
     .de = "Oberschwingung einstellbarer Frequenz (H fx1)",
     .en = "Harmonic of settable frequency (H fx1)",
     .measured = "U0_f1_abs I0_f1_abs Y0_f1_abs Y0_f1_phi",
     .functions = "42 43",
     .priorities = "6",
     .deRemark = "Wofür Priorität 7 (ovx1) steht, ist nicht dokumentiert.",
     .enRemark = "What priority 7 (ovx1) stands for is not documented.",
     .deEarthing = "gelöscht, mit Rundsteuerung",
     .enEarthing = "resonant-earthed, with ripple control"},
    {.id = kAdm,
     .de = "Admittanz (fx2)",
     .en = "Admittance (fx2)",
     .measured = "U0_{f2,f3}_abs I0_{f2,f3}_abs Y0_{f2,f3}_abs Y0_{f2,f3}_phi",
     .functions = "44..47 85 86",
     .deRemark = "85 und 86 (DynAdm) sind die Meldungen des Verfahrens; 44..47 (H_fx2+, H_fx2-) tragen seine "
                 "Frequenz im Namen; welches Verfahren sie bildet, ist nicht dokumentiert. In der "
                 "Prioritätenliste kommt es nicht vor.",
     .enRemark = "85 and 86 (DynAdm) are the signals of the method; 44..47 (H_fx2+, H_fx2-) have its "
                 "frequency in their names, but which method forms them is not documented. The method is not "
                 "in the priority list.",
     .deEarthing = "gelöscht",
     .enEarthing = "resonant-earthed"},
    {.id = kCos,
     .de = "Wattmetrisch (Cos(phi))",
     .en = "Wattmetric (Cos(phi))",
     .measured = "U0_prim I0_prim phiUI0 P0_prim",
     .functions = "34 35",
     .priorities = "8",
     .deEarthing = "gelöscht",
     .enEarthing = "resonant-earthed"},
    {.id = kSin,
     .de = "Isolierter Sternpunkt (Sin(phi))",
     .en = "Isolated neutral (Sin(phi))",
     .measured = "U0_prim I0_prim phiUI0 Q0_prim",
     .functions = "36 37",
     .priorities = "9",
     .deEarthing = "isoliert",
     .enEarthing = "isolated"},
    {.id = kCosSin,
     .de = "Einstellbare Winkel (CosSin)",
     .en = "Settable angles (CosSin)",
     .measured = "U0_prim I0_prim phiUI0",
     .functions = "38 39",
     .deRemark = "In der Prioritätenliste kommt das Verfahren nicht vor.",
     .enRemark = "The method is not in the priority list.",
     .deEarthing = "je nach Winkel; auch niederohmig geerdet",
     .enEarthing = "depends on the angles; also low-impedance earthed"},
    {.id = kP50,
     .de = "Pulsortung 50 Hz (p50)",
     .en = "Pulse locating 50 Hz (p50)",
     .measured = "I0_prim",
     .functions = "48..52",
     .priorities = "10",
     .deEarthing = "gelöscht, mit Taktgerät an der Löschspule",
     .enEarthing = "resonant-earthed, with a pulsing device at the coil"},
    {.id = kHpci,
     .de = "Pulsortung HPCI",
     .en = "Pulse locating HPCI",
     .functions = "53..56",
     .deRemark = "In der Prioritätenliste kommt das Verfahren nicht vor.",
     .enRemark = "The method is not in the priority list.",
     .deEarthing = "gelöscht, mit Stromeinspeisung",
     .enEarthing = "resonant-earthed, with current injection"},
    {.id = kShortCircuit,
     .de = "Kurzschluss",
     .en = "Short circuit",
     .measured = "I{1..3}sc_prim IEsc_prim y_ShortCircuitState",
     .functions = "57..80 87..89",
     .deRemark = "57..64 ohne Richtung, 65..72 vorwärts, 73..80 rückwärts, 87..89 der Erdstrom. Dass >I die "
                 "Klasse 1 und >>I die Klasse 2 meldet, ist aus den Namen gelesen.",
     .enRemark = "57..64 without direction, 65..72 forward, 73..80 backward, 87..89 the earth current. That "
                 ">I signals class 1 and >>I class 2 is read from the names."},
    {.id = kFreq,
     .de = "Frequenzabweichung (df)",
     .en = "Frequency deviation (df)",
     .measured = "f_grid",
     .functions = "82..84",
     .deRemark = "freq_U0_active bis freq_U3_active gehören zur Frequenzmessung, nicht hierher.",
     .enRemark = "freq_U0_active to freq_U3_active belong to the frequency measurement, not to this method."},
    {.id = kOtherFunctions,
     .de = "Ohne Verfahren",
     .en = "Without a method",
     .functions = "2..4 8..15 81",
     .deRemark = "Programm, Status, Fehler, die acht Benutzerfunktionen und Ferroresonanz, zu der es "
                 "keine Einstellung gibt.",
     .enRemark = "Program, status, error, the eight user functions, and ferroresonance, which has no "
                 "setting."},
};

static_assert([] {
    int id = 0;
    for (const Method& method : kMethods)
        if (method.id != id++) return false;
    return id == kOtherFunctions + 1;
}());

} // namespace talux::parameters

#endif
