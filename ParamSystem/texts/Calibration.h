// Calibration of the voltage inputs.
#ifndef TALUX_TEXTS_CALIBRATION_H
#define TALUX_TEXTS_CALIBRATION_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kCalibration[] = {
    value("calib_U12_mess", {"Gemessene Spannung", "Measured voltage"},
          {"Verkettete Spannung, die ein Referenzgerät während des Abgleichs anzeigt",
           "Phase-to-phase voltage that a reference instrument shows during the calibration"},
          "kV"),
    label("calib_start", {"Abgleich läuft", "Calibration running"}),
    command("StartCalibration", {"Abgleich starten", "Start calibration"},
            {"Abgleich der Spannungseingänge mit der gemessenen Spannung starten",
             "Start calibrating the voltage inputs with the measured voltage"},
            {"Bitte warten...", "Please wait..."}),
    label("calib_confirm", {"Abgleich bestätigt", "Calibration confirmed"}),
    value("calib_U12_soll", {"Sollwert Abgleich", "Calibration setpoint"},
          {"Erwartete Spannung beim Abgleich, bezogen auf die Nennspannung",
           "Voltage expected during the calibration, relative to the nominal voltage"},
          "%"),
    value("calib_U12_min", {"Abgleich Untergrenze", "Calibration minimum"},
          {"Kleinste Spannung, bei der ein Abgleich zugelassen wird",
           "Smallest voltage at which a calibration is permitted"},
          "%"),
    value("calib_U12_max", {"Abgleich Obergrenze", "Calibration maximum"},
          {"Größte Spannung, bei der ein Abgleich zugelassen wird",
           "Largest voltage at which a calibration is permitted"},
          "%"),
    label("calib_U{1..3}e_new", {"Neue Spannung L{n}-E", "New voltage L{n}-E"}),
};

} // namespace talux::texts

#endif
