// The C locale, whatever the host has set: numbers are read and printed with a point.
#ifndef TALUX_SUPPORT_LOCALE_H
#define TALUX_SUPPORT_LOCALE_H

#include <clocale>

namespace talux {

// The C library keeps this locale ready and hands out the same one at every call: neither memory nor files
// are needed.
inline locale_t cLocale() {
    return newlocale(LC_ALL_MASK, "C", locale_t{});
}

} // namespace talux

#endif
