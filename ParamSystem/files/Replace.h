// Replaces a file as a whole: every reader finds the old file or the new one, never a part, also after a
// power cut.
#ifndef TALUX_FILES_REPLACE_H
#define TALUX_FILES_REPLACE_H

#include <string_view>

#include "ParamSystem/os/Error.h"
#include "ParamSystem/os/Files.h"

namespace talux {

// Creates the new file next to the old one, syncs it, renames it over the old one and syncs the directory.
// Links are followed; the target of the last one may be missing. `rights` null: owner and rights of the old
// file; a new one gets those that the mask leaves. If the process may not give files away, a new file belongs
// to the process and an old one remains with its owner; any other failure to set them is reported on the
// error stream.
//
// A file that cannot be replaced is written in place, where a reader may see a part: a device, a FIFO, a file
// with several names, a file in a directory in which nothing can be created or renamed (for lack of an inode,
// too), a file of another owner to whom the new one cannot be given. Only regular files are given away.
os::Error replaceFile(const char* path, std::string_view contents, const os::Rights* rights);

} // namespace talux

#endif
