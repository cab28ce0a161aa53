#include "ParamSystem/kepl/Answer.h"

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

} // namespace talux::kepl
