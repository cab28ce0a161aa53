// Calibration of the voltages.
#ifndef TALUX_TEXTS_CALIBRATION_H
#define TALUX_TEXTS_CALIBRATION_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kCalibration[] = {
    command("StartCalibration", {"Abgleich starten", "Start calibration"},
            {"Abgleich der Spannungseingänge mit der gemessenen Spannung starten",
             "Start calibrating the voltage inputs with the measured voltage"},
            {"Bitte warten...", "Please wait..."}),
};

} // namespace talux::texts

#endif
