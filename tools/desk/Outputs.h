// What follows from the output functions: relays, LEDs, state words.
#ifndef TALUX_DESK_OUTPUTS_H
#define TALUX_DESK_OUTPUTS_H

#include <optional>

#include "tools/desk/Detection.h"

namespace desk {

// REL1 and the 13 values that follow it: REL1 to REL8, BE1 to BE6.
inline constexpr std::size_t kRelays = 8, kInputs = 6, kLeds = 10;
inline constexpr talux::Measured<std::int32_t> kFirstState{"REL1"};
using States = std::array<std::int32_t, kRelays + kInputs>;

// y_BE and the 10 words that follow it.
inline constexpr talux::Measured<std::int32_t> kFirstWord{"y_BE"};
inline constexpr std::size_t kWords = 11;
using StateWords = Consecutive<std::int32_t, kWords, kFirstWord.id()>;

// What replaces the outputs, inputs and values of the model, read from OVR_.. in every cycle.
struct Overrides {
    std::optional<std::array<std::int32_t, kFunctions>> functions;
    std::optional<std::array<std::int32_t, kRelays>> relays;
    std::optional<std::array<std::int32_t, kInputs>> inputs;
    std::optional<std::array<float, 32>> values; // the first measured values
};

struct Outputs {
    States states{};
    StateWords words{};
    Functions functions; // as relays see them
    std::bitset<kLeds> leds;
};

// `inputs` are the states of BE1 to BE6 before polarity and override.
Outputs outputsOf(const Detection& detection, const std::bitset<kInputs>& inputs, const Overrides& overrides,
                  const talux::Settings& settings);

} // namespace desk

#endif
