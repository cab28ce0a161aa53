// The words of the trade and of the device that titles, names and choices use.
#ifndef TALUX_PAGES_GLOSSARY_H
#define TALUX_PAGES_GLOSSARY_H

#include <string_view>

namespace talux::pages {

// `de` and `en` are what the word is called in each language, the same text for an abbreviation or a name.
struct Word {
    std::string_view de, en;
    std::string_view deMeaning, enMeaning;
};

// The trade's words.
inline constexpr Word kTradeWords[] = {
    {"Erdschluss (ES)", "earth fault (EF)",
     "Leitende Verbindung eines Leiters mit Erde in einem Netz, dessen Sternpunkt nicht starr geerdet ist. Der "
     "Strom ist klein, das Netz kann weiterbetrieben werden; der fehlerhafte Abgang ist zu finden.",
     "Conducting path from one phase to earth in a system whose neutral is not solidly earthed. The current is "
     "small and operation can continue; the faulty feeder has to be found."},
    {"isoliertes Netz", "isolated neutral",
     "Netz, dessen Sternpunkt nicht geerdet ist. Im Erdschluss fließt der kapazitive Erdschlussstrom des Netzes; "
     "seine Richtung zeigt das Verfahren Sin(phi).",
     "System whose neutral is not earthed. In an earth fault the capacitive earth-fault current of the system "
     "flows; the method Sin(phi) determines its direction."},
    {"gelöschtes Netz", "resonant-earthed system",
     "Netz, dessen Sternpunkt über eine Erdschlusslöschspule geerdet ist, die den kapazitiven Erdschlussstrom "
     "ausgleicht. An der Fehlerstelle bleibt der Reststrom, dessen Wirkanteil das Verfahren Cos(phi) auswertet.",
     "System whose neutral is earthed through an arc-suppression coil that compensates the capacitive earth-fault "
     "current. The residual earth-fault current remains; the method Cos(phi) evaluates its active part."},
    {"Erdschlusslöschspule, Petersenspule", "arc-suppression coil, Petersen coil",
     "Einstellbare Drossel zwischen Sternpunkt und Erde, auf die Leiter-Erde-Kapazität des Netzes abgestimmt.",
     "Adjustable reactor between neutral and earth, tuned to the phase-to-earth capacitance of the system."},
    {"Verlagerungsspannung U0", "neutral displacement voltage U0",
     "Spannung des Sternpunkts gegen Erde, ein Drittel der Summe der drei Leiter-Erde-Spannungen. Ihr Anstieg zeigt "
     "einen Erdschluss an, aber nicht, wo er liegt. Ob U0_prim das Drittel oder die Summe ist, ist nicht "
     "dokumentiert; der Werkswert von knu0 spricht für das Drittel.",
     "Voltage of the neutral to earth, a third of the sum of the three phase-to-earth voltages. IEC calls the sum "
     "residual voltage (factor 3). Whether U0_prim is the third or the sum is not documented; the factory value "
     "of knu0 suggests the third. A rise shows that there is an earth fault, but not where."},
    {"Summenstrom 3I0", "residual current 3I0",
     "Summe der drei Leiterströme eines Abgangs, gemessen mit einem Kabelumbauwandler oder in Summenschaltung (Holmgreen).",
     "Sum of the three phase currents of a feeder, measured with a core-balance CT or with three CTs in residual (Holmgreen) connection."},
    {"Kabelumbauwandler", "core-balance CT",
     "Stromwandler, der alle drei Leiter eines Kabels umfasst und so den Summenstrom unmittelbar misst.",
     "Current transformer around all three phases of a cable; it measures the residual current directly."},
    {"offene Dreieckswicklung (e-n)", "open-delta winding",
     "In Reihe geschaltete Hilfswicklungen der drei Spannungswandler; zwischen e und n liegt ein Abbild der "
     "Verlagerungsspannung an.",
     "The auxiliary windings of the three voltage transformers in series; an image of the neutral "
     "displacement voltage appears at the open ends."},
    {"Spannungswandler, Stromwandler", "VT, CT",
     "Wandler zwischen Netz und Messeingang. Ihre Übersetzung rechnet Sekundärwerte in Primärwerte um.",
     "Voltage and current transformer between system and measuring input. The ratio converts secondary into "
     "primary values."},
    {"Fehlwinkel", "phase displacement, phase error",
     "Winkel, um den ein Wandler den Zeiger verdreht. Bei Cos(phi) kann schon ein Grad entscheiden; phi_corr_... "
     "gleicht ihn aus. Das Vorzeichen der Korrektur ist nicht dokumentiert.",
     "Angle by which a transformer turns the phasor. With Cos(phi) a single degree can decide; phi_corr_... "
     "corrects it. The sign of the correction is not documented."},
    {"kapazitiver Erdschlussstrom", "capacitive earth-fault current",
     "Strom über die Leiter-Erde-Kapazitäten der gesunden Leiter, im isolierten Netz der ganze Erdschlussstrom.",
     "Current through the phase-to-earth capacitances of the healthy phases; in a system with isolated neutral "
     "the whole earth-fault current."},
    {"Reststrom", "residual earth-fault current",
     "Strom, der im gelöschten Netz an der Fehlerstelle bleibt. Nicht der Summenstrom 3I0 eines Abgangs.",
     "Current that remains at the fault in a resonant-earthed system. Not the residual current 3I0 of a feeder."},
    {"Wattreststrom", "wattmetric (active) component of the residual earth-fault current",
     "Wirkanteil des Reststroms im gelöschten Netz, von den Verlusten der Spule und der Leitungen. Seine Richtung "
     "zeigt den fehlerhaften Abgang (wattmetrisches Verfahren).",
     "Active part of the residual earth-fault current, from the losses of coil and lines. Its direction shows the "
     "faulty feeder (wattmetric method)."},
    {"Nulladmittanz Y0", "zero-sequence admittance Y0",
     "Quotient aus Nullstrom und Verlagerungsspannung; ob das Gerät 3I0 oder I0 verwendet, ist nicht dokumentiert. Betrag und Winkel unterscheiden fehlerhafte von gesunden "
     "Abgängen.",
     "Zero-sequence current divided by neutral displacement voltage; whether the device uses 3I0 or I0 is not "
     "documented. Magnitude and angle distinguish faulty from healthy feeders."},
    {"Wischer", "transient",
     "Kurzer Vorgang bei Erdschlusseintritt, wenn die gesunden Leiter auf die höhere Spannung aufgeladen werden. "
     "Auch ein Erdschluss, der von selbst gleich wieder verlöscht.",
     "Brief transient at the inception of an earth fault, when the healthy phases are charged to the higher "
     "voltage. The German word also means an earth fault that extinguishes by itself at once."},
    {"intermittierender, wiederzündender Erdschluss", "intermittent, restriking earth fault",
     "Erdschluss, der verlöscht und immer wieder neu zündet, oft in Kabeln.",
     "Earth fault that extinguishes and restrikes repeatedly, often in cables."},
    {"Dauererdschluss", "sustained earth fault", "Erdschluss, der länger ansteht als ein Wischer.",
     "Earth fault that lasts longer than a transient."},
    {"Ferroresonanz, Kippschwingung", "ferroresonance",
     "Schwingung zwischen Netzkapazität und gesättigten Spannungswandlern; täuscht einen Erdschluss vor.",
     "Oscillation between the capacitance of the system and saturated voltage transformers; looks like an earth "
     "fault."},
    {"Pulsortung", "pulse locating",
     "Ein Taktgerät an der Löschspule oder eine Einspeisung verändert den Strom im Takt; nur auf dem Weg zur "
     "Fehlerstelle sind die Pulse zu sehen.",
     "A pulsing device at the coil or an injection changes the current periodically; the pulses appear only "
     "between the substation and the fault."},
    {"Rundsteuerung", "ripple control",
     "Signale mit Tonfrequenz auf dem Netz, etwa 217 Hz. Ihre Frequenz eignet sich für H fx1, wenn sie ständig oder "
     "oft gesendet wird.",
     "Audio-frequency signals on the system, for instance 217 Hz. Their frequency suits H fx1 if it is sent "
     "often."},
    {"Ansprechen, Rückfallen", "pick-up, drop-out",
     "Überschreiten einer Schwelle, bei dem etwas als vorhanden gilt, und Unterschreiten, bei dem es nicht mehr "
     "gilt.",
     "Pick-up: the value exceeds a threshold and the condition counts as present. Drop-out: it falls below a "
     "threshold and the condition no longer counts as present."},
    {"Ruhestrom", "normally energised",
     "Ein Relais im Ruhestrom ist angezogen, solange nichts zu melden ist, und meldet so auch den Ausfall der "
     "Versorgung.",
     "A relay that is energised as long as there is nothing to signal. It therefore also signals the loss of its "
     "supply."},
    {"Vorgeschichte", "pre-fault, pre-trigger", "Aufgezeichnete Zeit vor dem Auslösen.",
     "Recorded time before the trigger."},
};

// The device's words and abbreviations.
inline constexpr Word kDeviceWords[] = {
    {"qu2", "qu2",
     "Wischerverfahren, das die Ladung q über der Spannung u betrachtet: aus der Form der Kurve folgt die "
     "Richtung. Aus dem Fach erschlossen, nicht dokumentiert.",
     "Transient method that looks at the charge q over the voltage u: the shape of the curve gives the direction. "
     "Inferred from the trade, not documented."},
    {"qui", "qui",
     "Verfahren für intermittierende und wiederzündende Erdschlüsse; aus dem Fach erschlossen, nicht dokumentiert.",
     "Method for intermittent and restriking earth faults; inferred from the trade, not documented."},
    {"H250, harm1, ov5", "H250, harm1, ov5",
     "Drei Namen eines Verfahrens: Richtung aus der 5. Oberschwingung (250 Hz). Einstellungen heißen harm1_..., die "
     "Prioritätenliste und LCD_log_active_ov5 sagen ov5, die Ausgangsfunktionen H_250.",
     "Three names of one method: direction from the 5th harmonic (250 Hz). Settings are called harm1_..., the "
     "priority list and LCD_log_active_ov5 say ov5, the output functions H_250."},
    {"H fx1, harm2, ovx", "H fx1, harm2, ovx",
     "Drei Namen eines Verfahrens: Richtung aus einer Oberschwingung einstellbarer Frequenz (fx1, harm2_f).",
     "Three names of one method: direction from a harmonic of settable frequency (fx1, harm2_f)."},
    {"ovx1", "ovx1", "Eine Wahl der Prioritätenliste; wofür sie steht, ist nicht dokumentiert.",
     "A choice of the priority list; what it stands for is not documented."},
    {"fx1, fx2, fx2-, fx2+ (f1, f2, f3; m, p)", "fx1, fx2, fx2-, fx2+ (f1, f2, f3; m, p)",
     "Frequenzen der Verfahren: fx1 für H fx1, fx2 für die Admittanz, fx2- und fx2+ für die beiden Anteile von fx2. "
     "In Messwerten heißen sie f1, f2 und f3, in Datensätzen fx1, fx2m und fx2p.",
     "Frequencies of the methods: fx1 for H fx1, fx2 for the admittance, fx2- and fx2+ for the two components of "
     "fx2. Measured values call them f1, f2 and f3, records fx1, fx2m and fx2p."},
    {"adm, DynAdm", "adm, DynAdm",
     "Admittanzverfahren: Richtung aus der Nulladmittanz. Einstellungen heißen adm_..., die Ausgangsfunktionen "
     "DynAdm.",
     "Admittance method: direction from the zero-sequence admittance. Settings are called adm_..., the output "
     "functions DynAdm."},
    {"cos, Cos(phi)", "cos, Cos(phi)",
     "Wattmetrisches Verfahren für das gelöschte Netz: Wirkanteil des Summenstroms.",
     "Wattmetric method for resonant-earthed systems: active part of the residual current."},
    {"sin, Sin(phi)", "sin, Sin(phi)", "Verfahren für das isolierte Netz: Blindanteil des Summenstroms.",
     "Method for systems with isolated neutral: reactive part of the residual current."},
    {"cos_sin, CosSin, sincos, c_s", "cos_sin, CosSin, sincos, c_s",
     "Vier Schreibweisen eines Verfahrens: Richtung des Summenstroms mit einstellbaren Grenzwinkeln.",
     "Four spellings of one method: direction of the residual current with settable limit angles."},
    {"p50, puls50, Pulse_50", "p50, puls50, Pulse_50",
     "Pulsortung mit 50 Hz. Die Ausgangsfunktionen mit c (Pulse_50c) stehen in der Liste getrennt; was c bedeutet, "
     "ist nicht dokumentiert.",
     "Pulse locating at 50 Hz. The output functions with c (Pulse_50c) are separate in the list; what c means is "
     "not documented."},
    {"HPCI, pHPCI", "HPCI, pHPCI",
     "Pulsortung mit eingespeistem Strom hoher Leistung (high power current injection).",
     "Pulse locating with high power current injection."},
    {"KS, sc, KsE", "SC, sc, ScE", "Kurzschluss (short circuit); E steht für den Erdstrom.",
     "Short circuit; E stands for the earth current."},
    {">, >>", ">, >>",
     "Ausgangsfunktionen des Kurzschlusses: >I und >>I in zwei Klassen, dahinter der Leiter, dahinter die Richtung.",
     "Output functions of the short circuit: >I and >>I in two classes, then the phase, then the direction."},
    {"df", "df", "Abweichung der Netzfrequenz von ihrem Bezugswert.",
     "Deviation of the system frequency from its reference."},
    {"Ice", "Ice",
     "Kapazitiver Erdschlussstrom, bei den Oberschwingungen der Summenstrom ihrer Frequenz; primär.",
     "Capacitive earth-fault current, for the harmonics the residual current of their frequency; primary."},
    {"Uerd, Uearth, >Uerd", "Uerd, Uearth, >Uearth",
     "Erdschlussspannung: U123erd für den fehlerhaften Leiter, Uearth für die Verlagerungsspannung. >Uearth ist die "
     "Meldung ohne, >Uearth_delay die mit Verzögerung.",
     "Earth-fault voltage: U123erd for the faulty phase, Uearth for the neutral displacement voltage. >Uearth is the "
     "signal without, >Uearth_delay the one with delay."},
    {"Uen, Uo, U0", "Uen, Uo, U0", "Drei Schreibweisen der Verlagerungsspannung.",
     "Three spellings of the neutral displacement voltage."},
    {"DE, CE", "DE, CE", "Dauererdschluss, englisch CE (continuous earth fault) in qu2 + CE und qu2_CE.",
     "Sustained earth fault (German Dauererdschluss), CE in qu2 + CE and qu2_CE."},
    {"A, F, FD", "F, FD", "Richtung Abgang (forward, feeder): der Fehler liegt auf dem überwachten Abgang.",
     "Forward, towards the feeder: the fault lies on the monitored feeder."},
    {"SS, BB", "BB", "Richtung Sammelschiene (busbar): der Fehler liegt rückwärts, nicht auf diesem Abgang.",
     "Towards the busbar: the fault lies backward, not on this feeder."},
    {"v, r (englisch f, b)", "f, b", "Vorwärts, rückwärts.", "Forward, backward."},
    {"Sum, Prio", "Sum, Prio",
     "Ausgangsfunktionen über alle Verfahren: Sum fasst die Richtungsmeldungen zusammen, Prio folgt der "
     "Prioritätenliste.",
     "Output functions over all methods: Sum combines the direction signals, Prio follows the priority list."},
    {"BE (englisch BI, DI)", "BE, BI, DI", "Binäreingang. BE1 und BE2 messen auch ihre Spannung.",
     "Binary input (German Binäreingang). Inputs 1 and 2 measure their voltage too."},
    {"BA, REL", "BA, REL", "Binärausgang, also Ausgangsrelais.", "Binary output, that is, an output relay."},
    {"BEF (englisch BIF)", "BEF, BIF",
     "Eingangsfunktion: was ein Eingang im Gerät auslöst. BEFassign wählt den Eingang; was die 16 Funktionen "
     "auslösen, ist nicht dokumentiert.",
     "Input function: what an input triggers in the device. BEFassign selects the input; what the 16 functions "
     "trigger is not documented."},
    {"BAF (englisch BOF)", "BAF, BOF",
     "Ausgangsfunktion: eine Meldung der Verfahren, die Relais und LEDs zugeordnet werden kann. uBAF und user_BAF "
     "sind die acht Benutzerfunktionen.",
     "Output function: a signal of the methods that relays and LEDs can be assigned to. uBAF and user_BOF are the "
     "eight user functions."},
    {"PROG, NC, n.n., frei", "PROG, NC, n.n.",
     "Wahlen in der Liste der Ausgangsfunktionen. NC, deutsch frei: ohne Funktion. Was PROG und 50Hz n.n. melden, "
     "ist nicht dokumentiert.",
     "Choices in the list of output functions. NC: without a function. What PROG and 50Hz n.n. signal is not "
     "documented."},
    {"LT", "LT", "Leittechnik: y_BE_LT und OVR_BE_LT_... sind Eingänge, die von dort kommen.",
     "Telecontrol (German Leittechnik): y_BE_LT and OVR_BE_LT_... are inputs that come from there."},
    {"vBE, vBA, virt_BE", "vBE, vBA, virt_BI", "Virtuelle Ein- und Ausgänge 1 bis 96 im Prozessabbild.",
     "Virtual inputs and outputs 1 to 96 in the process image."},
    {"vMWR, vMWW", "vMWR, vMWW",
     "Messwerte im Prozessabbild, gelesene (R) und geschriebene (W); aus wessen Sicht, ist nicht dokumentiert.",
     "Measured values in the process image, read (R) and written (W); from whose point of view is not documented."},
    {"SL...", "SL...", "Zweites Prozessabbild, das der Slave-Seite.",
     "A second process image, that of the slave side."},
    {"y_...", "y_...",
     "Zustandswort der Eingänge, Funktionen, Relais oder LEDs; welches Bit wofür steht, ist nicht dokumentiert.",
     "State word of the inputs, functions, relays or LEDs; which bit stands for what is not documented."},
    {"...mo, ...moc, ...mow", "...mo, ...moc, ...mow",
     "Offset in der Modbus-Registertabelle: mo Register, moc Coils, mow zum Schreiben durch den Master.",
     "Offset in the Modbus register map: mo registers, moc coils, mow to be written by the master."},
    {"SigDel, T_delay", "SigDel, T_delay",
     "Meldeverzögerung: so lange muss der Entscheid anstehen, bevor gemeldet wird.",
     "Signal delay: how long the decision must persist before it is signalled."},
    {"SigDur, T_hold", "SigDur, T_hold", "Meldedauer oder Haltezeit der Meldung; ..._LED die der LED.",
     "Duration or hold time of the signal; ..._LED that of the LED."},
    {"log_cycle, dT_log, LCD_log_active", "log_cycle, dT_log, LCD_log_active",
     "Was ein Verfahren ins Logbuch schreibt: log_cycle auch die einzelnen Zyklen, dT_log der kleinste Abstand der "
     "Einträge, LCD_log_active das Logbuch der Anzeige.",
     "What a method writes to the logbook: log_cycle also the single cycles, dT_log the shortest time between "
     "entries, LCD_log_active the logbook of the display."},
    {"Klasse 1, 2, E", "class 1, 2, E",
     "Die drei Klassen der Kurzschlussanzeige, jede mit eigenem Ansprechstrom und eigener Zeit; E gilt dem Erdstrom.",
     "The three classes of the short-circuit indication, each with its own pick-up and time; E is for the earth "
     "current."},
    {"c0 bis c4", "c0 to c4", "Die fünf Klassen der Statistik; wofür sie stehen, ist nicht dokumentiert.",
     "The five classes of the statistics; what they stand for is not documented."},
    {"prim., sek.; p, s", "prim., sec.; p, s", "Primärwert im Netz und Sekundärwert am Messeingang.",
     "Primary value in the system and secondary value at the measuring input."},
    {"w, phi", "w, phi", "Winkel: wU1 der des Zeigers U1, wUI1 der zwischen U1 und I1.",
     "Angle: wU1 that of the phasor U1, wUI1 that between U1 and I1."},
    {"_a, _re, _im, _w", "_a, _re, _im, _w", "Betrag, Realteil, Imaginärteil und Winkel eines Zeigers.",
     "Magnitude, real part, imaginary part and angle of a phasor."},
    {"MW", "MW", "Messwert. mw_... ist die Momentaufnahme der Messwerte, die mw_req anfordert.",
     "Measured value. mw_... is the snapshot of the measured values that mw_req requests."},
    {"OVR", "OVR",
     "Simulation (override): Werte, die statt der gemessenen gelten. ..._enable gibt frei, ..._val ist der Wert.",
     "Override for simulation: values used instead of the measured ones. ..._enable switches it on, ..._val is the value."},
    {"STM, Cortex, M3", "STM, Cortex, M3",
     "Namen, die auf einen eigenen Prozessor für die Messung deuten; mehr ist nicht dokumentiert.",
     "Names that suggest a separate processor for measuring; no more is documented."},
    {"conman", "conman", "Verbindungsmanager, der Modbus-Master des Geräts.",
     "Connection manager, the device's Modbus master."},
    {"VELMO", "VELMO", "Zeittelegramm über eine serielle Schnittstelle.",
     "Time telegram over a serial port."},
    {"DCF77", "DCF77", "Zeitzeichensender; ein Empfänger an einer seriellen Schnittstelle stellt die Uhr.",
     "Time signal transmitter; a receiver at a serial port sets the clock."},
    {"RTC", "RTC", "Batteriegepufferte Uhr des Geräts.", "The device's battery-backed clock."},
    {"COT, CA, IOA, ASDU, APDU", "COT, CA, IOA, ASDU, APDU",
     "Begriffe aus IEC 60870-5: Übertragungsursache, gemeinsame Adresse, Adresse des Informationsobjekts, "
     "Dateneinheit der Anwendung, Protokolleinheit der Anwendung.",
     "Terms of IEC 60870-5: cause of transmission, common address, information object address, application service "
     "data unit, application protocol data unit."},
    {"Arbeitskopie, ausstehend, gültig", "working copy, pending, live",
     "Geschriebene Einstellungen sind in der Arbeitskopie ausstehend, bis update, ein Speichern, ein Laden oder das Schreiben "
     "einer Schnittstellenadresse sie gültig macht.",
     "Written settings are pending in the working copy until update, a save, a load or a write of an interface "
     "address makes them live."},
    {"Laufzeitwert", "run-time value",
     "Messwert, Zustand oder Zähler: gilt sofort und steht in keiner Datei.",
     "Measured value, state or counter: live at once and in no file."},
    {"KEPL", "KEPL", "Sprache, in der Skripte und Programme die Parameter lesen und schreiben.",
     "Language in which scripts and programs read and write parameters."},
};

// What people search for with words that no title contains, in both languages.
struct Synonym {
    std::string_view words;
    std::string_view parameters; // names and patterns of series
};

inline constexpr Synonym kSynonyms[] = {
    {"acknowledge acknowledgement quittieren Quittierung Rücksetzen", "BE_Reset_Button qu2_MsgResetEf"},
    {"phase rotation phase sequence Drehfeld Drehsinn", "mw_phi_U{1..3} phiUI{1..3} MessRecord01"},
    {"reversed CT polarity Wandlerpolung vertauscht", "phiUI{0..3} phi_corr_I{0..3} MessRecord01"},
    {"Holmgreen residual connection Summenschaltung", "3Io_calc kni0"},
    {"open delta offenes Dreieck", "Uen_calc knu0"},
    {"daylight saving summer time Sommerzeit Winterzeit", "TIMEZONE"},
    {"password Passwort Kennwort login Anmeldung",
     "panel_users_active r{o,w}_pin_active RO_Pin_change RW_Pin_change sec_mode"},
    {"pick-up Ansprechwert Ansprechschwelle", "Uearth"},
    {"drop-out Rückfall", "Uearth_SigDur"},
};

} // namespace talux::pages

#endif
