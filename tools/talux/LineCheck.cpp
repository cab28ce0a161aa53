#include "tools/talux/LineCheck.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

#include "ParamSystem/kepl/Dump.h"
#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/kepl/Words.h"
#include "support/Parse.h"
#include "support/Text.h"
#include "tools/talux/Plausibility.h"

namespace talux::tool {

namespace {

using kepl::Decision, kepl::Refusal, kepl::VariableDecision;

// What the language stores without a message.
constexpr rules::Reasons kUnnoticed{Reason::noChoice, Reason::notWhole,     Reason::notCarried,
                                    Reason::tooLong,  Reason::tooManyBytes, Reason::noAddress,
                                    Reason::noNetmask};

std::string objectionTo(const std::string& value, const rules::Objection& objection,
                        const Parameter& parameter, const Context& context) {
    return value + " " + describe(objection, parameter, context.language);
}

// ---- Reasons of refusals --------------------------------------------------------------------------------

std::string nameReason(std::string_view name, const Context& context) {
    if (name == kepl::VariableTerm().name)
        return context.say("there is no name after the prefix", "hinter dem Vorsatz steht kein Name");
    return unknownName(name, context);
}

// Of what is neither a variable nor a word nor a number.
std::string termReason(std::string_view term, const Context& context) {
    const std::string_view name = term.substr(0, term.find_first_of(" ="));
    if (const Parameter* parameter = reference::find(name); parameter != nullptr)
        return context.say("parameters are written with a prefix: TLX_{}{}",
                           "Parameter stehen mit Vorsatz: TLX_{}{}", parameter->name(),
                           printable(term.substr(name.size())));
    return context.say("'{}' is not a number, command, parameter, operator or function",
                       "'{}' ist weder Zahl noch Befehl, Parameter, Operator oder Funktion", printable(term));
}

std::string syntaxReason(const VariableDecision& decision, const Context& context) {
    if (decision.row == nullptr) return nameReason(decision.term.name, context);
    const std::string value = printable(decision.term.value.value_or(""));
    if (value.empty()) return context.say("there is no value after =", "hinter = steht kein Wert");
    const Nature nature = typeOf(*decision.row).nature;
    const Reason reason = nature == Nature::date   ? Reason::noDate
                          : nature == Nature::time ? Reason::noTime
                                                   : Reason::noNumber;
    return objectionTo("'" + value + "'", {reason}, *reference::find(decision.row->name), context);
}

std::string levelReason(int level, const Context& context) {
    return context.say("needs rights level {}", "verlangt Rechtestufe {}", level);
}

// ---- Lines ----------------------------------------------------------------------------------------------

struct LineChecker {
    const std::string_view line;
    const LineAsked& asked;
    const Context& context;
    std::vector<LineFinding> findings{};
    bool isRefused = false;                     // so the line ends
    std::map<const Parameter*, Value> values{}; // that the line writes
    std::map<const Parameter*, std::size_t> positions{};
    int depth = 0;                            // values on the stack
    bool topIsZero = false;                   // a literal 0 lies on top
    const Parameter* numberWritten = nullptr; // by the term before
    std::string_view written{};               // by it

    // The present term.
    std::string_view text{}; // between the commas
    std::string_view term{};
    bool isLast = false;
    Decision decision{};
    const VariableDecision* variable = nullptr; // of a variable term
    const Parameter* subject = nullptr;         // of one with a known name

    std::vector<LineFinding> run() {
        term = line;
        if (line.size() > kKeplMaxLine)
            refuse(context.say("{} characters: a line of more than 254 is refused whole",
                               "{} Zeichen: eine Zeile mit mehr als 254 wird ganz abgelehnt", line.size()));
        else if (asked.isWhole && !line.empty() && line.find_first_not_of(',') == line.npos)
            refuse(context.say("the line has no value to answer", "die Zeile hat keinen Wert zu antworten"));
        for (std::string_view rest = line; !isRefused && takeTerm(rest);)
            if (isLast && !asked.isWhole)
                checkHead();
            else
                checkTerm();
        if (isRefused) return findings;
        for (Implausible& found : findFaults(values, context))
            findings.push_back({positions[found.parameters.front()], std::move(found.text), false});
        return findings;
    }

    bool takeTerm(std::string_view& rest) {
        text = kepl::withoutLeading(rest, ',');
        if (!kepl::takeTerm(rest, term)) return false;
        text.remove_suffix(rest.size());
        isLast = rest.empty();
        decision = kepl::decide(term, asked.uid);
        variable = decision.get<VariableDecision>();
        const bool isKnown = variable != nullptr && variable->row != nullptr;
        subject = isKnown ? reference::find(variable->row->name) : nullptr;
        return true;
    }

    std::size_t position() const { return static_cast<std::size_t>(term.data() - line.data()); }

    // A finding names what it is about.
    void add(std::string finding) {
        if (subject != nullptr && finding.find(subject->name()) == finding.npos)
            finding = joined({subject->name(), ": ", finding});
        findings.push_back({position(), std::move(finding), isRefused});
    }
    template <class... Pieces>
    void say(PatternFor<Pieces...> english, PatternFor<Pieces...> german, const Pieces&... pieces) {
        add(context.say(english, german, pieces...));
    }
    void refuse(std::string reason) {
        isRefused = true;
        add(std::move(reason));
    }

    void checkTerm() {
        if (text.size() > kKeplMaxTerm)
            say("more than 127 characters: the term is cut",
                "mehr als 127 Zeichen: der Term wird abgeschnitten");
        if (decision.isRefused()) return refuse(reasonOf(decision, context) + choiceMeant());
        const auto* const push = decision.get<kepl::PushNumber>();
        if (push != nullptr) checkNumber();
        if (const auto* const compute = decision.get<kepl::Compute>()) checkOperation(compute->operation);
        if (const auto* const run = decision.get<kepl::RunCommand>()) checkCommand(*run);
        if (variable != nullptr) checkVariable();
        topIsZero = push != nullptr && push->number == 0;
        const bool writesNumber = variable != nullptr && variable->get<kepl::WriteNumber>() != nullptr;
        numberWritten = writesNumber ? subject : nullptr;
        written = writesNumber ? *variable->term.value : "";
    }

    // The language takes numbers of choices only.
    std::string choiceMeant() const {
        if (subject == nullptr || !variable->term.value) return {};
        for (const auto& meaning : reference::meaningsOf(*variable->term.value, context.language))
            if (meaning.isOf(*subject) && std::to_string(meaning.choice.number) != *variable->term.value)
                return context.say("; the number of this choice is {}", "; die Nummer dieser Auswahl ist {}",
                                   meaning.choice.number);
        return {};
    }

    void checkNumber() {
        ++depth;
        if (numberWritten == nullptr || !isLast) return;
        const std::string_view name = numberWritten->name();
        say("{} becomes {}: a comma ends the term. For {}.{} write TLX_{}={}.{}",
            "{} wird {}: ein Komma beendet den Term. Für {}.{} schreiben Sie TLX_{}={}.{}", name, written,
            written, text, name, written, text);
    }

    void checkOperation(kepl::Operation operation) {
        const int operands = rowOf(kepl::kOperations, operation).operands;
        if (depth < operands)
            refuse(context.say("takes {} values from the stack, there are {}",
                               "nimmt {} Werte vom Stapel, da sind {}", operands, depth));
        else if (operation == kepl::Operation::divide && topIsZero)
            refuse(context.say("divides by zero", "teilt durch null"));
        depth -= operands - 1;
    }

    // Only the beginning of a command counts, and only two of them take a file name, up to a blank.
    void checkCommand(const kepl::RunCommand& run) {
        const std::string_view command = rowOf(kepl::kCommands, run.command).word;
        std::string_view rest = term;
        const std::string_view word = kepl::takeWord(rest, ' ');
        if (word.size() > command.size())
            say("{} is carried out as {}: what follows does not count",
                "{} wird als {} ausgeführt: was folgt, zählt nicht", printable(word), command);
        if (!run.file.empty()) kepl::takeWord(rest, ' ');
        const std::string ignored = printable(kepl::withoutLeading(rest, ' '));
        if (!ignored.empty() && run.file.empty())
            say("{} takes no file name: {} is ignored", "{} nimmt keinen Dateinamen: {} bleibt unbeachtet",
                command, ignored);
        else if (!ignored.empty())
            say("loads {}: a blank ends the file name, {} is ignored",
                "lädt {}: ein Leerzeichen beendet den Dateinamen, {} bleibt unbeachtet", printable(run.file),
                ignored);
    }

    void checkVariable() {
        if (variable->get<kepl::ReadScalar>() != nullptr && !isText(*variable->row)) ++depth;
        if (const auto* const write = variable->get<kepl::WriteNumber>())
            checkValue(write->number, reference::shortNumber(write->number));
        if (const auto* const write = variable->get<kepl::WriteText>()) checkText(write->text);
        if (const auto* const set = variable->get<kepl::SetClock>()) checkClock(set->numbers);
        const std::string_view right = term.substr(std::min(term.find('='), term.size()));
        if (variable->term.value && kepl::withoutLeading(right, '=').find('=') != right.npos)
            say("a second = ends the value", "ein zweites = beendet den Wert");
        if (const std::size_t length = shortestAnswer(); length > asked.answerRoom)
            say("the answer has at least {} characters, {} fit: read less at once",
                "die Antwort hat mindestens {} Zeichen, {} passen: weniger auf einmal lesen", length,
                asked.answerRoom);
    }

    // A number or a text that the line writes.
    template <class Given>
    void checkValue(const Given& given, const std::string& shown) {
        values.insert_or_assign(subject, Value(given));
        positions.insert_or_assign(subject, position());
        rules::forEachObjection(subject->facts(), given, kUnnoticed, [&](const rules::Objection& objection) {
            add(objectionTo(shown, objection, *subject, context));
        });
    }

    void checkText(std::string_view stored) {
        const std::string_view value = *variable->term.value;
        const bool isUnclosed = value.starts_with('"') && (value.size() < 2 || !value.ends_with('"'));
        if (isUnclosed && isLast)
            say("the text begins with a quote and loses its last character, which is none",
                "der Text beginnt mit einem Anführungszeichen und verliert sein letztes Zeichen, das keines "
                "ist");
        else if (isUnclosed)
            say("a comma always ends the text, even in quotes",
                "ein Komma beendet den Text, was auch immer ihn umgibt");
        checkValue(stored, "'" + printable(stored) + "'");
    }

    // The language takes any three numbers.
    void checkClock(const VarLong (&numbers)[3]) {
        const bool isDate = typeOf(*variable->row).nature == Nature::date;
        const long first = numbers[0], second = numbers[1], third = numbers[2];
        char moment[40];
        formatText(moment, sizeof moment, isDate ? "%ld-%02ld-%02ld" : "%02ld:%02ld:%02ld", first, second,
                   third);
        if (const auto objection =
                rules::check(subject->facts(), std::string_view(moment), {Reason::noDate, Reason::noTime}))
            add(objectionTo("'" + printable(*variable->term.value) + "'", objection, *subject, context));
    }

    // Characters of the answer when every value is 0.
    std::size_t shortestAnswer() const {
        const kepl::VariableTerm& read = variable->term;
        std::size_t length = 0;
        bool isFirst = true;
        const auto addItem = [&](std::string_view separator, std::string_view label, const Type& type) {
            char shown[kKeplTextSize];
            kepl::Answer answer(shown);
            const kepl::NumberText zero(0, type.shownDecimals);
            const kepl::NumberBytes bytes = kepl::encode(0, type.code);
            dump(answer, read.style, subject->name(),
                 {separator, label, zero.view(), bytes.view(), std::exchange(isFirst, false)});
            length += std::strlen(shown);
        };
        if (variable->get<kepl::ReadRecord>() != nullptr) {
            length = std::strlen("STRUCT:\n");
            for (const auto& member : reference::members(*subject))
                addItem(".", member.aszMemberName, typeOf(memberType(member.szMemberType)));
        }
        if (variable->get<kepl::ReadElements>() != nullptr) {
            length = read.last - read.first > 1 ? std::strlen("ARRAY:\n") : 0;
            for (VarLong k = read.first; k <= read.last; ++k)
                addItem(" ", std::to_string(k), subject->type());
        }
        return length;
    }

    // The last term, of which only the head is known: its name, when something follows it, and whether that
    // may be written.
    void checkHead() {
        if (variable == nullptr) return; // a number or a command may become anything
        const std::string_view rest = term.substr(std::min(term.find_first_of(" =\r\n", 4), term.size()));
        if (rest.empty()) return checkUnfinishedName(term.substr(4));
        if (subject == nullptr) return refuse(nameReason(variable->term.name, context));
        if (rest.find('=') != rest.npos) checkHeadOfWrite();
    }

    void checkUnfinishedName(std::string_view head) {
        const auto begins = [&](const Parameter& each) { return startsIgnoringCase(each.name(), head); };
        if (reference::chosen(begins).empty())
            refuse(context.say("no name begins with {}", "kein Name beginnt mit {}", head));
    }

    // With a value that would be accepted: whatever is refused then is refused with any value.
    void checkHeadOfWrite() {
        const Nature nature = subject->type().nature;
        const std::string value = nature == Nature::date   ? "2024-01-01"
                                  : nature == Nature::time ? "00:00:00"
                                                           : reference::shortNumber(subject->lowestNumber());
        const std::string whole = joined({term.substr(0, term.find('=')), "=", value});
        const Decision accepted = kepl::decide(whole, asked.uid);
        if (accepted.isRefused()) refuse(reasonOf(accepted, context));
    }
};

std::string reasonOf(Refusal refusal, const VariableDecision& decision, const Context& context) {
    const stParamProperties* const row = decision.row;
    switch (refusal) {
    case Refusal::indexNotANumber:
        return context.say(
            "after the name comes an index, a range such as 1.5, or an option: -p, -c, -h",
            "hinter dem Namen steht ein Index, ein Bereich wie 1.5 oder eine Option: -p, -c, -h");
    case Refusal::syntaxError:
        return syntaxReason(decision, context);
    case Refusal::noIndexAllowed:
        return context.say("{} has no elements", "{} hat keine Elemente", row->name);
    case Refusal::valueTooLow:
    case Refusal::valueTooHigh:
        return objectionTo(reference::shortNumber(*numberIn(*decision.term.value)), {Reason::tooLow},
                           *reference::find(row->name), context);
    case Refusal::indexRequired:
    case Refusal::indexTooLow:
    case Refusal::indexTooHigh:
    case Refusal::index1TooLow:
    case Refusal::index1TooHigh:
    case Refusal::index2TooLow:
    case Refusal::index2TooHigh:
        return context.say("elements are {} to {}: TLX_{} {}", "Elemente sind {} bis {}: TLX_{} {}",
                           row->val_min_id, row->val_max_id, row->name, row->val_max_id);
    case Refusal::index1GreaterThanIndex2:
        return context.say("the range runs backwards", "der Bereich läuft rückwärts");
    case Refusal::readOnly:
        return context.say("{} can only be read", "{} kann nur gelesen werden", row->name);
    case Refusal::writeOnly:
        return context.say("{} can only be written", "{} kann nur geschrieben werden", row->name);
    case Refusal::rightsTooLow:
        return levelReason(!decision.term.value ? kepl::kReadLevel
                           : row                ? rules::levelToWrite(*row)
                                                : kepl::kWriteLevel,
                           context);
    case Refusal::none:
    case Refusal::bufferOverflow: // this and the following show only when a line is carried out
    case Refusal::divisionByZero:
    case Refusal::negativeRoot:
    case Refusal::typeUnknown:
        break;
    }
    return {};
}

} // namespace

std::string reasonOf(const VariableDecision& decision, const Context& context) {
    const auto* const refused = decision.get<kepl::Refused>();
    return refused == nullptr ? "" : reasonOf(refused->refusal, decision, context);
}

std::string reasonOf(const Decision& decision, const Context& context) {
    if (const auto* const variable = decision.get<VariableDecision>()) return reasonOf(*variable, context);
    if (const auto* const rights = decision.get<kepl::RightsTooLow>())
        return levelReason(rights->level, context);
    return decision.isRefused() ? termReason(decision.term, context) : "";
}

std::vector<LineFinding> checkLine(std::string_view line, const LineAsked& asked, const Context& context) {
    return LineChecker{line, asked, context}.run();
}

} // namespace talux::tool
