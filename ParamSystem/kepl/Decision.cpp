#include "ParamSystem/kepl/Decision.h"

#include <algorithm>

#include "ParamSystem/kepl/Words.h"
#include "support/Parse.h"
#include "support/Text.h"

namespace talux::kepl {

namespace {

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// Below full rights the version files of the device may be shown. This prevents mistakes, not abuse: any
// command with both words in it passes.
bool mayRun(std::string_view term, int uid) {
    return uid >= kShellLevel || (contains(term, "cat") && contains(term, ".version"));
}

// What a shell command must not contain on a board.
std::span<const std::string_view> forbiddenOn(int board) {
    return board == kOtherBoard ? std::span<const std::string_view>() : rowOf(kBoards, board).forbidden;
}

Action decideShell(std::string_view term, int uid, int board) {
    if (!mayRun(term, uid)) return RightsTooLow{kShellLevel};
    takeWord(term, ' ');
    const std::string_view command = withoutLeading(term, ' ');
    const auto isInside = [=](std::string_view part) { return contains(command, part); };
    return RunShell{command, std::ranges::any_of(forbiddenOn(board), isInside)};
}

Action decideCommand(std::string_view term, int uid, int board, const CommandRow& word) {
    if (word.command == Command::shell) return decideShell(term, uid, board);
    if (uid < word.lowestUid) return RightsTooLow{word.lowestUid};
    if (!word.takesFile) return RunCommand{word.command, {}};
    takeWord(term, ' ');
    return RunCommand{word.command, takeWord(term, ' ')};
}

Action decideNumber(std::string_view term) {
    const std::optional<double> number = numberIn(term);
    if (!number) return SyntaxError{};
    return PushNumber{*number};
}

bool beginsWithDigit(std::string_view term) {
    return !term.empty() && term.front() >= '0' && term.front() <= '9';
}

const CommandRow* commandOf(std::string_view term) {
    const auto begins = [=](const CommandRow& known) { return startsIgnoringCase(term, known.word); };
    const auto* const found = std::ranges::find_if(kCommands, begins);
    return found == std::end(kCommands) ? nullptr : found;
}

const OperationRow* operationOf(std::string_view term) {
    const auto equals = [=](const OperationRow& known) { return equalIgnoringCase(term, known.word); };
    const auto* const found = std::ranges::find_if(kOperations, equals);
    return found == std::end(kOperations) ? nullptr : found;
}

} // namespace

Action decideOther(std::string_view term, int uid, int board) {
    if (beginsWithDigit(term)) return decideNumber(term); // no word does
    if (const OperationRow* const operation = operationOf(term)) return Compute{operation->operation};
    if (const CommandRow* const command = commandOf(term)) return decideCommand(term, uid, board, *command);
    return decideNumber(term);
}

} // namespace talux::kepl
