// What the desk writes to the store and reads from it.
#include <algorithm>
#include <cmath>
#include <ctime>
#include <utility>

#include "tools/desk/Desk.h"

namespace desk {

namespace {

using talux::Measured, talux::Record, talux::Setting, talux::StatRecord_c0;

constexpr Measured<std::int32_t> kRequest{"mw_req"}, kResetButton{"BE_Reset_Button"};

// In the order of the parameters mw_U0p to mw_phi_UI3; the inputs' voltages stay 0.
Floats snapshotOf(const Phasors& phasors) {
    const auto& [u, i, us, is, hertz] = phasors;
    Floats values;
    for (const Four& four : {u, us, i, is})
        for (const Phasor& each : four)
            values.add(std::abs(each));
    for (const Four& four : {u, i})
        for (const Phasor& each : four)
            values.add(degrees(each));
    for (std::size_t k = 0; k < u.size(); ++k)
        values.add(angleBetween(u[k], i[k]));
    values.resize(32);
    return values;
}

// The values, if they are enabled.
template <class Value, std::size_t count>
void read(Measured<std::int32_t> enabled, talux::Run<Value, count> run,
          std::optional<std::array<Value, count>>& values) {
    if (enabled.get() != 0) values = run.get();
}

// Which members a measured value fills; null where the record has none.
using R = StatRecord_c0;
struct Row {
    Measured<float> value;
    float R::*max, R::*min, R::*mean;
};
constexpr Row kRows[] = {
    {"U0_prim", &R::U0_max, &R::U0_min, &R::U0_av}, {"U1_prim", &R::U1_max, &R::U1_min, &R::U1_av},
    {"U2_prim", &R::U2_max, &R::U2_min, &R::U2_av}, {"U3_prim", &R::U3_max, &R::U3_min, &R::U3_av},
    {"I0_prim", &R::I0_max, nullptr, &R::I0_av},    {"I1_prim", &R::I1_max, nullptr, &R::I1_av},
    {"I2_prim", &R::I2_max, nullptr, &R::I2_av},    {"I3_prim", &R::I3_max, nullptr, &R::I3_av},
    {"P0_prim", &R::P0_max, &R::P0_min, &R::P0_av}, {"P1_prim", &R::P1_max, &R::P1_min, &R::P1_av},
    {"P2_prim", &R::P2_max, &R::P2_min, &R::P2_av}, {"P3_prim", &R::P3_max, &R::P3_min, &R::P3_av},
    {"Q0_prim", &R::Q0_max, &R::Q0_min, &R::Q0_av}, {"Q1_prim", &R::Q1_max, &R::Q1_min, &R::Q1_av},
    {"Q2_prim", &R::Q2_max, &R::Q2_min, &R::Q2_av}, {"Q3_prim", &R::Q3_max, &R::Q3_min, &R::Q3_av},
    {"P_prim", &R::P_max, &R::P_min, &R::P_av},     {"Q_prim", &R::Q_max, &R::Q_min, &R::Q_av},
    {"S_prim", &R::S_max, nullptr, &R::S_av},       {"U12_prim", &R::U12_max, nullptr, nullptr},
    {"U23_prim", &R::U23_max, nullptr, nullptr},    {"U31_prim", &R::U31_max, nullptr, nullptr},
};

} // namespace

Overrides readOverrides() {
    using Number = Measured<std::int32_t>;
    Overrides overrides;
    read("OVR_BAF_enable", Number("OVR_BAF_val").run<kFunctions>(), overrides.functions);
    read("OVR_BA_enable", Number("OVR_BA_val").run<kRelays>(), overrides.relays);
    read("OVR_BE_enable", Number("OVR_BE_val").run<kInputs>(), overrides.inputs);
    read("OVR_MW_enable", Measured<float>("OVR_MW_val").run<32>(), overrides.values);
    return overrides;
}

bool publish(const Cycle& cycle) {
    static const talux::Group kGroup{"relay",
                                     kFirstValue.run<kValues>(),
                                     kFirstState.run<kRelays + kInputs>(),
                                     kFirstWord.run<kWords>(),
                                     Record<talux::MessRecord01>{},
                                     Record<talux::MessRecord02>{}};
    if (kRequest.get() != 0) {
        Measured<float>("mw_U0p").set_run(snapshotOf(cycle.phasors));
        kRequest.set(0);
    }
    Measured<short>("EvCnt_qu2").set(static_cast<short>(cycle.transients));
    return kGroup.write(cycle.values, cycle.outputs.states, cycle.outputs.words, cycle.record,
                        cycle.second_record);
}

bool takeAcknowledgement() {
    if (kResetButton.get() == 0) return false;
    kResetButton.set(0);
    return true;
}

const stVarSpace& factorySpace() {
    static stVarSpace space{};
    LoadDefParamProperties();
    pVarTemp = &space;
    VarSetDefault();
    return space;
}

std::optional<StatRecord_c0> Statistics::add(const Cycle& cycle, const talux::Settings& settings) {
    if (cycle.record.Cnt < std::exchange(lastCount, cycle.record.Cnt)) *this = {};
    ++cycles;
    seconds += kCycle;
    for (const Row& row : kRows) {
        const float value = cycle.values.of(row.value);
        const bool isFirst = cycles == 1;
        running.*row.max = isFirst ? value : std::max(running.*row.max, value);
        if (row.min != nullptr) running.*row.min = isFirst ? value : std::min(running.*row.min, value);
        if (row.mean != nullptr)
            running.*row.mean += (value - running.*row.mean) / static_cast<float>(cycles);
    }
    if (seconds < 60.0 * settings[Setting<std::int32_t>("stat_intervall")]) return {};
    running.SysTime = running.M3TimeStamp = static_cast<std::int32_t>(std::time(nullptr));
    running.dT = static_cast<std::int32_t>(seconds);
    running.EvCnt_qu2 = cycle.transients - std::exchange(transientsBefore, cycle.transients);
    cycles = 0;
    seconds = 0;
    return std::exchange(running, {});
}

} // namespace desk
