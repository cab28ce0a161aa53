// Decisions about variable terms: the parts of the term, and every check in its order.
#include <algorithm>
#include <functional>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/kepl/Decision.h"
#include "ParamSystem/kepl/Words.h"
#include "ParamSystem/rules/Facts.h"
#include "ParamSystem/store/Kinds.h"
#include "support/Parse.h"
#include "support/Text.h"

namespace talux::kepl {

namespace {

constexpr int kSecurityLevel = 3;

// ---- Parts --------------------------------------------------------------------------------------------

// Leaves the style alone when the word is no option.
void takeOption(std::string_view word, Style& style) {
    for (const StyleRow& each : kStyles)
        if (!word.empty() && word == each.option) style = each.style;
}

void takeIndices(std::string_view word, VariableTerm& parts) {
    for (VarLong* const index : {&parts.first, &parts.last}) {
        const std::string_view piece = takeWord(word, '.');
        if (piece.empty()) break;
        ++parts.indices;
        if (parseLong(piece, index) != kParsed) parts.indicesAreNumbers = false;
    }
    if (parts.indices == 1) parts.last = parts.first;
}

bool isBlank(char c) {
    return c == ' ' || c == '\r' || c == '\n';
}

// The next word of what precedes the value.
std::string_view takeLeftWord(std::string_view& rest) {
    takeUntil(rest, [](char c) { return !isBlank(c); });
    return takeUntil(rest, [](char c) { return c == '=' || c == ' ' || c == '\r' || c == '\n'; });
}

// What may follow the name: an option or an index, then an option. Further words do not count.
void takeSecondAndThird(std::string_view& rest, VariableTerm& parts) {
    const std::string_view second = takeLeftWord(rest);
    if (second.starts_with('-'))
        takeOption(second, parts.style);
    else
        takeIndices(second, parts);
    takeOption(takeLeftWord(rest), parts.style);
    takeUntil(rest, [](char c) { return c == '='; });
}

VariableTerm partsOf(std::string_view term) {
    VariableTerm parts{term};
    if (term.size() > kKeplMaxTerm) return parts;
    std::string_view rest = withoutLeading(term, '=');
    const std::string_view name = takeLeftWord(rest);
    if (!name.empty()) parts.name = name;
    if (rest.empty()) return parts;
    if (rest.front() != '=') takeSecondAndThird(rest, parts);
    rest = withoutLeading(rest, '=');
    const std::string_view right = takeUntil(rest, [](char c) { return c == '='; });
    if (!right.empty()) parts.value.emplace(withoutLeading(right, ' '));
    return parts;
}

// ---- Checks -------------------------------------------------------------------------------------------

// Each check is true when it allows the term, and otherwise refuses it: the first one of read() or write()
// that fails decides.
class Checks {
public:
    Checks(VariableDecision& made, int callersUid) : decision(made), parts(made.term), uid(callersUid) {}

    void read() {
        const bool isAllowed = indicesAreNumbers() && mayRead() && isKnown() && isReadable() &&
                               indexIsWanted() && (parts.indices < 2 ? indexFits() : rangeFits());
        if (isAllowed) allowRead();
    }

    void write() {
        const bool isAllowed = indicesAreNumbers() && mayWrite() && hasValue() && isKnown() && note() &&
                               isWritable() && hasLevel() && indexIsWanted() && indexFits();
        if (isAllowed) checkValue();
    }

private:
    VariableDecision& decision;
    const VariableTerm& parts;
    const int uid;

    const stParamProperties& row() const { return *decision.row; }

    // Of the first element that is read or written.
    int id() const { return row().id + (parts.indices == 0 ? 0 : static_cast<int>(parts.first) - 1); }

    // Returns the condition; if it is false, the refusal is decided.
    bool demand(bool holds, Refusal refusal) {
        if (!holds) decision.action = Refused{refusal};
        return holds;
    }

    bool indicesAreNumbers() { return demand(parts.indicesAreNumbers, Refusal::indexNotANumber); }

    bool mayRead() { return demand(uid >= kReadLevel, Refusal::rightsTooLow); }

    bool mayWrite() {
        return demand(uid >= kWriteLevel || equalIgnoringCase(parts.name, kOpenToReaders),
                      Refusal::rightsTooLow);
    }

    bool hasValue() { return demand(!parts.value->empty(), Refusal::syntaxError); }

    bool isKnown() { return demand(decision.row != nullptr, Refusal::syntaxError); }

    bool isReadable() { return demand(row().val_access != kWriteOnly, Refusal::writeOnly); }

    bool isWritable() { return demand(!rules::factsOf(row()).isReadOnly, Refusal::readOnly); }

    // Attempts on security parameters are noted even if they are refused from here on.
    bool note() {
        decision.isNoted = row().userlevel >= kSecurityLevel;
        return true;
    }

    bool hasLevel() { return demand(uid >= row().userlevel, Refusal::rightsTooLow); }

    // An index is given if and only if the parameter needs one.
    bool indexIsWanted() {
        if (parts.indices == 0)
            return demand(row().val_min_id <= 0 || row().val_max_id <= 0, Refusal::indexRequired);
        return demand(row().val_min_id != 0 || row().val_max_id != 0, Refusal::noIndexAllowed);
    }

    bool fits(VarLong index, Refusal tooLow, Refusal tooHigh) {
        return demand(index >= row().val_min_id, tooLow) && demand(index <= row().val_max_id, tooHigh);
    }

    // A write ignores the second index.
    bool indexFits() {
        return parts.indices == 0 || fits(parts.first, Refusal::indexTooLow, Refusal::indexTooHigh);
    }

    bool rangeFits() {
        return fits(parts.first, Refusal::index1TooLow, Refusal::index1TooHigh) &&
               fits(parts.last, Refusal::index2TooLow, Refusal::index2TooHigh) &&
               demand(parts.first <= parts.last, Refusal::index1GreaterThanIndex2);
    }

    void allowRead() {
        if (parts.indices > 0)
            decision.action = ReadElements{id()};
        else if (typeOf(row()).nature == Nature::record && holds(Kind::Struct, row().id))
            decision.action = ReadRecord{};
        else
            decision.action = ReadScalar{};
    }

    void checkValue() {
        switch (typeOf(row()).nature) {
        case Nature::text:
        case Nature::address:
            decision.action = WriteText{id(), unquoted(*parts.value)};
            return;
        case Nature::date:
            return checkClock('-');
        case Nature::time:
            return checkClock(':');
        case Nature::none: // commands and records: the number is checked, the store keeps nothing
        case Nature::record:
        case Nature::number:
            return checkNumber();
        }
    }

    // Three numbers, whatever they are; double quotes may enclose them.
    void checkClock(char separator) {
        std::string_view rest = *parts.value;
        const auto takeNumber = [&](VarLong& number) {
            const auto isBetween = [=](char c) { return c == separator || c == '"'; };
            takeUntil(rest, std::not_fn(isBetween));
            return parseLong(takeUntil(rest, isBetween), &number) == kParsed;
        };
        SetClock set{id(), {}};
        if (demand(std::ranges::all_of(set.numbers, takeNumber), Refusal::syntaxError)) decision.action = set;
    }

    void checkNumber() {
        const std::optional<double> number = numberIn(*parts.value);
        const Reason reason = rules::check(rules::factsOf(row()), number, rules::kLanguageRefuses).reason;
        if (demand(reason == Reason::none, reason == Reason::tooLow    ? Refusal::valueTooLow
                                           : reason == Reason::tooHigh ? Refusal::valueTooHigh
                                                                       : Refusal::syntaxError))
            decision.action = WriteNumber{id(), *number};
    }

    // A text that begins with a double quote loses its first and its last character.
    static std::string_view unquoted(std::string_view text) {
        if (!text.starts_with('"')) return text;
        text.remove_prefix(1);
        return text.substr(0, text.size() - !text.empty()); // a single quote becomes an empty text
    }
};

} // namespace

VariableDecision::VariableDecision(std::string_view text, int uid)
    : term(partsOf(text)), row(findParameter(term.name)) {
    Checks checks(*this, uid);
    if (term.value)
        checks.write();
    else
        checks.read();
}

} // namespace talux::kepl
