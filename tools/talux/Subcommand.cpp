#include "tools/talux/Subcommand.h"

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

bool Subcommand::isChosen() const {
    return app->parsed();
}

} // namespace talux::tool
