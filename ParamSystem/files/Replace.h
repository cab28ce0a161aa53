// A parameter file is replaced as a whole. Whoever reads it at any moment, and whoever looks after the power
// failed, finds the old file or the new one, never a part.
#ifndef TALUX_FILES_REPLACE_H
#define TALUX_FILES_REPLACE_H

#include <string_view>

#include "ParamSystem/files/ParameterFile.h"

namespace talux {

enum class Written {
    done,
    notOpened,  // the file cannot be created or written at all
    notWritten, // a write failed, for instance on a full disk
    notKept,    // written, but not surely on the disk or not put in place
};

struct Replacement {
    Written written = Written::done;
    bool isAsBefore = false; // what was there has not changed
    const char* call = "";   // that failed
    int error = 0;           // its reason
};

// Makes the new file beside the old one, syncs it, renames it over the old one and syncs the directory. Links
// are followed, the last one may dangle. `rights` null: owner and rights of the old file, those that the mask
// leaves for a new one. Where the process has no right to give files away a new file stays with its writer
// and an old one with its owner; any other failure of that is reported on the error stream.
//
// Written in place, and then not as a whole, is what cannot be replaced: a device, a FIFO, a file with
// several names, one in a directory in which nothing can be made or exchanged, be it for want of an inode,
// one of another owner to whom the new one cannot be given. Only regular files are given away.
Replacement replaceFile(const char* path, std::string_view contents, const Rights* rights);

} // namespace talux

#endif
