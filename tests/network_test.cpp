// What the settings of the network do: every command and every line on the error stream, in their order, for
// every branch; and whatever a stored text contains, the shell runs only the intended command and passes the
// text unchanged.
#include "Isolation.h"
#include "Machine.h"
#include "Store.h"
#include "src/talux_store.h"
#include "talux/talux.hpp"

#include <initializer_list>
#include <regex.h>
#include <spawn.h>
#include <sys/wait.h>

using namespace talux_test;

namespace {

// Not an ordinary user on a container itself. In a root of its own an emulator shows another /etc.
bool mayWriteSystemFiles() {
    return isolated() || (access("/", W_OK) == 0 && access("/etc", W_OK) == 0);
}

using Writer = void (*)(int, double*);

void putValue(Writer write, int id, std::string value) {
    double number = std::strtod(value.c_str(), nullptr);
    value.resize(kTextSize);
    const bool isText = VarIsText(id) || VarIsIp(id);
    write(id, isText ? reinterpret_cast<double*>(value.data()) : &number);
}

// Words NAME=VALUE for both spaces or NAME=TEMPORARY|GLOBAL.
void put(const std::string& assignments) {
    std::istringstream words(assignments);
    for (std::string word; words >> word;) {
        const std::string name = word.substr(0, word.find('='));
        const std::string value = word.substr(name.size() + 1);
        const auto bar = value.find('|');
        const stParamProperties* const row = rowOf(name);
        ASSERT_NE(row, nullptr) << name;
        putValue(VarSetValue, row->id, value.substr(0, bar));
        putValue(VarSetGlobalValue, row->id, bar == std::string::npos ? value : value.substr(bar + 1));
    }
}

template <typename Action>
std::string transcriptOf(const Action& action) {
    machine.errors.clear();
    const ErrorStream stream(_IOFBF);
    action();
    std::fflush(stderr);
    return machine.errors;
}

constexpr const char* kZones[] = {"zone", "zone'", "-zone",
                                  "''''''''''''''''''''''''''''''''''''''''''''''''''''''''"};

struct Network : OnMachine<> {
    static void SetUpTestSuite() {
        VarInit(kNoDirectory);
        LoadDefParamProperties();
        fs::current_path("/tmp");
        for (const char* zone : kZones)
            std::ofstream{zone};
    }
    static void TearDownTestSuite() {
        for (const char* zone : kZones)
            fs::remove(zone);
        fs::current_path("/");
    }
};

using Kernel = std::map<std::string, std::string>; // see Machine::addresses

// The base case: everything is active, and each value differs between the spaces.
constexpr char kSettings[] =
    "ETH0_IP=192.168.001.010|9.9.9.9 ETH0_MASK=255.255.000.000|9.9.9.9 ETH0_GATEWAY=192.168.1.1|9.9.9.9 "
    "eth1_active=1|0 ETH1_IP=10.1.1.1|9.9.9.9 ETH1_MASK=255.0.0.0|9.9.9.9 ETH1_GATEWAY=10.0.0.1|9.9.9.9 "
    "T104_ethernet=1|2 T104_ETH_IP_1=010.1.2.3|9.9.9.9 T104_ETH_MA_1=255.255.255.000|9.9.9.9 "
    "T104_ETH_GW_1=10.1.2.1|9.9.9.9 T104_ETH_IP_4=172.16.77.9|9.9.9.9 T104_ETH_MA_4=255.255.240.0|9.9.9.9 "
    "T104_ETH_GW_4=|9.9.9.9 DNS=008.008.008.008|9.9.9.9 TIMEZONE=/tmp/zone|/tmp/other "
    "NTP1=010.000.000.001|9.9.9.9 NTP2=010.000.000.002|9.9.9.9 NTP_RTC=1|0 DCF77_activ=0|1 "
    "wlan0_active=1|0 VarSetWLAN0TypeDev=1|2 rate=2|3 channel=5|7 essid=Net_1|old key=s:0123456789|old "
    "WLAN0_IP=10.2.1.1|9.9.9.9 WLAN0_MASK=255.0.0.0|9.9.9.9 WLAN0_GATEWAY=10.2.0.1|9.9.9.9 ";
// A whole run commits first. A function alone finds these in the global space.
constexpr char kLive[] = "TIMEZONE=/tmp/other|/tmp/zone channel=7|5 essid=old|Net_1 key=old|s:0123456789 ";
const Kernel kKernel = {{"eth0:1", "10.9.2.3"}, {"eth0:1/", "255.255.255.0"}, {"eth0:2/", "255.0.0.0"},
                        {"eth0:3", "10.0.0.1"}, {"eth0:4", "10.9.77.9"},      {"eth0:4/", "255.255.240.0"},
                        {"eth0:5", "1.2.3.5"},  {"eth0:5/", "255.0.0.0"},     {"eth0", "1.2.3.4"},
                        {"eth0/", "255.0.0.0"}, {"eth1:1", "10.9.3.3"},       {"eth1:1/", "255.0.0.0"}};
constexpr char kUtc[] = "/usr/share/zoneinfo/UTC";

#define QUIET " > /dev/null 2>&1"
#define DELETION(route) "route del -net " route QUIET "\n$ route del -net " route QUIET "\n"
#define TEAR_DOWN                                                                                            \
    DELETION("10.9.2.0 netmask 255.255.255.0 eth0:1")                                                        \
    "ifconfig eth0:1 down\n" DELETION("10.9.64.0 netmask 255.255.240.0 eth0:4") "ifconfig eth0:4 down\n"
#define SERVER_1 "echo server 10.0.0.1 true >> /tmp/ntp.conf\n"
#define SERVER_2 "echo server 10.0.0.2 >> /tmp/ntp.conf\n"
#define RTC "echo server 127.127.45.0 >> /tmp/ntp.conf\necho fudge 127.127.45.0 stratum 13 >> /tmp/ntp.conf\n"
#define STEP "$ ntpdate -b 10.0.0.1" QUIET "; hwclock -w --utc\n"

// Lines: a command that is announced and run, "$ " one that is run silently, ": " a message, "Var.." itself.
struct Function {
    const char* name;
    int (*apply)();
    const char* transcript;
};
enum Step { kEth0, kEth1, kAliases, kDns, kZone, kTime, kRadio, kWlan0, kAll };
// clang-format off
constexpr Function kFunctions[] = {
    {"VarStaticIP", VarStaticIP,
     "ifconfig eth0 192.168.1.10\nifconfig eth0 netmask 255.255.0.0\n"
     "route del default eth0" QUIET "\nroute add default gw 192.168.1.1 eth0"},
    {"VarStaticIPETH1", VarStaticIPETH1,
     "ifconfig eth1 10.1.1.1\nifconfig eth1 netmask 255.0.0.0\n"
     "route del default eth1" QUIET "\nroute add default gw 10.0.0.1 eth1"},
    {"VarT104", VarT104,
     TEAR_DOWN "ifconfig eth0:1 10.1.2.3\nifconfig eth0:1 up\nifconfig eth0:1 netmask 255.255.255.0\n"
               "route add -net 10.1.2.0 netmask 255.255.255.0 gw 10.1.2.1 eth0:1\n"
               "ifconfig eth0:4 172.16.77.9\nifconfig eth0:4 up\nifconfig eth0:4 netmask 255.255.240.0\n"
               "route add -net 172.16.64.0 netmask 255.255.240.0 eth0:4"},
    {"VarDNS", VarDNS, "echo nameserver 008.008.008.008 > /etc/resolv.conf"},
    {"VarTIMEZONE", VarTIMEZONE, "$ rm -f /etc/localtime;ln -s /tmp/zone /etc/localtime\n: /tmp/zone"},
    {"VarNTP", VarNTP,
     "$ rm -f /tmp/ntp.conf\n$ touch /tmp/ntp.conf\n" SERVER_1 SERVER_2 RTC
     "$ killall -15 ntpd" QUIET ";killall -9 ntpd" QUIET ";\n"
     "$ killall -15 ntpd_restart.sh" QUIET ";killall -9 ntpd_restart.sh" QUIET ";\n" STEP
     "ntpd -g -f /tmp/ntp.drift -c /tmp/ntp.conf\n$ /appfs/taluxapp1/ntpd_restart.sh &"},
    {"VarADHOCWLAN0", VarADHOCWLAN0,
     "ifconfig wlan0 down\niwconfig wlan0 mode ad-hoc\niwconfig wlan0 rate 54M\niwconfig wlan0 channel 5\n"
     "iwconfig wlan0 essid Net_1\niwconfig wlan0 enc s:0123456789\niwconfig wlan0 key s:0123456789\n"
     "ifconfig wlan0 up"},
    {"VarStaticIPWLAN0_ADHOC", VarStaticIPWLAN0_ADHOC,
     "ifconfig wlan0 10.2.1.1\nifconfig wlan0 netmask 255.0.0.0\n"
     "route del default wlan0" QUIET "\nroute add default gw 10.2.0.1 wlan0"}};
// clang-format on

struct Edit {
    std::string_view old; // with "*" at its end: to the end of the function's transcript
    std::string_view replacement;
};

bool edit(std::string& text, const Edit& edit) {
    const std::string_view old = edit.old.substr(0, edit.old.find('*'));
    const std::size_t at = text.find(old);
    if (at == std::string::npos) return false;
    text.replace(at, edit.old.ends_with('*') ? std::string::npos : old.size(), edit.replacement);
    return true;
}

// What differs from the base case; the table has views and pointers, since compilers are slow with strings.
struct Row {
    Step step;
    std::string_view settings;
    std::initializer_list<Edit> edits = {};
    int result = 1;
    const Kernel* kernel = &kKernel; // null: without addresses
    std::string_view link = kUtc;    // of the time zone; "" nothing there, "FILE" a file that is no link
    // The name server file; "" none, "DIRECTORY" one that opens and cannot be read.
    std::string_view resolver = {};
    int (*apply)() = VarSetSystemIPs;
};

std::string expected(const Row& row) {
    std::vector<bool> used(row.edits.size());
    std::string result;
    for (int step = row.step == kAll ? 0 : row.step; step <= std::min<int>(row.step, kWlan0); ++step) {
        const std::string name = kFunctions[step].name;
        std::string text = kFunctions[step].transcript;
        for (std::size_t i = 0; i < used.size(); ++i)
            used[i] = edit(text, row.edits.begin()[i]) || used[i];
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with("$ ") || line.starts_with("Var"))
                result += line + "\n";
            else if (line.starts_with(": "))
                result.append(name).append(line).append("\n");
            else if (!line.empty())
                result.append(name).append(": ").append(line).append("\n$ ").append(line).append("\n");
    }
    EXPECT_EQ(std::count(used.begin(), used.end(), false), 0) << "an edit that edits nothing";
    return result;
}

void check(const Row& row) {
    SCOPED_TRACE(testing::Message() << row.step << " " << row.settings);
    resetStore();
    put(kSettings + std::string(row.step == kAll ? "" : kLive).append(row.settings));
    machine.addresses = row.kernel == nullptr ? Kernel() : *row.kernel;
    fs::remove("/etc/localtime");
    if (row.link == "FILE") std::ofstream("/etc/localtime");
    if (row.link.starts_with('/')) fs::create_symlink(row.link, "/etc/localtime");
    if (row.step != kAll) fs::remove("/ip_config.ini");
    if (isolated()) fs::remove("/etc/resolv.conf");
    if (row.resolver == "DIRECTORY") fs::create_directory("/etc/resolv.conf");
    if (row.resolver.find(' ') != row.resolver.npos) std::ofstream("/etc/resolv.conf") << row.resolver;

    const auto apply = row.step == kAll ? row.apply : kFunctions[row.step].apply;
    EXPECT_EQ(transcriptOf([&] { EXPECT_EQ(apply(), row.result); }), expected(row));
    // Setting the addresses of an interface commits and saves.
    const bool saves = row.step == kEth0 || row.step == kEth1 || row.step >= kWlan0;
    EXPECT_EQ(contents("/ip_config.ini").find("TLX_DNS=\"8.8.8.8\"\n") != std::string::npos, saves);
}

TEST_F(Network, RunsTheCommandsOfEveryBranch) {
    if (!mayWriteSystemFiles()) GTEST_SKIP() << "the system files are another user's";
    const std::string quotes(56, '\'');
    std::string quoted = "iwconfig wlan0 essid '";
    for (std::size_t i = 0; i < quotes.size(); ++i)
        quoted += "'\\''";
    const std::string longest = "essid=" + quotes + "123456", tooLong = longest + "7";
    const std::string longestQuoted = quoted + "123456'", quotedZone = "TIMEZONE=" + quotes;
    const std::string longName = "/tmp/" + std::string(122, 'z'), longZone = "TIMEZONE=" + longName;
    const std::string usedLongName = ": used " + longName, longLink = "/tmp/zone" + std::string(160, '/');
    const std::string longestLink = "/" + std::string(1023, 'z');
    const std::string longLine = "#" + std::string(300, 'x') + "\nnameserver 8.8.8.8\n";
    const Edit toUtc = {"*", "$ rm -f /etc/localtime;ln -s /usr/share/zoneinfo/UTC /etc/localtime\n"
                             "VarTIMEZONE (default) : /usr/share/zoneinfo/UTC"};
    const Edit noServer1 = {SERVER_1, ""}, noServer2 = {SERVER_2, ""}, noRtc = {RTC, ""}, noStep = {STEP, ""};
    const std::initializer_list<Edit> nothing = {noServer1, noServer2, noRtc, noStep, {"ntpd -g*", ""}};
    const Edit other = {"008.008.008.008", "8.8.8.8"}, listed = {"*", ": dns found in /etc/resolv.conf"};
    const Edit autoRate = {"54M", "Auto"}, noWlan0Address = {"ifconfig wlan0 10.2.1.1*", ""};
    // clang-format off
    const Row rows[] = {
        {kEth0, ""}, {kEth1, ""}, {kAliases, ""}, {kDns, ""}, {kZone, ""}, {kTime, ""}, {kRadio, ""}, {kWlan0, ""},
        {kEth0, "ETH0_GATEWAY=000.000.000.000|10.0.0.1", {{"route*", ""}}},
        // Numbers stay as they are, the whole has at most 18 characters.
        {kEth0, "ETH0_IP=9999.9999.9999.9999", {{"192.168.1.10", "9999.9999.9999.999"}}},
        {kEth1, "ETH1_IP=..300.1..x7.9z.5 ETH1_MASK=255 ETH1_GATEWAY=|10.0.0.1",
         {{"10.1.1.1", "300.1.0.9"}, {"route*", ""}}},
        {kWlan0, "WLAN0_GATEWAY=0.0.0.0|10.0.0.1", {{"route*", ""}}},
        {kAliases, "T104_ethernet=0|2"}, {kAliases, "T104_ethernet=3|2"},
        {kAliases, "T104_ETH_IP_1=0.0.0.0|9.9.9.9 T104_ETH_IP_4=|9.9.9.9", {{"*", ""}}, 1, {}},
        {kAliases, "T104_ethernet=2|1 T104_ETH_IP_4=0.0.0.0",
         {{"*", DELETION("10.0.0.0 netmask 255.0.0.0 eth1:1") "ifconfig eth1:1 down\nifconfig eth1:1 10.1.2.3\n"
           "ifconfig eth1:1 up\nifconfig eth1:1 netmask 255.255.255.0\n"
           "route add -net 10.1.2.0 netmask 255.255.255.0 gw 10.1.2.1 eth1:1"}}},
        {kAliases, "T104_ETH_MA_1=000.000.000.000|255.0.0.0 T104_ETH_IP_2=10.2.2.2 T104_ETH_MA_2=|255.0.0.0 "
         "T104_ETH_IP_3=10.3.3.3 T104_ETH_GW_3=000.000.000.000|10.0.0.1 T104_ETH_MA_4=0.0.0.0",
         {{"ifconfig eth0:1 10.1.2.3*", "ifconfig eth0:3 10.3.3.3\nifconfig eth0:3 up\nifconfig eth0:3 netmask "
           "255.255.255.0\nroute add -net 10.3.3.0 netmask 255.255.255.0 eth0:3"}}},
        {kDns, "DNS=0.0.0.0|8.8.8.8", {{"*", ""}}, 0}, {kDns, "DNS=|8.8.8.8", {{"*", ""}}, 0},
        {kDns, "DNS=000.000.000.000|8.8.8.8", {{"*", ""}}, 0},
        {kDns, "DNS=8.8.8.8|1.1.1.1", {listed}, 0, {}, "", "search x\nnameserver 1.2\nnameserver \t8.8.8.8 #\n"},
        {kDns, "DNS=8.8.8.8", {listed}, 0, {}, "", longLine},
        {kDns, "DNS=8.8.8.8", {other}, 1, {}, "", "nameserver 1.2.3.4\nnameserver 8.8.8.8"},
        {kDns, "DNS=8.8.8.8", {other}, 1, {}, "", "nameserver 8.8.8.88\nnameserver 8.8.8\nsearch 8.8.8.8\n#nameserver 8.8.8.8\n"},
        {kDns, "DNS=8.8.8.8", {other}, 1, {}, "", "DIRECTORY"},
        {kZone, "", {}, 1, {}, ""}, {kZone, "", {}, 1, {}, "FILE"},
        {kZone, "", {}, 1, {}, longLink},
        {kZone, "", {{"*", ": used /tmp/zone"}}, 1, {}, "/tmp/zone"},
        {kZone, longZone, {{"*", usedLongName}}, 1, {}, longName}, // there is no such file
        {kZone, "TIMEZONE=/tmp/zone|/tmp/none", {toUtc}}, {kZone, "TIMEZONE=/tmp/zone|", {toUtc}, 1, {}, "/tmp/zone"},
        {kZone, "TIMEZONE=", {{"*", ": used "}}, 1, {}, "FILE"},
        {kZone, "TIMEZONE=/tmp/zone'|/tmp/zone'", {{"-s /tmp/zone", "-s '/tmp/zone'\\'''"}, {": /tmp/zone", ": /tmp/zone'"}}},
        {kZone, "TIMEZONE=-zone|-zone", {{"-s /tmp/zone", "-s -- -zone"}, {": /tmp/zone", ": -zone"}}}, // no option
        {kZone, "TIMEZONE=", {toUtc}, 1, {}, longestLink},
        {kZone, quotedZone, {{"*", ": not run, 268 characters where 253 are allowed: rm -f /etc/localtime;ln -s %s%s /etc/localtime"}}},
        {kTime, "DCF77_activ=1|0", {{"echo*", ": DCF77 is enabled, not start NTP!"}}, 0},
        {kTime, "NTP2=000.000.000.000|10.0.0.2 NTP_RTC=0|1", {noServer2, noRtc}},
        {kTime, "NTP1=|10.0.0.1 DCF77_activ=2", {noServer1, {"-b 10.0.0.1", "-b 10.0.0.2"}}},
        {kTime, "NTP1=0.0.0.0|10.0.0.1 NTP2=", {noServer1, noServer2, noStep}},
        {kTime, "NTP1=000.000.000.000|10.0.0.1 NTP2=0.0.0.0 NTP_RTC=0|1", nothing},
        {kTime, "NTP1= NTP2= NTP_RTC=2|1", nothing},
        {kRadio, "rate=-1|2", {autoRate}}, {kRadio, "rate=0|2", {autoRate}}, {kRadio, "rate=1|2", {autoRate}},
        {kRadio, "rate=4|2", {autoRate}}, {kRadio, "rate=3|2", {{"54M", "11M"}}},
        // The longest command has 253 characters; the others are run whatever happens to one.
        {kRadio, longest, {{"iwconfig wlan0 essid Net_1", longestQuoted}}},
        {kRadio, tooLong,
         {{"iwconfig wlan0 essid Net_1", ": not run, 254 characters where 253 are allowed: iwconfig wlan0 essid %s"}}},
        // What is literal to the shell is not quoted; an empty text adds no word.
        {kRadio, "essid=", {{"essid Net_1", "essid "}}},
        {kRadio, "essid=Zür!c^h~1#", {{"essid Net_1", "essid Zür!c^h~1#"}}},
        {kRadio, "essid=~root", {{"essid Net_1", "essid '~root'"}}},
        {kRadio, "essid=#1", {{"essid Net_1", "essid '#1'"}}},
        {kRadio, "essid=a=~b", {{"essid Net_1", "essid 'a=~b'"}}},
        {kAll, ""}, {kAll, "eth1_active=2|0 wlan0_active=2|0"},
        {kAll, "eth1_active=0|1", {{"ifconfig eth1 10.1.1.1*", "$ ifconfig eth1 down" QUIET}}},
        {kAll, "wlan0_active=0|1", {{"ifconfig wlan0 down*", "$ ifconfig wlan0 down" QUIET}, noWlan0Address}},
        {kAll, "VarSetWLAN0TypeDev=2|1", {{"ifconfig wlan0 down*", "VarINFRASTRUCTUREWLAN0: *** NOT IMPLEMENTED ***\n"
         "VarStaticIPWLAN0_INFRASTRUCTURE: *** NOT IMPLEMENTED ***"}, noWlan0Address}},
        {kAll, "VarSetWLAN0TypeDev=3|1", {{"ifconfig wlan0 down*", ""}, noWlan0Address}},
    };
    // clang-format on
    for (const Row& row : rows)
        if (row.step != kDns || isolated()) check(row);
    for (const char* gateway : {"ETH0_GATEWAY", "ETH1_GATEWAY"}) // a program may change a type
        ParamProperties[rowOf(gateway) - ParamProperties].type = kTypeIp;
    check({kEth0, "", {{"route*", ""}}});
    check({kEth1, ""});
    LoadDefParamProperties();
    machine.socketsFail = true;
    check({kAliases, "", {{TEAR_DOWN, ""}}});
    EXPECT_EQ(VarINFRASTRUCTUREWLAN0() + VarStaticIPWLAN0_INFRASTRUCTURE(), 2);
}

// What ends in the same sequence; so do writes of interface addresses, in the model of the language.
TEST_F(Network, IsSetByTheAddressFile) {
    if (!mayWriteSystemFiles()) GTEST_SKIP() << "the system files are another user's";
    for (int (*const load)() :
         {talux::c::VarLoadIPConfig, +[] { return talux::Store().load_ip() ? 1 : 0; }}) {
        std::ofstream("/ip_config.ini") << "TLX_ETH0_IP=\"192.168.1.10\"\nTLX_NTP1=\"10.0.0.1\"\n";
        check({kAll, "ETH0_IP=1.2.3.4 NTP1=1.2.3.4", {}, 1, &kKernel, kUtc, "", load});
    }

    std::ofstream("/def_ip_config.ini")
        << "TLX_ETH0_IP=\"10.0.0.99\"\nTLX_ETH0_MASK=\"255.0.0.0\"\n"
           "TLX_ETH0_GATEWAY=\"10.0.0.98\"\nTLX_NTP1=\"1.1.1.1\"\n"; // NTP1 stays
    const std::initializer_list<Edit> edits = {
        {"192.168.1.10", "10.0.0.99"},
        {"eth0 netmask 255.255.0.0", "eth0 netmask 255.0.0.0"},
        {"192.168.1.1", "10.0.0.98"},
        {"10.2.0.1 wlan0", "10.2.0.1 wlan0\n$ rm -f /var/resolv.conf\n$ touch /var/resolv.conf"}};
    check({kAll, "", edits, 1, &kKernel, kUtc, "", [] { return VarResetIPConfig(kTypeIpAddress); }});
}

// ---- Whatever a text contains ----

std::vector<std::string> commands() {
    std::vector<std::string> all;
    for (const std::string& event : machine.events)
        all.push_back(event.substr(2)); // "$ command"
    return all;
}

// clang-format off
constexpr const char* kHostileTexts[] = {
    "", " ", "  two  blanks ", "-", "--", "-x", "-s", "--help", "-- x", "\t", "a\tb", "#", "# rest",
    "a #b", "~", "~root", "*", "/*", "?", "[a-z]*", "{a,b}", "$HOME", "${HOME}", "$$", "$?", "a=b",
    "a'b", "''", "'", "\"", "\"quoted\"", "'quoted'", "\\", "\\\\", "a\\", "\\'", "'\\''", "\\n",
    "1.1.1.1\\nx 2", "\\c", "\\0101x", "1.1.1.1\nx 2", "\n", "a\n", "\r\n", "a!b", "(", ")", "&", "|",
    "<", ">", ";", "`", "$(", "%s%n", "100%", "Z\xc3\xbcrich", "\xe2\x98\x83 snow", "\xff\xfe",
    "\x01\x7f", "WLAN Gast 5",
    ">c", ">>c", "x>c", "x 2>c", "x >&c", "'>c'", "\">c\"", "x;>c;#", "x\n>c\n",
};
// clang-format on

std::vector<std::string> hostileValues() {
    std::vector<std::string> values(std::begin(kHostileTexts), std::end(kHostileTexts));
    for (const char filling : {'x', '\'', '\\', ' ', '$'})
        values.emplace_back(127, filling);
    // Each way to start a command, in each surrounding that might let it out.
    for (const auto& [before, after] :
         {std::pair{"", ""}, {"x ", ""}, {"'", ""}, {"'", "'"}, {"\"", ""}, {"\"", "\""}})
        for (const std::string command : {";>c", "&&>c", "||>c", "|>c", "\n>c", "&>c", "$(>c)", "`>c`"})
            values.push_back(before + command + after);
    return values;
}

const std::vector<std::string> kValues = hostileValues();

// Addresses of this test, which begin with 7, replaced by one word.
std::string withoutAddresses(std::string command) {
    static regex_t address;
    [[maybe_unused]] static const int once = regcomp(&address, "7(\\.-?[0-9]+){3}", REG_EXTENDED);
    for (regmatch_t at; regexec(&address, command.c_str(), 1, &at, 0) == 0;)
        command.replace(static_cast<std::size_t>(at.rm_so), static_cast<std::size_t>(at.rm_eo - at.rm_so),
                        "ADDRESS");
    return command;
}

// The one of 127 quotes, written with four characters each, makes a command too long.
bool fits(const std::string& value) {
    return value != std::string(127, '\'');
}

// A command with its arguments as the shell's functions record it, a NUL after each word.
std::string noted(std::initializer_list<std::string> words) {
    std::string text;
    for (const std::string& word : words)
        text += word + '\0';
    return text + "\n";
}

// Runs each command in a process of the shell, where functions that note their arguments take the place of
// programs. Then the file c, a side effect, is recorded and removed, the file $1 recorded and emptied.
constexpr char kShellScript[] = R"(
note() { printf '%s\0' "$@" >&3; echo >&3; }
for program in ifconfig iwconfig ln rm; do eval "$program() { note $program \"\$@\"; }"; done
written=$1; shift
for command; do
  (eval "$command")
  [ ! -e c ] || { note c; command rm c; }
  [ -s "$written" ] || continue
  { printf 'written\0'; while IFS= read -r line; do printf '%s\n' "$line"; done; } <"$written" >&3
  printf '%s\0\n' "$line" >&3 # what has no line end
  : >"$written"
done 3>/tmp/record 2>/dev/null </dev/null)";

struct HostileSettings : Network {
    void SetUp() override {
        resetStore();
        fs::create_directories("/tmp/playground");
        fs::current_path("/tmp/playground");
        std::ofstream("bait"); // what patterns would match
    }
    void TearDown() override {
        fs::current_path("/tmp");
        fs::remove_all("/tmp/playground");
        fs::remove("/tmp/record");
    }
    // What the shell made of the commands: exactly this, and no file but those that were there.
    static void expect(const std::string& expected, const char* written = "") {
        const auto before = std::distance(fs::directory_iterator("."), {});
        std::vector<const char*> arguments = {"sh", "-c", kShellScript, "sh", written};
        const std::vector<std::string> all = commands();
        for (const std::string& command : all)
            arguments.push_back(command.c_str());
        arguments.push_back(nullptr);
        pid_t shell = 0;
        posix_spawn(&shell, "/bin/sh", nullptr, nullptr, const_cast<char**>(arguments.data()), environ);
        EXPECT_EQ(waitpid(shell, nullptr, 0), shell);
        EXPECT_EQ(contents("/tmp/record"), expected);
        EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), before);
    }
};

TEST_F(HostileSettings, NetworkNameAndKey) {
    std::string expected;
    for (const std::string& value : kValues) {
        putValue(VarSetGlobalValue, 9022, value);
        putValue(VarSetGlobalValue, 9023, value);
        EXPECT_EQ(transcriptOf(VarADHOCWLAN0).find("not run") == std::string::npos, fits(value)) << value;
        expected += noted({"ifconfig", "wlan0", "down"}) + noted({"iwconfig", "wlan0", "mode", "ad-hoc"}) +
                    noted({"iwconfig", "wlan0", "rate", "Auto"}) +
                    noted({"iwconfig", "wlan0", "channel", "11"});
        for (const char* option : {"essid", "enc", "key"})
            if (value.empty())
                expected += noted({"iwconfig", "wlan0", option});
            else if (fits(value))
                expected += noted({"iwconfig", "wlan0", option, value});
        expected += noted({"ifconfig", "wlan0", "up"});
    }
    expect(expected);
}

TEST_F(HostileSettings, NameServer) {
    if (!isolated()) GTEST_SKIP() << "the name server file is the container's";
    fs::remove("/etc/resolv.conf");
    std::string expected;
    for (const std::string& whole : kValues) {
        putValue(VarSetValue, 16000, whole);
        const std::string value = whole.substr(0, kIpSize - 1);
        // A line end would bring in a line of its own: nothing is written.
        const bool written = !value.empty() && value.find('\n') == std::string::npos;
        EXPECT_EQ(transcriptOf([&] { EXPECT_EQ(VarDNS(), written) << value; }).empty(), value.empty())
            << value;
        if (written) expected += noted({"written", "nameserver " + value + "\n"});
    }
    expect(expected, "/etc/resolv.conf");
}

// Addresses become four numbers before any command sees them: the commands are those of plain addresses.
TEST_F(HostileSettings, Addresses) {
    const auto commandsFor = [](const auto& addressOf) {
        put("eth1_active=1 wlan0_active=1 VarSetWLAN0TypeDev=1");
        for (int id = kFirstIp + 1; id < kFirstIp + kIpCount; ++id)
            putValue(VarSetValue, id, addressOf(static_cast<std::size_t>(id)));
        machine.events.clear();
        transcriptOf(VarSetSystemIPs);
        std::string all;
        for (const std::string& command : commands())
            all += withoutAddresses(command) + "\n";
        return all;
    };
    const std::string plain = commandsFor([](std::size_t) { return "7.7.7.7"; });
    for (std::size_t run = 0; run < 12; ++run) // each gives each address another value
        EXPECT_EQ(
            commandsFor([&](std::size_t id) { return "7." + kValues[(run * 10 + id) % kValues.size()]; }),
            plain);
}

} // namespace
