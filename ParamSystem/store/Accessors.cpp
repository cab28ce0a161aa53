// The typed accessors: single values and runs of every kind, in both spaces and directions.
#include "ParamSystem/store/Slots.h"
#include "ParamSystem/support/Assertion.h"

#define TALUX_UNIT "ParamSystem/TALUX_Var"

namespace {

using talux::Kind;
using talux::Number;
using talux::Space;

// Aborts in the name of the accessor when the id is of another kind.
template <Kind kind>
bool checked(int id, const char* accessor) {
    return talux::asserted(talux::holds(kind, id), talux::blockOf(kind).assertion, TALUX_UNIT, accessor);
}

// Readers of runs insist on the kind too, except those of long, which ignore foreign ids.
template <Kind kind>
bool isReadable(int id, const char* accessor) {
    if constexpr (kind == Kind::Long)
        return talux::holds(kind, id);
    else
        return checked<kind>(id, accessor);
}

} // namespace

// The members of each family for one kind. Single values insist on the kind; writers of runs ignore foreign
// ids.
#define TALUX_SET_NUMBER(Prefix, Name, space)                                                                \
    void Prefix##Name##Value(int id, Number<Kind::Name> val) {                                               \
        if (checked<Kind::Name>(id, __func__)) talux::putNumber<Kind::Name, space>(id, val);                 \
    }
#define TALUX_GET_NUMBER(Prefix, Name, space)                                                                \
    void Prefix##Name##Value(int id, Number<Kind::Name>* pVal) {                                             \
        if (checked<Kind::Name>(id, __func__)) *pVal = talux::getNumber<Kind::Name, space>(id);              \
    }
#define TALUX_SET_RUN(Prefix, Name, space)                                                                   \
    void Prefix##Name##ValueArray(int id, Number<Kind::Name>* pSrc, unsigned long aCount) {                  \
        if (talux::holds(Kind::Name, id)) talux::putRun<Kind::Name, space>(id, pSrc, aCount);                \
    }
#define TALUX_GET_RUN(Prefix, Name, space)                                                                   \
    void Prefix##Name##ValueArray(int id, Number<Kind::Name>* pDest, unsigned long aCount) {                 \
        if (isReadable<Kind::Name>(id, __func__)) talux::getRun<Kind::Name, space>(id, pDest, aCount);       \
    }
#define TALUX_SET_TEXT(Prefix, Name, space)                                                                  \
    void Prefix##Name##Value(int id, char* val) {                                                            \
        if (checked<Kind::Name>(id, __func__)) talux::putText<Kind::Name, space>(id, val);                   \
    }
#define TALUX_GET_TEXT(Prefix, Name, space)                                                                  \
    void Prefix##Name##Value(int id, char* val) {                                                            \
        if (checked<Kind::Name>(id, __func__)) talux::getText<Kind::Name, space>(id, val);                   \
    }

// One member in both spaces.
#define TALUX_SPACES(MEMBER, Verb, Name)                                                                     \
    MEMBER(Verb, Name, Space::temp)                                                                          \
    MEMBER(Verb##Global, Name, Space::global)

#define TALUX_NUMBERS(Name)                                                                                  \
    TALUX_SPACES(TALUX_SET_NUMBER, VarSet, Name)                                                             \
    TALUX_SPACES(TALUX_GET_NUMBER, VarGet, Name)                                                             \
    TALUX_SPACES(TALUX_SET_RUN, VarSet, Name)                                                                \
    TALUX_SPACES(TALUX_GET_RUN, VarGet, Name)

#define TALUX_TEXTS(Name)                                                                                    \
    TALUX_SPACES(TALUX_SET_TEXT, VarSet, Name)                                                               \
    TALUX_SPACES(TALUX_GET_TEXT, VarGet, Name)

TALUX_NUMBERS(Float)
TALUX_NUMBERS(Double)
TALUX_NUMBERS(Long)
TALUX_NUMBERS(Int)
TALUX_NUMBERS(Bool)
TALUX_NUMBERS(Enum)

TALUX_TEXTS(Text)
TALUX_TEXTS(Date)
TALUX_TEXTS(Time)
TALUX_TEXTS(SysDate)
TALUX_TEXTS(SysTime)
TALUX_TEXTS(Id)
TALUX_TEXTS(Ip)

// ---- Records ----

namespace {

// Where a record's first `size` bytes may be copied, or null when there is nothing to copy.
char* recordBytes(int id, VarLong size, const char* accessor) {
    if (!checked<Kind::Struct>(id, accessor)) return nullptr;
    const int struct_index = id - kFirstStruct;
    if (!talux::asserted(size <= ARR_StructSize[struct_index], "size <= ARR_StructSize[struct_index]",
                         TALUX_UNIT, accessor))
        return nullptr;
    return size > 0 ? static_cast<char*>(pVarStruct) + ARR_StructOffset[struct_index] : nullptr;
}

} // namespace

void VarGetGlobalStructValue(int id, void* ptr, VarLong size) {
    const char* const record = recordBytes(id, size, __func__);
    if (record == nullptr) return;
    const talux::Lock<Kind::Struct, Space::global> lock;
    std::memcpy(ptr, record, static_cast<std::size_t>(size));
}

void VarSetGlobalStructValue(int id, void* ptr, VarLong size) {
    char* const record = recordBytes(id, size, __func__);
    if (record == nullptr) return;
    const talux::Lock<Kind::Struct, Space::global> lock;
    std::memcpy(record, ptr, static_cast<std::size_t>(size));
}
