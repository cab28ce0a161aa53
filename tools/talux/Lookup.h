// What people call things: a parameter, a series, a pattern, a member of a record, an id, a choice.
#ifndef TALUX_TOOLS_TALUX_LOOKUP_H
#define TALUX_TOOLS_TALUX_LOOKUP_H

#include <string>
#include <string_view>
#include <vector>

#include "tools/pages/Records.h"
#include "tools/reference/Reference.h"
#include "tools/talux/Command.h"

namespace talux::tool {

using reference::Parameter;
using Parameters = std::vector<const Parameter*>;

// What a name stands for: a parameter; a series by its name without the number, "BAassign"; a pattern,
// "U*_prim" or "U{1..3}_prim". In menu order; empty when it stands for nothing.
Parameters named(std::string_view name);

// "; the nearest name is Uearth", or nothing where none is near.
std::string nearestName(std::string_view name, const Context& context, std::string_view prefix = "");

// That no parameter is named so, with the nearest name.
std::string unknownName(std::string_view name, const Context& context, std::string_view prefix = "");

// "BAassign1..8, LEDassign1"
std::string inShort(const Parameters& parameters);

struct Member {
    const Parameter* record;
    const StructMemberProperties_t* properties;
    pages::MemberTexts texts;

    std::string name() const { return std::string(record->name()) + "." + properties->aszMemberName; }
    const std::string& title(ParamLanguage language) const {
        return language == kGerman ? texts.de : texts.en;
    }
    std::string unit() const; // that of the parameter with the same quantity
};

std::vector<Member> membersOf(const Parameter& record);

// "MessRecord01.U1p", or "U1p" in whichever records have it.
std::vector<Member> membersNamed(std::string_view name);

// One meaning of a number, with the parameters that can be set to it.
struct Meaning {
    reference::Choice choice;
    std::string other; // the text in the other language
    Parameters bearers;
};

// The choices with this number, or with this text in either language, letter case ignored.
std::vector<Meaning> meaningsOf(std::string_view text, ParamLanguage language);

// The parameter with this id, "2148" or "ID:2148", and the number of its element; null when there is none.
struct Identified {
    const Parameter* parameter = nullptr;
    int element = 0;
};
Identified identified(std::string_view text);

// The detection method whose parameters are meant by a part of its name; -1 when there is none.
int methodNamed(std::string_view text);
bool isOfMethod(const Parameter& parameter, int method);

} // namespace talux::tool

#endif
