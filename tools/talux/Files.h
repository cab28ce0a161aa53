// Files that the commands read and write as a whole.
#ifndef TALUX_TOOLS_TALUX_FILES_H
#define TALUX_TOOLS_TALUX_FILES_H

#include <string>

#include "ParamSystem/os/Files.h"
#include "tools/talux/Command.h"

namespace talux::tool {

// That of errno, for people.
std::string reasonOf(int error);

// Throws CouldNot with the reason; so does a file of more than 1 MB: one that takes some 80 MB to look at if
// every character is a word.
std::string contentsOf(const std::string& path, const Context& context);

// What was there stays if the new text cannot be written. Throws CouldNot with the reason.
void replace(const std::string& path, const std::string& text, const Context& context,
             const os::Rights* rights = nullptr);

} // namespace talux::tool

#endif
