// How an operation of the operating system ended.
#ifndef TALUX_OS_ERROR_H
#define TALUX_OS_ERROR_H

#include <cerrno>
#include <cstdio>

namespace talux::os {

enum class Stage {
    none, // it succeeded
    open, // the file or segment cannot be opened or created
    use,  // it cannot be read, written or attached
    keep, // it is written, but possibly not on the disk or not in its place
};

// False after success.
struct Error {
    Stage stage = Stage::none;
    const char* call = "";    // that failed
    int number = 0;           // its errno
    bool isUnchanged = false; // the file that was there before

    explicit operator bool() const { return stage != Stage::none; }

    // Prints the call and its reason on the error stream.
    void print() const {
        errno = number;
        std::perror(call);
    }
};

// The call that just failed, with its errno.
inline Error failed(Stage stage, const char* call, bool isUnchanged = true) {
    return {stage, call, errno, isUnchanged};
}

} // namespace talux::os

#endif
