#include "tools/desk/Meter.h"

#include <cmath>
#include <numbers>

namespace desk {

namespace {

using talux::Choice, talux::Measured, talux::MessRecord01, talux::Setting, talux::Settings;

// One analog input and its settings.
struct Channel {
    Setting<float> ratio, correction;
    Setting<talux::choice::Upol> polarity;
};
constexpr Channel kVoltages[] = {
    {{"knu0"}, {"phi_corr_U0"}, {"Upol0"}},
    {{"knu1"}, {"phi_corr_U1"}, {"Upol1"}},
    {{"knu2"}, {"phi_corr_U2"}, {"Upol2"}},
    {{"knu3"}, {"phi_corr_U3"}, {"Upol3"}},
};
constexpr Channel kCurrents[] = {
    {{"kni0"}, {"phi_corr_I0"}, {"Ipol0"}},
    {{"kni1"}, {"phi_corr_I1"}, {"Ipol1"}},
    {{"kni2"}, {"phi_corr_I2"}, {"Ipol2"}},
    {{"kni3"}, {"phi_corr_I3"}, {"Ipol3"}},
};
constexpr Setting<bool> kVoltageSum{"Uen_calc"}, kCurrentSum{"3Io_calc"};
constexpr Setting<float> kNominal{"U12"};

Phasor corrected(const Phasor& secondary, const Channel& channel, const Settings& settings) {
    const double sign = settings[channel.polarity] == static_cast<talux::choice::Upol>(2) ? -1 : 1;
    return std::polar(sign, settings[channel.correction] * std::numbers::pi / 180) * secondary;
}

float single(double value) {
    return static_cast<float>(value);
}

} // namespace

double degrees(const Phasor& phasor) {
    return std::arg(phasor) * 180 / std::numbers::pi;
}

double phaseVoltageOf(const Settings& settings) {
    return settings[kNominal] / 1000.0 / std::numbers::sqrt3;
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
    if (settings[kVoltageSum]) u[0] = (u[1] + u[2] + u[3]) / 3.0;
    if (settings[kCurrentSum]) i[0] = i[1] + i[2] + i[3];
    return result;
}

Harmonics harmonicsOf(const Phasors& phasors, const Network& network, const Settings& settings,
                      bool forward) {
    static constexpr Setting<float> kSettable{"harm2_f"}, kLower{"adm_fu"}, kUpper{"adm_fo"};
    const double hertz[kHarmonics] = {250, settings[kSettable], settings[kLower], settings[kUpper]};
    constexpr double kShares[kHarmonics] = {0.03, 0.04, 0.05, 0.05};
    const Grid& grid = network.grid();
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
    const auto& [u0, u1, u2, u3] = phasors.primaryVoltage;
    const auto& [i0, i1, i2, i3] = phasors.primaryCurrent;
    const auto& [v0, v1, v2, v3] = phasors.secondaryVoltage;
    const auto& [a0, a1, a2, a3] = phasors.secondaryCurrent;
    const Phasor s0 = u0 * std::conj(i0), s1 = u1 * std::conj(i1), s2 = u2 * std::conj(i2),
                 s3 = u3 * std::conj(i3), s = s1 + s2 + s3;
    const auto between = [](const Phasor& u, const Phasor& i) {
        return i == Phasor{} ? 0 : degrees(u * std::conj(i));
    };
    const double apparent = std::abs(s);
    Values values{};
    const auto put = [&values](Measured<float> value, double number) {
        values[static_cast<std::size_t>(value.id() - kFirstValue.id())] = single(number);
    };
    const struct {
        Measured<float> first;
        std::array<double, 4> numbers; // 1 to 3, then 0
    } fours[] = {
        {{"U1_prim"}, {std::abs(u1), std::abs(u2), std::abs(u3), std::abs(u0)}},
        {{"I1_prim"}, {std::abs(i1), std::abs(i2), std::abs(i3), std::abs(i0)}},
        {{"phiUI1"}, {between(u1, i1), between(u2, i2), between(u3, i3), between(u0, i0)}},
        {{"U1"}, {std::abs(v1), std::abs(v2), std::abs(v3), std::abs(v0)}},
        {{"I1"}, {std::abs(a1), std::abs(a2), std::abs(a3), std::abs(a0)}},
        {{"S1_prim"}, {std::abs(s1), std::abs(s2), std::abs(s3), std::abs(s0)}},
        {{"P1_prim"}, {s1.real(), s2.real(), s3.real(), s0.real()}},
        {{"Q1_prim"}, {s1.imag(), s2.imag(), s3.imag(), s0.imag()}},
        {{"S_prim"}, {apparent, s.real(), s.imag(), apparent == 0 ? 0 : s.real() / apparent}},
    };
    for (const auto& [first, numbers] : fours)
        for (int k = 0; k < 4; ++k)
            values[static_cast<std::size_t>(first.id() - kFirstValue.id() + k)] =
                single(numbers[static_cast<std::size_t>(k)]);
    put({"U12_prim"}, std::abs(u1 - u2));
    put({"U23_prim"}, std::abs(u2 - u3));
    put({"U31_prim"}, std::abs(u3 - u1));
    put({"U12_sec"}, std::abs(v1 - v2));
    put({"U23_sec"}, std::abs(v2 - v3));
    put({"U31_sec"}, std::abs(v3 - v1));
    put({"I0earth_prim"}, std::abs(i0));
    put({"f_grid"}, phasors.frequency);
    static constexpr Measured<float> kFirstOf[kHarmonics] = {
        {"U0_250_abs"}, {"U0_f1_abs"}, {"U0_f2_abs"}, {"U0_f3_abs"}};
    for (std::size_t k = 0; k < kHarmonics; ++k) {
        const auto first = static_cast<std::size_t>(kFirstOf[k].id() - kFirstValue.id());
        const Harmonic& each = harmonics[k];
        values[first] = single(each.voltage);
        values[first + 1] = single(each.current);
        values[first + 2] = each.voltage == 0 ? 0 : single(each.current / each.voltage); // mS
        values[first + 3] = single(-each.degrees);
    }
    return values;
}

MessRecord01 recordOf(const Phasors& phasors, const Values& values) {
    const auto value = [&values](Measured<float> which, int plus = 0) {
        return values[static_cast<std::size_t>(which.id() - kFirstValue.id() + plus)];
    };
    MessRecord01 record{};
    // In the record the residual value comes first, among the parameters last.
    using Member = float MessRecord01::*;
    static constexpr struct {
        Measured<float> first;
        Member members[4];
    } kFours[] = {
        {{"U1_prim"}, {&MessRecord01::U0p, &MessRecord01::U1p, &MessRecord01::U2p, &MessRecord01::U3p}},
        {{"I1_prim"}, {&MessRecord01::I0p, &MessRecord01::I1p, &MessRecord01::I2p, &MessRecord01::I3p}},
        {{"U1"}, {&MessRecord01::U0s, &MessRecord01::U1s, &MessRecord01::U2s, &MessRecord01::U3s}},
        {{"I1"}, {&MessRecord01::I0s, &MessRecord01::I1s, &MessRecord01::I2s, &MessRecord01::I3s}},
        {{"phiUI1"}, {&MessRecord01::wUI0, &MessRecord01::wUI1, &MessRecord01::wUI2, &MessRecord01::wUI3}},
        {{"P1_prim"}, {&MessRecord01::P0, &MessRecord01::P1, &MessRecord01::P2, &MessRecord01::P3}},
        {{"Q1_prim"}, {&MessRecord01::Q0, &MessRecord01::Q1, &MessRecord01::Q2, &MessRecord01::Q3}},
        {{"S1_prim"}, {&MessRecord01::S0, &MessRecord01::S1, &MessRecord01::S2, &MessRecord01::S3}},
    };
    for (const auto& [first, members] : kFours)
        for (int k = 0; k < 4; ++k)
            record.*members[k] = value(first, (k + 3) % 4);
    static constexpr Member kAngles[] = {&MessRecord01::wU0, &MessRecord01::wU1, &MessRecord01::wU2,
                                         &MessRecord01::wU3};
    static constexpr Member kBetween[3][4] = {
        {&MessRecord01::U12p_a, &MessRecord01::U12p_re, &MessRecord01::U12p_im, &MessRecord01::U12p_w},
        {&MessRecord01::U23p_a, &MessRecord01::U23p_re, &MessRecord01::U23p_im, &MessRecord01::U23p_w},
        {&MessRecord01::U31p_a, &MessRecord01::U31p_re, &MessRecord01::U31p_im, &MessRecord01::U31p_w}};
    const auto& u = phasors.primaryVoltage;
    for (std::size_t k = 0; k < 4; ++k)
        record.*kAngles[k] = single(degrees(u[k]));
    for (std::size_t k = 0; k < 3; ++k) {
        const Phasor between = u[k + 1] - u[(k + 1) % 3 + 1];
        const double numbers[] = {std::abs(between), between.real(), between.imag(), degrees(between)};
        for (std::size_t each = 0; each < 4; ++each)
            record.*kBetween[k][each] = single(numbers[each]);
    }
    record.Pg = value({"P_prim"});
    record.Qg = value({"Q_prim"});
    record.Sg = value({"S_prim"});
    record.cosphi = value({"COSPHI"});
    record.f_grid = value({"f_grid"});
    return record;
}

} // namespace desk
