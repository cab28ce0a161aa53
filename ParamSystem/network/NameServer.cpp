// The name server in /etc/resolv.conf.
#include <cstdio>
#include <cstring>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/network/SettingIds.h"
#include "ParamSystem/network/ShellCommand.h"
#include "ParamSystem/network/StagedValues.h"
#include "ParamSystem/os/Os.h"

using namespace talux::network;

namespace {

constexpr char kResolverFile[] = "/etc/resolv.conf";

bool isListed(std::FILE* file, const char* server) {
    char line[255];
    char word[sizeof line];
    // A last line without line end does not count: its read reaches the end of the file.
    while (std::fgets(line, sizeof line, file) != nullptr && std::feof(file) == 0)
        if (std::sscanf(line, "nameserver %254s", word) == 1 && std::strcmp(word, server) == 0) return true;
    return false;
}

bool isListed(const char* server) {
    std::FILE* file = talux::os::openStream(kResolverFile);
    if (file == nullptr) return false;
    const bool listed = isListed(file, server);
    std::fclose(file);
    return listed;
}

// Some shells' echo takes backslash sequences for line ends and the like; printf's %s never does.
bool writeServer(const Shell& shell, const char* server) {
    const ShellWord word(server);
    if (std::strchr(server, '\\') != nullptr)
        return shell.run("printf 'nameserver %%s\\n' %s > %s", word.text(), kResolverFile);
    return shell.run("echo nameserver %s > %s", word.text(), kResolverFile);
}

} // namespace

int VarDNS() {
    constexpr Shell shell("VarDNS");

    const AddressText server = addressSetting(kDns);
    if (isUnset(server)) return 0;
    if (isListed(server.text)) {
        shell.report("dns found in %s", kResolverFile);
        return 0;
    }
    if (std::strchr(server.text, '\n') != nullptr) {
        shell.report("not run, the name server holds a line end");
        return 0;
    }
    return writeServer(shell, server.text) ? 1 : 0;
}
