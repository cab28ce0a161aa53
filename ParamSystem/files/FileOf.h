// Which parameter file a parameter belongs to: addresses are in ip_config.ini, other settings of userlevel 3
// in sec_parameter.ini, the rest in parameter.ini.
#ifndef TALUX_FILES_FILEOF_H
#define TALUX_FILES_FILEOF_H

#include "ParamSystem/files/ParameterFile.h"
#include "ParamSystem/store/Kinds.h"

namespace talux {

// None for run-time values and for parameters without a value.
constexpr ParameterFile fileOf(const stParamProperties& row) {
    if (row.is_volatile == 1 || kindOf(row.id) == Kind::None) return ParameterFile::none;
    if (isAddress(row)) return ParameterFile::address;
    return row.userlevel <= 2 ? ParameterFile::normal : ParameterFile::security;
}

} // namespace talux

#endif
