// Serial ports 1 to 3; port 3 has no termination.
#ifndef TALUX_CATALOGUE_SERIAL_PORTS_H
#define TALUX_CATALOGUE_SERIAL_PORTS_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kSerialPorts[] = {
    choice(10017, "Baudrate1", {.like = kBaudRate, .def = 5}),
    choice(10018, "DataBits1", {.like = kDataBits, .def = 2}),
    choice(10019, "Parity1", {.like = kParity}),
    choice(10020, "Stopbits1", {.like = kStopBits}),
    choice(10021, "Handshake1", {.like = kHandshake}),
    choice(10022, "Terminierung1", {.like = kTermination}),
    choice(10023, "Baudrate2", {.like = kBaudRate, .def = 5}),
    choice(10024, "DataBits2", {.like = kDataBits, .def = 2}),
    choice(10025, "Parity2", {.like = kParity}),
    choice(10026, "Stopbits2", {.like = kStopBits}),
    choice(10027, "Handshake2", {.like = kHandshake}),
    choice(10028, "Terminierung2", {.like = kTermination}),
    choice(10029, "Baudrate3", {.like = kBaudRate, .def = 5}),
    choice(10030, "DataBits3", {.like = kDataBits, .def = 2}),
    choice(10031, "Parity3", {.like = kParity}),
    choice(10032, "Stopbits3", {.like = kStopBits}),
    choice(10033, "Handshake3", {.like = kHandshake}),
};

} // namespace talux::catalogue

#endif
