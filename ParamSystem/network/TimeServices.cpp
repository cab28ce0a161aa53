// Time zone and time service.
#include <cstring>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/network/SettingIds.h"
#include "ParamSystem/network/ShellCommand.h"
#include "ParamSystem/network/StagedValues.h"
#include "ParamSystem/os/Files.h"

using namespace talux::network;

namespace {

constexpr Shell kZoneShell("VarTIMEZONE");
constexpr Shell kDefaultZoneShell("VarTIMEZONE (default) ");
constexpr Shell kTimeShell("VarNTP");

constexpr char kDefaultZone[] = "/usr/share/zoneinfo/UTC";

bool linkZone(const char* zone) {
    // A name that begins like an option must not be taken for one.
    const char* endOfOptions = zone[0] == '-' ? "-- " : "";
    return kZoneShell.runSilently("rm -f /etc/localtime;ln -s %s%s /etc/localtime", endOfOptions,
                                  ShellWord(zone).text());
}

// Writes the servers to the configuration and returns the first one, empty when there is none.
AddressText addServers() {
    const struct {
        int id;
        const char* option;
    } timeServers[] = {{kNtp1, " true"}, {kNtp2, ""}};
    AddressText first;
    for (const auto& [id, option] : timeServers) {
        const AddressText stored = addressSetting(id);
        if (isUnset(stored)) continue;
        const AddressText server = normalised(stored);
        kTimeShell.run("echo server %s%s >> /tmp/ntp.conf", server.text, option);
        if (first.text[0] == '\0') first = server;
    }
    return first;
}

void addHardwareClock() {
    kTimeShell.run("echo server 127.127.45.0 >> /tmp/ntp.conf");
    kTimeShell.run("echo fudge 127.127.45.0 stratum 13 >> /tmp/ntp.conf");
}

void stopTimeService() {
    for (const char* program : {"ntpd", "ntpd_restart.sh"})
        kTimeShell.runSilently("killall -15 %s > /dev/null 2>&1;killall -9 %s > /dev/null 2>&1;", program,
                               program);
}

void startTimeService() {
    kTimeShell.run("ntpd -g -f /tmp/ntp.drift -c /tmp/ntp.conf");
    kTimeShell.runSilently("/appfs/taluxapp1/ntpd_restart.sh &");
}

} // namespace

int VarTIMEZONE() {
    char linked[1024];
    talux::os::readLink("/etc/localtime", linked, sizeof linked);
    char zone[kTextSize] = "";
    VarGetGlobalTextValue(kTimeZone, zone);

    if (std::strcmp(linked, zone) == 0) {
        kZoneShell.report("used %s", zone);
    } else if (talux::os::exists(zone)) {
        if (linkZone(zone)) kZoneShell.report("%s", zone);
    } else {
        if (linkZone(kDefaultZone)) kDefaultZoneShell.report("%s", kDefaultZone);
    }
    return 1;
}

int VarNTP() {
    kTimeShell.runSilently("rm -f /tmp/ntp.conf");
    kTimeShell.runSilently("touch /tmp/ntp.conf");
    const bool hasHardwareClock = flagSetting(kNtpRtc) == 1;
    if (flagSetting(kDcf77Active) == 1) {
        kTimeShell.report("DCF77 is enabled, not start NTP!");
        return 0;
    }

    const AddressText server = addServers();
    const bool hasServer = server.text[0] != '\0';
    if (hasHardwareClock) addHardwareClock();
    stopTimeService();
    if (hasServer) kTimeShell.runSilently("ntpdate -b %s > /dev/null 2>&1; hwclock -w --utc", server.text);
    if (hasServer || hasHardwareClock) startTimeService();
    return 1;
}
