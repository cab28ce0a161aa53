// The accessors under names that other languages can call.
#include "src/talux_store.h"

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/TALUX_Var.h"

namespace talux::c {

int LoadDefParamProperties() {
    return ::LoadDefParamProperties();
}

int VarIdOf(const char* name) {
    const stParamProperties* const row = GetParamPropertiesByName(const_cast<char*>(name));
    return row == nullptr ? 0 : row->id;
}

#define TALUX_VALUE(Kind, Given, Got)                                                                        \
    void VarSet##Kind##Value(int id, Given value) {                                                          \
        ::VarSet##Kind##Value(id, value);                                                                    \
    }                                                                                                        \
    void VarSetGlobal##Kind##Value(int id, Given value) {                                                    \
        ::VarSetGlobal##Kind##Value(id, value);                                                              \
    }                                                                                                        \
    void VarGet##Kind##Value(int id, Got value) {                                                            \
        ::VarGet##Kind##Value(id, value);                                                                    \
    }                                                                                                        \
    void VarGetGlobal##Kind##Value(int id, Got value) {                                                      \
        ::VarGetGlobal##Kind##Value(id, value);                                                              \
    }
TALUX_VALUE(Float, float, float*)
TALUX_VALUE(Double, double, double*)
TALUX_VALUE(Long, VarLong, VarLong*)
TALUX_VALUE(Int, short, short*)
TALUX_VALUE(Bool, char, char*)
TALUX_VALUE(Enum, short, short*)
TALUX_VALUE(Text, char*, char*)
TALUX_VALUE(Id, char*, char*)
TALUX_VALUE(Ip, char*, char*)

#define TALUX_RUN(Kind, Values)                                                                              \
    void VarSetGlobal##Kind##ValueArray(int id, Values values, unsigned long count) {                        \
        ::VarSetGlobal##Kind##ValueArray(id, values, count);                                                 \
    }                                                                                                        \
    void VarGetGlobal##Kind##ValueArray(int id, Values values, unsigned long count) {                        \
        ::VarGetGlobal##Kind##ValueArray(id, values, count);                                                 \
    }
TALUX_RUN(Float, float*)
TALUX_RUN(Double, double*)
TALUX_RUN(Long, VarLong*)
TALUX_RUN(Int, short*)

void VarSetGlobalStructValue(int id, void* record, VarLong size) {
    ::VarSetGlobalStructValue(id, record, size);
}
void VarGetGlobalStructValue(int id, void* record, VarLong size) {
    ::VarGetGlobalStructValue(id, record, size);
}

void VarSetDefault() {
    ::VarSetDefault();
}
int VarUpdateGlobalSpace() {
    return ::VarUpdateGlobalSpace();
}
int VarSaveError(int file) {
    return ::VarSaveError(static_cast<SavedFile>(file));
}
int VarLoadParams() {
    return ::VarLoadParams();
}
int VarLoadSecParams() {
    return ::VarLoadSecParams();
}
int VarLoadIPConfig() {
    return ::VarLoadIPConfig();
}

} // namespace talux::c
