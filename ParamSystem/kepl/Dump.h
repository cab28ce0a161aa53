// Dumps of several values: the elements of a range, the members of a record.
#ifndef TALUX_KEPL_DUMP_H
#define TALUX_KEPL_DUMP_H

#include <string_view>

#include "ParamSystem/kepl/Answer.h"

namespace talux::kepl {

// How each value of a dump looks.
enum class Style {
    plain,   // TLX_<name><separator><label> = <text>, one per line
    lines,   // the text, one per line
    columns, // the texts in one line with ";" between them
    hex,     // the bytes, two digits each
};

struct DumpItem {
    std::string_view separator; // between the parameter's name and the label
    std::string_view label;     // member or index
    std::string_view text;
    std::string_view bytes;
    bool isFirst; // no ";" in front
};

// False when the answer is full.
bool dump(Answer& answer, Style style, std::string_view name, const DumpItem& item);

} // namespace talux::kepl

#endif
