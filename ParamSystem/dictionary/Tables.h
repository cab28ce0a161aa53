// The tables that tools/generator makes from the rows of parameters, besides those of the public headers.
#ifndef TALUX_DICTIONARY_TABLES_H
#define TALUX_DICTIONARY_TABLES_H

#include <span>

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/dictionary/Ids.h"
#include "ParamSystem/dictionary/NameIndex.h"

namespace talux {

extern const int kParameters; // rows between the sentinels
extern const std::span<const stParamFamily> kFamilies;
extern const NameIndex kNameIndex;
extern const NameIndex kSymbolIndex;
extern const NameIndex kTextSymbolIndex;
// Of the first row with an id; 0 where there is none.
extern const std::uint16_t kIdPositions[kDenseIndexCount];

} // namespace talux

#endif
