// Lines from a person, with editing, completion and history, or from a pipe.
#ifndef TALUX_TOOLS_TALUX_LINEREADER_H
#define TALUX_TOOLS_TALUX_LINEREADER_H

#include <memory>
#include <optional>
#include <string>

#include "tools/talux/Command.h"

namespace talux::tool {

class LineReader {
public:
    virtual ~LineReader() = default;
    // The next line without its line end; empty when the person gave it up; nothing at the end.
    virtual std::optional<std::string> next() = 0;
};

std::unique_ptr<LineReader> pipeReader();

// `historyFile`: kept there between two sessions; empty: not kept.
std::unique_ptr<LineReader> terminalReader(const std::string& historyFile, const Context& context);

} // namespace talux::tool

#endif
