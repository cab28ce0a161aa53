// Up to four extra addresses of the telecontrol link: alias interfaces with a network route each.
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/network/SettingIds.h"
#include "ParamSystem/network/ShellCommand.h"
#include "ParamSystem/network/StagedValues.h"
#include "ParamSystem/os/Interfaces.h"
#include "support/Text.h"

using namespace talux::network;

namespace {

constexpr Shell kShell("VarT104");

// Texts of normalised addresses.
struct Alias {
    AddressText address{"0.0.0.0"};
    AddressText netmask{"0.0.0.0"};
    AddressText gateway{"0.0.0.0"};
};

void readIfKnown(AddressText& address, int id) {
    if (GetParamProperties(id) != nullptr) address = normalised(addressSetting(id));
}

Alias readAlias(int number) {
    const int step = (number - 1) * kIdsPerAlias;
    Alias alias;
    readIfKnown(alias.address, kT104Address1 + step);
    readIfKnown(alias.netmask, kT104Netmask1 + step);
    readIfKnown(alias.gateway, kT104Gateway1 + step);
    return alias;
}

AddressText networkOf(const AddressText& address, const AddressText& netmask) {
    talux::AddressParts network = talux::addressPartsIn(address.text);
    const talux::AddressParts mask = talux::addressPartsIn(netmask.text);
    for (int k = 0; k < 4; ++k)
        network.part[k] &= mask.part[k];
    return textOf(network);
}

AddressText asText(const char* dotted) {
    AddressText address;
    talux::copyText(address.text, dotted);
    return address;
}

void tearDown(const char* device, int number) {
    char name[19];
    talux::formatText(name, sizeof name, "%s:%d", device, number);
    const auto known = talux::os::addressOf(name);
    const AddressText address = asText(known.address);
    const AddressText netmask = asText(known.netmask);
    if (address.text[0] == '\0' || netmask.text[0] == '\0') return;

    constexpr char kRouteDeletion[] = "route del -net %s netmask %s %s:%d > /dev/null 2>&1";
    const AddressText network = networkOf(address, netmask);
    // Twice: the kernel's own route of the alias and the one that was added have the same key.
    kShell.run(kRouteDeletion, network.text, netmask.text, device, number);
    kShell.runSilently(kRouteDeletion, network.text, netmask.text, device, number);
    kShell.run("ifconfig %s:%d down", device, number);
}

void setUp(const char* device, int number, const Alias& alias) {
    const char* address = alias.address.text;
    const char* netmask = alias.netmask.text;
    if (address == kNoAddress || netmask == kNoAddress) return;

    kShell.run("ifconfig %s:%d %s", device, number, address);
    kShell.run("ifconfig %s:%d up", device, number);
    kShell.run("ifconfig %s:%d netmask %s", device, number, netmask);
    const AddressText network = networkOf(alias.address, alias.netmask);
    if (isUnset(alias.gateway))
        kShell.run("route add -net %s netmask %s %s:%d", network.text, netmask, device, number);
    else
        kShell.run("route add -net %s netmask %s gw %s %s:%d", network.text, netmask, alias.gateway.text,
                   device, number);
}

} // namespace

int VarT104() {
    constexpr int kEthernetUsb = 2;

    Alias t104[kAliasCount];
    for (int number = 1; number <= kAliasCount; ++number)
        t104[number - 1] = readAlias(number);
    const char* device = choiceSetting(kT104Ethernet) == kEthernetUsb ? "eth1" : "eth0";

    for (int number = 1; number <= kAliasCount; ++number)
        tearDown(device, number);
    for (int number = 1; number <= kAliasCount; ++number)
        setUp(device, number, t104[number - 1]);
    return 1;
}
