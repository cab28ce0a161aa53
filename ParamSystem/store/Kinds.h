// The kinds of values: which ids belong to each, and where their slots lie in a value space.
#ifndef TALUX_STORE_KINDS_H
#define TALUX_STORE_KINDS_H

#include <cstddef>
#include <iterator>
#include <type_traits>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/Types.h"

namespace talux {

// The value spaces. Records exist in the global space only.
enum class Space { temp, global };

struct Block {
    Kind kind;
    int first;             // id
    int count;             // of ids
    std::size_t offset;    // of the first slot, in bytes from the start of the space
    std::size_t slot;      // bytes of one slot; 0 for the records, which have sizes of their own
    const char* assertion; // what an id of another kind violates
};

inline constexpr Block kBlocks[] = {
    {Kind::Float, kFirstFloat, kFloatCount, offsetof(stVarSpace, FloatData), 4, "VarIsFloat(id)"},
    {Kind::Double, kFirstDouble, kDoubleCount, offsetof(stVarSpace, DoubleData), 8, "VarIsDouble(id)"},
    {Kind::Long, kFirstLong, kLongCount, offsetof(stVarSpace, LongData), 4, "VarIsLong(id)"},
    {Kind::Int, kFirstInt, kIntCount, offsetof(stVarSpace, IntData), 2, "VarIsInt(id)"},
    {Kind::Bool, kFirstBool, kBoolCount, offsetof(stVarSpace, BoolData), 1, "VarIsBool(id)"},
    {Kind::Text, kFirstText, kTextCount, offsetof(stVarSpace, TextData), kTextSize, "VarIsText(id)"},
    {Kind::Enum, kFirstEnum, kEnumCount, offsetof(stVarSpace, EnumData), 2, "VarIsEnum(id)"},
    {Kind::Date, kFirstDate, kDateCount, offsetof(stVarSpace, SysDateData), kDateSize, "VarIsDate(id)"},
    {Kind::Time, kFirstTime, kTimeCount, offsetof(stVarSpace, SysDateData), kTimeSize, "VarIsTime(id)"},
    {Kind::SysDate, kFirstSysDate, kSysDateCount, offsetof(stVarSpace, SysDateData), kDateSize,
     "VarIsSysDate(id)"},
    {Kind::SysTime, kFirstSysTime, kSysTimeCount, offsetof(stVarSpace, SysTimeData), kTimeSize,
     "VarIsSysTime(id)"},
    {Kind::Id, kFirstId, kIdCount, offsetof(stVarSpace, IdData), kIdSize, "VarIsId(id)"},
    {Kind::Ip, kFirstIp, kIpCount, offsetof(stVarSpace, IpData), kIpSize, "VarIsIp(id)"},
    {Kind::Struct, kFirstStruct, kStructCount, 0, 0, "VarIsStruct(id)"},
};
static_assert(std::size(kBlocks) == kKindCount);

// The slots of one kind follow those of the kind before, without gaps.
static_assert([] {
    std::size_t end = 0;
    for (std::size_t k = 0; k + 1 < kKindCount; ++k) {
        if (kBlocks[k].kind != static_cast<Kind>(k) || kBlocks[k].offset != end) return false;
        end += static_cast<std::size_t>(kBlocks[k].count) * kBlocks[k].slot;
    }
    return end == sizeof(stVarSpace) && kBlocks[kKindCount - 1].kind == Kind::Struct;
}());

constexpr const Block& blockOf(Kind kind) {
    return kBlocks[static_cast<std::size_t>(kind)];
}

constexpr bool holds(Kind kind, int id) {
    if (kind == Kind::None) return false;
    const Block& block = blockOf(kind);
    return static_cast<unsigned>(id) - static_cast<unsigned>(block.first) <
           static_cast<unsigned>(block.count);
}

constexpr bool isTextKind(Kind kind) {
    return kind == Kind::Text || (kind >= Kind::Date && kind <= Kind::Ip);
}

// The value type of a numeric kind at the interface, as wide as its slot.
template <Kind kind>
struct NumberOf;
template <>
struct NumberOf<Kind::Float> : std::type_identity<float> {};
template <>
struct NumberOf<Kind::Double> : std::type_identity<double> {};
template <>
struct NumberOf<Kind::Long> : std::type_identity<VarLong> {};
template <>
struct NumberOf<Kind::Int> : std::type_identity<short> {};
template <>
struct NumberOf<Kind::Bool> : std::type_identity<char> {};
template <>
struct NumberOf<Kind::Enum> : std::type_identity<short> {};
template <Kind kind>
using Number = typename NumberOf<kind>::type;

} // namespace talux

#endif
