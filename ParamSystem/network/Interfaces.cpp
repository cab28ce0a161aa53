// Everything that is applied to the operating system, in its fixed order, and the wired interfaces' and
// wlan0's own addresses.
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/network/SettingIds.h"
#include "ParamSystem/network/ShellCommand.h"
#include "ParamSystem/network/StagedValues.h"

using namespace talux::network;

namespace {

struct Interface {
    const char* function;
    const char* device;
    int address;
    int netmask;
    int gateway;
    bool typesCount; // a parameter is used only if the dictionary gives it the type of its role
};

AddressText readAddress(const Interface& interface, int id, int type) {
    const stParamProperties* row = GetParamProperties(id);
    if (row == nullptr || (interface.typesCount && row->type != type)) return {};
    return normalised(addressSetting(id));
}

int applyAddresses(const Interface& interface) {
    const Shell shell(interface.function);
    const char* device = interface.device;
    const AddressText address = readAddress(interface, interface.address, kTypeIpAddress);
    const AddressText netmask = readAddress(interface, interface.netmask, kTypeIpMask);
    const AddressText gateway = readAddress(interface, interface.gateway, kTypeIpGateway);

    shell.run("ifconfig %s %s", device, address.text);
    shell.run("ifconfig %s netmask %s", device, netmask.text);
    if (!isUnset(gateway)) {
        shell.run("route del default %s > /dev/null 2>&1", device);
        shell.run("route add default gw %s %s", gateway.text, device);
    }
    VarSaveIPConfig(); // commits first, and that is what the other functions here rely on
    return 1;
}

enum WirelessType : int { kAdHoc = 1, kInfrastructure = 2 };

void applyWireless() {
    switch (choiceSetting(kWlan0Type)) {
    case kAdHoc:
        VarADHOCWLAN0();
        VarStaticIPWLAN0_ADHOC();
        break;
    case kInfrastructure:
        VarINFRASTRUCTUREWLAN0();
        VarStaticIPWLAN0_INFRASTRUCTURE();
        break;
    default:
        break;
    }
}

} // namespace

int VarStaticIP() {
    return applyAddresses({"VarStaticIP", "eth0", kEth0Address, kEth0Netmask, kEth0Gateway, true});
}

int VarStaticIPETH1() {
    return applyAddresses({"VarStaticIPETH1", "eth1", kEth1Address, kEth1Netmask, kEth1Gateway, false});
}

int VarStaticIPWLAN0_ADHOC() {
    return applyAddresses(
        {"VarStaticIPWLAN0_ADHOC", "wlan0", kWlan0Address, kWlan0Netmask, kWlan0Gateway, false});
}

int VarSetSystemIPs() {
    constexpr Shell shell("VarSetSystemIPs");

    // Its save commits: the functions after it read part of the settings from the global space.
    VarStaticIP();
    if (flagSetting(kEth1Active) == 0)
        shell.runSilently("ifconfig eth1 down > /dev/null 2>&1");
    else
        VarStaticIPETH1();
    VarT104();
    VarDNS();
    VarTIMEZONE();
    VarNTP();
    if (flagSetting(kWlan0Active) == 0)
        shell.runSilently("ifconfig wlan0 down > /dev/null 2>&1");
    else
        applyWireless();
    return 1;
}
