// What the program and its commands take. The header of CLI11, which does the work, costs seconds in each
// source that reads it: only Subcommand.cpp does.
#ifndef TALUX_TOOLS_TALUX_SUBCOMMAND_H
#define TALUX_TOOLS_TALUX_SUBCOMMAND_H

#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace talux::tool {

class Argument {
public:
    explicit Argument(CLI::Option* given) : option(given) {}

    Argument& required();
    Argument& expected(int least, int most); // how many values
    Argument& inRange(int least, int most);
    Argument& inRange(double least, double most);
    Argument& divided(char delimiter); // a value is several
    Argument& oneOf(const std::vector<std::string>& values);

private:
    CLI::Option* option;
};

class Subcommand {
public:
    Subcommand(CLI::App& program, const char* name, const char* help);

    // A name that begins with "-" is that of an option, any other stands for what is typed in its place. The
    // variable has the value that counts if none is typed.
    Argument option(const char* name, std::string& value, const char* help);
    Argument option(const char* name, std::vector<std::string>& values, const char* help);
    Argument option(const char* name, int& value, const char* help);
    Argument option(const char* name, long& value, const char* help);
    Argument option(const char* name, double& value, const char* help);
    void flag(const char* name, bool& value, const char* help);

    bool isChosen() const;
    std::string name() const;
    std::string help() const; // as --help prints it

private:
    CLI::App* app;
};

// What is typed behind the program's name.
class CommandLine {
public:
    CommandLine(const char* program, const char* about);
    ~CommandLine();

    CLI::App& program() const { return *app; }
    Argument option(const char* name, std::string& value, const char* help);

    std::string help() const;

    // Help goes to standard output, what is wrong to the error stream.
    enum class Outcome { command, helped, refused };
    Outcome parse(int argc, char** argv);

private:
    std::unique_ptr<CLI::App> app;
};

} // namespace talux::tool

#endif
