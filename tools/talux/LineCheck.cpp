#include "tools/talux/LineCheck.h"

#include <algorithm>
#include <map>
#include <utility>

#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/kepl/Words.h"
#include "support/Parse.h"
#include "support/Text.h"
#include "tools/talux/Judgement.h"
#include "tools/talux/Lookup.h"
#include "tools/talux/Plausibility.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

using kepl::Decision;
using kepl::Refusal;
using kepl::VariableDecision;

// What the language stores and says nothing of.
constexpr rules::Reasons kUnnoticed{Reason::noChoice, Reason::notWhole,     Reason::notCarried,
                                    Reason::tooLong,  Reason::tooManyBytes, Reason::noAddress,
                                    Reason::noNetmask};

const Parameter* parameterOf(const VariableDecision& decision) {
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

// Of what is neither a variable nor a word nor a number.
std::string termReason(std::string_view term, const Context& context) {
    const std::string_view name = term.substr(0, term.find_first_of(" ="));
    if (const Parameter* parameter = reference::find(name); parameter != nullptr && !name.empty())
        return fill(context.say("parameters are written with a prefix: TLX_{}",
                                "Parameter stehen mit Vorsatz: TLX_{}"),
                    {joined({parameter->name(), printable(term.substr(name.size()))})});
    return fill(context.say("'{}' is not a number, command, parameter, operator or function",
                            "'{}' ist weder Zahl noch Befehl, Parameter, Operator oder Funktion"),
                {printable(term)});
}

std::string syntaxReason(const VariableDecision& decision, const Context& context) {
    if (decision.row == nullptr) return nameReason(decision.term.name, context);
    const std::string value = printable(decision.term.value.value_or(""));
    if (value.empty()) return context.say("there is no value after =", "hinter = steht kein Wert");
    const Nature nature = typeOf(*decision.row).nature;
    const Reason reason = nature == Nature::date   ? Reason::noDate
                          : nature == Nature::time ? Reason::noTime
                                                   : Reason::noNumber;
    return objectionTo("'" + value + "'", {reason}, *parameterOf(decision), context);
}

std::string levelReason(int level, const Context& context) {
    return fill(context.say("needs rights level {}", "verlangt Rechtestufe {}"), {std::to_string(level)});
}

std::string rightsReason(const VariableDecision& decision, const Context& context) {
    const int rowLevel = decision.row != nullptr ? decision.row->userlevel : 0;
    return levelReason(decision.term.value ? std::max(kepl::kWriteLevel, rowLevel) : kepl::kReadLevel,
                       context);
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

    const VariableDecision* variable() const { return decision.get<VariableDecision>(); }
    const Parameter* parameter() const { return variable() != nullptr ? parameterOf(*variable()) : nullptr; }
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
        const VariableDecision* const variable = piece.variable();
        subject = piece.parameter();
        if (piece.text.size() > kKeplMaxTerm)
            add(placeOf(piece), context.say("more than 127 characters: the term is cut",
                                            "mehr als 127 Zeichen: der Term wird abgeschnitten"));
        if (piece.decision.isRefused()) {
            add(placeOf(piece), reasonOf(piece.decision, context) + choiceMeant(variable), true);
            return false;
        }
        if (!lookAtStack(piece)) return false;
        if (variable != nullptr) lookAtVariable(piece, *variable);
        if (const auto* const run = piece.decision.get<kepl::RunCommand>()) lookAtCommand(piece, *run);
        const bool writesNumber = variable != nullptr && variable->get<kepl::WriteNumber>() != nullptr;
        numberWritten = writesNumber ? subject : nullptr;
        written = writesNumber ? *variable->term.value : "";
        return true;
    }

    // The language takes numbers of choices only.
    std::string choiceMeant(const VariableDecision* variable) const {
        if (subject == nullptr || !variable->term.value) return {};
        const std::string_view value = *variable->term.value;
        for (const Meaning& meaning : meaningsOf(value, context.language))
            if (std::ranges::find(meaning.bearers, subject) != meaning.bearers.end() &&
                std::to_string(meaning.choice.number) != value)
                return fill(
                    context.say("; the number of this choice is {}", "; die Nummer dieser Auswahl ist {}"),
                    {std::to_string(meaning.choice.number)});
        return {};
    }

    bool lookAtStack(const Piece& piece) {
        const bool wasZero = std::exchange(topIsZero, false);
        if (const auto* const push = piece.decision.get<kepl::PushNumber>()) {
            lookAtNumber(piece, push->number);
            return true;
        }
        if (const auto* const compute = piece.decision.get<kepl::Compute>())
            return lookAtOperation(piece, compute->operation, wasZero);
        const VariableDecision* const variable = piece.variable();
        saysValue =
            variable != nullptr && variable->get<kepl::ReadScalar>() != nullptr && !isText(*variable->row);
        depth += saysValue;
        return true;
    }

    void lookAtNumber(const Piece& piece, double number) {
        if (numberWritten != nullptr && piece.isLast)
            add(placeOf(piece),
                fill(context.say(
                         "{} becomes {}: a comma ends the term. For {}.{} write TLX_{}={}.{}",
                         "{} wird {}: ein Komma beendet den Term. Für {}.{} schreiben Sie TLX_{}={}.{}"),
                     {numberWritten->name(), written, written, piece.text, numberWritten->name(), written,
                      piece.text}));
        ++depth;
        topIsZero = number == 0;
    }

    bool lookAtOperation(const Piece& piece, kepl::Operation operation, bool wasZero) {
        const int operands = rowOf(kepl::kOperations, operation).operands;
        if (depth < operands) {
            add(placeOf(piece),
                fill(context.say("takes {} values from the stack, there are {}",
                                 "nimmt {} Werte vom Stapel, da sind {}"),
                     {std::to_string(operands), std::to_string(depth)}),
                true);
            return false;
        }
        if (operation == kepl::Operation::divide && wasZero) {
            add(placeOf(piece), context.say("divides by zero", "teilt durch null"), true);
            return false;
        }
        depth -= operands - 1;
        return true;
    }

    // Only the beginning of a command counts, and only two of them take a file name, up to a blank.
    void lookAtCommand(const Piece& piece, const kepl::RunCommand& run) {
        const kepl::CommandRow& row = rowOf(kepl::kCommands, run.command);
        std::string_view rest = piece.term;
        const std::string_view word = kepl::takeWord(rest, ' ');
        if (word.size() > row.word.size())
            add(placeOf(piece), fill(context.say("{} is carried out as {}: what follows does not count",
                                                 "{} wird als {} ausgeführt: was folgt, zählt nicht"),
                                     {printable(word), row.word}));
        if (!run.file.empty()) kepl::takeWord(rest, ' ');
        const std::string_view ignored = kepl::withoutLeading(rest, ' ');
        if (ignored.empty()) return;
        add(placeOf(piece),
            run.file.empty() ? fill(context.say("{} takes no file name: {} is ignored",
                                                "{} nimmt keinen Dateinamen: {} bleibt unbeachtet"),
                                    {row.word, printable(ignored)})
                             : fill(context.say("loads {}: a blank ends the file name, {} is ignored",
                                                "lädt {}: ein Leerzeichen beendet den Dateinamen, {} bleibt "
                                                "unbeachtet"),
                                    {printable(run.file), printable(ignored)}));
    }

    void lookAtVariable(const Piece& piece, const VariableDecision& variable) {
        if (const auto* const write = variable.get<kepl::WriteNumber>()) lookAtWrite(piece, write->number);
        if (const auto* const write = variable.get<kepl::WriteText>()) lookAtWrite(piece, write->text);
        const std::string_view behind =
            kepl::withoutLeading(piece.term.substr(std::min(piece.term.find('='), piece.term.size())), '=');
        if (variable.term.value && behind.find('=') != behind.npos)
            add(placeOf(piece), context.say("a second = ends the value", "ein zweites = beendet den Wert"));
        const std::size_t length = leastAnswer(variable);
        if (length > asked.answerRoom)
            add(placeOf(piece),
                fill(context.say("the answer has at least {} characters, {} fit: read less at once",
                                 "die Antwort hat mindestens {} Zeichen, {} passen: weniger auf einmal "
                                 "lesen"),
                     {std::to_string(length), std::to_string(asked.answerRoom)}));
    }

    void lookAtWrite(const Piece& piece, double number) {
        addObjections(piece, number, reference::shortNumber(number));
    }

    void lookAtWrite(const Piece& piece, std::string_view text) {
        const std::string_view value = *piece.variable()->term.value;
        if (value.starts_with('"') && (value.size() < 2 || !value.ends_with('"')))
            add(placeOf(piece),
                piece.isLast
                    ? context.say(
                          "the text begins with a quote and loses its last character, which is none",
                          "der Text beginnt mit einem Anführungszeichen und verliert sein letztes Zeichen, "
                          "das keines ist")
                    : context.say("a comma always ends the text, even in quotes",
                                  "ein Komma beendet den Text, was auch immer ihn umgibt"));
        addObjections(piece, text, "'" + printable(text) + "'");
    }

    // What speaks against a number or a text, which the line writes.
    template <class Given>
    void addObjections(const Piece& piece, Given given, const std::string& shown) {
        const Parameter& parameter = *subject;
        values.insert_or_assign(subject, Value(given));
        places.insert_or_assign(subject, placeOf(piece));
        rules::forEachObjection(parameter.facts(), given, kUnnoticed, [&](const rules::Objection& objection) {
            add(placeOf(piece), objectionTo(shown, objection, parameter, context));
        });
    }

    // Characters of the answer when every value is as short as can be.
    static std::size_t leastAnswer(const VariableDecision& decision) {
        const bool isRecord = decision.get<kepl::ReadRecord>() != nullptr;
        if (!isRecord && decision.get<kepl::ReadElements>() == nullptr) return 0;
        const Parameter& parameter = *parameterOf(decision);
        const auto style = decision.term.style;
        std::size_t length = isRecord ? 8 : decision.term.last - decision.term.first > 1 ? 7 : 0;
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
            for (VarLong k = decision.term.first; k <= decision.term.last; ++k)
                addOne(parameter.type(), std::to_string(k).size());
        }
        return length - (style == kepl::Style::columns ? 1 : 0);
    }

    // The last term, of which only the head is known: its name, when something stands behind it, and whether
    // that may be written.
    bool lookAtHead(const Piece& piece) {
        const std::string_view term = piece.term;
        subject = piece.parameter();
        if (piece.variable() == nullptr) return true; // a number or a command may become anything
        const std::string_view behind = term.substr(std::min(term.find_first_of(" =\r\n", 4), term.size()));
        if (behind.empty()) return lookAtUnfinishedName(piece, term.substr(4));
        if (subject == nullptr) {
            add(placeOf(piece), nameReason(piece.variable()->term.name, context), true);
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
        const Parameter& parameter = *subject;
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

std::string elementsReason(const VariableDecision& decision, const Context& context) {
    return elementsOf(*decision.row, context);
}

std::string rangeReason(const VariableDecision& decision, const Context& context) {
    const double number = *numberIn(*decision.term.value);
    return objectionTo(reference::shortNumber(number), {Reason::tooLow}, *parameterOf(decision), context);
}

// Of what shows only when a line is carried out.
std::string laterReason(const VariableDecision& /*decision*/, const Context& /*context*/) {
    return {};
}

template <const char* en, const char* de>
std::string namedReason(const VariableDecision& decision, const Context& context) {
    return fill(context.say(en, de), {decision.row->name});
}
constexpr char kNoElements[] = "{} has no elements", kNoElementsDe[] = "{} hat keine Elemente";
constexpr char kReadOnly[] = "{} can only be read", kReadOnlyDe[] = "{} kann nur gelesen werden";
constexpr char kWriteOnly[] = "{} can only be written", kWriteOnlyDe[] = "{} kann nur geschrieben werden";

// Why a term is refused, for people.
struct Explanation {
    Refusal refusal;
    std::string (*say)(const VariableDecision& decision, const Context& context);
};
constexpr Explanation kReasons[] = {
    {Refusal::none, laterReason},
    {Refusal::indexNotANumber,
     [](const VariableDecision&, const Context& context) -> std::string {
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
     [](const VariableDecision&, const Context& context) -> std::string {
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

std::string reasonOf(const VariableDecision& decision, const Context& context) {
    const auto* const refused = decision.get<kepl::Refused>();
    return refused == nullptr ? "" : rowOf(kReasons, refused->refusal).say(decision, context);
}

std::string reasonOf(const Decision& decision, const Context& context) {
    if (const auto* const variable = decision.get<VariableDecision>()) return reasonOf(*variable, context);
    if (const auto* const rights = decision.get<kepl::RightsTooLow>())
        return levelReason(rights->level, context);
    return decision.isRefused() ? termReason(decision.term, context) : "";
}

std::vector<LineFinding> checkLine(std::string_view line, const LineAsked& asked, const Context& context) {
    return Look(line, asked, context).run();
}

} // namespace talux::tool
