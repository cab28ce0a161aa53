// talux explain: what a parameter is and what it is set to.
#include "tools/talux/Explain.h"

#include <algorithm>
#include <sys/stat.h>
#include <utility>

#include "tools/pages/Names.h"
#include "tools/talux/Command.h"
#include "tools/talux/Lookup.h"
#include "tools/talux/Notes.h"
#include "tools/talux/Search.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

struct Options {
    std::vector<std::string> words;
    bool live = false;
    bool json = false;
};

// Where else a value is looked for besides the defaults.
struct Places {
    std::vector<Source> sources;

    Places(const Options& options, const Context& context) {
        if (options.live)
            for (const char* name : {"live", "staged"})
                sources.push_back(Source::open(name, context));
    }

    void addFile(reference::File file, const Context& context) {
        const std::string path = pathOf(file, context);
        struct stat info;
        const bool isKnown = std::ranges::any_of(sources, [&](const Source& s) { return s.name() == path; });
        if (file != reference::File::none && !isKnown && stat(path.c_str(), &info) == 0)
            sources.push_back(Source::open(path, context));
    }
};

std::string kindText(const Parameter& parameter, const Context& context) {
    std::string text(parameter.type().name);
    if (const std::string unit = unitOf(parameter); !unit.empty()) text += " in " + unit;
    if (parameter.isIndexed())
        text +=
            fill(context.say(", elements {} to {}", ", Elemente {} bis {}"),
                 {std::to_string(parameter.row().val_min_id), std::to_string(parameter.row().val_max_id)});
    if (parameter.row().val_len > 0 && parameter.textRoom() > 0)
        text +=
            fill(context.say(", meant for at most {} characters", ", vorgesehen für höchstens {} Zeichen"),
                 {std::to_string(std::min(parameter.row().val_len, parameter.textRoom()))});
    if (parameter.textRoom() > 0 && parameter.writeLevel() > 0)
        text += fill(context.say("; a line holds {} bytes", "; eine Zeile fasst {} Bytes"),
                     {std::to_string(parameter.lineRoom())});
    if (parameter.row().is_volatile == 1) text += context.say(", run-time value", ", Laufzeitwert");
    return text;
}

std::string rightsOf(const Parameter& parameter, const Context& context) {
    const int level = parameter.writeLevel();
    if (level == 0)
        return parameter.row().val_access == kReadOnly
                   ? context.say("read-only, read at level 1", "nur lesen, ab Stufe 1")
                   : context.say("read at level 1; a write has no effect",
                                 "lesen ab Stufe 1; Schreiben bewirkt nichts");
    return fill(
        context.say("read at level 1, written at level {}", "lesen ab Stufe 1, schreiben ab Stufe {}"),
        {std::to_string(level)});
}

// Many choices have no specified minimum: what a write accepts below the first of them is not refused.
std::string rangeText(const Parameter& parameter, const Context& context) {
    std::string text = range(parameter, context.language);
    if (parameter.type().kind == Kind::Enum && !parameter.hasMinimum())
        text += context.say("; 0 and below are not refused", "; 0 und kleiner werden nicht abgelehnt");
    return text;
}

std::string defaultText(const Parameter& parameter, const Context& context) {
    return parameter.isSetting() ? shown(parameter, Source::defaults().value(parameter), context)
                                 : std::string();
}

// What is said of a parameter: a label and a text in a row, further rows of the same label without it.
class Rows {
public:
    Rows(const Parameter& shown, const Places& places, const Context& person)
        : parameter(shown), context(person) {
        addTexts(context.language);
        addTexts(context.otherLanguage());
        add(context.say("kind", "Art"), kindText(parameter, context));
        add(context.say("range", "Bereich"), rangeText(parameter, context));
        add(context.say("default", "Werkseinst."), defaultText(parameter, context));
        add(context.say("choices", "Auswahl"), choices());
        if (parameter.type().nature == Nature::record) add(context.say("members", "Felder"), memberTexts());
        add(context.say("rights", "Rechte"), rightsOf(parameter, context));
        add(context.say("file", "Datei"), std::string(reference::fileName(parameter.file())));
        add(context.say("family", "Familie"), std::string(familyName(parameter, context.language)));
        if (const int method = parameter.model().method; method >= 0)
            add(context.say("method", "Verfahren"),
                std::string(
                    reference::model().methods[static_cast<std::size_t>(method)].in(context.language)));
        add("id", std::to_string(parameter.row().id));
        add(context.say("value", "Wert"), values(places));
    }

    const std::vector<std::string>& labels() const { return labels_; }
    const std::vector<std::string>& texts() const { return texts_; }

private:
    const Parameter& parameter;
    const Context& context;
    std::vector<std::string> labels_, texts_;

    void add(const char* label, const std::vector<std::string>& texts) {
        for (const std::string& text : texts) {
            labels_.emplace_back(label);
            texts_.push_back(text);
            label = "";
        }
    }
    void add(const char* label, const std::string& text) {
        if (!text.empty()) add(label, std::vector<std::string>{text});
    }

    void addTexts(ParamLanguage language) {
        std::vector<std::string> texts{parameter.title(language)};
        if (std::string text = parameter.description(language); !text.empty()) texts.push_back(text);
        add(language == kGerman ? "Deutsch" : "English", texts);
    }

    // Numbers with one text in one row.
    std::vector<std::string> choices() const {
        std::vector<std::pair<std::string, std::vector<int>>> byText;
        for (const reference::Choice& choice : parameter.choices(context.language)) {
            auto known =
                std::ranges::find(byText, choice.text, [](const auto& entry) { return entry.first; });
            if (known == byText.end()) known = byText.insert(known, {choice.text, {}});
            known->second.push_back(choice.number);
        }
        std::vector<std::string> texts;
        texts.reserve(byText.size());
        for (const auto& [text, numbers] : byText)
            texts.push_back(fill("{} = {}", {pages::asRanges(numbers), text}));
        return texts;
    }

    std::vector<std::string> memberTexts() const {
        std::vector<std::string> texts;
        for (const Member& member : membersOf(parameter)) {
            const std::string unit = member.unit();
            texts.push_back(
                fill("{} ({}{}{}): {}", {member.properties->aszMemberName, member.properties->szMemberType,
                                         unit.empty() ? "" : " in ", unit, member.title(context.language)}));
        }
        return texts;
    }

    std::vector<std::string> values(const Places& places) const {
        std::vector<std::string> texts;
        if (parameter.isIndexed()) return texts;
        for (const Source& source : places.sources) {
            const auto value = source.value(parameter);
            const bool isTwice = source.kind() == Source::Kind::staged && !parameter.isSetting();
            if (value && !isTwice)
                texts.push_back(fill("{} {}", {source.name(), shown(parameter, value, context)}));
        }
        return texts;
    }
};

// What a row says of all members of a series: the first and last text where each has its own, else each text
// with its members.
std::vector<std::string> together(const std::vector<std::string>& texts, const Parameters& series) {
    std::vector<std::pair<std::string, Parameters>> byText;
    for (std::size_t k = 0; k < series.size(); ++k) {
        auto known = std::ranges::find(byText, texts[k], [](const auto& entry) { return entry.first; });
        if (known == byText.end()) known = byText.insert(known, {texts[k], {}});
        known->second.push_back(series[k]);
    }
    if (byText.size() == 1) return {texts[0]};
    if (byText.size() == series.size()) return {texts.front() + " .. " + texts.back()};
    std::vector<std::string> rows;
    rows.reserve(byText.size());
    for (const auto& [text, members] : byText)
        rows.push_back(fill("{}: {}", {inShort(members), text}));
    return rows;
}

// One parameter, or a series as one where the same rows are said of all.
void explain(const Parameters& series, const Places& places, const Context& context) {
    std::vector<Rows> rows;
    rows.reserve(series.size());
    for (const Parameter* parameter : series)
        rows.emplace_back(*parameter, places, context);
    if (!std::ranges::all_of(rows, [&](const Rows& own) { return own.labels() == rows[0].labels(); })) {
        for (const Parameter* parameter : series)
            explain({parameter}, places, context);
        return;
    }
    Table table;
    for (std::size_t k = 0; k < rows[0].labels().size(); ++k) {
        std::vector<std::string> texts;
        texts.reserve(rows.size());
        for (const Rows& own : rows)
            texts.push_back(own.texts()[k]);
        std::string label = rows[0].labels()[k];
        for (const std::string& text : together(texts, series))
            table.add({std::exchange(label, {}), text});
    }
    std::string label = context.say("notes", "Hinweise");
    for (const std::string& text : noteTexts(series, context))
        table.add({std::exchange(label, {}), text});
    print(Paint().bold(inShort(series)) + "\n" + table.text("  "));
}

void explain(const Member& member, const Context& context) {
    Table table;
    const auto add = [&table](const char* label, const std::string& text) {
        if (!text.empty()) table.add({label, text});
    };
    for (const ParamLanguage language : {context.language, context.otherLanguage()})
        add(language == kGerman ? "Deutsch" : "English", member.title(language));
    const std::string unit = member.unit();
    add(context.say("kind", "Art"), member.properties->szMemberType + (unit.empty() ? unit : " in " + unit));
    add(context.say("same as", "wie"), member.texts.twin);
    add(context.say("switch", "Freigabe"), member.texts.enable);
    add("byte", std::to_string(member.properties->lMemberOffset));
    print(Paint().bold(member.name()) + "\n" + table.text("  "));
}

void explain(const std::vector<Meaning>& meanings) {
    Table table;
    for (const auto& [choice, other, bearers] : meanings)
        table.add({std::to_string(choice.number), choice.text, other == choice.text ? "" : other,
                   inShort(bearers)});
    print(table.text());
}

Json elementsOf(const stParamProperties& row) {
    Json ends = Json::array();
    ends.add(row.val_min_id);
    ends.add(row.val_max_id);
    return ends;
}

Json bothTexts(const std::string& en, const std::string& de) {
    return {{"en", en}, {"de", de}};
}

Json described(const Member& member) {
    return {{"name", member.name()},
            {"type", member.properties->szMemberType},
            {"title", bothTexts(member.texts.en, member.texts.de)},
            {"unit", member.unit()}};
}

Json described(const Meaning& meaning) {
    Json names = Json::array();
    for (const Parameter* parameter : meaning.bearers)
        names.add(parameter->name());
    return {
        {"number", meaning.choice.number}, {"text", meaning.choice.text}, {"parameters", std::move(names)}};
}

Json choicesOf(const Parameter& parameter) {
    Json list = Json::array();
    for (const reference::Choice& choice : parameter.choices(kEnglish))
        list.add({{"number", choice.number},
                  {"en", choice.text},
                  {"de", parameter.choiceText(choice.number, kGerman)}});
    return list;
}

// Null when there are none.
Json valuesOf(const Parameter& parameter, const Places& places) {
    Json values;
    if (parameter.isSetting()) values.set("default", json(parameter, Source::defaults().value(parameter)));
    for (const Source& source : places.sources)
        if (const auto value = source.value(parameter); value && !parameter.isIndexed())
            values.set(source.name(), json(parameter, value));
    return values;
}

Json described(const Parameter& parameter, const Places& places) {
    const auto& row = parameter.row();
    Json object{{"name", parameter.name()},
                {"id", row.id},
                {"type", parameter.type().name},
                {"family", parameter.family().name},
                {"title", bothTexts(parameter.title(kEnglish), parameter.title(kGerman))},
                {"description", bothTexts(parameter.description(kEnglish), parameter.description(kGerman))},
                {"unit", unitOf(parameter)},
                {"setting", parameter.isSetting()},
                {"file", reference::fileName(parameter.file())},
                {"write_level", parameter.writeLevel()}};
    if (parameter.hasNumber() && parameter.leastNumber() != kNoMin)
        object.set("min", parameter.leastNumber());
    if (parameter.hasNumber() && parameter.hasMaximum()) object.set("max", row.val_max);
    if (parameter.isIndexed()) object.set("elements", elementsOf(row));
    if (!parameter.choices(kEnglish).empty()) object.set("choices", choicesOf(parameter));
    if (parameter.type().nature == Nature::record) {
        Json members = Json::array();
        for (const Member& member : membersOf(parameter))
            members.add(described(member));
        object.set("members", std::move(members));
    }
    addNotes(object, parameter);
    if (Json values = valuesOf(parameter, places); !values.isNull()) object.set("values", std::move(values));
    return object;
}

// What the words stand for; several words are names, or are looked for together.
struct Found {
    std::vector<Parameters> series;
    std::vector<Member> members;
    std::vector<Meaning> meanings;
    Parameters hits; // of a search, listed

    bool isEmpty() const { return series.empty() && members.empty() && meanings.empty() && hits.empty(); }
};

bool addNamed(Found& found, const std::string& word) {
    if (Parameters series = named(word); !series.empty()) {
        if (word.find_first_of("*?") != word.npos && series.size() > 1)
            found.hits.insert(found.hits.end(), series.begin(), series.end());
        else
            found.series.push_back(std::move(series));
        return true;
    }
    auto members = membersNamed(word);
    std::ranges::move(members, std::back_inserter(found.members));
    if (!members.empty()) return true;
    const Parameter* const parameter = identified(word).parameter;
    if (parameter != nullptr) found.series.push_back({parameter});
    return parameter != nullptr;
}

Found find(const std::vector<std::string>& words, const Context& context) {
    const std::string phrase = list(words, " ");
    Found found;
    found.meanings = meaningsOf(phrase, context.language);
    const bool isNamed =
        std::ranges::all_of(words, [&found](const std::string& word) { return addNamed(found, word); });
    if (isNamed && found.meanings.empty()) return found;
    if (!isNamed) found.series.clear(), found.members.clear(), found.hits.clear();
    if (found.isEmpty()) found.hits = search(words);
    if (found.hits.size() == 1) found.series.push_back(std::exchange(found.hits, {}));
    return found;
}

[[noreturn]] void nothingFound(const std::vector<std::string>& words, const Context& context) {
    std::string text = fill(context.say("no parameter is named or described by '{}'",
                                        "kein Parameter heißt so oder wird so beschrieben: '{}'"),
                            {printable(list(words, " "))});
    if (words.size() == 1) text += nearestName(words[0], context);
    throw CouldNot(text);
}

Places placesOf(const std::vector<Parameters>& all, const Options& options, const Context& context) {
    Places places(options, context);
    for (const Parameters& series : all)
        for (const Parameter* parameter : series)
            places.addFile(parameter->file(), context);
    return places;
}

void printText(const Found& found, const Places& places, const Context& context) {
    if (!found.meanings.empty()) explain(found.meanings);
    Table table;
    for (const Parameter* parameter : found.hits)
        table.add({std::string(parameter->name()), parameter->title(context.language)});
    print(table.text());
    for (const Parameters& series : found.series)
        explain(series, places, context);
    for (const Member& member : found.members)
        explain(member, context);
}

void printJson(const Found& found, const Places& places) {
    Json all = Json::array();
    for (const Parameters& series : found.series)
        for (const Parameter* parameter : series)
            all.add(described(*parameter, places));
    for (const Parameter* parameter : found.hits)
        all.add(described(*parameter, places));
    for (const Member& member : found.members)
        all.add(described(member));
    for (const Meaning& meaning : found.meanings)
        all.add(described(meaning));
    print(all.text());
}

Status run(const Options& options, const Context& context) {
    const Found found = find(options.words, context);
    if (found.isEmpty()) nothingFound(options.words, context);
    std::vector<Parameters> shown = found.series;
    if (options.json) shown.push_back(found.hits);
    const Places places = placesOf(shown, options, context);
    if (options.json)
        printJson(found, places);
    else
        printText(found, places, context);
    return kNothing;
}

} // namespace

void explain(const std::string& name, const Context& context) {
    run({.words = {name}, .live = isDeviceThere()}, context);
}

void addExplain(CommandLine& line) {
    const auto [command, options] = line.add("explain", run,
                                             {"what a name, an id, a choice or a word means",
                                              "was ein Name, eine Id, eine Auswahl oder ein Wort bedeutet"});
    command.argument(
        {"NAME|WORD", "NAME|WORT"}, options.words,
        {"names of parameters, series (BAassign) or members of records (MessRecord01.U1p), ids, "
         "choices by number or text, or words to look for in the texts",
         "Namen von Parametern, Reihen (BAassign) oder Feldern von Datensätzen (MessRecord01.U1p), "
         "Ids, Auswahlen als Zahl oder Text oder Wörter, die in den Texten gesucht werden"});
    command.flag("--live", options.live,
                 {"also the values of the running device", "auch die Werte des laufenden Geräts"});
    command.json(options.json);
    command.isPaged = true;
}

} // namespace talux::tool
