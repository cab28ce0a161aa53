// The accessors: single values and runs of every kind, in both spaces and directions, and values of any kind.
#include "ParamSystem/store/Slots.h"
#include "ParamSystem/store/Values.h"
#include "support/Assertion.h"

#define TALUX_UNIT "ParamSystem/TALUX_Var"

namespace {

using talux::Kind;
using talux::Number;
using talux::Space;
using enum talux::Kind;
using enum talux::Space;

// Aborts in the name of the accessor when the id is of another kind.
template <Kind kind>
void check(int id, const char* accessor) {
    talux::assertThat(talux::holds(kind, id), talux::blockOf(kind).assertion, TALUX_UNIT, accessor);
}

// What the accessors of every kind do. Single values require the kind; so do readers of runs, except those
// of long, which ignore ids of other kinds as writers of runs do. `accessor` is by default the caller's name.
template <Kind kind, Space space>
void set(int id, Number<kind> value, const char* accessor = __builtin_FUNCTION()) {
    check<kind>(id, accessor);
    talux::putNumber<kind, space>(id, value);
}

template <Kind kind, Space space>
void get(int id, Number<kind>* value, const char* accessor = __builtin_FUNCTION()) {
    check<kind>(id, accessor);
    *value = talux::getNumber<kind, space>(id);
}

template <Kind kind, Space space>
void setText(int id, const char* text, const char* accessor = __builtin_FUNCTION()) {
    check<kind>(id, accessor);
    talux::putText<kind, space>(id, text);
}

template <Kind kind, Space space>
void getText(int id, char* text, const char* accessor = __builtin_FUNCTION()) {
    check<kind>(id, accessor);
    talux::getText<kind, space>(id, text);
}

template <Kind kind, Space space>
void setRun(int id, const Number<kind>* source, unsigned long count) {
    if (talux::holds(kind, id)) talux::putRun<kind, space>(id, source, count);
}

template <Kind kind, Space space>
void getRun(int id, Number<kind>* dest, unsigned long count, const char* accessor = __builtin_FUNCTION()) {
    if (kind == Long && !talux::holds(kind, id)) return;
    check<kind>(id, accessor);
    talux::getRun<kind, space>(id, dest, count);
}

} // namespace

// One line for each, so that a search for its name ends here.
// clang-format off

void VarSetFloatValue(int id, float val) { set<Float, temp>(id, val); }
void VarGetFloatValue(int id, float* pVal) { get<Float, temp>(id, pVal); }
void VarSetGlobalFloatValue(int id, float val) { set<Float, global>(id, val); }
void VarGetGlobalFloatValue(int id, float* pVal) { get<Float, global>(id, pVal); }
void VarSetFloatValueArray(int id, float* pSrc, unsigned long aCount) { setRun<Float, temp>(id, pSrc, aCount); }
void VarGetFloatValueArray(int id, float* pDest, unsigned long aCount) { getRun<Float, temp>(id, pDest, aCount); }
void VarSetGlobalFloatValueArray(int id, float* pSrc, unsigned long aCount) { setRun<Float, global>(id, pSrc, aCount); }
void VarGetGlobalFloatValueArray(int id, float* pDest, unsigned long aCount) { getRun<Float, global>(id, pDest, aCount); }

void VarSetDoubleValue(int id, double val) { set<Double, temp>(id, val); }
void VarGetDoubleValue(int id, double* pVal) { get<Double, temp>(id, pVal); }
void VarSetGlobalDoubleValue(int id, double val) { set<Double, global>(id, val); }
void VarGetGlobalDoubleValue(int id, double* pVal) { get<Double, global>(id, pVal); }
void VarSetDoubleValueArray(int id, double* pSrc, unsigned long aCount) { setRun<Double, temp>(id, pSrc, aCount); }
void VarGetDoubleValueArray(int id, double* pDest, unsigned long aCount) { getRun<Double, temp>(id, pDest, aCount); }
void VarSetGlobalDoubleValueArray(int id, double* pSrc, unsigned long aCount) { setRun<Double, global>(id, pSrc, aCount); }
void VarGetGlobalDoubleValueArray(int id, double* pDest, unsigned long aCount) { getRun<Double, global>(id, pDest, aCount); }

void VarSetLongValue(int id, VarLong val) { set<Long, temp>(id, val); }
void VarGetLongValue(int id, VarLong* pVal) { get<Long, temp>(id, pVal); }
void VarSetGlobalLongValue(int id, VarLong val) { set<Long, global>(id, val); }
void VarGetGlobalLongValue(int id, VarLong* pVal) { get<Long, global>(id, pVal); }
void VarSetLongValueArray(int id, VarLong* pSrc, unsigned long aCount) { setRun<Long, temp>(id, pSrc, aCount); }
void VarGetLongValueArray(int id, VarLong* pDest, unsigned long aCount) { getRun<Long, temp>(id, pDest, aCount); }
void VarSetGlobalLongValueArray(int id, VarLong* pSrc, unsigned long aCount) { setRun<Long, global>(id, pSrc, aCount); }
void VarGetGlobalLongValueArray(int id, VarLong* pDest, unsigned long aCount) { getRun<Long, global>(id, pDest, aCount); }

void VarSetIntValue(int id, short val) { set<Int, temp>(id, val); }
void VarGetIntValue(int id, short* pVal) { get<Int, temp>(id, pVal); }
void VarSetGlobalIntValue(int id, short val) { set<Int, global>(id, val); }
void VarGetGlobalIntValue(int id, short* pVal) { get<Int, global>(id, pVal); }
void VarSetIntValueArray(int id, short* pSrc, unsigned long aCount) { setRun<Int, temp>(id, pSrc, aCount); }
void VarGetIntValueArray(int id, short* pDest, unsigned long aCount) { getRun<Int, temp>(id, pDest, aCount); }
void VarSetGlobalIntValueArray(int id, short* pSrc, unsigned long aCount) { setRun<Int, global>(id, pSrc, aCount); }
void VarGetGlobalIntValueArray(int id, short* pDest, unsigned long aCount) { getRun<Int, global>(id, pDest, aCount); }

void VarSetBoolValue(int id, char val) { set<Bool, temp>(id, val); }
void VarGetBoolValue(int id, char* pVal) { get<Bool, temp>(id, pVal); }
void VarSetGlobalBoolValue(int id, char val) { set<Bool, global>(id, val); }
void VarGetGlobalBoolValue(int id, char* pVal) { get<Bool, global>(id, pVal); }
void VarSetBoolValueArray(int id, char* pSrc, unsigned long aCount) { setRun<Bool, temp>(id, pSrc, aCount); }
void VarGetBoolValueArray(int id, char* pDest, unsigned long aCount) { getRun<Bool, temp>(id, pDest, aCount); }
void VarSetGlobalBoolValueArray(int id, char* pSrc, unsigned long aCount) { setRun<Bool, global>(id, pSrc, aCount); }
void VarGetGlobalBoolValueArray(int id, char* pDest, unsigned long aCount) { getRun<Bool, global>(id, pDest, aCount); }

void VarSetEnumValue(int id, short val) { set<Enum, temp>(id, val); }
void VarGetEnumValue(int id, short* pVal) { get<Enum, temp>(id, pVal); }
void VarSetGlobalEnumValue(int id, short val) { set<Enum, global>(id, val); }
void VarGetGlobalEnumValue(int id, short* pVal) { get<Enum, global>(id, pVal); }
void VarSetEnumValueArray(int id, short* pSrc, unsigned long aCount) { setRun<Enum, temp>(id, pSrc, aCount); }
void VarGetEnumValueArray(int id, short* pDest, unsigned long aCount) { getRun<Enum, temp>(id, pDest, aCount); }
void VarSetGlobalEnumValueArray(int id, short* pSrc, unsigned long aCount) { setRun<Enum, global>(id, pSrc, aCount); }
void VarGetGlobalEnumValueArray(int id, short* pDest, unsigned long aCount) { getRun<Enum, global>(id, pDest, aCount); }

void VarSetTextValue(int id, char* val) { setText<Text, temp>(id, val); }
void VarGetTextValue(int id, char* val) { getText<Text, temp>(id, val); }
void VarSetGlobalTextValue(int id, char* val) { setText<Text, global>(id, val); }
void VarGetGlobalTextValue(int id, char* val) { getText<Text, global>(id, val); }

void VarSetDateValue(int id, char* val) { setText<Date, temp>(id, val); }
void VarGetDateValue(int id, char* val) { getText<Date, temp>(id, val); }
void VarSetGlobalDateValue(int id, char* val) { setText<Date, global>(id, val); }
void VarGetGlobalDateValue(int id, char* val) { getText<Date, global>(id, val); }

void VarSetTimeValue(int id, char* val) { setText<Time, temp>(id, val); }
void VarGetTimeValue(int id, char* val) { getText<Time, temp>(id, val); }
void VarSetGlobalTimeValue(int id, char* val) { setText<Time, global>(id, val); }
void VarGetGlobalTimeValue(int id, char* val) { getText<Time, global>(id, val); }

void VarSetSysDateValue(int id, char* val) { setText<SysDate, temp>(id, val); }
void VarGetSysDateValue(int id, char* val) { getText<SysDate, temp>(id, val); }
void VarSetGlobalSysDateValue(int id, char* val) { setText<SysDate, global>(id, val); }
void VarGetGlobalSysDateValue(int id, char* val) { getText<SysDate, global>(id, val); }

void VarSetSysTimeValue(int id, char* val) { setText<SysTime, temp>(id, val); }
void VarGetSysTimeValue(int id, char* val) { getText<SysTime, temp>(id, val); }
void VarSetGlobalSysTimeValue(int id, char* val) { setText<SysTime, global>(id, val); }
void VarGetGlobalSysTimeValue(int id, char* val) { getText<SysTime, global>(id, val); }

void VarSetIdValue(int id, char* val) { setText<Id, temp>(id, val); }
void VarGetIdValue(int id, char* val) { getText<Id, temp>(id, val); }
void VarSetGlobalIdValue(int id, char* val) { setText<Id, global>(id, val); }
void VarGetGlobalIdValue(int id, char* val) { getText<Id, global>(id, val); }

void VarSetIpValue(int id, char* val) { setText<Ip, temp>(id, val); }
void VarGetIpValue(int id, char* val) { getText<Ip, temp>(id, val); }
void VarSetGlobalIpValue(int id, char* val) { setText<Ip, global>(id, val); }
void VarGetGlobalIpValue(int id, char* val) { getText<Ip, global>(id, val); }

// clang-format on

// ---- Records ----

namespace {

// Where a record's first `size` bytes may be copied, or null when there is nothing to copy.
char* recordBytes(int id, VarLong size, const char* accessor) {
    check<Kind::Struct>(id, accessor);
    const int struct_index = id - kFirstStruct;
    talux::assertThat(size <= ARR_StructSize[struct_index], "size <= ARR_StructSize[struct_index]",
                      TALUX_UNIT, accessor);
    const std::atomic_ref records(pVarStruct); // VarInit may set it meanwhile
    char* const first = static_cast<char*>(records.load(std::memory_order_relaxed));
    return size > 0 ? first + ARR_StructOffset[struct_index] : nullptr;
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

// ---- Of any kind ------------------------------------------------------------------------------------------

namespace {

// Outside of the library one pointer serves numbers and texts.
void readThrough(Space space, int id, double* value) {
    const auto read = talux::readValue(space, id);
    if (!read) return;
    if (read->isText())
        std::memcpy(value, read->text(), std::strlen(read->text()) + 1);
    else
        *value = read->number();
}

void writeThrough(Space space, int id, const double* value) {
    const talux::Kind kind = talux::kindOf(id);
    if (kind == talux::Kind::None) return; // nothing of the caller's is read
    if (!talux::isTextKind(kind)) return talux::writeNumber(space, id, *value);
    const auto* const text = reinterpret_cast<const char*>(value);
    const std::size_t length = strnlen(text, talux::blockOf(kind).slotSize - 1);
    talux::writeValue(space, id, talux::Value(std::string_view(text, length)));
}

} // namespace

void VarGetValue(int id, double* pVal) {
    readThrough(Space::temp, id, pVal);
}

void VarGetGlobalValue(int id, double* pVal) {
    readThrough(Space::global, id, pVal);
}

void VarSetValue(int id, double* pVal) {
    writeThrough(Space::temp, id, pVal);
}

void VarSetGlobalValue(int id, double* pVal) {
    writeThrough(Space::global, id, pVal);
}
