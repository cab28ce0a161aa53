// Modbus slave: protocol, port and the first registers of its maps.
#ifndef TALUX_CATALOGUE_MODBUS_SLAVE_H
#define TALUX_CATALOGUE_MODBUS_SLAVE_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

constexpr ParameterRow mapOffset(int id, const char* name, double def) {
    return number(id, name, {.def = def, .min = 0, .max = 65536});
}

inline constexpr ParameterRow kModbusSlave[] = {
    flag(8042, "modbus_active"),
    choice(10034, "mod_prot", {.choices = 4, .min = 1, .def = 3}),
    number(6034, "Modbus_Port", {.def = 502}),
    number(6035, "Modbus_SlaveID", {.def = 11, .min = 0, .max = 247}),
    number(6036, "Modbus_StoreTime", {.def = 100, .min = 0, .max = 60000}), // ms
    mapOffset(6037, "vBEmo", 0),
    mapOffset(6038, "vBEFmo", 200),
    mapOffset(6039, "vBAFmo", 400),
    mapOffset(6040, "vBAmo", 600),
    mapOffset(6041, "y_BEmo", 800),
    mapOffset(6042, "y_vBEFmo", 1000),
    mapOffset(6043, "y_vBAFmo", 1200),
    mapOffset(6044, "y_vBAmo", 1400),
    mapOffset(6045, "y_LEDmo", 1600),
    mapOffset(6046, "aUIgmo", 1800),
    mapOffset(6047, "wUIgmo", 2000),
    mapOffset(6048, "dwUIgmo", 2200),
    mapOffset(6049, "UImo", 2400),
    mapOffset(6050, "vBEmoc", 3000),
    mapOffset(6051, "vBEFmoc", 3200),
    mapOffset(6052, "vBAFmoc", 3400),
    mapOffset(6053, "vBAmoc", 3600),
    mapOffset(6054, "y_vBEmow", 2600),
    mapOffset(6055, "y_vTIMEmow", 2800),
    mapOffset(6056, "y_vBEmowc", 3800),
    mapOffset(6057, "UImo2", 4000),
    mapOffset(6058, "vBAmo_VIRT", 5000),
    mapOffset(6059, "vMWRmo_VIRT", 5400),
    mapOffset(6060, "vBAmoc_VIRT", 15000),
    mapOffset(6061, "vBEmo_VIRT", 6000),
    mapOffset(6062, "vMWWmo_VIRT", 6400),
    mapOffset(6063, "vBEmoc_VIRT", 16000),
};

} // namespace talux::catalogue

#endif
