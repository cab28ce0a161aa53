#include "tools/talux/Text.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

#include "support/Text.h"

namespace talux::tool {

namespace {

// Length of the well-formed UTF-8 character at the beginning, 0 when there is none.
std::size_t characterAt(std::string_view text) {
    const auto byte = [text](std::size_t k) {
        return k < text.size() ? static_cast<unsigned char>(text[k]) : 0u;
    };
    const auto follows = [&byte](std::size_t k) { return (byte(k) & 0xC0) == 0x80; };
    const unsigned first = byte(0), second = byte(1);
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first < 0xE0) return follows(1) ? 2 : 0;
    if (first >= 0xE0 && first < 0xF0) {
        const bool isShortest = first != 0xE0 || second >= 0xA0,
                   isSurrogate = first == 0xED && second >= 0xA0;
        return isShortest && !isSurrogate && follows(1) && follows(2) ? 3 : 0;
    }
    if (first >= 0xF0 && first < 0xF5) {
        const bool isInRange = (first != 0xF0 || second >= 0x90) && (first != 0xF4 || second < 0x90);
        return isInRange && follows(1) && follows(2) && follows(3) ? 4 : 0;
    }
    return 0;
}

bool isEscape(std::string_view cell, std::size_t at) {
    return cell[at] == '\033';
}

// In time linear in the name for each "*": what the last one stands for grows only.
bool fitsPattern(std::string_view name, std::string_view pattern) {
    std::size_t n = 0, p = 0, star = pattern.npos, starName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            starName = n;
        } else if (p < pattern.size() &&
                   (pattern[p] == '?' || lowerAscii(pattern[p]) == lowerAscii(name[n]))) {
            ++n;
            ++p;
        } else if (star == pattern.npos) {
            return false;
        } else {
            p = star + 1;
            n = ++starName;
        }
    }
    return pattern.find_first_not_of('*', p) == pattern.npos;
}

} // namespace

std::size_t width(std::string_view text) {
    std::size_t columns = 0;
    for (std::size_t k = 0; k < text.size(); ++k) {
        if (isEscape(text, k))
            k = std::min(text.find('m', k), text.size());
        else if ((static_cast<unsigned char>(text[k]) & 0xC0) != 0x80)
            ++columns;
    }
    return columns;
}

std::string cut(const std::string& line, std::size_t columns) {
    std::size_t size = 0, taken = 0;
    while (size < line.size() && (columns == 0 || taken < columns)) {
        const bool escapes = isEscape(line, size);
        size = escapes ? std::min(line.find('m', size), line.size() - 1) + 1
                       : size + std::max<std::size_t>(1, characterAt(std::string_view(line).substr(size)));
        taken += escapes ? 0 : 1;
    }
    const bool isColoured = size < line.size() && line.find('\033') < size;
    return line.substr(0, size) + (isColoured ? "\033[0m" : "");
}

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    for (std::size_t end; (end = text.find('\n')) != text.npos; text.remove_prefix(end + 1))
        lines.emplace_back(text.substr(0, end));
    return lines;
}

std::string_view takeUpTo(std::string_view& text, char end) {
    const auto at = std::min(text.find(end), text.size());
    const auto piece = text.substr(0, at);
    text.remove_prefix(std::min(at + 1, text.size()));
    return piece;
}

std::string_view withoutBlanks(std::string_view text) {
    constexpr const char* kBlanks = " \t\r";
    const auto first = text.find_first_not_of(kBlanks);
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string timeText(const std::tm& time, const char* format) {
    char text[32];
    return {text, std::strftime(text, sizeof text, format, &time)};
}

std::string localTimeText(std::time_t seconds, const char* format) {
    std::tm local{};
    return localtime_r(&seconds, &local) == nullptr ? std::string() : timeText(local, format);
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = characterAt(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string padded(std::string text, std::size_t columns) {
    const std::size_t taken = width(text);
    if (taken < columns) text.append(columns - taken, ' ');
    return text;
}

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    const auto same = [](char a, char b) { return lowerAscii(a) == lowerAscii(b); };
    return std::search(text.begin(), text.end(), part.begin(), part.end(), same) != text.end();
}

bool fits(std::string_view name, std::string_view pattern) {
    if (pattern.find_first_of("*?") == pattern.npos) return containsIgnoringCase(name, pattern);
    return fitsPattern(name, pattern);
}

std::string printable(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const std::size_t length = characterAt(text);
        const auto first = static_cast<unsigned char>(text[0]);
        const bool isControl = first < ' ' || first == 0x7F ||
                               (length == 2 && first == 0xC2 && static_cast<unsigned char>(text[1]) < 0xA0);
        if (length == 0 || isControl) {
            char code[8];
            std::snprintf(code, sizeof code, "\\x%02X", first);
            shown += code;
            text.remove_prefix(1);
        } else {
            shown.append(text.substr(0, length));
            text.remove_prefix(length);
        }
    }
    return shown;
}

bool isForTerminal() {
    static const bool is = isatty(STDOUT_FILENO) == 1;
    return is;
}

// `less` ends at once where all fits, and is not everywhere.
Pager::Pager() {
    int ends[2];
    if (!isForTerminal() || pipe(ends) != 0) return;
    child = fork();
    if (child == 0) {
        dup2(ends[0], STDIN_FILENO);
        close(ends[0]), close(ends[1]);
        execlp("sh", "sh", "-c", "${PAGER:-less -FRX} || exec cat", nullptr);
        _exit(127);
    }
    if (child > 0) {
        std::signal(SIGINT, SIG_IGN); // it is the pager's
        dup2(ends[1], STDOUT_FILENO);
    }
    close(ends[0]), close(ends[1]);
}

Pager::~Pager() {
    if (child <= 0) return;
    std::fclose(stdout);
    waitpid(child, nullptr, 0);
}

Paint::Paint() {
    const char* const none = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    const bool isDumb = terminal == nullptr || std::string_view(terminal) == "dumb";
    isOn = isForTerminal() && !isDumb && (none == nullptr || *none == '\0');
}

std::string Paint::with(const char* code, const std::string& text) const {
    return isOn && !text.empty() ? std::string("\033[") + code + "m" + text + "\033[0m" : text;
}

std::string Table::text(std::string_view indent) const {
    std::vector<std::size_t> columns;
    for (const auto& row : rows) {
        columns.resize(std::max(columns.size(), row.size()));
        for (std::size_t k = 0; k + 1 < row.size(); ++k)
            columns[k] = std::max(columns[k], width(row[k]));
    }
    std::string text;
    for (const auto& row : rows) {
        std::string line(indent);
        for (std::size_t k = 0; k < row.size(); ++k)
            line += k + 1 < row.size() ? padded(row[k], columns[k]) + "  " : row[k];
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

} // namespace talux::tool
