// What the type code of a value means for printing it and for its bytes.
#ifndef TALUX_KEPL_VALUETYPE_H
#define TALUX_KEPL_VALUETYPE_H

#include <cstddef>
#include <string_view>

namespace talux::kepl {

// Type codes that values on the stack carry though no parameter has them.
inline constexpr int kTagInt32 = 2005, kTagInt64 = 2006, kTagUint64 = 2007, kTagByte = 2009;

// Text-like types: their value is a text of the store.
bool isTextLike(int type);

// Decimals that a number of this type is printed with: none for the integers, else six.
int decimalsOf(int type);

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
