// How a test is isolated from the machine that it runs on; scripts/isolated.sh explains the words.
#ifndef TALUX_TEST_ISOLATION_H
#define TALUX_TEST_ISOLATION_H

#include <cstdlib>
#include <cstring>

namespace talux_test {

// Own network, clock rights taken away, own /dev and parameter files: "full" or "user".
inline bool isolated() {
    const char* const word = std::getenv("TALUX_ISOLATION");
    return word != nullptr && (std::strcmp(word, "full") == 0 || std::strcmp(word, "user") == 0);
}

} // namespace talux_test

#endif
