// Finds names in a table without walking it; letter case does not count.
#ifndef TALUX_DICTIONARY_NAMEINDEX_H
#define TALUX_DICTIONARY_NAMEINDEX_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "ParamSystem/support/Text.h"

namespace talux {

constexpr std::uint32_t hashIgnoringCase(std::string_view name) {
    std::uint32_t hash = 2166136261U; // FNV-1a
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(lowerAscii(c))) * 16777619U;
    return hash ^ (hash >> 15);
}

// A hash table of table positions, filled by the generator. Position 0 is a sentinel and stands for "not
// there"; nameAt(position) tells the name at a position.
struct NameIndex {
    const std::uint16_t* slots;
    std::size_t mask; // number of slots, a power of two, less one

    // At least half of them stay empty.
    static constexpr std::size_t slotCount(std::size_t names) { return std::bit_ceil(2 * names); }

    template <class NameAt>
    std::size_t find(std::string_view name, NameAt nameAt) const {
        return slots[slotOf(name, nameAt)];
    }

    // The slot of a name, an empty one where it is not there.
    template <class NameAt>
    std::size_t slotOf(std::string_view name, NameAt nameAt) const {
        std::size_t slot = hashIgnoringCase(name) & mask;
        while (slots[slot] != 0 && !equalIgnoringCase(name, nameAt(slots[slot])))
            slot = (slot + 1) & mask;
        return slot;
    }
};

} // namespace talux

#endif
