// The page of the rules of plausibility.
#include <algorithm>

#include "tools/pages/Markdown.h"
#include "tools/pages/Pages.h"
#include "tools/reference/PlausibilityRules.h"

namespace talux::pages {

namespace {

// Parameters with links, units as they are; numbers among them belong to the rule.
std::string parametersOf(const reference::PlausibilityRule& rule) {
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
         "These rules are for settings that the device accepts, so nothing is refused because of them. `talux check`, "
         "`talux lint`, `talux status --plausible`, the shell and every change of settings report them. A *fault* "
         "cannot be right; a *doubt* may be intended and does not affect the exit status. Where the meaning of a "
         "setting is not documented there is no rule. The factory settings break only the rules marked "
         "*factory*.\n\n"
         "*Die Regeln gelten für Einstellungen, die das Gerät annimmt; ihretwegen wird nichts abgelehnt. Ein "
         "`fault` kann nicht richtig sein, ein `doubt` kann gewollt sein. Die Werkseinstellungen verletzen "
         "nur die mit `factory` bezeichneten Regeln.*\n\n"
         "| Rule | | English | Deutsch | Parameters |\n|---|---|---|---|---|\n"});
    for (const reference::PlausibilityRule& rule : reference::kPlausibilityRules)
        page +=
            joined({"| `", rule.code, "` | ", rule.gravity == reference::Gravity::fault ? "fault" : "doubt",
                    rule.isBrokenByFactory ? ", factory" : "", " | ", escaped(rule.en), " | ",
                    escaped(rule.de), " | ", parametersOf(rule), " |\n"});
    pages["plausibility.md"] = page;
}

} // namespace talux::pages
