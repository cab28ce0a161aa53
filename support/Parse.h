// Numbers read from texts, by the rules of the C library in the C locale.
#ifndef TALUX_SUPPORT_PARSE_H
#define TALUX_SUPPORT_PARSE_H

#include <optional>
#include <string_view>

#include "support/Types.h"

namespace talux {

// The longest text that is looked at.
inline constexpr std::size_t kMaxNumberText = 49;

enum ParseResult : int {
    kParsed = 1,
    kNoText = -1,   // empty, only blanks, or longer than kMaxNumberText; the value stays as it is
    kNoNumber = -2, // the value is 0
};

// Each reads the first blank-separated word of the text, which must be a number from its first to its last
// character. Whole numbers are clamped to 32 bits.
ParseResult parseLong(std::string_view text, VarLong* value);
ParseResult parseHexLong(std::string_view text, VarLong* value);
ParseResult parseULong(std::string_view text, VarULong* value);
ParseResult parseDouble(std::string_view text, double* value);

inline std::optional<double> numberIn(std::string_view text) {
    double number = 0;
    return parseDouble(text, &number) == kParsed ? std::optional(number) : std::nullopt;
}

} // namespace talux

#endif
