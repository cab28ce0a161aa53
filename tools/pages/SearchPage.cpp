// All parameters as data of the page that searches them.
#include <vector>

#include "tools/Json.h"
#include "tools/pages/Facts.h"
#include "tools/pages/Glossary.h"
#include "tools/pages/Pages.h"

namespace talux::pages {

namespace {

using tool::Json;

constexpr std::string_view kBegin = "<script id=\"data\" type=\"application/json\">", kEnd = "</script>";

// Empty values are left out.
void add(Json& object, std::string_view key, Json value) {
    if (!value.isEmpty()) object.set(key, std::move(value));
}

// As shortNumber prints it.
Json number(double value) {
    const auto whole = static_cast<std::int64_t>(value);
    return static_cast<double>(whole) == value ? Json(whole) : Json(value);
}

Json pair(Json first, Json second) {
    Json both;
    both.add(std::move(first));
    both.add(std::move(second));
    return both;
}

Json texts(const Parameter& parameter, ParamLanguage language) {
    return pair(parameter.title(language), parameter.description(language));
}

Json choices(const Parameter& parameter, ParamLanguage language) {
    Json all;
    for (const reference::Choice& choice : parameter.items(reference::kChoices, language))
        all.add(pair(choice.number, choice.text));
    return all;
}

Json ownChoices(const Parameter& parameter) {
    Json lists(std::initializer_list<Json::Member>{});
    add(lists, "de", choices(parameter, kGerman));
    add(lists, "en", choices(parameter, kEnglish));
    return lists;
}

// Lists of choices that several parameters share, by the name of their template.
Json sharedChoices() {
    Json lists;
    for (const Parameter& parameter : reference::parameters())
        if (parameter.isTemplate() && parameter.hasNumber())
            lists.set(parameter.name(), ownChoices(parameter));
    return lists;
}

void addLimits(Json& object, const Parameter& parameter) {
    if (!parameter.hasNumber()) return;
    if (parameter.lowestNumber() != kNoMin) object.set("min", number(parameter.lowestNumber()));
    if (isChoice(parameter) && !refusesBelowOne(parameter)) object.set("lax", 1);
    if (parameter.highestNumber() != kNoMax) object.set("max", number(parameter.highestNumber()));
}

void addValue(Json& object, const Parameter& parameter) {
    if (parameter.isSetting() && parameter.hasNumber())
        object.set("factory", number(parameter.row().val_def));
    if (parameter.isSetting() && !parameter.hasNumber())
        object.set("factory", parameter.defaultValue() + " ");
    addLimits(object, parameter);
    object.set("file", static_cast<int>(parameter.file()));
    object.set("level", parameter.writeLevel());
    if (ignoresWrites(parameter)) object.set("idle", 1);
    if (parameter.lineRoom() > 0) object.set("room", parameter.lineRoom());
    if (parameter.row().val_len > 0) object.set("meant", parameter.row().val_len);
}

Json memberOf(const reference::Member& member) {
    Json object{{"name", member.properties->aszMemberName}, {"de", member.texts.de}, {"en", member.texts.en}};
    add(object, "unit", unitOf(member));
    return object;
}

Json objectOf(const Parameter& parameter) {
    Json object{{"name", parameter.name()}, {"id", firstId(parameter)}};
    if (parameter.isIndexed()) {
        object.set("first", parameter.row().val_min_id);
        object.set("last", parameter.row().val_max_id);
    }
    object.set("family", static_cast<int>(&parameter.family() - reference::model().families.data()));
    if (const Method* method = methodOf(parameter)) object.set("method", static_cast<int>(method->id));
    object.set("kind", parameter.type().name);
    add(object, "unit", parameter.unit());
    addValue(object, parameter);
    object.set("de", texts(parameter, kGerman));
    object.set("en", texts(parameter, kEnglish));
    add(object, "shared", parameter.templateName());
    if (parameter.templateName().empty() && !parameter.choiceItems().empty())
        object.set("choices", ownChoices(parameter));
    if (parameter.type().nature == Nature::record)
        object.set("members", Json::arrayOf(reference::membersOf(parameter), memberOf));
    if (!parameter.notes().empty()) object.set("notes", Json::arrayOf(parameter.notes()));
    return object;
}

Json noteOf(const model::Note& note) {
    return {{"kind", model::kNoteKinds[note.kind]}, {"de", note.text.de}, {"en", note.text.en}};
}

Json bothTexts(const model::Both& text) {
    return {{"de", text.de}, {"en", text.en}};
}

Json wordOf(const Word& word) {
    Json object{{"de", word.de}, {"en", word.en}};
    add(object, "deMeaning", word.deMeaning);
    add(object, "enMeaning", word.enMeaning);
    return object;
}

Json synonymOf(const Synonym& synonym) {
    return {{"words", synonym.words}, {"names", Json::arrayOf(namesOf(synonym.parameters))}};
}

std::string data() {
    const auto& model = reference::model();
    std::vector<Word> words(std::begin(kTradeWords), std::end(kTradeWords));
    words.insert(words.end(), std::begin(kDeviceWords), std::end(kDeviceWords));
    const auto isNamed = [](const Parameter& parameter) { return !parameter.isTemplate(); };
    return Json{{"families", Json::arrayOf(model.familyNames, bothTexts)},
                {"methods", Json::arrayOf(model.methods, bothTexts)},
                {"notes", Json::arrayOf(model.notes, noteOf)},
                {"words", Json::arrayOf(words, wordOf)},
                {"synonyms", Json::arrayOf(kSynonyms, synonymOf)},
                {"shared", sharedChoices()},
                {"parameters", Json::arrayOf(reference::parametersWhere(isNamed), objectOf)}}
        .lines();
}

// Nothing in the data may end the element around it.
std::string inHtml(const std::string& json) {
    std::string text;
    for (const char c : json)
        text += c == '<' ? std::string("\\u003c") : std::string(1, c);
    return text;
}

} // namespace

void addSearchPage(Pages& pages, std::string page) {
    const std::size_t begin = page.find(kBegin) + kBegin.size(), end = page.find(kEnd, begin);
    if (begin < end && end != page.npos) page.replace(begin, end - begin, inHtml(data()));
    pages["parameters.html"] = std::move(page);
}

} // namespace talux::pages
