// What a device runs once at boot, as root, before its first script: factory defaults, then what the
// parameter files in / say instead. Loading the addresses applies the network and time settings.
#include <ParamSystem/TALUX_Var.h>
#include <src/talux_interpreter.h>

#include <cstdio>
#include <unistd.h>

namespace {

// A file that was never saved is no fault: the defaults stay.
bool load(const char* file, int (*loadFile)()) {
    if (access(file, F_OK) != 0) return true;
    if (loadFile() == 1) return true;
    std::fprintf(stderr, "boot: %s could not be loaded\n", file);
    return false;
}

} // namespace

int main() {
    talux_interpreter_Init(); // the shared memory is there since the library was loaded
    VarSetDefault();
    VarUpdateGlobalSpace();
    bool loaded = load("/parameter.ini", VarLoadParams);
    loaded &= load("/sec_parameter.ini", VarLoadSecParams);
    if (access("/ip_config.ini", F_OK) != 0) VarSetSystemIPs();
    loaded &= load("/ip_config.ini", VarLoadIPConfig);
    return loaded ? 0 : 1;
}
