// Voltage and current channels.
#ifndef TALUX_TEXTS_ANALOGINPUTS_H
#define TALUX_TEXTS_ANALOGINPUTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kAnalogInputs[] = {
    value("knu{1..3}", {"Wandlerverhältnis U{n}", "VT ratio U{n}"},
          {"Übersetzung des Spannungswandlers in Leiter L{n}",
           "Ratio of the voltage transformer in phase L{n}"}),
    command("StartCalibration", {"Abgleich starten", "Start calibration"},
            {"Abgleich der Spannungseingänge mit der gemessenen Spannung starten",
             "Start calibrating the voltage inputs with the measured voltage"},
            {"Bitte warten...", "Please wait..."}),
};

} // namespace talux::texts

#endif
