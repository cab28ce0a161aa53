#include "ParamSystem/kepl/ValueType.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "ParamSystem/dictionary/Types.h"
#include "support/Number.h"

namespace talux::kepl {

namespace {

static_assert(std::endian::native == std::endian::little, "bytes are shown in memory order");

template <typename Stored>
void store(double number, char* bytes) {
    Stored value;
    if constexpr (std::is_same_v<Stored, float>)
        value = narrowed(number);
    else
        value = truncated<Stored>(number);
    std::memcpy(bytes, &value, sizeof value);
}

template <typename Stored>
double load(const char* bytes) {
    Stored value;
    std::memcpy(&value, bytes, sizeof value);
    if constexpr (std::is_same_v<Stored, float>)
        return widened(value);
    else
        return static_cast<double>(value);
}

struct Format {
    std::size_t size;
    void (*store)(double number, char* bytes);
    double (*load)(const char* bytes);
};

template <typename Stored>
constexpr Format kFormat{sizeof(Stored), store<Stored>, load<Stored>};

const Format* formatOf(int type) {
    switch (typeOf(type).width) {
    case Width::u8:
        return &kFormat<std::uint8_t>;
    case Width::i16:
        return &kFormat<std::int16_t>;
    case Width::i32:
        return &kFormat<std::int32_t>;
    case Width::i64:
        return &kFormat<std::int64_t>;
    case Width::f32:
        return &kFormat<float>;
    case Width::f64:
        return &kFormat<double>;
    case Width::none:
        break;
    }
    return nullptr;
}

} // namespace

NumberBytes encode(double number, int type) {
    NumberBytes bytes;
    if (const Format* const format = formatOf(type)) {
        format->store(number, bytes.data);
        bytes.size = format->size;
    }
    return bytes;
}

double decode(const char* bytes, int type) {
    const Format* const format = formatOf(type);
    return format == nullptr ? 0.0 : format->load(bytes);
}

int promoted(int type1, int type2) {
    const int rank1 = typeOf(type1).rank;
    return rank1 != 0 && typeOf(type2).rank > rank1 ? type2 : type1;
}

} // namespace talux::kepl
