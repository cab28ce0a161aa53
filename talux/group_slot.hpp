// The counters of groups: a segment beside the store, with one slot for each group.
//
// A slot has a counter that is odd while a writer is inside, or after it died there. A reader copies the
// values between two looks at the counter, and again if it was odd or has changed. Semaphores keep writers
// apart and count the programs that use a slot; the kernel takes back what a program that dies has added.
// Readers hold nothing and delay no writer. In a unit test with talux/fake.hpp both are private memory of the
// program. tests/models/group.pml is this protocol as a model.
#ifndef TALUX_GROUP_SLOT_HPP
#define TALUX_GROUP_SLOT_HPP

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <linux/futex.h>
#include <string_view>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "talux/clock.hpp"

namespace talux {

// Why a group has no slot; `attached` when it has one.
enum class Attachment : unsigned char {
    attached,
    wrongName,     // empty, longer than 55 characters, or with a NUL
    otherElements, // a program that runs has made a group of this name with other elements
    noSlot,        // 63 groups are in use
    system,        // no segment, no semaphores, or no answer from them for 0.1 s; errno says more
};

// What a reader got, how old it is, and which write it was.
class Reading {
public:
    enum State : unsigned char {
        whole,     // the values of one write
        unwritten, // nobody has written this group since the device was started
        busy,      // writers came between all the time, or one stayed inside
        broken,    // a writer died inside; holds until the next write is done
        detached,  // the group has no slot
    };

    constexpr Reading(State what) : state(what) {} // NOLINT(*-explicit-*): a state is a reading
    constexpr Reading(State what, std::uint32_t number, std::int64_t writtenAt)
        : state(what), sequence(number), written(writtenAt) {}

    constexpr explicit operator bool() const { return state == whole; }
    constexpr operator State() const { return state; } // for a switch

    // Differs from one write to the next; 0 before the first.
    [[nodiscard]] constexpr std::uint32_t number() const { return sequence; }

    // Seconds since the write ended, of a reading that is whole; the clock is that of the kernel's uptime
    // (CLOCK_MONOTONIC), which nobody sets.
    [[nodiscard]] double age() const;

private:
    State state;
    std::uint32_t sequence = 0;
    std::int64_t written = 0;
};

namespace detail {

// Shared by all programs with groups, old and new ones: another layout takes another key. A new segment is
// zero-filled, and its semaphores are 0.
struct GroupSlot {
    static constexpr std::size_t kNameSize = 56;

    std::int64_t written; // when the last write ended, on the monotonic clock; guarded like the values
    std::uint32_t
        sequence;          // odd: a writer is inside, or died there; 0: nobody has written. Wraps around to 2
    std::uint32_t members; // which elements; 0 when the slot is free, written last
    std::uint32_t awaited; // not 0: somebody sleeps until the counter moves
    std::uint32_t spare;
    char name[kNameSize];
};
inline constexpr key_t kGroupsKey = 0x544C5848; // of the segment and of the semaphores
inline constexpr int kGroupSlots = 63;
static_assert(sizeof(GroupSlot) == 80 && offsetof(GroupSlot, sequence) == 8 &&
              offsetof(GroupSlot, name) == 24);
static_assert(__atomic_always_lock_free(sizeof(std::uint32_t), nullptr)); // between processes, too

// Semaphore k keeps the writers of slot k apart, semaphore 63 those who claim a slot; semaphore 64 + k counts
// the programs that use slot k.
inline constexpr unsigned short kClaims = kGroupSlots, kUsers = kGroupSlots + 1;
inline constexpr int kSemaphores = kUsers + kGroupSlots;

// Slots and semaphores of a program that is linked with talux/fake.hpp; nobody else defines them.
struct PrivateGroups {
    GroupSlot slots[kGroupSlots];
    std::uint32_t semaphores[kSemaphores];
};
extern PrivateGroups privateGroups __attribute__((weak));

inline bool arePrivate() {
    return &privateGroups != nullptr;
}

class GroupAccess {
public:
    GroupAccess(std::string_view name, std::uint32_t memberList) : members(memberList), owner(getpid()) {
        const bool fits = !name.empty() && name.size() < GroupSlot::kNameSize;
        if (!fits || name.find('\0') != name.npos) {
            result = Attachment::wrongName;
            return;
        }
        if (!attach() || !enter(kClaims)) return;
        claim(name);
        if (slot != nullptr) count(kUsers, 1);
        leave(kClaims);
    }
    ~GroupAccess() {
        // A child made by fork has not been counted.
        if (slot != nullptr && owner == getpid()) count(kUsers, -1);
        if (slots != nullptr && !arePrivate()) shmdt(slots);
    }
    GroupAccess(const GroupAccess&) = delete;
    GroupAccess& operator=(const GroupAccess&) = delete;

    Attachment attachment() const { return result; }

    // Calls `store` as the only writer; false when the group has no slot or another writer stayed inside.
    template <class Store>
    bool write(Store store) const {
        if (slot == nullptr || !enter(index())) return false;
        const std::uint32_t odd = (load(__ATOMIC_RELAXED) + 1) | 1U; // not the one that a dead writer left
        __atomic_store_n(&slot->sequence, odd, __ATOMIC_RELAXED);
        __atomic_thread_fence(__ATOMIC_RELEASE); // no value before the counter is odd
        store();
        slot->written = monotonic();
        const std::uint32_t even = odd + 1 == 0 ? 2 : odd + 1;
        __atomic_store_n(&slot->sequence, even, __ATOMIC_RELEASE); // all values before it is even
        leave(index());
        wake();
        return true;
    }

    // Calls `take` until nobody wrote meanwhile: in nine rounds, each longer than a write takes, with pauses
    // that double from 0.1 ms on, so that a writer gets its turn on a processor with one core; 26 ms in all.
    template <class Take>
    Reading read(Take take) const {
        if (slot == nullptr) return Reading::detached;
        for (int round = 0;; ++round) {
            std::int64_t start = 0;
            do {
                const Reading reading = attempt(take);
                if (reading != Reading::busy) return reading;
                if (start == 0) start = monotonic();
            } while (monotonic() - start < 20000);
            if (isAbandoned()) return Reading::broken;
            if (round == 8) return Reading::busy;
            sleepFor(100000L << round);
        }
    }

    // Waits until the counter is neither `last` nor odd; false when the time is over.
    bool wait(std::uint32_t last, int milliseconds) const {
        if (slot == nullptr) return false;
        const std::int64_t end = monotonic() + std::int64_t{milliseconds} * 1000000;
        for (;;) {
            const std::uint32_t seen = load(__ATOMIC_ACQUIRE);
            if (seen != last && seen % 2 == 0) return true;
            const std::int64_t left = end - monotonic();
            if (left <= 0) return false;
            __atomic_store_n(&slot->awaited, 1U, __ATOMIC_SEQ_CST);
            // The kernel's own time of this call, whatever the C library takes for a time.
            const long time[] = {static_cast<long>(left / 1000000000), static_cast<long>(left % 1000000000)};
            syscall(SYS_futex, &slot->sequence, FUTEX_WAIT, seen, time, nullptr, 0);
        }
    }

private:
    GroupSlot* slots = nullptr;
    GroupSlot* slot = nullptr;
    int semaphores = -1;
    std::uint32_t members;
    pid_t owner;
    Attachment result = Attachment::system;

    unsigned short index() const { return static_cast<unsigned short>(slot - slots); }
    std::uint32_t load(int order) const { return __atomic_load_n(&slot->sequence, order); }

    bool attach() {
        if (arePrivate()) {
            slots = privateGroups.slots;
            return true;
        }
        const int segment = shmget(kGroupsKey, kGroupSlots * sizeof(GroupSlot), IPC_CREAT | 0666);
        if (segment == -1) return false;
        void* const memory = shmat(segment, nullptr, 0);
        if (reinterpret_cast<std::intptr_t>(memory) == -1) return false;
        slots = static_cast<GroupSlot*>(memory);
        semaphores = semget(kGroupsKey, kSemaphores, IPC_CREAT | 0666);
        return semaphores != -1;
    }

    // Whole or unwritten; busy when somebody wrote meanwhile. A reader that is stopped inside for a whole
    // turn of the counter, 2^31 writes, would not notice.
    template <class Take>
    Reading attempt(Take& take) const {
        const std::uint32_t before = load(__ATOMIC_ACQUIRE); // no value before
        if (before == 0) return Reading::unwritten;
        if (before % 2 == 1) return Reading::busy;
        take();
        const std::int64_t written = slot->written;
        __atomic_thread_fence(__ATOMIC_ACQUIRE); // no value after the second look
        if (load(__ATOMIC_RELAXED) != before) return Reading::busy;
        return {Reading::whole, before, written};
    }

    // Odd with nobody inside.
    bool isAbandoned() const {
        const std::uint32_t seen = load(__ATOMIC_RELAXED);
        return seen % 2 == 1 && valueOf(index()) == 0 && load(__ATOMIC_RELAXED) == seen;
    }

    // Between the new counter and the look at `awaited` nothing may move: a reader that sets `awaited` later
    // sees the new counter and does not sleep.
    void wake() const {
        __atomic_thread_fence(__ATOMIC_SEQ_CST);
        if (__atomic_load_n(&slot->awaited, __ATOMIC_RELAXED) == 0) return;
        __atomic_store_n(&slot->awaited, 0U, __ATOMIC_SEQ_CST);
        syscall(SYS_futex, &slot->sequence, FUTEX_WAKE, 0x7FFFFFFF, nullptr, nullptr, 0);
    }

    // Waits until the semaphore is 0, for a tenth of a second whatever signals arrive, and raises it; the
    // kernel takes that back when the process dies.
    bool enter(unsigned short number) const {
        sembuf raise[] = {{number, 0, 0}, {number, 1, SEM_UNDO}};
        const std::int64_t end = monotonic() + 100000000;
        for (std::int64_t left = 100000000; left > 0; left = end - monotonic()) {
            const timespec time{0, static_cast<long>(left)};
            if (arePrivate()) {
                if (enterPrivate(number)) return true;
                sleepFor(100000);
            } else {
                if (semtimedop(semaphores, raise, 2, &time) == 0) return true;
                if (errno != EINTR) break;
            }
        }
        return false;
    }
    static bool enterPrivate(unsigned short number) {
        std::uint32_t none = 0;
        return __atomic_compare_exchange_n(&privateGroups.semaphores[number], &none, 1U, false,
                                           __ATOMIC_ACQUIRE, __ATOMIC_RELAXED);
    }
    void leave(unsigned short number) const { add(number, -1); }
    void count(unsigned short first, short by) const {
        add(static_cast<unsigned short>(first + index()), by);
    }
    void add(unsigned short number, short by) const {
        if (arePrivate()) {
            __atomic_fetch_add(&privateGroups.semaphores[number], static_cast<std::uint32_t>(by),
                               __ATOMIC_RELEASE);
            return;
        }
        sembuf operation{number, by, SEM_UNDO | IPC_NOWAIT};
        semop(semaphores, &operation, 1);
    }

    int valueOf(int number) const {
        return arePrivate()
                   ? static_cast<int>(__atomic_load_n(&privateGroups.semaphores[number], __ATOMIC_ACQUIRE))
                   : semctl(semaphores, number, GETVAL);
    }
    bool isUsed(const GroupSlot* each) const { return valueOf(kUsers + static_cast<int>(each - slots)) > 0; }
    static bool isNamed(const GroupSlot* each, std::string_view name) {
        return name == std::string_view(each->name, strnlen(each->name, sizeof each->name));
    }

    // The group's own slot, else one that was never used, else one that no program uses any more.
    void claim(std::string_view name) {
        GroupSlot* free = nullptr;
        for (GroupSlot* each = slots; each != slots + kGroupSlots; ++each) {
            const bool isTaken = each->members != 0;
            if (isTaken && isNamed(each, name)) {
                if (each->members == members) return take(each);
                if (isUsed(each)) return refuse(Attachment::otherElements);
                return renew(each, name);
            }
            const bool isBetter = free == nullptr || (free->members != 0 && !isTaken);
            if (isBetter && !isUsed(each)) free = each;
        }
        if (free == nullptr) return refuse(Attachment::noSlot);
        renew(free, name);
    }
    void renew(GroupSlot* each, std::string_view name) {
        __atomic_store_n(&each->members, 0U, __ATOMIC_RELEASE);
        __atomic_store_n(&each->sequence, 0U, __ATOMIC_RELEASE);
        std::memset(each->name, 0, sizeof each->name);
        std::memcpy(each->name, name.data(), name.size());
        __atomic_store_n(&each->members, members, __ATOMIC_RELEASE);
        take(each);
    }
    void take(GroupSlot* each) {
        slot = each;
        result = Attachment::attached;
    }
    void refuse(Attachment why) { result = why; }
};

// Never 0.
constexpr std::uint32_t fingerprint(std::initializer_list<std::size_t> numbers) {
    std::uint32_t hash = 2166136261U;
    for (const std::size_t number : numbers)
        hash = (hash ^ static_cast<std::uint32_t>(number)) * 16777619U;
    return hash | 1U;
}

} // namespace detail

inline double Reading::age() const {
    return static_cast<double>(detail::monotonic() - written) / 1e9;
}

} // namespace talux

#endif
