// talux explain: what a parameter is and what it is set to.
#include "tools/talux/Explain.h"

#include <algorithm>
#include <memory>
#include <sys/stat.h>

#include "tools/talux/Command.h"
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

using Parameters = std::vector<const Parameter*>;

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
    if (!parameter.unit().empty()) text += fill(" in {}", {parameter.unit()});
    if (parameter.isIndexed())
        text +=
            fill(context.say(", elements {} to {}", ", Elemente {} bis {}"),
                 {std::to_string(parameter.row().val_min_id), std::to_string(parameter.row().val_max_id)});
    if (parameter.row().val_len > 0 && parameter.textRoom() > 0)
        text += fill(context.say(", at most {} characters", ", höchstens {} Zeichen"),
                     {std::to_string(std::min(parameter.row().val_len, parameter.textRoom()))});
    if (parameter.row().is_volatile == 1) text += context.say(", run-time value", ", Laufzeitwert");
    return text;
}

std::string rightsOf(const Parameter& parameter, const Context& context) {
    const int level = parameter.writeLevel();
    if (level == 0) return context.say("read-only, read at level 1", "nur lesen, ab Stufe 1");
    return fill(
        context.say("read at level 1, written at level {}", "lesen ab Stufe 1, schreiben ab Stufe {}"),
        {std::to_string(level)});
}

std::string defaultText(const Parameter& parameter, const Context& context) {
    return parameter.isSetting() ? shown(parameter, Source::defaults().value(parameter), context)
                                 : std::string();
}

void addTexts(Table& table, const Parameter& parameter, ParamLanguage language) {
    table.add({language == kGerman ? "Deutsch" : "English", parameter.title(language)});
    if (const std::string text = parameter.description(language); !text.empty()) table.add({"", text});
}

void addLine(Table& table, const char* label, const std::string& text) {
    if (!text.empty()) table.add({label, text});
}

void addChoices(Table& table, const Parameter& parameter, const Context& context) {
    const char* label = context.say("choices", "Auswahl");
    for (const reference::Choice& choice : parameter.choices(context.language)) {
        table.add({label, fill("{} = {}", {std::to_string(choice.number), choice.text})});
        label = "";
    }
}

void addMembers(Table& table, const Parameter& parameter, const Context& context) {
    const char* label = context.say("members", "Felder");
    for (const auto& member : reference::members(parameter)) {
        table.add({label, fill("{} ({})", {member.aszMemberName, member.szMemberType})});
        label = "";
    }
}

void addValues(Table& table, const Parameter& parameter, const Places& places, const Context& context) {
    if (parameter.isIndexed()) return;
    const char* label = context.say("value", "Wert");
    for (const Source& source : places.sources) {
        const auto value = source.value(parameter);
        const bool isTwice = source.kind() == Source::Kind::staged && !parameter.isSetting();
        if (!value || isTwice) continue;
        table.add({label, fill("{} {}", {source.name(), shown(parameter, value, context)})});
        label = "";
    }
}

void explain(const Parameter& parameter, const Places& places, const Context& context) {
    Table table;
    addTexts(table, parameter, context.language);
    addTexts(table, parameter, context.otherLanguage());
    addLine(table, context.say("kind", "Art"), kindText(parameter, context));
    addLine(table, context.say("range", "Bereich"), range(parameter, context.language));
    addLine(table, context.say("default", "Werkseinst."), defaultText(parameter, context));
    addChoices(table, parameter, context);
    if (parameter.type().nature == Nature::record) addMembers(table, parameter, context);
    addLine(table, context.say("rights", "Rechte"), rightsOf(parameter, context));
    addLine(table, context.say("file", "Datei"), std::string(reference::fileName(parameter.file())));
    addLine(table, context.say("family", "Familie"), std::string(familyName(parameter, context.language)));
    addLine(table, "id", std::to_string(parameter.row().id));
    addValues(table, parameter, places, context);
    print(Paint().bold(std::string(parameter.name())) + "\n" + table.text("  "));
}

Json elementsOf(const stParamProperties& row) {
    Json ends = Json::array();
    ends.add(row.val_min_id);
    ends.add(row.val_max_id);
    return ends;
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
    Json object{
        {"name", parameter.name()},
        {"id", row.id},
        {"type", parameter.type().name},
        {"family", parameter.family().name},
        {"title", {{"en", parameter.title(kEnglish)}, {"de", parameter.title(kGerman)}}},
        {"description", {{"en", parameter.description(kEnglish)}, {"de", parameter.description(kGerman)}}},
        {"unit", parameter.unit()},
        {"setting", parameter.isSetting()},
        {"file", reference::fileName(parameter.file())},
        {"write_level", parameter.writeLevel()}};
    if (parameter.hasNumber() && parameter.leastNumber() != kNoMin)
        object.set("min", parameter.leastNumber());
    if (parameter.hasNumber() && parameter.hasMaximum()) object.set("max", row.val_max);
    if (parameter.isIndexed()) object.set("elements", elementsOf(row));
    if (!parameter.choices(kEnglish).empty()) object.set("choices", choicesOf(parameter));
    if (Json values = valuesOf(parameter, places); !values.isNull()) object.set("values", std::move(values));
    return object;
}

Parameters namedBy(const std::vector<std::string>& words) {
    Parameters found;
    for (const std::string& word : words)
        if (const Parameter* parameter = reference::find(word)) found.push_back(parameter);
    return found.size() == words.size() ? found : Parameters{};
}

[[noreturn]] void nothingFound(const std::vector<std::string>& words, const Context& context) {
    std::string all;
    for (const std::string& word : words)
        all.append(all.empty() ? "" : " ").append(printable(word));
    std::string text = fill(context.say("no parameter is named or described by '{}'",
                                        "kein Parameter heißt so oder wird so beschrieben: '{}'"),
                            {all});
    if (const auto near = reference::nearest(words[0]); words.size() == 1 && !near.empty())
        text += fill(context.say("; the nearest name is {}", "; der ähnlichste Name ist {}"), {near});
    throw CouldNot(text);
}

Status run(const Options& options, const Context& context) {
    Parameters found = namedBy(options.words);
    const bool isSearch = found.empty();
    if (isSearch) found = search(options.words);
    if (found.empty()) nothingFound(options.words, context);
    if (isSearch && found.size() > 1 && !options.json) {
        Table table;
        for (const Parameter* parameter : found)
            table.add({std::string(parameter->name()), parameter->title(context.language)});
        print(table.text());
        return kNothing;
    }
    Places places(options, context);
    for (const Parameter* parameter : found)
        places.addFile(parameter->file(), context);
    Json all = Json::array();
    for (const Parameter* parameter : found) {
        if (options.json)
            all.add(described(*parameter, places));
        else
            explain(*parameter, places, context);
    }
    if (options.json) print(all.text());
    return kNothing;
}

} // namespace

void explain(const std::string& name, const Context& context) {
    run({.words = {name}, .live = true}, context);
}

void addExplain(CLI::App& app, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(app, "explain", "what a parameter is and what it is set to");
    command.option("NAME|WORD", options->words, "names, or words to look for in the texts").required();
    command.flag("--live", options->live, "also the values of the running device");
    command.flag("--json", options->json, "print JSON");
    commands.push_back({command, [options](const Context& context) { return run(*options, context); }});
}

} // namespace talux::tool
