// talux diff: in what two sources differ.
#include "tools/talux/Show.h"

namespace talux::tool {

namespace {

struct Options {
    std::vector<std::string> sources;
    bool notes = false, json = false;
};

void printText(const std::vector<Difference>& found, bool withNotes, const Context& context) {
    Table table;
    Parameters noted;
    for (const Difference& each : found) {
        if (withNotes) noted.push_back(each.parameter);
        table.add({Paint::bold(std::string(each.parameter->name())), change(each, context),
                   Paint::dim(each.parameter->title(context.language))});
    }
    print(table.text());
    for (const std::string& text : noteTexts(noted, context))
        print(text + "\n");
}

Json described(const Difference& difference, bool withNotes, const Context& context) {
    Json change = changeJson(difference, context);
    if (withNotes) addNotes(change, *difference.parameter);
    return change;
}

Status run(const Options& options, const Context& context) {
    if (options.sources.size() > 2) context.fail("more than two sources", "mehr als zwei Quellen");
    const Source a = Source::open(options.sources.size() == 2 ? options.sources[0] : "live", context);
    const Source b = Source::open(options.sources.back(), context);
    // A file that does not hold a setting says nothing about it, unless the other side is a file, too.
    const bool isOneFile = a.isPartial() != b.isPartial();
    const auto found = differences(a, b, [=](const Difference& each) {
        return (!isOneFile || (each.from && each.to)) && isDifference(each);
    });
    const auto describe = [&](const Difference& each) { return described(each, options.notes, context); };
    if (options.json)
        print(Json{{"from", a.name()}, {"to", b.name()}, {"differences", Json::arrayOf(found, describe)}}
                  .text());
    else
        printText(found, options.notes, context);
    return found.empty() ? kNothing : kFound;
}

} // namespace

void addDiff(CommandLine& line) {
    const auto [command, options] = line.add(
        "diff", run, {"in which settings two sources differ", "worin sich zwei Quellen unterscheiden"});
    command.argument({"SOURCE", "QUELLE"}, options.sources,
                     {"[A] B, each default, live, staged, a file or a folder; A is live if not given",
                      "[A] B, je default, live, staged, eine Datei oder ein Ordner; A ist sonst live"});
    command.flag("--notes", options.notes, kNotesHelp);
    command.json(options.json);
    command.isPaged = true;
}

} // namespace talux::tool
