// Start-up and clean-up of the store: locks, shared memory, the directory of the parameter files.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/ipc.h>
#include <sys/shm.h>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/store/Locks.h"
#include "ParamSystem/support/Text.h"

constinit stVarSpace* pVarGlobal = nullptr;
constinit stVarSpace* pVarTemp = nullptr;
constinit void* pVarStruct = nullptr;
constinit char szParameterPath[256] = {};
constinit int fSave = 0;
constinit int mutex_init = 0;

namespace {

// Created if absent, readable and writable by all programs of the device.
constexpr int kSegmentFlags = IPC_CREAT | 0666;
static_assert(kSegmentFlags == 950);

struct Segment {
    key_t key;
    std::size_t size;
    const char* sizeLabel; // what a failure calls the size; null: says nothing
    const char* getFailure;
    const char* attachFailure;
};

constexpr Segment kStructSegment{kStructSpaceKey, kStructSpaceSize, "StructSpace", "shmget (structspace)",
                                 "shmat (structspace)"};
constexpr Segment kGlobalSegment{kGlobalSpaceKey, sizeof(stVarSpace), "GlobalSpace", "shmget (globalspace)",
                                 "shmat (globalspace)"};
constexpr Segment kTempSegment{kTempSpaceKey, sizeof(stVarSpace), nullptr, "shmget (tempspace)",
                               "shmat (tempspace)"};

[[noreturn]] void getFailed(const Segment& segment) {
    const int error = errno;
    if (segment.sizeLabel != nullptr)
        std::fprintf(stderr, "%s: %d\n", segment.sizeLabel, static_cast<int>(segment.size));
    errno = error;
    talux::setUpFailed(segment.getFailure);
}

void* attach(const Segment& segment) {
    const int id = shmget(segment.key, segment.size, kSegmentFlags);
    if (id == -1) getFailed(segment);
    void* const memory = shmat(id, nullptr, 0);
    if (reinterpret_cast<std::intptr_t>(memory) == -1) talux::setUpFailed(segment.attachFailure);
    return memory;
}

void clear(stVarSpace* space) {
    if (space != nullptr) std::memset(space, 0, sizeof *space);
}

} // namespace

void VarInit(char* inipath) {
    talux::copyText(szParameterPath, inipath);
    pVarGlobal = nullptr;
    pVarTemp = nullptr;
    fSave = 0;
    VarAlloc();
    fSave = 1;
}

void VarAlloc(void) {
    if (mutex_init == 0) talux::createLocks();
    mutex_init = 1;
    pVarStruct = attach(kStructSegment);
    pVarGlobal = static_cast<stVarSpace*>(attach(kGlobalSegment));
    pVarTemp = static_cast<stVarSpace*>(attach(kTempSegment));
}

void VarClean(void) {
    clear(pVarGlobal);
    clear(pVarTemp);
}

int VarResetLCDLogbook(void) {
    std::remove("TALUX-LCD.log");
    return 1;
}
