// A store in private memory, for unit tests of programs with handles: no library, no shared memory, no
// isolation. Include it in one source of the test, and do not link the library: this defines its functions
// that handles, changes and followers call.
//
//   talux::Fake fake; // settings have their factory defaults, measured values are 0 or empty
//   CHECK(threshold.stage(35));
//
// It has the dictionary of the device, with which about.hpp and notes.hpp work, but no files and no command
// language. Its groups are those of the threads of this program.
#ifndef TALUX_FAKE_HPP
#define TALUX_FAKE_HPP

#include <algorithm>
#include <iterator>
#include <span>
#include <strings.h>

#include "talux/dictionary_table.hpp"
#include "talux/follower.hpp"
#include "talux/talux.hpp"

namespace talux {

namespace detail::fake {

inline stVarSpace live, staged;
alignas(8) inline char records[3][1024];
static_assert(sizeof(MessRecord01) <= 1024 && sizeof(MessRecord02) <= 1024 && sizeof(StatRecord_c0) <= 1024);
inline int saveError = 0;

template <table::Kind kind>
char* addressOf(stVarSpace& space, int id) {
    return reinterpret_cast<char*>(&space) + bytesOf(kind, id).offset;
}

template <table::Kind kind, class Value>
void put(stVarSpace& space, int id, const Value* values, unsigned long count = 1) {
    std::memcpy(addressOf<kind>(space, id), values, count * sizeof *values);
}
template <table::Kind kind, class Value>
void get(stVarSpace& space, int id, Value* values, unsigned long count = 1) {
    std::memcpy(values, addressOf<kind>(space, id), count * sizeof *values);
}

template <table::Kind kind>
void putText(stVarSpace& space, int id, const char* text) {
    const std::size_t capacity = bytesOf(kind, id).size - 1;
    std::strncpy(addressOf<kind>(space, id), text, capacity); // nothing of the old text remains
}
template <table::Kind kind>
void getText(stVarSpace& space, int id, char* text) {
    std::memcpy(text, addressOf<kind>(space, id), bytesOf(kind, id).size);
}

inline std::span<const stParamProperties> rows() {
    return std::span(DefParamProperties).subspan(1, std::size(DefParamProperties) - 2);
}

template <class Wanted>
const stParamProperties* find(Wanted wanted) {
    const auto row = std::find_if(rows().begin(), rows().end(), wanted);
    return row == rows().end() ? nullptr : &*row;
}

inline void stageDefault(const stParamProperties& row) {
    const int id = row.id;
    char* const text = const_cast<char*>(row.val_def_text);
    switch (static_cast<ParamType>(row.type)) {
    case kTypeFloat:
        return VarSetFloatValue(id, static_cast<float>(row.val_def));
    case kTypeDouble:
        return VarSetDoubleValue(id, row.val_def);
    case kTypeLong:
        return VarSetLongValue(id, static_cast<VarLong>(row.val_def));
    case kTypeInt:
        return VarSetIntValue(id, static_cast<short>(row.val_def));
    case kTypeBool:
        return VarSetBoolValue(id, row.val_def != 0.0 ? 1 : 0);
    case kTypeEnum:
        return VarSetEnumValue(id, static_cast<short>(row.val_def));
    case kTypeText:
        return VarSetTextValue(id, text);
    case kTypeId:
        return VarSetIdValue(id, text);
    case kTypeIp:
    case kTypeIpAddress:
    case kTypeIpMask:
    case kTypeIpGateway:
        return VarSetIpValue(id, text);
    case kTypeNone:
    case kTypeDate:
    case kTypeTime:
    case kTypeSysDate:
    case kTypeSysTime:
    case kTypeStruct:
    case kTypeCommand:
        return; // not in the store
    }
}

inline void forgetWrites(GroupSlot& slot) {
    slot.written = 0;
    __atomic_store_n(&slot.sequence, 0U, __ATOMIC_RELEASE);
}

} // namespace detail::fake

// Begins with a store that has the factory defaults and zeros, and with groups that nobody has written; one
// at a time.
class Fake {
public:
    Fake() {
        detail::fake::live = detail::fake::staged = {};
        std::memset(detail::fake::records, 0, sizeof detail::fake::records);
        detail::fake::saveError = 0;
        VarSetDefault();
        VarUpdateGlobalSpace();
        for (detail::GroupSlot& each : detail::privateGroups.slots)
            detail::fake::forgetWrites(each);
    }

    // From now on a save fails with this errno, such as ENOSPC; 0: it works, and writes nothing.
    void fail_saves(int error) { detail::fake::saveError = error; }
};

} // namespace talux

stVarSpace* pVarGlobal = &talux::detail::fake::live;
stVarSpace* pVarTemp = &talux::detail::fake::staged;
void* pVarStruct = talux::detail::fake::records;
talux::detail::PrivateGroups talux::detail::privateGroups;

#define TALUX_FAKE(kind, Name, Type)                                                                         \
    void VarSet##Name##Value(int id, Type value) {                                                           \
        talux::detail::fake::put<talux::table::Kind::kind>(*pVarTemp, id, &value);                           \
    }                                                                                                        \
    void VarSetGlobal##Name##Value(int id, Type value) {                                                     \
        talux::detail::fake::put<talux::table::Kind::kind>(*pVarGlobal, id, &value);                         \
    }                                                                                                        \
    void VarGet##Name##Value(int id, Type* value) {                                                          \
        talux::detail::fake::get<talux::table::Kind::kind>(*pVarTemp, id, value);                            \
    }                                                                                                        \
    void VarGetGlobal##Name##Value(int id, Type* value) {                                                    \
        talux::detail::fake::get<talux::table::Kind::kind>(*pVarGlobal, id, value);                          \
    }                                                                                                        \
    void VarSetGlobal##Name##ValueArray(int id, Type* values, unsigned long count) {                         \
        talux::detail::fake::put<talux::table::Kind::kind>(*pVarGlobal, id, values, count);                  \
    }                                                                                                        \
    void VarGetGlobal##Name##ValueArray(int id, Type* values, unsigned long count) {                         \
        talux::detail::fake::get<talux::table::Kind::kind>(*pVarGlobal, id, values, count);                  \
    }
TALUX_FAKE(f32, Float, float)
TALUX_FAKE(f64, Double, double)
TALUX_FAKE(i32, Long, VarLong)
TALUX_FAKE(i16, Int, short)
TALUX_FAKE(flag, Bool, char)
TALUX_FAKE(choice, Enum, short)
#undef TALUX_FAKE

#define TALUX_FAKE(kind, Name)                                                                               \
    void VarSet##Name##Value(int id, char* text) {                                                           \
        talux::detail::fake::putText<talux::table::Kind::kind>(*pVarTemp, id, text);                         \
    }                                                                                                        \
    void VarSetGlobal##Name##Value(int id, char* text) {                                                     \
        talux::detail::fake::putText<talux::table::Kind::kind>(*pVarGlobal, id, text);                       \
    }                                                                                                        \
    void VarGet##Name##Value(int id, char* text) {                                                           \
        talux::detail::fake::getText<talux::table::Kind::kind>(*pVarTemp, id, text);                         \
    }                                                                                                        \
    void VarGetGlobal##Name##Value(int id, char* text) {                                                     \
        talux::detail::fake::getText<talux::table::Kind::kind>(*pVarGlobal, id, text);                       \
    }
TALUX_FAKE(text, Text)
TALUX_FAKE(identifier, Id)
TALUX_FAKE(address, Ip)
#undef TALUX_FAKE

void VarSetGlobalStructValue(int id, void* record, VarLong size) {
    std::memcpy(talux::detail::fake::records[id - kFirstStruct], record, static_cast<std::size_t>(size));
}
void VarGetGlobalStructValue(int id, void* record, VarLong size) {
    std::memcpy(record, talux::detail::fake::records[id - kFirstStruct], static_cast<std::size_t>(size));
}

void VarInit(char*) {}
void VarSetDefault() {
    for (const stParamProperties& row : talux::detail::fake::rows()) {
        const bool isTemplate = *row.name == '\0';
        if (row.is_volatile == 0 && !isTemplate) talux::detail::fake::stageDefault(row);
    }
}
int VarUpdateGlobalSpace() {
    for (const auto& [id, offset, size] : talux::detail::kSettings)
        std::memcpy(reinterpret_cast<char*>(pVarGlobal) + offset, reinterpret_cast<char*>(pVarTemp) + offset,
                    size);
    return 1;
}
int VarSaveError(SavedFile) {
    VarUpdateGlobalSpace();
    return talux::detail::fake::saveError;
}
int VarLoadParams() {
    return 0;
}
int VarLoadSecParams() {
    return 0;
}
int VarLoadIPConfig() {
    return 0;
}
int LoadDefParamProperties() {
    return 1;
}
const stParamProperties* GetParamProperties(int id) {
    return talux::detail::fake::find([id](const stParamProperties& row) { return row.id == id; });
}
const stParamProperties* GetParamPropertiesByName(char* name) {
    if (name == nullptr) return nullptr;
    return talux::detail::fake::find(
        [name](const stParamProperties& row) { return strcasecmp(row.name, name) == 0; });
}
const stParamProperties* GetParamPropertiesByOrder(int position) {
    const bool isThere = position >= 0 && position <= static_cast<int>(talux::detail::fake::rows().size());
    return isThere ? DefParamProperties + position : nullptr;
}

#endif
