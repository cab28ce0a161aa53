// Dumps of several values: the elements of a range, the members of a record.
#ifndef TALUX_KEPL_DUMP_H
#define TALUX_KEPL_DUMP_H

#include <string_view>

#include "ParamSystem/kepl/Answer.h"
#include "ParamSystem/kepl/Decision.h"

namespace talux::kepl {

struct DumpItem {
    std::string_view separator; // between the parameter's name and the label
    std::string_view label;     // member or index
    std::string_view text;
    std::string_view bytes;
    bool isFirst; // without ";" before it
};

// False when the answer is full.
bool dump(Answer& answer, Style style, std::string_view name, const DumpItem& item);

} // namespace talux::kepl

#endif
