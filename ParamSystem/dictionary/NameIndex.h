// Finds names in a table without walking it; letter case does not count.
#ifndef TALUX_DICTIONARY_NAMEINDEX_H
#define TALUX_DICTIONARY_NAMEINDEX_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "support/Text.h"

namespace talux {

// Four characters at a time, of which the last may overlap those before. A letter and its capital differ in
// one bit; other characters that differ in it alone may share a hash.
constexpr std::uint32_t hashIgnoringCase(std::string_view name) {
    constexpr std::uint32_t kCaseBits = 0x20202020;
    constexpr std::uint32_t kFactor = 0x9E3779B1;
    std::uint32_t hash = 2166136261;
    const auto byte = [](char c) { return std::uint32_t{static_cast<unsigned char>(c)}; };
    const auto mix = [&](std::uint32_t four) { hash = std::rotl((hash ^ (four | kCaseBits)) * kFactor, 13); };
    const auto mixAt = [&](const char* at) {
        mix(byte(at[0]) | byte(at[1]) << 8 | byte(at[2]) << 16 | byte(at[3]) << 24);
    };
    for (std::size_t k = 0; k + 4 < name.size(); k += 4)
        mixAt(name.data() + k);
    if (name.size() >= 4)
        mixAt(name.data() + name.size() - 4);
    else
        for (const char c : name)
            mix(byte(c));
    return hash ^ hash >> 15;
}

// A hash table of table positions, filled by the generator. Position 0 is a sentinel and means "not
// found"; nameAt(position) is the name at a position.
struct NameIndex {
    const std::uint16_t* buckets;
    std::size_t mask; // number of buckets, a power of two, less one

    // At least half of them stay empty.
    static constexpr std::size_t bucketCount(std::size_t names) { return std::bit_ceil(2 * names); }

    template <class NameAt>
    std::size_t find(std::string_view name, NameAt nameAt) const {
        return buckets[bucketOf(name, nameAt)];
    }

    // The bucket of a name, an empty one if it is not found.
    template <class NameAt>
    std::size_t bucketOf(std::string_view name, NameAt nameAt) const {
        std::size_t bucket = hashIgnoringCase(name) & mask;
        while (buckets[bucket] != 0 && !isName(name, nameAt(buckets[bucket])))
            bucket = (bucket + 1) & mask;
        return bucket;
    }

private:
    // Most callers know how a name is spelled.
    static bool isName(std::string_view name, std::string_view known) {
        return name == known || equalIgnoringCase(name, known);
    }
};

} // namespace talux

#endif
