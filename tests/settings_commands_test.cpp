// Every command and every line on the error stream, in their order, for every branch of the settings.
#include <algorithm>
#include <arpa/inet.h>
#include <cstdarg>
#include <cstring>
#include <ctime>
#include <net/if.h>
#include <string_view>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include "SettingsSupport.h"
#include "src/talux_interpreter.h"

using namespace settings_test;

namespace {

// What the kernel knows: words "INTERFACE=ADDRESS/NETMASK", "-" for one that it does not tell.
const char* g_kernel = "";
bool g_socketsFail = false;
int g_clockSettings = 0;

std::string kernelAnswer(const char* interface, bool wantsMask) {
    std::istringstream words(g_kernel);
    for (std::string word; words >> word;) {
        const auto equals = word.find('='), slash = word.find('/');
        if (word.substr(0, equals) != interface) continue;
        return wantsMask ? word.substr(slash + 1) : word.substr(equals + 1, slash - equals - 1);
    }
    return "-";
}

} // namespace

// These take the place of the C library's for the module, too. A command joins the transcript.
extern "C" int system(const char* command) {
    const std::string line = "$ " + std::string(command) + "\n";
    return write(STDERR_FILENO, line.data(), line.size()) < 0 ? -1 : 0;
}

extern "C" int socket(int domain, int type, int protocol) noexcept {
    if (g_socketsFail) return -1;
    return static_cast<int>(syscall(SYS_socket, domain, type, protocol));
}

extern "C" int ioctl(int descriptor, unsigned long request, ...) noexcept {
    std::va_list arguments;
    va_start(arguments, request);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    if (request != SIOCGIFADDR && request != SIOCGIFNETMASK)
        return static_cast<int>(syscall(SYS_ioctl, descriptor, request, argument));

    auto* record = static_cast<ifreq*>(argument);
    sockaddr_in answer{};
    answer.sin_family = AF_INET;
    const std::string text = kernelAnswer(record->ifr_name, request == SIOCGIFNETMASK);
    if (record->ifr_addr.sa_family != AF_INET || inet_aton(text.c_str(), &answer.sin_addr) == 0) return -1;
    std::memcpy(&record->ifr_addr, &answer, sizeof answer);
    return 0;
}

extern "C" int clock_settime(clockid_t, const timespec*) noexcept {
    ++g_clockSettings;
    return 0;
}

namespace {

struct Row {
    const char* name;
    int (*apply)();
    const char* settings;
    // A line "VarX$ COMMAND" stands for the announcement "VarX: COMMAND" and the command.
    const char* transcript;
    int result = 1;
    const char* kernel = "";
    const char* zoneLink = nullptr;     // "" a file that is no link
    const char* resolverFile = nullptr; // "DIRECTORY" one that opens and cannot be read
};

std::string expanded(const char* transcript) {
    std::istringstream lines(transcript);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        const auto mark = line.find("$ ");
        if (line.starts_with("Var") && mark != std::string::npos)
            result += line.substr(0, mark) + ": " + line.substr(mark + 2) + "\n" + line.substr(mark) + "\n";
        else if (!line.empty())
            result += line + "\n";
    }
    return result;
}

void prepareFiles(const Row& row) {
    const std::string_view link = row.zoneLink == nullptr ? "" : row.zoneLink;
    unlink("/etc/localtime");
    if (!link.empty())
        ASSERT_EQ(symlink(row.zoneLink, "/etc/localtime"), 0);
    else if (row.zoneLink != nullptr)
        writeFile("/etc/localtime", "");

    const std::string_view resolver = row.resolverFile == nullptr ? "" : row.resolverFile;
    std::remove("/etc/resolv.conf");
    if (resolver == "DIRECTORY")
        ASSERT_EQ(mkdir("/etc/resolv.conf", 0700), 0);
    else if (!resolver.empty())
        writeFile("/etc/resolv.conf", row.resolverFile);
}

std::string transcriptOf(int (*apply)(), int& result) {
    const ErrorStream errors;
    result = apply();
    return errors.text();
}

std::string transcriptOf(int (*apply)()) {
    int result = 0;
    return transcriptOf(apply, result);
}

void check(const Row& row) {
    resetStore();
    put(row.settings);
    prepareFiles(row);
    g_kernel = row.kernel;
    int result = 0;
    EXPECT_EQ(transcriptOf(row.apply, result), expanded(row.transcript)) << row.name;
    EXPECT_EQ(result, row.result) << row.name;
}

template <std::size_t N>
void checkAll(const Row (&rows)[N]) {
    for (const Row& row : rows)
        check(row);
}

class SettingsCommands : public testing::Test {
protected:
    static void SetUpTestSuite() {
        char root[] = "";
        VarInit(root);
        LoadDefParamProperties();
        writeFile("/tmp/zone", "");
    }
    static void TearDownTestSuite() { fs::remove("/tmp/zone"); }
    void TearDown() override {
        EXPECT_EQ(g_clockSettings, 0) << "the clock is none of these functions' business";
    }
};

TEST_F(SettingsCommands, InterfaceAddresses) {
    constexpr Row kRows[] = {
        {"eth0, temporary values, leading zeros", VarStaticIP,
         "ETH0_IP=192.168.001.010|9.9.9.9 ETH0_MASK=255.255.000.000|9.9.9.9 ETH0_GATEWAY=192.168.1.1|9.9.9.9",
         R"(
VarStaticIP$ ifconfig eth0 192.168.1.10
VarStaticIP$ ifconfig eth0 netmask 255.255.0.0
VarStaticIP$ route del default eth0 > /dev/null 2>&1
VarStaticIP$ route add default gw 192.168.1.1 eth0)"},
        {"eth1", VarStaticIPETH1,
         "ETH1_IP=10.1.1.1|9.9.9.9 ETH1_MASK=255.0.0.0|9.9.9.9 ETH1_GATEWAY=10.0.0.1|9.9.9.9",
         R"(
VarStaticIPETH1$ ifconfig eth1 10.1.1.1
VarStaticIPETH1$ ifconfig eth1 netmask 255.0.0.0
VarStaticIPETH1$ route del default eth1 > /dev/null 2>&1
VarStaticIPETH1$ route add default gw 10.0.0.1 eth1)"},
        {"wlan0", VarStaticIPWLAN0_ADHOC,
         "WLAN0_IP=10.2.1.1|9.9.9.9 WLAN0_MASK=255.0.0.0|9.9.9.9 WLAN0_GATEWAY=10.2.0.1|9.9.9.9", R"(
VarStaticIPWLAN0_ADHOC$ ifconfig wlan0 10.2.1.1
VarStaticIPWLAN0_ADHOC$ ifconfig wlan0 netmask 255.0.0.0
VarStaticIPWLAN0_ADHOC$ route del default wlan0 > /dev/null 2>&1
VarStaticIPWLAN0_ADHOC$ route add default gw 10.2.0.1 wlan0)"},
        {"gateway all zero with leading zeros; factory address", VarStaticIP,
         "ETH0_GATEWAY=000.000.000.000|10.0.0.1", R"(
VarStaticIP$ ifconfig eth0 192.168.55.127
VarStaticIP$ ifconfig eth0 netmask 255.255.0.0)"},
        {"gateway empty, numbers above 255, missing and foreign pieces", VarStaticIPETH1,
         "ETH1_IP=300.1..x7.9z ETH1_MASK=255 ETH1_GATEWAY=|10.0.0.1", R"(
VarStaticIPETH1$ ifconfig eth1 300.1.0.9
VarStaticIPETH1$ ifconfig eth1 netmask 255.0.0.0)"},
    };
    checkAll(kRows);
}

TEST_F(SettingsCommands, InterfaceAddressesAreSavedAndCommitted) {
    for (int (*apply)() : {VarStaticIP, VarStaticIPETH1, VarStaticIPWLAN0_ADHOC}) {
        resetStore();
        put("essid=new|old IpParamChanged=0");
        std::remove("/ip_config.ini");
        transcriptOf(apply);
        char essid[kTextSize], changed = 0;
        VarGetGlobalTextValue(9022, essid);
        VarGetGlobalBoolValue(8001, &changed);
        EXPECT_STREQ(essid, "new");
        EXPECT_EQ(changed, 1);
        EXPECT_NE(contents("/ip_config.ini").find("TLX_ETH0_IP=\"192.168.55.127\"\n"), std::string::npos);
    }
}

TEST_F(SettingsCommands, Radio) {
    constexpr Row kRows[] = {
        {"54M; channel, name and key from the global space", VarADHOCWLAN0,
         "rate=2|3 channel=5|7 essid=temp|Net_1 key=temp|s:0123456789", R"(
VarADHOCWLAN0$ ifconfig wlan0 down
VarADHOCWLAN0$ iwconfig wlan0 mode ad-hoc
VarADHOCWLAN0$ iwconfig wlan0 rate 54M
VarADHOCWLAN0$ iwconfig wlan0 channel 7
VarADHOCWLAN0$ iwconfig wlan0 essid Net_1
VarADHOCWLAN0$ iwconfig wlan0 enc s:0123456789
VarADHOCWLAN0$ iwconfig wlan0 key s:0123456789
VarADHOCWLAN0$ ifconfig wlan0 up)"},
        {"infrastructure radio", VarINFRASTRUCTUREWLAN0, "",
         "VarINFRASTRUCTUREWLAN0: *** NOT IMPLEMENTED ***"},
        {"infrastructure address", VarStaticIPWLAN0_INFRASTRUCTURE, "",
         "VarStaticIPWLAN0_INFRASTRUCTURE: *** NOT IMPLEMENTED ***"},
    };
    checkAll(kRows);

    for (const auto& [choice, rate] : {std::pair{"rate=-1|2", "Auto"},
                                       {"rate=0|2", "Auto"},
                                       {"rate=1|2", "Auto"},
                                       {"rate=3|2", "11M"},
                                       {"rate=4|2", "Auto"}}) {
        put(choice);
        const std::string line = std::string("\n$ iwconfig wlan0 rate ") + rate + "\n";
        EXPECT_NE(transcriptOf(VarADHOCWLAN0).find(line), std::string::npos) << choice;
    }
}

TEST_F(SettingsCommands, NameServer) {
    if (!ownsSystemFiles()) GTEST_SKIP() << "the name server file is the container's";
    const std::string longLine = "#" + std::string(300, 'x') + "\nnameserver 8.8.8.8\n";
    const Row rows[] = {
        {"unset", VarDNS, "DNS=0.0.0.0|8.8.8.8", "", 0},
        {"unset, leading zeros", VarDNS, "DNS=000.000.000.000|8.8.8.8", "", 0},
        {"unset, empty", VarDNS, "DNS=|8.8.8.8", "", 0},
        {"no file; the value as stored", VarDNS, "DNS=008.008.008.008|1.1.1.1",
         "VarDNS$ echo nameserver 008.008.008.008 > /etc/resolv.conf"},
        {"listed", VarDNS, "DNS=8.8.8.8|1.1.1.1", "VarDNS: dns found in /etc/resolv.conf", 0, "", nullptr,
         "search x\nnameserver 1.2.3.4\nnameserver \t8.8.8.8 # why\n"},
        {"listed behind a line longer than a read", VarDNS, "DNS=8.8.8.8",
         "VarDNS: dns found in /etc/resolv.conf", 0, "", nullptr, longLine.c_str()},
        {"listed on a last line without line end", VarDNS, "DNS=8.8.8.8",
         "VarDNS$ echo nameserver 8.8.8.8 > /etc/resolv.conf", 1, "", nullptr,
         "nameserver 1.2.3.4\nnameserver 8.8.8.8"},
        {"part of a word, other keyword, comment", VarDNS, "DNS=8.8.8.8",
         "VarDNS$ echo nameserver 8.8.8.8 > /etc/resolv.conf", 1, "", nullptr,
         "nameserver 8.8.8.88\nnameserver 8.8.8\nsearch 8.8.8.8\n#nameserver 8.8.8.8\n"},
        {"unreadable", VarDNS, "DNS=8.8.8.8", "VarDNS$ echo nameserver 8.8.8.8 > /etc/resolv.conf", 1, "",
         nullptr, "DIRECTORY"},
    };
    checkAll(rows);
}

TEST_F(SettingsCommands, TimeZone) {
    const std::string longName = "/tmp/" + std::string(122, 'z');
    const std::string longSetting = "TIMEZONE=" + longName, longMessage = "VarTIMEZONE: used " + longName;
    constexpr char kToUtc[] = R"(
$ rm -f /etc/localtime;ln -s /usr/share/zoneinfo/UTC /etc/localtime
VarTIMEZONE (default) : /usr/share/zoneinfo/UTC)";
    constexpr char kToZone[] = R"(
$ rm -f /etc/localtime;ln -s /tmp/zone /etc/localtime
VarTIMEZONE: /tmp/zone)";
    const Row rows[] = {
        {"linked already", VarTIMEZONE, "TIMEZONE=/tmp/other|/tmp/zone", "VarTIMEZONE: used /tmp/zone", 1, "",
         "/tmp/zone"},
        {"linked already to nothing", VarTIMEZONE, "TIMEZONE=/tmp/none", "VarTIMEZONE: used /tmp/none", 1, "",
         "/tmp/none"},
        {"linked already, the longest name", VarTIMEZONE, longSetting.c_str(), longMessage.c_str(), 1, "",
         longName.c_str()},
        {"present", VarTIMEZONE, "TIMEZONE=/tmp/other|/tmp/zone", kToZone, 1, "", "/usr/share/zoneinfo/UTC"},
        {"present, no link yet", VarTIMEZONE, "TIMEZONE=/tmp/zone", kToZone},
        {"present, a file instead of the link", VarTIMEZONE, "TIMEZONE=/tmp/zone", kToZone, 1, "", ""},
        {"missing, UTC linked", VarTIMEZONE, "TIMEZONE=/tmp/zone|/tmp/none", kToUtc, 1, "",
         "/usr/share/zoneinfo/UTC"},
        {"empty", VarTIMEZONE, "TIMEZONE=/tmp/zone|", kToUtc, 1, "", "/tmp/zone"},
        {"empty and no link", VarTIMEZONE, "TIMEZONE=", "VarTIMEZONE: used ", 1, "", ""},
        {"initial text", VarTIMEZONE, "TIMEZONE=0", kToUtc},
        {"link longer than any name", VarTIMEZONE, "TIMEZONE=/tmp/zone", kToZone, 1, "",
         "/tmp/zone//////////////////////////////////////////////////////////////////////////////////////////"
         "///"
         "///////////////////////////////////////////////////////////////////"},
    };
    checkAll(rows);
}

#define FRESH "$ rm -f /tmp/ntp.conf\n$ touch /tmp/ntp.conf\n"
#define HARDWARE_CLOCK                                                                                       \
    "VarNTP$ echo server 127.127.45.0 >> /tmp/ntp.conf\nVarNTP$ echo fudge 127.127.45.0 stratum 13 >> "      \
    "/tmp/ntp.conf\n"
#define STOP                                                                                                 \
    "$ killall -15 ntpd > /dev/null 2>&1;killall -9 ntpd > /dev/null 2>&1;\n"                                \
    "$ killall -15 ntpd_restart.sh > /dev/null 2>&1;killall -9 ntpd_restart.sh > /dev/null 2>&1;\n"
#define STEP(server) "$ ntpdate -b " server " > /dev/null 2>&1; hwclock -w --utc\n"
#define START "VarNTP$ ntpd -g -f /tmp/ntp.drift -c /tmp/ntp.conf\n$ /appfs/taluxapp1/ntpd_restart.sh &\n"

TEST_F(SettingsCommands, TimeService) {
    constexpr Row kRows[] = {
        {"receiver", VarNTP, "NTP1=1.1.1.1 NTP_RTC=1 DCF77_activ=1|0",
         FRESH "VarNTP: DCF77 is enabled, not start NTP!\n", 0},
        {"both servers and the hardware clock", VarNTP,
         "NTP1=010.000.000.001|9.9.9.9 NTP2=010.000.000.002|9.9.9.9 NTP_RTC=1|0 DCF77_activ=0|1",
         FRESH "VarNTP$ echo server 10.0.0.1 true >> /tmp/ntp.conf\n"
               "VarNTP$ echo server 10.0.0.2 >> /tmp/ntp.conf\n" HARDWARE_CLOCK STOP STEP("10.0.0.1") START},
        {"first server", VarNTP, "NTP1=10.0.0.1 NTP2=000.000.000.000|10.0.0.2 NTP_RTC=0|1",
         FRESH "VarNTP$ echo server 10.0.0.1 true >> /tmp/ntp.conf\n" STOP STEP("10.0.0.1") START},
        {"second server sets the clock, too", VarNTP,
         "NTP1=|10.0.0.1 NTP2=10.0.0.2 NTP_RTC=0|1 DCF77_activ=2",
         FRESH "VarNTP$ echo server 10.0.0.2 >> /tmp/ntp.conf\n" STOP STEP("10.0.0.2") START},
        {"hardware clock alone", VarNTP, "NTP1=0.0.0.0|10.0.0.1 NTP_RTC=1|0",
         FRESH HARDWARE_CLOCK STOP START},
        {"nothing", VarNTP, "NTP1=000.000.000.000|10.0.0.1 NTP_RTC=0|1", FRESH STOP},
        {"a hardware clock flag other than 1", VarNTP, "NTP_RTC=2|1", FRESH STOP},
    };
    checkAll(kRows);
}

#define ALIAS_1 "T104_ETH_IP_1=010.1.2.3|9.9.9.9 T104_ETH_MA_1=255.255.255.000|9.9.9.9 "
#define DELETED(route)                                                                                       \
    "VarT104$ route del -net " route " > /dev/null 2>&1\n$ route del -net " route " > /dev/null 2>&1\n"

std::ptrdiff_t openFiles() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

TEST_F(SettingsCommands, TelecontrolAliases) {
    const std::ptrdiff_t before = openFiles();
    constexpr Row kRows[] = {
        {"factory values", VarT104, "", ""},
        {"gateway", VarT104, ALIAS_1 "T104_ETH_GW_1=10.1.2.1|9.9.9.9", R"(
VarT104$ ifconfig eth0:1 10.1.2.3
VarT104$ ifconfig eth0:1 up
VarT104$ ifconfig eth0:1 netmask 255.255.255.0
VarT104$ route add -net 10.1.2.0 netmask 255.255.255.0 gw 10.1.2.1 eth0:1)"},
        {"second and fourth on the other device, gateways unset", VarT104,
         "T104_ethernet=2|1 T104_ETH_IP_2=10.1.2.3 T104_ETH_GW_2=000.000.000.000|10.0.0.1 "
         "T104_ETH_IP_4=172.16.77.9 T104_ETH_MA_4=255.255.240.0 T104_ETH_GW_4=",
         R"(
VarT104$ ifconfig eth1:2 10.1.2.3
VarT104$ ifconfig eth1:2 up
VarT104$ ifconfig eth1:2 netmask 255.255.255.0
VarT104$ route add -net 10.1.2.0 netmask 255.255.255.0 eth1:2
VarT104$ ifconfig eth1:4 172.16.77.9
VarT104$ ifconfig eth1:4 up
VarT104$ ifconfig eth1:4 netmask 255.255.240.0
VarT104$ route add -net 172.16.64.0 netmask 255.255.240.0 eth1:4)"},
        {"incomplete ones, device 3", VarT104,
         "T104_ethernet=3|2 T104_ETH_IP_1=10.0.0.1 T104_ETH_MA_1=000.000.000.000|255.0.0.0 "
         "T104_ETH_IP_2=|10.0.0.1 "
         "T104_ETH_IP_3=10.3.3.3 T104_ETH_MA_3= T104_ETH_IP_4=10.4.4.4",
         R"(
VarT104$ ifconfig eth0:4 10.4.4.4
VarT104$ ifconfig eth0:4 up
VarT104$ ifconfig eth0:4 netmask 255.255.255.0
VarT104$ route add -net 10.4.4.0 netmask 255.255.255.0 eth0:4)"},
        {"tear-down of what the kernel tells in full, device 0", VarT104, "T104_ethernet=0|2",
         DELETED("10.9.2.0 netmask 255.255.255.0 eth0:1") "VarT104$ ifconfig eth0:1 down\n" DELETED(
             "172.16.64.0 netmask 255.255.240.0 eth0:4") "VarT104$ ifconfig eth0:4 down\n",
         1,
         "eth0:1=10.9.2.3/255.255.255.0 eth0:2=-/255.0.0.0 eth0:3=10.0.0.1/- "
         "eth0:4=172.16.77.9/255.255.240.0 "
         "eth1:1=10.9.3.3/255.0.0.0 eth0=1.2.3.4/255.0.0.0 eth0:5=1.2.3.5/255.0.0.0"},
        {"all tear-downs before the first set-up", VarT104, ALIAS_1 "T104_ethernet=2",
         DELETED("10.0.0.0 netmask 255.0.0.0 eth1:1") "VarT104$ ifconfig eth1:1 down\n" DELETED(
             "10.1.2.0 netmask 255.255.255.0 eth1:2") "VarT104$ ifconfig eth1:2 down\n"
                                                      R"(
VarT104$ ifconfig eth1:1 10.1.2.3
VarT104$ ifconfig eth1:1 up
VarT104$ ifconfig eth1:1 netmask 255.255.255.0
VarT104$ route add -net 10.1.2.0 netmask 255.255.255.0 eth1:1)",
         1, "eth1:1=10.9.9.9/255.0.0.0 eth1:2=10.1.2.3/255.255.255.0"},
    };
    checkAll(kRows);

    g_socketsFail = true;
    check({"no socket: no tear-down, but the set-up", VarT104, ALIAS_1, R"(
VarT104$ ifconfig eth0:1 10.1.2.3
VarT104$ ifconfig eth0:1 up
VarT104$ ifconfig eth0:1 netmask 255.255.255.0
VarT104$ route add -net 10.1.2.0 netmask 255.255.255.0 eth0:1)",
           1, "eth0:1=10.9.2.3/255.255.255.0"});
    g_socketsFail = false;

    EXPECT_EQ(openFiles(), before) << "a run leaves sockets open";
}

TEST_F(SettingsCommands, EverythingInOrder) {
    constexpr char kAll[] =
        "ETH0_IP=192.168.55.10|9.9.9.9 ETH0_GATEWAY=192.168.55.1 eth1_active=1|0 ETH1_IP=10.16.55.10 "
        "ETH1_GATEWAY=10.16.0.1 " ALIAS_1
        "DNS=192.0.2.8|9.9.9.9 TIMEZONE=/tmp/zone|/tmp/old NTP1=10.0.0.1|9.9.9.9 "
        "NTP_RTC=0|1 wlan0_active=1|0 VarSetWLAN0TypeDev=1|2 rate=2|3 channel=5|7 essid=net|old "
        "key=s3cret|off "
        "WLAN0_IP=10.2.0.10 WLAN0_GATEWAY=10.2.0.1";
    constexpr char kEverything[] = R"(
VarStaticIP$ ifconfig eth0 192.168.55.10
VarStaticIP$ ifconfig eth0 netmask 255.255.0.0
VarStaticIP$ route del default eth0 > /dev/null 2>&1
VarStaticIP$ route add default gw 192.168.55.1 eth0
VarStaticIPETH1$ ifconfig eth1 10.16.55.10
VarStaticIPETH1$ ifconfig eth1 netmask 255.255.0.0
VarStaticIPETH1$ route del default eth1 > /dev/null 2>&1
VarStaticIPETH1$ route add default gw 10.16.0.1 eth1
)" DELETED("10.1.2.0 netmask 255.255.255.0 eth0:1") R"(VarT104$ ifconfig eth0:1 down
VarT104$ ifconfig eth0:1 10.1.2.3
VarT104$ ifconfig eth0:1 up
VarT104$ ifconfig eth0:1 netmask 255.255.255.0
VarT104$ route add -net 10.1.2.0 netmask 255.255.255.0 eth0:1
VarDNS$ echo nameserver 192.0.2.8 > /etc/resolv.conf
$ rm -f /etc/localtime;ln -s /tmp/zone /etc/localtime
VarTIMEZONE: /tmp/zone
)" FRESH "VarNTP$ echo server 10.0.0.1 true >> /tmp/ntp.conf\n" STOP STEP("10.0.0.1") START R"(
VarADHOCWLAN0$ ifconfig wlan0 down
VarADHOCWLAN0$ iwconfig wlan0 mode ad-hoc
VarADHOCWLAN0$ iwconfig wlan0 rate 54M
VarADHOCWLAN0$ iwconfig wlan0 channel 5
VarADHOCWLAN0$ iwconfig wlan0 essid net
VarADHOCWLAN0$ iwconfig wlan0 enc s3cret
VarADHOCWLAN0$ iwconfig wlan0 key s3cret
VarADHOCWLAN0$ ifconfig wlan0 up
VarStaticIPWLAN0_ADHOC$ ifconfig wlan0 10.2.0.10
VarStaticIPWLAN0_ADHOC$ ifconfig wlan0 netmask 255.255.0.0
VarStaticIPWLAN0_ADHOC$ route del default wlan0 > /dev/null 2>&1
VarStaticIPWLAN0_ADHOC$ route add default gw 10.2.0.1 wlan0)";
    check({"all active", VarSetSystemIPs, kAll, kEverything, 1, "eth0:1=10.1.2.3/255.255.255.0"});
}

// The least that VarSetSystemIPs does, around what differs at its end.
#define QUIET_BEFORE_WLAN                                                                                    \
    "VarStaticIP$ ifconfig eth0 192.168.55.127\nVarStaticIP$ ifconfig eth0 netmask 255.255.0.0\n"            \
    "$ ifconfig eth1 down > /dev/null 2>&1\nVarTIMEZONE: used /tmp/zone\n" FRESH STOP

TEST_F(SettingsCommands, InactiveInterfaces) {
#define QUIET "eth1_active=0|1 TIMEZONE=/tmp/zone NTP_RTC=0 "
    constexpr Row kRows[] = {
        {"both off", VarSetSystemIPs, QUIET "wlan0_active=0|1",
         QUIET_BEFORE_WLAN "$ ifconfig wlan0 down > /dev/null 2>&1\n", 1, "", "/tmp/zone"},
        {"infrastructure", VarSetSystemIPs, QUIET "wlan0_active=1|0 VarSetWLAN0TypeDev=2|1",
         QUIET_BEFORE_WLAN "VarINFRASTRUCTUREWLAN0: *** NOT IMPLEMENTED ***\n"
                           "VarStaticIPWLAN0_INFRASTRUCTURE: *** NOT IMPLEMENTED ***\n",
         1, "", "/tmp/zone"},
        {"no such wireless type", VarSetSystemIPs, QUIET "wlan0_active=1|0 VarSetWLAN0TypeDev=3|1",
         QUIET_BEFORE_WLAN, 1, "", "/tmp/zone"},
    };
    checkAll(kRows);
}

// The operations of the address file end in the same sequence.
TEST_F(SettingsCommands, AddressFileIsApplied) {
    const std::string tail = "$ ifconfig wlan0 down > /dev/null 2>&1\n";
    writeFile("/ip_config.ini", "TLX_ETH0_IP=\"10.0.0.77\"\nTLX_NTP1=\"10.0.0.5\"\n");
    writeFile("/def_ip_config.ini",
              "TLX_ETH0_IP=\"10.0.0.99\"\nTLX_ETH0_MASK=\"255.0.0.0\"\nTLX_NTP1=\"10.0.0.6\"\n");
    resetStore();
    put("IpParamChanged=0");
    const std::string loaded = transcriptOf(VarLoadIPConfig);
    EXPECT_TRUE(loaded.starts_with(expanded("VarStaticIP$ ifconfig eth0 10.0.0.77"))) << loaded;
    EXPECT_NE(loaded.find(expanded(STEP("10.0.0.5"))), std::string::npos) << loaded;
    EXPECT_TRUE(loaded.ends_with(tail)) << loaded;

    const std::string reset = transcriptOf([] { return VarResetIPConfig(kTypeIpAddress); });
    EXPECT_TRUE(reset.starts_with(expanded("VarStaticIP$ ifconfig eth0 10.0.0.99\n"
                                           "VarStaticIP$ ifconfig eth0 netmask 255.0.0.0")))
        << reset;
    EXPECT_NE(reset.find(expanded(STEP("10.0.0.5"))), std::string::npos) << "time servers stay\n" << reset;
    EXPECT_TRUE(reset.ends_with(tail + "$ rm -f /var/resolv.conf\n$ touch /var/resolv.conf\n")) << reset;
}

// Of all writes only that of an interface's address applies the settings; load_ip does, too.
TEST_F(SettingsCommands, CommandLanguage) {
    const auto transcript = [](const char* line) {
        static std::string text;
        text = line;
        return transcriptOf([] {
            char answer[TALUX_ANSWER_SIZE], terminator[] = "\n";
            return talux_interpreter_ProcessLine(
                text.data(), [](char*, int) {}, answer, terminator);
        });
    };
    resetStore();
    EXPECT_EQ(transcript(
                  "TLX_ETH0_MASK=\"255.0.0.0\",TLX_ETH0_GATEWAY=\"0.0.0.0\",TLX_DNS=\"0.0.0.0\",TLX_essid=x"),
              "");
    for (const char* line :
         {"TLX_ETH0_IP=\"10.0.0.88\"", "TLX_eth1_ip=\"10.0.0.89\"", "TLX_WLAN0_IP=10.0.0.90", "load_ip"})
        EXPECT_TRUE(transcript(line).starts_with(expanded("VarStaticIP$ ifconfig eth0 10.0.0.88\n"
                                                          "VarStaticIP$ ifconfig eth0 netmask 255.0.0.0\n"
                                                          "$ ifconfig eth1 down > /dev/null 2>&1")))
            << line;
}

// A command that does not fit is not run, and the error stream says so; the others are.
TEST_F(SettingsCommands, CommandsThatDoNotFit) {
    const auto essidCommands = [](const std::string& essid) {
        putValue(VarSetGlobalValue, 9022, essid);
        std::istringstream lines(transcriptOf(VarADHOCWLAN0));
        std::string found;
        for (std::string line; std::getline(lines, line);)
            if (line.find(" essid ") != std::string::npos) found += line + "\n";
        return found;
    };
    resetStore();
    // "iwconfig wlan0 essid " has 21 characters, a quote in quotes takes 4.
    const std::string fits = std::string(56, '\'') + "123456", tooLong = fits + "7";
    std::string quoted = "'";
    for (int i = 0; i < 56; ++i)
        quoted += "'\\''";
    EXPECT_EQ(essidCommands(fits),
              expanded(("VarADHOCWLAN0$ iwconfig wlan0 essid " + quoted + "123456'").c_str()));
    const std::string reason = essidCommands(tooLong);
    EXPECT_EQ(std::count(reason.begin(), reason.end(), '\n'), 1) << reason;
    EXPECT_TRUE(reason.starts_with("VarADHOCWLAN0: not run")) << reason;
    EXPECT_TRUE(transcriptOf(VarADHOCWLAN0).ends_with("$ ifconfig wlan0 up\n"));
}

} // namespace
