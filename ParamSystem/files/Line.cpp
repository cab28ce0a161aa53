#include "ParamSystem/files/Line.h"

#include "ParamSystem/store/Kinds.h"
#include "ParamSystem/support/Address.h"
#include "ParamSystem/support/Text.h"

namespace {

using talux::Kind;

using Value = char[400];

struct Text {
    alignas(double) char text[kTextSize];
    explicit Text(int id) { VarGetGlobalValue(id, reinterpret_cast<double*>(text)); }
};

double numberOf(int id) {
    double number = 0;
    VarGetGlobalValue(id, &number);
    return number;
}

void quoted(Value& value, int id, const std::tm& /*now*/) {
    talux::formatText(value, sizeof value, "\"%s\"", Text(id).text);
}

void address(Value& value, int id, const std::tm& /*now*/) {
    char normalised[talux::kWholeAddressSize];
    talux::normaliseAddress(normalised, Text(id).text);
    talux::formatText(value, sizeof value, "\"%s\"", normalised);
}

void today(Value& value, int /*id*/, const std::tm& now) {
    talux::formatText(value, sizeof value, "\"%04d-%02d-%02d\"", now.tm_year + 1900, now.tm_mon + 1,
                      now.tm_mday);
}

void timeOfDay(Value& value, int /*id*/, const std::tm& now) {
    talux::formatText(value, sizeof value, "\"%02d:%02d:%02d\"", now.tm_hour, now.tm_min, now.tm_sec);
}

void decimal(Value& value, int id, const std::tm& /*now*/) {
    talux::formatText(value, sizeof value, "%f", numberOf(id));
}

void whole(Value& value, int id, const std::tm& /*now*/) {
    talux::formatText(value, sizeof value, "%d", static_cast<int>(numberOf(id)));
}

using FormatValue = void(Value& value, int id, const std::tm& now);

// How the values of a type are written, and the block in which the id must lie.
struct Style {
    int type;
    Kind kind;
    FormatValue* format;
};

constexpr Style kStyles[] = {
    {kTypeText, Kind::Text, quoted},      {kTypeDate, Kind::Date, quoted},
    {kTypeTime, Kind::Time, quoted},      {kTypeId, Kind::Id, quoted},
    {kTypeSysDate, Kind::SysDate, today}, {kTypeSysTime, Kind::SysTime, timeOfDay},
    {kTypeIp, Kind::Ip, address},         {kTypeIpAddress, Kind::Ip, address},
    {kTypeIpMask, Kind::Ip, address},     {kTypeIpGateway, Kind::Ip, address},
    {kTypeDouble, Kind::Double, decimal}, {kTypeFloat, Kind::Float, decimal},
    {kTypeLong, Kind::Long, whole},
};

// All other types are written by their ids; templates, commands and records have no line.
FormatValue* styleOf(const stParamProperties& row) {
    for (const Style& style : kStyles)
        if (style.type == row.type) return talux::holds(style.kind, row.id) ? style.format : nullptr;
    for (const Kind kind : {Kind::Int, Kind::Enum, Kind::Bool})
        if (talux::holds(kind, row.id)) return whole;
    return nullptr;
}

} // namespace

bool talux::formatLine(char (&line)[kLineSize], const stParamProperties& row, const std::tm& now) {
    FormatValue* const format = styleOf(row);
    if (format == nullptr) return false;
    Value value;
    format(value, row.id, now);
    formatText(line, sizeof line, "TLX_%s=%s\n", row.name, value);
    return true;
}
