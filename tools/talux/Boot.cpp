// talux boot: what a boot script does once, before any other program of the device.
#include <algorithm>
#include <cstdio>
#include <sys/stat.h>
#include <sys/utsname.h>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/os/Files.h"
#include "ParamSystem/os/Os.h"
#include "tools/talux/Command.h"
#include "tools/talux/Show.h"
#include "tools/talux/StoredFile.h"
#include "tools/talux/Text.h"
#include "tools/talux/change/Apply.h"

namespace talux::tool {

namespace {

struct Options {
    bool apply = false;
    bool again = false;
    bool fallback = false;
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
    Boot(const Options& given, const Context& person)
        : options(given), context(person), applies(given.apply || isDevicesProcessor()) {}

    Status run() {
        std::string directory = context.directory;
        VarInit(directory.data());
        VarSetDefault();
        VarUpdateGlobalSpace();
        say(context.say("factory defaults are live", "Werkseinstellungen sind aktiv"));
        load(reference::File::normal, VarLoadParams);
        load(reference::File::security, VarLoadSecParams);
        if (os::exists(openAddress(context).c_str()))
            takeBack();
        else if (applies)
            loadAndApplyAddresses();
        else
            load(reference::File::address, [] { return VarLoadFile(addressFile().data(), 0); });
        say(applies
                ? context.say("network, name server and clock are applied",
                              "Netzwerk, Nameserver und Uhr sind angewendet")
                : context.say("network and clock are left alone: no device's processor; --apply applies them",
                              "Netzwerk und Uhr bleiben, wie sie sind: kein Prozessor eines Geräts; --apply "
                              "wendet sie an"));
        if (!found.empty()) os::logError("talux boot: %s", found.c_str());
        return status;
    }

private:
    const Options& options;
    const Context& context;
    const bool applies;
    Status status = kNothing;
    std::string found; // what is wrong with the files, for the system log

    static std::string addressFile() { return std::string(szParameterPath) + "/ip_config.ini"; }

    void say(const std::string& text) const {
        print(text + "\n");
        std::fflush(stdout); // the commands that apply settings write there too
    }

    void remember(Status reached, const std::string& text) {
        status = std::max(status, reached);
        found += (found.empty() ? "" : "; ") + text;
        say(text);
    }

    // Whether it has been loaded.
    bool load(reference::File file, int (*loadFile)()) {
        const std::string path = pathOf(file, context);
        if (!isThere(path)) {
            say(fill(context.say("{}: not there, the defaults stay",
                                 "{}: nicht da, die Werkseinstellungen bleiben"),
                     {path}));
            return false;
        }
        const StoredFile stored = lookAt(path, file, context);
        if (!stored.isUsable()) {
            remember(stored.unreadable.empty() ? kFound : kCouldNot, whyUnusable(path, stored));
            fallBack(file);
            return false;
        }
        const std::string text = whatIsIn(path, stored);
        if (loadFile() != 1)
            remember(kCouldNot,
                     fill(context.say("{}: could not be loaded", "{}: ließ sich nicht laden"), {path}));
        else if (stored.isComplete())
            say(text);
        else
            remember(kFound, text);
        return true;
    }

    std::string whyUnusable(const std::string& path, const StoredFile& stored) const {
        if (!stored.unreadable.empty())
            return stored.unreadable + context.say("; the defaults stay", "; die Werkseinstellungen bleiben");
        return fill(stored.lines == 0 ? context.say("{}: empty, the defaults stay",
                                                    "{}: leer, die Werkseinstellungen bleiben")
                                      : context.say("{}: holds no setting, the defaults stay",
                                                    "{}: enthält keine Einstellung, die Werkseinstellungen "
                                                    "bleiben"),
                    {path});
    }

    std::string whatIsIn(const std::string& path, const StoredFile& stored) const {
        std::string text =
            fill(context.say("{}: loaded, {} of {} settings", "{}: geladen, {} von {} Einstellungen"),
                 {path, std::to_string(stored.settings), std::to_string(stored.expected)});
        if (stored.findings > 0)
            text += fill(context.say("; findings: {}, see talux check", "; Befunde: {}, siehe talux check"),
                         {std::to_string(stored.findings)});
        return text;
    }

    // To the newest dated copy in place of a file that holds nothing.
    void fallBack(reference::File file) {
        const auto copy = newestWholeCopy(file, context);
        if (!copy) return;
        if (!options.fallback)
            return remember(kFound, fill(context.say("{} is the newest whole copy; --fallback loads it",
                                                     "{} ist die neueste ganze Kopie; --fallback lädt sie"),
                                         {*copy}));
        std::string path = *copy;
        const bool loaded = VarLoadFile(path.data(), 0) == 1;
        keepEncryption(file);
        raise(rowOf(kParameterFiles, file).flag);
        remember(loaded ? kFound : kCouldNot,
                 fill(loaded ? context.say("{}: loaded instead", "{}: stattdessen geladen")
                             : context.say("{}: could not be loaded", "{}: ließ sich nicht laden"),
                      {path}));
    }

    // As VarLoadSecParams: no file may switch it off.
    static void keepEncryption(reference::File file) {
        if (file != reference::File::security) return;
        const int mode = reference::find("sec_mode")->row().id;
        VarSetBoolValue(mode, 1);
        VarSetGlobalBoolValue(mode, 1);
    }

    // The supply failed before somebody confirmed the new ones.
    void takeBack() {
        load(reference::File::address, [] { return VarLoadFile(addressFile().data(), 0); });
        takeAddressBack(applies, context);
        remember(kFound, context.say("an address was not confirmed: the old one is back",
                                     "eine Adresse wurde nicht bestätigt: die alte gilt wieder"));
    }

    // Without a file the factory addresses are applied.
    void loadAndApplyAddresses() {
        if (!load(reference::File::address, VarLoadIPConfig)) VarSetSystemIPs();
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

void addBoot(CommandLine& line) {
    const auto [command, options] = line.add("boot", run,
                                             {"what a boot script does: defaults, then the three files",
                                              "Gerätestart: Werkseinstellung, dann die drei Dateien"});
    command.flag(
        "--apply", options.apply,
        {"apply network and clock on any processor", "Netzwerk und Uhr auf jedem Prozessor einstellen"});
    command.flag("--again", options.again, {"also on a running device", "auch auf einem laufenden Gerät"});
    command.flag("--fallback", options.fallback,
                 {"load the newest dated copy in place of an unusable file",
                  "die neueste datierte Kopie laden, wenn eine Datei unbrauchbar ist"});
}

} // namespace talux::tool
