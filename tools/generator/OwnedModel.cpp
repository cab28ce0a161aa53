#include "tools/generator/OwnedModel.h"

#include <algorithm>
#include <map>

#include "ParamSystem/catalogue/Family.h"
#include "tools/generator/ApiNames.h"
#include "tools/generator/TextPattern.h"
#include "tools/pages/Methods.h"
#include "tools/pages/Notes.h"

namespace talux::generator {
namespace {

using model::Both, model::Item, model::Row;

std::string_view& in(Both& both, int language) {
    return language == kGerman ? both.de : both.en;
}

// Every name begins with the prefix of the last one, which is empty.
std::size_t methodByPrefix(std::string_view name) {
    const auto length = [name](const pages::Method& method) {
        return name.starts_with(method.prefix) ? static_cast<int>(method.prefix.size()) : -1;
    };
    return static_cast<std::size_t>(std::ranges::max_element(pages::kMethods, {}, length) - pages::kMethods);
}

} // namespace

OwnedModel::OwnedModel(std::span<const catalogue::Family> allFamilies,
                       const std::vector<Parameter>& parameters, const std::vector<TextSubject>& subjects,
                       std::span<const Text> texts) {
    addFamilies(allFamilies);
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
        addTexts(row, {texts.begin(), end});
        texts = {end, texts.end()};
    }
    share();
    addNotes();
    addMethods();
}

std::string_view OwnedModel::keep(std::string_view text) {
    return *strings.emplace(text).first;
}

void OwnedModel::addFamilies(std::span<const catalogue::Family> all) {
    int position = 1;
    for (const catalogue::Family& family : all) {
        const int first = position;
        for (const catalogue::ParameterRow& row : family.rows)
            position += row.count();
        families.push_back({family.name, first, position - 1});
    }
}

void OwnedModel::addRow(const Parameter& parameter, const stParamFamily& family, int position) {
    stParamProperties& copy = properties.emplace_back(parameter.properties());
    copy.id = parameter.id();
    copy.name = keep(parameter.name()).data();
    Row& row = rows.emplace_back();
    row.properties = &copy;
    row.position = position;
    row.name = keep(parameter.stem());
    row.family = &family;
    row.method = -1;
}

void OwnedModel::addTexts(Row& row, std::span<const Text> texts) {
    for (const Text& text : texts)
        addText(row, text);
    nameChoices(row);
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

void OwnedModel::nameChoices(Row& row) {
    if (row.properties->type != kTypeEnum || row.groups[model::kChoices].items.empty()) return;
    std::vector<Item>& choices = items.back(); // an enum has no other group
    const std::vector<std::string> names = apiNames(choices);
    for (std::size_t k = 0; k < choices.size(); ++k)
        choices[k].api = keep(names[k]);
}

void OwnedModel::share() {
    std::map<int, const Row*> templates;
    for (const Row& row : rows)
        if (row.isTemplate()) templates.emplace(row.properties->id, &row);
    for (Row& row : rows)
        if (row.properties->id_template != 0) row.shared = templates.at(row.properties->id_template);
}

void OwnedModel::addNotes() {
    std::map<std::string, std::vector<int>, std::less<>> byName;
    for (const pages::Note& note : pages::kNotes) {
        for (const std::string& name : namesOf(note.names))
            byName[name].push_back(static_cast<int>(notes.size()));
        notes.push_back({{note.de, note.en}, note.kind});
    }
    for (Row& row : rows) {
        const auto found = byName.find((row.isTemplate() ? "TPL_" : "") + std::string(row.name));
        if (found != byName.end()) row.notes = noteLists.emplace_back(found->second);
    }
}

void OwnedModel::addMethods() {
    std::map<std::string, int, std::less<>> byName;
    for (const pages::Method& method : pages::kMethods) {
        for (const std::string& name : namesOf(pages::settingsOf(method)))
            byName.emplace(name, static_cast<int>(methods.size()));
        methods.push_back({method.de, method.en});
    }
    for (Row& row : rows) {
        const auto found = byName.find(row.name);
        if (found != byName.end())
            row.method = found->second;
        else if (row.family->name == pages::kMethodFamily)
            row.method = static_cast<int>(methodByPrefix(row.name));
    }
}

} // namespace talux::generator
