// talux list: names and values.
#include <algorithm>

#include "tools/talux/Command.h"
#include "tools/talux/Lookup.h"
#include "tools/talux/Search.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

struct Options {
    std::string source = "default";
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

std::string valueText(const Parameter& parameter, const std::optional<Value>& value, const Context& context) {
    if (parameter.isIndexed())
        return fill(context.say("{} elements", "{} Elemente"), {std::to_string(parameter.elements())});
    return shown(parameter, value, context);
}

// The value of an indexed parameter is an array.
Json jsonValue(const Parameter& parameter, const Source& source) {
    if (!parameter.isIndexed()) return json(parameter, source.value(parameter));
    Json elements = Json::array();
    for (int k = 0; k < parameter.elements(); ++k)
        elements.add(json(parameter, source.value(parameter.row().id + k)));
    return elements;
}

// Whether the value is one of the meanings: an output function by its number, any choice by its text.
bool isUse(const Parameter& parameter, const std::optional<Value>& value,
           const std::vector<Meaning>& meanings) {
    if (!value || value->isText()) return false;
    return std::ranges::any_of(meanings, [&](const Meaning& meaning) {
        return value->number() == meaning.choice.number &&
               std::ranges::find(meaning.bearers, &parameter) != meaning.bearers.end();
    });
}

std::vector<Meaning> usesOf(const std::string& text, const Context& context) {
    std::vector<Meaning> meanings = meaningsOf(text, context.language);
    if (text.find_first_not_of("0123456789") == text.npos)
        std::erase_if(meanings, [](const Meaning& meaning) {
            return meaning.bearers[0]->templateName() != "BA_FUNCTION";
        });
    if (meanings.empty() && !text.empty())
        throw CouldNot(
            fill(context.say("no output function has this number, no choice this text: {}",
                             "keine Ausgangsfunktion hat diese Nummer, keine Auswahl diesen Text: {}"),
                 {printable(text)}));
    return meanings;
}

// Of families with parameters that have names, or of methods.
void printNames(const Options& options, const Context& context) {
    std::string_view before;
    for (const Parameter& parameter : reference::parameters()) {
        const std::string_view family = familyName(parameter, context.language);
        if (options.families && !parameter.isTemplate() && family != before)
            print(fill("{}\n", {before = family}));
    }
    if (options.methods)
        for (const model::Both& name : reference::model().methods)
            print(fill("{}\n", {name.in(context.language)}));
}

Status run(Options& options, const Context& context) {
    if (options.families || options.methods) {
        printNames(options, context);
        return kNothing;
    }
    options.filter.check(context);
    const std::vector<Meaning> uses = usesOf(options.uses, context);
    const Source source = Source::open(options.source, context);
    const Paint paint;
    Table table;
    Json all = Json::array();
    for (const Parameter& parameter : reference::parameters()) {
        if (!options.filter.accepts(parameter)) continue;
        const auto value = source.value(parameter);
        const bool differs = isChanged(parameter, value);
        if (options.changed && !differs) continue;
        if (source.isPartial() && !value) continue;
        if (!options.uses.empty() && !isUse(parameter, value, uses)) continue;
        const std::string text = valueText(parameter, value, context);
        table.add({std::string(parameter.name()), differs ? paint.changed(text) : text,
                   parameter.title(context.language)});
        if (!options.json) continue;
        Json entry{{"name", parameter.name()},
                   {"value", jsonValue(parameter, source)},
                   {"unit", unitOf(parameter)},
                   {"title", parameter.title(context.language)},
                   {"changed", differs}};
        if (value && !choiceOf(parameter, *value, context.language).empty())
            entry.set("text", choiceOf(parameter, *value, context.language));
        all.add(std::move(entry));
    }
    if (options.json)
        print(all.text());
    else
        print(table.text());
    return kNothing;
}

} // namespace

void addList(CommandLine& line) {
    const auto [command, options] = line.add("list", run, {"names and values", "Namen und Werte"});
    command.optionalArgument(
        {"FILTER", "FILTER"}, options.filter.names,
        {"parts of names, or patterns with * and ?", "Teile von Namen oder Muster mit * und ?"});
    command.option("--of", options.source,
                   {"whose values: default, live, staged, a file or a folder",
                    "wessen Werte: default, live, staged, eine Datei oder ein Ordner"});
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
