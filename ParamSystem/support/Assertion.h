// Assertions that are active in every build type.
#ifndef TALUX_SUPPORT_ASSERTION_H
#define TALUX_SUPPORT_ASSERTION_H

namespace talux {

// Prints "<unit>: <function>: Assertion `<text>' failed." on the error stream and aborts.
[[noreturn]] void assertionFailed(const char* text, const char* unit, const char* function);

// Whether the condition holds; if not, the process aborts. Use the answer as a guard all the same, so that
// nothing is touched should the abort ever be taken out.
inline bool asserted(bool holds, const char* text, const char* unit, const char* function) {
    if (!holds) assertionFailed(text, unit, function);
    return holds;
}

} // namespace talux

#endif
