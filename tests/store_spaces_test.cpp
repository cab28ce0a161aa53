// Start-up and clean-up of the store, and every way in which the start-up can fail.
#include "Store.h"

#include <climits>
#include <dlfcn.h>
#include <pthread.h>
#include <unistd.h>

namespace {

// The library call that is to fail for lack of memory, and how often it succeeds before.
constinit const char* failing = "";
constinit int worksBefore = 0, attempts = 0;

bool fails(const char* call) {
    return std::strcmp(call, failing) == 0 && attempts++ == worksBefore;
}

} // namespace

#define TALUX_FAILING(Result, function, failed, parameters, ...)                                             \
    Result function parameters noexcept {                                                                    \
        if (fails(#function)) return failed;                                                                 \
        return reinterpret_cast<decltype(&function)>(dlsym(RTLD_NEXT, #function))(__VA_ARGS__);              \
    }
// The thread functions return the error and leave errno alone.
#define TALUX_FAILING_THREADS(function, parameters, ...)                                                     \
    TALUX_FAILING(int, function, ENOMEM, parameters, __VA_ARGS__)

extern "C" {
TALUX_FAILING(int, shmget, (errno = ENOMEM, -1), (key_t key, size_t size, int flags), key, size, flags)
TALUX_FAILING(void*, shmat, (errno = ENOMEM, reinterpret_cast<void*>(-1)), // NOLINT(*-int-to-ptr)
              (int id, const void* address, int flags), id, address, flags)
TALUX_FAILING_THREADS(pthread_mutexattr_init, (pthread_mutexattr_t * attributes), attributes)
TALUX_FAILING_THREADS(pthread_mutexattr_setprotocol, (pthread_mutexattr_t * attributes, int protocol),
                      attributes, protocol)
TALUX_FAILING_THREADS(pthread_mutexattr_destroy, (pthread_mutexattr_t * attributes), attributes)
TALUX_FAILING_THREADS(pthread_mutex_init, (pthread_mutex_t * mutex, const pthread_mutexattr_t* attributes),
                      mutex, attributes)
}

namespace {

using namespace talux_test;

void removeSegment(key_t key) {
    if (key != 0) shmctl(shmget(key, 0, 0), IPC_RMID, nullptr);
}

shmid_ds statusOf(key_t key) {
    shmid_ds status{};
    EXPECT_EQ(shmctl(shmget(key, 0, 0), IPC_STAT, &status), 0) << key;
    return status;
}

TEST(Spaces, ArePublicSegmentsOfFixedSizeAndBeginEmpty) {
    // What an earlier start left is gone, even a zero-filled segment.
    for (const key_t key : {kRecordsKey, kGlobalKey, kTempKey})
        removeSegment(key);
    VarInit(kNoDirectory);
    for (const auto& [key, size, attached] :
         {std::tuple<key_t, std::size_t, void*>(kRecordsKey, 588, pVarStruct),
          {kGlobalKey, 19500, pVarGlobal},
          {kTempKey, 19500, pVarTemp}}) {
        const shmid_ds status = statusOf(key);
        EXPECT_TRUE(status.shm_segsz == size && (status.shm_perm.mode & 07777) == 0666) << key;
        char* const outside = attach(key);
        EXPECT_EQ(bytes(outside, size), std::string(size, '\0')) << key;
        outside[size - 1] = 'x';
        EXPECT_EQ(static_cast<char*>(attached)[size - 1], 'x') << key;
        shmdt(outside);
    }
}

// They stay where they are, however often; a segment that was removed meanwhile is created again.
TEST(Spaces, StayAttachedThroughLaterInits) {
    std::string directory(300, 'd');
    directory[254] = '!';
    VarInit(kNoDirectory);
    const auto place = std::tuple(pVarGlobal, pVarTemp, pVarStruct);
    const auto count = statusOf(kGlobalKey).shm_nattch;
    for (int k = 0; k < 70000; ++k) {
        stVarSpace elsewhere;
        if (k % 3 == 0) pVarGlobal = nullptr, pVarTemp = &elsewhere, pVarStruct = &elsewhere;
        if (k % 3 == 0) VarClean(); // of what is there
        k % 2 == 0 ? VarInit(directory.data()) : VarAlloc();
    }
    EXPECT_EQ(place, std::tuple(pVarGlobal, pVarTemp, pVarStruct));
    EXPECT_EQ(statusOf(kGlobalKey).shm_nattch, count);
    EXPECT_EQ(std::string(szParameterPath), directory.substr(0, 255));
    EXPECT_EQ(fSave, 1);

    removeSegment(kGlobalKey);
    VarInit(kNoDirectory);
    VarSetGlobalLongValue(6000, 42);
    char* const outside = attach(kGlobalKey);
    EXPECT_EQ(numberIn<std::int32_t>(outside + kBlocks[2].offset), 42);
    shmdt(outside);
    EXPECT_EQ(std::tuple(std::get<1>(place), std::get<2>(place)), std::tuple(pVarTemp, pVarStruct));
}

TEST(Predicates, HoldExactlyTheirBlocks) {
    for (const Block& block : kBlocks) {
        for (int id = -40000; id <= 40000; ++id)
            ASSERT_EQ(block.is(id), block.holds(id)) << block.name << ' ' << id;
        for (const int id : {INT_MIN, INT_MIN + block.first, INT_MAX})
            EXPECT_EQ(block.is(id), 0) << block.name << ' ' << id;
    }
}

TEST(Logbook, IsRemovedFromTheCurrentDirectory) {
    char directory[] = "/tmp/logbookXXXXXX";
    ASSERT_EQ(chdir(mkdtemp(directory)), 0);
    std::fclose(std::fopen("TALUX-LCD.log", "w"));
    EXPECT_EQ(VarResetLCDLogbook(), 1);
    EXPECT_NE(access("TALUX-LCD.log", F_OK), 0);
    EXPECT_EQ(VarResetLCDLogbook(), 1);
    fs::remove(directory);
    ASSERT_EQ(chdir("/"), 0);
}

// The whole error output: the message, and how often the failing call was tried in all.
TEST(SetUp, EndsTheProcessWhenACallFails) {
    const struct {
        const char* call;
        int worksBefore, attempts;
        const char* message;
        key_t tooSmall = 0; // another program has made this segment, one byte too small
    } cases[] = {
        {"pthread_mutexattr_init", 0, 1, "pthread_mutexattr_xxx"},
        {"pthread_mutexattr_setprotocol", 0, 1, "pthread_mutexattr_xxx"},
        {"pthread_mutex_init", 0, 14, "pthread_mutex_init (GlobalData)"},
        {"pthread_mutex_init", 13, 14, "pthread_mutex_init (GlobalData)"},
        {"pthread_mutex_init", 14, 27, "pthread_mutex_init (TempData)"},
        {"pthread_mutex_init", 26, 27, "pthread_mutex_init (TempData)"},
        {"pthread_mutexattr_destroy", 0, 1, "pthread_mutexattr_destroy"},
        {"shmget", 0, 1, "StructSpace: 588\nshmget (structspace)"},
        {"shmat", 0, 1, "shmat (structspace)"},
        {"shmget", 1, 2, "GlobalSpace: 19500\nshmget (globalspace)"},
        {"shmat", 1, 2, "shmat (globalspace)"},
        {"shmget", 2, 3, "shmget (tempspace)"},
        {"shmat", 2, 3, "shmat (tempspace)"},
        {"", 0, 0, "StructSpace: 588\nshmget (structspace)", kRecordsKey},
        {"", 0, 0, "GlobalSpace: 19500\nshmget (globalspace)", kGlobalKey},
        {"", 0, 0, "shmget (tempspace)", kTempKey},
    };
    for (const auto& test : cases) {
        for (const key_t key : {kRecordsKey, kGlobalKey, kTempKey})
            removeSegment(key);
        if (test.tooSmall != 0)
            (void)shmget(test.tooSmall, test.tooSmall == kRecordsKey ? 587 : 19499, IPC_CREAT | 0666);
        const auto start = [&test] {
            (void)std::atexit([] { std::fprintf(stderr, "%d, fSave %d", attempts, fSave); });
            mutex_init = errno = 0;
            fSave = 1;
            failing = test.call, worksBefore = test.worksBefore, attempts = 0;
            VarInit(kNoDirectory);
        };
        const std::string reason = test.tooSmall == 0 ? "Cannot allocate memory" : "Invalid argument";
        EXPECT_EXIT(
            start(), testing::ExitedWithCode(1),
            testing::Eq(test.message + (": " + reason) + "\n" + std::to_string(test.attempts) + ", fSave 0"));
        removeSegment(test.tooSmall);
    }
}

} // namespace
