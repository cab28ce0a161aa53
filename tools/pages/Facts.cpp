#include "tools/pages/Facts.h"

#include <algorithm>
#include <map>

#include "ParamSystem/kepl/Decision.h"
#include "tools/pages/Names.h"

namespace talux::pages {

namespace {

constexpr std::string_view kTemplatePrefix = "TPL_";

using Notes = std::map<std::string, std::vector<const Note*>, std::less<>>;

Notes makeNotes() {
    Notes notes;
    for (const Note& note : kNotes)
        for (std::string& name : namesOf(note.names))
            notes[std::move(name)].push_back(&note);
    return notes;
}

const Notes& allNotes() {
    static const Notes notes = makeNotes();
    return notes;
}

void append(std::vector<const Note*>& notes, const std::string& name) {
    const auto found = allNotes().find(name);
    if (found != allNotes().end()) notes.insert(notes.end(), found->second.begin(), found->second.end());
}

// Every name begins with the prefix of the last one, which is empty.
const Method& methodByPrefix(std::string_view name) {
    return *std::ranges::max_element(kMethods, {}, [name](const Method& method) {
        return name.starts_with(method.prefix) ? static_cast<int>(method.prefix.size()) : -1;
    });
}

std::map<std::string, const Method*, std::less<>> makeMethods() {
    std::map<std::string, const Method*, std::less<>> methods;
    for (const Method& method : kMethods)
        for (std::string& name : namesOf(settingsOf(method)))
            methods.emplace(std::move(name), &method);
    for (const Parameter& parameter : reference::parameters())
        if (isOfMethod(parameter))
            methods.try_emplace(std::string(parameter.name()), &methodByPrefix(parameter.name()));
    return methods;
}

} // namespace

bool hasLimits(const Parameter& parameter) {
    return parameter.hasNumber() && (parameter.hasMinimum() || parameter.hasMaximum());
}

int lineRoom(const Parameter& parameter) {
    constexpr int kAround = 3;
    const int room = static_cast<int>(kKeplMaxTerm - kepl::kPrefixLength - parameter.name().size()) - kAround;
    return std::min(room, parameter.textRoom());
}

std::string defaultValue(const Parameter& parameter) {
    if (!parameter.isSetting()) return {};
    return parameter.hasNumber() ? reference::shortNumber(parameter.row().val_def)
                                 : parameter.row().val_def_text;
}

std::string_view templateOf(const Parameter& parameter) {
    const int id = parameter.row().id_template;
    return id == 0 ? std::string_view() : reference::templateName(id);
}

const std::vector<const Note*>& notesOf(const Parameter& parameter) {
    static std::map<int, std::vector<const Note*>> byPosition;
    const auto [place, isNew] = byPosition.try_emplace(parameter.position());
    if (isNew) {
        std::string shared(kTemplatePrefix);
        shared += parameter.isTemplate() ? parameter.name() : templateOf(parameter);
        if (!parameter.isTemplate()) append(place->second, std::string(parameter.name()));
        append(place->second, shared);
    }
    return place->second;
}

const Method* methodOf(const Parameter& parameter) {
    static const auto methods = makeMethods();
    const auto found = methods.find(parameter.name());
    return found == methods.end() ? nullptr : found->second;
}

bool isOfMethod(const Parameter& parameter) {
    return std::string_view(parameter.family().name) == kMethodFamily;
}

std::string unnamedSettingsOf(const Method& method) {
    const auto named = namesOf(settingsOf(method));
    std::string all;
    for (const Parameter& parameter : reference::parameters())
        if (isOfMethod(parameter) && methodOf(parameter) == &method &&
            std::ranges::count(named, parameter.name()) == 0)
            (all += ' ') += parameter.name();
    return all;
}

std::string settingsOf(const Method& method) {
    std::string all;
    for (std::string_view names :
         {method.enable, method.thresholds, method.settings, method.delays, method.durations, method.logs})
        (all += names) += ' ';
    return all;
}

} // namespace talux::pages
