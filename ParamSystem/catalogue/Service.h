// Transfers to and from a USB stick, logbooks, display test.
#ifndef TALUX_CATALOGUE_SERVICE_H
#define TALUX_CATALOGUE_SERVICE_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

// One line per parameter.
// clang-format off
inline constexpr ParameterRow kService[] = {
    command(19007, "USB_SaveAll"),
    command(19008, "USB_SaveLog"),
    command(19009, "USB_SaveRec"),
    command(19010, "USB_SaveIni"),
    command(19011, "USB_SaveAllMac"),
    command(19012, "USBparameter"),
    command(19013, "Logbook"),
    command(19014, "LCD_log_clear"),
    command(19015, "LCD_Test"),
};
// clang-format on

} // namespace talux::catalogue

#endif
