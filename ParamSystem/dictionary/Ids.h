// Which ids there are: the block of each kind.
#ifndef TALUX_DICTIONARY_IDS_H
#define TALUX_DICTIONARY_IDS_H

#include <cstddef>

#include "ParamSystem/TALUX_Params.h"

namespace talux {

struct IdBlock {
    int first;
    int count;

    constexpr bool holds(int id) const { return id >= first && id < first + count; }
};

// What has no slot in the store.
inline constexpr IdBlock kTemplateIds{18000, 100};
inline constexpr IdBlock kCommandIds{19000, 100};

// The most frequent first; the ints lie inside the block of the longs.
inline constexpr IdBlock kIdBlocks[] = {
    {kFirstLong, kLongCount},
    {kFirstFloat, kFloatCount},
    {kFirstBool, kBoolCount},
    {kFirstEnum, kEnumCount},
    {kFirstText, kTextCount},
    {kFirstIp, kIpCount},
    {kFirstDouble, kDoubleCount},
    {kFirstSysDate, kSysDateCount},
    {kFirstSysTime, kSysTimeCount},
    {kFirstId, kIdCount},
    kTemplateIds,
    kCommandIds,
    {kFirstStruct, kStructCount},
    // of the texts of the interfaces: addresses, masks, gateways
    {20000, 3},
    {21000, 3},
    {22000, 3},
};

inline constexpr int kNoIndex = -1;

// Index of an id when the blocks follow one another without gaps.
constexpr int denseIndexOf(int id) {
    int start = 0;
    for (const IdBlock& block : kIdBlocks) {
        if (block.holds(id)) return start + id - block.first;
        start += block.count;
    }
    return kNoIndex;
}

inline constexpr std::size_t kDenseIndexCount = [] {
    std::size_t count = 0;
    for (const IdBlock& block : kIdBlocks)
        count += static_cast<std::size_t>(block.count);
    return count;
}();

} // namespace talux

#endif
