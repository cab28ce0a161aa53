#include "ParamSystem/store/Kinds.h"

// One predicate per kind.
#define TALUX_PREDICATE(Name)                                                                                \
    int VarIs##Name(int id) {                                                                                \
        return talux::holds(talux::Kind::Name, id) ? 1 : 0;                                                  \
    }

TALUX_PREDICATE(Double)
TALUX_PREDICATE(Float)
TALUX_PREDICATE(Long)
TALUX_PREDICATE(Int)
TALUX_PREDICATE(Bool)
TALUX_PREDICATE(Text)
TALUX_PREDICATE(Enum)
TALUX_PREDICATE(Date)
TALUX_PREDICATE(Time)
TALUX_PREDICATE(SysDate)
TALUX_PREDICATE(SysTime)
TALUX_PREDICATE(Id)
TALUX_PREDICATE(Ip)
TALUX_PREDICATE(Struct)
