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

// The most wanted first; the ints lie inside the block of the longs.
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
    // under which the texts of the interfaces lie: addresses, masks, gateways
    {20000, 3},
    {21000, 3},
    {22000, 3},
};

inline constexpr int kNoPlace = -1;

// Place of an id in the row of all blocks.
constexpr int placeOf(int id) {
    int place = 0;
    for (const IdBlock& block : kIdBlocks) {
        if (block.holds(id)) return place + id - block.first;
        place += block.count;
    }
    return kNoPlace;
}

inline constexpr std::size_t kIdPlaces = [] {
    std::size_t count = 0;
    for (const IdBlock& block : kIdBlocks)
        count += static_cast<std::size_t>(block.count);
    return count;
}();

} // namespace talux

#endif
