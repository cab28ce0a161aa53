#include "tools/desk/Desk.h"

#include <algorithm>
#include <ctime>

namespace desk {

namespace {

using talux::MessRecord02;

MessRecord02 recordOf(const Cycle& cycle) {
    static_assert(offsetof(MessRecord02, Y0_abs_fx2p) - offsetof(MessRecord02, U0p_250) ==
                  15 * sizeof(float));
    MessRecord02 record{};
    record.TimeStamp = cycle.record.TimeStamp;
    record.Cnt = cycle.record.Cnt;
    Floats members;
    for (const Harmonic& each : cycle.harmonics)
        members.add(each.voltage, each.current, each.degrees, each.admittance());
    members.copyTo(record, offsetof(MessRecord02, U0p_250));
    const StateWords& words = cycle.outputs.words;
    record.y_BE_01 = words.of("y_BE");
    record.y_BA_01 = words.of("y_BA");
    record.y_BAF_01 = words.of("y_BAF1");
    record.y_BAF_02 = words.of("y_BAF2");
    record.y_BAF_03 = words.of("y_BAF3");
    record.y_BAF_04 = words.of("y_BAF4");
    return record;
}

} // namespace

void Desk::strike(const EarthFault& fault) {
    network.strike(fault);
    isForward = fault.forward;
}

void Desk::restrike(const EarthFault& fault, double every, double during) {
    restriking = {fault, every, during, time};
    isForward = fault.forward;
}

void Desk::clear() {
    network.clear();
    restriking.reset();
}

void Desk::restart() {
    detection = Detection();
    downUntil = time + 1;
}

void Desk::replay(const std::shared_ptr<Recording>& given) {
    recording = given;
    recordingSince = time;
}

void Desk::strikeAgain() {
    if (!restriking) return;
    auto& [fault, every, during, nextTime, extinguished] = *restriking;
    if (time >= nextTime) {
        network.strike(fault);
        extinguished = nextTime + during;
        nextTime += every;
    } else if (time >= extinguished) {
        network.clear();
    }
}

bool Desk::step(const talux::Settings& settings, const Overrides& overrides, Cycle& cycle) {
    for (; next < script.events.size() && script.events[next].second <= time + kCycle / 2; ++next)
        script.events[next].happens(*this);
    if (ended) return false;
    strikeAgain();
    network.advance(kCycle);
    cycle.second = time;
    Sample sample;
    if (!recording || !(*recording)(time - recordingSince, sample)) {
        recording = nullptr;
        sample = network.look();
    }
    cycle.phasors = correct(sample, script.grid.kilovolt, settings);
    cycle.harmonics = harmonicsOf(cycle.phasors, network, settings, isForward);
    cycle.values = valuesOf(cycle.phasors, cycle.harmonics);
    if (overrides.values) std::ranges::copy(*overrides.values, cycle.values.begin());
    detection.step(cycle.phasors, cycle.harmonics, network.takeOnsets(), settings);
    cycle.transients = detection.transients();
    cycle.outputs = outputsOf(detection, inputs, overrides, settings);
    cycle.record = recordOf(cycle.phasors, cycle.values);
    cycle.record.TimeStamp = static_cast<std::int32_t>(std::time(nullptr));
    cycle.record.Cnt = ++count;
    cycle.second_record = recordOf(cycle);
    time += kCycle;
    if (isDown()) count = 0;
    return true;
}

} // namespace desk
