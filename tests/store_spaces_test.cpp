// Start-up and clean-up of the store, and every way in which the start-up can fail.
#include "Store.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <pthread.h>

namespace {

// The library call that is to fail: how often it works before, and the error.
struct Failure {
    const char* call;
    int after;
    int error;
};
constinit Failure failure{"", 0, 0};
constinit int attempts = 0;

bool fails(const char* call) {
    return std::strcmp(call, failure.call) == 0 && attempts++ == failure.after;
}

template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

int shmget(key_t key, size_t size, int flags) noexcept {
    if (!fails("shmget")) return next<decltype(shmget)>("shmget")(key, size, flags);
    errno = failure.error;
    return -1;
}
void* shmat(int id, const void* address, int flags) noexcept {
    if (!fails("shmat")) return next<decltype(shmat)>("shmat")(id, address, flags);
    errno = failure.error;
    return reinterpret_cast<void*>(-1); // NOLINT(performance-no-int-to-ptr): as the call fails
}
int pthread_mutexattr_init(pthread_mutexattr_t* attributes) noexcept {
    if (fails("attr_init")) return failure.error;
    return next<decltype(pthread_mutexattr_init)>("pthread_mutexattr_init")(attributes);
}
int pthread_mutexattr_setprotocol(pthread_mutexattr_t* attributes, int protocol) noexcept {
    if (fails("attr_setprotocol")) return failure.error;
    return next<decltype(pthread_mutexattr_setprotocol)>("pthread_mutexattr_setprotocol")(attributes,
                                                                                          protocol);
}
int pthread_mutexattr_destroy(pthread_mutexattr_t* attributes) noexcept {
    if (fails("attr_destroy")) return failure.error;
    return next<decltype(pthread_mutexattr_destroy)>("pthread_mutexattr_destroy")(attributes);
}
int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attributes) noexcept {
    if (fails("mutex_init")) return failure.error;
    return next<decltype(pthread_mutex_init)>("pthread_mutex_init")(mutex, attributes);
}
}

namespace {

using namespace talux_test;

TEST(Spaces, ArePublicSegmentsOfFixedSizeAndBeginEmpty) {
    // Gone is what an earlier start left, also a zero-filled segment.
    for (const key_t key : {kRecordsKey, kGlobalKey, kTempKey})
        shmctl(shmget(key, 0, 0), IPC_RMID, nullptr);
    VarInit(kNoDirectory);
    struct {
        key_t key;
        std::size_t size;
        void* attached;
    } const segments[] = {
        {kRecordsKey, 588, pVarStruct}, {kGlobalKey, 19500, pVarGlobal}, {kTempKey, 19500, pVarTemp}};
    for (const auto& segment : segments) {
        shmid_ds status;
        ASSERT_EQ(shmctl(shmget(segment.key, 0, 0), IPC_STAT, &status), 0) << segment.key;
        EXPECT_EQ(status.shm_segsz, segment.size);
        EXPECT_EQ(status.shm_perm.mode & 07777, 0666);
        char* const outside = attach(segment.key);
        EXPECT_EQ(bytes(outside, segment.size), std::string(segment.size, '\0')) << segment.key;
        outside[segment.size - 1] = 'x';
        EXPECT_EQ(static_cast<char*>(segment.attached)[segment.size - 1], 'x') << segment.key;
        shmdt(outside);
    }
}

TEST(Spaces, AreAttachedAgainBySecondInit) {
    VarInit(kNoDirectory);
    std::string directory(300, 'd');
    directory[254] = '!';
    VarSetGlobalLongValue(6000, 42);
    shmid_ds before, after;
    shmctl(shmget(kGlobalKey, 0, 0), IPC_STAT, &before);
    VarInit(directory.data());
    shmctl(shmget(kGlobalKey, 0, 0), IPC_STAT, &after);
    EXPECT_EQ(after.shm_nattch, before.shm_nattch + 1);
    EXPECT_EQ(std::string(szParameterPath), directory.substr(0, 255));
    EXPECT_EQ(fSave, 1);
    VarLong value = 0;
    VarGetGlobalLongValue(6000, &value);
    EXPECT_EQ(value, 42);
}

TEST(Spaces, AreCleanedExceptTheRecords) {
    VarInit(kNoDirectory);
    for (const int space : {kTemp, kGlobal})
        std::memset(raw(space), 'x', kSpaceSize);
    std::memset(rawRecords(), 'x', kRecordsSize);
    VarClean();
    EXPECT_TRUE(bothSpaces() == std::string(2 * kSpaceSize, '\0'));
    EXPECT_EQ(bytes(rawRecords(), kRecordsSize), std::string(kRecordsSize, 'x'));
    pVarGlobal = pVarTemp = nullptr;
    VarClean();
}

TEST(Predicates, HoldExactlyTheirBlocks) {
    struct {
        int (*is)(int);
        int first, last;
    } constexpr kPredicates[] = {
        {VarIsDouble, 1000, 1383},    {VarIsFloat, 2000, 2311},     {VarIsLong, 6000, 7268},
        {VarIsInt, 7000, 7006},       {VarIsBool, 8000, 8190},      {VarIsText, 9000, 9068},
        {VarIsEnum, 10000, 10130},    {VarIsDate, 11000, 10999},    {VarIsTime, 12000, 11999},
        {VarIsSysDate, 13000, 13000}, {VarIsSysTime, 14000, 14000}, {VarIsId, 15000, 15000},
        {VarIsIp, 16000, 16037},      {VarIsStruct, 30000, 30002}};
    for (const auto& predicate : kPredicates) {
        for (int id = -40000; id <= 40000; ++id)
            ASSERT_EQ(predicate.is(id), id >= predicate.first && id <= predicate.last ? 1 : 0) << id;
        for (const int id : {INT_MIN, INT_MIN + predicate.first, INT_MAX})
            EXPECT_EQ(predicate.is(id), 0);
    }
}

TEST(Logbook, IsRemovedFromTheCurrentDirectory) {
    char directory[] = "/tmp/logbookXXXXXX";
    ASSERT_EQ(chdir(mkdtemp(directory)), 0);
    std::fclose(std::fopen("TALUX-LCD.log", "w"));
    EXPECT_EQ(VarResetLCDLogbook(), 1);
    EXPECT_NE(access("TALUX-LCD.log", F_OK), 0);
    EXPECT_EQ(VarResetLCDLogbook(), 1);
}

// A failing call's message, and how often it was tried in all.
TEST(SetUp, EndsTheProcessWhenACallFails) {
    const struct {
        Failure failure;
        const char* message;
        int attempts;
    } cases[] = {
        {{"attr_init", 0, ENOMEM}, "pthread_mutexattr_xxx: Cannot allocate memory\n", 1},
        {{"attr_setprotocol", 0, ENOTSUP}, "pthread_mutexattr_xxx: Operation not supported\n", 1},
        {{"mutex_init", 0, EAGAIN},
         "pthread_mutex_init (GlobalData): Resource temporarily unavailable\n",
         14},
        {{"mutex_init", 13, EPERM}, "pthread_mutex_init (GlobalData): Operation not permitted\n", 14},
        {{"mutex_init", 14, EAGAIN}, "pthread_mutex_init (TempData): Resource temporarily unavailable\n", 27},
        {{"mutex_init", 26, EPERM}, "pthread_mutex_init (TempData): Operation not permitted\n", 27},
        {{"attr_destroy", 0, EINVAL}, "pthread_mutexattr_destroy: Invalid argument\n", 1},
        {{"shmget", 0, ENOSPC}, "StructSpace: 588\nshmget (structspace): No space left on device\n", 1},
        {{"shmat", 0, EACCES}, "shmat (structspace): Permission denied\n", 1},
        {{"shmget", 1, EACCES}, "GlobalSpace: 19500\nshmget (globalspace): Permission denied\n", 2},
        {{"shmat", 1, ENOMEM}, "shmat (globalspace): Cannot allocate memory\n", 2},
        {{"shmget", 2, EACCES}, "shmget (tempspace): Permission denied\n", 3},
        {{"shmat", 2, ENOMEM}, "shmat (tempspace): Cannot allocate memory\n", 3},
    };
    for (const auto& test : cases) {
        const auto start = [&test] {
            mutex_init = 0;
            failure = test.failure;
            attempts = 0;
            std::atexit([] { std::fprintf(stderr, "%d", attempts); });
            VarInit(kNoDirectory);
        };
        EXPECT_EXIT(start(), testing::ExitedWithCode(1),
                    Output(test.message + std::to_string(test.attempts)));
    }
}

// Another program has made a segment that is too small.
TEST(SetUp, EndsTheProcessWhenASegmentIsTooSmall) {
    const struct {
        key_t key;
        std::size_t size;
        const char* message;
    } cases[] = {{kRecordsKey, 587, "StructSpace: 588\nshmget (structspace): Invalid argument\n"},
                 {kGlobalKey, 19499, "GlobalSpace: 19500\nshmget (globalspace): Invalid argument\n"},
                 {kTempKey, 19499, "shmget (tempspace): Invalid argument\n"}};
    for (const auto& test : cases) {
        VarInit(kNoDirectory);
        shmctl(shmget(test.key, 0, 0), IPC_RMID, nullptr);
        const int small = shmget(test.key, test.size, IPC_CREAT | 0666);
        ASSERT_NE(small, -1);
        EXPECT_EXIT(VarInit(kNoDirectory), testing::ExitedWithCode(1), Output(test.message));
        shmctl(small, IPC_RMID, nullptr);
    }
}

} // namespace
