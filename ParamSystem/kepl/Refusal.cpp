// The two-language texts of the refusals. German is UTF-8.
#include "ParamSystem/kepl/Refusal.h"
#include "ParamSystem/KEPL_Interpreter.h"
#include "support/EnumRows.h"

KeplText szIndexNotANumber = {"<< INDEX MUSS EINE ZAHL SEIN >>", "<< INDEX MUST BE A NUMBER >>"};
KeplText szSyntaxError = {"<< SYNTAX ERROR >>", "<< SYNTAX ERROR >>"};
KeplText szIndexRequired = {"<< INDEX ERFORDERLICH >>", "<< INDEX REQUIRED >>"};
KeplText szParameterRequired = {"<< PARAMETER ERFORDERLICH>>", "<< PARAMETER REQUIRED >>"};
KeplText szNoIndexAllowed = {"<< KEIN INDEX ERLAUBT >>", "<< NO INDEX ALLOWED >>"};
KeplText szValueTooLow = {"<< WERT ZU KLEIN >>", "<< VALUE TOO LOW >>"};
KeplText szValueTooHigh = {"<< WERT ZU GROSS >>", "<< VALUE TOO HIGH >>"};
KeplText szIndexTooLow = {"<< INDEX ZU KLEIN >>", "<< INDEX TOO LOW >>"};
KeplText szIndexTooHigh = {"<< INDEX ZU GROSS >>", "<< INDEX TOO HIGH >>"};
KeplText szIndex1TooLow = {"<< INDEX 1 ZU KLEIN >>", "<< INDEX 1 TOO LOW >>"};
KeplText szIndex1TooHigh = {"<< INDEX 1 ZU GROSS >>", "<< INDEX 1 TOO HIGH >>"};
KeplText szIndex2TooLow = {"<< INDEX 2 ZU KLEIN >>", "<< INDEX 2 TOO LOW >>"};
KeplText szIndex2TooHigh = {"<< INDEX 2 ZU GROSS >>", "<< INDEX 2 TOO HIGH >>"};
KeplText szIndex1gtIndex2 = {"<< INDEX 1 GRÖSSER ALS INDEX2 >>", "<< INDEX 1 GREATER THAN INDEX 2 >>"};
KeplText szReadOnly = {"<< VARIABLE IST READ ONLY >>", "<< VARIABLE IS READ ONLY >>"};
KeplText szWriteOnly = {"<< VARIABLE IST WRITE ONLY >>", "<< VARIABLE IS WRITE ONLY >>"};
KeplText szUIDWrong = {"<< RECHTE ZU NIEDRIG >>", "<< RIGHTS TOO LOW >>"};
KeplText szNotAllowed = {"<< NICHT ERLAUBT >>", "<< NOT ALLOWED >>"};
KeplText szBufferOverflow = {"<< AUSGABE PUFFER ZU KLEIN >>", "<< OUTPUT BUFFER EXCEEDED >>"};

namespace talux::kepl {

namespace {

// These have one form in every language.
constexpr KeplText kNone = {"", ""};
constexpr KeplText kDivisionByZero = {"Division durch 0", "Division durch 0"};
constexpr KeplText kNegativeRoot = {"Quadratwurzel von negativen Werten nicht erlaubt",
                                    "Quadratwurzel von negativen Werten nicht erlaubt"};
constexpr KeplText kTypeUnknown = {"type unknown", "type unknown"};

struct RefusalRow {
    Refusal refusal;
    const KeplText& text;
};
constexpr RefusalRow kRefusals[] = {
    {Refusal::none, kNone},
    {Refusal::indexNotANumber, szIndexNotANumber},
    {Refusal::syntaxError, szSyntaxError},
    {Refusal::indexRequired, szIndexRequired},
    {Refusal::noIndexAllowed, szNoIndexAllowed},
    {Refusal::valueTooLow, szValueTooLow},
    {Refusal::valueTooHigh, szValueTooHigh},
    {Refusal::indexTooLow, szIndexTooLow},
    {Refusal::indexTooHigh, szIndexTooHigh},
    {Refusal::index1TooLow, szIndex1TooLow},
    {Refusal::index1TooHigh, szIndex1TooHigh},
    {Refusal::index2TooLow, szIndex2TooLow},
    {Refusal::index2TooHigh, szIndex2TooHigh},
    {Refusal::index1GreaterThanIndex2, szIndex1gtIndex2},
    {Refusal::readOnly, szReadOnly},
    {Refusal::writeOnly, szWriteOnly},
    {Refusal::rightsTooLow, szUIDWrong},
    {Refusal::bufferOverflow, szBufferOverflow},
    {Refusal::divisionByZero, kDivisionByZero},
    {Refusal::negativeRoot, kNegativeRoot},
    {Refusal::typeUnknown, kTypeUnknown},
};
static_assert(hasRowForEach<&RefusalRow::refusal>(kRefusals),
              "each enumerator has its row, in the same order");

} // namespace

const char* textOf(Refusal refusal) {
    return rowOf(kRefusals, refusal).text[iLanguage];
}

} // namespace talux::kepl
