// How a test is isolated from the machine that it runs on; scripts/isolated.sh explains the words.
#ifndef TALUX_TEST_ISOLATION_H
#define TALUX_TEST_ISOLATION_H

#include <cstdlib>
#include <cstring>

namespace talux_test {

inline bool isolationIs(const char* word) {
    const char* isolation = std::getenv("TALUX_ISOLATION");
    return isolation && std::strcmp(isolation, word) == 0;
}

// Own network, clock rights taken away, own /dev and parameter files: "full" or "user".
inline bool isolated() {
    return isolationIs("full") || isolationIs("user");
}

// Files may be given to any owner and group.
inline bool anyOwner() {
    return isolationIs("full");
}

} // namespace talux_test

// First line of a test that would touch what it may not; the reason names that.
#define TALUX_NEEDS_ISOLATION(reason)                                                                        \
    if (!talux_test::isolated()) GTEST_SKIP() << "without namespaces: " reason
#define TALUX_NEEDS_ANY_OWNER(reason)                                                                        \
    if (!talux_test::anyOwner()) GTEST_SKIP() << "without root: " reason

#endif
