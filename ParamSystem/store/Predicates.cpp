// One predicate per kind.
#include "ParamSystem/store/Kinds.h"

using talux::Kind;

namespace {

template <Kind kind>
int is(int id) {
    return talux::holds(kind, id) ? 1 : 0;
}

} // namespace

// clang-format off
int VarIsDouble(int id) { return is<Kind::Double>(id); }
int VarIsFloat(int id) { return is<Kind::Float>(id); }
int VarIsLong(int id) { return is<Kind::Long>(id); }
int VarIsInt(int id) { return is<Kind::Int>(id); }
int VarIsBool(int id) { return is<Kind::Bool>(id); }
int VarIsText(int id) { return is<Kind::Text>(id); }
int VarIsEnum(int id) { return is<Kind::Enum>(id); }
int VarIsDate(int id) { return is<Kind::Date>(id); }
int VarIsTime(int id) { return is<Kind::Time>(id); }
int VarIsSysDate(int id) { return is<Kind::SysDate>(id); }
int VarIsSysTime(int id) { return is<Kind::SysTime>(id); }
int VarIsId(int id) { return is<Kind::Id>(id); }
int VarIsIp(int id) { return is<Kind::Ip>(id); }
int VarIsStruct(int id) { return is<Kind::Struct>(id); }
// clang-format on
