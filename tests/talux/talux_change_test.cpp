// What talux changes: all or nothing, whatever is refused, answered, changed by others or killed on the way.
#include "../Isolation.h"
#include "Terminal.h"

#include <arpa/inet.h>
#include <chrono>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/un.h>

#include "ParamSystem/KEPL_Interpreter.h"

namespace {

using namespace talux_test;

class TaluxChange : public OnTerminal {
protected:
    Ended talux(const std::string& arguments) const {
        return run("talux --directory " + directory.string() + " " + arguments + " 2>&1");
    }
    // As the language reads it: a text in quotes or a number.
    static std::string value(const std::string& label) {
        char nowhere[] = "", end[] = "", answer[kKeplTextSize] = "";
        std::string line = "TLX_" + label;
        if (const auto open = line.find('['); open != line.npos) line[open] = ' ', line.pop_back();
        KEPL_Interpreter(nowhere).ProcessLine(line.data(), nullptr, answer, end, 3);
        return answer;
    }
};

TEST_F(TaluxChange, WritesAllOrNothingAsTheLuaLayerDoes) {
    int cases = 0;
    for (const std::string& line : pieces(file(TALUX_CASES), '\n')) {
        if (line.starts_with('#')) continue;
        SCOPED_TRACE(line);
        ++cases;
        if (line.find("ETH0") != line.npos && !isolated()) continue;
        VarClean();
        reset();
        const std::string before = image();
        std::string assignments, plan = "# for: DEF-NAME\n";
        const auto tab = line.find('\t');
        for (const std::string& assignment : pieces(line.substr(0, tab), '|')) {
            assignments += " '" + assignment + "'";
            const auto equals = assignment.find('=');
            plan += assignment.substr(0, equals) + " = \"" + assignment.substr(equals + 1) + "\" ; c\n";
        }
        const std::string wanted = line.substr(tab + 1);
        if (wanted.starts_with('!')) {
            const Ended refused = talux("set --yes" + assignments);
            EXPECT_EQ(refused.status, 2);
            for (const std::string& label : pieces(wanted.substr(1), '|'))
                EXPECT_NE(refused.output.find("talux: " + label + ": "), std::string::npos) << refused.output;
            EXPECT_TRUE(image() == before || wanted == "!Date"); // whose slot is no setting
            continue;
        }
        const std::string path = write("plan", plan);
        for (const std::string& command : {"set" + assignments, "apply " + path}) {
            reset();
            EXPECT_EQ(talux(command + " --dry-run").status, 1);
            EXPECT_EQ(talux(command + " </dev/null").status, 2);
            EXPECT_EQ(value("Uearth"), "30.000000");
            EXPECT_EQ(talux(command + " --yes --protocol " + directory.string() + "/record").status, 0);
            std::string there;
            for (const std::string& row : pieces(file("record"), '\n'))
                if (const auto columns = pieces(row, '\t'); columns.size() == 4)
                    there += (there.empty() ? "" : "|") + columns[0] + "=" + columns[2];
            EXPECT_EQ(there, wanted) << file("record");
            for (const std::string& each : pieces(wanted, '|')) {
                const auto equals = each.find('=');
                const std::string now = value(each.substr(0, equals)), meant = each.substr(equals + 1);
                EXPECT_TRUE(now == meant || std::abs(std::strtod(now.c_str(), nullptr) -
                                                     std::strtod(meant.c_str(), nullptr)) < 1e-6);
            }
            if (line.find("ETH0") != line.npos) continue; // made everything live
            EXPECT_EQ(talux("undo --yes").status, 0);
            EXPECT_EQ(value("Uearth"), "30.000000");
        }
    }
    EXPECT_GE(cases, 30);
    std::filesystem::remove("/tmp/ntp.conf"); // of the addresses that were applied
}

TEST_F(TaluxChange, AsksBeforeItWrites) {
    const std::string folder = "--directory=" + directory.string();
    const struct {
        const char* keys;
        int status;
        const char* value;
    } kAnswers[] = {
        {"n\r", 1, "30.000000"}, {"\r", 1, "30.000000"}, {"\x04", 1, "30.000000"}, {"yes\r", 0, "35.000000"}};
    for (const auto& [keys, status, value] : kAnswers) {
        start({folder.c_str(), "set", "Uearth=35"});
        EXPECT_TRUE(waitFor("Write 1 setting? [y/N] "));
        EXPECT_EQ(TaluxChange::value("Uearth"), "30.000000");
        type(keys);
        EXPECT_EQ(ended(), status) << keys;
        EXPECT_EQ(TaluxChange::value("Uearth"), value) << keys;
    }
}

TEST_F(TaluxChange, UndoAndDiscardKnowWhatOthersChanged) {
    talux("set --yes --live Uearth=35 Name='a,\"b'"); // refused
    EXPECT_EQ(talux("set --yes --save Uearth=35 'Name=a, b' preBuff_dUo=1e-7").status, 0);
    EXPECT_EQ(talux("diff live " + directory.string() + "/parameter.ini").output,
              "preBuff_dUo  1e-07 -> 0  Pre-fault dU0\n");
    char slot[] = "Uearth";
    VarSetFloatValue(GetParamPropertiesByName(slot)->id, 36);
    const Ended refused = talux("undo --yes");
    EXPECT_EQ(refused.status, 2);
    EXPECT_NE(refused.output.find("Uearth 35 -> 36 %"), std::string::npos) << refused.output;
    EXPECT_EQ(talux("discard --yes").status, 0);
    EXPECT_EQ(value("Uearth"), "35.000000");
    EXPECT_EQ(talux("undo --yes").status, 0); // of the discard
    EXPECT_EQ(value("Uearth"), "36.000000");
    EXPECT_EQ(talux("discard --yes").status + talux("discard").status, 0);
    // What is there already is saved, too; a record that cannot be written keeps all of it back.
    EXPECT_EQ(talux("set --yes Uearth=44").status, 0);
    EXPECT_EQ(talux("set --yes --save Uearth=44").status, 0);
    EXPECT_NE(file("parameter.ini").find("TLX_Uearth=44.0"), std::string::npos);
    EXPECT_EQ(talux("set --yes Uearth=45 --protocol /nowhere/record").status, 2);
    EXPECT_EQ(value("Uearth"), "44.000000");
    EXPECT_EQ(talux("undo " + write("none", "TLX_Uearth=35\n") + " --yes").status, 2);
    // A damaged record is named, and the next change replaces it.
    write("last_change.tsv", "# talux change: begun\nUearth\t30\t4");
    for (const char* command : {"status", "history", "undo --yes", "set --yes Uearth=46"})
        EXPECT_NE(
            talux(command).output.find("/last_change.tsv: is not a complete record of a change: see line 2"),
            std::string::npos)
            << command;
    EXPECT_EQ(talux("undo --yes").output, "Uearth  46 -> 44 %  Earth-fault threshold U0\n");
}

TEST_F(TaluxChange, WhatWasComesBackAndAnotherRelayKeepsItsOwn) {
    const auto saveAs = [this](const std::string& name, const std::string& settings) {
        EXPECT_EQ(talux("set --yes --live " + settings).status, 0);
        std::string path = directory / name;
        VarSaveParamFile(path.data());
    };
    saveAs("param_2024_01_02_030405.ini", "Uearth=31");
    saveAs("param_2024_01_02_030406.ini", "Uearth=32 Name=Nord");
    saveAs("param_2024_05_06_070809.ini", "Uearth=33");
    saveAs("parameter.ini", "Uearth=34 Abg=x knuV1=5");
    write("param_2024_06_01_000000.ini", "TLX_Uearth=77\n"); // torn
    EXPECT_EQ(run("talux --directory " + directory.string() +
                  " history | sed 's/ [^ ]*param/ param/' | cut -c12- | head -4")
                  .output,
              "03:04:05  param_2024_01_02_030405.ini  0 changes\n"
              "03:04:06  param_2024_01_02_030406.ini  2 changes\n"
              "07:08:09  param_2024_05_06_070809.ini  1 change\n"
              "00:00:00  param_2024_06_01_000000.ini  1 change\n");
    const std::pair<const char*, const char*> kMoments[] = {{"2024-01-02", "32"},
                                                            {"'2024-01-02 03:04:05'", "31"},
                                                            {"-4", "31"},
                                                            {"yesterday", "33"},
                                                            {"2024-06-05", "33"}};
    for (const auto& [when, threshold] : kMoments) {
        EXPECT_EQ(talux(std::string("restore --yes ") + when).status, 0);
        EXPECT_EQ(value("Uearth"), threshold + std::string(".000000")) << when;
    }
    for (const char* never : {"2023-12-31", "2024-02-30", "'2024-06-05 24:00'", "2024", "-9"})
        EXPECT_EQ(talux(std::string("restore --yes ") + never).status, 2) << never;

    std::filesystem::create_directory(directory / "neighbour");
    std::filesystem::rename(directory / "parameter.ini", directory / "neighbour/parameter.ini");
    reset();
    const std::string neighbour = directory / "neighbour";
    EXPECT_EQ(talux("clone --yes " + neighbour).status, 0);
    EXPECT_EQ(value("Uearth") + value("Name") + value("Abg") + value("knuV1"),
              "34.000000\"DEF-NAME\"\"DEF-ABG\"201.000000");
    const auto digest = [this](const std::string& of) {
        return talux("fingerprint --file parameter " + of).output.substr(0, 64);
    };
    EXPECT_EQ(digest("staged --shared"), digest(neighbour + " --shared"));
    EXPECT_NE(digest("staged"), digest(neighbour));
}

TEST_F(TaluxChange, APlanOfAllSettingsTakesATenthOfASecond) {
    std::string plan, path = directory / "parameter.ini";
    VarSaveParamFile(path.data());
    for (const std::string& line : pieces(file("parameter.ini"), '\n')) {
        char name[128] = "";
        std::sscanf(line.c_str(), "TLX_%127[^=]", name);
        const stParamProperties& row = *GetParamPropertiesByName(name);
        const bool isNumber = line.find('"') == line.npos;
        plan += isNumber && row.val_access != 1 && row.val_max >= 2
                    ? "TLX_" + std::string(name) + "=" + std::to_string(std::max(2., row.val_min)) + "\n"
                    : line + "\n";
    }
    const std::string command =
        "talux --directory " + directory.string() + " apply --yes " + write("plan", plan);
    const auto start = std::chrono::steady_clock::now();
    const Ended applied = run(command);
    const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_EQ(applied.status, 0);
    EXPECT_GT(pieces(applied.output, '\n').size(), 250U);
    EXPECT_LT(took, 1) << "0.1 s where nothing else runs";
    RecordProperty("seconds", std::to_string(took));
}

// A process that is stopped at each of its system calls, then after each instruction, then killed.
class Victim {
public:
    explicit Victim(const std::string& command) : child(fork()) {
        if (child == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
            _exit(127);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_EXITKILL);
    }
    ~Victim() {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    // False when it has ended.
    bool call() const { return goOn(PTRACE_SYSCALL); }
    bool step() const { return goOn(PTRACE_SINGLESTEP); }
    // How it ends when a signal comes now.
    int statusAfter(int signal) const {
        ptrace(PTRACE_DETACH, child, nullptr, signal);
        int status = 0;
        waitpid(child, &status, 0);
        return status;
    }

private:
    const pid_t child;
    bool goOn(__ptrace_request how) const {
        int status = 0;
        return ptrace(how, child, nullptr, nullptr) == 0 && waitpid(child, &status, 0) == child &&
               WIFSTOPPED(status);
    }
};

TEST_F(TaluxChange, KilledAtAnyMomentItIsWholeOrKnownAndMended) {
#ifdef TALUX_EMULATED
    GTEST_SKIP() << "the emulator has no ptrace";
#endif
    const std::string command =
        "exec " TALUX_BIN "/talux --directory " + directory.string() +
        " set --yes --live Uearth=35 'Name=Nord' T104_port=2405 qu2_Ice=7.5 >/dev/null 2>&1";
    const auto state = [] { return value("Name") + value("T104_port") + value("Uearth") + value("qu2_Ice"); };
    const std::string before = state();
    const std::string after = "\"Nord\"240535.0000007.500000";
    int half = 0, whole = 0, none = 0;
    const auto judge = [&] {
        const bool isHalf = state() != before && state() != after;
        ++(isHalf ? half : state() == after ? whole : none);
        const Ended next = talux("set --yes U123ok=70");
        EXPECT_EQ(next.status, isHalf ? 2 : 0) << next.output;
        if (isHalf) {
            EXPECT_NE(next.output.find("talux undo"), std::string::npos) << next.output;
            EXPECT_NE(talux("status").output.find("was interrupted"), std::string::npos);
            EXPECT_EQ(talux("undo --yes").status, 0);
            EXPECT_EQ(state(), before);
        }
        reset();
        std::filesystem::remove(directory / "last_change.tsv");
    };
    // After each system call, from the first after which the record is there.
    const auto isBegun = [this] { return std::filesystem::exists(directory / "last_change.tsv"); };
    const auto skipTo = [&](const Victim& victim, int call) {
        bool isRunning = true;
        while (isRunning && !isBegun())
            isRunning = victim.call();
        while (isRunning && call-- > 0)
            isRunning = victim.call();
        return isRunning;
    };
    int lastBefore = 0;
    for (int call = 0, isRunning = 1; isRunning; ++call) {
        {
            const Victim victim(command);
            isRunning = skipTo(victim, call);
        }
        if (state() == before) lastBefore = call;
        judge();
    }
    // After any instruction of the writes.
    int steps = 0;
    {
        const Victim victim(command);
        skipTo(victim, lastBefore);
        EXPECT_NE(talux("set --yes U123ok=70").output.find("another change"), std::string::npos);
        for (; state() != after; ++steps)
            ASSERT_TRUE(victim.step());
    }
    judge();
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGPIPE}) {
        const Victim victim(command);
        skipTo(victim, lastBefore);
        EXPECT_EQ(victim.statusAfter(signal), 0);
        EXPECT_EQ(state(), after) << "what ends the terminal does not end a change";
        judge();
    }
    Random random;
    for (int round = 0; round < 40; ++round) {
        {
            const Victim victim(command);
            skipTo(victim, lastBefore);
            for (int left = random.below(steps); left > 0; --left)
                victim.step();
        }
        judge();
    }
    EXPECT_GT(half, 0);
    EXPECT_GT(whole, 0);
    EXPECT_GT(none, 0);
}

// On real interfaces, between the device's network namespace and that of somebody who reaches it.
class TaluxAddress : public TaluxChange {
protected:
    void SetUp() override {
        TaluxChange::SetUp();
        if (isolated())
            far = run("unshare --user --net --keep-caps sh -c 'echo -n $$; exec >/dev/null 2>&1; "
                      "until ip link set peer0 up; do sleep 0.1; done; ip address add 10.1.2.9/24 dev peer0; "
                      "ip address add 192.168.0.9/16 dev peer0; exec sleep 600' &")
                      .output;
        if (run("ip link add eth0 type veth peer name peer0 netns '" + far + "' 2>&1").status != 0)
            GTEST_SKIP() << "no pair of virtual interfaces can be made";
        unsetenv("SUDO_USER"), unsetenv("SSH_CONNECTION");
        const sockaddr_un place{AF_UNIX, "/dev/log"};
        log = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        ASSERT_EQ(bind(log, reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
        if (server = fork(); server == 0) serve();
        EXPECT_EQ(talux("boot --again --apply >/dev/null").status, 0);
        EXPECT_EQ(network(), "192.168.55.127/16");
        int tries = 0;
        while (++tries < 100 && reached("192.168.55.127").empty())
            usleep(50000);
        EXPECT_LT(tries, 100) << "not reached from the other side";
        old = file("ip_config.ini");
    }
    void TearDown() override {
        run("ip link del eth0 2>&1; kill " + far + " 2>&1; rm -f /tmp/ntp.conf /dev/log");
        if (server > 0) kill(server, SIGKILL), waitpid(server, nullptr, 0), close(log);
        TaluxChange::TearDown();
    }
    // A session for each connection: a command of talux, then what it prints.
    [[noreturn]] void serve() const {
        const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0), yes = 1;
        sockaddr_in address{AF_INET, htons(kPort), {}, {}};
        setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        if (bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) _exit(1);
        listen(listener, 1);
        for (socklen_t size = sizeof address;;) {
            const int session = accept4(listener, reinterpret_cast<sockaddr*>(&address), &size, SOCK_CLOEXEC);
            char command[64] = "";
            if (recv(session, command, sizeof command - 1, 0) < 0) _exit(1);
            setenv("SSH_CONNECTION", inet_ntoa(address.sin_addr), 1);
            const std::string answer = talux(command).output;
            send(session, answer.data(), answer.size(), 0);
            close(session);
        }
    }
    // What a session from the other side to this address prints; empty when it is not reached.
    std::string reached(const std::string& address, const std::string& command = "--version") const {
        return run("nsenter --user --net --preserve-credentials -t " + far +
                   " timeout 5 bash -c 'exec 3<>/dev/tcp/" + address + "/" + std::to_string(kPort) +
                   " && printf %s \"" + command + "\" >&3 && cat <&3' 2>/dev/null")
            .output;
    }
    // The system log since the last call: priority and text of each line.
    std::string logged() const {
        std::string all;
        char line[4096];
        for (ssize_t size; (size = recv(log, line, sizeof line, MSG_DONTWAIT)) > 0;) {
            const std::string text(line, static_cast<std::size_t>(size));
            all += text.substr(1, 2) + text.substr(text.find(": ") + 1) + "\n";
        }
        return all;
    }
    static std::string network() {
        const std::string line = run("ip -o -4 address show eth0 | sed 's/.*inet \\([^ ]*\\).*/\\1/'").output;
        return line.substr(0, line.find('\n'));
    }
    static Ended endGuard(const std::string& signal) {
        return run("kill -" + signal +
                   " $(grep -ls address-guard /proc/[0-9]*/comm | cut -d/ -f3) 2>/dev/null");
    }
    // All over: the address is there, the record is gone, and so is the guard.
    void waitForTheEnd(const char* address) const {
        for (int tries = 0; tries < 200 && (network() != address || endGuard("0").status == 0); ++tries)
            usleep(50000);
        EXPECT_EQ(network(), address);
        EXPECT_FALSE(std::filesystem::exists(directory / "address_change.tsv"));
    }
    void startChange(const char* seconds) {
        logged();
        const std::string folder = "--directory=" + directory.string();
        start({folder.c_str(), "address", "ETH0_IP=10.1.2.3", "ETH0_MASK=255.255.255.0", "--yes", "--confirm",
               seconds});
        EXPECT_TRUE(waitFor("applied; `talux confirm`"));
        EXPECT_EQ(network(), "10.1.2.3/24");
        EXPECT_EQ(file("ip_config.ini"), old) << "with the supply gone now, the old ones are there";
    }
    void isBack() const {
        waitForTheEnd("192.168.55.127/16");
        EXPECT_EQ(file("ip_config.ini"), old);
        EXPECT_EQ(value("ETH0_IP") + value("ETH0_MASK"), "\"192.168.55.127\"\"255.255.0.0\"");
        EXPECT_NE(reached("192.168.55.127"), "");
        EXPECT_NE(
            logged().find("11 talux address: " + kChange + ": not confirmed, the old addresses are back\n"),
            std::string::npos);
    }

    static constexpr in_port_t kPort = 2222;
    inline static const std::string kChange =
        "ETH0_MASK \"255.255.0.0\" -> \"255.255.255.0\", ETH0_IP \"192.168.55.127\" -> \"10.1.2.3\"";
    std::string old, far; // far: the process of the other side
    int log = -1;
    pid_t server = 0;
};

constexpr char kChangeInJson[] =
    R"("changes":[{"name":"ETH0_MASK","from":"255.255.0.0","to":"255.255.255.0","network":true},)"
    R"({"name":"ETH0_IP","from":"192.168.55.127","to":"10.1.2.3","network":true}])";

std::string withoutBlanks(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
    return text;
}

TEST_F(TaluxAddress, StaysWhenItIsConfirmed) {
    startChange("60");
    EXPECT_EQ(reached("192.168.55.127"), "");
    for (const char* other : {"set Uearth=35 --yes", "address ETH0_IP=10.9.9.9 --yes"})
        EXPECT_EQ(talux(other).status, 2) << "one at a time";
    EXPECT_NE(talux("status").output.find("talux confirm"), std::string::npos);
    EXPECT_EQ(run("cd " + directory.string() + "; flock .talux_lock talux --directory . confirm 2>&1").status,
              2);
    EXPECT_EQ(withoutBlanks(reached("10.1.2.3", "confirm --json")),
              "{\"confirmed\":true," + std::string(kChangeInJson) + "}");
    EXPECT_TRUE(waitFor("confirmed and saved"));
    EXPECT_EQ(ended(), 0);
    waitForTheEnd("10.1.2.3/24");
    EXPECT_NE(file("ip_config.ini").find("TLX_ETH0_IP=\"10.1.2.3\""), std::string::npos);
    EXPECT_EQ(talux("confirm").status, 2) << "nothing waits";
    EXPECT_EQ(logged(), "14 talux address: " + kChange +
                            ": applied, waits 60 s for `talux confirm`\n"
                            "14 talux address ETH0_IP ETH0_MASK: 2 settings by 0\n"
                            "14 talux confirm: " +
                            kChange + " by 0 from 10.1.2.9\n");
}

TEST_F(TaluxAddress, IsTakenBackWhenNobodyConfirms) {
    logged();
    const Ended alone = talux("address ETH0_IP=10.1.2.3 ETH0_MASK=255.255.255.0 --yes --confirm 1 --json");
    EXPECT_EQ(alone.status, 1); // the time passes
    EXPECT_EQ(withoutBlanks(alone.output),
              "{\"written\":true," + std::string(kChangeInJson) + ",\"implausible\":[],\"confirmed\":false}");
    isBack();
    EXPECT_EQ(reached("10.1.2.3"), "");
    EXPECT_NE(talux("undo --yes").output.find("no change to take back"), std::string::npos);
    startChange("4"); // the terminal and the command are gone, and the record is damaged
    kill(-child, SIGKILL);
    close(terminal);
    waitpid(std::exchange(child, 0), nullptr, 0);
    write("address_change.tsv", "?");
    EXPECT_EQ(talux("confirm").status + talux("set Uearth=35 --yes").status, 4);
    isBack();
    startChange("60"); // somebody takes it back
    EXPECT_EQ(talux("undo --yes >/dev/null").status, 0);
    EXPECT_TRUE(waitFor("the old addresses are back"));
    EXPECT_EQ(ended(), 1);
    isBack();
    startChange("60"); // the supply fails
    endGuard("KILL");
    run("ip address flush dev eth0");
    EXPECT_TRUE(waitFor("the guard is gone"));
    EXPECT_EQ(ended(), 2);
    VarClean();
    EXPECT_EQ(talux("boot --apply >/dev/null").status, 1);
    isBack();
}

// Where there was no gateway before, there is no default route; an undo of what was confirmed is applied,
// too.
TEST_F(TaluxAddress, GatewayAndNetmaskGoBackWithoutTheAddress) {
    const std::string folder = "--directory=" + directory.string();
    const auto routes = [] { return network() + run(" ip route show default").output; };
    for (const bool isConfirmed : {false, true}) {
        start({folder.c_str(), "address", "ETH0_GATEWAY=192.168.55.9", "ETH0_MASK=255.255.255.0", "--yes",
               "--confirm", isConfirmed ? "60" : "3"});
        EXPECT_TRUE(waitFor("applied; `talux confirm`"));
        EXPECT_EQ(routes(), "192.168.55.127/24default via 192.168.55.9 dev eth0 \n");
        if (isConfirmed) talux("confirm");
        EXPECT_EQ(ended(), isConfirmed ? 0 : 1);
        EXPECT_EQ(isConfirmed, talux("undo --yes").status == 0);
        EXPECT_EQ(routes(), "192.168.55.127/16");
        EXPECT_EQ(file("ip_config.ini"), old);
    }
}

} // namespace
