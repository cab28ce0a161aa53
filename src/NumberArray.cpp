#include "src/NumberArray.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/kepl/Decision.h"
#include "support/Number.h"
#include "support/Text.h"

namespace talux {
namespace {

constinit char szError[100] = "";

// The first bytes of the userdata; the elements follow.
struct Header {
    std::int32_t size; // number of elements
    std::int32_t type; // type code of the parameters that fill it
};
static_assert(sizeof(Header) == 8);

template <typename Element>
Element fromNumber(lua_Number value);
template <>
VarLong fromNumber<VarLong>(lua_Number value) {
    return saturated<VarLong>(value);
}
template <>
double fromNumber<double>(lua_Number value) {
    return value;
}

// What the two kinds of arrays differ in.
struct Long {
    using Element = VarLong;
    static constexpr ParamType kType = kTypeLong;
    static constexpr const char* kExpected = "'talux_longarray' expected";
    static constexpr const char* kExpectedUnderscored = "'_talux_longarray' expected";
    static constexpr auto read = VarGetGlobalLongValueArray;
};
struct Double {
    using Element = double;
    static constexpr ParamType kType = kTypeDouble;
    static constexpr const char* kExpected = "'talux_doublearray' expected";
    static constexpr const char* kExpectedUnderscored = "'_talux_doublearray' expected";
    static constexpr auto read = VarGetGlobalDoubleValueArray;
};

// An array in its userdata. Only blocks that `create` made are taken for one.
template <typename ArrayKind>
class Array {
public:
    using Element = typename ArrayKind::Element;

    // No 32-bit device could address more elements.
    static constexpr std::uint32_t kMaxSize = (UINT32_MAX - sizeof(Header)) / sizeof(Element);

    static void create(lua_State* L, std::int32_t size) {
        const auto length = static_cast<std::size_t>(bytes(size));
        auto* const block = static_cast<Header*>(lua_newuserdata(L, length));
        std::memset(static_cast<void*>(block), 0, length);
        *block = {size, ArrayKind::kType};
    }

    explicit Array(lua_State* L, int argument) {
        // Light userdata and all other values have no length or no block.
        auto* const block = static_cast<Header*>(lua_touserdata(L, argument));
        const std::size_t length = lua_rawlen(L, argument);
        if (block == nullptr || length < sizeof(Header)) return;
        if (block->type == ArrayKind::kType && length == bytes(block->size)) header = block;
    }

    explicit operator bool() const { return header != nullptr; }
    std::int32_t size() const { return header->size; }
    bool holds(lua_Integer index) const { return index >= 0 && index < header->size; }
    Element* values() const { return reinterpret_cast<Element*>(header + 1); }

private:
    Header* header = nullptr;

    // 64 bits: what another module put there must not wrap around to a length that fits.
    static std::uint64_t bytes(std::int32_t size) {
        return sizeof(Header) + static_cast<std::uint64_t>(size) * sizeof(Element);
    }
};

template <typename ArrayKind>
int newArray(lua_State* L) {
    const lua_Integer size = luaL_checkinteger(L, 1);
    // The number itself, since the integer wraps around where it has 32 bits.
    const lua_Number asked = lua_tonumberx(L, 1, nullptr);
    if (size < 0 || !(asked > -1 && asked <= Array<ArrayKind>::kMaxSize))
        return luaL_argerror(L, 1, "size out of range");
    Array<ArrayKind>::create(L, static_cast<std::int32_t>(size));
    return 1;
}

template <typename ArrayKind>
int getSize(lua_State* L) {
    const Array<ArrayKind> array(L, 1);
    if (!array) return luaL_argerror(L, 1, ArrayKind::kExpectedUnderscored);
    lua_pushnumber(L, array.size());
    return 1;
}

template <typename ArrayKind>
int getItem(lua_State* L) {
    const Array<ArrayKind> array(L, 1);
    const lua_Integer index = luaL_checkinteger(L, 2);
    if (!array) return luaL_argerror(L, 1, ArrayKind::kExpected);
    if (!array.holds(index)) return luaL_argerror(L, 2, "index out of range");
    lua_pushnumber(L, static_cast<lua_Number>(array.values()[index]));
    return 1;
}

template <typename ArrayKind>
int setItem(lua_State* L) {
    const Array<ArrayKind> array(L, 1);
    const lua_Integer index = luaL_checkinteger(L, 2);
    const lua_Number value = luaL_checknumber(L, 3);
    if (!array) return luaL_argerror(L, 1, ArrayKind::kExpectedUnderscored);
    if (!array.holds(index)) return luaL_argerror(L, 2, "index out of range");
    array.values()[index] = fromNumber<typename ArrayKind::Element>(value);
    return 0;
}

// ---- Bulk read ----------------------------------------------------------------------------------------

int refuse(const char* text) {
    copyText(szError, text);
    return 0;
}

// Why the parameter has no ranges to read, or not this one; null when it can be read.
const char* rangeError(const stParamProperties& row, int first, int last) {
    if (row.val_access == kWriteOnly) return szWriteOnly[iLanguage];
    if (row.val_min_id == 0 && row.val_max_id == 0) return "<< NO ARRAY >>";
    if (first < row.val_min_id) return "<< MIN ID TOO LOW >>";
    if (last > row.val_max_id) return "<< MAX ID TOO HIGH >>";
    if (last < first - 1) return szIndex1gtIndex2[iLanguage];
    return nullptr;
}

template <typename ArrayKind>
int readRange(lua_State* L, int id, int count) {
    const Array<ArrayKind> array(L, 1);
    if (!array) return refuse("<< WRONG DATA TYPE >>");
    if (count > array.size()) return refuse("<< ARRAYSIZE EXCEEDED >>");
    if (count > 0) ArrayKind::read(id, array.values(), static_cast<unsigned long>(count));
    lua_pushnumber(L, count);
    return 1;
}

std::string_view textArgument(lua_State* L, int argument) {
    std::size_t length = 0;
    const char* const text = lua_tolstring(L, argument, &length);
    return {text != nullptr ? text : "", length};
}

// The characters of the prefix are not checked. A text with a NUL inside names nothing.
const stParamProperties* findAfterPrefix(std::string_view text) {
    if (text.size() < kepl::kPrefixLength) return nullptr;
    for (const char c : text.substr(0, kepl::kPrefixLength))
        if (c == '\0') return nullptr;
    return findParameter(text.substr(kepl::kPrefixLength));
}

int refuseName(std::string_view text) {
    const std::string_view shown = text.substr(0, text.find('\0'));
    const std::string_view name = shown.substr(std::min(shown.size(), kepl::kPrefixLength));
    formatText(szError, sizeof szError, "<< SYNTAX ERROR ('%.*s') >>", static_cast<int>(name.size()),
               name.data());
    return 0;
}

// The parameter decides which kind of array it fills.
int getArray(lua_State* L) {
    const std::string_view text = textArgument(L, 2);
    const int first = saturated32(lua_tonumberx(L, 3, nullptr));
    const int last = saturated32(lua_tonumberx(L, 4, nullptr));

    const stParamProperties* const row = findAfterPrefix(text);
    if (row == nullptr) return refuseName(text);
    if (const char* const error = rangeError(*row, first, last)) return refuse(error);

    const int id = row->id + first - 1;
    const int count = last - first + 1;
    switch (row->type) {
    case kTypeLong:
        return readRange<Long>(L, id, count);
    case kTypeDouble:
        return readRange<Double>(L, id, count);
    default:
        return refuse("<< DATATYPE UNKNOWN >>");
    }
}

template <typename ArrayKind>
inline constexpr luaL_Reg kFunctions[] = {
    {"new", newArray<ArrayKind>},    {"setitem", setItem<ArrayKind>}, {"get", getArray},
    {"getitem", getItem<ArrayKind>}, {"size", getSize<ArrayKind>},    {nullptr, nullptr},
};

} // namespace

const luaL_Reg* const longArrayFunctions = kFunctions<Long>;
const luaL_Reg* const doubleArrayFunctions = kFunctions<Double>;

const char* lastArrayError() {
    return szError;
}

} // namespace talux
