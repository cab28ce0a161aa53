// What people may mean by a word: a parameter, a series, a pattern, a member of a record, an id, a choice, a
// method.
#ifndef TALUX_TOOLS_REFERENCE_LOOKUP_H
#define TALUX_TOOLS_REFERENCE_LOOKUP_H

#include <string>
#include <string_view>
#include <vector>

#include "tools/generator/TextPattern.h"
#include "tools/reference/Members.h"

namespace talux::reference {

using generator::namesOf;
using Parameters = std::vector<const Parameter*>;

bool containsIgnoringCase(std::string_view text, std::string_view part);

// Whether a name matches a pattern with "*" or "?", or contains a text without them. Letter case is ignored.
bool isPattern(std::string_view text);
bool fits(std::string_view name, std::string_view pattern);

// The parameters that are wanted, in menu order; neither templates nor dialogs.
template <class Wanted>
Parameters chosen(Wanted wanted) {
    Parameters found;
    for (const Parameter& parameter : parameters())
        if (!parameter.isTemplate() && wanted(parameter)) found.push_back(&parameter);
    return found;
}

// What a name means: a parameter; a series by its name without the number, "BAassign"; a pattern,
// "U*_prim" or "U{1..3}_prim". In menu order; empty when it means nothing.
Parameters named(std::string_view name);

// "BAassign1..8, LEDassign1"
std::string inShort(const Parameters& parameters);

// "MessRecord01.U1p", or "U1p" in each record that has it.
std::vector<Member> membersNamed(std::string_view name);

// The unit of the parameter with the same quantity.
std::string unitOf(const Member& member);

// One meaning of a number, with the parameters that can be set to it.
struct Meaning {
    Choice choice;
    std::string other; // the text in the other language
    Parameters bearers;

    bool isOf(const Parameter& parameter) const {
        return std::ranges::find(bearers, &parameter) != bearers.end();
    }
};

// The choices with this number, or with this text in either language, letter case ignored.
std::vector<Meaning> meaningsOf(std::string_view text, ParamLanguage language);

// The parameter with this id, "2148" or "ID:2148", also of an element; null when there is none.
const Parameter* identified(std::string_view text);

// The detection method whose parameters are meant by a part of its name; -1 when there is none.
int methodNamed(std::string_view text);
bool isOfMethod(const Parameter& parameter, int method);

// The settings of a method that play a role in it, in menu order.
Parameters settingsOf(int method, parameters::Role role);

// The menu family.
std::string_view familyName(const stParamFamily& family, ParamLanguage language);
inline std::string_view familyName(const Parameter& parameter, ParamLanguage language) {
    return familyName(parameter.family(), language);
}

} // namespace talux::reference

#endif
