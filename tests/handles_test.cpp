// Typed handles and the language: what one accepts the other accepts, and both read the same values.
// Following settings: every follower ends with the same values and hands out no half commit.
#include "Store.h"
#include "talux/follower.hpp"
#include "talux/notes.hpp"
#include "talux/talux.hpp"
#include "tools/Strings.h"

#include <cmath>
#include <csignal>
#include <map>
#include <numeric>
#include <set>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace talux;
using namespace std::literals;
using talux_test::say;

namespace {

struct Handles : testing::Test {
    Store store;

    Handles() {
        VarClean();
        store.stage_defaults();
        store.commit();
    }
    void TearDown() override {
        char directory[] = "/tmp";
        VarInit(directory);
        const Store another;
        EXPECT_EQ(std::string(szParameterPath), directory) << "the host says where files are";
    }
};

TEST_F(Handles, StageSettingsAndNothingThatIsRefused) {
    constexpr Setting<float> threshold{"Uearth"}, ratio{"knu1"}, quotient{"pHPCI_Yo_quot_abs"};
    constexpr Setting<std::int32_t> channel{"channel"}, limit{"BAF_cnt_val_dT1"};
    constexpr Setting<bool> active{"qui_active"};
    constexpr Setting<choice::Language> language{"Language"};
    constexpr Setting<Choice> skew{"skew_type"};
    constexpr Setting<Text> name{"Name"}, version{"FW_version"};
    constexpr Setting<Identifier> mark{"Kenn"};
    constexpr Setting<Address> address{"ETH0_IP"}, mask{"FW_ETH0_MASK"};

    EXPECT_TRUE(threshold.stage(35) && ratio.stage(0.1f) && quotient.stage(0.9f) && quotient.stage(0.999f) &&
                channel.stage(7) && active.stage(true) && language.stage(choice::Language::kGerman) &&
                skew.stage(Choice{2}) && name.stage(Text("Süd 1")) && mark.stage("Ä:ß") &&
                address.stage("10.0.0.7"));
    const auto read = [] {
        return say("TLX_Uearth") + say("TLX_channel") + say("TLX_qui_active") + say("TLX_Language") +
               say("TLX_skew_type") + say("TLX_Name") + say("TLX_Kenn") + say("TLX_ETH0_IP");
    };
    const std::string staged = "35.000000711.0000002.000000\"Süd 1\"\"Ä:ß\"\"10.0.0.7\"";
    EXPECT_EQ(read(), staged);
    const auto isPending = [](auto each, auto value) {
        return each.staged() == value && !(each.live() == value);
    };
    EXPECT_TRUE(isPending(channel, 7) && isPending(skew, Choice{2}) && isPending(name, "Süd 1") &&
                isPending(mark, "Ä:ß") && isPending(address, "10.0.0.7"));

    const std::pair<Result, const char*> refusals[] = {
        {threshold.stage(95), "Uearth = 95: VALUE TOO HIGH (1 to 90 %)"},
        {ratio.stage(0.09), "knu1 = 0.09: VALUE TOO LOW (0.1 to 90000)"},
        {ratio.stage(0.0624), "knu1 = 0.062: VALUE TOO LOW (0.1 to 90000)"},
        {ratio.stage(0.0626), "knu1 = 0.063: VALUE TOO LOW (0.1 to 90000)"},
        {limit.stage(-2LL), "BAF_cnt_val_dT1 = -2: VALUE TOO LOW (-1 to 100000)"},
        {limit.stage(1ULL << 63), "BAF_cnt_val_dT1 = ..: VALUE TOO HIGH (-1 to 100000)"},
        {threshold.stage(std::nan("")), "Uearth: NOT A NUMBER"},
        {Result(Reason::tooHigh, 1, 90), "VALUE TOO HIGH (1 to 90)"}, // of no parameter
        {skew.stage(Choice{0}), "skew_type = 0: VALUE TOO LOW (1 to 4)"},
        {name.stage(std::string(41, 'x')), "Name: TEXT TOO LONG (41 characters, at most 40)"},
        {name.stage("a\0b"sv), "Name: A LINE CANNOT CARRY A CONTROL CHARACTER"},
        {name.stage("say \"hi\""), "Name: A LINE CANNOT CARRY A DOUBLE QUOTE"},
        {name.stage("a=b"), "Name: A LINE CANNOT CARRY AN EQUALS SIGN"},
        {name.stage("a\nb"), "Name: A LINE CANNOT CARRY A CONTROL CHARACTER"},
        {mark.stage("B: A"), "Kenn: TEXT TOO LONG (4 characters, at most 3)"},
        {version.stage("2"), "FW_version: VARIABLE IS READ ONLY"},
        {address.stage("010.0.0.7"), "ETH0_IP: NO ADDRESS (four numbers from 0 to 255 as in 192.168.1.10)"},
        {mask.stage("255.0.255.0"), "FW_ETH0_MASK: NO NETMASK (ones before zeros as in 255.255.255.0)"}};
    for (const auto& [result, text] : refusals)
        EXPECT_TRUE(!result && std::string(result.text().c_str()) == text) << result.text().c_str();
    EXPECT_EQ(read(), staged);

    for (auto reason = Reason::readOnly; reason <= Reason::notLoaded;
         reason = static_cast<Reason>(static_cast<int>(reason) + 1))
        EXPECT_FALSE(Result(reason).text().empty()) << static_cast<int>(reason);

    store.commit();
    EXPECT_TRUE(threshold.live() == 35 && name.live() == "Süd 1" && name.stage("") && name.staged().empty());
    EXPECT_EQ(language.live(), choice::Language::kGerman);
}

TEST_F(Handles, WhatTheDeviceSaysOfItselfIsLiveAtOnceAndSurvivesACommit) {
    constexpr Status<Text> version{"FW_version"};
    constexpr Status<bool> security{"sec_mode"};
    EXPECT_TRUE(version.set("2.7") && security.set(false));
    EXPECT_STREQ(version.set("2=7").text().c_str(), "FW_version: A LINE CANNOT CARRY AN EQUALS SIGN");
    for (int commits = 0; commits < 2; ++commits, store.commit()) {
        EXPECT_EQ(version.get(), "2.7");
        EXPECT_FALSE(security.get());
    }
    EXPECT_EQ(say("TLX_FW_version"), "\"2.7\"");
}

TEST_F(Handles, AChangeIsAllOrNone) {
    constexpr Setting<float> threshold{"Uearth"}, delay{"Uearth_SigDel"};
    constexpr Setting<Text> name{"Name"};
    constexpr Setting<bool> active{"qui_active"};
    ASSERT_TRUE(threshold.stage(39)); // pending
    const float before = threshold.staged(), live = threshold.live();
    Change change;
    change.stage(threshold, 41).stage(delay, -1).stage(name, "a=b").stage(active, false);
    const Result result = change.commit();
    EXPECT_FALSE(result);
    EXPECT_EQ(result.id(), delay.id());
    EXPECT_EQ(talux::list(change.refusals(), "; ", [](const Result& each) { return each.text(); }),
              "Uearth_SigDel = -1: VALUE TOO LOW (0 to 86400 s); Name: A LINE CANNOT CARRY AN EQUALS SIGN");
    EXPECT_EQ(threshold.staged(), before);
    EXPECT_TRUE(threshold.live() == live && live != before);

    Change second;
    second.stage(threshold, 40).stage(delay, 0.25).stage(name, Text("Ost")).stage(active, false);
    EXPECT_TRUE(second.stage(threshold, 41).commit()) << "the last one holds";
    EXPECT_EQ(threshold.live(), 41);
    EXPECT_TRUE(threshold.stage(43) && second.commit()); // what it held is done
    EXPECT_EQ(threshold.live(), 43);
    EXPECT_EQ(delay.live(), 0.25f);
    EXPECT_EQ(name.live(), "Ost");
    EXPECT_FALSE(active.live());

    ChangeOf<2> small;
    small.stage(threshold, 42).stage(delay, 1);
    for (int more = 0; more < 3; ++more)
        EXPECT_EQ(small.stage(active, true).commit().text(), "qui_active: TOO MANY SETTINGS IN ONE CHANGE");
    EXPECT_EQ(small.refusals().size(), 2U);
    EXPECT_EQ(threshold.staged(), 43);
}

TEST_F(Handles, MeasuredValuesAreLiveAtOnce) {
    constexpr Measured<float> phases{"U1_prim"};
    constexpr Measured<double> word{"vMWR"}, fifth{"vMWR", 5};
    constexpr Measured<std::int32_t> inputs{"vBE"};
    constexpr Measured<bool> changed{"ParamChanged"};
    constexpr Measured<Text> file{"SampleFile"};
    constexpr Record<MessRecord02> record;

    phases.set_run(std::array{11.5f, 11.25f, 11.75f});
    fifth.set(0.5);
    word.at(96).set(9.0);
    inputs.set_run(std::vector<std::int32_t>(96, 3));
    for (bool got = false; const int byte : {2, -1, 0, 1}) { // of another program
        VarSetGlobalBoolValue(changed.id(), static_cast<char>(byte));
        EXPECT_EQ((changed.get(got), got), byte != 0);
    }
    for (const std::size_t bytes : {126U, 127U, 128U, 129U}) { // of characters of two bytes and of one
        std::string text(bytes % 2, 'x');
        while (text.size() < bytes)
            text += "ä";
        const std::string count = "SampleFile: TEXT TOO LONG (" + std::to_string(bytes);
        for (const auto& [each, unit] : {std::pair(text, " bytes, at most 127)"),
                                         {std::string(bytes, 'x'), " characters, at most 127)"}}) {
            const Result result = file.set(each);
            EXPECT_EQ(result.text(), bytes > 127 ? count + unit : "");
            EXPECT_EQ(result.reason(), bytes > 127 ? Reason::tooLong : Reason::none);
        }
        EXPECT_EQ(file.get(), std::string(std::min<std::size_t>(bytes, 127), 'x')) << "not of a refused one";
    }
    EXPECT_EQ(Text(std::string(128, 'x')), std::string(127, 'x'));
    EXPECT_EQ(Address("12345678901234567890"), "1234567890123456789");
    EXPECT_EQ(Text("a\0b"sv), "a");
    EXPECT_TRUE(file.set("/tmp/samples"));
    MessRecord02 values{};
    values.y_BAF_04 = -4;
    record.set(values);

    EXPECT_EQ(say("TLX_U2_prim") + say("TLX_vMWR 5") + say("TLX_vMWR 96 -p") + say("TLX_vBE 96"),
              "11.2500000.500000\n9.000000\n3\n");
    EXPECT_EQ(say("TLX_ParamChanged") + say("TLX_SampleFile"), "1\"/tmp/samples\"");
    EXPECT_TRUE(say("TLX_MessRecord02").ends_with("TLX_MessRecord02.y_BAF_04 = -4\n"));
    EXPECT_EQ((phases.run<3>().get()), (std::array{11.5f, 11.25f, 11.75f}));
    EXPECT_EQ(record.get().y_BAF_04, -4);
    std::array<float, 2> two{};
    phases.get_run(two);
    EXPECT_EQ(two[1], 11.25f);
}

// Of an indexed parameter; what does not exist reads as nothing, and a write of it does nothing.
template <std::size_t place>
void tryEdges() {
    constexpr const table::Row& row = table::kRows[place];
    if constexpr (row.elements > 0) {
        using Whole = std::conditional_t<row.kind == table::Kind::i32, std::int32_t, double>;
        using Value = std::conditional_t<row.kind == table::Kind::f32, float, Whole>;
        constexpr Measured<Value> measured{row.name};
        std::vector<Value> values(row.run), tooMany(row.run + 1U), read(row.run);
        std::iota(values.begin(), values.end(), static_cast<Value>(1));
        EXPECT_TRUE(measured.set_run(values) && !measured.set_run(tooMany) && !measured.get_run(tooMany));
        for (const int index : {0, 1, row.elements - 1, row.elements + 0, row.elements + 1}) {
            const bool exists = index >= 1 && index <= row.elements;
            const Measured<Value> element = measured.at(index);
            if (!exists) element.set(7);
            EXPECT_EQ(element.get(), exists ? static_cast<Value>(index) : 0) << row.name << index;
            const auto left = static_cast<std::size_t>(exists ? row.run - index + 1 : 0);
            EXPECT_TRUE(static_cast<bool>(element) == exists && !element.at(1) &&
                        element.get_run(std::span(read).first(left)) &&
                        !element.set_run(std::span(tooMany).first(left + 1)))
                << row.name << index;
        }
        EXPECT_TRUE(measured.get_run(read) && read == values) << row.name;
    }
}

TEST_F(Handles, ElementsAndRunsEndAtTheirEdges) {
    [&]<std::size_t... places>(std::index_sequence<places...>) {
        [[maybe_unused]] const int tried[] = {(tryEdges<places>(), 0)...};
    }
    (std::make_index_sequence<std::size(table::kRows)>());
}

TEST_F(Handles, TheDictionarySaysWhatIsKnownOfEachParameter) {
    constexpr Series<choice::BAassign> relays{"BAassign"};
    EXPECT_EQ(About(relays[2]).name(), "BAassign2");
    EXPECT_TRUE(relays[99].id() == relays[8].id() && relays[0].id() == relays[1].id());
    EXPECT_TRUE(relays[2].stage(choice::BAassign{1}) && !relays[2].stage(choice::BAassign{129}));

    LoadDefParamStrings();
    std::multiset<int> seen, expected;
    for (const ParamLanguage language : {kGerman, kEnglish}) {
        VarSetEnumValue(10000, static_cast<short>(language));
        for (const About parameter : parameters()) {
            seen.insert(parameter.id());
            for (const auto& [type, text] : {std::pair(kTextTitle, parameter.title(language)),
                                             {kTextDescription, parameter.description(language)},
                                             {kTextUnit, parameter.unit(language)}}) {
                const std::string_view known = GetParamString(parameter.id(), type)->txt;
                EXPECT_EQ(text, known == "***" ? "" : known) << parameter.name() << ' ' << type;
            }
        }
        EXPECT_EQ(About("Language").choice(1, language), language == kGerman ? "Deutsch" : "German");
    }
    for (const table::Row& row : table::kRows) {
        for (int k = 0; k < std::max<int>(row.elements, 1); ++k)
            expected.insert({row.id + k, row.id + k}); // in both languages
        if (row.kind > table::Kind::address) continue;
        const About about(row.id);
        const bool isText = row.kind >= table::Kind::text, isSetting = row.use != table::Use::measured;
        double value[16] = {}; // or a text
        if (isSetting) VarGetGlobalValue(row.id, value);
        EXPECT_TRUE(about.elements() == row.elements && about.is_setting() == isSetting &&
                    (isText ? about.default_text() == reinterpret_cast<const char*>(value)
                            : about.longest() == 0 && std::abs(about.default_number() - value[0]) < 1e-4) &&
                    (row.kind >= table::Kind::flag || (row.kind >= table::Kind::i32 && !isSetting) ||
                     (about.min().value_or(kNoMin) == row.min && about.max().value_or(kNoMax) == row.max)))
            << row.name;
    }
    EXPECT_EQ(seen, expected);
    for (const int number : {-1, 0, 1, 128, 129})
        EXPECT_EQ(About(relays[2]).choice(number).empty(), number < 1 || number > 128) << number;
    EXPECT_TRUE(About("Name").longest() == 40 && About("Kenn").longest() == 3 &&
                About(relays[2]).max() == 128 && About("ETH0_MASK").type() == kTypeIpMask);
    EXPECT_TRUE(About("mw_req").is_writable() && About("mw_req").level() == 1);
    EXPECT_EQ(About("uearth").title(kGerman), "Schwelle Erdschluss U0");
    EXPECT_FALSE(About("Uearht") || About(0) || About(-1));
}

TEST_F(Handles, FilesAreSavedAndLoadedOrSayWhyNot) {
    char directory[] = "/tmp/handles", missing[] = "/tmp/nothing";
    const struct {
        const char* name;
        Result (Store::*save)();
        Result (Store::*load)();
    } files[] = {{"parameter.ini", &Store::save, &Store::load},
                 {"sec_parameter.ini", &Store::save_sec, &Store::load_sec},
                 {"ip_config.ini", &Store::save_ip, nullptr}}; // whose load acts on the network
    std::filesystem::create_directory(directory);
    for (const auto& [name, save, load] : files) {
        VarInit(directory);
        EXPECT_TRUE(load == nullptr || (store.*load)().text() == "THE FILE CANNOT BE OPENED") << name;
        EXPECT_TRUE((store.*save)() && std::filesystem::exists(std::string(directory) + "/" + name)) << name;
        EXPECT_TRUE(load == nullptr || (store.*load)()) << name;
        VarInit(missing);
        EXPECT_EQ((store.*save)().text(), "NOT SAVED: No such file or directory") << name;
    }
    std::filesystem::remove_all(directory);
}

TEST_F(Handles, NotesAreThoseOfTheListOfParameters) {
    std::string kinds;
    for (const char* name : {"U1_prim", "ParamMagic", "UEARTH", "Firewall_dis"})
        for (const Note note : notes(name))
            kinds += "wua"[static_cast<int>(note.kind())];
    EXPECT_EQ(kinds, "auww");
    EXPECT_TRUE(notes("Uearht").empty());

    std::ifstream list(TALUX_CSV);
    std::string line;
    std::getline(list, line); // what the columns are
    int found = 0;
    while (std::getline(list, line)) {
        const About parameter(line.substr(0, line.find(',')).c_str());
        if (!parameter) continue;
        const int level = parameter.is_writable() ? parameter.level() : 0;
        EXPECT_TRUE(!parameter.is_setting() || parameter.type() == kTypeCommand ||
                    line.find(".ini," + std::to_string(level) + ',') != line.npos)
            << line;
        std::string texts[2];
        for (const Note note : notes(parameter))
            for (const ParamLanguage language : {kEnglish, kGerman}) {
                std::string& text = texts[language == kGerman];
                (text += text.empty() ? "" : " ") += note.text(language);
                ++found;
            }
        std::string end = ',' + texts[0] + ',' + texts[1] + '\r';
        for (std::string* const text : {&line, &end}) // quotes are doubled there, and around some fields
            std::erase(*text, '"');
        EXPECT_TRUE(line.ends_with(end)) << line << '\n' << end;
    }
    EXPECT_GT(found, 1000);
}

// ---- Followers ----

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

struct Followers : Handles {
    void SetUp() override {
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
    Change change;
    change.stage(kLanguage, choice::Language::kEnglish).stage(kAddress, "10.1.2.3").stage(kActive, false);
    ASSERT_TRUE(change.stage(kMark, "x").stage(kChannel, 7).commit());
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
    ASSERT_TRUE(Change().stage(kChannel, 8).commit() && !follower.wait(-1) && follower.wait(-1)) << "twice";
    EXPECT_TRUE(follower.before()[kChannel] == 7 && (*follower.changes().begin()).id() == kChannel.id());
    const std::clock_t busy = std::clock();
    EXPECT_FALSE(Follower(0).wait(100));
    EXPECT_LT(std::clock() - busy, CLOCKS_PER_SEC / 16) << "which rests between its looks";
    std::signal(SIGALRM, [](int) {});
    ualarm(5000, 0);
    const std::int64_t before = detail::monotonic();
    EXPECT_FALSE(Follower(20000).wait(40)) << "which ends before its next look";
    const std::int64_t waited = detail::monotonic() - before;
    EXPECT_TRUE(waited >= 40'000'000 && waited < 10'000'000'000) << waited << " ns, also with a signal";
    std::signal(SIGALRM, [](int) { ++pVarGlobal->BoolData[kActive.id() - kFirstBool]; });
    ualarm(500, 500);
    const Follower begun; // although nothing settles
    ualarm(0, 0);
    std::signal(SIGALRM, SIG_DFL);
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
        ASSERT_EQ(Settings(one) == Settings(other), owners[k] == 0) << k;
        bytes[k] = 0;
    }
}

// With something else pending, the snapshot is settled after a while without changes.
TEST_F(Followers, DoNotWaitForWhatStaysPending) {
    Follower follower;
    stage(5);
    store.commit();
    ASSERT_TRUE(kChannel.stage(3)); // pending for ever
    for (const float number : {6.0F, 7.0F, 5.0F}) {
        usleep(130000);
        const auto changed = talux::detail::monotonic();
        VarSetGlobalFloatValue(kDelay.id(), number);
        EXPECT_FALSE((follower.poll() || follower.poll()) &&
                     talux::detail::monotonic() - changed < 250000000);
    }
    const auto start = talux::detail::monotonic();
    ASSERT_TRUE(follower.wait(4400)); // more nanoseconds than 32 bits hold
    EXPECT_GT(talux::detail::monotonic() - start, 200000000) << "a commit may go on";
    EXPECT_TRUE(hangTogether(follower.settings()));
    VarSetGlobalTextValue(kName.id(), std::string(127, 'x').data()); // by other rules than the handles'
    VarSetGlobalBoolValue(kActive.id(), 2);
    EXPECT_TRUE(Settings()[kName] == std::string(127, 'x') && Settings()[kActive]);
}

TEST_F(Followers, DoNotBeginWithAHalfCommit) {
    stage(7);
    VarSetGlobalTextValue(kName.id(), std::string("7").data());
    const auto start = talux::detail::monotonic();
    const pid_t other = fork();
    if (other == 0) {
        usleep(30000);
        store.commit();
        _exit(talux::detail::monotonic() - start < 200000000 ? 0 : 1);
    }
    const bool isWhole = hangTogether(Follower().settings());
    int wasLate = 0;
    waitpid(other, &wasLate, 0);
    EXPECT_TRUE(isWhole || wasLate != 0);
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
