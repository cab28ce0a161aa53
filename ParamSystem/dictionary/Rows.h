// The catalogue expanded at compile time: one row per parameter, names of numbered series spelled out.
#ifndef TALUX_DICTIONARY_ROWS_H
#define TALUX_DICTIONARY_ROWS_H

#include <array>
#include <cstddef>
#include <string_view>

#include "ParamSystem/catalogue/Catalogue.h"

namespace talux {

// Calls visit(row, number) for every parameter in table order; number runs through the series of the row.
template <class Visit>
constexpr void forEachParameter(Visit visit) {
    for (const catalogue::Family& family : catalogue::kFamilies)
        for (const catalogue::Row& row : family.rows)
            for (int number = row.first; number < row.first + row.count(); ++number)
                visit(row, number);
}

constexpr std::size_t digitCount(int number) {
    return number < 10 ? 1 : 1 + digitCount(number / 10);
}

// Texts put together at compile time, one behind the other, each with its NUL.
template <std::size_t Size>
struct TextPool {
    std::array<char, Size> text{};
    std::size_t end = 0;

    constexpr void append(std::string_view piece) {
        for (const char c : piece)
            text[end++] = c;
    }

    constexpr void appendNumber(int number) {
        if (number >= 10) appendNumber(number / 10);
        text[end++] = static_cast<char>('0' + number % 10);
    }

    constexpr void endText() { text[end++] = '\0'; }
};

consteval std::size_t numberedNamesSize() {
    std::size_t size = 0;
    forEachParameter([&size](const catalogue::Row& row, int number) {
        if (row.series == catalogue::Row::kNumbered)
            size += std::string_view(row.properties.name).size() + digitCount(number) + 1;
    });
    return size;
}

consteval auto numberedNames() {
    TextPool<numberedNamesSize()> pool;
    forEachParameter([&pool](const catalogue::Row& row, int number) {
        if (row.series != catalogue::Row::kNumbered) return;
        pool.append(row.properties.name);
        pool.appendNumber(number);
        pool.endText();
    });
    return pool.text;
}

inline constexpr auto kNumberedNames = numberedNames();

consteval std::size_t parameterCount() {
    std::size_t count = 0;
    for (const catalogue::Family& family : catalogue::kFamilies)
        count += static_cast<std::size_t>(family.parameterCount());
    return count;
}

constexpr stParamProperties sentinelRow() {
    stParamProperties row{};
    row.name = row.format = row.val_init_text = row.val_def_text = "***";
    return row;
}

// The whole table; a type of its own because the rows leave a function as a value.
struct PropertyTable {
    stParamProperties rows[parameterCount() + 2];
};

consteval PropertyTable propertyTable() {
    PropertyTable table{};
    std::size_t position = 0;
    std::size_t name = 0;
    table.rows[position++] = sentinelRow();
    forEachParameter([&](const catalogue::Row& row, int number) {
        stParamProperties& properties = table.rows[position++] = row.properties;
        properties.id += number - row.first;
        if (row.series != catalogue::Row::kNumbered) return;
        properties.name = &kNumberedNames[name];
        name += std::string_view(properties.name).size() + 1;
    });
    table.rows[position] = sentinelRow();
    return table;
}

inline constexpr PropertyTable kProperties = propertyTable();

} // namespace talux

#endif
