#include <cmath>

#include "tools/desk/Desk.h"

namespace desk {

namespace {

using talux::Measured, talux::Record;

constexpr Measured<std::int32_t> kRequest{"mw_req"}, kResetButton{"BE_Reset_Button"};
constexpr Measured<float> kSnapshot{"mw_U0p"};
constexpr Measured<short> kTransients{"EvCnt_qu2"};

// In the order of the parameters mw_U0p to mw_phi_UI3; the inputs' voltages stay 0.
std::array<float, 32> snapshotOf(const Phasors& phasors) {
    std::array<float, 32> values{};
    auto next = values.begin();
    const auto put = [&next](double value) { *next++ = static_cast<float>(value); };
    const auto& [u, i, us, is, hertz] = phasors;
    for (const auto& four : {u, us, i, is})
        for (const Phasor& each : four)
            put(std::abs(each));
    for (const auto& four : {u, i})
        for (const Phasor& each : four)
            put(degrees(each));
    for (std::size_t k = 0; k < u.size(); ++k)
        put(i[k] == Phasor{} ? 0 : degrees(u[k] * std::conj(i[k])));
    return values;
}

} // namespace

Publisher::Publisher()
    : group("relay", kFirstValue.run<kValues>(), kFirstState.run<kRelays + kInputs>(),
            kFirstWord.run<kWords>(), Record<talux::MessRecord01>{}, Record<talux::MessRecord02>{}) {}

bool Publisher::publish(const Cycle& cycle, int transients) {
    kTransients.set(static_cast<short>(transients));
    return group.write(cycle.values, cycle.outputs.states, cycle.outputs.words, cycle.record,
                       cycle.second_record);
}

void Publisher::answerRequest(const Cycle& cycle) {
    if (kRequest.get() == 0) return;
    kSnapshot.run<32>().set(snapshotOf(cycle.phasors));
    kRequest.set(0);
}

bool Publisher::takeAcknowledgement() {
    if (kResetButton.get() == 0) return false;
    kResetButton.set(0);
    return true;
}

} // namespace desk
