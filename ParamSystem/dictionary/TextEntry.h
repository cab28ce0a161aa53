// One line of the text data: a parameter, series or template with its texts in both languages.
#ifndef TALUX_DICTIONARY_TEXTENTRY_H
#define TALUX_DICTIONARY_TEXTENTRY_H

#include <array>
#include <cstddef>
#include <string_view>

#include "ParamSystem/dictionary/TextPattern.h"
#include "ParamSystem/dictionary/TextSubjects.h"

namespace talux {

// Longest title in characters: what a line of the display takes.
inline constexpr int kMaxTitle = 24;

constexpr int countCharacters(std::string_view utf8) {
    int count = 0;
    for (char c : utf8)
        count += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return count;
}

// A text, or a list divided by "|", in German and English. Empty only where a line has no such text.
struct Both {
    std::string_view de, en;

    constexpr Both() = default;
    consteval Both(const char* german, const char* english) : de(german), en(english) {
        check(de);
        check(en);
        if (countListTexts(de) != countListTexts(en)) wrongTextData("one language has fewer texts");
    }

private:
    static constexpr bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }
    static constexpr void check(std::string_view text) {
        if (text.empty()) wrongTextData("the text is missing in one language");
        if (isBlank(text.front()) || isBlank(text.back())) wrongTextData("a text begins or ends blank");
    }
};

// The numbered groups of commands and dialogs.
enum TextGroup : int { kGroupArgs = 0, kGroupMessages = 1, kGroupErrors = 2, kTextGroupCount = 3 };

struct TextEntry {
    std::string_view subject; // name, or pattern of a series
    Both title{}, description{};
    std::string_view unit{};
    std::array<Both, kTextGroupCount> headings{}; // of the groups of a command or dialog
    std::array<Both, kTextGroupCount> items{};    // lists; choices lie in group 0
    int firstError = 1;                           // number of the first text of kGroupErrors
    bool ownNameAsArg = false;                    // commands: item 1 of group 0
};

} // namespace talux

#endif
