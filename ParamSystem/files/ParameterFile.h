// The three parameter files, and which parameter is in which.
#ifndef TALUX_FILES_PARAMETERFILE_H
#define TALUX_FILES_PARAMETERFILE_H

#include <string_view>
#include <sys/types.h>

#include "ParamSystem/store/ChangeFlags.h"
#include "ParamSystem/store/Kinds.h"
#include "support/EnumRows.h"

namespace talux {

enum class ParameterFile { none, normal, security, address };

struct Rights {
    uid_t owner;
    gid_t group;
    mode_t mode;
};

// What a save gives to the two that have dated copies; the address file keeps the owner that it has.
inline constexpr Rights kNormalRights{0, 100, 0775}, kSecurityRights{0, 101, 0775};

struct ParameterFileRow {
    ParameterFile file;
    std::string_view name; // in the directory of VarInit, with a NUL after it
    const char* stem;      // of the dated copies; empty: there are none
    const Rights* rights;  // null: those that it has
    ChangeFlag flag;       // raised by loading and saving it
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

// The file that keeps a parameter: none for run-time values and for what has no value.
constexpr ParameterFile fileOf(const stParamProperties& row) {
    if (row.is_volatile == 1 || kindOf(row.id) == Kind::None) return ParameterFile::none;
    if (isAddress(row)) return ParameterFile::address;
    return row.userlevel <= 2 ? ParameterFile::normal : ParameterFile::security;
}

} // namespace talux

#endif
