// May a parameter take this value? The rules, once for all who ask: the command language and the parameter
// files, which refuse only some of what speaks against a value; the programs for people, which describe the
// rest, too; handles of C++ programs and the generator, which ask while compiling. Scripts get the same facts
// in their table.
#ifndef TALUX_RULES_RULES_H
#define TALUX_RULES_RULES_H

#include <algorithm>
#include <climits>
#include <concepts>
#include <optional>
#include <string_view>

#include "ParamSystem/TALUX_Params.h"

namespace talux {

// What speaks against a value, in the order in which it is looked for.
enum class Reason : unsigned char {
    none,
    readOnly,
    noValue,    // commands and records keep none
    noNumber,   // a text that is no number
    notANumber, // NaN
    tooLow,
    tooHigh,
    noChoice, // choices count from 1, also where the row has no minimum
    notWhole,
    holdsNul,
    notCarried,   // a double quote, an equals sign, a control character: no parameter file brings them back
    tooLong,      // more characters than intended
    tooManyBytes, // for the slot or the line
    noAddress,
    noNetmask,
    noDate,
    noTime,
    tooMany, // settings in one change
};

namespace rules {

// What a value looks like.
enum class Form : unsigned char {
    none, // there is no value
    number,
    whole,
    choice,
    text,
    address, // four numbers from 0 to 255 with points between them, without leading zeros
    netmask, // an address that is ones before zeros
    date,    // YYYY-MM-DD
    time,    // hh:mm:ss
};

inline constexpr int kAnyLength = INT_MAX;

// What the rules need to know of a parameter.
struct Facts {
    Form form = Form::none;
    bool isReadOnly = false;
    double min = kNoMin, max = kNoMax; // of a number
    int characters = kAnyLength;       // longest text that is intended
    int bytes = kAnyLength;            // longest text that whoever asks can keep

    constexpr double least() const { return form == Form::choice && min == kNoMin ? 1 : min; }
};

class Reasons {
public:
    constexpr Reasons(std::same_as<Reason> auto... some) : bits((0U | ... | bit(some))) {}

    constexpr bool has(Reason reason) const { return (bits & bit(reason)) != 0; }
    static constexpr Reasons all() {
        Reasons every;
        every.bits = ~0U;
        return every;
    }

private:
    unsigned bits;

    static constexpr unsigned bit(Reason reason) { return 1U << static_cast<unsigned>(reason); }
};

// A write of the command language is refused for these, a line of a parameter file skipped. With anything
// else the value is stored, cut or rounded to its slot (storedAs).
inline constexpr Reasons kLanguageRefuses{Reason::readOnly, Reason::noNumber, Reason::notANumber,
                                          Reason::tooLow, Reason::tooHigh};
inline constexpr Reasons kLoadingRefuses{Reason::noNumber};

struct Objection {
    Reason reason = Reason::none;
    double limit = 0; // that the value goes beyond

    constexpr explicit operator bool() const { return reason != Reason::none; }
};

// ---- Forms --------------------------------------------------------------------------------------------

// Takes a number of `fewest` to `most` digits; -1 where there is none.
constexpr int takeDigits(std::string_view& text, std::size_t fewest, std::size_t most) {
    int number = 0;
    std::size_t count = 0;
    for (; count < most && count < text.size() && text[count] >= '0' && text[count] <= '9'; ++count)
        number = number * 10 + (text[count] - '0');
    text.remove_prefix(count);
    return count < fewest ? -1 : number;
}

constexpr bool takeSign(std::string_view& text, char sign) {
    if (text.empty() || text.front() != sign) return false;
    text.remove_prefix(1);
    return true;
}

// The address as a number, its first part highest.
constexpr std::optional<unsigned> addressIn(std::string_view text) {
    unsigned address = 0;
    for (int part = 0; part < 4; ++part) {
        if (part > 0 && !takeSign(text, '.')) return {};
        const bool isZero = !text.empty() && text.front() == '0';
        const int number = takeDigits(text, 1, isZero ? 1 : 3);
        if (number < 0 || number > 255) return {};
        address = address << 8U | static_cast<unsigned>(number);
    }
    return text.empty() ? std::optional(address) : std::nullopt;
}

constexpr bool isNetmask(std::string_view text) {
    const auto mask = addressIn(text);
    return mask && (~*mask & (~*mask + 1)) == 0;
}

constexpr bool isDate(std::string_view text) {
    const int year = takeDigits(text, 4, 4);
    if (!takeSign(text, '-')) return false;
    const int month = takeDigits(text, 2, 2);
    if (!takeSign(text, '-')) return false;
    const int day = takeDigits(text, 2, 2);
    if (year < 0 || month < 1 || month > 12 || !text.empty()) return false;
    const bool isLeapYear = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    const int days = month == 2 ? 28 + isLeapYear : 30 + (month + month / 8) % 2;
    return day >= 1 && day <= days;
}

constexpr bool isTime(std::string_view text) {
    for (const int limit : {24, 60, 60}) {
        if (limit == 60 && !takeSign(text, ':')) return false;
        const int number = takeDigits(text, 2, 2);
        if (number < 0 || number >= limit) return false;
    }
    return text.empty();
}

// Characters of UTF-8.
constexpr int charactersIn(std::string_view text) {
    return static_cast<int>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

constexpr bool isCarried(char c) {
    return c != '"' && c != '=' && static_cast<unsigned char>(c) >= ' ';
}

constexpr bool isWhole(double number) {
    constexpr double kNoFraction = 4503599627370496.0; // 2^52: from here on every double is whole
    return !(number > -kNoFraction && number < kNoFraction) ||
           number == static_cast<double>(static_cast<long long>(number));
}

// ---- Check --------------------------------------------------------------------------------------------

struct Rule {
    Reason reason;
    bool isBroken;
    double limit = 0;
};

// Without a loop: where the reasons are constant, nothing is computed that nobody asked for.
constexpr Objection firstBroken(Reasons asked, const std::same_as<Rule> auto&... rules) {
    Objection found;
    const auto isFound = [&](const Rule& rule) {
        if (!asked.has(rule.reason) || !rule.isBroken) return false;
        found = {rule.reason, rule.limit};
        return true;
    };
    static_cast<void>((... || isFound(rules)));
    return found;
}

// The first of the reasons asked for that speaks against a number, if any. `number`: none for a text that is
// none.
constexpr Objection check(const Facts& facts, std::optional<double> number, Reasons asked = Reasons::all()) {
    const double value = number.value_or(0);
    return firstBroken(asked, Rule{Reason::readOnly, facts.isReadOnly},
                       Rule{Reason::noValue, facts.form == Form::none}, Rule{Reason::noNumber, !number},
                       Rule{Reason::notANumber, value != value},
                       Rule{Reason::tooLow, !(value >= facts.min), facts.min},
                       Rule{Reason::tooHigh, !(value <= facts.max), facts.max},
                       Rule{Reason::noChoice, !(value >= facts.least()), facts.least()},
                       Rule{Reason::notWhole, facts.form != Form::number && !isWhole(value)});
}

// The same of a text.
constexpr Objection check(const Facts& facts, std::string_view text, Reasons asked = Reasons::all()) {
    const bool isMask = facts.form == Form::netmask;
    const auto isAll = [text](auto holds) { return std::all_of(text.begin(), text.end(), holds); };
    return firstBroken(
        asked, Rule{Reason::readOnly, facts.isReadOnly}, Rule{Reason::noValue, facts.form == Form::none},
        Rule{Reason::holdsNul, !isAll([](char c) { return c != '\0'; })},
        Rule{Reason::notCarried, !isAll(isCarried)},
        Rule{Reason::tooLong, charactersIn(text) > facts.characters, double(facts.characters)},
        Rule{Reason::tooManyBytes, text.size() > std::size_t(facts.bytes), double(facts.bytes)},
        Rule{Reason::noAddress, (isMask || facts.form == Form::address) && !addressIn(text)},
        Rule{Reason::noNetmask, isMask && !isNetmask(text)},
        Rule{Reason::noDate, facts.form == Form::date && !isDate(text)},
        Rule{Reason::noTime, facts.form == Form::time && !isTime(text)});
}

} // namespace rules

} // namespace talux

#endif
