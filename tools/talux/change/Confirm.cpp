// talux address, confirm: an address that is taken back unless somebody who reaches the device confirms it.
//
// Until then a record beside the parameter files (openAddress) and ip_config.ini have the old addresses,
// which a start of the device takes. A process of its own, which ends neither with the terminal nor with the
// command, waits for the time to pass.
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <time.h>
#include <unistd.h>

#include "ParamSystem/network/StagedValues.h"
#include "ParamSystem/os/Files.h"
#include "ParamSystem/os/Interfaces.h"
#include "ParamSystem/os/Os.h"
#include "tools/talux/Files.h"
#include "tools/talux/change/Apply.h"

namespace talux::tool {

namespace {

struct AddressOrder : Order {
    int seconds = 120; // to wait for the confirmation
};

volatile std::sig_atomic_t isAskedToEnd = 0;

// Counts on while the machine sleeps, whoever sets the clock.
double now() {
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

// Holds nothing of the command's but the pipe; killing all processes called talux spares it.
void detach(int pipe) {
    setsid();
    prctl(PR_SET_NAME, "address-guard");
    for (const int signal : {SIGHUP, SIGINT, SIGPIPE})
        std::signal(signal, SIG_IGN);
    std::signal(SIGTERM, [](int) { isAskedToEnd = 1; });
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nothing, descriptor);
    for (int descriptor = STDERR_FILENO + 1; descriptor < 256; ++descriptor)
        if (descriptor != pipe) close(descriptor);
}

void takeBack(const Journal& journal, bool applies, const Context& context) {
    for (const Write& write : journal.writes)
        if (write.from) writeValue(Space::temp, write.id(), *write.from);
    if (applies) applyAddresses(journal);
    VarSaveIPConfig();
    os::removeFile(lastChange(context).c_str());
    os::removeFile(openAddress(context).c_str());
    os::logError("talux address: %s: not confirmed, the old addresses are back",
                 journal.inWords(context).c_str());
}

// False while somebody confirms at this moment.
bool endsWaiting(const Journal& journal, const Context& context) try {
    const auto lock = oneAtATime(context);
    if (os::exists(openAddress(context).c_str())) takeBack(journal, true, context);
    return true;
} catch (const CouldNot& error) {
    os::logError("talux address: %s", error.what());
    return false;
}

// Applies the addresses, leaves the file as it was, waits, and takes them back if they are still open then.
[[noreturn]] void guard(const Journal& journal, int seconds, int pipe, const std::string& before,
                        const Context& context) {
    const double end = now() + seconds;
    const std::string path = pathOf(File::address, context);
    os::logInfo("talux address: %s: applied, waits %d s for `talux confirm`",
                journal.inWords(context).c_str(), seconds);
    applyAddresses(journal);
    try {
        before.empty() ? os::removeFile(path.c_str()) : replace(path, before, context);
    } catch (const CouldNot& error) {
        os::logError("talux address: %s", error.what());
    }
    os::writeFile(pipe, "applied");
    const auto isOpen = [&] { return os::exists(openAddress(context).c_str()); };
    while (isOpen() && now() < end && isAskedToEnd == 0)
        os::sleepMicroseconds(100000);
    while (isOpen() && !endsWaiting(journal, context))
        os::sleepMicroseconds(500000);
    _exit(0);
}

// Gives the end of a pipe that closes with the guard, once the addresses are applied.
int startGuard(const Journal& journal, int seconds, const Context& context) {
    const std::string path = pathOf(File::address, context);
    const std::string before = os::exists(path.c_str()) ? contentsOf(path, context) : "";
    replace(openAddress(context), journal.text(context), context);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw CouldNot("pipe");
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) detach(ends[1]), guard(journal, seconds, ends[1], before, context);
    close(ends[1]);
    char applied[16];
    if (child < 0 || read(ends[0], applied, sizeof applied) <= 0)
        context.fail("the addresses could not be applied; `talux undo` takes them back",
                     "die Adressen ließen sich nicht anwenden; `talux undo` nimmt sie zurück");
    return ends[0];
}

// "eth0" of ETH0_IP.
std::string interfaceOf(const Write& write) {
    std::string_view name = write.parameter->name();
    std::string interface(takeUpTo(name, '_'));
    std::ranges::transform(interface, interface.begin(), lowerAscii);
    return interface;
}

void demandInterfaces(const Writes& writes, const Context& context) {
    for (const Write& write : writes) {
        const int type = write.parameter->row().type;
        if (type != kTypeIpAddress && type != kTypeIpMask && type != kTypeIpGateway)
            context.fail("{}: is not an address, netmask or gateway of an interface",
                         "{}: ist weder Adresse noch Netzmaske noch Gateway einer Schnittstelle",
                         write.label());
    }
}

void reportMissing(const Writes& writes, const Context& context) {
    for (const Write& write : writes) {
        const std::string interface = interfaceOf(write);
        if (write.actsAtOnce() &&
            write.to.text() != std::string_view(os::addressOf(interface.c_str()).address))
            report(context.say("{} has not got the address", "{} hat die Adresse nicht", interface));
    }
}

// Once the guard has ended.
bool isConfirmed(int pipe, const Writes& writes, const Context& context) {
    char end;
    while (read(pipe, &end, 1) > 0) {
    }
    close(pipe);
    if (!os::exists(openAddress(context).c_str())) return std::ranges::all_of(writes, &Write::isThere);
    context.fail("the guard is gone; `talux confirm` keeps the addresses, `talux undo` takes them back",
                 "der Wächter ist weg; `talux confirm` behält die Adressen, `talux undo` nimmt sie zurück");
}

Status address(AddressOrder& order, const Context& context) {
    attachToWrite(context);
    Plan plan(context);
    plan.take(order.assignments);
    const Writes writes = plan.writes();
    demandInterfaces(writes, context);
    const auto tell = [&order](const std::string& text) {
        if (!order.json) print(text);
        std::fflush(stdout);
    };
    int pipe = -1;
    order.what = "address " + namesIn(order.assignments);
    order.appliesAll = true;
    order.apply = [&](const Journal& journal) { pipe = startGuard(journal, order.seconds, context); };
    order.isConfirmed = [&] {
        reportMissing(writes, context);
        tell(context.say(
            "applied; `talux confirm` within {} s keeps it, from the new address, too\n",
            "angewendet; `talux confirm` innerhalb von {} s behält sie, auch von der neuen Adresse aus\n",
            order.seconds));
        const bool isKept = isConfirmed(pipe, writes, context);
        tell(isKept ? context.say("confirmed and saved\n", "bestätigt und gespeichert\n")
                    : context.say("not confirmed: the old addresses are back\n",
                                  "nicht bestätigt: die alten Adressen gelten wieder\n"));
        return isKept;
    };
    return carryOut(plan, order, context);
}

Status confirm(Order& order, const Context& context) {
    attachToWrite(context);
    const auto lock = oneAtATime(context);
    const auto journal = Journal::read(openAddress(context), context);
    if (!journal) context.fail("no address waits to be confirmed", "keine Adresse wartet auf Bestätigung");
    save({File::address}, context);
    os::removeFile(openAddress(context).c_str());
    const std::string changes = journal->inWords(context);
    os::logInfo("talux confirm: %s by %s", changes.c_str(), whoAmI().c_str());
    if (order.json)
        print(Json{{"confirmed", true}, {"changes", changesJson(journal->writes)}}.text());
    else
        print(context.say("confirmed and saved: {}\n", "bestätigt und gespeichert: {}\n", changes));
    return kNothing;
}

} // namespace

// Without a gateway the library leaves the route over the one before.
void applyAddresses(const Journal& journal) {
    for (const Write& write : journal.writes)
        if (write.parameter->row().type == kTypeIpGateway &&
            network::isUnset(network::addressSetting(write.id())))
            os::runShell(fill("route del default {} >/dev/null 2>&1", {interfaceOf(write)}).c_str());
    VarSetSystemIPs();
}

bool takeAddressBack(bool applies, const Context& context) {
    const auto journal = Journal::read(openAddress(context), context);
    if (journal) takeBack(*journal, applies, context);
    return journal.has_value();
}

void addAddress(CommandLine& line) {
    const auto [command, order] = line.add("address", address,
                                           {"change an address; undone unless it is confirmed",
                                            "Adresse ändern, die ohne Bestätigung zurückkehrt"});
    command.argument({"NAME=VALUE", "NAME=WERT"}, order.assignments,
                     {"ETH0_IP=.. ETH0_MASK=.. ETH0_GATEWAY=..", "ETH0_IP=.. ETH0_MASK=.. ETH0_GATEWAY=.."});
    command.option("--confirm", order.seconds,
                   {"seconds to wait; 120 if not given", "Wartezeit in Sekunden, sonst 120"}, 1, 3600);
    command.flag("--yes", order.yes, kYesHelp);
    command.json(order.json);
    const auto confirming = line.add("confirm", confirm,
                                     {"keep the address that `talux address` applied",
                                      "die von `talux address` gesetzte Adresse behalten"});
    confirming.command.json(confirming.options.json);
}

} // namespace talux::tool
