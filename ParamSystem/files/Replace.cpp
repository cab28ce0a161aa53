#include "ParamSystem/files/Replace.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <optional>

#include "ParamSystem/os/Files.h"
#include "ParamSystem/os/Os.h"
#include "support/Text.h"

namespace talux {

namespace {

Replacement failure(Written written, const char* call, bool isAsBefore = true) {
    return {written, isAsBefore, call, errno};
}

// Nothing can be made or exchanged there.
bool isRefused(int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

// No second file: no inode is left, or no more of the user's share.
bool isUsedUp(int error) {
    return error == ENOSPC || error == EDQUOT;
}

class Descriptor {
public:
    explicit Descriptor(int opened) : number(opened) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    explicit operator bool() const { return number >= 0; }
    int get() const { return number; }
    bool close() {
        const bool closed = number < 0 || os::closeFile(number);
        number = -1;
        return closed;
    }

private:
    int number;
};

// ---- Where a path leads ----

class Place {
public:
    // Follows links, to a file that may be missing. False when the path names none or is too long.
    bool find(const char* path) {
        if (std::strlen(path) >= sizeof text) return false;
        copyText(text, path);
        char link[PATH_MAX];
        for (int links = 0; os::readLink(text, link, sizeof link); ++links)
            if (links == kMostLinks || !follow(link)) return false;
        split();
        return *file != '\0';
    }

    const char* directory() const { return folder; }
    const char* name() const { return file; }

private:
    static constexpr int kMostLinks = 40; // as the kernel

    char text[PATH_MAX];
    const char* folder = ".";
    const char* file = text;

    bool follow(const char* link) {
        char* const slash = std::strrchr(text, '/');
        char* const start = *link == '/' || slash == nullptr ? text : slash + 1;
        const auto room = static_cast<std::size_t>(text + sizeof text - start);
        copyText(start, room, link);
        return std::strlen(link) < room;
    }

    void split() {
        char* const slash = std::strrchr(text, '/');
        if (slash == nullptr) return;
        *slash = '\0';
        folder = slash == text ? "/" : text;
        file = slash + 1;
    }
};

// ---- The new file while it is being made ----

// It lies beside the old one under one of a few names. Its maker holds the lock on it: a file of such a name
// that nobody has locked was left over when a program or the power failed.
class Draft {
public:
    explicit Draft(int in) : directory(in) {}
    ~Draft() {
        if (descriptor < 0) return;
        if (!isPlaced) os::removeIn(directory, name.data());
        os::closeFile(descriptor); // gives the lock back
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    int get() const { return descriptor; }
    const struct stat& status() const { return made; }

    // Clears away what was left over. While other saves have all the names it waits for them.
    bool make() {
        const std::int64_t end = os::monotonicMilliseconds() + kLongestWait;
        while (!claimFirst()) {
            if (errno != EEXIST) return false;
            if (os::monotonicMilliseconds() >= end) {
                errno = EAGAIN;
                return false;
            }
            os::sleepMicroseconds(kWait);
        }
        clearBehind();
        return true;
    }

    bool placeAs(const char* file) {
        isPlaced = os::renameIn(directory, name.data(), file);
        return isPlaced;
    }

private:
    using Name = std::array<char, 20>;
    static constexpr int kNumber = 12;
    static constexpr char kFirst = '0';
    static constexpr char kEnd = '4';         // four saves of one directory at once
    static constexpr unsigned kWait = 1000;   // microseconds; a slow kernel makes more of it
    static constexpr int kLongestWait = 5000; // milliseconds

    int directory;
    int descriptor = -1;
    bool isPlaced = false;
    Name name{".talux-save-0.tmp"};
    struct stat made {};

    // Takes the first name that no other save has at the moment.
    bool claimFirst() {
        for (name[kNumber] = kFirst; name[kNumber] < kEnd; ++name[kNumber]) {
            if (claim() || (errno == EEXIST && (clear(name), claim()))) return true;
            if (errno != EEXIST) return false;
        }
        return false;
    }

    // Another save may take the file for a leftover and remove it before it is locked.
    bool claim() {
        descriptor = os::makeIn(directory, name.data());
        if (descriptor < 0) return false;
        if (os::tryLockFile(descriptor) && os::statusOf(descriptor, made) && made.st_nlink > 0) return true;
        os::closeFile(descriptor);
        descriptor = -1;
        errno = EEXIST;
        return false;
    }

    // What concurrent saves left over, in whatever order they were ended.
    void clearBehind() const {
        for (Name left = name; ++left[kNumber] < kEnd;)
            clear(left);
    }

    void clear(const Name& left) const {
        const Descriptor file(os::openIn(directory, left.data()));
        if (file && os::tryLockFile(file.get()) && stillNames(left, file.get()))
            os::removeIn(directory, left.data());
    }

    // Its maker may have put it in place before it was locked here.
    bool stillNames(const Name& left, int file) const {
        struct stat own {};
        struct stat named {};
        return os::statusOf(file, own) && S_ISREG(own.st_mode) &&
               os::statusIn(directory, left.data(), named) && own.st_dev == named.st_dev &&
               own.st_ino == named.st_ino;
    }
};

// ---- Owner and rights ----

constexpr mode_t kAllRights = 07777;

Rights rightsOf(const struct stat& file) {
    return {file.st_uid, file.st_gid, file.st_mode & kAllRights};
}

bool hasOwner(const struct stat& file, const Rights& rights) {
    return file.st_uid == rights.owner && file.st_gid == rights.group;
}

// No right to, or no such owner in a container.
bool isNotAllowed(int error) {
    return error == EPERM || error == EINVAL;
}

void reportRights(const char* path, const char* call) {
    const int error = errno;
    if (isNotAllowed(error)) return;
    std::fprintf(stderr, "Error (TALUX_Var): Can't set owner and rights of file '%s' \n", path);
    errno = error;
    std::perror(call);
}

// `now` is what the file has. False when the owner should be another and that is not allowed.
bool setRights(int descriptor, const struct stat& now, const Rights& rights, const char* path) {
    const bool isGiven = hasOwner(now, rights) || os::giveFile(descriptor, rights.owner, rights.group);
    const bool isAllowed = isGiven || !isNotAllowed(errno);
    if (!isGiven) reportRights(path, "chown");
    if ((now.st_mode & kAllRights) != rights.mode && !os::allowFile(descriptor, rights.mode))
        reportRights(path, "chmod");
    return isAllowed;
}

// ---- Both ways ----

// The old file, null when there is none.
using Old = const struct stat*;

// No name left: another save has replaced it since it was opened. Somebody may still read it.
bool isReplaceable(const struct stat& old) {
    return S_ISREG(old.st_mode) && old.st_nlink <= 1;
}

// False where the new file would silently go from the old one's owner to its writer.
bool setRights(const Draft& draft, const Rights* rights, Old old, const char* path) {
    if (rights == nullptr && old == nullptr) return true;
    const Rights wanted = rights != nullptr ? *rights : rightsOf(*old);
    return setRights(draft.get(), draft.status(), wanted, path) || old == nullptr ||
           hasOwner(draft.status(), rightsOf(*old));
}

// Nothing when the file cannot be replaced; all is as before then.
std::optional<Replacement> replaceWhole(const char* path, std::string_view contents, const Rights* rights,
                                        Old old) {
    constexpr auto refusedOr = [](Written written, const char* call) {
        return isRefused(errno) ? std::optional<Replacement>() : failure(written, call);
    };
    Place place;
    if (!place.find(path)) return {};
    const Descriptor directory(os::openDirectory(place.directory()));
    if (!directory) return refusedOr(Written::notOpened, "fopen");
    Draft draft(directory.get());
    if (!draft.make() && isUsedUp(errno)) return {};
    if (draft.get() < 0) return refusedOr(Written::notOpened, "fopen");
    // First of all, so that nobody reads meanwhile what only few may read.
    if (!setRights(draft, rights, old, path)) return {};
    if (!os::writeFile(draft.get(), contents)) return failure(Written::notWritten, "write");
    if (!os::syncFile(draft.get())) return failure(Written::notKept, "fsync");
    if (!draft.placeAs(place.name())) return refusedOr(Written::notKept, "rename");
    if (!os::syncFile(directory.get())) return failure(Written::notKept, "fsync", false);
    return Replacement{};
}

// Over the old contents. What goes beyond them comes first, so that a full disk takes nothing of them.
Replacement writeOver(int file, std::string_view contents, off_t oldSize) {
    const std::size_t shared = std::min(contents.size(), static_cast<std::size_t>(oldSize));
    if (!os::writeFile(file, after(contents, shared), oldSize)) {
        const Replacement failed = failure(Written::notWritten, "write");
        os::cutFile(file, oldSize);
        return failed;
    }
    if (!os::writeFile(file, contents.substr(0, shared), 0) ||
        !os::cutFile(file, static_cast<off_t>(contents.size())))
        return failure(Written::notWritten, "write", false);
    return {};
}

Replacement writeInPlace(const char* path, std::string_view contents, const Rights* rights,
                         Descriptor& file) {
    struct stat status {};
    if (!file || !os::statusOf(file.get(), status)) return failure(Written::notOpened, "fopen");
    const bool isRegular = S_ISREG(status.st_mode);
    Replacement result;
    if (isRegular)
        result = writeOver(file.get(), contents, status.st_size);
    else if (!os::writeFile(file.get(), contents))
        result = failure(Written::notWritten, "write", false);
    if (rights != nullptr && isRegular)
        setRights(file.get(), status, *rights, path); // no device is given away
    if (result.written != Written::done) return result;
    if (isRegular && !os::syncFile(file.get())) return failure(Written::notKept, "fsync", false);
    return file.close() ? result : failure(Written::notWritten, "write", false);
}

} // namespace

Replacement replaceFile(const char* path, std::string_view contents, const Rights* rights) {
    Descriptor existing(os::openToWrite(path));
    if (!existing && errno != ENOENT) return failure(Written::notOpened, "fopen");
    struct stat old {};
    if (existing && !os::statusOf(existing.get(), old)) return failure(Written::notOpened, "fopen");
    const bool isThere{existing};
    if (!isThere || isReplaceable(old))
        if (auto replaced = replaceWhole(path, contents, rights, isThere ? &old : nullptr)) {
            replaced->isAsBefore = replaced->isAsBefore && isThere;
            return *replaced;
        }
    if (existing) return writeInPlace(path, contents, rights, existing);
    Descriptor made(os::openOrMake(path));
    return writeInPlace(path, contents, rights, made);
}

} // namespace talux
