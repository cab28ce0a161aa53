// Values, names and notes as people read them.
#ifndef TALUX_TOOLS_TALUX_SHOW_H
#define TALUX_TOOLS_TALUX_SHOW_H

#include "tools/Json.h"
#include "tools/talux/Source.h"
#include "tools/talux/Text.h"

namespace talux::tool {

// A number with as many digits as tell it from all others of its width; a text in double quotes.
std::string plain(const Parameter& parameter, const Value& value);

// Empty for choices, whose numbers count nothing.
std::string unitOf(const Parameter& parameter);

// The text of the choice that the value is; empty where it is none.
std::string choiceOf(const Parameter& parameter, const Value& value, ParamLanguage language);

// A number with as many digits as tell it from all others, of floats if `isFloat`.
std::string numberText(double number, bool isFloat);

// With its unit or the text of the choice: "30 %", "2 (English)". Nothing is "-".
std::string shown(const Parameter& parameter, const std::optional<Value>& value, const Context& context);

// "elements 1 to 8"
std::string elementsText(const Parameter& parameter, const Context& context);

bool isInRange(const Parameter& parameter, double number);

// "30 -> 35 %"
std::string change(const Difference& difference, const Context& context);

// A number or a text; null for nothing.
Json json(const Parameter& parameter, const std::optional<Value>& value);

// Name, title, values, texts of choices and unit of a change.
Json changeJson(const Difference& difference, const Context& context);

Json namesOf(const Parameters& parameters);

// "; the nearest name is Uearth", or nothing where none is near.
std::string nearestName(std::string_view name, const Context& context, std::string_view prefix = "");

// That no parameter is named so, with the nearest name.
std::string unknownName(std::string_view name, const Context& context, std::string_view prefix = "");

// "; decimals need a point" for a text with a comma.
const char* commaHint(std::string_view text, const Context& context);

// "Warning:", "Not documented:", "Note:"
std::string noteLabel(const model::Note& note, const Context& context);

// For Context::counted.
constexpr Wording kSetting{" setting", " Einstellung"}, kSettings{" settings", " Einstellungen"},
    kChange{" change", " Änderung"}, kChanges{" changes", " Änderungen"};

constexpr Wording kNotesHelp{"also the notes on what changes: warnings, what is not documented",
                             "auch die Hinweise zu den Änderungen: Warnungen, was nicht dokumentiert ist"};

// Each note of the parameters once, warnings first, with those that have it if not all have. Coloured on a
// terminal.
std::vector<std::string> noteTexts(const Parameters& parameters, const Context& context);

// Adds "notes", the kind of each and its text in both languages, where there are any.
void addNotes(Json& object, const Parameter& parameter);

// Prints to standard output.
void print(std::string_view text);

} // namespace talux::tool

#endif
