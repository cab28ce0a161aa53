// Groups between processes: none torn, writers kept apart, and what a dead or a stopped writer leaves.
#include "talux/talux.hpp"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <sched.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace talux;

namespace {

constexpr Measured<float> kFirst{"U1_prim"};

// What happens to writers and readers between the elements of their group: others get their turn, or a
// signal.
bool restless = true;
int blow = 0;
struct Stumble {
    using Value = int;
    static int id() { return 1; }
    void get(Value& count) const {
        if (restless && ++count % 8 == 0) sched_yield();
    }
    void set(Value /*value*/) const {
        if (blow != 0) std::raise(blow);
        if (restless) sched_yield();
    }
};

// As large as the store allows, so that there is time to be torn.
struct Values {
    std::array<float, 92> floats{};
    std::array<double, 96> doubles{};
    MessRecord01 record{};

    void fill(int number) {
        floats.fill(static_cast<float>(number));
        doubles.fill(number);
        record.TimeStamp = record.Cnt = number;
        record.IscE = static_cast<float>(number);
    }
    bool hangTogether() const {
        const double number = record.Cnt;
        const auto same = [number](auto value) { return value == number; };
        return std::all_of(floats.begin(), floats.end(), same) &&
               std::all_of(doubles.begin(), doubles.end(), same) && record.TimeStamp == record.Cnt &&
               same(record.IscE);
    }
};

class Groups : public testing::Test {
protected:
    Store store;
    Group<talux::Run<float, 92>, Stumble, talux::Run<double, 96>, Record<MessRecord01>> group{
        "group", kFirst.run<92>(), Stumble{}, Measured<double>{"vMWR"}.run<96>(), Record<MessRecord01>{}};
    Values values;
    int readings = 0;
    std::vector<pid_t> children;

    void SetUp() override { ASSERT_TRUE(write(0)); }
    void TearDown() override {
        for (const pid_t child : children) {
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
        }
    }

    bool write(int number) {
        values.fill(number);
        return group.write(values.floats, 0, values.doubles, values.record);
    }
    Reading read() { return group.read(values.floats, readings, values.doubles, values.record); }
    void start(const std::function<void()>& work) {
        const pid_t child = fork();
        if (child != 0) return children.push_back(child);
        work();
        _exit(0);
    }
};

// With TALUX_GROUP_READS as many reads beside one writer in full flight.
TEST_F(Groups, AreNeverTornWhileOthersWrite) {
    const char* const wanted = std::getenv("TALUX_GROUP_READS");
    constexpr long kWritesSeen = 300;
    const long reads = wanted != nullptr ? std::strtol(wanted, nullptr, 10) : 5000;
    restless = wanted == nullptr;
    for (int from = 1; from <= (restless ? 1000001 : 1); from += 1000000)
        start([this, from] {
            for (int number = from;; number = number % 1000000 == 999999 ? from : number + 1)
                std::ignore = write(number);
        });
    if (restless)
        start([this] {
            while (read() != Reading::whole || values.hangTogether()) {
            }
        });
    long done = 0, torn = 0, missed = 0, seen = 0;
    for (int last = 0; missed <= reads / 4 && done < 1000 * reads && (done < reads || seen < kWritesSeen);
         ++done)
        if (read() != Reading::whole)
            ++missed;
        else {
            torn += values.hangTogether() ? 0 : 1;
            seen += std::exchange(last, values.record.Cnt) == values.record.Cnt ? 0 : 1;
        }
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(waitpid(children.back(), nullptr, WNOHANG), 0) << "torn for the other reader";
    EXPECT_GE(seen, kWritesSeen);
    EXPECT_LE(missed, reads / 4);
    std::printf("%ld reads, %ld torn, %ld not whole, %ld writes seen\n", done, torn, missed, seen);
}

TEST_F(Groups, OutliveAWriterThatDiesInside) {
    start([this] {
        blow = SIGKILL;
        write(1);
    });
    int status = 0;
    waitpid(children[0], &status, 0);
    ASSERT_EQ(WTERMSIG(status), SIGKILL);
    EXPECT_EQ(read(), Reading::broken);
    EXPECT_TRUE(write(2));
    EXPECT_EQ(read(), Reading::whole);
    EXPECT_TRUE(values.hangTogether());
}

TEST_F(Groups, TellOfAWriterThatStaysInside) {
    start([this] {
        blow = SIGSTOP;
        write(1);
    });
    waitpid(children[0], nullptr, WUNTRACED);
    EXPECT_EQ(read(), Reading::busy);
    EXPECT_FALSE(write(2));
    kill(children[0], SIGCONT);
    waitpid(children[0], nullptr, 0);
    EXPECT_EQ(read(), Reading::whole);
    EXPECT_EQ(values.record.Cnt, 1);
}

TEST_F(Groups, HaveOneMeaningPerName) {
    Measured<float>::Value value = 0;
    EXPECT_TRUE(Group("other", kFirst).attached());
    EXPECT_FALSE(Group("group", kFirst).attached());
    EXPECT_FALSE(Group("other", kFirst.run<1>(), kFirst).attached());
    EXPECT_EQ(Group("group", kFirst).read(value), Reading::detached);
    EXPECT_FALSE(Group("group", kFirst).write(1));
    int made = 0; // besides those of these tests
    while (Group(std::to_string(made), kFirst).attached())
        ++made;
    EXPECT_GE(made, 60);
    EXPECT_LE(made, 63);
    EXPECT_TRUE(Group("other", kFirst).attached());
    EXPECT_DEATH(Group(std::string(56, 'x'), kFirst), "55 characters");
}

} // namespace
