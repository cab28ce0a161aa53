#include "tools/desk/Scenario.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

namespace desk {

namespace {

// Thrown inside this file only: the line cannot be understood, and what would be right.
struct Wrong {
    std::string text;
};

std::vector<std::string> wordsOf(std::string_view line) {
    std::vector<std::string> words;
    std::string word;
    for (const char c : line.substr(0, line.find('#'))) {
        if (c != ' ' && c != '\t' && c != ',' && c != '\r') {
            word += c;
        } else if (!word.empty()) {
            words.push_back(std::exchange(word, {}));
        }
    }
    if (!word.empty()) words.push_back(word);
    return words;
}

// The words of a line, taken from left to right.
class Words {
public:
    explicit Words(std::vector<std::string> all) : words(std::move(all)) {}

    [[nodiscard]] bool empty() const { return next == words.size(); }
    [[nodiscard]] std::string peek() const { return empty() ? "the end of the line" : words[next]; }

    std::string take(const char* wanted) {
        if (empty()) throw Wrong{std::string(wanted) + " is missing"};
        return words[next++];
    }
    // Takes these words if they are next.
    bool takeIf(std::string_view phrase) {
        std::size_t ahead = next;
        for (const std::string& each : wordsOf(phrase)) {
            if (ahead == words.size() || words[ahead] != each) return false;
            ++ahead;
        }
        next = ahead;
        return true;
    }
    void expect(std::string_view phrase) {
        if (!takeIf(phrase)) throw Wrong{"'" + std::string(phrase) + "' expected, not '" + peek() + "'"};
    }
    double number(const char* what, const char* unit, double min, double max) {
        const std::string word = take(what);
        double value = 0;
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
        if (error != std::errc() || end != word.data() + word.size())
            throw Wrong{std::string(what) + " is a number with a decimal point, not '" + word + "'"};
        if (!(value >= min && value <= max))
            throw Wrong{std::string(what) + " is from " + shortest(min) + " to " + shortest(max) + " " +
                        unit};
        expect(unit);
        return value;
    }
    int oneOf(const char* what, std::initializer_list<const char*> choices) {
        const std::string word = take(what);
        int index = 0;
        std::string all;
        for (const char* choice : choices) {
            if (word == choice) return index;
            all += std::string(index == 0 ? "" : ", ") + choice;
            ++index;
        }
        throw Wrong{std::string(what) + " is one of " + all + ", not '" + word + "'"};
    }
    void expectEnd() const {
        if (!empty()) throw Wrong{"'" + peek() + "' is too much"};
    }

private:
    std::vector<std::string> words;
    std::size_t next = 0;

    static std::string shortest(double number) {
        char text[32];
        return {text, std::to_chars(text, text + sizeof text, number).ptr};
    }
};

int phase(Words& words) {
    return words.oneOf("the phase", {"L1", "L2", "L3"});
}

bool forward(Words& words) {
    return words.oneOf("the direction", {"forward", "backward"}) == 0;
}

void readNetwork(Words& words, Grid& grid) {
    constexpr Neutral kNeutrals[] = {Neutral::isolated, Neutral::resonant, Neutral::lowResistance};
    grid = Grid{};
    grid.neutral = kNeutrals[words.oneOf("the neutral", {"isolated", "resonant-earthed", "low-resistance"})];
    grid.kilovolt = words.number("the voltage", "kV", 0.1, 400);
    while (!words.empty()) {
        if (words.takeIf("capacitive"))
            grid.capacitive = words.number("the capacitive current", "A", 0.1, 10000);
        else if (words.takeIf("own"))
            grid.own = words.number("the feeder's own current", "A", 0, 10000);
        else if (words.takeIf("detuning"))
            grid.detuning = words.number("the detuning", "%", -100, 100) / 100;
        else if (words.takeIf("damping"))
            grid.damping = words.number("the damping", "%", 0, 100) / 100;
        else if (words.takeIf("neutral"))
            grid.neutralAmpere = words.number("the neutral's current", "A", 1, 10000);
        else
            throw Wrong{"capacitive, own, detuning, damping or neutral expected, not '" + words.peek() + "'"};
    }
    if (grid.own > grid.capacitive) throw Wrong{"the feeder's own current is part of the capacitive current"};
    if (grid.neutral != Neutral::resonant && grid.detuning != 0)
        throw Wrong{"only a resonant-earthed network has a detuning"};
    if ((grid.neutral == Neutral::lowResistance) != (grid.neutralAmpere != 0))
        throw Wrong{"a low-resistance network, and no other, has a neutral current: neutral 500 A"};
}

void readLoad(Words& words, Load& load) {
    load = Load{};
    load.ampere = words.number("the load", "A", 0, 100000);
    while (!words.empty()) {
        if (words.takeIf("angle"))
            load.degrees = words.number("the angle", "deg", -180, 180);
        else if (words.takeIf("drift"))
            load.drift = words.number("the drift", "%", 0, 100) / 100;
        else if (words.takeIf("noise"))
            load.noise = words.number("the noise", "%", 0, 100) / 100;
        else
            throw Wrong{"angle, drift or noise expected, not '" + words.peek() + "'"};
    }
}

EarthFault readEarthFault(Words& words) {
    EarthFault fault;
    fault.phase = phase(words);
    fault.ohm = words.takeIf("solid") ? 0 : words.number("the fault resistance", "ohm", 0, 1e6);
    fault.forward = forward(words);
    return fault;
}

ShortCircuit readShortCircuit(Words& words) {
    ShortCircuit fault;
    fault.from = phase(words);
    fault.to = phase(words);
    if (fault.from == fault.to) throw Wrong{"a short circuit is between two phases"};
    fault.ampere = words.number("the short-circuit current", "A", 1, 100000);
    fault.forward = forward(words);
    return fault;
}

Event readTransformer(Words& words) {
    const int which = words.oneOf("the transformer", {"U1", "U2", "U3", "I1", "I2", "I3"});
    const bool reversed = words.oneOf("its state", {"normal", "reversed"}) == 1;
    return Rewire{which < kPhases ? Rewire::voltageReversed : Rewire::currentReversed, which % kPhases,
                  reversed};
}

Event readSwap(Words& words) {
    const int first = words.oneOf("the transformer", {"I1", "I2", "I3"});
    const int second = words.oneOf("the transformer", {"I1", "I2", "I3"});
    if (first == second) throw Wrong{"two transformers are swapped"};
    return Swap{first, second, words.oneOf("their state", {"normal", "swapped"}) == 1};
}

constexpr double kLongest = 86400; // a day

// The statements after "at .. s": how each begins, and what its rest is.
struct Statement {
    const char* begins;
    Event (*read)(Words& words);
};
constexpr Statement kStatements[] = {
    {"earth fault", [](Words& words) -> Event { return readEarthFault(words); }},
    {"restriking earth fault",
     [](Words& words) -> Event {
         Restriking result{readEarthFault(words), 0, 0};
         words.expect("every");
         result.every = words.number("the interval", "s", 0.02, kLongest);
         words.expect("for");
         result.during = words.number("the time of a strike", "s", 0.01, kLongest);
         return result;
     }},
    {"short circuit", [](Words& words) -> Event { return readShortCircuit(words); }},
    {"fault cleared", [](Words&) -> Event { return Cleared{}; }},
    {"transformers", readSwap},
    {"transformer", readTransformer},
    {"fuse",
     [](Words& words) -> Event {
         const int which = words.oneOf("the fuse", {"U1", "U2", "U3"});
         return Rewire{Rewire::fuseMissing, which, words.oneOf("its state", {"restored", "missing"}) == 1};
     }},
    {"conductor",
     [](Words& words) -> Event {
         const int which = phase(words);
         return Rewire{Rewire::conductorOpen, which, words.oneOf("its state", {"closed", "open"}) == 1};
     }},
    {"rotation",
     [](Words& words) -> Event {
         return Rewire{Rewire::rotation, 0, words.oneOf("the rotation", {"normal", "reversed"}) == 1};
     }},
    {"input",
     [](Words& words) -> Event {
         const int which = words.oneOf("the input", {"BE1", "BE2", "BE3", "BE4", "BE5", "BE6"}) + 1;
         return Input{which, words.oneOf("its state", {"off", "on"}) == 1};
     }},
    {"frequency",
     [](Words& words) -> Event { return Frequency{words.number("the frequency", "Hz", 10, 100)}; }},
    {"load", [](Words& words) -> Event { return LoadStep{words.number("the load", "A", 0, 100000)}; }},
    {"restart", [](Words&) -> Event { return Restart{}; }},
    {"replay", [](Words& words) -> Event { return Replay{words.take("the file")}; }},
    {"end", [](Words&) -> Event { return End{}; }},
};

TimedEvent readEvent(Words& words, int line) {
    const double second = words.number("the time", "s", 0, kLongest);
    for (const Statement& statement : kStatements)
        if (words.takeIf(statement.begins)) return {second, statement.read(words), line};
    std::string all;
    for (const Statement& statement : kStatements)
        all += std::string(all.empty() ? "" : ", ") + statement.begins;
    throw Wrong{"nothing begins with '" + words.peek() + "'; there are " + all};
}

void readLine(Words& words, int line, Scenario& scenario) {
    if (words.takeIf("network")) {
        readNetwork(words, scenario.grid);
    } else if (words.takeIf("load")) {
        readLoad(words, scenario.load);
    } else if (words.takeIf("at")) {
        scenario.events.push_back(readEvent(words, line));
    } else {
        throw Wrong{"a line begins with network, load or at, not '" + words.peek() + "'"};
    }
    words.expectEnd();
}

} // namespace

ReadScenario readScenario(std::istream& from) {
    ReadScenario result;
    std::string text;
    for (int line = 1; std::getline(from, text); ++line) {
        Words words(wordsOf(text));
        if (words.empty()) continue;
        try {
            readLine(words, line, result.scenario);
        } catch (const Wrong& wrong) {
            result.faults.push_back({line, wrong.text});
        }
    }
    auto& events = result.scenario.events;
    std::stable_sort(events.begin(), events.end(),
                     [](const TimedEvent& a, const TimedEvent& b) { return a.second < b.second; });
    return result;
}

} // namespace desk
