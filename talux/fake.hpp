// A store in private memory, for unit tests of programs with handles: no library, no shared memory, no
// isolation. Include it in one source of the test, and do not link the library: this defines its functions
// that handles, changes and followers call.
//
//   talux::Fake fake; // settings have their factory defaults, measured values are 0 or empty
//   CHECK(threshold.stage(35));
//
// It has no files, no language and of the dictionary the names. Its groups are those of the threads of this
// program.
#ifndef TALUX_FAKE_HPP
#define TALUX_FAKE_HPP

#include <algorithm>
#include <iterator>

#include "talux/default_table.hpp"
#include "talux/follower.hpp"
#include "talux/talux.hpp"

namespace talux {

namespace detail::fake {

inline stVarSpace live, staged;
alignas(8) inline char records[3][1024];
static_assert(sizeof(MessRecord01) <= 1024 && sizeof(MessRecord02) <= 1024 && sizeof(StatRecord_c0) <= 1024);
inline int saveError = 0;

template <table::Kind kind>
char* placeOf(stVarSpace& space, int id) {
    return reinterpret_cast<char*>(&space) + bytesOf(kind, id).offset;
}

template <table::Kind kind, class Value>
void put(stVarSpace& space, int id, const Value* values, unsigned long count = 1) {
    std::memcpy(placeOf<kind>(space, id), values, count * sizeof *values);
}
template <table::Kind kind, class Value>
void get(stVarSpace& space, int id, Value* values, unsigned long count = 1) {
    std::memcpy(values, placeOf<kind>(space, id), count * sizeof *values);
}

template <table::Kind kind>
void putText(stVarSpace& space, int id, const char* text) {
    const std::size_t room = bytesOf(kind, id).size - 1;
    std::strncpy(placeOf<kind>(space, id), text, room); // nothing of the old text stays behind it
}
template <table::Kind kind>
void getText(stVarSpace& space, int id, char* text) {
    std::memcpy(text, placeOf<kind>(space, id), bytesOf(kind, id).size);
}

inline void stageDefault(const table::Default& setting) {
    const int id = setting.id;
    char* const text = const_cast<char*>(setting.text);
    switch (setting.kind) {
    case table::Kind::f32:
        return VarSetFloatValue(id, static_cast<float>(setting.number));
    case table::Kind::f64:
        return VarSetDoubleValue(id, setting.number);
    case table::Kind::i32:
        return VarSetLongValue(id, static_cast<VarLong>(setting.number));
    case table::Kind::i16:
        return VarSetIntValue(id, static_cast<short>(setting.number));
    case table::Kind::flag:
        return VarSetBoolValue(id, setting.number != 0.0);
    case table::Kind::choice:
        return VarSetEnumValue(id, static_cast<short>(setting.number));
    case table::Kind::text:
        return VarSetTextValue(id, text);
    case table::Kind::identifier:
        return VarSetIdValue(id, text);
    case table::Kind::address:
        return VarSetIpValue(id, text);
    default: // not in the store
        return;
    }
}

inline void forgetWrites(GroupSlot& slot) {
    slot.written = 0;
    __atomic_store_n(&slot.sequence, 0U, __ATOMIC_RELEASE);
}

// Of the dictionary the names, until the next look-up of the thread.
template <class Wanted>
const stParamProperties* find(Wanted wanted) {
    thread_local stParamProperties found{};
    const auto* const row = std::find_if(std::begin(table::kRows), std::end(table::kRows), wanted);
    if (row == std::end(table::kRows)) return nullptr;
    found.id = row->id;
    found.name = row->name;
    return &found;
}

} // namespace detail::fake

// Begins with a store of which nothing is known but the factory defaults, and with groups that nobody has
// written; one at a time.
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
const stParamText DefParamText[kDefParamTextRows] = {};
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
    for (const auto& [id, offset, size] : talux::detail::kSettings)
        std::memset(reinterpret_cast<char*>(pVarTemp) + offset, 0, size);
    for (const talux::table::Default& each : talux::table::kDefaults)
        talux::detail::fake::stageDefault(each);
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
    return talux::detail::fake::find([id](const talux::table::Row& row) { return row.id == id; });
}
const stParamProperties* GetParamPropertiesByName(char* name) {
    return talux::detail::fake::find(
        [wanted = std::string_view(name)](const talux::table::Row& row) { return row.name == wanted; });
}

#endif
