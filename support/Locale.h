// The C locale, independent of the host's: numbers are read and printed with a point.
#ifndef TALUX_SUPPORT_LOCALE_H
#define TALUX_SUPPORT_LOCALE_H

#include <clocale>

namespace talux {

// The C library returns the same object at every call and needs neither memory nor files for it.
inline locale_t cLocale() {
    return newlocale(LC_ALL_MASK, "C", locale_t{});
}

} // namespace talux

#endif
