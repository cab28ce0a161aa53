// Finds parameters by name while compiling. A handle that cannot be made does not compile: the compiler shows
// the program's line and names one of the reasons below.
#ifndef TALUX_LOOKUP_HPP
#define TALUX_LOOKUP_HPP

#include <cstdint>
#include <iterator>
#include <string_view>
#include <type_traits>

#include "talux/nearest.hpp"
#include "talux/records.hpp"
#include "talux/values.hpp"

namespace talux::table {

// What cannot be read while compiling. For a union's member without a value compilers print its name, in an
// error at the line of the program; for a function that cannot be called they print the line of the call.
union Mistakes {
    char nothing;
    char no_parameter_has_this_name;
    char it_is_a_setting_take_talux_Setting;
    char it_is_measured_take_talux_Measured;
    char it_is_a_record_take_talux_Record;
    char it_is_the_clock_of_the_system;
    char it_is_a_command_without_a_value;
    char its_values_are_float;
    char its_values_are_double;
    char its_values_are_std_int32_t;
    char its_values_are_short;
    char its_values_are_bool;
    char its_values_are_choices;
    char its_values_are_talux_Text;
    char its_values_are_talux_Identifier;
    char its_values_are_talux_Address;
    char its_choices_have_another_enum;
    char it_has_no_index;
    char the_index_is_outside_its_range;
    char the_run_is_too_long;
    char the_value_is_outside_its_range;
    char its_settings_are_no_series;
};
inline constexpr Mistakes mistake{.nothing = 1};

// Stops because no parameter has this name; shows the nearest one if any.
constexpr void stopAtName(std::string_view wrong) {
    const std::size_t row = nearest(wrong);
    stopAtNearest(row);
    if (row == kNoRow) stop(mistake.no_parameter_has_this_name);
}

// The index of a row, or kNoRow. No pointer: compared with null, a sanitizer's is no constant.
constexpr std::size_t indexOf(std::string_view name) {
    std::size_t first = 0, last = std::size(kRows);
    while (first < last) {
        const std::size_t middle = (first + last) / 2;
        if (name == kRows[middle].name) return middle;
        if (name < kRows[middle].name)
            last = middle;
        else
            first = middle + 1;
    }
    return kNoRow;
}

constexpr const Row& find(std::string_view name) {
    const std::size_t index = indexOf(name);
    if (index == kNoRow) stopAtName(name);
    return kRows[index];
}

// The index of a name followed by a number of one or two digits, or kNoRow.
constexpr std::size_t findNumbered(std::string_view name, int number) {
    char text[64] = {};
    if (name.size() + 2 > sizeof text) return kNoRow;
    std::size_t length = 0;
    for (const char c : name)
        text[length++] = c;
    if (number >= 10) text[length++] = static_cast<char>('0' + number / 10);
    text[length++] = static_cast<char>('0' + number % 10);
    return indexOf({text, length});
}

template <class>
inline constexpr Kind kTextKind = Kind::command;
template <Kind kind>
inline constexpr Kind kTextKind<StoredText<kind>> = kind;

// The kind of parameters with values of this type.
template <class Value>
constexpr Kind kindOf() {
    if constexpr (std::is_same_v<Value, float>) return Kind::f32;
    if constexpr (std::is_same_v<Value, double>) return Kind::f64;
    if constexpr (std::is_same_v<Value, bool>) return Kind::flag;
    if constexpr (std::is_same_v<Value, std::int32_t> || std::is_same_v<Value, VarLong>) return Kind::i32;
    if constexpr (std::is_same_v<Value, short>) return Kind::i16;
    if constexpr (std::is_same_v<Value, Choice> || kChoices<Value> != 0) return Kind::choice;
    return kTextKind<Value>;
}

constexpr void expectKind(const Row& row, Kind kind) {
    if (row.kind == kind) return;
    switch (row.kind) {
    case Kind::f32:
        return stop(mistake.its_values_are_float);
    case Kind::f64:
        return stop(mistake.its_values_are_double);
    case Kind::i32:
        return stop(mistake.its_values_are_std_int32_t);
    case Kind::i16:
        return stop(mistake.its_values_are_short);
    case Kind::flag:
        return stop(mistake.its_values_are_bool);
    case Kind::choice:
        return stop(mistake.its_values_are_choices);
    case Kind::text:
        return stop(mistake.its_values_are_talux_Text);
    case Kind::identifier:
        return stop(mistake.its_values_are_talux_Identifier);
    case Kind::address:
        return stop(mistake.its_values_are_talux_Address);
    case Kind::record:
        return stop(mistake.it_is_a_record_take_talux_Record);
    case Kind::clock:
        return stop(mistake.it_is_the_clock_of_the_system);
    case Kind::command:
        return stop(mistake.it_is_a_command_without_a_value);
    }
}

// The row of a parameter of this type and use; a status value can be looked at like a setting, too.
template <class Value>
constexpr const Row& resolve(std::string_view name, Use use) {
    static_assert(kindOf<Value>() != Kind::command, "no parameter has values of this type");
    const Row& row = find(name);
    expectKind(row, kindOf<Value>());
    if (use != Use::measured && row.use == Use::measured) stop(mistake.it_is_measured_take_talux_Measured);
    if (use != Use::setting && row.use != use) stop(mistake.it_is_a_setting_take_talux_Setting);
    if (kChoices<Value> != 0 && kChoices<Value> != row.choices) stop(mistake.its_choices_have_another_enum);
    return row;
}

// What the rules need to know. `bytes`: of the longest text that fits.
constexpr rules::Facts factsOf(const Row& row, int bytes) {
    using rules::Form;
    constexpr Form kForms[] = {Form::number, Form::number, Form::whole, Form::whole,  Form::whole,
                               Form::choice, Form::text,   Form::text,  Form::address};
    const bool isText = row.kind >= Kind::text;
    return {.form = row.form != Form::none ? row.form : kForms[static_cast<int>(row.kind)],
            .isReadOnly = row.use == Use::status,
            .min = row.min,
            .max = row.max,
            .characters = isText ? static_cast<int>(row.max) : rules::kAnyLength,
            .bytes = bytes};
}

constexpr void expectIndex(const Row& row, int index) {
    if (row.elements == 0) stop(mistake.it_has_no_index);
    if (index < 1 || index > row.elements) stop(mistake.the_index_is_outside_its_range);
}

} // namespace talux::table

#endif
