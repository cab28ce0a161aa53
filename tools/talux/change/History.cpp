// talux history, restore, clone: what was, back again, and from another relay.
#include <algorithm>
#include <ctime>
#include <memory>
#include <sys/stat.h>

#include "tools/talux/Lookup.h"
#include "tools/talux/Show.h"
#include "tools/talux/StoredFile.h"
#include "tools/talux/Text.h"
#include "tools/talux/change/Apply.h"

namespace talux::tool {

namespace {

using reference::File;

struct Options {
    std::string name; // of a parameter, of a moment or a source
    bool json = false;
    Order order;
};

constexpr File kFiles[] = {File::normal, File::security, File::address};

std::string momentOf(std::time_t seconds) {
    std::tm time{};
    char text[32];
    localtime_r(&seconds, &time);
    return {text, std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &time)};
}

// The copies of a file and then itself, the oldest first.
std::vector<DatedCopy> versionsOf(File file, const Context& context) {
    std::vector<DatedCopy> versions = copiesOf(file, context);
    std::ranges::reverse(versions);
    const std::string path = pathOf(file, context);
    struct stat info;
    if (stat(path.c_str(), &info) == 0) versions.push_back({path, momentOf(info.st_mtime)});
    return versions;
}

// A version with what differs from the one before.
struct Version {
    DatedCopy copy;
    std::vector<const Parameter*> changed;
    Source source;
};

std::vector<Version> historyOf(const Context& context) {
    std::vector<Version> all;
    for (const File file : kFiles) {
        std::optional<Source> before;
        for (DatedCopy& copy : versionsOf(file, context)) {
            Version version{std::move(copy), {}, Source::nothing("")};
            version.source = Source::open(version.copy.path, context);
            for (const Parameter& parameter : reference::parameters()) {
                if (!before || parameter.file() != file || isOfClock(parameter)) continue;
                const auto from = before->value(parameter), to = version.source.value(parameter);
                if (from && to && !sameValue(from, to)) version.changed.push_back(&parameter);
            }
            before = version.source;
            all.push_back(std::move(version));
        }
    }
    std::ranges::stable_sort(all, {}, [](const Version& version) { return version.copy.when; });
    return all;
}

Status history(const Options& options, const Context& context) {
    const Parameter* const one = options.name.empty() ? nullptr : reference::find(options.name);
    if (one == nullptr && !options.name.empty()) throw CouldNot(unknownName(options.name, context));
    Json list = Json::array();
    Table table;
    for (const Version& version : historyOf(context)) {
        const auto value = one == nullptr ? std::nullopt : version.source.value(*one);
        if (one != nullptr && !value) continue;
        table.add({version.copy.when, version.copy.path,
                   one != nullptr ? shown(*one, value, context)
                                  : counted(version.changed.size(), context.say(" change", " Änderung"),
                                            context.say(" changes", " Änderungen"))});
        Json names = Json::array();
        for (const Parameter* parameter : version.changed)
            names.add(parameter->name());
        Json object{{"when", version.copy.when}, {"file", version.copy.path}, {"changed", std::move(names)}};
        if (one != nullptr) object.set("value", json(*one, value));
        list.add(std::move(object));
    }
    print(options.json ? list.text() : table.text());
    const auto last = Journal::read(lastChange(context), context);
    if (last && !options.json && one == nullptr)
        print(fill(context.say("last change: {}, {}: {}\n", "letzte Änderung: {}, {}: {}\n"),
                   {last->when, last->who, last->what}));
    return kNothing;
}

// Up to which moment copies count: "yesterday", "2026-11-20", "2026-11-20 14:30", "-3" for the third last.
std::string momentFor(const std::string& when, const Context& context) {
    constexpr char kAfterAll[] = "~";
    if (when == "yesterday" || when == "gestern")
        return momentOf(std::time(nullptr) - 86400).substr(0, 10) + kAfterAll;
    if (when.starts_with('-')) {
        const auto copies = copiesOf(File::normal, context);
        const std::size_t back = std::strtoul(when.c_str() + 1, nullptr, 10);
        if (back < 1 || back > copies.size())
            throw CouldNot(fill(context.say("there are {} copies", "es gibt {} Kopien"),
                                {std::to_string(copies.size())}));
        return copies[back - 1].when;
    }
    if (when.size() < 10 || when[4] != '-' || when[7] != '-')
        throw CouldNot(
            fill(context.say("'{}': neither a file nor a moment such as yesterday, 2026-11-20, -3",
                             "'{}': weder eine Datei noch ein Zeitpunkt wie gestern, 2026-11-20, -3"),
                 {when}));
    return when + kAfterAll;
}

bool isUnwritable(const Parameter& parameter) {
    return parameter.writeLevel() == 0;
}

Status restore(const Options& options, const Context& context) {
    attachToWrite(context);
    Plan plan(context);
    struct stat info;
    std::vector<std::string> paths;
    if (stat(options.name.c_str(), &info) == 0) {
        paths.push_back(options.name);
    } else {
        const std::string until = momentFor(options.name, context);
        for (const File file : {File::normal, File::security})
            if (const auto copy = newestWholeCopy(file, context, until)) paths.push_back(*copy);
    }
    if (paths.empty())
        throw CouldNot(
            context.say("there is no whole copy of that time", "aus dieser Zeit gibt es keine ganze Kopie"));
    for (const std::string& path : paths) {
        std::fprintf(stderr, "%s\n", printable(path).c_str());
        plan.copy(Source::open(path, context), isUnwritable);
    }
    Order order = options.order;
    order.what = "restore " + list(paths, " ");
    return carryOut(plan, order, context);
}

Status clone(const Options& options, const Context& context) {
    attachToWrite(context);
    Plan plan(context);
    plan.copy(Source::open(options.name, context),
              [](const Parameter& parameter) { return isUnwritable(parameter) || isIndividual(parameter); });
    Order order = options.order;
    order.what = "clone " + options.name;
    return carryOut(plan, order, context);
}

} // namespace

void addHistory(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(line, "history",
                       {"the dated copies and the files: when, and how many changes",
                        "datierte Kopien und Dateien: wann, wie viele Änderungen"});
    command.argument({"NAME", "NAME"}, options->name,
                     {"the values of one parameter", "die Werte eines Parameters"});
    command.flag("--json", options->json, {"print JSON", "als JSON ausgeben"});
    commands.push_back(
        {command, [options](const Context& context) { return history(*options, context); }, true});
}

void addRestore(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(line, "restore",
                       {"write back the settings of a dated copy or a file",
                        "Einstellungen einer Kopie oder Datei zurückschreiben"});
    command
        .argument({"WHEN", "WANN"}, options->name,
                  {"a file, yesterday, 2026-11-20, or -3 for the third last",
                   "eine Datei, yesterday (gestern), 2026-11-20 oder -3 für die drittletzte"})
        .required();
    options->order.takeOptions(command);
    commands.push_back({command, [options](const Context& context) { return restore(*options, context); }});
}

void addClone(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(line, "clone",
                       {"take over another relay's settings, not its identity",
                        "Einstellungen eines anderen Relais ohne dessen Gerätedaten"});
    command
        .argument({"SOURCE", "QUELLE"}, options->name,
                  {"a folder with the files of another relay, or a file",
                   "ein Ordner mit den Dateien eines anderen Relais oder eine Datei"})
        .required();
    options->order.takeOptions(command);
    commands.push_back({command, [options](const Context& context) { return clone(*options, context); }});
}

} // namespace talux::tool
