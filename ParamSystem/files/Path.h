// Paths of the parameter files: the directory of VarInit, then the file's name, together at most 255
// characters.
#ifndef TALUX_FILES_PATH_H
#define TALUX_FILES_PATH_H

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/files/ParameterFile.h"
#include "ParamSystem/os/Os.h"
#include "support/Text.h"

namespace talux {

class Path {
public:
    explicit Path(const char* name) { formatText(text, sizeof text, "%s/%s", szParameterPath, name); }
    explicit Path(ParameterFile file) : Path(fileName(file).data()) {}

    // A copy named after this moment; `stem` has no slash.
    static Path dated(const char* stem) {
        std::tm now;
        os::localTime(now);
        Path path;
        formatText(path.text, sizeof path.text, "%s/%s_%04lld_%02d_%02d_%02d%02d%02d.ini", szParameterPath,
                   stem, os::yearOf(now), now.tm_mon + 1, now.tm_mday, now.tm_hour, now.tm_min, now.tm_sec);
        return path;
    }

    char* get() { return text; }

private:
    Path() = default;

    char text[256];
};

} // namespace talux

#endif
