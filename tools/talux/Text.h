// Texts for people: patterns with gaps, columns, colours.
#ifndef TALUX_TOOLS_TALUX_TEXT_H
#define TALUX_TOOLS_TALUX_TEXT_H

#include <ctime>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tools/Strings.h"

namespace talux::tool {

// Characters that a UTF-8 text takes on a terminal.
std::size_t width(std::string_view text);

// Whether the text is well-formed UTF-8.
bool isUtf8(std::string_view text);

// The text with blanks behind it up to this width.
std::string padded(std::string text, std::size_t columns);

// The beginning of a line that fits these columns, colours kept; all of it where they are 0.
std::string cut(std::string_view line, std::size_t columns);

// Without their ends; parts of the text.
std::vector<std::string_view> linesOf(std::string_view text);

// Takes off and returns the piece before `end`, and drops `end`; takes all of it where there is none.
std::string_view takeUpTo(std::string_view& text, char end);

// Without blanks at both ends, a carriage return included.
std::string_view withoutBlanks(std::string_view text);

std::string timeText(const std::tm& time, const char* format = "%Y-%m-%d %H:%M:%S");
std::string localTimeText(std::time_t seconds, const char* format = "%Y-%m-%d %H:%M:%S");

// For text that comes from files: control characters and what is no UTF-8 become "\xNN".
std::string printable(std::string_view text);

// Whether a person reads what the program prints.
bool isForTerminal();

// While it lives, standard output goes through $PAGER, or less, if it goes to a terminal.
[[nodiscard]] std::shared_ptr<void> pager();

// Colours, on a terminal only and unless NO_COLOR is set.
struct Paint {
    static std::string bold(const std::string& text) { return with("1", text); }
    static std::string dim(const std::string& text) { return with("2", text); }
    static std::string bad(const std::string& text) { return with("31", text); }
    static std::string changed(const std::string& text) { return with("33", text); }
    static std::string with(const char* code, const std::string& text);
};

// Rows of cells, printed so that columns stand below each other; the last one is not padded.
class Table {
public:
    void add(std::vector<std::string> cells) { rows.push_back(std::move(cells)); }
    std::size_t size() const { return rows.size(); }
    // `indent` stands in front of every row.
    std::string text(std::string_view indent = "") const;

private:
    std::vector<std::vector<std::string>> rows;
};

} // namespace talux::tool

#endif
