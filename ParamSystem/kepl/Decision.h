// What a term of the command language would do, or why it is refused. This is found out from the term, the
// dictionary, the caller's rights and the board alone: nothing is read from the store, written, run or
// logged. The interpreter executes decisions (Execution.h); tools look at them.
#ifndef TALUX_KEPL_DECISION_H
#define TALUX_KEPL_DECISION_H

#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/kepl/Board.h"
#include "ParamSystem/kepl/Command.h"
#include "ParamSystem/kepl/Operation.h"
#include "ParamSystem/kepl/Refusal.h"
#include "ParamSystem/kepl/Words.h"
#include "ParamSystem/rules/Rules.h"

namespace talux::kepl {

// How the elements of a range or the members of a record are answered.
enum class Style : unsigned char {
    plain,   // TLX_<name> <index> = <value> or TLX_<name>.<member> = <value>, one per line
    lines,   // the value, one per line; also the plain form of a single element
    columns, // the values in one line with ";" between them
    hex,     // the bytes, two digits each
};
struct StyleRow {
    Style style;
    std::string_view option; // empty: without an option
};
inline constexpr StyleRow kStyles[] = {
    {Style::plain, ""},
    {Style::lines, "-p"},
    {Style::columns, "-c"},
    {Style::hex, "-h"},
};
static_assert(hasRowForEach<&StyleRow::style>(kStyles), "each enumerator has its row, in the same order");

// The parts of a variable term, NAME [INDEX[.INDEX]] [OPTION] [= VALUE]. The texts are parts of the term.
struct VariableTerm {
    std::string_view text;                      // all of it
    std::string_view name = "???";              // if there is none
    std::optional<std::string_view> value = {}; // what follows "=", without leading blanks; none: a read
    Style style = Style::plain;
    int indices = 0; // how many were given, 0 to 2
    bool indicesAreNumbers = true;
    VarLong first = 0;
    VarLong last = 0; // with one index the same
};

// ---- What a term does, one type for each ---------------------------------------------------------------

struct Refused {
    Refusal refusal;
};

// A number or a text, or nothing for commands, which have no value.
struct ReadScalar {};
struct ReadElements {
    int id; // of the first; number and style are in the parts of the term
};
struct ReadRecord {};
struct WriteNumber {
    int id;
    double number;
};
struct WriteText {
    int id;
    std::string_view text; // without the quotes
};
struct SetClock {
    int id;
    VarLong numbers[3]; // year, month, day or hour, minute, second
};

struct VariableDecision {
    // Decides about a variable term without its prefix. One with more than kKeplMaxTerm characters has no
    // parts.
    VariableDecision(std::string_view text, int uid);

    VariableTerm term;
    const stParamProperties* row; // of the parameter's first element; null: refused, no such name
    bool isNoted = false;         // to be logged as an access to security parameters, even if refused
    std::variant<Refused, ReadScalar, ReadElements, ReadRecord, WriteNumber, WriteText, SetClock> action;

    template <class Alternative>
    const Alternative* get() const { // null: it is another action
        return std::get_if<Alternative>(&action);
    }
    bool isRefused() const { return get<Refused>() != nullptr; }
};

struct SyntaxError {}; // neither a word nor a number
struct RightsTooLow {
    int level; // that the command takes
};
struct PushNumber {
    double number;
};
struct Compute {
    Operation operation; // on the upper values of the stack
};
struct RunCommand {
    Command command;
    std::string_view file; // empty: the usual one
};
struct RunShell {
    std::string_view command; // empty: the answer asks for one
    bool isForbidden;         // the board's process ends instead
};

using Action =
    std::variant<SyntaxError, RightsTooLow, PushNumber, Compute, RunCommand, RunShell, VariableDecision>;

struct Decision {
    std::string_view term;
    Action action;

    template <class Alternative>
    const Alternative* get() const {
        return std::get_if<Alternative>(&action);
    }
    bool isRefused() const {
        if (const auto* const variable = get<VariableDecision>()) return variable->isRefused();
        return get<SyntaxError>() != nullptr || get<RightsTooLow>() != nullptr;
    }
};

// The next term of a line; false when there is none. Commas separate terms. A term is cut after kKeplMaxTerm
// characters, then loses its leading blanks, so it may be empty. `rest` becomes the line from the next
// comma on; what was cut is not part of it.
inline bool takeTerm(std::string_view& rest, std::string_view& term) {
    const std::string_view piece = takeWord(rest, ',');
    term = withoutLeading(piece.substr(0, kKeplMaxTerm), ' ');
    return !piece.empty();
}

// What variable terms begin with.
inline constexpr std::string_view kPrefixes[] = {kKeyPrefix, "LVR_"};
inline constexpr std::size_t kPrefixLength = 4;
static_assert(kPrefixes[0].size() == kPrefixLength && kPrefixes[1].size() == kPrefixLength);
// Letter case does not count.
inline bool hasPrefix(std::string_view term) {
    return startsIgnoringCase(term, kPrefixes[0]) || startsIgnoringCase(term, kPrefixes[1]);
}

// Of a term that is no variable.
Action decideOther(std::string_view term, int uid, int board);

/*
 * Decides about a term that takeTerm() returned. `uid`: rights, 0 to 3. What depends on values is found out
 * when the decision is executed: too few values on the stack or too many, a division by zero, the
 * root of a negative number, an answer that is too long, a moment that the clock does not have, a file that
 * cannot be opened.
 */
inline Decision decide(std::string_view term, int uid, int board = kOtherBoard) {
    if (!hasPrefix(term)) return {term, decideOther(term, uid, board)};
    return {term, Action(std::in_place_type<VariableDecision>, after(term, kPrefixLength), uid)};
}

// ---- For completion and help ---------------------------------------------------------------------------

using rules::kOpenToReaders, rules::kReadLevel, rules::kWriteLevel;
inline constexpr int kShellLevel = 3; // to run any shell command

} // namespace talux::kepl

#endif
