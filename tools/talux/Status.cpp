// talux status: what update and save would change, and which of it reaches the network.
#include <algorithm>
#include <unistd.h>

#include "ParamSystem/network/SettingIds.h"
#include "ParamSystem/store/ChangeFlags.h"
#include "tools/talux/Command.h"
#include "tools/talux/Judgement.h"
#include "tools/talux/Plausibility.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"
#include "tools/talux/change/Journal.h"

namespace talux::tool {

namespace {

using reference::File;

struct Options {
    bool json = false, plausible = false;
};

struct Pending {
    const Parameter* parameter;
    std::optional<Value> from;
    std::optional<Value> to;
};

// What one command would change, in its own space or file.
struct Change {
    const char* command; // of the command language
    std::string place;
    bool isThere;
    std::vector<Pending> pending;
};

struct Report {
    std::vector<Change> changes;
    std::string interruption;
    std::vector<std::string> flags;
    std::vector<std::pair<const Parameter*, Finding>> losses; // what a save would write and not bring back
    std::vector<Implausible> implausible;                     // of the working copy
};

// Calls differs(parameter, before, after) for every setting.
template <class Differs>
std::vector<Pending> pendingIn(const Source& from, const Source& to, Differs differs) {
    std::vector<Pending> pending;
    for (const Parameter& parameter : reference::parameters()) {
        if (!parameter.isSetting() || isOfClock(parameter)) continue;
        const auto before = from.value(parameter), after = to.value(parameter);
        if (differs(parameter, before, after)) pending.push_back({&parameter, before, after});
    }
    return pending;
}

Change updateChange(const Source& live, const Source& staged) {
    const auto differs = [](const Parameter&, const auto& a, const auto& b) { return !sameValue(a, b); };
    return {"update", "live", true, pendingIn(live, staged, differs)};
}

// A save commits first, so the file gets what is staged. Values count as they stand in files.
Change saveChange(const char* command, File file, const Source& staged, const Context& context) {
    const std::string path = pathOf(file, context);
    const bool isThere = access(path.c_str(), F_OK) == 0;
    const auto differs = [file](const Parameter& parameter, const auto& old, const auto& wanted) {
        if (parameter.file() != file || !wanted) return false;
        return !old || fileForm(parameter, *old) != fileForm(parameter, *wanted);
    };
    const Source before = isThere ? Source::open(path, context) : Source::nothing(path);
    return {command, path, isThere, pendingIn(before, staged, differs)};
}

Report reportOn(const Options& options, const Context& context) {
    const Source live = Source::open("live", context), staged = Source::open("staged", context);
    Report report;
    report.interruption = interruption(context);
    report.changes.push_back(updateChange(live, staged));
    report.changes.push_back(saveChange("save", File::normal, staged, context));
    report.changes.push_back(saveChange("save_sec", File::security, staged, context));
    report.changes.push_back(saveChange("save_ip", File::address, staged, context));
    for (const int id : kChangeFlagIds) {
        const Parameter& flag = *reference::find(GetParamProperties(id)->name);
        if (const auto value = live.value(flag); value && value->number() != 0)
            report.flags.emplace_back(flag.name());
    }
    for (const Parameter& parameter : reference::parameters())
        if (const auto value = staged.value(parameter);
            value && parameter.isSetting() && !isOfClock(parameter))
            if (auto finding = wouldNotComeBack(parameter, *value, context))
                report.losses.emplace_back(&parameter, std::move(*finding));
    if (options.plausible)
        findImplausible(staged, context,
                        [&](const Implausible& found) { report.implausible.push_back(found); });
    return report;
}

void printChange(const Change& change, const Context& context) {
    const Paint paint;
    const char* const pattern = change.isThere
                                    ? context.say("{} would change {} in {}", "{} würde {} in {} ändern")
                                    : context.say("{} would write {} to {}, which is not there",
                                                  "{} würde {} nach {} schreiben, das noch nicht existiert");
    const auto head =
        fill(pattern, {change.command,
                       counted(change.pending.size(), context.say("", " Wert"), context.say("", " Werte")),
                       change.place});
    print(paint.bold(head) + "\n");
    if (!change.isThere) return;
    Table table;
    for (const auto& [parameter, from, to] : change.pending)
        table.add({std::string(parameter->name()), paint.changed(tool::change(*parameter, from, to, context)),
                   network::reachesSystem(parameter->row().id) ? context.say("network", "Netzwerk") : ""});
    print(table.text("  "));
}

void printText(const Report& report, const Context& context) {
    bool network = false;
    if (!report.interruption.empty()) print(report.interruption + "\n");
    for (const Change& change : report.changes) {
        printChange(change, context);
        for (const Pending& pending : change.pending)
            network = network || network::reachesSystem(pending.parameter->row().id);
    }
    if (network)
        print(context.say(
            "network: update and save apply nothing to the system; load_ip or a write of ETH0_IP, ETH1_IP, "
            "WLAN0_IP does\n",
            "Netzwerk: update und save wenden am System nichts an; load_ip oder Schreiben von ETH0_IP, "
            "ETH1_IP, "
            "WLAN0_IP tut es\n"));
    for (const auto& [parameter, finding] : report.losses)
        print(fill("{}: {}\n", {parameter->name(), finding.text}));
    const Paint paint;
    for (const Implausible& found : report.implausible)
        print((found.isFault() ? paint.bad(found.text) : found.text) + "\n");
    for (const std::string& flag : report.flags)
        print(
            fill(context.say("{} is set: another program has not yet taken up the change\n",
                             "{} ist gesetzt: ein anderes Programm hat die Änderung noch nicht übernommen\n"),
                 {flag}));
}

void printReport(const Report& report, const Context& context) {
    Json all;
    for (const Change& change : report.changes) {
        Json list = Json::array();
        for (const auto& [parameter, from, to] : change.pending) {
            Json entry = changeJson(*parameter, from, to, context);
            entry.set("network", network::reachesSystem(parameter->row().id));
            list.add(std::move(entry));
        }
        all.set(change.command,
                {{"place", change.place}, {"there", change.isThere}, {"changes", std::move(list)}});
    }
    Json flags = Json::array(), losses = Json::array();
    for (const std::string& flag : report.flags)
        flags.add(flag);
    for (const auto& [parameter, finding] : report.losses)
        losses.add({{"name", parameter->name()}, {"text", finding.text}});
    all.set("interrupted", report.interruption);
    all.set("flags", std::move(flags));
    all.set("not_back", std::move(losses));
    Json implausible = Json::array();
    for (const Implausible& found : report.implausible)
        implausible.add(described(found));
    all.set("implausible", std::move(implausible));
    print(all.text());
}

Status run(const Options& options, const Context& context) {
    const Report report = reportOn(options, context);
    if (options.json)
        printReport(report, context);
    else
        printText(report, context);
    bool found = !report.losses.empty() || !report.interruption.empty();
    for (const Change& change : report.changes)
        found = found || !change.pending.empty();
    found = found || std::ranges::any_of(report.implausible, &Implausible::isFault);
    return found ? kFound : kNothing;
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
