// The network against the closed formulas of the zero-sequence circuit.
#include "tools/desk/Network.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

using namespace desk;

namespace {

constexpr double kE = 20 / std::numbers::sqrt3, kExact = 1e-9;
constexpr Grid kIsolated{.neutral = Neutral::isolated, .capacitive = 80, .own = 6};
constexpr Load kNoLoad{.ampere = 0, .drift = 0};

Sample settled(const Grid& grid, const EarthFault& fault, const Load& load = kNoLoad) {
    Network network(grid, load);
    network.strike(fault);
    network.advance(100);
    return network.look();
}
// Of the residual current against -U0, the voltage that drives the fault; a positive angle leads.
double leads(const Sample& sample) {
    return std::arg(sample.current[0] / -sample.voltage[0]) * 180 / std::numbers::pi;
}

TEST(DeskNetwork, HasVoltagesAndResidualCurrentOfASolidFaultInAnIsolatedNetwork) {
    for (std::size_t phase = 0; phase < kPhases; ++phase)
        for (const bool forward : {true, false}) {
            const Sample sample = settled(kIsolated, {.phase = phase, .ohm = 0, .forward = forward});
            EXPECT_NEAR(std::abs(sample.voltage[0]), kE, kExact);
            for (std::size_t k = 0; k < kPhases; ++k)
                EXPECT_NEAR(std::abs(sample.voltage[k + 1]), k == phase ? 0 : 20, kExact);
            EXPECT_NEAR(std::abs(sample.current[0]), forward ? 80 - 6 : 6, kExact);
            EXPECT_NEAR(leads(sample), forward ? 90 : -90, kExact);
        }
}

TEST(DeskNetwork, HasActivePartFromDampingAndReactivePartFromDetuning) {
    const Grid grid{
        .neutral = Neutral::resonant, .capacitive = 80, .own = 6, .detuning = -0.1, .damping = 0.03};
    const Sample sample = settled(grid, {.forward = true});
    const Phasor againstDrive = sample.current[0] / (-sample.voltage[0] / std::abs(sample.voltage[0]));
    EXPECT_NEAR(againstDrive.real(), 0.03 * 80, kExact);
    EXPECT_NEAR(againstDrive.imag(), -0.1 * 80 - 6, kExact);
    EXPECT_NEAR(leads(settled(grid, {.forward = false})), -90, kExact)
        << "no active part in a healthy feeder";
}

TEST(DeskNetwork, FollowsTheCurveOfFaultResistance) {
    for (const double ohm : {0.0, 50.0, 144.3375672974064, 1000.0, 10000.0}) {
        const double ratio = ohm / (kE * 1000 / 80); // of the fault to the reactance of the network to earth
        const Sample sample = settled(kIsolated, {.ohm = ohm});
        EXPECT_NEAR(std::abs(sample.voltage[0]) / kE, 1 / std::sqrt(1 + ratio * ratio), kExact) << ohm;
    }
    const Grid resistor{.neutral = Neutral::lowResistance, .capacitive = 40, .own = 4, .neutralAmpere = 500};
    const Sample sample = settled(resistor, {.forward = true});
    EXPECT_NEAR(std::abs(sample.current[0]), std::hypot(500, 40 - 4), 1e-6);
}

TEST(DeskNetwork, ApproachesItsSteadyStateExponentially) {
    Network network({.neutral = Neutral::resonant, .detuning = 0.05, .damping = 0.03}, kNoLoad);
    network.strike(EarthFault{});
    ASSERT_EQ(network.takeOnsets().size(), 1U);
    network.advance(0.005); // the time constant of a solid fault
    EXPECT_NEAR(std::abs(network.look().voltage[0]) / kE, 1 - std::exp(-1), kExact);
    network.advance(10);
    network.clear();
    const double decay = 2 / (2 * std::numbers::pi * 50 * 0.03);
    for (int k = 1; k <= 3; ++k) {
        network.advance(decay);
        EXPECT_NEAR(std::abs(network.look().voltage[0]) / kE, std::exp(-k), 1e-6);
    }
}

TEST(DeskNetwork, DrivesACurrentThroughTwoFaultsAtOnce) {
    Network network(kIsolated, kNoLoad);
    network.strike(EarthFault{.phase = 0, .ohm = 1, .forward = true});
    network.strike(EarthFault{.phase = 1, .ohm = 1, .forward = false});
    network.advance(100);
    // Phase to phase through both faults, with 2 ohm each for line and earth.
    EXPECT_NEAR(std::abs(network.look().current[0]), 20000.0 / 6, 60);
}

} // namespace
