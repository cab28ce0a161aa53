// What the commands of talux share: how they are registered and what they take, in which language they speak,
// how they end. Only Command.cpp reads the header of CLI11, which costs seconds.
#ifndef TALUX_TOOLS_TALUX_COMMAND_H
#define TALUX_TOOLS_TALUX_COMMAND_H

#include <concepts>
#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "tools/Strings.h"

namespace CLI {
class App;
}

namespace talux::tool {

// How the program ends.
enum Status : int { kNothing = 0, kFound = 1, kCouldNot = 2 };

// Ends the command with kCouldNot; the text says what, where and what to do.
struct CouldNot : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// On the error stream, where control characters of file names cannot forge findings.
void report(std::string_view text);

// Calls look(path) for each; one that could not be looked at is reported and does not keep from the others.
Status forEachFile(const std::vector<std::string>& paths,
                   const std::function<Status(const std::string&)>& look);

// A text for people. One without its German does not compile.
class Wording {
public:
    consteval Wording(const char* inEnglish, const char* inGerman) : english(inEnglish), german(inGerman) {}
    const char* in(ParamLanguage language) const { return language == kGerman ? german : english; }

private:
    const char* english;
    const char* german;
};

// A piece of a message.
inline std::string_view asText(std::string_view text) {
    return text;
}
std::string asText(std::integral auto number) {
    return std::to_string(number);
}

// A text for people with a gap "{}" for each of its pieces; another number of gaps does not compile.
template <class... Pieces>
class Pattern {
public:
    consteval Pattern(const char* given) : text(given) {
        std::size_t gaps = 0;
        for (std::string_view rest = given; rest.find("{}") != rest.npos; ++gaps)
            rest.remove_prefix(rest.find("{}") + 2);
        if (gaps != sizeof...(Pieces)) throw "a gap for each piece";
    }
    operator const char*() const { return text; }

private:
    const char* text;
};
// As a parameter: the pieces are deduced from the other arguments, not from the text.
template <class... Pieces>
using PatternFor = std::type_identity_t<Pattern<Pieces...>>;

// What the person asked for besides the command.
struct Context {
    ParamLanguage language = kEnglish;
    std::string directory; // of the parameter files, without a trailing slash

    // The one of two texts that is in the person's language.
    const char* say(const char* english, const char* german) const {
        return language == kGerman ? german : english;
    }
    // The same with texts and numbers in its gaps "{}".
    template <class... Pieces>
    requires(sizeof...(Pieces) > 0) std::string
        say(PatternFor<Pieces...> english, PatternFor<Pieces...> german, const Pieces&... pieces)
    const { return fill(say(english, german), {asText(pieces)...}); }
    // Ends the command with such a text.
    template <class... Pieces>
    [[noreturn]] void fail(PatternFor<Pieces...> english, PatternFor<Pieces...> german,
                           const Pieces&... pieces) const {
        throw CouldNot(fill(say(english, german), {asText(pieces)...}));
    }
    // "1 setting", "3 settings": the words begin with a blank.
    std::string counted(std::integral auto count, Wording one, Wording several) const {
        return std::to_string(count) + (count == 1 ? one : several).in(language);
    }
    ParamLanguage otherLanguage() const { return language == kGerman ? kEnglish : kGerman; }
};

enum class Need { required, optional };
constexpr double kNoLimit = std::numeric_limits<double>::infinity();

// A command, or the program itself.
class Command {
public:
    using Run = std::function<Status(const Context&)>;
    Command(CLI::App* given, ParamLanguage speech, Run whatItDoes = {})
        : run(std::move(whatItDoes)), app(given), language(speech) {}

    Run run;
    bool isPaged = false;

    // What is typed without a name, in the order of the calls: a text or several.
    template <class Value>
    void argument(Wording name, Value& value, Wording help, Need need = Need::required);
    // Names begin with "-". A text, several words, or a number within limits.
    template <class Value>
    void option(const char* name, Value& value, Wording help, double minimum = -kNoLimit,
                double maximum = kNoLimit);
    void choice(const char* name, std::string& value, const std::vector<std::string>& choices, Wording help);
    void flag(const char* name, bool& value, Wording help);
    void json(bool& value); // --json

    std::string name() const;
    std::string help() const; // as --help prints it

private:
    CLI::App* app;
    ParamLanguage language;
};

// A command with what is typed for it.
template <class Options>
struct Added {
    Command& command;
    Options& options;
};

// What is typed: what the program takes, and its commands.
class CommandLine {
public:
    CommandLine(const char* name, ParamLanguage speech, Wording about);
    ~CommandLine();

    // Adds a command. Its options keep what they have if nothing is typed.
    template <class Options>
    Added<std::remove_const_t<Options>> add(const char* name, Status (*run)(Options&, const Context&),
                                            Wording help) {
        const auto options = std::make_shared<std::remove_const_t<Options>>();
        const auto runIt = [=](const Context& context) { return run(*options, context); };
        return {add(name, runIt, help), *options};
    }
    Command& add(const char* name, Command::Run run, Wording help);

    const Command* find(std::string_view name) const; // null when there is none

    // The command that is typed; null when help was printed instead. Throws CouldNot for wrong arguments.
    const Command* parse(int argc, char** argv);

    // The program itself, with what all commands take.
    Command program() const { return {app.get(), language}; }

private:
    std::string refusal(const std::string& reason) const;

    std::unique_ptr<CLI::App> app;
    ParamLanguage language;
    std::deque<Command> commands;
};

// Each is in the file of the command. The last three add several: set, apply, undo, discard; history,
// restore, clone; address, confirm.
using AddCommand = void(CommandLine& line);
AddCommand addExplain, addList, addCheck, addDiff, addStatus, addFingerprint, addReport, addWatch, addShell,
    addLint, addBoot, addAnnotations, addChanges, addVersions, addAddress;

// As the command does it, with the values of the device where there is one. Throws CouldNot.
void explain(const std::string& name, const Context& context);

} // namespace talux::tool

#endif
