#include "tools/talux/Search.h"

#include <algorithm>

#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

bool holdsWords(const Parameter& parameter, const std::vector<std::string>& words) {
    std::string texts(parameter.name());
    for (const ParamLanguage language : {kEnglish, kGerman})
        texts += "\n" + parameter.title(language) + "\n" + parameter.description(language);
    return std::ranges::all_of(words,
                               [&texts](const auto& word) { return containsIgnoringCase(texts, word); });
}

std::vector<const Parameter*> search(const std::vector<std::string>& words) {
    std::vector<const Parameter*> found;
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate() && holdsWords(parameter, words)) found.push_back(&parameter);
    return found;
}

void Filter::addTo(Subcommand& command) {
    command.option("--family", family, "only families whose name contains this, in English or German");
    command.option("--file", file,
                   "only settings saved in the file whose name begins so: parameter, sec, ip");
    command.option("--level", level, "only parameters that need this rights level to write: 1, 2 or 3");
    command.option("--search", words, "only parameters whose texts contain all of these words").divided(' ');
}

bool Filter::accepts(const Parameter& parameter) const {
    if (parameter.isTemplate()) return false;
    const auto fitsName = [&](const std::string& name) { return fits(parameter.name(), name); };
    if (!names.empty() && !std::ranges::any_of(names, fitsName)) return false;
    if (!containsIgnoringCase(familyName(parameter, kEnglish), family) &&
        !containsIgnoringCase(familyName(parameter, kGerman), family))
        return false;
    if (!file.empty() && !reference::fileName(parameter.file()).starts_with(file)) return false;
    if (level != 0 && parameter.writeLevel() != level) return false;
    return words.empty() || holdsWords(parameter, words);
}

} // namespace talux::tool
