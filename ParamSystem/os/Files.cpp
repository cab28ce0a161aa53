#include "ParamSystem/os/Files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace talux::os {

namespace {

constexpr mode_t kAsMaskLeaves = 0666;

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

int openToWrite(const char* path) {
    return untilDone([=] { return open(path, O_RDWR | O_CLOEXEC); });
}

int openOrMake(const char* path) {
    return untilDone([=] { return open(path, O_RDWR | O_CREAT | O_CLOEXEC, kAsMaskLeaves); });
}

int openDirectory(const char* path) {
    return open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool closeFile(int descriptor) {
    // Closed even when a signal interrupts it.
    return close(descriptor) == 0 || errno == EINTR;
}

int openIn(int directory, const char* name) {
    return openat(directory, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
}

int makeIn(int directory, const char* name) {
    return openat(directory, name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kAsMaskLeaves);
}

bool statusIn(int directory, const char* name, struct stat& status) {
    return fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

bool renameIn(int directory, const char* from, const char* to) {
    return renameat(directory, from, directory, to) == 0;
}

void removeIn(int directory, const char* name) {
    unlinkat(directory, name, 0);
}

void removeFile(const char* path) {
    unlink(path);
}

bool statusOf(int descriptor, struct stat& status) {
    return fstat(descriptor, &status) == 0;
}

ssize_t readFile(int descriptor, char* block, std::size_t size) {
    return untilDone([=] { return read(descriptor, block, size); });
}

bool writeFile(int descriptor, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written =
            untilDone([=] { return write(descriptor, contents.data(), contents.size()); });
        if (written == 0) errno = EIO; // a device that takes no more
        if (written <= 0) return false;
        contents.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool writeFile(int descriptor, std::string_view contents, off_t offset) {
    return lseek(descriptor, offset, SEEK_SET) == offset && writeFile(descriptor, contents);
}

bool cutFile(int descriptor, off_t size) {
    return untilDone([=] { return ftruncate(descriptor, size); }) == 0;
}

bool syncFile(int descriptor) {
    return untilDone([=] { return fsync(descriptor); }) == 0 || errno == EINVAL;
}

bool giveFile(int descriptor, const Rights& rights) {
    return fchown(descriptor, rights.owner, rights.group) == 0;
}

bool allowFile(int descriptor, const Rights& rights) {
    return fchmod(descriptor, rights.mode) == 0;
}

bool tryLockFile(int descriptor) {
    return untilDone([=] { return flock(descriptor, LOCK_EX | LOCK_NB); }) == 0 || errno != EWOULDBLOCK;
}

bool readLink(const char* path, char* target, std::size_t size) {
    const ssize_t length = readlink(path, target, size);
    const std::size_t end = std::min(static_cast<std::size_t>(std::max<ssize_t>(length, 0)), size - 1);
    target[end] = '\0';
    return length >= 0 && static_cast<std::size_t>(length) == end;
}

bool exists(const char* path) {
    return access(path, F_OK) == 0;
}

} // namespace talux::os
