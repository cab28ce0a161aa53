// What a term of the command language would do, or why it is refused. This is found out from the term, the
// dictionary, the caller's rights and the board alone: nothing is read from the store, written, run or
// logged. The interpreter carries decisions out (Execution.h); tools look at them.
#ifndef TALUX_KEPL_DECISION_H
#define TALUX_KEPL_DECISION_H

#include <optional>
#include <span>
#include <string_view>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/kepl/Board.h"
#include "ParamSystem/kepl/Command.h"
#include "ParamSystem/kepl/Operation.h"
#include "ParamSystem/kepl/Refusal.h"
#include "ParamSystem/kepl/Words.h"
#include "ParamSystem/store/Values.h"

namespace talux::kepl {

enum class Action : unsigned char {
    refuse,
    push,         // `value`, a number
    compute,      // `operation` on the upper values of the stack
    readScalar,   // `row`
    readElements, // elements variable.first to variable.last of `row`
    readRecord,   // `row`
    write,        // `value` into the slot of `id`
    setClock,     // from `clock`, and the text variable.value into the slot of `id`
    command,      // `command`, with the file `words` if that is not empty
    shell,        // `words` in the shell
    askForShell,  // answer that a command is missing
    endProcess,   // the board forbids the shell command `words`
};

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
    std::string_view name = "???";         // stays when there is none
    std::optional<std::string_view> value; // what follows "=", without leading blanks; none: a read
    Style style = Style::plain;
    int indices = 0; // how many were given, 0 to 2
    bool indicesAreNumbers = true;
    VarLong first = 0;
    VarLong last = 0; // with one index the same
};

struct Decision {
    Action action = Action::refuse;
    Refusal refusal = Refusal::none; // none unless `action` is refuse

    std::string_view term; // of a variable term what follows its prefix

    // Noted in the system log as touching security, before it is carried out or refused.
    bool isNoted = false;
    // Whether the term begins with TLX_ or LVR_.
    bool isVariable = false;

    Operation operation{};
    Command command{}; // of all terms that begin with a command word, the refused ones, too
    std::string_view words;

    // Of variable terms, the refused ones too as far as it was found out.
    VariableTerm variable;
    const stParamProperties* row = nullptr; // of the parameter's first element; null: no such name
    int id = 0;                             // of what is read or written first

    std::optional<Value> value; // to push or write; of a refused number, too, if it is one
    VarLong clock[3] = {};      // year, month, day or hour, minute, second

    bool isRefused() const { return action == Action::refuse; }
    bool isLogged() const { return isNoted || refusal == Refusal::rightsTooLow; }
    // Lack of rights for a command is no error but the answer of the line. Either ends the line.
    bool isAnswer() const { return refusal == Refusal::rightsTooLow && !isVariable; }
};

// The next term of a line, false when none is left. Commas separate terms. Of each the first
// kKeplMaxTerm characters count, without the blanks that lead them, so a term may be empty. `rest` is left
// with what follows the term; what is cut off lies between the two.
inline bool takeTerm(std::string_view& rest, std::string_view& term) {
    const std::string_view piece = takeWord(rest, ',');
    term = withoutLeading(piece.substr(0, kKeplMaxTerm), ' ');
    return !piece.empty();
}

/*
 * Decides about a term as takeTerm() gives it. `uid`: rights, 0 to 3. What depends on values remains to be
 * seen when the decision is carried out: too few values on the stack or too many, a division by zero, the
 * root of a negative number, an answer that is too long, a moment that the clock does not have, a file that
 * cannot be opened.
 */
Decision decide(std::string_view term, int uid, int board = kOtherBoard);

// The same for a variable term without its prefix. One with more than kKeplMaxTerm characters has no parts.
Decision decideVariable(std::string_view term, int uid);

// ---- For completion and help ---------------------------------------------------------------------------

inline constexpr std::string_view kPrefixes[] = {kKeyPrefix, "LVR_"};
inline constexpr std::size_t kPrefixLength = 4;
static_assert(kPrefixes[0].size() == kPrefixLength && kPrefixes[1].size() == kPrefixLength);
bool hasPrefix(std::string_view term); // letter case does not count

// The one parameter that those may write who may read it: it asks for the snapshot of the measured values.
inline constexpr std::string_view kOpenToReaders = "mw_req";

// Rights that reading any parameter takes, writing one (or more, see userlevel), running any shell command.
inline constexpr int kReadLevel = 1, kWriteLevel = 2, kShellLevel = 3;

} // namespace talux::kepl

#endif
