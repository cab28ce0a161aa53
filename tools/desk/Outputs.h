// What follows from the output functions: relays, LEDs, state words, counters, the event log.
#ifndef TALUX_DESK_OUTPUTS_H
#define TALUX_DESK_OUTPUTS_H

#include "tools/desk/Detection.h"

namespace desk {

// REL1 and the 13 values that follow it: REL1 to REL8, BE1 to BE6.
inline constexpr std::size_t kRelays = 8, kInputs = 6, kLeds = 10;
inline constexpr talux::Measured<std::int32_t> kFirstState{"REL1"};
using States = std::array<std::int32_t, kRelays + kInputs>;

// y_BE and the 10 words that follow it, by their place in the run.
inline constexpr talux::Measured<std::int32_t> kFirstWord{"y_BE"};
enum Word : unsigned char {
    inputs,
    telecontrolInputs,
    inputFunctions,
    functions1,
    functions2,
    functions3,
    functions4,
    relayStates,
    ledStates,
    earthFaultState,
    shortCircuitState,
    kWords
};
using Words = std::array<std::int32_t, kWords>;

// What overrides have to say, read from OVR_.. in every cycle; where nothing is enabled, nothing is changed.
struct Overrides {
    bool functions = false, relays = false, inputs = false, values = false;
    std::array<std::int32_t, kFunctions> functionValues{};
    std::array<std::int32_t, kRelays> relayValues{}, inputValues{};
    std::array<float, 32> measuredValues{};
};
Overrides readOverrides();

struct Outputs {
    States states{};
    Words words{};
    std::bitset<kLeds> leds;
};

// `inputs` are the states of BE1 to BE6 before polarity and override.
Outputs outputsOf(const Detection& detection, const std::bitset<kInputs>& inputs, const Overrides& overrides,
                  const talux::Settings& settings);

} // namespace desk

#endif
