// Values of any kind through one pointer: a double for numbers, a character buffer for texts.
#include <cstdint>
#include <limits>

#include "ParamSystem/store/Slots.h"
#include "ParamSystem/support/Number.h"

namespace {

using talux::Kind;
using talux::Space;

// The order decides for the ids that are both int and long: the long value is read last.
template <Kind... kinds>
struct KindList {};
using Order = KindList<Kind::Enum, Kind::Text, Kind::Bool, Kind::Int, Kind::Long, Kind::Float, Kind::Double,
                       Kind::Date, Kind::Time, Kind::SysDate, Kind::SysTime, Kind::Id, Kind::Ip>;

template <Kind kind>
double toDouble(talux::Number<kind> number) {
    if constexpr (kind == Kind::Bool)
        return static_cast<std::uint8_t>(number);
    else if constexpr (kind == Kind::Float)
        return talux::widened(number);
    else
        return static_cast<double>(number);
}

// Integers pass through 32 bits, of which the narrow kinds keep the low ones. A number too large for a
// float becomes infinite (IEEE 754).
template <Kind kind>
talux::Number<kind> fromDouble(double value) {
    using Number = talux::Number<kind>;
    if constexpr (kind == Kind::Float)
        return talux::narrowed(value);
    else if constexpr (kind == Kind::Double)
        return value;
    else if constexpr (kind == Kind::Bool)
        return static_cast<Number>(talux::saturated<std::uint32_t>(value));
    else
        return static_cast<Number>(talux::saturated32(value));
}
static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

template <Kind kind, Space space>
void readKind(int id, double* pVal) {
    if (!talux::holds(kind, id)) return;
    if constexpr (talux::isTextKind(kind))
        talux::getText<kind, space>(id, reinterpret_cast<char*>(pVal));
    else
        *pVal = toDouble<kind>(talux::getNumber<kind, space>(id));
}

template <Kind kind, Space space>
void writeKind(int id, const double* pVal) {
    if (!talux::holds(kind, id)) return;
    if constexpr (talux::isTextKind(kind))
        talux::putText<kind, space>(id, reinterpret_cast<const char*>(pVal));
    else
        talux::putNumber<kind, space>(id, fromDouble<kind>(*pVal));
}

template <Space space, Kind... kinds>
void readAny(int id, double* pVal, KindList<kinds...> /*order*/) {
    (readKind<kinds, space>(id, pVal), ...);
}

template <Space space, Kind... kinds>
void writeAny(int id, const double* pVal, KindList<kinds...> /*order*/) {
    (writeKind<kinds, space>(id, pVal), ...);
}

} // namespace

void VarGetValue(int id, double* pVal) {
    readAny<Space::temp>(id, pVal, Order{});
}

void VarGetGlobalValue(int id, double* pVal) {
    readAny<Space::global>(id, pVal, Order{});
}

void VarSetValue(int id, double* pVal) {
    writeAny<Space::temp>(id, pVal, Order{});
}

void VarSetGlobalValue(int id, double* pVal) {
    writeAny<Space::global>(id, pVal, Order{});
}
