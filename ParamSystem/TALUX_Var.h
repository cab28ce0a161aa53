// The parameter store: value spaces, accessors, defaults and commit, parameter files, system settings.
#ifndef TALUX_VAR_H
#define TALUX_VAR_H

#include <cstddef>
#include <type_traits>

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/TALUX_Types.h"

/*
 * Two spaces hold the values. The global space has the live values that all programs of the device use;
 * the temporary space is the working copy of the settings, which reaches the global space with the commit
 * (VarUpdateGlobalSpace). Run-time values live in the global space alone. Three structured records are in
 * a separate segment.
 *
 * All three are System V shared memory. Accessors lock the kind and space that they touch against the
 * threads of this process; other processes take no lock.
 */

// ---- Layout -------------------------------------------------------------------------------------------

// Bytes of one slot of the text-like kinds, terminating NUL included.
inline constexpr int kTextSize = 128, kDateSize = 15, kTimeSize = 10, kIdSize = 20, kIpSize = 20;

// One value space. The layout is shared with the device's other programs: packed, little-endian, the
// 16-bit enums at odd offsets. Use the accessors; a member's address may not be aligned. The blocks of dates
// and times are empty.
#pragma pack(push, 1)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic" // arrays of no length
struct stVarSpace {
    float FloatData[kFloatCount];
    double DoubleData[kDoubleCount];
    std::int32_t LongData[kLongCount];
    std::int16_t IntData[kIntCount];
    std::uint8_t BoolData[kBoolCount];
    char TextData[kTextCount][kTextSize];
    std::int16_t EnumData[kEnumCount];
    char DateData[kDateCount][kDateSize];
    char TimeData[kTimeCount][kTimeSize];
    char SysDateData[kSysDateCount][kDateSize];
    char SysTimeData[kSysTimeCount][kTimeSize];
    char IdData[kIdCount][kIdSize];
    char IpData[kIpCount][kIpSize];
};
#pragma GCC diagnostic pop
#pragma pack(pop)

static_assert(std::is_standard_layout_v<stVarSpace> && sizeof(stVarSpace) == 19500);
static_assert(offsetof(stVarSpace, FloatData) == 0 && offsetof(stVarSpace, DoubleData) == 1248);
static_assert(offsetof(stVarSpace, LongData) == 4320 && offsetof(stVarSpace, IntData) == 9396);
static_assert(offsetof(stVarSpace, BoolData) == 9410 && offsetof(stVarSpace, TextData) == 9601);
static_assert(offsetof(stVarSpace, EnumData) == 18433 && offsetof(stVarSpace, DateData) == 18695);
static_assert(offsetof(stVarSpace, TimeData) == 18695 && offsetof(stVarSpace, SysDateData) == 18695);
static_assert(offsetof(stVarSpace, SysTimeData) == 18710 && offsetof(stVarSpace, IdData) == 18720);
static_assert(offsetof(stVarSpace, IpData) == 18740);

// Keys of the segments.
inline constexpr int kStructSpaceKey = 5675, kGlobalSpaceKey = 5678, kTempSpaceKey = 5679;

// The attached segments; null before VarInit.
extern TALUX_API stVarSpace* pVarGlobal;
extern TALUX_API stVarSpace* pVarTemp;
extern TALUX_API void* pVarStruct;

// Directory of the parameter files, without a trailing slash; set by VarInit.
extern TALUX_API char szParameterPath[256];

// 0 while VarInit attaches the segments, 1 afterwards.
extern TALUX_API int fSave;

// 1 once the locks of this process exist.
extern TALUX_API int mutex_init;

// ---- Start-up and clean-up ----------------------------------------------------------------------------

// Sets the directory of the parameter files (its first 255 characters are used), creates the locks once and
// attaches the segments, creating them zero-filled when no program has yet. Call before anything else
// here and before a second thread. A failure prints the system error and ends the process with status 1.
// A later call, from any thread, sets the directory anew, and the three pointers to the attached segments.
// Attached segments stay where they are, so other threads may be inside an accessor; a segment that was
// removed and created again meanwhile is attached in its place.
TALUX_API void VarInit(char* inipath);

// What VarInit does, except for the path.
TALUX_API void VarAlloc(void);

// Fills the global and the temporary space with zero bytes. Takes no lock; the records stay.
TALUX_API void VarClean(void);

// Deletes the file "TALUX-LCD.log" in the current directory. Returns 1, also when there is none.
TALUX_API int VarResetLCDLogbook(void);

// ---- Which kind an id belongs to ----------------------------------------------------------------------

// 1 when the id lies in the block of the kind, else 0. Any id is allowed.
TALUX_API int VarIsDouble(int id);
TALUX_API int VarIsFloat(int id);
TALUX_API int VarIsLong(int id);
TALUX_API int VarIsInt(int id);
TALUX_API int VarIsBool(int id);
TALUX_API int VarIsText(int id);
TALUX_API int VarIsEnum(int id);
TALUX_API int VarIsDate(int id); // the date and time blocks are empty: always 0
TALUX_API int VarIsTime(int id);
TALUX_API int VarIsSysDate(int id);
TALUX_API int VarIsSysTime(int id);
TALUX_API int VarIsId(int id);
TALUX_API int VarIsIp(int id);
TALUX_API int VarIsStruct(int id);

// ---- Single values ------------------------------------------------------------------------------------

/*
 * VarSet.. and VarGet.. work on the temporary space, VarSetGlobal.. and VarGetGlobal.. on the global one.
 * Each takes the one lock of its kind and space for the copy; any number of threads may call them. An id
 * of another kind aborts with the failed check, such as "VarIsLong(id)". Numbers are stored as given: no
 * range check, no change flag.
 */
TALUX_API void VarSetFloatValue(int id, float val);
TALUX_API void VarSetGlobalFloatValue(int id, float val);
TALUX_API void VarGetFloatValue(int id, float* pVal);
TALUX_API void VarGetGlobalFloatValue(int id, float* pVal);

TALUX_API void VarSetDoubleValue(int id, double val);
TALUX_API void VarSetGlobalDoubleValue(int id, double val);
TALUX_API void VarGetDoubleValue(int id, double* pVal);
TALUX_API void VarGetGlobalDoubleValue(int id, double* pVal);

TALUX_API void VarSetLongValue(int id, VarLong val);
TALUX_API void VarSetGlobalLongValue(int id, VarLong val);
TALUX_API void VarGetLongValue(int id, VarLong* pVal);
TALUX_API void VarGetGlobalLongValue(int id, VarLong* pVal);

TALUX_API void VarSetIntValue(int id, short val);
TALUX_API void VarSetGlobalIntValue(int id, short val);
TALUX_API void VarGetIntValue(int id, short* pVal);
TALUX_API void VarGetGlobalIntValue(int id, short* pVal);

TALUX_API void VarSetBoolValue(int id, char val);
TALUX_API void VarSetGlobalBoolValue(int id, char val);
TALUX_API void VarGetBoolValue(int id, char* pVal);
TALUX_API void VarGetGlobalBoolValue(int id, char* pVal);

TALUX_API void VarSetEnumValue(int id, short val);
TALUX_API void VarSetGlobalEnumValue(int id, short val);
TALUX_API void VarGetEnumValue(int id, short* pVal);
TALUX_API void VarGetGlobalEnumValue(int id, short* pVal);

/*
 * Texts. Writers take a NUL-terminated string and cut it to the slot: 127 characters for text, 14 for date
 * and sysdate, 9 for time and systime, 19 for id and ip. Readers copy the string with its NUL into a
 * buffer that must have room for the whole slot: 128, 15, 10 or 20 bytes.
 */
TALUX_API void VarSetTextValue(int id, char* val);
TALUX_API void VarSetGlobalTextValue(int id, char* val);
TALUX_API void VarGetTextValue(int id, char* val);
TALUX_API void VarGetGlobalTextValue(int id, char* val);

TALUX_API void VarSetDateValue(int id, char* val);
TALUX_API void VarSetGlobalDateValue(int id, char* val);
TALUX_API void VarGetDateValue(int id, char* val);
TALUX_API void VarGetGlobalDateValue(int id, char* val);

TALUX_API void VarSetTimeValue(int id, char* val);
TALUX_API void VarSetGlobalTimeValue(int id, char* val);
TALUX_API void VarGetTimeValue(int id, char* val);
TALUX_API void VarGetGlobalTimeValue(int id, char* val);

TALUX_API void VarSetSysDateValue(int id, char* val);
TALUX_API void VarSetGlobalSysDateValue(int id, char* val);
TALUX_API void VarGetSysDateValue(int id, char* val);
TALUX_API void VarGetGlobalSysDateValue(int id, char* val);

TALUX_API void VarSetSysTimeValue(int id, char* val);
TALUX_API void VarSetGlobalSysTimeValue(int id, char* val);
TALUX_API void VarGetSysTimeValue(int id, char* val);
TALUX_API void VarGetGlobalSysTimeValue(int id, char* val);

TALUX_API void VarSetIdValue(int id, char* val);
TALUX_API void VarSetGlobalIdValue(int id, char* val);
TALUX_API void VarGetIdValue(int id, char* val);
TALUX_API void VarGetGlobalIdValue(int id, char* val);

TALUX_API void VarSetIpValue(int id, char* val);
TALUX_API void VarSetGlobalIpValue(int id, char* val);
TALUX_API void VarGetIpValue(int id, char* val);
TALUX_API void VarGetGlobalIpValue(int id, char* val);

// ---- Runs of values -----------------------------------------------------------------------------------

/*
 * Copy `aCount` values of the ids id, id + 1, .. in one piece under one lock. A run that ends past the
 * block, or a count of 0, does nothing. An id of another kind aborts in the readers except those of long;
 * in all others it does nothing.
 */
TALUX_API void VarSetFloatValueArray(int id, float* pSrc, unsigned long aCount);
TALUX_API void VarSetGlobalFloatValueArray(int id, float* pSrc, unsigned long aCount);
TALUX_API void VarGetFloatValueArray(int id, float* pDest, unsigned long aCount);
TALUX_API void VarGetGlobalFloatValueArray(int id, float* pDest, unsigned long aCount);

TALUX_API void VarSetDoubleValueArray(int id, double* pSrc, unsigned long aCount);
TALUX_API void VarSetGlobalDoubleValueArray(int id, double* pSrc, unsigned long aCount);
TALUX_API void VarGetDoubleValueArray(int id, double* pDest, unsigned long aCount);
TALUX_API void VarGetGlobalDoubleValueArray(int id, double* pDest, unsigned long aCount);

TALUX_API void VarSetLongValueArray(int id, VarLong* pSrc, unsigned long aCount);
TALUX_API void VarSetGlobalLongValueArray(int id, VarLong* pSrc, unsigned long aCount);
TALUX_API void VarGetLongValueArray(int id, VarLong* pDest, unsigned long aCount);
TALUX_API void VarGetGlobalLongValueArray(int id, VarLong* pDest, unsigned long aCount);

TALUX_API void VarSetIntValueArray(int id, short* pSrc, unsigned long aCount);
TALUX_API void VarSetGlobalIntValueArray(int id, short* pSrc, unsigned long aCount);
TALUX_API void VarGetIntValueArray(int id, short* pDest, unsigned long aCount);
TALUX_API void VarGetGlobalIntValueArray(int id, short* pDest, unsigned long aCount);

TALUX_API void VarSetBoolValueArray(int id, char* pSrc, unsigned long aCount);
TALUX_API void VarSetGlobalBoolValueArray(int id, char* pSrc, unsigned long aCount);
TALUX_API void VarGetBoolValueArray(int id, char* pDest, unsigned long aCount);
TALUX_API void VarGetGlobalBoolValueArray(int id, char* pDest, unsigned long aCount);

TALUX_API void VarSetEnumValueArray(int id, short* pSrc, unsigned long aCount);
TALUX_API void VarSetGlobalEnumValueArray(int id, short* pSrc, unsigned long aCount);
TALUX_API void VarGetEnumValueArray(int id, short* pDest, unsigned long aCount);
TALUX_API void VarGetGlobalEnumValueArray(int id, short* pDest, unsigned long aCount);

// ---- Structured records -------------------------------------------------------------------------------

// Copy the first `size` bytes of a record (ids 30000..30002) to or from `ptr` under the records' one lock.
// A size below 1 does nothing; one larger than the record (ARR_StructSize) and a foreign id abort.
TALUX_API void VarGetGlobalStructValue(int id, void* ptr, VarLong size);
TALUX_API void VarSetGlobalStructValue(int id, void* ptr, VarLong size);

// ---- Values of any kind -------------------------------------------------------------------------------

/*
 * Dispatch on the id's block. For numeric kinds `pVal` points to one double; for text-like kinds it points
 * to a character buffer, NUL-terminated for writes, at least 128 bytes long for reads. Ids without a slot
 * and the records are left alone. The ids 7000..7006 are read as long and written as int and long.
 * Numbers outside the target's range saturate at 32 bits, not-a-number gives 0, then the low 16 or 8 bits
 * are stored; float and double keep inf and nan. Locks and threads as for the single values.
 */
TALUX_API void VarGetValue(int id, double* pVal);
TALUX_API void VarGetGlobalValue(int id, double* pVal);
TALUX_API void VarSetValue(int id, double* pVal);
TALUX_API void VarSetGlobalValue(int id, double* pVal);

// Writes the factory defaults of all parameters into the temporary space; a commit makes them live.
TALUX_API void VarSetDefault(void);

// The commit: copies every persistent parameter from the temporary to the global space and leaves the
// change flags as they were. Not atomic as a whole. Returns 1.
TALUX_API int VarUpdateGlobalSpace(void);

// ---- Parameter files ----------------------------------------------------------------------------------

/*
 * Text files of lines TLX_<name>=<value> in szParameterPath: parameter.ini (levels 1 and 2),
 * sec_parameter.ini (level 3), ip_config.ini (addresses) and the factory addresses def_ip_config.ini.
 * They are written from the global space and loaded into the temporary space, then committed. Messages go
 * to the error stream or standard output, see docs/architecture.md; docs/files.md describes the format.
 *
 * A save replaces the file as a whole: whoever reads it, also after a power cut, finds the old one or
 * the new one. Several processes and threads may save at once; the last one wins. A save needs 48 kB of
 * stack and no heap.
 */

// Write one file. The name is used as it is given: not in the directory of the parameter files, unless it
// names that. 1 done; 0 the file cannot be created, may not be on the disk, has an empty name (the address
// file), or LoadDefParamProperties has not been called. A write that fails is reported, the old file stays,
// and the result is 1. The address file is committed first.
TALUX_API int VarSaveParamFile(char* filename);
TALUX_API int VarSaveSecParamFile(char* filename);
TALUX_API int VarSaveIPConfigFile(char* filename);

// Commit, write the file and its dated copy, raise ParamChanged or SecParamChanged. 1 done, 0 failed.
TALUX_API int VarSaveParams(void);
TALUX_API int VarSaveSecParams(void);
// Commit, write ip_config.ini, raise IpParamChanged. 1 done, 0 failed.
TALUX_API int VarSaveIPConfig(void);
// Does what one of the three does, but also reports a write that fails: 0 when the file and its dated copy
// are certain to be on the disk, else the errno of what failed.
enum class SavedFile : int { parameters, security, addresses };
TALUX_API int VarSaveError(SavedFile file);
// Both parameter files with their dated copies as they are in the global space, then the address file.
TALUX_API int VarSaveAll(void);

// Loads a file, whose name is also used as it is given, and commits. `type` 0 loads everything; a text-like
// type code loads, among the text-like parameters, only those of that type. 1 done, 0 the file cannot be
// opened (nothing is committed). A read error ends the process with status 2.
TALUX_API int VarLoadFile(char* filename, int type);

// Load parameter.ini, sec_parameter.ini or ip_config.ini and raise the change flag whatever the result;
// the last one applies the network settings. Result of the load.
TALUX_API int VarLoadParams(void);
TALUX_API int VarLoadSecParams(void);
TALUX_API int VarLoadIPConfig(void);

// Loads gateways, netmasks and the addresses of `type` (2019, 2018, 0 all) from def_ip_config.ini, commits
// and applies them. 1 when all three loads succeeded, else 0.
TALUX_API int VarResetIPConfig(int type);

// ---- Settings that reach the operating system ----------------------------------------------------------

/*
 * Each runs shell commands, one after the other, most of them announced on the error stream, and blocks
 * until they are done. The commands' own success is not examined. Texts are one word for the shell
 * whatever they contain; a command of more than 253 characters is not run and the reason goes to the error
 * stream. Not atomic: each value is read when its command is built.
 */

// Applies everything: eth0, eth1, telecontrol aliases, name server, time zone, time service, wlan0.
// Returns 1.
TALUX_API int VarSetSystemIPs(void);

// Address, netmask and default route of eth0, eth1 and wlan0; save ip_config.ini. Return 1.
TALUX_API int VarStaticIP(void);
TALUX_API int VarStaticIPETH1(void);
TALUX_API int VarStaticIPWLAN0_ADHOC(void);

// Ad-hoc mode of wlan0: rate, channel, network name, key. Returns 1.
TALUX_API int VarADHOCWLAN0(void);

// Infrastructure mode of wlan0 is not provided: both say so on the error stream and return 1.
TALUX_API int VarINFRASTRUCTUREWLAN0(void);
TALUX_API int VarStaticIPWLAN0_INFRASTRUCTURE(void);

// Makes `DNS` the only name server of /etc/resolv.conf. 1 written, 0 nothing to do or no server at all (a
// text with a line end, which is reported on the error stream).
TALUX_API int VarDNS(void);

// Links /etc/localtime to the zone file `TIMEZONE`, or to UTC when there is no such file. An empty `TIMEZONE`
// leaves a /etc/localtime that is no link as it is. Returns 1.
TALUX_API int VarTIMEZONE(void);

// Writes /tmp/ntp.conf, sets the clock once from a configured server and restarts the time service.
// 0 when a DCF77 receiver sets the time, else 1.
TALUX_API int VarNTP(void);

// Rebuilds the telecontrol alias addresses 1..4 with their routes. Returns 1.
TALUX_API int VarT104(void);

#endif
