// What a device runs once at boot, as root, before its first script: factory defaults, then what the
// parameter files in / say instead. On a device's processor it applies the network and time settings,
// elsewhere only when told: on a PC they would set up the PC's network.
//
//   boot [--apply]
#include <ParamSystem/TALUX_Var.h>
#include <src/talux_interpreter.h>

#include <cstdio>
#include <cstring>
#include <sys/utsname.h>
#include <unistd.h>

namespace {

// A file that was never saved is no fault: the defaults stay.
bool load(const char* file, int (*loadFile)()) {
    if (access(file, F_OK) != 0) return true;
    if (loadFile() == 1) return true;
    std::fprintf(stderr, "boot: %s could not be loaded\n", file);
    return false;
}

bool isDevicesProcessor() {
    utsname kernel{};
    uname(&kernel);
    return std::strcmp(kernel.machine, "armv7l") == 0 || std::strcmp(kernel.machine, "armv5tejl") == 0;
}

int loadAddresses() {
    char file[] = "/ip_config.ini";
    return VarLoadFile(file, 0);
}

} // namespace

int main(int argc, char** argv) {
    const bool applies = isDevicesProcessor() || (argc > 1 && std::strcmp(argv[1], "--apply") == 0);
    talux_interpreter_Init(); // the shared memory is there since the library was loaded
    VarSetDefault();
    VarUpdateGlobalSpace();
    bool loaded = load("/parameter.ini", VarLoadParams);
    loaded &= load("/sec_parameter.ini", VarLoadSecParams);
    if (applies && access("/ip_config.ini", F_OK) != 0) VarSetSystemIPs();
    loaded &= load("/ip_config.ini", applies ? VarLoadIPConfig : loadAddresses);
    return loaded ? 0 : 1;
}
