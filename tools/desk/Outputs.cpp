#include "tools/desk/Outputs.h"

namespace desk {

namespace {

using talux::Measured, talux::Series, talux::Settings;
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

template <std::size_t count>
std::int32_t wordOf(const std::bitset<count>& bits) {
    return static_cast<std::int32_t>(bits.to_ulong());
}

// The values, if they are enabled.
template <class Value, std::size_t count>
void read(Measured<std::int32_t> enabled, talux::Run<Value, count> run,
          std::optional<std::array<Value, count>>& values) {
    if (enabled.get() != 0) values = run.get();
}

} // namespace

Overrides readOverrides() {
    static constexpr Measured<std::int32_t> kFunctionValues{"OVR_BAF_val"}, kRelayValues{"OVR_BA_val"},
        kInputValues{"OVR_BE_val"};
    static constexpr Measured<float> kMeasured{"OVR_MW_val"};
    Overrides overrides;
    read({"OVR_BAF_enable"}, kFunctionValues.run<kFunctions>(), overrides.functions);
    read({"OVR_BA_enable"}, kRelayValues.run<kRelays>(), overrides.relays);
    read({"OVR_BE_enable"}, kInputValues.run<kInputs>(), overrides.inputs);
    read({"OVR_MW_enable"}, kMeasured.run<32>(), overrides.values);
    return overrides;
}

bool Outputs::signals(std::size_t function) const {
    const auto word = static_cast<std::uint32_t>(words[Word::functions1 + (function - 1) / 32]);
    return (word >> (function - 1) % 32 & 1U) != 0;
}

Outputs outputsOf(const Detection& detection, const std::bitset<kInputs>& inputs, const Overrides& overrides,
                  const Settings& settings) {
    static constexpr Series<BAassign> kRelayFunctions{"BAassign"}, kLedFunctions{"LEDassign"};
    static constexpr Series<BApol> kRelayPolarities{"BApol"}, kLedPolarities{"LEDpol"};
    static constexpr Series<BEpol> kInputPolarities{"BEpol"};
    const auto of = [&](const auto& series, std::size_t k) {
        return settings[series[static_cast<int>(k) + 1]];
    };
    const Functions functions = overridden(detection.relays(), overrides),
                    ledFunctions = overridden(detection.leds(), overrides);
    Outputs result;
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
    result.words[Word::inputs] = wordOf(seen);
    for (std::size_t k = 0; k < 4; ++k)
        result.words[Word::functions1 + k] = wordOf(functions >> (1 + 32 * k) & Functions(0xFFFFFFFF));
    result.words[Word::relayStates] = wordOf(relays);
    result.words[Word::ledStates] = wordOf(result.leds);
    result.words[Word::earthFaultState] = detection.isEarthFault();
    result.words[Word::shortCircuitState] = detection.isShortCircuit();
    return result;
}

} // namespace desk
