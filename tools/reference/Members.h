// The members of the three records with their texts.
#ifndef TALUX_TOOLS_REFERENCE_MEMBERS_H
#define TALUX_TOOLS_REFERENCE_MEMBERS_H

#include <map>
#include <string>
#include <vector>

#include "tools/reference/Reference.h"

namespace talux::reference {

struct MemberTexts {
    std::string de, en;
    std::string twin;   // the parameter with the same quantity, or empty
    std::string enable; // the switch that turns it on, or empty
};

// By name of the member.
std::map<std::string, MemberTexts, std::less<>> memberTextsOf(const Parameter& record);

struct Member {
    const Parameter* record;
    const StructMemberProperties_t* properties; // type and offset
    MemberTexts texts;

    std::string name() const { return std::string(record->name()) + "." + properties->aszMemberName; }
    const std::string& title(ParamLanguage language) const {
        return language == kGerman ? texts.de : texts.en;
    }
};

// In their order.
std::vector<Member> membersOf(const Parameter& record);

} // namespace talux::reference

#endif
