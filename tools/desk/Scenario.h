// A scenario: a network and what happens in it, one statement a line, for people to write by hand.
//
//   network  resonant-earthed 20 kV, capacitive 80 A, own 6 A, detuning 5 %, damping 3 %
//   load     180 A, angle 18 deg, drift 10 %, noise 0.2 %
//   at 2 s   earth fault L1, 200 ohm, forward
//   at 5 s   fault cleared
//   at 60 s  end
//
// Blanks and commas divide words, a # begins a comment. Numbers have a decimal point and their unit after
// them.
#ifndef TALUX_DESK_SCENARIO_H
#define TALUX_DESK_SCENARIO_H

#include <istream>
#include <optional>
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
// A change of the wiring: sets one member.
struct Rewire {
    enum What : unsigned char { currentReversed, voltageReversed, fuseMissing, conductorOpen, rotation } what;
    int phase;
    bool on;
};
struct Swap { // two current transformers are in each other's phase
    int first, second;
    bool on;
};
struct Input { // a binary input, counted from 1
    int number;
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

using Event = std::variant<EarthFault, Restriking, ShortCircuit, Cleared, Rewire, Swap, Input, Frequency,
                           LoadStep, Restart, Replay, End>;

struct TimedEvent {
    double second;
    Event event;
    int line;
};

struct Scenario {
    Grid grid;
    Load load;
    std::vector<TimedEvent> events; // in the order of time
};

// What is wrong with a line, and what would be right.
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
