// talux status: what update and save would change, and which of it reaches the network.

#include "ParamSystem/network/SettingIds.h"
#include "ParamSystem/os/Files.h"
#include "ParamSystem/store/ChangeFlags.h"
#include "tools/talux/Judgement.h"
#include "tools/talux/Plausibility.h"
#include "tools/talux/Show.h"
#include "tools/talux/change/Journal.h"

namespace talux::tool {

namespace {

struct Options {
    bool json = false, plausible = false;
};

// What one command of the language would change, in its own space or file.
struct Change {
    const char* command;
    std::string place;
    bool isThere;
    std::vector<Difference> pending;
};

struct Report {
    std::vector<Change> changes;
    std::string interruption;
    std::vector<std::string> flags{};
    std::vector<std::pair<const Parameter*, Finding>> losses{}; // what a save would write and not bring back
    std::vector<Implausible> implausible{};                     // of the working copy
};

// A save commits first, so the file gets what is staged. Values count as they stand in files.
Change saveChange(const char* command, File file, const Source& staged, const Context& context) {
    const std::string path = pathOf(file, context);
    const bool isThere = os::exists(path.c_str());
    const auto differs = [file](const Difference& each) {
        const auto& [parameter, old, wanted] = each;
        return parameter->file() == file && wanted &&
               (!old || fileForm(*parameter, *old) != fileForm(*parameter, *wanted));
    };
    const Source before = isThere ? Source::file(path, context) : Source::nothing(path);
    return {command, path, isThere, differences(before, staged, differs)};
}

Report reportOn(const Options& options, const Context& context) {
    const Source live = Source::open("live", context), staged = Source::open("staged", context);
    Report report{{{"update", "live", true, differences(live, staged)},
                   saveChange("save", File::normal, staged, context),
                   saveChange("save_sec", File::security, staged, context),
                   saveChange("save_ip", File::address, staged, context)},
                  interruption(context)};
    if (report.interruption.empty()) report.interruption = lastChangeDamage(context);
    for (const int id : kChangeFlagIds)
        if (const auto value = live.value(id); value && value->number() != 0)
            report.flags.emplace_back(GetParamProperties(id)->name);
    for (const Parameter& parameter : settings())
        if (const auto value = staged.value(parameter))
            if (auto finding = wouldNotComeBack(parameter, *value, context))
                report.losses.emplace_back(&parameter, std::move(*finding));
    if (options.plausible) report.implausible = findImplausible(std::cref(staged), {}, context);
    return report;
}

bool reachesNetwork(const Difference& pending) {
    return network::reachesSystem(pending.parameter->row().id);
}

void printChange(const Change& change, const Context& context) {
    const auto& [command, place, isThere, pending] = change;
    const auto count = context.counted(pending.size(), {"", " Wert"}, {"", " Werte"});
    const auto head =
        isThere
            ? context.say("{} would change {} in {}", "{} würde {} in {} ändern", command, count, place)
            : context.say("{} would write {} to {}, which is not there",
                          "{} würde {} nach {} schreiben, das noch nicht existiert", command, count, place);
    print(Paint::bold(head) + "\n");
    Table table;
    for (const Difference& each : pending)
        table.add({std::string(each.parameter->name()), Paint::changed(tool::change(each, context)),
                   reachesNetwork(each) ? context.say("network", "Netzwerk") : ""});
    if (isThere) print(table.text("  "));
}

void printText(const Report& report, const Context& context) {
    if (!report.interruption.empty()) print(report.interruption + "\n");
    for (const Change& change : report.changes)
        printChange(change, context);
    if (std::ranges::any_of(report.changes, [](const Change& change) {
            return std::ranges::any_of(change.pending, reachesNetwork);
        }))
        print(context.say(
            "network: update and save apply nothing to the system; load_ip or a write of ETH0_IP, ETH1_IP, "
            "WLAN0_IP does\n",
            "Netzwerk: update und save wenden am System nichts an; load_ip oder Schreiben von ETH0_IP, "
            "ETH1_IP, WLAN0_IP tut es\n"));
    for (const auto& [parameter, finding] : report.losses)
        print(fill("{}: {}\n", {parameter->name(), finding.text}));
    for (const Implausible& found : report.implausible)
        print(found.painted() + "\n");
    for (const std::string& flag : report.flags)
        print(context.say("{} is set: another program has not yet taken up the change\n",
                          "{} ist gesetzt: ein anderes Programm hat die Änderung noch nicht übernommen\n",
                          flag));
}

void printJson(const Report& report, const Context& context) {
    Json all;
    for (const auto& [command, place, isThere, pending] : report.changes) {
        Json changes = Json::arrayOf(pending, [&](const Difference& each) {
            Json entry = changeJson(each, context);
            entry.set("network", reachesNetwork(each));
            return entry;
        });
        all.set(command, {{"place", place}, {"there", isThere}, {"changes", std::move(changes)}});
    }
    all.set("interrupted", report.interruption);
    all.set("flags", Json::arrayOf(report.flags));
    all.set("not_back", Json::arrayOf(report.losses, [](const auto& loss) {
                return Json{{"name", loss.first->name()}, {"text", loss.second.text}};
            }));
    all.set("implausible", Json::arrayOf(report.implausible, described));
    print(all.text());
}

Status run(const Options& options, const Context& context) {
    const Report report = reportOn(options, context);
    (options.json ? printJson : printText)(report, context);
    const bool isFound =
        !report.losses.empty() || !report.interruption.empty() ||
        std::ranges::any_of(report.changes, [](const Change& change) { return !change.pending.empty(); }) ||
        std::ranges::any_of(report.implausible, &Implausible::isFault);
    return isFound ? kFound : kNothing;
}

} // namespace

void addStatus(CommandLine& line) {
    const auto [command, options] = line.add("status", run,
                                             {"what update and save would change on this device",
                                              "was update und save an diesem Gerät ändern würden"});
    command.flag("--plausible", options.plausible,
                 {"also what is implausible in the working copy: see parameters/plausibility.md",
                  "auch was in der Arbeitskopie kaum gemeint sein kann: siehe parameters/plausibility.md"});
    command.json(options.json);
}

} // namespace talux::tool
