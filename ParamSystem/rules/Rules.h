// May a parameter take this value? The one set of rules for all: the command language and the parameter
// files, which refuse a value for some of the reasons only; the programs for people, which report the
// others, too; handles of C++ programs and the generator, which check at compile time. Scripts get the same
// facts in their table.
#ifndef TALUX_RULES_RULES_H
#define TALUX_RULES_RULES_H

#include <algorithm>
#include <climits>
#include <concepts>
#include <optional>
#include <string_view>

#include "ParamSystem/TALUX_Params.h"

namespace talux {

// What speaks against a value, in the order of the checks.
enum class Reason : unsigned char {
    none,
    readOnly,
    noValue,    // commands and records have none
    noNumber,   // a text that is no number
    notANumber, // NaN
    tooLow,
    tooHigh,
    noChoice, // choices count from 1, a switch is 0 or 1, also where the row has no limits
    notWhole,
    holdsNul,
    notCarried,   // a double quote, an equals sign, a control character: no parameter file restores them
    tooLong,      // more characters than intended
    tooManyBytes, // for the slot or the line
    noAddress,
    noNetmask,
    noDate,
    noTime,
    tooMany, // settings in one change; this one and the next are not about a value
    notSaved,
    notLoaded,
};

namespace rules {

// What a value looks like.
enum class Form : unsigned char {
    none, // there is no value
    number,
    whole,
    choice,
    flag,
    text,
    address, // four numbers from 0 to 255 with points between them, without leading zeros
    netmask, // an address that is ones before zeros
    date,    // YYYY-MM-DD
    time,    // hh:mm:ss
};

inline constexpr int kAnyLength = INT_MAX;

constexpr bool isReadOnly(const stParamProperties& row) {
    return row.val_access == kReadOnly;
}

// Rights needed to read a parameter, and the least that a write takes; userlevel may ask for more.
inline constexpr int kReadLevel = 1, kWriteLevel = 2;

// The only parameter that everybody who may read it may write: it requests a snapshot of the measured values.
inline constexpr std::string_view kOpenToReaders = "mw_req";

// Rights needed to write this one.
constexpr int levelToWrite(const stParamProperties& row) {
    return std::max(row.name == kOpenToReaders ? kReadLevel : kWriteLevel, row.userlevel);
}

// What the rules need to know of a parameter.
struct Facts {
    Form form = Form::none;
    bool isReadOnly = false;
    double min = kNoMin, max = kNoMax; // of a number
    int characters = kAnyLength;       // longest text that is intended
    int bytes = kAnyLength;            // longest text that the caller can store

    bool operator==(const Facts&) const = default;
    constexpr double lowest() const {
        return min != kNoMin ? min : form == Form::choice ? 1 : form == Form::flag ? 0 : min;
    }
    constexpr double highest() const { return form == Form::flag && max == kNoMax ? 1 : max; }
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

// The command language refuses a write for these, a load skips a line of a parameter file. For any other
// reason the value is stored, cut or rounded to its slot (storedAs).
inline constexpr Reasons kLanguageRefuses{Reason::readOnly, Reason::noNumber, Reason::notANumber,
                                          Reason::tooLow, Reason::tooHigh};
inline constexpr Reasons kLoadingRefuses{Reason::noNumber};

struct Objection {
    Reason reason = Reason::none;
    double limit = 0; // that the value exceeds
    double found = 0; // in a text: how many characters or bytes, or which character

    constexpr explicit operator bool() const { return reason != Reason::none; }
};

// ---- Forms --------------------------------------------------------------------------------------------

// Takes a number of `min` to `max` digits; -1 where there is none.
constexpr int takeDigits(std::string_view& text, std::size_t min, std::size_t max) {
    int number = 0;
    std::size_t count = 0;
    for (; count < max && count < text.size() && text[count] >= '0' && text[count] <= '9'; ++count)
        number = number * 10 + (text[count] - '0');
    text.remove_prefix(count);
    return count < min ? -1 : number;
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
    int count = 0;
    for (const char c : text)
        count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    return count;
}

// The first character that no line can contain, if any.
constexpr std::optional<char> uncarriedIn(std::string_view text) {
    for (const char c : text)
        if (c == '"' || c == '=' || static_cast<unsigned char>(c) < ' ') return c;
    return {};
}

constexpr bool isWhole(double number) {
    constexpr double kNoFraction = 4503599627370496.0; // 2^52: from here on every double is whole
    return !(number > -kNoFraction && number < kNoFraction) ||
           number == static_cast<double>(static_cast<long long>(number));
}

// ---- Check --------------------------------------------------------------------------------------------

// Finds the first of the requested reasons that speaks against a value. No loop: neither what is known at
// compile time nor what is not requested costs anything.
class First {
public:
    constexpr explicit First(Reasons reasons) : asked(reasons) {}

    [[gnu::always_inline]] constexpr First& where(bool isBroken, Reason reason, double limit = 0,
                                                  double found = 0) {
        if (!objection && isBroken && asked.has(reason)) objection = {reason, limit, found};
        return *this;
    }
    constexpr operator Objection() const { return objection; }

private:
    Reasons asked;
    Objection objection;
};

// The first of the requested reasons that speaks against a number, if any. `number`: empty for a text that
// is no number.
[[gnu::always_inline]] constexpr Objection check(const Facts& facts, std::optional<double> number,
                                                 Reasons asked = Reasons::all()) {
    const double value = number.value_or(0);
    const bool isNumber = number && value == value;
    return First(asked)
        .where(facts.isReadOnly, Reason::readOnly)
        .where(facts.form == Form::none, Reason::noValue)
        .where(!number, Reason::noNumber)
        .where(number && !isNumber, Reason::notANumber)
        .where(isNumber && !(value >= facts.min), Reason::tooLow, facts.min)
        .where(isNumber && !(value <= facts.max), Reason::tooHigh, facts.max)
        .where(isNumber && value >= facts.min && value < facts.lowest(), Reason::noChoice, facts.lowest())
        .where(isNumber && value <= facts.max && value > facts.highest(), Reason::noChoice, facts.highest())
        .where(isNumber && facts.form != Form::number && !isWhole(value), Reason::notWhole);
}

// The same of a text.
constexpr Objection check(const Facts& facts, std::string_view text, Reasons asked = Reasons::all()) {
    const bool isMask = facts.form == Form::netmask;
    const bool isAddress = addressIn(text).has_value();
    const auto uncarried = uncarriedIn(text);
    const int characters = charactersIn(text);
    return First(asked)
        .where(facts.isReadOnly, Reason::readOnly)
        .where(facts.form == Form::none, Reason::noValue)
        .where(text.find('\0') != text.npos, Reason::holdsNul)
        .where(uncarried.has_value(), Reason::notCarried, 0, uncarried.value_or(0))
        .where(characters > facts.characters, Reason::tooLong, facts.characters, characters)
        .where(text.size() > static_cast<std::size_t>(facts.bytes), Reason::tooManyBytes, facts.bytes,
               static_cast<double>(text.size()))
        .where((isMask || facts.form == Form::address) && !isAddress, Reason::noAddress)
        .where(isMask && isAddress && !isNetmask(text), Reason::noNetmask)
        .where(facts.form == Form::date && !isDate(text), Reason::noDate)
        .where(facts.form == Form::time && !isTime(text), Reason::noTime);
}

// Calls each(objection) for all of the requested reasons that speak against a number or a text.
template <class Given, class Each>
constexpr void forEachObjection(const Facts& facts, const Given& given, Reasons asked, Each each) {
    for (auto reason = Reason::readOnly; reason < Reason::tooMany;
         reason = static_cast<Reason>(static_cast<int>(reason) + 1))
        if (asked.has(reason))
            if (const Objection objection = check(facts, given, {reason})) each(objection);
}

} // namespace rules

} // namespace talux

#endif
