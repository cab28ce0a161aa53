// Serial ports 1 to 3; port 3 has no termination.
#ifndef TALUX_PARAMETERS_SERIAL_PORTS_H
#define TALUX_PARAMETERS_SERIAL_PORTS_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

// Texts that several rows share.
inline constexpr Words kPortBaudRate{
    {"Baudrate Port {n}", "Übertragungsrate der seriellen Schnittstelle {n}"},
    {"Port {n} baud rate", "Transmission rate of serial port {n}"}};
inline constexpr Words kPortDataBits{
    {"Datenbits Port {n}", "Datenbits je Zeichen an der seriellen Schnittstelle {n}"},
    {"Port {n} data bits", "Data bits of a character at serial port {n}"}};
inline constexpr Words kPortParity{
    {"Parität Port {n}", "Paritätsbit je Zeichen an der seriellen Schnittstelle {n}"},
    {"Port {n} parity", "Parity bit of a character at serial port {n}"}};
inline constexpr Words kPortStopBits{
    {"Stoppbits Port {n}", "Stoppbits je Zeichen an der seriellen Schnittstelle {n}"},
    {"Port {n} stop bits", "Stop bits of a character at serial port {n}"}};
inline constexpr Words kPortHandshake{
    {"Handshake Port {n}", "Flusssteuerung an der seriellen Schnittstelle {n}"},
    {"Port {n} handshake", "Flow control at serial port {n}"}};
inline constexpr Words kPortTermination{
    {"Terminierung Port {n}", "Abschlusswiderstand der seriellen Schnittstelle {n} zuschalten"},
    {"Port {n} termination", "Connect the terminating resistor of serial port {n}"}};

inline constexpr Row kSerialPortsRows[] = {
    choice(10017, "Baudrate1", {.like = kBaudRate, .def = 5}, kPortBaudRate("1")),
    choice(10018, "DataBits1", {.like = kDataBits, .def = 2}, kPortDataBits("1")),
    choice(10019, "Parity1", {.like = kParity}, kPortParity("1")),
    choice(10020, "Stopbits1", {.like = kStopBits}, kPortStopBits("1")),
    choice(10021, "Handshake1", {.like = kHandshake}, kPortHandshake("1")),
    choice(10022, "Terminierung1", {.like = kTermination}, kPortTermination("1")),
    choice(10023, "Baudrate2", {.like = kBaudRate, .def = 5}, kPortBaudRate("2")),
    choice(10024, "DataBits2", {.like = kDataBits, .def = 2}, kPortDataBits("2")),
    choice(10025, "Parity2", {.like = kParity}, kPortParity("2")),
    choice(10026, "Stopbits2", {.like = kStopBits}, kPortStopBits("2")),
    choice(10027, "Handshake2", {.like = kHandshake}, kPortHandshake("2")),
    choice(10028, "Terminierung2", {.like = kTermination}, kPortTermination("2")),
    choice(10029, "Baudrate3", {.like = kBaudRate, .def = 5}, kPortBaudRate("3")),
    choice(10030, "DataBits3", {.like = kDataBits, .def = 2}, kPortDataBits("3")),
    choice(10031, "Parity3", {.like = kParity}, kPortParity("3")),
    choice(10032, "Stopbits3", {.like = kStopBits}, kPortStopBits("3")),
    choice(10033, "Handshake3", {.like = kHandshake}, kPortHandshake("3")),
};

} // namespace talux::parameters

#endif
