#include "ParamSystem/files/Line.h"

#include <charconv>
#include <cstring>

#include "ParamSystem/dictionary/Lookup.h"
#include "support/Address.h"
#include "support/FixedPoint.h"
#include "support/Number.h"

namespace talux {

namespace {

static_assert(kKeyPrefix.size() + kTextSize + sizeof "=\n" + kFixedPointSize < kLineSize);

// Each writes to `end` of the line and returns its new end.
char* append(char* end, std::string_view text) {
    std::memcpy(end, text.data(), text.size());
    return end + text.size();
}

// A text ends before its first line end, so that it never adds a line.
char* appendText(char* end, std::string_view text) {
    return append(end, text.substr(0, text.find_first_of("\r\n")));
}

// Whole numbers as an integer of 32 bits.
char* appendNumber(char* end, const Type& type, double number) {
    if (type.fileDecimals == 0) return std::to_chars(end, end + 16, saturated32(number)).ptr;
    return end + formatFixedPoint(end, number, type.fileDecimals);
}

char* appendValue(char* end, const Type& type, const Value& value) {
    if (!value.isText()) return appendNumber(end, type, value.number());
    *end++ = '"';
    end = type.nature == Nature::address ? appendAddress(end, addressPartsIn(value.text()))
                                         : appendText(end, value.text());
    *end++ = '"';
    return end;
}

} // namespace

std::size_t formatLine(char* line, const stParamProperties& row, const Value& value) {
    const Type& type = typeOf(row);
    // Templates have the type of a value but no slot. A name that is too long for a term comes from a
    // program.
    const std::string_view name(row.name);
    if (!holds(type.kind, row.id) || name.size() >= kTextSize || value.isText() != isText(type.nature))
        return 0;
    char* end = append(line, kKeyPrefix);
    end = append(end, name);
    *end++ = '=';
    end = appendValue(end, type, value);
    *end++ = '\n';
    *end = '\0';
    return static_cast<std::size_t>(end - line);
}

} // namespace talux
