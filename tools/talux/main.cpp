// talux: one program for the person at the relay and at the desk.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#include <CLI/CLI.hpp>

#include "tools/talux/Command.h"

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
                           addWatch, addShell, addLint, addBoot, addAnnotations})
        add(app, commands);
}

// Help goes to standard output, what is wrong to the error stream, each with the status that belongs to it.
Status endParsing(const CLI::App& app, const CLI::ParseError& error) {
    return app.exit(error, std::cout, std::cerr) == 0 ? kNothing : kCouldNot;
}

Status runChosen(const Commands& commands, const Context& context) {
    const auto chosen =
        std::ranges::find_if(commands, [](const Command& command) { return command.given.isChosen(); });
    try {
        const Status status = chosen->run(context);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
            throw CouldNot(
                context.say("the output cannot be written", "die Ausgabe lässt sich nicht schreiben"));
        return status;
    } catch (const CouldNot& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "talux: %s\n", error.what());
        return kCouldNot;
    }
}

int run(int argc, char** argv) {
    LoadDefParamProperties();
    Context context;
    context.language = languageOfEnvironment();

    CLI::App app(kAbout, "talux");
    app.add_option_function<std::string>(
           "--language",
           [&context](const std::string& name) { context.language = name == "de" ? kGerman : kEnglish; },
           "de or en; by default that of the environment")
        ->check(CLI::IsMember({"de", "en"}).description(""));
    app.add_option("--directory", context.directory, "where the device keeps its files; by default /");
    app.get_formatter()->column_width(22);
    app.require_subcommand(1);
    app.fallthrough();

    Commands commands;
    addCommands(app, commands);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return endParsing(app, error);
    }
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
