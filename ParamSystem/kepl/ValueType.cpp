#include "ParamSystem/kepl/ValueType.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "ParamSystem/TALUX_Params.h"

namespace talux::kepl {

namespace {

static_assert(std::endian::native == std::endian::little, "bytes are shown in memory order");

template <typename Stored>
void store(double number, char* bytes) {
    const auto value = static_cast<Stored>(number);
    std::memcpy(bytes, &value, sizeof value);
}

template <typename Stored>
double load(const char* bytes) {
    Stored value;
    std::memcpy(&value, bytes, sizeof value);
    return static_cast<double>(value);
}

struct Width {
    int type;
    int decimals;
    std::size_t size;
    void (*store)(double number, char* bytes);
    double (*load)(const char* bytes);
};

template <typename Stored>
constexpr Width width(int type, int decimals) {
    return {type, decimals, sizeof(Stored), store<Stored>, load<Stored>};
}

constexpr Width kWidths[] = {
    width<double>(kTypeDouble, 6),     width<float>(kTypeFloat, 6),       width<std::int32_t>(kTypeLong, 0),
    width<std::int32_t>(kTagInt32, 0), width<std::int64_t>(kTagInt64, 0), width<std::int64_t>(kTagUint64, 0),
    width<std::int16_t>(kTypeInt, 0),  width<std::uint8_t>(kTagByte, 0),  width<std::uint8_t>(kTypeBool, 0),
};

const Width* widthOf(int type) {
    const auto* const found = std::ranges::find(kWidths, type, &Width::type);
    return found == std::end(kWidths) ? nullptr : found;
}

// From the lowest to the highest.
constexpr int kPromotionChain[] = {kTypeBool, kTagByte, kTypeInt, kTypeLong, kTypeFloat, kTypeDouble};

} // namespace

bool isTextLike(int type) {
    switch (type) {
    case kTypeText:
    case kTypeDate:
    case kTypeTime:
    case kTypeId:
    case kTypeIp:
    case kTypeIpAddress:
    case kTypeIpMask:
    case kTypeIpGateway:
        return true;
    default:
        return false;
    }
}

int decimalsOf(int type) {
    const Width* const width = widthOf(type);
    return width == nullptr ? 6 : width->decimals;
}

NumberBytes encode(double number, int type) {
    NumberBytes bytes;
    if (const Width* const width = widthOf(type)) {
        width->store(number, bytes.data);
        bytes.size = width->size;
    }
    return bytes;
}

double decode(const char* bytes, int type) {
    const Width* const width = widthOf(type);
    return width == nullptr ? 0.0 : width->load(bytes);
}

int promoted(int type1, int type2) {
    const auto* const end = std::end(kPromotionChain);
    const auto* const rank1 = std::ranges::find(kPromotionChain, type1);
    const auto* const rank2 = std::ranges::find(kPromotionChain, type2);
    return rank1 != end && rank2 != end && rank2 > rank1 ? type2 : type1;
}

} // namespace talux::kepl
