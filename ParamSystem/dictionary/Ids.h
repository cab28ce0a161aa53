// Which ids there are: the block of each kind.
#ifndef TALUX_DICTIONARY_IDS_H
#define TALUX_DICTIONARY_IDS_H

#include "ParamSystem/TALUX_Params.h"

namespace talux {

struct IdBlock {
    int first;
    int last;

    constexpr int size() const { return last - first + 1; }
    constexpr bool holds(int id) const { return id >= first && id <= last; }
};

constexpr IdBlock idBlock(int first, int count) {
    return {first, first + count - 1};
}

inline constexpr IdBlock kDoubleIds = idBlock(kFirstDouble, kDoubleCount);
inline constexpr IdBlock kFloatIds = idBlock(kFirstFloat, kFloatCount);
inline constexpr IdBlock kLongIds = idBlock(kFirstLong, kLongCount);
inline constexpr IdBlock kIntIds = idBlock(kFirstInt, kIntCount); // inside the block of the longs
inline constexpr IdBlock kBoolIds = idBlock(kFirstBool, kBoolCount);
inline constexpr IdBlock kTextIds = idBlock(kFirstText, kTextCount);
inline constexpr IdBlock kEnumIds = idBlock(kFirstEnum, kEnumCount);
inline constexpr IdBlock kSysDateIds = idBlock(kFirstSysDate, kSysDateCount);
inline constexpr IdBlock kSysTimeIds = idBlock(kFirstSysTime, kSysTimeCount);
inline constexpr IdBlock kIdIds = idBlock(kFirstId, kIdCount);
inline constexpr IdBlock kIpIds = idBlock(kFirstIp, kIpCount);
inline constexpr IdBlock kDialogIds{18000, 18020};
inline constexpr IdBlock kValueTemplateIds{18021, 18033};
inline constexpr IdBlock kCommandIds{19000, 19020};
inline constexpr IdBlock kStructIds = idBlock(kFirstStruct, kStructCount);

} // namespace talux

#endif
