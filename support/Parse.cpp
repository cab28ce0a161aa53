#include "support/Parse.h"

#include <algorithm>
#include <cfloat>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "support/Locale.h"
#include "support/Text.h"

namespace talux {

namespace {

// The first word of a text; empty when there is none or the text is too long.
std::string_view firstWord(std::string_view text) {
    if (text.size() > kMaxNumberText) return {};
    std::size_t start = 0;
    while (start < text.size() && text[start] == ' ')
        ++start;
    return after(text.substr(0, text.find(' ', start)), start);
}

// `convert` is the C library's conversion of a whole word.
template <typename Value, typename Convert>
ParseResult parseWord(std::string_view word, Value* value, Convert convert) {
    if (word.empty()) return kNoText;
    char copy[kMaxNumberText + 1];
    std::memcpy(copy, word.data(), word.size());
    copy[word.size()] = '\0';

    char* end = nullptr;
    *value = convert(copy, &end);
    if (end == copy + word.size()) return kParsed;
    *value = Value{};
    return kNoNumber;
}

// The conversions work on 64 bits everywhere, so that every platform clamps to 32 bits alike.
template <int base>
VarLong toLong(const char* word, char** end) {
    using Limits = std::numeric_limits<VarLong>;
    return static_cast<VarLong>(
        std::clamp<long long>(std::strtoll(word, end, base), Limits::min(), Limits::max()));
}

// A minus sign negates within 32 bits: -1 is the largest value.
VarULong toULong(const char* word, char** end) {
    constexpr unsigned long long kMax = std::numeric_limits<VarULong>::max();
    const unsigned long long value = std::strtoull(word, end, 10);
    const unsigned long long magnitude = std::strchr(word, '-') != nullptr ? 0 - value : value;
    return static_cast<VarULong>(magnitude > kMax ? kMax : value);
}

// Not inlined, so that plain numbers do not pay for its frame.
[[gnu::noinline]] ParseResult parseAnyDouble(std::string_view text, double* value) {
    return parseWord(firstWord(text), value,
                     [](const char* word, char** end) { return strtod_l(word, end, cLocale()); });
}

// Converts the first word if it has the form of most numbers, [-]digits[.digits] of up to 15 digits;
// otherwise false. The digits as one integer and the power of ten below them are exact in a double, so their
// quotient, rounded once, is the double nearest to the number.
bool parsePlain(std::string_view text, double* value) {
    static_assert(FLT_EVAL_METHOD == 0, "the quotient is rounded to a double at once");
    constexpr int kExactDigits = 15;
    static constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const char* next = text.data();
    const char* const end = next + text.size();
    while (next != end && *next == ' ')
        ++next;
    const bool isNegative = next != end && *next == '-';
    std::int64_t digits = 0;
    int count = 0;
    int whole = -1; // digits before the point, once it is reached
    for (next += isNegative; next != end; ++next) {
        const unsigned digit = static_cast<unsigned char>(*next) - unsigned{'0'};
        if (digit <= 9 && count < kExactDigits) {
            digits = digits * 10 + digit;
            ++count;
        } else if (*next == '.' && whole < 0) {
            whole = count;
        } else if (*next == ' ') {
            break;
        } else {
            return false;
        }
    }
    if (count == 0 || text.size() > kMaxNumberText) return false;
    const auto magnitude = static_cast<double>(digits);
    const double number = whole < 0 ? magnitude : magnitude / kPowers[count - whole];
    *value = isNegative ? -number : number;
    return true;
}

} // namespace

ParseResult parseLong(std::string_view text, VarLong* value) {
    return parseWord(firstWord(text), value, toLong<10>);
}

ParseResult parseHexLong(std::string_view text, VarLong* value) {
    return parseWord(firstWord(text), value, toLong<16>);
}

ParseResult parseULong(std::string_view text, VarULong* value) {
    return parseWord(firstWord(text), value, toULong);
}

ParseResult parseDouble(std::string_view text, double* value) {
    return parsePlain(text, value) ? kParsed : parseAnyDouble(text, value);
}

} // namespace talux
