#include "ParamSystem/store/ChangeFlags.h"

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/IdOf.h"

namespace talux {

const int kChangeFlagIds[kChangeFlagCount] = {idOf("ParamChanged"), idOf("IpParamChanged"),
                                              idOf("StmParamChanged"), idOf("SecParamChanged")};

void raise(ChangeFlag flag) {
    VarSetGlobalBoolValue(kChangeFlagIds[static_cast<int>(flag)], 1);
}

} // namespace talux
