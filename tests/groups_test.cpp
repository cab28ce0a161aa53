// Groups between processes: none torn, writers kept apart, and what a dead or a stopped writer leaves.
#include "talux/talux.hpp"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sched.h>
#include <string>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace talux;

namespace {

constexpr Measured<float> kFirst{"U1_prim"};

// Between the elements of their group others get their turn, or writers a signal.
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

struct Groups : testing::Test {
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
    // Which signal has ended or stopped a child.
    static int signalOf(pid_t child) {
        int status = 0;
        waitpid(child, &status, WUNTRACED);
        return WIFSTOPPED(status) ? WSTOPSIG(status) : WTERMSIG(status);
    }
    // A writer that gets this signal inside.
    void startBlow(int signal) {
        start([this, signal] {
            blow = signal;
            std::ignore = write(1);
        });
        EXPECT_EQ(signalOf(children.back()), signal);
    }
};

// With TALUX_GROUP_READS that many reads while one writer writes without a pause.
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
            while (!read() || values.hangTogether()) {
            }
        });
    long torn = 0, done = 0, missed = 0, seen = 0;
    for (int last = 0; missed <= reads / 4 && done < 1000 * reads && (done < reads || seen < kWritesSeen);
         ++done)
        if (!read())
            ++missed;
        else {
            torn += values.hangTogether() ? 0 : 1;
            seen += std::exchange(last, values.record.Cnt) == values.record.Cnt ? 0 : 1;
        }
    EXPECT_EQ(torn, 0) << "with values of two writes";
    EXPECT_EQ(waitpid(children.back(), nullptr, WNOHANG), 0) << "torn for the other reader";
    EXPECT_GE(seen, kWritesSeen);
    EXPECT_LE(missed, reads / 4);
    std::printf("%ld reads, %ld not whole, %ld writes seen\n", done, missed, seen);
}

TEST_F(Groups, OutliveAWriterThatDiesInside) {
    const Reading last = read();
    startBlow(SIGKILL);
    EXPECT_EQ(read(), Reading::broken);
    EXPECT_FALSE(group.wait(last, 20)) << "nothing whole to read";
    EXPECT_TRUE(write(2));
    EXPECT_EQ(read(), Reading::whole);
    EXPECT_TRUE(values.hangTogether());
}

// Writers under a timer of 1 ms wait for each other, but only a tenth of a second for one who stays inside.
TEST_F(Groups, WaitTheirTimeWhateverSignalsArrive) {
    std::signal(SIGALRM, [](int) {});
    const itimerval everyMillisecond{{0, 1000}, {0, 1000}}, never{};
    start([this] {
        while (write(1))
            pause();
    });
    setitimer(ITIMER_REAL, &everyMillisecond, nullptr);
    int refused = 0;
    for (int number = 0; number < 60; ++number)
        refused += write(number) ? 0 : 1;
    EXPECT_EQ(refused, 0);
    startBlow(SIGSTOP);
    kill(children[0], SIGKILL); // who has written before
    EXPECT_EQ(signalOf(children[0]), SIGKILL);
    EXPECT_EQ(read(), Reading::busy);
    const std::int64_t before = detail::monotonic();
    EXPECT_FALSE(write(2));
    const auto waited = detail::monotonic() - before;
    EXPECT_GE(waited, 100000000);
    EXPECT_LT(waited, 400000000);
    setitimer(ITIMER_REAL, &never, nullptr);
    std::signal(SIGALRM, SIG_DFL);
    kill(children[1], SIGCONT);
    waitpid(children[1], nullptr, 0);
    EXPECT_EQ(read(), Reading::whole);
    EXPECT_EQ(values.record.Cnt, 1);
}

TEST_F(Groups, SayWhichWriteTheyReadAndHowOldItIs) {
    const Group fresh("fresh", kFirst);
    float value = 7;
    const Reading none = fresh.read(value);
    EXPECT_EQ(none, Reading::unwritten);
    EXPECT_EQ(value, 7);
    EXPECT_FALSE(fresh.wait(none, 20));
    start([&] {
        const Group same("fresh", kFirst);
        for (float each = 1;; ++each) {
            usleep(20000);
            std::ignore = same.write(each);
        }
    });
    Reading last = none;
    for (int k = 0; k < 9; ++k) {
        ASSERT_TRUE(fresh.wait(last, 5000));
        const Reading reading = fresh.read(value);
        ASSERT_EQ(reading, Reading::whole);
        EXPECT_GT(reading.number(), last.number());
        EXPECT_EQ(static_cast<float>(reading.number()), 2 * value) << "the counter moves by 2 a write";
        EXPECT_LT(reading.age(), 5);
        last = reading;
    }
    kill(children.back(), SIGKILL);
    EXPECT_EQ(signalOf(children.back()), SIGKILL);
    last = fresh.read(value);
    EXPECT_FALSE(fresh.wait(last, 50));
    EXPECT_GE(fresh.read(value).age(), 0.05);

    const int segment = shmget(detail::kGroupsKey, 0, 0);
    shmid_ds memory{};
    semid_ds semaphores{};
    shmctl(segment, IPC_STAT, &memory);
    semctl(semget(detail::kGroupsKey, 0, 0), 0, IPC_STAT, &semaphores);
    EXPECT_EQ(memory.shm_perm.mode & semaphores.sem_perm.mode & 0777, 0666) << "every user may write";
    auto* const slots = static_cast<detail::GroupSlot*>(shmat(segment, nullptr, 0));
    for (auto* each = slots; each != slots + detail::kGroupSlots; ++each)
        if (std::strcmp(each->name, "fresh") == 0) each->sequence = 0xFFFFFFFE;
    shmdt(slots);
    EXPECT_TRUE(fresh.write(1) && fresh.wait(last, -1)) << "the counter turns";
    last = fresh.read(value);
    EXPECT_EQ(last.number(), 2U) << "0 means that nobody has written";

    std::signal(SIGALRM, [](int) {});
    for (int sleeper = 0; sleeper < 3; ++sleeper) // one write wakes them all, a signal none
        start([&] {
            const std::int64_t before = detail::monotonic();
            const bool isWoken = fresh.wait(last, 4000) && detail::monotonic() - before < 3000000000;
            std::raise(isWoken ? SIGKILL : SIGABRT);
        });
    usleep(200000);
    std::for_each(children.end() - 3, children.end(), [](pid_t child) { kill(child, SIGALRM); });
    usleep(50000);
    std::signal(SIGALRM, SIG_DFL);
    EXPECT_TRUE(fresh.write(1));
    for (auto child = children.end() - 3; child != children.end(); ++child)
        EXPECT_EQ(signalOf(*child), SIGKILL);
}

TEST_F(Groups, HaveOneMeaningPerName) {
    float value = 0;
    const auto attachment = [](std::string_view name, auto... parts) {
        return Group(name, parts...).attachment();
    };
    EXPECT_EQ(attachment("other", kFirst), Attachment::attached);
    const auto doubles = Measured<double>{"vMWR"}.run<96>();
    EXPECT_EQ(attachment("group", doubles, Stumble{}, kFirst.run<92>(), Record<MessRecord01>{}),
              Attachment::otherElements);
    EXPECT_EQ(Group("group", kFirst).read(value), Reading::detached);
    EXPECT_FALSE(Group("group", kFirst).write(1) || Group("group", kFirst).wait(Reading::detached, 1));
    for (const std::size_t bytes : {0U, 1U, 54U, 55U, 56U, 57U})
        EXPECT_EQ(attachment(std::string(bytes, 'x'), kFirst),
                  bytes < 1 || bytes > 55 ? Attachment::wrongName : Attachment::attached)
            << bytes;
    EXPECT_EQ(Group("", kFirst).read(value), Reading::detached);
    const Group longest(std::string(55, 'x'), kFirst);
    EXPECT_EQ(attachment(std::string(55, 'x'), kFirst.run<2>()), Attachment::otherElements);
    EXPECT_EQ(attachment(std::string(54, 'x') + 'y', kFirst.run<2>()), Attachment::attached);
    EXPECT_EQ(attachment(std::string(3, '\0'), kFirst), Attachment::wrongName);
    auto early = std::make_unique<Group<Measured<float>>>("early", kFirst);
    start([&] { // a child has not counted it; what it gave back would be taken back at its end
        early.reset();
        std::raise(SIGSTOP);
    });
    EXPECT_EQ(signalOf(children.back()), SIGSTOP);
    EXPECT_EQ(attachment("early", kFirst.run<2>()), Attachment::otherElements);
    const Group two("runs", kFirst.run<2>());
    EXPECT_EQ(attachment("run", kFirst), Attachment::attached);
    EXPECT_EQ(attachment("runs", kFirst.run<3>()), Attachment::otherElements);
    EXPECT_EQ(attachment("runs", Measured<float>{"U2_prim"}.run<2>()), Attachment::otherElements);
}

// A name may be used for other elements, and a slot for another group, once no program uses it.
TEST_F(Groups, AreTakenAgainWhenNobodyUsesThem) {
    float value = 0;
    {
        const Group before("release", kFirst);
        EXPECT_TRUE(Group("release", kFirst).write(1)) << "whose end leaves it to the other";
        EXPECT_EQ(Group("release", kFirst.run<2>()).attachment(), Attachment::otherElements);
        EXPECT_EQ(before.read(value), Reading::whole);
    }
    EXPECT_TRUE(Group("between", kFirst).attached()) << "which takes a fresh slot";
    EXPECT_EQ(Group("release", kFirst).read(value), Reading::whole)
        << "the same elements find their slot again";
    const Group after("release", kFirst.run<2>());
    std::array<float, 2> values_after{};
    EXPECT_EQ(after.read(values_after), Reading::unwritten);

    start([] {
        std::vector<std::unique_ptr<Group<Measured<float>>>> all;
        while (all.empty() || all.back()->attached())
            all.push_back(std::make_unique<Group<Measured<float>>>(std::to_string(all.size()), kFirst));
        const bool isFull = all.size() > 60 && all.back()->attachment() == Attachment::noSlot;
        std::raise(isFull ? SIGKILL : SIGABRT);
    });
    EXPECT_EQ(signalOf(children.back()), SIGKILL);
    for (int number = 100; number < 200; ++number)
        ASSERT_TRUE(Group(std::to_string(number), kFirst).attached()) << number;
    const Group one("x", kFirst), same("x", kFirst); // shorter than the names before
    EXPECT_TRUE(one.write(5) && same.read(values_after[0]));
    EXPECT_TRUE(read());
}

TEST_F(Groups, SayThatTheSystemGivesNoSlot) {
    const auto attachment = [] { return Group("other", kFirst).attachment(); };
    const auto semaphores = [](int count) { return semget(detail::kGroupsKey, count, IPC_CREAT | 0600); };
    semctl(semaphores(0), 0, IPC_RMID);
    semaphores(1);
    EXPECT_TRUE(attachment() == Attachment::system && !write(1)) << "too few for all slots";
    semctl(semaphores(0), 0, IPC_RMID);
    EXPECT_EQ(attachment(), Attachment::attached);
    semctl(semaphores(0), detail::kClaims, SETVAL, 1);
    EXPECT_EQ(attachment(), Attachment::system) << "somebody stays inside";
    semctl(semaphores(0), detail::kClaims, SETVAL, 0);
    const int segment = shmget(detail::kGroupsKey, 0, 0);
    shmid_ds memory{};
    shmctl(segment, IPC_STAT, &memory);
    const auto allow = [&](unsigned short mode) {
        memory.shm_perm.mode = mode;
        return shmctl(segment, IPC_SET, &memory);
    };
    EXPECT_EQ(allow(0600), 0);
    start([&] { // another user, where there is one
        const bool isOther = setuid(65534) == 0;
        std::raise(!isOther || (attachment() == Attachment::system && errno == EACCES) ? SIGKILL : SIGABRT);
    });
    EXPECT_EQ(signalOf(children.back()), SIGKILL);
    EXPECT_EQ(allow(0666), 0);
}

} // namespace
