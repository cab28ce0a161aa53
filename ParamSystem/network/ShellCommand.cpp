#include "ParamSystem/network/ShellCommand.h"

#include <cstdio>
#include <cstring>
#include <string_view>

#include "ParamSystem/os/Os.h"
#include "support/Text.h"

namespace talux::network {

namespace {

constexpr int kLongestCommand = 253;

// Whether the shell takes the character at this position of a word literally.
constexpr bool isPlain(std::string_view text, std::size_t position) {
    constexpr std::string_view kHarmless = "@%_+=:,./-!^";
    const char c = text[position], lower = lowerAscii(c);
    if ((lower >= 'a' && lower <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) >= 0x80)
        return true;
    if (kHarmless.find(c) != std::string_view::npos) return true;
    // # begins a comment and ~ is a home directory at the beginning, in some shells also after "=" and ":".
    return position > 0 && (c == '#' || (c == '~' && text[position - 1] != '=' && text[position - 1] != ':'));
}

constexpr bool isPlain(std::string_view text) {
    for (std::size_t position = 0; position < text.size(); ++position)
        if (!isPlain(text, position)) return false;
    return true;
}

} // namespace

ShellWord::ShellWord(const char* value) {
    const std::string_view text(value, strnlen(value, kTextSize - 1));
    const char* const quote = isPlain(text) ? "" : "'";
    append(quote);
    for (const char& c : text)
        append(c == '\'' ? "'\\''" : std::string_view(&c, 1));
    append(quote);
}

void ShellWord::append(std::string_view piece) {
    std::memcpy(text_ + length_, piece.data(), piece.size());
    length_ += piece.size();
}

bool Shell::run(const char* format, ...) const {
    std::va_list arguments;
    va_start(arguments, format);
    const bool done = runCommand(Announce::kYes, format, arguments);
    va_end(arguments);
    return done;
}

bool Shell::runSilently(const char* format, ...) const {
    std::va_list arguments;
    va_start(arguments, format);
    const bool done = runCommand(Announce::kNo, format, arguments);
    va_end(arguments);
    return done;
}

void Shell::report(const char* format, ...) const {
    char text[kLongestCommand + 100];
    std::va_list arguments;
    va_start(arguments, format);
    formatTextV(text, sizeof text, format, arguments);
    va_end(arguments);
    std::fprintf(stderr, "%s: %s\n", function_, text);
    // The line comes before the output of the command, even if the host has given the stream a buffer.
    std::fflush(stderr);
}

bool Shell::runCommand(Announce announce, const char* format, std::va_list arguments) const {
    char command[kLongestCommand + 1];
    const int length = formatTextV(command, sizeof command, format, arguments);
    if (length < 0 || length > kLongestCommand) {
        // The format names the command without the value that made it too long.
        report("not run, %d characters where %d are allowed: %s", length, kLongestCommand, format);
        return false;
    }
    if (announce == Announce::kYes) report("%s", command);
    os::runShell(command);
    return true;
}

} // namespace talux::network
