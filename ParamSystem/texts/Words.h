/*
 * The words that the text data is written with. German stands first, English second; both are needed.
 *
 * One line may stand for a series. A name holds lists in braces then: "REL{1..8}", "knu{1,2,3,0}",
 * "FW_{ETH0,ETH1,ETHW=WLAN}_com" and two of them, "I{0..3}_max_stat_c{0..4}", and stands for every
 * combination. Texts show the member of the first list as {n} and that of the second as {m}; what stands
 * behind "=" is shown instead of the name's part: value("REL{1..8}", {"Relais {n}", "Relay {n}"}, ...).
 *
 * Lists of texts are divided by "|". In them "BI{1..6}" stands for six texts, "NC*39" for the same text 39
 * times.
 *
 * The generator (tools/generator) spells everything out and refuses what breaks a rule.
 */
#ifndef TALUX_TEXTS_WORDS_H
#define TALUX_TEXTS_WORDS_H

#include <array>

#include "ParamSystem/dictionary/SourceLine.h"

namespace talux::texts {

// The line that a text is written on, for messages about it.
using Where = SourceLine;

// A text, or a list divided by "|", in German and English. Empty only where a line has no such text.
struct Both {
    const char* de = "";
    const char* en = "";

    constexpr Both() = default;
    constexpr Both(const char* german, const char* english = "") : de(german), en(english) {}

    constexpr bool isEmpty() const { return *de == '\0' && *en == '\0'; }
};

// The numbered groups of commands and dialogs; choices lie in the first.
enum Group : int { kGroupArgs = 0, kGroupMessages = 1, kGroupErrors = 2, kGroupCount = 3 };

using ByGroup = std::array<Both, kGroupCount>;

// One line of the text data: a parameter, series or template with its texts.
struct TextEntry {
    const char* subject; // name, or pattern of a series
    Both title{}, description{};
    const char* unit = "";
    ByGroup headings{};        // of the groups of a command or dialog
    ByGroup items{};           // lists
    int firstError = 1;        // number of the first text of kGroupErrors
    bool ownNameAsArg = false; // commands: item 1 of group 0
    bool allChoices = true;    // choices are given for the whole range
    Where where{};
};

// What a title says all about.
constexpr TextEntry label(const char* name, Both title, Where where = Where::current()) {
    return {.subject = name, .title = title, .where = where};
}

// A setting or measurement; the unit is a symbol and the same in both languages.
constexpr TextEntry value(const char* name, Both title, Both description, const char* unit = "",
                          Where where = Where::current()) {
    return {.subject = name, .title = title, .description = description, .unit = unit, .where = where};
}

// A setting with choices of its own, counted from 1.
constexpr TextEntry choice(const char* name, Both title, Both description, Both choices,
                           Where where = Where::current()) {
    return {.subject = name, .title = title, .description = description, .items = {choices}, .where = where};
}

// A value template: title and choices that several parameters share. The last numbers may have no text.
constexpr TextEntry shared(const char* name, Both title, Both choices, Where where = Where::current()) {
    return {.subject = name, .title = title, .items = {choices}, .allChoices = false, .where = where};
}

inline constexpr ByGroup kCommandHeadings{
    {{"Argumente", "Args"}, {"Meldungen", "Messages"}, {"Fehler", "Errors"}}};
inline constexpr ByGroup kDialogHeadings{
    {{"Parameter", "Parameter"}, {"Meldungen", "Messages"}, {"Fehler", "Errors"}}};

// A command: what it shows while it works, and a text for each result code from `firstError` on.
constexpr TextEntry command(const char* name, Both title, Both description, Both messages = {},
                            Both errors = {}, int firstError = 1, Where where = Where::current()) {
    return {.subject = name,
            .title = title,
            .description = description,
            .headings = kCommandHeadings,
            .items = {Both{}, messages, errors},
            .firstError = firstError,
            .ownNameAsArg = true,
            .where = where};
}

// A dialog: the lines that it shows, and the answers that it offers.
constexpr TextEntry dialog(const char* name, Both title, Both messages, Both answers = {},
                           Where where = Where::current()) {
    return {.subject = name,
            .title = title,
            .headings = kDialogHeadings,
            .items = {answers, messages, Both{}},
            .where = where};
}

} // namespace talux::texts

#endif
