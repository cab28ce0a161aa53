// Every function of the store that copies values, against the bytes of the three segments: what it copies,
// which locks it takes meanwhile, and that it allocates nothing.
#include "Messages.h"
#include "Store.h"

#include <atomic>
#include <climits>
#include <cmath>
#include <dlfcn.h>
#include <limits>
#include <pthread.h>

namespace {

// The locks with priority inheritance in the order of their creation, which is before main.
constinit pthread_mutex_t* locks[100]{};
constinit std::size_t lockTotal = 0;

constinit bool watching = false;
constinit pthread_mutex_t* taken[2000]{};
constinit std::size_t takenCount = 0;
constinit int held = 0, allocations = 0;
constinit const char* target = nullptr; // the first byte that a copy changes, which it does under the lock
constinit char targetBefore = 0;
constinit bool isEarly = false;
using Hook = void();
constinit Hook* onLock = nullptr;

// The C library's function of a name that is defined here. No local statics: on processors without atomic
// instructions their guard takes a lock itself.
template <typename Function>
struct Next {
    const char* name;
    std::atomic<Function*> function{nullptr};

    template <typename... Arguments>
    auto operator()(Arguments... arguments) {
        if (function == nullptr) function = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
        return function.load()(arguments...);
    }
};
constinit Next<int(pthread_mutex_t*, const pthread_mutexattr_t*)> realInit{"pthread_mutex_init"};
constinit Next<int(pthread_mutex_t*)> realLock{"pthread_mutex_lock"}, realUnlock{"pthread_mutex_unlock"};
[[maybe_unused]] constinit Next<void*(std::size_t)> realMalloc{"malloc"};

} // namespace

extern "C" {

int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attributes) noexcept {
    int protocol = PTHREAD_PRIO_NONE;
    if (attributes != nullptr) pthread_mutexattr_getprotocol(attributes, &protocol);
    if (protocol == PTHREAD_PRIO_INHERIT) locks[lockTotal++] = mutex;
    return realInit(mutex, attributes);
}
int pthread_mutex_lock(pthread_mutex_t* mutex) noexcept {
    if (watching) taken[takenCount++] = mutex, ++held;
    if (watching && target != nullptr) isEarly = isEarly || *target != targetBefore;
    if (onLock != nullptr) onLock();
    return realLock(mutex);
}
int pthread_mutex_unlock(pthread_mutex_t* mutex) noexcept {
    if (watching) held -= mutex == taken[takenCount - 1];
    return realUnlock(mutex);
}
#ifndef __SANITIZE_ADDRESS__ // it brings a heap of its own
void* malloc(size_t size) noexcept {
    allocations += watching;
    return realMalloc(size);
}
#endif
}

namespace {

using namespace talux_test;

// Memory that serves as whatever an accessor takes.
struct Any {
    char* memory;
    template <typename Value>
    operator Value*() const {
        return reinterpret_cast<Value*>(memory);
    }
    template <typename Number>
    requires std::is_arithmetic_v<Number>
    operator Number() const {
        Number number;
        std::memcpy(&number, memory, sizeof number);
        return number;
    }
};

struct Member { // of one kind and space
    void (*set)(int id, Any value);
    void (*get)(int id, Any value);
    void (*setRun)(int id, Any values, unsigned long count) = nullptr;
    void (*getRun)(int id, Any values, unsigned long count) = nullptr;
};
#define TALUX_SINGLE(Verb, Name) [](int id, Any value) { Verb##Name##Value(id, value); }
#define TALUX_RUN(Verb, Name)                                                                                \
    [](int id, Any values, unsigned long n) { Verb##Name##ValueArray(id, values, n); }
#define TALUX_BOTH(Space, Name) TALUX_SINGLE(VarSet##Space, Name), TALUX_SINGLE(VarGet##Space, Name)
#define TALUX_ALL(Space, Name)                                                                               \
    TALUX_BOTH(Space, Name), TALUX_RUN(VarSet##Space, Name), TALUX_RUN(VarGet##Space, Name)
#define TALUX_KIND(Functions, Name)                                                                          \
    {Functions(, Name)}, {                                                                                   \
        Functions(Global, Name)                                                                              \
    }

// In the order of kBlocks, each kind in the temporary space first.
constexpr Member kMembers[] = {
    TALUX_KIND(TALUX_ALL, Float),    TALUX_KIND(TALUX_ALL, Double),   TALUX_KIND(TALUX_ALL, Long),
    TALUX_KIND(TALUX_ALL, Int),      TALUX_KIND(TALUX_ALL, Bool),     TALUX_KIND(TALUX_BOTH, Text),
    TALUX_KIND(TALUX_ALL, Enum),     TALUX_KIND(TALUX_BOTH, Date),    TALUX_KIND(TALUX_BOTH, Time),
    TALUX_KIND(TALUX_BOTH, SysDate), TALUX_KIND(TALUX_BOTH, SysTime), TALUX_KIND(TALUX_BOTH, Id),
    TALUX_KIND(TALUX_BOTH, Ip)};
const Member& memberOf(std::size_t kind, int space) {
    return kMembers[2 * kind + static_cast<std::size_t>(space)];
}

struct Record {
    int id;
    std::size_t offset;
    VarLong size;
};
constexpr Record kRecords[] = {{30000, 0, 236}, {30001, 236, 116}, {30002, 352, 236}};

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kNumbers[] = {0.0,   -0.0,         0.9,  1.0,       -1.9,         2.0,          70000.0,
                               255.9, 256.0,        -1.0, 32767.5,   -32769.0,     0.1,          16777217.0,
                               1e12,  -1e12,        1e39, -1e300,    2147483647.0, 1e-320,       2147483648.0,
                               4e9,   4294967296.0, kNan, kInfinity, -kInfinity,   -2147483649.0};

// Toward zero, kept within limits that fit 64 bits.
long long truncated(double value, long long lowest, long long highest) {
    if (std::isnan(value)) return 0;
    return static_cast<long long>(std::trunc(std::fmin(std::fmax(value, double(lowest)), double(highest))));
}

// A float that is no number keeps its sign and its bits; the conversions of a processor may not.
double widened(const char* slot) {
    std::uint32_t bits;
    std::memcpy(&bits, slot, 4);
    if (!std::isnan(numberIn<float>(slot))) return numberIn<float>(slot);
    const std::uint64_t wide = std::uint64_t(bits & 0x7FFFFF) << 29 | (bits >> 31 ? 0xFFFULL : 0x7FFULL)
                                                                          << 52;
    return numberIn<double>(reinterpret_cast<const char*>(&wide));
}

struct Values : testing::Test {
    void SetUp() override {
        VarInit(kNoDirectory);
        for (int area = 0; area < 3; ++area) {
            random.fill(memory(area), sizeOf(area));
            model[area] = bytes(memory(area), sizeOf(area));
        }
    }
    // 14 kinds in the global space, all but the records in the temporary one, however often VarInit runs.
    void TearDown() override { EXPECT_EQ(lockTotal, 27u); }

    static constexpr int kRecordArea = 2;
    static char* memory(int area) { return area == kRecordArea ? rawRecords() : raw(area); }
    static std::size_t sizeOf(int area) { return area == kRecordArea ? kRecordsSize : kSpaceSize; }
    static std::size_t lockOf(std::size_t kind, int space) { return kind + (space == kGlobal ? 0 : 14); }
    void expectModel() const { EXPECT_EQ(differences(image(), model[0] + model[1] + model[2]), ""); }

    // The call takes these locks one by one, changes what begins at `first` only then, takes no memory.
    template <typename Call>
    static void watch(const std::vector<std::size_t>& wanted, const char* first, Call call) {
        takenCount = 0;
        held = allocations = 0;
        target = first;
        targetBefore = *first;
        watching = true;
        call();
        watching = false;
        EXPECT_EQ(std::tuple(held, allocations), std::tuple(0, 0)) << "locks held, allocations";
        EXPECT_FALSE(isEarly) << "changed without the lock";
        std::vector<std::size_t> order;
        for (std::size_t k = 0; k < takenCount; ++k)
            order.push_back(static_cast<std::size_t>(std::find(locks, std::end(locks), taken[k]) - locks));
        EXPECT_EQ(order, wanted) << "locks";
        target = nullptr;
    }
    // The same, and the buffer then begins with this.
    template <typename Call>
    void watchRead(const std::vector<std::size_t>& wanted, const std::string& read, Call call) {
        std::memset(buffer, '#', sizeof buffer);
        watch(wanted, buffer, call);
        EXPECT_EQ(hex(bytes(buffer, read.size() + 1)), hex(read + '#')) << "read";
    }

    void single(std::size_t kind, int space, int id, bool write) {
        const Block& block = kBlocks[kind];
        const Member& member = memberOf(kind, space);
        char* const slot = model[space].data() + block.slotOf(id);
        const std::vector locksTaken = {lockOf(kind, space)};
        if (!write)
            return watchRead(locksTaken,
                             block.number != nullptr ? bytes(slot, block.size) : block.textIn(slot) + '\0',
                             [&] { member.get(id, {buffer}); });
        random.fill(buffer, 8);
        if (block.number == nullptr) std::strcpy(buffer, random.text(200).c_str());
        block.number != nullptr ? void(std::memcpy(slot, buffer, block.size)) : block.putText(slot, buffer);
        watch(locksTaken, raw(space) + block.slotOf(id), [&] { member.set(id, {buffer}); });
    }

    // Foreign ids where they are ignored; counts around the block's end, or whose last id or size wraps
    // around.
    void run(std::size_t kind, int space, int id, bool write) {
        const Block& block = kBlocks[kind];
        if ((write || block.type == 2004) && random.below(8) == 0)
            id = random.below(2) != 0 ? block.first - 1 : block.end();
        const auto number = static_cast<unsigned long>(id),
                   rest = static_cast<unsigned long>(block.end()) - number;
        const unsigned long near[] = {0,        1,        rest,
                                      rest + 1, rest + 2, static_cast<unsigned long>(random.below(1400))};
        const unsigned long far[] = {1UL << 31, ULONG_MAX / block.size + 1, ULONG_MAX - number + 2,
                                     ULONG_MAX};
        const unsigned long count = random.below(5) < 3 ? near[random.below(6)] : far[random.below(4)];
        const bool works = block.holds(id) && count > 0 && count <= rest;
        const std::size_t length = works ? count * block.size : 0, offset = works ? block.slotOf(id) : 0;
        const auto locksTaken = works ? std::vector{lockOf(kind, space)} : std::vector<std::size_t>{};
        if (!write)
            return watchRead(locksTaken, model[space].substr(offset, length),
                             [&] { memberOf(kind, space).getRun(id, {buffer}, count); });
        random.fill(buffer, length);
        model[space].replace(offset, length, buffer, length);
        watch(locksTaken, raw(space) + offset, [&] { memberOf(kind, space).setRun(id, {buffer}, count); });
    }

    void record(bool write) {
        const Record& record = kRecords[random.below(3)];
        const VarLong sizes[] = {record.size, 8, 1, 0, -1}, size = sizes[random.below(5)];
        const auto length = static_cast<std::size_t>(std::max(size, VarLong{0}));
        const auto locksTaken = length > 0 ? std::vector<std::size_t>{13} : std::vector<std::size_t>{};
        if (!write)
            return watchRead(locksTaken, model[kRecordArea].substr(record.offset, length),
                             [&] { VarGetGlobalStructValue(record.id, buffer, size); });
        random.fill(buffer, length);
        model[kRecordArea].replace(record.offset, length, buffer, length);
        watch(locksTaken, rawRecords() + record.offset,
              [&] { VarSetGlobalStructValue(record.id, buffer, size); });
    }

    // Of the ids that are int and long both slots are written and read; the long one counts.
    void anyKind(int space, int id, bool write) {
        double number = kNumbers[random.below(std::size(kNumbers))];
        std::string text = random.text(200), read;
        std::vector<std::size_t> locksTaken;
        bool isText = false;
        for (const std::size_t kind :
             std::initializer_list<std::size_t>{3, 0, 1, 2, 4, 5, 6, 9, 10, 11, 12}) {
            const Block& block = kBlocks[kind];
            if (!block.holds(id)) continue;
            char* const slot = model[space].data() + block.slotOf(id);
            isText = block.number == nullptr;
            locksTaken.push_back(lockOf(kind, space));
            const double stored = isText ? 0 : block.type == 2003 ? widened(slot) : block.number(slot);
            read = isText ? block.textIn(slot) + '\0' : bytes(reinterpret_cast<const char*>(&stored), 8);
            if (write) put(block, slot, number, text.c_str());
        }
        double* const value = isText ? asValue(text.data()) : &number;
        if (write)
            return watch(locksTaken, buffer,
                         [&] { (space == kGlobal ? VarSetGlobalValue : VarSetValue)(id, value); });
        watchRead(locksTaken, read,
                  [&] { (space == kGlobal ? VarGetGlobalValue : VarGetValue)(id, asValue(buffer)); });
    }

    static void put(const Block& block, char* slot, double number, const char* text) {
        const auto single = static_cast<float>(number);
        const long long whole =
            block.type == 2010 ? truncated(number, 0, UINT_MAX) : truncated(number, INT_MIN, INT_MAX);
        if (block.number == nullptr)
            block.putText(slot, text);
        else if (block.type == 2002 || block.type == 2003)
            block.type == 2002 ? std::memcpy(slot, &number, 8) : std::memcpy(slot, &single, 4);
        else
            std::memcpy(slot, &whole, block.size); // little-endian: the low bytes come first
    }

    std::string model[3];
    alignas(double) char buffer[6000];
    Random random;
};

TEST_F(Values, GoWhereTheirIdSaysUnderTheirLock) {
    for (int k = 0; k < 60000; ++k) {
        const auto kind = static_cast<std::size_t>(random.below(std::size(kBlocks)));
        const int space = random.below(2), way = random.below(16);
        const bool write = random.below(2) != 0;
        const Block& block = kBlocks[kind];
        // Every other step at an edge of the block.
        const int any = block.first + random.below(std::max(block.count, 1));
        const int ids[] = {block.first, block.end() - 1, any, any}, id = ids[random.below(4)];
        const int strange[] = {18000 + random.below(34), 19000 + random.below(21), 30000 + random.below(3),
                               random.below(40000) - 100};
        if (way == 0)
            record(write);
        else if (way < 8)
            anyKind(space, way == 1 ? strange[random.below(4)] : id, write);
        else if (block.number != nullptr && way % 2 == 0)
            run(kind, space, id, write);
        else if (block.count > 0)
            single(kind, space, id, write);
        expectModel();
        if (HasFailure())
            FAIL() << "step " << k << ": " << block.name << ' ' << id << " space " << space << " way " << way
                   << " write " << write;
    }
}

// The start only: an emulator that runs the device's programs adds a line of its own.
auto failed(const std::string& function, const std::string& text) {
    return talux_test::startingWith("ParamSystem/TALUX_Var: " + function + ": Assertion `" + text +
                                    "' failed.\n");
}

// Single values, records and the readers of runs except long require their kind, with their names and texts.
TEST_F(Values, OfForeignIdsAbort) {
    std::memset(buffer, 0, sizeof buffer);
    for (std::size_t kind = 0; kind < std::size(kBlocks); ++kind) {
        const Block& block = kBlocks[kind];
        const std::string text = std::string("VarIs") + block.name + "(id)";
        for (const int space : {kTemp, kGlobal}) {
            const Member& member = memberOf(kind, space);
            const std::string name = std::string(space == kGlobal ? "Global" : "") + block.name + "Value";
            EXPECT_DEATH(member.set(block.first - 1, {buffer}), failed("VarSet" + name, text));
            EXPECT_DEATH(member.get(block.end(), {buffer}), failed("VarGet" + name, text));
            if (block.number == nullptr || block.type == 2004) continue;
            EXPECT_DEATH(member.getRun(block.end(), {buffer}, 1), failed("VarGet" + name + "Array", text));
        }
    }
    for (const auto& [id, size, text] : {std::tuple(29999, 1, "VarIsStruct(id)"),
                                         {30003, 1, "VarIsStruct(id)"},
                                         {30001, 117, "size <= ARR_StructSize[struct_index]"}}) {
        EXPECT_DEATH(VarSetGlobalStructValue(id, buffer, size), failed("VarSetGlobalStructValue", text));
        EXPECT_DEATH(VarGetGlobalStructValue(id, buffer, size), failed("VarGetGlobalStructValue", text));
    }
}

// Runs before the table is loaded: no position has a record then.
TEST_F(Values, OfNoRecordAreReportedByTheCommit) {
    ASSERT_EQ(GetParamPropertiesByOrder(1), nullptr) << "run this program as a whole";
    VarSetDefault();
    std::string expected;
    for (int k = 1; DefParamProperties[k].id != 0; ++k)
        expected += "Error (TALUX_Var): Error during copy temp->global\n";
    EXPECT_EQ(outcomeOf(VarUpdateGlobalSpace), Outcome(1, "", expected));
    expectModel();
}

TEST_F(Values, AreSetToTheirDefaultsInTheTemporarySpaceOnlyAndCleanedExceptForTheRecords) {
    LoadDefParamProperties();
    for (int k = 1; DefParamProperties[k].id != 0; ++k)
        for (const Block& block : kBlocks)
            if (const stParamProperties& row = DefParamProperties[k]; block.holds(row.id))
                put(block, model[kTemp].data() + block.slotOf(row.id), row.val_def, row.val_def_text);
    VarSetDefault();
    expectModel();
    VarClean();
    model[kTemp] = model[kGlobal] = std::string(kSpaceSize, '\0');
    expectModel();
}

// Numbers bit for bit, texts up to their end; the flags are in the end as they were, whoever changed them
// meanwhile.
TEST_F(Values, OfSettingsAreCommittedAndNoOthers) {
    LoadDefParamProperties();
    unsigned settings = 0;
    for (int k = 1; DefParamProperties[k].id != 0; ++k) {
        const stParamProperties& row = DefParamProperties[k];
        for (const Block& block : kBlocks) {
            if (row.is_volatile == 1 || !block.holds(row.id)) continue;
            ++settings;
            const std::size_t slot = block.slotOf(row.id);
            if (block.number == nullptr)
                block.putText(model[kGlobal].data() + slot, block.textIn(model[kTemp].data() + slot).c_str());
            else
                model[kGlobal].replace(slot, block.size, model[kTemp], slot, block.size);
        }
    }
    model[kGlobal][kBlocks[4].slotOf(8003)] = 9; // is no change flag
    onLock = [] {
        if (takenCount == 600) std::memset(raw(kGlobal) + kBlocks[4].offset, 9, 5);
    };
    takenCount = 0;
    watching = true;
    EXPECT_EQ(VarUpdateGlobalSpace(), 1);
    watching = false;
    onLock = nullptr;
    expectModel();
    EXPECT_EQ(allocations, 0);
    EXPECT_EQ(takenCount, 4 + 2 * settings + 4);
}

} // namespace
