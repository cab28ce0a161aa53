// Binary records of the struct segment; their members are laid out in dictionary/Records.cpp.
#ifndef TALUX_CATALOGUE_RECORDS_H
#define TALUX_CATALOGUE_RECORDS_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kRecords[] = {
    record(30000, "MessRecord01"),
    record(30001, "MessRecord02"),
    record(30002, "StatRecord_c0"),
};

} // namespace talux::catalogue

#endif
