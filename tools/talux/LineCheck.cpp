#include "tools/talux/LineCheck.h"

#include <algorithm>
#include <map>

#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/kepl/Words.h"
#include "support/Text.h"
#include "tools/talux/Judgement.h"
#include "tools/talux/Lookup.h"
#include "tools/talux/Plausibility.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

using kepl::Action;
using kepl::Decision;
using kepl::Refusal;

// What the language stores and says nothing of.
constexpr rules::Reasons kUnnoticed{Reason::noChoice, Reason::notWhole,     Reason::notCarried,
                                    Reason::tooLong,  Reason::tooManyBytes, Reason::noAddress,
                                    Reason::noNetmask};

const Parameter* parameterOf(const Decision& decision) {
    return decision.row == nullptr ? nullptr : reference::find(decision.row->name);
}

std::string objectionTo(const std::string& value, const rules::Objection& objection,
                        const Parameter& parameter, const Context& context) {
    return value + " " + describe(objection, parameter, context.language);
}

std::string nameReason(std::string_view name, const Context& context) {
    if (name == kepl::VariableTerm().name)
        return context.say("there is no name after the prefix", "hinter dem Vorsatz steht kein Name");
    return unknownName(name, context);
}

std::string syntaxReason(const Decision& decision, const Context& context) {
    const std::string term = printable(decision.term);
    if (!decision.isVariable) {
        const std::string_view name = decision.term.substr(0, decision.term.find_first_of(" ="));
        if (const Parameter* parameter = reference::find(name); parameter != nullptr && !name.empty())
            return fill(context.say("parameters are written with a prefix: TLX_{}",
                                    "Parameter stehen mit Vorsatz: TLX_{}"),
                        {joined({parameter->name(), printable(decision.term.substr(name.size()))})});
        return fill(context.say("'{}' is not a number, command, parameter, operator or function",
                                "'{}' ist weder Zahl noch Befehl, Parameter, Operator oder Funktion"),
                    {term});
    }
    if (decision.row == nullptr) return nameReason(decision.variable.name, context);
    const std::string value = printable(decision.variable.value.value_or(""));
    if (value.empty()) return context.say("there is no value after =", "hinter = steht kein Wert");
    const Nature nature = typeOf(*decision.row).nature;
    const Reason reason = nature == Nature::date   ? Reason::noDate
                          : nature == Nature::time ? Reason::noTime
                                                   : Reason::noNumber;
    return objectionTo("'" + value + "'", {reason}, *parameterOf(decision), context);
}

std::string rightsReason(const Decision& decision, const Context& context) {
    int level = kepl::kShellLevel;
    if (decision.isVariable && !decision.variable.value) {
        level = kepl::kReadLevel;
    } else if (decision.isVariable) {
        level = std::max(kepl::kWriteLevel, decision.row != nullptr ? decision.row->userlevel : 0);
    } else {
        const bool isShell = decision.command == kepl::Command::shell;
        if (!isShell) level = rowOf(kepl::kCommands, decision.command).lowestUid;
    }
    return fill(context.say("needs rights level {}", "verlangt Rechtestufe {}"), {std::to_string(level)});
}

std::string elementsOf(const stParamProperties& row, const Context& context) {
    return fill(context.say("elements are {} to {}: TLX_{} {}", "Elemente sind {} bis {}: TLX_{} {}"),
                {std::to_string(row.val_min_id), std::to_string(row.val_max_id), row.name,
                 std::to_string(row.val_max_id)});
}

// ---- What happens in silence --------------------------------------------------------------------------

// A term with what follows from its place in the line.
struct Piece {
    std::string_view text; // between the commas
    std::string_view term;
    Decision decision;
    bool isLast;
};

class Look {
public:
    Look(std::string_view lookedAt, const LineAsked& how, const Context& person)
        : line(lookedAt), asked(how), context(person) {}

    std::vector<LineFinding> run() {
        if (line.size() > kKeplMaxLine) {
            add(0,
                fill(context.say("{} characters: a line of more than 254 is refused whole",
                                 "{} Zeichen: eine Zeile mit mehr als 254 wird ganz abgelehnt"),
                     {std::to_string(line.size())}),
                true);
            return findings;
        }
        for (const Piece& piece : pieces()) {
            const bool isHead = piece.isLast && !asked.isWhole;
            if (isHead ? !lookAtHead(piece) : !lookAt(piece)) return findings;
        }
        findFaults(values, context, [this](const Implausible& found) {
            subject = nullptr;
            add(places[found.parameters.front()], found.text);
        });
        if (asked.isWhole && !findings.empty()) return findings;
        if (asked.isWhole && !line.empty() && saysValue && depth == 0)
            add(0, context.say("the line has no value to answer", "die Zeile hat keinen Wert zu antworten"),
                true);
        return findings;
    }

private:
    const std::string_view line;
    const LineAsked& asked;
    const Context& context;
    std::vector<LineFinding> findings;
    std::map<const Parameter*, Value> values; // that the line writes
    std::map<const Parameter*, std::size_t> places;
    int depth = 0;                            // values on the stack
    bool saysValue = true;                    // whether the top of the stack is the answer so far
    bool topIsZero = false;                   // a literal 0 lies on top
    const Parameter* subject = nullptr;       // of a variable term
    const Parameter* numberWritten = nullptr; // by the term before
    std::string_view written;                 // by it

    // Says what it is about.
    void add(std::size_t at, std::string text, bool isRefusal = false) {
        if (subject != nullptr && text.find(subject->name()) == text.npos)
            text = joined({subject->name(), ": ", text});
        findings.push_back({at, std::move(text), isRefusal});
    }
    std::size_t placeOf(const Piece& piece) const {
        return static_cast<std::size_t>(piece.term.data() - line.data());
    }

    std::vector<Piece> pieces() const {
        std::vector<Piece> all;
        std::string_view rest = line;
        for (;;) {
            const std::string_view ahead = kepl::withoutLeading(rest, ',');
            std::string_view term;
            if (!kepl::takeTerm(rest, term)) break;
            const std::string_view text = ahead.substr(0, ahead.size() - rest.size());
            all.push_back({text, term, kepl::decide(term, asked.uid), rest.empty()});
        }
        return all;
    }

    // False when the line ends with this term.
    bool lookAt(const Piece& piece) {
        const Decision& decision = piece.decision;
        subject = parameterOf(decision);
        if (piece.text.size() > kKeplMaxTerm)
            add(placeOf(piece), context.say("more than 127 characters: the term is cut",
                                            "mehr als 127 Zeichen: der Term wird abgeschnitten"));
        if (decision.isRefused()) {
            add(placeOf(piece), reasonOf(decision, context) + choiceMeant(decision), true);
            return false;
        }
        if (!lookAtStack(piece)) return false;
        if (decision.isVariable) lookAtVariable(piece);
        if (decision.action == Action::command) lookAtCommand(piece);
        numberWritten =
            decision.action == Action::write && !isText(*decision.row) ? parameterOf(decision) : nullptr;
        written = decision.variable.value.value_or("");
        return true;
    }

    // The language takes numbers of choices only.
    std::string choiceMeant(const Decision& decision) const {
        if (subject == nullptr || !decision.variable.value) return {};
        for (const Meaning& meaning : meaningsOf(*decision.variable.value, context.language))
            if (std::ranges::find(meaning.bearers, subject) != meaning.bearers.end() &&
                std::to_string(meaning.choice.number) != *decision.variable.value)
                return fill(
                    context.say("; the number of this choice is {}", "; die Nummer dieser Auswahl ist {}"),
                    {std::to_string(meaning.choice.number)});
        return {};
    }

    bool lookAtStack(const Piece& piece) {
        const Decision& decision = piece.decision;
        const bool wasZero = topIsZero;
        topIsZero = false;
        switch (decision.action) {
        case Action::push:
            if (numberWritten != nullptr && piece.isLast)
                add(placeOf(piece),
                    fill(context.say(
                             "{} becomes {}: a comma ends the term. For {}.{} write TLX_{}={}.{}",
                             "{} wird {}: ein Komma beendet den Term. Für {}.{} schreiben Sie TLX_{}={}.{}"),
                         {numberWritten->name(), written, written, piece.text, numberWritten->name(), written,
                          piece.text}));
            ++depth;
            topIsZero = decision.value->number() == 0;
            return true;
        case Action::readScalar:
            saysValue = !isText(*decision.row);
            depth += saysValue ? 1 : 0;
            return true;
        case Action::compute:
            return lookAtOperation(piece, wasZero);
        case Action::write:
        case Action::setClock:
        case Action::readElements:
        case Action::readRecord:
        case Action::command:
        case Action::shell:
        case Action::askForShell:
        case Action::endProcess:
            saysValue = false;
            return true;
        case Action::refuse:
            break;
        }
        return true;
    }

    bool lookAtOperation(const Piece& piece, bool wasZero) {
        const int operands = rowOf(kepl::kOperations, piece.decision.operation).operands;
        if (depth < operands) {
            add(placeOf(piece),
                fill(context.say("takes {} values from the stack, there are {}",
                                 "nimmt {} Werte vom Stapel, da sind {}"),
                     {std::to_string(operands), std::to_string(depth)}),
                true);
            return false;
        }
        if (piece.decision.operation == kepl::Operation::divide && wasZero) {
            add(placeOf(piece), context.say("divides by zero", "teilt durch null"), true);
            return false;
        }
        depth -= operands - 1;
        return true;
    }

    // Only the beginning of a command counts, and only two of them take a file name, up to a blank.
    void lookAtCommand(const Piece& piece) {
        const kepl::CommandRow& row = rowOf(kepl::kCommands, piece.decision.command);
        std::string_view rest = piece.term;
        const std::string_view word = kepl::takeWord(rest, ' ');
        if (word.size() > row.word.size())
            add(placeOf(piece), fill(context.say("{} is carried out as {}: what follows does not count",
                                                 "{} wird als {} ausgeführt: was folgt, zählt nicht"),
                                     {printable(word), row.word}));
        const std::string_view file = row.takesFile ? kepl::takeWord(rest, ' ') : "";
        const std::string_view ignored = kepl::withoutLeading(rest, ' ');
        if (ignored.empty()) return;
        add(placeOf(piece),
            file.empty() ? fill(context.say("{} takes no file name: {} is ignored",
                                            "{} nimmt keinen Dateinamen: {} bleibt unbeachtet"),
                                {row.word, printable(ignored)})
                         : fill(context.say("loads {}: a blank ends the file name, {} is ignored",
                                            "lädt {}: ein Leerzeichen beendet den Dateinamen, {} bleibt "
                                            "unbeachtet"),
                                {printable(file), printable(ignored)}));
    }

    void lookAtVariable(const Piece& piece) {
        const Decision& decision = piece.decision;
        if (decision.action == Action::write) lookAtWrite(piece, *parameterOf(decision));
        const std::string_view behind =
            kepl::withoutLeading(piece.term.substr(std::min(piece.term.find('='), piece.term.size())), '=');
        if (decision.variable.value && behind.find('=') != behind.npos)
            add(placeOf(piece), context.say("a second = ends the value", "ein zweites = beendet den Wert"));
        const std::size_t length = leastAnswer(decision);
        if (length > asked.answerRoom)
            add(placeOf(piece),
                fill(context.say("the answer has at least {} characters, {} fit: read less at once",
                                 "die Antwort hat mindestens {} Zeichen, {} passen: weniger auf einmal "
                                 "lesen"),
                     {std::to_string(length), std::to_string(asked.answerRoom)}));
    }

    void lookAtWrite(const Piece& piece, const Parameter& parameter) {
        const Value& given = *piece.decision.value;
        const std::size_t at = placeOf(piece);
        values.insert_or_assign(&parameter, given);
        places.insert_or_assign(&parameter, at);
        const auto addObjection = [&](const std::string& value) {
            return [&, value](const rules::Objection& objection) {
                add(at, objectionTo(value, objection, parameter, context));
            };
        };
        if (!given.isText())
            return rules::forEachObjection(parameter.facts(), given.number(), kUnnoticed,
                                           addObjection(reference::shortNumber(given.number())));
        const std::string_view value = *piece.decision.variable.value;
        if (value.starts_with('"') && (value.size() < 2 || !value.ends_with('"')))
            add(at,
                piece.isLast
                    ? context.say(
                          "the text begins with a quote and loses its last character, which is none",
                          "der Text beginnt mit einem Anführungszeichen und verliert sein letztes Zeichen, "
                          "das keines ist")
                    : context.say("a comma always ends the text, even in quotes",
                                  "ein Komma beendet den Text, was auch immer ihn umgibt"));
        const std::string_view text = given.text();
        rules::forEachObjection(parameter.facts(), text, kUnnoticed,
                                addObjection("'" + printable(text) + "'"));
    }

    // Characters of the answer when every value is as short as can be.
    static std::size_t leastAnswer(const Decision& decision) {
        const bool isRecord = decision.action == Action::readRecord;
        if (!isRecord && decision.action != Action::readElements) return 0;
        const Parameter& parameter = *parameterOf(decision);
        const auto style = decision.variable.style;
        std::size_t length = isRecord ? 8 : decision.variable.last - decision.variable.first > 1 ? 7 : 0;
        const auto addOne = [&](const Type& type, std::size_t label) {
            const std::size_t value = type.shownDecimals == 0 ? 1 : 8; // "0", "0.000000"
            const std::size_t named =
                parameter.name().size() + label + 10; // "TLX_", a separator, " = ", line end
            if (style == kepl::Style::hex)
                length += 2 * kepl::encode(0, type.code).size;
            else
                length += style == kepl::Style::plain ? named + value - 1 : value + 1;
        };
        if (isRecord) {
            for (const auto& member : reference::members(parameter))
                addOne(typeOf(memberType(member.szMemberType)),
                       std::string_view(member.aszMemberName).size());
        } else {
            for (VarLong k = decision.variable.first; k <= decision.variable.last; ++k)
                addOne(parameter.type(), std::to_string(k).size());
        }
        return length - (style == kepl::Style::columns ? 1 : 0);
    }

    // The last term, of which only the head is known: its name, when something stands behind it, and whether
    // that may be written.
    bool lookAtHead(const Piece& piece) {
        const std::string_view term = piece.term;
        subject = parameterOf(piece.decision);
        if (!piece.decision.isVariable) return true; // a number or a command may become anything
        const std::string_view name = piece.decision.variable.name;
        const std::string_view behind = term.substr(std::min(term.find_first_of(" =\r\n", 4), term.size()));
        if (behind.empty()) return lookAtUnfinishedName(piece, term.substr(4));
        if (piece.decision.row == nullptr) {
            add(placeOf(piece), nameReason(name, context), true);
            return false;
        }
        if (behind.find('=') == behind.npos) return true;
        return lookAtHeadOfWrite(piece);
    }

    bool lookAtUnfinishedName(const Piece& piece, std::string_view head) {
        const bool isBegun = std::ranges::any_of(reference::parameters(), [head](const Parameter& parameter) {
            return !parameter.isTemplate() && startsIgnoringCase(parameter.name(), head);
        });
        if (!isBegun)
            add(placeOf(piece),
                fill(context.say("no name begins with {}", "kein Name beginnt mit {}"), {head}), true);
        return isBegun;
    }

    // With a value that would be accepted: whatever is refused then is refused with any value.
    bool lookAtHeadOfWrite(const Piece& piece) {
        const Parameter& parameter = *parameterOf(piece.decision);
        std::string term(piece.term.substr(0, piece.term.find('=')));
        const Nature nature = parameter.type().nature;
        term += nature == Nature::date   ? "=2024-01-01"
                : nature == Nature::time ? "=00:00:00"
                                         : fill("={}", {reference::shortNumber(parameter.leastNumber())});
        const Decision decision = kepl::decide(term, asked.uid);
        if (!decision.isRefused()) return true;
        add(placeOf(piece), reasonOf(decision, context), true);
        return false;
    }
};

} // namespace

namespace {

std::string elementsReason(const Decision& decision, const Context& context) {
    return elementsOf(*decision.row, context);
}

std::string rangeReason(const Decision& decision, const Context& context) {
    const double number = decision.value->number();
    return objectionTo(reference::shortNumber(number), {Reason::tooLow}, *parameterOf(decision), context);
}

// Of what shows only when a line is carried out.
std::string laterReason(const Decision& /*decision*/, const Context& /*context*/) {
    return {};
}

template <const char* en, const char* de>
std::string namedReason(const Decision& decision, const Context& context) {
    return fill(context.say(en, de), {decision.row->name});
}
constexpr char kNoElements[] = "{} has no elements", kNoElementsDe[] = "{} hat keine Elemente";
constexpr char kReadOnly[] = "{} can only be read", kReadOnlyDe[] = "{} kann nur gelesen werden";
constexpr char kWriteOnly[] = "{} can only be written", kWriteOnlyDe[] = "{} kann nur geschrieben werden";

// Why a term is refused, for people.
struct Explanation {
    Refusal refusal;
    std::string (*say)(const Decision& decision, const Context& context);
};
constexpr Explanation kReasons[] = {
    {Refusal::none, laterReason},
    {Refusal::indexNotANumber,
     [](const Decision&, const Context& context) -> std::string {
         return context.say(
             "after the name comes an index, a range such as 1.5, or an option: -p, -c, -h",
             "hinter dem Namen steht ein Index, ein Bereich wie 1.5 oder eine Option: -p, -c, -h");
     }},
    {Refusal::syntaxError, syntaxReason},
    {Refusal::indexRequired, elementsReason},
    {Refusal::noIndexAllowed, namedReason<kNoElements, kNoElementsDe>},
    {Refusal::valueTooLow, rangeReason},
    {Refusal::valueTooHigh, rangeReason},
    {Refusal::indexTooLow, elementsReason},
    {Refusal::indexTooHigh, elementsReason},
    {Refusal::index1TooLow, elementsReason},
    {Refusal::index1TooHigh, elementsReason},
    {Refusal::index2TooLow, elementsReason},
    {Refusal::index2TooHigh, elementsReason},
    {Refusal::index1GreaterThanIndex2,
     [](const Decision&, const Context& context) -> std::string {
         return context.say("the range runs backwards", "der Bereich läuft rückwärts");
     }},
    {Refusal::readOnly, namedReason<kReadOnly, kReadOnlyDe>},
    {Refusal::writeOnly, namedReason<kWriteOnly, kWriteOnlyDe>},
    {Refusal::rightsTooLow, rightsReason},
    {Refusal::bufferOverflow, laterReason},
    {Refusal::divisionByZero, laterReason},
    {Refusal::negativeRoot, laterReason},
    {Refusal::typeUnknown, laterReason},
};
static_assert(hasRowForEach<&Explanation::refusal>(kReasons),
              "each enumerator has its row, in the same order");

} // namespace

std::string reasonOf(const Decision& decision, const Context& context) {
    return rowOf(kReasons, decision.refusal).say(decision, context);
}

std::vector<LineFinding> checkLine(std::string_view line, const LineAsked& asked, const Context& context) {
    return Look(line, asked, context).run();
}

} // namespace talux::tool
