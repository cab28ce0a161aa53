// The members of the records with their texts.
#ifndef TALUX_PAGES_RECORDS_H
#define TALUX_PAGES_RECORDS_H

#include <map>
#include <string>

#include "tools/pages/Facts.h"

namespace talux::pages {

struct MemberTexts {
    std::string de, en;
    std::string twin;   // the parameter with the same quantity, or empty
    std::string enable; // the switch that turns it on, or empty
};

// By name of the member.
std::map<std::string, MemberTexts, std::less<>> memberTextsOf(const Parameter& record);

} // namespace talux::pages

#endif
