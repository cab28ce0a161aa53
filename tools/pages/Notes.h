// Remarks on parameters that the text table has no room for: what an engineer would otherwise set wrongly,
// and what is not documented.
#ifndef TALUX_PAGES_NOTES_H
#define TALUX_PAGES_NOTES_H

#include <string_view>

#include "tools/generator/Model.h"

namespace talux::pages {

using model::kAdvice, model::kUnknown, model::kWarning, model::NoteKind;

// `names` are parameters or patterns of series as in the text data, divided by blanks. A parameter has every
// note that names it, in this order. A template's note holds for all parameters that share the template.
struct Note {
    NoteKind kind;
    std::string_view names;
    std::string_view de, en;
};

inline constexpr Note kNotes[] = {
    // State.
    {kAdvice, "ParamChanged IpParamChanged SecParamChanged StmParamChanged",
     "Änderungsmerker: Laden und Speichern setzen ihn, auch ein Laden, das scheitert (StmParamChanged "
     "setzt diese Bibliothek nie). Zurückgesetzt wird er von den übrigen Programmen des Geräts, von dieser "
     "Bibliothek nie.",
     "Change flag: loading and saving set it, even a load that fails (nothing in this library sets "
     "StmParamChanged). The device's other programs clear it; this library never does."},
    {kUnknown, "ParamMagic", "Die Bedeutung der Zahlen ist nicht dokumentiert.",
     "The meaning of the numbers is not documented."},

    // Measurements.
    {kWarning,
     "EvCnt_qu2_c{0..4} EvCnt_qu2 DisplayLevel cycle_cnt_low cycle_cnt_high BE_Reset_Button OVR_new "
     "OVR_BEF_enable OVR_BE_enable OVR_BE_LT_enable",
     "Teilt seine Id mit einem zweiten Parameter. Beide Namen lesen den Wert des long, und ein Schreiben "
     "ändert beide.",
     "Shares its id with a second parameter. Both names read the value of the long one, and a write "
     "changes both."},
    {kUnknown, "EvCnt_qu2_c{0..4} EvCnt_qu2", "Ereigniszähler des Verfahrens qu2, aus dem Namen gelesen.",
     "Event counter of the method qu2, read from the name."},
    {kUnknown, "OVR_BE_LT_enable",
     "Freigabe der Simulation der Binäreingänge der Leittechnik, aus dem Namen gelesen.",
     "Enables the override of the binary inputs of telecontrol, read from the name."},
    {kUnknown, "BE_Reset_Button", "Was zum Quittieren zu schreiben ist, ist nicht dokumentiert.",
     "What must be written to acknowledge signals is not documented."},
    {kUnknown, "U0_prim U0",
     "Ob der Wert die Verlagerungsspannung (ein Drittel der Summe der Leiter-Erde-Spannungen) oder die "
     "Summe ist, ist nicht dokumentiert; der Werkswert von knu0 spricht für das Drittel. Durch Einspeisen "
     "prüfen (Faktor 3).",
     "Whether the value is the neutral displacement voltage (a third of the sum of the phase-to-earth "
     "voltages) or the sum is not documented; the factory value of knu0 suggests the third. Check by "
     "injection (factor 3)."},
    {kUnknown, "I0_prim I0",
     "Summenstrom. Ob der Wert 3I0 oder ein Drittel davon ist, ist nicht dokumentiert; der Name 3Io_calc "
     "spricht für 3I0. Durch Einspeisen eines Leiters prüfen (Faktor 3).",
     "Residual current. Whether the value is 3I0 or a third of it is not documented; the name 3Io_calc "
     "suggests 3I0. Check by injecting current in one phase (factor 3)."},
    {kUnknown, "phiUI{0..3} Y0_{250,f1,f2,f3}_phi mw_phi_{U,I}{0..3} mw_phi_UI{0..3}",
     "Zählrichtung und Bezug des Winkels sind nicht dokumentiert. An einer bekannten Lastrichtung prüfen.",
     "The sign convention and the reference of the angle are not documented. Check against a load of known "
     "direction."},
    {kUnknown, "U0_{250,f1,f2,f3}_abs I0_{250,f1,f2,f3}_abs", "Die Einheit (kV, A) ist angenommen.",
     "The unit (kV, A) is assumed."},
    {kUnknown, "Y0_{250,f1,f2,f3}_abs",
     "Einheit nicht dokumentiert; auch nicht, ob mit 3I0 oder I0 gebildet (Faktor 3).",
     "The unit is not documented, nor whether 3I0 or I0 is used (factor 3)."},
    {kUnknown, "{U0,I0,Y0}_{f2,f3}_abs Y0_{f2,f3}_phi",
     "Dass f2 für fx2- und f3 für fx2+ steht, ist aus der Reihenfolge geschlossen.",
     "That f2 stands for fx2- and f3 for fx2+ is inferred from the order."},
    {kAdvice, "U{1,2,3,12,23,31}_prim U0_prim calib_U12_mess", "In kV; die Nennspannung U12 steht in V.",
     "In kV; the nominal voltage U12 is in V."},
    {kUnknown, "I{0..3}_max_stat_c{0..4} EvCnt_qu2_c{0..4}",
     "Wofür die Klassen c0 bis c4 der Statistik stehen, ist nicht dokumentiert.",
     "What the classes c0 to c4 of the statistics stand for is not documented."},
    {kUnknown, "MW_meas_disp{1..13}", "Bedeutung und Einheit der Zahl sind nicht dokumentiert.",
     "Meaning and unit of the number are not documented."},

    // Choices of which some or all have no text. Choices count from 1 where nothing else is said.
    {kUnknown, "TPL_MEAS_DISP",
     "Nur die Zahlen 1 bis 13 haben einen Namen; 14 bis 24 werden angenommen, ihre Bedeutung ist nicht "
     "dokumentiert.",
     "Only the numbers 1 to 13 have a name; 14 to 24 are accepted, but their meaning is not documented."},
    {kUnknown, "TPL_PRIORITY",
     "Nur die Zahlen 1 bis 10 haben einen Namen; 11 bis 20 werden angenommen, ihre Bedeutung ist nicht "
     "dokumentiert. ov5 ist H250 (harm1), ovx ist H fx1 (harm2); wofür ovx1 steht, ist nicht dokumentiert.",
     "Only the numbers 1 to 10 have a name; 11 to 20 are accepted, but their meaning is not documented. "
     "ov5 is H250 (harm1), ovx is H fx1 (harm2); what ovx1 stands for is not documented."},
    {kUnknown, "prio_list_{1..10}",
     "Ob Platz 1 oder Platz 10 den Vorrang hat, ist nicht dokumentiert; vor dem Einstellen am Gerät "
     "klären. Ein Verfahren auf zwei Plätzen wird nicht abgelehnt.",
     "Whether place 1 or place 10 takes precedence is not documented; find out on the device before "
     "setting. A method in two places is not refused."},
    {kWarning, "prio_list_{1..10} BAassign{3,4}",
     "Ab Werk ist die Prioritätenliste leer (AUS auf allen Plätzen). Die Relais 3 und 4 folgen ihr (26, 27 "
     "= Prio_Uerd ->v, ->r) und melden deshalb nichts.",
     "The factory priority list is empty (AUS in all places). Relays 3 and 4 follow it (26, 27 = "
     "Prio_Uearth ->f, ->b), so they signal nothing."},
    {kWarning, "TPL_BA_FUNCTION",
     "90 bis 128 sind frei: Sie werden angenommen, haben aber keine Funktion. A (englisch F, FD): in "
     "Richtung Abgang; SS (englisch BB): in Richtung Sammelschiene; v, r (englisch f, b): vorwärts, "
     "rückwärts; verz (englisch d): verzögert.",
     "90 to 128 are not connected: they are accepted but have no function. F, FD: towards the feeder; BB: "
     "towards the busbar; f, b: forward, backward; d: delayed."},
    {kUnknown, "BEFassign{1..16}",
     "Was die 16 Eingangsfunktionen auslösen, ist nicht dokumentiert; vor dem Zuordnen klären.",
     "What the 16 input functions trigger is not documented; find out before assigning one."},
    {kUnknown, "frequency",
     "1 oder 2 wird an die Messung weitergegeben; welche Zahl für welche Nennfrequenz steht, ist nicht "
     "dokumentiert. Die Frequenzüberwachung hat mit freq_f_grid einen eigenen Bezugswert.",
     "1 or 2 is passed on to the measurement; which number stands for which nominal frequency is not "
     "documented. The frequency supervision has its own reference, freq_f_grid."},
    {kUnknown, "Uassign{1,2,3,0} Iassign{1,2,3,0}",
     "Die Zahl wird an die Messung weitergegeben. Ob sie den Eingang der Größe oder die Größe am Eingang "
     "nennt, ist nicht dokumentiert.",
     "The number is passed on to the measurement. Whether it names the input of the quantity or the "
     "quantity at the input is not documented."},
    {kUnknown, "qu_signalling",
     "2 oder 3 (1 wird abgelehnt), wird an die Erdschlusserfassung weitergegeben; die Bedeutung der Zahlen "
     "ist nicht dokumentiert.",
     "2 or 3 (1 is refused), passed on to the earth-fault detection; the meaning of the numbers is not "
     "documented."},
    {kUnknown, "pHPCI_pattern",
     "0 bis 6, wird an die Pulsortung weitergegeben; welches Muster welche Zahl hat, ist nicht "
     "dokumentiert. Muss zur Stromeinspeisung passen.",
     "0 to 6, passed on to the pulse locating; which pattern has which number is not documented. Must "
     "match the current injection."},
    {kUnknown, "mod_prot",
     "1 bis 4, wird an den Modbus-Slave weitergegeben; welche Zahl für TCP und welche für eine serielle "
     "Schnittstelle steht, ist nicht dokumentiert.",
     "1 to 4, passed on to the Modbus slave; which number stands for TCP and which for a serial port is "
     "not documented."},
    {kUnknown, "DNP3_DEVICE",
     "1 bis 5, wird an das DNP3-Programm weitergegeben; welche Zahl für welche Schnittstelle steht, ist "
     "nicht dokumentiert.",
     "1 to 5, passed on to the DNP3 program; which number stands for which interface is not documented."},
    {kUnknown, "T101_balance T101_dirbit T101_adrfl",
     "1 oder 2, wird an das IEC-101-Programm weitergegeben; die Bedeutung der Zahlen ist nicht "
     "dokumentiert. Mit der Leitstelle abstimmen und prüfen.",
     "1 or 2, passed on to the IEC 101 program; the meaning of the numbers is not documented. Agree it "
     "with the control centre and test."},
    {kUnknown, "VELMO_format",
     "1 oder 2, wird an den Zeitsender weitergegeben; der Aufbau der beiden Formate ist nicht "
     "dokumentiert.",
     "1 or 2, passed on to the time sender; the layout of the two formats is not documented."},
    {kUnknown, "skew_type filt_active",
     "Wird an die Messung weitergegeben; die Bedeutung ist nicht dokumentiert. Den Werkswert nicht ohne "
     "Anlass ändern.",
     "Passed on to the measurement; the meaning is not documented. Do not change the factory value without "
     "good reason."},
    {kUnknown, "f50_sync", "Zahl, wird an die Messung weitergegeben; ihre Bedeutung ist nicht dokumentiert.",
     "Number, passed on to the measurement; its meaning is not documented."},
    {kUnknown, "LOG_BAFs_enable", "Was die Zahlen 1 bis 3 bedeuten, ist nicht dokumentiert.",
     "What the numbers 1 to 3 mean is not documented."},

    // Network and time.
    {kWarning, "ETH0_IP ETH1_IP WLAN0_IP",
     "Wird nicht geprüft. Ein Schreiben wendet alle Netzwerkeinstellungen sofort an, macht alles "
     "Ausstehende gültig und speichert die Adressen: Eine falsche Adresse trennt das Gerät vom Netz, auch "
     "nach einem Neustart. Maske und Gateway zuerst schreiben.",
     "Not checked. A write applies all network settings at once, makes every pending setting live and "
     "saves the addresses: a wrong address cuts the device off the network, even after a restart. Write "
     "mask and gateway first."},
    {kWarning, "{ETH0,ETH1,WLAN0}_MASK",
     "Wird nicht geprüft; gilt erst, wenn die Netzwerkeinstellungen angewendet werden.",
     "Not checked; takes effect only when the network settings are applied."},
    {kWarning, "{ETH0,ETH1,WLAN0}_GATEWAY",
     "Wird nicht geprüft. 0.0.0.0 setzt keine Route und behält eine bestehende Standardroute.",
     "Not checked. 0.0.0.0 sets no route and keeps an existing default route."},
    {kWarning, "VarSetWLAN0TypeDev",
     "Infrastruktur wird nicht unterstützt: Mit 2 wird am Funkadapter nichts eingestellt.",
     "Infrastructure is not supported: with 2 nothing is set at the radio adapter."},
    {kAdvice, "DNS", "0.0.0.0 oder leer ändert /etc/resolv.conf nicht.",
     "0.0.0.0 or an empty text does not change /etc/resolv.conf."},
    {kUnknown, "FW_BLOCK",
     "Was -1 bedeutet, ist nicht dokumentiert. Ganze Zahl; Nachkommastellen fallen weg.",
     "What -1 means is not documented. Whole number; a fraction is cut off."},
    {kWarning, "Firewall_dis", "Ab Werk 1: Die Standard-Firewall ist abgeschaltet.",
     "Factory value 1: the standard firewall is off."},
    {kAdvice, "ftp_{min,max}_passive", "Dass der kleinste unter dem größten Port liegt, wird nicht geprüft.",
     "Nothing checks that the lowest port is below the highest."},
    {kWarning, "TIMEZONE",
     "Gilt erst, wenn die Netzwerkeinstellungen angewendet werden (Schreiben einer Schnittstellenadresse "
     "oder load_ip), und übersteht einen Neustart erst nach save. Fehlt die Datei, wird UTC eingestellt.",
     "Takes effect only when the network settings are applied (a write of an interface address or load_ip) "
     "and survives a restart only after save. If the file is missing, UTC is set."},
    {kAdvice, "NTP1",
     "Von diesem Server wird die Uhr einmal gestellt, bevor die laufende Nachführung beginnt.",
     "The clock is set once from this server before the continuous adjustment starts."},
    {kAdvice, "DCF77_activ", "Ein schon laufendes NTP wird nicht angehalten.",
     "An NTP daemon that is already running is not stopped."},
    {kUnknown, "TIMESERVER_active",
     "Ob das Gerät damit Zeit abgibt oder bezieht, ist nicht dokumentiert; vor dem Abschalten klären.",
     "Whether the device then provides time or obtains it is not documented; find out before switching it "
     "off."},
    {kWarning, "RTCSET_UTC_activ",
     "Diese Bibliothek stellt die Uhr in UTC, was auch immer hier steht; welches Programm den Schalter "
     "auswertet, ist nicht dokumentiert.",
     "This library sets the clock in UTC whatever the value is; which program uses the switch is not "
     "documented."},
    {kUnknown, "VELMO_tsyncdelay Modbustime_tsyncdelay",
     "Ob die beiden Zahlen Stunden und Minuten oder Minuten und Sekunden sind und ob sie einen Abstand "
     "oder eine Verzögerung angeben, ist nicht dokumentiert.",
     "Whether the two numbers are hours and minutes or minutes and seconds, and whether they are an "
     "interval or a delay, is not documented."},

    // Telecontrol, Modbus, scripts.
    {kWarning, "Modbus_SlaveID", "0 ist in Modbus die Rundsprechadresse, auf die kein Slave antwortet.",
     "0 is the Modbus broadcast address, to which no slave responds."},
    {kUnknown,
     "vBE{mo,moc} vBEF{mo,moc} vBAF{mo,moc} vBA{mo,moc} y_BEmo y_vBEFmo y_vBAFmo y_vBAmo y_LEDmo UImo "
     "UImo2 y_vBEmow y_vBEmowc y_vTIMEmow vBA{mo,moc}_VIRT vBE{mo,moc}_VIRT vMWRmo_VIRT vMWWmo_VIRT",
     "Ob der Offset ab 0 oder ab 1 zählt, ist nicht dokumentiert. 65536 wird angenommen, Modbus-Adressen "
     "enden bei 65535. Überlappende Bereiche werden nicht abgelehnt.",
     "Whether the offset counts from 0 or 1 is not documented. 65536 is accepted, but Modbus addresses end "
     "at 65535. Overlapping blocks are not refused."},
    {kUnknown, "aUIgmo wUIgmo dwUIgmo",
     "Was der Bereich enthält und in welchem Zahlenformat, ist nicht dokumentiert. 65536 wird angenommen, "
     "Modbus-Adressen enden bei 65535.",
     "What the block contains, and in which number format, is not documented. 65536 is accepted, but "
     "Modbus addresses end at 65535."},
    {kUnknown, "UImo UImo2", "Anordnung und Zahlenformat der Messwerte sind nicht dokumentiert.",
     "The order and number format of the measured values are not documented."},
    {kUnknown, "Modbus_StoreTime", "Welche Werte gespeichert werden, ist nicht dokumentiert.",
     "Which values are stored is not documented."},
    {kWarning, "T104_T{0..3}",
     "Ganze Sekunden; ein Bruchteil fällt weg. Die Norm verlangt T2 < T1; geprüft wird das nicht.",
     "Whole seconds; a fraction is cut off. The standard requires T2 < T1; nothing checks it."},
    {kAdvice, "T104_K T104_W", "Die Norm empfiehlt w höchstens zwei Drittel von k; geprüft wird das nicht.",
     "The standard recommends a w of at most two thirds of k; nothing checks it."},
    {kUnknown, "T104_all_ip T104_all_ip_{1..4}", "Wen 0.0.0.0 (Werkswert) zulässt, ist nicht dokumentiert.",
     "Who is admitted with 0.0.0.0 (factory value) is not documented."},
    {kWarning, "T104_ethernet",
     "Nach dem Umschalten bleiben die Alias-Adressen der bisherigen Schnittstelle bis zum Neustart "
     "bestehen.",
     "After a change, the alias addresses of the previous interface remain until the next restart."},
    {kUnknown, "T104_eth_bind", "Die Wirkung ist aus dem Namen gelesen.",
     "The effect is read from the name."},
    {kUnknown, "T101_pi_update T103_pi_update T104_pi_update", "Wirkung nicht dokumentiert.",
     "The effect is not documented."},
    {kWarning, "T104_ETH_IP_{1..4} T104_ETH_MA_{1..4} T104_ETH_GW_{1..4}",
     "Wird nicht geprüft. Die Alias-Adresse wird nur eingerichtet, wenn Adresse und Maske von 0.0.0.0 "
     "verschieden sind, und erst, wenn die Netzwerkeinstellungen angewendet werden.",
     "Not checked. The alias address is set up only if address and mask differ from 0.0.0.0, and only when "
     "the network settings are applied."},
    {kAdvice, "DNP3_ALL_IP_{1..2}",
     "Der Werkswert ist derselbe wie bei DNP3_ALL_IP; 192.168.55.2 und 192.168.55.3 sind Anfangswerte für "
     "die übrigen Programme des Geräts.",
     "The factory value is that of DNP3_ALL_IP; 192.168.55.2 and 192.168.55.3 are initial values for the "
     "device's other programs."},
    {kUnknown, "DNP3_TOAL DNP3_TOSO DNP3_TOIC DNP3_TTRE",
     "Was die Zeit überwacht, ist aus dem Namen gelesen.", "What the time supervises is read from the name."},
    {kUnknown, "script_timeout script_timeout_conmaster",
     "Was -1 bedeutet, ist nicht dokumentiert. Ganze Sekunden; Nachkommastellen fallen weg.",
     "What -1 means is not documented. Whole seconds; a fraction is cut off."},
    {kUnknown, "conman_status conman_error", "Die Bedeutung der Zahlen ist nicht dokumentiert.",
     "The meaning of the numbers is not documented."},
    {kUnknown, "vMWR vMWW SLvMWR SLvMWW",
     "Einheit und Bedeutung legen Skript oder Gegenstelle fest. Aus wessen Sicht gelesen (R) und "
     "geschrieben (W) wird, ist nicht dokumentiert.",
     "Script or remote station define unit and meaning. From whose point of view the values are read (R) "
     "and written (W) is not documented."},
    {kUnknown, "vBA vBE SLvBA SLvBE",
     "Welches Programm des Geräts die Werte setzt und welches sie liest, ist nicht dokumentiert. Diese "
     "Bibliothek und ihre Skripte können sie lesen und schreiben.",
     "Which program of the device sets the values and which reads them is not documented. This library and "
     "its scripts can read and write them."},
    {kAdvice, "script_sleep script_timeout usedscript",
     "Der Skriptserver führt usedscript immer wieder aus, mit script_sleep Pause, und bricht einen "
     "Durchlauf nach script_timeout ab. Wo das Skript liegt und wohin print schreibt, ist nicht "
     "dokumentiert.",
     "The script server runs usedscript again and again with a pause of script_sleep and stops a run after "
     "script_timeout. Where the script is stored and where print writes is not documented."},

    // Analogue inputs.
    {kUnknown, "U12",
     "Ob und welche Prozentwerte (etwa Uearth) sich auf diese Spannung beziehen, ist nicht dokumentiert.",
     "Whether any percentages (such as Uearth), and which, refer to this voltage is not documented."},
    {kAdvice, "knu0",
     "Der Werkswert passt zu 20 kV / √3 auf 100 V, also zu einer offenen Dreieckswicklung, die bei sattem "
     "Erdschluss 100 V liefert. Für andere Wandler neu berechnen.",
     "The factory value fits 20 kV / √3 to 100 V, an open-delta winding that delivers 100 V in a solid "
     "earth fault. Recalculate it for other transformers."},
    {kUnknown, "Uen_calc 3Io_calc",
     "Welche Übersetzung und welche Polarität dann für Kanal 0 gelten, ist nicht dokumentiert.",
     "Which ratio and polarity then apply to channel 0 is not documented."},
    {kWarning, "knuV{1,2,3,0} kniV{1,2,3,0} BE_knuV_{1..2}",
     "Ob der Faktor für jedes Gerät einzeln abgeglichen ist, ist nicht dokumentiert; nicht ungeprüft von "
     "einem anderen Gerät übernehmen.",
     "Whether the factor is calibrated for the individual device is not documented; do not copy it from "
     "another device unchecked."},
    {kUnknown, "phi_corr_{U,I}{0..3}",
     "Das Vorzeichen ist nicht dokumentiert; ein falsches verdoppelt den Fehler. Durch Einspeisen prüfen.",
     "The sign is not documented; a wrong sign doubles the error. Check by injection."},
    {kUnknown, "U_sec_valid I_sec_valid",
     "Die Einheit ist angenommen; was unter dieser Schwelle nicht mehr gilt, ist nicht dokumentiert.",
     "The unit is assumed; what is no longer valid below this threshold is not documented."},
    {kUnknown, "calib_U12_soll calib_U12_min calib_U12_max",
     "Worauf sich die Prozente beziehen, ist nicht dokumentiert.",
     "What the percentages refer to is not documented."},
    {kUnknown, "calib_U{1..3}e_new", "Einheit nicht dokumentiert.", "The unit is not documented."},
    {kUnknown, "calib_{U,I} calib_{U,I}{0..3} calib_confirm",
     "Die Bedeutung der Zahlen ist nicht dokumentiert.", "The meaning of the numbers is not documented."},
    {kAdvice, "BE_DC_on_{1..2} BE_DC_off_{1..2} BE_AC_on_{1..2} BE_AC_off_{1..2}",
     "Dass der Rückfallwert unter dem Ansprechwert liegt, wird nicht geprüft.",
     "Nothing checks that the drop-out value is below the pick-up value."},
    {kUnknown, "uBAF{1..8}",
     "Ob der Text ein Name oder eine Verknüpfung ist und wie eine solche geschrieben wird, ist nicht "
     "dokumentiert.",
     "Whether the text is a name or an expression, and how an expression is written, is not documented."},

    // Earth-fault detection.
    {kUnknown, "U123ok U123erd Uearth U_Hz_proz harm1_Umin harm2_Umin adm_U_min pHPCI_U_min",
     "Worauf sich die Prozente beziehen (Außenleiter- oder Leiter-Erde-Spannung, Nennwert oder "
     "Messbereich), ist nicht dokumentiert; der Unterschied kann den Faktor 1,73 ausmachen. Vor dem "
     "Einstellen durch Prüfung mit Sekundärwerten klären.",
     "What the percentages refer to (phase-to-phase or phase-to-earth voltage, nominal value or measuring "
     "range) is not documented; the difference can be a factor of 1.73. Determine it by secondary "
     "injection before setting."},
    {kUnknown, "qu2_Ice qui_Ice",
     "Ob der Strom des ganzen Netzes oder der des Abgangs gemeint ist, ist nicht dokumentiert.",
     "Whether the current of the whole system or that of the feeder is meant is not documented."},
    {kUnknown, "qu2_active qui_active",
     "Was qu2 und qui bezeichnen, ist aus dem Fach erschlossen, nicht dokumentiert.",
     "What qu2 and qui denote is inferred from the trade, not documented."},
    {kUnknown, "qui_T_super qui_n", "Die Bedeutung ist aus dem Namen gelesen.",
     "The meaning is read from the name."},
    {kUnknown, "harm1_cycle harm2_cycle cos_cycle sin_cycle cos_sin_cycle adm_N_cycles freq_N_cycle",
     "Die Länge eines Zyklus ist nicht dokumentiert (bei HPCI 200 ms). Sie bestimmt die Ansprechzeit; "
     "durch Einspeisen messen.",
     "The length of a cycle is not documented (200 ms with HPCI). It determines the operating time; "
     "measure it by injection."},
    {kUnknown, "qui_dUo",
     "Bezug ist Unenn; ob das U12 oder die Leiter-Erde-Spannung ist, ist nicht dokumentiert (Faktor 1,73).",
     "The reference is Unom; whether that is U12 or the phase-to-earth voltage is not documented (factor "
     "1.73)."},
    {kUnknown, "preBuff_Umin preBuff_dUo qu2_rot_grad_min",
     "Einheit nicht dokumentiert. Den Werkswert nicht ohne Anlass ändern.",
     "The unit is not documented. Do not change the factory value without good reason."},
    {kUnknown, "U_Hz_proz", "Welche Spannung gemeint ist, ist nicht dokumentiert.",
     "Which voltage is meant is not documented."},
    {kUnknown, "qu2_MsgResetEf", "Ob mit dem Beginn oder dem Ende des Erdschlusses, ist nicht dokumentiert.",
     "Whether at the start or at the end of the earth fault is not documented."},
    {kUnknown, "adm_Uo_enabled p50_Uen_active", "Welche Schwelle freigibt, ist nicht dokumentiert.",
     "Which threshold enables is not documented."},
    {kUnknown, "harm1_angle harm2_angle cos_w_min sin_w_min",
     "Von welcher Achse aus der Winkel zählt, ist nicht dokumentiert.",
     "The axis from which the angle is measured is not documented."},
    {kUnknown, "cos_store_active", "Bis wann der Entscheid gehalten wird, ist nicht dokumentiert.",
     "How long the decision is held is not documented."},
    {kUnknown, "pHPCI_dPhi pHPCI_Yo_quot_abs pHPCI_Yo_quot_phi",
     "Wie der Wert in die Entscheidung eingeht, ist nicht dokumentiert; die Einheit ° ist angenommen. Den "
     "Werkswert nicht ohne Anlass ändern.",
     "How the value enters the decision is not documented; the unit ° is assumed. Do not change the "
     "factory value without good reason."},
    {kUnknown,
     "{Uearth,qu2,qui,harm1,harm2,cos,sin,cos_sin}_SigDur "
     "{Uearth,qu2,qui,harm1,harm2,cos,sin,cos_sin}_SigDur_LED p50_SigDur sc_SigDur sc_SigDur_LED "
     "{adm,pHPCI,freq}_T_hold {adm,pHPCI,freq}_T_hold_LED",
     "Was 0 bedeutet (keine Meldung, solange die Ursache ansteht oder dauernd), ist nicht dokumentiert.",
     "What 0 means (no signal, as long as the cause persists, or permanently) is not documented."},
    {kUnknown, "adm_I_min_{1..2}", "Wofür welcher der beiden Werte gilt, ist nicht dokumentiert.",
     "Which of the two values applies to what is not documented."},
    {kUnknown, "adm_Phi_FW_min adm_Phi_FW_max adm_Phi_BW_min adm_Phi_BW_max",
     "Ein Bereich reicht von min bis max; Winkel jenseits von ±180° sind erlaubt (-255° = 105°). Ab Werk "
     "ist rückwärts 85° bis 95° und vorwärts alles von 105° über 0° bis 80°. Zählrichtung nicht "
     "dokumentiert.",
     "A range extends from min to max; angles beyond ±180° are allowed (-255° = 105°). The factory setting "
     "is backward from 85° to 95° and forward from 105° through 0° to 80°. The sign convention is not "
     "documented."},
    {kUnknown, "sc_Phi_max_fwd sc_Phi_min_fwd sc_Phi_max_bwd sc_Phi_min_bwd",
     "Ein Bereich reicht von min bis max; Winkel jenseits von ±180° sind erlaubt (-215° = 145°). "
     "Zählrichtung und Bezug sind nicht dokumentiert.",
     "A range extends from min to max; angles beyond ±180° are allowed (-215° = 145°). The sign convention "
     "and the reference are not documented."},
    {kUnknown, "CosSin_angle{1..2}",
     "Welcher Bereich vorwärts ist und wie der Winkel zählt, ist nicht dokumentiert.",
     "Which range is forward, and in which direction the angle counts, is not documented."},
    {kUnknown, "adm_dPhi_Yo",
     "Was der Wert begrenzt, ist nicht dokumentiert; die Einheit ° ist angenommen. Den Werkswert nicht "
     "ohne Anlass ändern.",
     "What the value limits is not documented; the unit ° is assumed. Do not change the factory value "
     "without good reason."},
    {kAdvice, "adm_fu adm_fo", "Dass die untere Grenze unter der oberen liegt, wird nicht geprüft.",
     "Nothing checks that the lower limit is below the upper limit."},
    {kWarning, "p50_T_on p50_T_off p50_P_min p50_P_sum", "Muss zur Taktung im Umspannwerk passen.",
     "Must match the pulsing in the substation."},
    {kAdvice, "p50_P_min p50_P_sum", "Dass P_min höchstens P_sum ist, wird nicht geprüft.",
     "Nothing checks that P_min is at most P_sum."},
    {kWarning, "pHPCI_Q_pulse", "Muss zur Stromeinspeisung passen.", "Must match the current injection."},
    {kUnknown, "{qui,harm1,harm2,cos,sin,cos_sin,p50}_dT_log adm_log_dT",
     "Was 0 bedeutet, ist nicht dokumentiert.", "What 0 means is not documented."},
    {kAdvice, "freq_df_min freq_df_max", "Ab Werk sind beide Werte positiv, also Beträge.",
     "Both factory values are positive, so they are magnitudes."},

    // Recorder, other settings, run-time values.
    {kUnknown, "rec_retrig_t BAF_cnt_val_dT{1..2}", "Was -1 bedeutet, ist nicht dokumentiert.",
     "What -1 means is not documented."},
    {kAdvice,
     "stat_{I,U}{0..3}_max_enabled stat_{I,U}{0..3}_av_enabled stat_U{0..3}_min_enabled "
     "stat_U{12,23,31}_max_enabled stat_{P,Q}{0..3}_max_enabled stat_{P,Q,S}_all_max_enabled "
     "stat_{P,Q}{0..3}_min_enabled stat_{P,Q}_all_min_enabled stat_{P,Q}{0..3}_av_enabled "
     "stat_{P,Q,S}_all_av_enabled",
     "Schalter, kein Messwert: nimmt die Größe in die Statistik auf, wenn stat_enabled 1 ist. Der Wert "
     "steht im Datensatz StatRecord_c0.",
     "A switch, not a measured value: includes the quantity in the statistics if stat_enabled is 1. The "
     "value is in the record StatRecord_c0."},
    {kUnknown, "rec_retrig_t rec_retrig_dur", "Die Wirkung ist aus dem Namen gelesen.",
     "The effect is read from the name."},
    {kWarning, "rec_pretrig_per stat_intervall", "Ganze Zahl; Nachkommastellen fallen weg (2,5 wird 2).",
     "Whole number; a fraction is cut off (2.5 becomes 2)."},
    {kUnknown, "BAF_cnt_val_dT{1..2} OVR_time OVR_MW_time OVR_MW_BE_time", "Einheit nicht dokumentiert.",
     "The unit is not documented."},
    {kUnknown, "max_ini_files",
     "Laden und Speichern über diese Bibliothek löschen keine datierte Kopie; welches Programm die Zahl "
     "auswertet, ist nicht dokumentiert.",
     "Loading and saving through this library delete no dated copy; which program uses the number is not "
     "documented."},
    {kUnknown, "BA_red_cnt", "Bedeutung und Einheit sind nicht dokumentiert.",
     "Meaning and unit are not documented."},
    {kWarning, "sec_mode", "Nicht schreibbar. Laden der Sicherheitsdatei setzt 1, auch wenn die Datei fehlt.",
     "Cannot be written. Loading the security file sets 1, even if the file is missing."},
    {kUnknown, "OVR_new OVR_{BEF,BE,BE_LT,BAF,BA,MW,MW_BE}_enable",
     "Ob die Zahl ein Schalter ist oder ein Bit je Eingang, Funktion oder Relais hat, ist nicht "
     "dokumentiert.",
     "Whether the number is a switch or has one bit for each input, function or relay is not documented."},
    {kWarning, "OVR_{BEF,BE,BE_LT,BAF,BA,MW,MW_BE}_enable",
     "Simulierte Werte gelten statt der echten, bis die Freigabe zurückgenommen wird; diese Bibliothek "
     "nimmt sie nie zurück. Nach einer Prüfung zurücksetzen.",
     "Override values replace the real ones until the enable is withdrawn; this library never withdraws "
     "it. Reset it after a test."},
    {kUnknown, "OVR_MW_val", "Welches der 32 Elemente für welche Größe steht, ist nicht dokumentiert.",
     "Which of the 32 elements stands for which quantity is not documented."},
    {kUnknown, "y_BE y_BE_LT y_BEF y_BAF{1..4} y_BA y_LED",
     "Welches Bit wofür steht, ist nicht dokumentiert.", "Which bit stands for what is not documented."},
    {kUnknown, "y_EarthFaultState y_ShortCircuitState BA_RelayBack",
     "Die Bedeutung der Zahl ist nicht dokumentiert.", "The meaning of the number is not documented."},
    {kAdvice, "mw_req", "Der einzige Parameter, der schon mit Rechtestufe 1 schreibbar ist.",
     "The only parameter that may be written with rights level 1."},
    {kUnknown, "MessRecord{01,02} StatRecord_c0",
     "Einheiten und Takt der Datensätze sind nicht dokumentiert; die Namen folgen den Messwerten gleicher "
     "Art.",
     "Units and update rate of the records are not documented; the names follow the measured values of the "
     "same kind."},
};

} // namespace talux::pages

#endif
