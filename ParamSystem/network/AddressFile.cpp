// Addresses from their files: loaded, committed, applied.
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/files/Path.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/store/ChangeFlags.h"

namespace {

void apply() {
    VarSetSystemIPs();
    talux::raise(talux::ChangeFlag::ip);
}

} // namespace

int VarLoadIPConfig(void) {
    const int result = VarLoadFile(talux::Path(talux::ParameterFile::address).get(), 0);
    apply();
    return result;
}

int VarResetIPConfig(int type) {
    talux::Path path("def_ip_config.ini");
    int result = 1;
    for (const int part : {static_cast<int>(kTypeIpGateway), static_cast<int>(kTypeIpMask), type})
        if (VarLoadFile(path.get(), part) != 1) result = 0;
    VarUpdateGlobalSpace();
    apply();
    talux::os::runShell("rm -f /var/resolv.conf");
    talux::os::runShell("touch /var/resolv.conf");
    return result;
}
