// Voltage and current channels.
#ifndef TALUX_TEXTS_ANALOGINPUTS_H
#define TALUX_TEXTS_ANALOGINPUTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kAnalogInputs[] = {
    value("knu{1..3}", {"Wandlerverhältnis U{n}", "VT ratio U{n}"},
          {"Übersetzung des Spannungswandlers in Leiter L{n}",
           "Ratio of the voltage transformer in phase L{n}"}),
};

} // namespace talux::texts

#endif
