// Whatever a stored text holds, the shell runs the intended command alone and hands the text over whole.
#include <algorithm>
#include <set>

#include "SettingsSupport.h"

using namespace settings_test;

namespace {

constexpr char kPlayground[] = "/tmp/playground"; // the working directory: a side effect leaves a file here

std::set<std::string> playground() {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(kPlayground))
        names.insert(entry.path().filename());
    return names;
}

// clang-format off
constexpr const char* kHostileTexts[] = {
    "", " ", "  two  blanks ", "-", "--", "-x", "-s", "--help", "-- x", "\t", "a\tb", "#", "# rest",
    "a #b", "~", "~root", "*", "/*", "?", "[a-z]*", "{a,b}", "$HOME", "${HOME}", "$$", "$?", "a=b",
    "a'b", "''", "'", "\"", "\"quoted\"", "'quoted'", "\\", "\\\\", "a\\", "\\'", "'\\''", "\\n",
    "1.1.1.1\\nx 2", "\\c", "\\0101x", "1.1.1.1\nx 2", "\n", "a\n", "\r\n", "a!b", "(", ")", "&", "|",
    "<", ">", ";", "`", "$(", "%s%n", "100%", "Z\xc3\xbcrich", "\xe2\x98\x83 snow", "\xff\xfe",
    "\x01\x7f", "WLAN Gast 5",
};
// clang-format on

std::vector<std::string> hostileValues() {
    std::vector<std::string> values(std::begin(kHostileTexts), std::end(kHostileTexts));
    for (const char filling : {'x', '\'', '\\', ' ', '$'})
        values.emplace_back(127, filling);
    // Each way to start a command, in each surrounding that might let it out.
    for (const auto& [before, behind] :
         {std::pair{"", ""}, {"x ", ""}, {"'", ""}, {"'", "'"}, {"\"", ""}, {"\"", "\""}})
        for (const std::string command : {";>c", "&&>c", "||>c", "|>c", "\n>c", "&>c", "$(>c)", "`>c`"})
            values.push_back(before + command + behind);
    for (const char* redirection :
         {">c", ">>c", "x>c", "x 2>c", "x >&c", "'>c'", "\">c\"", "x;>c;#", "x\n>c\n"})
        values.emplace_back(redirection);
    return values;
}

class HostileSettings : public testing::Test {
protected:
    static void SetUpTestSuite() {
        char root[] = "";
        VarInit(root);
        LoadDefParamProperties();
        installRecorders({"ifconfig", "iwconfig", "route", "ln", "ntpd", "ntpdate", "hwclock", "killall"});
    }
    static void TearDownTestSuite() {
        for (const char* path : {"/tmp/recorders", "/tmp/record", "/tmp/ntp.conf"})
            fs::remove_all(path);
    }
    void SetUp() override {
        resetStore();
        fs::create_directories(kPlayground);
        fs::current_path(kPlayground);
        takeRecord();
    }
    void TearDown() override {
        fs::current_path("/");
        fs::remove_all(kPlayground);
    }
};

// How often `command` was run, with `value` in the place of an empty word.
long timesRun(const std::vector<Command>& commands, Command command, const std::string& value) {
    std::replace(command.begin(), command.end(), std::string(), value);
    return std::count(commands.begin(), commands.end(), command);
}

// The values are what they claim to be: without quotes many of them leave their file.
TEST_F(HostileSettings, ValuesWouldDoHarm) {
    const ErrorStream errors;
    int harmful = 0;
    for (const std::string& value : hostileValues()) {
        // NOLINTNEXTLINE(cert-env33-c)
        [[maybe_unused]] const int status =
            std::system(("iwconfig wlan0 essid " + value + " </dev/null").c_str());
        harmful += !playground().empty();
        fs::remove("c");
    }
    EXPECT_GE(harmful, 20);
    EXPECT_GE(hostileValues().size(), 50U);
}

TEST_F(HostileSettings, NetworkNameAndKey) {
    for (const std::string& value : hostileValues()) {
        putValue(VarSetGlobalValue, 9022, value);
        putValue(VarSetGlobalValue, 9023, value);
        const ErrorStream errors;
        VarADHOCWLAN0();
        const auto commands = takeRecord();
        // Each quote takes four characters: what does not fit is left out and reported.
        const bool fits =
            value.size() + 3 * static_cast<std::size_t>(std::count(value.begin(), value.end(), '\'')) < 220;
        const long times = fits ? 1 : 0;
        EXPECT_EQ(timesRun(commands, {"iwconfig", "wlan0", "essid", ""}, value), times) << value;
        EXPECT_EQ(timesRun(commands, {"iwconfig", "wlan0", "enc", ""}, value), times) << value;
        EXPECT_EQ(timesRun(commands, {"iwconfig", "wlan0", "key", ""}, value), times) << value;
        EXPECT_EQ(commands.size(), fits ? 8U : 5U) << value;
        EXPECT_EQ(errors.text().find("not run") == std::string::npos, fits) << value;
    }
    EXPECT_EQ(playground(), std::set<std::string>());
}

TEST_F(HostileSettings, NameServer) {
    if (!ownsSystemFiles()) GTEST_SKIP() << "the name server file is the container's";
    for (const std::string& whole : hostileValues()) {
        putValue(VarSetValue, 16000, whole);
        const std::string value = whole.substr(0, kIpSize - 1);
        const std::string before = "nameserver 1.2.3.4\n";
        writeFile("/etc/resolv.conf", before);
        const ErrorStream errors;
        // A line end would bring in a line of its own: nothing is written.
        const bool written = !value.empty() && value.find('\n') == std::string::npos;
        EXPECT_EQ(VarDNS(), written) << value;
        EXPECT_EQ(contents("/etc/resolv.conf"), written ? "nameserver " + value + "\n" : before) << value;
        EXPECT_EQ(errors.text().empty(), value.empty()) << value;
    }
    EXPECT_EQ(playground(), std::set<std::string>());
}

TEST_F(HostileSettings, ZoneFile) {
    for (const std::string& value : hostileValues()) {
        fs::remove_all(kPlayground);
        fs::create_directories(kPlayground);
        fs::current_path(kPlayground);
        fs::remove("/etc/localtime");
        putValue(VarSetGlobalValue, 9024, value);
        const fs::path zone = value;
        const bool canBeFile = !value.empty() && value.back() != '/';
        if (canBeFile && zone.has_parent_path()) fs::create_directories(zone.parent_path());
        if (canBeFile) writeFile(value, "");
        const auto before = playground();

        const ErrorStream errors;
        VarTIMEZONE();
        const auto commands = takeRecord();
        if (value.empty()) {
            EXPECT_TRUE(commands.empty()); // neither a link nor a name: nothing to do
        } else if (errors.text().find("not run") != std::string::npos) {
            EXPECT_TRUE(commands.empty()) << value;
            EXPECT_GT(value.size() +
                          3 * static_cast<std::size_t>(std::count(value.begin(), value.end(), '\'')),
                      200U)
                << value;
        } else {
            ASSERT_EQ(commands.size(), 1U) << value;
            const std::string expected = canBeFile || fs::exists(value) ? value : "/usr/share/zoneinfo/UTC";
            Command link = {"ln", "-s", expected, "/etc/localtime"};
            if (expected.starts_with("-")) link.insert(link.begin() + 2, "--");
            EXPECT_EQ(commands.front(), link) << value;
        }
        EXPECT_EQ(playground(), before) << value;
        if (canBeFile) fs::remove(zone); // a few lie elsewhere
    }
}

bool isAddress(const std::string& word) {
    const std::string start = word.substr(0, word.find('.') + 1);
    return (start == "7." || start == "127.") && word.find_first_not_of("-.0123456789") == std::string::npos;
}

// Addresses become four numbers before any command sees them.
TEST_F(HostileSettings, Addresses) {
    put("eth1_active=1 wlan0_active=1 VarSetWLAN0TypeDev=1");
    const std::set<std::string> known = {"eth0",         "eth1",    "wlan0",  "netmask", "del",  "default",
                                         "add",          "gw",      "-net",   "up",      "down", "-b",
                                         "eth0:1",       "eth0:2",  "eth0:3", "eth0:4",  "true", "fudge",
                                         "127.127.45.0", "stratum", "13"};
    const std::vector<std::string> values = hostileValues();
    for (std::size_t run = 0; run < 12; ++run) { // each run gives each address another value
        for (int id = kFirstIp + 1; id < kFirstIp + kIpCount; ++id)
            putValue(VarSetValue, id,
                     "7." + values[(run * 10 + static_cast<std::size_t>(id)) % values.size()]);
        const ErrorStream errors;
        VarSetSystemIPs();
        for (const Command& command : takeRecord()) {
            if (command[0] != "ifconfig" && command[0] != "route" && command[0] != "ntpdate") continue;
            for (std::size_t i = 1; i < command.size(); ++i)
                EXPECT_TRUE(known.contains(command[i]) || isAddress(command[i]))
                    << command[0] << " " << command[i];
        }
        std::istringstream words(contents("/tmp/ntp.conf"));
        int servers = 0;
        for (std::string word, server; words >> word;)
            if (word == "server") {
                words >> server;
                servers += isAddress(server);
            } else {
                EXPECT_TRUE(known.contains(word)) << word;
            }
        EXPECT_EQ(servers, 3);
    }
    EXPECT_EQ(playground(), std::set<std::string>());
}

} // namespace
