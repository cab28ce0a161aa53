// The shell commands that apply the settings: quoting, announcing and running one.
#ifndef TALUX_NETWORK_SHELL_COMMAND_H
#define TALUX_NETWORK_SHELL_COMMAND_H

#include <cstdarg>
#include <cstddef>
#include <string_view>

#include "ParamSystem/TALUX_Var.h"

namespace talux::network {

// A stored text, quoted so that it is one word to the shell; an empty one is no word. A text of
// letters, umlauts too, digits and @%_+=:,./-!^, with # and ~ after its beginning, remains unchanged; any
// other is put in single quotes.
class ShellWord {
public:
    explicit ShellWord(const char* value);
    const char* text() const { return text_; }

private:
    void append(std::string_view piece);

    std::size_t length_ = 0;
    // At worst each character of the longest text is a single quote, written '\''.
    char text_[4 * std::size_t{kTextSize - 1} + sizeof("''")] = {};
};

// Runs the commands of one public function and writes to the error stream under its name.
class Shell {
public:
    explicit constexpr Shell(const char* function) : function_(function) {}

    // Writes "<function>: <command>" to the error stream, then runs the command and waits for it; its status
    // is not examined. A command that is too long is not run: false, and the reason is written instead.
    [[gnu::format(printf, 2, 3)]] bool run(const char* format, ...) const;

    // The same without the announcement.
    [[gnu::format(printf, 2, 3)]] bool runSilently(const char* format, ...) const;

    // Writes "<function>: <text>" to the error stream.
    [[gnu::format(printf, 2, 3)]] void report(const char* format, ...) const;

private:
    enum class Announce : bool { kNo, kYes };
    bool runCommand(Announce announce, const char* format, std::va_list arguments) const;

    const char* function_;
};

} // namespace talux::network

#endif
