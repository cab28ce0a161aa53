// talux list: names and values.
#include <algorithm>

#include "tools/talux/Search.h"
#include "tools/talux/Show.h"

namespace talux::tool {

namespace {

struct Options {
    std::string source; // live to see what is changed, otherwise default
    Filter filter;
    std::string uses;
    bool families = false, methods = false;
    bool changed = false;
    bool json = false;
};

bool isChanged(const Parameter& parameter, const std::optional<Value>& value) {
    return parameter.isSetting() && !isOfClock(parameter) && value &&
           !sameValue(value, Source::defaults().value(parameter));
}

// The value of an indexed parameter is an array.
Json jsonValue(const Parameter& parameter, const Source& source) {
    const auto valueAt = [&](int k) { return json(parameter, source.value(parameter.row().id + k)); };
    if (!parameter.isIndexed()) return valueAt(0);
    Json values = Json::array();
    for (int k = 0; k < parameter.elements(); ++k)
        values.add(valueAt(k));
    return values;
}

// Of which the value is to be one: an output function by its number, any choice by its text.
std::vector<reference::Meaning> usesOf(const std::string& text, const Context& context) {
    auto meanings = reference::meaningsOf(text, context.language);
    for (auto& meaning : meanings)
        if (meaning.choice.number == wholeNumber(text))
            std::erase_if(meaning.bearers,
                          [](const Parameter* bearer) { return bearer->templateName() != "BA_FUNCTION"; });
    std::erase_if(meanings, [](const auto& meaning) { return meaning.bearers.empty(); });
    if (meanings.empty() && !text.empty())
        context.fail("no output function has this number, no choice this text: {}",
                     "keine Ausgangsfunktion hat diese Nummer, keine Auswahl diesen Text: {}",
                     printable(text));
    return meanings;
}

bool isUse(const Parameter& parameter, const std::optional<Value>& value,
           const std::vector<reference::Meaning>& uses) {
    return value && !value->isText() && std::ranges::any_of(uses, [&](const auto& meaning) {
               return value->number() == meaning.choice.number && meaning.isOf(parameter);
           });
}

Json described(const Parameter& parameter, const Source& source, const Context& context) {
    const auto value = source.value(parameter);
    Json object{{"name", parameter.name()},
                {"value", jsonValue(parameter, source)},
                {"unit", unitOf(parameter)},
                {"title", parameter.title(context.language)},
                {"changed", isChanged(parameter, value)}};
    const std::string choice = value ? choiceOf(parameter, *value, context.language) : "";
    if (!choice.empty()) object.set("text", choice);
    return object;
}

// Of families with parameters that have names, or of methods.
Status printNames(const Options& options, const Context& context) {
    std::vector<std::string_view> names{""};
    for (const Parameter& parameter : reference::parameters())
        if (const std::string_view family = familyName(parameter, context.language);
            options.families && !parameter.isTemplate() && family != names.back())
            names.push_back(family);
    if (options.methods)
        for (const model::Both& name : reference::model().methods)
            names.push_back(name.in(context.language));
    names.erase(names.begin());
    const auto described = [](std::string_view name) { return Json{{"name", name}}; };
    print(options.json ? Json::arrayOf(names, described).text() : list(names, "\n") + "\n");
    return kNothing;
}

Status run(Options& options, const Context& context) {
    if (options.families || options.methods) return printNames(options, context);
    const Parameters chosen = options.filter.chosen(context);
    const auto uses = usesOf(options.uses, context);
    if (options.source.empty()) options.source = options.changed ? "live" : "default";
    const Source source = Source::open(options.source, context);
    Table table;
    Json all = Json::array();
    for (const Parameter* parameter : chosen) {
        const auto value = source.value(*parameter);
        const bool differs = isChanged(*parameter, value);
        if (options.changed && !differs) continue;
        if (source.isPartial() && !value) continue;
        if (!options.uses.empty() && !isUse(*parameter, value, uses)) continue;
        if (options.json) all.add(described(*parameter, source, context));
        const std::string text = parameter->isIndexed()
                                     ? context.say("{} elements", "{} Elemente", parameter->elements())
                                     : shown(*parameter, value, context);
        table.add({std::string(parameter->name()), differs ? Paint::changed(text) : text,
                   parameter->title(context.language)});
    }
    print(options.json ? all.text() : table.text());
    return kNothing;
}

} // namespace

void addList(CommandLine& line) {
    const auto [command, options] = line.add("list", run, {"names and values", "Namen und Werte"});
    command.argument({"FILTER", "FILTER"}, options.filter.names,
                     {"parts of names, or patterns with * and ?", "Teile von Namen oder Muster mit * und ?"},
                     Need::optional);
    command.option(
        "--of", options.source,
        {"whose values: default, live, staged, a file or a folder; if not given, live with --changed, "
         "else default",
         "wessen Werte: default, live, staged, eine Datei oder ein Ordner; sonst live mit --changed, "
         "default ohne"});
    command.flag("--families", options.families, {"the names of the families", "die Namen der Familien"});
    command.flag("--methods", options.methods,
                 {"the names of the detection methods", "die Namen der Erfassungsverfahren"});
    command.flag("--changed", options.changed,
                 {"only what is not the factory default", "nur was nicht der Werkseinstellung entspricht"});
    command.option(
        "--uses", options.uses,
        {"only what is set to this output function (number) or to a choice with this text",
         "nur was auf diese Ausgangsfunktion (Nummer) oder eine Auswahl mit diesem Text eingestellt ist"});
    options.filter.addTo(command);
    command.json(options.json);
    command.isPaged = true;
}

} // namespace talux::tool
