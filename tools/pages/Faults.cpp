#include <algorithm>

#include "tools/pages/Facts.h"
#include "tools/pages/Glossary.h"

namespace talux::pages {

namespace {

using Faults = std::vector<std::string>;

bool isName(std::string_view name) {
    const auto named = [name](const Parameter& parameter) {
        return parameter.isTemplate() ? name.starts_with("TPL_") && name.substr(4) == parameter.name()
                                      : name == parameter.name();
    };
    return std::ranges::any_of(reference::parameters(), named);
}

void expectNames(Faults& faults, std::string_view patterns) {
    for (const std::string& name : namesOf(patterns))
        if (!isName(name)) faults.push_back("no parameter is called " + name);
}

void expectChoices(Faults& faults, std::string_view numbers, const char* parameter) {
    const Parameter& choices = *reference::find(parameter);
    for (int number : numbersOf(numbers))
        if (choices.choiceText(number, kEnglish).empty())
            faults.push_back(std::string(parameter) + " has no choice " + std::to_string(number));
}

void checkMethods(Faults& faults) {
    for (const Method& method : kMethods) {
        expectNames(faults, method.measured);
        expectChoices(faults, method.functions, "BAassign1");
        expectChoices(faults, method.priorities, "prio_list_1");
    }
}

void checkMembers(Faults& faults) {
    for (const Parameter& record : reference::parameters()) {
        if (record.type().nature != Nature::record) continue;
        auto texts = reference::memberTextsOf(record);
        for (const StructMemberProperties_t& member : reference::members(record))
            if (texts.erase(member.aszMemberName) != 1)
                faults.push_back(std::string(record.name()) + "." + member.aszMemberName + " has no text");
        for (const auto& [name, text] : texts)
            faults.push_back(std::string(record.name()) + " has no member " + name);
        for (const auto& [name, text] : reference::memberTextsOf(record))
            expectNames(faults, text.twin + " " + text.enable);
    }
}

} // namespace

std::vector<std::string> faults() {
    Faults faults;
    for (const Synonym& synonym : kSynonyms)
        expectNames(faults, synonym.parameters);
    checkMethods(faults);
    checkMembers(faults);
    return faults;
}

} // namespace talux::pages
