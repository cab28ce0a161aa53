#include "support/Address.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace talux {

AddressParts addressPartsIn(const char* text) {
    using Limits = std::numeric_limits<int>;
    AddressParts address;
    for (int& part : address.part) {
        text += std::strspn(text, ".");
        part =
            static_cast<int>(std::clamp<long>(std::strtol(text, nullptr, 10), Limits::min(), Limits::max()));
        text += std::strcspn(text, ".");
    }
    return address;
}

char* appendAddress(char* end, const AddressParts& address) {
    for (const int& part : address.part) {
        if (&part != address.part) *end++ = '.';
        end = std::to_chars(end, end + 11, part).ptr;
    }
    return end;
}

} // namespace talux
