// The words that the catalogue is written in: one line stands for a parameter or for a series of parameters.
#ifndef TALUX_CATALOGUE_ROW_H
#define TALUX_CATALOGUE_ROW_H

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/dictionary/SourceLine.h"

namespace talux::catalogue {

// The line that a row is written on: every verb notes where it is used, so that messages can say it.
using Where = SourceLine;

inline constexpr int kNoLength = -1;

struct ParameterRow {
    enum Series { kSingle, kNumbered, kIndexed };

    stParamProperties properties{}; // of the first parameter of a series
    const char* templateName = "";  // what symbols call a nameless row
    Series series = kSingle;
    int first = 0; // running numbers of the series
    int last = 0;
    Where where{};

    constexpr int count() const { return series == kSingle ? 1 : last - first + 1; }
};

constexpr ParameterRow plainRow(int id, const char* name, int type, Where where) {
    ParameterRow row;
    row.where = where;
    row.properties = {.id = id,
                      .name = name,
                      .id_template = 0,
                      .type = type,
                      .val_access = kReadWrite,
                      .is_volatile = 0,
                      .format = "",
                      .val_init_text = "",
                      .val_init = 0,
                      .val_def_text = "",
                      .val_def = 0,
                      .val_len = kNoLength,
                      .val_min = kNoMin,
                      .val_max = kNoMax,
                      .val_min_id = 0,
                      .val_max_id = 0,
                      .val_step = 1,
                      .userlevel = 1};
    return row;
}

// Choice lists and ratios that several parameters share.

struct Template {
    int id = 0;
    const char* name = "";
    int choices = 0;
};

inline constexpr Template kBaudRate{18021, "BAUDRATE", 5};
inline constexpr Template kDataBits{18022, "DATABITS", 2};
inline constexpr Template kParity{18023, "PARITY", 3};
inline constexpr Template kStopBits{18024, "STOPBITS", 3};
inline constexpr Template kHandshake{18025, "HANDSHAKE", 3};
inline constexpr Template kTermination{18026, "TERMINATION", 2};
inline constexpr Template kCtRatio{18027, "CT_RATIO"};
inline constexpr Template kInputFunction{18028, "BE_FUNCTION", 103};
inline constexpr Template kInputPolarity{18029, "BE_POLARITY", 2};
inline constexpr Template kOutputFunction{18030, "BA_FUNCTION", 128};
inline constexpr Template kPriorityFunction{18031, "PRIORITY", 20};
inline constexpr Template kDisplayMeasure{18032, "MEAS_DISP", 24};
inline constexpr Template kOutputPolarity{18033, "BA_POLARITY", 2};

// Settings. The initial value is the factory default where a line gives none of its own.

struct Number {
    Template like{};
    double def = 0;
    double min = kNoMin;
    double max = kNoMax;
    double step = 1;
};

constexpr ParameterRow numeric(int id, const char* name, int type, const Number& number, Where where) {
    ParameterRow row = plainRow(id, name, type, where);
    row.properties.id_template = number.like.id;
    row.properties.val_init = number.def;
    row.properties.val_def = number.def;
    row.properties.val_min = number.min;
    row.properties.val_max = number.max;
    row.properties.val_step = number.step;
    return row;
}

// A 32-bit integer.
constexpr ParameterRow number(int id, const char* name, const Number& value = {},
                              Where where = Where::current()) {
    return numeric(id, name, kTypeLong, value, where);
}

// A 16-bit integer.
constexpr ParameterRow shortNumber(int id, const char* name, const Number& value = {},
                                   Where where = Where::current()) {
    return numeric(id, name, kTypeInt, value, where);
}

// A 32-bit float.
constexpr ParameterRow decimal(int id, const char* name, const Number& value = {},
                               Where where = Where::current()) {
    return numeric(id, name, kTypeFloat, value, where);
}

constexpr ParameterRow doubleNumber(int id, const char* name, const Number& value = {},
                                    Where where = Where::current()) {
    return numeric(id, name, kTypeDouble, value, where);
}

enum Switch { kOff, kOn };

constexpr ParameterRow flag(int id, const char* name, Switch def = kOff, Where where = Where::current()) {
    return numeric(id, name, kTypeBool, {.def = def == kOn ? 1.0 : 0.0, .min = 0, .max = 1}, where);
}

struct Choice {
    Template like{}; // gives the number of choices
    int choices = 0;
    double min = kNoMin;
    double def = 1;
};

constexpr ParameterRow choice(int id, const char* name, const Choice& choice,
                              Where where = Where::current()) {
    const int choices = choice.like.id != 0 ? choice.like.choices : choice.choices;
    return numeric(id, name, kTypeEnum,
                   {.like = choice.like, .def = choice.def, .min = choice.min, .max = double(choices)},
                   where);
}

constexpr ParameterRow textual(int id, const char* name, int type, int length, const char* def,
                               const char* init, Where where) {
    ParameterRow row = plainRow(id, name, type, where);
    row.properties.val_len = length;
    row.properties.val_def_text = def;
    row.properties.val_init_text = init != nullptr ? init : def;
    return row;
}

constexpr ParameterRow text(int id, const char* name, int length, const char* def = "",
                            const char* init = nullptr, Where where = Where::current()) {
    return textual(id, name, kTypeText, length, def, init, where);
}

constexpr ParameterRow identifier(int id, const char* name, int length, const char* def,
                                  Where where = Where::current()) {
    return textual(id, name, kTypeId, length, def, nullptr, where);
}

constexpr ParameterRow address(int id, const char* name, const char* def, const char* init = nullptr,
                               Where where = Where::current()) {
    return textual(id, name, kTypeIp, kNoLength, def, init, where);
}

constexpr ParameterRow interfaceAddress(int id, const char* name, const char* def,
                                        Where where = Where::current()) {
    return textual(id, name, kTypeIpAddress, kNoLength, def, nullptr, where);
}

constexpr ParameterRow interfaceMask(int id, const char* name, const char* def,
                                     Where where = Where::current()) {
    return textual(id, name, kTypeIpMask, kNoLength, def, nullptr, where);
}

constexpr ParameterRow interfaceGateway(int id, const char* name, const char* def,
                                        Where where = Where::current()) {
    return textual(id, name, kTypeIpGateway, kNoLength, def, nullptr, where);
}

constexpr ParameterRow clockDate(int id, const char* name, Where where = Where::current()) {
    return textual(id, name, kTypeSysDate, kNoLength, "0", nullptr, where);
}

constexpr ParameterRow clockTime(int id, const char* name, Where where = Where::current()) {
    return textual(id, name, kTypeSysTime, kNoLength, "0", nullptr, where);
}

// Rights.

constexpr ParameterRow readOnly(ParameterRow row) {
    row.properties.val_access = kReadOnly;
    if (row.properties.type == kTypeBool) { // nobody edits it
        row.properties.val_min = kNoMin;
        row.properties.val_max = kNoMax;
    }
    return row;
}

constexpr ParameterRow security(ParameterRow row) {
    row.properties.userlevel = 3;
    return row;
}

// Run-time values: in the global space only, no default.

constexpr ParameterRow runtime(ParameterRow row) {
    row.properties.is_volatile = 1;
    if (row.properties.type == kTypeBool) {
        row.properties.val_min = kNoMin;
        row.properties.val_max = kNoMax;
    }
    return row;
}

// How the display prints measured values.
inline constexpr const char* kPrimaryVoltage = "%9.3f"; // kV
inline constexpr const char* kSecondaryVoltage = "%9.2f";
inline constexpr const char* kPrimaryCurrent = "%9.1f";
inline constexpr const char* kSecondaryCurrent = "%9.3f";
inline constexpr const char* kFaultCurrent = "%9.0f";
inline constexpr const char* kPower = "%9.1f";
inline constexpr const char* kPowerFactor = "%6.4f";
inline constexpr const char* kFrequency = "%9.3f";
inline constexpr const char* kHarmonic = "%9.3f";
inline constexpr const char* kAngle = "%5.1f";
inline constexpr const char* kInputVoltage = "%4.1f";

constexpr ParameterRow measured(int id, const char* name, const char* format,
                                Where where = Where::current()) {
    ParameterRow row = runtime(decimal(id, name, {}, where));
    row.properties.format = format;
    return row;
}

// A binary record of the struct segment.
constexpr ParameterRow record(int id, const char* name, Where where = Where::current()) {
    return runtime(plainRow(id, name, kTypeStruct, where));
}

// Rows without a stored value.

// A trigger that the other programs of the device react to.
constexpr ParameterRow command(int id, const char* name, int userlevel = 1, Where where = Where::current()) {
    ParameterRow row = plainRow(id, name, kTypeCommand, where);
    row.properties.userlevel = userlevel;
    return row;
}

constexpr ParameterRow dialog(int id, const char* templateName, Where where = Where::current()) {
    ParameterRow row = plainRow(id, "", kTypeNone, where);
    row.templateName = templateName;
    return row;
}

constexpr ParameterRow choiceTemplate(const Template& shared, Where where = Where::current()) {
    ParameterRow row = choice(shared.id, "", {.choices = shared.choices, .def = 0}, where);
    row.templateName = shared.name;
    return row;
}

constexpr ParameterRow decimalTemplate(const Template& shared, const Number& value,
                                       Where where = Where::current()) {
    ParameterRow row = decimal(shared.id, "", value, where);
    row.templateName = shared.name;
    return row;
}

// Series.

// Parameters of their own with consecutive ids and running numbers behind the name: REL1, REL2, ...
constexpr ParameterRow numbered(int first, int last, ParameterRow row) {
    row.series = ParameterRow::kNumbered;
    row.first = first;
    row.last = last;
    return row;
}

// One parameter with the elements 1..last, one row and one id each.
constexpr ParameterRow indexed(int last, ParameterRow row) {
    row.series = ParameterRow::kIndexed;
    row.first = row.properties.val_min_id = 1;
    row.last = row.properties.val_max_id = last;
    return row;
}

} // namespace talux::catalogue

#endif
