// Files that the build writes: a reader, also after a failure, finds the old one or the new one.
#ifndef TALUX_TOOLS_WHOLEFILE_H
#define TALUX_TOOLS_WHOLEFILE_H

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace talux {

// Empty when it cannot be read.
inline std::string contentOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// False when that failed, with the reason on the error stream.
inline bool replaceFile(const std::filesystem::path& file, const std::string& content) {
    const std::string draft = file.string() + ".new";
    std::error_code ignored;
    std::filesystem::create_directories(file.parent_path(), ignored);
    {
        std::ofstream out(draft, std::ios::binary);
        out << content;
        out.close();
        if (out && std::rename(draft.c_str(), file.c_str()) == 0) return true;
    }
    std::perror(file.c_str());
    std::remove(draft.c_str());
    return false;
}

} // namespace talux

#endif
