// Values of parameters as C++ programs hold them: texts with their own storage, choices, and refusals.
#ifndef TALUX_VALUES_HPP
#define TALUX_VALUES_HPP

#include <cstring>
#include <optional>
#include <string_view>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "talux/parameters.hpp"

namespace talux {

// A text as the store holds it: NUL-terminated, at most kRoom bytes.
template <table::Kind kind>
class StoredText {
public:
    static constexpr std::size_t kRoom = kind == table::Kind::text ? 127 : 19;

    constexpr StoredText() { characters[0] = '\0'; }
    // Up to a NUL; a longer text is cut to kRoom bytes, as in the store.
    explicit constexpr StoredText(std::string_view givenText) {
        std::size_t length = 0;
        for (; length < givenText.size() && length < kRoom && givenText[length] != '\0'; ++length)
            characters[length] = givenText[length];
        characters[length] = '\0';
    }

    // A view of a text that is gone after the line does not compile.
    [[nodiscard]] std::string_view view() const& { return characters; }
    std::string_view view() const&& = delete;
    [[nodiscard]] const char* c_str() const { return characters; }
    [[nodiscard]] bool empty() const { return characters[0] == '\0'; }
    operator std::string_view() const& { return view(); }
    operator std::string_view() const&& = delete;
    friend bool operator==(const StoredText& a, std::string_view b) { return a.view() == b; }

    // What accessors read and write.
    char* data() { return characters; }

private:
    char characters[kRoom + 1];
};

using Text = StoredText<table::Kind::text>;
using Identifier = StoredText<table::Kind::identifier>;
using Address = StoredText<table::Kind::address>;

// A choice whose texts are not all known; talux::choice has the others.
enum class Choice : short {};

namespace detail {

constexpr bool isRange(Reason reason) {
    return reason == Reason::tooLow || reason == Reason::tooHigh || reason == Reason::noChoice;
}

} // namespace detail

// The result of a write: true if it was done.
class [[nodiscard]] Result {
public:
    constexpr Result() = default;
    constexpr Result(Reason why, double min = 0.0, double max = 0.0) : cause(why), low(min), high(max) {}
    constexpr Result(const rules::Objection& objection, const rules::Facts& facts)
        : cause(objection.reason), low(facts.lowest()),
          high(detail::isRange(cause) ? facts.highest() : objection.limit), given(objection.found) {}

    constexpr explicit operator bool() const { return cause == Reason::none; }
    [[nodiscard]] constexpr Reason reason() const {
        return cause == Reason::tooManyBytes ? Reason::tooLong : cause;
    }

    // The parameter that was refused; 0 when nothing was.
    [[nodiscard]] constexpr int id() const { return parameter; }

    // "Uearth = 95: VALUE TOO HIGH (1 to 90 %)". The name comes from the dictionary.
    [[nodiscard]] Text text() const;

    // The same, of this parameter, and of this number; a result that worked stays as it is.
    [[nodiscard]] constexpr Result of(int parameterId) const { return of(parameterId, given); }
    [[nodiscard]] constexpr Result of(int parameterId, double value) const {
        Result result = *this;
        if (cause == Reason::none) return result;
        result.parameter = parameterId;
        result.given = value;
        return result;
    }

private:
    Reason cause = Reason::none;
    int parameter = 0;
    double low = 0.0, high = 0.0, given = 0.0; // of a text what was found in it
};

namespace detail {

// Appends words and numbers; numbers with three decimals at most, and a point in every
// locale. Those beyond 1e12 have no digits here.
class Writer {
public:
    explicit Writer(char* text) : end(text) {}

    template <class... Pieces>
    void put(const Pieces&... pieces) requires(sizeof...(pieces) > 1) {
        (put(pieces), ...);
    }

    void put(std::string_view words) {
        for (const char c : words)
            *end++ = c;
        *end = '\0';
    }

    void put(double number) {
        if (number < 0.0) put("-");
        if (!(number > -1e12 && number < 1e12)) return put("..");
        const auto thousandths = static_cast<long long>((number < 0.0 ? -number : number) * 1000.0 + 0.5);
        putDigits(thousandths / 1000);
        if (thousandths % 1000 == 0) return;
        put(".");
        for (long long rest = thousandths % 1000, unit = 100; rest > 0; rest %= unit, unit /= 10)
            putDigits(rest / unit);
    }

private:
    char* end;

    void putDigits(long long number) {
        if (number >= 10) putDigits(number / 10);
        *end++ = static_cast<char>('0' + number % 10);
        *end = '\0';
    }
};

constexpr std::string_view wordsOf(Reason reason) {
    switch (reason) {
    case Reason::none:
        break;
    case Reason::readOnly:
        return "VARIABLE IS READ ONLY";
    case Reason::noValue:
        return "HAS NO VALUE";
    case Reason::noNumber:
    case Reason::notANumber:
        return "NOT A NUMBER";
    case Reason::tooLow:
    case Reason::noChoice:
        return "VALUE TOO LOW";
    case Reason::tooHigh:
        return "VALUE TOO HIGH";
    case Reason::notWhole:
        return "NOT A WHOLE NUMBER";
    case Reason::holdsNul:
    case Reason::notCarried:
        return "A LINE CANNOT CARRY ";
    case Reason::tooLong:
    case Reason::tooManyBytes:
        return "TEXT TOO LONG";
    case Reason::noAddress:
        return "NO ADDRESS (four numbers from 0 to 255 as in 192.168.1.10)";
    case Reason::noNetmask:
        return "NO NETMASK (ones before zeros as in 255.255.255.0)";
    case Reason::noDate:
        return "NO DATE (as 2024-05-17)";
    case Reason::noTime:
        return "NO TIME (as 10:20:30)";
    case Reason::tooMany:
        return "TOO MANY SETTINGS IN ONE CHANGE";
    case Reason::notSaved:
        return "NOT SAVED";
    case Reason::notLoaded:
        return "THE FILE CANNOT BE OPENED";
    }
    return {};
}

// What no line of a file or of the language carries.
constexpr std::string_view nameOf(char uncarried) {
    return uncarried == '=' ? "AN EQUALS SIGN" : uncarried == '"' ? "A DOUBLE QUOTE" : "A CONTROL CHARACTER";
}

// A text of a parameter, or of the template whose texts it shares; empty when it has none.
inline std::string_view textOf(const stParamProperties& row, int type, int language,
                               std::optional<int> item = {}) {
    for (const int id : {row.id, row.id_template})
        for (const stParamText* text = DefParamText + 1; id != 0 && text->id != 0; ++text)
            if (text->id == id && text->type == type && text->language == language &&
                (!item || (text->id_group == 0 && text->id_item == *item)))
                return text->txt;
    return {};
}

} // namespace detail

inline Text Result::text() const {
    Text text;
    detail::Writer writer(text.data());
    const stParamProperties* const row = parameter > 0 ? GetParamProperties(parameter) : nullptr;
    const bool isRange = detail::isRange(cause);
    if (row != nullptr) {
        writer.put(row->name);
        if (isRange) writer.put(" = ", given);
        writer.put(": ");
    }
    writer.put(detail::wordsOf(cause));
    if (isRange) {
        const auto unit = row == nullptr ? "" : detail::textOf(*row, kTextUnit, kEnglish);
        writer.put(" (", low, " to ", high, unit.empty() ? "" : " ", unit, ")");
    } else if (cause == Reason::holdsNul || cause == Reason::notCarried) {
        writer.put(detail::nameOf(static_cast<char>(given)));
    } else if (cause == Reason::tooLong || cause == Reason::tooManyBytes) {
        const char* const counted = cause == Reason::tooLong ? " characters" : " bytes";
        writer.put(" (", given, counted, ", at most ", high, ")");
    } else if (cause == Reason::notSaved) {
        writer.put(": ", std::strerror(static_cast<int>(low)));
    }
    return text;
}

} // namespace talux

#endif
