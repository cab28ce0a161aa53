#include "tools/desk/Desk.h"

#include <algorithm>
#include <ctime>

namespace desk {

namespace {

using talux::MessRecord02;

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

MessRecord02 recordOf(const Cycle& cycle) {
    static_assert(offsetof(MessRecord02, Y0_abs_fx2p) - offsetof(MessRecord02, U0p_250) ==
                  15 * sizeof(float));
    MessRecord02 record{};
    record.TimeStamp = cycle.record.TimeStamp;
    record.Cnt = cycle.record.Cnt;
    Floats members;
    for (const Harmonic& each : cycle.harmonics)
        for (const double value : {each.voltage, each.current, each.degrees, each.admittance()})
            members.add(value);
    members.copyTo(record, offsetof(MessRecord02, U0p_250));
    const Words& words = cycle.outputs.words;
    record.y_BE_01 = words[Word::inputs];
    record.y_BA_01 = words[Word::relayStates];
    record.y_BAF_01 = words[Word::functions1];
    record.y_BAF_02 = words[Word::functions2];
    record.y_BAF_03 = words[Word::functions3];
    record.y_BAF_04 = words[Word::functions4];
    return record;
}

} // namespace

void Desk::carryOut(const Event& event) {
    std::visit(
        Overloaded{
            [this](const EarthFault& fault) {
                network.strike(fault);
                isForward = fault.forward;
            },
            [this](const ShortCircuit& fault) { network.strike(fault); },
            [this](const Restriking& fault) {
                restriking = fault;
                restrikeAt = time;
                isForward = fault.fault.forward;
            },
            [this](Cleared) {
                network.clear();
                restriking.reset();
            },
            [this](const Rewire& change) { (network.wiring().*change.what)[change.phase] = change.on; },
            [this](const Rotation& rotation) { network.wiring().rotationReversed = rotation.reversed; },
            [this](const Swap& change) {
                auto& from = network.wiring().currentFrom;
                from[change.first] = change.on ? change.second : change.first;
                from[change.second] = change.on ? change.first : change.second;
            },
            [this](const Input& input) { inputs[input.number] = input.on; },
            [this](const Frequency& change) { network.setFrequency(change.hertz); },
            [this](const LoadStep& change) { network.load().ampere = change.ampere; },
            [this](Restart) {
                detection = Detection();
                count = 0;
                downUntil = time + 1;
            },
            [this](const Replay& replay) {
                recording = openRecording(script.folder / replay.path);
                recordingSince = time;
            },
            [this](End) { ended = true; },
        },
        event);
}

void Desk::strikeAgain() {
    if (!restriking) return;
    if (time >= restrikeAt) {
        network.strike(restriking->fault);
        extinguishAt = restrikeAt + restriking->during;
        restrikeAt += restriking->every;
    } else if (time >= extinguishAt) {
        network.clear();
    }
}

Sample Desk::sample() {
    Sample replayed;
    if (recording != nullptr) {
        if (recording->at(time - recordingSince, replayed)) return replayed;
        recording.reset();
    }
    return network.look();
}

bool Desk::step(const talux::Settings& settings, const Overrides& overrides, Cycle& cycle) {
    for (; next < script.events.size() && script.events[next].second <= time + kCycle / 2; ++next)
        carryOut(script.events[next].event);
    if (ended) return false;
    strikeAgain();
    network.advance(kCycle);
    cycle.second = time;
    cycle.phasors = correct(sample(), script.grid.kilovolt, settings);
    cycle.harmonics = harmonicsOf(cycle.phasors, network, settings, isForward);
    cycle.values = valuesOf(cycle.phasors, cycle.harmonics);
    if (overrides.values) std::ranges::copy(*overrides.values, cycle.values.begin());
    detection.step(cycle.phasors, cycle.harmonics, network.takeOnsets(), settings);
    cycle.outputs = outputsOf(detection, inputs, overrides, settings);
    cycle.record = recordOf(cycle.phasors, cycle.values);
    cycle.record.TimeStamp = static_cast<std::int32_t>(std::time(nullptr));
    cycle.record.Cnt = ++count;
    cycle.second_record = recordOf(cycle);
    time += kCycle;
    return true;
}

} // namespace desk
