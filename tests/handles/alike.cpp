// The same steps on the store, on that of unit tests, and by the names for C programs: what is printed has to
// be the same.
#ifdef TALUX_BY_C_NAMES
#include "ParamSystem/TALUX_Var.h"
#include "src/talux_store.h"
namespace talux::c { // which has no runs of them
using ::VarGetGlobalBoolValueArray, ::VarSetGlobalBoolValueArray;
using ::VarGetGlobalEnumValueArray, ::VarSetGlobalEnumValueArray;
} // namespace talux::c
#define STORE(function) talux::c::function
#else
#define STORE(function) ::function
#endif
#ifdef TALUX_ON_FAKE
#include "talux/fake.hpp"
#else
#include "talux/follower.hpp"
#include "talux/talux.hpp"
#endif

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

using namespace talux;

namespace {

std::mt19937 engine(20261126);
int below(int count) {
    return static_cast<int>(engine() % static_cast<unsigned>(count));
}

unsigned print = 2166136261U; // of all that was read
void add(const void* bytes, std::size_t size) {
    for (const char* at = static_cast<const char*>(bytes); size > 0; ++at, --size)
        print = (print ^ static_cast<unsigned char>(*at)) * 16777619U;
}

template <class Set, class Get, class Value>
void moveNumber(Set set, Get get, int id, Value value) {
    if (below(2) == 0) set(id, value);
    get(id, &value);
    add(&value, sizeof value);
}
template <class Value, class Set, class Get>
void moveRun(Set set, Get get, const table::Row& row) {
    std::vector<Value> values(static_cast<std::size_t>(below(row.run) + 1), static_cast<Value>(below(100)));
    if (below(2) == 0) set(row.id, values.data(), values.size());
    get(row.id, values.data(), values.size());
    add(values.data(), values.size() * sizeof(Value));
}
template <class Set, class Get>
void moveText(Set set, Get get, int id) {
    char text[2 * kTextSize] = "";
    for (int k = below(below(2) == 0 ? 5 : 2 * kTextSize); k > 0; --k)
        text[k - 1] = static_cast<char>('a' + below(26));
    if (below(2) == 0) set(id, text);
    get(id, text);
    add(text, std::strlen(text));
}

// A value of the kind, staged, or live where it is measured or a commit has made it so.
void moveValue(const table::Row& row) {
    const int id = row.id + below(std::max<int>(row.elements, 1));
    const bool isLive = row.use == table::Use::measured || below(2) == 0;
    const int number = below(2000) - 1000;
#define TALUX_NUMBER(kind, Name, Type)                                                                       \
    case table::Kind::kind:                                                                                  \
        if (row.use == table::Use::measured && below(2) == 0)                                                \
            return moveRun<Type>(STORE(VarSetGlobal##Name##ValueArray),                                      \
                                 STORE(VarGetGlobal##Name##ValueArray), row);                                \
        return isLive ? moveNumber(STORE(VarSetGlobal##Name##Value), STORE(VarGetGlobal##Name##Value), id,   \
                                   static_cast<Type>(number))                                                \
                      : moveNumber(STORE(VarSet##Name##Value), STORE(VarGet##Name##Value), id,               \
                                   static_cast<Type>(number));
#define TALUX_TEXT(kind, Name)                                                                               \
    case table::Kind::kind:                                                                                  \
        return isLive ? moveText(STORE(VarSetGlobal##Name##Value), STORE(VarGetGlobal##Name##Value), id)     \
                      : moveText(STORE(VarSet##Name##Value), STORE(VarGet##Name##Value), id);
    switch (row.kind) {
        TALUX_NUMBER(f32, Float, float)
        TALUX_NUMBER(f64, Double, double)
        TALUX_NUMBER(i32, Long, VarLong)
        TALUX_NUMBER(i16, Int, short)
        TALUX_NUMBER(flag, Bool, char)
        TALUX_NUMBER(choice, Enum, short)
        TALUX_TEXT(text, Text)
        TALUX_TEXT(identifier, Id)
        TALUX_TEXT(address, Ip)
    case table::Kind::clock:
    case table::Kind::record:
    case table::Kind::command:
        break;
    }
}

template <class Layout>
void moveRecord() {
    Layout record{};
    STORE(VarGetGlobalStructValue)(kRecordId<Layout>, &record, sizeof record);
    add(&record, sizeof record);
    std::memset(&record, below(256), sizeof record);
    STORE(VarSetGlobalStructValue)(kRecordId<Layout>, &record, sizeof record);
}

// Every byte counts: followers compare them.
void addSettings() {
    for (const stVarSpace* space : {pVarTemp, pVarGlobal})
        for (const auto& [id, offset, size] : detail::kSettings)
            add(reinterpret_cast<const char*>(space) + offset, size);
}

void move(int turns) {
    for (int turn = 0; turn < turns; ++turn) {
        for (int k = 0; k < 500; ++k)
            moveValue(table::kRows[below(std::size(table::kRows))]);
        moveRecord<MessRecord01>(), moveRecord<MessRecord02>(), moveRecord<StatRecord_c0>();
        if (below(4) == 0) STORE(VarSetDefault)();
        if (below(2) == 0) std::printf("committed %d\n", STORE(VarUpdateGlobalSpace)());
        addSettings();
        std::printf("%d: %08x\n", turn, print);
    }
}

// Two threads write, a third reads; then one stays inside.
struct Slow {
    using Value = int;
    static int id() { return 1; }
    void get(Value& /*value*/) const {}
    void set(Value milliseconds) const { detail::sleepFor(milliseconds * 1000000L); }
};
void shareGroup() {
    constexpr Measured<float> first{"U1_prim"};
    const Group group("shared", first.run<3>(), Slow{});
    const auto write = [&group](float from) {
        for (int k = 0; k < 500; ++k)
            while (!group.write({from, from, from}, 0)) {
            }
    };
    std::jthread one(write, 1.F), two(write, 2.F);
    int torn = 0, whole = 0;
    for (std::array<float, 3> values; whole < 500;) {
        int none;
        if (!group.read(values, none)) continue;
        ++whole;
        torn += values[0] == values[1] && values[1] == values[2] ? 0 : 1;
    }
    one.join(), two.join();
    std::jthread inside([&group] { std::ignore = group.write({}, 400); });
    detail::sleepFor(50000000);
    std::array<float, 3> values;
    int none;
    const Reading::State state = group.read(values, none);
    const std::int64_t start = detail::monotonic();
    const bool hasWaited = !group.write({}, 0) && detail::monotonic() - start >= 100000000;
    const bool isWoken = group.wait(Reading::busy, 9000) && detail::monotonic() - start < 5000000000;
    std::printf("torn %d, busy %d, second writer %d, woken %d, fresh %d\n", torn, state == Reading::busy,
                hasWaited, isWoken, group.read(values, none).age() < 9);
}

void makeGroups() {
    constexpr Measured<float> first{"U1_prim"};
    for (int round = 0; round < 2; ++round) {
        std::vector<std::unique_ptr<Group<Measured<float>>>> all;
        do
            all.push_back(std::make_unique<Group<Measured<float>>>(std::to_string(all.size()), first));
        while (all.back()->attached());
        std::printf("%zu groups, then %d\n", all.size() - 1, static_cast<int>(all.back()->attachment()));
        std::printf("other elements: %d\n", static_cast<int>(Group("0", first.run<2>()).attachment()));
    }
}

#ifdef TALUX_BY_C_NAMES
constexpr auto idOf = STORE(VarIdOf);
constexpr auto save = STORE(VarSaveError);
#else
int idOf(const char* name) {
    const stParamProperties* const row = GetParamPropertiesByName(const_cast<char*>(name));
    return row == nullptr ? 0 : row->id;
}
int save(int file) {
    return VarSaveError(static_cast<SavedFile>(file));
}
#endif

void addRow(const stParamProperties* row) {
    add(row == nullptr ? "" : row->name, row == nullptr ? 1 : std::strlen(row->name) + 1);
    if (row != nullptr) add(&row->id, sizeof row->id);
}
void lookUp() {
    std::printf("loaded %d\n", STORE(LoadDefParamProperties)());
    for (int id = 0; id <= 90000; ++id)
        addRow(GetParamProperties(id));
    for (int position = 0; position <= 3000; ++position) {
        const stParamProperties* const row = GetParamPropertiesByOrder(position);
        addRow(row);
        std::string name = row == nullptr ? "nosuch" : row->name;
        for (char& c : name)
            if (below(2) == 0) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        addRow(GetParamPropertiesByName(name.data()));
    }
    addRow(GetParamPropertiesByName(nullptr));
    for (const char* name : {"Uearth", "Name", "vMWR", "conman_status", "nosuch", ""})
        std::printf("%s %d\n", name, idOf(name));
    std::printf("rows %08x\n", print);
}

#ifdef TALUX_ON_FAKE
// Settings of these types can be added: their defaults have a place. Clocks, which are no part of a store,
// have none.
bool stagesEveryType() {
    const auto stage = [](ParamType type, int id) {
        stParamProperties row{};
        row.type = type, row.id = id, row.val_def = 7;
        detail::fake::stageDefault(row);
    };
    stage(kTypeDouble, kFirstDouble + 1);
    stage(kTypeInt, kFirstInt + 1);
    const stVarSpace before = *pVarTemp;
    for (const ParamType type : {kTypeNone, kTypeDate, kTypeTime})
        stage(type, 0);
    return pVarTemp->DoubleData[1] == 7 && pVarTemp->IntData[1] == 7 &&
           std::memcmp(&before, pVarTemp, sizeof before) == 0 &&
           detail::bytesOf(table::Kind::clock, 0).size == 0;
}
#else
const std::filesystem::path folder = std::filesystem::temp_directory_path() / "alike";

// Each file is saved, and loaded over other values; but a load of the addresses would apply them.
void useFiles() {
    for (int file : {2, 1, 0}) {
        move(1);
        std::printf("saved %d\n", save(file));
        for (const char* name : {"parameter.ini", "sec_parameter.ini", "ip_config.ini"}) {
            std::ifstream text(folder / name);
            for (std::string line; std::getline(text, line);)
                if (!line.starts_with("TLX_Date=") && !line.starts_with("TLX_Time="))
                    add(line.data(), line.size());
            std::printf("%s: %08x\n", name, print);
        }
        move(1);
        std::printf("security %d, ", STORE(VarLoadSecParams)());
        move(1);
        std::printf("parameters %d\n", STORE(VarLoadParams)());
    }
    move(1);
    std::filesystem::remove_all(folder);
    std::printf("without a folder %d\n", save(0));
}
#endif

} // namespace

int main() {
#ifdef TALUX_ON_FAKE
    constexpr Record<StatRecord_c0> statistics; // the last record
    constexpr Measured<float> voltage{"U0_prim"};
    float volts = 5;
    {
        Fake before; // of which the next one knows nothing
        if (!stagesEveryType()) std::puts("a default is not where it belongs");
        VarInit(nullptr); // as a program does that runs on the real store, too
        voltage.set(volts);
        std::ignore = Group("group", voltage).write(volts);
        before.fail_saves(ENOSPC);
        StatRecord_c0 values{};
        values.dT = 60;
        statistics.set(values);
    }
    const Fake fake;
    if (statistics.get().dT != 0 || voltage.get() != 0 ||
        Group("group", voltage).read(volts) != Reading::unwritten)
        std::puts("something is left");
#else
    VarClean();
    std::filesystem::create_directory(folder);
    std::snprintf(szParameterPath, sizeof szParameterPath, "%s", folder.c_str());
#endif
    Store store;
    store.stage_defaults();
    store.commit();
    move(200);
    lookUp();
    STORE(VarSetLongValue)(idOf("channel"), 3);
    std::printf("saved %d\n", save(0));
    addSettings(); // which the save has committed
    std::printf("settings %08x\n", print);
    shareGroup();
    makeGroups();
#ifndef TALUX_ON_FAKE
    std::puts("files");
    useFiles();
#endif
}
