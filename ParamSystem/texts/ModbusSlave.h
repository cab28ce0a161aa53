// Modbus slave and its register map.
#ifndef TALUX_TEXTS_MODBUSSLAVE_H
#define TALUX_TEXTS_MODBUSSLAVE_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kModbusSlave[] = {
    value("modbus_active", {"Modbus aktiv", "Modbus active"},
          {"Modbus-Slave einschalten", "Switch the Modbus slave on"}),
};

} // namespace talux::texts

#endif
