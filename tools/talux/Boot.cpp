// talux boot: what a boot script does once, before any other program of the device.
#include <cstdio>

#include "ParamSystem/kepl/Board.h"
#include "ParamSystem/os/Files.h"
#include "ParamSystem/os/Os.h"
#include "tools/talux/StoredFile.h"
#include "tools/talux/change/Apply.h"

namespace talux::tool {

namespace {

struct Options {
    bool apply = false, again = false, fallback = false;
};

bool isDevicesProcessor() {
    char machine[65];
    os::machineName(machine, sizeof machine);
    return std::ranges::any_of(kepl::kBoards, [&](const auto& board) { return board.machine == machine; });
}

// Whether some program has given the settings values.
bool isRunning(const Context& context) {
    attachDevice(Access::readWrite, context); // which it stays
    const Source live = Source::open("live", context);
    return std::ranges::any_of(settings(), [&live](const Parameter& parameter) {
        const auto value = live.value(parameter);
        return value && (value->isText() ? *value->text() != '\0' : value->number() != 0);
    });
}

// Without applying them.
int loadAddresses() {
    std::string path = joined({szParameterPath, "/", fileName(File::address)});
    return VarLoadFile(path.data(), 0);
}

struct Boot {
    const Options& options;
    const Context& context;
    const bool applies;
    Status status = kNothing;
    std::string found{}; // what is wrong with the files, for the system log

    Status run() {
        std::string directory = context.directory;
        VarInit(directory.data());
        VarSetDefault();
        VarUpdateGlobalSpace();
        tell(context.say("factory defaults are live", "Werkseinstellungen sind aktiv"));
        load(File::normal, VarLoadParams);
        load(File::security, VarLoadSecParams);
        const bool isUnconfirmed = os::exists(openAddress(context).c_str());
        const bool isLoaded =
            load(File::address, applies && !isUnconfirmed ? VarLoadIPConfig : loadAddresses);
        if (isUnconfirmed)
            takeBack();
        else if (applies && !isLoaded)
            VarSetSystemIPs(); // the factory addresses
        tell(applies ? context.say("network, name server and clock are applied",
                                   "Netzwerk, Nameserver und Uhr sind angewendet")
                     : context.say(
                           "network and clock are left alone: no device's processor; --apply applies them",
                           "Netzwerk und Uhr bleiben, wie sie sind: kein Prozessor eines Geräts; --apply "
                           "wendet sie an"));
        if (!found.empty()) os::logError("talux boot: %s", found.c_str());
        return status;
    }

    void tell(const std::string& text, Status reached = kNothing) {
        status = std::max(status, reached);
        if (reached != kNothing) found += (found.empty() ? "" : "; ") + text;
        print(text + "\n");
        std::fflush(stdout); // the commands that apply settings write there too
    }

    // Whether it has been loaded.
    bool load(File file, int (*loadFile)()) {
        const std::string path = pathOf(file, context);
        if (!os::exists(path.c_str())) {
            tell(context.say("{}: not there, the defaults stay",
                             "{}: nicht da, die Werkseinstellungen bleiben", path));
            return false;
        }
        const StoredFile stored = lookAt(path, file, context);
        if (!stored.isUsable()) {
            tell(whyUnusable(path, stored), stored.unreadable.empty() ? kFound : kCouldNot);
            fallBack(file);
        } else if (loadFile() != 1) {
            tell(cannotLoad(path), kCouldNot);
        } else {
            tell(whatIsIn(path, stored), stored.isComplete() ? kNothing : kFound);
        }
        return stored.isUsable();
    }

    std::string cannotLoad(const std::string& path) const {
        return context.say("{}: could not be loaded", "{}: ließ sich nicht laden", path);
    }

    std::string whyUnusable(const std::string& path, const StoredFile& stored) const {
        if (!stored.unreadable.empty())
            return stored.unreadable + context.say("; the defaults stay", "; die Werkseinstellungen bleiben");
        if (stored.lines == 0)
            return context.say("{}: empty, the defaults stay", "{}: leer, die Werkseinstellungen bleiben",
                               path);
        return context.say("{}: holds no setting, the defaults stay",
                           "{}: enthält keine Einstellung, die Werkseinstellungen bleiben", path);
    }

    std::string whatIsIn(const std::string& path, const StoredFile& stored) const {
        std::string text =
            context.say("{}: loaded, {} of {} settings", "{}: geladen, {} von {} Einstellungen", path,
                        stored.settings, stored.expected);
        if (stored.findings > 0)
            text += context.say("; findings: {}, see talux check", "; Befunde: {}, siehe talux check",
                                stored.findings);
        return text;
    }

    // To the newest dated copy in place of a file that holds nothing.
    void fallBack(File file) {
        auto copy = newestWholeCopy(file, context);
        if (!copy) return;
        if (!options.fallback)
            return tell(context.say("{} is the newest whole copy; --fallback loads it",
                                    "{} ist die neueste ganze Kopie; --fallback lädt sie", *copy),
                        kFound);
        const bool isLoaded = VarLoadFile(copy->data(), 0) == 1;
        if (file == File::security) keepEncryption();
        raise(rowOf(kParameterFiles, file).flag);
        tell(isLoaded ? context.say("{}: loaded instead", "{}: stattdessen geladen", *copy)
                      : cannotLoad(*copy),
             isLoaded ? kFound : kCouldNot);
    }

    // As VarLoadSecParams: no file may switch it off.
    static void keepEncryption() {
        const int mode = reference::find("sec_mode")->row().id;
        VarSetBoolValue(mode, 1);
        VarSetGlobalBoolValue(mode, 1);
    }

    // The supply failed before somebody confirmed the new ones.
    void takeBack() try {
        takeAddressBack(applies, context);
        tell(context.say("an address was not confirmed: the old one is back",
                         "eine Adresse wurde nicht bestätigt: die alte gilt wieder"),
             kFound);
    } catch (const CouldNot& damage) { // the file has the old ones
        os::removeFile(openAddress(context).c_str());
        if (applies) VarSetSystemIPs();
        tell(damage.what(), kCouldNot);
    }
};

Status run(const Options& options, const Context& context) {
    if (!options.again && isDeviceThere() && isRunning(context))
        context.fail("the device is running: its settings would be set anew and what is "
                     "pending would be lost; --again does it",
                     "das Gerät läuft: seine Einstellungen würden neu gesetzt, Anstehendes "
                     "ginge verloren; --again tut es");
    return Boot{options, context, options.apply || isDevicesProcessor()}.run();
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
