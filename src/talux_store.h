/*
 * The store for C programs, and for languages that call C functions (ctypes, LuaJIT): the accessors of
 * ParamSystem/TALUX_Var.h under the same names with C linkage, which do the same work. In C++ they are in
 * talux::c.
 *
 * Values by id: Set and Get work on the working copy of the settings, SetGlobal and GetGlobal on the live
 * values. An id of another kind aborts; numbers are stored without a range check. Any number of threads may
 * call.
 */
#ifndef TALUX_STORE_H
#define TALUX_STORE_H

#include "ParamSystem/TALUX_Types.h"

#ifdef __cplusplus
namespace talux::c {
extern "C" {
#endif

/* Once, before everything else and before a second thread. The segments are attached when the library is
 * loaded. */
TALUX_API int LoadDefParamProperties(void);

/* The id of a parameter, of an indexed one that of its first element; 0 when there is no such name. */
TALUX_API int VarIdOf(const char* name);

#define TALUX_VALUE(Kind, Given, Got)                                                                        \
    TALUX_API void VarSet##Kind##Value(int id, Given value);                                                 \
    TALUX_API void VarSetGlobal##Kind##Value(int id, Given value);                                           \
    TALUX_API void VarGet##Kind##Value(int id, Got value);                                                   \
    TALUX_API void VarGetGlobal##Kind##Value(int id, Got value);
TALUX_VALUE(Float, float, float*)
TALUX_VALUE(Double, double, double*)
TALUX_VALUE(Long, VarLong, VarLong*)
TALUX_VALUE(Int, short, short*)
TALUX_VALUE(Bool, char, char*)
TALUX_VALUE(Enum, short, short*)
TALUX_VALUE(Text, char*, char*) /* room for 128 bytes when read */
TALUX_VALUE(Id, char*, char*)   /* for 20 */
TALUX_VALUE(Ip, char*, char*)   /* for 20 */
#undef TALUX_VALUE

/* Measured values with consecutive ids, and one of the three records, in one piece. */
#define TALUX_RUN(Kind, Values)                                                                              \
    TALUX_API void VarSetGlobal##Kind##ValueArray(int id, Values values, unsigned long count);               \
    TALUX_API void VarGetGlobal##Kind##ValueArray(int id, Values values, unsigned long count);
TALUX_RUN(Float, float*)
TALUX_RUN(Double, double*)
TALUX_RUN(Long, VarLong*)
TALUX_RUN(Int, short*)
#undef TALUX_RUN
TALUX_API void VarSetGlobalStructValue(int id, void* record, VarLong size);
TALUX_API void VarGetGlobalStructValue(int id, void* record, VarLong size);

/* Factory defaults into the working copy; the commit. */
TALUX_API void VarSetDefault(void);
TALUX_API int VarUpdateGlobalSpace(void);

/* A commit, then a save: 0 parameter.ini, 1 sec_parameter.ini, 2 ip_config.ini. 0 done, else the errno. */
TALUX_API int VarSaveError(int file);

/* Load the same files and make them live; the last one applies the network settings. 1 done, 0 not opened. */
TALUX_API int VarLoadParams(void);
TALUX_API int VarLoadSecParams(void);
TALUX_API int VarLoadIPConfig(void);

#ifdef __cplusplus
}
}
#endif

#endif
