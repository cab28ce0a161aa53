// The C locale, whatever the host has set: numbers are read and printed with a point.
#ifndef TALUX_SUPPORT_LOCALE_H
#define TALUX_SUPPORT_LOCALE_H

#include <clocale>

namespace talux {

// The C library keeps this locale ready: neither memory nor files are needed.
inline locale_t cLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", locale_t{});
    return locale;
}

} // namespace talux

#endif
