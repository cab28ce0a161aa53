// The settings as the kernel has them afterwards, set by the real ifconfig and route on real interfaces.
#include <algorithm>
#include <arpa/inet.h>
#include <chrono>
#include <ifaddrs.h>
#include <net/if.h>
#include <set>
#include <thread>

#include "SettingsSupport.h"

using namespace settings_test;

namespace {

bool runs(const std::string& command) {
    return std::system(("(" + command + ") >/dev/null 2>&1").c_str()) == 0; // NOLINT(cert-env33-c)
}

std::string dotted(const sockaddr* address) {
    char text[INET_ADDRSTRLEN] = "";
    if (address != nullptr)
        inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in*>(address)->sin_addr, text, sizeof text);
    return text;
}

// "eth0:1 10.1.2.3/255.255.255.0" for each address of an interface.
std::set<std::string> addresses() {
    std::set<std::string> result;
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0) return result;
    for (const ifaddrs* entry = first; entry != nullptr; entry = entry->ifa_next)
        if (entry->ifa_addr != nullptr && entry->ifa_addr->sa_family == AF_INET &&
            std::string(entry->ifa_name).starts_with("eth"))
            result.insert(std::string(entry->ifa_name) + " " + dotted(entry->ifa_addr) + "/" +
                          dotted(entry->ifa_netmask));
    freeifaddrs(first);
    return result;
}

std::string dottedFromHex(const std::string& hex) {
    in_addr address{static_cast<in_addr_t>(std::stoul(hex, nullptr, 16))};
    return inet_ntoa(address);
}

// "eth0 10.1.2.0/255.255.255.0 10.1.2.1" for each route, its gateway last.
std::multiset<std::string> routes() {
    std::ifstream file("/proc/net/route");
    std::multiset<std::string> result;
    std::string line;
    for (std::getline(file, line); std::getline(file, line);) {
        std::istringstream words(line);
        std::string device, network, gateway, skipped, mask;
        words >> device >> network >> gateway >> skipped >> skipped >> skipped >> skipped >> mask;
        result.insert(device + " " + dottedFromHex(network) + "/" + dottedFromHex(mask) + " " +
                      dottedFromHex(gateway));
    }
    return result;
}

class KernelSettings : public testing::Test {
protected:
    static void SetUpTestSuite() {
        char root[] = "";
        VarInit(root);
        LoadDefParamProperties();
        if (!ownsSystemFiles()) return;
        installRecorders({"iwconfig", "ntpd", "ntpdate", "hwclock", "killall"});
        fs::create_directories("/appfs/taluxapp1");
        fs::create_symlink("/tmp/recorders/recorder", "/appfs/taluxapp1/ntpd_restart.sh");
        writeFile("/tmp/zone", "");
    }
    void SetUp() override {
        if (!ownsSystemFiles()) GTEST_SKIP() << "the network is the container's";
        if (!runs("command -v ip && command -v ifconfig && command -v route"))
            GTEST_SKIP() << "iproute2 or net-tools is missing";
        if (!runs("for n in 0 1; do ip link add eth$n type veth peer name peer$n && ip link set peer$n up || "
                  "exit; "
                  "done"))
            GTEST_SKIP() << "no pair of virtual interfaces can be made";
        resetStore();
        takeRecord();
    }
    void TearDown() override { runs("ip link del eth0; ip link del eth1"); }

    static void apply() {
        const ErrorStream errors;
        VarSetSystemIPs();
    }
};

constexpr char kSettings[] = "ETH0_IP=192.168.055.010 ETH0_GATEWAY=192.168.55.1 "
                             "eth1_active=1 ETH1_IP=10.16.55.10 ETH1_MASK=255.255.255.0 "
                             "T104_ETH_IP_1=10.1.1.3 T104_ETH_GW_1=10.1.1.1 T104_ETH_IP_2=10.1.2.3 "
                             "T104_ETH_IP_3=172.16.77.9 T104_ETH_MA_3=255.255.240.0 "
                             "T104_ETH_IP_4=10.1.4.3 T104_ETH_MA_4=255.255.255.128 "
                             "DNS=192.0.2.8 TIMEZONE=/tmp/zone NTP1=192.0.2.1 NTP2=192.0.2.2 NTP_RTC=1";

const std::set<std::string> kAddresses = {
    "eth0 192.168.55.10/255.255.0.0",   "eth0:1 10.1.1.3/255.255.255.0",   "eth0:2 10.1.2.3/255.255.255.0",
    "eth0:3 172.16.77.9/255.255.240.0", "eth0:4 10.1.4.3/255.255.255.128", "eth1 10.16.55.10/255.255.255.0"};

TEST_F(KernelSettings, AddressesMasksAndRoutes) {
    put(kSettings);
    apply();
    EXPECT_EQ(addresses(), kAddresses);
    const auto found = routes();
    for (const char* route :
         {"eth0 0.0.0.0/0.0.0.0 192.168.55.1", "eth0 192.168.0.0/255.255.0.0 0.0.0.0",
          "eth0 10.1.1.0/255.255.255.0 10.1.1.1", "eth0 10.1.2.0/255.255.255.0 0.0.0.0",
          "eth0 172.16.64.0/255.255.240.0 0.0.0.0", "eth0 10.1.4.0/255.255.255.128 0.0.0.0",
          "eth1 10.16.55.0/255.255.255.0 0.0.0.0"})
        EXPECT_TRUE(found.contains(route)) << route;

    apply();
    EXPECT_EQ(addresses(), kAddresses);
    EXPECT_EQ(routes(), found) << "a second run changes nothing";
}

TEST_F(KernelSettings, ChangesReplaceWhatWasThere) {
    put(kSettings);
    apply();
    put("ETH0_IP=192.168.55.20 ETH0_GATEWAY=192.168.55.2 T104_ETH_IP_1=0.0.0.0 T104_ETH_IP_2=10.1.2.4 "
        "T104_ETH_IP_3=0.0.0.0 T104_ETH_MA_4=0.0.0.0 eth1_active=0");
    apply();
    const std::set<std::string> expected = {"eth0 192.168.55.20/255.255.0.0", "eth0:2 10.1.2.4/255.255.255.0",
                                            "eth1 10.16.55.10/255.255.255.0"}; // down, its address stays
    EXPECT_EQ(addresses(), expected);
    const auto found = routes();
    EXPECT_EQ(found.count("eth0 0.0.0.0/0.0.0.0 192.168.55.1"), 0U);
    EXPECT_EQ(found.count("eth0 0.0.0.0/0.0.0.0 192.168.55.2"), 1U);
    for (const std::string& route : found)
        EXPECT_TRUE(route.starts_with("eth0 0.0.0.0/") || route.starts_with("eth0 192.168.0.0/") ||
                    route.starts_with("eth0 10.1.2.0/"))
            << route;
}

TEST_F(KernelSettings, AliasesMoveToTheOtherDevice) {
    put(kSettings);
    put("T104_ethernet=2 T104_ETH_IP_1=0.0.0.0 T104_ETH_IP_2=0.0.0.0 T104_ETH_IP_3=0.0.0.0");
    apply();
    EXPECT_TRUE(addresses().contains("eth1:4 10.1.4.3/255.255.255.128"));
    EXPECT_TRUE(routes().contains("eth1 10.1.4.0/255.255.255.128 0.0.0.0"));
}

TEST_F(KernelSettings, FilesAndRecordedPrograms) {
    put(kSettings);
    put("wlan0_active=1 VarSetWLAN0TypeDev=1 essid=Net key=off channel=3");
    apply();
    EXPECT_EQ(contents("/etc/resolv.conf"), "nameserver 192.0.2.8\n");
    EXPECT_EQ(fs::read_symlink("/etc/localtime"), "/tmp/zone");
    EXPECT_EQ(contents("/tmp/ntp.conf"), "server 192.0.2.1 true\nserver 192.0.2.2\nserver 127.127.45.0\n"
                                         "fudge 127.127.45.0 stratum 13\n");

    const Command watchdog = {"ntpd_restart.sh"};
    std::vector<Command> commands;
    for (int tries = 0; tries < 100 && std::count(commands.begin(), commands.end(), watchdog) == 0; ++tries) {
        for (Command& command : takeRecord())
            commands.push_back(std::move(command));
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // the watchdog runs in the background
    }
    EXPECT_EQ(std::count(commands.begin(), commands.end(), watchdog), 1);
    std::erase(commands, watchdog);
    const std::vector<Command> expected = {{"killall", "-15", "ntpd"},
                                           {"killall", "-9", "ntpd"},
                                           {"killall", "-15", "ntpd_restart.sh"},
                                           {"killall", "-9", "ntpd_restart.sh"},
                                           {"ntpdate", "-b", "192.0.2.1"},
                                           {"hwclock", "-w", "--utc"},
                                           {"ntpd", "-g", "-f", "/tmp/ntp.drift", "-c", "/tmp/ntp.conf"},
                                           {"iwconfig", "wlan0", "mode", "ad-hoc"},
                                           {"iwconfig", "wlan0", "rate", "Auto"},
                                           {"iwconfig", "wlan0", "channel", "3"},
                                           {"iwconfig", "wlan0", "essid", "Net"},
                                           {"iwconfig", "wlan0", "enc", "off"},
                                           {"iwconfig", "wlan0", "key", "off"}};
    EXPECT_EQ(commands, expected);
}

// Down and up again through the address file.
TEST_F(KernelSettings, AddressFile) {
    put(kSettings);
    VarUpdateGlobalSpace();
    {
        const ErrorStream errors;
        VarSaveIPConfig();
        put("ETH0_IP=1.2.3.4 ETH1_IP=1.2.3.5 T104_ETH_IP_1=1.2.3.6");
        EXPECT_EQ(VarLoadIPConfig(), 1);
    }
    EXPECT_EQ(addresses(), kAddresses);
}

} // namespace
