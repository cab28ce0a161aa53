// talux history, restore, clone: what was, back again, and from another relay.
#include <ctime>
#include <sys/stat.h>

#include "ParamSystem/os/Os.h"
#include "tools/talux/StoredFile.h"
#include "tools/talux/change/Apply.h"

namespace talux::tool {

namespace {

struct Options {
    std::string name; // of a parameter
    bool json = false;
};

// The copies of a file and then itself, the oldest first.
std::vector<DatedCopy> versionsOf(File file, const Context& context) {
    std::vector<DatedCopy> versions = copiesOf(file, context);
    std::ranges::reverse(versions);
    const std::string path = pathOf(file, context);
    struct stat info;
    if (stat(path.c_str(), &info) == 0) versions.push_back({path, localTimeText(info.st_mtime)});
    return versions;
}

struct Version {
    DatedCopy copy;
    Source source;
    std::vector<Difference> changed; // from the version before
};

std::vector<Version> historyOf(const Context& context) {
    std::vector<Version> all;
    for (const File file : kFiles) {
        const auto isChange = [file](const Difference& each) {
            return each.parameter->file() == file && each.from && each.to && isDifference(each);
        };
        Source before = Source::nothing("");
        for (const DatedCopy& copy : versionsOf(file, context)) {
            const Source source = Source::file(copy.path, context);
            all.push_back({copy, source, differences(before, source, isChange)});
            before = source;
        }
    }
    std::ranges::stable_sort(all, {}, [](const Version& version) { return version.copy.when; });
    return all;
}

// The line about the last change, or what is wrong with its record.
std::string lastChangeText(const Context& context) try {
    const auto last = Journal::read(lastChange(context), context);
    return last ? context.say("last change: {}, {}: {}\n", "letzte Änderung: {}, {}: {}\n", last->when,
                              last->who, last->what)
                : "";
} catch (const CouldNot& damage) {
    return damage.what() + std::string("\n");
}

Status history(const Options& options, const Context& context) {
    const Parameter* const one = options.name.empty() ? nullptr : reference::find(options.name);
    if (one == nullptr && !options.name.empty()) throw CouldNot(unknownName(options.name, context));
    Json all = Json::array();
    Table table;
    for (const auto& [copy, source, changed] : historyOf(context)) {
        const auto value = one == nullptr ? std::nullopt : source.value(*one);
        if (one != nullptr && !value) continue;
        table.add({copy.when, copy.path,
                   one != nullptr ? shown(*one, value, context)
                                  : context.counted(changed.size(), kChange, kChanges)});
        Json object{
            {"when", copy.when},
            {"file", copy.path},
            {"changed", Json::arrayOf(changed, [](const auto& each) { return each.parameter->name(); })}};
        if (one != nullptr) object.set("value", json(*one, value));
        all.add(std::move(object));
    }
    print(options.json ? all.text() : table.text());
    if (!options.json && one == nullptr) print(lastChangeText(context));
    return kNothing;
}

// By the calendar: a day may have 23 or 25 hours.
std::string yesterday() {
    std::tm time{};
    os::localTime(time);
    --time.tm_mday, time.tm_hour = 12, time.tm_isdst = -1;
    std::mktime(&time);
    return timeText(time, "%Y-%m-%d");
}

// Up to which moment copies count: "yesterday", "2026-11-20", "2026-11-20 14:30", "-3" for the third last.
std::string momentFor(const std::string& when, const Context& context) {
    constexpr char kAfterAll[] = "~";
    if (when == "yesterday" || when == "gestern") return yesterday() + kAfterAll;
    if (when.starts_with('-')) {
        const auto copies = copiesOf(File::normal, context);
        const std::size_t back = std::strtoul(when.c_str() + 1, nullptr, 10);
        if (back < 1 || back > copies.size())
            context.fail("there is no such copy; dated copies: {}",
                         "diese Kopie gibt es nicht; datierte Kopien: {}", copies.size());
        return copies[back - 1].when;
    }
    // As far as it goes; %Y is two characters shorter than a year.
    const std::string format = std::string("%Y-%m-%d %H:%M:%S").substr(0, when.size() - 2);
    std::tm time{};
    time.tm_isdst = -1;
    if (strptime(when.c_str(), format.c_str(), &time) == nullptr ||
        localTimeText(std::mktime(&time), format.c_str()) != when)
        context.fail("'{}': neither a file nor a moment such as yesterday, 2026-11-20, -3",
                     "'{}': weder eine Datei noch ein Zeitpunkt wie gestern, 2026-11-20, -3", when);
    return when + kAfterAll;
}

// The file that is named, or the newest whole copies of that time.
std::vector<std::string> filesToRestore(const std::string& name, const Context& context) {
    if (os::exists(name.c_str())) return {name};
    const std::string until = momentFor(name, context);
    std::vector<std::string> paths;
    for (const File file : {File::normal, File::security})
        if (const auto copy = newestWholeCopy(file, context, until)) paths.push_back(*copy);
    if (!paths.empty()) return paths;
    context.fail("there is no whole copy of that time", "aus dieser Zeit gibt es keine ganze Kopie");
}

bool isUnwritable(const Parameter& parameter) {
    return parameter.writeLevel() == 0;
}

Status restore(Order& order, const Context& context) {
    Plan plan(context);
    const auto paths = filesToRestore(order.operand, context);
    for (const std::string& path : paths) {
        std::fprintf(stderr, "%s\n", printable(path).c_str());
        plan.copy(Source::open(path, context), isUnwritable);
    }
    order.what = "restore " + list(paths, " ");
    return carryOut(plan, order, context);
}

Status clone(Order& order, const Context& context) {
    Plan plan(context);
    plan.copy(Source::open(order.operand, context),
              [](const Parameter& parameter) { return isUnwritable(parameter) || isIndividual(parameter); });
    order.what = "clone " + order.operand;
    return carryOut(plan, order, context);
}

} // namespace

void addVersions(CommandLine& line) {
    const auto [command, options] = line.add("history", history,
                                             {"the dated copies and the files: when, and how many changes",
                                              "datierte Kopien und Dateien: wann, wie viele Änderungen"});
    command.argument({"NAME", "NAME"}, options.name,
                     {"the values of one parameter", "die Werte eines Parameters"}, Need::optional);
    command.json(options.json);
    command.isPaged = true;
    const auto restoring = addChange(line, "restore", restore,
                                     {"write back the settings of a dated copy or a file",
                                      "Einstellungen einer Kopie oder Datei zurückschreiben"});
    restoring.command.argument({"WHEN", "WANN"}, restoring.options.operand,
                               {"a file, yesterday, 2026-11-20, or -3 for the third last",
                                "eine Datei, yesterday (gestern), 2026-11-20 oder -3 für die drittletzte"});
    const auto cloning = addChange(line, "clone", clone,
                                   {"take over another relay's settings, not its identity",
                                    "Einstellungen eines anderen Relais ohne dessen Gerätedaten"});
    cloning.command.argument({"SOURCE", "QUELLE"}, cloning.options.operand,
                             {"a folder with the files of another relay, or a file",
                              "ein Ordner mit den Dateien eines anderen Relais oder eine Datei"});
}

} // namespace talux::tool
