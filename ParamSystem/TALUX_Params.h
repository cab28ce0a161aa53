// The parameter dictionary: property records, their look-ups, symbols and the layouts of the records.
#ifndef TALUX_PARAMS_H
#define TALUX_PARAMS_H

#include "ParamSystem/TALUX_Types.h"

// Type codes of parameters, and of the values on the stack of the command language.
enum ParamType : int {
    kTypeNone = 0, // sentinels and dialog templates, no value
    kTypeDouble = 2002,
    kTypeFloat = 2003,
    kTypeLong = 2004,
    kTypeInt = 2008,
    kTypeBool = 2010,
    kTypeText = 2011,
    kTypeEnum = 2012, // choice number, counted from 1
    kTypeDate = 2013,
    kTypeTime = 2014,
    kTypeSysDate = 2015, // date of the system clock
    kTypeSysTime = 2016, // time of the system clock
    kTypeId = 2017,
    kTypeIp = 2018,
    kTypeIpAddress = 2019, // address of an interface; writing it applies the network settings
    kTypeIpMask = 2020,
    kTypeIpGateway = 2021,
    kTypeStruct = 2022,
    kTypeCommand = 2024, // trigger for the device's other programs, not stored
};

enum ParamAccess : int { kAccessNone = 0, kReadOnly = 1, kWriteOnly = 2, kReadWrite = 3 };

// Mean "no limit" in val_min and val_max.
inline constexpr double kNoMin = -999999999.0;
inline constexpr double kNoMax = 999999999.0;

// One parameter, or one element of an indexed parameter.
struct stParamProperties {
    int id;                    // its block decides kind and slot in the store; 0 only in sentinels
    const char* name;          // same for all elements of an indexed parameter; empty for templates
    int id_template;           // 0 or the template whose texts the parameter shares
    int type;                  // ParamType
    int val_access;            // ParamAccess
    int is_volatile;           // 1 run-time value, global space only; 0 persistent setting
    const char* format;        // printf-style display format, or empty
    const char* val_init_text; // initial value of text-like types
    double val_init;           // initial value of numeric types
    const char* val_def_text;  // factory default of text-like types
    double val_def;            // factory default of numeric types
    int val_len;               // longest text in characters, -1 where it does not apply
    double val_min;            // smallest and largest value that a write may set, both inclusive
    double val_max;
    int val_min_id; // first and last index of an indexed parameter; both 0 for a scalar
    int val_max_id;
    double val_step; // edit step of the device's editor
    int userlevel;   // rights needed to write: 1, 2 or 3 (security parameters)
};

// A symbolic name and its id.
struct stParamSymbol {
    int value;
    const char* name;
};

/*
 * The tables. A program that names a table is linked with memory for it, as large as the table was then.
 * When the library is newer and has more parameters,
 * - the program's copy of a constant table has its first rows and no closing sentinel: walk positions
 * with GetParamPropertiesByOrder and resolve names with the look-ups, which read the library's own tables;
 * - a working table in the program is the one that the library uses, too: ParamText keeps its size,
 * ParamProperties takes up to kSpareParamRows - 1 more parameters, less the rows that the program adds.
 */

// The compiled-in table: sentinels with id 0 and name "***" first and last, the parameters between them in
// menu order.
extern TALUX_API const stParamProperties DefParamProperties[];

// Rows of the working table after the compiled-in ones, zero-filled.
inline constexpr int kSpareParamRows = 98;

/*
 * The working table, which every look-up, the store and the command language read: kSpareParamRows rows more
 * than DefParamProperties. After row 0 the first row with id 0 ends it. Before it starts a second thread, a
 * program may change rows (access, range, type, level) and fill the first spare row. The texts of a row are
 * never null, and its name has at most 127 characters.
 */
extern TALUX_API stParamProperties ParamProperties[];

// A family of the menus: the parameters from table position `first` to `last`.
struct stParamFamily {
    const char* name;
    int first;
    int last;
};

// The families in table order, which together hold every compiled-in parameter; one named "***" ends them.
extern TALUX_API const stParamFamily DefParamFamilies[];

// "VAR_" and "CMD_" names; the first and the last row are named "***".
extern TALUX_API const stParamSymbol DefParamSymbols[];

/*
 * Copies DefParamProperties into the working table, again at every call; spare rows stay as they are. Before,
 * the look-ups find nothing. Returns 1. Called at start-up, before any look-up and any second thread; the
 * look-ups are then thread-safe, and the rows that they return stay valid for the life of the process.
 */
TALUX_API int LoadDefParamProperties();

// Reserved for loading properties from a file: does nothing, returns 1.
TALUX_API int LoadParamProperties(char* sourcefile);

// The first row in table order with this id, or null. Aborts on a negative id. A compiled-in row that still
// has its id is found first, even if a program gave the id to an earlier row or cleared one; the same
// applies to names.
TALUX_API const stParamProperties* GetParamProperties(int id);

// The row at a table position: 0 the opening sentinel, the parameters from 1 on. Null after the last of them,
// at a row with id 0 and before the table is filled. Aborts on a negative position.
TALUX_API const stParamProperties* GetParamPropertiesByOrder(int id);

// The first row in table order with this name, letter case ignored, or null (a null name gives null). For
// an indexed parameter this is its first element; element k has the id of that row plus k - 1.
TALUX_API const stParamProperties* GetParamPropertiesByName(char* name);

// Looks a VAR_ or CMD_ name up, letter case ignored. Returns 1 and stores the id in *lvalue, or returns 0
// and leaves it alone.
TALUX_API int ResolveParamSymbol(char* name, VarLong* lvalue);

// One member of a structured record.
struct STRUCT_StructMemberProperties {
    VarLong lMemberOffset;     // bytes from the start of the record
    int iMemberBitsize;        // size in bits
    const char* szMemberType;  // "long" or "float"
    const char* aszMemberName; // as printed in dumps
};
using StructMemberProperties_t = STRUCT_StructMemberProperties;

inline constexpr int kRecordCount = 3;
inline constexpr int kRecordMemberCount = 147;
inline constexpr int kLargestRecord = 236;   // bytes
inline constexpr int kStructSpaceSize = 588; // bytes

// The records, indexed by id - 30000: offset and size in the struct segment in bytes, first descriptor and
// number of members.
extern TALUX_API const VarLong ARR_StructOffset[kRecordCount];
extern TALUX_API const VarLong ARR_StructSize[kRecordCount];
extern TALUX_API const VarLong ARR_MemberOffset[kRecordCount];
extern TALUX_API const VarLong ARR_MemberCount[kRecordCount];
extern TALUX_API const StructMemberProperties_t ARR_StructMemberProperties[kRecordMemberCount];

// Id blocks: first id and number of slots of each kind. An id alone decides kind and slot.
inline constexpr int kFirstDouble = 1000, kDoubleCount = 384;
inline constexpr int kFirstFloat = 2000, kFloatCount = 312;
inline constexpr int kFirstLong = 6000, kLongCount = 1269;
inline constexpr int kFirstInt = 7000, kIntCount = 7; // these ids lie in the long block too
inline constexpr int kFirstBool = 8000, kBoolCount = 191;
inline constexpr int kFirstText = 9000, kTextCount = 69;
inline constexpr int kFirstEnum = 10000, kEnumCount = 131;
inline constexpr int kFirstDate = 11000, kDateCount = 0;
inline constexpr int kFirstTime = 12000, kTimeCount = 0;
inline constexpr int kFirstSysDate = 13000, kSysDateCount = 1;
inline constexpr int kFirstSysTime = 14000, kSysTimeCount = 1;
inline constexpr int kFirstId = 15000, kIdCount = 1;
inline constexpr int kFirstIp = 16000, kIpCount = 38;
inline constexpr int kFirstStruct = 30000, kStructCount = kRecordCount;

#endif
