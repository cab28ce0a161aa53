// Plays the rest of the device: loads the factory defaults, then measures a three-phase network twenty
// times a second and works with the live value of one setting.
//
//   device [LOGFILE]
//
// Prints "ready" once the first measured values are in the store, and tells the live value of the setting
// whenever it changes, in LOGFILE or on standard output. Ends at SIGTERM or SIGINT.
//
// It fills
//   U1_prim .. U3_prim, U0_prim   U1 .. U3, U0   U12_prim .. U31_prim   U12_sec .. U31_sec
//   I1_prim .. I3_prim, I0_prim   I1 .. I3, I0   phiUI1 .. phiUI3, phiUI0
//   S1_prim .. Q0_prim            S_prim, P_prim, Q_prim, COSPHI         f_grid
//   MessRecord01, but for the short-circuit currents
// as the group "measurements", see docs/linking.md, and leaves everything else at zero: harmonics,
// statistics, inputs and outputs, faults, the other records.
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <complex>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <numbers>
#include <thread>

#include <talux/talux.hpp>

namespace {

using talux::Measured, talux::MessRecord01, talux::Setting;

constexpr Setting<float> kThreshold{"Uearth"};
constexpr auto kPeriod = std::chrono::milliseconds(50);

using Phasor = std::complex<double>;
using Phases = std::array<Phasor, 4>; // the residual first, as in the records

double degrees(const Phasor& phasor) {
    return std::arg(phasor) * 180.0 / std::numbers::pi;
}

// A network of 20 kV whose voltages, load and frequency drift slowly. Kilovolt and ampere, so powers are
// in kW and kvar; angles in degrees.
struct Network {
    Phases voltage, current;
    double frequency;

    explicit Network(double seconds) : frequency(50.0 + 0.02 * std::sin(seconds / 9.0)) {
        const double lag = 18.0 + 3.0 * std::sin(seconds / 13.0);
        for (int k = 0; k < 3; ++k) {
            const double kilovolt = 20.0 / std::sqrt(3.0) * (1.0 + 0.004 * std::sin(seconds / 7.0 + k));
            const double ampere = 180.0 * (1.0 + 0.1 * std::sin(seconds / 11.0 + 2.0 * k));
            const double angle = -120.0 * k;
            const auto phase = static_cast<std::size_t>(k) + 1;
            voltage[phase] = std::polar(kilovolt, angle * std::numbers::pi / 180.0);
            current[phase] = std::polar(ampere, (angle - lag) * std::numbers::pi / 180.0);
        }
        voltage[0] = (voltage[1] + voltage[2] + voltage[3]) / 3.0;
        current[0] = current[1] + current[2] + current[3];
    }
};

// What arrives at the inputs: volt and ampere behind transformers with the ratios that are live.
Phases behind(const std::array<Setting<float>, 4>& ratios, const Phases& primary, double unit) {
    Phases values;
    for (std::size_t k = 0; k < values.size(); ++k)
        values[k] = primary[k] * unit / std::max(static_cast<double>(ratios[k].live()), 0.1);
    return values;
}

constexpr Measured<float> kFirst{"U1_prim"}; // the others follow it
constexpr std::size_t kCount = 42;

// Where a measured value goes: among the parameters and in the record, if there.
struct Value {
    Measured<float> parameter;
    float MessRecord01::*member;
    double value;
};

std::array<Value, kCount> measure(const Network& network) {
    static constexpr std::array<Setting<float>, 4> kVoltageRatios{{{"knu0"}, {"knu1"}, {"knu2"}, {"knu3"}}};
    static constexpr std::array<Setting<float>, 4> kCurrentRatios{{{"kni0"}, {"kni1"}, {"kni2"}, {"kni3"}}};
    const auto& [u0, u1, u2, u3] = network.voltage;
    const auto& [i0, i1, i2, i3] = network.current;
    const auto [v0, v1, v2, v3] = behind(kVoltageRatios, network.voltage, 1000.0);
    const auto [a0, a1, a2, a3] = behind(kCurrentRatios, network.current, 1.0);
    const Phasor s0 = u0 * std::conj(i0), s1 = u1 * std::conj(i1), s2 = u2 * std::conj(i2),
                 s3 = u3 * std::conj(i3), s = s1 + s2 + s3;
    return {{
        {{"U1_prim"}, &MessRecord01::U1p, std::abs(u1)},
        {{"U2_prim"}, &MessRecord01::U2p, std::abs(u2)},
        {{"U3_prim"}, &MessRecord01::U3p, std::abs(u3)},
        {{"U0_prim"}, &MessRecord01::U0p, std::abs(u0)},
        {{"I1_prim"}, &MessRecord01::I1p, std::abs(i1)},
        {{"I2_prim"}, &MessRecord01::I2p, std::abs(i2)},
        {{"I3_prim"}, &MessRecord01::I3p, std::abs(i3)},
        {{"I0_prim"}, &MessRecord01::I0p, std::abs(i0)},
        {{"phiUI1"}, &MessRecord01::wUI1, degrees(u1 / i1)},
        {{"phiUI2"}, &MessRecord01::wUI2, degrees(u2 / i2)},
        {{"phiUI3"}, &MessRecord01::wUI3, degrees(u3 / i3)},
        {{"phiUI0"}, &MessRecord01::wUI0, degrees(u0 / i0)},
        {{"U1"}, &MessRecord01::U1s, std::abs(v1)},
        {{"U2"}, &MessRecord01::U2s, std::abs(v2)},
        {{"U3"}, &MessRecord01::U3s, std::abs(v3)},
        {{"U0"}, &MessRecord01::U0s, std::abs(v0)},
        {{"I1"}, &MessRecord01::I1s, std::abs(a1)},
        {{"I2"}, &MessRecord01::I2s, std::abs(a2)},
        {{"I3"}, &MessRecord01::I3s, std::abs(a3)},
        {{"I0"}, &MessRecord01::I0s, std::abs(a0)},
        {{"S1_prim"}, &MessRecord01::S1, std::abs(s1)},
        {{"S2_prim"}, &MessRecord01::S2, std::abs(s2)},
        {{"S3_prim"}, &MessRecord01::S3, std::abs(s3)},
        {{"S0_prim"}, &MessRecord01::S0, std::abs(s0)},
        {{"P1_prim"}, &MessRecord01::P1, s1.real()},
        {{"P2_prim"}, &MessRecord01::P2, s2.real()},
        {{"P3_prim"}, &MessRecord01::P3, s3.real()},
        {{"P0_prim"}, &MessRecord01::P0, s0.real()},
        {{"Q1_prim"}, &MessRecord01::Q1, s1.imag()},
        {{"Q2_prim"}, &MessRecord01::Q2, s2.imag()},
        {{"Q3_prim"}, &MessRecord01::Q3, s3.imag()},
        {{"Q0_prim"}, &MessRecord01::Q0, s0.imag()},
        {{"U12_prim"}, &MessRecord01::U12p_a, std::abs(u1 - u2)},
        {{"U23_prim"}, &MessRecord01::U23p_a, std::abs(u2 - u3)},
        {{"U31_prim"}, &MessRecord01::U31p_a, std::abs(u3 - u1)},
        {{"U12_sec"}, nullptr, std::abs(v1 - v2)},
        {{"U23_sec"}, nullptr, std::abs(v2 - v3)},
        {{"U31_sec"}, nullptr, std::abs(v3 - v1)},
        {{"S_prim"}, &MessRecord01::Sg, std::abs(s)},
        {{"P_prim"}, &MessRecord01::Pg, s.real()},
        {{"Q_prim"}, &MessRecord01::Qg, s.imag()},
        {{"COSPHI"}, &MessRecord01::cosphi, s.real() / std::abs(s)},
    }};
}

// What only the record has: the angles of the voltages, and those between phases as complex numbers.
void addPhasors(MessRecord01& record, const Phases& voltage) {
    const auto& [u0, u1, u2, u3] = voltage;
    const auto put = [](const Phasor& phasor, float& real, float& imaginary, float& angle) {
        real = static_cast<float>(phasor.real());
        imaginary = static_cast<float>(phasor.imag());
        angle = static_cast<float>(degrees(phasor));
    };
    record.wU0 = static_cast<float>(degrees(u0));
    record.wU1 = static_cast<float>(degrees(u1));
    record.wU2 = static_cast<float>(degrees(u2));
    record.wU3 = static_cast<float>(degrees(u3));
    put(u1 - u2, record.U12p_re, record.U12p_im, record.U12p_w);
    put(u2 - u3, record.U23p_re, record.U23p_im, record.U23p_w);
    put(u3 - u1, record.U31p_re, record.U31p_im, record.U31p_w);
}

void publish(const auto& group, double seconds, std::int32_t cycle) {
    const Network network(seconds);
    const auto values = measure(network);
    std::array<float, kCount> run{};
    MessRecord01 record{};
    for (const Value& each : values) {
        const auto value = static_cast<float>(each.value);
        run[static_cast<std::size_t>(each.parameter.id() - kFirst.id())] = value;
        if (each.member != nullptr) record.*each.member = value;
    }
    record.TimeStamp = static_cast<std::int32_t>(std::time(nullptr));
    record.Cnt = cycle;
    record.f_grid = static_cast<float>(network.frequency);
    addPhasors(record, network.voltage);
    if (!group.write(run, record.f_grid, record)) std::fputs("device: somebody else is writing\n", stderr);
}

// Tells the live value of the setting when it is another one than last time.
void watchThreshold(float& last, std::FILE* log) {
    const float live = kThreshold.live();
    if (live == last) return;
    last = live;
    std::fprintf(log, "Uearth is %g now\n", static_cast<double>(live));
    std::fflush(log);
}

volatile std::sig_atomic_t stopRequested = 0;
void requestStop(int) {
    stopRequested = 1;
}

void work(std::FILE* log) {
    const talux::Group group("measurements", kFirst.run<kCount>(), Measured<float>{"f_grid"},
                             talux::Record<MessRecord01>{});
    const auto start = std::chrono::steady_clock::now();
    float last = std::nanf("");
    for (std::int32_t cycle = 1; stopRequested == 0; ++cycle) {
        watchThreshold(last, log);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        publish(group, elapsed.count(), cycle);
        if (cycle == 1) {
            std::puts("ready");
            std::fflush(stdout);
        }
        std::this_thread::sleep_for(kPeriod);
    }
}

} // namespace

int main(int argc, char** argv) {
    std::signal(SIGTERM, requestStop);
    std::signal(SIGINT, requestStop);
    std::FILE* log = argc > 1 ? std::fopen(argv[1], "w") : stdout;
    if (log == nullptr) {
        std::perror(argv[1]);
        return 1;
    }
    talux::Store store;
    store.stage_defaults();
    store.commit();
    work(log);
}
