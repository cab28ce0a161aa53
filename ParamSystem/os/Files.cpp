#include "ParamSystem/os/Files.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace talux::os {

namespace {

// Repeats a call that a signal interrupts.
template <class Call>
auto untilDone(Call call) {
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR) return result;
    }
}

} // namespace

int openToRead(const char* path) {
    return untilDone([=] { return open(path, O_RDONLY | O_CLOEXEC); });
}

void closeFile(int descriptor) {
    close(descriptor);
}

ssize_t readFile(int descriptor, char* block, std::size_t size) {
    return untilDone([=] { return read(descriptor, block, size); });
}

} // namespace talux::os
