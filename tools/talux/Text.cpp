#include "tools/talux/Text.h"

#include <algorithm>
#include <bit>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace talux::tool {

namespace {

// Length of the well-formed UTF-8 character at the beginning, 0 when there is none.
std::size_t characterAt(std::string_view text) {
    constexpr unsigned kSmallest[] = {0, 0, 0x80, 0x800, 0x10000}, kLargest = 0x10FFFF;
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80) return 1;
    const auto length = static_cast<std::size_t>(std::countl_one(first));
    if (length < 2 || length > 4 || length > text.size()) return 0;
    unsigned code = first & 0x7FU >> length;
    for (const char next : text.substr(1, length - 1)) {
        if ((static_cast<unsigned char>(next) & 0xC0U) != 0x80) return 0;
        code = code << 6U | (static_cast<unsigned char>(next) & 0x3FU);
    }
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    return code >= kSmallest[length] && code <= kLargest && !isSurrogate ? length : 0;
}

// What comes first: a character, or an escape sequence, which takes no column.
struct Sign {
    std::size_t size, columns;
};
Sign signAt(std::string_view text) {
    if (text.front() == '\033') return {std::min(text.find('m'), text.size() - 1) + 1, 0};
    return {std::max<std::size_t>(1, characterAt(text)), 1};
}

bool isColoured() {
    const char* const none = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    const bool isDumb = terminal == nullptr || std::string_view(terminal) == "dumb";
    return isForTerminal() && !isDumb && (none == nullptr || *none == '\0');
}

} // namespace

std::size_t width(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) {
        const Sign sign = signAt(text);
        columns += sign.columns;
        text.remove_prefix(sign.size);
    }
    return columns;
}

std::string cut(std::string_view line, std::size_t columns) {
    std::size_t size = 0, taken = 0;
    while (size < line.size() && (columns == 0 || taken < columns)) {
        const Sign sign = signAt(line.substr(size));
        size += sign.size;
        taken += sign.columns;
    }
    const bool isColoured = size < line.size() && line.find('\033') < size;
    return joined({line.substr(0, size), isColoured ? "\033[0m" : ""});
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty())
        lines.push_back(takeUpTo(text, '\n'));
    return lines;
}

std::string_view takeUpTo(std::string_view& text, char end) {
    const auto piece = text.substr(0, text.find(end));
    text.remove_prefix(std::min(piece.size() + 1, text.size()));
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

std::string printable(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const std::size_t length = characterAt(text);
        const auto first = static_cast<unsigned char>(text[0]);
        const bool isControl = first < ' ' || first == 0x7F || (length == 2 && text < "\xC2\xA0");
        const bool isCode = length == 0 || isControl;
        shown += isCode ? formatted("\\x%02X", first) : std::string(text.substr(0, length));
        text.remove_prefix(isCode ? 1 : length);
    }
    return shown;
}

bool isForTerminal() {
    static const bool is = isatty(STDOUT_FILENO) == 1;
    return is;
}

// `less` ends at once where all fits, and is not everywhere.
std::shared_ptr<void> pager() {
    std::FILE* const pipe = isForTerminal() ? popen("${PAGER:-less -FRX} || exec cat", "w") : nullptr;
    if (pipe == nullptr) return {};
    std::signal(SIGINT, SIG_IGN); // it is the pager's
    dup2(fileno(pipe), STDOUT_FILENO);
    return {nullptr, [pipe](void*) {
                std::fclose(stdout);
                pclose(pipe);
            }};
}

std::string Paint::with(const char* code, const std::string& text) {
    static const bool isOn = isColoured();
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
