#include "ParamSystem/files/Line.h"

#include <charconv>
#include <cstring>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/os/Os.h"
#include "support/Address.h"
#include "support/FixedPoint.h"
#include "support/Number.h"

namespace talux {

namespace {

char* append(char* place, std::string_view text) {
    std::memcpy(place, text.data(), text.size());
    return place + text.size();
}

// A text ends before its first line end, so that it never becomes lines of its own.
char* appendText(char* place, std::string_view text) {
    *place++ = '"';
    place = append(place, text.substr(0, text.find_first_of("\r\n")));
    *place++ = '"';
    return place;
}

char* appendAddress(char* place, const char* address) {
    char normalised[kWholeAddressSize];
    normaliseAddress(normalised, address);
    return appendText(place, normalised);
}

// Whole numbers as an integer of 32 bits.
char* appendNumber(char* place, const Type& type, double number) {
    if (type.fileDecimals == 0) return std::to_chars(place, place + 16, saturated32(number)).ptr;
    char text[kFixedPointSize];
    return append(place, {text, formatFixedPoint(text, number, type.fileDecimals)});
}

char* appendValue(char* place, const Type& type, const Value& value) {
    if (!value.isText()) return appendNumber(place, type, value.number());
    return type.nature == Nature::address ? appendAddress(place, value.text())
                                          : appendText(place, value.text());
}

} // namespace

Value clockValue(Nature nature, const std::tm& now) {
    char text[48]; // a clock that was never set may show any number
    if (nature == Nature::date)
        formatText(text, sizeof text, "%04lld-%02d-%02d", os::yearOf(now), now.tm_mon + 1, now.tm_mday);
    else
        formatText(text, sizeof text, "%02d:%02d:%02d", now.tm_hour, now.tm_min, now.tm_sec);
    return Value(std::string_view(text));
}

std::size_t formatLine(char* line, const stParamProperties& row, const Value& value) {
    const Type& type = typeOf(row);
    // Templates have the type of a value and no slot for one. A name that no term can hold comes from a
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

std::optional<Value> savedValue(const stParamProperties& row, const std::tm& now) {
    const Nature nature = typeOf(row).nature;
    if (nature == Nature::date || nature == Nature::time) return clockValue(nature, now);
    return readValue(Space::global, row.id);
}

} // namespace talux
