#include "tools/desk/Meter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace desk {

namespace {

using talux::Measured, talux::MessRecord01, talux::Setting, talux::Settings;

// One analog input and its settings.
struct Channel {
    Setting<float> ratio, correction;
    Setting<talux::choice::Upol> polarity;
};
constexpr Channel kVoltages[] = {
    {"knu0", "phi_corr_U0", "Upol0"},
    {"knu1", "phi_corr_U1", "Upol1"},
    {"knu2", "phi_corr_U2", "Upol2"},
    {"knu3", "phi_corr_U3", "Upol3"},
};
constexpr Channel kCurrents[] = {
    {"kni0", "phi_corr_I0", "Ipol0"},
    {"kni1", "phi_corr_I1", "Ipol1"},
    {"kni2", "phi_corr_I2", "Ipol2"},
    {"kni3", "phi_corr_I3", "Ipol3"},
};
constexpr Setting<bool> kVoltageSum{"Uen_calc"}, kCurrentSum{"3Io_calc"};

Phasor corrected(const Phasor& secondary, const Channel& channel, const Settings& settings) {
    const double sign = settings[channel.polarity] == static_cast<talux::choice::Upol>(2) ? -1 : 1;
    return std::polar(sign, settings[channel.correction] * std::numbers::pi / 180) * secondary;
}

// Of the phases L1, L2, L3 and again L1.
Phasor toNextPhase(const Four& voltage, std::size_t k) {
    return voltage[k] - voltage[k % kPhases + 1];
}

} // namespace

double angleBetween(const Phasor& voltage, const Phasor& current) {
    return current == Phasor{} ? 0 : degrees(voltage * std::conj(current));
}

Phasors correct(const Sample& sample, double kilovolt, const Settings& settings) {
    const double phaseRatio = kilovolt * 10, residualRatio = kilovolt * 5.75, currentRatio = 100;
    Phasors result;
    result.frequency = sample.frequency;
    for (std::size_t k = 0; k < 4; ++k) {
        const Phasor volt = sample.voltage[k] * 1000.0 / (k == 0 ? residualRatio : phaseRatio);
        result.secondaryVoltage[k] = corrected(volt, kVoltages[k], settings);
        result.secondaryCurrent[k] = corrected(sample.current[k] / currentRatio, kCurrents[k], settings);
        result.primaryVoltage[k] =
            result.secondaryVoltage[k] * static_cast<double>(settings[kVoltages[k].ratio]) / 1000.0;
        result.primaryCurrent[k] =
            result.secondaryCurrent[k] * static_cast<double>(settings[kCurrents[k].ratio]);
    }
    auto& u = result.primaryVoltage;
    auto& i = result.primaryCurrent;
    if (settings[kVoltageSum]) u[0] = sumOfPhases(u) / 3.0;
    if (settings[kCurrentSum]) i[0] = sumOfPhases(i);
    return result;
}

Harmonics harmonicsOf(const Phasors& phasors, const Network& network, const Settings& settings,
                      bool forward) {
    static constexpr Setting<float> kSettable{"harm2_f"}, kLower{"adm_fu"}, kUpper{"adm_fo"};
    const double hertz[kHarmonics] = {250, settings[kSettable], settings[kLower], settings[kUpper]};
    constexpr double kShares[kHarmonics] = {0.03, 0.04, 0.05, 0.05};
    const Grid& grid = network.grid;
    const double ampere = forward ? grid.capacitive - grid.own : grid.own;
    const double perKilovolt = ampere * std::numbers::sqrt3 / grid.kilovolt / grid.frequency; // and hertz
    Harmonics result;
    for (std::size_t k = 0; k < kHarmonics; ++k) {
        result[k].voltage = kShares[k] * std::abs(phasors.primaryVoltage[0]);
        result[k].current = result[k].voltage * perKilovolt * hertz[k];
        result[k].degrees = forward ? 90 : -90;
    }
    return result;
}

Values valuesOf(const Phasors& phasors, const Harmonics& harmonics) {
    const auto& [u, i, us, is, hertz] = phasors;
    Values values{};
    Four powers;
    for (std::size_t k = 0; k < powers.size(); ++k) {
        const std::size_t number = (k + 3) % 4; // among the parameters the residual value comes last
        const Phasor& power = powers[k] = u[k] * std::conj(i[k]);
        values.set("U1_prim", number, std::abs(u[k]));
        values.set("I1_prim", number, std::abs(i[k]));
        values.set("phiUI1", number, angleBetween(u[k], i[k]));
        values.set("U1", number, std::abs(us[k]));
        values.set("I1", number, std::abs(is[k]));
        values.set("S1_prim", number, std::abs(power));
        values.set("P1_prim", number, power.real());
        values.set("Q1_prim", number, power.imag());
    }
    for (std::size_t k = 0; k < kPhases; ++k) {
        values.set("U12_prim", k, std::abs(toNextPhase(u, k + 1)));
        values.set("U12_sec", k, std::abs(toNextPhase(us, k + 1)));
    }
    const Phasor total = sumOfPhases(powers);
    const double apparent = std::abs(total);
    values.set("S_prim", 0, apparent);
    values.set("P_prim", 0, total.real());
    values.set("Q_prim", 0, total.imag());
    values.set("COSPHI", 0, apparent == 0 ? 0 : total.real() / apparent);
    values.set("I0earth_prim", 0, std::abs(i[0]));
    for (std::size_t k = 0; k < kHarmonics; ++k) {
        values.set("U0_250_abs", 4 * k, harmonics[k].voltage);
        values.set("I0_250_abs", 4 * k, harmonics[k].current);
        values.set("Y0_250_abs", 4 * k, harmonics[k].admittance());
        values.set("Y0_250_phi", 4 * k, -harmonics[k].degrees);
    }
    values.set("f_grid", 0, hertz);
    return values;
}

// In the order of the members U0p to f_grid.
MessRecord01 recordOf(const Phasors& phasors, const Values& values) {
    static_assert(offsetof(MessRecord01, f_grid) - offsetof(MessRecord01, U0p) == 52 * sizeof(float));
    static constexpr Measured<float> kAmplitudes[] = {"I1_prim", "U1", "I1", "phiUI1"},
                                     kPowers[] = {"P1_prim", "Q1_prim", "S1_prim"},
                                     kTotals[] = {"P_prim", "Q_prim", "S_prim", "COSPHI", "f_grid"};
    Floats members;
    const auto addFour = [&](Measured<float> first) {
        for (std::size_t k = 0; k < 4; ++k) // in the record the residual value comes first
            members.add(values.of(first, (k + 3) % 4));
    };
    const Four& u = phasors.primaryVoltage;
    addFour("U1_prim");
    for (const Phasor& each : u)
        members.add(degrees(each));
    std::ranges::for_each(kAmplitudes, addFour);
    for (std::size_t k = 1; k <= kPhases; ++k) {
        const Phasor between = toNextPhase(u, k);
        members.add(std::abs(between), between.real(), between.imag(), degrees(between));
    }
    std::ranges::for_each(kPowers, addFour);
    for (const Measured<float> each : kTotals)
        members.add(values.of(each));
    MessRecord01 record{};
    members.copyTo(record, offsetof(MessRecord01, U0p));
    return record;
}

} // namespace desk
