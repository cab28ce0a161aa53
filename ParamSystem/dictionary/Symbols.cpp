// Ids of VAR_ and CMD_ names.
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
