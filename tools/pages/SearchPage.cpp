// All parameters as data for the page that searches them.
#include <algorithm>
#include <iterator>

#include "ParamSystem/dictionary/Tables.h"
#include "tools/pages/Facts.h"
#include "tools/pages/Glossary.h"
#include "tools/pages/Notes.h"
#include "tools/pages/Pages.h"

namespace talux::pages {

namespace {

constexpr std::string_view kPlace = "@DATA@";

std::string quoted(std::string_view text) {
    std::string json = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') json += '\\';
        if (c == '<')
            json += "\\u003c"; // the data is inside an HTML element
        else
            json += c;
    }
    return json += '"';
}

template <typename Items, typename Print>
std::string array(const Items& items, Print print, std::string_view between = ",") {
    std::string json = "[";
    for (const auto& item : items) {
        if (json.size() > 1) json += between;
        json += print(item);
    }
    return json += ']';
}

// An object to which fields are added; what is empty is left out.
class Object {
public:
    Object& add(std::string_view key, const std::string& json) {
        if (json.empty() || json == "\"\"" || json == "[]") return *this;
        text += (text.size() > 1 ? ",\"" : "\"") + std::string(key) + "\":" + json;
        return *this;
    }
    Object& add(std::string_view key, int number) { return add(key, std::to_string(number)); }
    std::string json() const { return text + '}'; }

private:
    std::string text = "{";
};

std::string bothTexts(std::string_view de, std::string_view en) {
    return Object().add("de", quoted(de)).add("en", quoted(en)).json();
}

std::string texts(const Parameter& parameter, ParamLanguage language) {
    return "[" + quoted(parameter.title(language)) + "," + quoted(parameter.description(language)) + "]";
}

std::string choices(const std::vector<reference::Choice>& list) {
    return array(list, [](const reference::Choice& choice) {
        return "[" + std::to_string(choice.number) + "," + quoted(choice.text) + "]";
    });
}

void addChoices(Object& object, const Parameter& parameter) {
    object.add("de", choices(parameter.choices(kGerman)));
    object.add("en", choices(parameter.choices(kEnglish)));
}

// Lists of choices that several parameters share, by the name of their template.
std::string sharedChoices() {
    Object lists;
    for (const Parameter& parameter : reference::parameters()) {
        if (!parameter.isTemplate() || parameter.type().nature != Nature::number) continue;
        Object list;
        list.add("de", choices(parameter.items(reference::kChoices, kGerman)));
        list.add("en", choices(parameter.items(reference::kChoices, kEnglish)));
        lists.add(parameter.name(), list.json());
    }
    return lists.json();
}

std::string glossary() {
    std::vector<Word> words(std::begin(kTradeWords), std::end(kTradeWords));
    words.insert(words.end(), std::begin(kDeviceWords), std::end(kDeviceWords));
    return array(
        words,
        [](const Word& word) {
            return Object()
                .add("de", quoted(word.de))
                .add("en", quoted(word.en))
                .add("deMeaning", quoted(word.deMeaning))
                .add("enMeaning", quoted(word.enMeaning))
                .json();
        },
        ",\n");
}

template <typename Range, typename Item>
int placeOf(const Range& range, const Item* item) {
    return static_cast<int>(item - &*std::begin(range));
}

void addLimits(Object& object, const Parameter& parameter) {
    if (!parameter.hasNumber()) return;
    if (parameter.leastNumber() != kNoMin) object.add("min", reference::shortNumber(parameter.leastNumber()));
    if (isChoice(parameter) && !refusesBelowOne(parameter)) object.add("lax", 1);
    if (parameter.hasMaximum()) object.add("max", reference::shortNumber(parameter.row().val_max));
}

void addValue(Object& object, const Parameter& parameter) {
    const std::string factory = defaultValue(parameter);
    if (parameter.isSetting()) object.add("factory", parameter.hasNumber() ? factory : quoted(factory + " "));
    addLimits(object, parameter);
    object.add("file", static_cast<int>(parameter.file())).add("level", parameter.writeLevel());
    if (ignoresWrites(parameter)) object.add("idle", 1);
    if (lineRoom(parameter) > 0) object.add("room", lineRoom(parameter));
    if (parameter.row().val_len > 0) object.add("meant", parameter.row().val_len);
}

std::string objectOf(const Parameter& parameter) {
    Object object;
    object.add("name", quoted(parameter.name())).add("id", firstId(parameter));
    if (parameter.isIndexed())
        object.add("first", parameter.row().val_min_id).add("last", parameter.row().val_max_id);
    object.add("family", placeOf(reference::model().families, &parameter.family()));
    if (const Method* method = methodOf(parameter)) object.add("method", placeOf(kMethods, method));
    object.add("kind", quoted(parameter.type().name)).add("unit", quoted(parameter.unit()));
    addValue(object, parameter);
    object.add("de", texts(parameter, kGerman)).add("en", texts(parameter, kEnglish));
    const std::string_view shared = parameter.templateName();
    Object own;
    if (shared.empty()) addChoices(own, parameter);
    object.add("shared", quoted(shared));
    if (own.json() != "{}") object.add("choices", own.json());
    object.add("notes", array(notesOf(parameter), [](int note) { return std::to_string(note); }));
    return object.json();
}

std::string data() {
    std::vector<Parameter> all;
    std::ranges::copy_if(reference::parameters(), std::back_inserter(all),
                         [](const Parameter& parameter) { return !parameter.isTemplate(); });
    const auto both = [](const auto& item) { return bothTexts(item.de, item.en); };
    const auto noteJson = [](const Note& note) {
        constexpr std::string_view kKinds[] = {"warning", "unknown", "advice"};
        return Object()
            .add("kind", quoted(kKinds[note.kind]))
            .add("de", quoted(note.de))
            .add("en", quoted(note.en))
            .json();
    };
    return Object()
        .add("families",
             array(kFamilies, [](const stParamFamily& f) { return bothTexts(germanName(f), f.name); }))
        .add("methods", array(reference::model().methods, both, ",\n"))
        .add("notes", array(kNotes, noteJson, ",\n"))
        .add("words", glossary())
        .add("shared", sharedChoices())
        .add("parameters", array(all, objectOf, ",\n"))
        .json();
}

} // namespace

void addSearchPage(Pages& pages, std::string frame) {
    const std::size_t place = frame.find(kPlace);
    if (place != frame.npos) frame.replace(place, kPlace.size(), data());
    pages["parameters.html"] = std::move(frame);
}

} // namespace talux::pages
