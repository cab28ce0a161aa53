// What is reported about settings that the device accepts but that are implausible: one row per rule. Nothing
// is refused because of it. What is not documented has no rule.
#ifndef TALUX_TOOLS_REFERENCE_PLAUSIBILITYRULES_H
#define TALUX_TOOLS_REFERENCE_PLAUSIBILITYRULES_H

#include <string_view>

namespace talux::reference {

// A fault cannot be right; a doubt may be meant.
enum class Gravity { fault, doubt };

// How a rule reads its parameters. Parameters that an incomplete set lacks break no rule.
enum class Test {
    range,      // every number lies in the range of its row
    choice,     // every choice counts from 1
    limits,     // each between low and high
    order,      // pairs: the first is at most `high` times the second, below it if `isStrict`
    blocks,     // a first register and how many are certain to follow; none are in two blocks
    offMethod,  // outputs signal no method that is off
    freeOutput, // nor a function that does not exist
    nowhere,    // the switch of a method that is on has an output or a place in the list
    emptyList,  // outputs follow the priority list only if it has entries
    zone,       // the path of a file below /usr/share/zoneinfo
    mask,       // ones before zeros
    gateway,    // triples: gateway, address, mask
    networks,   // triples: switch or "-", address, mask; all in different networks
    ports,      // pairs: switch, port; all that are on have different ones
    individual, // replaces a value of this one device
};

// In `parameters`, "[s]" stands for all settings with this unit.
struct PlausibilityRule {
    const char* code; // for programs; never changes
    Gravity gravity;
    Test test;
    std::string_view parameters;
    std::string_view en, de;
    double low = 0, high = 0;
    bool isStrict = false;
    bool isBrokenByFactory = false; // by the factory settings
};

// No limit.
inline constexpr double kAny = 1e300;
// The smallest float above 0.
inline constexpr double kAboveZero = 1e-37;

inline constexpr PlausibilityRule kPlausibilityRules[] = {
    {"range", Gravity::fault, Test::range, "", "out of range: a line of the language would refuse it",
     "außerhalb des Bereichs: eine Zeile der Sprache würde das ablehnen"},
    {"choice", Gravity::fault, Test::choice, "", "choices count from 1", "Auswahlen zählen ab 1"},
    {"time", Gravity::fault, Test::limits, "[s] [ms] [min]", "a time cannot be negative",
     "eine Zeit kann nicht negativ sein", 0, kAny},
    {"current", Gravity::fault, Test::limits, "[A]", "a current threshold is 0 to 100,000 A",
     "eine Stromschwelle ist 0 bis 100.000 A", 0, 1e5},
    {"magnitude", Gravity::fault, Test::limits, "[%] [Hz] [Ω] BE_{DC,AC}_on_{1..2} BE_{DC,AC}_off_{1..2}",
     "a magnitude cannot be negative", "ein Betrag kann nicht negativ sein", 0, kAny},
    {"angle", Gravity::fault, Test::limits, "[°]", "more than a full turn", "mehr als eine volle Umdrehung",
     -360, 360},
    {"count", Gravity::fault, Test::limits,
     "harm{1,2}_cycle cos_cycle sin_cycle cos_sin_cycle {adm,pHPCI}_N_cycles freq_N_cycle qui_n p50_P_min "
     "p50_P_sum max_ini_files",
     "a count cannot be negative", "eine Anzahl kann nicht negativ sein", 0, kAny},
    {"ratio", Gravity::fault, Test::limits,
     "knu{0..3} kni{0..3} knuV{0..3} kniV{0..3} BE_knuV_{1..2} U{0..3}_sek_ref I{0..3}_sek_ref",
     "a ratio, factor or reference is above 0; the polarity has a setting of its own",
     "eine Übersetzung, ein Faktor oder ein Bezug ist größer als 0; die Polarität hat eine eigene "
     "Einstellung",
     kAboveZero, kAny},
    {"tcp-port", Gravity::fault, Test::limits,
     "Modbus_Port T104_port T104_port_{1..4} DNP3_PORT ftp_{min,max}_passive", "TCP ports are 1 to 65535",
     "TCP-Ports sind 1 bis 65535", 1, 65535},
    {"register", Gravity::fault, Test::limits,
     "vBE{mo,moc} vBEF{mo,moc} vBAF{mo,moc} vBA{mo,moc} y_BEmo y_vBEFmo y_vBAFmo y_vBAmo y_LEDmo aUIgmo "
     "wUIgmo dwUIgmo UImo UImo2 y_vBEmow y_vBEmowc y_vTIMEmow vBA{mo,moc}_VIRT vBE{mo,moc}_VIRT "
     "vMWRmo_VIRT vMWWmo_VIRT",
     "Modbus addresses end at 65535", "Modbus-Adressen enden bei 65535", 0, 65535},
    {"registers-overlap", Gravity::fault, Test::blocks,
     "vBEmo 1 vBEFmo 1 vBAFmo 1 vBAmo 1 y_BEmo 1 y_vBEFmo 1 y_vBAFmo 4 y_vBAmo 1 y_LEDmo 1 aUIgmo 1 wUIgmo "
     "1 dwUIgmo 1 UImo 1 y_vBEmow 1 y_vTIMEmow 1 UImo2 1 vBAmo_VIRT 1 vMWRmo_VIRT 96 vBEmo_VIRT 1 "
     "vMWWmo_VIRT 96",
     "the Modbus registers overlap", "die Modbus-Register überlappen sich"},
    {"coils-overlap", Gravity::fault, Test::blocks,
     "vBEmoc 6 vBEFmoc 16 vBAFmoc 89 vBAmoc 8 y_vBEmowc 1 vBAmoc_VIRT 96 vBEmoc_VIRT 96",
     "the Modbus coils overlap", "die Modbus-Coils überlappen sich"},
    {"drop-out", Gravity::fault, Test::order,
     "BE_DC_off_1 BE_DC_on_1 BE_AC_off_1 BE_AC_on_1 BE_DC_off_2 BE_DC_on_2 BE_AC_off_2 BE_AC_on_2",
     "the drop-out value is above the pick-up value", "der Rückfallwert liegt über dem Ansprechwert", 0, 1},
    {"phase", Gravity::fault, Test::order, "U123erd U123ok",
     "a phase between the two counts as faulty and as healthy",
     "ein Leiter dazwischen gilt als fehlerhaft und als gesund", 0, 1},
    {"band", Gravity::fault, Test::order, "adm_fu adm_fo", "the lower limit is not below the upper one",
     "die untere Grenze liegt nicht unter der oberen", 0, 1, true},
    {"pulses", Gravity::fault, Test::order, "p50_P_min p50_P_sum", "more pulses are required than counted",
     "es sind mehr Pulse verlangt als gezählt werden", 0, 1},
    {"ftp-ports", Gravity::fault, Test::order, "ftp_min_passive ftp_max_passive",
     "the lowest port is above the highest", "der kleinste Port liegt über dem größten", 0, 1},
    {"t2", Gravity::fault, Test::order, "T104_T2 T104_T1", "IEC 60870-5-104 requires T2 < T1",
     "IEC 60870-5-104 verlangt T2 < T1", 0, 1, true},
    {"window", Gravity::doubt, Test::order, "T104_W T104_K",
     "IEC 60870-5-104 recommends a w of at most two thirds of k",
     "IEC 60870-5-104 empfiehlt w höchstens zwei Drittel von k", 0, 2.0 / 3},
    {"method-off", Gravity::doubt, Test::offMethod, "BAassign{1..8} LEDassign{1..10} prio_list_{1..10}",
     "follows a method that is off, so it signals nothing",
     "folgt einem Verfahren, das ausgeschaltet ist, und meldet deshalb nichts"},
    {"no-function", Gravity::fault, Test::freeOutput, "BAassign{1..8} LEDassign{1..10}",
     "90 to 128 have no function", "90 bis 128 haben keine Funktion", 90, 128},
    {"no-output", Gravity::doubt, Test::nowhere, "BAassign{1..8} LEDassign{1..10} prio_list_{1..10}",
     "the method is on, but no relay, LED or place of the priority list takes its signals",
     "das Verfahren ist ein, aber kein Relais, keine LED und kein Platz der Prioritätenliste übernimmt "
     "seine Meldungen",
     0, 0, false, true},
    {"empty-list", Gravity::doubt, Test::emptyList, "BAassign{1..8} LEDassign{1..10} prio_list_{1..10}",
     "follows the priority list, which is empty, so it signals nothing",
     "folgt der Prioritätenliste, die leer ist, und meldet deshalb nichts", 26, 27, false, true},
    {"time-zone", Gravity::fault, Test::zone, "TIMEZONE", "there is no such time zone file: UTC will be set",
     "diese Zeitzonendatei gibt es nicht: es wird UTC eingestellt"},
    {"mask", Gravity::fault, Test::mask, "{ETH0,ETH1,WLAN0}_MASK T104_ETH_MA_{1..4} FW_ETH{0,1,W}_MASK",
     "the ones of a netmask are contiguous", "die Einsen einer Netzmaske sind zusammenhängend"},
    {"gateway", Gravity::fault, Test::gateway,
     "ETH0_GATEWAY ETH0_IP ETH0_MASK ETH1_GATEWAY ETH1_IP ETH1_MASK WLAN0_GATEWAY WLAN0_IP WLAN0_MASK "
     "T104_ETH_GW_1 T104_ETH_IP_1 T104_ETH_MA_1 T104_ETH_GW_2 T104_ETH_IP_2 T104_ETH_MA_2 T104_ETH_GW_3 "
     "T104_ETH_IP_3 T104_ETH_MA_3 T104_ETH_GW_4 T104_ETH_IP_4 T104_ETH_MA_4",
     "the gateway is outside its network", "das Gateway liegt außerhalb seines Netzes"},
    {"one-network", Gravity::fault, Test::networks,
     "- ETH0_IP ETH0_MASK eth1_active ETH1_IP ETH1_MASK wlan0_active WLAN0_IP WLAN0_MASK",
     "two interfaces are in one network", "zwei Schnittstellen liegen in einem Netz"},
    {"serial-port", Gravity::fault, Test::ports,
     "DCF77_activ DCF77_port VELMO_activ VELMO_port Modbustime_activ Modbustime_port T101_active T101_port "
     "T103_active T103_port CONMASTER_active Modbus_port_conmaster",
     "two services use one serial port", "zwei Dienste benutzen eine serielle Schnittstelle"},
    {"tcp-twice", Gravity::fault, Test::ports,
     "modbus_active Modbus_Port T104_active T104_port DNP3_active DNP3_PORT", "two services use one TCP port",
     "zwei Dienste benutzen einen TCP-Port"},
    {"individual", Gravity::doubt, Test::individual, "",
     "replaces a value that belongs to this device alone: does it come from another?",
     "ersetzt einen Wert, der nur zu diesem Gerät gehört: stammt er von einem anderen?"},
};

} // namespace talux::reference

#endif
