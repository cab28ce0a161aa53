// talux list: names and values.
#include <memory>

#include "tools/talux/Command.h"
#include "tools/talux/Search.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

struct Options {
    std::string source = "default";
    Filter filter;
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

Status run(const Options& options, const Context& context) {
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
        const std::string text = valueText(parameter, value, context);
        table.add({std::string(parameter.name()), differs ? paint.changed(text) : text,
                   parameter.title(context.language)});
        if (options.json)
            all.add({{"name", parameter.name()},
                     {"value", jsonValue(parameter, source)},
                     {"unit", parameter.unit()},
                     {"title", parameter.title(context.language)},
                     {"changed", differs}});
    }
    if (options.json)
        print(all.text());
    else
        print(table.text());
    return kNothing;
}

} // namespace

void addList(CLI::App& app, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(app, "list", "names and values");
    command.option("FILTER", options->filter.names, "parts of names, or patterns with * and ?");
    command.option("--of", options->source, "whose values: default, live, staged, a file or a folder");
    command.flag("--changed", options->changed, "only what is not the factory default");
    options->filter.addTo(command);
    command.flag("--json", options->json, "print JSON");
    commands.push_back({command, [options](const Context& context) { return run(*options, context); }});
}

} // namespace talux::tool
