#include "tools/talux/Subcommand.h"

#include <cstdio>

#include <CLI/CLI.hpp>

#include "tools/talux/Command.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

// Refuses values in words of our own: "--level 9: must be .."
void check(CLI::Option* option, std::string must, const std::function<bool(const std::string&)>& accepts) {
    option->check([=](const std::string& value) {
        if (!accepts(value)) throw CouldNot(option->get_name() + " " + value + ": " + must);
        return std::string();
    });
}

CLI::Option* lastCounts(CLI::Option* option) {
    return option->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
}

std::string shortNumber(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

} // namespace

Argument& Argument::required() {
    option->required();
    return *this;
}

Argument& Argument::isNumber(bool isWhole) {
    constexpr Wording kWhole{"must be a whole number", "erwartet wird eine ganze Zahl"};
    constexpr Wording kNumber{"must be a number", "erwartet wird eine Zahl"};
    option->type_name(Wording("NUMBER", "ZAHL").in(language));
    check(option, (isWhole ? kWhole : kNumber).in(language), [isWhole](const std::string& text) {
        long whole{};
        double number{};
        return isWhole ? CLI::detail::lexical_cast(text, whole) : CLI::detail::lexical_cast(text, number);
    });
    return *this;
}

Argument& Argument::inRange(double minimum, double maximum) {
    constexpr Wording kRange{"must be {} to {}", "zulässig ist {} bis {}"};
    check(option, fill(kRange.in(language), {shortNumber(minimum), shortNumber(maximum)}),
          [minimum, maximum](const std::string& text) {
              double value{};
              return CLI::detail::lexical_cast(text, value) && value >= minimum && value <= maximum;
          });
    return *this;
}

Argument& Argument::divided(char delimiter) {
    option->delimiter(delimiter);
    return *this;
}

Argument& Argument::oneOf(const std::vector<std::string>& values) {
    constexpr Wording kOneOf{"must be one of {}", "zulässig ist {}"};
    check(option, fill(kOneOf.in(language), {list(values)}),
          [values](const std::string& text) { return std::ranges::find(values, text) != values.end(); });
    return *this;
}

CommandLine::CommandLine(const char* program, ParamLanguage speech, Wording about)
    : app(std::make_unique<CLI::App>(about.in(speech), program)), language(speech) {
    const auto format = app->get_formatter();
    format->column_width(22);
    format->label("Usage", Wording("Usage", "Aufruf").in(language));
    format->label("OPTIONS", Wording("OPTIONS", "OPTIONEN").in(language));
    format->label("SUBCOMMAND", Wording("COMMAND", "BEFEHL").in(language));
    format->label("Positionals", Wording("Arguments", "Argumente").in(language));
    format->label("REQUIRED", "");
    app->option_defaults()->group(Wording("Options", "Optionen").in(language));
    app->set_help_flag("-h,--help", Wording("show this help", "diese Hilfe").in(language));
    app->set_version_flag("--version",
                          std::string(program) + " " TALUX_VERSION "\nlibrary lib_talux_lua " TALUX_VERSION
                                                 ", linked in\nbuild " TALUX_BUILD,
                          Wording("show the version", "die Version").in(language));
    app->require_subcommand(1);
    app->fallthrough();
}

CommandLine::~CommandLine() = default;

Argument CommandLine::option(const char* name, std::string& value, Wording help) {
    return {lastCounts(app->add_option(name, value, help.in(language))), language};
}

// Its own function would give that of the command that was parsed.
std::string CommandLine::help() const {
    return app->get_formatter()->make_help(app.get(), app->get_name(), CLI::AppFormatMode::Normal);
}

// The texts of CLI11 begin with the name of what they are about.
std::string CommandLine::refusal(const std::string& reason) const {
    const auto say = [this](Wording pattern, const std::string& name) {
        return fill(pattern.in(language), {name});
    };
    const auto unexpected = app->remaining(true);
    const bool hasCommand = !app->get_subcommands().empty();
    if (!unexpected.empty()) {
        if (hasCommand || unexpected.front().starts_with('-'))
            return say({"{} is not expected here", "{} ist hier nicht vorgesehen"}, unexpected.front());
        return say({"{} is not a command", "{} ist kein Befehl"}, unexpected.front());
    }
    const std::string name = reason.substr(0, reason.find_first_of(": "));
    if (name.starts_with('-')) return say({"{} needs a value", "{} braucht einen Wert"}, name);
    if (!hasCommand) return Wording("the command is missing", "der Befehl fehlt").in(language);
    return say({"{} is missing", "{} fehlt"}, name);
}

bool CommandLine::parse(int argc, char** argv) {
    try {
        app->parse(argc, argv);
        return true;
    } catch (const CLI::Success& asked) {
        app->exit(asked);
        return false;
    } catch (const CLI::ParseError& error) {
        const auto chosen = app->get_subcommands();
        const std::string command = chosen.empty() ? "" : " " + chosen.front()->get_name();
        throw CouldNot(refusal(error.what()) + Wording("; see talux", "; Hilfe: talux").in(language) +
                       command + " --help");
    }
}

Subcommand::Subcommand(CommandLine& line, const char* name, Wording help)
    : app(line.app->add_subcommand(name, help.in(line.language))), language(line.language) {
    app->group(Wording("Commands", "Befehle").in(language));
    app->get_help_ptr()->group(Wording("Options", "Optionen").in(language));
}

Argument Subcommand::argument(Wording name, std::string& value, Wording help) {
    return {app->add_option(name.in(language), value, help.in(language))->type_name(""), language};
}

Argument Subcommand::argument(Wording name, std::vector<std::string>& values, Wording help) {
    return {app->add_option(name.in(language), values, help.in(language))->type_name(""), language};
}

Argument Subcommand::option(const char* name, std::string& value, Wording help) {
    return {lastCounts(app->add_option(name, value, help.in(language))), language};
}

Argument Subcommand::option(const char* name, std::vector<std::string>& values, Wording help) {
    return {app->add_option(name, values, help.in(language)), language};
}

Argument Subcommand::option(const char* name, int& value, Wording help) {
    return Argument(lastCounts(app->add_option(name, value, help.in(language))), language).isNumber(true);
}

Argument Subcommand::option(const char* name, long& value, Wording help) {
    return Argument(lastCounts(app->add_option(name, value, help.in(language))), language).isNumber(true);
}

Argument Subcommand::option(const char* name, double& value, Wording help) {
    return Argument(lastCounts(app->add_option(name, value, help.in(language))), language).isNumber(false);
}

void Subcommand::flag(const char* name, bool& value, Wording help) {
    app->add_flag(name, value, help.in(language));
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

} // namespace talux::tool
