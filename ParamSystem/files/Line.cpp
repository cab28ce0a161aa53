#include "ParamSystem/files/Line.h"

#include "ParamSystem/store/Kinds.h"
#include "ParamSystem/support/Address.h"
#include "ParamSystem/support/Text.h"

namespace {

using talux::Nature;

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

void quoted(Value& value, int id) {
    talux::formatText(value, sizeof value, "\"%s\"", Text(id).text);
}

void address(Value& value, int id) {
    char normalised[talux::kWholeAddressSize];
    talux::normaliseAddress(normalised, Text(id).text);
    talux::formatText(value, sizeof value, "\"%s\"", normalised);
}

void today(Value& value, const std::tm& now) {
    talux::formatText(value, sizeof value, "\"%04d-%02d-%02d\"", now.tm_year + 1900, now.tm_mon + 1,
                      now.tm_mday);
}

void timeOfDay(Value& value, const std::tm& now) {
    talux::formatText(value, sizeof value, "\"%02d:%02d:%02d\"", now.tm_hour, now.tm_min, now.tm_sec);
}

// Whole numbers as an integer of 32 bits.
void number(Value& value, const stParamProperties& row) {
    if (talux::typeOf(row).fileDecimals == 0)
        talux::formatText(value, sizeof value, "%d", static_cast<int>(numberOf(row.id)));
    else
        talux::formatText(value, sizeof value, "%f", numberOf(row.id));
}

// False for a value without a line.
bool formatValue(Value& value, const stParamProperties& row, const std::tm& now) {
    switch (talux::typeOf(row).nature) {
    case Nature::number:
        number(value, row);
        return true;
    case Nature::text:
        quoted(value, row.id);
        return true;
    case Nature::address:
        address(value, row.id);
        return true;
    case Nature::date:
        today(value, now);
        return true;
    case Nature::time:
        timeOfDay(value, now);
        return true;
    case Nature::none:
    case Nature::record:
        break;
    }
    return false;
}

} // namespace

bool talux::formatLine(char (&line)[kLineSize], const stParamProperties& row, const std::tm& now) {
    // Templates have the type of a value and no slot for one.
    if (!holds(typeOf(row).kind, row.id)) return false;
    Value value;
    if (!formatValue(value, row, now)) return false;
    formatText(line, sizeof line, "TLX_%s=%s\n", row.name, value);
    return true;
}
