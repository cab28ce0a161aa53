// The radio of wlan0.
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/network/SettingIds.h"
#include "ParamSystem/network/ShellCommand.h"
#include "ParamSystem/network/StagedValues.h"

using namespace talux::network;

namespace {

// Choices count from 1; with any other number the radio decides.
const char* bitRate(int choice) {
    switch (choice) {
    case 2:
        return "54M";
    case 3:
        return "11M";
    default:
        return "Auto";
    }
}

ShellWord globalText(int id) {
    char text[kTextSize] = "";
    VarGetGlobalTextValue(id, text);
    return ShellWord(text);
}

} // namespace

int VarADHOCWLAN0() {
    constexpr Shell shell("VarADHOCWLAN0");

    shell.run("ifconfig wlan0 down");
    shell.run("iwconfig wlan0 mode ad-hoc");
    shell.run("iwconfig wlan0 rate %s", bitRate(choiceSetting(kRate)));
    VarLong channel = 0;
    VarGetGlobalLongValue(kChannel, &channel);
    shell.run("iwconfig wlan0 channel %ld", static_cast<long>(channel));
    shell.run("iwconfig wlan0 essid %s", globalText(kEssid).text());
    const ShellWord key = globalText(kKey);
    shell.run("iwconfig wlan0 enc %s", key.text());
    shell.run("iwconfig wlan0 key %s", key.text());
    shell.run("ifconfig wlan0 up");
    return 1;
}

int VarINFRASTRUCTUREWLAN0() {
    Shell("VarINFRASTRUCTUREWLAN0").report("*** NOT IMPLEMENTED ***");
    return 1;
}

int VarStaticIPWLAN0_INFRASTRUCTURE() {
    Shell("VarStaticIPWLAN0_INFRASTRUCTURE").report("*** NOT IMPLEMENTED ***");
    return 1;
}
