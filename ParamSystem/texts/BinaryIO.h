// Binary inputs, outputs and LEDs.
#ifndef TALUX_TEXTS_BINARYIO_H
#define TALUX_TEXTS_BINARYIO_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kBinaryIO[] = {
    value("uBAF{1..8}", {"Benutzerfunktion {n}", "User function {n}"},
          {"Verknüpfung der frei definierbaren Ausgangsfunktion {n}",
           "Logic of the freely defined output function {n}"}),
};

} // namespace talux::texts

#endif
