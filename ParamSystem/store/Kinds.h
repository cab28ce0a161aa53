// The kinds of values: which ids belong to each, and where their slots lie in a value space.
#ifndef TALUX_STORE_KINDS_H
#define TALUX_STORE_KINDS_H

#include <array>
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
    std::size_t slotSize;  // in bytes; 0 for the records, each of which has a size of its own
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
    {Kind::Date, kFirstDate, kDateCount, offsetof(stVarSpace, DateData), kDateSize, "VarIsDate(id)"},
    {Kind::Time, kFirstTime, kTimeCount, offsetof(stVarSpace, TimeData), kTimeSize, "VarIsTime(id)"},
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
        end += static_cast<std::size_t>(kBlocks[k].count) * kBlocks[k].slotSize;
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

// The kind of each thousand of ids. No two blocks share one, apart from ints and records.
inline constexpr auto kThousands = [] {
    std::array<Kind, 17> kinds{};
    kinds.fill(Kind::None);
    for (const Block& block : kBlocks)
        for (int k = block.first / 1000; k * 1000 < block.first + block.count; ++k)
            if (block.kind != Kind::Int && block.kind != Kind::Struct)
                kinds[static_cast<std::size_t>(k)] = block.kind;
    return kinds;
}();

// The kind of an id in a value space: of the ids that are int and long, long; None for records and for ids
// without a slot.
constexpr Kind kindOf(int id) {
    const std::size_t thousand = static_cast<unsigned>(id) / 1000;
    const Kind kind = thousand < kThousands.size() ? kThousands[thousand] : Kind::None;
    return holds(kind, id) ? kind : Kind::None;
}
static_assert([] {
    for (const Block& block : kBlocks)
        for (int id = block.first; id < block.first + block.count; ++id)
            if (block.kind != Kind::Int && block.kind != Kind::Struct && kindOf(id) != block.kind)
                return false;
    return true;
}());

constexpr bool isTextKind(Kind kind) {
    for (const Type& type : kTypes)
        if (type.kind == kind) return isText(type.nature);
    return false;
}

// Returns action.operator()<kind>(), with the kind of an id as a constant; an empty result for records and
// None.
template <class Action>
auto withKind(Kind kind, Action action) {
    switch (kind) {
#define TALUX_CASE(Name)                                                                                     \
    case Kind::Name:                                                                                         \
        return action.template operator()<Kind::Name>()
        TALUX_CASE(Float);
        TALUX_CASE(Double);
        TALUX_CASE(Long);
        TALUX_CASE(Bool);
        TALUX_CASE(Text);
        TALUX_CASE(Enum);
        TALUX_CASE(SysDate);
        TALUX_CASE(SysTime);
        TALUX_CASE(Id);
        TALUX_CASE(Ip);
#undef TALUX_CASE
    case Kind::Int: // its ids are longs, too, which come first
    case Kind::Date:
    case Kind::Time:
        static_assert(kDateCount == 0 && kTimeCount == 0, "dates or times have ids now: give them a case");
    case Kind::Struct:
    case Kind::None:
        break;
    }
    return decltype(action.template operator()<Kind::Float>())();
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
