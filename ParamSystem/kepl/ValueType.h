// The bytes of a number and the type of a result, by type code.
#ifndef TALUX_KEPL_VALUETYPE_H
#define TALUX_KEPL_VALUETYPE_H

#include <cstddef>
#include <string_view>

namespace talux::kepl {

// A number at the width of its type, little-endian.
struct NumberBytes {
    char data[8];
    std::size_t size = 0; // 0: the type has no width

    std::string_view view() const { return {data, size}; }
};

NumberBytes encode(double number, int type);

// The number in bytes laid out as encode() does it.
double decode(const char* bytes, int type);

// Type code of the result of a binary operation: the higher one of the promotion chain, else the first.
int promoted(int type1, int type2);

} // namespace talux::kepl

#endif
