#include "tools/desk/Desk.h"

#include <cmath>
#include <ctime>

namespace desk {

namespace {

using talux::Measured, talux::MessRecord02;

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

float single(double value) {
    return static_cast<float>(value);
}

// Replaces what OVR_MW_val gives: elements 1 to 32 are the first 32 measured values.
void override(const Overrides& overrides, Values& values) {
    if (!overrides.values) return;
    for (std::size_t k = 0; k < overrides.measuredValues.size(); ++k)
        values[k] = overrides.measuredValues[k];
}

MessRecord02 recordOf(const Cycle& cycle) {
    MessRecord02 record{};
    record.TimeStamp = cycle.record.TimeStamp;
    record.Cnt = cycle.record.Cnt;
    static constexpr struct {
        float MessRecord02::*voltage;
        float MessRecord02::*current;
        float MessRecord02::*angle;
        float MessRecord02::*admittance;
    } kMembers[kHarmonics] = {
        {&MessRecord02::U0p_250, &MessRecord02::I0p_250, &MessRecord02::wUI0_250, &MessRecord02::Y0_abs_250},
        {&MessRecord02::U0p_fx1, &MessRecord02::I0p_fx1, &MessRecord02::wUI0_fx1, &MessRecord02::Y0_abs_fx1},
        {&MessRecord02::U0p_fx2m, &MessRecord02::I0p_fx2m, &MessRecord02::wUI0_fx2m,
         &MessRecord02::Y0_abs_fx2m},
        {&MessRecord02::U0p_fx2p, &MessRecord02::I0p_fx2p, &MessRecord02::wUI0_fx2p,
         &MessRecord02::Y0_abs_fx2p}};
    for (std::size_t k = 0; k < kHarmonics; ++k) {
        const Harmonic& each = cycle.harmonics[k];
        record.*kMembers[k].voltage = single(each.voltage);
        record.*kMembers[k].current = single(each.current);
        record.*kMembers[k].angle = single(each.degrees);
        record.*kMembers[k].admittance = each.voltage == 0 ? 0 : single(each.current / each.voltage);
    }
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

Desk::Desk(const Scenario& scenario, OpenRecording recordings)
    : script(scenario), open(std::move(recordings)), network(scenario.grid, scenario.load) {}

void Desk::carryOut(const Rewire& change) {
    Wiring& wiring = network.wiring();
    const auto phase = static_cast<std::size_t>(change.phase);
    switch (change.what) {
    case Rewire::currentReversed:
        wiring.currentReversed[phase] = change.on;
        break;
    case Rewire::voltageReversed:
        wiring.voltageReversed[phase] = change.on;
        break;
    case Rewire::fuseMissing:
        wiring.fuseMissing[phase] = change.on;
        break;
    case Rewire::conductorOpen:
        wiring.conductorOpen[phase] = change.on;
        break;
    case Rewire::rotation:
        wiring.rotationReversed = change.on;
        break;
    }
}

void Desk::carryOut(const Swap& change) {
    auto& from = network.wiring().currentFrom;
    from[static_cast<std::size_t>(change.first)] = change.on ? change.second : change.first;
    from[static_cast<std::size_t>(change.second)] = change.on ? change.first : change.second;
}

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
            [this](const Rewire& change) { carryOut(change); },
            [this](const Swap& change) { carryOut(change); },
            [this](const Input& input) { inputs[static_cast<std::size_t>(input.number) - 1] = input.on; },
            [this](const Frequency& change) { network.setFrequency(change.hertz); },
            [this](const LoadStep& change) { network.load().ampere = change.ampere; },
            [this](Restart) {
                detection = Detection();
                count = 0;
                downUntil = time + 1;
            },
            [this](const Replay& replay) {
                recording = open(replay.path);
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
    override(overrides, cycle.values);
    detection.step(cycle.phasors, cycle.harmonics, network.takeOnsets(), settings, kCycle);
    cycle.outputs = outputsOf(detection, inputs, overrides, settings);
    cycle.record = recordOf(cycle.phasors, cycle.values);
    cycle.record.TimeStamp = static_cast<std::int32_t>(std::time(nullptr));
    cycle.record.Cnt = ++count;
    cycle.second_record = recordOf(cycle);
    time += kCycle;
    return true;
}

} // namespace desk
