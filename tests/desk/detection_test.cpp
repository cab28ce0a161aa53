// Each method signals in the direction of the scenario after its delay, and not when its threshold is just
// above.
#include "Bench.h"

#include <algorithm>
#include <cmath>
#include <dlfcn.h>
#include <map>
#include <pthread.h>

using namespace desk_test;
using talux::Setting;

namespace {

stVarSpace live{};
std::int32_t& request = live.LongData[talux::Measured<std::int32_t>("mw_req").id() - kFirstLong];
float& answer = live.FloatData[talux::Measured<float>("mw_U1p").id() - kFirstFloat];
bool isEarly = false;
void (*atRelease)() = nullptr;

} // namespace

// Groups without shared memory; every access to the store ends with the release of its lock.
talux::detail::PrivateGroups talux::detail::privateGroups;
extern "C" int pthread_mutex_unlock(pthread_mutex_t* lock) noexcept {
    if (atRelease != nullptr) atRelease();
    return reinterpret_cast<int (*)(pthread_mutex_t*)>(dlsym(RTLD_NEXT, "pthread_mutex_unlock"))(lock);
}

namespace {

double value(const Cycle& cycle, talux::Measured<float> which) {
    return cycle.values.of(which);
}

// A long feeder, whose own current is enough for the harmonics of a backward fault.
constexpr char kLong[] =
    "network resonant-earthed 20 kV capacitive 80 A own 20 A damping 3 %\nload 0 A drift 0 %\n";

constexpr char kDetuned[] =
    "network resonant-earthed 20 kV capacitive 80 A own 6 A detuning 30 % damping 10 %\nload 0 A drift 0 %\n";

// The settings that tests change. (clang 14 does not compile those made within the tests.)
constexpr Setting<float> kQu2SigDur{"qu2_SigDur"}, kCosSinAngle1{"CosSin_angle1"},
    kCosSinAngle2{"CosSin_angle2"}, kFreqHigh{"freq_df_max"}, kHealthy{"U123ok"}, kQu2Ice{"qu2_Ice"};
constexpr Setting<talux::choice::BAassign> kLEDassign10{"LEDassign10"}, kBAassign5{"BAassign5"},
    kBAassign6{"BAassign6"};
constexpr Setting<bool> kCosActive{"cos_active"}, kSinActive{"sin_active"}, kScActive{"sc_active"},
    kScDirActive{"sc_dir_active"}, kScEActive{"sc_class_E_active"}, kFreqActive{"freq_active"};

constexpr Setting<std::int32_t> kQuiCount{"qui_n"}, kCosCycle{"cos_cycle"}, kNoCycles{"channel"};
constexpr Setting<talux::Choice> kPrioList1{"prio_list_1"}, kPrioList10{"prio_list_10"};
constexpr Setting<talux::choice::BApol> kBApol2{"BApol2"}, kBApol6{"BApol6"}, kLEDpol10{"LEDpol10"};
constexpr Setting<talux::choice::BEpol> kBEpol2{"BEpol2"};

struct Method {
    const char* name;
    const char* network;
    Setting<bool> active;
    Setting<float> threshold;
    std::size_t forward;                              // the next function is backward
    double delay;                                     // of the factory settings, cycles included
    double (*measured)(const Cycle& cycle) = nullptr; // what is compared with the threshold
};
// The angle between residual current and residual voltage in either direction: 0 to 90 degrees.
double angleToVoltage(const Cycle& cycle) {
    return std::fabs(std::remainder(value(cycle, "phiUI0"), 180));
}
// clang-format off
constexpr Method kMethods[] = {
    {"transient", kResonant, "qu2_active", "qu2_Ice", 28, 0},
    {"sustained", kResonant, "qu2_DE_active", "qu2_Ice", 30, 1},
    {"cos(phi)", kResonant, "cos_active", "cos_Iw_min", 34, 0.1,
     [](const Cycle& cycle) { return std::fabs(value(cycle, "P0_prim")) / value(cycle, "U0_prim"); }},
    {"cos(phi), angle", kResonant, "cos_active", "cos_w_min", 34, 0.1,
     [](const Cycle& cycle) { return 90 - angleToVoltage(cycle); }},
    {"sin(phi), angle", kDetuned, "sin_active", "sin_w_min", 36, 0.1, angleToVoltage},
    {"sin(phi)", kIsolated, "sin_active", "sin_I_min", 36, 0.1,
     [](const Cycle& cycle) { return std::fabs(value(cycle, "Q0_prim")) / value(cycle, "U0_prim"); }},
    {"cos and sin", kIsolated, "cos_sin_active", "CosSin_I_min", 38, 0.06,
     [](const Cycle& cycle) { return value(cycle, "I0_prim"); }},
    {"fifth harmonic", kLong, "harm1_active", "harm1_Ice", 40, 0.1,
     [](const Cycle& cycle) { return value(cycle, "I0_250_abs"); }},
    {"fifth harmonic, voltage", kLong, "harm1_active", "harm1_Umin", 40, 0.1,
     [](const Cycle& cycle) { return value(cycle, "U0_250_abs") * std::sqrt(3.0) * 5; }},
    {"settable harmonic", kLong, "harm2_active", "harm2_Ice", 42, 0.1,
     [](const Cycle& cycle) { return value(cycle, "I0_f1_abs"); }},
    {"settable harmonic, voltage", kLong, "harm2_active", "harm2_Umin", 42, 0.1,
     [](const Cycle& cycle) { return value(cycle, "U0_f1_abs") * std::sqrt(3.0) * 5; }},
    {"admittance", kLong, "adm_active", "adm_I_min_1", 85, 0.06,
     [](const Cycle& cycle) { return value(cycle, "I0_f3_abs"); }},
    {"admittance, voltage", kLong, "adm_active", "adm_U_min", 85, 0.06,
     [](const Cycle& cycle) { return value(cycle, "U0_f3_abs") * std::sqrt(3.0) * 5; }},
};

constexpr char kReversed[] = "at 0 s transformer I1 reversed\nat 0 s transformer I2 reversed\n"
                             "at 0 s transformer I3 reversed\n",
               kShortCircuit[] = "at 1 s short circuit L2 L3 950 A forward\nat 4 s fault cleared\n",
               kLowFrequency[] = "at 0 s frequency 49.8 Hz\nat 4 s frequency 50 Hz\n",
               kRestriking[] = "at 1 s restriking earth fault L1 solid forward every 0.3 s for 0.06 s\n"
                               "at 2.01 s fault cleared\n";
constexpr struct {
    std::size_t function;
    Setting<bool> active;
    Setting<float> relay, led;
    const char* network;
} kDurations[] = {
    {17, "qu2_active", "Uearth_SigDur", "Uearth_SigDur_LED", kResonant},
    {21, "qu2_active", "Uearth_SigDur", "Uearth_SigDur_LED", kIsolated},
    {28, "qu2_active", "qu2_SigDur", "qu2_SigDur_LED", kResonant},
    {30, "qu2_DE_active", "qu2_SigDur", "qu2_SigDur_LED", kResonant},
    {32, "qui_active", "qui_SigDur", "qui_SigDur_LED", kRestriking},
    {34, "cos_active", "cos_SigDur", "cos_SigDur_LED", kResonant},
    {36, "sin_active", "sin_SigDur", "sin_SigDur_LED", kIsolated},
    {38, "cos_sin_active", "cos_sin_SigDur", "cos_sin_SigDur_LED", kIsolated},
    {40, "harm1_active", "harm1_SigDur", "harm1_SigDur_LED", kLong},
    {42, "harm2_active", "harm2_SigDur", "harm2_SigDur_LED", kLong},
    {85, "adm_active", "adm_T_hold", "adm_T_hold_LED", kLong},
    {57, "sc_active", "sc_SigDur", "sc_SigDur_LED", kShortCircuit},
    {61, "sc_active", "sc_SigDur", "sc_SigDur_LED", kShortCircuit},
    {82, "freq_active", "freq_T_hold", "freq_T_hold_LED", kLowFrequency},
    {84, "freq_active", "freq_T_hold", "freq_T_hold_LED", kLowFrequency},
};
constexpr struct { std::size_t function; Setting<float> delay; Setting<std::int32_t> cycles; double later = 0.7; } kDelays[] = {
    {34, "cos_SigDel", "cos_cycle"}, {36, "sin_SigDel", "sin_cycle"}, {38, "cos_sin_SigDel", "cos_sin_cycle"}, {82, "freq_T_delay", "freq_N_cycle"},
    {40, "harm1_SigDel", "harm1_cycle"}, {42, "harm2_SigDel", "harm2_cycle"}, {85, "adm_T_delay", "adm_N_cycles"},
    {17, "Uearth_SigDel", kNoCycles, 0.3}, {21, "Uearth_SigDel", kNoCycles, 0.3}, {30, "DE_t", kNoCycles, 0.3}, {57, "sc_T_min_1", kNoCycles, 0.3}, {61, "sc_T_min_2", kNoCycles, 0.3}};
// The ranges of angles: for which function, what turns the angle, and by how much.
constexpr struct { Setting<bool> active; Setting<float> from, to; std::size_t function; const char* direction; talux::Measured<float> angle; double turned; } kRanges[] = {
    {"cos_sin_active", "CosSin_angle1", "CosSin_angle2", 38, "forward", "phiUI0", 180},
    {"cos_sin_active", "CosSin_angle2", "CosSin_angle1", 39, "backward", "phiUI0", 0},
    {"adm_active", "adm_Phi_FW_min", "adm_Phi_FW_max", 85, "forward", "Y0_f3_phi", 0},
    {"adm_active", "adm_Phi_BW_min", "adm_Phi_BW_max", 86, "backward", "Y0_f3_phi", 0},
    {"sc_dir_active", "sc_Phi_min_fwd", "sc_Phi_max_fwd", 67, "forward", "phiUI2", 0},
    {"sc_dir_active", "sc_Phi_min_bwd", "sc_Phi_max_bwd", 75, "forward", "phiUI2", 0}};
// clang-format on

std::string faultAt2(const char* network, const char* direction) {
    return std::string(network) + "at 2 s earth fault L1 10 ohm " + direction +
           "\nat 6 s fault cleared\nat 12 s end\n";
}

TEST(DeskDetection, SignalsInTheDirectionOfTheFaultAfterItsDelay) {
    for (const Method& method : kMethods)
        for (const int way : {0, 1, 2, 3}) { // 2 and 3: currents reversed, which the charges do not show
            SCOPED_TRACE(method.name + std::to_string(way));
            const bool forward = way % 2 == 0,
                       isTurned = way > 1 && method.forward / 10 == 3 && method.forward > 30;
            const std::string fault =
                (way > 1 ? kReversed : "") + faultAt2(method.network, forward ? "forward" : "backward");
            const std::size_t wrong = method.forward + (forward != isTurned ? 1 : 0),
                              right = 2 * method.forward + 1 - wrong;
            Bench bench;
            bench.set(method.active, true);
            if (method.measured != nullptr) bench.set(kQu2Ice, 1000.0F);
            if (!forward) bench.set(kCosSinAngle1, -91.0F), bench.set(kCosSinAngle2, 1.0F); // in either order
            const Cycle during = bench.run(fault)[250];
            EXPECT_EQ(bench.begins(wrong), -1);
            if (!forward && method.forward == 34) { // a healthy feeder has no active current
                EXPECT_EQ(bench.begins(right), -1);
                continue;
            }
            EXPECT_NEAR(bench.begins(right), 2 + method.delay, 0.05);
            if (method.measured == nullptr) continue;
            EXPECT_EQ(bench.begins(24 + right - method.forward), bench.begins(right)) << "of any method";
            for (const double factor : {0.999, 1.01}) {
                const double threshold = method.measured(during) * factor;
                bench.set(method.threshold, static_cast<float>(threshold));
                bench.run(fault);
                EXPECT_EQ(bench.begins(right) > 0, factor < 1) << "threshold " << threshold;
            }
        }
}

TEST(DeskDetection, BeginsAndEndsEachRangeOfAnglesWhereItsSettingsSay) {
    for (const auto& [active, from, to, function, direction, angle, turned] : kRanges)
        for (const double off : {-1.0, 0.0, 360.0, 1.0}) {
            const std::string what =
                faultAt2(kLong, direction) + "at 3 s short circuit L2 L3 950 A forward\n";
            Bench bench;
            bench.set(kScActive, true), bench.set(active, true);
            const double middle = std::remainder(value(bench.run(what)[175], angle) + turned, 360) + off;
            bench.set(from, static_cast<float>(middle - 0.7)),
                bench.set(to, static_cast<float>(middle + 0.7));
            bench.run(what);
            EXPECT_EQ(bench.begins(function) > 0, std::abs(off) != 1) << function << ' ' << off;
        }
}

TEST(DeskDetection, HasALimitForEachSideOfTheFrequencyAndOneForHealthyPhases) {
    Bench bench;
    bench.set(kFreqActive, true), bench.set(kFreqHigh, 0.3F), bench.set(kHealthy, 105.0F);
    bench.run("load 0 A drift 0 %\nat 2 s frequency 50.2 Hz\nat 6 s frequency 49.8 Hz\nat 12 s end\n");
    EXPECT_TRUE(bench.begins(83) == -1 && bench.begins(82) > 6 && bench.begins(5) == -1);
}

TEST(DeskDetection, ComparesTheChargeWithTheThresholdsOfTransientAndRestriking) {
    constexpr Setting<float> kThresholds[] = {"qu2_Ice", "qui_Ice"};
    for (const bool forward : {true, false}) {
        const double charge = (forward ? 74 : 6) / std::numbers::sqrt2;
        const std::string fault =
            std::string("L1 144.3375672974064 ohm ") + (forward ? "forward" : "backward");
        for (const double factor : {0.99, 1.01}) {
            Bench bench;
            for (const auto& threshold : kThresholds)
                bench.set(threshold, static_cast<float>(charge * factor));
            if (forward) bench.set(kQuiCount, 0); // which means one
            const auto& cycles = bench.run(std::string(kIsolated) + "at 1 s restriking earth fault " + fault +
                                           " every 0.3 s for 0.06 s\nat 3 s fault cleared\nat 5 s end\n");
            EXPECT_EQ(bench.begins(forward ? 28 : 29) > 0, factor < 1);
            EXPECT_EQ(bench.begins(forward ? 32 : 33) > 0, factor < 1);
            EXPECT_EQ(cycles[50].harmonics[0].degrees, forward ? 90 : -90);
        }
    }
}

TEST(DeskDetection, KeepsDurationsOfRelaysAndLeds) {
    Bench bench;
    for (const int cycles : {0, 1, 5}) { // as numbers that a delay reaches exactly
        bench.set(kCosActive, true), bench.set(kCosCycle, cycles);
        bench.run(faultAt2(kResonant, "forward"));
        EXPECT_NEAR(bench.begins(34), cycles < 2 ? 2 : 2.08, 0.001) << cycles;
    }
    bench.set(kQu2SigDur, 7.0F);
    bench.run(faultAt2(kResonant, "forward"));
    EXPECT_NEAR(bench.lasts(28), 7, 0.05) << "longer than the fault";
    bench.set(kQu2SigDur, 1.0F);
    bench.run(faultAt2(kResonant, "forward"));
    EXPECT_NEAR(bench.lasts(28), 4.25, 0.15) << "at least as long as the fault";

    for (const auto& [function, active, relay, led, network] : kDurations) { // an LED has one of its own
        bench.set(active, true), bench.set(relay, 0.0F), bench.set(led, 8.0F);
        bench.set(kLEDassign10, static_cast<talux::choice::BAassign>(function));
        double shown = 0;
        for (const Cycle& cycle : bench.run(faultAt2(network, "forward")))
            shown += cycle.outputs.leds[9] ? kCycle : 0;
        EXPECT_NEAR(shown, 8, 0.05) << function;
        EXPECT_LT(bench.lasts(function), 5) << function;
        for (const auto& each : kDelays) // and delays
            if (each.function == function) {
                const double before = bench.begins(function);
                bench.set(each.delay, bench.settings()[each.delay] + 0.3F);
                bench.set(each.cycles, bench.settings()[each.cycles] + 20);
                bench.run(faultAt2(network, "forward"));
                EXPECT_NEAR(bench.begins(function) - before, each.later, 0.03) << function;
            }
    }
}

TEST(DeskDetection, PrefersTheFirstPlaceOfThePriorityList) {
    for (const int first : {2, 9}) { // transient, or sin, which finds the other direction later
        Bench bench;
        bench.set(kSinActive, true), bench.set(kPrioList1, static_cast<talux::Choice>(first));
        bench.set(kPrioList10, static_cast<talux::Choice>(11 - first));
        bench.run("at 0 s transformer I1 reversed\n" + faultAt2(kIsolated, "forward"));
        EXPECT_EQ(bench.begins(27), first == 2 ? -1 : bench.begins(37));
        EXPECT_TRUE(bench.begins(26) == bench.begins(28) && (bench.lasts(26) > 1) == (first == 2));
    }
}

TEST(DeskDetection, BeginsWhatTheSettingsSay) {
    const std::string isolated = kIsolated, fault = "at 2 s earth fault L1 solid ",
                      resonant = faultAt2(kResonant, "forward");
    const std::string reversed = "at 0 s transformer I2 reversed\nat 0 s transformer I3 reversed\n";
    const auto shortCircuit = [](const std::string& what, const std::string& before) {
        return "network isolated 20 kV capacitive 30 A own 3 A\nload 100 A drift 0 %\n" + before +
               "at 1 s short circuit " + what + " forward\nat 3 s fault cleared\nat 4 s end\n";
    };
    using Begins = std::map<std::size_t, double>;
    const auto with = [](Begins others) { // what an earth fault at L1 begins
        others.merge(Begins{{16, 2}, {17, 3}, {18, 2}, {21, 3}, {24, 2}, {28, 2}, {30, 3}});
        return others;
    };
    // clang-format off
    const struct {
        const char* what;
        std::string scenario;
        std::vector<Setting<bool>> on;
        short lastOfList; // 0: as from the factory
        Begins begins; // of all functions that begin: the second
    } cases[] = {
        {"the faulty phase and its delay", faultAt2(kIsolated, "forward"), {}, 0, with({})},
        {"two phases are low", isolated + fault + "forward\nat 2 s fuse U3 missing\nat 4 s end\n", {}, 0,
         {{16, 2}, {17, 3}, {24, 2}, {28, 2}, {30, 3}}},
        {"too small a U0, whatever flows", isolated + reversed + "at 2 s load 100 A\n"
         "at 2 s earth fault L2 3000 ohm forward\nat 5 s end\n", {kCosActive, kSinActive, "cos_sin_active"}, 0, {}},
        {"a delay begins anew when the direction changes", isolated + fault + "forward\nat 2.06 s fault cleared\n"
         "at 2.06 s earth fault L1 solid backward\nat 5 s end\n", {kSinActive}, 0,
         with({{25, 2.06}, {33, 2.06}, {37, 2.15}})},
        {"the next fault has its own direction", isolated + fault + "forward\nat 2.5 s fault cleared\n"
         "at 6 s earth fault L1 solid backward\nat 8 s end\n", {}, 0, with({{21, 7}, {25, 6}, {29, 6}, {31, 7}})},
        {"one ignition; the factory list is off, the sum needs none", resonant, {kCosActive}, 0,
         with({{34, 2.1}})},
        {"the list with cos", resonant, {kCosActive}, 8, with({{26, 2.1}, {34, 2.1}})},
        {"short circuits are switched off", shortCircuit("L2 L3 550 A", ""), {}, 0, {}},
        {"class (2 is at 700 A), phase (L1 is healthy) and direction", shortCircuit("L2 L3 550 A", ""),
         {kScActive, kScDirActive}, 0, {{57, 1.5}, {59, 1.5}, {60, 1.5}, {65, 1.5}, {67, 1.5}}},
        {"nobody asks for the direction", shortCircuit("L2 L3 550 A", ""), {kScActive}, 0, {{57, 1.5}, {59, 1.5}, {60, 1.5}}},
        {"both classes, backward", shortCircuit("L2 L3 750 A", reversed), {kScActive, kScDirActive}, 0,
         {{57, 1.5}, {59, 1.5}, {60, 1.5}, {61, 1.1}, {63, 1.1}, {64, 1.1}, {73, 1.5}, {75, 1.5}, {77, 1.1}, {79, 1.1}}},
        {"the earth current", "network low-resistance 20 kV neutral 300 A\nload 0 A\nat 2 s earth fault L1 solid forward\n"
         "at 4 s end\n", {kScActive, kScDirActive, kScEActive}, 0, with({{87, 2.1}, {89, 2.1}})},
        {"low frequency", "network isolated 20 kV\nat 2 s frequency 49.8 Hz\nat 9 s end\n", {kFreqActive}, 0, {{82, 5.05}, {84, 5.05}}},
        {"high frequency", "network isolated 20 kV\nat 2 s frequency 50.2 Hz\nat 9 s end\n", {kFreqActive}, 0, {{83, 5.05}, {84, 5.05}}},
    };
    // clang-format on
    for (auto [what, scenario, on, lastOfList, begins] : cases) {
        Bench bench;
        for (const Setting<bool> setting : on)
            bench.set(setting, true);
        if (lastOfList != 0) bench.set(kPrioList10, static_cast<talux::Choice>(lastOfList));
        EXPECT_EQ(bench.run(scenario).back().outputs.words.of("y_ShortCircuitState"),
                  begins.contains(57) || begins.contains(87))
            << what;
        for (std::size_t function = 16; function <= kFunctions; ++function)
            EXPECT_NEAR(std::max(bench.begins(function), 0.0), begins[function], 0.03)
                << what << ": " << function;
    }
}

TEST(DeskOutputs, FollowAssignmentPolarityAndOverrides) {
    using talux::choice::BAassign, talux::choice::BApol;
    Bench bench;
    bench.set(kBAassign5, static_cast<BAassign>(28));
    bench.set(kBAassign6, static_cast<BAassign>(28));
    bench.set(kBApol6, static_cast<BApol>(2)), bench.set(kBApol2, static_cast<BApol>(2));
    for (const Cycle& cycle : bench.run(faultAt2(kResonant, "forward"))) {
        const int signal = cycle.outputs.functions[28] ? 1 : 0;
        ASSERT_EQ(cycle.outputs.states[4], signal) << cycle.second;
        ASSERT_EQ(cycle.outputs.states[5], 1 - signal) << cycle.second;
        ASSERT_EQ(cycle.outputs.states[0] - cycle.outputs.states[1], 1)
            << "relay 1 has Status, relay 2 nothing";
        ASSERT_EQ(cycle.outputs.words.of("y_BA") >> 4 & 1, signal);
    }
    Overrides overrides;
    overrides.functions.emplace();
    for (std::size_t k = 0; k < kFunctions; k += 3) // function 28 too
        (*overrides.functions)[k] = 1;
    overrides.values.emplace()[0] = 7;
    overrides.inputs.emplace()[2] = 1;
    const std::string input = std::string(kResonant) + "at 1 s input BE1 on\nat 2 s end\n";
    bench.set(kLEDassign10, static_cast<BAassign>(28)), bench.set(kLEDpol10, static_cast<BApol>(2));
    bench.set(kBEpol2, static_cast<talux::choice::BEpol>(2));
    const Cycle cycle = bench.run(input, overrides).back();
    EXPECT_EQ(cycle.outputs.states[4], 1);
    EXPECT_EQ(cycle.outputs.words.of("y_LED"),
              static_cast<std::int32_t>(cycle.outputs.leds.to_ulong() & 0x1FF));
    EXPECT_EQ(cycle.outputs.words.of("y_BE"), 1 << 2) << "the override replaces the inputs";
    constexpr unsigned kThirds[] = {0x49249249, 0x92492492, 0x24924924, 0x49249249};
    for (std::size_t k = 0; k < 4; ++k)
        EXPECT_TRUE(static_cast<unsigned>(cycle.outputs.words.of("y_BAF1", k)) == kThirds[k] &&
                    static_cast<unsigned>((&cycle.second_record.y_BAF_01)[k]) == kThirds[k]);
    EXPECT_EQ(cycle.values[0], 7);
    EXPECT_EQ(cycle.outputs.states[kRelays + 2], 1);
    overrides.relays.emplace()[7] = 1;
    EXPECT_EQ(bench.run(input, overrides).back().outputs.words.of("y_BA"), 1 << 7);
    EXPECT_EQ(bench.run(input).back().outputs.words.of("y_BE"), 3) << "BE1, and BE2 inverted";
}

TEST(DeskStatistics, HoldMaximumMinimumAndMeanOfAnInterval) {
    Bench bench;
    bench.set(Setting<std::int32_t>{"stat_intervall"}, 1);
    Statistics statistics;
    std::vector<talux::StatRecord_c0> records;
    for (const Cycle& cycle : bench.run("network isolated 20 kV\nload 100 A drift 0 %\nat 30 s load 300 A\n"
                                        "at 40 s earth fault L2 solid forward\nat 41 s fault cleared\n"
                                        "at 50 s earth fault L3 solid backward\nat 51 s fault cleared\nat "
                                        "130 s restart\nat 191 s end\n"))
        if (const auto record = statistics.add(cycle, bench.settings())) records.push_back(*record);
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[1].EvCnt_qu2, 0) << "those of its own minute";
    EXPECT_EQ(records[2].EvCnt_qu2, 0) << "a restart begins a minute and counts from 0";
    EXPECT_NEAR(records[1].I1_av, 300, 3);
    const talux::StatRecord_c0& record = records[0];
    EXPECT_NEAR(record.I1_max, 300, 3);
    EXPECT_NEAR(record.I1_av, 200, 3);
    EXPECT_NEAR(record.U1_min, 11.547, 1e-3);
    EXPECT_EQ(record.dT, 60);
    EXPECT_EQ(record.EvCnt_qu2, 2);
}

// A script that finds its request cleared finds the answer.
TEST(DeskStore, AnswersARequestBeforeItClearsIt) {
    static char records[1024];
    Bench bench;
    const Cycle& cycle = bench.run("at 1 s end\n").back();
    pVarGlobal = &live;
    pVarStruct = records;
    request = 1;
    atRelease = [] { isEarly = isEarly || (request == 0 && answer == 0); };
    EXPECT_TRUE(publish(cycle));
    atRelease = nullptr;
    EXPECT_TRUE(request == 0 && !isEarly);
    const talux::MessRecord01& record = cycle.record;
    const float* const all = &answer - 1; // from mw_U0p on
    for (int k = 0; k < 4; ++k)
        EXPECT_TRUE(all[k] == (&record.U0p)[k] && all[k + 4] == (&record.U0s)[k] &&
                    all[k + 8] == (&record.I0p)[k] && all[k + 12] == (&record.I0s)[k] &&
                    all[k + 16] == (&record.wU0)[k] && all[k + 24] == (&record.wUI0)[k]);
    EXPECT_EQ(live.IntData[talux::Measured<short>("EvCnt_qu2").id() - kFirstInt], cycle.transients);
}

TEST(DeskMeter, HasPowersAndVoltagesBetweenPhasesOfItsPhasors) {
    const std::string scenario =
        "network isolated 20 kV capacitive 80 A own 6 A\nload 150 A angle 25 deg drift 0 % noise 1 %\n"
        "at 1 s earth fault L2 400 ohm forward\nat 3 s end\n";
    Bench bench, again;
    const auto& cycles = bench.run(scenario);
    EXPECT_TRUE(std::ranges::equal(cycles, again.run(scenario), {}, &Cycle::values, &Cycle::values))
        << "not the same noise twice";
    EXPECT_NE(cycles[0].record.I1p, cycles[1].record.I1p) << "no noise";
    const auto parts = [](const Phasor& x) {
        return std::array{std::abs(x), x.real(), x.imag(), degrees(x)};
    };
    for (const Cycle& cycle : cycles) {
        const auto& [u, i, us, is, hertz] = cycle.phasors;
        Four s, line;
        for (std::size_t k = 0; k < 4; ++k)
            s[k] = u[k] * std::conj(i[k]), line[k] = u[k] - u[k % 3 + 1];
        const float* member = &cycle.record.U0p;
        const auto expect = [&](const Four& four, std::initializer_list<std::size_t> which,
                                std::size_t from = 0) {
            for (std::size_t k = from; k < 4; ++k)
                for (const std::size_t part : which)
                    EXPECT_NEAR(*member++, parts(four[k])[part], 1e-3 + 1e-6 * std::abs(four[k]));
        };
        expect(u, {0}), expect(u, {3}), expect(i, {0}), expect(us, {0}), expect(is, {0}), expect(s, {3});
        expect(line, {0, 1, 2, 3}, 1), expect(s, {1}), expect(s, {2}), expect(s, {0});
        expect({0, 0, 0, s[1] + s[2] + s[3]}, {1, 2, 0}, 3);
        EXPECT_NEAR(*member++, cycle.record.Pg / cycle.record.Sg, 1e-6);
        EXPECT_NEAR(cycle.values.of("U31_sec"), std::abs(us[3] - us[1]), 1e-3);
        for (std::size_t k = 0; k < 16; ++k) { // of each harmonic: angle and admittance in the other order
            const float value = cycle.values.of("U0_250_abs", k % 4 == 2 ? k + 1 : k % 4 == 3 ? k - 1 : k);
            EXPECT_EQ((&cycle.second_record.U0p_250)[k], k % 4 == 2 ? -value : value);
        }
        constexpr double kHertz[] = {250, 217, 25, 75}; // from the factory
        for (std::size_t k = 0; k < kHarmonics; ++k)
            EXPECT_NEAR(cycle.harmonics[k].admittance() * 250, cycle.harmonics[0].admittance() * kHertz[k],
                        1e-9);
        EXPECT_EQ(*member, static_cast<float>(hertz));
    }
    EXPECT_EQ(bench.run("network isolated 20 kV own 0 A\nload 0 A\nat 1 s end\n")[0].record.cosphi, 0);
}

} // namespace
