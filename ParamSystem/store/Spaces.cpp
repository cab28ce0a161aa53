// Start-up and clean-up of the store: locks, shared memory, the directory of the parameter files.
#include "ParamSystem/store/Spaces.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <pthread.h>
#include <string_view>
#include <sys/ipc.h>
#include <sys/shm.h>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/os/Files.h"
#include "ParamSystem/store/Locks.h"
#include "support/Text.h"

constinit stVarSpace* pVarGlobal = nullptr;
constinit stVarSpace* pVarTemp = nullptr;
constinit void* pVarStruct = nullptr;
constinit char szParameterPath[256] = {};
constinit int fSave = 0;
constinit int mutex_init = 0;

namespace {

namespace os = talux::os;

// Created if absent, readable and writable by all programs of the device.
constexpr int kSegmentFlags = IPC_CREAT | 0666;
static_assert(kSegmentFlags == 950);

struct Segment {
    key_t key;
    std::size_t size;
    const char* name;
    const char* sizeLabel; // printed with the size after a failure; null: not printed
    const char* getFailure;
    const char* attachFailure;
    int attachedId = -1;
    void* attached = nullptr; // before the first attachment
};

constinit Segment structSegment{kStructSpaceKey, kStructSpaceSize,       "record space",
                                "StructSpace",   "shmget (structspace)", "shmat (structspace)"};
constinit Segment globalSegment{kGlobalSpaceKey, sizeof(stVarSpace),     "global space",
                                "GlobalSpace",   "shmget (globalspace)", "shmat (globalspace)"};
constinit Segment tempSegment{kTempSpaceKey, sizeof(stVarSpace),   "temporary space",
                              nullptr,       "shmget (tempspace)", "shmat (tempspace)"};

// A segment that is attached remains so, since other threads may use it. If it was removed and created again,
// the new one is attached as well and the pointer set to it. The host may have changed the pointer.
template <typename Memory>
os::Error attachOnce(Segment& segment, Memory*& pointer, int getFlags, int attachFlags) {
    const int id = shmget(segment.key, segment.size, getFlags);
    if (id == -1) return os::failed(os::Stage::open, segment.getFailure);
    if (segment.attached == nullptr || id != segment.attachedId) {
        void* const memory = shmat(id, nullptr, attachFlags);
        if (reinterpret_cast<std::intptr_t>(memory) == -1)
            return os::failed(os::Stage::use, segment.attachFailure);
        segment.attached = memory;
        segment.attachedId = id;
    }
    std::atomic_ref(pointer).store(static_cast<Memory*>(segment.attached), std::memory_order_relaxed);
    return {};
}

template <typename Memory>
void attachOrMake(Segment& segment, Memory*& pointer) {
    const os::Error error = attachOnce(segment, pointer, kSegmentFlags, 0);
    if (error.stage == os::Stage::open && segment.sizeLabel != nullptr)
        std::fprintf(stderr, "%s: %d\n", segment.sizeLabel, static_cast<int>(segment.size));
    if (error) talux::setUpFailed(error);
}

// Only one thread at a time makes locks and attaches.
class SettingUp {
public:
    SettingUp() { pthread_mutex_lock(&mutex); }
    ~SettingUp() { pthread_mutex_unlock(&mutex); }
    SettingUp(const SettingUp&) = delete;
    SettingUp& operator=(const SettingUp&) = delete;

private:
    static inline pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
};

void createLocksOnce() {
    if (mutex_init == 0) talux::createLocks();
    mutex_init = 1;
}

void setUp() {
    createLocksOnce();
    attachOrMake(structSegment, pVarStruct);
    attachOrMake(globalSegment, pVarGlobal);
    attachOrMake(tempSegment, pVarTemp);
}

void clear(stVarSpace* space) {
    if (space != nullptr) std::memset(space, 0, sizeof *space);
}

} // namespace

void VarInit(char* inipath) {
    const SettingUp alone;
    if (szParameterPath != std::string_view(inipath)) talux::copyText(szParameterPath, inipath);
    fSave = 0;
    setUp();
    fSave = 1;
}

void VarAlloc(void) {
    const SettingUp alone;
    setUp();
}

const char* talux::attachExisting(Access access) {
    const int flags = access == Access::readOnly ? SHM_RDONLY : 0;
    const SettingUp alone;
    createLocksOnce();
    if (attachOnce(structSegment, pVarStruct, 0, flags)) return structSegment.name;
    if (attachOnce(globalSegment, pVarGlobal, 0, flags)) return globalSegment.name;
    if (attachOnce(tempSegment, pVarTemp, 0, flags)) return tempSegment.name;
    return nullptr;
}

void VarClean(void) {
    clear(pVarGlobal);
    clear(pVarTemp);
}

int VarResetLCDLogbook(void) {
    talux::os::removeFile("TALUX-LCD.log");
    return 1;
}
