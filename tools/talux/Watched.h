// What the command watch shows: scalars, elements of indexed parameters, members of records.
#ifndef TALUX_TOOLS_TALUX_WATCHED_H
#define TALUX_TOOLS_TALUX_WATCHED_H

#include "tools/talux/Show.h"

namespace talux::tool {

struct Watched {
    std::string label;
    const Parameter* parameter;
    int id;
    const StructMemberProperties_t* member = nullptr;
    std::string title, unit;

    // Needs the device. Nothing where it has no value.
    std::optional<Value> value() const;
    bool isFloat() const;    // whose 0.2 is not that of a double
    bool isMeasured() const; // a number with a fraction: it differs at every look
    // With all digits, as a program takes it; with five and what it means, as a person does.
    std::string plainText(const std::optional<Value>& value) const;
    std::string shortText(const std::optional<Value>& value, const Context& context) const;
};

void addWatched(std::vector<Watched>& all, const Parameter& parameter, const Context& context);

// By name: as reference::named takes it, "vBE 3", "vBE 3.9" or "MessRecord01.U1p". Throws CouldNot.
std::vector<Watched> watchedBy(const std::string& text, const Context& context);

// "U0_prim > 5", "BAassign3 = qu2 ->F". Throws CouldNot.
class Condition {
public:
    Condition(std::string_view text, const Context& context);

    const Watched& watched() const { return what; }
    bool holds() const;

private:
    Watched what;
    bool (*isMet)(double value, double limit) = nullptr;
    double limit = 0;
};

} // namespace talux::tool

#endif
