// Modbus slave and its register map.
#ifndef TALUX_TEXTS_MODBUS_H
#define TALUX_TEXTS_MODBUS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kModbus[] = {
    value("modbus_active", {"Modbus aktiv", "Modbus active"},
          {"Modbus-Slave einschalten", "Switch the Modbus slave on"}),
};

} // namespace talux::texts

#endif
