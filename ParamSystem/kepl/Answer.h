// Building blocks of answers: bounded text, numbers as text.
#ifndef TALUX_KEPL_ANSWER_H
#define TALUX_KEPL_ANSWER_H

#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "support/FixedPoint.h"

namespace talux::kepl {

// A text that grows line by line in a buffer of kKeplTextSize bytes.
class Answer {
public:
    static constexpr std::size_t kMaxLength = 2998;

    // Starts with the empty text. The buffer is the caller's and must outlive the object.
    explicit Answer(char* buffer) : text(buffer) { *text = '\0'; }

    // Appends the pieces as one line; false, and nothing is appended, if the line does not fit.
    bool append(std::initializer_list<std::string_view> pieces);

private:
    char* text;
    std::size_t length = 0;
};

// A number with its decimals, 0 or 6.
class NumberText {
public:
    NumberText(double number, int decimals) : length(formatFixedPoint(digits, number, decimals)) {}
    std::string_view view() const { return {digits, length}; }

private:
    char digits[kFixedPointSize];
    std::size_t length;
};

} // namespace talux::kepl

#endif
