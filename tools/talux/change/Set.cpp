// talux set, apply, undo, discard: settings changed all or none, and back.
#include "ParamSystem/os/Files.h"
#include "tools/talux/change/Apply.h"

namespace talux::tool {

namespace {

Status set(Order& order, const Context& context) {
    Plan plan(context);
    plan.take(order.assignments);
    order.what = "set " + namesIn(order.assignments);
    return carryOut(plan, order, context);
}

Status apply(Order& order, const Context& context) {
    Plan plan(context);
    plan.read(order.operand);
    order.what = "apply " + order.operand;
    return carryOut(plan, order, context);
}

void demandUnchanged(const Journal& journal, const Context& context) {
    std::string changed;
    for (const Write& write : journal.writes)
        if (!write.isThere())
            changed += joined({changed.empty() ? "" : "; ", write.label(), " ",
                               change({write.parameter, write.to, write.present()}, context)});
    if (!changed.empty())
        context.fail("nothing is written; changed since by something else: {}",
                     "nichts ist geschrieben; seither anderweitig geändert: {}", changed);
}

// The other way round, whatever is there of it. The clock goes on.
Writes backwards(const Journal& journal) {
    Writes back;
    for (const Write& write : journal.written())
        if (write.from) back.push_back({write.parameter, write.index, write.present(), *write.from});
    return back;
}

} // namespace

Status undo(Order& order, const Context& context) {
    const bool hasOpenAddress = os::exists(openAddress(context).c_str());
    const bool isWaiting = order.operand.empty() && hasOpenAddress;
    if (isWaiting && !order.dryRun) {
        const char* const question = context.say("Take the address back?", "Adresse zurücknehmen?");
        const bool isWanted = order.yes || isAgreed(question, context);
        return isWanted && takeAddressBack(true, context) ? kNothing : kFound;
    }
    const std::string usual = isWaiting ? openAddress(context) : lastChange(context);
    const std::string path = order.operand.empty() ? usual : order.operand;
    const auto journal = Journal::read(path, context);
    if (!journal)
        context.fail("{}: is not there: no change to take back",
                     "{}: nicht da: keine Änderung zurückzunehmen", path);
    order.what = "undo " + journal->what;
    order.mends = !journal->isDone && !hasOpenAddress;
    if (journal->isDone) {
        demandUnchanged(*journal, context);
        order.appliesAll = journal->reach == Reach::applied;
        order.live = order.live || journal->reach == Reach::live;
        order.save = order.save || journal->reach == Reach::saved;
    }
    return carryOut(backwards(*journal), order, context);
}

Status discard(Order& order, const Context& context) {
    Writes writes;
    for (const auto& [parameter, staged, live] :
         differences(Source::open("staged", context), Source::open("live", context)))
        if (live) writes.push_back({parameter, 0, staged, *live});
    order.what = "discard";
    order.apply = nullptr; // what is live has been applied
    order.mends = !damageOf(openAddress(context), context).empty();
    return carryOut(writes, order, context);
}

void addChanges(CommandLine& line) {
    const auto setting = addChange(line, "set", set,
                                   {"change settings, all or none, and read them back",
                                    "Einstellungen ändern, alle oder keine, und rücklesen"});
    setting.command.argument(
        {"NAME=VALUE", "NAME=WERT"}, setting.options.assignments,
        {"a number, a choice by number or text, a text; NAME[3] for an element or one of a series",
         "eine Zahl, eine Auswahl als Zahl oder Text, ein Text; NAME[3] für ein Element oder eines "
         "einer Reihe"});
    const auto applying = addChange(
        line, "apply", apply,
        {"the same from a file with lines NAME=VALUE", "dasselbe aus einer Datei mit Zeilen NAME=WERT"});
    applying.command.argument({"PLAN", "PLAN"}, applying.options.operand,
                              {"a first line '# for: Feeder 7' is checked against Name",
                               "eine erste Zeile '# for: Abgang 7' wird mit Name verglichen"});
    const auto undoing = addChange(line, "undo", undo,
                                   {"take back the last change, or that of a record",
                                    "die letzte Änderung oder die eines Protokolls zurücknehmen"});
    undoing.command.argument(
        {"RECORD", "PROTOKOLL"}, undoing.options.operand,
        {"the last change of this device if not given", "sonst die letzte Änderung dieses Geräts"},
        Need::optional);
    addChange(line, "discard", discard,
              {"give up pending settings: they become what is live",
               "Ausstehendes verwerfen: es gilt wieder das Gültige"});
}

} // namespace talux::tool
