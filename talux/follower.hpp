// Settings as a whole: snapshots of the live ones, what differs between two, and a follower that waits for
// the next.
//
//   talux::Follower follower;
//   float limit = follower.settings()[threshold];
//   for (;;) {
//       if (!follower.wait(1000)) continue;
//       for (const talux::Difference change : follower.changes())
//           if (change == threshold) limit = follower.settings()[threshold];
//   }
//
// A follower needs nothing from the programs that change settings. It compares the live space with its copy,
// so it also sees the work of programs that know nothing of it.
#ifndef TALUX_FOLLOWER_HPP
#define TALUX_FOLLOWER_HPP

#include <algorithm>
#include <array>
#include <iterator>

#include "talux/clock.hpp"
#include "talux/handles.hpp"

namespace talux {

namespace detail {

// Where the value of a setting lies in a value space.
struct SettingBytes {
    std::uint16_t id, offset, size;
};

constexpr SettingBytes bytesOf(table::Kind kind, int id) {
    const auto at = [id](int first, std::size_t offset, std::size_t size) {
        const auto element = static_cast<std::size_t>(id - first);
        return SettingBytes{static_cast<std::uint16_t>(id),
                            static_cast<std::uint16_t>(offset + element * size),
                            static_cast<std::uint16_t>(size)};
    };
    switch (kind) {
    case table::Kind::f32:
        return at(kFirstFloat, offsetof(stVarSpace, FloatData), sizeof(float));
    case table::Kind::f64:
        return at(kFirstDouble, offsetof(stVarSpace, DoubleData), sizeof(double));
    case table::Kind::i32:
        return at(kFirstLong, offsetof(stVarSpace, LongData), sizeof(std::int32_t));
    case table::Kind::i16:
        return at(kFirstInt, offsetof(stVarSpace, IntData), sizeof(std::int16_t));
    case table::Kind::flag:
        return at(kFirstBool, offsetof(stVarSpace, BoolData), 1);
    case table::Kind::choice:
        return at(kFirstEnum, offsetof(stVarSpace, EnumData), sizeof(std::int16_t));
    case table::Kind::text:
        return at(kFirstText, offsetof(stVarSpace, TextData), kTextSize);
    case table::Kind::identifier:
        return at(kFirstId, offsetof(stVarSpace, IdData), kIdSize);
    case table::Kind::address:
        return at(kFirstIp, offsetof(stVarSpace, IpData), kIpSize);
    case table::Kind::clock:
    case table::Kind::record:
    case table::Kind::command:
        break;
    }
    return {};
}

constexpr bool isFollowed(const table::Row& row) {
    return row.use != table::Use::measured && bytesOf(row.kind, row.id).size != 0;
}

// All settings but the clock, in the order of the value space.
inline constexpr auto kSettings = [] {
    std::array<SettingBytes, std::count_if(std::begin(table::kRows), std::end(table::kRows), isFollowed)>
        all{};
    auto next = all.begin();
    for (const table::Row& row : table::kRows)
        if (isFollowed(row)) *next++ = bytesOf(row.kind, row.id);
    std::sort(all.begin(), all.end(),
              [](const SettingBytes& a, const SettingBytes& b) { return a.offset < b.offset; });
    return all;
}();

// The same, adjacent settings as one piece: what a comparison reads.
inline constexpr auto kSettingPieces = [] {
    struct Pieces {
        std::array<SettingBytes, kSettings.size()> all{};
        std::size_t count = 0;
        constexpr const SettingBytes* begin() const { return all.data(); }
        constexpr const SettingBytes* end() const { return all.data() + count; }
    } pieces;
    for (const SettingBytes& each : kSettings) {
        SettingBytes* const last = pieces.count == 0 ? nullptr : &pieces.all[pieces.count - 1];
        if (last != nullptr && last->offset + last->size == each.offset)
            last->size = static_cast<std::uint16_t>(last->size + each.size);
        else
            pieces.all[pieces.count++] = each;
    }
    return pieces;
}();

inline bool agree(const stVarSpace& a, const stVarSpace& b) {
    const auto* const left = reinterpret_cast<const char*>(&a);
    const auto* const right = reinterpret_cast<const char*>(&b);
    for (const SettingBytes& piece : kSettingPieces)
        if (std::memcmp(left + piece.offset, right + piece.offset, piece.size) != 0) return false;
    return true;
}

} // namespace detail

// A setting that differs between two snapshots: compare it with handles, or ask for its id.
class Difference {
public:
    constexpr explicit Difference(int parameterId) : number(parameterId) {}

    [[nodiscard]] constexpr int id() const { return number; }

    // The name, from the dictionary.
    [[nodiscard]] const char* name() const { return GetParamProperties(number)->name; }

    template <class Value>
    friend constexpr bool operator==(Difference difference, const Setting<Value>& setting) {
        return difference.number == setting.id();
    }

private:
    int number;
};

// The settings in which two snapshots differ, for a range-for; both must live as long.
class Differences {
public:
    class iterator {
    public:
        iterator(const Differences& differences, const detail::SettingBytes* start)
            : both(differences), at(start) {
            toNext();
        }
        Difference operator*() const { return Difference(at->id); }
        iterator& operator++() {
            ++at;
            toNext();
            return *this;
        }
        friend bool operator==(const iterator& left, const iterator& right) { return left.at == right.at; }

    private:
        const Differences& both;
        const detail::SettingBytes* at;

        void toNext() {
            while (at != kEnd && std::memcmp(both.a + at->offset, both.b + at->offset, at->size) == 0)
                ++at;
        }
    };

    Differences(const stVarSpace& left, const stVarSpace& right)
        : a(reinterpret_cast<const char*>(&left)), b(reinterpret_cast<const char*>(&right)) {}

    [[nodiscard]] iterator begin() const { return {*this, detail::kSettings.data()}; }
    [[nodiscard]] iterator end() const { return {*this, kEnd}; }
    [[nodiscard]] bool empty() const { return begin() == end(); }

private:
    static constexpr const detail::SettingBytes* kEnd = detail::kSettings.data() + detail::kSettings.size();

    const char *a, *b;
};

// A snapshot of settings: one copy of the space, 19500 bytes.
class Settings {
public:
    // What is live now. A running commit can be seen half done; a Follower never returns that.
    Settings() : Settings(*pVarGlobal) {}

    // Those of a space in other memory.
    explicit Settings(const stVarSpace& from) { std::memcpy(space.data(), &from, sizeof from); }

    // The value that a setting had.
    template <class Value>
    [[nodiscard]] Value operator[](const Setting<Value>& setting) const {
        const auto bytes = detail::bytesOf(table::kindOf<Value>(), setting.id());
        const char* const from = reinterpret_cast<const char*>(space.data()) + bytes.offset;
        if constexpr (detail::kIsText<Value>) {
            return Value(std::string_view(from, strnlen(from, bytes.size)));
        } else if constexpr (std::is_same_v<Value, bool>) {
            return *from != 0;
        } else {
            Value value;
            static_assert(sizeof value == sizeof(typename detail::AccessorsOf<Value>::Raw) ||
                          std::is_integral_v<Value>);
            std::memcpy(&value, from, bytes.size);
            return value;
        }
    }

    [[nodiscard]] Differences changes(const Settings& other) const { return {space[0], other.space[0]}; }

    // Whether all settings agree, in about a microsecond.
    friend bool operator==(const Settings& a, const Settings& b) {
        return detail::agree(a.space[0], b.space[0]);
    }

private:
    friend class Follower;

    std::array<stVarSpace, 1> space; // compilers dislike one alone, which has members of no length

    [[nodiscard]] bool isLive() const { return detail::agree(space[0], *pVarGlobal); }
    [[nodiscard]] bool isStaged() const { return detail::agree(space[0], *pVarTemp); }
};

// Gives one settled snapshot of the live settings after another. For one thread; three snapshots of memory.
//
// A commit makes settings live one by one, and does not report when it is done. Settings are settled when two
// looks in a row agree and nothing is pending (the working copy is the same, so no commit can have more to
// do), else when all looks for a quarter of a second agree. A program that is stopped inside a commit for
// longer while something else is pending can still be seen half.
class Follower {
public:
    // `wait` compares every so many milliseconds, at least 1. The constructor waits up to half a second for
    // settled settings.
    explicit Follower(int periodMilliseconds = 10)
        : period(std::max(periodMilliseconds, 1) * std::int64_t{1000000}) {
        const std::int64_t end = detail::monotonic() + 500000000;
        while (!isSettled() && detail::monotonic() < end)
            detail::sleepFor(1000000);
        adopt();
        previous = current;
    }

    // The last settled settings, and those before them.
    [[nodiscard]] const Settings& settings() const { return current; }
    [[nodiscard]] const Settings& before() const { return previous; }
    [[nodiscard]] Differences changes() const { return current.changes(previous); }

    // Compares once, without waiting. True when other settings than the last ones are settled; `settings`
    // then returns them.
    [[nodiscard]] bool poll() {
        if (current.isLive()) {
            isWatching = false;
            return false;
        }
        if (!isSettled()) return false;
        previous = current;
        adopt();
        return true;
    }

    // Compares again and again until other settings are settled, for at most `milliseconds`, also if signals
    // arrive.
    [[nodiscard]] bool wait(int milliseconds) {
        const std::int64_t end = detail::monotonic() + std::int64_t{milliseconds} * 1000000;
        while (!poll()) {
            const std::int64_t left = end - detail::monotonic();
            if (left <= 0) return false;
            detail::sleepFor(std::min(left, isWatching ? std::min(period, kSecondLook) : period));
        }
        return true;
    }

private:
    static constexpr std::int64_t kSecondLook = 1000000, kQuiet = 250000000; // nanoseconds

    std::int64_t period;
    bool isWatching = false;
    std::int64_t since = 0; // when `seen` was seen first
    Settings current, previous, seen;

    // Whether the look before this one found the same, and that cannot be half a commit.
    bool isSettled() {
        if (isWatching && seen.isLive()) return seen.isStaged() || detail::monotonic() - since >= kQuiet;
        seen = Settings();
        isWatching = true;
        since = detail::monotonic();
        return false;
    }
    void adopt() {
        current = seen;
        isWatching = false;
    }
};

} // namespace talux

#endif
