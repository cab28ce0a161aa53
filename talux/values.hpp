// Values of parameters as C++ programs hold them: texts with their own storage, choices, and refusals.
#ifndef TALUX_VALUES_HPP
#define TALUX_VALUES_HPP

#include <string_view>

#include "talux/parameters.hpp"

namespace talux {

// A text as the store keeps it: NUL-terminated, at most kRoom bytes.
template <table::Kind kind>
class StoredText {
public:
    static constexpr std::size_t kRoom = kind == table::Kind::text ? 127 : 19;

    constexpr StoredText() { characters[0] = '\0'; }
    // Up to a NUL; of what is longer the first kRoom bytes, as the store keeps it.
    explicit constexpr StoredText(std::string_view givenText) {
        std::size_t length = 0;
        for (; length < givenText.size() && length < kRoom && givenText[length] != '\0'; ++length)
            characters[length] = givenText[length];
        characters[length] = '\0';
    }

    [[nodiscard]] std::string_view view() const { return characters; }
    [[nodiscard]] const char* c_str() const { return characters; }
    [[nodiscard]] bool empty() const { return characters[0] == '\0'; }
    operator std::string_view() const { return view(); }
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

enum class Reason : unsigned char { none, tooLow, tooHigh, notANumber, tooLong, holdsNul, readOnly };

// Why a value was not taken; false when it was.
class [[nodiscard]] Refusal {
public:
    constexpr Refusal() = default;
    constexpr Refusal(Reason why, double least = 0.0, double most = 0.0)
        : cause(why), min(least), max(most) {}

    constexpr explicit operator bool() const { return cause != Reason::none; }
    [[nodiscard]] constexpr Reason reason() const { return cause; }

    // "VALUE TOO HIGH, 1 to 90"
    [[nodiscard]] Text text() const;

private:
    Reason cause = Reason::none;
    double min = 0.0, max = 0.0;
};

namespace detail {

// Puts words and numbers one behind the other; of the numbers, which are limits, at most three decimals, with
// a point in every locale.
class Writer {
public:
    explicit Writer(char* text) : end(text) {}

    void put(std::string_view words) {
        for (const char c : words)
            *end++ = c;
        *end = '\0';
    }

    void put(double number) {
        if (number < 0.0) put("-");
        const auto thousandths = static_cast<long long>((number < 0.0 ? -number : number) * 1000.0 + 0.25);
        putDigits(thousandths / 1000);
        if (thousandths % 1000 == 0) return;
        put(".");
        for (long long rest = thousandths % 1000, place = 100; rest > 0; rest %= place, place /= 10)
            putDigits(rest / place);
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
    case Reason::tooLow:
        return "VALUE TOO LOW";
    case Reason::tooHigh:
        return "VALUE TOO HIGH";
    case Reason::notANumber:
        return "NOT A NUMBER";
    case Reason::tooLong:
        return "TEXT TOO LONG";
    case Reason::holdsNul:
        return "TEXT WITH A NUL";
    case Reason::readOnly:
        return "VARIABLE IS READ ONLY";
    }
    return {};
}

} // namespace detail

inline Text Refusal::text() const {
    Text text;
    detail::Writer writer(text.data());
    writer.put(detail::wordsOf(cause));
    if (cause == Reason::tooLow || cause == Reason::tooHigh) {
        writer.put(", ");
        writer.put(min);
        writer.put(" to ");
        writer.put(max);
    } else if (cause == Reason::tooLong) {
        writer.put(", up to ");
        writer.put(max);
        writer.put(" characters");
    }
    return text;
}

} // namespace talux

#endif
