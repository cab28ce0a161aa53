// A relay on the bench: a scenario in words, settings, and the result of each cycle, without a store.
#ifndef TALUX_TEST_DESK_BENCH_H
#define TALUX_TEST_DESK_BENCH_H

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "tools/desk/Desk.h"

namespace desk_test {

using namespace desk;

inline constexpr char kResonant[] =
    "network resonant-earthed 20 kV capacitive 80 A own 6 A detuning -5 % damping 3 %\n"
    "load 0 A drift 0 %\n";
inline constexpr char kIsolated[] = "network isolated 20 kV capacitive 80 A own 6 A\nload 0 A drift 0 %\n";

class Bench {
public:
    template <class Value>
    void set(talux::Setting<Value> setting, Value value) {
        const auto bytes = talux::detail::bytesOf(talux::table::kindOf<Value>(), setting.id());
        std::memcpy(reinterpret_cast<char*>(space.data()) + bytes.offset, &value, bytes.size);
    }

    // All cycles of the scenario; its faults fail the test.
    const std::vector<Cycle>& run(const std::string& scenario, const Overrides& overrides = {}) {
        std::istringstream text(scenario);
        const Scenario read = readScenario(text);
        for (const std::string& fault : read.faults)
            ADD_FAILURE() << fault;
        cycles.clear();
        Desk device(read);
        const talux::Settings settings(space[0]);
        for (Cycle cycle; cycles.size() < 100000 && device.step(settings, overrides, cycle);)
            cycles.push_back(cycle);
        int numbers = 0;
        for (const Cycle& cycle : cycles)
            numbers += std::ranges::all_of(cycle.values, [](float value) { return std::isfinite(value); });
        EXPECT_EQ(numbers, std::ssize(cycles)) << "cycles with nothing but numbers";
        return cycles;
    }

    [[nodiscard]] talux::Settings settings() const { return talux::Settings(space[0]); }

    // When the function came first, in seconds; -1: never.
    [[nodiscard]] double begins(std::size_t function) const {
        for (const Cycle& cycle : cycles)
            if (cycle.outputs.functions[function]) return cycle.second;
        return -1;
    }
    // For how long it was there.
    [[nodiscard]] double lasts(std::size_t function) const {
        double seconds = 0;
        for (const Cycle& cycle : cycles)
            seconds += cycle.outputs.functions[function] ? kCycle : 0;
        return seconds;
    }

private:
    std::array<stVarSpace, 1> space{factorySpace()};
    std::vector<Cycle> cycles;
};

} // namespace desk_test

#endif
