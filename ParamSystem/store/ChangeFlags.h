// The change flags: global bool parameters that tell the device's other programs to look again. The store
// raises them and never takes them back.
#ifndef TALUX_STORE_CHANGEFLAGS_H
#define TALUX_STORE_CHANGEFLAGS_H

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/IdOf.h"

namespace talux {

enum class ChangeFlag : int {
    param = idOf("ParamChanged"),
    ip = idOf("IpParamChanged"),
    secParam = idOf("SecParamChanged"),
    stm = idOf("StmParamChanged"),
};

inline void raise(ChangeFlag flag) {
    VarSetGlobalBoolValue(static_cast<int>(flag), 1);
}

} // namespace talux

#endif
