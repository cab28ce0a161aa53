#include "tools/generator/OwnedModel.h"

#include <algorithm>
#include <map>

#include "ParamSystem/parameters/Methods.h"
#include "tools/generator/TextPattern.h"

namespace talux::generator {
namespace {

using model::Both, model::Item, model::Row;

std::string_view& in(Both& both, int language) {
    return language == kGerman ? both.de : both.en;
}

} // namespace

OwnedModel::OwnedModel(std::span<const parameters::Family> allFamilies,
                       const std::vector<Parameter>& parameters, const std::vector<TextSubject>& subjects,
                       std::span<const Text> texts) {
    addFamilies(allFamilies, parameters);
    std::map<const Parameter*, int> textIds;
    for (const TextSubject& subject : subjects)
        textIds.emplace(subject.parameter, subject.textId);
    int position = 0;
    for (const Parameter& parameter : parameters) {
        ++position;
        if (parameter.isLaterElement()) continue;
        addRow(parameter, families[static_cast<std::size_t>(parameter.family - allFamilies.data())],
               position);
        const auto subject = textIds.find(&parameter);
        if (subject == textIds.end()) continue;
        Row& row = rows.back();
        row.textId = subject->second;
        const auto end = std::ranges::find_if(texts, [&](const Text& text) { return text.id != row.textId; });
        addTexts(row, *parameter.row, {texts.begin(), end});
        texts = {end, texts.end()};
    }
    share();
    addNotes(allFamilies);
    addMethods();
}

std::string_view OwnedModel::keep(std::string_view text) {
    return *strings.emplace(text).first;
}

void OwnedModel::addFamilies(std::span<const parameters::Family> all,
                             const std::vector<Parameter>& parameters) {
    int last = 0;
    for (const parameters::Family& family : all) {
        const int first = last + 1;
        last += static_cast<int>(std::ranges::count(parameters, &family, &Parameter::family));
        families.push_back({family.en, first, last});
        familyNames.push_back({family.de, family.en});
    }
}

void OwnedModel::addRow(const Parameter& parameter, const stParamFamily& family, int position) {
    stParamProperties& copy = properties.emplace_back(parameter.properties());
    copy.id = parameter.id();
    copy.name = keep(parameter.name).data();
    Row& row = rows.emplace_back();
    row.properties = &copy;
    row.position = position;
    row.name = keep(parameter.stem());
    row.family = &family;
    row.method = parameter.row->of.method;
    row.role = parameter.row->of.role;
    row.is = parameter.row->is;
    row.form = parameter.row->form;
    row.effect = parameter.row->effect;
}

void OwnedModel::addTexts(Row& row, const parameters::Row& data, std::span<const Text> texts) {
    for (const Text& text : texts)
        addText(row, text);
    nameChoices(data);
}

void OwnedModel::addText(Row& row, const Text& text) {
    const std::string_view kept = keep(text.text);
    if (text.type == kTextTitle) in(row.title, text.language) = kept;
    if (text.type == kTextDescription) in(row.description, text.language) = kept;
    if (text.type == kTextUnit) row.unit = kept;
    if (text.type == kTextGroup) in(row.groups[text.item].heading, text.language) = kept;
    if (text.type != kTextItem) return;
    model::Group& group = row.groups[text.group];
    if (group.items.empty()) items.emplace_back();
    std::vector<Item>& list = items.back(); // the groups of a parameter follow one another
    auto item = std::ranges::find(list, text.item, &Item::number);
    if (item == list.end()) item = list.insert(item, {text.item, {}, {}});
    in(item->text, text.language) = kept;
    group.items = list;
}

void OwnedModel::nameChoices(const parameters::Row& data) {
    const std::vector<std::string> names = choiceNames(data);
    for (std::size_t k = 0; k < names.size(); ++k)
        items.back()[k].api = keep(names[k]); // an enum has no other group
}

void OwnedModel::share() {
    std::map<int, const Row*> templates;
    for (const Row& row : rows)
        if (row.isTemplate()) templates.emplace(row.properties->id, &row);
    for (Row& row : rows)
        if (row.properties->id_template != 0) row.shared = templates.at(row.properties->id_template);
}

void OwnedModel::addNotes(std::span<const parameters::Family> all) {
    std::map<std::string, std::vector<int>, std::less<>> byName;
    for (const parameters::Family& family : all) {
        for (const parameters::Note& note : family.notes) {
            for (const std::string& name : namesOf(note.names))
                byName[name].push_back(static_cast<int>(notes.size()));
            notes.push_back({{note.de, note.en}, note.kind});
        }
    }
    for (Row& row : rows) {
        const auto found = byName.find((row.isTemplate() ? "TPL_" : "") + std::string(row.name));
        if (found != byName.end()) row.notes = noteLists.emplace_back(found->second);
    }
}

void OwnedModel::addMethods() {
    for (const parameters::Method& method : parameters::kMethods)
        methods.push_back({method.de, method.en});
}

} // namespace talux::generator
