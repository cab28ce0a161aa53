// Copies between a slot and the caller's variable, under the lock of the slot's kind and space. The id must
// belong to the kind.
#ifndef TALUX_STORE_SLOTS_H
#define TALUX_STORE_SLOTS_H

#include <atomic>
#include <cstring>

#include "ParamSystem/store/Kinds.h"
#include "ParamSystem/store/Locks.h"

namespace talux {

// Slots of the packed layout may lie at odd addresses: they are bytes, copied in and out.
template <Kind kind, Space space>
char* slotOf(int id) {
    constexpr const Block& block = blockOf(kind);
    // VarInit may attach a segment anew meanwhile.
    const std::atomic_ref pointer(space == Space::global ? pVarGlobal : pVarTemp);
    char* const base = reinterpret_cast<char*>(pointer.load(std::memory_order_relaxed));
    return base + block.offset + static_cast<std::size_t>(id - block.first) * block.slotSize;
}

// A count of 0 is no run, nor is one that ends past the block; no count may wrap around.
template <Kind kind>
constexpr bool isRun(int id, unsigned long count) {
    constexpr const Block& block = blockOf(kind);
    return count > 0 && count <= static_cast<unsigned long>(block.first + block.count - id);
}

template <Kind kind, Space space>
void putNumber(int id, Number<kind> value) {
    static_assert(sizeof value == blockOf(kind).slotSize);
    const Lock<kind, space> lock;
    std::memcpy(slotOf<kind, space>(id), &value, sizeof value);
}

template <Kind kind, Space space>
Number<kind> getNumber(int id) {
    Number<kind> value;
    const Lock<kind, space> lock;
    std::memcpy(&value, slotOf<kind, space>(id), sizeof value);
    return value;
}

template <Kind kind, Space space>
void putRun(int id, const Number<kind>* source, unsigned long count) {
    if (!isRun<kind>(id, count)) return;
    const Lock<kind, space> lock;
    std::memcpy(slotOf<kind, space>(id), source, count * sizeof *source);
}

template <Kind kind, Space space>
void getRun(int id, Number<kind>* dest, unsigned long count) {
    if (!isRun<kind>(id, count)) return;
    const Lock<kind, space> lock;
    std::memcpy(dest, slotOf<kind, space>(id), count * sizeof *dest);
}

// The last byte of a slot is a NUL and is not written. Only a text slot gets it each time, since other
// programs write there, too.
template <Kind kind, Space space>
void putText(int id, const char* text) {
    constexpr std::size_t room = blockOf(kind).slotSize - 1;
    const std::size_t length = strnlen(text, room);
    const Lock<kind, space> lock;
    char* const slot = slotOf<kind, space>(id);
    std::memcpy(slot, text, length);
    std::memset(slot + length, 0, room - length + (kind == Kind::Text ? 1 : 0));
}

// A slot that another program left without a NUL ends at its last byte.
template <Kind kind, Space space>
void getText(int id, char* text) {
    const Lock<kind, space> lock;
    const char* const slot = slotOf<kind, space>(id);
    const std::size_t length = strnlen(slot, blockOf(kind).slotSize - 1);
    std::memcpy(text, slot, length);
    text[length] = '\0';
}

} // namespace talux

#endif
