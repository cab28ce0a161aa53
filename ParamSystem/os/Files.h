// Files. Calls that a signal interrupts are repeated; programs that are started later inherit no descriptor.
// After a failure, negative or false, errno is set.
#ifndef TALUX_OS_FILES_H
#define TALUX_OS_FILES_H

#include <cstddef>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>

namespace talux::os {

struct Rights {
    uid_t owner;
    gid_t group;
    mode_t mode;
};

int openToRead(const char* path);
int openToWrite(const char* path); // for reading as well; the file must exist
int openOrMake(const char* path);  // the same, created if missing, with the rights that the mask leaves
int openDirectory(const char* path);
bool closeFile(int descriptor);

// Files of a directory that is open. Links are not followed.
int openIn(int directory, const char* name); // to read
int makeIn(int directory, const char* name); // to write; fails if it exists
bool statusIn(int directory, const char* name, struct stat& status);
bool renameIn(int directory, const char* from, const char* to);
void removeIn(int directory, const char* name);

void removeFile(const char* path);

bool statusOf(int descriptor, struct stat& status);
ssize_t readFile(int descriptor, char* block, std::size_t size);         // the bytes read, 0 at the end
bool writeFile(int descriptor, std::string_view contents);               // all of it
bool writeFile(int descriptor, std::string_view contents, off_t offset); // from there on
bool cutFile(int descriptor, off_t size);
bool syncFile(int descriptor); // also of a directory; what cannot be synced counts as synced
bool giveFile(int descriptor, const Rights& rights);  // owner and group
bool allowFile(int descriptor, const Rights& rights); // mode

// A lock between processes that ends with the descriptor. Succeeds on file systems without locks.
bool tryLockFile(int descriptor);

// The target of a link, cut to fit with a NUL; false when it was cut or there is no link, whose target is
// empty.
bool readLink(const char* path, char* target, std::size_t size);

bool exists(const char* path);

} // namespace talux::os

#endif
