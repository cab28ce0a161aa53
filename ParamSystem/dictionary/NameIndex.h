// Finds names in a table without walking it; letter case does not count.
#ifndef TALUX_DICTIONARY_NAMEINDEX_H
#define TALUX_DICTIONARY_NAMEINDEX_H

#include <array>
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

// A hash table of table positions. Position 0 is a sentinel and stands for "not there"; nameAt(position)
// tells the name at a position. Of equal names the one entered first counts.
template <std::size_t Slots>
class NameIndex {
    static_assert((Slots & (Slots - 1)) == 0, "a power of two");

public:
    template <class NameAt>
    constexpr std::size_t find(std::string_view name, NameAt nameAt) const {
        return slots[slotOf(name, nameAt)];
    }

    // False when the name is there already.
    template <class NameAt>
    constexpr bool enter(std::size_t position, NameAt nameAt) {
        std::uint16_t& slot = slots[slotOf(nameAt(position), nameAt)];
        if (slot != 0) return false;
        slot = static_cast<std::uint16_t>(position);
        return true;
    }

private:
    template <class NameAt>
    constexpr std::size_t slotOf(std::string_view name, NameAt nameAt) const {
        std::size_t slot = hashIgnoringCase(name) % Slots;
        while (slots[slot] != 0 && !equalIgnoringCase(name, nameAt(slots[slot])))
            slot = (slot + 1) % Slots;
        return slot;
    }

    std::array<std::uint16_t, Slots> slots{};
};

} // namespace talux

#endif
