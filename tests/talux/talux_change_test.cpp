// What talux changes: all or nothing, whatever is refused, answered, changed by others or killed on the way.
#include "../Isolation.h"
#include "Terminal.h"

#include <arpa/inet.h>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace {

using namespace talux_test;

struct TaluxChange : OnTerminal {
    Ended talux(const std::string& arguments) const {
        return run("talux --directory " + directory.string() + " " + arguments + " 2>&1");
    }
    // As the language reads it: a text in quotes or a number.
    static std::string value(std::string label) {
        if (const auto open = label.find('['); open != label.npos) label[open] = ' ', label.pop_back();
        return say("TLX_" + label);
    }
};

TEST_F(TaluxChange, WritesAllOrNothingAsTheLuaLayerDoes) {
    int cases = 0;
    for (const std::string& line : pieces(file(TALUX_CASES), '\n')) {
        if (line.starts_with('#')) continue;
        SCOPED_TRACE(line);
        ++cases;
        if (line.find("ETH0") != line.npos && !isolated()) continue;
        resetStore();
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
            fs::remove(directory / "last_change.tsv");
            const Ended refused = talux("set --yes" + assignments);
            EXPECT_EQ(file("last_change.tsv"), kNoFile);
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
            EXPECT_EQ(std::filesystem::status(directory / "record").permissions(),
                      std::filesystem::perms{0600});
            EXPECT_TRUE(file("record").starts_with("# talux change: done\n"));
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
    fs::remove("/tmp/ntp.conf"); // of the addresses that were applied
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
    // To the next system call or instruction; false when it has ended.
    bool goOn(__ptrace_request how) const {
        int status = 0;
        return ptrace(how, child, nullptr, nullptr) == 0 && waitpid(child, &status, 0) == child &&
               WIFSTOPPED(status);
    }
    // How it ends when a signal comes now.
    int statusAfter(int signal) const {
        ptrace(PTRACE_DETACH, child, nullptr, signal);
        int status = 0;
        waitpid(child, &status, 0);
        return status;
    }

private:
    const pid_t child;
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
        fs::remove(directory / "last_change.tsv");
    };
    // After each system call, from the first after which the record is there.
    const auto skipTo = [&](const Victim& victim, int call) {
        bool isRunning = true;
        while (isRunning && (!fs::exists(directory / "last_change.tsv") || call-- > 0))
            isRunning = victim.goOn(PTRACE_SYSCALL);
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
            ASSERT_TRUE(victim.goOn(PTRACE_SINGLESTEP));
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
                victim.goOn(PTRACE_SINGLESTEP);
        }
        judge();
    }
    EXPECT_GT(half, 0);
    EXPECT_GT(whole, 0);
    EXPECT_GT(none, 0);
}

// On real interfaces, between the device's network namespace and that of somebody who reaches it.
struct TaluxAddress : TaluxChange {
    void SetUp() override {
        TaluxChange::SetUp();
        if (!isolated()) GTEST_SKIP() << "the network is the container's";
        far = run("unshare --user --net --keep-caps sh -c 'echo -n $$; exec >/dev/null 2>&1; "
                  "until ip link set peer0 up; do sleep 0.1; done; ip address add 10.1.2.9/24 dev peer0; "
                  "ip address add 192.168.0.9/16 dev peer0; exec sleep 600' &")
                  .output;
        if (run("ip link add eth0 type veth peer name peer0 netns '" + far + "' 2>&1").status != 0)
            GTEST_SKIP() << "no pair of virtual interfaces can be made";
        const sockaddr_un place{AF_UNIX, "/dev/log"};
        log = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        ASSERT_EQ(bind(log, reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
        const sockaddr_in port{AF_INET, htons(22), {}, {}};
        listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const int again = 1;
        setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &again, sizeof again);
        ASSERT_EQ(
            bind(listener, reinterpret_cast<const sockaddr*>(&port), sizeof port) + listen(listener, 100), 0);
        EXPECT_EQ(talux("boot --again --apply >/dev/null").status, 0);
        EXPECT_EQ(network(), "192.168.55.127/16");
        int tries = 0;
        while (++tries < 100 && !isReached("192.168.55.127"))
            usleep(50000);
        EXPECT_LT(tries, 100) << "not reached from the other side";
        old = file("ip_config.ini");
    }
    void TearDown() override {
        if (isolated()) run("ip link del eth0 2>&1; kill " + far + " 2>&1; rm -f /tmp/ntp.conf /dev/log");
        close(log), close(listener);
        TaluxChange::TearDown();
    }
    // From the other side.
    bool isReached(const std::string& address) const {
        return run("nsenter --user --net --preserve-credentials -t " + far +
                   " timeout 5 bash -c '</dev/tcp/" + address + "/22' 2>/dev/null")
                   .status == 0;
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
        const char kGuards[] =
            "grep -qs address-guard /proc/[0-9]*/comm"; // its own children for a moment, too
        for (int tries = 0; tries < 200 && (network() != address || run(kGuards).status == 0); ++tries)
            usleep(50000);
        EXPECT_EQ(network(), address);
        EXPECT_FALSE(fs::exists(directory / "address_change.tsv"));
    }
    void startChange() {
        logged();
        start({"address", "ETH0_IP=10.1.2.3", "ETH0_MASK=255.255.255.0", "--yes", "--confirm", "60"});
        EXPECT_TRUE(waitFor("applied; `talux confirm`"));
        EXPECT_EQ(network(), "10.1.2.3/24");
        EXPECT_EQ(file("ip_config.ini"), old) << "with the supply gone now, the old ones are there";
    }
    std::string isBack() const {
        waitForTheEnd("192.168.55.127/16");
        EXPECT_EQ(file("ip_config.ini"), old);
        EXPECT_EQ(value("ETH0_IP") + value("ETH0_MASK"), "\"192.168.55.127\"\"255.255.0.0\"");
        EXPECT_TRUE(isReached("192.168.55.127"));
        std::string lines = logged();
        EXPECT_NE(
            lines.find("11 talux address: " + kChange + ": not confirmed, the old addresses are back\n"),
            std::string::npos);
        return lines;
    }

    inline static const std::string kChange =
        "ETH0_MASK \"255.255.0.0\" -> \"255.255.255.0\", ETH0_IP \"192.168.55.127\" -> \"10.1.2.3\"";
    std::string old, far; // far: the process of the other side
    int log = -1, listener = -1;
};

constexpr char kChangeInJson[] =
    R"("changes":[{"name":"ETH0_MASK","from":"255.255.0.0","to":"255.255.255.0","network":true},)"
    R"({"name":"ETH0_IP","from":"192.168.55.127","to":"10.1.2.3","network":true}])";

std::string withoutBlanks(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
    return text;
}

TEST_F(TaluxAddress, StaysWhenItIsConfirmed) {
    startChange();
    EXPECT_TRUE(isReached("10.1.2.3") && !isReached("192.168.55.127"));
    for (const char* other : {"set Uearth=35 --yes", "address ETH0_IP=10.9.9.9 --yes"})
        EXPECT_EQ(talux(other).status, 2) << "one at a time";
    EXPECT_NE(talux("status").output.find("talux confirm"), std::string::npos);
    const std::string in = "cd " + directory.string() + "; ";
    EXPECT_EQ(run(in + "flock .talux_lock talux --directory . confirm 2>&1").status, 2);
    EXPECT_EQ(run(in + "mv ip_config.ini old; mkdir ip_config.ini; talux --directory . confirm 2>&1").status,
              2)
        << "not saved";
    run(in + "rmdir ip_config.ini; mv old ip_config.ini");
    EXPECT_EQ(
        withoutBlanks(
            run(in + "SSH_CONNECTION='10.1.2.9 1 10.1.2.3 22' talux --directory . confirm --json").output),
        "{\"confirmed\":true," + std::string(kChangeInJson) + "}");
    EXPECT_TRUE(waitFor("confirmed and saved"));
    EXPECT_EQ(ended(), 0);
    waitForTheEnd("10.1.2.3/24");
    EXPECT_NE(file("ip_config.ini").find("TLX_ETH0_IP=\"10.1.2.3\""), std::string::npos);
    EXPECT_EQ(talux("confirm").status, 2) << "nothing waits";
    EXPECT_EQ(talux("set --yes FW_BLOCK=60").status, 0);
    EXPECT_EQ(logged(), "14 talux address: " + kChange +
                            ": applied, waits 60 s for `talux confirm`\n"
                            "14 talux address ETH0_IP ETH0_MASK: 2 settings by 0\n"
                            "14 talux confirm: " +
                            kChange +
                            " by 0 from 10.1.2.9\n14 sec param: FW_BLOCK\n"
                            "14 talux set FW_BLOCK: 1 setting by 0\n");
}

TEST_F(TaluxAddress, IsTakenBackWhenNobodyConfirms) {
    logged();
    const Ended alone = talux("address ETH0_IP=10.1.2.3 ETH0_MASK=255.255.255.0 --yes --confirm 1 --json");
    EXPECT_EQ(alone.status, 1); // the time passes
    EXPECT_EQ(withoutBlanks(alone.output),
              "{\"written\":true," + std::string(kChangeInJson) + ",\"implausible\":[],\"confirmed\":false}");
    isBack();
    EXPECT_FALSE(isReached("10.1.2.3"));
    EXPECT_NE(talux("address ETH1_IP=10.7.7.7 --yes --confirm 1").output.find("talux: eth1 has not got"),
              std::string::npos);
    EXPECT_NE(talux("undo --yes").output.find("no change to take back"), std::string::npos);
    startChange(); // the command is killed with its group, the record damaged, the guard asked to end
    kill(-child, SIGKILL);
    EXPECT_EQ(ended(), -1) << "nobody waits for what the guard keeps open";
    EXPECT_EQ(network(), "10.1.2.3/24");
    write("address_change.tsv", "?");
    EXPECT_EQ(talux("confirm").status + talux("set Uearth=35 --yes").status, 4);
    endGuard("TERM");
    isBack();
    startChange(); // somebody takes it back
    EXPECT_EQ(talux("undo --yes >/dev/null").status, 0);
    EXPECT_TRUE(waitFor("the old addresses are back"));
    EXPECT_EQ(ended(), 1);
    isBack();
    startChange(); // the supply fails
    endGuard("KILL");
    run("ip address flush dev eth0");
    EXPECT_TRUE(waitFor("the guard is gone"));
    EXPECT_EQ(ended(), 2);
    VarClean();
    write("parameter.ini", "");
    EXPECT_EQ(talux("boot --apply >/dev/null").status, 1);
    EXPECT_NE(isBack().find("defaults stay; an address was not confirmed"), std::string::npos);
}

// No gateway before, no default route afterwards; the undo of what was confirmed is applied, too.
TEST_F(TaluxAddress, AGatewayGoesBackAlone) {
    const auto routes = [] { return network() + run("ip route show default").output; };
    for (const bool isConfirmed : {false, true}) {
        fs::remove(directory / "ip_config.ini"); // a device that has its factory addresses
        start({"address", "ETH0_GATEWAY=192.168.55.9", "--yes"});
        EXPECT_TRUE(waitFor("applied; `talux confirm` within 120 s"));
        EXPECT_FALSE(fs::exists(directory / "ip_config.ini"));
        EXPECT_EQ(routes(), "192.168.55.127/16default via 192.168.55.9 dev eth0 \n");
        isConfirmed ? talux("confirm") : endGuard("TERM");
        EXPECT_EQ(ended(), isConfirmed ? 0 : 1);
        EXPECT_EQ(isConfirmed, talux("undo --yes").status == 0);
        EXPECT_EQ(routes(), "192.168.55.127/16");
        EXPECT_EQ(file("ip_config.ini"), old);
    }
}

} // namespace
