// talux explain: what a parameter is and what it is set to.
#include <algorithm>
#include <array>
#include <utility>

#include "tools/reference/Ranges.h"
#include "tools/talux/Search.h"
#include "tools/talux/Show.h"

namespace talux::tool {

namespace {

struct Options {
    std::vector<std::string> words;
    bool live = false;
    bool json = false;
};

// Where else values are looked for besides the defaults.
std::vector<Source> sourcesOf(const std::vector<Parameters>& all, const Options& options,
                              const Context& context) {
    std::vector<Source> sources;
    if (options.live)
        for (const char* name : {"live", "staged"})
            sources.push_back(Source::open(name, context));
    for (const Parameters& series : all)
        for (const Parameter* parameter : series) {
            const std::string path = pathOf(parameter->file(), context);
            const bool isKnown = std::ranges::find(sources, path, &Source::name) != sources.end();
            if (parameter->file() != File::none && !isKnown && os::exists(path.c_str()))
                sources.push_back(Source::file(path, context));
        }
    return sources;
}

// Items by what is said of them, in the order of the texts.
template <class Item>
using ByText = std::vector<std::pair<std::string, std::vector<Item>>>;

template <class Item>
void add(ByText<Item>& groups, const std::string& text, const Item& item) {
    auto known = std::ranges::find(groups, text, &std::pair<std::string, std::vector<Item>>::first);
    if (known == groups.end()) known = groups.insert(known, {text, {}});
    known->second.push_back(item);
}

std::string withUnit(std::string_view type, const std::string& unit) {
    return unit.empty() ? std::string(type) : fill("{} in {}", {type, unit});
}

std::string kindText(const Parameter& parameter, const Context& context) {
    std::string text = withUnit(parameter.type().name, unitOf(parameter));
    if (parameter.isIndexed()) text += ", " + elementsText(parameter, context);
    if (parameter.row().val_len > 0 && parameter.textRoom() > 0)
        text += context.say(", meant for at most {} characters", ", vorgesehen für höchstens {} Zeichen",
                            parameter.textLength());
    if (parameter.textRoom() > 0 && parameter.writeLevel() > 0)
        text += context.say("; a line holds {} bytes", "; eine Zeile fasst {} Bytes", parameter.lineRoom());
    if (parameter.row().is_volatile == 1) text += context.say(", run-time value", ", Laufzeitwert");
    return text;
}

std::string rightsOf(const Parameter& parameter, const Context& context) {
    if (const int level = parameter.writeLevel(); level > 0)
        return context.say("read at level 1, written at level {}", "lesen ab Stufe 1, schreiben ab Stufe {}",
                           level);
    return parameter.facts().isReadOnly ? context.say("read-only, read at level 1", "nur lesen, ab Stufe 1")
                                        : context.say("read at level 1; a write has no effect",
                                                      "lesen ab Stufe 1; Schreiben bewirkt nichts");
}

// Many choices have no specified minimum: what a write accepts below the first of them is not refused.
std::string limitsOf(const Parameter& parameter, const Context& context) {
    const bool isOpen = parameter.type().kind == Kind::Enum && !parameter.hasMinimum();
    return rangeText(parameter, context.language) +
           (isOpen ? context.say("; 0 and below are not refused", "; 0 und kleiner werden nicht abgelehnt")
                   : "");
}

// What is said: labels and texts, further texts of a label without it.
struct Rows : std::vector<std::pair<std::string, std::string>> {
    void add(std::string label, const std::vector<std::string>& texts) {
        for (const std::string& text : texts)
            emplace_back(std::exchange(label, {}), text);
    }
    void add(const char* label, const std::string& text) {
        if (!text.empty()) emplace_back(label, text);
    }

    void print(const std::string& head) const {
        Table table;
        for (const auto& [label, text] : *this)
            table.add({label, text});
        tool::print(Paint::bold(head) + "\n" + table.text("  "));
    }
};

const char* nameOf(ParamLanguage language) {
    return language == kGerman ? "Deutsch" : "English";
}

// Numbers with one text in one row.
std::vector<std::string> choiceTexts(const Parameter& parameter, ParamLanguage language) {
    ByText<int> byText;
    for (const reference::Choice& choice : parameter.choices(language))
        add(byText, choice.text, choice.number);
    std::vector<std::string> texts;
    for (const auto& [text, numbers] : byText)
        texts.push_back(fill("{} = {}", {reference::asRanges(numbers), text}));
    return texts;
}

std::vector<std::string> memberTexts(const Parameter& record, ParamLanguage language) {
    std::vector<std::string> texts;
    if (record.type().nature == Nature::record)
        for (const reference::Member& member : membersOf(record))
            texts.push_back(fill("{} ({}): {}", {member.properties->aszMemberName,
                                                 withUnit(member.properties->szMemberType, unitOf(member)),
                                                 member.title(language)}));
    return texts;
}

// A run-time value in the working copy is that of the device.
std::vector<std::string> valueTexts(const Parameter& parameter, const std::vector<Source>& sources,
                                    const Context& context) {
    std::vector<std::string> texts;
    for (const Source& source : sources)
        if (const auto value = source.value(parameter);
            value && !parameter.isIndexed() && (parameter.isSetting() || source.name() != "staged"))
            texts.push_back(fill("{} {}", {source.name(), shown(parameter, value, context)}));
    return texts;
}

Rows rowsOf(const Parameter& parameter, const std::vector<Source>& sources, const Context& context) {
    const ParamLanguage own = context.language;
    const int method = parameter.model().method;
    Rows rows;
    for (const ParamLanguage language : {own, context.otherLanguage()}) {
        rows.emplace_back(nameOf(language), parameter.title(language));
        rows.add("", parameter.description(language));
    }
    rows.add(context.say("kind", "Art"), kindText(parameter, context));
    rows.add(context.say("range", "Bereich"), limitsOf(parameter, context));
    if (parameter.isSetting())
        rows.add(context.say("default", "Werkseinst."),
                 shown(parameter, Source::defaults().value(parameter), context));
    rows.add(context.say("choices", "Auswahl"), choiceTexts(parameter, own));
    rows.add(context.say("members", "Felder"), memberTexts(parameter, own));
    rows.add(context.say("rights", "Rechte"), rightsOf(parameter, context));
    rows.add(context.say("file", "Datei"), std::string(reference::fileName(parameter.file())));
    rows.add(context.say("family", "Familie"), std::string(familyName(parameter, own)));
    if (method >= 0)
        rows.add(context.say("method", "Verfahren"),
                 std::string(reference::model().methods[static_cast<std::size_t>(method)].in(own)));
    rows.add("id", std::to_string(parameter.row().id));
    rows.add(context.say("value", "Wert"), valueTexts(parameter, sources, context));
    return rows;
}

// What a row says of all members of a series: the first and last text where each has its own, else each text
// with its members.
std::vector<std::string> together(const Parameters& series, const std::vector<Rows>& all, std::size_t row) {
    ByText<const Parameter*> byText;
    for (std::size_t k = 0; k < series.size(); ++k)
        add(byText, all[k][row].second, series[k]);
    if (byText.size() == 1) return {byText[0].first};
    if (byText.size() == series.size()) return {byText.front().first + " .. " + byText.back().first};
    std::vector<std::string> texts;
    for (const auto& [text, members] : byText)
        texts.push_back(fill("{}: {}", {inShort(members), text}));
    return texts;
}

// One parameter, or a series as one where the same rows are said of all.
void explain(const Parameters& series, const std::vector<Source>& sources, const Context& context) {
    std::vector<Rows> all;
    for (const Parameter* parameter : series)
        all.push_back(rowsOf(*parameter, sources, context));
    constexpr auto kLabel = &Rows::value_type::first;
    if (!std::ranges::all_of(
            all, [&](const Rows& rows) { return std::ranges::equal(rows, all[0], {}, kLabel, kLabel); })) {
        for (const Parameter* parameter : series)
            explain({parameter}, sources, context);
        return;
    }
    Rows rows;
    for (std::size_t row = 0; row < all[0].size(); ++row)
        rows.add(all[0][row].first, together(series, all, row));
    rows.add(context.say("notes", "Hinweise"), noteTexts(series, context));
    rows.print(inShort(series));
}

void explain(const reference::Member& member, const Context& context) {
    Rows rows;
    for (const ParamLanguage language : {context.language, context.otherLanguage()})
        rows.add(nameOf(language), member.title(language));
    rows.add(context.say("kind", "Art"), withUnit(member.properties->szMemberType, unitOf(member)));
    rows.add(context.say("same as", "wie"), member.texts.twin);
    rows.add(context.say("switch", "Freigabe"), member.texts.enable);
    rows.add("byte", std::to_string(member.properties->lMemberOffset));
    rows.print(member.name());
}

Json bothTexts(const std::string& en, const std::string& de) {
    return {{"en", en}, {"de", de}};
}

Json described(const reference::Member& member) {
    return {{"name", member.name()},
            {"type", member.properties->szMemberType},
            {"title", bothTexts(member.texts.en, member.texts.de)},
            {"unit", unitOf(member)}};
}

Json described(const reference::Meaning& meaning) {
    return {{"number", meaning.choice.number},
            {"text", meaning.choice.text},
            {"parameters", namesOf(meaning.bearers)}};
}

Json described(const Parameter& parameter, const std::vector<Source>& sources) {
    const auto& row = parameter.row();
    const auto choices = parameter.choices(kEnglish);
    const auto inBoth = [&](const reference::Choice& choice) -> Json {
        return {{"number", choice.number},
                {"en", choice.text},
                {"de", parameter.choiceText(choice.number, kGerman)}};
    };
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
    if (parameter.hasNumber() && parameter.lowestNumber() != kNoMin)
        object.set("min", parameter.lowestNumber());
    if (parameter.hasNumber() && parameter.hasMaximum()) object.set("max", row.val_max);
    if (parameter.isIndexed())
        object.set("elements", Json::arrayOf(std::array{row.val_min_id, row.val_max_id}));
    if (!choices.empty()) object.set("choices", Json::arrayOf(choices, inBoth));
    if (parameter.type().nature == Nature::record)
        object.set("members",
                   Json::arrayOf(membersOf(parameter), [](const auto& member) { return described(member); }));
    addNotes(object, parameter);
    Json values;
    if (parameter.isSetting()) values.set("default", json(parameter, Source::defaults().value(parameter)));
    for (const Source& source : sources)
        if (const auto value = source.value(parameter); value && !parameter.isIndexed())
            values.set(source.name(), json(parameter, value));
    if (!values.isEmpty()) object.set("values", std::move(values));
    return object;
}

// What the words mean; several words are names, or are looked for together.
struct Found {
    std::vector<Parameters> series;
    std::vector<reference::Member> members;
    std::vector<reference::Meaning> meanings;
    Parameters hits; // of a search, listed

    bool isEmpty() const { return series.empty() && members.empty() && meanings.empty() && hits.empty(); }
};

bool addNamed(Found& found, const std::string& word) {
    const Parameters series = reference::named(word);
    const auto members = series.empty() ? reference::membersNamed(word) : std::vector<reference::Member>();
    const Parameter* const parameter = reference::identified(word);
    std::ranges::copy(members, std::back_inserter(found.members));
    if (reference::isPattern(word) && series.size() > 1)
        std::ranges::copy(series, std::back_inserter(found.hits));
    else if (!series.empty())
        found.series.push_back(series);
    else if (members.empty() && parameter != nullptr)
        found.series.push_back({parameter});
    return !series.empty() || !members.empty() || parameter != nullptr;
}

Found find(const std::vector<std::string>& words, const Context& context) {
    Found found;
    found.meanings = reference::meaningsOf(list(words, " "), context.language);
    const bool isNamed =
        std::ranges::all_of(words, [&found](const std::string& word) { return addNamed(found, word); });
    if (isNamed && found.meanings.empty()) return found;
    if (!isNamed) found.series.clear(), found.members.clear(), found.hits.clear();
    if (found.isEmpty()) found.hits = search(words);
    if (found.hits.size() == 1) found.series.push_back(std::exchange(found.hits, {}));
    return found;
}

void printText(const Found& found, const std::vector<Source>& sources, const Context& context) {
    Table meanings, hits;
    for (const auto& [choice, other, bearers] : found.meanings)
        meanings.add({std::to_string(choice.number), choice.text, other == choice.text ? "" : other,
                      inShort(bearers)});
    for (const Parameter* parameter : found.hits)
        hits.add({std::string(parameter->name()), parameter->title(context.language)});
    print(meanings.text() + hits.text());
    for (const Parameters& series : found.series)
        explain(series, sources, context);
    for (const reference::Member& member : found.members)
        explain(member, context);
}

void printJson(const Found& found, const std::vector<Parameters>& all, const std::vector<Source>& sources) {
    Json list = Json::array();
    for (const Parameters& series : all)
        for (const Parameter* parameter : series)
            list.add(described(*parameter, sources));
    for (const reference::Member& member : found.members)
        list.add(described(member));
    for (const reference::Meaning& meaning : found.meanings)
        list.add(described(meaning));
    print(list.text());
}

Status run(const Options& options, const Context& context) {
    const Found found = find(options.words, context);
    if (found.isEmpty())
        context.fail("no parameter is named or described by '{}'{}",
                     "kein Parameter heißt so oder wird so beschrieben: '{}'{}",
                     printable(list(options.words, " ")),
                     options.words.size() == 1 ? nearestName(options.words[0], context) : "");
    std::vector<Parameters> all = found.series;
    if (options.json) all.push_back(found.hits);
    const auto sources = sourcesOf(all, options, context);
    if (options.json)
        printJson(found, all, sources);
    else
        printText(found, sources, context);
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
