// Ids of VAR_, CMD_ and TXT_ names.
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/dictionary/Tables.h"

using namespace talux;

namespace {

int resolve(const stParamSymbol* symbols, const NameIndex& index, const char* name, VarLong* id) {
    if (name == nullptr) return 0;
    const std::size_t position = index.find(name, [symbols](std::size_t k) { return symbols[k].name; });
    if (position == 0) return 0;
    *id = symbols[position].value;
    return 1;
}

} // namespace

int ResolveParamSymbol(char* name, VarLong* lvalue) {
    return resolve(DefParamSymbols, kSymbolIndex, name, lvalue);
}

int ResolveParamTextSymbol(char* name, VarLong* lvalue) {
    return resolve(DefParamTextSymbols, kTextSymbolIndex, name, lvalue);
}
