// The three serial ports.
#ifndef TALUX_TEXTS_SERIALPORTS_H
#define TALUX_TEXTS_SERIALPORTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSerialPorts[] = {
    value("Baudrate{1..3}", {"Baudrate Port {n}", "Baud rate port {n}"},
          {"Übertragungsrate der seriellen Schnittstelle {n}", "Transmission rate of serial port {n}"}, "Bd"),
};

} // namespace talux::texts

#endif
