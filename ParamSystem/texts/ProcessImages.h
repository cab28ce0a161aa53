// State of the Modbus slaves, process images.
#ifndef TALUX_TEXTS_PROCESSIMAGES_H
#define TALUX_TEXTS_PROCESSIMAGES_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kProcessImages[] = {
    value("conman_slaves", {"Modbus-Slaves", "Modbus slaves"},
          {"Vom Verbindungsmanager verwaltete Slave-Adressen",
           "Slave addresses that the connection manager serves"}),
};

} // namespace talux::texts

#endif
