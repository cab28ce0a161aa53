// Tables whose rows belong to the enumerators of an enumeration: a row holds all that is known of one.
#ifndef TALUX_SUPPORT_ENUMROWS_H
#define TALUX_SUPPORT_ENUMROWS_H

#include <cstddef>
#include <string_view>
#include <type_traits>

namespace talux {

// Whether an enumerator has this value: the compiler then prints its name, otherwise a cast.
template <auto value>
consteval bool isEnumerator() {
    const std::string_view text = __PRETTY_FUNCTION__;
    const std::size_t at = text.rfind("value = ");
    return at != text.npos && text[at + 8] != '(';
}

// How many enumerators there are, counted from 0.
template <class Enum, std::size_t count = 0>
consteval std::size_t enumeratorsOf() {
    if constexpr (isEnumerator<static_cast<Enum>(count)>())
        return enumeratorsOf<Enum, count + 1>();
    else
        return count;
}

// For a static_assert: row k belongs to enumerator k, and each enumerator has a row. `member` is the member
// of a row that holds its enumerator.
template <auto member, class Row, std::size_t count>
consteval bool hasRowForEach(const Row (&rows)[count]) {
    using Enum = std::remove_cvref_t<decltype(rows[0].*member)>;
    for (std::size_t k = 0; k < count; ++k)
        if (rows[k].*member != static_cast<Enum>(k)) return false;
    return !isEnumerator<static_cast<Enum>(count)>();
}

// The row of an enumerator in such a table.
template <class Row, std::size_t count, class Enum>
constexpr const Row& rowOf(const Row (&rows)[count], Enum enumerator) {
    return rows[static_cast<std::size_t>(enumerator)];
}

} // namespace talux

#endif
