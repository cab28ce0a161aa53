// A scenario: a network and what happens in it, one statement a line, for people to write by hand;
// docs/desk.md lists the statements. Blanks and commas separate words, a # begins a comment.
#ifndef TALUX_DESK_SCENARIO_H
#define TALUX_DESK_SCENARIO_H

#include <filesystem>
#include <functional>
#include <istream>
#include <string>
#include <vector>

#include "tools/desk/Network.h"

namespace desk {

class Desk;

struct TimedEvent {
    double second;
    std::function<void(Desk& desk)> happens;
};

struct Scenario {
    Grid grid;
    Load load;
    std::vector<TimedEvent> events;  // in the order of time
    std::vector<std::string> faults; // lines that cannot be understood, and what is expected: "3: .."
};

// Opens the recordings, too, whose names are relative to the folder.
Scenario readScenario(std::istream& from, const std::filesystem::path& folder = {});

} // namespace desk

#endif
