// A medium-voltage network in phasors, its faults, and the transformers through which a feeder's relay sees
// it.
//
// Kilovolt and ampere, effective values; angles against the healthy voltage of L1. Currents count from the
// busbar into the feeder. Steady state is the zero-sequence circuit of symmetrical components (for instance
// Willheim and Waters, Neutral Grounding in High-Voltage Transmission, chapters 2 and 4). E is the phase
// voltage, p the faulty phase:
//
//   Y0 = (Ice / E) (d + j v)      of the whole network to earth, all three phases together; v = 1, but
//                                 resonant-earthed v = detuning = (Ice - Il) / Ice with the coil's current
//                                 Il; low-resistance: the neutral's In / E in addition
//   U0 = -Ep / (1 + Rf Y0)        with the fault resistance Rf
//   If = -Y0 U0                   in the fault
//   I0 = j (Iown / E) U0 + If     in the feeder; If only with the fault in this feeder (forward)
//
// Several faults at once (cross-country) share one U0; each then has 2 ohm more, for its line and its earth.
// After a change U0 approaches its new steady state exponentially: at the onset with the time constant of the
// fault resistance and the earth capacitance, at least 5 ms, after clearing with 2 / (omega d).
#ifndef TALUX_DESK_NETWORK_H
#define TALUX_DESK_NETWORK_H

#include <array>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <utility>
#include <vector>

namespace desk {

using Phasor = std::complex<double>;

Phasor turn(double degrees); // of length 1
double degrees(const Phasor& phasor);

// Phases are counted from 0.
inline constexpr std::size_t kPhases = 3;

enum class Neutral : unsigned char { isolated, resonant, lowResistance }; // in the order of scenarios

struct Grid {
    Neutral neutral = Neutral::isolated;
    double kilovolt = 20;     // phase to phase
    double capacitive = 80;   // Ice, A
    double own = 6;           // Iown, A
    double detuning = 0;      // v, a fraction; more than 0: the coil is too small
    double damping = 0;       // d, a fraction of Ice
    double neutralAmpere = 0; // In, of the resistor at full phase voltage
    double frequency = 50;
};

struct Load {
    double ampere = 180;
    double degrees = 18; // current lags
    double drift = 0.1;  // fraction, within minutes; voltages and balance drift by a small part of it
    double noise = 0;    // fraction, from one look to the next
};

struct EarthFault {
    std::size_t phase = 0;
    double ohm = 0;
    bool forward = true; // in this feeder
};

// Between two phases; the voltage between them falls to 60 %.
struct ShortCircuit {
    std::size_t from = 0, to = 1;
    double ampere = 0;
    bool forward = true;
};

// What is wrong between the network and the relay.
struct Wiring {
    using Phases = std::array<bool, kPhases>;
    Phases currentReversed{}, voltageReversed{}, fuseMissing{}, conductorOpen{};
    std::array<std::size_t, kPhases> currentFrom{0, 1, 2}; // which phase each current transformer is in
    bool rotationReversed = false;                         // L2 and L3 exchanged, voltages and currents
};

// The residual quantity, then those of L1 to L3, as in the records.
using Four = std::array<Phasor, 4>;
Phasor sumOfPhases(const Four& four);

// What arrives at the relay, in primary values.
struct Sample {
    Four voltage{}, current{};
    double frequency = 50;

    void calculateResidual(); // from the phases
};

// The first half wave after the onset of an earth fault, for methods that look at the charging.
struct Onset {
    bool forward = false; // the charge flows out of the feeder
    double ampere = 0;    // capacitive current that recharges: of the network without this feeder, or its own
};

class Network {
public:
    Grid grid;
    Load load;
    Wiring wiring;

    explicit Network(const Grid& constants = {}, const Load& connected = {})
        : grid(constants), load(connected) {}

    void strike(const EarthFault& fault);
    void strike(const ShortCircuit& fault) { shortCircuits.push_back(fault); }
    void clear(); // all faults

    void advance(double seconds);

    [[nodiscard]] Sample look();

    // Since the last call; nothing when there was no onset.
    [[nodiscard]] std::vector<Onset> takeOnsets() { return std::exchange(onsets, {}); }

private:
    using PerPhase = std::array<Phasor, kPhases>;

    std::vector<EarthFault> earthFaults;
    std::vector<ShortCircuit> shortCircuits;
    std::vector<Onset> onsets;
    Phasor residual = 0;
    double time = 0;
    std::uint32_t randomState = 1;

    [[nodiscard]] double phaseVoltage() const { return grid.kilovolt / std::numbers::sqrt3; }
    [[nodiscard]] Phasor source(std::size_t phase) const;
    [[nodiscard]] Phasor earthAdmittance() const;
    [[nodiscard]] double faultOhm(const EarthFault& fault) const;
    [[nodiscard]] Phasor settledResidual() const;
    [[nodiscard]] double timeConstant() const;
    [[nodiscard]] PerPhase voltages() const;
    [[nodiscard]] PerPhase currents(const PerPhase& voltage);
    double random();
};

} // namespace desk

#endif
