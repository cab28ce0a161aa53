#include "tools/desk/Scenario.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <span>
#include <string_view>

#include "tools/Strings.h"
#include "tools/desk/Desk.h"

namespace desk {

namespace {

// Thrown inside this file only: the line cannot be understood, and what is expected.
struct Wrong {
    std::string text;
};

std::vector<std::string> wordsOf(std::string_view line) {
    constexpr std::string_view kSeparators = " \t,\r";
    line = line.substr(0, line.find('#'));
    std::vector<std::string> words;
    for (std::size_t end = 0, start; (start = line.find_first_not_of(kSeparators, end)) != line.npos;) {
        end = std::min(line.find_first_of(kSeparators, start), line.size());
        words.emplace_back(line.substr(start, end - start));
    }
    return words;
}

struct Range {
    const char *what, *unit;
    double min, max;
};

// The words of a line, taken from left to right.
class Words {
public:
    Words(std::string_view text, const std::filesystem::path& folderOfFiles)
        : words(wordsOf(text)), folder(folderOfFiles) {}

    [[nodiscard]] bool empty() const { return next == words.size(); }
    [[nodiscard]] std::string peek() const { return empty() ? "the end of the line" : words[next]; }

    std::string take(const std::string& wanted) {
        if (empty()) throw Wrong{wanted + " is missing"};
        return words[next++];
    }
    // Takes these words if they are next.
    bool takeIf(std::string_view phrase) {
        const std::vector<std::string> wanted = wordsOf(phrase);
        const bool isNext = std::ranges::mismatch(wanted, std::span(words).subspan(next)).in1 == wanted.end();
        if (isNext) next += wanted.size();
        return isNext;
    }
    void expect(const std::string& phrase) {
        if (!takeIf(phrase)) throw Wrong{"'" + phrase + "' expected, not '" + peek() + "'"};
    }
    // A percentage becomes a fraction.
    double number(const Range& range) {
        const std::string what = range.what, word = take(what);
        const auto value = talux::numberOf<double>(word);
        if (!value) throw Wrong{what + " is a number with a decimal point, not '" + word + "'"};
        if (!(*value >= range.min && *value <= range.max))
            throw Wrong{talux::joined(
                {what, " is from ", shortest(range.min), " to ", shortest(range.max), " ", range.unit})};
        expect(range.unit);
        return range.unit == std::string_view("%") ? *value / 100 : *value;
    }
    // The position of the next word among the choices.
    std::size_t oneOf(const std::string& what, std::initializer_list<std::string_view> choices) {
        const std::string word = take(what);
        const auto* const found = std::ranges::find(choices, word);
        if (found == choices.end())
            throw Wrong{what + " is one of " + talux::list(choices) + ", not '" + word + "'"};
        return static_cast<std::size_t>(found - choices.begin());
    }
    // Whether the next word is the second one of two.
    bool isSecond(const std::string& what, std::string_view first, std::string_view second) {
        return oneOf(what, {first, second}) == 1;
    }
    std::shared_ptr<Recording> recording() {
        return std::make_shared<Recording>(openRecording(folder / take("the file")));
    }

private:
    std::vector<std::string> words;
    const std::filesystem::path& folder;
    std::size_t next = 0;

    static std::string shortest(double number) {
        char text[32];
        return {text, std::to_chars(text, text + sizeof text, number, std::chars_format::fixed).ptr};
    }
};

// A number with a word before it, and the member that it is for.
template <class Target>
struct Quantity {
    const char* word;
    Range range;
    double Target::*member;
};
constexpr Quantity<Grid> kOfNetwork[] = {
    {"capacitive", {"the capacitive current", "A", 0.1, 10000}, &Grid::capacitive},
    {"own", {"the feeder's own current", "A", 0, 10000}, &Grid::own},
    {"detuning", {"the detuning", "%", -100, 100}, &Grid::detuning},
    {"damping", {"the damping", "%", 0, 100}, &Grid::damping},
    {"neutral", {"the neutral's current", "A", 1, 10000}, &Grid::neutralAmpere},
};
constexpr Quantity<Load> kOfLoad[] = {
    {"angle", {"the angle", "deg", -180, 180}, &Load::degrees},
    {"drift", {"the drift", "%", 0, 100}, &Load::drift},
    {"noise", {"the noise", "%", 0, 100}, &Load::noise},
};

// The rest of the line, in any order.
template <class Target, std::size_t count>
void readQuantities(Words& words, const Quantity<Target> (&all)[count], const char* names, Target& target) {
    while (!words.empty()) {
        const auto* const each = std::ranges::find_if(
            all, [&](const char* word) { return words.takeIf(word); }, &Quantity<Target>::word);
        if (each == std::end(all)) throw Wrong{names + (" expected, not '" + words.peek() + "'")};
        target.*each->member = words.number(each->range);
    }
}

void readNetwork(Words& words, Grid& grid) {
    grid = Grid{};
    grid.neutral = Neutral(words.oneOf("the neutral", {"isolated", "resonant-earthed", "low-resistance"}));
    grid.kilovolt = words.number({"the voltage", "kV", 0.1, 400});
    readQuantities(words, kOfNetwork, "capacitive, own, detuning, damping or neutral", grid);
    if (grid.own > grid.capacitive) throw Wrong{"the feeder's own current is part of the capacitive current"};
    if (grid.neutral != Neutral::resonant && grid.detuning != 0)
        throw Wrong{"only a resonant-earthed network has a detuning"};
    if ((grid.neutral == Neutral::lowResistance) != (grid.neutralAmpere != 0))
        throw Wrong{"a low-resistance network, and no other, has a neutral current: neutral 500 A"};
}

constexpr Range kLoad{"the load", "A", 0, 100000};

void readLoad(Words& words, Load& load) {
    load = Load{};
    load.ampere = words.number(kLoad);
    readQuantities(words, kOfLoad, "angle, drift or noise", load);
}

std::size_t phase(Words& words) {
    return words.oneOf("the phase", {"L1", "L2", "L3"});
}

bool forward(Words& words) {
    return !words.isSecond("the direction", "forward", "backward");
}

EarthFault earthFault(Words& words) {
    return {phase(words), words.takeIf("solid") ? 0 : words.number({"the fault resistance", "ohm", 0, 1e6}),
            forward(words)};
}

using Event = std::function<void(Desk& desk)>;
constexpr double kLongest = 86400; // a day

Event restriking(Words& words) {
    const EarthFault fault = earthFault(words);
    words.expect("every");
    const double every = words.number({"the interval", "s", 0.02, kLongest});
    words.expect("for");
    const double during = words.number({"the time of a strike", "s", 0.01, kLongest});
    return [=](Desk& desk) { desk.restrike(fault, every, during); };
}

Event shortCircuit(Words& words) {
    const std::size_t from = phase(words), to = phase(words);
    if (from == to) throw Wrong{"a short circuit is between two phases"};
    const ShortCircuit fault{from, to, words.number({"the short-circuit current", "A", 1, 100000}),
                             forward(words)};
    return [=](Desk& desk) { desk.network.strike(fault); };
}

struct Rewire {
    Wiring::Phases Wiring::*what;
    std::size_t phase;
    bool on;

    void operator()(Desk& desk) const { (desk.network.wiring.*what)[phase] = on; }
};

Event transformer(Words& words) {
    const std::size_t which = words.oneOf("the transformer", {"U1", "U2", "U3", "I1", "I2", "I3"});
    return Rewire{which < kPhases ? &Wiring::voltageReversed : &Wiring::currentReversed, which % kPhases,
                  words.isSecond("its state", "normal", "reversed")};
}

Event fuse(Words& words) {
    return Rewire{&Wiring::fuseMissing, words.oneOf("the fuse", {"U1", "U2", "U3"}),
                  words.isSecond("its state", "restored", "missing")};
}

Event conductor(Words& words) {
    return Rewire{&Wiring::conductorOpen, phase(words), words.isSecond("its state", "closed", "open")};
}

// Two current transformers are in each other's phase.
Event swapTransformers(Words& words) {
    const auto which = [&] { return words.oneOf("the transformer", {"I1", "I2", "I3"}); };
    const std::size_t first = which(), second = which();
    if (first == second) throw Wrong{"two transformers are swapped"};
    const bool on = words.isSecond("their state", "normal", "swapped");
    return [=](Desk& desk) {
        desk.network.wiring.currentFrom[first] = on ? second : first;
        desk.network.wiring.currentFrom[second] = on ? first : second;
    };
}

Event input(Words& words) {
    const std::size_t which = words.oneOf("the input", {"BE1", "BE2", "BE3", "BE4", "BE5", "BE6"});
    return [which, on = words.isSecond("its state", "off", "on")](Desk& desk) { desk.inputs[which] = on; };
}

// Calls a function of the desk with what a statement says.
template <class Value>
Event with(void (Desk::*function)(Value value), const std::remove_reference_t<Value>& value) {
    return [=](Desk& desk) { (desk.*function)(value); };
}

constexpr Range kFrequency{"the frequency", "Hz", 10, 100};

// The statements after "at .. s": how each begins, and what its rest means.
constexpr struct {
    const char* begins;
    Event (*read)(Words& words);
} kStatements[] = {
    {"earth fault", [](Words& words) { return with(&Desk::strike, earthFault(words)); }},
    {"restriking earth fault", restriking},
    {"short circuit", shortCircuit},
    {"fault cleared", [](Words&) -> Event { return &Desk::clear; }},
    {"transformers", swapTransformers},
    {"transformer", transformer},
    {"fuse", fuse},
    {"conductor", conductor},
    {"rotation",
     [](Words& words) { return with(&Desk::rotate, words.isSecond("the rotation", "normal", "reversed")); }},
    {"input", input},
    {"frequency", [](Words& words) { return with(&Desk::setFrequency, words.number(kFrequency)); }},
    {"load", [](Words& words) { return with(&Desk::setLoad, words.number(kLoad)); }},
    {"restart", [](Words&) -> Event { return &Desk::restart; }},
    {"replay", [](Words& words) { return with(&Desk::replay, words.recording()); }},
    {"end", [](Words&) -> Event { return &Desk::end; }},
};

TimedEvent readEvent(Words& words) {
    const double second = words.number({"the time", "s", 0, kLongest});
    for (const auto& [begins, read] : kStatements)
        if (words.takeIf(begins)) return {second, read(words)};
    throw Wrong{"nothing begins with '" + words.peek() + "'; there are " +
                talux::list(kStatements, ", ", [](const auto& each) { return each.begins; })};
}

void readLine(std::string_view text, Scenario& scenario, const std::filesystem::path& folder) {
    Words words(text, folder);
    if (words.empty()) return;
    if (words.takeIf("network"))
        readNetwork(words, scenario.grid);
    else if (words.takeIf("load"))
        readLoad(words, scenario.load);
    else if (words.takeIf("at"))
        scenario.events.push_back(readEvent(words));
    else
        throw Wrong{"a line begins with network, load or at, not '" + words.peek() + "'"};
    if (!words.empty()) throw Wrong{"'" + words.peek() + "' is too much"};
}

} // namespace

Scenario readScenario(std::istream& from, const std::filesystem::path& folder) {
    Scenario result;
    std::string text;
    for (int line = 1; std::getline(from, text); ++line) {
        try {
            readLine(text, result, folder);
        } catch (const Wrong& wrong) {
            result.faults.push_back(std::to_string(line) + ": " + wrong.text);
        } catch (const ReplayFault& fault) {
            result.faults.push_back(std::to_string(line) + ": " + fault.what());
        }
    }
    std::ranges::stable_sort(result.events, {}, &TimedEvent::second);
    return result;
}

} // namespace desk
