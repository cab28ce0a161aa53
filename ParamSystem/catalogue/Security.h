// User management, PINs and the encryption of the connections.
#ifndef TALUX_CATALOGUE_SECURITY_H
#define TALUX_CATALOGUE_SECURITY_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kSecurity[] = {
    security(flag(8172, "panel_users_active")),
    security(flag(8173, "tcp_users_active")),
    security(flag(8174, "ro_pin_active")),
    command(19016, "RO_Pin_change", 3),
    readOnly(command(19017, "RO_Pin_enter")),
    security(flag(8175, "rw_pin_active")),
    command(19018, "RW_Pin_change", 3),
    readOnly(command(19019, "RW_Pin_enter")),
    readOnly(security(flag(8176, "sec_mode", kOn))),
    readOnly(runtime(text(9057, "pub_key", kNoLength, "", "0"))),
    readOnly(runtime(text(9058, "pub_inf", kNoLength, "", "0"))),
    readOnly(runtime(text(9059, "eph_key", kNoLength, "", "0"))),
    readOnly(runtime(text(9060, "date_info", kNoLength, "", "0"))),
    readOnly(runtime(flag(8177, "gui_enabled"))),
    readOnly(runtime(flag(8178, "key_enabled"))),
    command(19020, "Logout"),
};

} // namespace talux::catalogue

#endif
