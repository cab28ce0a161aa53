// Every accessor of values as one table, so that tests treat all members alike.
#ifndef TALUX_TEST_STOREMEMBERS_H
#define TALUX_TEST_STOREMEMBERS_H

#include "Store.h"

namespace talux_test {

// The members of one kind, in the order of kBlocks; index 0 works on the temporary space, 1 on the global
// one.
struct Member {
    const char* name;
    void (*set[2])(int id, void* value);
    void (*get[2])(int id, void* value);
    void (*setRun[2])(int id, void* values, unsigned long count);
    void (*getRun[2])(int id, void* values, unsigned long count);
};

template <auto function, typename Value>
void byValue(int id, void* value) {
    Value number;
    std::memcpy(&number, value, sizeof number);
    function(id, number);
}
template <auto function, typename Value>
void byPointer(int id, void* value) {
    function(id, static_cast<Value*>(value));
}
template <auto function, typename Value>
void byRun(int id, void* values, unsigned long count) {
    function(id, static_cast<Value*>(values), count);
}

// The functions in pairs, one for each space.
template <typename Value, auto set0, auto set1, auto get0, auto get1, auto setRun0, auto setRun1,
          auto getRun0, auto getRun1>
constexpr Member numbers(const char* name) {
    return {name,
            {byValue<set0, Value>, byValue<set1, Value>},
            {byPointer<get0, Value>, byPointer<get1, Value>},
            {byRun<setRun0, Value>, byRun<setRun1, Value>},
            {byRun<getRun0, Value>, byRun<getRun1, Value>}};
}
template <auto set0, auto set1, auto get0, auto get1>
constexpr Member texts(const char* name) {
    return {name,
            {byPointer<set0, char>, byPointer<set1, char>},
            {byPointer<get0, char>, byPointer<get1, char>},
            {},
            {}};
}

#define TALUX_PAIR(Verb, Rest) Verb##Rest, Verb##Global##Rest
#define TALUX_NUMBERS(Name, Type)                                                                            \
    numbers<Type, TALUX_PAIR(VarSet, Name##Value), TALUX_PAIR(VarGet, Name##Value),                          \
            TALUX_PAIR(VarSet, Name##ValueArray), TALUX_PAIR(VarGet, Name##ValueArray)>(#Name)
#define TALUX_TEXTS(Name) texts<TALUX_PAIR(VarSet, Name##Value), TALUX_PAIR(VarGet, Name##Value)>(#Name)

inline constexpr Member kMembers[] = {
    TALUX_NUMBERS(Float, float),
    TALUX_NUMBERS(Double, double),
    TALUX_NUMBERS(Long, VarLong),
    TALUX_NUMBERS(Int, short),
    TALUX_NUMBERS(Bool, char),
    TALUX_TEXTS(Text),
    TALUX_NUMBERS(Enum, short),
    TALUX_TEXTS(Date),
    TALUX_TEXTS(Time),
    TALUX_TEXTS(SysDate),
    TALUX_TEXTS(SysTime),
    TALUX_TEXTS(Id),
    TALUX_TEXTS(Ip),
};

#undef TALUX_PAIR
#undef TALUX_NUMBERS
#undef TALUX_TEXTS

} // namespace talux_test

#endif
