// The types of parameters and of values on the stack of the command language: where their values are stored,
// how they are passed and how they are printed. Store, files, language and pages use this table.
#ifndef TALUX_DICTIONARY_TYPES_H
#define TALUX_DICTIONARY_TYPES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "ParamSystem/TALUX_Params.h"

namespace talux {

// Kinds of slots in the value spaces, in the order in which their locks are created. None: no slot.
enum class Kind {
    Float,
    Double,
    Long,
    Int,
    Bool,
    Text,
    Enum,
    Date,
    Time,
    SysDate,
    SysTime,
    Id,
    Ip,
    Struct,
    None
};
inline constexpr std::size_t kKindCount = 14;

// What a value is to those who read, write and print it.
enum class Nature {
    none, // nothing is stored: templates, dialogs, commands
    number,
    text,
    address, // a text that files hold normalised
    date,    // of the system clock, whatever the store holds
    time,
    record,
};

// How a number lies in memory, little-endian, where its bytes are shown.
enum class Width { none, u8, i16, i32, i64, f32, f64 };

// Type codes that only values on the stack have.
inline constexpr int kTagInt32 = 2005, kTagInt64 = 2006, kTagUint64 = 2007, kTagByte = 2009;

struct Type {
    int code;
    const char* name; // as pages and messages call it
    Kind kind;
    Nature nature;
    int fileDecimals;  // of a number in a parameter file
    int shownDecimals; // of a number in an answer
    Width width;
    int rank; // in the promotion chain of binary operations; 0 outside
};

inline constexpr Type kTypes[] = {
    {kTypeNone, "dialog", Kind::None, Nature::none, 0, 6, Width::none, 0},
    {kTypeDouble, "double", Kind::Double, Nature::number, 6, 6, Width::f64, 6},
    {kTypeFloat, "float", Kind::Float, Nature::number, 6, 6, Width::f32, 5},
    {kTypeLong, "long", Kind::Long, Nature::number, 0, 0, Width::i32, 4},
    {kTagInt32, "", Kind::None, Nature::number, 0, 0, Width::i32, 0},
    {kTagInt64, "", Kind::None, Nature::number, 0, 0, Width::i64, 0},
    {kTagUint64, "", Kind::None, Nature::number, 0, 0, Width::i64, 0},
    {kTypeInt, "int", Kind::Int, Nature::number, 0, 0, Width::i16, 3},
    {kTagByte, "", Kind::None, Nature::number, 0, 0, Width::u8, 2},
    {kTypeBool, "bool", Kind::Bool, Nature::number, 0, 0, Width::u8, 1},
    {kTypeText, "text", Kind::Text, Nature::text, 0, 6, Width::none, 0},
    {kTypeEnum, "enum", Kind::Enum, Nature::number, 0, 6, Width::none, 0},
    {kTypeDate, "date", Kind::Date, Nature::text, 0, 6, Width::none, 0},
    {kTypeTime, "time", Kind::Time, Nature::text, 0, 6, Width::none, 0},
    {kTypeSysDate, "date of the clock", Kind::SysDate, Nature::date, 0, 6, Width::none, 0},
    {kTypeSysTime, "time of the clock", Kind::SysTime, Nature::time, 0, 6, Width::none, 0},
    {kTypeId, "identifier", Kind::Id, Nature::text, 0, 6, Width::none, 0},
    {kTypeIp, "address", Kind::Ip, Nature::address, 0, 6, Width::none, 0},
    {kTypeIpAddress, "interface address", Kind::Ip, Nature::address, 0, 6, Width::none, 0},
    {kTypeIpMask, "interface netmask", Kind::Ip, Nature::address, 0, 6, Width::none, 0},
    {kTypeIpGateway, "interface gateway", Kind::Ip, Nature::address, 0, 6, Width::none, 0},
    {kTypeStruct, "record", Kind::Struct, Nature::record, 0, 6, Width::none, 0},
    {kTypeCommand, "command", Kind::None, Nature::none, 0, 6, Width::none, 0},
};

namespace types {

inline constexpr int kFirstCode = kTypeDouble;
inline constexpr int kCodeCount = kTypeCommand - kFirstCode + 1;

// Index in kTypes by code; 0, the row of what has no value, for unknown codes.
inline constexpr auto kPlaces = [] {
    std::array<std::uint8_t, kCodeCount> places{};
    for (std::size_t k = 1; k < std::size(kTypes); ++k)
        places[static_cast<std::size_t>(kTypes[k].code - kFirstCode)] = static_cast<std::uint8_t>(k);
    return places;
}();

} // namespace types

// An unknown code counts as a type without a value.
constexpr const Type& typeOf(int code) {
    const auto place = static_cast<unsigned>(code) - static_cast<unsigned>(types::kFirstCode);
    return kTypes[place < types::kPlaces.size() ? types::kPlaces[place] : 0];
}

constexpr const Type& typeOf(const stParamProperties& row) {
    return typeOf(row.type);
}

// Type code of a record's member by the name that the layout gives it; kTypeNone for an unknown one.
constexpr int memberType(std::string_view name) {
    constexpr struct {
        std::string_view name;
        int type;
    } kMemberTypes[] = {{"long", kTypeLong},     {"float", kTypeFloat}, {"int", kTypeLong},
                        {"short int", kTypeInt}, {"short", kTypeInt},   {"double", kTypeDouble}};
    for (const auto& known : kMemberTypes)
        if (known.name == name) return known.type;
    return kTypeNone;
}

// Whether values of this nature are passed as text rather than as a double.
constexpr bool isText(Nature nature) {
    return nature == Nature::text || nature == Nature::address || nature == Nature::date ||
           nature == Nature::time;
}

constexpr bool isText(const stParamProperties& row) {
    return isText(typeOf(row).nature);
}

constexpr bool isAddress(const stParamProperties& row) {
    return typeOf(row).nature == Nature::address;
}

} // namespace talux

#endif
