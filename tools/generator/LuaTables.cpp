// The tables of the dictionary for talux.lua.
#include <algorithm>
#include <vector>

#include "tools/Strings.h"
#include "tools/generator/Tables.h"
#include "tools/reference/Members.h"
#include "tools/reference/Reference.h"

namespace talux::generator {
namespace {

using model::Model;
using reference::Parameter;

constexpr std::string_view kLuaHead = "-- Made by tools/generator from the dictionary.\n";

std::string braced(const std::vector<std::string>& items) {
    return joined({"{", list(items), "}"});
}

template <class Visit>
void forEachNamed(const Model& model, Visit visit) {
    for (const Parameter parameter : model.rows)
        if (!parameter.isTemplate()) visit(parameter);
}

// ---- What holds in every language ---------------------------------------------------------------------

const char* formOf(rules::Form form) {
    switch (form) {
    case rules::Form::address:
        return "address";
    case rules::Form::netmask:
        return "netmask";
    case rules::Form::date:
        return "date";
    case rules::Form::time:
        return "time";
    case rules::Form::none:
    case rules::Form::number:
    case rules::Form::whole:
    case rules::Form::choice:
    case rules::Form::flag:
    case rules::Form::text:
        break;
    }
    return ""; // the kind says it
}

std::string factsOf(const Parameter& parameter) {
    const stParamProperties& row = parameter.row();
    std::string facts = joined({"{name = ", quoted(parameter.name()), ", id = ", std::to_string(row.id),
                                ", kind = ", quoted(parameter.type().name)});
    const auto add = [&facts](bool there, std::string_view key, const std::string& value) {
        if (there) facts += joined({", ", key, " = ", value});
    };
    const std::string unit = parameter.unit();
    add(!unit.empty(), "unit", quoted(unit));
    const double min = parameter.lowestNumber(), max = parameter.highestNumber();
    add(parameter.hasNumber() && min != kNoMin, "min", reference::shortNumber(min));
    add(parameter.hasNumber() && max != kNoMax, "max", reference::shortNumber(max));
    add(parameter.textRoom() > 0, "length", std::to_string(parameter.textLength()));
    add(parameter.textRoom() > 0, "bytes", std::to_string(parameter.lineRoom()));
    const char* const form = formOf(parameter.facts().form);
    add(*form != '\0', "form", quoted(form));
    add(parameter.isIndexed(), "first", std::to_string(row.val_min_id));
    add(parameter.isIndexed(), "last", std::to_string(row.val_max_id));
    add(parameter.isSetting(), "default",
        parameter.hasNumber() ? reference::shortNumber(row.val_def) : quoted(row.val_def_text));
    add(parameter.isSetting(), "file", quoted(reference::fileName(parameter.file())));
    add(parameter.writeLevel() > 0, "level", std::to_string(parameter.writeLevel()));
    return facts + "}";
}

std::string parameters(const Model& model) {
    std::string text = joined({kLuaHead, "return {\n"});
    forEachNamed(model, [&text](const Parameter& parameter) { text += factsOf(parameter) + ",\n"; });
    return text + "}\n";
}

// ---- Texts --------------------------------------------------------------------------------------------

std::string choicesOf(const Parameter& parameter, ParamLanguage language) {
    std::vector<std::string> items;
    for (const reference::Choice& choice : parameter.choices(language))
        items.push_back(joined({"[", std::to_string(choice.number), "] = ", quoted(choice.text)}));
    return items.empty() ? std::string() : braced(items);
}

std::string noteOf(const model::Note& note, ParamLanguage language) {
    return joined({"{kind = ", quoted(model::kNoteKinds[note.kind]),
                   ", text = ", quoted(note.text.in(language)), "},\n"});
}

// Each list of choices and each note appears once, before the parameters.
std::string texts(const Model& model, ParamLanguage language) {
    std::vector<std::string> lists;
    std::string rows;
    forEachNamed(model, [&](const Parameter& parameter) {
        std::vector<std::string> row{quoted(parameter.title(language)),
                                     quoted(parameter.description(language))};
        if (const std::string choices = choicesOf(parameter, language); !choices.empty()) {
            auto known = std::ranges::find(lists, choices);
            if (known == lists.end()) known = lists.insert(known, choices);
            row.push_back(joined({"choices[", std::to_string(known - lists.begin() + 1), "]"}));
        }
        const auto note = [](int place) { return joined({"notes[", std::to_string(place + 1), "]"}); };
        if (const auto notes = parameter.notes(); !notes.empty())
            row.push_back(joined({"notes = {", list(notes, ", ", note), "}"}));
        rows += joined({"[", quoted(parameter.name()), "] = ", braced(row), ",\n"});
    });
    std::string text = joined({kLuaHead, "local choices = {\n"});
    for (const std::string& choices : lists)
        text += choices + ",\n";
    text += "}\nlocal notes = {\n";
    for (const model::Note& note : model.notes)
        text += noteOf(note, language);
    return joined({text, "}\nreturn {\n", rows, "}\n"});
}

// ---- Records ------------------------------------------------------------------------------------------

std::string unitOf(const Model& model, std::string_view name) {
    for (const Parameter parameter : model.rows)
        if (parameter.name() == name) return parameter.unit();
    return {};
}

// The members in their order.
std::string records(const Model& model) {
    std::string text = joined({kLuaHead, "return {\n"});
    forEachNamed(model, [&](const Parameter& parameter) {
        if (parameter.type().nature != Nature::record) return;
        std::vector<std::string> members;
        for (const reference::Member& member : reference::membersOf(parameter)) {
            const std::string unit = unitOf(model, member.texts.twin);
            members.push_back(
                joined({"{name = ", quoted(member.properties->aszMemberName),
                        ", kind = ", quoted(member.properties->szMemberType),
                        unit.empty() ? "" : ", unit = ", unit.empty() ? unit : quoted(unit),
                        ", de = ", quoted(member.texts.de), ", en = ", quoted(member.texts.en), "}"}));
        }
        text += joined({parameter.name(), " = ", braced(members), ",\n"});
    });
    return text + "}\n";
}

} // namespace

void addLuaTables(Sources& sources, const Model& model) {
    sources["lua/talux/parameters.lua"] = parameters(model);
    sources["lua/talux/parameters_de.lua"] = texts(model, kGerman);
    sources["lua/talux/parameters_en.lua"] = texts(model, kEnglish);
    sources["lua/talux/records.lua"] = records(model);
}

} // namespace talux::generator
