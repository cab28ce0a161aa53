// Following settings: every follower ends with the same values and hands out no half commit.
#include "talux/follower.hpp"
#include "talux/talux.hpp"

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace talux;

namespace {

// First and last of the table, so that a half commit has one of them only.
constexpr Setting<float> kThreshold{"Uearth"}, kDelay{"Uearth_SigDel"};
constexpr Setting<Text> kName{"Name"};
constexpr Setting<choice::Language> kLanguage{"Language"};
constexpr Setting<Address> kAddress{"ETH0_IP"};
constexpr Setting<Identifier> kMark{"Kenn"};
constexpr Setting<bool> kActive{"qu2_active"};
constexpr Setting<std::int32_t> kChannel{"channel"};

// Settings that belong together all say the same number.
void stage(int number) {
    ASSERT_TRUE(kThreshold.stage(1 + number % 80) && kDelay.stage(number) &&
                kName.stage(std::to_string(number)));
}
bool hangTogether(const Settings& settings) {
    const auto number = static_cast<int>(settings[kDelay]);
    return settings[kThreshold] == static_cast<float>(1 + number % 80) &&
           settings[kName] == std::to_string(number);
}

struct Followers : testing::Test {
    Store store;

    void SetUp() override {
        store.stage_defaults();
        stage(0);
        store.commit();
    }
};

TEST_F(Followers, SeeWhatChangedAndOnlyThat) {
    Follower follower;
    EXPECT_TRUE(follower.changes().empty());
    EXPECT_FALSE(follower.wait(5));
    Measured<float>{"U0_prim"}.set(12.5f); // no setting
    ASSERT_TRUE(kThreshold.stage(42));
    EXPECT_FALSE(follower.wait(5)) << "pending is not live";
    ASSERT_TRUE(kLanguage.stage(choice::Language::kEnglish) && kAddress.stage("10.1.2.3") &&
                kActive.stage(false) && kMark.stage("x") && kChannel.stage(7));
    store.commit();
    ASSERT_TRUE(follower.wait(2000));
    std::string changed;
    for (const Difference each : follower.changes())
        changed += std::string(each.name()) + (each == kThreshold ? "! " : " ");
    EXPECT_EQ(changed, "Uearth! channel qu2_active Language Kenn ETH0_IP ");
    const Settings& now = follower.settings();
    EXPECT_EQ(std::tuple(follower.before()[kThreshold], now[kThreshold], now[kChannel], now[kActive]),
              std::tuple(1, 42, 7, false));
    EXPECT_TRUE(now[kLanguage] == choice::Language::kEnglish && now[kMark] == "x" &&
                now[kAddress] == "10.1.2.3");
    const std::int64_t before = detail::monotonic();
    EXPECT_FALSE(Follower(20000).wait(5)) << "which ends before its next look";
    EXPECT_LT(detail::monotonic() - before, 10'000'000'000);
}

TEST_F(Followers, LookTwiceAgainAfterAChangeThatWentBack) {
    Follower follower;
    for (const int number : {5, 0, 5}) {
        stage(number);
        store.commit();
        EXPECT_FALSE(follower.poll()) << number;
    }
    EXPECT_TRUE(follower.poll());
}

// Each byte of a value space belongs to one setting, whose change is seen, or to none.
TEST(FollowerSettings, DifferInEachOfTheirBytes) {
    static stVarSpace one{}, other{};
    auto* const bytes = reinterpret_cast<char*>(&other);
    std::vector<int> owners(sizeof other);
    for (const detail::SettingBytes& each : detail::kSettings)
        std::fill_n(owners.begin() + each.offset, each.size, each.id);
    for (std::size_t k = 0; k < owners.size(); ++k) {
        bytes[k] = 1;
        std::vector<int> found;
        for (const Difference difference : Differences(one, other))
            found.push_back(difference.id());
        ASSERT_EQ(found, owners[k] == 0 ? std::vector<int>() : std::vector{owners[k]}) << k;
        ASSERT_EQ(detail::agree(one, other), owners[k] == 0) << k;
        bytes[k] = 0;
    }
}

// With something else pending, the snapshot is settled after a while without changes.
TEST_F(Followers, DoNotWaitForWhatStaysPending) {
    Follower follower;
    stage(5);
    store.commit();
    ASSERT_TRUE(kChannel.stage(3)); // pending for ever
    const auto start = talux::detail::monotonic();
    ASSERT_TRUE(follower.wait(2000));
    EXPECT_GT(talux::detail::monotonic() - start, 200000000) << "a commit may go on";
    EXPECT_TRUE(hangTogether(follower.settings()));
}

TEST_F(Followers, EndWithTheSameAndNeverHandOutAHalfCommit) {
    constexpr int kCommits = 1000;
    std::vector<pid_t> children;
    for (const int milliseconds : {1, 5, 9}) {
        children.push_back(fork());
        if (children.back() != 0) continue;
        Follower follower(milliseconds);
        int last = 0, torn = 0, seen = 0;
        for (; last != kCommits && follower.wait(10000); ++seen) {
            last = static_cast<int>(follower.settings()[kDelay]);
            torn += hangTogether(follower.settings()) ? 0 : 1;
        }
        std::printf("%d of %d commits, %d torn, the last is %d\n", seen, kCommits, torn, last);
        std::fflush(stdout);
        _exit(last == kCommits && torn == 0 && seen > kCommits / 100 ? 0 : 1);
    }
    std::minstd_rand random(1);
    for (int number = 1; number <= kCommits; ++number) {
        stage(number);
        store.commit();
        usleep(static_cast<useconds_t>(random() % 4000));
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
}

} // namespace
