#include "tools/talux/change/Apply.h"

#include <csignal>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <unistd.h>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/network/SettingIds.h"
#include "ParamSystem/os/Files.h"
#include "ParamSystem/os/Os.h"
#include "tools/talux/Files.h"
#include "tools/talux/Plausibility.h"

namespace talux::tool {

namespace {

constexpr int kClockTolerance = 5; // seconds between the write and the look

void store(const Write& write, const Value& value) {
    writeValue(spaceOf(write.parameter->row()), write.id(), value);
}

bool hasArrived(const Write& write) {
    const auto found = write.present();
    if (!write.setsClock() || write.parameter->type().nature == Nature::date || !found)
        return sameValue(found, write.to);
    const auto seconds = [](const char* text) {
        std::tm time{};
        strptime(text, "%H:%M:%S", &time);
        return time.tm_hour * 3600 + time.tm_min * 60 + time.tm_sec;
    };
    return (seconds(found->text()) - seconds(write.to.text()) + 86400) % 86400 < kClockTolerance;
}

// Addresses are only stored here.
void writeOne(const Write& write, const Context& context) {
    if (write.parameter->row().userlevel > 2) os::logInfo("sec param: %s", write.label().c_str());
    if (!write.setsClock()) return store(write, write.to);
    std::string directory = context.directory, line = fill("TLX_{}={}", {write.label(), write.to.text()});
    char answer[kKeplTextSize + 2] = "", end[] = "";
    KEPL_Interpreter(directory.data()).ProcessLine(line.data(), nullptr, answer, end, 3);
}

// From the first write to the last what ends the terminal or the reader of the output does not end it.
// Programs that are started meanwhile have the usual handlers.
[[nodiscard]] std::shared_ptr<void> undisturbed() {
    std::vector<std::pair<int, void (*)(int)>> handlers;
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGPIPE})
        handlers.emplace_back(signal, std::signal(signal, [](int) {}));
    return {nullptr, [handlers](void*) {
                for (const auto& [signal, before] : handlers)
                    std::signal(signal, before);
            }};
}

struct Change {
    const Order& order;
    const Context& context;
    Journal journal;
    const Writes& writes = journal.writes;
    bool isConfirmed = false;

    Status run() {
        if (order.dryRun || (writes.empty() && !order.live && !order.save))
            return show(), writes.empty() ? kNothing : kFound;
        if (!order.json) show();
        if (!order.yes && !isAgreed(question(), context)) {
            std::fputs(context.say("nothing is written\n", "nichts ist geschrieben\n"), stderr);
            return kFound;
        }
        writeAll();
        isConfirmed = !order.isConfirmed || order.isConfirmed();
        if (order.json) show();
        return isConfirmed ? kNothing : kFound;
    }

    bool isApplied() const {
        return order.apply && (order.appliesAll || std::ranges::any_of(writes, &Write::actsAtOnce));
    }

    void show() const {
        if (order.json) return showJson();
        Table table;
        for (const Write& write : writes)
            table.add({Paint::bold(write.label()), Paint::changed(write.change(context)),
                       Paint::dim(write.parameter->title(context.language))});
        print(writes.empty() ? context.say("nothing to change\n", "nichts zu ändern\n") : table.text());
        for (const Implausible& found : implausible())
            print(found.painted() + "\n");
        std::fflush(stdout);
    }

    void showJson() const {
        Json all{{"written", journal.isDone},
                 {"changes", changesJson(writes)},
                 {"implausible", Json::arrayOf(implausible(), described)}};
        if (order.isConfirmed) all.set("confirmed", isConfirmed);
        print(all.text());
    }

    // What the settings would be that are hardly meant, as far as these writes have a part in it.
    std::vector<Implausible> implausible() const {
        Written written;
        for (const Write& write : writes)
            if (write.index == 0) written.emplace(write.parameter, write.to);
        const auto others = [](const Parameter& parameter) { return present(parameter, parameter.row().id); };
        return findImplausible(written, others, {}, context);
    }

    std::string question() const {
        std::string text =
            context.say("Write {}?", "{} schreiben?", context.counted(writes.size(), kSetting, kSettings));
        if (isApplied() && !order.isConfirmed)
            text += context.say(" The address is applied at once and may cut you off: `talux address` takes "
                                "it back by itself.",
                                " Die Adresse wird sofort angewendet und kann die Verbindung trennen: `talux "
                                "address` nimmt sie selbst zurück.");
        const auto others = pendingSettings(context);
        if ((isApplied() || order.reach() != Reach::pending) && others > 0)
            text += context.say(" Other pending settings become live, too: {}.",
                                " Weitere anstehende Einstellungen werden gültig: {}.", others);
        return text;
    }

    // A record that cannot be written is known before the first value is.
    void keep() const {
        constexpr mode_t kOwnerAlone = 0600; // there may be passwords in it
        const os::Rights rights{getuid(), getgid(), kOwnerAlone};
        if (!order.protocol.empty()) replace(order.protocol, journal.text(context), context, &rights);
        if (!writes.empty()) replace(lastChange(context), journal.text(context), context, &rights);
    }

    void writeAll() {
        const auto lock = oneAtATime(context);
        if (const std::string half = interruption(context); !order.mends && !half.empty())
            throw CouldNot(half);
        if (const std::string damage = lastChangeDamage(context); !damage.empty()) report(damage);
        for (const Write& write : writes)
            if (write.isChanged())
                context.fail("nothing is written: {} has changed meanwhile",
                             "nichts ist geschrieben: {} hat sich inzwischen geändert", write.label());
        const auto signals = undisturbed();
        keep();
        for (const Write& write : writes) {
            writeOne(write, context);
            if (!hasArrived(write)) takeBack(write);
        }
        if (isApplied()) order.apply(journal);
        journal.isDone = true;
        keep();
        os::logInfo("talux %s: %s by %s", printable(journal.what).c_str(),
                    Context().counted(writes.size(), kSetting, kSettings).c_str(), journal.who.c_str());
        if (order.reach() == Reach::live) VarUpdateGlobalSpace();
        if (order.reach() != Reach::saved) return;
        std::set<File> files = order.files;
        for (const Write& write : writes)
            files.insert(write.parameter->file());
        save(files, context);
    }

    [[noreturn]] void takeBack(const Write& failed) {
        const auto found = failed.present();
        std::string text = context.say("{}: the value does not arrive (reads {}); nothing is changed",
                                       "{}: der Wert kommt nicht an (gelesen: {}); nichts ist geändert",
                                       failed.label(), found ? plain(*failed.parameter, *found) : "-");
        for (const Write& write : journal.written())
            if (write.from) store(write, *write.from);
        if (const Writes lost = journal.written(); !lost.empty())
            text += context.say(" but {}", " außer {}", list(lost, ", ", std::mem_fn(&Write::label)));
        os::removeFile(lastChange(context).c_str());
        throw CouldNot(text);
    }
};

} // namespace

Json changesJson(const Writes& writes) {
    return Json::arrayOf(writes, [](const Write& write) {
        return Json{{"name", write.label()},
                    {"from", json(*write.parameter, write.from)},
                    {"to", json(*write.parameter, write.to)},
                    {"network", network::reachesSystem(write.parameter->row().id)}};
    });
}

void save(const std::set<File>& files, const Context& context) {
    for (std::size_t k = 0; k < std::size(kFiles); ++k) // those of SavedFile, in the same order
        if (const int error = files.contains(kFiles[k]) ? VarSaveError(SavedFile(k)) : 0; error != 0)
            context.fail("the settings are written, but {} is not saved: {}",
                         "die Einstellungen sind geschrieben, aber {} ist nicht gespeichert: {}",
                         pathOf(kFiles[k], context), reasonOf(error));
}

Added<Order> addChange(CommandLine& line, const char* name, ChangeCommand change, Wording help) {
    const auto order = std::make_shared<Order>();
    const auto run = [=](const Context& context) {
        attachToWrite(context);
        return change(*order, context);
    };
    Command& command = line.add(name, run, help);
    command.flag("--live", order->live,
                 {"make it live, with everything else that is pending",
                  "gültig machen, mit allem anderen Ausstehenden"});
    command.flag("--save", order->save,
                 {"make it live and save the files it belongs to",
                  "gültig machen und die zugehörigen Dateien speichern"});
    command.flag("--yes", order->yes, kYesHelp);
    command.flag("--dry-run", order->dryRun,
                 {"only show what it would change", "nur zeigen, was sich ändern würde"});
    command.option("--protocol", order->protocol,
                   {"a file for the record: before, after, who, when",
                    "Datei für das Protokoll: vorher, nachher, wer, wann"});
    command.json(order->json);
    return {command, *order};
}

void attachToWrite(const Context& context) {
    attachDevice(Access::readWrite, context);
    std::string directory = context.directory;
    VarInit(directory.data());
}

bool isAgreed(const std::string& question, const Context& context) {
    if (isatty(STDIN_FILENO) == 0)
        context.fail("nothing is written: there is no terminal to ask at; --yes writes without asking",
                     "nichts ist geschrieben: kein Terminal zum Fragen; --yes schreibt ohne Frage");
    std::fprintf(stderr, "%s %s ", question.c_str(), context.say("[y/N]", "[j/N]"));
    constexpr std::string_view kYes[] = {"y", "Y", "yes", "j", "J", "ja"};
    std::string answer;
    if (std::getline(std::cin, answer) && !std::cin.eof()) return isOneOf(kYes, answer);
    std::fputc('\n', stderr);
    return false;
}

std::size_t pendingSettings(const Context& context) {
    return differences(Source::open("live", context), Source::open("staged", context)).size();
}

std::shared_ptr<void> oneAtATime(const Context& context) {
    const std::string path = context.directory + "/.talux_lock";
    const int descriptor = os::openOrMake(path.c_str());
    if (descriptor < 0)
        context.fail("{}: cannot be written: {}", "{}: lässt sich nicht schreiben: {}", path,
                     reasonOf(errno));
    std::shared_ptr<void> lock(nullptr, [descriptor](void*) { os::closeFile(descriptor); });
    if (os::tryLockFile(descriptor)) return lock;
    context.fail("another change is being made at this moment", "gerade wird eine andere Änderung gemacht");
}

Status carryOut(const Plan& plan, Order& order, const Context& context) {
    for (const std::string& refusal : plan.refusals())
        report(refusal);
    if (!plan.refusals().empty()) context.fail("nothing is written", "nichts ist geschrieben");
    order.files = plan.files();
    return carryOut(plan.writes(), order, context);
}

Status carryOut(const Writes& writes, const Order& order, const Context& context) {
    std::tm now{};
    os::localTime(now);
    return Change{order, context, {false, order.what, timeText(now), whoAmI(), order.reach(), writes}}.run();
}

} // namespace talux::tool
