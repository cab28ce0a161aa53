// Handles of parameters: found by name at compile time, just an id at run time.
#ifndef TALUX_HANDLES_HPP
#define TALUX_HANDLES_HPP

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>
#include <utility>

#if !__has_include("talux/parameters.hpp")
#error "no talux/parameters.hpp: build the target talux_dictionary, add -I build-release/generated"
#endif
#include "talux/records.hpp" // first: the compiler stops here then, before it complains of every handle

#include "ParamSystem/TALUX_Var.h"
#include "talux/lookup.hpp"

namespace talux {

namespace detail {

// The accessors of one kind and the type that they take.
template <table::Kind>
struct Accessors;

#define TALUX_ACCESSORS(kind, Name, Type)                                                                    \
    template <>                                                                                              \
    struct Accessors<table::Kind::kind> {                                                                    \
        using Raw = Type;                                                                                    \
        static constexpr auto getLive = VarGetGlobal##Name##Value;                                           \
        static constexpr auto setLive = VarSetGlobal##Name##Value;                                           \
        static constexpr auto getStaged = VarGet##Name##Value;                                               \
        static constexpr auto setStaged = VarSet##Name##Value;                                               \
    };
TALUX_ACCESSORS(f32, Float, float)
TALUX_ACCESSORS(f64, Double, double)
TALUX_ACCESSORS(i32, Long, VarLong)
TALUX_ACCESSORS(i16, Int, short)
TALUX_ACCESSORS(flag, Bool, char)
TALUX_ACCESSORS(choice, Enum, short)
TALUX_ACCESSORS(text, Text, char)
TALUX_ACCESSORS(identifier, Id, char)
TALUX_ACCESSORS(address, Ip, char)

#undef TALUX_ACCESSORS

// The accessors of runs; flags have none here, since a byte of the store need not be 0 or 1.
template <class Value>
struct RunAccessors;
template <>
struct RunAccessors<float> {
    static constexpr auto get = VarGetGlobalFloatValueArray, set = VarSetGlobalFloatValueArray;
};
template <>
struct RunAccessors<double> {
    static constexpr auto get = VarGetGlobalDoubleValueArray, set = VarSetGlobalDoubleValueArray;
};
template <>
struct RunAccessors<short> {
    static constexpr auto get = VarGetGlobalIntValueArray, set = VarSetGlobalIntValueArray;
};
// The store's 32-bit integer is `long` on the device, the same bytes as here.
template <class Value>
requires(std::is_same_v<Value, std::int32_t> || std::is_same_v<Value, VarLong>) struct RunAccessors<Value> {
    static void get(int id, Value* to, unsigned long count) {
        VarGetGlobalLongValueArray(id, reinterpret_cast<VarLong*>(to), count);
    }
    static void set(int id, Value* from, unsigned long count) {
        VarSetGlobalLongValueArray(id, reinterpret_cast<VarLong*>(from), count);
    }
};

template <class Value>
void getRun(int id, Value* to, std::size_t count) {
    RunAccessors<Value>::get(id, to, count);
}
template <class Value>
void setRun(int id, const Value* from, std::size_t count) {
    RunAccessors<Value>::set(id, const_cast<Value*>(from), count);
}

template <class Value>
using AccessorsOf = Accessors<table::kindOf<Value>()>;

template <class Value>
inline constexpr bool kIsText = table::kTextKind<Value> != table::Kind::command;

// Reads a value by one of the accessors of its kind.
template <class Value, class Get>
Value read(Get get, int id) {
    if constexpr (kIsText<Value>) {
        Value text;
        get(id, text.data());
        return text;
    } else if constexpr (std::is_same_v<Value, bool>) {
        char byte;
        get(id, &byte);
        return byte != 0;
    } else {
        typename AccessorsOf<Value>::Raw raw;
        get(id, &raw);
        return static_cast<Value>(raw);
    }
}

template <class Value, class Set>
void write(Set set, int id, const Value& value) {
    if constexpr (kIsText<Value>)
        set(id, Value(value).data());
    else
        set(id, static_cast<typename AccessorsOf<Value>::Raw>(value));
}

// A float that is the nearest one to a limit means the limit, which may have no float.
constexpr double meant(double value, const rules::Facts& facts) {
    if (value < facts.min && value >= static_cast<double>(static_cast<float>(facts.min))) return facts.min;
    if (value > facts.max && value <= static_cast<double>(static_cast<float>(facts.max))) return facts.max;
    return value;
}

// Whether a setting of this type takes what is given without changing it.
template <class Value, class Given>
[[gnu::always_inline]] constexpr Result check(Given given, const rules::Facts& facts) {
    double number = 0;
    if constexpr (std::is_enum_v<Value>) {
        static_assert(std::is_same_v<Given, Value>, "the setting takes one of its choices");
        number = static_cast<short>(given);
    } else if constexpr (std::is_same_v<Value, bool>) {
        static_assert(std::is_same_v<Given, bool>, "the setting takes true or false");
        number = given;
    } else if constexpr (std::is_floating_point_v<Value>) {
        static_assert(std::is_arithmetic_v<Given> && !std::is_same_v<Given, bool>,
                      "the setting takes a number");
        number = meant(static_cast<double>(given), facts);
    } else {
        static_assert(std::is_integral_v<Given> && !std::is_same_v<Given, bool>,
                      "the setting takes a whole number");
        number = static_cast<double>(given);
    }
    return {rules::check(facts, number), facts};
}

// Copies a text unless something speaks against it.
template <class Value>
Result copyText(std::string_view from, const rules::Facts& facts, Value& to) {
    const rules::Objection objection = rules::check(facts, from);
    if (objection) return {objection, facts};
    std::memcpy(to.data(), from.data(), from.size());
    to.data()[from.size()] = '\0';
    return {};
}

// Longest text that a value holds.
template <class Value>
constexpr int capacityOf() {
    if constexpr (kIsText<Value>) return static_cast<int>(Value::kRoom);
    return 0;
}

} // namespace detail

// Consecutive measured values as one.
template <class Element, std::size_t count>
class Run {
public:
    using Value = std::array<Element, count>;

    constexpr explicit Run(int firstId) : first(firstId) {}

    [[nodiscard]] constexpr int id() const { return first; }

    [[nodiscard]] Value get() const {
        Value values;
        get(values);
        return values;
    }
    void get(Value& values) const { detail::getRun(first, values.data(), count); }
    void set(const Value& values) const { detail::setRun(first, values.data(), count); }

private:
    int first;
};

// A run-time value. It is live at once and has no limits; a text that does not fit is refused.
template <class Measure>
class Measured {
public:
    using Value = Measure;

    // Of an indexed parameter the first element.
    consteval Measured(const char* parameterName)
        : Measured(table::resolve<Value>(parameterName, table::Use::measured)) {}
    consteval Measured(const char* parameterName, int elementIndex) : Measured(parameterName) {
        table::expectIndex(table::find(parameterName), elementIndex);
        *this = at(elementIndex);
    }

    [[nodiscard]] constexpr int id() const { return first; }

    // False of an element that does not exist; it reads as 0 or empty, and a write of it does nothing.
    constexpr explicit operator bool() const { return first != 0; }

    [[nodiscard]] Value get() const {
        return first == 0 ? Value{} : detail::read<Value>(detail::AccessorsOf<Value>::getLive, first);
    }
    void get(Value& value) const { value = get(); }
    void set(Value value) const requires(!detail::kIsText<Value>) {
        if (first != 0) detail::write(detail::AccessorsOf<Value>::setLive, first, value);
    }
    Result set(std::string_view text) const requires(detail::kIsText<Value>) {
        Value value;
        const Result result = detail::copyText(
            text, {.form = rules::Form::text, .characters = length, .bytes = static_cast<int>(Value::kRoom)},
            value);
        if (result) set(value);
        return result.of(first);
    }

    void set(const Value& text) const // what the store gave, it takes
        requires(detail::kIsText<Value>) {
        if (first != 0) detail::write(detail::AccessorsOf<Value>::setLive, first, text);
    }

    // An element of an indexed parameter, counted from 1. An index outside gives a handle that is false; in a
    // constant, and with at<index>(), it does not compile.
    [[nodiscard]] constexpr Measured at(int elementIndex) const {
        const bool outside = elementIndex < 1 || elementIndex > elements;
        if (__builtin_is_constant_evaluated() && outside)
            table::stop(table::mistake.the_index_is_outside_its_range);
        Measured element = *this;
        element.first = outside ? 0 : first + elementIndex - 1;
        element.following = outside ? 0 : following - (elementIndex - 1);
        element.elements = 0;
        return element;
    }

    template <int elementIndex>
    [[nodiscard]] consteval Measured at() const {
        return at(elementIndex);
    }

    // This value and those that follow it, in one piece: elements, or parameters with consecutive ids. False,
    // and nothing is read or written, when that many do not follow.
    bool get_run(std::span<Value> values) const {
        if (values.size() > static_cast<std::size_t>(following)) return false;
        if (!values.empty()) detail::getRun(first, values.data(), values.size()); // no element, no run
        return true;
    }
    bool set_run(std::span<const Value> values) const {
        if (values.size() > static_cast<std::size_t>(following)) return false;
        detail::setRun(first, values.data(), values.size());
        return true;
    }
    template <std::size_t count>
    [[nodiscard]] consteval Run<Value, count> run() const {
        if (count < 1 || count > static_cast<std::size_t>(following))
            table::stop(table::mistake.the_run_is_too_long);
        return Run<Value, count>(first);
    }

private:
    int first;
    int following; // values that follow one another, this one included
    int elements;
    int length; // longest text in characters

    constexpr explicit Measured(const table::Row& tableRow)
        : first(tableRow.id), following(tableRow.run), elements(tableRow.elements),
          length(detail::kIsText<Value> ? static_cast<int>(tableRow.max) : 0) {}
};

// A setting: staged in the working copy, live with the commit of the store.
template <class Stored>
class Setting {
public:
    using Value = Stored;

    consteval Setting(const char* parameterName)
        : Setting(table::resolve<Value>(parameterName, table::Use::setting)) {}

    [[nodiscard]] constexpr int id() const { return parameterId; }

    // The live value, and the pending one that the next commit makes live.
    [[nodiscard]] Value live() const {
        return detail::read<Value>(detail::AccessorsOf<Value>::getLive, parameterId);
    }
    [[nodiscard]] Value staged() const {
        return detail::read<Value>(detail::AccessorsOf<Value>::getStaged, parameterId);
    }

    // Nothing is stored when the value is refused: outside the range or the choices, a text that is too long
    // or that no file can restore, an address or netmask that is none, a read-only parameter.
    template <class Given>
    [[gnu::always_inline]] Result stage(Given value) const requires(!detail::kIsText<Value>) {
        const Result result = check(value);
        if (result)
            detail::write(detail::AccessorsOf<Value>::setStaged, parameterId, static_cast<Value>(value));
        return result;
    }
    Result stage(std::string_view text) const requires(detail::kIsText<Value>) {
        Value value;
        const Result result = check(text, value);
        if (result) detail::write(detail::AccessorsOf<Value>::setStaged, parameterId, value);
        return result;
    }
    template <table::Kind kind>
    Result stage(const StoredText<kind>& text) const requires(detail::kIsText<Value>) {
        return stage(text.view());
    }

    // A constant that is checked while compiling, for stage().
    template <class Given>
    [[nodiscard]] consteval Value valid(Given value) const requires(!detail::kIsText<Value>) {
        if (!check(value)) table::stop(table::mistake.the_value_is_outside_its_range);
        return static_cast<Value>(value);
    }

    // What stage() would return.
    template <class Given>
    [[nodiscard, gnu::always_inline]] constexpr Result check(Given value) const
        requires(!detail::kIsText<Value>) {
        return detail::check<Value>(value, facts).of(parameterId, static_cast<double>(value));
    }
    Result check(std::string_view text, Value& value) const requires(detail::kIsText<Value>) {
        return detail::copyText(text, facts, value).of(parameterId);
    }

private:
    int parameterId;
    rules::Facts facts;

    template <class>
    friend class Series;
    constexpr Setting(int settingId, const rules::Facts& known) : parameterId(settingId), facts(known) {}
    constexpr explicit Setting(const table::Row& tableRow)
        : parameterId(tableRow.id), facts(table::factsOf(tableRow, detail::capacityOf<Value>())) {}
};

// What the device says of itself, such as FW_version or the serial number: read-only for users and scripts,
// so the program that knows it sets it.
template <class Said>
class Status {
public:
    using Value = Said;

    consteval Status(const char* parameterName)
        : parameterId(table::resolve<Value>(parameterName, table::Use::status).id),
          facts(table::factsOf(table::find(parameterName), detail::capacityOf<Value>())) {
        facts.isReadOnly = false;
    }

    [[nodiscard]] constexpr int id() const { return parameterId; }
    [[nodiscard]] Value get() const {
        return detail::read<Value>(detail::AccessorsOf<Value>::getLive, parameterId);
    }

    // Live at once, and in the working copy, so that the next commit leaves it. Nothing is stored when the
    // value is refused.
    Result set(Value value) const requires(!detail::kIsText<Value>) {
        const Result result = detail::check<Value>(value, facts).of(parameterId, static_cast<double>(value));
        if (result) store(value);
        return result;
    }
    Result set(std::string_view text) const requires(detail::kIsText<Value>) {
        Value value;
        const Result result = detail::copyText(text, facts, value).of(parameterId);
        if (result) store(value);
        return result;
    }

private:
    int parameterId;
    rules::Facts facts;

    void store(const Value& value) const {
        detail::write(detail::AccessorsOf<Value>::setStaged, parameterId, value);
        detail::write(detail::AccessorsOf<Value>::setLive, parameterId, value);
    }
};

// Settings whose names differ in their number, BAassign1, BAassign2 ..; counted from 1.
template <class Value>
class Series {
public:
    static constexpr int kMost = 64;

    consteval Series(const char* nameWithoutNumber) {
        for (;; ++count) {
            const std::size_t row = table::findNumbered(nameWithoutNumber, count + 1);
            if (row == table::kNoRow) break;
            const Setting<Value> each(table::resolve<Value>(table::kRows[row].name, table::Use::setting));
            if (count == 0) first = each;
            if (!(each.facts == first.facts) || count == kMost)
                table::stop(table::mistake.its_settings_are_no_series);
            ids[static_cast<std::size_t>(count)] = static_cast<std::uint16_t>(each.id());
        }
        if (count == 0) table::stopAtName(nameWithoutNumber);
    }

    [[nodiscard]] constexpr int size() const { return count; }

    // Of a number outside 1 to size() the nearest one.
    [[nodiscard]] constexpr Setting<Value> operator[](int number) const {
        const int near = number < 1 ? 1 : number > count ? count : number;
        return {ids[static_cast<std::size_t>(near - 1)], first.facts};
    }

private:
    int count = 0;
    Setting<Value> first{0, {}};
    std::array<std::uint16_t, kMost> ids{};
};

// One of the three records.
template <class Layout>
class Record {
public:
    using Value = Layout;
    static_assert(kRecordId<Layout> != 0, "no record has this layout");

    [[nodiscard]] static constexpr int id() { return kRecordId<Layout>; }

    [[nodiscard]] Value get() const {
        Value record;
        get(record);
        return record;
    }
    void get(Value& record) const { VarGetGlobalStructValue(id(), &record, sizeof record); }
    void set(const Value& record) const {
        VarSetGlobalStructValue(id(), const_cast<Value*>(&record), sizeof record);
    }
};

} // namespace talux

#endif
