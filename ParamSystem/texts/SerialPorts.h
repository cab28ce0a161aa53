// The three serial ports.
#ifndef TALUX_TEXTS_SERIALPORTS_H
#define TALUX_TEXTS_SERIALPORTS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSerialPorts[] = {
    value("Baudrate{1..3}", {"Baudrate Port {n}", "Baud rate port {n}"},
          {"Übertragungsrate der seriellen Schnittstelle {n}", "Transmission rate of serial port {n}"}, "Bd"),
    value("DataBits{1..3}", {"Datenbits Port {n}", "Data bits port {n}"},
          {"Datenbits je Zeichen an der seriellen Schnittstelle {n}",
           "Data bits of a character at serial port {n}"}),
    value("Parity{1..3}", {"Parität Port {n}", "Parity port {n}"},
          {"Paritätsbit je Zeichen an der seriellen Schnittstelle {n}",
           "Parity bit of a character at serial port {n}"}),
    value("Stopbits{1..3}", {"Stoppbits Port {n}", "Stop bits port {n}"},
          {"Stoppbits je Zeichen an der seriellen Schnittstelle {n}",
           "Stop bits of a character at serial port {n}"}),
    value("Handshake{1..3}", {"Handshake Port {n}", "Handshake port {n}"},
          {"Flusssteuerung an der seriellen Schnittstelle {n}", "Flow control at serial port {n}"}),
    value("Terminierung{1..2}", {"Terminierung Port {n}", "Termination port {n}"},
          {"Abschlusswiderstand der RS-485-Schnittstelle {n} zuschalten",
           "Connect the terminating resistor of RS-485 port {n}"}),
};

} // namespace talux::texts

#endif
