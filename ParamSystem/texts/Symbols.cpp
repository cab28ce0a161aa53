// Ids of TXT_ names.
#include <string_view>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/support/Text.h"

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
