// What the relay measures of a sample: the phasors at its inputs, corrected by the live settings of the
// analog inputs, and all values that follow from them.
//
// The plant's transformers give 100 V for the nominal voltage (the open delta 1 / 115 for 20 kV, in
// proportion) and 1 A for 100 A: the factory settings of knu.. and kni.. fit a network of 20 kV.
#ifndef TALUX_DESK_METER_H
#define TALUX_DESK_METER_H

#include <talux/follower.hpp>
#include <talux/talux.hpp>

#include "tools/desk/Network.h"

namespace desk {

inline constexpr double kCycle = 0.02; // seconds; settings count in cycles, too

// Voltages in kV and V, currents in A.
struct Phasors {
    Four primaryVoltage{}, primaryCurrent{};
    Four secondaryVoltage{}, secondaryCurrent{};
    double frequency = 50;
};

Phasors correct(const Sample& sample, double kilovolt, const talux::Settings& settings);

// A zero-sequence component of another frequency than the network's.
struct Harmonic {
    double voltage = 0, current = 0; // kV, A
    double degrees = 0;              // of the voltage against the current

    [[nodiscard]] double admittance() const { return voltage == 0 ? 0 : current / voltage; } // mS
};

// H 250, H fx1, the lower and the upper frequency of fx2.
inline constexpr std::size_t kHarmonics = 4;
using Harmonics = std::array<Harmonic, kHarmonics>;

// Constant shares of U0: nothing is known of the network's real harmonics. The coil takes nearly nothing of
// them, so that their direction is that of an isolated network.
Harmonics harmonicsOf(const Phasors& phasors, const Network& network, const talux::Settings& settings,
                      bool forward);

// The values of parameters with consecutive ids, by name.
template <class Value, std::size_t count, int firstId>
struct Consecutive : std::array<Value, count> {
    // The value `plus` positions after the named one.
    const Value& of(talux::Measured<Value> name, std::size_t plus = 0) const {
        return (*this)[position(name) + plus];
    }
    void set(talux::Measured<Value> name, std::size_t plus, auto value) {
        (*this)[position(name) + plus] = static_cast<Value>(value);
    }

private:
    static std::size_t position(talux::Measured<Value> name) {
        return static_cast<std::size_t>(name.id() - firstId);
    }
};

// U1_prim and the 67 values that follow it.
inline constexpr talux::Measured<float> kFirstValue{"U1_prim"};
inline constexpr std::size_t kValues = 68;
using Values = Consecutive<float, kValues, kFirstValue.id()>;

// Values one after the other, as records and runs of parameters hold them.
class Floats : public std::vector<float> {
public:
    void add(auto... values) { (push_back(static_cast<float>(values)), ...); }

    // Into the members of a record, beginning `offset` bytes from its start.
    template <class Record>
    void copyTo(Record& record, std::size_t offset) const {
        std::memcpy(reinterpret_cast<char*>(&record) + offset, data(), size() * sizeof(float));
    }
};

Values valuesOf(const Phasors& phasors, const Harmonics& harmonics);
talux::MessRecord01 recordOf(const Phasors& phasors, const Values& values);

// Of the apparent power, in degrees; 0 without a current.
double angleBetween(const Phasor& voltage, const Phasor& current);

} // namespace desk

#endif
