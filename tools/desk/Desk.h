// The device on the desk: carries out a scenario in cycles and publishes what a relay would.
#ifndef TALUX_DESK_DESK_H
#define TALUX_DESK_DESK_H

#include <memory>

#include "tools/desk/Outputs.h"
#include "tools/desk/Replay.h"
#include "tools/desk/Scenario.h"
#include "tools/desk/Statistics.h"

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
};

// Carries out the events of a scenario. Needs no store: the settings are given.
class Desk {
public:
    explicit Desk(const Scenario& scenario) : script(scenario), network(scenario.grid, scenario.load) {}

    // The next cycle; false when the scenario has ended. While the program "restarts", nothing is published:
    // isDown().
    bool step(const talux::Settings& settings, const Overrides& overrides, Cycle& cycle);

    [[nodiscard]] bool isDown() const { return downUntil > time; }
    [[nodiscard]] int transients() const { return detection.transients(); }

    // Ends all signals that last only for their duration.
    void acknowledge() { detection.acknowledge(); }

private:
    const Scenario& script;
    Network network;
    Detection detection;
    std::bitset<kInputs> inputs;
    std::size_t next = 0; // event
    double time = 0, downUntil = 0;
    std::int32_t count = 0;
    bool ended = false, isForward = true;
    std::optional<Restriking> restriking;
    double restrikeAt = 0, extinguishAt = 0;
    std::unique_ptr<Recording> recording;
    double recordingSince = 0;

    void carryOut(const Event& event);
    void strikeAgain();
    Sample sample();
};

// The desk in the store: group, counters, snapshot, overrides, acknowledgement.
class Publisher {
public:
    Publisher();

    // Publishes a cycle; false when another program writes the group.
    [[nodiscard]] bool publish(const Cycle& cycle, int transients);

    // Fills the snapshot when somebody has asked for one.
    static void answerRequest(const Cycle& cycle);

    // True once for each press of the reset button.
    static bool takeAcknowledgement();

private:
    talux::Group<talux::Run<float, kValues>, talux::Run<std::int32_t, kRelays + kInputs>,
                 talux::Run<std::int32_t, kWords>, talux::Record<talux::MessRecord01>,
                 talux::Record<talux::MessRecord02>>
        group;
};

} // namespace desk

#endif
