// Look-ups of parameters by a name that lies within another text.
#ifndef TALUX_DICTIONARY_LOOKUP_H
#define TALUX_DICTIONARY_LOOKUP_H

#include <string_view>

#include "ParamSystem/TALUX_Params.h"

namespace talux {

// As GetParamPropertiesByName.
const stParamProperties* findParameter(std::string_view name);

} // namespace talux

#endif
