#include "tools/talux/Notes.h"

#include <map>
#include <utility>

#include "tools/talux/Text.h"

namespace talux::tool {

std::string noteLabel(const model::Note& note, const Context& context) {
    return note.kind == parameters::kWarning   ? context.say("Warning:", "Warnung:")
           : note.kind == parameters::kUnknown ? context.say("Not documented:", "Nicht dokumentiert:")
                                               : context.say("Note:", "Hinweis:");
}

std::vector<std::string> noteTexts(const Parameters& parameters, const Context& context) {
    std::map<std::pair<parameters::NoteKind, int>, Parameters> byNote;
    for (const Parameter* parameter : parameters)
        for (const int number : parameter->notes())
            byNote[{reference::noteAt(number).kind, number}].push_back(parameter);
    const Paint paint;
    std::vector<std::string> texts;
    for (const auto& [key, bearers] : byNote) {
        const model::Note& note = reference::noteAt(key.second);
        const std::string label = noteLabel(note, context);
        texts.push_back(
            joined({note.kind == parameters::kWarning ? paint.bold(paint.bad(label)) : paint.dim(label), " ",
                    bearers.size() == parameters.size() ? "" : inShort(bearers) + ": ",
                    note.text.in(context.language)}));
    }
    return texts;
}

void addNotes(Json& object, const Parameter& parameter) {
    const auto described = [](int number) -> Json {
        const auto& [text, kind] = reference::noteAt(number);
        return {{"kind", model::kNoteKinds[kind]}, {"en", text.en}, {"de", text.de}};
    };
    if (!parameter.notes().empty()) object.set("notes", Json::arrayOf(parameter.notes(), described));
}

} // namespace talux::tool
