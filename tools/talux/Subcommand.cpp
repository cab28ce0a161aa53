#include "tools/talux/Subcommand.h"

#include <iostream>

#include <CLI/CLI.hpp>

namespace talux::tool {

Argument& Argument::required() {
    option->required();
    return *this;
}

Argument& Argument::expected(int least, int most) {
    option->expected(least, most);
    return *this;
}

Argument& Argument::inRange(int least, int most) {
    option->check(CLI::Range(least, most));
    return *this;
}

Argument& Argument::inRange(double least, double most) {
    option->check(CLI::Range(least, most));
    return *this;
}

Argument& Argument::divided(char delimiter) {
    option->delimiter(delimiter);
    return *this;
}

Argument& Argument::oneOf(const std::vector<std::string>& values) {
    option->check(CLI::IsMember(values).description(""));
    return *this;
}

Subcommand::Subcommand(CLI::App& program, const char* name, const char* help)
    : app(program.add_subcommand(name, help)) {}

Argument Subcommand::option(const char* name, std::string& value, const char* help) {
    return Argument(app->add_option(name, value, help));
}

Argument Subcommand::option(const char* name, std::vector<std::string>& values, const char* help) {
    return Argument(app->add_option(name, values, help));
}

Argument Subcommand::option(const char* name, int& value, const char* help) {
    return Argument(app->add_option(name, value, help));
}

Argument Subcommand::option(const char* name, long& value, const char* help) {
    return Argument(app->add_option(name, value, help));
}

Argument Subcommand::option(const char* name, double& value, const char* help) {
    return Argument(app->add_option(name, value, help));
}

void Subcommand::flag(const char* name, bool& value, const char* help) {
    app->add_flag(name, value, help);
}

std::string Subcommand::name() const {
    return app->get_name();
}

std::string Subcommand::help() const {
    return app->help(app->get_parent()->get_name());
}

bool Subcommand::isChosen() const {
    return app->parsed();
}

CommandLine::CommandLine(const char* program, const char* about)
    : app(std::make_unique<CLI::App>(about, program)) {
    app->set_version_flag("--version", std::string(program) + " " TALUX_VERSION
                                                              "\nlibrary lib_talux_lua " TALUX_VERSION
                                                              ", linked in\nbuild " TALUX_BUILD);
    app->get_formatter()->column_width(22);
    app->require_subcommand(1);
    app->fallthrough();
}

CommandLine::~CommandLine() = default;

Argument CommandLine::option(const char* name, std::string& value, const char* help) {
    return Argument(app->add_option(name, value, help));
}

// Its own function would give that of the command that was parsed.
std::string CommandLine::help() const {
    return app->get_formatter()->make_help(app.get(), app->get_name(), CLI::AppFormatMode::Normal);
}

CommandLine::Outcome CommandLine::parse(int argc, char** argv) {
    try {
        app->parse(argc, argv);
        return Outcome::command;
    } catch (const CLI::ParseError& error) {
        const bool isHelp = app->exit(error, std::cout, std::cerr) == 0;
        if (isHelp && !std::cout.flush()) std::cerr << "talux: the output cannot be written\n";
        return isHelp && std::cout ? Outcome::helped : Outcome::refused;
    }
}

} // namespace talux::tool
