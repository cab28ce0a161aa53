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

// Below full rights the version files of the device may be shown. This keeps mistakes out, not intent: any
// command with both words in it passes.
bool mayRun(std::string_view term, int uid) {
    return uid >= kShellLevel || (contains(term, "cat") && contains(term, ".version"));
}

// What a shell command must not contain on a board.
std::span<const std::string_view> forbiddenOn(int board) {
    return board == kOtherBoard ? std::span<const std::string_view>() : rowOf(kBoards, board).forbidden;
}

void decideShell(Decision& decision, std::string_view term, int uid, int board) {
    if (!mayRun(term, uid)) {
        decision.refusal = Refusal::rightsTooLow;
        return;
    }
    decision.isNoted = true;
    takeWord(term, ' ');
    decision.words = withoutLeading(term, ' ');
    const auto forbidden = [&](std::string_view part) { return contains(decision.words, part); };
    if (decision.words.empty())
        decision.action = Action::askForShell;
    else
        decision.action =
            std::ranges::any_of(forbiddenOn(board), forbidden) ? Action::endProcess : Action::shell;
}

void decideFile(Decision& decision, std::string_view term, int uid, const CommandRow& word) {
    if (uid < word.lowestUid) {
        decision.refusal = Refusal::rightsTooLow;
        return;
    }
    decision.action = Action::command;
    if (!word.takesFile) return;
    takeWord(term, ' ');
    decision.words = takeWord(term, ' ');
}

void decideNumber(Decision& decision, std::string_view term) {
    const std::optional<double> number = numberIn(term);
    if (!number) {
        decision.refusal = Refusal::syntaxError;
        return;
    }
    decision.action = Action::push;
    decision.value.emplace(*number);
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

void decideCommand(Decision& decision, std::string_view term, int uid, int board, const CommandRow& word) {
    decision.command = word.command;
    if (word.command == Command::shell)
        decideShell(decision, term, uid, board);
    else
        decideFile(decision, term, uid, word);
}

Decision decideOther(std::string_view term, int uid, int board) {
    Decision decision;
    decision.term = term;
    const bool mayBeWord = !beginsWithDigit(term); // as no word does
    if (const OperationRow* const operation = mayBeWord ? operationOf(term) : nullptr) {
        decision.action = Action::compute;
        decision.operation = operation->operation;
    } else if (const CommandRow* const command = mayBeWord ? commandOf(term) : nullptr) {
        decideCommand(decision, term, uid, board, *command);
    } else {
        decideNumber(decision, term);
    }
    return decision;
}

} // namespace

Decision decide(std::string_view term, int uid, int board) {
    return hasPrefix(term) ? decideVariable(after(term, kPrefixLength), uid) : decideOther(term, uid, board);
}

bool hasPrefix(std::string_view term) {
    return startsIgnoringCase(term, kPrefixes[0]) || startsIgnoringCase(term, kPrefixes[1]);
}

} // namespace talux::kepl
