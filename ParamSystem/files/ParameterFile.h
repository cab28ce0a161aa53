// The three parameter files: names, copies, rights and change flags.
#ifndef TALUX_FILES_PARAMETERFILE_H
#define TALUX_FILES_PARAMETERFILE_H

#include <string_view>

#include "ParamSystem/os/Files.h"
#include "ParamSystem/store/ChangeFlags.h"
#include "support/EnumRows.h"

namespace talux {

enum class ParameterFile { none, normal, security, address };

// For the two that have dated copies; the address file keeps its owner and mode.
inline constexpr os::Rights kNormalRights{0, 100, 0775}, kSecurityRights{0, 101, 0775};

struct ParameterFileRow {
    ParameterFile file;
    std::string_view name;    // in the directory of VarInit, with a NUL after it
    const char* stem;         // of the dated copies; empty: there are none
    const os::Rights* rights; // null: those of the old file
    ChangeFlag flag;          // raised by loading and saving it
};

inline constexpr ParameterFileRow kParameterFiles[] = {
    {ParameterFile::none, "", "", nullptr, {}},
    {ParameterFile::normal, "parameter.ini", "param", &kNormalRights, ChangeFlag::param},
    {ParameterFile::security, "sec_parameter.ini", "sec_param", &kSecurityRights, ChangeFlag::secParam},
    {ParameterFile::address, "ip_config.ini", "", nullptr, ChangeFlag::ip},
};
static_assert(hasRowForEach<&ParameterFileRow::file>(kParameterFiles),
              "each enumerator has its row, in the same order");

constexpr std::string_view fileName(ParameterFile file) {
    return rowOf(kParameterFiles, file).name;
}

} // namespace talux

#endif
