// talux set, apply, undo, discard: settings changed all or none, and back.
#include <memory>

#include "ParamSystem/os/Files.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"
#include "tools/talux/change/Apply.h"
#include "tools/talux/change/Confirm.h"

namespace talux::tool {

namespace {

struct Options {
    std::vector<std::string> assignments;
    std::string file; // plan or protocol
    Order order;
};
using OptionsOf = std::shared_ptr<Options>;

Status set(const Options& options, const Context& context) {
    attachToWrite(context);
    Plan plan(context);
    for (const std::string& assignment : options.assignments) {
        const auto equals = assignment.find('=');
        if (equals == assignment.npos)
            throw CouldNot(
                fill(context.say("'{}': NAME=VALUE expected", "'{}': NAME=WERT erwartet"), {assignment}));
        plan.take(assignment.substr(0, equals), assignment.substr(equals + 1));
    }
    Order order = options.order;
    order.what = "set " + namesIn(options.assignments);
    return carryOut(plan, order, context);
}

Status apply(const Options& options, const Context& context) {
    attachToWrite(context);
    Plan plan(context);
    plan.read(options.file);
    Order order = options.order;
    order.what = "apply " + options.file;
    return carryOut(plan, order, context);
}

// An interrupted change is taken back, whatever is there of it.
Status mend(const Journal& journal, Order order, const Context& context) {
    Writes back;
    for (const Write& write : journal.written())
        if (write.from)
            back.push_back(
                {write.parameter, write.index, present(*write.parameter, write.id()), *write.from});
    order.mends = true;
    return carryOut(back, order, context);
}

// What prevents it: settings that something else has changed since.
void demandUnchanged(const Journal& journal, const Context& context) {
    std::string changed;
    for (const Write& write : journal.writes)
        if (const auto now = present(*write.parameter, write.id());
            !write.setsClock() && !sameValue(now, write.to))
            changed += joined({changed.empty() ? "" : "; ", write.label(), " ",
                               change(*write.parameter, write.to, now, context)});
    if (!changed.empty())
        throw CouldNot(fill(context.say("nothing is written; changed since by something else: {}",
                                        "nichts ist geschrieben; seither anderweitig geändert: {}"),
                            {changed}));
}

// The other way round. The clock goes on.
Writes backwards(const Writes& writes) {
    Writes back;
    for (const Write& write : writes)
        if (!write.setsClock() && write.from)
            back.push_back({write.parameter, write.index, write.to, *write.from});
    return back;
}

Status undo(const Options& options, const Context& context) {
    attachToWrite(context);
    if (options.file.empty() && os::exists(openAddress(context).c_str())) {
        if (!options.order.yes &&
            !isAgreed(context.say("Take the address back?", "Adresse zurücknehmen?"), context))
            return kFound;
        return takeAddressBack(true, context) ? kNothing : kFound;
    }
    const std::string path = options.file.empty() ? lastChange(context) : options.file;
    const auto journal = Journal::read(path, context);
    if (!journal)
        throw CouldNot(fill(context.say("{}: is not there: no change to take back",
                                        "{}: nicht da: keine Änderung zurückzunehmen"),
                            {path}));
    Order order = options.order;
    order.what = "undo " + journal->what;
    if (!journal->isDone) return mend(*journal, order, context);
    demandUnchanged(*journal, context);
    order.live = order.live || journal->reach == Reach::live;
    order.save = order.save || journal->reach == Reach::saved;
    return carryOut(backwards(journal->writes), order, context);
}

Status discard(const Options& options, const Context& context) {
    attachToWrite(context);
    const Source live = Source::open("live", context);
    Writes writes;
    for (const Parameter& parameter : reference::parameters()) {
        if (!parameter.isSetting() || isOfClock(parameter)) continue;
        const auto staged = present(parameter, parameter.row().id), valid = live.value(parameter);
        if (valid && !sameValue(staged, valid)) writes.push_back({&parameter, 0, staged, *valid});
    }
    Order order = options.order;
    order.what = "discard";
    order.apply = nullptr; // what is live has been applied
    return carryOut(writes, order, context);
}

} // namespace

Status undoLast(bool isAgreed, const Context& context) {
    Options options;
    options.order.yes = isAgreed;
    return undo(options, context);
}

Status discardPending(bool isAgreed, const Context& context) {
    Options options;
    options.order.yes = isAgreed;
    return discard(options, context);
}

void addUndo(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(line, "undo",
                       {"take back the last change, or that of a record",
                        "die letzte Änderung oder die eines Protokolls zurücknehmen"});
    command.argument(
        {"RECORD", "PROTOKOLL"}, options->file,
        {"the last change of this device if not given", "sonst die letzte Änderung dieses Geräts"});
    options->order.takeOptions(command);
    commands.push_back({command, [options](const Context& context) { return undo(*options, context); }});
}

void addDiscard(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(line, "discard",
                       {"give up pending settings: they become what is live",
                        "Ausstehendes verwerfen: es gilt wieder das Gültige"});
    options->order.takeOptions(command);
    commands.push_back({command, [options](const Context& context) { return discard(*options, context); }});
}

void addSet(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(line, "set",
                       {"change settings, all or none, and read them back",
                        "Einstellungen ändern, alle oder keine, und rücklesen"});
    command
        .argument({"NAME=VALUE", "NAME=WERT"}, options->assignments,
                  {"a number, a choice by number or text, a text; NAME[3] for an element or one of a series",
                   "eine Zahl, eine Auswahl als Zahl oder Text, ein Text; NAME[3] für ein Element oder eines "
                   "einer Reihe"})
        .required();
    options->order.takeOptions(command);
    commands.push_back({command, [options](const Context& context) { return set(*options, context); }});
}

void addApply(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(
        line, "apply",
        {"the same from a file with lines NAME=VALUE", "dasselbe aus einer Datei mit Zeilen NAME=WERT"});
    command
        .argument({"PLAN", "PLAN"}, options->file,
                  {"a first line '# for: Feeder 7' is checked against Name",
                   "eine erste Zeile '# for: Abgang 7' wird mit Name verglichen"})
        .required();
    options->order.takeOptions(command);
    commands.push_back({command, [options](const Context& context) { return apply(*options, context); }});
}

} // namespace talux::tool
