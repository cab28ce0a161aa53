// The settings as the kernel has them afterwards, set by the real ifconfig and route on real interfaces.
#include "NetworkSupport.h"

using namespace network_test;

namespace {

// Success of a command; what it says goes to /tmp/output.
bool runs(const std::string& command) {
    return std::system(("{ " + command + "; } >/tmp/output 2>&1").c_str()) == 0; // NOLINT(cert-env33-c)
}

// Addresses and routes of eth0 and eth1, one a line.
std::string network() {
    EXPECT_TRUE(
        runs("{ ip -o -4 address show | sed -n 's|.* inet \\([^ ]*\\).* \\(eth[^ ]*\\)\\\\.*|\\2 \\1|p' | "
             "sort; ip -4 route show | sed 's/ proto.*//;s/ scope.*//;s/ src.*//;s/ *$//' | sort -u; } | sed "
             "'s/$/; /' | tr -d '\\n'"));
    return contents("/tmp/output");
}

struct KernelSettings : SettingsTest {
    static void SetUpTestSuite() {
        SettingsTest::SetUpTestSuite();
        if (!talux_test::isolated()) return;
        runs("mkdir /tmp/quiet; for program in iwconfig ntpd ntpdate hwclock killall; do ln -s $(command -v "
             "true) "
             "/tmp/quiet/$program; done");
        setenv("PATH", "/tmp/quiet:/usr/sbin:/usr/bin:/sbin:/bin", 1);
    }
    void SetUp() override {
        if (!talux_test::isolated()) GTEST_SKIP() << "the network is the container's";
        if (!runs("command -v ip && command -v ifconfig && command -v route"))
            GTEST_SKIP() << "iproute2 or net-tools is missing";
        if (!runs("for n in 0 1; do ip link add eth$n type veth peer name peer$n && ip link set peer$n up || "
                  "exit; done"))
            GTEST_SKIP() << "no pair of virtual interfaces can be made";
        resetStore();
        put("ETH0_IP=192.168.055.010 ETH0_GATEWAY=192.168.55.1 eth1_active=1 ETH1_IP=10.16.55.10 "
            "ETH1_MASK=255.255.255.0 T104_ETH_IP_1=10.1.1.3 T104_ETH_GW_1=10.1.1.1 T104_ETH_IP_2=10.1.2.3 "
            "T104_ETH_IP_3=172.16.77.9 T104_ETH_MA_3=255.255.240.0 T104_ETH_IP_4=10.1.4.3 "
            "T104_ETH_MA_4=255.255.255.128 DNS=192.0.2.8 TIMEZONE=/tmp/zone NTP1=192.0.2.1 NTP2=192.0.2.2");
    }
    void TearDown() override {
        if (!talux_test::isolated()) return; // as after a skipped SetUp: they are the container's
        runs("ip link del eth0; ip link del eth1; rm -f /tmp/ntp.conf");
    }

    static std::string networkAfter(const char* settings, int (*apply)() = VarSetSystemIPs) {
        put(settings);
        errorsOf([&] { EXPECT_EQ(apply(), 1); });
        return network();
    }
};

TEST_F(KernelSettings, AddressesMasksAndRoutes) {
    const std::string expected =
        "eth0 192.168.55.10/16; eth0:1 10.1.1.3/24; eth0:2 10.1.2.3/24; eth0:3 172.16.77.9/20; eth0:4 "
        "10.1.4.3/25; eth1 10.16.55.10/24; 10.1.1.0/24 dev eth0; 10.1.1.0/24 via 10.1.1.1 dev eth0; "
        "10.1.2.0/24 dev eth0; 10.1.4.0/25 dev eth0; 10.16.55.0/24 dev eth1; 172.16.64.0/20 dev eth0; "
        "192.168.0.0/16 dev eth0; default via 192.168.55.1 dev eth0; ";
    EXPECT_EQ(networkAfter(""), expected);
    EXPECT_EQ(networkAfter(""), expected) << "a second run changes nothing";
    // Off and on again through the address file.
    EXPECT_EQ(networkAfter("ETH0_IP=1.2.3.4 ETH1_IP=1.2.3.5 T104_ETH_IP_1=1.2.3.6", VarLoadIPConfig),
              expected);
}

TEST_F(KernelSettings, Changes) {
    networkAfter("");
    // eth1 is down, its address stays.
    EXPECT_EQ(
        networkAfter("ETH0_IP=192.168.55.20 ETH0_GATEWAY=192.168.55.2 T104_ETH_IP_1=0.0.0.0 "
                     "T104_ETH_IP_2=10.1.2.4 T104_ETH_IP_3=0.0.0.0 T104_ETH_MA_4=0.0.0.0 eth1_active=0"),
        "eth0 192.168.55.20/16; eth0:2 10.1.2.4/24; eth1 10.16.55.10/24; 10.1.2.0/24 dev eth0; "
        "192.168.0.0/16 dev eth0; default via 192.168.55.2 dev eth0; ");
    // The other device's alias stays.
    EXPECT_EQ(
        networkAfter("T104_ethernet=2 eth1_active=1 T104_ETH_IP_2=0.0.0.0 T104_ETH_MA_4=255.255.255.128"),
        "eth0 192.168.55.20/16; eth0:2 10.1.2.4/24; eth1 10.16.55.10/24; eth1:4 10.1.4.3/25; 10.1.2.0/24 dev "
        "eth0; "
        "10.1.4.0/25 dev eth1; 10.16.55.0/24 dev eth1; 192.168.0.0/16 dev eth0; default via 192.168.55.2 dev "
        "eth0; ");
}

} // namespace
