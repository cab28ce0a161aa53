#include <cmath>

#include "tools/desk/Desk.h"

namespace desk {

namespace {

using talux::Measured, talux::Record;

constexpr Measured<std::int32_t> kRequest{"mw_req"}, kResetButton{"BE_Reset_Button"};
constexpr Measured<float> kSnapshot{"mw_U0p"};
constexpr Measured<short> kTransients{"EvCnt_qu2"};

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
    kSnapshot.set_run(snapshotOf(cycle.phasors));
    kRequest.set(0);
}

bool Publisher::takeAcknowledgement() {
    if (kResetButton.get() == 0) return false;
    kResetButton.set(0);
    return true;
}

} // namespace desk
