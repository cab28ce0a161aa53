// Time zone, time servers and receivers, and the time that the device sends to others.
#ifndef TALUX_CATALOGUE_TIME_SERVICES_H
#define TALUX_CATALOGUE_TIME_SERVICES_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kTimeServices[] = {
    text(9024, "TIMEZONE", 80, "/usr/share/zoneinfo/UTC", "0"),
    address(16007, "NTP1", "0.0.0.0"),
    address(16008, "NTP2", "0.0.0.0"),
    flag(8035, "NTP_RTC", kOn),
    flag(8036, "TIMESERVER_active", kOn),
    flag(8037, "RTCSET_UTC_activ"),
    flag(8038, "DCF77_activ"),
    choice(10013, "DCF77_port", {.choices = 3, .min = 1, .def = 3}),
    flag(8039, "VELMO_activ"),
    choice(10014, "VELMO_port", {.choices = 3}),
    text(9025, "VELMO_tsyncdelay", 6, "00:01"),
    choice(10015, "VELMO_format", {.choices = 2, .min = 1}),
    text(9026, "VELMO_cstring", kNoLength, "%d.%m.%y %H:%M:%S"),
    flag(8040, "Modbustime_activ"),
    choice(10016, "Modbustime_port", {.choices = 2, .min = 1}),
    number(6033, "Modbustime_reg", {.def = 2800, .min = 1, .max = 10000}),
    text(9027, "Modbustime_tsyncdelay", 6, "01:00"),
    flag(8041, "log_time_change"),
};

} // namespace talux::catalogue

#endif
