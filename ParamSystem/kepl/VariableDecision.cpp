// Decisions about variable terms: the parts of the term, and every check in its order.
#include <algorithm>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/kepl/Decision.h"
#include "ParamSystem/kepl/Words.h"
#include "ParamSystem/rules/Facts.h"
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

// What may follow the name: an option or an index, then an option.
void takeSecondAndThird(std::string_view second, std::string_view third, VariableTerm& parts) {
    if (second.starts_with('-'))
        takeOption(second, parts.style);
    else
        takeIndices(second, parts);
    takeOption(third, parts.style);
}

std::string_view takeBlankSeparated(std::string_view& rest) {
    return takeWordOf(rest, [](char c) { return c == ' ' || c == '\r' || c == '\n'; });
}

void takeParts(std::string_view term, VariableTerm& parts) {
    if (term.size() > kKeplMaxTerm) return;
    std::string_view left = takeWord(term, '=');
    const std::string_view right = takeWord(term, '=');
    if (!right.empty()) parts.value = withoutLeading(right, ' ');

    const std::string_view name = takeBlankSeparated(left);
    if (!name.empty()) parts.name = name;
    if (left.empty()) return;
    const std::string_view second = takeBlankSeparated(left);
    takeSecondAndThird(second, takeBlankSeparated(left), parts);
}

// ---- Checks -------------------------------------------------------------------------------------------

// Each check is true when it allows the term, and otherwise names the refusal: the first one of
// read() or write() that fails decides.
class Checks {
public:
    Checks(Decision& made, int callersUid) : decision(made), parts(made.variable), uid(callersUid) {}

    bool read() {
        return indicesAreNumbers() && mayRead() && isKnown() && isReadable() && indexIsWanted() &&
               (parts.indices < 2 ? indexFits() : rangeFits());
    }

    bool write() {
        return indicesAreNumbers() && mayWrite() && hasValue() && isKnown() && note() && isWritable() &&
               hasLevel() && indexIsWanted() && indexFits() && valueFits();
    }

private:
    Decision& decision;
    const VariableTerm& parts;
    const int uid;

    const stParamProperties& row() const { return *decision.row; }

    // Whether it holds; if not, that is the refusal.
    bool demand(bool holds, Refusal refusal) {
        if (!holds) decision.refusal = refusal;
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

    // An index is given where one is needed, and none where none is.
    bool indexIsWanted() {
        if (parts.indices == 0)
            return demand(row().val_min_id <= 0 || row().val_max_id <= 0, Refusal::indexRequired);
        return demand(row().val_min_id != 0 || row().val_max_id != 0, Refusal::noIndexAllowed);
    }

    bool fits(VarLong index, Refusal tooLow, Refusal tooHigh) {
        return demand(index >= row().val_min_id, tooLow) && demand(index <= row().val_max_id, tooHigh);
    }

    // Of a write, the second index does not count.
    bool indexFits() {
        return parts.indices == 0 || fits(parts.first, Refusal::indexTooLow, Refusal::indexTooHigh);
    }

    bool rangeFits() {
        return fits(parts.first, Refusal::index1TooLow, Refusal::index1TooHigh) &&
               fits(parts.last, Refusal::index2TooLow, Refusal::index2TooHigh) &&
               demand(parts.first <= parts.last, Refusal::index1GreaterThanIndex2);
    }

    bool valueFits() {
        switch (typeOf(row()).nature) {
        case Nature::text:
        case Nature::address:
            decision.value.emplace(unquoted(*parts.value));
            return true;
        case Nature::date:
            return clockFits('-');
        case Nature::time:
            return clockFits(':');
        case Nature::none: // commands and records: the number is checked, the store keeps nothing
        case Nature::record:
        case Nature::number:
            break;
        }
        return numberFits();
    }

    // Three numbers, whatever they are; double quotes may enclose them.
    bool clockFits(char separator) {
        std::string_view rest = *parts.value;
        const auto takeNumber = [&](VarLong& number) {
            const auto ends = [=](char c) { return c == separator || c == '"'; };
            return parseLong(takeWordOf(rest, ends), &number) == kParsed;
        };
        return demand(std::ranges::all_of(decision.clock, takeNumber), Refusal::syntaxError);
    }

    bool numberFits() {
        const std::optional<double> number = numberIn(*parts.value);
        if (number) decision.value.emplace(*number);
        const Reason reason = rules::check(rules::factsOf(row()), number, rules::kLanguageRefuses).reason;
        return demand(reason == Reason::none, reason == Reason::tooLow    ? Refusal::valueTooLow
                                              : reason == Reason::tooHigh ? Refusal::valueTooHigh
                                                                          : Refusal::syntaxError);
    }

    // A text that begins with a double quote loses its first and its last character.
    static std::string_view unquoted(std::string_view text) {
        if (!text.starts_with('"')) return text;
        text.remove_prefix(1);
        return text.substr(0, text.size() - !text.empty()); // of a lone quote nothing is left
    }
};

Action readOf(const Decision& decision) {
    if (decision.variable.indices > 0) return Action::readElements;
    const bool isRecord =
        typeOf(*decision.row).nature == Nature::record && holds(Kind::Struct, decision.row->id);
    return isRecord ? Action::readRecord : Action::readScalar;
}

Action writeOf(const Decision& decision) {
    const Nature nature = typeOf(*decision.row).nature;
    return nature == Nature::date || nature == Nature::time ? Action::setClock : Action::write;
}

} // namespace

Decision decideVariable(std::string_view term, int uid) {
    Decision decision;
    decision.term = term;
    decision.isVariable = true;
    takeParts(term, decision.variable);
    decision.row = findParameter(decision.variable.name);
    const bool isWrite = decision.variable.value.has_value();
    Checks checks(decision, uid);
    if (!(isWrite ? checks.write() : checks.read())) return decision;
    decision.action = isWrite ? writeOf(decision) : readOf(decision);
    const int element = decision.variable.indices == 0 ? 0 : static_cast<int>(decision.variable.first) - 1;
    decision.id = decision.row->id + element;
    return decision;
}

} // namespace talux::kepl
