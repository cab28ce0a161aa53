// TXT_ names, derived from the names that texts hang on: every one of them has texts.
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/dictionary/TextSubjects.h"
#include "ParamSystem/support/Text.h"

namespace talux {
namespace {

constexpr std::string_view kPrefix = "TXT_";

constexpr std::size_t kPoolSize = [] {
    std::size_t size = 0;
    for (const TextSubject& subject : kTextSubjects)
        size += kPrefix.size() + subject.name.size() + 1;
    return size;
}();

// All names, one behind the other.
constexpr auto kPool = [] {
    std::array<char, kPoolSize> pool{};
    std::size_t end = 0;
    for (const TextSubject& subject : kTextSubjects) {
        for (std::string_view piece : {kPrefix, subject.name})
            for (char c : piece)
                pool[end++] = c;
        pool[end++] = '\0';
    }
    return pool;
}();

constexpr stParamSymbol kSentinel{0, "***"};

struct SymbolTable {
    stParamSymbol rows[kTextSubjectCount + 4];
};

consteval SymbolTable symbols() {
    SymbolTable table{{kSentinel, {0, "TXT_NULL"}, {0, "TXT_TPL_NULL"}}};
    std::size_t row = 3, name = 0;
    for (const TextSubject& subject : kTextSubjects) {
        table.rows[row++] = {subject.textId, &kPool[name]};
        name += kPrefix.size() + subject.name.size() + 1;
    }
    table.rows[row] = kSentinel;
    return table;
}

extern "C" constexpr SymbolTable talux_def_param_text_symbols = symbols();

} // namespace
} // namespace talux

extern const stParamSymbol DefParamTextSymbols[talux::kTextSubjectCount + 4]
    __attribute__((alias("talux_def_param_text_symbols")));

int ResolveParamTextSymbol(char* name, VarLong* lvalue) {
    const std::string_view wanted(name);
    for (const stParamSymbol* symbol = DefParamTextSymbols + 1; symbol->name != std::string_view("***");
         ++symbol) {
        if (!talux::equalIgnoringCase(symbol->name, wanted)) continue;
        *lvalue = symbol->value;
        return 1;
    }
    return 0;
}
