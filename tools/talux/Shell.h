// The words that the shell itself understands.
#ifndef TALUX_TOOLS_TALUX_SHELL_H
#define TALUX_TOOLS_TALUX_SHELL_H

#include <string_view>

namespace talux::tool {

// Its own words, besides those of the language.
inline constexpr std::string_view kHelpWord = "help", kQuitWord = "quit", kUndoWord = "undo",
                                  kDiscardWord = "discard";

} // namespace talux::tool

#endif
