#include "bench/Bare.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <pthread.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/store/Kinds.h"

namespace bare {

namespace {

using talux::Kind;
using talux::kKindCount;

// Locks with priority inheritance, one per kind and space.
struct Locks {
    std::array<pthread_mutex_t, kKindCount> of{};

    Locks() {
        pthread_mutexattr_t attributes;
        pthread_mutexattr_init(&attributes);
        pthread_mutexattr_setprotocol(&attributes, PTHREAD_PRIO_INHERIT);
        for (pthread_mutex_t& lock : of)
            pthread_mutex_init(&lock, &attributes);
        pthread_mutexattr_destroy(&attributes);
    }
};
Locks tempLocks, globalLocks;

class Guard {
public:
    Guard(Locks& locks, Kind kind) : lock(locks.of[static_cast<std::size_t>(kind)]) {
        pthread_mutex_lock(&lock);
    }
    ~Guard() { pthread_mutex_unlock(&lock); }
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

private:
    pthread_mutex_t& lock;
};

struct Entry {
    std::string_view name;
    Kind kind = Kind::None;
    int type = 0;
    std::size_t offset = 0, slot = 0; // in a value space
    bool isSetting = false, isInFile = false, isText = false;
    double least = 0, most = 0;

    char* temp() const { return reinterpret_cast<char*>(pVarTemp) + offset; }
    char* global() const { return reinterpret_cast<char*>(pVarGlobal) + offset; }
};

std::vector<Entry> entries; // in table order

// Hash and displace: every name has a slot of its own, found with one look.
class PerfectHash {
public:
    void build() {
        std::vector<std::vector<const Entry*>> buckets(kBuckets);
        for (const Entry& entry : entries)
            buckets[bucketOf(hash(entry.name))].push_back(&entry);
        std::vector<std::size_t> order(kBuckets);
        for (std::size_t k = 0; k < kBuckets; ++k)
            order[k] = k;
        std::ranges::sort(order, [&](auto a, auto b) { return buckets[a].size() > buckets[b].size(); });
        for (const std::size_t bucket : order)
            while (!place(buckets[bucket], displacements[bucket]))
                ++displacements[bucket];
    }

    const Entry* find(std::string_view name) const {
        const std::uint64_t code = hash(name);
        const Entry* const entry = slots[slotOf(code, displacements[bucketOf(code)])];
        return entry != nullptr && strncasecmp(entry->name.data(), name.data(), name.size()) == 0 &&
                       entry->name.size() == name.size()
                   ? entry
                   : nullptr;
    }

private:
    static constexpr std::size_t kBuckets = 512, kSlots = 2048;
    std::array<std::uint32_t, kBuckets> displacements{};
    std::array<const Entry*, kSlots> slots{};

    static std::uint64_t hash(std::string_view name) {
        std::uint64_t code = 14695981039346656037U;
        for (const char c : name)
            code = (code ^ (static_cast<unsigned char>(c) | 0x20U)) * 1099511628211U;
        return code ^ (code >> 29);
    }
    static std::size_t bucketOf(std::uint64_t code) { return code % kBuckets; }
    static std::size_t slotOf(std::uint64_t code, std::uint32_t displacement) {
        return ((code >> 20) + displacement * ((code >> 40) | 1)) % kSlots;
    }

    bool place(const std::vector<const Entry*>& bucket, std::uint32_t displacement) {
        std::vector<std::size_t> taken;
        for (const Entry* const entry : bucket) {
            const std::size_t slot = slotOf(hash(entry->name), displacement);
            if (slots[slot] != nullptr || std::ranges::find(taken, slot) != taken.end()) return false;
            taken.push_back(slot);
        }
        for (std::size_t k = 0; k < bucket.size(); ++k)
            slots[taken[k]] = bucket[k];
        return true;
    }
};
PerfectHash names;

const Entry& known(std::string_view name) {
    const Entry* const entry = names.find(name);
    if (entry == nullptr) std::abort();
    return *entry;
}

template <typename Stored>
Stored from(const char* bytes) {
    Stored value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

template <typename Stored>
void to(char* bytes, double number) {
    const auto value = static_cast<Stored>(number);
    std::memcpy(bytes, &value, sizeof value);
}

double numberIn(const Entry& entry, const char* bytes) {
    switch (entry.kind) {
    case Kind::Float:
        return from<float>(bytes);
    case Kind::Double:
        return from<double>(bytes);
    case Kind::Long:
        return from<std::int32_t>(bytes);
    case Kind::Bool:
        return from<std::uint8_t>(bytes);
    default:
        return from<std::int16_t>(bytes);
    }
}

void putNumber(const Entry& entry, char* bytes, double number) {
    switch (entry.kind) {
    case Kind::Float:
        return to<float>(bytes, number);
    case Kind::Double:
        return to<double>(bytes, number);
    case Kind::Long:
        return to<std::int32_t>(bytes, number);
    case Kind::Bool:
        return to<std::uint8_t>(bytes, number);
    default:
        return to<std::int16_t>(bytes, number);
    }
}

void addEntry(const stParamProperties& row) {
    const talux::Type& type = talux::typeOf(row);
    if (!talux::holds(type.kind, row.id) || type.kind == Kind::Struct) return;
    const talux::Block& block = talux::blockOf(type.kind);
    Entry entry;
    entry.name = row.name;
    entry.kind = type.kind;
    entry.type = row.type;
    entry.slot = block.slotSize;
    entry.offset = block.offset + static_cast<std::size_t>(row.id - block.first) * block.slotSize;
    entry.isSetting = row.is_volatile == 0;
    entry.isInFile = entry.isSetting && row.userlevel <= 2 && !talux::isAddress(row);
    entry.isText = talux::isText(row);
    entry.least = row.val_min;
    entry.most = row.val_max;
    entries.push_back(entry);
}

// ---- Files --------------------------------------------------------------------------------------------

void loadLine(std::string_view line) {
    constexpr std::string_view kPrefix = "TLX_";
    const std::size_t equals = line.find('=');
    if (!line.starts_with(kPrefix) || equals == std::string_view::npos) return;
    const Entry* const entry = names.find(line.substr(kPrefix.size(), equals - kPrefix.size()));
    if (entry == nullptr || !entry->isSetting) return;
    std::string_view value = line.substr(equals + 1);
    if (value.starts_with('"')) {
        value = value.substr(1, value.size() - 2);
        value = value.substr(0, entry->slot - 1);
        const Guard guard(tempLocks, entry->kind);
        std::memcpy(entry->temp(), value.data(), value.size());
        std::memset(entry->temp() + value.size(), 0, entry->slot - value.size());
        return;
    }
    double number = 0;
    std::from_chars(value.data(), value.data() + value.size(), number);
    const Guard guard(tempLocks, entry->kind);
    putNumber(*entry, entry->temp(), number);
}

char* append(char* place, std::string_view text) {
    return std::copy(text.begin(), text.end(), place);
}

char* appendValue(char* place, char* end, const Entry& entry) {
    char slot[kTextSize];
    {
        const Guard guard(globalLocks, entry.kind);
        std::memcpy(slot, entry.global(), entry.slot);
    }
    if (entry.isText) {
        *place++ = '"';
        place = append(place, {slot, strnlen(slot, entry.slot)});
        *place++ = '"';
        return place;
    }
    const double number = numberIn(entry, slot);
    if (entry.kind == Kind::Float || entry.kind == Kind::Double)
        return std::to_chars(place, end, number, std::chars_format::fixed, 6).ptr;
    return std::to_chars(place, end, static_cast<int>(number)).ptr;
}

char contents[256 * 1024];

} // namespace

void prepare() {
    for (int position = 1; const stParamProperties* row = GetParamPropertiesByOrder(position); ++position)
        if (row->val_min_id == 0 || position == 1 ||
            std::strcmp(row->name, GetParamPropertiesByOrder(position - 1)->name) != 0)
            addEntry(*row);
    names.build();
}

void read(const char* line, char* answer) {
    const Entry& entry = known(line + 4);
    char slot[8];
    {
        const Guard guard(entry.isSetting ? tempLocks : globalLocks, entry.kind);
        std::memcpy(slot, entry.isSetting ? entry.temp() : entry.global(), entry.slot);
    }
    *std::to_chars(answer, answer + 63, numberIn(entry, slot), std::chars_format::fixed, 6).ptr = '\0';
}

void write(const char* line) {
    const char* const equals = std::strchr(line, '=');
    const Entry& entry = known({line + 4, equals});
    double number = 0;
    std::from_chars(equals + 1, equals + 1 + std::strlen(equals + 1), number);
    if (number < entry.least || number > entry.most) std::abort();
    const Guard guard(entry.isSetting ? tempLocks : globalLocks, entry.kind);
    putNumber(entry, entry.isSetting ? entry.temp() : entry.global(), number);
}

void readLongs(const char* name, int* values, int count) {
    const Entry& entry = known(name);
    const Guard guard(globalLocks, entry.kind);
    std::memcpy(values, entry.global(), static_cast<std::size_t>(count) * sizeof *values);
}

void commit() {
    for (const Entry& entry : entries) {
        if (!entry.isSetting) continue;
        char slot[kTextSize];
        {
            const Guard guard(tempLocks, entry.kind);
            std::memcpy(slot, entry.temp(), entry.slot);
        }
        const Guard guard(globalLocks, entry.kind);
        std::memcpy(entry.global(), slot, entry.slot);
    }
}

void load(const char* path) {
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    const ssize_t size = ::read(file, contents, sizeof contents);
    close(file);
    std::string_view rest(contents, size < 0 ? 0 : static_cast<std::size_t>(size));
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size() - 1);
        loadLine(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    commit();
}

void save(const char* path) {
    char* place = contents;
    for (const Entry& entry : entries) {
        if (!entry.isInFile) continue;
        place = append(append(append(place, "TLX_"), entry.name), "=");
        place = appendValue(place, contents + sizeof contents, entry);
        *place++ = '\n';
    }
    const std::string beside = std::string(path) + ".new";
    const int file = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (::write(file, contents, static_cast<std::size_t>(place - contents)) != place - contents) std::abort();
    close(file);
    std::rename(beside.c_str(), path);
}

} // namespace bare
