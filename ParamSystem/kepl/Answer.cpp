#include "ParamSystem/kepl/Answer.h"

#include <charconv>
#include <cstring>

namespace talux::kepl {

bool Answer::append(std::initializer_list<std::string_view> pieces) {
    std::size_t added = 0;
    for (const std::string_view piece : pieces)
        added += piece.size();
    if (length + added > kMaxLength) return false;

    for (const std::string_view piece : pieces) {
        std::memcpy(text + length, piece.data(), piece.size());
        length += piece.size();
    }
    text[length] = '\0';
    return true;
}

NumberText::NumberText(double number, int decimals) {
    const auto end =
        std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed, decimals);
    length = static_cast<std::size_t>(end.ptr - digits);
}

} // namespace talux::kepl
