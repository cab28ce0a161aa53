// The parameter that a wrong name may mean. It is looked for only where a handle does not compile.
#ifndef TALUX_NEAREST_HPP
#define TALUX_NEAREST_HPP

#include <cstddef>
#include <iterator>
#include <string_view>

#include "talux/parameters.hpp"

namespace talux::table {

inline constexpr std::size_t kNoRow = std::size(kRows);

// A name in lower case, without calls: a compiler limits the steps of a constant to a million.
struct LowerCase {
    static constexpr std::size_t kLongest = 48;
    char letters[kLongest] = {};
    std::size_t size = 0;

    constexpr explicit LowerCase(std::string_view anyCase) {
        for (const char c : anyCase.substr(0, kLongest))
            letters[size++] = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    }
};

// How many characters have to be changed, added, dropped or exchanged with their neighbour; `limit` if that
// many or more.
constexpr std::size_t distance(const LowerCase& wrong, const LowerCase& name, std::size_t limit) {
    std::size_t lines[3][LowerCase::kLongest + 1] = {}; // the last three of the table of distances
    for (std::size_t j = 0; j <= name.size; ++j)
        lines[0][j] = j;
    for (std::size_t i = 1; i <= wrong.size; ++i) {
        auto& line = lines[i % 3];
        const auto &above = lines[(i + 2) % 3], &before = lines[(i + 1) % 3];
        std::size_t minimum = line[0] = i;
        for (std::size_t j = 1; j <= name.size; ++j) {
            std::size_t steps = 1 + (above[j] < line[j - 1] ? above[j] : line[j - 1]);
            const std::size_t changed = above[j - 1] + (wrong.letters[i - 1] != name.letters[j - 1]);
            if (changed < steps) steps = changed;
            const bool isExchanged = i > 1 && j > 1 && wrong.letters[i - 1] == name.letters[j - 2] &&
                                     wrong.letters[i - 2] == name.letters[j - 1];
            if (isExchanged && before[j - 2] + 1 < steps) steps = before[j - 2] + 1;
            line[j] = steps;
            if (steps < minimum) minimum = steps;
        }
        if (minimum >= limit) return limit;
    }
    const std::size_t steps = lines[wrong.size % 3][name.size];
    return steps < limit ? steps : limit;
}

// The row with the nearest name, or kNoRow where none is near.
constexpr std::size_t nearest(std::string_view wrongName) {
    const bool isPrefixed = wrongName.starts_with("TLX_") || wrongName.starts_with("LVR_");
    const LowerCase wrong(wrongName.substr(isPrefixed ? 4 : 0));
    std::size_t best = kNoRow, limit = wrong.size < 6 ? 2 : wrong.size < 12 ? wrong.size / 3 + 1 : 5;
    for (std::size_t row = 0; row < kNoRow; ++row) {
        const std::string_view name = kRows[row].name;
        if (name.size() + limit <= wrong.size || wrong.size + limit <= name.size()) continue;
        const std::size_t steps = distance(wrong, LowerCase(name), limit);
        if (steps < limit) best = row;
        limit = steps;
    }
    return best;
}

} // namespace talux::table

#endif
