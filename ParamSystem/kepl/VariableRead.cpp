#include <cstring>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/kepl/Variable.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/support/Text.h"

namespace talux::kepl {

namespace {

constexpr int kReadLevel = 1;

// The record that is being printed: one for all interpreters of the process.
constinit char abyStructBuffer[kLargestRecord] = {};

// A text value in double quotes.
using QuotedText = char[kTextSize + 2];

// Date and time are those of the system clock, whatever the store holds.
void readText(const stParamProperties& row, int id, QuotedText& quoted) {
    std::tm now{};
    const Nature nature = typeOf(row).nature;
    if (nature == Nature::date) {
        os::localTime(now);
        formatText(quoted, sizeof quoted, "\"%04d-%02d-%02d\"", now.tm_year + 1900, now.tm_mon + 1,
                   now.tm_mday);
    } else if (nature == Nature::time) {
        os::localTime(now);
        formatText(quoted, sizeof quoted, "\"%02d:%02d:%02d\"", now.tm_hour, now.tm_min, now.tm_sec);
    } else {
        alignas(double) char text[kTextSize] = "";
        readStored(row, id, reinterpret_cast<double*>(text));
        formatText(quoted, sizeof quoted, "\"%s\"", text);
    }
}

// Type code that a record's member is printed with; kTypeNone for an unknown type name.
int memberType(std::string_view name) {
    constexpr struct {
        std::string_view name;
        int type;
    } kMemberTypes[] = {{"long", kTypeLong},     {"float", kTypeFloat}, {"int", kTypeLong},
                        {"short int", kTypeInt}, {"short", kTypeInt},   {"double", kTypeDouble}};
    for (const auto& known : kMemberTypes)
        if (known.name == name) return known.type;
    return kTypeNone;
}

} // namespace

Refusal VariableRequest::read() {
    if (uid < kReadLevel) return refuse(szUIDWrong);
    const stParamProperties* const row = GetParamPropertiesByName(term.name());
    if (row == nullptr) return refuse(szSyntaxError);
    if (row->val_access == kWriteOnly) return refuse(szWriteOnly);
    if (const Refusal refusal = indexPresence(*row, term)) return refusal;
    return term.indices() == 0 ? readScalar(*row) : readRange(*row);
}

Refusal VariableRequest::readScalar(const stParamProperties& row) {
    if (row.type == kTypeStruct) return readRecord(row);
    if (isText(row)) {
        QuotedText text;
        readText(row, row.id, text);
        answer.append({text});
        deliver(0.0, row.type);
        return nullptr;
    }
    double value = 0.0; // stays for commands, which have no value
    readStored(row, row.id, &value);
    return deliver(value, row.type) ? nullptr : refuse(szSyntaxError);
}

Refusal VariableRequest::readRecord(const stParamProperties& row) {
    const int record = row.id - kFirstStruct;
    const VarLong size = ARR_StructSize[record];
    VarGetGlobalStructValue(row.id, abyStructBuffer, size);
    answer.append({"STRUCT:\n"});

    const StructMemberProperties_t* member = ARR_StructMemberProperties + ARR_MemberOffset[record];
    for (VarLong position = 0; position < size; ++member) {
        const char* const bytes = abyStructBuffer + position;
        const int type = memberType(member->szMemberType);
        if (type == kTypeNone) return refuse(kTypeUnknown);
        const NumberText text(decode(bytes, type), typeOf(type).shownDecimals);
        const int memberSize = member->iMemberBitsize / 8;
        if (!dump(answer, term.style(), row.name,
                  {".",
                   member->aszMemberName,
                   text.view(),
                   {bytes, static_cast<std::size_t>(memberSize)},
                   position == 0}))
            return refuse(szBufferOverflow);
        position += memberSize;
    }
    return nullptr;
}

Refusal VariableRequest::readRange(const stParamProperties& row) {
    const VarLong first = term.index1();
    const VarLong last = term.index2();
    const bool single = term.indices() == 1;
    KeplText& tooLow = single ? szIndexTooLow : szIndex1TooLow;
    KeplText& tooHigh = single ? szIndexTooHigh : szIndex1TooHigh;
    if (const Refusal refusal = indexRange(row, first, tooLow, tooHigh)) return refusal;
    if (const Refusal refusal = indexRange(row, last, szIndex2TooLow, szIndex2TooHigh)) return refusal;
    if (last < first) return refuse(szIndex1gtIndex2);

    if (last - first > 1) answer.append({"ARRAY:\n"});
    const Style style = single && term.style() == Style::plain ? Style::lines : term.style();
    for (VarLong index = first; index <= last; ++index)
        if (const Refusal refusal = readElement(row, index, style)) return refusal;
    return nullptr;
}

Refusal VariableRequest::readElement(const stParamProperties& row, VarLong index, Style style) {
    const int id = elementId(row, index);
    const NumberText label(index, 0);
    DumpItem item{" ", label.view(), {}, {}, index == 1};
    if (isText(row)) {
        QuotedText text;
        readText(row, id, text);
        deliver(0.0, row.type);
        item.text = text;
        item.bytes = item.text;
        item.bytes.remove_prefix(1); // without the quotes
        item.bytes.remove_suffix(1);
        return dump(answer, style, row.name, item) ? nullptr : refuse(szBufferOverflow);
    }
    double value = 0.0;
    readStored(row, id, &value);
    deliver(value, row.type);
    const NumberText text(value, typeOf(row).shownDecimals);
    const NumberBytes bytes = encode(value, row.type);
    if (style == Style::hex && bytes.size == 0) return refuse(kTypeUnknown);
    item.text = text.view();
    item.bytes = bytes.view();
    return dump(answer, style, row.name, item) ? nullptr : refuse(szBufferOverflow);
}

} // namespace talux::kepl
