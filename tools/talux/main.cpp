// talux: one program for the person at the relay and at the desk.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include "tools/talux/Command.h"
#include "tools/talux/Explain.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace {

using namespace talux::tool;

constexpr const char* kAbout =
    "Settings of the relay: what they mean, what a file changes, what is pending.\n"
    "SOURCE: live, staged, default, a parameter file, or a folder with the three.\n"
    "Exit status: 0 nothing to tell, 1 findings or differences, 2 could not.";

// As the usual variables of the environment say it.
ParamLanguage languageOfEnvironment() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value == nullptr || *value == '\0') continue;
        return std::string_view(value).starts_with("de") ? kGerman : kEnglish;
    }
    return kEnglish;
}

void addCommands(CLI::App& app, Commands& commands) {
    for (const auto add : {addExplain, addList, addCheck, addDiff, addStatus, addFingerprint, addReport,
                           addWatch, addSet, addApply, addUndo, addDiscard, addHistory, addRestore, addClone,
                           addShell, addLint, addBoot, addAnnotations})
        add(app, commands);
}

// Of the program, a command or a parameter.
void addHelp(const CommandLine& line, Commands& commands) {
    const auto names = std::make_shared<std::vector<std::string>>();
    Subcommand help(line.program(), "help", "this, the options of a command, or what a name stands for");
    help.option("NAME", *names, "a command, or a name as explain takes it");
    commands.push_back({help, [names, &line, &commands](const Context& context) {
                            if (names->empty()) print(line.help());
                            for (const std::string& name : *names) {
                                const auto command = std::ranges::find(
                                    commands, name, [](const Command& known) { return known.given.name(); });
                                if (command != commands.end())
                                    print(command->given.help());
                                else
                                    explain(name, context);
                            }
                            return kNothing;
                        }});
}

Status runChosen(const Commands& commands, const Context& context) {
    const auto chosen =
        std::ranges::find_if(commands, [](const Command& command) { return command.given.isChosen(); });
    std::optional<Pager> pager;
    if (chosen->isPaged) pager.emplace();
    try {
        const Status status = chosen->run(context);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
            throw CouldNot(
                context.say("the output cannot be written", "die Ausgabe lässt sich nicht schreiben"));
        return status;
    } catch (const CouldNot& error) {
        report(error);
        return kCouldNot;
    }
}

int run(int argc, char** argv) {
    LoadDefParamProperties();
    Context context;
    context.language = languageOfEnvironment();

    CommandLine line("talux", kAbout);
    std::string language;
    line.option("--language", language, "de or en; by default that of the environment").oneOf({"de", "en"});
    line.option("--directory", context.directory, "where the device keeps its files; by default /");
    Commands commands;
    addCommands(line.program(), commands);
    addHelp(line, commands);

    const auto outcome = line.parse(argc, argv);
    if (outcome != CommandLine::Outcome::command)
        return outcome == CommandLine::Outcome::helped ? kNothing : kCouldNot;
    if (!language.empty()) context.language = language == "de" ? kGerman : kEnglish;
    return runChosen(commands, context);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) { // of memory, for instance
        std::fprintf(stderr, "talux: %s\n", error.what());
        return kCouldNot;
    }
}
