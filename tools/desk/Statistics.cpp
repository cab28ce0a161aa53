#include "tools/desk/Statistics.h"

#include <algorithm>
#include <ctime>
#include <utility>

namespace desk {

namespace {

using talux::Measured, talux::Setting, talux::StatRecord_c0;

// Which members a measured value fills; null where the record has none.
struct Row {
    Measured<float> value;
    float StatRecord_c0::*max;
    float StatRecord_c0::*min;
    float StatRecord_c0::*mean;
};
using R = StatRecord_c0;
constexpr Row kRows[] = {
    {{"U0_prim"}, &R::U0_max, &R::U0_min, &R::U0_av}, {{"U1_prim"}, &R::U1_max, &R::U1_min, &R::U1_av},
    {{"U2_prim"}, &R::U2_max, &R::U2_min, &R::U2_av}, {{"U3_prim"}, &R::U3_max, &R::U3_min, &R::U3_av},
    {{"I0_prim"}, &R::I0_max, nullptr, &R::I0_av},    {{"I1_prim"}, &R::I1_max, nullptr, &R::I1_av},
    {{"I2_prim"}, &R::I2_max, nullptr, &R::I2_av},    {{"I3_prim"}, &R::I3_max, nullptr, &R::I3_av},
    {{"P0_prim"}, &R::P0_max, &R::P0_min, &R::P0_av}, {{"P1_prim"}, &R::P1_max, &R::P1_min, &R::P1_av},
    {{"P2_prim"}, &R::P2_max, &R::P2_min, &R::P2_av}, {{"P3_prim"}, &R::P3_max, &R::P3_min, &R::P3_av},
    {{"Q0_prim"}, &R::Q0_max, &R::Q0_min, &R::Q0_av}, {{"Q1_prim"}, &R::Q1_max, &R::Q1_min, &R::Q1_av},
    {{"Q2_prim"}, &R::Q2_max, &R::Q2_min, &R::Q2_av}, {{"Q3_prim"}, &R::Q3_max, &R::Q3_min, &R::Q3_av},
    {{"P_prim"}, &R::P_max, &R::P_min, &R::P_av},     {{"Q_prim"}, &R::Q_max, &R::Q_min, &R::Q_av},
    {{"S_prim"}, &R::S_max, nullptr, &R::S_av},       {{"U12_prim"}, &R::U12_max, nullptr, nullptr},
    {{"U23_prim"}, &R::U23_max, nullptr, nullptr},    {{"U31_prim"}, &R::U31_max, nullptr, nullptr},
};

} // namespace

bool Statistics::add(const Values& values, int transients, const talux::Settings& settings) {
    static constexpr Setting<std::int32_t> kMinutes{"stat_intervall"};
    ++cycles;
    seconds += kCycle;
    for (const Row& row : kRows) {
        const float value = values[positionOf(row.value)];
        const bool isFirst = cycles == 1;
        running.*row.max = isFirst ? value : std::max(running.*row.max, value);
        if (row.min != nullptr) running.*row.min = isFirst ? value : std::min(running.*row.min, value);
        if (row.mean != nullptr)
            running.*row.mean += (value - running.*row.mean) / static_cast<float>(cycles);
    }
    if (seconds < 60.0 * settings[kMinutes]) return false;
    running.SysTime = running.M3TimeStamp = static_cast<std::int32_t>(std::time(nullptr));
    running.dT = static_cast<std::int32_t>(seconds);
    running.EvCnt_qu2 = transients - std::exchange(transientsBefore, transients);
    complete = std::exchange(running, {});
    cycles = 0;
    seconds = 0;
    return true;
}

} // namespace desk
