// What a device runs once at boot, as root, before its first script: factory defaults, then what the
// parameter files in / say instead, then the network and time settings into the operating system.
//
//   boot [--apply]
//
// Applying changes the addresses of the machine that it runs on. Therefore it is done on a device's processor
// only, or with --apply.
#include <cstdio>
#include <cstring>
#include <sys/utsname.h>
#include <unistd.h>

#include <talux/talux.hpp>

namespace {

bool isThere(const char* file) {
    return access(file, F_OK) == 0;
}

// A file that was never saved is no fault: the defaults stay.
bool load(const char* file, int (*loadFile)()) {
    if (!isThere(file) || loadFile() == 1) return true;
    std::fprintf(stderr, "boot: %s could not be loaded\n", file);
    return false;
}

int loadAddresses() {
    char file[] = "/ip_config.ini";
    return VarLoadFile(file, 0);
}

bool runsOnADevice() {
    utsname system{};
    if (uname(&system) != 0) return false;
    return std::strcmp(system.machine, "armv7l") == 0 || std::strcmp(system.machine, "armv5tejl") == 0;
}

} // namespace

int main(int argc, char** argv) {
    const bool apply = runsOnADevice() || (argc > 1 && std::strcmp(argv[1], "--apply") == 0);
    talux::Store store; // the shared memory is there since the library was loaded
    store.stage_defaults();
    store.commit();
    bool loaded = load("/parameter.ini", VarLoadParams);
    loaded &= load("/sec_parameter.ini", VarLoadSecParams);
    loaded &= load("/ip_config.ini", apply ? VarLoadIPConfig : loadAddresses);
    if (!apply)
        std::fputs("boot: no device, so no address and no clock is set; boot --apply does\n", stderr);
    else if (!isThere("/ip_config.ini"))
        VarSetSystemIPs();
    return loaded ? 0 : 1;
}
