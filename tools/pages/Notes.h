// Remarks of the parameter pages that the text table has no room for: what an engineer would otherwise set
// wrongly, and what is not known here.
#ifndef TALUX_PAGES_NOTES_H
#define TALUX_PAGES_NOTES_H

#include <string_view>

namespace talux::pages {

// `names` are parameters or patterns of series as in the text data, divided by blanks. A parameter has every
// note that names it, in this order. A template's note holds for all parameters that share the template.
struct Note {
    std::string_view names;
    std::string_view de, en;
};

inline constexpr Note kNotes[] = {
    // State.
    {"ParamChanged IpParamChanged SecParamChanged StmParamChanged",
     "Änderungsmerker: Laden und Speichern setzen sie (StmParamChanged setzt hier niemand), auch ein Laden, das "
     "scheitert. Zurückgesetzt werden sie von den übrigen Programmen des Geräts, hier nie.",
     "Change flag: loading and saving raise it (nothing here raises StmParamChanged), even a load that fails. "
     "The device's other programs clear it, nothing here does."},
    {"ParamMagic", "Welche Zahl was bedeutet, ist hier nicht festgehalten.",
     "What which number means is not kept here."},

    // Measurements.
    {"EvCnt_qu2_c{0..4} EvCnt_qu2 DisplayLevel cycle_cnt_low cycle_cnt_high BE_Reset_Button OVR_new "
     "OVR_BEF_enable OVR_BE_enable OVR_BE_LT_enable",
     "Teilt seine Id mit einem zweiten Parameter. Über den Namen gelesen kommt bei beiden der Wert des long, "
     "geschrieben werden beide.",
     "Shares its id with a second parameter. Read by name, either gives the value of the long one; a write "
     "changes both."},
    {"I0_prim I0",
     "Summenstrom. Ob der Wert 3I0 oder ein Drittel davon ist, ist hier nicht festgehalten; der Name 3Io_calc "
     "spricht für 3I0. Durch Einspeisen eines Leiters prüfen (Faktor 3).",
     "Residual current. Whether the value is 3I0 or a third of it is not kept here; the name 3Io_calc speaks for "
     "3I0. Check by injecting one phase (factor 3)."},
    {"phiUI{0..3} Y0_{250,f1,f2,f3}_phi mw_phi_{U,I}{0..3} mw_phi_UI{0..3}",
     "Zählrichtung und Bezug des Winkels sind hier nicht festgehalten. An einer bekannten Lastrichtung prüfen.",
     "The sign convention and the reference of the angle are not kept here. Check against a load of known "
     "direction."},
    {"I{0..3}_max_stat I{0..3}_max_stat_c{0..4} EvCnt_qu2_c{0..4}",
     "Wofür die fünf Zählungen c0 bis c4 stehen, ist hier nicht festgehalten.",
     "What the five counts c0 to c4 stand for is not kept here."},
    {"MW_meas_disp{1..13}", "Bedeutung und Einheit der Zahl sind hier nicht festgehalten.",
     "Meaning and unit of the number are not kept here."},

    // Choices of which some or all have no text. Choices count from 1 where nothing else is said.
    {"TPL_MEAS_DISP",
     "Von 24 Zahlen haben nur 1 bis 13 einen Namen; 14 bis 24 werden angenommen, ihre Bedeutung ist hier nicht "
     "festgehalten.",
     "Of 24 numbers only 1 to 13 have a name; 14 to 24 are accepted, their meaning is not kept here."},
    {"TPL_PRIORITY",
     "Von 20 Zahlen haben nur 1 bis 10 einen Namen; 11 bis 20 werden angenommen, ihre Bedeutung ist hier nicht "
     "festgehalten. ov5 ist H250 (harm1), ovx ist H fx1 (harm2); wofür ovx1 steht, ist nicht festgehalten.",
     "Of 20 numbers only 1 to 10 have a name; 11 to 20 are accepted, their meaning is not kept here. ov5 is H250 "
     "(harm1), ovx is H fx1 (harm2); what ovx1 stands for is not kept."},
    {"prio_list_{1..10}",
     "Ob Platz 1 oder Platz 10 den Vorrang hat, ist hier nicht festgehalten; vor dem Einstellen am Gerät klären. "
     "Ein Verfahren auf zwei Plätzen wird nicht abgelehnt.",
     "Whether place 1 or place 10 takes precedence is not kept here; find out on the device before setting. A "
     "method in two places is not refused."},
    {"TPL_BA_FUNCTION",
     "90 bis 128 sind frei: angenommen, aber ohne Funktion. A (englisch F, FD): in Richtung Abgang; SS (englisch "
     "BB): in Richtung Sammelschiene; v, r (englisch f, b): vorwärts, rückwärts.",
     "90 to 128 are not connected: accepted, but without a function. F, FD: towards the feeder; BB: towards the "
     "busbar; f, b: forward, backward."},
    {"frequency",
     "1 oder 2 wird an die Messung weitergegeben; welche Zahl für welche Nennfrequenz steht, ist hier nicht "
     "festgehalten. Die Frequenzüberwachung hat mit freq_f_grid einen eigenen Bezugswert.",
     "1 or 2 is passed on to the measurement; which number stands for which nominal frequency is not kept here. "
     "The frequency supervision has a reference of its own, freq_f_grid."},
    {"Uassign{1,2,3,0}",
     "Zahl von 1 bis 5, wird an die Messung weitergegeben; ihre Bedeutung ist hier nicht festgehalten.",
     "Number from 1 to 5, passed on to the measurement; its meaning is not kept here."},
    {"Iassign{1,2,3,0}",
     "Zahl von 0 bis 5, wird an die Messung weitergegeben; ihre Bedeutung ist hier nicht festgehalten.",
     "Number from 0 to 5, passed on to the measurement; its meaning is not kept here."},
    {"qu_signalling",
     "2 oder 3 (1 wird abgelehnt), wird an die Erdschlusserfassung weitergegeben; die Bedeutung der Zahlen ist "
     "hier nicht festgehalten.",
     "2 or 3 (1 is refused), passed on to the earth-fault detection; the meaning of the numbers is not kept here."},
    {"pHPCI_pattern",
     "0 bis 6, wird an die Pulsortung weitergegeben; welches Muster welche Zahl hat, ist hier nicht festgehalten. "
     "Muss zur Stromeinspeisung passen.",
     "0 to 6, passed on to the pulse locating; which pattern has which number is not kept here. Must match the "
     "current injection."},
    {"mod_prot",
     "1 bis 4, wird an den Modbus-Slave weitergegeben; welche Zahl für TCP und welche für eine serielle "
     "Schnittstelle steht, ist hier nicht festgehalten.",
     "1 to 4, passed on to the Modbus slave; which number stands for TCP and which for a serial port is not kept "
     "here."},
    {"DNP3_DEVICE",
     "1 bis 5, wird an das DNP3-Programm weitergegeben; welche Zahl für welche Schnittstelle steht, ist hier nicht "
     "festgehalten.",
     "1 to 5, passed on to the DNP3 program; which number stands for which interface is not kept here."},
    {"T101_balance T101_dirbit T101_adrfl",
     "1 oder 2, wird an das IEC-101-Programm weitergegeben; welche Zahl was bedeutet, ist hier nicht festgehalten. "
     "Mit der Leitstelle abstimmen und prüfen.",
     "1 or 2, passed on to the IEC 101 program; which number means what is not kept here. Agree with the control "
     "centre and test."},
    {"VELMO_format",
     "1 oder 2, wird an den Zeitsender weitergegeben; der Aufbau der beiden Formate ist hier nicht festgehalten.",
     "1 or 2, passed on to the time sender; the layout of the two formats is not kept here."},
    {"skew_type",
     "1 bis 4, wird an die Messung weitergegeben; die Bedeutung der Zahlen ist hier nicht festgehalten. Den "
     "Werkswert nicht ohne Anlass ändern.",
     "1 to 4, passed on to the measurement; the meaning of the numbers is not kept here. Do not change the factory "
     "value without good reason."},
    {"f50_sync", "Zahl, wird an die Messung weitergegeben; ihre Bedeutung ist hier nicht festgehalten.",
     "Number, passed on to the measurement; its meaning is not kept here."},
    {"LOG_BAFs_enable", "Was die Zahlen 1 bis 3 unterscheidet, ist hier nicht festgehalten.",
     "What tells the numbers 1 to 3 apart is not kept here."},

    // Network and time.
    {"ETH0_IP ETH1_IP WLAN0_IP",
     "Wird nicht geprüft. Schreiben wendet alle Netzwerkeinstellungen sofort an, macht alles Ausstehende gültig "
     "und speichert die Adressen: eine falsche Adresse trennt das Gerät vom Netz, auch nach einem Neustart. "
     "Maske und Gateway zuerst schreiben.",
     "Is not checked. A write applies all network settings at once, makes everything pending live and saves the "
     "addresses: a wrong address cuts the device off the network, also after a restart. Write mask and gateway "
     "first."},
    {"{ETH0,ETH1,WLAN0}_MASK",
     "Wird nicht geprüft; gilt erst, wenn die Netzwerkeinstellungen angewandt werden.",
     "Is not checked; takes effect only when the network settings are applied."},
    {"{ETH0,ETH1,WLAN0}_GATEWAY",
     "Wird nicht geprüft. 0.0.0.0 setzt keine Route und lässt eine bestehende Standardroute stehen.",
     "Is not checked. 0.0.0.0 sets no route and leaves an existing default route alone."},
    {"VarSetWLAN0TypeDev",
     "Infrastruktur ist nicht verwirklicht: mit 2 wird am Funkadapter nichts eingestellt.",
     "Infrastructure is not provided: with 2 nothing is set at the radio adapter."},
    {"DNS", "0.0.0.0 oder leer lässt /etc/resolv.conf, wie sie ist.",
     "0.0.0.0 or empty leaves /etc/resolv.conf as it is."},
    {"FW_BLOCK", "Was -1 bedeutet, ist hier nicht festgehalten. Ganze Zahl; Nachkommastellen fallen weg.",
     "What -1 means is not kept here. Whole number; a fraction is cut off."},
    {"Firewall_dis", "Ab Werk 1: die Standard-Firewall ist abgeschaltet.",
     "Factory value 1: the standard firewall is switched off."},
    {"ftp_{min,max}_passive", "Dass der kleinste unter dem größten Port liegt, wird nicht geprüft.",
     "Nothing checks that the lowest port lies below the highest."},
    {"TIMEZONE",
     "Gilt erst, wenn die Netzwerkeinstellungen angewandt werden (Schreiben einer Schnittstellenadresse oder "
     "load_ip), und bleibt erst nach save. Fehlt die Datei, wird UTC eingestellt.",
     "Takes effect only when the network settings are applied (a write of an interface address or load_ip) and "
     "lasts only after save. Where the file is missing, UTC is set."},
    {"NTP1", "Von diesem Server wird die Uhr einmal gestellt, bevor die laufende Nachführung beginnt.",
     "The clock is set once from this server before the running adjustment starts."},
    {"DCF77_activ", "Ein schon laufendes NTP wird nicht angehalten.",
     "An NTP that is already running is not stopped."},
    {"VELMO_tsyncdelay Modbustime_tsyncdelay",
     "Ob die beiden Zahlen Stunden und Minuten oder Minuten und Sekunden sind, ist hier nicht festgehalten.",
     "Whether the two numbers are hours and minutes or minutes and seconds is not kept here."},

    // Telecontrol, Modbus, scripts.
    {"Modbus_SlaveID", "0 ist in Modbus die Rundsprechadresse, auf die kein Slave antwortet.",
     "0 is the broadcast address of Modbus, which no slave answers."},
    {"vBE{mo,moc} vBEF{mo,moc} vBAF{mo,moc} vBA{mo,moc} y_BEmo y_vBEFmo y_vBAFmo y_vBAmo y_LEDmo UImo UImo2 y_vBEmow "
     "y_vBEmowc y_vTIMEmow vBA{mo,moc}_VIRT vBE{mo,moc}_VIRT vMWRmo_VIRT vMWWmo_VIRT",
     "Ob der Versatz ab 0 oder ab 1 zählt, ist hier nicht festgehalten. 65536 wird angenommen, Modbus-Adressen "
     "enden bei 65535. Überlappende Bereiche werden nicht abgelehnt.",
     "Whether the offset counts from 0 or from 1 is not kept here. 65536 is accepted, Modbus addresses end at "
     "65535. Overlapping blocks are not refused."},
    {"aUIgmo wUIgmo dwUIgmo",
     "Was der Bereich enthält und in welchem Zahlenformat, ist hier nicht festgehalten. 65536 wird angenommen, "
     "Modbus-Adressen enden bei 65535.",
     "What the block holds and in which number format is not kept here. 65536 is accepted, Modbus addresses end "
     "at 65535."},
    {"UImo UImo2", "Anordnung und Zahlenformat der Messwerte sind hier nicht festgehalten.",
     "The order and number format of the measured values are not kept here."},
    {"Modbus_StoreTime", "Welche Werte gespeichert werden, ist hier nicht festgehalten.",
     "Which values are stored is not kept here."},
    {"T104_T{0..3}",
     "Ganze Sekunden; Nachkommastellen fallen weg. Die Norm verlangt T2 < T1; geprüft wird das nicht.",
     "Whole seconds; a fraction is cut off. The standard demands T2 < T1; nothing checks it."},
    {"T104_K T104_W", "Die Norm empfiehlt w höchstens zwei Drittel von k; geprüft wird das nicht.",
     "The standard recommends w at most two thirds of k; nothing checks it."},
    {"T104_all_ip T104_all_ip_{1..4}", "Wen 0.0.0.0 (Werkswert) zulässt, ist hier nicht festgehalten.",
     "Whom 0.0.0.0 (factory value) admits is not kept here."},
    {"T104_ethernet",
     "Nach dem Umschalten bleiben die Alias-Adressen der bisherigen Schnittstelle bis zum Neustart bestehen.",
     "After a change the alias addresses of the former interface stay until the next start-up."},
    {"T104_ETH_IP_{1..4} T104_ETH_MA_{1..4} T104_ETH_GW_{1..4}",
     "Wird nicht geprüft. Die Alias-Adresse wird nur eingerichtet, wenn Adresse und Maske von 0.0.0.0 verschieden "
     "sind, und erst, wenn die Netzwerkeinstellungen angewandt werden.",
     "Is not checked. The alias address is set up only if address and mask differ from 0.0.0.0, and only when the "
     "network settings are applied."},
    {"DNP3_ALL_IP_{1..2}",
     "Der Werkswert ist derselbe wie bei DNP3_ALL_IP; 192.168.55.2 und 192.168.55.3 sind Anfangswerte für die "
     "übrigen Programme.",
     "The factory default is that of DNP3_ALL_IP; 192.168.55.2 and 192.168.55.3 are initial values for the "
     "device's other programs."},
    {"DNP3_TOAL DNP3_TOSO DNP3_TOIC DNP3_TTRE", "Was die Zeit überwacht, ist aus dem Namen gelesen.",
     "What the time supervises is read from the name."},
    {"script_timeout script_timeout_conmaster",
     "Was -1 bedeutet, ist hier nicht festgehalten. Ganze Sekunden; Nachkommastellen fallen weg.",
     "What -1 means is not kept here. Whole seconds; a fraction is cut off."},
    {"conman_status conman_error", "Die Bedeutung der Zahlen ist hier nicht festgehalten.",
     "The meaning of the numbers is not kept here."},
    {"vMWR vMWW SLvMWR SLvMWW", "Einheit und Bedeutung legen Skript oder Gegenstelle fest.",
     "Unit and meaning are up to the script or the other end."},

    // Analogue inputs.
    {"U12",
     "Ob und welche Prozentwerte (etwa Uearth) sich auf diese Spannung beziehen, ist hier nicht festgehalten.",
     "Whether any percentages (such as Uearth), and which, refer to this voltage is not kept here."},
    {"knu0",
     "Der Werkswert passt zu 20 kV / √3 auf 100 V, also zu einer offenen Dreieckswicklung, die bei sattem "
     "Erdschluss 100 V liefert. Für andere Wandler neu berechnen.",
     "The factory value fits 20 kV / √3 to 100 V, that is an open-delta winding that delivers 100 V with a "
     "solid earth fault. Calculate anew for other transformers."},
    {"Uen_calc 3Io_calc",
     "Welche Übersetzung und welche Polarität dann für Kanal 0 gelten, ist hier nicht festgehalten.",
     "Which ratio and which polarity then hold for channel 0 is not kept here."},
    {"knuV{1,2,3,0} kniV{1,2,3,0} BE_knuV_{1..2}",
     "Ob der Faktor für jedes Gerät einzeln abgeglichen ist, ist hier nicht festgehalten; nicht ungeprüft von "
     "einem anderen Gerät übernehmen.",
     "Whether the factor is calibrated for each single device is not kept here; do not take it over from another "
     "device unchecked."},
    {"U_sec_valid I_sec_valid", "Was unter dieser Schwelle nicht mehr gilt, ist hier nicht festgehalten.",
     "What is no longer valid below this threshold is not kept here."},
    {"calib_U12_soll calib_U12_min calib_U12_max",
     "Worauf sich die Prozente beziehen, ist hier nicht festgehalten.",
     "What the percentages refer to is not kept here."},
    {"calib_U{1..3}e_new", "Einheit hier nicht festgehalten.", "The unit is not kept here."},
    {"calib_{U,I} calib_{U,I}{0..3} calib_confirm", "Die Bedeutung der Zahlen ist hier nicht festgehalten.",
     "The meaning of the numbers is not kept here."},
    {"BE_DC_on_{1..2} BE_DC_off_{1..2} BE_AC_on_{1..2} BE_AC_off_{1..2}",
     "Dass der Rückfallwert unter dem Ansprechwert liegt, wird nicht geprüft.",
     "Nothing checks that the drop-out lies below the pick-up."},
    {"uBAF{1..8}", "Wie die Verknüpfung geschrieben wird, ist hier nicht festgehalten.",
     "How the expression is written is not kept here."},

    // Earth-fault detection.
    {"U123ok U123erd Uearth U_Hz_proz harm1_Umin harm2_Umin adm_U_min pHPCI_U_min",
     "Worauf sich die Prozente beziehen (Außenleiter- oder Leiter-Erde-Spannung, Nennwert oder Messbereich), ist "
     "hier nicht festgehalten; der Unterschied kann den Faktor 1,73 ausmachen. Vor dem Einstellen durch Prüfung "
     "mit Sekundärwerten klären.",
     "What the percentages refer to (phase-to-phase or phase-to-earth voltage, nominal value or measuring range) "
     "is not kept here; the difference can be a factor of 1.73. Settle it by secondary injection before setting."},
    {"qui_dUo",
     "Bezug ist Unenn; ob das U12 oder die Leiter-Erde-Spannung ist, ist hier nicht festgehalten (Faktor 1,73).",
     "The reference is Unom; whether that is U12 or the phase-to-earth voltage is not kept here (factor 1.73)."},
    {"preBuff_Umin preBuff_dUo qu2_rot_grad_min",
     "Einheit hier nicht festgehalten. Den Werkswert nicht ohne Anlass ändern.",
     "The unit is not kept here. Do not change the factory value without good reason."},
    {"U_Hz_proz", "Welche Spannung gemeint ist, ist hier nicht festgehalten.",
     "Which voltage is meant is not kept here."},
    {"qu2_MsgResetEf", "Ob mit dem Beginn oder dem Ende des Erdschlusses, ist hier nicht festgehalten.",
     "Whether with the start or the end of the earth fault is not kept here."},
    {"adm_Uo_enabled p50_Uen_active", "Welche Schwelle freigibt, ist hier nicht festgehalten.",
     "Which threshold enables is not kept here."},
    {"harm1_angle harm2_angle cos_w_min sin_w_min",
     "Von welcher Achse der Winkel zählt, ist hier nicht festgehalten.",
     "From which axis the angle counts is not kept here."},
    {"cos_store_active", "Bis wann, ist nicht bekannt.", "Until when is not known here."},
    {"pHPCI_dPhi pHPCI_Yo_quot_abs pHPCI_Yo_quot_phi",
     "Wie der Wert in die Entscheidung eingeht, ist hier nicht festgehalten. Den Werkswert nicht ohne Anlass ändern.",
     "How the value enters the decision is not kept here. Do not change the factory value without good reason."},
    {"{Uearth,qu2,qui,harm1,harm2,cos,sin,cos_sin}_SigDur {Uearth,qu2,qui,harm1,harm2,cos,sin,cos_sin}_SigDur_LED "
     "p50_SigDur sc_SigDur sc_SigDur_LED {adm,pHPCI,freq}_T_hold {adm,pHPCI,freq}_T_hold_LED",
     "Was 0 bedeutet (keine Meldung, solange die Ursache ansteht oder dauernd), ist hier nicht festgehalten.",
     "What 0 means (no signal, as long as the cause persists, or for good) is not kept here."},
    {"adm_I_min_{1..2}", "Wofür welcher der beiden Werte gilt, ist hier nicht festgehalten.",
     "Which of the two values applies to what is not kept here."},
    {"adm_Phi_FW_min adm_Phi_FW_max adm_Phi_BW_min adm_Phi_BW_max",
     "Ein Bereich reicht von min bis max; Winkel jenseits von ±180° sind erlaubt (-255° = 105°). Ab Werk ist "
     "rückwärts 85° bis 95° und vorwärts alles von 105° über 0° bis 80°. Zählrichtung hier nicht festgehalten.",
     "A range runs from min to max; angles beyond ±180° are permitted (-255° = 105°). The factory setting is "
     "backward from 85° to 95° and forward all from 105° through 0° to 80°. The sign convention is not kept here."},
    {"sc_Phi_max_fwd sc_Phi_min_fwd sc_Phi_max_bwd sc_Phi_min_bwd",
     "Ein Bereich reicht von min bis max; Winkel jenseits von ±180° sind erlaubt (-215° = 145°). Zählrichtung und "
     "Bezug sind hier nicht festgehalten.",
     "A range runs from min to max; angles beyond ±180° are permitted (-215° = 145°). The sign convention and the "
     "reference are not kept here."},
    {"CosSin_angle{1..2}",
     "Welcher Bereich vorwärts ist und wie der Winkel zählt, ist hier nicht festgehalten.",
     "Which range is forward and how the angle counts is not kept here."},
    {"adm_dPhi_Yo",
     "Was der Wert begrenzt, ist hier nicht festgehalten. Den Werkswert nicht ohne Anlass ändern.",
     "What the value limits is not kept here. Do not change the factory value without good reason."},
    {"adm_fu adm_fo", "Dass die untere Grenze unter der oberen liegt, wird nicht geprüft.",
     "Nothing checks that the lower limit lies below the upper one."},
    {"p50_T_on p50_T_off p50_P_min p50_P_sum", "Muss zur Taktung im Umspannwerk passen.",
     "Must match the pulsing in the substation."},
    {"p50_P_min p50_P_sum", "Dass P_min höchstens P_sum ist, wird nicht geprüft.",
     "Nothing checks that P_min is at most P_sum."},
    {"pHPCI_Q_pulse", "Muss zur Stromeinspeisung passen.", "Must match the current injection."},
    {"{qui,harm1,harm2,cos,sin,cos_sin,p50}_dT_log adm_log_dT",
     "Was 0 bedeutet, ist hier nicht festgehalten.", "What 0 means is not kept here."},
    {"freq_df_min freq_df_max", "Ab Werk sind beide Werte positiv, also Beträge.",
     "The factory values are both positive, so magnitudes."},

    // Recorder, other settings, run-time values.
    {"rec_retrig_t BAF_cnt_val_dT{1..2}", "Was -1 bedeutet, ist hier nicht festgehalten.",
     "What -1 means is not kept here."},
    {"rec_pretrig_per stat_intervall", "Ganze Zahl; Nachkommastellen fallen weg (2,5 wird 2).",
     "Whole number; a fraction is cut off (2.5 becomes 2)."},
    {"BAF_cnt_val_dT{1..2} OVR_time OVR_MW_time OVR_MW_BE_time", "Einheit hier nicht festgehalten.",
     "The unit is not kept here."},
    {"max_ini_files",
     "Laden und Speichern über diese Bibliothek löschen keine datierte Kopie; welches Programm die Zahl auswertet, "
     "ist hier nicht festgehalten.",
     "Loading and saving through this library delete no dated copy; which program uses the number is not kept "
     "here."},
    {"BA_red_cnt", "Einheit und genaue Wirkung sind hier nicht festgehalten.",
     "Unit and exact effect are not kept here."},
    {"sec_mode", "Nicht schreibbar. Laden der Sicherheitsdatei setzt 1, auch wenn die Datei fehlt.",
     "Cannot be written. Loading the security file sets 1, even if the file is missing."},
    {"OVR_new OVR_{BEF,BE,BE_LT,BAF,BA,MW,MW_BE}_enable",
     "Ob die Zahl ein Schalter ist oder ein Bit je Eingang, Funktion oder Relais hat, ist hier nicht festgehalten.",
     "Whether the number is a switch or has a bit for each input, function or relay is not kept here."},
    {"y_BE y_BE_LT y_BEF y_BAF{1..4} y_BA y_LED", "Welches Bit wofür steht, ist hier nicht festgehalten.",
     "Which bit stands for what is not kept here."},
    {"y_EarthFaultState y_ShortCircuitState BA_RelayBack",
     "Die Bedeutung der Zahl ist hier nicht festgehalten.", "The meaning of the number is not kept here."},
    {"mw_req", "Als einziger Parameter schon mit Rechtestufe 1 schreibbar.",
     "The only parameter that can be written at rights level 1 already."},
    {"MessRecord{01,02} StatRecord_c0",
     "Einheiten und Takt der Datensätze sind hier nicht festgehalten; die Namen folgen den Messwerten gleicher Art.",
     "Units and rate of the records are not kept here; the names follow the measured values of the same kind."},
};

} // namespace talux::pages

#endif
