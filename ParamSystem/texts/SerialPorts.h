// The three serial ports.
#ifndef TALUX_TEXTS_SERIALPORTS_H
#define TALUX_TEXTS_SERIALPORTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSerialPorts[] = {
    value("Baudrate{1..3}", {"Baudrate Port {n}", "Port {n} baud rate"},
          {"Übertragungsrate der seriellen Schnittstelle {n}", "Transmission rate of serial port {n}"}),
    value("DataBits{1..3}", {"Datenbits Port {n}", "Port {n} data bits"},
          {"Datenbits je Zeichen an der seriellen Schnittstelle {n}",
           "Data bits of a character at serial port {n}"}),
    value("Parity{1..3}", {"Parität Port {n}", "Port {n} parity"},
          {"Paritätsbit je Zeichen an der seriellen Schnittstelle {n}",
           "Parity bit of a character at serial port {n}"}),
    value("Stopbits{1..3}", {"Stoppbits Port {n}", "Port {n} stop bits"},
          {"Stoppbits je Zeichen an der seriellen Schnittstelle {n}",
           "Stop bits of a character at serial port {n}"}),
    value("Handshake{1..3}", {"Handshake Port {n}", "Port {n} handshake"},
          {"Flusssteuerung an der seriellen Schnittstelle {n}", "Flow control at serial port {n}"}),
    value("Terminierung{1..2}", {"Terminierung Port {n}", "Port {n} termination"},
          {"Abschlusswiderstand der seriellen Schnittstelle {n} zuschalten",
           "Connect the terminating resistor of serial port {n}"}),
};

} // namespace talux::texts

#endif
