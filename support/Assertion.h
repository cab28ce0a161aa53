// Assertions that are active in every build type.
#ifndef TALUX_SUPPORT_ASSERTION_H
#define TALUX_SUPPORT_ASSERTION_H

namespace talux {

// Prints "<unit>: <function>: Assertion `<text>' failed." on the error stream and aborts.
[[noreturn]] void assertionFailed(const char* text, const char* unit, const char* function);

inline void assertThat(bool holds, const char* text, const char* unit, const char* function) {
    if (!holds) assertionFailed(text, unit, function);
}

} // namespace talux

#endif
