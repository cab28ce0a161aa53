// The device on the desk: carries out a scenario in cycles and publishes what a relay would.
#ifndef TALUX_DESK_DESK_H
#define TALUX_DESK_DESK_H

#include "tools/desk/Outputs.h"
#include "tools/desk/Replay.h"
#include "tools/desk/Scenario.h"

namespace desk {

// All that one cycle publishes.
struct Cycle {
    double second = 0;
    Phasors phasors;
    Harmonics harmonics;
    Values values{};
    Outputs outputs;
    talux::MessRecord01 record{};
    talux::MessRecord02 second_record{};
    int transients = 0; // since the start
};

// Carries out the events of a scenario. Needs no store: the settings are given.
class Desk {
public:
    explicit Desk(const Scenario& scenario) : network(scenario.grid, scenario.load), script(scenario) {}

    // The next cycle; false when the scenario has ended.
    bool step(const talux::Settings& settings, const Overrides& overrides, Cycle& cycle);

    // Whether the last cycle is part of a restart, during which nothing is published.
    [[nodiscard]] bool isDown() const { return downUntil > time - kCycle / 2; }

    void acknowledge() { detection.acknowledge(); }

    // What events change.
    Network network;
    std::bitset<kInputs> inputs;
    void strike(const EarthFault& fault);
    void restrike(const EarthFault& fault, double every, double during); // until it is cleared
    void clear();
    void restart();
    void replay(const std::shared_ptr<Recording>& given);
    void rotate(bool isReversed) { network.wiring.rotationReversed = isReversed; }
    void setFrequency(double hertz) { network.grid.frequency = hertz; }
    void setLoad(double ampere) { network.load.ampere = ampere; }
    void end() { ended = true; }

private:
    // Strikes again and again, each time for a while.
    struct Restriking {
        EarthFault fault;
        double every, during; // seconds
        double next, extinguished = 0;
    };
    const Scenario& script;
    Detection detection;
    std::size_t next = 0; // event
    double time = 0, downUntil = 0;
    std::int32_t count = 0;
    bool ended = false, isForward = true;
    std::optional<Restriking> restriking;
    std::shared_ptr<Recording> recording; // while it is replayed
    double recordingSince = 0;

    void strikeAgain();
};

// Largest, smallest and mean values of an interval.
class Statistics {
public:
    // Takes the values of a cycle; the record of the interval, `stat_intervall` minutes, when it is over. A
    // restart begins a new one.
    std::optional<talux::StatRecord_c0> add(const Cycle& cycle, const talux::Settings& settings);

private:
    talux::StatRecord_c0 running{};
    int cycles = 0, lastCount = 0, transientsBefore = 0;
    double seconds = 0;
};

// Writes a cycle to the store as one group, also as the snapshot if somebody has asked for one; false when
// another program writes the group.
[[nodiscard]] bool publish(const Cycle& cycle);

Overrides readOverrides();

// True once for each press of the reset button.
bool takeAcknowledgement();

// The factory settings in this program's own memory, for programs that do not attach the store.
const stVarSpace& factorySpace();

} // namespace desk

#endif
