#include "ParamSystem/store/Values.h"

#include <cstdint>
#include <limits>

#include "ParamSystem/store/Slots.h"
#include "support/Number.h"

namespace talux {

namespace {

template <Kind kind>
double toDouble(Number<kind> number) {
    if constexpr (kind == Kind::Bool)
        return static_cast<std::uint8_t>(number);
    else if constexpr (kind == Kind::Float)
        return widened(number);
    else
        return static_cast<double>(number);
}

// Integers pass through 32 bits, of which the narrow kinds store the low ones. A number too large for a
// float becomes infinite (IEEE 754).
template <Kind kind>
Number<kind> fromDouble(double value) {
    if constexpr (kind == Kind::Float)
        return narrowed(value);
    else if constexpr (kind == Kind::Double)
        return value;
    else if constexpr (kind == Kind::Bool)
        return static_cast<Number<kind>>(saturated<std::uint32_t>(value));
    else
        return static_cast<Number<kind>>(saturated32(value));
}
static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

// The ids that are both int and long are read as both, and the long counts.
template <Kind kind, Space space>
double read(int id) {
    if (kind == Kind::Long && holds(Kind::Int, id)) getNumber<Kind::Int, space>(id);
    return toDouble<kind>(getNumber<kind, space>(id));
}

// They are written as both.
template <Kind kind, Space space>
void write(int id, double number) {
    if (kind == Kind::Long && holds(Kind::Int, id)) write<Kind::Int, space>(id, number);
    putNumber<kind, space>(id, fromDouble<kind>(number));
}

template <Space space>
std::optional<Value> readValueIn(int id) {
    return withKind(kindOf(id), [id]<Kind kind>() {
        if constexpr (isTextKind(kind)) {
            char text[blockOf(kind).slotSize];
            getText<kind, space>(id, text);
            return std::optional<Value>(std::in_place, std::string_view(text));
        } else {
            return std::optional<Value>(std::in_place, read<kind, space>(id));
        }
    });
}

template <Space space>
double readNumberIn(int id) {
    double number = 0;
    withKind(kindOf(id), [&]<Kind kind>() {
        if constexpr (!isTextKind(kind)) number = read<kind, space>(id);
    });
    return number;
}

template <Space space>
void writeNumberIn(int id, double number) {
    withKind(kindOf(id), [&]<Kind kind>() {
        if constexpr (!isTextKind(kind)) write<kind, space>(id, number);
    });
}

template <Space space>
void writeTextIn(int id, const char* text) {
    withKind(kindOf(id), [&]<Kind kind>() {
        if constexpr (isTextKind(kind)) putText<kind, space>(id, text);
    });
}

} // namespace

std::optional<Value> readValue(Space space, int id) {
    return space == Space::global ? readValueIn<Space::global>(id) : readValueIn<Space::temp>(id);
}

double readNumber(Space space, int id) {
    return space == Space::global ? readNumberIn<Space::global>(id) : readNumberIn<Space::temp>(id);
}

void writeNumber(Space space, int id, double number) {
    return space == Space::global ? writeNumberIn<Space::global>(id, number)
                                  : writeNumberIn<Space::temp>(id, number);
}

void writeValue(Space space, int id, const Value& value) {
    if (!value.isText()) return writeNumber(space, id, value.number());
    return space == Space::global ? writeTextIn<Space::global>(id, value.text())
                                  : writeTextIn<Space::temp>(id, value.text());
}

std::optional<Value> storedAs(int id, const Value& value) {
    std::optional<Value> stored;
    withKind(kindOf(id), [&]<Kind kind>() {
        if (value.isText() != isTextKind(kind)) return;
        if constexpr (isTextKind(kind))
            stored.emplace(std::string_view(value.text()).substr(0, blockOf(kind).slotSize - 1));
        else
            stored.emplace(toDouble<kind>(fromDouble<kind>(value.number())));
    });
    return stored;
}

std::optional<Value> defaultOf(const stParamProperties& row) {
    return storedAs(row.id, isText(row) ? Value(std::string_view(row.val_def_text)) : Value(row.val_def));
}

} // namespace talux
