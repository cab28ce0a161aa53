// Ids of VAR_, CMD_ and TXT_ names.
#include "ParamSystem/dictionary/Tables.h"

using namespace talux;

int ResolveParamSymbol(char* name, VarLong* lvalue) {
    if (name == nullptr) return 0;
    const auto nameAt = [](std::size_t position) { return DefParamSymbols[position].name; };
    const std::size_t position = kSymbolIndex.find(name, nameAt);
    if (position == 0) return 0;
    *lvalue = DefParamSymbols[position].value;
    return 1;
}

int ResolveParamTextSymbol(char* name, VarLong* lvalue) {
    if (name == nullptr) return 0;
    const std::string_view wanted(name);
    for (const stParamSymbol* symbol = DefParamTextSymbols + 1; symbol->name != std::string_view("***");
         ++symbol) {
        if (!equalIgnoringCase(symbol->name, wanted)) continue;
        *lvalue = symbol->value;
        return 1;
    }
    return 0;
}
