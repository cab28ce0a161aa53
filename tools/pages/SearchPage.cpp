// All parameters as data of the page that searches them.
#include <vector>

#include "tools/Json.h"
#include "tools/Strings.h"
#include "tools/pages/Facts.h"
#include "tools/pages/Glossary.h"
#include "tools/pages/Names.h"
#include "tools/pages/Pages.h"
#include "tools/pages/Records.h"

namespace talux::pages {

namespace {

using tool::Json;

constexpr std::string_view kBegin = "<script id=\"data\" type=\"application/json\">", kEnd = "</script>";

// What is empty is left out.
void addText(Json& object, std::string_view key, std::string_view text) {
    if (!text.empty()) object.set(key, text);
}

void addList(Json& object, std::string_view key, Json value) {
    if (!value.isNull()) object.set(key, std::move(value));
}

// As shortNumber prints it.
Json number(double value) {
    const auto whole = static_cast<std::int64_t>(value);
    return static_cast<double>(whole) == value ? Json(whole) : Json(value);
}

Json texts(const Parameter& parameter, ParamLanguage language) {
    Json both;
    both.add(parameter.title(language));
    both.add(parameter.description(language));
    return both;
}

Json choices(const std::vector<reference::Choice>& choices) {
    Json all;
    for (const reference::Choice& choice : choices) {
        Json pair;
        pair.add(choice.number);
        pair.add(choice.text);
        all.add(std::move(pair));
    }
    return all;
}

Json ownChoices(const Parameter& parameter) {
    Json lists(std::initializer_list<Json::Member>{});
    addList(lists, "de", choices(parameter.items(reference::kChoices, kGerman)));
    addList(lists, "en", choices(parameter.items(reference::kChoices, kEnglish)));
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
    if (parameter.leastNumber() != kNoMin) object.set("min", number(parameter.leastNumber()));
    if (isChoice(parameter) && !refusesBelowOne(parameter)) object.set("lax", 1);
    if (parameter.mostNumber() != kNoMax) object.set("max", number(parameter.mostNumber()));
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

Json membersOf(const Parameter& record) {
    Json members;
    const auto texts = memberTextsOf(record);
    for (const StructMemberProperties_t& member : reference::members(record)) {
        const MemberTexts& text = texts.at(member.aszMemberName);
        const Parameter* const twin = reference::find(text.twin);
        Json own{{"name", member.aszMemberName}, {"de", text.de}, {"en", text.en}};
        addText(own, "unit", twin == nullptr ? "" : twin->unit());
        members.add(std::move(own));
    }
    return members;
}

Json objectOf(const Parameter& parameter) {
    Json object, notes;
    object.set("name", parameter.name());
    object.set("id", firstId(parameter));
    if (parameter.isIndexed()) {
        object.set("first", parameter.row().val_min_id);
        object.set("last", parameter.row().val_max_id);
    }
    object.set("family", static_cast<int>(&parameter.family() - reference::model().families.data()));
    if (const Method* method = methodOf(parameter)) object.set("method", static_cast<int>(method->id));
    object.set("kind", parameter.type().name);
    addText(object, "unit", parameter.unit());
    addValue(object, parameter);
    object.set("de", texts(parameter, kGerman));
    object.set("en", texts(parameter, kEnglish));
    addText(object, "shared", parameter.templateName());
    if (parameter.templateName().empty() && !parameter.choiceItems().empty())
        object.set("choices", ownChoices(parameter));
    if (parameter.type().nature == Nature::record) object.set("members", membersOf(parameter));
    for (const int note : parameter.notes())
        notes.add(note);
    addList(object, "notes", std::move(notes));
    return object;
}

template <class Items, class Make>
std::string array(const Items& items, Make make, std::string_view between = ",\n") {
    return "[" + list(items, between, [&make](const auto& item) { return make(item).line(); }) + "]";
}

Json noteOf(const model::Note& note) {
    return {{"kind", model::kNoteKinds[note.kind]}, {"de", note.text.de}, {"en", note.text.en}};
}

Json bothTexts(const model::Both& text) {
    return {{"de", text.de}, {"en", text.en}};
}

Json familyOf(const stParamFamily& family) {
    return bothTexts({germanName(family), family.name});
}

std::string glossary() {
    std::vector<Word> words(std::begin(kTradeWords), std::end(kTradeWords));
    words.insert(words.end(), std::begin(kDeviceWords), std::end(kDeviceWords));
    return array(words, [](const Word& word) {
        Json object;
        object.set("de", word.de);
        object.set("en", word.en);
        addText(object, "deMeaning", word.deMeaning);
        addText(object, "enMeaning", word.enMeaning);
        return object;
    });
}

Json synonymOf(const Synonym& synonym) {
    Json names;
    for (const std::string& name : namesOf(synonym.parameters))
        names.add(name);
    return {{"words", synonym.words}, {"names", std::move(names)}};
}

std::string data() {
    std::vector<Parameter> named;
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate()) named.push_back(parameter);
    return joined({"{\"families\":", array(reference::model().families, familyOf, ","),
                   ",\"methods\":", array(reference::model().methods, bothTexts),
                   ",\"notes\":", array(reference::model().notes, noteOf), ",\"words\":", glossary(),
                   ",\"synonyms\":", array(kSynonyms, synonymOf), ",\"shared\":", sharedChoices().line(),
                   ",\"parameters\":", array(named, objectOf), "}"});
}

// Nothing in the data ends the element around them.
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
