// IEC 60870-5-101, -103, -104, DNP3, GOOSE.
#ifndef TALUX_TEXTS_TELECONTROL_H
#define TALUX_TEXTS_TELECONTROL_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kTelecontrol[] = {
    value("T104_port", {"IEC-104-Port", "IEC 104 port"},
          {"TCP-Port der IEC-60870-5-104-Verbindung", "TCP port of the IEC 60870-5-104 connection"}),
};

} // namespace talux::texts

#endif
