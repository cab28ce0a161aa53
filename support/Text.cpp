#include "support/Text.h"

#include <clocale>
#include <cstdio>
#include <cstring>

#include "support/Locale.h"

namespace talux {

void copyText(char* dest, std::size_t size, std::string_view text) {
    if (size == 0) return;
    const std::size_t length = text.size() < size ? text.size() : size - 1;
    std::memcpy(dest, text.data(), length);
    dest[length] = '\0';
}

int formatTextV(char* dest, std::size_t size, const char* format, std::va_list arguments) {
    const locale_t callers = uselocale(cLocale());
    const int length = std::vsnprintf(dest, size, format, arguments);
    uselocale(callers);
    return length;
}

int formatText(char* dest, std::size_t size, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const int length = formatTextV(dest, size, format, arguments);
    va_end(arguments);
    return length;
}

} // namespace talux
