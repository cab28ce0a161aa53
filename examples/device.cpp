// A program that measures and works with a setting, as short as it can be: publishes a quiet network twenty
// times a second as the group "measurements", see docs/linking.md. `talux-desk` is the one that knows earth
// faults.
//
//   device [LOGFILE]
//
// Prints "ready" once the first values are in the store, and the live value of the threshold whenever it
// changes, in LOGFILE or on standard output. Ends at SIGTERM or SIGINT.
#include <array>
#include <cmath>
#include <csignal>
#include <cstdio>

#include <talux/follower.hpp>
#include <talux/talux.hpp>

namespace {

constexpr talux::Measured<float> kPhases{"U1_prim"}, kFrequency{"f_grid"};
constexpr talux::Setting<float> kThreshold{"Uearth"};
constexpr int kPeriod = 50; // ms

volatile std::sig_atomic_t stopRequested = 0;
void requestStop(int) {
    stopRequested = 1;
}

// Phase voltages in kV, with a slow drift.
std::array<float, 3> voltagesAt(float second) {
    std::array<float, 3> voltages{};
    for (std::size_t k = 0; k < voltages.size(); ++k)
        voltages[k] = 11.547F * (1 + 0.004F * std::sin(second / 7 + static_cast<float>(k)));
    return voltages;
}

} // namespace

int main(int argc, char** argv) {
    std::signal(SIGTERM, requestStop);
    std::signal(SIGINT, requestStop);
    std::FILE* const log = argc > 1 ? std::fopen(argv[1], "w") : stdout;
    if (log == nullptr) return std::perror(argv[1]), 1;

    talux::Store store;
    store.stage_defaults();
    store.commit();
    talux::Follower follower;
    const talux::Group group("measurements", kPhases.run<3>(), kFrequency,
                             talux::Record<talux::MessRecord01>{});
    talux::MessRecord01 record{};
    std::fprintf(log, "Uearth is %g now\n", static_cast<double>(follower.settings()[kThreshold]));
    while (stopRequested == 0) {
        const float second = static_cast<float>(record.Cnt++) * kPeriod / 1000;
        const auto voltages = voltagesAt(second);
        record.U1p = voltages[0], record.U2p = voltages[1], record.U3p = voltages[2];
        record.f_grid = 50 + 0.02F * std::sin(second / 9);
        if (!group.write(voltages, record.f_grid, record))
            std::fputs("device: somebody else is writing\n", stderr);
        if (record.Cnt == 1) std::puts("ready"), std::fflush(stdout);
        if (follower.wait(kPeriod))
            std::fprintf(log, "Uearth is %g now\n", static_cast<double>(follower.settings()[kThreshold]));
        std::fflush(log);
    }
}
