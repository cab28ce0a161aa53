#include "support/Assertion.h"

#include <cstdio>
#include <cstdlib>

namespace talux {

void assertionFailed(const char* text, const char* unit, const char* function) {
    std::fprintf(stderr, "%s: %s: Assertion `%s' failed.\n", unit, function, text);
    std::abort();
}

} // namespace talux
