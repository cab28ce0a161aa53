#include "tools/desk/Detection.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace desk {

namespace {

using talux::Setting, talux::Settings;

constexpr double kPeriod = 0.02; // of the network, which the settings count cycles in

// The part of the residual current in phase with the voltage that drives the fault, -U0, and the part that
// leads it by 90 degrees, in A.
Phasor againstDrive(const View& view) {
    const Phasor drive = -view.phasors.primaryVoltage[0];
    const double magnitude = std::abs(drive);
    return magnitude == 0 ? Phasor{} : view.phasors.primaryCurrent[0] * std::conj(drive) / magnitude;
}

Direction bySign(double part, double min) {
    if (part >= min) return Direction::forward;
    return part <= -min ? Direction::backward : Direction::none;
}

// Whether the angle lies from `min` to `max` degrees, in whichever turn they are given.
bool isBetween(double angle, double min, double max) {
    for (double turn = -720; turn <= 720; turn += 360)
        if (angle + turn >= min && angle + turn <= max) return true;
    return false;
}

Direction cosPhi(const View& view) {
    static constexpr Setting<float> kMin{"cos_Iw_min"}, kAngle{"cos_w_min"};
    if (!view.isEarthFault) return Direction::none;
    const Phasor current = againstDrive(view);
    if (std::abs(std::abs(degrees(current)) - 90) < view.settings[kAngle]) return Direction::none;
    return bySign(current.real(), view.settings[kMin]);
}

Direction sinPhi(const View& view) {
    static constexpr Setting<float> kMin{"sin_I_min"}, kAngle{"sin_w_min"};
    if (!view.isEarthFault) return Direction::none;
    const Phasor current = againstDrive(view);
    const double angle = std::abs(degrees(current));
    if (std::min(angle, 180 - angle) < view.settings[kAngle]) return Direction::none;
    return bySign(current.imag(), view.settings[kMin]);
}

// Forward between the two limit angles of the current against -U0, backward in the opposite range.
Direction cosSin(const View& view) {
    static constexpr Setting<float> kMin{"CosSin_I_min"}, kFirst{"CosSin_angle1"}, kSecond{"CosSin_angle2"};
    const Phasor current = againstDrive(view);
    if (!view.isEarthFault || std::abs(current) < view.settings[kMin]) return Direction::none;
    const double angle = -degrees(current); // lagging is positive, as in phiUI0
    const double min = std::min(view.settings[kFirst], view.settings[kSecond]);
    const double max = std::max(view.settings[kFirst], view.settings[kSecond]);
    if (isBetween(angle, min, max)) return Direction::forward;
    return isBetween(angle, min + 180, max + 180) ? Direction::backward : Direction::none;
}

// Sign of the angle between voltage and current; the limit angle keeps away from active current.
Direction ofHarmonic(const View& view, const Harmonic& each, double minPercent, double minAmpere,
                     double angle) {
    const bool isLarge = each.voltage >= minPercent / 100 * view.nominal && each.current >= minAmpere;
    if (!view.isEarthFault || !isLarge ||
        std::abs(std::sin(each.degrees * std::numbers::pi / 180)) < std::sin(angle * std::numbers::pi / 180))
        return Direction::none;
    return each.degrees > 0 ? Direction::forward : Direction::backward;
}

Direction fifth(const View& view) {
    static constexpr Setting<float> kVoltage{"harm1_Umin"}, kCurrent{"harm1_Ice"}, kAngle{"harm1_angle"};
    const auto& s = view.settings;
    return ofHarmonic(view, view.harmonics[0], s[kVoltage], s[kCurrent], s[kAngle]);
}

Direction settableHarmonic(const View& view) {
    static constexpr Setting<float> kVoltage{"harm2_Umin"}, kCurrent{"harm2_Ice"}, kAngle{"harm2_angle"};
    const auto& s = view.settings;
    return ofHarmonic(view, view.harmonics[1], s[kVoltage], s[kCurrent], s[kAngle]);
}

// Of the upper frequency of fx2: the angle of Y0 against the two ranges, the backward one first.
Direction admittance(const View& view) {
    static constexpr Setting<float> kVoltage{"adm_U_min"}, kCurrent{"adm_I_min_1"},
        kForwardMin{"adm_Phi_FW_min"}, kForwardMax{"adm_Phi_FW_max"}, kBackwardMin{"adm_Phi_BW_min"},
        kBackwardMax{"adm_Phi_BW_max"};
    const auto& s = view.settings;
    const Harmonic& each = view.harmonics[3];
    const bool isLarge = each.voltage >= s[kVoltage] / 100.0 * view.nominal && each.current >= s[kCurrent];
    if (!view.isEarthFault || !isLarge) return Direction::none;
    const double angle = -each.degrees;
    if (isBetween(angle, s[kBackwardMin], s[kBackwardMax])) return Direction::backward;
    return isBetween(angle, s[kForwardMin], s[kForwardMax]) ? Direction::forward : Direction::none;
}

Direction transientOf(const View& view) {
    return view.transient;
}
Direction restrikingOf(const View& view) {
    return view.restriking;
}

constexpr Setting<std::int32_t> kNoCycles{"qui_n"}; // stands where a method counts no cycles

// Everything that belongs to a method with a direction; a setting that it does not have is that of another
// one.
struct Method {
    Setting<bool> active;
    Direction (*decide)(const View& view);
    bool hasDelay;
    Setting<float> delay, duration, ledDuration;
    bool hasCycles;
    Setting<std::int32_t> cycles;
    std::size_t forward; // output function; the next one is backward
    int priority;        // number in prio_list_..; 0: not in it
};
constexpr Method kTable[] = {
    {{"qu2_active"},
     transientOf,
     false,
     {"qu2_SigDur"},
     {"qu2_SigDur"},
     {"qu2_SigDur_LED"},
     false,
     kNoCycles,
     28,
     2},
    {{"qu2_DE_active"},
     transientOf,
     true,
     {"DE_t"},
     {"qu2_SigDur"},
     {"qu2_SigDur_LED"},
     false,
     kNoCycles,
     30,
     3},
    {{"qui_active"},
     restrikingOf,
     false,
     {"qui_SigDur"},
     {"qui_SigDur"},
     {"qui_SigDur_LED"},
     false,
     kNoCycles,
     32,
     4},
    {{"harm1_active"},
     fifth,
     true,
     {"harm1_SigDel"},
     {"harm1_SigDur"},
     {"harm1_SigDur_LED"},
     true,
     {"harm1_cycle"},
     40,
     5},
    {{"harm2_active"},
     settableHarmonic,
     true,
     {"harm2_SigDel"},
     {"harm2_SigDur"},
     {"harm2_SigDur_LED"},
     true,
     {"harm2_cycle"},
     42,
     6},
    {{"cos_active"},
     cosPhi,
     true,
     {"cos_SigDel"},
     {"cos_SigDur"},
     {"cos_SigDur_LED"},
     true,
     {"cos_cycle"},
     34,
     8},
    {{"sin_active"},
     sinPhi,
     true,
     {"sin_SigDel"},
     {"sin_SigDur"},
     {"sin_SigDur_LED"},
     true,
     {"sin_cycle"},
     36,
     9},
    {{"cos_sin_active"},
     cosSin,
     true,
     {"cos_sin_SigDel"},
     {"cos_sin_SigDur"},
     {"cos_sin_SigDur_LED"},
     true,
     {"cos_sin_cycle"},
     38,
     0},
    {{"adm_active"},
     admittance,
     true,
     {"adm_T_delay"},
     {"adm_T_hold"},
     {"adm_T_hold_LED"},
     true,
     {"adm_N_cycles"},
     85,
     0},
};
static_assert(std::size(kTable) == kMethods);

} // namespace

bool Signal::step(bool decided, double cycle, double delay, double duration) {
    lastsFor -= cycle;
    decidedFor = decided ? decidedFor + cycle : 0;
    const bool starts = decided && decidedFor >= delay && decidedFor - cycle < std::max(delay, cycle);
    if (starts) lastsFor = std::max(lastsFor, duration);
    return (decided && decidedFor >= delay) || lastsFor > cycle / 2;
}

void Detection::acknowledge() {
    for (MethodState& method : methods) {
        method.relay.release();
        method.led.release();
    }
    for (std::size_t k = 0; k < voltageDelayed.size(); ++k) {
        voltageDelayed[k].release();
        for (Signal& signal : phaseDelayed[k])
            signal.release();
    }
    for (auto& ofClass : overcurrent)
        for (Signal& signal : ofClass)
            signal.release();
    for (Signal& signal : frequency)
        signal.release();
}

void Detection::set(std::size_t function, bool relay, bool led) {
    forRelays[function] = relay;
    forLeds[function] = led;
}

bool Detection::isShortCircuit() const {
    return forRelays[57] || forRelays[61] || forRelays[87];
}

void Detection::step(const Phasors& phasors, const Harmonics& harmonics, const std::vector<Onset>& onsets,
                     const Settings& settings, double cycle) {
    static constexpr Setting<float> kThreshold{"Uearth"};
    time += cycle;
    const double nominal = phaseVoltageOf(settings);
    const bool wasEarthFault = std::exchange(earthFault, std::abs(phasors.primaryVoltage[0]) >=
                                                             settings[kThreshold] / 100.0 * nominal);
    if (wasEarthFault && !earthFault) transient = Direction::none;
    View view{phasors, harmonics, settings, nominal, earthFault, transient, Direction::none};
    observe(onsets, view);
    view.transient = earthFault ? transient : Direction::none;
    view.restriking = restriking(settings);
    voltages(view, cycle);
    directions(view, cycle);
    combine(settings);
    shortCircuits(view, cycle);
    frequencies(view, cycle);
}

// The first charge of an earth fault sets the direction of the transient method; every one is an ignition.
void Detection::observe(const std::vector<Onset>& onsets, const View& view) {
    static constexpr Setting<float> kTransient{"qu2_Ice"}, kRestriking{"qui_Ice"};
    for (const Onset& onset : onsets) {
        const Direction direction = onset.forward ? Direction::forward : Direction::backward;
        if (onset.ampere >= view.settings[kTransient] && transient == Direction::none) {
            transient = direction;
            ++transientCount;
        }
        if (onset.ampere >= view.settings[kRestriking]) ignitions.emplace_back(time, direction);
    }
}

Direction Detection::restriking(const Settings& settings) {
    static constexpr Setting<std::int32_t> kWindow{"qui_T_super"}, kCount{"qui_n"};
    const double since = time - settings[kWindow] / 1000.0;
    while (!ignitions.empty() && ignitions.front().first < since)
        ignitions.pop_front();
    const auto enough = static_cast<std::size_t>(std::max(settings[kCount], 1));
    return ignitions.size() >= enough ? ignitions.back().second : Direction::none;
}

// 5 to 7 healthy phases, 16 and 17 the earth fault, 18 to 23 the faulty phase, at once and delayed.
void Detection::voltages(const View& view, double cycle) {
    static constexpr Setting<float> kOk{"U123ok"}, kFaulty{"U123erd"}, kDelay{"Uearth_SigDel"},
        kDuration{"Uearth_SigDur"}, kLedDuration{"Uearth_SigDur_LED"};
    const double delay = view.settings[kDelay];
    const double durations[] = {view.settings[kDuration], view.settings[kLedDuration]};
    std::array<bool, kPhases> ok{}, low{};
    for (std::size_t k = 0; k < kPhases; ++k) {
        const double percent = std::abs(view.phasors.primaryVoltage[k + 1]) / view.nominal * 100;
        ok[k] = percent >= view.settings[kOk];
        low[k] = percent <= view.settings[kFaulty];
        set(5 + k, ok[k], ok[k]);
    }
    set(16, earthFault, earthFault);
    set(17, voltageDelayed[0].step(earthFault, cycle, delay, durations[0]),
        voltageDelayed[1].step(earthFault, cycle, delay, durations[1]));
    for (std::size_t k = 0; k < kPhases; ++k) {
        const bool faulty = earthFault && low[k] && ok[(k + 1) % 3] && ok[(k + 2) % 3];
        set(18 + k, faulty, faulty);
        set(21 + k, phaseDelayed[0][k].step(faulty, cycle, delay, durations[0]),
            phaseDelayed[1][k].step(faulty, cycle, delay, durations[1]));
    }
}

void Detection::directions(const View& view, double cycle) {
    for (std::size_t k = 0; k < std::size(kTable); ++k) {
        const Method& method = kTable[k];
        MethodState& state = methods[k];
        if (!view.isEarthFault) state.kept = Direction::none;
        Direction decision = view.settings[method.active] ? method.decide(view) : Direction::none;
        // After the fault has gone, U0 decays and the feeder's own current looks like a backward fault.
        if (state.kept != Direction::none) decision = state.kept;
        const bool turned =
            decision != Direction::none && state.decided != Direction::none && decision != state.decided;
        if (turned) state.relay = state.led = Signal();
        state.decided = decision;
        const double delay = (method.hasDelay ? view.settings[method.delay] : 0.0F) +
                             (method.hasCycles ? kPeriod * view.settings[method.cycles] : 0.0);
        const bool decided = decision != Direction::none;
        const bool relay = state.relay.step(decided, cycle, delay, view.settings[method.duration]);
        const bool led = state.led.step(decided, cycle, delay, view.settings[method.ledDuration]);
        if (decided && relay) state.relayDirection = state.kept = decision;
        if (decided && led) state.ledDirection = decision;
        for (const Direction each : {Direction::forward, Direction::backward})
            set(method.forward + (each == Direction::backward ? 1 : 0), relay && state.relayDirection == each,
                led && state.ledDirection == each);
    }
}

// 24 and 25: any method; 26 and 27: the first place of the priority list whose method signals.
void Detection::combine(const Settings& settings) {
    static constexpr Setting<talux::Choice> kPlaces[] = {
        {"prio_list_1"}, {"prio_list_2"}, {"prio_list_3"}, {"prio_list_4"}, {"prio_list_5"},
        {"prio_list_6"}, {"prio_list_7"}, {"prio_list_8"}, {"prio_list_9"}, {"prio_list_10"}};
    const auto anyOf = [](const Functions& functions, std::size_t plus) {
        return std::any_of(std::begin(kTable), std::end(kTable),
                           [&](const Method& method) { return functions[method.forward + plus]; });
    };
    const auto first = [&settings](const Functions& functions) {
        for (const auto& place : kPlaces)
            for (const Method& method : kTable)
                if (method.priority != 0 && static_cast<int>(settings[place]) == method.priority)
                    for (std::size_t plus = 0; plus < 2; ++plus)
                        if (functions[method.forward + plus]) return plus;
        return std::size_t{2};
    };
    const std::size_t relay = first(forRelays), led = first(forLeds);
    for (std::size_t plus = 0; plus < 2; ++plus) {
        set(24 + plus, anyOf(forRelays, plus), anyOf(forLeds, plus));
        set(26 + plus, relay == plus, led == plus);
    }
}

// 57 to 64 without direction, 8 more forward, 16 more backward; 87 to 89 of the earth current.
void Detection::shortCircuits(const View& view, double cycle) {
    static constexpr Setting<bool> kActive{"sc_active"}, kDirectional{"sc_dir_active"};
    static constexpr struct {
        Setting<bool> active;
        Setting<float> min, time;
        std::size_t function;
    } kClasses[] = {{{"sc_class_1_active"}, {"sc_I_min_1"}, {"sc_T_min_1"}, 57},
                    {{"sc_class_2_active"}, {"sc_I_min_2"}, {"sc_T_min_2"}, 61},
                    {{"sc_class_E_active"}, {"sc_I_min_E"}, {"sc_T_min_E"}, 87}};
    static constexpr Setting<float> kDuration{"sc_SigDur"}, kForwardMin{"sc_Phi_min_fwd"},
        kForwardMax{"sc_Phi_max_fwd"}, kBackwardMin{"sc_Phi_min_bwd"}, kBackwardMax{"sc_Phi_max_bwd"};
    const auto& s = view.settings;
    const auto ofPhase = [&](std::size_t k, double min, double max) {
        const auto& u = view.phasors.primaryVoltage[k];
        const auto& i = view.phasors.primaryCurrent[k];
        return i != Phasor{} && isBetween(degrees(u * std::conj(i)), min, max);
    };
    for (std::size_t c = 0; c < 3; ++c) {
        const auto& each = kClasses[c];
        const bool isEarth = c == 2;
        const std::size_t backward = isEarth ? 2 : 16, forward = isEarth ? 1 : 8;
        std::array<bool, 3> any{};
        for (std::size_t k = isEarth ? 0 : 1; k < (isEarth ? 1U : 4U); ++k) {
            const double ampere = std::abs(view.phasors.primaryCurrent[k]);
            const bool decided = s[kActive] && s[each.active] && ampere >= s[each.min];
            const bool on = overcurrent[c][k].step(decided, cycle, s[each.time], s[kDuration]);
            const bool directed = on && decided && s[kDirectional];
            const std::array<bool, 3> now{on, directed && ofPhase(k, s[kForwardMin], s[kForwardMax]),
                                          directed && ofPhase(k, s[kBackwardMin], s[kBackwardMax])};
            for (std::size_t way = 0; way < 3; ++way)
                any[way] = any[way] || now[way];
            if (isEarth) continue;
            set(each.function + k, now[0], now[0]);
            set(each.function + forward + k, now[1], now[1]);
            set(each.function + backward + k, now[2], now[2]);
        }
        set(each.function, any[0], any[0]);
        set(each.function + forward, any[1], any[1]);
        set(each.function + backward, any[2], any[2]);
    }
}

// 82 too low, 83 too high, 84 either.
void Detection::frequencies(const View& view, double cycle) {
    static constexpr Setting<bool> kActive{"freq_active"};
    static constexpr Setting<float> kReference{"freq_f_grid"}, kBelow{"freq_df_min"}, kAbove{"freq_df_max"},
        kDelay{"freq_T_delay"}, kHold{"freq_T_hold"};
    static constexpr Setting<std::int32_t> kCycles{"freq_N_cycle"};
    const auto& s = view.settings;
    const double deviation = view.phasors.frequency - s[kReference];
    const bool low = s[kActive] && deviation <= -s[kBelow], high = s[kActive] && deviation >= s[kAbove];
    const bool decided[] = {low, high, low || high};
    for (std::size_t k = 0; k < 3; ++k) {
        const bool on = frequency[k].step(decided[k], cycle, s[kDelay] + kPeriod * s[kCycles], s[kHold]);
        set(82 + k, on, on);
    }
}

} // namespace desk
