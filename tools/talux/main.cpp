// talux: one program for the person at the relay and at the desk.
#include <cstdio>
#include <cstdlib>

#include "tools/talux/Show.h"

namespace {

using namespace talux::tool;

constexpr Wording kAbout{"Settings of the relay: what they mean, what a file changes, what is pending.\n"
                         "SOURCE: live, staged (pending), default, a parameter file, or a folder of them.\n"
                         "Exit status: 0 nothing found, 1 findings or differences, 2 the command failed.",
                         "Einstellungen des Relais: was sie bedeuten, was eine Datei ändert, was aussteht.\n"
                         "QUELLE: live (gültig), staged (ausstehend), default, eine Datei oder ein Ordner.\n"
                         "Rückgabewert: 0 kein Befund, 1 Befunde oder Unterschiede, 2 Befehl gescheitert."};

ParamLanguage languageOfEnvironment() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value == nullptr || *value == '\0') continue;
        return std::string_view(value).starts_with("de") ? kGerman : kEnglish;
    }
    return kEnglish;
}

// Known before the arguments are parsed, so that help and refusals are in it, too.
ParamLanguage languageOf(int argc, char** argv) {
    constexpr std::string_view kOption = "--language";
    ParamLanguage language = languageOfEnvironment();
    for (int i = 1; i < argc && std::string_view(argv[i]) != "--"; ++i) {
        std::string_view word = argv[i];
        if (!word.starts_with(kOption)) continue;
        word.remove_prefix(kOption.size());
        if (word.empty() && i + 1 < argc) word = argv[i + 1];
        if (word == "de" || word == "=de") language = kGerman;
        if (word == "en" || word == "=en") language = kEnglish;
    }
    return language;
}

// Of the program, a command or a parameter.
void addHelp(CommandLine& line) {
    const auto names = std::make_shared<std::vector<std::string>>();
    const auto help = [names, &line](const Context& context) {
        if (names->empty()) print(line.program().help());
        for (const std::string& name : *names)
            if (const Command* const command = line.find(name))
                print(command->help());
            else
                explain(name, context);
        return kNothing;
    };
    line.add("help", help,
             {"this help, that of a command, or what a name means",
              "diese Hilfe, die eines Befehls oder was ein Name bedeutet"})
        .argument({"NAME", "NAME"}, *names,
                  {"a command, or a name as explain takes it", "ein Befehl oder ein Name wie bei explain"},
                  Need::optional);
}

Status run(int argc, char** argv, Context& context) {
    CommandLine line("talux", context.language, kAbout);
    std::string language;
    line.program().choice(
        "--language", language, {"de", "en"},
        {"de or en; by default that of the environment", "de oder en; sonst die der Umgebung"});
    line.program().option(
        "--directory", context.directory,
        {"where the device keeps its files; by default /", "Ordner der Parameterdateien; sonst /"});
    for (const auto add :
         {addExplain, addList, addCheck, addDiff, addStatus, addFingerprint, addReport, addWatch, addChanges,
          addVersions, addAddress, addShell, addLint, addBoot, addAnnotations, addHelp})
        add(line);
    std::shared_ptr<void> pages;
    try {
        const Command* const command = line.parse(argc, argv);
        context.directory.erase(context.directory.find_last_not_of('/') + 1);
        if (command != nullptr && command->isPaged) pages = pager();
        const Status status = command == nullptr ? kNothing : command->run(context);
        if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
        context.fail("the output cannot be written", "die Ausgabe lässt sich nicht schreiben");
    } catch (const CouldNot& error) {
        report(error.what());
        return kCouldNot;
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        LoadDefParamProperties();
        Context context;
        context.language = languageOf(argc, argv);
        return run(argc, argv, context);
    } catch (const std::exception& error) { // of memory, for instance
        std::fprintf(stderr, "talux: %s\n", error.what());
        return kCouldNot;
    }
}
