// Locks, threads, processes and the heap: what the accessors do besides copying.
#include "StoreMembers.h"

#include <atomic>
#include <dlfcn.h>
#include <map>
#include <pthread.h>
#include <set>
#include <sys/wait.h>
#include <thread>

namespace {

// Written before main by the library's start-up, hence constant-initialised.
struct Creation {
    pthread_mutex_t* mutex;
    int protocol;
};
constinit Creation created[100]{};
constinit int createdCount = 0;

constinit bool watching = false;
constinit pthread_mutex_t* locked[10]{};
constinit int lockCount = 0, unlockCount = 0, allocations = 0;
using Hook = void();
constinit Hook* onLock = nullptr;

// The C library's function of a name that is defined here. No local statics: on processors without atomic
// instructions their guard takes a lock itself.
template <typename Function>
class Next {
public:
    constexpr explicit Next(const char* symbol) : name(symbol) {}

    template <typename... Arguments>
    auto operator()(Arguments... arguments) {
        if (function == nullptr) function = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
        return function.load()(arguments...);
    }

private:
    const char* name;
    std::atomic<Function*> function{nullptr};
};

constinit Next<int(pthread_mutex_t*, const pthread_mutexattr_t*)> realInit("pthread_mutex_init");
constinit Next<int(pthread_mutex_t*)> realLock("pthread_mutex_lock"), realUnlock("pthread_mutex_unlock");
[[maybe_unused]] constinit Next<void*(std::size_t)> realMalloc("malloc");

} // namespace

extern "C" {

int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attributes) noexcept {
    int protocol = -1;
    if (attributes != nullptr) pthread_mutexattr_getprotocol(attributes, &protocol);
    created[createdCount++] = {mutex, protocol};
    return realInit(mutex, attributes);
}
int pthread_mutex_lock(pthread_mutex_t* mutex) noexcept {
    if (watching) locked[lockCount++ % 10] = mutex;
    if (onLock != nullptr) onLock();
    return realLock(mutex);
}
int pthread_mutex_unlock(pthread_mutex_t* mutex) noexcept {
    if (watching) unlockCount += locked[(lockCount + 9) % 10] == mutex;
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

class Locks : public testing::Test {
protected:
    void SetUp() override { VarInit(kNoDirectory); }

    // The one lock that the call takes and gives back.
    template <typename Call>
    pthread_mutex_t* lockOf(Call call) {
        lockCount = unlockCount = allocations = 0;
        watching = true;
        call();
        watching = false;
        EXPECT_EQ(lockCount, 1);
        EXPECT_EQ(unlockCount, 1);
        EXPECT_EQ(allocations, 0);
        return locked[0];
    }

    // The number of the library's lock in the order of creation.
    int numberOf(const pthread_mutex_t* mutex) {
        for (int k = 0; k < createdCount; ++k)
            if (created[k].mutex == mutex) return k;
        return -1;
    }
};

TEST_F(Locks, AreOnePerKindAndSpaceWithPriorityInheritance) {
    // In the order in which each group is created; the second group lacks the records.
    const char* const kOrder[] = {"Float", "Double", "Long",    "Int",     "Bool", "Text", "Enum",
                                  "Date",  "Time",   "SysDate", "SysTime", "Id",   "Ip",   "Struct"};
    char buffer[240] = {};
    std::map<std::string, int> places;
    for (int k = 0; k < 14; ++k)
        places[kOrder[k]] = k;

    const int first =
        numberOf(lockOf([&] { VarGetGlobalFloatValue(2000, reinterpret_cast<float*>(buffer)); }));
    ASSERT_GE(first, 0);
    for (std::size_t kind = 0; kind < std::size(kBlocks); ++kind) {
        const Block& block = kBlocks[kind];
        const Member& member = kMembers[kind];
        if (block.count == 0) continue;
        for (const int space : {kTemp, kGlobal}) {
            SCOPED_TRACE(std::string(block.name) + (space ? " global" : " temporary"));
            const int expected = first + (space ? 0 : 14) + places[block.name];
            EXPECT_EQ(numberOf(lockOf([&] { member.set[space](block.first, buffer); })), expected);
            EXPECT_EQ(numberOf(lockOf([&] { member.get[space](block.first, buffer); })), expected);
            if (block.isText) continue;
            EXPECT_EQ(numberOf(lockOf([&] { member.setRun[space](block.first, buffer, 2); })), expected);
            EXPECT_EQ(numberOf(lockOf([&] { member.getRun[space](block.first, buffer, 2); })), expected);
        }
    }
    EXPECT_EQ(numberOf(lockOf([&] { VarSetGlobalStructValue(30000, buffer, 8); })), first + 13);
    EXPECT_EQ(numberOf(lockOf([&] { VarGetGlobalStructValue(30002, buffer, 8); })), first + 13);
    for (int k = first; k < first + 27; ++k)
        EXPECT_EQ(created[k].protocol, PTHREAD_PRIO_INHERIT) << k;
}

TEST_F(Locks, AreCreatedOnce) {
    const int before = createdCount;
    VarInit(kNoDirectory);
    EXPECT_EQ(createdCount, before);
}

// Whole operations stay off the heap, too.
TEST_F(Locks, CommitAllocatesNothing) {
    LoadDefParamProperties();
    allocations = 0;
    watching = true;
    VarSetDefault();
    VarUpdateGlobalSpace();
    watching = false;
    EXPECT_EQ(allocations, 0);
}

// The commit ends with the flags that it found, whatever another program did meanwhile.
TEST_F(Locks, CommitPutsTheChangeFlagsBack) {
    LoadDefParamProperties();
    char* const flags = raw(kGlobal) + 9410; // ids from 8000
    const char before[] = {1, 0, 7, 0, 5};   // 8000, 8001, 8002, 8003, 8004
    std::memcpy(flags, before, sizeof before);
    lockCount = 0;
    watching = true;
    onLock = [] {
        if (lockCount == 600) std::memset(raw(kGlobal) + 9410, 9, 5);
    };
    EXPECT_EQ(VarUpdateGlobalSpace(), 1);
    watching = false;
    onLock = nullptr;
    const char after[] = {1, 0, 7, 9, 5}; // 8003 is no change flag
    EXPECT_EQ(bytes(flags, 5), bytes(after, 5));
    EXPECT_EQ(lockCount, 4 + 2 * 642 + 4);
}

// Both directions between two processes, each with its own locks and attachment.
TEST(Processes, SeeEachOthersWritesAtOnce) {
    VarInit(kNoDirectory);
    VarSetGlobalTextValue(9000, const_cast<char*>("from the parent"));
    const pid_t child = fork();
    if (child == 0) {
        VarInit(kNoDirectory);
        char text[128];
        VarGetGlobalTextValue(9000, text);
        VarSetGlobalDoubleValue(1383, std::strcmp(text, "from the parent") == 0 ? 0.25 : -1);
        VarSetEnumValue(10130, 7);
        _exit(0);
    }
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    double number = 0;
    short choice = 0;
    VarGetGlobalDoubleValue(1383, &number);
    VarGetEnumValue(10130, &choice);
    EXPECT_EQ(number, 0.25);
    EXPECT_EQ(choice, 7);
}

// Writers fill runs, texts and records with one value each; no reader ever sees two.
TEST(Threads, NeverTearRunsTextsAndRecords) {
    VarInit(kNoDirectory);
    std::atomic<bool> stop{false};
    std::atomic<int> torn{0}, reads{0};
    const auto writer = [&](char letter) {
        double run[384];
        char text[128];
        char record[236];
        std::fill_n(run, 384, letter);
        std::memset(text, letter, 127);
        text[static_cast<unsigned char>(letter)] = '\0'; // the length must fit the letter
        std::memset(record, letter, sizeof record);
        while (!stop) {
            VarSetDoubleValueArray(1000, run, 384);
            VarSetGlobalTextValue(9068, text);
            VarSetGlobalStructValue(30000, record, sizeof record);
        }
    };
    const auto reader = [&] {
        const auto uniform = [](const auto* values, std::size_t count) {
            return std::all_of(values, values + count, [&](auto value) { return value == values[0]; });
        };
        double run[384];
        char text[128];
        char record[236];
        for (int k = 0; k < 20000; ++k, ++reads) {
            VarGetDoubleValueArray(1000, run, 384);
            VarGetGlobalTextValue(9068, text);
            VarGetGlobalStructValue(30000, record, sizeof record);
            const std::size_t length = std::strlen(text);
            torn += !uniform(run, 384) || !uniform(record, sizeof record) || !uniform(text, length) ||
                    length != static_cast<std::size_t>(text[0]);
        }
    };
    VarSetGlobalTextValue(9068, const_cast<char*>("\1"));
    double zeros[384] = {};
    char clean[236] = {};
    VarSetDoubleValueArray(1000, zeros, 384);
    VarSetGlobalStructValue(30000, clean, sizeof clean);
    std::thread a(writer, 'a'), b(writer, 'B'), readers(reader);
    readers.join();
    stop = true;
    a.join();
    b.join();
    EXPECT_EQ(torn, 0);
}

} // namespace
