// The files of the door to the operating system: calls that go on after a signal. Failures leave their reason
// in errno.
#ifndef TALUX_OS_FILES_H
#define TALUX_OS_FILES_H

#include <cstddef>
#include <sys/types.h>

namespace talux::os {

// A descriptor that programs started later do not inherit; negative on failure.
int openToRead(const char* path);

void closeFile(int descriptor);

// The number of bytes read, 0 at the end, negative on failure.
ssize_t readFile(int descriptor, char* block, std::size_t size);

} // namespace talux::os

#endif
