// Executes decisions about variable terms: reads, writes and dumps of parameters.
#include <cstring>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/files/ClockText.h"
#include "ParamSystem/kepl/Clock.h"
#include "ParamSystem/kepl/Dump.h"
#include "ParamSystem/kepl/Execution.h"
#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/store/Values.h"
#include "support/Text.h"

namespace talux::kepl {

namespace {

Space spaceOf(const stParamProperties& row) {
    return row.is_volatile == 0 ? Space::temp : Space::global;
}

// A text value in double quotes.
using QuotedText = char[kTextSize + 2];

// Date and time are those of the system clock, whatever the store holds.
std::string_view quote(QuotedText& quoted, const stParamProperties& row, int id) {
    const Nature nature = typeOf(row).nature;
    std::optional<Value> value;
    if (showsClock(nature)) {
        std::tm now{};
        os::localTime(now);
        value = clockText(nature, now);
    } else {
        value = readValue(spaceOf(row), id);
    }
    const std::string_view text = value ? value->text() : "";
    quoted[0] = '"';
    std::memcpy(quoted + 1, text.data(), text.size());
    quoted[text.size() + 1] = '"';
    return {quoted, text.size() + 2};
}

// One variable term, whose text is built in `answer`.
class VariableAccess {
public:
    VariableAccess(const VariableDecision& made, char* txt, std::optional<TypedNumber>& left)
        : decision(made), term(made.term), answer(txt), value(left) {}

    TermResult operator()(const Refused& refusal) {
        const Refusal why = refusal.refusal;
        return why == Refusal::rightsTooLow ? refusedForRights(term.text) : refused(why);
    }

    TermResult operator()(const ReadScalar& /*read*/) {
        if (isText(row())) {
            QuotedText quoted;
            answer.append({quote(quoted, row(), row().id)});
            leave(0.0);
            return answering(Output::text);
        }
        leave(readNumber(spaceOf(row()), row().id)); // 0 of commands, which have no value
        return answering(Output::topOfStack);
    }

    TermResult operator()(const ReadRecord& /*read*/) {
        const int record = row().id - kFirstStruct;
        const VarLong size = ARR_StructSize[record];
        char bytes[kLargestRecord];
        VarGetGlobalStructValue(row().id, bytes, size);
        answer.append({"STRUCT:\n"});

        const StructMemberProperties_t* member = ARR_StructMemberProperties + ARR_MemberOffset[record];
        for (VarLong position = 0; position < size; ++member) {
            const auto memberSize = static_cast<std::size_t>(member->iMemberBitsize / 8);
            const Refusal refusal =
                dumpMember(*member, {bytes + position, memberSize}, /*isFirst=*/position == 0);
            if (refusal != Refusal::none) return refused(refusal);
            position += static_cast<VarLong>(memberSize);
        }
        return answering(Output::text);
    }

    TermResult operator()(const ReadElements& read) {
        if (term.last - term.first > 1) answer.append({"ARRAY:\n"});
        for (VarLong index = term.first; index <= term.last; ++index) {
            const Refusal refusal = dumpElement(index, read.id + static_cast<int>(index - term.first));
            if (refusal != Refusal::none) return refused(refusal);
        }
        return answering(Output::text);
    }

    TermResult operator()(const WriteNumber& write) {
        writeNumber(spaceOf(row()), write.id, write.number);
        return answering(Output::terminator);
    }

    TermResult operator()(const WriteText& write) {
        writeValue(spaceOf(row()), write.id, Value(write.text));
        if (row().type == kTypeIpAddress && term.indices == 0) {
            VarSetSystemIPs();
            leave(0.0);
        }
        return answering(Output::terminator);
    }

    TermResult operator()(const SetClock& set) {
        writeValue(spaceOf(row()), set.id, Value(*term.value));
        std::time_t seconds = 0;
        if (!clockSetTo(set.numbers, typeOf(row()).nature, seconds)) return refused(Refusal::syntaxError);
        os::setClock(seconds);
        os::runShell("hwclock --systohc --utc --noadjfile");
        leave(0.0);
        return answering(Output::terminator);
    }

private:
    const VariableDecision& decision;
    const VariableTerm& term;
    Answer answer;
    std::optional<TypedNumber>& value;

    const stParamProperties& row() const { return *decision.row; } // of all but a refused one

    void leave(double number) { value.emplace(TypedNumber{number, row().type}); }

    Refusal dumpMember(const StructMemberProperties_t& member, std::string_view bytes, bool isFirst) {
        const int type = memberType(member.szMemberType);
        if (type == kTypeNone) return Refusal::typeUnknown;
        const NumberText text(decode(bytes.data(), type), typeOf(type).shownDecimals);
        return show(term.style, {".", member.aszMemberName, text.view(), bytes, isFirst});
    }

    Refusal dumpElement(VarLong index, int id) {
        const NumberText label(index, 0);
        const bool isSingle = term.indices == 1;
        const Style asked = term.style;
        const Style style = isSingle && asked == Style::plain ? Style::lines : asked;
        if (isText(row())) {
            QuotedText quoted;
            const std::string_view text = quote(quoted, row(), id);
            leave(0.0);
            return show(style,
                        {" ", label.view(), text, after(text.substr(0, text.size() - 1), 1), index == 1});
        }
        const double number = readNumber(spaceOf(row()), id);
        leave(number);
        const NumberText text(number, typeOf(row()).shownDecimals);
        const NumberBytes bytes = encode(number, row().type);
        if (style == Style::hex && bytes.size == 0) return Refusal::typeUnknown;
        return show(style, {" ", label.view(), text.view(), bytes.view(), index == 1});
    }

    Refusal show(Style style, const DumpItem& item) {
        return dump(answer, style, row().name, item) ? Refusal::none : Refusal::bufferOverflow;
    }
};

} // namespace

TermResult accessVariable(const VariableDecision& decision, char* txt, std::optional<TypedNumber>& value) {
    if (decision.isNoted) logNoted(decision.term.text);
    return std::visit(VariableAccess(decision, txt, value), decision.action);
}

} // namespace talux::kepl
