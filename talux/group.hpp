// Measured values and records that belong together: written and read as one, between processes too.
//
//   talux::Group grid{"grid", phases.run<3>(), talux::Record<talux::MessRecord01>{}};
//
//   if (!grid.write(voltages, record)) log("another writer");
//   if (grid.read(voltages, record) == talux::Reading::whole) use(voltages, record);
//
// The values stay where they are, in the store, so that every other program finds them there. Beside it, in a
// segment of its own that the first program with a group makes, each group has a counter that is odd while a
// writer is inside. A reader takes values between two looks at the counter, and anew when it was odd or
// moved. Writers are kept apart by a semaphore that the kernel gives back when its holder dies. Readers hold
// nothing and keep no writer waiting.
//
// Both sides make the group with the same name and the same elements in the same order. A program that writes
// the values without the group, or in another group, is not noticed.
#ifndef TALUX_GROUP_HPP
#define TALUX_GROUP_HPP

#include <cerrno>
#include <ctime>
#include <initializer_list>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>
#include <tuple>

#include "talux/handles.hpp"

namespace talux {

// What a reader got: values of one write, or
enum class Reading : unsigned char {
    whole,
    busy,     // writers came between all the time, or one stayed inside
    broken,   // a writer died inside; holds until the next write is done
    detached, // the group could not be made
};

namespace detail {

// What all programs with groups share, old and new ones: another layout takes another key. A new segment is
// zero-filled, and its semaphores are 0.
struct GroupSlot {
    static constexpr std::size_t kNameSize = 56;

    std::uint32_t sequence; // odd: a writer is inside, or died there. May wrap around
    std::uint32_t members;  // which elements; 0 when the slot is free, written last
    char name[kNameSize];
};
inline constexpr key_t kGroupsKey = 0x544C5847; // "TLXG": of the segment and of the semaphores
inline constexpr int kGroupSlots = 63; // semaphore k keeps writers of slot k apart, the last one new groups
static_assert(sizeof(GroupSlot) == 64 && offsetof(GroupSlot, members) == 4 && offsetof(GroupSlot, name) == 8);
static_assert(__atomic_always_lock_free(sizeof(std::uint32_t), nullptr)); // between processes, too

// The place of one group in that segment.
class GroupPlace {
public:
    GroupPlace(std::string_view name, std::uint32_t members) {
        if (name.size() >= GroupSlot::kNameSize || name.find('\0') != name.npos)
            stop("talux: the name of a group has 55 characters at most, none of them NUL\n");
        const int segment = shmget(kGroupsKey, kGroupSlots * sizeof(GroupSlot), IPC_CREAT | 0666);
        void* const memory = shmat(segment, nullptr, 0);
        if (reinterpret_cast<std::intptr_t>(memory) == -1) return;
        slots = static_cast<GroupSlot*>(memory);
        semaphores = semget(kGroupsKey, kGroupSlots + 1, IPC_CREAT | 0666);
        if (semaphores == -1 || !enter(kGroupSlots)) return;
        slot = claim(name, members);
        leave(kGroupSlots);
    }
    ~GroupPlace() {
        if (slots != nullptr) shmdt(slots);
    }
    GroupPlace(const GroupPlace&) = delete;
    GroupPlace& operator=(const GroupPlace&) = delete;

    bool attached() const { return slot != nullptr; }

    // Calls `store` as the only writer; false when another one stayed inside.
    template <class Store>
    bool write(Store store) const {
        if (slot == nullptr || !enter(index())) return false;
        const std::uint32_t odd = (__atomic_load_n(&slot->sequence, __ATOMIC_RELAXED) + 1) | 1U;
        __atomic_store_n(&slot->sequence, odd, __ATOMIC_RELAXED);
        __atomic_thread_fence(__ATOMIC_RELEASE); // no value before the counter is odd
        store();
        __atomic_store_n(&slot->sequence, odd + 1, __ATOMIC_RELEASE); // all values before it is even
        leave(index());
        return true;
    }

    // Calls `load` until nobody wrote meanwhile: in nine rounds, each longer than a write takes, with pauses
    // that double from 0.1 ms on, so that a writer gets its turn on a processor with one core; 26 ms in all.
    template <class Load>
    Reading read(Load load) const {
        if (slot == nullptr) return Reading::detached;
        for (int round = 0;; ++round) {
            std::int64_t start = 0;
            do {
                if (isWhole(load)) return Reading::whole;
                if (start == 0) start = now();
            } while (now() - start < 20000);
            if (isAbandoned()) return Reading::broken;
            if (round == 8) return Reading::busy;
            pause(100000L << round);
        }
    }

private:
    GroupSlot* slots = nullptr;
    GroupSlot* slot = nullptr;
    int semaphores = -1;

    unsigned short index() const { return static_cast<unsigned short>(slot - slots); }

    // Loads, and says whether nobody wrote meanwhile. A reader that is stopped inside for a whole turn of the
    // counter, 2^31 writes, would not notice.
    template <class Load>
    bool isWhole(Load& load) const {
        const std::uint32_t before = __atomic_load_n(&slot->sequence, __ATOMIC_ACQUIRE); // no value before
        if (before % 2 == 1) return false;
        load();
        __atomic_thread_fence(__ATOMIC_ACQUIRE); // no value after the second look
        return __atomic_load_n(&slot->sequence, __ATOMIC_RELAXED) == before;
    }

    // Odd with nobody inside.
    bool isAbandoned() const {
        const std::uint32_t seen = __atomic_load_n(&slot->sequence, __ATOMIC_RELAXED);
        return seen % 2 == 1 && semctl(semaphores, index(), GETVAL) == 0 &&
               __atomic_load_n(&slot->sequence, __ATOMIC_RELAXED) == seen;
    }

    static std::int64_t now() { // in nanoseconds
        timespec time;
        clock_gettime(CLOCK_MONOTONIC, &time);
        return std::int64_t{time.tv_sec} * 1000000000 + time.tv_nsec;
    }
    static void pause(long nanoseconds) {
        const timespec time{0, nanoseconds};
        nanosleep(&time, nullptr);
    }

    // Waits until the semaphore is 0, for a tenth of a second, and raises it; the kernel takes that back when
    // the process dies.
    bool enter(unsigned short number) const {
        sembuf raise[] = {{number, 0, 0}, {number, 1, SEM_UNDO}};
        const timespec tenthOfASecond{0, 100000000};
        for (int interrupted = 0; interrupted < 10; ++interrupted) {
            if (semtimedop(semaphores, raise, 2, &tenthOfASecond) == 0) return true;
            if (errno != EINTR) break;
        }
        return false;
    }
    void leave(unsigned short number) const {
        sembuf lower{number, -1, SEM_UNDO | IPC_NOWAIT};
        semop(semaphores, &lower, 1);
    }

    // The group's slot, a new one when it has none; null when its elements are others or all slots are taken.
    GroupSlot* claim(std::string_view name, std::uint32_t members) const {
        for (GroupSlot* each = slots; each != slots + kGroupSlots; ++each) {
            if (each->members == 0) {
                std::memset(each->name, 0, sizeof each->name);
                std::memcpy(each->name, name.data(), name.size());
                __atomic_store_n(&each->members, members, __ATOMIC_RELEASE);
                return each;
            }
            if (name == std::string_view(each->name, strnlen(each->name, sizeof each->name)))
                return each->members == members ? each : nullptr;
        }
        return nullptr;
    }
};

// Never 0.
constexpr std::uint32_t fingerprint(std::initializer_list<std::size_t> numbers) {
    std::uint32_t hash = 2166136261U;
    for (const std::size_t number : numbers)
        hash = (hash ^ static_cast<std::uint32_t>(number)) * 16777619U;
    return hash | 1U;
}

} // namespace detail

// Values that measure something, runs of them, records.
template <class Part>
concept GroupElement = requires(const Part& part, typename Part::Value& value) {
    part.id();
    part.get(value);
    part.set(value);
};

// Made once, before the threads that use it; these may then write and read at once.
template <GroupElement... Elements>
class Group {
public:
    explicit Group(std::string_view groupName, Elements... parts)
        : elements(parts...), place(groupName, detail::fingerprint({static_cast<std::size_t>(parts.id())...,
                                                                    sizeof(typename Elements::Value)...})) {}

    // False when another group has the name, there are 63 groups already, or the system refuses.
    [[nodiscard]] bool attached() const { return place.attached(); }

    // False when nothing was written: the group is not attached, or another writer stayed inside for 0.1 s.
    [[nodiscard]] bool write(const typename Elements::Value&... values) const {
        return place.write(
            [&] { std::apply([&](const Elements&... each) { (each.set(values), ...); }, elements); });
    }

    // What is not whole is not to be used: the variables may hold parts of several writes.
    [[nodiscard]] Reading read(typename Elements::Value&... values) const {
        return place.read(
            [&] { std::apply([&](const Elements&... each) { (each.get(values), ...); }, elements); });
    }

private:
    std::tuple<Elements...> elements;
    detail::GroupPlace place;
};

} // namespace talux

#endif
