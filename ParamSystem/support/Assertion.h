// Assertions that are active in every build type.
#ifndef TALUX_SUPPORT_ASSERTION_H
#define TALUX_SUPPORT_ASSERTION_H

namespace talux {

// Prints "<unit>: <function>: Assertion `<text>' failed." on the error stream and aborts.
[[noreturn]] void assertionFailed(const char* text, const char* unit, const char* function);

inline bool asserted(bool holds, const char* text, const char* unit, const char* function) {
    if (!holds) assertionFailed(text, unit, function);
    return holds;
}

} // namespace talux

// True when the condition holds, else the process aborts. Use it as a guard, `if (!TALUX_ASSERT(..))
// return;`, so that nothing is touched should the abort ever be taken out. TALUX_UNIT names the source unit.
#define TALUX_ASSERT(condition) talux::asserted((condition), #condition, TALUX_UNIT, __PRETTY_FUNCTION__)

#endif
