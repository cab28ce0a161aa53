// talux address, confirm.
#include "tools/talux/change/Confirm.h"

#include <algorithm>
#include <cctype>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/os/Files.h"
#include "ParamSystem/os/Interfaces.h"
#include "ParamSystem/os/Os.h"
#include "tools/talux/Files.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"
#include "tools/talux/change/Apply.h"

namespace talux::tool {

namespace {

struct Options {
    std::vector<std::string> assignments;
    int seconds = 120;
    Order order;
};

// What the guard reports to the command that started it.
enum Report : char { kApplied = 'a', kConfirmed = 'c', kTakenBack = 'b' };

volatile std::sig_atomic_t isAskedToEnd = 0;

// Counts on while the machine sleeps, whoever sets the clock.
double now() {
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

// Nobody may listen any more.
void say(int descriptor, Report report) {
    const char letter = report;
    os::writeFile(descriptor, {&letter, 1});
}

std::string inWords(const Journal& journal, const Context& context) {
    return list(journal.writes, ", ", [&](const Write& write) {
        return joined({write.label(), " ", change(*write.parameter, write.from, write.to, context)});
    });
}

// Applies the addresses, waits, and takes them back if they are still open then.
class Guard {
public:
    Guard(const Journal& change, int wait, const Context& person)
        : journal(change), seconds(wait), context(person) {}

    // Gives the end of a pipe on which the guard reports, once the addresses are applied.
    int start() {
        journal.isDone = false;
        const std::string path = pathOf(reference::File::address, context);
        const bool hadFile = os::exists(path.c_str());
        const std::string before = hadFile ? contentsOf(path, context) : "";
        replace(openAddress(context), journal.text(context), context);
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) throw CouldNot("pipe");
        std::fflush(nullptr);
        const pid_t child = fork();
        if (child == 0) {
            setsid();
            if (fork() == 0) detach(ends[1]), run(ends[1], path, hadFile, before);
            _exit(0);
        }
        waitpid(child, nullptr, 0);
        close(ends[1]);
        char report = 0;
        if (child < 0 || read(ends[0], &report, 1) != 1)
            throw CouldNot(
                context.say("the addresses could not be applied; `talux undo` takes them back",
                            "die Adressen ließen sich nicht anwenden; `talux undo` nimmt sie zurück"));
        return ends[0];
    }

private:
    Journal journal;
    const int seconds;
    const Context& context;

    // Holds nothing of the command's but the pipe; killing all processes called talux spares it.
    static void detach(int pipe) {
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

    [[noreturn]] void run(int pipe, const std::string& path, bool hadFile, const std::string& before) {
        const double end = now() + seconds;
        os::logInfo("talux address: %s: applied, waits %d s for `talux confirm`",
                    inWords(journal, context).c_str(), seconds);
        VarSetSystemIPs();
        try {
            hadFile ? replace(path, before, context) : os::removeFile(path.c_str());
        } catch (const CouldNot& error) {
            os::logError("talux address: %s", error.what());
        }
        say(pipe, kApplied);
        while (os::exists(openAddress(context).c_str()) && now() < end && isAskedToEnd == 0)
            os::sleepMicroseconds(100000);
        const bool isKept = !takesBack() && std::ranges::all_of(journal.writes, [](const Write& write) {
            return sameValue(present(*write.parameter, write.id()), write.to);
        });
        say(pipe, isKept ? kConfirmed : kTakenBack);
        _exit(0);
    }

    // Waits while somebody confirms at this moment.
    bool takesBack() const {
        for (;;) {
            try {
                const OneAtATime guard(context);
                return takeAddressBack(true, context);
            } catch (const CouldNot& error) {
                os::logError("talux address: %s", error.what());
                os::sleepMicroseconds(500000);
            }
        }
    }
};

// "eth0" of ETH0_IP.
std::string interfaceOf(const Write& write) {
    std::string name(write.parameter->name().substr(0, write.parameter->name().find('_')));
    std::ranges::transform(name, name.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return name;
}

void demandInterfaces(const Writes& writes, const Context& context) {
    for (const Write& write : writes) {
        const int type = write.parameter->row().type;
        if (type != kTypeIpAddress && type != kTypeIpMask && type != kTypeIpGateway)
            throw CouldNot(
                fill(context.say("{}: is not an address, netmask or gateway of an interface",
                                 "{}: ist weder Adresse noch Netzmaske noch Gateway einer Schnittstelle"),
                     {write.label()}));
    }
}

Status waitFor(int pipe, const Context& context) {
    char report = 0;
    const bool isThere = read(pipe, &report, 1) == 1;
    close(pipe);
    if (!isThere)
        throw CouldNot(context.say(
            "the guard is gone; `talux confirm` keeps the addresses, `talux undo` takes them back",
            "der Wächter ist weg; `talux confirm` behält die Adressen, `talux undo` nimmt sie zurück"));
    print(report == kConfirmed ? context.say("confirmed and saved\n", "bestätigt und gespeichert\n")
                               : context.say("not confirmed: the old addresses are back\n",
                                             "nicht bestätigt: die alten Adressen gelten wieder\n"));
    return report == kConfirmed ? kNothing : kFound;
}

Status address(const Options& options, const Context& context) {
    attachToWrite(context);
    Plan plan(context);
    for (const std::string& assignment : options.assignments)
        plan.take(assignment.substr(0, assignment.find('=')),
                  assignment.substr(std::min(assignment.find('=') + 1, assignment.size())));
    demandInterfaces(plan.writes(), context);
    int pipe = -1;
    Order order = options.order;
    order.what = "address " + namesIn(options.assignments);
    order.appliesAll = true;
    order.apply = [&](const Journal& journal) { pipe = Guard(journal, options.seconds, context).start(); };
    const Status status = carryOut(plan, order, context);
    if (pipe < 0) return status;
    for (const Write& write : plan.writes())
        if (const auto there = os::addressOf(interfaceOf(write).c_str());
            write.actsAtOnce() && write.to.text() != std::string_view(there.address))
            report(CouldNot(fill(context.say("{} has not got the address", "{} hat die Adresse nicht"),
                                 {interfaceOf(write)})));
    print(fill(
        context.say(
            "applied; `talux confirm` within {} s keeps it, from the new address, too\n",
            "angewendet; `talux confirm` innerhalb von {} s behält sie, auch von der neuen Adresse aus\n"),
        {std::to_string(options.seconds)}));
    std::fflush(stdout);
    return waitFor(pipe, context);
}

Status confirm(const Context& context) {
    attachToWrite(context);
    const OneAtATime guard(context);
    const auto journal = Journal::read(openAddress(context), context);
    if (!journal)
        throw CouldNot(
            context.say("no address waits to be confirmed", "keine Adresse wartet auf Bestätigung"));
    save(filesOf(journal->writes), context);
    os::removeFile(openAddress(context).c_str());
    os::logInfo("talux confirm: %s by %s", inWords(*journal, context).c_str(), whoAmI().c_str());
    print(fill(context.say("confirmed and saved: {}\n", "bestätigt und gespeichert: {}\n"),
               {inWords(*journal, context)}));
    return kNothing;
}

} // namespace

bool takeAddressBack(bool applies, const Context& context) {
    const auto journal = Journal::read(openAddress(context), context);
    if (!journal) return false;
    for (const Write& write : journal->writes)
        if (write.from) writeValue(Space::temp, write.id(), *write.from);
    if (applies) VarSetSystemIPs();
    VarSaveIPConfig();
    os::removeFile(openAddress(context).c_str());
    os::logError("talux address: %s: not confirmed, the old addresses are back",
                 inWords(*journal, context).c_str());
    return true;
}

void addAddress(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(line, "address",
                       {"change an address; undone unless it is confirmed",
                        "Adresse ändern, die ohne Bestätigung zurückkehrt"});
    command
        .argument({"NAME=VALUE", "NAME=WERT"}, options->assignments,
                  {"ETH0_IP=.. ETH0_MASK=.. ETH0_GATEWAY=..", "ETH0_IP=.. ETH0_MASK=.. ETH0_GATEWAY=.."})
        .required();
    command
        .option("--confirm", options->seconds,
                {"seconds to wait; 120 if not given", "Wartezeit in Sekunden, sonst 120"})
        .inRange(1, 3600);
    command.flag("--yes", options->order.yes, {"write without asking", "ohne Rückfrage schreiben"});
    commands.push_back({command, [options](const Context& context) { return address(*options, context); }});
}

void addConfirm(CommandLine& line, Commands& commands) {
    Subcommand command(line, "confirm",
                       {"keep the address that `talux address` applied",
                        "die von `talux address` gesetzte Adresse behalten"});
    commands.push_back({command, confirm});
}

} // namespace talux::tool
