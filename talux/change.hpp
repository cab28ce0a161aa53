// Several settings as one: all are staged and made live, or none.
//
//   talux::Change change;
//   change.stage(threshold, 35).stage(delay, 0.2).stage(name, "Feeder 7");
//   if (!change.commit())
//       for (const talux::Result& refusal : change.refusals()) log(refusal.text());
#ifndef TALUX_CHANGE_HPP
#define TALUX_CHANGE_HPP

#include <array>
#include <span>

#include "talux/handles.hpp"

namespace talux {

// Takes up to `capacity` settings; 150 bytes each. For one thread.
template <std::size_t capacity = 32>
class ChangeOf {
public:
    // Checks and stores the value; nothing is written yet. A refused value is listed in refusals().
    template <class Value, class Given>
    ChangeOf& stage(const Setting<Value>& setting, Given given) requires(!detail::kIsText<Value>) {
        return add(setting, setting.check(given), [&](Value& value) { value = static_cast<Value>(given); });
    }
    template <class Value>
    ChangeOf& stage(const Setting<Value>& setting, std::string_view text) requires(detail::kIsText<Value>) {
        Value checked;
        const Result result = setting.check(text, checked);
        return add(setting, result, [&](Value& value) { value = checked; });
    }
    template <class Value, table::Kind kind>
    ChangeOf& stage(const Setting<Value>& setting,
                    const StoredText<kind>& text) requires(detail::kIsText<Value>) {
        return stage(setting, text.view());
    }

    // Stages everything and makes it live, with whatever else is pending in the working copy. With a refusal
    // nothing is staged, and the first one is the result, also of a later call: make a new change.
    [[nodiscard]] Result commit() {
        if (refusalCount > 0) return refused[0];
        for (std::size_t k = 0; k < count; ++k)
            writes[k].store(writes[k].id, writes[k].bytes.data());
        count = 0;
        VarUpdateGlobalSpace();
        return {};
    }

    // Everything that was refused, in its order.
    [[nodiscard]] std::span<const Result> refusals() const { return {refused.data(), refusalCount}; }

private:
    struct Write {
        int id;
        void (*store)(int id, const char* bytes);
        std::array<char, kTextSize> bytes;
    };
    std::array<Write, capacity> writes;
    std::array<Result, capacity> refused;
    std::size_t count = 0, refusalCount = 0;

    template <class Value, class Fill>
    ChangeOf& add(const Setting<Value>& setting, Result result, Fill fill) {
        static_assert(sizeof(Value) <= kTextSize && std::is_trivially_copyable_v<Value>);
        if (result && count == capacity) result = Result(Reason::tooMany).of(setting.id());
        if (!result) {
            if (refusalCount < capacity) refused[refusalCount++] = result;
            return *this;
        }
        Value value{};
        fill(value);
        Write& write = writes[count++];
        write.id = setting.id();
        write.store = [](int id, const char* bytes) {
            Value stored;
            std::memcpy(&stored, bytes, sizeof stored);
            detail::write(detail::AccessorsOf<Value>::setStaged, id, stored);
        };
        std::memcpy(write.bytes.data(), &value, sizeof value);
        return *this;
    }
};
using Change = ChangeOf<>;

} // namespace talux

#endif
