#include "ParamSystem/kepl/Variable.h"

#include "ParamSystem/TALUX_Var.h"

namespace talux::kepl {

VariableRequest::VariableRequest(const char* termText, char* txt, double* adStack, int* aiType, int iSP,
                                 int callersUid)
    : wholeTerm(termText), term(termText), answer(txt), slotValue(nullptr), slotType(nullptr),
      uid(callersUid) {
    if (iSP < 0 || iSP >= kKeplStackSize) return;
    slotValue = adStack + iSP;
    slotType = aiType + iSP;
}

Refusal VariableRequest::carryOut() {
    if (!term.indicesAreNumbers()) return refuse(szIndexNotANumber);
    return isWrite() ? write() : read();
}

bool VariableRequest::deliver(double value, int type) {
    if (slotValue == nullptr) return false;
    *slotValue = value;
    *slotType = type;
    return true;
}

Refusal indexPresence(const stParamProperties& row, const VariableTerm& term) {
    const bool given = term.indices() > 0;
    if (!given && row.val_min_id > 0 && row.val_max_id > 0) return refuse(szIndexRequired);
    if (given && row.val_min_id == 0 && row.val_max_id == 0) return refuse(szNoIndexAllowed);
    return nullptr;
}

Refusal indexRange(const stParamProperties& row, VarLong index, KeplText& tooLow, KeplText& tooHigh) {
    if (index < row.val_min_id) return refuse(tooLow);
    if (index > row.val_max_id) return refuse(tooHigh);
    return nullptr;
}

int elementId(const stParamProperties& row, VarLong index) {
    return row.id + static_cast<int>(index) - 1;
}

void readStored(const stParamProperties& row, int id, double* value) {
    if (row.is_volatile == 0)
        VarGetValue(id, value);
    else
        VarGetGlobalValue(id, value);
}

void writeStored(const stParamProperties& row, int id, double* value) {
    if (row.is_volatile == 0)
        VarSetValue(id, value);
    else
        VarSetGlobalValue(id, value);
}

} // namespace talux::kepl
