// talux diff: in what two sources differ.

#include "tools/talux/Command.h"
#include "tools/talux/Notes.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

struct Options {
    std::vector<std::string> sources;
    bool notes = false;
    bool json = false;
};

struct Difference {
    const Parameter* parameter;
    std::optional<Value> from;
    std::optional<Value> to;
};

// A file that does not hold a setting says nothing about it, unless the other side is a file, too.
std::vector<Difference> differences(const Source& a, const Source& b) {
    std::vector<Difference> found;
    for (const Parameter& parameter : reference::parameters()) {
        if (!parameter.isSetting() || isOfClock(parameter)) continue;
        const auto from = a.value(parameter), to = b.value(parameter);
        const bool saysNothing = a.isPartial() != b.isPartial() && (!from || !to);
        if (!saysNothing && !sameValue(from, to)) found.push_back({&parameter, from, to});
    }
    return found;
}

void printText(const std::vector<Difference>& found, bool withNotes, const Context& context) {
    const Paint paint;
    Table table;
    Parameters noted;
    for (const auto& [parameter, from, to] : found) {
        if (withNotes) noted.push_back(parameter);
        table.add({paint.bold(std::string(parameter->name())), change(*parameter, from, to, context),
                   paint.dim(parameter->title(context.language))});
    }
    print(table.text());
    for (const std::string& text : noteTexts(noted, context))
        print(text + "\n");
}

void printDifferences(const std::vector<Difference>& found, const Source& a, const Source& b, bool withNotes,
                      const Context& context) {
    Json list = Json::array();
    for (const auto& [parameter, from, to] : found) {
        Json change = changeJson(*parameter, from, to, context);
        if (withNotes) addNotes(change, *parameter);
        list.add(std::move(change));
    }
    print(Json{{"from", a.name()}, {"to", b.name()}, {"differences", std::move(list)}}.text());
}

Status run(const Options& options, const Context& context) {
    if (options.sources.size() > 2)
        throw CouldNot(context.say("more than two sources", "mehr als zwei Quellen"));
    const bool hasBoth = options.sources.size() == 2;
    const Source a = Source::open(hasBoth ? options.sources[0] : "live", context);
    const Source b = Source::open(options.sources.back(), context);
    const auto found = differences(a, b);
    if (options.json)
        printDifferences(found, a, b, options.notes, context);
    else
        printText(found, options.notes, context);
    return found.empty() ? kNothing : kFound;
}

} // namespace

void addDiff(CommandLine& line) {
    const auto [command, options] = line.add(
        "diff", run, {"in which settings two sources differ", "worin sich zwei Quellen unterscheiden"});
    command
        .argument({"SOURCE", "QUELLE"}, options.sources,
                  {"[A] B, each default, live, staged, a file or a folder; A is live if not given",
                   "[A] B, je default, live, staged, eine Datei oder ein Ordner; A ist sonst live"})
        .required();
    command.flag("--notes", options.notes, kNotesHelp);
    command.json(options.json);
    command.isPaged = true;
}

} // namespace talux::tool
