// The accessor family against a byte model of the spaces: what each member copies, which lock it takes for
// it, and that it takes no memory.
#include "Store.h"

#include <atomic>
#include <climits>
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <pthread.h>

namespace {

// The locks with priority inheritance in the order of their creation. The library makes its own before
// main, hence constant-initialised.
constinit pthread_mutex_t* locks[100]{};
constinit std::size_t lockTotal = 0;

constinit bool watching = false;
constinit pthread_mutex_t* lastLock = nullptr;
constinit int lockCount = 0, unlockCount = 0, allocations = 0;
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
    if (watching) ++lockCount, lastLock = mutex;
    if (onLock != nullptr) onLock();
    return realLock(mutex);
}
int pthread_mutex_unlock(pthread_mutex_t* mutex) noexcept {
    if (watching) unlockCount += mutex == lastLock;
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

// Memory that passes for whatever an accessor takes.
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

// The members of one kind and space.
struct Member {
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
#define TALUX_TEXTS(Name)                                                                                    \
    Member{TALUX_BOTH(, Name)}, Member {                                                                     \
        TALUX_BOTH(Global, Name)                                                                             \
    }
#define TALUX_NUMBERS(Name)                                                                                  \
    Member{TALUX_ALL(, Name)}, Member {                                                                      \
        TALUX_ALL(Global, Name)                                                                              \
    }

// In the order of kBlocks, each kind in the temporary space first.
constexpr Member kMembers[] = {TALUX_NUMBERS(Float), TALUX_NUMBERS(Double), TALUX_NUMBERS(Long),
                               TALUX_NUMBERS(Int),   TALUX_NUMBERS(Bool),   TALUX_TEXTS(Text),
                               TALUX_NUMBERS(Enum),  TALUX_TEXTS(Date),     TALUX_TEXTS(Time),
                               TALUX_TEXTS(SysDate), TALUX_TEXTS(SysTime),  TALUX_TEXTS(Id),
                               TALUX_TEXTS(Ip)};
const Member& memberOf(std::size_t kind, int space) {
    return kMembers[2 * kind + static_cast<std::size_t>(space)];
}

class Family : public AgainstModel {
public:
    // 14 kinds in the global space, then all but the records in the temporary one; however often VarInit
    // runs.
    void TearDown() override { EXPECT_EQ(lockTotal, 27u); }

    // A call that works takes its one lock and gives it back, one that does nothing takes none.
    template <typename Call>
    static void watch(std::size_t kind, int space, bool works, Call call) {
        lockCount = unlockCount = allocations = 0;
        lastLock = nullptr;
        watching = true;
        call();
        watching = false;
        EXPECT_TRUE(lockCount == works && unlockCount == works && allocations == 0);
        EXPECT_EQ(lastLock, works ? locks[kind + (space == kGlobal ? 0 : 14)] : nullptr);
    }

    void single(std::size_t kind, int space, int id, bool write) {
        const Block& block = kBlocks[kind];
        char* const slot = model[space].data() + block.slotOf(id);
        if (write) {
            random.fill(buffer, 8);
            if (block.number == nullptr) std::strcpy(buffer, random.text(200).c_str());
            block.number != nullptr ? void(std::memcpy(slot, buffer, block.size))
                                    : block.putText(slot, buffer);
            watch(kind, space, true, [&] { memberOf(kind, space).set(id, {buffer}); });
        } else {
            std::memset(buffer, '#', sizeof buffer);
            watch(kind, space, true, [&] { memberOf(kind, space).get(id, {buffer}); });
            const std::string read =
                block.number != nullptr ? bytes(slot, block.size) : block.textIn(slot) + '\0';
            EXPECT_EQ(bytes(buffer, read.size() + 1), read + '#');
        }
    }

    // Foreign ids where they are ignored; counts around the end of the block, and such whose last id or
    // size in bytes would wrap around.
    void run(std::size_t kind, int space, int id, bool write) {
        const Block& block = kBlocks[kind];
        if ((write || block.type == 2004) && random.below(8) == 0)
            id = random.below(2) != 0 ? block.first - 1 : block.end();
        const auto rest = static_cast<unsigned long>(block.end() - id);
        const unsigned long counts[] = {0,
                                        1,
                                        rest,
                                        rest + 1,
                                        rest + 2,
                                        static_cast<unsigned long>(random.below(1400)),
                                        ULONG_MAX,
                                        ULONG_MAX - static_cast<unsigned long>(id) + 2,
                                        ULONG_MAX / block.size + 1,
                                        1UL << 31};
        const unsigned long count = counts[random.below(std::size(counts))];
        const bool works = block.holds(id) && count > 0 && count <= rest;
        const std::size_t length = works ? count * block.size : 0, offset = works ? block.slotOf(id) : 0;
        std::memset(buffer, '#', sizeof buffer);
        std::string read = bytes(buffer, sizeof buffer);
        if (write) {
            random.fill(buffer, length);
            model[space].replace(offset, length, buffer, length);
            watch(kind, space, works, [&] { memberOf(kind, space).setRun(id, {buffer}, count); });
        } else {
            read.replace(0, length, model[space], offset, length);
            watch(kind, space, works, [&] { memberOf(kind, space).getRun(id, {buffer}, count); });
            EXPECT_TRUE(bytes(buffer, sizeof buffer) == read) << count;
        }
    }

    alignas(double) char buffer[6000];
};

TEST_F(Family, WritesAndReadsItsOwnSlotsUnderTheirLock) {
    for (int k = 0; k < 30000; ++k) {
        const int kind = random.below(std::size(kBlocks)), space = random.below(2), write = random.below(2);
        const Block& block = kBlocks[kind];
        if (block.count == 0) continue;
        // Every other step at an edge of the block.
        const int any = block.first + random.below(block.count);
        const int ids[] = {block.first, block.end() - 1, any, any}, id = ids[random.below(4)];
        const bool asRun = block.number != nullptr && random.below(2) != 0;
        (this->*(asRun ? &Family::run : &Family::single))(static_cast<std::size_t>(kind), space, id,
                                                          write != 0);
        ASSERT_TRUE(spacesMatch() && !HasFailure()) << block.name << ' ' << id << " space " << space
                                                    << (asRun ? " run" : "") << (write ? " written" : "");
    }
}

// The start only: an emulator that runs the device's programs adds a line of its own.
auto failed(const std::string& function, const std::string& text) {
    return testing::StartsWith("ParamSystem/TALUX_Var: " + function + ": Assertion `" + text + "' failed.\n");
}

// Single values and the readers of runs but long insist on their kind, each with its own name and text.
TEST_F(Family, AbortsOnForeignIds) {
    for (std::size_t kind = 0; kind < std::size(kBlocks); ++kind) {
        const Block& block = kBlocks[kind];
        const std::string text = std::string("VarIs") + block.name + "(id)";
        for (const int space : {kTemp, kGlobal}) {
            const Member& member = memberOf(kind, space);
            const std::string name = std::string(space == kGlobal ? "Global" : "") + block.name + "Value";
            std::memset(buffer, 0, sizeof buffer);
            EXPECT_DEATH(member.set(block.first - 1, {buffer}), failed("VarSet" + name, text));
            EXPECT_DEATH(member.get(block.end(), {buffer}), failed("VarGet" + name, text));
            if (block.number == nullptr || block.type == 2004) continue;
            EXPECT_DEATH(member.getRun(block.end(), {buffer}, 1), failed("VarGet" + name + "Array", text));
        }
    }
}

TEST_F(Family, CopiesRecordsFromTheirStart) {
    struct {
        int id;
        std::size_t offset;
        VarLong size;
    } constexpr kRecords[] = {{30000, 0, 236}, {30001, 236, 116}, {30002, 352, 236}};
    random.fill(rawRecords(), kRecordsSize);
    std::string records = bytes(rawRecords(), kRecordsSize);
    for (const auto& record : kRecords) {
        for (const VarLong size : {record.size, VarLong{8}, VarLong{1}, VarLong{0}, VarLong{-1}}) {
            const auto length = static_cast<std::size_t>(std::max(size, VarLong{0}));
            random.fill(buffer, 240);
            records.replace(record.offset, length, buffer, length);
            watch(13, kGlobal, size > 0, [&] { VarSetGlobalStructValue(record.id, buffer, size); });
            EXPECT_TRUE(bytes(rawRecords(), kRecordsSize) == records) << record.id << ' ' << size;
            std::memset(buffer, '#', 240);
            watch(13, kGlobal, size > 0, [&] { VarGetGlobalStructValue(record.id, buffer, size); });
            EXPECT_EQ(bytes(buffer, 240),
                      records.substr(record.offset, length) + std::string(240 - length, '#'));
        }
        const std::string tooLarge = "size <= ARR_StructSize[struct_index]";
        EXPECT_DEATH(VarSetGlobalStructValue(record.id, buffer, record.size + 1),
                     failed("VarSetGlobalStructValue", tooLarge));
        EXPECT_DEATH(VarGetGlobalStructValue(record.id, buffer, record.size + 1),
                     failed("VarGetGlobalStructValue", tooLarge));
    }
    EXPECT_DEATH(VarSetGlobalStructValue(29999, buffer, 1),
                 failed("VarSetGlobalStructValue", "VarIsStruct(id)"));
    EXPECT_DEATH(VarGetGlobalStructValue(30003, buffer, 1),
                 failed("VarGetGlobalStructValue", "VarIsStruct(id)"));
}

// The commit ends with the flags that it found, whatever another program did meanwhile. It stays off the
// heap, as do the defaults.
TEST_F(Family, IsAllThatDefaultsAndCommitUse) {
    LoadDefParamProperties();
    char* const flags = raw(kGlobal) + kBlocks[4].offset;             // ids from 8000
    const char before[] = {1, 0, 7, 0, 5}, after[] = {1, 0, 7, 9, 5}; // 8003 is no change flag
    lockCount = allocations = 0;
    watching = true;
    VarSetDefault();
    lockCount = 0;
    std::memcpy(flags, before, sizeof before);
    onLock = [] {
        if (lockCount == 600) std::memset(raw(kGlobal) + kBlocks[4].offset, 9, 5);
    };
    EXPECT_EQ(VarUpdateGlobalSpace(), 1);
    watching = false;
    onLock = nullptr;
    EXPECT_EQ(allocations, 0);
    EXPECT_EQ(bytes(flags, 5), bytes(after, 5));
    EXPECT_EQ(lockCount, 4 + 2 * 642 + 4);
}

} // namespace
