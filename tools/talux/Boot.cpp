// talux boot: what a boot script does once, before any other program of the device.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <sys/stat.h>
#include <sys/utsname.h>

#include "ParamSystem/TALUX_Var.h"
#include "tools/talux/Command.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

struct Options {
    bool apply = false;
    bool again = false;
};

// The names that the kernel has for the processors of the boards.
bool isDevicesProcessor() {
    utsname name{};
    uname(&name);
    const std::string_view machine = name.machine;
    return machine == "armv5tejl" || machine == "armv7l";
}

bool isThere(const std::string& path) {
    struct stat info;
    return stat(path.c_str(), &info) == 0;
}

// Whether some program has given the settings values.
bool isRunning(const Context& context) {
    attachDevice(Attachment::readWrite, context); // which it stays
    const Source live = Source::open("live", context);
    return std::ranges::any_of(reference::parameters(), [&live](const Parameter& parameter) {
        const auto value = live.value(parameter);
        return value && parameter.isSetting() &&
               (value->isText() ? *value->text() != '\0' : value->number() != 0);
    });
}

class Boot {
public:
    Boot(const Options& options, const Context& person)
        : context(person), applies(options.apply || isDevicesProcessor()) {}

    Status run() {
        std::string directory = context.directory;
        VarInit(directory.data());
        VarSetDefault();
        VarUpdateGlobalSpace();
        say(context.say("factory defaults are live", "Werkseinstellungen sind aktiv"));
        load(reference::File::normal, VarLoadParams);
        load(reference::File::security, VarLoadSecParams);
        if (applies)
            loadAndApplyAddresses();
        else
            load(reference::File::address, [] { return VarLoadFile(addressFile().data(), 0); });
        say(applies
                ? context.say("network, name server and clock are applied",
                              "Netzwerk, Nameserver und Uhr sind angewendet")
                : context.say("network and clock are left alone: no device's processor; --apply applies them",
                              "Netzwerk und Uhr bleiben, wie sie sind: kein Prozessor eines Geräts; --apply "
                              "wendet sie an"));
        return complete ? kNothing : kCouldNot;
    }

private:
    const Context& context;
    const bool applies;
    bool complete = true;

    static std::string addressFile() { return std::string(szParameterPath) + "/ip_config.ini"; }

    void say(const std::string& text) const {
        print(text + "\n");
        std::fflush(stdout); // the commands that apply settings write there too
    }

    void load(reference::File file, int (*loadFile)()) {
        const std::string path = pathOf(file, context);
        if (!isThere(path)) {
            say(fill(context.say("{}: not there, the defaults stay",
                                 "{}: nicht da, die Werkseinstellungen bleiben"),
                     {path}));
            return;
        }
        const bool loaded = loadFile() == 1;
        complete = complete && loaded;
        say(fill(loaded ? context.say("{}: loaded", "{}: geladen")
                        : context.say("{}: could not be loaded", "{}: ließ sich nicht laden"),
                 {path}));
    }

    // Without the file the factory addresses are applied.
    void loadAndApplyAddresses() {
        const bool there = isThere(pathOf(reference::File::address, context));
        load(reference::File::address, VarLoadIPConfig);
        if (!there) VarSetSystemIPs();
    }
};

Status run(const Options& options, const Context& context) {
    if (!options.again && isDeviceThere() && isRunning(context))
        throw CouldNot(context.say("the device is running: its settings would be set anew and what is "
                                   "pending would be lost; --again does it",
                                   "das Gerät läuft: seine Einstellungen würden neu gesetzt, Anstehendes "
                                   "ginge verloren; --again tut es"));
    return Boot(options, context).run();
}

} // namespace

void addBoot(CLI::App& app, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(app, "boot", "what a boot script does: defaults, then the three files");
    command.flag("--apply", options->apply, "apply network and clock on any processor");
    command.flag("--again", options->again, "also on a device that runs");
    commands.push_back({command, [options](const Context& context) { return run(*options, context); }});
}

} // namespace talux::tool
