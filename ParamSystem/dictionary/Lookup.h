// Look-ups of parameters by a name that is part of another text, and a walk over all of them.
#ifndef TALUX_DICTIONARY_LOOKUP_H
#define TALUX_DICTIONARY_LOOKUP_H

#include <span>
#include <string_view>

#include "ParamSystem/TALUX_Params.h"

namespace talux {

// Before the name of a parameter, in files and in the command language.
inline constexpr std::string_view kKeyPrefix = "TLX_";

bool areParametersLoaded();

// As GetParamPropertiesByName.
const stParamProperties* findParameter(std::string_view name);

// The rows of the working table from position 1 to the last in use. One with id 0 is no parameter.
std::span<const stParamProperties> parameterRows();

} // namespace talux

#endif
