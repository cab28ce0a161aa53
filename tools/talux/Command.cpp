#include "tools/talux/Command.h"

#include <algorithm>
#include <cstdio>
#include <new>

#include <CLI/CLI.hpp>

#include "tools/reference/Reference.h"
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

template <class Number>
std::optional<Number> numberIn(const std::string& text) {
    Number number{};
    return CLI::detail::lexical_cast(text, number) ? std::optional(number) : std::nullopt;
}

} // namespace

void report(std::string_view text) {
    std::fflush(stdout);
    std::fprintf(stderr, "talux: %s\n", printable(text).c_str());
}

Status forEachFile(const std::vector<std::string>& paths,
                   const std::function<Status(const std::string&)>& look) {
    Status status = kNothing;
    for (const std::string& path : paths) {
        try {
            status = std::max(status, look(path));
        } catch (const CouldNot& error) {
            report(error.what());
            status = kCouldNot;
        } catch (const std::bad_alloc&) {
            report(path + ": takes too much memory");
            status = kCouldNot;
        }
    }
    return status;
}

template <class Value>
void Command::argument(Wording name, Value& value, Wording help, Need need) {
    app->add_option(name.in(language), value, help.in(language))
        ->type_name("")
        ->required(need == Need::required);
}

// Of one value the last that is typed counts.
template <class Value>
void Command::option(const char* name, Value& value, Wording help, double minimum, double maximum) {
    CLI::Option* const option = app->add_option(name, value, help.in(language));
    if constexpr (std::is_same_v<Value, std::vector<std::string>>)
        option->delimiter(' ');
    else
        option->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    if constexpr (std::is_arithmetic_v<Value>) {
        constexpr Wording kNumber{"must be a number", "erwartet wird eine Zahl"},
            kWhole{"must be a whole number", "erwartet wird eine ganze Zahl"},
            kRange{"must be {} to {}", "zulässig ist {} bis {}"};
        const std::string range =
            fill(kRange.in(language), {reference::shortNumber(minimum), reference::shortNumber(maximum)});
        option->type_name(Wording("NUMBER", "ZAHL").in(language));
        check(option, (std::is_integral_v<Value> ? kWhole : kNumber).in(language),
              [](const std::string& text) { return numberIn<Value>(text).has_value(); });
        check(option, range, [=](const std::string& text) {
            const auto number = static_cast<double>(numberIn<Value>(text).value_or(0));
            return number >= minimum && number <= maximum;
        });
    }
}

void Command::choice(const char* name, std::string& value, const std::vector<std::string>& choices,
                     Wording help) {
    constexpr Wording kOneOf{"must be one of {}", "zulässig ist {}"};
    option(name, value, help);
    check(app->get_option(name), fill(kOneOf.in(language), {list(choices)}),
          [=](const std::string& text) { return std::ranges::find(choices, text) != choices.end(); });
}

template void Command::argument(Wording, std::string&, Wording, Need);
template void Command::argument(Wording, std::vector<std::string>&, Wording, Need);
template void Command::option(const char*, std::string&, Wording, double, double);
template void Command::option(const char*, std::vector<std::string>&, Wording, double, double);
template void Command::option(const char*, int&, Wording, double, double);
template void Command::option(const char*, long&, Wording, double, double);
template void Command::option(const char*, double&, Wording, double, double);

void Command::flag(const char* name, bool& value, Wording help) {
    app->add_flag(name, value, help.in(language));
}

void Command::json(bool& value) {
    flag("--json", value, {"print JSON", "als JSON ausgeben"});
}

std::string Command::name() const {
    return app->get_name();
}

// The library's own function would give that of the command that was parsed.
std::string Command::help() const {
    const std::string before = app->get_parent() == nullptr ? "" : app->get_parent()->get_name() + " ";
    return app->get_formatter()->make_help(app, before + name(), CLI::AppFormatMode::Normal);
}

CommandLine::CommandLine(const char* name, ParamLanguage speech, Wording about)
    : app(std::make_unique<CLI::App>(about.in(speech), name)), language(speech) {
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
                          std::string(name) + " " TALUX_VERSION "\nlibrary lib_talux_lua " TALUX_VERSION
                                              ", linked in\nbuild " TALUX_BUILD,
                          Wording("show the version", "die Version").in(language));
    app->require_subcommand(1);
    app->fallthrough();
}

CommandLine::~CommandLine() = default;

Command& CommandLine::add(const char* name, Command::Run run, Wording help) {
    CLI::App* const added = app->add_subcommand(name, help.in(language));
    added->group(Wording("Commands", "Befehle").in(language));
    added->get_help_ptr()->group(Wording("Options", "Optionen").in(language));
    return commands.emplace_back(added, language, std::move(run));
}

const Command* CommandLine::find(std::string_view name) const {
    const auto found = std::ranges::find(commands, name, &Command::name);
    return found == commands.end() ? nullptr : &*found;
}

// The texts of CLI11 begin with the name of what they are about.
std::string CommandLine::refusal(const std::string& reason) const {
    const auto unexpected = app->remaining(true);
    const bool hasCommand = !app->get_subcommands().empty();
    const std::string name =
        unexpected.empty() ? reason.substr(0, reason.find_first_of(": ")) : unexpected.front();
    const bool isOption = name.starts_with('-');
    const auto pattern = [&]() -> Wording {
        if (!unexpected.empty())
            return hasCommand || isOption ? Wording("{} is not expected here", "{} ist hier nicht vorgesehen")
                                          : Wording("{} is not a command", "{} ist kein Befehl");
        if (isOption) return {"{} needs a value", "{} braucht einen Wert"};
        return hasCommand ? Wording("{} is missing", "{} fehlt")
                          : Wording("the command is missing", "der Befehl fehlt");
    };
    return fill(pattern().in(language), {name});
}

const Command* CommandLine::parse(int argc, char** argv) {
    try {
        app->parse(argc, argv);
        return find(app->get_subcommands().front()->get_name());
    } catch (const CLI::Success& asked) {
        app->exit(asked);
        return nullptr;
    } catch (const CLI::ParseError& error) {
        const auto chosen = app->get_subcommands();
        const std::string command = chosen.empty() ? "" : " " + chosen.front()->get_name();
        throw CouldNot(refusal(error.what()) + Wording("; see talux", "; Hilfe: talux").in(language) +
                       command + " --help");
    }
}

} // namespace talux::tool
