// Which ids there are: the block of each kind.
#ifndef TALUX_DICTIONARY_IDS_H
#define TALUX_DICTIONARY_IDS_H

namespace talux {

struct IdBlock {
    int first;
    int last;

    constexpr int size() const { return last - first + 1; }
    constexpr bool holds(int id) const { return id >= first && id <= last; }
};

inline constexpr IdBlock kDoubleIds{1000, 1383};
inline constexpr IdBlock kFloatIds{2000, 2311};
inline constexpr IdBlock kLongIds{6000, 7268};
inline constexpr IdBlock kIntIds{7000, 7006}; // inside the block of the longs
inline constexpr IdBlock kBoolIds{8000, 8190};
inline constexpr IdBlock kTextIds{9000, 9068};
inline constexpr IdBlock kEnumIds{10000, 10130};
inline constexpr IdBlock kSysDateIds{13000, 13000};
inline constexpr IdBlock kSysTimeIds{14000, 14000};
inline constexpr IdBlock kIdIds{15000, 15000};
inline constexpr IdBlock kIpIds{16000, 16037};
inline constexpr IdBlock kDialogIds{18000, 18020};
inline constexpr IdBlock kValueTemplateIds{18021, 18033};
inline constexpr IdBlock kCommandIds{19000, 19020};
inline constexpr IdBlock kStructIds{30000, 30002};

} // namespace talux

#endif
