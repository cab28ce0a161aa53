// What an engineer would otherwise set wrongly and what is not documented, as every command shows it.
#ifndef TALUX_TOOLS_TALUX_NOTES_H
#define TALUX_TOOLS_TALUX_NOTES_H

#include <string>
#include <vector>

#include "tools/Json.h"
#include "tools/talux/Source.h"

namespace talux::tool {

// "Warning:", "Not documented:", "Note:"
std::string noteLabel(const model::Note& note, const Context& context);

constexpr Wording kNotesHelp{"also the notes on what changes: warnings, what is not documented",
                             "auch die Hinweise zu den Änderungen: Warnungen, was nicht dokumentiert ist"};

// Each note of the parameters once, warnings first, with those that have it if not all have. Coloured on a
// terminal.
std::vector<std::string> noteTexts(const Parameters& parameters, const Context& context);

// Adds "notes", the kind of each and its text in both languages, where there are any.
void addNotes(Json& object, const Parameter& parameter);

} // namespace talux::tool

#endif
