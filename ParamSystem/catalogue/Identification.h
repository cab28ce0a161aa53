// Station, language and clock, and what the device tells about itself.
#ifndef TALUX_CATALOGUE_IDENTIFICATION_H
#define TALUX_CATALOGUE_IDENTIFICATION_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kIdentification[] = {
    command(19001, "VarSaveParams", 2),
    text(9000, "Name", 40, "DEF-NAME"),
    text(9001, "Abg", 40, "DEF-ABG"),
    identifier(15000, "Kenn", 3, "A:"),
    choice(10000, "Language", {.choices = 2, .min = 1}), // 1 German, 2 English
    clockDate(13000, "Date"),
    clockTime(14000, "Time"),
    readOnly(text(9002, "MAC_adress", 20)),
    readOnly(text(9003, "Kernel_version", 40)),
    readOnly(text(9004, "rootfs_version", 40)),
    readOnly(text(9005, "FW_version", 40)),
    readOnly(text(9006, "Algo_version", 40)),
    readOnly(text(9007, "Cortex_version", 40)),
    readOnly(text(9008, "XML_version", 40)),
    readOnly(text(9009, "Status_art_no", 40)),
    readOnly(text(9010, "Status_ser_no", 40)),
    readOnly(text(9011, "Status_ord_no", 40)),
    readOnly(text(9012, "Status_dat", 40)),
    readOnly(text(9013, "Status_ins", 40)),
    readOnly(runtime(text(9014, "Status_sdcard", 7))),
    readOnly(runtime(text(9015, "Status_rtc", 7))),
};

} // namespace talux::catalogue

#endif
