#include "tools/desk/Detection.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace desk {

namespace {

using talux::Series, talux::Setting, talux::Settings;

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
    if (!view.isEarthFault) return Direction::none;
    const Phasor current = againstDrive(view);
    if (std::abs(std::abs(degrees(current)) - 90) < view["cos_w_min"]) return Direction::none;
    return bySign(current.real(), view["cos_Iw_min"]);
}

Direction sinPhi(const View& view) {
    if (!view.isEarthFault) return Direction::none;
    const Phasor current = againstDrive(view);
    const double angle = std::abs(degrees(current));
    if (std::min(angle, 180 - angle) < view["sin_w_min"]) return Direction::none;
    return bySign(current.imag(), view["sin_I_min"]);
}

// Forward between the two limit angles of the current against -U0, backward in the opposite range.
Direction cosSin(const View& view) {
    const Phasor current = againstDrive(view);
    if (!view.isEarthFault || std::abs(current) < view["CosSin_I_min"]) return Direction::none;
    const double angle = -degrees(current); // lagging is positive, as in phiUI0
    const double min = std::min(view["CosSin_angle1"], view["CosSin_angle2"]);
    const double max = std::max(view["CosSin_angle1"], view["CosSin_angle2"]);
    if (isBetween(angle, min, max)) return Direction::forward;
    return isBetween(angle, min + 180, max + 180) ? Direction::backward : Direction::none;
}

// Whether there is an earth fault with enough of a harmonic.
bool isLarge(const View& view, std::size_t number, double minPercent, double minAmpere) {
    const Harmonic& harmonic = view.harmonics[number];
    return view.isEarthFault && harmonic.voltage >= minPercent / 100 * view.nominal &&
           harmonic.current >= minAmpere;
}

// Sign of the angle between voltage and current; the limit angle keeps away from active current.
Direction ofHarmonic(const View& view, std::size_t number, double minPercent, double minAmpere,
                     double angle) {
    const double degrees = view.harmonics[number].degrees;
    if (!isLarge(view, number, minPercent, minAmpere) || std::abs(turn(degrees).imag()) < turn(angle).imag())
        return Direction::none;
    return degrees > 0 ? Direction::forward : Direction::backward;
}

Direction fifth(const View& view) {
    return ofHarmonic(view, 0, view["harm1_Umin"], view["harm1_Ice"], view["harm1_angle"]);
}

Direction settable(const View& view) {
    return ofHarmonic(view, 1, view["harm2_Umin"], view["harm2_Ice"], view["harm2_angle"]);
}

// Of the upper frequency of fx2: the angle of Y0 against the two ranges, the backward one first.
Direction admittance(const View& view) {
    if (!isLarge(view, 3, view["adm_U_min"], view["adm_I_min_1"])) return Direction::none;
    const double angle = -view.harmonics[3].degrees;
    if (isBetween(angle, view["adm_Phi_BW_min"], view["adm_Phi_BW_max"])) return Direction::backward;
    if (isBetween(angle, view["adm_Phi_FW_min"], view["adm_Phi_FW_max"])) return Direction::forward;
    return Direction::none;
}

Direction transientOf(const View& view) {
    return view.transient;
}
Direction restrikingOf(const View& view) {
    return view.restriking;
}

// A setting that not every method has.
template <class Value>
struct IfAny : std::optional<Setting<Value>> {
    consteval IfAny() = default;
    consteval IfAny(const char* name) : std::optional<Setting<Value>>(Setting<Value>(name)) {}
};

// Everything that belongs to a method with a direction.
struct Method {
    std::size_t forward; // output function; the next one is backward
    int priority;        // number in prio_list_..; 0: not in it
    Direction (*decide)(const View& view);
    Setting<bool> active;
    Setting<float> duration, ledDuration;
    IfAny<float> delay = {};
    IfAny<std::int32_t> cycles = {};
};
constexpr Method kTable[] = {
    {28, 2, transientOf, "qu2_active", "qu2_SigDur", "qu2_SigDur_LED"},
    {30, 3, transientOf, "qu2_DE_active", "qu2_SigDur", "qu2_SigDur_LED", "DE_t"},
    {32, 4, restrikingOf, "qui_active", "qui_SigDur", "qui_SigDur_LED"},
    {40, 5, fifth, "harm1_active", "harm1_SigDur", "harm1_SigDur_LED", "harm1_SigDel", "harm1_cycle"},
    {42, 6, settable, "harm2_active", "harm2_SigDur", "harm2_SigDur_LED", "harm2_SigDel", "harm2_cycle"},
    {34, 8, cosPhi, "cos_active", "cos_SigDur", "cos_SigDur_LED", "cos_SigDel", "cos_cycle"},
    {36, 9, sinPhi, "sin_active", "sin_SigDur", "sin_SigDur_LED", "sin_SigDel", "sin_cycle"},
    {38, 0, cosSin, "cos_sin_active", "cos_sin_SigDur", "cos_sin_SigDur_LED", "cos_sin_SigDel",
     "cos_sin_cycle"},
    {85, 0, admittance, "adm_active", "adm_T_hold", "adm_T_hold_LED", "adm_T_delay", "adm_N_cycles"},
};

} // namespace

bool Signal::step(bool decided, double delay, double duration) {
    lastsFor -= kCycle;
    decidedFor = decided ? decidedFor + kCycle : 0;
    const bool isOn = decided && decidedFor >= delay;
    if (isOn && decidedFor - kCycle < std::max(delay, kCycle)) lastsFor = std::max(lastsFor, duration);
    return isOn || lastsFor > kCycle / 2;
}

void Detection::acknowledge() {
    for (Side& side : sides)
        for (Signal& signal : side.signals)
            signal.release();
}

void Detection::set(std::size_t function, bool on) {
    for (Side& side : sides)
        side.functions[function] = on;
}

// The relays' signal after that.
bool Detection::signal(std::size_t function, bool decided, double delay, const Durations& durations) {
    for (std::size_t k = 0; k < kSides; ++k)
        sides[k].functions[function] = sides[k].signals[function].step(decided, delay, durations[k]);
    return relays()[function];
}

void Detection::step(const Phasors& phasors, const Harmonics& harmonics, const std::vector<Onset>& onsets,
                     const Settings& settings) {
    time += kCycle;
    const double nominal = settings[Setting<float>("U12")] / 1000.0 / std::numbers::sqrt3;
    const double threshold = settings[Setting<float>("Uearth")] / 100.0 * nominal;
    const bool wasEarthFault = std::exchange(earthFault, std::abs(phasors.primaryVoltage[0]) >= threshold);
    if (wasEarthFault && !earthFault) transient = Direction::none;
    observe(onsets, settings);
    const Direction charge = earthFault ? transient : Direction::none;
    const View view{phasors, harmonics, settings, nominal, earthFault, charge, restriking(settings)};
    voltages(view);
    for (std::size_t k = 0; k < kMethods; ++k)
        decide(k, view);
    combine(settings);
    shortCircuits(view);
    frequencies(view);
}

// The first charge of an earth fault sets the direction of the transient method; every one is an ignition.
void Detection::observe(const std::vector<Onset>& onsets, const Settings& settings) {
    for (const Onset& onset : onsets) {
        const Direction direction = onset.forward ? Direction::forward : Direction::backward;
        if (onset.ampere >= settings[Setting<float>("qu2_Ice")] && transient == Direction::none) {
            transient = direction;
            ++transientCount;
        }
        if (onset.ampere >= settings[Setting<float>("qui_Ice")]) ignitions.emplace_back(time, direction);
    }
}

Direction Detection::restriking(const Settings& settings) {
    const double since = time - settings[Setting<std::int32_t>("qui_T_super")] / 1000.0;
    while (!ignitions.empty() && ignitions.front().first < since)
        ignitions.pop_front();
    const auto enough = static_cast<std::size_t>(std::max(settings[Setting<std::int32_t>("qui_n")], 1));
    return ignitions.size() >= enough ? ignitions.back().second : Direction::none;
}

// 5 to 7 healthy phases, 16 and 17 the earth fault, 18 to 23 the faulty phase, at once and delayed.
void Detection::voltages(const View& view) {
    const Durations durations{view["Uearth_SigDur"], view["Uearth_SigDur_LED"]};
    std::array<bool, kPhases> ok{}, low{};
    for (std::size_t k = 0; k < kPhases; ++k) {
        const double percent = std::abs(view.phasors.primaryVoltage[k + 1]) / view.nominal * 100;
        ok[k] = percent >= view["U123ok"];
        low[k] = percent <= view["U123erd"];
        set(5 + k, ok[k]);
    }
    set(16, earthFault);
    signal(17, earthFault, view["Uearth_SigDel"], durations);
    for (std::size_t k = 0; k < kPhases; ++k) {
        const bool faulty = earthFault && low[k] && ok[(k + 1) % 3] && ok[(k + 2) % 3];
        set(18 + k, faulty);
        signal(21 + k, faulty, view["Uearth_SigDel"], durations);
    }
}

void Detection::decide(std::size_t number, const View& view) {
    static_assert(std::size(kTable) == kMethods);
    const Method& method = kTable[number];
    const auto& s = view.settings;
    if (!view.isEarthFault) kept[number] = Direction::none;
    Direction decision = s[method.active] ? method.decide(view) : Direction::none;
    // After the fault has gone, U0 decays and the feeder's own current looks like a backward fault.
    if (kept[number] != Direction::none) decision = kept[number];
    const bool decided = decision != Direction::none;
    const Direction before = std::exchange(decisions[number], decision);
    if (decided && before != Direction::none && before != decision)
        for (Side& side : sides)
            side.signals[method.forward] = Signal();
    const double delay =
        (method.delay ? s[*method.delay] : 0.0F) + (method.cycles ? kCycle * s[*method.cycles] : 0.0);
    const bool onRelay = signal(method.forward, decided, delay, {s[method.duration], s[method.ledDuration]});
    if (decided && onRelay) kept[number] = decision;
    for (Side& side : sides) {
        const bool on = side.functions[method.forward];
        Direction& signalled = side.directions[number];
        if (decided && on) signalled = decision;
        side.functions[method.forward] = on && signalled == Direction::forward;
        side.functions[method.forward + 1] = on && signalled == Direction::backward;
    }
}

// 24 and 25: any method; 26 and 27: the first place of the priority list whose method signals.
void Detection::combine(const Settings& settings) {
    static constexpr Series<talux::Choice> kPlaces{"prio_list_"};
    for (Side& side : sides) {
        Functions& on = side.functions;
        for (std::size_t plus = 0; plus < 2; ++plus) {
            on[24 + plus] =
                std::ranges::any_of(kTable, [&](const Method& method) { return on[method.forward + plus]; });
            on[26 + plus] = false;
        }
        for (int place = 1; place <= kPlaces.size() && !on[26] && !on[27]; ++place)
            for (const Method& method : kTable)
                if (method.priority != 0 && method.priority == static_cast<int>(settings[kPlaces[place]]))
                    for (std::size_t plus = 0; plus < 2; ++plus)
                        on[26 + plus] = on[method.forward + plus];
    }
}

// 57 to 64 without direction, 8 more forward, 16 more backward; 87 to 89 of the earth current.
void Detection::shortCircuits(const View& view) {
    static constexpr struct {
        Setting<bool> active;
        Setting<float> min, time;
        std::size_t function, step, firstPhase, lastPhase;
    } kClasses[] = {{"sc_class_1_active", "sc_I_min_1", "sc_T_min_1", 57, 8, 1, 3},
                    {"sc_class_2_active", "sc_I_min_2", "sc_T_min_2", 61, 8, 1, 3},
                    {"sc_class_E_active", "sc_I_min_E", "sc_T_min_E", 87, 1, 0, 0}};
    const auto& s = view.settings;
    const Durations durations{view["sc_SigDur"], view["sc_SigDur_LED"]};
    for (const auto& each : kClasses) {
        for (std::size_t way = 0; way < 3; ++way)
            set(each.function + way * each.step, false);
        for (std::size_t k = each.firstPhase; k <= each.lastPhase; ++k) {
            const Phasor& current = view.phasors.primaryCurrent[k];
            const bool decided =
                view.isSet("sc_active") && s[each.active] && std::abs(current) >= s[each.min];
            signal(each.function + k, decided, s[each.time], durations);
            const bool directed = decided && view.isSet("sc_dir_active") && current != Phasor{};
            const double angle = angleBetween(view.phasors.primaryVoltage[k], current);
            const std::array<bool, 3> ways{
                true, directed && isBetween(angle, view["sc_Phi_min_fwd"], view["sc_Phi_max_fwd"]),
                directed && isBetween(angle, view["sc_Phi_min_bwd"], view["sc_Phi_max_bwd"])};
            for (Side& side : sides) {
                const bool on = side.functions[each.function + k];
                for (std::size_t way = 0; way < ways.size(); ++way) {
                    const std::size_t any = each.function + way * each.step;
                    side.functions[any + k] = on && ways[way];
                    if (on && ways[way]) side.functions[any] = true; // of the phases
                }
            }
        }
    }
}

// 82 too low, 83 too high, 84 either.
void Detection::frequencies(const View& view) {
    const bool isActive = view.isSet("freq_active");
    const double deviation = view.phasors.frequency - view["freq_f_grid"];
    const double delay = view["freq_T_delay"] + kCycle * view.settings[Setting<std::int32_t>("freq_N_cycle")];
    const Durations hold{view["freq_T_hold"], view["freq_T_hold_LED"]};
    const bool low = isActive && deviation <= -view["freq_df_min"],
               high = isActive && deviation >= view["freq_df_max"];
    signal(82, low, delay, hold);
    signal(83, high, delay, hold);
    signal(84, low || high, delay, hold);
}

} // namespace desk
