// Versions, serial number, test date, state of card and clock.
#ifndef TALUX_TEXTS_DEVICESTATUS_H
#define TALUX_TEXTS_DEVICESTATUS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kDeviceStatus[] = {
    value("Kernel_version", {"Kernel-Version", "Kernel version"},
          {"Version des Betriebssystemkerns", "Version of the operating system kernel"}),
};

} // namespace talux::texts

#endif
