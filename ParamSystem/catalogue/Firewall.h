// Who may reach the device: per interface (ETHW is WLAN0) the services that are let in and the network that
// access is restricted to while FW_.._ACT is on; the FTP server.
#ifndef TALUX_CATALOGUE_FIREWALL_H
#define TALUX_CATALOGUE_FIREWALL_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kFirewall[] = {
    security(flag(8010, "Firewall_dis", kOn)),
    security(flag(8011, "FW_ETH0_com", kOn)),
    security(flag(8012, "FW_ETH0_ssh", kOn)),
    security(flag(8013, "FW_ETH0_vnc", kOn)),
    security(flag(8014, "FW_ETH0_mod", kOn)),
    security(flag(8015, "FW_ETH0_104", kOn)),
    security(flag(8016, "FW_ETH0_DNP3", kOn)),
    security(flag(8017, "FW_ETH0_ACT")),
    address(16001, "FW_ETH0_NET", "0.0.0.0"),
    address(16002, "FW_ETH0_MASK", "0.0.0.0"),
    security(flag(8018, "FW_ETH1_com", kOn)),
    security(flag(8019, "FW_ETH1_ssh", kOn)),
    security(flag(8020, "FW_ETH1_vnc", kOn)),
    security(flag(8021, "FW_ETH1_mod", kOn)),
    security(flag(8022, "FW_ETH1_104", kOn)),
    security(flag(8023, "FW_ETH1_DNP3", kOn)),
    security(flag(8024, "FW_ETH1_ACT")),
    address(16003, "FW_ETH1_NET", "0.0.0.0"),
    address(16004, "FW_ETH1_MASK", "0.0.0.0"),
    security(flag(8025, "FW_ETHW_com")),
    security(flag(8026, "FW_ETHW_ssh")),
    security(flag(8027, "FW_ETHW_vnc")),
    security(flag(8028, "FW_ETHW_mod")),
    security(flag(8029, "FW_ETHW_104")),
    security(flag(8030, "FW_ETHW_DNP3")),
    security(flag(8031, "FW_ETHW_ACT")),
    address(16005, "FW_ETHW_NET", "0.0.0.0"),
    address(16006, "FW_ETHW_MASK", "0.0.0.0"),
    security(number(6030, "FW_BLOCK", {.def = 3600, .min = -1, .max = 86400})), // seconds after an attack
    security(flag(8032, "ftp_pasv_pro")), // disables the check of passive connections
    security(flag(8033, "ftp_log")),
    security(number(6031, "ftp_min_passive", {.def = 1024, .min = 1024, .max = 65535})),
    security(number(6032, "ftp_max_passive", {.def = 1124, .min = 1024, .max = 65535})),
    security(flag(8034, "Disable_boot_timeout")),
};

} // namespace talux::catalogue

#endif
