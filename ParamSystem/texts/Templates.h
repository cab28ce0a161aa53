// Titles and choices that several parameters share.
#ifndef TALUX_TEXTS_TEMPLATES_H
#define TALUX_TEXTS_TEMPLATES_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kTemplates[] = {
    shared("TPL_BAUDRATE", {"Baudrate", "Baud rate"},
           {"9600|19200|38400|57600|115200", "9600|19200|38400|57600|115200"}),
};

} // namespace talux::texts

#endif
