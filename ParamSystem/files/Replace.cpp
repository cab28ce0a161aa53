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

using os::Error;
using os::failed;
using os::Rights;
using os::Stage;

// Nothing can be created or renamed there.
bool isRefused(int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

// No inode is left for a second file, or the user's quota is used up.
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

class Target {
public:
    // Follows links to a file, which may be missing. False when the path names none or is too long.
    bool find(const char* path) {
        if (std::strlen(path) >= sizeof text) return false;
        copyText(text, path);
        char link[PATH_MAX];
        for (int links = 0; os::readLink(text, link, sizeof link); ++links)
            if (links == kMaxLinks || !follow(link)) return false;
        split();
        return *file != '\0';
    }

    const char* directory() const { return folder; }
    const char* name() const { return file; }

private:
    static constexpr int kMaxLinks = 40; // as the kernel

    char text[PATH_MAX];
    const char* folder = ".";
    const char* file = text;

    bool follow(const char* link) {
        char* const slash = std::strrchr(text, '/');
        char* const start = *link == '/' || slash == nullptr ? text : slash + 1;
        const auto size = static_cast<std::size_t>(text + sizeof text - start);
        copyText(start, size, link);
        return std::strlen(link) < size;
    }

    void split() {
        char* const slash = std::strrchr(text, '/');
        if (slash == nullptr) return;
        *slash = '\0';
        folder = slash == text ? "/" : text;
        file = slash + 1;
    }
};

// ---- The new file before it is renamed ----

// It is next to the old one under one of four names, so that four saves can write to one directory at once.
// Each name is in one of three states:
//
//     free       there is no such file
//     in use     a save has the file locked
//     left over  nobody has it locked: its save was killed or the power failed
//
//     claim       free -> in use     creates the file, which must not exist, then locks it
//     clear       left over -> free  locks the file, then removes it if the name is still its name: its save
//                                    may have renamed it before the lock
//     placeAs     in use -> free     renames the file
//     destructor  in use -> free     removes the file if it was not renamed; closing it ends the lock
//
// Between creation and lock a file looks left over and may be removed: then its name counts as in use. A save
// clears and claims the first name that is not in use, and waits if all are. Then it clears the following
// names.
class Draft {
public:
    explicit Draft(int in) : directory(in) {}
    ~Draft() {
        if (descriptor < 0) return;
        if (!isPlaced) os::removeIn(directory, name.data());
        os::closeFile(descriptor);
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    int get() const { return descriptor; }
    const struct stat& status() const { return made; }

    bool make() {
        const std::int64_t end = os::monotonicMilliseconds() + kMaxWait;
        while (!claimFirst()) {
            if (errno != EEXIST) return false;
            if (os::monotonicMilliseconds() >= end) {
                errno = EAGAIN;
                return false;
            }
            os::sleepMicroseconds(kWait);
        }
        clearFollowing();
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
    static constexpr char kEnd = '4';
    static constexpr unsigned kWait = 1000; // microseconds; a slow kernel makes it longer
    static constexpr int kMaxWait = 5000;   // milliseconds

    int directory;
    int descriptor = -1;
    bool isPlaced = false;
    Name name{".talux-save-0.tmp"};
    struct stat made {};

    bool claimFirst() {
        for (name[kNumber] = kFirst; name[kNumber] < kEnd; ++name[kNumber]) {
            if (claim() || (errno == EEXIST && (clear(name), claim()))) return true;
            if (errno != EEXIST) return false;
        }
        return false;
    }

    bool claim() {
        descriptor = os::makeIn(directory, name.data());
        if (descriptor < 0) return false;
        if (os::tryLockFile(descriptor) && os::statusOf(descriptor, made) && made.st_nlink > 0) return true;
        os::closeFile(descriptor);
        descriptor = -1;
        errno = EEXIST;
        return false;
    }

    void clearFollowing() const {
        for (Name left = name; ++left[kNumber] < kEnd;)
            clear(left);
    }

    void clear(const Name& left) const {
        const Descriptor file(os::openIn(directory, left.data()));
        if (file && os::tryLockFile(file.get()) && stillNames(left, file.get()))
            os::removeIn(directory, left.data());
    }

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

void report(const Error& error, const char* path) {
    if (isNotAllowed(error.number)) return;
    std::fprintf(stderr, "Error (TALUX_Var): Can't set owner and rights of file '%s' \n", path);
    error.print();
}

// `now` is the status of the file. False when it should have another owner and that is not allowed.
bool setRights(int descriptor, const struct stat& now, const Rights& rights, const char* path) {
    const bool isGiven = hasOwner(now, rights) || os::giveFile(descriptor, rights);
    const bool isAllowed = isGiven || !isNotAllowed(errno);
    if (!isGiven) report(failed(Stage::keep, "chown"), path);
    if ((now.st_mode & kAllRights) != rights.mode && !os::allowFile(descriptor, rights))
        report(failed(Stage::keep, "chmod"), path);
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

// Nothing when the file cannot be replaced; nothing has changed then.
std::optional<Error> replaceWhole(const char* path, std::string_view contents, const Rights* rights,
                                  Old old) {
    constexpr auto refusedOr = [](Stage stage, const char* call) {
        return isRefused(errno) ? std::optional<Error>() : failed(stage, call);
    };
    Target target;
    if (!target.find(path)) return {};
    const Descriptor directory(os::openDirectory(target.directory()));
    if (!directory) return refusedOr(Stage::open, "fopen");
    Draft draft(directory.get());
    if (!draft.make() && isUsedUp(errno)) return {};
    if (draft.get() < 0) return refusedOr(Stage::open, "fopen");
    // Before the contents, which perhaps only some users may read.
    if (!setRights(draft, rights, old, path)) return {};
    if (!os::writeFile(draft.get(), contents)) return failed(Stage::use, "write");
    if (!os::syncFile(draft.get())) return failed(Stage::keep, "fsync");
    if (!draft.placeAs(target.name())) return refusedOr(Stage::keep, "rename");
    if (!os::syncFile(directory.get())) return failed(Stage::keep, "fsync", false);
    return Error{};
}

// Overwrites the old contents. What exceeds their length is written first, so a full disk leaves them intact.
Error writeOver(int file, std::string_view contents, off_t oldSize) {
    const std::size_t shared = std::min(contents.size(), static_cast<std::size_t>(oldSize));
    if (!os::writeFile(file, after(contents, shared), oldSize)) {
        const Error error = failed(Stage::use, "write");
        os::cutFile(file, oldSize);
        return error;
    }
    if (!os::writeFile(file, contents.substr(0, shared), 0) ||
        !os::cutFile(file, static_cast<off_t>(contents.size())))
        return failed(Stage::use, "write", false);
    return {};
}

Error writeInPlace(const char* path, std::string_view contents, const Rights* rights, Descriptor& file) {
    struct stat status {};
    if (!file || !os::statusOf(file.get(), status)) return failed(Stage::open, "fopen");
    const bool isRegular = S_ISREG(status.st_mode);
    Error error;
    if (isRegular)
        error = writeOver(file.get(), contents, status.st_size);
    else if (!os::writeFile(file.get(), contents))
        error = failed(Stage::use, "write", false);
    if (rights != nullptr && isRegular)
        setRights(file.get(), status, *rights, path); // no device is given away
    if (error) return error;
    if (isRegular && !os::syncFile(file.get())) return failed(Stage::keep, "fsync", false);
    return file.close() ? Error{} : failed(Stage::use, "write", false);
}

} // namespace

Error replaceFile(const char* path, std::string_view contents, const Rights* rights) {
    Descriptor existing(os::openToWrite(path));
    if (!existing && errno != ENOENT) return failed(Stage::open, "fopen");
    struct stat old {};
    if (existing && !os::statusOf(existing.get(), old)) return failed(Stage::open, "fopen");
    const bool isThere{existing};
    if (!isThere || isReplaceable(old))
        if (auto error = replaceWhole(path, contents, rights, isThere ? &old : nullptr)) {
            error->isUnchanged = error->isUnchanged && isThere;
            return *error;
        }
    if (existing) return writeInPlace(path, contents, rights, existing);
    Descriptor made(os::openOrMake(path));
    return writeInPlace(path, contents, rights, made);
}

} // namespace talux
