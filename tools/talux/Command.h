// What the commands of talux share: how they are registered, in which language they speak, how they end.
#ifndef TALUX_TOOLS_TALUX_COMMAND_H
#define TALUX_TOOLS_TALUX_COMMAND_H

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "tools/talux/Subcommand.h"

namespace talux::tool {

// How the program ends.
enum Status : int { kNothing = 0, kFound = 1, kCouldNot = 2 };

// Ends the command with kCouldNot; the text says what, where and what to do.
struct CouldNot : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// What the person asked for besides the command.
struct Context {
    ParamLanguage language = kEnglish;
    std::string directory; // of the parameter files, without a trailing slash

    // The one of two texts that is in the person's language.
    const char* say(const char* english, const char* german) const {
        return language == kGerman ? german : english;
    }
    ParamLanguage otherLanguage() const { return language == kGerman ? kEnglish : kGerman; }
};

// On the error stream, where control characters of file names cannot forge findings.
void report(const CouldNot& error);

// Calls look(path) for each; one that could not be looked at is reported and does not keep from the others.
Status forEachFile(const std::vector<std::string>& paths,
                   const std::function<Status(const std::string&)>& look);

struct Command {
    Subcommand given;
    std::function<Status(const Context&)> run;
    bool isPaged = false;
};
using Commands = std::vector<Command>;

// Each is in the file of the command.
void addExplain(CommandLine& line, Commands& commands);
void addList(CommandLine& line, Commands& commands);
void addCheck(CommandLine& line, Commands& commands);
void addDiff(CommandLine& line, Commands& commands);
void addStatus(CommandLine& line, Commands& commands);
void addFingerprint(CommandLine& line, Commands& commands);
void addReport(CommandLine& line, Commands& commands);
void addShell(CommandLine& line, Commands& commands);
void addLint(CommandLine& line, Commands& commands);
void addAnnotations(CommandLine& line, Commands& commands);
void addBoot(CommandLine& line, Commands& commands);
void addWatch(CommandLine& line, Commands& commands);
void addSet(CommandLine& line, Commands& commands);
void addApply(CommandLine& line, Commands& commands);
void addUndo(CommandLine& line, Commands& commands);
void addDiscard(CommandLine& line, Commands& commands);
void addHistory(CommandLine& line, Commands& commands);
void addRestore(CommandLine& line, Commands& commands);
void addClone(CommandLine& line, Commands& commands);
void addAddress(CommandLine& line, Commands& commands);
void addConfirm(CommandLine& line, Commands& commands);

} // namespace talux::tool

#endif
