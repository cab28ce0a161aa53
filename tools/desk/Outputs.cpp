#include "tools/desk/Outputs.h"

#include <iterator>

namespace desk {

namespace {

using talux::Choice, talux::Measured, talux::Setting, talux::Settings;

struct Output {
    Setting<talux::choice::BAassign> function;
    Setting<talux::choice::BApol> polarity;
};
constexpr Output kRelayOutputs[kRelays] = {{{"BAassign1"}, {"BApol1"}}, {{"BAassign2"}, {"BApol2"}},
                                           {{"BAassign3"}, {"BApol3"}}, {{"BAassign4"}, {"BApol4"}},
                                           {{"BAassign5"}, {"BApol5"}}, {{"BAassign6"}, {"BApol6"}},
                                           {{"BAassign7"}, {"BApol7"}}, {{"BAassign8"}, {"BApol8"}}};
constexpr Output kLedOutputs[kLeds] = {{{"LEDassign1"}, {"LEDpol1"}}, {{"LEDassign2"}, {"LEDpol2"}},
                                       {{"LEDassign3"}, {"LEDpol3"}}, {{"LEDassign4"}, {"LEDpol4"}},
                                       {{"LEDassign5"}, {"LEDpol5"}}, {{"LEDassign6"}, {"LEDpol6"}},
                                       {{"LEDassign7"}, {"LEDpol7"}}, {{"LEDassign8"}, {"LEDpol8"}},
                                       {{"LEDassign9"}, {"LEDpol9"}}, {{"LEDassign10"}, {"LEDpol10"}}};

// Whether the output is on: its function's state, turned round by polarity "-". An output without a function
// is off whatever its polarity.
bool isOn(const Output& output, const Functions& functions, const Settings& settings) {
    const auto number = static_cast<int>(settings[output.function]);
    if (number <= 1 || number > static_cast<int>(kFunctions)) return false;
    const bool inverted = static_cast<int>(settings[output.polarity]) == 2;
    return functions[static_cast<std::size_t>(number)] != inverted;
}

std::int32_t bits(const Functions& functions, std::size_t first) {
    std::uint32_t word = 0;
    for (std::size_t k = 0; k < 32; ++k)
        if (first + k <= kFunctions && functions[first + k]) word |= std::uint32_t{1} << k;
    return static_cast<std::int32_t>(word);
}

Functions overridden(Functions functions, const Overrides& overrides) {
    functions[3] = true; // Status: the program runs
    if (overrides.functions)
        for (std::size_t k = 0; k < kFunctions; ++k)
            functions[k + 1] = overrides.functionValues[k] != 0;
    return functions;
}

} // namespace

Overrides readOverrides() {
    static constexpr Measured<std::int32_t> kFunctionsOn{"OVR_BAF_enable"}, kRelaysOn{"OVR_BA_enable"},
        kInputsOn{"OVR_BE_enable"}, kValuesOn{"OVR_MW_enable"}, kFunctionValues{"OVR_BAF_val"},
        kRelayValues{"OVR_BA_val"}, kInputValues{"OVR_BE_val"};
    static constexpr Measured<float> kMeasured{"OVR_MW_val"};
    Overrides overrides;
    overrides.functions = kFunctionsOn.get() != 0;
    overrides.relays = kRelaysOn.get() != 0;
    overrides.inputs = kInputsOn.get() != 0;
    overrides.values = kValuesOn.get() != 0;
    if (overrides.functions) kFunctionValues.get_run(overrides.functionValues);
    if (overrides.relays) kRelayValues.get_run(overrides.relayValues);
    if (overrides.inputs) kInputValues.get_run(overrides.inputValues);
    if (overrides.values) kMeasured.get_run(overrides.measuredValues);
    return overrides;
}

Outputs outputsOf(const Detection& detection, const std::bitset<kInputs>& inputs, const Overrides& overrides,
                  const Settings& settings) {
    static constexpr Setting<talux::choice::BEpol> kPolarities[kInputs] = {
        {"BEpol1"}, {"BEpol2"}, {"BEpol3"}, {"BEpol4"}, {"BEpol5"}, {"BEpol6"}};
    Outputs result;
    const Functions functions = overridden(detection.relays(), overrides);
    const Functions ledFunctions = overridden(detection.leds(), overrides);
    std::uint32_t relays = 0, leds = 0, inputWord = 0;
    for (std::size_t k = 0; k < kRelays; ++k) {
        const bool on =
            overrides.relays ? overrides.relayValues[k] != 0 : isOn(kRelayOutputs[k], functions, settings);
        result.states[k] = on ? 1 : 0;
        relays |= std::uint32_t{on} << k;
    }
    for (std::size_t k = 0; k < kInputs; ++k) {
        const bool inverted = static_cast<int>(settings[kPolarities[k]]) == 2;
        const bool on = overrides.inputs ? overrides.inputValues[k] != 0 : inputs[k] != inverted;
        result.states[kRelays + k] = on ? 1 : 0;
        inputWord |= std::uint32_t{on} << k;
    }
    for (std::size_t k = 0; k < kLeds; ++k) {
        result.leds[k] = isOn(kLedOutputs[k], ledFunctions, settings);
        leds |= std::uint32_t{result.leds[k]} << k;
    }
    result.words[Word::inputs] = static_cast<std::int32_t>(inputWord);
    for (std::size_t k = 0; k < 4; ++k)
        result.words[Word::functions1 + k] = bits(functions, 1 + 32 * k);
    result.words[Word::relayStates] = static_cast<std::int32_t>(relays);
    result.words[Word::ledStates] = static_cast<std::int32_t>(leds);
    result.words[Word::earthFaultState] = detection.isEarthFault() ? 1 : 0;
    result.words[Word::shortCircuitState] = detection.isShortCircuit() ? 1 : 0;
    return result;
}

} // namespace desk
