// Telecontrol: IEC 60870-5-101, -103, -104 with four redundancy groups, DNP3, GOOSE.
#ifndef TALUX_CATALOGUE_TELECONTROL_H
#define TALUX_CATALOGUE_TELECONTROL_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kTelecontrol[] = {
    flag(8043, "T101_active"),
    choice(10035, "T101_port", {.choices = 3, .def = 2}),
    number(6064, "T101_cotfl", {.def = 1, .min = 1, .max = 2}), // octets
    number(6065, "T101_cafl", {.def = 2, .min = 1, .max = 2}),
    number(6066, "T101_ioafl", {.def = 3, .min = 1, .max = 3}),
    choice(10036, "T101_balance", {.choices = 2}),
    choice(10037, "T101_dirbit", {.choices = 2}),
    choice(10038, "T101_adrfl", {.choices = 2}),
    number(6067, "T101_adr", {.def = 1, .min = 0, .max = 65534}),
    number(6068, "T101_station_ca", {.def = 1}),
    flag(8044, "T101_pi_update"),
    flag(8045, "T103_active"),
    choice(10039, "T103_port", {.choices = 3, .def = 3}),
    number(6069, "T103_station_ca", {.def = 1, .min = 0, .max = 255}),
    flag(8046, "T103_pi_update"),
    flag(8047, "T104_active"),
    choice(10040, "T104_ethernet", {.choices = 2, .min = 1}), // 1 eth0, 2 eth1
    number(6070, "T104_station_ca", {.def = 1}),
    number(6071, "T104_port", {.def = 2404}),
    number(6072, "T104_T0", {.def = 30, .min = 1, .max = 255}), // seconds
    number(6073, "T104_T1", {.def = 15, .min = 1, .max = 255}),
    number(6074, "T104_T2", {.def = 10, .min = 1, .max = 255}),
    number(6075, "T104_T3", {.def = 20, .min = 1, .max = 2880}),
    number(6076, "T104_K", {.def = 12, .min = 1, .max = 32767}), // APDUs
    number(6077, "T104_W", {.def = 8, .min = 1, .max = 32767}),
    address(16009, "T104_all_ip", "0.0.0.0"),
    flag(8048, "T104_pi_update"),
    flag(8049, "T104_eth_bind"),
    flag(8050, "T104_red_active_1"),
    number(6078, "T104_port_1", {.def = 2404}),
    address(16010, "T104_ETH_IP_1", "0.0.0.0"),
    address(16011, "T104_ETH_MA_1", "255.255.255.0"),
    address(16012, "T104_ETH_GW_1", "0.0.0.0"),
    address(16013, "T104_all_ip_1", "0.0.0.0"),
    flag(8051, "T104_red_active_2"),
    number(6079, "T104_port_2", {.def = 2404}),
    address(16014, "T104_ETH_IP_2", "0.0.0.0"),
    address(16015, "T104_ETH_MA_2", "255.255.255.0"),
    address(16016, "T104_ETH_GW_2", "0.0.0.0"),
    address(16017, "T104_all_ip_2", "0.0.0.0"),
    flag(8052, "T104_red_active_3"),
    number(6080, "T104_port_3", {.def = 2404}),
    address(16018, "T104_ETH_IP_3", "0.0.0.0"),
    address(16019, "T104_ETH_MA_3", "255.255.255.0"),
    address(16020, "T104_ETH_GW_3", "0.0.0.0"),
    address(16021, "T104_all_ip_3", "0.0.0.0"),
    flag(8053, "T104_red_active_4"),
    number(6081, "T104_port_4", {.def = 2404}),
    address(16022, "T104_ETH_IP_4", "0.0.0.0"),
    address(16023, "T104_ETH_MA_4", "255.255.255.0"),
    address(16024, "T104_ETH_GW_4", "0.0.0.0"),
    address(16025, "T104_all_ip_4", "0.0.0.0"),
    flag(8054, "DNP3_active"),
    choice(10041, "DNP3_DEVICE", {.choices = 5, .min = 1}),
    number(6082, "DNP3_PORT", {.def = 20000}),
    address(16026, "DNP3_ALL_IP", "192.168.55.1"),
    address(16027, "DNP3_ALL_IP_1", "192.168.55.1", "192.168.55.2"),
    address(16028, "DNP3_ALL_IP_2", "192.168.55.1", "192.168.55.3"),
    number(6083, "DNP3_LINK", {.def = 103}),
    number(6084, "DNP3_LINK_MA", {.def = 1}),
    number(6085, "DNP3_TOAL", {.def = 800}), // ms
    number(6086, "DNP3_TOSO", {.def = 5000}),
    number(6087, "DNP3_TOIC", {.def = 20, .min = 2, .max = 1000}),
    number(6088, "DNP3_TTRE", {.def = 1000}),
    flag(8055, "GOOSE_active"),
};

} // namespace talux::catalogue

#endif
