#include "ParamSystem/kepl/Answer.h"

#include <cstring>

#include "ParamSystem/support/Text.h"

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
    length = static_cast<std::size_t>(formatText(digits, sizeof digits, "%.*f", decimals, number));
}

} // namespace talux::kepl
