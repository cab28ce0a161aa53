#include "ParamSystem/TALUX_Var.h"

int VarSetSystemIPs() {
    return 1;
}
