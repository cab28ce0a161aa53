// Script server, Modbus master (connection manager) and the states of its slaves, one per slave address.
#ifndef TALUX_CATALOGUE_SCRIPTING_H
#define TALUX_CATALOGUE_SCRIPTING_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kScripting[] = {
    flag(8056, "debug_slaves"),
    flag(8057, "debug_slaves_file"),
    flag(8058, "SCRIPTSERVER_active"),
    text(9028, "usedscript", 255, "talux_default.lua"),
    number(6089, "script_sleep", {.def = 800, .min = 200, .max = 65535}), // ms
    number(6090, "script_timeout", {.def = 60, .min = -1, .max = 65535}), // s
    flag(8059, "debug_script"),
    flag(8060, "debug_script_file"),
    flag(8061, "CONMASTER_active"),
    choice(10042, "Modbus_port_conmaster", {.choices = 2, .min = 1}),
    flag(8062, "Modbus_poll_conmaster"),
    number(6091, "Modbus_sleep_conmaster", {.def = 200, .min = 20, .max = 65535}), // ms
    text(9029, "Modbus_csv_conmaster", 255, "talux_conmaster.csv"),
    text(9030, "usedscript_conmaster", 255, "talux_conmaster.lua"),
    number(6092, "script_sleep_conmaster", {.def = 800, .min = 200, .max = 65535}), // ms
    number(6093, "script_timeout_conmaster", {.def = 60, .min = -1, .max = 65535}), // s
    flag(8063, "debug_conmaster_mod"),
    flag(8064, "debug_conmaster_lua"),
    flag(8065, "debug_file_conmaster"),
    indexed(247, runtime(number(6094, "conman_status"))),
    indexed(247, runtime(number(6341, "conman_error"))),
    runtime(text(9031, "conman_slaves", 127)),
};

} // namespace talux::catalogue

#endif
