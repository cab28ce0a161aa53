#include "tools/desk/Outputs.h"

namespace desk {

namespace {

using talux::Series, talux::Settings;
using talux::choice::BAassign, talux::choice::BApol, talux::choice::BEpol;

bool isInverted(auto polarity) {
    return static_cast<int>(polarity) == 2; // "-"
}

// Whether an output is on: its function's state, inverted by its polarity. An output without a function is
// off whatever its polarity.
bool isOn(BAassign function, BApol polarity, const Functions& functions) {
    const auto number = static_cast<std::size_t>(function);
    return number > 1 && number <= kFunctions && functions[number] != isInverted(polarity);
}

Functions overridden(Functions functions, const Overrides& overrides) {
    functions[3] = true; // Status: the program runs
    if (overrides.functions)
        for (std::size_t k = 0; k < kFunctions; ++k)
            functions[k + 1] = (*overrides.functions)[k] != 0;
    return functions;
}

} // namespace

Outputs outputsOf(const Detection& detection, const std::bitset<kInputs>& inputs, const Overrides& overrides,
                  const Settings& settings) {
    static constexpr Series<BAassign> kRelayFunctions{"BAassign"}, kLedFunctions{"LEDassign"};
    static constexpr Series<BApol> kRelayPolarities{"BApol"}, kLedPolarities{"LEDpol"};
    static constexpr Series<BEpol> kInputPolarities{"BEpol"};
    const auto of = [&](const auto& series, std::size_t k) {
        return settings[series[static_cast<int>(k) + 1]];
    };
    const Functions ledFunctions = overridden(detection.leds(), overrides);
    Outputs result;
    const Functions& functions = result.functions = overridden(detection.relays(), overrides);
    std::bitset<kRelays> relays;
    std::bitset<kInputs> seen;
    for (std::size_t k = 0; k < kRelays; ++k) {
        relays[k] = overrides.relays ? (*overrides.relays)[k] != 0
                                     : isOn(of(kRelayFunctions, k), of(kRelayPolarities, k), functions);
        result.states[k] = relays[k];
    }
    for (std::size_t k = 0; k < kInputs; ++k) {
        seen[k] =
            overrides.inputs ? (*overrides.inputs)[k] != 0 : inputs[k] != isInverted(of(kInputPolarities, k));
        result.states[kRelays + k] = seen[k];
    }
    for (std::size_t k = 0; k < kLeds; ++k)
        result.leds[k] = isOn(of(kLedFunctions, k), of(kLedPolarities, k), ledFunctions);
    result.words.set("y_BE", 0, seen.to_ulong());
    for (std::size_t k = 0; k < 4; ++k)
        result.words.set("y_BAF1", k, (functions >> (1 + 32 * k) & Functions(0xFFFFFFFF)).to_ulong());
    result.words.set("y_BA", 0, relays.to_ulong());
    result.words.set("y_LED", 0, result.leds.to_ulong());
    result.words.set("y_EarthFaultState", 0, detection.isEarthFault());
    result.words.set("y_ShortCircuitState", 0, detection.isShortCircuit());
    return result;
}

} // namespace desk
