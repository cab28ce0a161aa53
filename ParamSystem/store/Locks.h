// The locks of the store: one per kind and space, for the threads of this process.
#ifndef TALUX_STORE_LOCKS_H
#define TALUX_STORE_LOCKS_H

#include <pthread.h>

#include "ParamSystem/os/Error.h"
#include "ParamSystem/store/Kinds.h"

namespace talux {

// All kinds in the global space, all but the records in the temporary one.
inline constexpr std::size_t kGlobalLockCount = kKindCount;
inline constexpr std::size_t kTempLockCount = kKindCount - 1;

extern pthread_mutex_t globalLocks[kGlobalLockCount];
extern pthread_mutex_t tempLocks[kTempLockCount];

// Creates the locks. A failure prints the system error and ends the process with status 1.
void createLocks();

// Prints the error and ends the process with status 1.
[[noreturn]] void setUpFailed(const os::Error& error);

// Holds the lock of one kind and space for the life of the object.
template <Kind kind, Space space>
class Lock {
public:
    Lock() { pthread_mutex_lock(&mutex()); }
    ~Lock() { pthread_mutex_unlock(&mutex()); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    static pthread_mutex_t& mutex() {
        constexpr auto index = static_cast<std::size_t>(kind);
        if constexpr (space == Space::global) {
            return globalLocks[index];
        } else {
            static_assert(index < kTempLockCount);
            return tempLocks[index];
        }
    }
};

} // namespace talux

#endif
