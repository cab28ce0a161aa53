// TXT_ names, derived from the names that texts hang on: every one of them has texts.
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/dictionary/TextSubjects.h"
#include "ParamSystem/support/Text.h"

namespace talux {
namespace {

constexpr stParamSymbol kSentinel{0, "***"};

struct SymbolTable {
    stParamSymbol rows[kTextSubjectCount + 4];
};

consteval SymbolTable symbols() {
    SymbolTable table{{kSentinel, {0, "TXT_NULL"}, {0, "TXT_TPL_NULL"}}};
    std::size_t row = 3;
    for (const TextSubject& subject : kTextSubjects)
        table.rows[row++] = {subject.textId, subject.symbol};
    table.rows[row] = kSentinel;
    return table;
}

} // namespace
} // namespace talux

// The rows are computed as one value; DefParamTextSymbols is their name as an array.
extern "C" constinit const talux::SymbolTable talux_DefParamTextSymbols = talux::symbols();
extern const stParamSymbol DefParamTextSymbols[talux::kTextSubjectCount + 4]
    __attribute__((alias("talux_DefParamTextSymbols")));

int ResolveParamTextSymbol(char* name, VarLong* lvalue) {
    if (name == nullptr) return 0;
    const std::string_view wanted(name);
    for (const stParamSymbol* symbol = DefParamTextSymbols + 1; symbol->name != std::string_view("***");
         ++symbol) {
        if (!talux::equalIgnoringCase(symbol->name, wanted)) continue;
        *lvalue = symbol->value;
        return 1;
    }
    return 0;
}
