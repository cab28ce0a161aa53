// Script server, Modbus master.
#ifndef TALUX_TEXTS_SCRIPTING_H
#define TALUX_TEXTS_SCRIPTING_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kScripting[] = {
    value("script_sleep", {"Skript-Pause", "Script sleep"},
          {"Pause zwischen zwei Durchläufen des Skripts", "Pause between two runs of the script"}, "ms"),
};

} // namespace talux::texts

#endif
