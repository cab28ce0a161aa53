// Bad input and bad memory: nothing is read or written outside, nothing is allocated.
#include "KeplLine.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <sys/shm.h>

using namespace talux_test;
using KeplHostile = KeplTest;

static std::size_t allocations = 0;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kCounting = false; // the sanitizer has its own allocator
#else
constexpr bool kCounting = true;
extern "C" {
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void* malloc(std::size_t size) {
    return ++allocations, __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    return ++allocations, __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) {
    return ++allocations, __libc_realloc(memory, size);
}
}
#endif

// The machine's clock and network stay as they are.
extern "C" int system(const char*) {
    return 0;
}
extern "C" int clock_settime(clockid_t, const timespec*) noexcept {
    return 0;
}

namespace {

void fillWithGarbage(std::mt19937& random, int key, std::size_t size) {
    auto* const bytes = static_cast<char*>(shmat(shmget(key, 0, 0), nullptr, 0));
    std::generate_n(bytes, size, [&] { return static_cast<char>(1 + random() % 255); });
    shmdt(bytes);
}

} // namespace

TEST_F(KeplHostile, AllocatesNothing) {
    if (!kCounting) GTEST_SKIP() << "the sanitizer brings its own allocator";
    const std::vector<std::string> lines =
        split("TLX_U1_prim|TLX_U1_prim,1000,/,2,sqrt,*|TLX_Name=text,TLX_Name|TLX_vMWR 1.96 -c|TLX_vMWR "
              "1.96|TLX_conman_status 1.247|TLX_MessRecord01 "
              "-h|TLX_channel=5,TLX_channel|TLX_channel=99|TLX_Date|TLX_Time|TLX_FW_BLOCK=1|TLX_Nobody|1,2,+,"
              "sin|1e300|1,0,/|nonsense|update");
    std::string result(kKeplTextSize + 1, '\0'), terminator = "#";
    for (int round = 0; round < 2; ++round)
        for (std::string text : lines) {
            const std::size_t before = allocations;
            interpreter.ProcessLine(text.data(), collect, result.data(), terminator.data(), 3);
            const std::size_t during = allocations - before;
            EXPECT_TRUE(during == 0 || round == 0) << text; // the first time, libc may read its time zone
        }
    const std::size_t before = allocations;
    void* volatile memory = std::malloc(1);
    std::free(memory);
    ASSERT_GT(allocations, before) << "the count sees nothing";
}

TEST_F(KeplHostile, SurvivesGarbageInTheSpaces) {
    std::mt19937 random(17);
    for (int round = 0; round < 20; ++round) {
        fillWithGarbage(random, kStructSpaceKey, kStructSpaceSize);
        fillWithGarbage(random, kGlobalSpaceKey, sizeof(stVarSpace));
        fillWithGarbage(random, kTempSpaceKey, sizeof(stVarSpace));
        for (int position = 1; const stParamProperties* row = GetParamPropertiesByOrder(position);
             ++position) {
            if (GetParamPropertiesByName(const_cast<char*>(row->name)) != row || *row->name == '\0') continue;
            const std::string range =
                row->val_max_id > 0 ? " 1." + std::to_string(row->val_max_id) + " -h" : "";
            const Outcome outcome = line(std::string("TLX_") + row->name + range);
            ASSERT_EQ(outcome.result, kLineDone) << row->name << range;
            ASSERT_LE(outcome.answer.size(), outcome.answer.starts_with('"') ? 127u + 3 : 2999u) << row->name;
        }
    }
}

// Lines made of pieces of the language, of its corners and of noise.
TEST_F(KeplHostile, SurvivesRandomLines) {
    std::vector<std::string> pieces =
        split("TLX_|LVR_|Name|vBE|vMWR|MessRecord01|Date|Time|channel|ETH0_MASK| 1| 1.96|.|=|==|\"|-| -p| "
              "-c| -h| -|,|,,| "
              "|5|1e999|nan|-0|0x|sqrt|/"
              "|*|+|update|\t|\r\n|\x7f\x80\xff|%s%n|2024-1-1|1:2:3|9999999999|\x01\x02\x1b[0m");
    pieces.insert(pieces.end(), {times(60, "9"), times(200, "a"), times(130, " ")});
    const std::string stems[] = {
        "", "TLX_", "LVR_vBE 3", "TLX_Name=", "1,2", "TLX_channel=7", "TLX_MessRecord01"};
    std::mt19937 random(19);
    int counts[3] = {};
    for (int round = 0; round < 100000; ++round) {
        std::string text = stems[random() % std::size(stems)];
        while (random() % 5 != 0)
            text += pieces[random() % std::size(pieces)];
        const Outcome outcome = line(text, static_cast<int>(random() % 5) - 1);
        ++counts[outcome.result + 1];
        ASSERT_EQ(outcome.result == kLineEmpty, text.empty());
        ASSERT_EQ(outcome.result == kLineError, !outcome.error.empty()) << text;
        ASSERT_TRUE(text.size() <= kKeplMaxLine || outcome == failed(kSyntax));
    }
    EXPECT_GT(std::min(counts[0], counts[2]), 10000);
}
