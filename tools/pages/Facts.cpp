#include "tools/pages/Facts.h"

#include <algorithm>
#include <map>

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

std::map<std::string, const Method*, std::less<>> makeMethods() {
    std::map<std::string, const Method*, std::less<>> methods;
    for (const Method& method : kMethods)
        for (std::string& name : namesOf(settingsOf(method)))
            methods.emplace(std::move(name), &method);
    return methods;
}

} // namespace

double leastNumber(const Parameter& parameter) {
    return isChoice(parameter) && !parameter.hasMinimum() ? 1 : parameter.row().val_min;
}

bool hasLimits(const Parameter& parameter) {
    return parameter.hasNumber() && (parameter.hasMinimum() || parameter.hasMaximum());
}

int lineRoom(const Parameter& parameter) {
    constexpr int kTerm = 127, kPrefix = 4, kAround = 3;
    const int room = kTerm - kPrefix - static_cast<int>(parameter.name().size()) - kAround;
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

std::string settingsOf(const Method& method) {
    std::string all;
    for (std::string_view names :
         {method.enable, method.thresholds, method.settings, method.delays, method.durations, method.logs})
        (all += names) += ' ';
    return all;
}

} // namespace talux::pages
