// The page of the rules of plausibility.
#include <algorithm>

#include "tools/pages/Markdown.h"
#include "tools/pages/Names.h"
#include "tools/pages/Pages.h"
#include "tools/talux/PlausibilityRules.h"

namespace talux::pages {

namespace {

// Parameters with links, units as they are; numbers among them belong to the rule.
std::string parametersOf(const tool::PlausibilityRule& rule) {
    if (rule.parameters.empty()) return "every setting";
    constexpr std::size_t kFew = 6; // that are named one by one
    const auto names = namesOf(rule.parameters);
    std::vector<std::string> named;
    if (std::ranges::count_if(names, [](const std::string& name) {
            return reference::find(name) != nullptr;
        }) > static_cast<std::ptrdiff_t>(kFew))
        return joined({"`", rule.parameters, "`"});
    for (const std::string& name : names) {
        if (name.starts_with('[')) named.push_back("every setting in " + name.substr(1, name.size() - 2));
        if (reference::find(name) != nullptr) named.push_back(linkTo(name));
    }
    return list(named);
}

} // namespace

void addPlausibility(Pages& pages) {
    std::string page = joined(
        {kGenerated, "# Plausibility\n\n[All parameters](README.md)\n\n",
         "What `talux check`, `talux lint` and `talux status --plausible` say of settings that the device "
         "accepts. Nothing is refused for it. A *fault* cannot be right; a *doubt* may be meant, and the exit "
         "status says nothing of it. What is not documented has no rule. The factory settings break the rules "
         "marked *factory*, no others.\n\n"
         "*Was `talux` zu Einstellungen sagt, die das Gerät annimmt. Abgelehnt wird deshalb nichts. Ein "
         "`fault` kann nicht richtig sein, ein `doubt` kann gewollt sein. Die Werkseinstellungen verletzen "
         "nur die mit `factory` bezeichneten Regeln.*\n\n"
         "| Rule | | English | Deutsch | Parameters |\n|---|---|---|---|---|\n"});
    for (const tool::PlausibilityRule& rule : tool::kPlausibilityRules)
        page += joined({"| `", rule.code, "` | ", rule.gravity == tool::Gravity::fault ? "fault" : "doubt",
                        rule.isBrokenByFactory ? ", factory" : "", " | ", escaped(rule.en), " | ",
                        escaped(rule.de), " | ", parametersOf(rule), " |\n"});
    pages["plausibility.md"] = page;
}

} // namespace talux::pages
