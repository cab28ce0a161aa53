// Ids of TXT_ names, and the field of a record that may hold one.
#include <string_view>

#include "MenuSystem/Fields.h"
#include "MenuSystem/TALUX_Data.h"
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Params.h"
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

void Data_SetSymbol(const char* modulename, int* field, const char* fieldname, StringTokenizer* pTokenizer,
                    FILE* fd_src) {
    const talux::fields::FieldSource source{modulename, fieldname, pTokenizer, fd_src};
    char* const name = talux::fields::takeField(source);
    VarLong id = 0;
    if (ResolveParamSymbol(name, &id) != 1 && ResolveParamTextSymbol(name, &id) != 1)
        talux::fields::endWithInvalidValue(source);
    *field = static_cast<int>(id);
}
