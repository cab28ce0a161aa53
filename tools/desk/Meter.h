// What the relay measures of a sample: the phasors at its inputs, corrected by the live settings of the
// analog inputs, and all values that follow from them.
//
// The plant's transformers give 100 V for the nominal voltage (the open delta 1 / 115 for 20 kV, in
// proportion) and 1 A for 100 A: the factory settings of knu.. and kni.. fit a network of 20 kV. A wrong
// ratio or polarity in the settings shows as wrong primary values, as on a device.
#ifndef TALUX_DESK_METER_H
#define TALUX_DESK_METER_H

#include <talux/follower.hpp>
#include <talux/talux.hpp>

#include "tools/desk/Network.h"

namespace desk {

// Residual values first, as in the records: voltages in kV and V, currents in A.
struct Phasors {
    std::array<Phasor, 4> primaryVoltage{}, primaryCurrent{};
    std::array<Phasor, 4> secondaryVoltage{}, secondaryCurrent{};
    double frequency = 50;
};

Phasors correct(const Sample& sample, double kilovolt, const talux::Settings& settings);

// A zero-sequence component of another frequency than the network's.
struct Harmonic {
    double voltage = 0, current = 0; // kV, A
    double degrees = 0;              // of the voltage against the current
};

// H 250, H fx1, the lower and the upper frequency of fx2.
inline constexpr std::size_t kHarmonics = 4;
using Harmonics = std::array<Harmonic, kHarmonics>;

// Constant shares of U0: nothing is known of the network's real harmonics. The coil takes nearly nothing of
// them, so that their direction is that of an isolated network.
Harmonics harmonicsOf(const Phasors& phasors, const Network& network, const talux::Settings& settings,
                      bool forward);

// U1_prim and the 67 values that follow it.
inline constexpr talux::Measured<float> kFirstValue{"U1_prim"};
inline constexpr std::size_t kValues = 68;
using Values = std::array<float, kValues>;

Values valuesOf(const Phasors& phasors, const Harmonics& harmonics);
talux::MessRecord01 recordOf(const Phasors& phasors, const Values& values);

double degrees(const Phasor& phasor);
double phaseVoltageOf(const talux::Settings& settings); // nominal, kV

} // namespace desk

#endif
