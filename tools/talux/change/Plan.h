// What is to be changed on the device: each setting with its new value, checked before anything is written.
#ifndef TALUX_TOOLS_TALUX_CHANGE_PLAN_H
#define TALUX_TOOLS_TALUX_CHANGE_PLAN_H

#include <set>

#include "tools/talux/Show.h"

namespace talux::tool {

// What a program that writes reads: a setting's value in the working copy, any other's where the device has
// it; of the clock what it shows now.
std::optional<Value> present(const Parameter& parameter, int id);

struct Write {
    const Parameter* parameter;
    int index; // of an element, else 0
    std::optional<Value> from;
    Value to;

    int id() const { return parameter->row().id + (index > 0 ? index - 1 : 0); }
    std::string label() const; // NAME or NAME[3]
    std::string change(const Context& context) const { return tool::change({parameter, from, to}, context); }
    std::optional<Value> present() const { return tool::present(*parameter, id()); } // what is there now
    bool setsClock() const { return isOfClock(*parameter); }
    // Of the clock, which goes on, neither is ever known: it counts as written.
    bool isChanged() const { return !setsClock() && !sameValue(present(), from); }
    bool isThere() const { return setsClock() || sameValue(present(), to); }
    // Whether writing it is applied to the system and saved at once, with everything else that is pending.
    bool actsAtOnce() const { return parameter->row().type == kTypeIpAddress; }
};
using Writes = std::vector<Write>;

class Plan {
public:
    // Without the device it only says what cannot be written.
    explicit Plan(const Context& person, bool isOnDevice = true) : context(person), onDevice(isOnDevice) {}

    // NAME=VALUE, the value as it is typed: a number, the number or text of a choice, a text.
    void take(const std::vector<std::string>& assignments);
    void take(std::string_view label, std::string_view value);

    // A file of such lines, in the form of parameter files; the prefix TLX_ may be missing, blanks may be
    // around "=". As a load does, it leaves the clock alone. Throws CouldNot when it is for another device.
    void read(const std::string& path);

    // The settings of a source that differ, without those that `leaves`.
    template <class Leaves>
    void copy(const Source& source, Leaves leaves) {
        for (const Parameter& parameter : settings())
            if (const auto value = source.value(parameter); value && !leaves(parameter))
                add(parameter, 0, *value);
    }

    const std::vector<std::string>& refusals() const { return refused; }

    // Those of all settings that are named, whether they differ or not.
    const std::set<File>& files() const { return named; }

    // What differs from what is there, in the order in which it has to be written: the clock and then the
    // addresses last, since they cannot be taken back.
    Writes writes() const;

private:
    const Context& context;
    const bool onDevice;
    Writes planned;
    std::set<int> ids;
    std::set<File> named;
    std::vector<std::string> refused;
    std::string place; // "FILE:LINE: ", precedes a refusal

    void readLine(std::string_view line);
    void checkDevice(std::string_view line, const std::string& path) const;
    void refuse(std::string_view label, std::string_view reason);
    void add(const Parameter& parameter, int index, const Value& value);
};

} // namespace talux::tool

#endif
