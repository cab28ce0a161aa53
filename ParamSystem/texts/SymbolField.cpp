// The field of a record that holds the name of a parameter or of its texts.
#include "MenuSystem/Fields.h"
#include "MenuSystem/TALUX_Data.h"
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Params.h"

void Data_SetSymbol(const char* modulename, int* field, const char* fieldname, StringTokenizer* pTokenizer,
                    FILE* fd_src) {
    const talux::fields::FieldSource source{modulename, fieldname, pTokenizer, fd_src};
    char* const name = talux::fields::takeField(source);
    VarLong id = 0;
    if (ResolveParamSymbol(name, &id) != 1 && ResolveParamTextSymbol(name, &id) != 1)
        talux::fields::endWithInvalidValue(source);
    *field = static_cast<int>(id);
}
