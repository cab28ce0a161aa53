// A line of the command language looked at without evaluating it: what will be refused and why, and what
// happens without a message. It is the interpreter that decides about the terms. Used by the shell after a
// refusal and by lint.
#ifndef TALUX_TOOLS_TALUX_LINECHECK_H
#define TALUX_TOOLS_TALUX_LINECHECK_H

#include "ParamSystem/kepl/Answer.h"
#include "ParamSystem/kepl/Decision.h"
#include "tools/talux/Command.h"

namespace talux::tool {

struct LineFinding {
    std::size_t at; // where the term begins in the line
    std::string text;
    bool isRefusal; // the line ends here with an error
};

struct LineAsked {
    int uid = 3;
    std::size_t answerRoom = kepl::Answer::kMaxLength; // characters that an answer may have
    bool isWhole = true; // false: only the head of the line is known, the rest is not
};

std::vector<LineFinding> checkLine(std::string_view line, const LineAsked& asked, const Context& context);

// Why a term is refused, in words, with the range or the nearest name.
std::string reasonOf(const kepl::Decision& decision, const Context& context);
std::string reasonOf(const kepl::VariableDecision& decision, const Context& context);

} // namespace talux::tool

#endif
