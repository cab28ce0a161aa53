// The change flags: global bool parameters that tell the device's other programs to look again. The store
// raises them and never takes them back.
#ifndef TALUX_STORE_CHANGEFLAGS_H
#define TALUX_STORE_CHANGEFLAGS_H

#include "ParamSystem/TALUX_Var.h"

namespace talux {

enum class ChangeFlag : int { param = 8000, ip = 8001, secParam = 8002, stm = 8004 }; // parameter ids

inline void raise(ChangeFlag flag) {
    VarSetGlobalBoolValue(static_cast<int>(flag), 1);
}

} // namespace talux

#endif
