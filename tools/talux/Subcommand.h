// What the program and its commands take. The header of CLI11, which does the work, costs seconds in each
// source that reads it: only Subcommand.cpp does.
#ifndef TALUX_TOOLS_TALUX_SUBCOMMAND_H
#define TALUX_TOOLS_TALUX_SUBCOMMAND_H

#include <memory>
#include <string>
#include <vector>

#include "ParamSystem/TALUX_ParamStrings.h"

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace talux::tool {

// A text for people. One without its German does not compile.
class Wording {
public:
    consteval Wording(const char* inEnglish, const char* inGerman) : english(inEnglish), german(inGerman) {}
    const char* in(ParamLanguage language) const { return language == kGerman ? german : english; }

private:
    const char* english;
    const char* german;
};

class Argument {
public:
    Argument(CLI::Option* given, ParamLanguage speech) : option(given), language(speech) {}

    Argument& required();
    Argument& inRange(double minimum, double maximum);
    Argument& divided(char delimiter); // a value is several
    Argument& oneOf(const std::vector<std::string>& values);

private:
    friend class Subcommand;
    Argument& isNumber(bool isWhole);

    CLI::Option* option;
    ParamLanguage language;
};

// What is typed after the program's name.
class CommandLine {
public:
    CommandLine(const char* program, ParamLanguage speech, Wording about);
    ~CommandLine();

    Argument option(const char* name, std::string& value, Wording help);

    std::string help() const; // as --help prints it

    // Whether a command was chosen; otherwise help was printed. Throws CouldNot for arguments that are wrong.
    bool parse(int argc, char** argv);

private:
    friend class Subcommand;
    std::string refusal(const std::string& reason) const;

    std::unique_ptr<CLI::App> app;
    ParamLanguage language;
};

class Subcommand {
public:
    Subcommand(CommandLine& line, const char* name, Wording help);

    // What is typed without a name, in the order of the calls. The variable has the value that counts if
    // nothing is typed.
    Argument argument(Wording name, std::string& value, Wording help);
    Argument argument(Wording name, std::vector<std::string>& values, Wording help);

    // Names begin with "-".
    Argument option(const char* name, std::string& value, Wording help);
    Argument option(const char* name, std::vector<std::string>& values, Wording help);
    Argument option(const char* name, int& value, Wording help);
    Argument option(const char* name, long& value, Wording help);
    Argument option(const char* name, double& value, Wording help);
    void flag(const char* name, bool& value, Wording help);

    bool isChosen() const;
    std::string name() const;
    std::string help() const; // as --help prints it

private:
    CLI::App* app;
    ParamLanguage language;
};

} // namespace talux::tool

#endif
