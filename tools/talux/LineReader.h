// Lines from a person, with editing, completion and history, or from a pipe.
#ifndef TALUX_TOOLS_TALUX_LINEREADER_H
#define TALUX_TOOLS_TALUX_LINEREADER_H

#include "tools/talux/Command.h"

namespace talux::tool {

// Words of the shell besides those of the language.
inline constexpr std::string_view kHelpWord = "help", kQuitWord = "quit", kUndoWord = "undo",
                                  kDiscardWord = "discard";

// Gives the next line without its line end; empty when the person gave it up; nothing at the end.
using LineReader = std::function<std::optional<std::string>()>;

// `historyFile`: a person's lines are kept there between two sessions; empty: not kept.
LineReader lineReader(bool isPerson, const std::string& historyFile, const Context& context);

} // namespace talux::tool

#endif
