// How a term is refused.
#ifndef TALUX_KEPL_REFUSAL_H
#define TALUX_KEPL_REFUSAL_H

#include "ParamSystem/KEPL_Interpreter.h"

namespace talux::kepl {

// The text of a refusal, or null when nothing stands against it.
using Refusal = const char*;

constexpr Refusal refuse(KeplText& text) {
    return text[iLanguage];
}

// These have one form in every language.
inline constexpr KeplText kDivisionByZero = {"Division durch 0", "Division durch 0"};
inline constexpr KeplText kNegativeRoot = {"Quadratwurzel von negativen Werten nicht erlaubt",
                                           "Quadratwurzel von negativen Werten nicht erlaubt"};
inline constexpr KeplText kTypeUnknown = {"type unknown", "type unknown"};

} // namespace talux::kepl

#endif
