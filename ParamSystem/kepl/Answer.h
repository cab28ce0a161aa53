// Building blocks of answers: bounded text, numbers as text.
#ifndef TALUX_KEPL_ANSWER_H
#define TALUX_KEPL_ANSWER_H

#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace talux::kepl {

// A text that grows line by line in a buffer of kKeplTextSize bytes.
class Answer {
public:
    static constexpr std::size_t kMaxLength = 2998;

    // Starts with the empty text. The buffer is the caller's and must outlive the object.
    explicit Answer(char* buffer) : text(buffer) { *text = '\0'; }

    // Appends the pieces as one line. A line that does not fit leaves no part of itself: result false.
    bool append(std::initializer_list<std::string_view> pieces);

private:
    char* text;
    std::size_t length = 0;
};

// A number as printf's "%.<decimals>f" prints it in the C locale.
class NumberText {
public:
    NumberText(double number, int decimals);
    std::string_view view() const { return {digits, length}; }

private:
    char digits[320]; // sign, the 309 digits of the largest double, point and six decimals
    std::size_t length;
};

} // namespace talux::kepl

#endif
