// A detection of earth faults and short circuits that follows the live settings: for learning and for trying
// scripts, no protection. docs/desk.md says what it chooses where the meaning of a setting is not known.
//
// Each method decides in every cycle from the phasors, a decision becomes a signal after its delay, and a
// signal lasts as long as the decision, at least for its duration: one for relays, one for LEDs.
#ifndef TALUX_DESK_DETECTION_H
#define TALUX_DESK_DETECTION_H

#include <bitset>
#include <deque>

#include "tools/desk/Meter.h"

namespace desk {

enum class Direction : unsigned char { none, forward, backward };

// Output functions by their numbers, those of BAassign.. and LEDassign..
inline constexpr std::size_t kFunctions = 128;
using Functions = std::bitset<kFunctions + 1>;

// What the methods decide from.
struct View {
    const Phasors& phasors;
    const Harmonics& harmonics;
    const talux::Settings& settings;
    double nominal;       // phase voltage, kV
    bool isEarthFault;    // U0 above Uearth
    Direction transient;  // of the first charge of this earth fault
    Direction restriking; // of the ignitions, when there are enough of them

    // Settings by name.
    double operator[](talux::Setting<float> name) const { return settings[name]; }
    [[nodiscard]] bool isSet(talux::Setting<bool> name) const { return settings[name]; }
};

// A decision that has to persist, and a signal that lasts.
class Signal {
public:
    // One cycle; the signal after it.
    bool step(bool decided, double delay, double duration);

    // Ends it unless it is still decided.
    void release() { lastsFor = 0; }

private:
    double decidedFor = 0, lastsFor = 0;
};

class Detection {
public:
    void step(const Phasors& phasors, const Harmonics& harmonics, const std::vector<Onset>& onsets,
              const talux::Settings& settings);
    void acknowledge(); // ends all signals that last only for their duration

    [[nodiscard]] const Functions& relays() const { return sides[kRelaySide].functions; }
    [[nodiscard]] const Functions& leds() const { return sides[kLedSide].functions; }
    [[nodiscard]] bool isEarthFault() const { return earthFault; }
    [[nodiscard]] bool isShortCircuit() const { return relays()[57] || relays()[61] || relays()[87]; }
    [[nodiscard]] int transients() const { return transientCount; } // since the start

private:
    static constexpr std::size_t kMethods = 9;

    // Relays and LEDs signal the same decisions for durations of their own.
    enum : unsigned char { kRelaySide, kLedSide, kSides };
    using Durations = std::array<double, kSides>;

    struct Side {
        Functions functions;
        std::array<Signal, kFunctions + 1> signals;
        std::array<Direction, kMethods> directions{}; // signalled last
    };
    std::array<Side, kSides> sides;
    std::array<Direction, kMethods> decisions{}, kept{}; // kept: signalled in this earth fault
    double time = 0;
    bool earthFault = false;
    Direction transient = Direction::none;
    std::deque<std::pair<double, Direction>> ignitions; // when, and where
    int transientCount = 0;

    void set(std::size_t function, bool on);
    bool signal(std::size_t function, bool decided, double delay, const Durations& durations);
    void observe(const std::vector<Onset>& onsets, const talux::Settings& settings);
    Direction restriking(const talux::Settings& settings);
    void voltages(const View& view);
    void decide(std::size_t number, const View& view);
    void combine(const talux::Settings& settings);
    void shortCircuits(const View& view);
    void frequencies(const View& view);
};

} // namespace desk

#endif
