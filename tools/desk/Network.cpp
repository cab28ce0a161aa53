#include "tools/desk/Network.h"

#include <algorithm>
#include <cmath>

namespace desk {

Phasor turn(double degrees) {
    return std::polar(1.0, degrees * std::numbers::pi / 180);
}

double degrees(const Phasor& phasor) {
    return std::arg(phasor) * 180 / std::numbers::pi;
}

Phasor sumOfPhases(const Four& four) {
    return four[1] + four[2] + four[3];
}

void Sample::calculateResidual() {
    voltage[0] = sumOfPhases(voltage) / 3.0;
    current[0] = sumOfPhases(current);
}

Phasor Network::source(std::size_t phase) const {
    return phaseVoltage() * turn(-120.0 * static_cast<double>(phase));
}

// In ampere per kilovolt, so that a product with an ohm takes a thousandth.
Phasor Network::earthAdmittance() const {
    const double reactive = grid.neutral == Neutral::resonant ? grid.detuning : 1;
    const Phasor capacitive = grid.capacitive / phaseVoltage() * Phasor(grid.damping, reactive);
    return capacitive + grid.neutralAmpere / phaseVoltage(); // 0 without a resistor
}

double Network::faultOhm(const EarthFault& fault) const {
    constexpr double kLineAndEarth = 2;
    return earthFaults.size() > 1 ? fault.ohm + kLineAndEarth : fault.ohm;
}

Phasor Network::settledResidual() const {
    constexpr double kOhmPerKilovoltAmpere = 1000;
    if (earthFaults.empty()) return 0;
    if (earthFaults.size() == 1) {
        const double ohm = earthFaults[0].ohm / kOhmPerKilovoltAmpere;
        return -source(earthFaults[0].phase) / (1.0 + ohm * earthAdmittance());
    }
    Phasor drive = 0, admittance = earthAdmittance();
    for (const EarthFault& fault : earthFaults) {
        const double conductance = kOhmPerKilovoltAmpere / faultOhm(fault);
        drive += conductance * source(fault.phase);
        admittance += conductance;
    }
    return -drive / admittance;
}

double Network::timeConstant() const {
    const double omega = 2 * std::numbers::pi * grid.frequency;
    if (earthFaults.empty()) return 2 / (omega * std::max(grid.damping, 0.01));
    const double ohm = faultOhm(earthFaults[0]) / 1000;
    return std::max(0.005, ohm * grid.capacitive / phaseVoltage() / omega);
}

void Network::strike(const EarthFault& fault) {
    earthFaults.push_back(fault);
    const double share = std::min(1.0, std::abs(settledResidual()) / phaseVoltage());
    const double capacitive = fault.forward ? grid.capacitive - grid.own : grid.own;
    onsets.push_back({fault.forward, capacitive * share});
}

void Network::clear() {
    earthFaults.clear();
    shortCircuits.clear();
}

void Network::advance(double seconds) {
    time += seconds;
    const Phasor settled = settledResidual();
    residual = settled + (residual - settled) * std::exp(-seconds / timeConstant());
}

// Between -1 and 1, the same in every run and on every machine.
double Network::random() {
    randomState = static_cast<std::uint32_t>(std::uint64_t{randomState} * 48271 % 2147483647);
    return randomState / 1073741823.5 - 1;
}

Network::PerPhase Network::voltages() const {
    PerPhase voltage{};
    for (std::size_t k = 0; k < kPhases; ++k)
        voltage[k] =
            source(k) * (1 + 0.04 * load.drift * std::sin(time / 7 + static_cast<double>(k))) + residual;
    for (const ShortCircuit& fault : shortCircuits) {
        const Phasor drop = 0.2 * (voltage[fault.from] - voltage[fault.to]); // on either side
        voltage[fault.from] -= drop;
        voltage[fault.to] += drop;
    }
    return voltage;
}

Network::PerPhase Network::currents(const PerPhase& voltage) {
    constexpr Phasor kJ{0, 1};
    const double drift = load.drift, lag = load.degrees * (1 + drift * std::sin(time / 13));
    const Phasor own = kJ * grid.own / phaseVoltage() / 3.0;
    PerPhase current{};
    for (std::size_t k = 0; k < kPhases; ++k) {
        const auto phase = static_cast<double>(k);
        const double unbalance = 0.02 * drift * std::sin(time / 5 + 2 * phase);
        const double ampere =
            load.ampere * (1 + drift * std::sin(time / 11) + unbalance) * (1 + load.noise * random());
        current[k] = ampere * turn(-120 * phase - lag) + own * voltage[k];
    }
    for (const ShortCircuit& fault : shortCircuits) {
        if (!fault.forward) continue;
        const Phasor drive = source(fault.from) - source(fault.to);
        const Phasor ampere = fault.ampere * drive / std::abs(drive) * turn(-60);
        current[fault.from] += ampere;
        current[fault.to] -= ampere;
    }
    for (const EarthFault& fault : earthFaults) {
        if (!fault.forward) continue;
        // A solid fault has no voltage left: its current is what the earth admittance takes.
        current[fault.phase] += earthFaults.size() == 1
                                    ? -earthAdmittance() * residual
                                    : (source(fault.phase) + residual) * 1000.0 / faultOhm(fault);
    }
    return current;
}

Sample Network::look() {
    const PerPhase voltage = voltages(), current = currents(voltage);
    Sample sample;
    for (std::size_t k = 0; k < kPhases; ++k) {
        const std::size_t from = wiring.currentFrom[k];
        const Phasor ampere = wiring.conductorOpen[from] ? Phasor{} : current[from];
        sample.current[k + 1] = wiring.currentReversed[k] ? -ampere : ampere;
        const Phasor kilovolt = wiring.fuseMissing[k] ? Phasor{} : voltage[k];
        sample.voltage[k + 1] = wiring.voltageReversed[k] ? -kilovolt : kilovolt;
    }
    if (wiring.rotationReversed)
        for (Four* four : {&sample.voltage, &sample.current})
            std::swap((*four)[2], (*four)[3]);
    sample.calculateResidual();
    sample.frequency = grid.frequency + 0.005 * std::sin(time / 9);
    return sample;
}

} // namespace desk
