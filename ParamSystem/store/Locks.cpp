#include "ParamSystem/store/Locks.h"

#include <cstdlib>

namespace talux {

constinit pthread_mutex_t globalLocks[kGlobalLockCount] = {};
constinit pthread_mutex_t tempLocks[kTempLockCount] = {};

void setUpFailed(const os::Error& error) {
    error.print();
    std::exit(1); // NOLINT(concurrency-mt-unsafe): start-up, before any second thread
}

namespace {

// The thread functions return the error instead of setting errno.
void require(int error, const char* what) {
    if (error != 0) setUpFailed({os::Stage::use, what, error});
}

int makePriorityInheriting(pthread_mutexattr_t& attributes) {
    const int error = pthread_mutexattr_init(&attributes);
    return error != 0 ? error : pthread_mutexattr_setprotocol(&attributes, PTHREAD_PRIO_INHERIT);
}

// Tries every lock of the group; the first error, or 0.
template <std::size_t count>
int initialise(pthread_mutex_t (&group)[count], const pthread_mutexattr_t& attributes) {
    int firstError = 0;
    for (pthread_mutex_t& lock : group) {
        const int error = pthread_mutex_init(&lock, &attributes);
        if (firstError == 0) firstError = error;
    }
    return firstError;
}

void makeLocks() {
    pthread_mutexattr_t attributes;
    require(makePriorityInheriting(attributes), "pthread_mutexattr_xxx");
    require(initialise(globalLocks, attributes), "pthread_mutex_init (GlobalData)");
    require(initialise(tempLocks, attributes), "pthread_mutex_init (TempData)");
    require(pthread_mutexattr_destroy(&attributes), "pthread_mutexattr_destroy");
}

} // namespace

void createLocks() {
    makeLocks();
    // A thread that was inside an accessor during a fork does not exist in the child and unlocks nothing.
    require(pthread_atfork(nullptr, nullptr, makeLocks), "pthread_atfork");
}

} // namespace talux
