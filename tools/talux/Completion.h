// What the Tab key offers in a line of the command language.
#ifndef TALUX_TOOLS_TALUX_COMPLETION_H
#define TALUX_TOOLS_TALUX_COMPLETION_H

#include "tools/talux/Command.h"

namespace talux::tool {

// Words of the shell besides those of the language.
inline constexpr std::string_view kHelpWord = "help", kQuitWord = "quit", kUndoWord = "undo",
                                  kDiscardWord = "discard";

struct Candidate {
    std::string text;  // takes the place of what was typed
    std::string label; // what it is shown as in a list
};

struct Completion {
    std::size_t typed = 0; // characters in front of the cursor that a candidate replaces
    std::vector<Candidate> candidates;

    // What all candidates begin with, letter case aside.
    std::string common() const;
};

// `head`: the line up to the cursor.
Completion complete(std::string_view head, const Context& context);

} // namespace talux::tool

#endif
