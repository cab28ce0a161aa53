// Measured values and records that belong together: written and read as one, between processes too.
//
//   talux::Group grid{"grid", phases.run<3>(), talux::Record<talux::MessRecord01>{}};
//
//   if (!grid.write(voltages, record)) log("another writer");
//   if (const auto reading = grid.read(voltages, record)) use(voltages, record, reading.age());
//
// The values stay where they are, in the store, so that every other program finds them there. The counters of
// group_slot.hpp beside it say which of them belong together. Both sides make the group with the same name
// and the same elements in the same order. A program that writes the values without the group, or in another
// group, goes unnoticed.
#ifndef TALUX_GROUP_HPP
#define TALUX_GROUP_HPP

#include <tuple>

#include "talux/group_slot.hpp"
#include "talux/handles.hpp"

namespace talux {

// Values that measure something, runs of them, records.
template <class Part>
concept GroupElement = requires(const Part& part, typename Part::Value& value) {
    part.id();
    part.get(value);
    part.set(value);
};

// Made once, before the threads that use it; these may then write and read at once. A process made by `fork`
// makes its own.
template <GroupElement... Elements>
class Group {
public:
    explicit Group(std::string_view groupName, Elements... parts)
        : elements(parts...), access(groupName, detail::fingerprint({static_cast<std::size_t>(parts.id())...,
                                                                     sizeof(typename Elements::Value)...})) {}

    // Whether the group can be written and read, and why not. A slot belongs to a name and its elements as
    // long as a program uses it; after that a group with other elements may take the name, and when all slots
    // are taken another group the slot.
    [[nodiscard]] Attachment attachment() const { return access.attachment(); }
    [[nodiscard]] bool attached() const { return attachment() == Attachment::attached; }

    // False when nothing was written: the group is not attached, or another writer stayed inside for 0.1 s.
    [[nodiscard]] bool write(const typename Elements::Value&... values) const {
        return access.write(
            [&] { std::apply([&](const Elements&... each) { (each.set(values), ...); }, elements); });
    }

    // Do not use values that are not whole: they may be parts of several writes.
    [[nodiscard]] Reading read(typename Elements::Value&... values) const {
        return access.read(
            [&] { std::apply([&](const Elements&... each) { (each.get(values), ...); }, elements); });
    }

    // Waits until a write after `last` is done, for at most `milliseconds`, also if signals arrive. True
    // when there is one; the next read may find a later one. Writers wake a sleeper only when there is one.
    [[nodiscard]] bool wait(const Reading& last, int milliseconds) const {
        return access.wait(last.number(), milliseconds);
    }

private:
    std::tuple<Elements...> elements;
    detail::GroupAccess access;
};

} // namespace talux

#endif
