// The words that the shell itself understands.
#ifndef TALUX_TOOLS_TALUX_SHELL_H
#define TALUX_TOOLS_TALUX_SHELL_H

#include <string_view>

namespace talux::tool {

inline constexpr std::string_view kHelpWord = "help", kQuitWord = "quit";

} // namespace talux::tool

#endif
