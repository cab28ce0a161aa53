/*
 * The words that the text data is written with. German stands first, English second; both are needed.
 *
 * A name that the catalogue does not have, a language that is missing, a list that is shorter in one
 * language and a title that is too long do not compile. Series are written once, see TextPattern.h:
 * value("REL{1..8}", {"Relais {n}", "Relay {n}"}, ...).
 */
#ifndef TALUX_TEXTS_WORDS_H
#define TALUX_TEXTS_WORDS_H

#include "ParamSystem/dictionary/TextEntry.h"

namespace talux::texts {

consteval TextEntry checked(TextEntry entry) {
    if (entry.title.de.empty()) wrongTextData("there is no title");
    forEachMember(entry.subject, [&entry](const Member& member) {
        if (kTextSubjectIndex.find(member.name.view()) == kTextSubjectCount)
            wrongTextData("no parameter has this name");
        for (std::string_view title : {entry.title.de, entry.title.en}) {
            int characters = 0;
            fillIn(title, member, [&](std::string_view piece) { characters += countCharacters(piece); });
            if (characters > kMaxTitle) wrongTextData("the title is too long");
        }
    });
    return entry;
}

// A run-time internal that only needs a title.
consteval TextEntry label(std::string_view name, Both title) {
    return checked({.subject = name, .title = title});
}

// A setting or measurement; the unit is a symbol and the same in both languages.
consteval TextEntry value(std::string_view name, Both title, Both description, std::string_view unit = {}) {
    return checked({.subject = name, .title = title, .description = description, .unit = unit});
}

// A setting with choices of its own, counted from 1.
consteval TextEntry choice(std::string_view name, Both title, Both description, Both choices) {
    return checked({.subject = name, .title = title, .description = description, .items = {choices}});
}

// A value template: title and choices that several parameters share.
consteval TextEntry shared(std::string_view name, Both title, Both choices) {
    return checked({.subject = name, .title = title, .items = {choices}});
}

inline constexpr std::array<Both, kTextGroupCount> kCommandHeadings{
    {{"Argumente", "Args"}, {"Meldungen", "Messages"}, {"Fehler", "Errors"}}};
inline constexpr std::array<Both, kTextGroupCount> kDialogHeadings{
    {{"Parameter", "Parameter"}, {"Meldungen", "Messages"}, {"Fehler", "Errors"}}};

// A command: what it shows while it works, and a text for each result code from `firstError` on.
consteval TextEntry command(std::string_view name, Both title, Both description, Both messages = {},
                            Both errors = {}, int firstError = 1) {
    return checked({.subject = name,
                    .title = title,
                    .description = description,
                    .headings = kCommandHeadings,
                    .items = {Both{}, messages, errors},
                    .firstError = firstError,
                    .ownNameAsArg = true});
}

// A dialog: the lines that it shows, and the answers that it offers.
consteval TextEntry dialog(std::string_view name, Both title, Both messages, Both answers = {}) {
    return checked(
        {.subject = name, .title = title, .headings = kDialogHeadings, .items = {answers, messages, Both{}}});
}

} // namespace talux::texts

#endif
