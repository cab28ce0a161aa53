// A scenario: a network and what happens in it, one statement a line, for people to write by hand;
// docs/desk.md lists the statements. Blanks and commas separate words, a # begins a comment.
#ifndef TALUX_DESK_SCENARIO_H
#define TALUX_DESK_SCENARIO_H

#include <filesystem>
#include <istream>
#include <string>
#include <variant>
#include <vector>

#include "tools/desk/Network.h"

namespace desk {

struct Cleared {};
struct Restart {}; // the program dies and comes back
struct End {};
struct Restriking { // strikes again and again, each time for a while, until the fault is cleared
    EarthFault fault;
    double every, during; // seconds
};
struct Rewire {
    Wiring::Phases Wiring::*what;
    std::size_t phase;
    bool on;
};
struct Rotation {
    bool reversed;
};
struct Swap { // two current transformers are in each other's phase
    std::size_t first, second;
    bool on;
};
struct Input { // a binary input, counted from 0
    std::size_t number;
    bool on;
};
struct Frequency {
    double hertz;
};
struct LoadStep {
    double ampere;
};
struct Replay {
    std::string path; // relative to the scenario
};

using Event = std::variant<EarthFault, Restriking, ShortCircuit, Cleared, Rewire, Rotation, Swap, Input,
                           Frequency, LoadStep, Restart, Replay, End>;

struct TimedEvent {
    double second;
    Event event;
};

struct Scenario {
    Grid grid;
    Load load;
    std::vector<TimedEvent> events; // in the order of time
    std::filesystem::path folder;   // that recordings are relative to
};

// What is wrong with a line, and what is expected.
struct ScenarioFault {
    int line;
    std::string text;
};

// Either the scenario or all its faults.
struct ReadScenario {
    Scenario scenario;
    std::vector<ScenarioFault> faults;
};

ReadScenario readScenario(std::istream& from);

} // namespace desk

#endif
