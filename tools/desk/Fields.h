// Fields of lines and the numbers in them.
#ifndef TALUX_DESK_FIELDS_H
#define TALUX_DESK_FIELDS_H

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace desk {

// All of the text as a number with a decimal point.
inline std::optional<double> numberIn(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

// Without carriage returns. If there are quotes, a delimiter between them divides nothing.
inline std::vector<std::string> fieldsOf(std::string_view line, char delimiter, bool hasQuotes) {
    std::vector<std::string> fields(1);
    bool isQuoted = false;
    for (const char c : line) {
        if (c == '"' && hasQuotes)
            isQuoted = !isQuoted;
        else if (c == delimiter && !isQuoted)
            fields.emplace_back();
        else if (c != '\r')
            fields.back() += c;
    }
    return fields;
}

} // namespace desk

#endif
